// Command "cria": makes an empty store, whole or not at all, and never over another.
#include "Comandos.h"
#include "Console.h"
#include "Esquema.h"
#include "Loja.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <SQLiteCpp/SQLiteCpp.h>
#include <unistd.h>

namespace banco {

namespace {

using plataforma::ErrOpen;
using plataforma::RuntimeError;

// A folder stands for the store in it; anything else is the store itself and says so by its ending.
QString DestinoDe(const QString &argumento)
{
    if (QFileInfo(argumento).isDir())
        return ArquivoNaPasta(argumento, QLatin1String(kNomeDaLoja));
    if (!argumento.endsWith(QLatin1String(".mdb"), Qt::CaseInsensitive))
        throw RuntimeError(ErrOpen, QStringLiteral("A pasta %1 não existe. Crie-a primeiro.").arg(argumento));
    const QFileInfo info(argumento);
    return ArquivoNaPasta(info.path(), info.fileName());
}

RuntimeError ErroDeExistente(const QString &destino)
{
    return {ErrOpen,
            QStringLiteral("O arquivo %1 já existe e não foi tocado. Para começar outro, mude o nome "
                           "dele ou escolha outra pasta.")
                .arg(destino)};
}

void SincronizaPasta(const QString &pasta)
{
    const int fd = ::open(QFile::encodeName(pasta).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    ::fsync(fd);
    ::close(fd);
}

// Gives the finished file its name, only when the name is free. Where a file system cannot rename so, a
// second link does the same.
void PublicaSemSobrescrever(const QString &pronto, const QString &destino)
{
    const QByteArray de = QFile::encodeName(pronto);
    const QByteArray para = QFile::encodeName(destino);
    if (::renameat2(AT_FDCWD, de.constData(), AT_FDCWD, para.constData(), RENAME_NOREPLACE) == 0)
        return;
    if (errno != EEXIST && ::link(de.constData(), para.constData()) == 0)
        return;
    if (errno == EEXIST)
        throw ErroDeExistente(destino);
    throw RuntimeError(ErrOpen, QStringLiteral("Não foi possível criar %1: %2.")
                                    .arg(destino, QString::fromLocal8Bit(std::strerror(errno))));
}

void CriaLoja(const QString &destino)
{
    const QString pasta = QFileInfo(destino).path();
    ExigePastaGravavel(pasta);
    const QTemporaryDir oficina(QDir(pasta).filePath(QStringLiteral(".qx70-banco-XXXXXX")));
    if (!oficina.isValid())
        throw RuntimeError(
            ErrOpen,
            QStringLiteral("Não foi possível gravar na pasta %1: %2.").arg(pasta, oficina.errorString()));
    const QString novo = oficina.filePath(QLatin1String(kNomeDaLoja));
    try {
        SQLite::Database loja(QFile::encodeName(novo).toStdString(),
                              SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        loja.exec("PRAGMA synchronous=FULL");
        CriaEsquema(loja);
    } catch (const SQLite::Exception &erro) {
        throw ErroDaLoja(erro, destino);
    }
    PublicaSemSobrescrever(novo, destino);
    SincronizaPasta(pasta);
}

} // namespace

int Cria(const QStringList &argumentos)
{
    if (argumentos.size() != 1 || argumentos.first().isEmpty() ||
        argumentos.first().startsWith(QLatin1Char('-')))
        return ReclamaDaChamada(QStringLiteral("\"cria\" pede uma pasta ou um arquivo .MDB, e só isso."));
    const QString destino = DestinoDe(argumentos.first());
    const QFileInfo info(destino);
    if (info.exists() || info.isSymLink())
        throw ErroDeExistente(destino);
    CriaLoja(destino);
    Diz(QStringLiteral("Criado: %1").arg(destino));
    return kFeito;
}

} // namespace banco
