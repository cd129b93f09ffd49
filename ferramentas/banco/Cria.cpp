// Command "cria": makes an empty store, whole or not at all, and never over another.
#include "Comandos.h"
#include "Console.h"
#include "Esquema.h"
#include "Loja.h"
#include "Publicacao.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <SQLiteCpp/SQLiteCpp.h>

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
    ExigeSemDiario(destino);
    CriaLoja(destino);
    Diz(QStringLiteral("Criado: %1").arg(destino));
    return kFeito;
}

} // namespace banco
