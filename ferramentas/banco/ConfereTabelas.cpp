// Checking the file and its tables: what is there, what is missing, and how rows are walked.
#include "ConfereTabelas.h"

#include "Leitura.h"

#include <algorithm>
#include <array>
#include <map>
#include <QRegularExpression>
#include <SQLiteCpp/SQLiteCpp.h>

namespace banco {

namespace {

struct Campo {
    QString nome;
    QString tipo;
    int naChave = 0; // place in the primary key, from 1; 0 outside
};

bool MesmoNome(const QString &nome, std::string_view esperado)
{
    return nome.compare(QString::fromUtf8(esperado), Qt::CaseInsensitive) == 0;
}

std::string EntreAspas(const QString &nome)
{
    QString dobrado = nome;
    return '"' + dobrado.replace(QLatin1Char('"'), QLatin1String("\"\"")).toStdString() + '"';
}

QString Coluna(SQLite::Statement &leitura, int coluna)
{
    return QString::fromStdString(leitura.getColumn(coluna).getString());
}

// The engine's words on damage, of which those on indexes can be told plainly.
QString EmPortugues(const QString &palavras)
{
    static const QRegularExpression kFaltaNoIndice(QStringLiteral("^row (\\d+) missing from index (.*)$"));
    static const QRegularExpression kContagem(QStringLiteral("^wrong # of entries in index (.*)$"));
    static const QRegularExpression kRepetida(QStringLiteral("^non-unique entry in index (.*)$"));
    if (const auto achado = kFaltaNoIndice.match(palavras); achado.hasMatch())
        return QStringLiteral(
                   "a linha de número interno %1 falta no índice %2, e o programa pode não achá-la.")
            .arg(achado.captured(1), achado.captured(2));
    if (const auto achado = kContagem.match(palavras); achado.hasMatch())
        return QStringLiteral("o índice %1 não tem tantas entradas quantas são as linhas.")
            .arg(achado.captured(1));
    if (const auto achado = kRepetida.match(palavras); achado.hasMatch())
        return QStringLiteral("o índice %1 não admite repetições e tem uma.").arg(achado.captured(1));
    return QStringLiteral("o arquivo está danificado (%1).").arg(palavras);
}

std::vector<Campo> CamposDe(SQLite::Database &loja, const QString &tabela)
{
    std::vector<Campo> campos;
    SQLite::Statement leitura(loja, "SELECT name, type, pk FROM pragma_table_info(?) ORDER BY cid");
    leitura.bind(1, tabela.toStdString());
    while (leitura.executeStep())
        campos.push_back({Coluna(leitura, 0), Coluna(leitura, 1), leitura.getColumn(2).getInt()});
    return campos;
}

bool Tem(const std::vector<Campo> &campos, std::string_view nome)
{
    return std::any_of(campos.begin(), campos.end(),
                       [nome](const Campo &c) { return MesmoNome(c.nome, nome); });
}

// The program walks a table by row number, and one without row numbers by its primary key.
void AchaOrdem(const std::vector<Campo> &campos, bool semNumero, TabelaAchada &achada)
{
    if (semNumero) {
        std::map<int, std::string> chave;
        for (const Campo &campo : campos)
            if (campo.naChave > 0)
                chave[campo.naChave] = EntreAspas(campo.nome);
        for (const auto &[lugar, nome] : chave)
            achada.ordem += (achada.ordem.empty() ? "" : ", ") + nome;
        return;
    }
    // A field of the same name hides one of the three.
    for (const char *nome : {"rowid", "_rowid_", "oid"}) {
        if (achada.numero.empty() && !Tem(campos, nome))
            achada.numero = nome;
    }
    achada.ordem = achada.numero;
}

bool TemIndice(SQLite::Database &loja, const QString &tabela, const std::vector<Campo> &campos,
               std::string_view chave)
{
    for (const Campo &campo : campos)
        if (campo.naChave == 1 && MesmoNome(campo.nome, chave) && MesmoNome(campo.tipo, "INTEGER"))
            return true;
    SQLite::Statement leitura(loja, "SELECT i.name FROM pragma_index_list(?) l, pragma_index_info(l.name) i "
                                    "WHERE l.partial = 0 AND i.seqno = 0 AND i.name IS NOT NULL");
    leitura.bind(1, tabela.toStdString());
    while (leitura.executeStep())
        if (MesmoNome(Coluna(leitura, 0), chave))
            return true;
    return false;
}

TabelaAchada ConfereTabela(SQLite::Database &loja, const Tabela &esperada, const QString &nome,
                           bool semNumero, Achados &achados)
{
    const std::vector<Campo> campos = CamposDe(loja, nome);
    TabelaAchada achada{EntreAspas(nome), {}, {}, true};
    const QString tabela = NomeDe(esperada);
    for (const std::string_view campo : esperada.campos) {
        if (Tem(campos, campo))
            continue;
        achada.temTodos = false;
        achados.Junta(Tipo::Tabela, [&] {
            return QStringLiteral("falta o campo %1 da tabela %2.").arg(QString::fromUtf8(campo), tabela);
        });
    }
    for (const Campo &campo : campos) {
        const bool conhecido =
            std::any_of(esperada.campos.begin(), esperada.campos.end(),
                        [&](std::string_view outro) { return MesmoNome(campo.nome, outro); });
        if (!conhecido)
            achados.Junta(Tipo::AMais, [&] {
                return QStringLiteral("a tabela %1 tem um campo a mais, %2, que o programa não usa.")
                    .arg(tabela, campo.nome);
            });
    }
    if (Tem(campos, esperada.chave) && !TemIndice(loja, nome, campos, esperada.chave))
        achados.Junta(Tipo::SemIndice, [&] {
            return QStringLiteral("a tabela %1 não tem índice por %2: as buscas ficam mais lentas.")
                .arg(tabela, QString::fromUtf8(esperada.chave));
        });
    AchaOrdem(campos, semNumero, achada);
    return achada;
}

} // namespace

void ConfereArquivo(SQLite::Database &loja, Achados &achados)
{
    constexpr const char *kTudoCerto = "ok";
    try {
        SQLite::Statement leitura(loja, "PRAGMA integrity_check(1000000)");
        while (leitura.executeStep()) {
            const QString palavras = Coluna(leitura, 0);
            if (palavras != QLatin1String(kTudoCerto))
                for (const QString &linha : palavras.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
                    achados.Junta(Tipo::Arquivo, [&] { return EmPortugues(linha); });
        }
    } catch (const SQLite::Exception &erro) {
        if (!EstaDanificado(erro))
            throw;
        achados.Junta(Tipo::Arquivo, [&] { return EmPortugues(QString::fromUtf8(erro.what())); });
    }
}

std::vector<TabelaAchada> ConfereTabelas(SQLite::Database &loja, Achados &achados)
{
    const std::span<const Tabela> esperadas = Tabelas();
    std::vector<TabelaAchada> achadas(esperadas.size());
    SQLite::Statement leitura(loja, "SELECT name, type, wr FROM pragma_table_list WHERE schema = 'main' AND "
                                    "name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY name");
    while (leitura.executeStep()) {
        const QString nome = Coluna(leitura, 0);
        const bool deLinhas =
            Coluna(leitura, 1) == QLatin1String("table") || Coluna(leitura, 1) == QLatin1String("virtual");
        const auto esperada = std::find_if(esperadas.begin(), esperadas.end(), [&](const Tabela &t) {
            return deLinhas && MesmoNome(nome, t.nome);
        });
        if (esperada != esperadas.end())
            achadas[static_cast<std::size_t>(esperada - esperadas.begin())] =
                ConfereTabela(loja, *esperada, nome, leitura.getColumn(2).getInt() != 0, achados);
        else
            achados.Junta(Tipo::AMais, [&] {
                return QStringLiteral("há uma tabela a mais, %1, que o programa não usa.").arg(nome);
            });
    }
    for (std::size_t i = 0; i < achadas.size(); ++i)
        if (achadas[i].nome.empty())
            achados.Junta(Tipo::Tabela,
                          [&] { return QStringLiteral("falta a tabela %1.").arg(NomeDe(esperadas[i])); });
    return achadas;
}

const TabelaAchada &AchadaDe(const std::vector<TabelaAchada> &achadas, std::string_view nome)
{
    const auto *tabela = &TabelaDe(nome);
    return achadas[static_cast<std::size_t>(tabela - Tabelas().data())];
}

} // namespace banco
