// See BinaryFile.h.
#include "plataforma/ambiente/BinaryFile.h"

#include "plataforma/basico/RuntimeError.h"
#include "plataforma/basico/Texto.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <QFile>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace plataforma {

namespace {

constexpr qsizetype kPedaco = 256 * 1024; // bytes of a new file that are written at a time

RuntimeError Falha(const QString &caminho, int erro)
{
    if (erro == ENOSPC || erro == EDQUOT || erro == EFBIG)
        return {ErrDiskFull, QStringLiteral("O disco não tem espaço para o arquivo \"%1\".").arg(caminho)};
    if (erro == ENOENT)
        return {ErrFileNotFound,
                QStringLiteral("A pasta do arquivo \"%1\" não foi encontrada.").arg(caminho)};
    return {ErrFileAccess, QStringLiteral("O arquivo \"%1\" não pode ser gravado: %2.")
                               .arg(caminho, QString::fromLocal8Bit(std::strerror(erro)))};
}

} // namespace

BinaryFile::BinaryFile(const QString &caminho) : m_caminho(caminho)
{
    const QByteArray nome = QFile::encodeName(caminho);
    // Without waiting for the other end of what is no file.
    const int comum = O_WRONLY | O_CLOEXEC | O_NONBLOCK;
    m_fd = open(nome.constData(), comum | O_CREAT | O_EXCL, 0666);
    m_novo = m_fd >= 0;
    if (!m_novo && errno == EEXIST)
        m_fd = open(nome.constData(), comum);
    if (m_fd < 0)
        throw Falha(caminho, errno);
    struct stat dados {};
    if (fstat(m_fd, &dados) != 0 || !S_ISREG(dados.st_mode)) {
        close(std::exchange(m_fd, -1));
        throw Falha(caminho, EINVAL);
    }
    m_tamanhoAntigo = dados.st_size;
}

BinaryFile::~BinaryFile()
{
    Desfaz();
}

void BinaryFile::Put(const QString &texto)
{
    m_bytes += ToAnsi(texto);
    // An old file must stay as it was until all of the text is known to find room.
    if (!m_novo || m_bytes.size() < kPedaco)
        return;
    try {
        Despeja();
    } catch (const RuntimeError &) {
        Desfaz();
        throw;
    }
}

void BinaryFile::Close()
{
    try {
        Termina();
    } catch (const RuntimeError &) {
        Desfaz();
        throw;
    }
    m_novo = false;
    if (close(std::exchange(m_fd, -1)) != 0)
        throw Falha(m_caminho, errno);
}

// Writes what was put behind what stands in the file.
void BinaryFile::Despeja()
{
    qsizetype feitos = 0;
    while (feitos < m_bytes.size()) {
        const ssize_t n = pwrite(m_fd, m_bytes.constData() + feitos,
                                 static_cast<std::size_t>(m_bytes.size() - feitos), m_escritos + feitos);
        if (n < 0 && errno != EINTR)
            throw Falha(m_caminho, errno);
        feitos += n > 0 ? n : 0;
    }
    m_escritos += feitos;
    m_bytes.resize(0);
}

void BinaryFile::Termina()
{
    // The room is taken first: a full disk is met before a byte of an old file is changed.
    const int semEspaco = m_bytes.isEmpty() ? 0 : posix_fallocate(m_fd, m_escritos, m_bytes.size());
    if (semEspaco != 0)
        throw Falha(m_caminho, semEspaco);
    Despeja();
    if (fsync(m_fd) != 0)
        throw Falha(m_caminho, errno);
}

// Back to what was there before the file was opened.
void BinaryFile::Desfaz() noexcept
{
    if (m_fd < 0)
        return;
    if (m_novo)
        unlink(QFile::encodeName(m_caminho).constData());
    else if (ftruncate(m_fd, m_tamanhoAntigo) != 0)
        errno = 0; // what was added cannot be taken back
    close(std::exchange(m_fd, -1));
}

} // namespace plataforma
