// The scripted device; see DispositivoDeTeste.h.
#include "DispositivoDeTeste.h"

#include <array>
#include <stdexcept>
#include <utility>

#include <poll.h>
#include <pty.h>
#include <unistd.h>

namespace {

// Bit by bit over all bits of the message at once, another way than the library's.
unsigned CrcBitABit(const std::string &bytes)
{
    unsigned crc = 0xFFFF;
    for (const char c : bytes)
        for (int bit = 7; bit >= 0; --bit) {
            const unsigned entra = (static_cast<unsigned char>(c) >> bit) & 1U;
            const unsigned sai = (crc >> 15) & 1U;
            crc = (crc << 1) & 0xFFFF;
            if (entra != sai)
                crc ^= 0x1021;
        }
    return crc;
}

std::string Sucesso(char sequencia)
{
    const std::string miolo = {0, 2, 'r', sequencia, 0, 1};
    const unsigned crc = CrcBitABit(miolo);
    return "\x06\x02" + miolo + static_cast<char>(crc >> 8) + static_cast<char>(crc & 0xFF) + "\x03";
}

} // namespace

DispositivoDeTeste::DispositivoDeTeste()
{
    std::array<char, 128> nome{};
    // With the terminal's usual line editing: making it raw is the library's work.
    if (openpty(&m_mestre, &m_escravo, nome.data(), nullptr, nullptr) != 0 || pipe(m_fim) != 0)
        throw std::runtime_error("no pseudo-terminal");
    m_caminho = nome.data();
    m_laco = std::thread([this] { Atende(); });
}

DispositivoDeTeste::~DispositivoDeTeste()
{
    close(m_fim[1]);
    m_laco.join();
    close(m_fim[0]);
    for (const int descritor : {m_mestre, m_escravo})
        if (descritor >= 0)
            close(descritor);
}

void DispositivoDeTeste::Reage(std::vector<Reacao> reacoes)
{
    const std::lock_guard guarda(m_tranca);
    m_reacoes = std::move(reacoes);
}

void DispositivoDeTeste::Envia(const std::string &bytes) const
{
    if (write(m_mestre, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
        throw std::runtime_error("the device could not send");
}

void DispositivoDeTeste::DesligaDepoisDe(std::size_t bytes)
{
    const std::lock_guard guarda(m_tranca);
    m_desligaEm = bytes;
}

void DispositivoDeTeste::ParaDeLer()
{
    close(m_fim[1]);
    m_laco.join();
    close(m_fim[0]);
    if (pipe(m_fim) != 0)
        throw std::runtime_error("no pipe");
    m_laco = std::thread([] {});
}

std::string DispositivoDeTeste::Recebido(std::size_t quantos)
{
    std::unique_lock guarda(m_tranca);
    m_chegou.wait_for(guarda, std::chrono::seconds(5), [&] { return m_recebido.size() >= quantos; });
    return m_recebido;
}

std::vector<std::string> DispositivoDeTeste::Quadros()
{
    const std::lock_guard guarda(m_tranca);
    return m_quadros;
}

void DispositivoDeTeste::Atende()
{
    for (;;) {
        std::array<pollfd, 2> olhados = {{{m_mestre, POLLIN, 0}, {m_fim[0], POLLIN, 0}}};
        if (poll(olhados.data(), olhados.size(), -1) < 0 || olhados[1].revents != 0)
            return;
        std::array<char, 4096> bytes{};
        const ssize_t lidos = read(m_mestre, bytes.data(), bytes.size());
        if (lidos <= 0)
            return;
        const std::lock_guard guarda(m_tranca);
        Acumula(std::string(bytes.data(), static_cast<std::size_t>(lidos)));
        m_chegou.notify_all();
        if (m_desligaEm > 0 && m_recebido.size() >= m_desligaEm && !Desliga())
            return;
        for (const std::string &quadro : std::exchange(m_porAtender, {}))
            if (!CumpreReacao(quadro))
                return;
    }
}

void DispositivoDeTeste::Acumula(const std::string &bytes)
{
    m_recebido += bytes;
    for (const char byte : bytes) {
        if (m_aberto.empty() && byte != '\x02')
            continue;
        m_aberto += byte;
        const auto parte = [this](std::size_t i) { return static_cast<unsigned char>(m_aberto[i]); };
        if (m_aberto.size() < 3 || m_aberto.size() < 8U + parte(1) * 256U + parte(2))
            continue;
        m_quadros.push_back(m_aberto);
        m_porAtender.push_back(m_aberto);
        m_aberto.clear();
    }
}

// False when the device has hung up.
bool DispositivoDeTeste::CumpreReacao(const std::string &quadro)
{
    Reacao reacao{"%"};
    if (!m_reacoes.empty()) {
        reacao = m_reacoes.front();
        m_reacoes.erase(m_reacoes.begin());
    }
    pollfd fim{m_fim[0], POLLIN, 0};
    if (reacao.demora.count() > 0 && poll(&fim, 1, static_cast<int>(reacao.demora.count())) != 0)
        return false;
    Envia(reacao.bytes == "%" ? Sucesso(quadro[4]) : reacao.bytes);
    return !reacao.desliga || Desliga();
}

bool DispositivoDeTeste::Desliga()
{
    close(m_escravo);
    close(m_mestre);
    m_mestre = m_escravo = -1;
    return false;
}
