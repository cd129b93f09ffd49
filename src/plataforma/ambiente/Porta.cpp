// The accepting side of the hand-over. A peer may send anything, or nothing: sizes, numbers and time are
// bounded, and no read ever waits.
#include "plataforma/ambiente/Porta.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <QFile>
#include <QPointer>
#include <QSocketNotifier>
#include <QTimer>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace plataforma {
namespace {

constexpr int kPausaSemRecursosMs = 500; // before accepting again when the system has no descriptor left

bool MesmoUsuario(int fd)
{
    ucred outro{};
    socklen_t tamanho = sizeof outro;
    return getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &outro, &tamanho) == 0 && outro.uid == geteuid();
}

/// Binds and listens. The mode of the open socket becomes the mode of its file, before anyone can connect.
bool Publica(int fd, const QByteArray &caminho)
{
    sockaddr_un endereco{};
    endereco.sun_family = AF_UNIX;
    if (caminho.size() >= static_cast<qsizetype>(sizeof endereco.sun_path))
        return false;
    std::memcpy(endereco.sun_path, caminho.constData(), static_cast<size_t>(caminho.size()));
    unlink(caminho.constData());
    return fchmod(fd, S_IRUSR | S_IWUSR) == 0 &&
           bind(fd, reinterpret_cast<const sockaddr *>(&endereco), sizeof endereco) == 0 &&
           listen(fd, kMaxConexoes) == 0;
}

void Responde(int fd, char resposta)
{
    // A peer that has gone meanwhile is no matter to us.
    [[maybe_unused]] const ssize_t n = send(fd, &resposta, 1, MSG_NOSIGNAL | MSG_DONTWAIT);
}

/// Appends all that has arrived, up to one byte more than a message may have. @return false when the peer has
/// closed its end or the line is broken
bool LeTudo(int fd, QByteArray &recebido)
{
    char bloco[4096];
    while (recebido.size() <= kTamanhoCabeca + kMaxCorpo) {
        const ssize_t n = recv(fd, bloco, sizeof bloco, MSG_DONTWAIT);
        if (n > 0)
            recebido.append(bloco, n);
        else if (n == 0)
            return false;
        else if (errno != EINTR)
            return errno == EAGAIN || errno == EWOULDBLOCK;
    }
    return true;
}

} // namespace

struct PortaDeEntrega::Conexao {
    int fd;
    QSocketNotifier *aviso;
    QTimer *prazo;
    QByteArray recebido;
    Campos campos{};
    bool completa = false;
};

std::unique_ptr<PortaDeEntrega> PortaDeEntrega::Abre(const QString &caminho)
{
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (fd < 0)
        return nullptr;
    if (!Publica(fd, QFile::encodeName(caminho))) {
        close(fd);
        return nullptr;
    }
    return std::unique_ptr<PortaDeEntrega>(new PortaDeEntrega(fd, caminho));
}

PortaDeEntrega::PortaDeEntrega(int escuta, QString caminho) : m_escuta(escuta), m_caminho(std::move(caminho))
{
}

PortaDeEntrega::~PortaDeEntrega()
{
    Fecha();
}

void PortaDeEntrega::Fecha()
{
    if (m_escuta < 0)
        return;
    unlink(QFile::encodeName(m_caminho).constData());
    delete std::exchange(m_avisoDeEscuta, nullptr);
    delete std::exchange(m_novaTentativa, nullptr);
    while (!m_conexoes.empty())
        Larga(m_conexoes.front());
    close(m_escuta);
    m_escuta = -1;
}

void PortaDeEntrega::Atende(std::function<void(const Campos &)> recebe)
{
    m_recebe = std::move(recebe);
    if (m_avisoDeEscuta != nullptr)
        return;
    m_avisoDeEscuta = new QSocketNotifier(m_escuta, QSocketNotifier::Read, this);
    connect(m_avisoDeEscuta, &QSocketNotifier::activated, this, &PortaDeEntrega::Aceita);
    m_novaTentativa = new QTimer(this);
    m_novaTentativa->setSingleShot(true);
    connect(m_novaTentativa, &QTimer::timeout, this, [this] { m_avisoDeEscuta->setEnabled(true); });
}

