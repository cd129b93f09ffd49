// Running programs and reading what they left, for the tests of the tools.
#include "Apoio.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <SQLiteCpp/SQLiteCpp.h>
#include <stdexcept>

namespace {

constexpr int kPrazoMs = 60'000;

} // namespace

Execucao Executa(const QString &programa, const QStringList &argumentos, const QProcessEnvironment &ambiente,
                 const QString &pasta)
{
    QProcess processo;
    processo.setProcessEnvironment(ambiente);
    processo.setWorkingDirectory(pasta);
    processo.start(programa, argumentos);
    Execucao execucao;
    if (processo.waitForFinished(kPrazoMs) && processo.exitStatus() == QProcess::NormalExit)
        execucao.codigo = processo.exitCode();
    execucao.saida = QString::fromUtf8(processo.readAllStandardOutput());
    execucao.erros = QString::fromUtf8(processo.readAllStandardError());
    return execucao;
}

QString CaminhoDoBanco()
{
    return QStringLiteral(QX70_BIN_DIR "/qx70-banco");
}

Execucao Banco(const QStringList &argumentos)
{
    return Executa(CaminhoDoBanco(), argumentos);
}

QByteArray LeArquivo(const QString &caminho)
{
    QFile arquivo(caminho);
    if (!arquivo.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + caminho.toStdString());
    return arquivo.readAll();
}

void EscreveArquivo(const QString &caminho, const QByteArray &bytes)
{
    QFile arquivo(caminho);
    if (!arquivo.open(QIODevice::WriteOnly) || arquivo.write(bytes) != bytes.size())
        throw std::runtime_error("cannot write " + caminho.toStdString());
}

void EscreveScript(const QString &caminho, const QByteArray &texto)
{
    EscreveArquivo(caminho, "#!/bin/bash\n" + texto);
    QFile::setPermissions(caminho, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QStringList NomesEm(const QString &pasta)
{
    return QDir(pasta).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                                 QDir::Name);
}

std::vector<std::vector<std::string>> Linhas(const QString &arquivo, const std::string &consulta)
{
    const SQLite::Database loja(arquivo.toStdString(), SQLite::OPEN_READONLY);
    SQLite::Statement leitura(loja, consulta);
    std::vector<std::vector<std::string>> linhas;
    while (leitura.executeStep()) {
        std::vector<std::string> linha;
        for (int i = 0; i < leitura.getColumnCount(); ++i)
            linha.push_back(leitura.isColumnNull(i) ? "<nada>" : leitura.getColumn(i).getString());
        linhas.push_back(linha);
    }
    return linhas;
}

std::string Valor(const QString &arquivo, const std::string &consulta)
{
    return Linhas(arquivo, consulta).at(0).at(0);
}

Escritorio::Escritorio()
{
    if (Banco({QStringLiteral("cria"), m_pasta.path()}).codigo != 0)
        throw std::runtime_error("qx70-banco cria failed");
}

QString Escritorio::Caminho(const QString &nome) const
{
    return nome.isEmpty() ? m_pasta.path() : m_pasta.filePath(nome);
}

Execucao Escritorio::Semeia(const QStringList &opcoes) const
{
    return Banco(QStringList{QStringLiteral("semeia"), m_pasta.path()} + opcoes);
}

std::string Escritorio::Conteudo() const
{
    std::string tudo;
    for (const char *tabela : {"Bancos", "Transferencia", "Favorecido", "Cidade", "Log", "Script"}) {
        tudo += tabela + std::string("\n");
        for (const auto &linha : Linhas(Loja(), "SELECT * FROM " + std::string(tabela) + " ORDER BY rowid")) {
            for (const std::string &campo : linha)
                tudo += campo + "|";
            tudo += "\n";
        }
    }
    return tudo;
}

void Executa(const Escritorio &escritorio, const std::string &sql)
{
    SQLite::Database(escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE).exec(sql);
}
