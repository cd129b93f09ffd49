// Checking the rows of the log, one by one, in the order in which the program walks them.
#include "ConfereLog.h"

#include "Console.h"
#include "housekeeping/RegrasDoExpurgo.h"
#include "Leitura.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/jet/Ordem.h"
#include "Preparado.h"
#include "Sequencia.h"

#include <algorithm>
#include <limits>
#include <sqlite3.h>
#include <SQLiteCpp/SQLiteCpp.h>
#include <unordered_map>

namespace banco {

namespace {

using plataforma::jet::TextoGravado;

constexpr std::size_t kAlgarismosDoIndex = 10;
constexpr std::size_t kAlgarismosDoCodigo = 5;
constexpr qint64 kLinhasPorBloco = 20'000;

/// One row. The bytes belong to the engine until the next one is read; a NULL has no address.
struct Linha {
    std::string_view indice, codigo, data, valor, cancelado;
};

QString TextoDe(std::string_view bytes)
{
    return bytes.data() ? TextoGravado(bytes) : QString();
}

QString Numero(qint64 numero)
{
    return QStringLiteral("%1").arg(numero, static_cast<int>(kAlgarismosDoIndex), 10, QLatin1Char('0'));
}

class Conferente {
public:
    explicit Conferente(Achados &achados) : m_achados(achados) {}

    void Confere(const Linha &linha)
    {
        ++m_posicao;
        ConfereIndex(linha);
        ConfereData(linha);
        ConfereValor(linha);
        const std::string_view c = linha.cancelado;
        if (!(c.empty() || (c.size() == 1 && (c[0] == ' ' || c[0] == 'C'))))
            Junta(Tipo::CanceladoDoCheque, linha, "StCancel", c, "devia ser um branco ou \"C\"");
    }
    void Termina();
    [[nodiscard]] qint64 Linhas() const { return m_posicao; }

private:
    void ConfereIndex(const Linha &linha);
    void ConfereCodigo(const Linha &linha);
    void ConfereData(const Linha &linha);
    void ConfereValor(const Linha &linha);
    bool DataServe(std::string_view bytes);
    void Junta(Tipo tipo, const Linha &linha, const char *campo, std::string_view valor, const char *motivo);
    [[nodiscard]] QString Onde(const Linha &linha) const;

    Achados &m_achados;
    Sequencia m_sequencia;
    qint64 m_posicao = 0;
    std::string m_ultimaData;
    std::unordered_map<std::string, bool> m_datas;
};

QString Conferente::Onde(const Linha &linha) const
{
    return QStringLiteral("Log, linha %1 (Index %2)")
        .arg(QString::number(m_posicao), Citado(TextoDe(linha.indice)));
}

void Conferente::Junta(Tipo tipo, const Linha &linha, const char *campo, std::string_view valor,
                       const char *motivo)
{
    m_achados.Junta(tipo, [&] {
        return QStringLiteral("%1, %2 %3: %4.")
            .arg(Onde(linha), QLatin1String(campo), Citado(TextoDe(valor)), QString::fromUtf8(motivo));
    });
}

void Conferente::ConfereIndex(const Linha &linha)
{
    if (m_posicao == 1 && linha.codigo.empty())
        m_achados.Junta(Tipo::NumeracaoRecomeca, [&] {
            return Onde(linha) + QStringLiteral(": é a primeira e está sem Codigo; por isso o próximo cheque "
                                                "receberia outra vez o Index 0000000001.");
        });
    if (linha.indice.size() != kAlgarismosDoIndex || !SoDigitos(linha.indice)) {
        m_achados.Junta(Tipo::IndexInvalido,
                        [&] { return Onde(linha) + QStringLiteral(": o Index não tem dez algarismos."); });
        return;
    }
    qint64 numero = 0;
    for (const char c : linha.indice)
        numero = numero * 10 + (c - '0');
    const qint64 anterior = m_sequencia.Ultimo();
    if (m_sequencia.Junta(numero, m_posicao))
        m_achados.Junta(Tipo::IndexForaDeOrdem, [&] {
            return QStringLiteral("%1: vem depois de %2. O programa tira o próximo número da última linha; "
                                  "com as linhas "
                                  "fora de ordem, um número pode sair duas vezes.")
                .arg(Onde(linha), Numero(anterior));
        });
    ConfereCodigo(linha);
}

void Conferente::ConfereCodigo(const Linha &linha)
{
    const bool jaDito = m_posicao == 1 && linha.codigo.empty();
    if (!jaDito && linha.codigo != linha.indice.substr(kAlgarismosDoIndex - kAlgarismosDoCodigo))
        Junta(Tipo::CodigoDoCheque, linha, "Codigo", linha.codigo, "não é o fim do Index");
}

// What the purge at start cannot read, it stops at.
bool Conferente::DataServe(std::string_view bytes)
{
    constexpr std::size_t kDatasLembradas = 50'000;
    if (m_datas.size() >= kDatasLembradas)
        m_datas.clear();
    const auto [achada, nova] = m_datas.try_emplace(std::string(bytes), false);
    if (nova)
        achada->second = housekeeping::DataDoCheque(TextoGravado(bytes)).has_value();
    if (achada->second)
        m_ultimaData = bytes;
    return achada->second;
}

void Conferente::ConfereData(const Linha &linha)
{
    if (!linha.data.empty() && linha.data != m_ultimaData && !DataServe(linha.data))
        Junta(Tipo::DataDoCheque, linha, "Data", linha.data,
              "não é uma data, e a exclusão de cheques antigos pararia nela");
}

// Digits with one comma among them are a number; whatever else it is, the rule itself decides.
void Conferente::ConfereValor(const Linha &linha)
{
    constexpr std::size_t kCurto = 15;
    const std::string_view v = linha.valor;
    const std::size_t virgula = std::min(v.find(','), v.size());
    const bool simples = virgula > 0 && v.size() <= kCurto && SoDigitos(v.substr(0, virgula)) &&
                         (virgula == v.size() || SoDigitos(v.substr(virgula + 1)));
    if (!simples && !plataforma::IsNumeric(TextoDe(v)))
        Junta(Tipo::ValorDoCheque, linha, "V_CH", v, "não é um valor, e os relatórios não podem somá-lo");
}

void Conferente::Termina()
{
    m_sequencia.Percorre(
        [this](qint64 numero, qint64 antes, qint64 posicao) {
            m_achados.Junta(Tipo::IndexRepetido, [&] {
                return QStringLiteral("Log, linha %1: o Index %2 é também o da linha %3.")
                    .arg(QString::number(std::max(antes, posicao)), Citado(Numero(numero)),
                         QString::number(std::min(antes, posicao)));
            });
        },
        [this](qint64 primeiro, qint64 ultimo, qint64 posicao) {
            m_achados.Junta(Tipo::NumerosPerdidos, [&] {
                const QString depois =
                    QStringLiteral(" depois da linha %1; cheques excluídos deixam essas falhas.")
                        .arg(posicao);
                if (primeiro == ultimo)
                    return QStringLiteral("Log: falta o Index %1").arg(Numero(primeiro)) + depois;
                return QStringLiteral("Log: faltam %1 números de Index, de %2 a %3,")
                           .arg(QString::number(ultimo - primeiro + 1), Numero(primeiro), Numero(ultimo)) +
                       depois;
            });
        });
}

/// Reads the rows of one statement.
class Leitor {
public:
    Leitor(SQLite::Database &loja, const std::string &sql) : m_loja(loja), m_comando(Prepara(loja, sql))
    {
        SQLite::Statement codificacao(loja, "PRAGMA encoding");
        m_utf8 = codificacao.executeStep() && codificacao.getColumn(0).getString() == "UTF-8";
    }
    void Comeca(qint64 menor)
    {
        Larga();
        sqlite3_bind_int64(m_comando.get(), 1, menor);
    }
    bool Passo() { return banco::Passo(m_loja, m_comando); }
    /// Gives back the lock on the file.
    void Larga() { sqlite3_reset(m_comando.get()); }
    [[nodiscard]] qint64 Numero() const { return sqlite3_column_int64(m_comando.get(), 0); }
    [[nodiscard]] Linha Atual() const { return {Campo(1), Campo(2), Campo(3), Campo(4), Campo(5)}; }

private:
    // The bytes of a text as they lie in the file; asking for a text would copy each of them first.
    [[nodiscard]] std::string_view Campo(int coluna) const
    {
        const void *bytes = m_utf8 ? sqlite3_column_blob(m_comando.get(), coluna)
                                   : sqlite3_column_text(m_comando.get(), coluna);
        const auto tamanho = static_cast<std::size_t>(sqlite3_column_bytes(m_comando.get(), coluna));
        if (bytes)
            return {static_cast<const char *>(bytes), tamanho};
        return sqlite3_column_type(m_comando.get(), coluna) == SQLITE_NULL ? std::string_view()
                                                                           : std::string_view("");
    }

