// The serial line; see Linha.h.
#include "qx7032/Linha.h"

#include "qx7032/resultados.h"

#include <algorithm>
#include <cerrno>
#include <thread>

#include <asio/buffer.hpp>
#include <asio/write.hpp>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <termios.h>
#include <unistd.h>

namespace qx7032 {

namespace {

constexpr std::chrono::milliseconds kOlhada{2}; // between two looks at what has not left yet

int CausaDe(int erro)
{
    switch (erro) {
    case ENOENT:
    case ENXIO:
    case ENODEV:
    case ENOTDIR:
    case ELOOP:
    case EIO: // a port of the list with no hardware behind it
        return QX7032_PORTA_AUSENTE;
    case EBUSY:
    case EWOULDBLOCK:
        return QX7032_PORTA_OCUPADA;
    case EACCES:
    case EPERM:
    case EROFS:
        return QX7032_PORTA_SEM_PERMISSAO;
    default:
        return QX7032_PORTA_NAO_CONFIGURA;
    }
}

// The other end of a pseudo-terminal may keep it open, so that an exclusive mark would outlive a killed
// program.
bool EhPseudoTerminal(int descritor)
{
    struct stat dados {};
    return fstat(descritor, &dados) == 0 && major(dados.st_rdev) >= 136 && major(dados.st_rdev) <= 143;
}

} // namespace

int Linha::Abre(const std::string &dispositivo, unsigned velocidade)
{
    Fecha();
    const int descritor = open(dispositivo.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (descritor < 0)
        return CausaDe(errno);
    const int causa = Prepara(descritor, velocidade);
    if (causa == QX7032_SUCESSO)
        return causa;
    if (m_porta.is_open())
        Fecha();
    else
        close(descritor);
    return causa;
}

// Locks before touching any setting: the port may be another program's.
int Linha::Prepara(int descritor, unsigned velocidade)
{
    if (isatty(descritor) == 0)
        return errno == EIO ? QX7032_PORTA_AUSENTE : QX7032_PORTA_NAO_CONFIGURA;
    if (flock(descritor, LOCK_EX | LOCK_NB) != 0)
        return CausaDe(errno);
    asio::error_code erro;
    m_porta.assign(descritor, erro);
    if (erro)
        return QX7032_PORTA_NAO_CONFIGURA;
    if (!EhPseudoTerminal(descritor) && ioctl(descritor, TIOCEXCL) != 0)
        return CausaDe(errno);
    if (!AjustaLinha(velocidade))
        return QX7032_PORTA_NAO_CONFIGURA;
    DescartaEntrada();
    return QX7032_SUCESSO;
}

bool Linha::AjustaLinha(unsigned velocidade)
{
    termios modo{};
    const int descritor = m_porta.native_handle();
    if (tcgetattr(descritor, &modo) != 0)
        return false;
    cfmakeraw(&modo);
    modo.c_cflag |= CLOCAL | CREAD;
    if (tcsetattr(descritor, TCSANOW, &modo) != 0)
        return false;
    using Opcao = asio::serial_port_base;
    asio::error_code erro;
    const auto ajusta = [&](const auto &opcao) {
        m_porta.set_option(opcao, erro);
        return !erro;
    };
    m_velocidade = velocidade;
    return ajusta(Opcao::baud_rate(velocidade)) && ajusta(Opcao::character_size(8)) &&
           ajusta(Opcao::parity(Opcao::parity::none)) && ajusta(Opcao::stop_bits(Opcao::stop_bits::one)) &&
           ajusta(Opcao::flow_control(Opcao::flow_control::none)) && velocidade > 0;
}

void Linha::Fecha()
{
    if (!m_porta.is_open())
        return;
    const int descritor = m_porta.native_handle();
    int pendentes = 0;
    // Closing would wait for what has not left, half a minute on a dead line. When nothing waits, nothing is
    // flushed: on a pseudo-terminal that would take away what the other end has not read yet.
    if (ioctl(descritor, TIOCOUTQ, &pendentes) == 0 && pendentes > 0)
        tcflush(descritor, TCOFLUSH);
    ioctl(descritor, TIOCNXCL);
    flock(descritor, LOCK_UN);
    asio::error_code erro;
    m_porta.close(erro);
    m_inicio = m_fim = 0;
}

void Linha::DescartaEntrada()
{
    tcflush(m_porta.native_handle(), TCIFLUSH);
    m_inicio = m_fim = 0;
}

// Lets asio work until its handler has set `pronto`; past the deadline the operation is cancelled and ends
// so.
void Linha::EsperaAte(const bool &pronto, Relogio::time_point prazo)
{
    m_contexto.restart();
    m_contexto.run_until(prazo);
    if (pronto)
        return;
    asio::error_code erro;
    m_porta.cancel(erro);
    m_contexto.restart();
    m_contexto.run();
}

int Linha::Escreve(std::string_view bytes, Relogio::time_point prazo)
{
    bool pronto = false;
    asio::error_code erro;
    asio::async_write(m_porta, asio::buffer(bytes), [&](const asio::error_code &ocorrido, std::size_t) {
        erro = ocorrido;
        pronto = true;
    });
    EsperaAte(pronto, prazo);
    if (erro == asio::error::operation_aborted)
        return QX7032_SEM_RESPOSTA;
    return erro ? QX7032_LINHA_CAIU : Esvazia(prazo);
}

int Linha::Esvazia(Relogio::time_point prazo)
{
    for (;;) {
        int pendentes = 0;
        if (ioctl(m_porta.native_handle(), TIOCOUTQ, &pendentes) != 0)
            return QX7032_LINHA_CAIU;
        if (pendentes == 0)
            return QX7032_SUCESSO;
        if (Relogio::now() >= prazo)
            return QX7032_SEM_RESPOSTA;
        std::this_thread::sleep_for(kOlhada);
    }
}

Linha::Leitura Linha::Le(char &byte, Relogio::time_point prazo)
{
    if (m_inicio == m_fim) {
        bool pronto = false;
        asio::error_code erro;
        std::size_t lidos = 0;
        m_porta.async_read_some(asio::buffer(m_recebidos),
                                [&](const asio::error_code &ocorrido, std::size_t n) {
                                    erro = ocorrido;
                                    lidos = n;
                                    pronto = true;
                                });
        EsperaAte(pronto, prazo);
        if (erro)
            return erro == asio::error::operation_aborted ? Leitura::Prazo : Leitura::Caiu;
        m_inicio = 0;
        m_fim = lidos;
    }
    byte = m_recebidos[m_inicio++];
    return Leitura::Byte;
}

std::chrono::milliseconds Linha::TempoDe(std::size_t bytes) const
{
    constexpr std::size_t bitsPorByte = 10; // start, eight, stop
    return std::chrono::milliseconds(bytes * bitsPorByte * 1000 / std::max(m_velocidade, 1U) + 1);
}

} // namespace qx7032
