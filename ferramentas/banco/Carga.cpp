// Rows of CSV files on their way into one table of the store.
#include "Carga.h"

#include "ConfereAchados.h"
#include "Console.h"
#include "Leiaute.h"
#include "Percurso.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace banco {

namespace {

QString EmTexto(std::string_view texto)
{
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

std::int64_t Numero(std::string_view digitos)
{
    std::int64_t numero = 0;
    std::from_chars(digitos.data(), digitos.data() + digitos.size(), numero);
    return numero;
}

// Key of the last row, whence the program numbers the next cheque; -1 when there is none or it is no number.
std::int64_t UltimaChave(SQLite::Database &loja, const Tabela &tabela)
{
    if (!TemNumeros(loja, tabela))
        return -1;
    const Preparado consulta =
        Prepara(loja, "SELECT t.[" + std::string(tabela.chave) + "] FROM [" + std::string(tabela.nome) +
                          "] AS t ORDER BY t.rowid DESC LIMIT 1");
    const bool tem = Passo(loja, consulta) && sqlite3_column_text(consulta.get(), 0);
    return tem ? sqlite3_column_int64(consulta.get(), 0) : -1;
}

constexpr qint64 kBytesPorPasso = 64;
constexpr qint64 kLinhasPorOlhada = 256;

} // namespace

void Faltas::Junta(const QString &arquivo, qint64 linha, const QString &falta)
{
    if (++m_quantas <= kDitas)
        m_ditas.append(QStringLiteral("%1, linha %2: %3.").arg(arquivo, QString::number(linha), falta));
}

QStringList Faltas::EmPalavras() const
{
    QStringList palavras = m_ditas;
    if (m_quantas > kDitas)
        palavras.append(
            QStringLiteral("e mais %1 com erro.").arg(Quantos(m_quantas - kDitas, "linha", "linhas")));
    return palavras;
}

ChavesVistas::ChavesVistas(SQLite::Database &loja, const Tabela &tabela, std::size_t largura) : m_loja(loja)
{
    const std::string vistas = "temp.[vistas " + std::string(tabela.nome) + "]";
    const std::string chave = "t.[" + std::string(tabela.chave) + "]";
    loja.exec("CREATE TABLE " + vistas + " (chave INTEGER PRIMARY KEY, arquivo INTEGER, linha INTEGER)");
    // A key that is not that many digits is none that could come.
    loja.exec("INSERT OR IGNORE INTO " + vistas + " SELECT CAST(" + chave +
              " AS INTEGER), -1, 0 FROM main.[" + std::string(tabela.nome) + "] AS t WHERE length(" + chave +
              ") = " + std::to_string(largura) + " AND " + chave + " NOT GLOB '*[^0-9]*'");
    m_insercao = Prepara(loja, "INSERT OR IGNORE INTO " + vistas + " VALUES (?, ?, ?)");
    m_busca = Prepara(loja, "SELECT arquivo, linha FROM " + vistas + " WHERE chave = ?");
}

std::optional<ChavesVistas::Origem> ChavesVistas::Junta(std::int64_t chave, const Origem &origem)
{
    sqlite3_bind_int64(m_insercao.get(), 1, chave);
    sqlite3_bind_int(m_insercao.get(), 2, origem.arquivo);
    sqlite3_bind_int64(m_insercao.get(), 3, origem.linha);
    Passo(m_loja, m_insercao);
    sqlite3_reset(m_insercao.get());
    if (sqlite3_changes(m_loja.getHandle()) > 0)
        return std::nullopt;
    sqlite3_bind_int64(m_busca.get(), 1, chave);
    Passo(m_loja, m_busca);
    const Origem antes{sqlite3_column_int(m_busca.get(), 0), sqlite3_column_int64(m_busca.get(), 1)};
    sqlite3_reset(m_busca.get());
    return antes;
}

Carga::Carga(SQLite::Database &loja, const Tabela &tabela, Faltas &faltas)
    : m_loja(loja), m_tabela(tabela), m_faltas(faltas), m_regras(tabela),
      m_vistas(loja, tabela, m_regras.LarguraDaChave()), m_insercao(Prepara(loja, ComandoDeInsercao(tabela))),
      m_emOrdem(tabela.nome == "Log"), m_linha(tabela.campos.size())
{
    if (m_emOrdem)
        m_anterior = UltimaChave(loja, tabela);
}

void Carga::Le(ArquivoCsv &arquivo)
{
    m_arquivos.append(arquivo.Caminho());
    if (!LeCabecalho(arquivo))
        return;
    Progresso progresso(EmTexto(m_tabela.nome), arquivo.Tamanho() / kBytesPorPasso);
    RegistroCsv registro;
    while (arquivo.Le(registro)) {
        const QStringList faltas = LeLinha(arquivo, registro);
        if (!faltas.isEmpty())
            m_faltas.Junta(arquivo.Caminho(), registro.linha, faltas.join(QStringLiteral("; ")));
        else if (!m_faltas.Houve())
            Grava();
        if (registro.linha % kLinhasPorOlhada == 0)
            progresso.Mostra(arquivo.Lidos() / kBytesPorPasso);
    }
    progresso.Mostra(arquivo.Tamanho() / kBytesPorPasso);
}

// The names of the fields, in any order and any case. @return whether the lines below can be read by them
bool Carga::LeCabecalho(ArquivoCsv &arquivo)
{
    m_lugares.clear();
    RegistroCsv registro;
    QStringList faltas;
    if (!arquivo.Le(registro))
        faltas.append(QStringLiteral("falta a linha com os nomes dos campos"));
    else if (registro.erro != ErroCsv::Nenhum)
        faltas.append(TextoDoErro(registro.erro));
    else
        for (const CampoCsv &campo : registro.campos)
            faltas.append(LigaCampo(arquivo, campo.texto));
    faltas.removeAll(QString());
    const bool temChave =
        std::find(m_lugares.begin(), m_lugares.end(), m_regras.LugarDaChave()) != m_lugares.end();
    if (faltas.isEmpty() && !temChave)
        faltas.append(QStringLiteral("falta o campo %1").arg(EmTexto(m_tabela.chave)));
    if (!faltas.isEmpty())
        m_faltas.Junta(arquivo.Caminho(), registro.linha, faltas.join(QStringLiteral("; ")));
    return faltas.isEmpty();
}

QString Carga::LigaCampo(const ArquivoCsv &arquivo, std::string_view nome)
{
    std::string texto;
    static_cast<void>(arquivo.Decodifica(nome, texto));
    const QString procurado = EmTexto(texto).trimmed();
    const auto campos = m_tabela.campos;
    const auto campo = std::find_if(campos.begin(), campos.end(), [&procurado](std::string_view c) {
        return procurado.compare(EmTexto(c), Qt::CaseInsensitive) == 0;
    });
    if (campo == campos.end())
        return QStringLiteral("a tabela %1 não tem o campo %2")
            .arg(EmTexto(m_tabela.nome), Citado(procurado));
    const auto lugar = static_cast<std::size_t>(campo - campos.begin());
    if (std::find(m_lugares.begin(), m_lugares.end(), lugar) != m_lugares.end())
        return QStringLiteral("o campo %1 aparece duas vezes").arg(EmTexto(*campo));
    m_lugares.push_back(lugar);
    return {};
}

// Takes the record apart into m_linha. @return what is wrong with it
QStringList Carga::LeLinha(const ArquivoCsv &arquivo, const RegistroCsv &registro)
{
    if (registro.erro != ErroCsv::Nenhum)
        return {TextoDoErro(registro.erro)};
    if (registro.campos.size() != m_lugares.size())
        return {QStringLiteral("há %1, e na primeira linha há %2")
                    .arg(Quantos(std::ssize(registro.campos), "campo", "campos"),
                         QString::number(m_lugares.size()))};
    QStringList faltas = Decodifica(arquivo, registro);
    if (!faltas.isEmpty())
        return faltas;
    faltas = m_regras.Aplica(m_linha);
    const QString daChave = ConfereChave(registro.linha);
    if (!daChave.isEmpty())
        faltas.append(daChave);
    return faltas;
}

QStringList Carga::Decodifica(const ArquivoCsv &arquivo, const RegistroCsv &registro)
{
    for (Campo &campo : m_linha) {
        campo.texto.clear();
        campo.nulo = true;
    }
    QStringList faltas;
    for (std::size_t i = 0; i < registro.campos.size(); ++i) {
        const CampoCsv &lido = registro.campos[i];
        Campo &campo = m_linha[m_lugares[i]];
        campo.nulo = lido.texto.empty() && !lido.entreAspas;
        const std::size_t fora = arquivo.Decodifica(lido.texto, campo.texto);
        if (fora == std::string_view::npos)
            continue;
        const bool utf8 = arquivo.EmQueEsta() == Codificacao::Utf8;
        faltas.append(QStringLiteral("%1 tem o byte %2, que não é de um texto em %3")
                          .arg(EmTexto(m_tabela.campos[m_lugares[i]]))
                          .arg(static_cast<unsigned char>(lido.texto[fora]), 2, 16, QLatin1Char('0'))
                          .arg(utf8 ? QStringLiteral("UTF-8") : QStringLiteral("Windows-1252")));
    }
    return faltas;
}

// Whether the key of m_linha, where it is one, was there before.
QString Carga::ConfereChave(qint64 linhaDoArquivo)
{
    const std::string &chave = m_linha[m_regras.LugarDaChave()].texto;
    if (chave.size() != m_regras.LarguraDaChave() ||
        chave.find_first_not_of("0123456789") != std::string::npos)
        return {};
    const int arquivo = static_cast<int>(m_arquivos.size()) - 1;
    const std::int64_t numero = Numero(chave);
    const auto antes = m_vistas.Junta(numero, {arquivo, linhaDoArquivo});
    if (!antes)
        return ConfereOrdem(numero);
    const QString qual = QStringLiteral("%1 %2").arg(EmTexto(m_tabela.chave), EmTexto(chave));
    if (antes->arquivo < 0)
        return QStringLiteral("%1 já está no banco de dados").arg(qual);
    const QString onde =
        antes->arquivo == arquivo ? QString() : QStringLiteral(" de %1").arg(m_arquivos[antes->arquivo]);
    return QStringLiteral("%1 já está na linha %2%3").arg(qual, QString::number(antes->linha), onde);
}

// The program gives the next cheque the number behind the last row's: a row out of order would make it give
// numbers twice.
QString Carga::ConfereOrdem(std::int64_t chave)
{
    const std::int64_t anterior = std::exchange(m_anterior, chave);
    const bool daLoja = std::exchange(m_anteriorDaLoja, false);
    if (!m_emOrdem || chave > anterior)
        return {};
    const QString texto = daLoja
                              ? QStringLiteral("%1 %2 é menor que o do último cheque do banco de dados, %3, "
                                               "de onde o programa segue a numeração")
                              : QStringLiteral("%1 %2 vem depois de %3; ponha as linhas na ordem do %1");
    return texto.arg(EmTexto(m_tabela.chave))
        .arg(chave, 10, 10, QLatin1Char('0'))
        .arg(anterior, 10, 10, QLatin1Char('0'));
}

void Carga::Grava()
{
    for (std::size_t i = 0; i < m_linha.size(); ++i) {
        const Campo &campo = m_linha[i];
        const int lugar = static_cast<int>(i) + 1;
        if (campo.nulo)
            sqlite3_bind_null(m_insercao.get(), lugar);
        else
            sqlite3_bind_text(m_insercao.get(), lugar, campo.texto.data(),
                              static_cast<int>(campo.texto.size()), SQLITE_STATIC);
    }
    Passo(m_loja, m_insercao);
    sqlite3_reset(m_insercao.get());
    ++m_linhas;
    if (m_tabela.nome == "Bancos")
        GuardaFormato();
}

void Carga::GuardaFormato()
{
    constexpr std::size_t kAntesDoLeiaute = 2; // code and name
    Leiaute leiaute{};
    for (std::size_t i = 0; i < leiaute.size(); ++i)
        leiaute[i] = static_cast<int>(Numero(m_linha[kAntesDoLeiaute + i].texto));
    m_formatos.push_back({EmTexto(m_linha[0].texto), TextoDoFormato(leiaute, EmTexto(m_linha[1].texto))});
}

} // namespace banco
