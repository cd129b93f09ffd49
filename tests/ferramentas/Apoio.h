// Running programs and reading what they left, for the tests of the tools.
#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <string>
#include <vector>

/// A text of the source, and the words of one.
inline QString Q(const char *texto)
{
    return QString::fromUtf8(texto);
}
inline QStringList Opcoes(const char *palavras)
{
    return Q(palavras).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

struct Execucao {
    int codigo = -1; ///< exit code, -1 when the program did not start, crashed or did not end in time
    QString saida;
    QString erros;
};

/// Runs a program to its end, at most a minute.
Execucao Executa(const QString &programa, const QStringList &argumentos,
                 const QProcessEnvironment &ambiente = QProcessEnvironment::systemEnvironment(),
                 const QString &pasta = {});
/// Runs the real qx70-banco.
Execucao Banco(const QStringList &argumentos);
QString CaminhoDoBanco();

QByteArray LeArquivo(const QString &caminho);
void EscreveArquivo(const QString &caminho, const QByteArray &bytes);
/// A script that can be run.
void EscreveScript(const QString &caminho, const QByteArray &texto);
/// All names in a folder, hidden ones too, in order.
QStringList NomesEm(const QString &pasta);

/// All rows of a query; a NULL reads as "<nada>".
std::vector<std::vector<std::string>> Linhas(const QString &arquivo, const std::string &consulta);
/// The first value of the first row.
std::string Valor(const QString &arquivo, const std::string &consulta);

/// A temporary folder with an empty store in it.
class Escritorio {
public:
    Escritorio();
    [[nodiscard]] QString Caminho(const QString &nome = {}) const;
    [[nodiscard]] QString Loja() const { return Caminho(QStringLiteral("QX70.MDB")); }
    [[nodiscard]] QString Ini() const { return Caminho(QStringLiteral("QX70.INI")); }
    [[nodiscard]] Execucao Semeia(const QStringList &opcoes) const;
    /// Everything that the store holds, as text.
    [[nodiscard]] std::string Conteudo() const;

private:
    QTemporaryDir m_pasta;
};

/// Runs statements on the store of a folder.
void Executa(const Escritorio &escritorio, const std::string &sql);
