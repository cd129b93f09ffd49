// Checking the registers: codes, and the banks' layouts in the store against those in QX70.INI.
#include "ConfereCadastros.h"

#include "Leiaute.h"
#include "plataforma/basico/Texto.h"
#include "plataforma/jet/Ordem.h"
#include "plataforma/perfil/ProfileFile.h"

#include <algorithm>
#include <optional>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <SQLiteCpp/SQLiteCpp.h>

namespace banco {

namespace {

using plataforma::UCase;

/// One row of a register: code, name and the numbers of a layout, in the order of the table's fields.
struct Registro {
    qint64 posicao = 0;
    QStringList campos;

    [[nodiscard]] const QString &Codigo() const { return campos[0]; }
    [[nodiscard]] const QString &Nome() const { return campos[1]; }
};

/// How one register of banks stands in the settings file.
struct Secao {
    const char *nome;
    TextoDoLeiaute (*le)(const QString &);
    Tipo diferente; ///< what a key is that differs from its row
    bool dependeDaTabela;
};

// The program writes a bank's row and its key in Formato together. The keys of ChequeTransf live without the
// table: the register of the transfer banks writes keys and no rows, so that only a row without a key is a
// defect.
std::optional<Secao> SecaoDe(std::string_view tabela)
{
    if (tabela == "Bancos")
        return Secao{"Formato", LeFormato, Tipo::ChaveDiferente, true};
    if (tabela == "Transferencia")
        return Secao{"ChequeTransf", LeChequeTransf, Tipo::ChaveDesligada, false};
    return std::nullopt;
}

QString Campo(SQLite::Statement &leitura, int coluna)
{
    if (leitura.isColumnNull(coluna))
        return {};
    const SQLite::Column valor = leitura.getColumn(coluna);
    const char *bytes = valor.getText("");
    return plataforma::jet::TextoGravado({bytes, static_cast<std::size_t>(valor.getBytes())});
}

std::vector<Registro> LeRegistros(SQLite::Database &loja, const Tabela &tabela, const TabelaAchada &achada)
{
    std::string sql;
    for (const std::string_view campo : tabela.campos)
        sql += (sql.empty() ? "SELECT \"" : ", \"") + std::string(campo) + '"';
    sql += " FROM " + achada.nome + (achada.ordem.empty() ? "" : " ORDER BY " + achada.ordem);
    SQLite::Statement leitura(loja, sql);
    std::vector<Registro> registros;
    while (leitura.executeStep()) {
        Registro registro{std::ssize(registros) + 1, {}};
        for (int i = 0; i < std::ssize(tabela.campos); ++i)
            registro.campos.append(Campo(leitura, i));
        registros.push_back(std::move(registro));
    }
    return registros;
}

QString Onde(const Tabela &tabela, const Registro &registro)
{
    return QStringLiteral("%1, linha %2 (Codigo %3)")
        .arg(NomeDe(tabela), QString::number(registro.posicao), Citado(registro.Codigo()));
}

void ConfereCodigos(const Tabela &tabela, const std::vector<Registro> &registros, Achados &achados)
{
    QHash<QString, qint64> vistos;
    for (const Registro &registro : registros) {
        if (registro.Codigo().isEmpty()) {
            achados.Junta(Tipo::CodigoVazio, [&] {
                return Onde(tabela, registro) +
                       QStringLiteral(": sem Codigo o registro não pode ser achado.");
            });
            continue;
        }
        const QString codigo = UCase(registro.Codigo());
        const auto outro = vistos.constFind(codigo);
        if (outro == vistos.constEnd())
            vistos.insert(codigo, registro.posicao);
        else
            achados.Junta(Tipo::CodigoRepetido, [&] {
                return Onde(tabela, registro) +
                       QStringLiteral(": o Codigo é também o da linha %1, e o programa só acha aquela.")
                           .arg(*outro);
            });
    }
}

/// Compares the rows of one register of banks with the keys of its section.
class ConferenteDeChaves {
public:
    ConferenteDeChaves(const Tabela &tabela, const Secao &secao, Achados &achados)
        : m_tabela(tabela), m_secao(secao), m_achados(achados)
    {
    }
    void Confere(const std::vector<Registro> &registros, const QList<std::pair<QString, QString>> &chaves);

private:
    void ConfereTexto(const QString &chave, const QString &valor);
    void ConfereLinha(const Registro &registro);
    void Compara(const Registro &registro, const TextoDoLeiaute &lido);
    void Difere(const Registro &registro, const QString &campo, const QString &naTabela,
                const QString &naChave);
    [[nodiscard]] QString Chave(const QString &chave) const
    {
        return QStringLiteral("a chave %1 da seção %2 do QX70.INI").arg(chave, QLatin1String(m_secao.nome));
    }

