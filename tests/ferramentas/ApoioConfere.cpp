// What the tests of "qx70-banco confere" share: its findings, and a small office with nothing wrong.
#include "ApoioConfere.h"

#include <QFile>
#include <SQLiteCpp/SQLiteCpp.h>
#include <stdexcept>

Execucao Confere(const Escritorio &escritorio, const QStringList &opcoes)
{
    return Banco(QStringList{QStringLiteral("confere"), escritorio.Caminho()} + opcoes);
}

std::vector<std::string> Achados(const Execucao &confere)
{
    std::vector<std::string> linhas;
    for (const QString &linha : confere.saida.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        if (linha.startsWith(QLatin1String("Defeito: ")) || linha.startsWith(QLatin1String("Aviso: ")))
            linhas.push_back(linha.toStdString());
    return linhas;
}

std::string Resumo(const Execucao &confere)
{
    return confere.saida.trimmed().split(QLatin1Char('\n')).last().toStdString();
}

void Muda(const Escritorio &escritorio, const std::string &comandos)
{
    SQLite::Database(escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE).exec(comandos);
}

Pequeno::Pequeno()
{
    const QString opcoes =
        QStringLiteral("--bancos 3 --cidades 2 --favorecidos 2 --cheques 10 --hoje 15/03/04");
    if (Semeia(opcoes.split(QLatin1Char(' '))).codigo != 0)
        throw std::runtime_error("qx70-banco semeia failed");
}

void Pequeno::TrocaNoIni(const QByteArray &de, const QByteArray &para) const
{
    QByteArray bytes = LeArquivo(Ini());
    if (!bytes.contains(de))
        throw std::runtime_error("the settings do not hold what is to be changed");
    EscreveArquivo(Ini(), bytes.replace(de, para));
}

Bytes::Bytes(const Escritorio &escritorio)
    : nomes(NomesEm(escritorio.Caminho())), loja(LeArquivo(escritorio.Loja()))
{
    if (QFile::exists(escritorio.Ini()))
        ini = LeArquivo(escritorio.Ini());
}
