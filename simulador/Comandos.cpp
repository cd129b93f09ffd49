// Reading commands and signals.
#include "Comandos.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace simulador {

namespace {
constexpr qsizetype kLinhaMaxima = 4096;
std::array<int, 2> cano = {-1, -1}; // from the signal handler to the event loop

void AoChegarSinal(int)
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t escrito = write(cano[1], &byte, 1);
}
} // namespace

Comandos::Comandos(int fd, QObject *pai) : QObject(pai), m_aviso(fd, QSocketNotifier::Read)
{
    connect(&m_aviso, &QSocketNotifier::activated, this, &Comandos::Le);
}

void Comandos::Le()
{
    std::array<char, 1024> bytes{};
    const ssize_t lidos = read(static_cast<int>(m_aviso.socket()), bytes.data(), bytes.size());
    if (lidos <= 0) {
        m_aviso.setEnabled(false);
        return;
    }
    m_resto.append(bytes.data(), lidos);
    for (qsizetype fim = m_resto.indexOf('\n'); fim >= 0; fim = m_resto.indexOf('\n')) {
        const QString linha = QString::fromUtf8(m_resto.left(fim));
        m_resto.remove(0, fim + 1);
        Q_EMIT Linha(linha);
    }
    if (m_resto.size() > kLinhaMaxima)
        m_resto.clear();
}

Sinais::Sinais(QObject *pai) : QObject(pai)
{
    if (pipe2(cano.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto *aviso = new QSocketNotifier(cano[0], QSocketNotifier::Read, this);
    connect(aviso, &QSocketNotifier::activated, this, [this] {
        std::array<char, 16> bytes{};
        if (read(cano[0], bytes.data(), bytes.size()) > 0)
            Q_EMIT Chegou();
    });
    std::signal(SIGTERM, AoChegarSinal);
    std::signal(SIGINT, AoChegarSinal);
    std::signal(SIGPIPE, SIG_IGN);
}

Sinais::~Sinais()
{
    std::signal(SIGTERM, SIG_DFL);
    std::signal(SIGINT, SIG_DFL);
    for (int &fd : cano) {
        if (fd >= 0)
            close(fd);
        fd = -1;
    }
}

} // namespace simulador