    const Tabela &m_tabela;
    Secao m_secao;
    Achados &m_achados;
    QHash<QString, TextoDoLeiaute> m_lidas; // by name in capitals; those that cannot be read have no numbers
};

void ConferenteDeChaves::Confere(const std::vector<Registro> &registros,
                                 const QList<std::pair<QString, QString>> &chaves)
{
    for (const auto &[chave, valor] : chaves)
        ConfereTexto(chave, valor);
    QSet<QString> codigos;
    for (const Registro &registro : registros) {
        codigos.insert(UCase(registro.Codigo()));
        if (!registro.Codigo().isEmpty())
            ConfereLinha(registro);
    }
    for (const auto &par : chaves) {
        if (m_secao.dependeDaTabela && !codigos.contains(UCase(par.first)))
            m_achados.Junta(Tipo::ChaveSemBanco, [&] {
                return Chave(par.first) +
                       QStringLiteral(" é de um banco que não está na tabela %1 (foi excluído?).")
                           .arg(NomeDe(m_tabela));
            });
    }
}

// A key that cannot be read is told once, and its row is compared with nothing.
void ConferenteDeChaves::ConfereTexto(const QString &chave, const QString &valor)
{
    static const QRegularExpression kAlgarismos(QStringLiteral("\\A[0-9]+\\z"));
    TextoDoLeiaute lido = m_secao.le(valor);
    const qsizetype numeros = std::ssize(m_tabela.campos) - 2;
    const bool legivel = lido.numeros.size() == numeros &&
                         std::all_of(lido.numeros.cbegin(), lido.numeros.cend(),
                                     [](const QString &n) { return kAlgarismos.match(n).hasMatch(); });
    if (!legivel) {
        m_achados.Junta(Tipo::ChaveInvalida, [&] {
            return Chave(chave) + QStringLiteral(" não tem as suas %1 posições: %2.")
                                      .arg(QString::number(numeros), Citado(valor));
        });
        lido.numeros.clear();
    }
    m_lidas.insert(UCase(chave), lido);
}

void ConferenteDeChaves::ConfereLinha(const Registro &registro)
{
    const auto lido = m_lidas.constFind(UCase(registro.Codigo()));
    if (lido == m_lidas.constEnd())
        m_achados.Junta(Tipo::SemChave, [&] {
            return Onde(m_tabela, registro) + QStringLiteral(": falta ") + Chave(registro.Codigo()) +
                   QStringLiteral(", com as posições do banco.");
        });
    else if (!lido->numeros.isEmpty())
        Compara(registro, *lido);
}

void ConferenteDeChaves::Compara(const Registro &registro, const TextoDoLeiaute &lido)
{
    for (qsizetype i = 0; i < lido.numeros.size(); ++i) {
        const QString &campo = registro.campos[i + 2];
        if (!MesmoNumero(lido.numeros[i], campo))
            Difere(registro, QString::fromUtf8(m_tabela.campos[static_cast<std::size_t>(i) + 2]), campo,
                   lido.numeros[i]);
    }
    const QString nome = plataforma::RTrim(plataforma::Left(registro.Nome(), 20));
    if (!MesmoNome(lido.nome, nome))
        Difere(registro, QStringLiteral("Nome"), nome, lido.nome);
}

void ConferenteDeChaves::Difere(const Registro &registro, const QString &campo, const QString &naTabela,
                                const QString &naChave)
{
    m_achados.Junta(m_secao.diferente, [&] {
        return QStringLiteral("%1, %2: %3 na tabela, mas %4 n%5.")
            .arg(Onde(m_tabela, registro), campo, Citado(naTabela), Citado(naChave),
                 Chave(registro.Codigo()));
    });
}

} // namespace

qint64 ConfereCadastro(SQLite::Database &loja, const Tabela &tabela, const TabelaAchada &achada,
                       const QString &ini, Achados &achados)
{
    const std::vector<Registro> registros = LeRegistros(loja, tabela, achada);
    ConfereCodigos(tabela, registros, achados);
    const std::optional<Secao> secao = SecaoDe(tabela.nome);
    if (secao && QFileInfo::exists(ini)) {
        const auto chaves = plataforma::ProfileFile(ini).GetPrivateProfileSection(QLatin1String(secao->nome));
        if (chaves)
            ConferenteDeChaves(tabela, *secao, achados).Confere(registros, *chaves);
    }
    return std::ssize(registros);
}

} // namespace banco
