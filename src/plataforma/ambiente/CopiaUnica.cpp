// The lock of an application folder, and the second copy's end of the hand-over.
#include "plataforma/ambiente/CopiaUnica.h"

#include "plataforma/ambiente/Porta.h"
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace plataforma {
namespace {

constexpr int kPausaConexaoMs = 20; // between two attempts to reach a copy that is just starting
constexpr mode_t kAbertoAOutros = S_IRWXG | S_IRWXO;
constexpr mode_t kGravavelPorOutros = S_IWGRP | S_IWOTH;

/// Whether the path is a folder of this user, no link, without any of the rights in `proibidos`.
bool PastaPropria(const QString &pasta, mode_t proibidos)
{
    struct stat st {};
    return lstat(QFile::encodeName(pasta).constData(), &st) == 0 && S_ISDIR(st.st_mode) &&
           st.st_uid == geteuid() && (st.st_mode & proibidos) == 0;
}

/// Makes a folder that only this user can enter, or finds it there. @return whether it is so
bool CriaPastaPropria(const QString &pasta)
{
    mkdir(QFile::encodeName(pasta).constData(),
          S_IRWXU); // one that is there already is judged like a new one
    return PastaPropria(pasta, kAbertoAOutros);
}

/// The name of an installation: the same for every way of writing the path of its folder.
QString NomeDaInstalacao(const QString &caminhoApp)
{
    const QFileInfo pasta(caminhoApp);
    const QString unico = pasta.exists() ? pasta.canonicalFilePath() : pasta.absoluteFilePath();
    const QByteArray resumo = QCryptographicHash::hash(QFile::encodeName(unico), QCryptographicHash::Sha256);
    return QString::fromLatin1(resumo.toHex().first(32));
}

QString NomeDoSocket(const QString &pasta)
{
    return pasta + u'/' + QLatin1String(kNomeSocket);
}

bool CabeNoEndereco(const QString &caminho)
{
    return QFile::encodeName(caminho).size() < static_cast<qsizetype>(sizeof(sockaddr_un::sun_path));
}

/// An open descriptor, closed at the end.
class Descritor {
public:
    explicit Descritor(int fd) : m_fd(fd) {}
    ~Descritor()
    {
        if (m_fd >= 0)
            close(m_fd);
    }
    Descritor(const Descritor &) = delete;
    Descritor &operator=(const Descritor &) = delete;
    [[nodiscard]] int Fd() const { return m_fd; }

private:
    int m_fd;
};

/// Waits until the descriptor is ready for `eventos`. @return false when the time is over
bool Espera(int fd, short eventos, const QDeadlineTimer &prazo)
{
    for (;;) {
        pollfd pedido{fd, eventos, 0};
        const int n = poll(&pedido, 1, static_cast<int>(prazo.remainingTime()));
        if (n > 0)
            return true;
        if (n == 0 || errno != EINTR || prazo.hasExpired())
            return false;
    }
}

/// Connects; a copy that holds the lock but has not opened its socket yet, or whose queue is full, is asked
/// again.
bool Conecta(int fd, const QString &caminho, const QDeadlineTimer &prazo)
{
    const QByteArray nome = QFile::encodeName(caminho);
    sockaddr_un endereco{};
    endereco.sun_family = AF_UNIX;
    std::memcpy(endereco.sun_path, nome.constData(), static_cast<size_t>(nome.size()));
    while (connect(fd, reinterpret_cast<const sockaddr *>(&endereco), sizeof endereco) != 0) {
        const bool passageiro = errno == EAGAIN || errno == ENOENT || errno == ECONNREFUSED || errno == EINTR;
        if (!passageiro || prazo.hasExpired())
            return false;
        poll(nullptr, 0, static_cast<int>(qMin<qint64>(kPausaConexaoMs, prazo.remainingTime())));
    }
    return true;
}

/// Whether the listening end belongs to this user.
bool OuvinteProprio(int fd)
{
    ucred outro{};
    socklen_t tamanho = sizeof outro;
    return getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &outro, &tamanho) == 0 && outro.uid == geteuid();
}

bool Envia(int fd, QByteArrayView bytes, const QDeadlineTimer &prazo)
{
    while (!bytes.isEmpty()) {
        const ssize_t n =
            send(fd, bytes.data(), static_cast<size_t>(bytes.size()), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (n >= 0)
            bytes = bytes.sliced(n);
        else if (errno == EAGAIN || errno == EWOULDBLOCK) {
            if (!Espera(fd, POLLOUT, prazo))
                return false;
        } else if (errno != EINTR)
            return false;
    }
    return true;
}

/// Waits for the answers. A copy that has the fields but is still setting them at the end of the time,
/// perhaps behind a message box, has taken them all the same.
bool Confirmada(int fd, const QDeadlineTimer &prazo)
{
    bool recebida = false;
    while (Espera(fd, POLLIN, prazo)) {
        char resposta = 0;
        const ssize_t n = recv(fd, &resposta, 1, MSG_DONTWAIT);
        if (n < 0 && (errno == EINTR || errno == EAGAIN))
            continue;
        if (n <= 0)
            return false;
        if (resposta == kRespostaFeita)
            return true;
        recebida = recebida || resposta == kRespostaRecebida;
    }
    return recebida;
}

} // namespace

LugaresDeTrava LugaresDoSistema()
{
    return {{qEnvironmentVariable("XDG_RUNTIME_DIR"), QStringLiteral("/run/user/%1").arg(geteuid())},
            QStringLiteral("/tmp")};
}

QString PastaDaInstalacao(const QString &caminhoApp, const LugaresDeTrava &lugares)
{
    QStringList candidatas;
    for (const QString &base : lugares.doUsuario) {
        if (base.startsWith(u'/') && PastaPropria(base, kGravavelPorOutros))
            candidatas.append(base + QStringLiteral("/qx70"));
    }
    candidatas.append(QStringLiteral("%1/qx70-%2").arg(lugares.temporaria).arg(geteuid()));
    const QString nome = NomeDaInstalacao(caminhoApp);
    for (const QString &candidata : std::as_const(candidatas)) {
        const QString pasta = candidata + u'/' + nome;
        if (CabeNoEndereco(NomeDoSocket(pasta)) && CriaPastaPropria(candidata) && CriaPastaPropria(pasta))
            return pasta;
    }
    return {};
}

CopiaUnica::CopiaUnica(const QString &caminhoApp, const LugaresDeTrava &lugares)
    : m_pasta(PastaDaInstalacao(caminhoApp, lugares))
{
    m_primeira = m_pasta.isEmpty();
    TentaDeNovo();
}

CopiaUnica::~CopiaUnica()
{
    if (m_porta && m_porta->Aplicando()) {
        m_porta->Fecha();
        m_porta.release()->deleteLater();
    }
    m_porta.reset();
    if (m_trava >= 0)
        close(m_trava);
}

bool CopiaUnica::Primeira() const
{
    return m_primeira;
}

bool CopiaUnica::TentaDeNovo()
{
    if (m_primeira)
        return true;
    // The lock lies on the folder itself: it cannot be left behind, and cleaners of temporary files keep away
    // from a locked folder.
    const int fd = open(QFile::encodeName(m_pasta).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    m_primeira = fd < 0 || flock(fd, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    if (fd < 0)
        return m_primeira;
    if (!m_primeira) {
        close(fd);
        return false;
    }
    m_trava = fd;
    m_porta = PortaDeEntrega::Abre(NomeDoSocket(m_pasta));
    return true;
}

void CopiaUnica::Atende(Recebe recebe)
{
    if (m_porta)
        m_porta->Atende(std::move(recebe));
}

bool CopiaUnica::Entrega(const Campos &campos, int esperaMs) const
{
    const QDeadlineTimer prazo(esperaMs);
    const QByteArray mensagem = MontaMensagem(campos);
    const Descritor fd(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (m_primeira || mensagem.isEmpty() || fd.Fd() < 0)
        return false;
    return Conecta(fd.Fd(), NomeDoSocket(m_pasta), prazo) && OuvinteProprio(fd.Fd()) &&
           Envia(fd.Fd(), mensagem, prazo) && Confirmada(fd.Fd(), prazo);
}

} // namespace plataforma