    SQLite::Database &m_loja;
    Preparado m_comando;
    bool m_utf8 = true;
};

std::string Consulta(const TabelaAchada &log)
{
    const std::string campos = R"("Index", "Codigo", "Data", "V_CH", "StCancel" FROM )" + log.nome;
    if (log.numero.empty())
        return "SELECT 0, " + campos + " WHERE ?1 IS NOT NULL" +
               (log.ordem.empty() ? "" : " ORDER BY " + log.ordem);
    return "SELECT " + log.numero + ", " + campos + " WHERE " + log.numero + " >= ?1 ORDER BY " + log.ordem +
           " LIMIT " + std::to_string(kLinhasPorBloco);
}

qint64 Conta(SQLite::Database &loja, const TabelaAchada &log)
{
    SQLite::Statement leitura(loja, "SELECT count(*) FROM " + log.nome);
    leitura.executeStep();
    return leitura.getColumn(0).getInt64();
}

void ConfereBlocos(SQLite::Database &loja, const TabelaAchada &log, Conferente &conferente)
{
    Progresso progresso(QStringLiteral("Cheques"), Conta(loja, log));
    Leitor leitor(loja, Consulta(log));
    qint64 proximo = std::numeric_limits<qint64>::min();
    for (bool cheio = true; cheio;) {
        leitor.Comeca(proximo);
        const qint64 antes = conferente.Linhas();
        while (leitor.Passo()) {
            conferente.Confere(leitor.Atual());
            proximo = leitor.Numero();
            progresso.Mostra(conferente.Linhas());
        }
        leitor.Larga();
        cheio = !log.numero.empty() && conferente.Linhas() - antes == kLinhasPorBloco &&
                proximo < std::numeric_limits<qint64>::max();
        proximo += cheio ? 1 : 0;
    }
}

} // namespace

qint64 ConfereLog(SQLite::Database &loja, const TabelaAchada &log, Achados &achados)
{
    Conferente conferente(achados);
    try {
        ConfereBlocos(loja, log, conferente);
    } catch (const SQLite::Exception &erro) {
        if (!EstaDanificado(erro))
            throw;
        achados.Junta(Tipo::Arquivo, [&] {
            return QStringLiteral(
                       "Log: a leitura parou depois da linha %1, porque o arquivo está danificado.")
                .arg(conferente.Linhas());
        });
    }
    conferente.Termina();
    return conferente.Linhas();
}

} // namespace banco
