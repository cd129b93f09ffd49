// See Disco.h.
#include "Disco.h"

#include <fcntl.h>
#include <linux/capability.h>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <sched.h>
#include <stdexcept>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

namespace teste {

namespace {

constexpr uid_t kComum = 65534;
constexpr int kPagina = 4096;

void Exige(bool condicao, const char *falha)
{
    if (!condicao)
        throw std::runtime_error(falha);
}

bool Escreve(const char *arquivo, const QByteArray &texto)
{
    const int fd = open(arquivo, O_WRONLY | O_CLOEXEC);
    const bool escreveu = fd >= 0 && write(fd, texto.constData(), texto.size()) == texto.size();
    if (fd >= 0)
        close(fd);
    return escreveu;
}

/// An ordinary user may have mounts too, inside a user space of its own.
bool SeparaUsuario()
{
    const QByteArray usuario = QByteArray::number(getuid());
    const QByteArray grupo = QByteArray::number(getgid());
    return unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && Escreve("/proc/self/setgroups", "deny") &&
           Escreve("/proc/self/uid_map", usuario + ' ' + usuario + " 1") &&
           Escreve("/proc/self/gid_map", grupo + ' ' + grupo + " 1");
}

/// Folder and files go to an ordinary user, which the process becomes for a while.
void EntregaAoComum(const QString &pasta)
{
    Exige(chown(QFile::encodeName(pasta).constData(), kComum, kComum) == 0, "the folder was not given away");
    for (QDirIterator dentro(pasta, QDir::AllEntries | QDir::NoDotAndDotDot); dentro.hasNext();)
        Exige(chown(QFile::encodeName(dentro.next()).constData(), kComum, kComum) == 0,
              "a file was not given away");
    Exige(setresuid(kComum, kComum, 0) == 0, "still the administrator");
}

/// Inside its own user space an ordinary user has an administrator's powers, which pass over the rights of a
/// file. @return those in force before, of the first 32
std::uint32_t TrocaPoderes(std::uint32_t poderes)
{
    __user_cap_header_struct cabeca{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct dados[_LINUX_CAPABILITY_U32S_3]{};
    Exige(syscall(SYS_capget, &cabeca, dados) == 0, "no answer about the powers");
    const std::uint32_t antes = std::exchange(dados[0].effective, poderes);
    Exige(syscall(SYS_capset, &cabeca, dados) == 0, "the powers did not change");
    return antes;
}

} // namespace

bool TemMontagensProprias()
{
    static const bool tem = (unshare(CLONE_NEWNS) == 0 || SeparaUsuario()) &&
                            mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    return tem;
}

Disco::Disco(const QString &pasta, int megabytes) : m_pasta(pasta)
{
    const QByteArray tamanho = "mode=0700,size=" + QByteArray::number(megabytes) + "m";
    Exige(mount("tmpfs", QFile::encodeName(pasta).constData(), "tmpfs", 0, tamanho.constData()) == 0,
          "the small disk was refused");
}

Disco::~Disco()
{
    umount2(QFile::encodeName(m_pasta).constData(), MNT_DETACH);
}

void Disco::Enche(int paginasLivres)
{
    struct statvfs disco {};
    Exige(statvfs(QFile::encodeName(m_pasta).constData(), &disco) == 0, "no answer about the disk");
    const qint64 livres =
        static_cast<qint64>(disco.f_bfree * disco.f_frsize) - qint64{kPagina} * paginasLivres;
    QFile lastro(Lastro());
    Exige(livres > 0 && lastro.open(QIODevice::WriteOnly | QIODevice::Unbuffered), "no filling of the disk");
    const QByteArray pagina(kPagina, 'x');
    for (qint64 i = 0; i < livres; i += kPagina)
        Exige(lastro.write(pagina) == kPagina, "the disk was full too soon");
}

void Disco::Libera()
{
    Exige(QFile::remove(Lastro()), "the space was not given back");
}

SoLeitura::SoLeitura(const QString &caminho) : m_caminho(QFile::encodeName(caminho))
{
    const char *alvo = m_caminho.constData();
    Exige(mount(alvo, alvo, nullptr, MS_BIND, nullptr) == 0 &&
              mount(nullptr, alvo, nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr) == 0,
          "no read-only mount");
}

SoLeitura::~SoLeitura()
{
    umount2(m_caminho.constData(), MNT_DETACH);
}

ComDireitos::ComDireitos(const QString &pasta, const QString &alvo, mode_t direitos)
    : m_alvo(QFile::encodeName(alvo)), m_eraAdministrador(geteuid() == 0)
{
    struct stat dados {};
    Exige(stat(m_alvo.constData(), &dados) == 0, "nothing to change the rights of");
    m_antes = dados.st_mode & 07777;
    if (m_eraAdministrador)
        EntregaAoComum(pasta);
    else
        m_poderes = TrocaPoderes(0);
    Exige(chmod(m_alvo.constData(), direitos) == 0, "the rights did not change");
}

ComDireitos::~ComDireitos()
{
    chmod(m_alvo.constData(), m_antes);
    if (!m_eraAdministrador)
        TrocaPoderes(m_poderes);
    else if (setresuid(0, 0, 0) != 0)
        std::abort();
}

} // namespace teste
