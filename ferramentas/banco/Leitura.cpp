// Opening the store only to read it, and the failures of reading in words.
#include "Leitura.h"

#include "Loja.h"

#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>
#include <SQLiteCpp/SQLiteCpp.h>
#include <unistd.h>

namespace banco {

namespace {

using plataforma::ErrOpen;
using plataforma::RuntimeError;

// Waits for another program that holds the lock, two seconds at most. A program that writes without a pause
// leaves the store free for a moment only, which the engine's own waiting, in ever longer naps, would sleep
// through.
int Espera(void *, int vezes)
{
    constexpr int kVezes = 2000;
    constexpr useconds_t kCochilo = 1000;
    return vezes < kVezes && ::usleep(kCochilo) == 0 ? 1 : 0;
}

RuntimeError ErroDeIlegivel(const QString &caminho)
{
    return {
        ErrOpen,
        QStringLiteral("O arquivo %1 não pode ser lido. Verifique o disco e as permissões.").arg(caminho)};
}

// A store of another program may keep its newest rows in a file beside it.
bool UsaOutroDiario(const QString &caminho)
{
    constexpr qint64 kVersaoDeLeitura = 19;
    QFile arquivo(caminho);
    char versao = 0;
    return arquivo.open(QIODevice::ReadOnly) && arquivo.seek(kVersaoDeLeitura) && arquivo.getChar(&versao) &&
           versao == 2;
}

std::unique_ptr<SQLite::Database> Abre(const QString &caminho, int modo)
{
    auto loja = std::make_unique<SQLite::Database>(QFile::encodeName(caminho).toStdString(),
                                                   modo | SQLITE_OPEN_NOMUTEX);
    sqlite3_busy_handler(loja->getHandle(), Espera, nullptr);
    loja->exec("PRAGMA query_only=ON");
    // What the file itself may hold (views, triggers, indexes) is trusted with nothing but its own rows.
    sqlite3_db_config(loja->getHandle(), SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    // The first reading meets a lock, a write that was cut off, or a file of another kind.
    SQLite::Statement(*loja, "SELECT count(*) FROM sqlite_master").executeStep();
    return loja;
}

// Such a store is only opened for writing, and its close moves the rows over, unless told not to.
std::unique_ptr<SQLite::Database> AbreComDiario(const QString &caminho)
{
    const bool temLinhas = QFileInfo(caminho + QStringLiteral("-wal")).size() > 0;
    auto loja = Abre(caminho, SQLite::OPEN_READWRITE);
    sqlite3_db_config(loja->getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, temLinhas ? 1 : 0, nullptr);
    return loja;
}

} // namespace

// A program that was killed while it wrote leaves its journal beside the store: the old pages, with which the
// store is whole again. They are put back on the first opening for writing, whoever does it; read without
// them the store would look damaged, or could not be read at all. So that store is opened for writing, and
// nothing else is written to it. In every other case the file is opened for reading only.
std::unique_ptr<SQLite::Database> AbreParaLer(const QString &caminho)
{
    const QFileInfo arquivo(caminho);
    if (!arquivo.isFile())
        throw RuntimeError(plataforma::ErrFileMissing,
                           QStringLiteral("Não existe o banco de dados %1.").arg(caminho));
    if (!arquivo.isReadable())
        throw ErroDeIlegivel(caminho);
    if (UsaOutroDiario(caminho))
        return AbreComDiario(caminho);
    try {
        return Abre(caminho, SQLite::OPEN_READONLY);
    } catch (const SQLite::Exception &erro) {
        if (erro.getErrorCode() != SQLITE_READONLY)
            throw;
    }
    return Abre(caminho, SQLite::OPEN_READWRITE);
}

bool EstaDanificado(const SQLite::Exception &erro)
{
    return erro.getErrorCode() == SQLITE_CORRUPT || erro.getErrorCode() == SQLITE_NOTADB;
}

RuntimeError ErroDeLeitura(const SQLite::Exception &erro, const QString &caminho)
{
    switch (erro.getErrorCode()) {
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_IOERR:
        return ErroDeIlegivel(caminho);
    default:
        return ErroDaLoja(erro, caminho);
    }
}

QByteArray LeTudo(const QString &caminho)
{
    QFile arquivo(caminho);
    if (!QFileInfo(caminho).isFile() || !arquivo.open(QIODevice::ReadOnly))
        throw ErroDeIlegivel(caminho);
    const QByteArray bytes = arquivo.readAll();
    if (arquivo.error() != QFileDevice::NoError)
        throw ErroDeIlegivel(caminho);
    return bytes;
}

} // namespace banco
