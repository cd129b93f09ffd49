// Giving finished files their names: whole, on disk, and never over another file.
#include "Publicacao.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <QFile>
#include <QFileInfo>
#include <unistd.h>

namespace banco {

using plataforma::ErrOpen;
using plataforma::RuntimeError;

RuntimeError ErroDeExistente(const QString &destino)
{
    return {ErrOpen, QStringLiteral(
                         "O arquivo %1 já existe e não foi tocado. Mude o nome dele ou escolha outra pasta.")
                         .arg(destino)};
}

void ExigeSemDiario(const QString &destino)
{
    for (const char *fim : {"-journal", "-wal"}) {
        const QString diario = destino + QLatin1String(fim);
        if (QFileInfo::exists(diario))
            throw RuntimeError(
                ErrOpen,
                QStringLiteral("O arquivo %1 é o resto de uma gravação interrompida em outro banco de "
                               "dados e estragaria o novo. Mude-o para outra pasta.")
                    .arg(diario));
    }
}

// Where a file system cannot rename so, a second link does the same.
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

void SincronizaPasta(const QString &pasta)
{
    const int fd = ::open(QFile::encodeName(pasta).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    ::fsync(fd);
    ::close(fd);
}

} // namespace banco