void PortaDeEntrega::Aceita()
{
    const int fd = accept4(m_escuta, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (fd >= 0) {
        Acolhe(fd);
    } else if (errno == EMFILE || errno == ENFILE || errno == ENOBUFS || errno == ENOMEM) {
        m_avisoDeEscuta->setEnabled(false); // otherwise the waiting peer would wake us without end
        m_novaTentativa->start(kPausaSemRecursosMs);
    }
}

void PortaDeEntrega::Acolhe(int fd)
{
    if (!MesmoUsuario(fd)) {
        close(fd);
        return;
    }
    auto conexao = std::make_shared<Conexao>(
        Conexao{fd, new QSocketNotifier(fd, QSocketNotifier::Read, this), new QTimer(this), {}});
    const std::weak_ptr<Conexao> fraca = conexao;
    connect(conexao->aviso, &QSocketNotifier::activated, this, [this, fraca] {
        if (const auto viva = fraca.lock())
            Recebe(viva);
    });
    connect(conexao->prazo, &QTimer::timeout, this, [this, fraca] {
        if (const auto viva = fraca.lock())
            Larga(viva);
    });
    conexao->prazo->start(kPrazoConexaoMs);
    m_conexoes.push_back(conexao);
    m_avisoDeEscuta->setEnabled(m_conexoes.size() < kMaxConexoes);
}

void PortaDeEntrega::Recebe(const std::shared_ptr<Conexao> &conexao)
{
    // A sender keeps its end open until it is answered; a closed end is a sender that has given up, whose
    // fields must not appear on the screen later.
    const bool aberta = LeTudo(conexao->fd, conexao->recebido);
    const Leitura leitura = LeMensagem(conexao->recebido);
    if (!aberta || leitura.estado == EstadoMensagem::Invalida) {
        Larga(conexao);
    } else if (leitura.estado == EstadoMensagem::Completa && !conexao->completa) {
        conexao->completa = true;
        conexao->campos = leitura.campos;
        conexao->prazo->stop();
        QMetaObject::invokeMethod(
            this, [this] { AplicaProxima(); }, Qt::QueuedConnection);
    }
}

void PortaDeEntrega::Larga(const std::shared_ptr<Conexao> &conexao)
{
    const std::shared_ptr<Conexao> viva = conexao; // the list may hold the only other one
    if (viva->fd < 0)
        return;
    viva->aviso->setEnabled(false);
    viva->aviso->deleteLater();
    viva->prazo->stop();
    viva->prazo->deleteLater();
    close(viva->fd);
    viva->fd = -1;
    m_conexoes.remove(viva);
    if (m_avisoDeEscuta != nullptr && !m_novaTentativa->isActive())
        m_avisoDeEscuta->setEnabled(true);
}

void PortaDeEntrega::AplicaProxima()
{
    const auto pronta =
        std::find_if(m_conexoes.begin(), m_conexoes.end(), [](const auto &c) { return c->completa; });
    if (m_aplicando || pronta == m_conexoes.end())
        return;
    const std::shared_ptr<Conexao> conexao = *pronta;
    const bool aberta = LeTudo(conexao->fd, conexao->recebido);
    if (!aberta || LeMensagem(conexao->recebido).estado != EstadoMensagem::Completa) {
        Larga(conexao);
    } else {
        Responde(conexao->fd, kRespostaRecebida);
        // The callback may run an event loop of its own, and may end this object's work and life.
        const QPointer<PortaDeEntrega> viva(this);
        const auto recebe = m_recebe;
        m_aplicando = true;
        recebe(conexao->campos);
        if (viva.isNull())
            return;
        m_aplicando = false;
        if (conexao->fd >= 0)
            Responde(conexao->fd, kRespostaFeita);
        Larga(conexao);
    }
    if (!m_conexoes.empty())
        QMetaObject::invokeMethod(
            this, [this] { AplicaProxima(); }, Qt::QueuedConnection);
}

} // namespace plataforma
