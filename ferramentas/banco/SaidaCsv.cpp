// The files that an export leaves: made in a work folder, and given their names together at the end.
#include "SaidaCsv.h"

#include "Loja.h"
#include "Publicacao.h"

#include <cerrno>
#include <fcntl.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <unistd.h>
#include <utility>

namespace banco {

namespace {

using plataforma::ErrOpen;
using plataforma::RuntimeError;

RuntimeError ErroDeGravacao(const QString &nome, int motivo)
{
    if (motivo == ENOSPC || motivo == EDQUOT || motivo == EFBIG)
        return {ErrOpen,
                QStringLiteral("O disco está cheio: %1 não foi gravado. Libere espaço e tente de novo.")
                    .arg(nome)};
    return {
        ErrOpen,
        QStringLiteral("O arquivo %1 não pôde ser gravado. Verifique o disco e as permissões.").arg(nome)};
}

} // namespace

SaidaCsv::SaidaCsv(const QString &pasta, const QString &nome)
    : m_nome(nome), m_fd(::open(QFile::encodeName(QDir(pasta).filePath(nome)).constData(),
                                O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666))
{
    Exige(m_fd >= 0);
}

SaidaCsv::~SaidaCsv()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

void SaidaCsv::Descarrega()
{
    for (std::size_t feitos = 0; feitos < m_texto.size();) {
        const ssize_t escritos = ::write(m_fd, m_texto.data() + feitos, m_texto.size() - feitos);
        Exige(escritos >= 0 || errno == EINTR);
        feitos += escritos > 0 ? static_cast<std::size_t>(escritos) : 0;
    }
    m_texto.clear();
    // The disk works on while the next rows are read; a file system that cannot do it is passed over.
    ::sync_file_range(m_fd, 0, 0, SYNC_FILE_RANGE_WRITE);
}

void SaidaCsv::Termina()
{
    Descarrega();
    const int fd = std::exchange(m_fd, -1);
    const bool noDisco = ::fsync(fd) == 0;
    const int motivo = errno;
    Exige(::close(fd) == 0);
    errno = motivo;
    Exige(noDisco);
}

void SaidaCsv::Exige(bool bem) const
{
    if (!bem)
        throw ErroDeGravacao(m_nome, errno);
}

PastaDeSaida::PastaDeSaida(const QString &pasta, const QStringList &nomes)
    : m_pasta(QDir::cleanPath(QFileInfo(pasta).absoluteFilePath())), m_nomes(nomes)
{
    for (const QString &nome : nomes) {
        // The same name in other letters would be the same table when it is read.
        const QFileInfo info(ArquivoNaPasta(m_pasta, nome));
        if (info.exists() || info.isSymLink())
            throw ErroDeExistente(info.filePath());
    }
    try {
        CriaPastas();
        ExigePastaGravavel(m_pasta);
        m_oficina.emplace(QDir(m_pasta).filePath(QStringLiteral(".qx70-banco-XXXXXX")));
        if (!m_oficina->isValid())
            throw RuntimeError(ErrOpen, QStringLiteral("Não foi possível gravar na pasta %1: %2.")
                                            .arg(m_pasta, m_oficina->errorString()));
    } catch (const RuntimeError &) {
        DesfazPastas();
        throw;
    }
}

PastaDeSaida::~PastaDeSaida()
{
    m_oficina.reset();
    DesfazPastas();
}

void PastaDeSaida::CriaPastas()
{
    QStringList faltam;
    for (QString acima = m_pasta; !QFileInfo::exists(acima); acima = QFileInfo(acima).path())
        faltam.prepend(acima);
    for (const QString &falta : faltam) {
        if (!QDir().mkdir(falta))
            throw RuntimeError(
                ErrOpen, QStringLiteral("A pasta %1 não pôde ser criada. Verifique o disco e as permissões.")
                             .arg(falta));
        m_criadas.append(falta);
    }
}

void PastaDeSaida::DesfazPastas()
{
    while (!m_criadas.isEmpty())
        QDir().rmdir(m_criadas.takeLast());
}

void PastaDeSaida::Publica()
{
    QStringList prontos;
    try {
        for (const QString &nome : m_nomes) {
            const QString destino = QDir(m_pasta).filePath(nome);
            PublicaSemSobrescrever(QDir(Oficina()).filePath(nome), destino);
            prontos.append(destino);
        }
    } catch (const RuntimeError &) {
        for (const QString &pronto : prontos)
            QFile::remove(pronto);
        throw;
    }
    SincronizaPasta(m_pasta);
    m_criadas.clear();
}

} // namespace banco
