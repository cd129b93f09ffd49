// The pseudo-terminal of the simulated device.
#include "Porta.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <QFile>
#include <QFileInfo>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace simulador {

namespace {

constexpr int kPassoMs = 4; // of the real speed: about the time of four bytes
constexpr int kExclusividadeMs = 2000;

QString Falhou(const QString &que)
{
    return QStringLiteral("%1: %2.").arg(que, QString::fromLocal8Bit(std::strerror(errno)));
}

bool PoeModoCru(int fd)
{
    termios modo{};
    if (tcgetattr(fd, &modo) != 0)
        return false;
    cfmakeraw(&modo);
    cfsetispeed(&modo, B9600);
    cfsetospeed(&modo, B9600);
    return tcsetattr(fd, TCSANOW, &modo) == 0;
}

} // namespace

Porta::Porta(QObject *pai) : QObject(pai)
{
    m_passo.setInterval(kPassoMs);
    m_passo.setTimerType(Qt::PreciseTimer);
    m_relogio.start();
    connect(&m_passo, &QTimer::timeout, this, [this] {
        ContaTempo();
        Escreve();
        if (m_velocidadeReal)
            Le();
    });
    m_exclusividade.setInterval(kExclusividadeMs);
    connect(&m_exclusividade, &QTimer::timeout, this, &Porta::ReparaExclusividade);
}

Porta::~Porta()
{
    Fecha();
}

QString Porta::Abre()
{
    int antigoMestre = std::exchange(m_mestre, -1);
    int antigoEscravo = std::exchange(m_escravo, -1);
    m_aviso.reset();
    m_saida.clear();
    m_mestre = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
    std::array<char, 128> nome{};
    const bool aberta = m_mestre >= 0 && grantpt(m_mestre) == 0 && unlockpt(m_mestre) == 0 &&
                        ptsname_r(m_mestre, nome.data(), nome.size()) == 0;
    if (aberta)
        m_escravo = open(nome.data(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    const QString falha = m_escravo < 0 || !PoeModoCru(m_escravo)
                              ? Falhou(QStringLiteral("Não foi possível criar o pseudoterminal"))
                              : QString();
    Larga(antigoMestre, antigoEscravo);
    if (!falha.isEmpty())
        return falha;
    m_nome = QString::fromLocal8Bit(nome.data());
    m_aviso = std::make_unique<QSocketNotifier>(m_mestre, QSocketNotifier::Read);
    m_aviso->setEnabled(!m_velocidadeReal);
    connect(m_aviso.get(), &QSocketNotifier::activated, this, &Porta::Le);
    if (m_velocidadeReal)
        m_passo.start();
    m_exclusividade.start();
    return LigaElo();
}

void Porta::Fecha()
{
    m_passo.stop();
    m_exclusividade.stop();
    TiraElo();
    m_aviso.reset();
    Larga(m_mestre, m_escravo);
}

void Porta::Larga(int &mestre, int &escravo)
{
    for (int *fd : {&mestre, &escravo}) {
        if (*fd >= 0)
            close(*fd);
        *fd = -1;
    }
}

QString Porta::LigaElo()
{
    if (m_elo.isEmpty())
        return {};
    const QFileInfo existente(m_elo);
    if (existente.exists() && !existente.isSymLink())
        return QStringLiteral("%1 já existe e não é um elo. Escolha outro caminho ou retire esse arquivo.")
            .arg(m_elo);
    // Made under another name and put in place at once: whoever opens the link finds the old or the new port.
    const QByteArray provisorio = QFile::encodeName(m_elo + QStringLiteral(".%1").arg(getpid()));
    unlink(provisorio.constData());
    if (symlink(QFile::encodeName(m_nome).constData(), provisorio.constData()) == 0 &&
        rename(provisorio.constData(), QFile::encodeName(m_elo).constData()) == 0)
        return {};
    const QString falha = Falhou(QStringLiteral("Não foi possível criar o elo %1").arg(m_elo));
    unlink(provisorio.constData());
    return falha;
}

void Porta::TiraElo()
{
    // Only our own: another simulator may have taken the name meanwhile.
    if (!m_elo.isEmpty() && !m_nome.isEmpty() && QFile::symLinkTarget(m_elo) == m_nome)
        QFile::remove(m_elo);
}

// What the line could have carried since the last look, in bytes each way; an idle line saves nothing up.
void Porta::ContaTempo()
{
    const double bytes = static_cast<double>(m_relogio.nsecsElapsed()) * kBytesPorSegundo / 1e9;
    m_relogio.restart();
    m_creditoDeLer += bytes;
    m_creditoDeEscrever = m_saida.isEmpty() ? 0 : m_creditoDeEscrever + bytes;
}

std::size_t Porta::Cota(double credito) const
{
    return m_velocidadeReal ? static_cast<std::size_t>(std::max(credito, 0.0)) : 65536;
}

void Porta::Le()
{
    if (m_mestre < 0)
        return;
    const std::size_t cota = Cota(m_creditoDeLer);
    if (cota == 0)
        return;
    QByteArray bytes(static_cast<qsizetype>(cota), Qt::Uninitialized);
    const ssize_t lidos = read(m_mestre, bytes.data(), cota);
    if (lidos <= 0) {
        m_creditoDeLer = 0;
        return;
    }
    m_creditoDeLer -= static_cast<double>(lidos);
    bytes.truncate(lidos);
    Q_EMIT Chegaram(bytes);
}

void Porta::Envia(const QByteArray &bytes)
{
    m_saida += bytes;
    if (!m_velocidadeReal)
        Escreve();
}

void Porta::Escreve()
{
    if (m_mestre >= 0 && !m_saida.isEmpty()) {
        const std::size_t quantos =
            std::min(Cota(m_creditoDeEscrever), static_cast<std::size_t>(m_saida.size()));
        const ssize_t escritos = quantos > 0 ? write(m_mestre, m_saida.constData(), quantos) : 0;
        if (escritos > 0) {
            m_saida.remove(0, escritos);
            m_creditoDeEscrever -= static_cast<double>(escritos);
        }
    }
    // A host that does not read leaves bytes over: they are tried again at the next step.
    if (!m_saida.isEmpty() && !m_passo.isActive())
        m_passo.start();
    else if (m_saida.isEmpty() && !m_velocidadeReal)
        m_passo.stop();
}

void Porta::Esvazia(int ms)
{
    QElapsedTimer relogio;
    relogio.start();
    int porLer = 1;
    while (m_mestre >= 0 && relogio.elapsed() < ms && (porLer > 0 || !m_saida.isEmpty())) {
        ContaTempo();
        Escreve();
        usleep(m_velocidadeReal ? kPassoMs * 1000 : 2000);
        if (ioctl(m_escravo, FIONREAD, &porLer) != 0)
            return;
    }
}

void Porta::ReparaExclusividade()
{
    // A host that was killed leaves its exclusive mark on the port, which on a real one ends with the last
    // closing. Our own end keeps the port open, so the mark is wiped here once nobody holds the port's lock.
    int exclusiva = 0;
    if (m_escravo < 0 || ioctl(m_escravo, TIOCGEXCL, &exclusiva) != 0 || exclusiva == 0)
        return;
    if (flock(m_escravo, LOCK_EX | LOCK_NB) != 0)
        return;
    ioctl(m_escravo, TIOCNXCL);
    flock(m_escravo, LOCK_UN);
}

} // namespace simulador
