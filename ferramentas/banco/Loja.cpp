// The store as a file: where it lies, opening it for writing, and its failures in words.
#include "Loja.h"

#include "plataforma/basico/Dir.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>
#include <SQLiteCpp/SQLiteCpp.h>

namespace banco {

namespace {

constexpr int kEsperaMs = 2000; // for another program that holds the lock

} // namespace

QString ArquivoNaPasta(const QString &pasta, const QString &nome)
{
    const QDir dir(pasta);
    if (QFileInfo::exists(dir.filePath(nome)))
        return dir.filePath(nome);
    const QString achado = plataforma::FirstFile(dir.filePath(nome));
    return dir.filePath(achado.isEmpty() ? nome : achado);
}

std::unique_ptr<SQLite::Database> AbreLoja(const QString &caminho)
{
    const QFileInfo arquivo(caminho);
    if (!arquivo.isFile())
        throw plataforma::RuntimeError(
            plataforma::ErrFileMissing,
            QStringLiteral("Não existe o banco de dados %1. Faça um com \"qx70-banco cria\".").arg(caminho));
    if (!arquivo.isWritable())
        throw plataforma::RuntimeError(
            plataforma::ErrOpen,
            QStringLiteral("O arquivo %1 não pode ser gravado. Verifique as permissões dele.").arg(caminho));
    auto loja = std::make_unique<SQLite::Database>(QFile::encodeName(caminho).toStdString(),
                                                   SQLite::OPEN_READWRITE, kEsperaMs);
    loja->exec("PRAGMA synchronous=FULL");
    return loja;
}

plataforma::RuntimeError ErroDaLoja(const SQLite::Exception &erro, const QString &caminho)
{
    using namespace plataforma;
    switch (erro.getErrorCode()) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {ErrLock,
                QStringLiteral("O arquivo %1 está em uso por outro programa. Feche-o e tente de novo.")
                    .arg(caminho)};
    case SQLITE_READONLY:
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_IOERR:
        return {ErrOpen,
                QStringLiteral("O arquivo %1 não pôde ser gravado. Verifique o disco e as permissões.")
                    .arg(caminho)};
    case SQLITE_FULL:
        return {ErrOpen,
                QStringLiteral("O disco está cheio: %1 não foi gravado. Libere espaço e tente de novo.")
                    .arg(caminho)};
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        return {ErrNotADatabase,
                QStringLiteral("O arquivo %1 não é um banco de dados ou está danificado.").arg(caminho)};
    default:
        return {ErrNoTable,
                QStringLiteral("O banco de dados %1 não tem as tabelas e os campos esperados (%2).")
                    .arg(caminho, QString::fromUtf8(erro.what()))};
    }
}

void ExigePastaGravavel(const QString &pasta)
{
    const QFileInfo info(pasta);
    if (!info.exists())
        throw plataforma::RuntimeError(plataforma::ErrOpen,
                                       QStringLiteral("A pasta %1 não existe. Crie-a primeiro.").arg(pasta));
    if (!info.isDir())
        throw plataforma::RuntimeError(plataforma::ErrOpen, QStringLiteral("%1 não é uma pasta.").arg(pasta));
    if (!info.isWritable() || !info.isExecutable())
        throw plataforma::RuntimeError(
            plataforma::ErrOpen,
            QStringLiteral("A pasta %1 não pode ser gravada. Verifique as permissões dela.").arg(pasta));
}

} // namespace banco
