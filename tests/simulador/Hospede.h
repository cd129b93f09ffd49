// The host's end of the line, for tests that speak to a simulated device over its pseudo-terminal.
#pragma once

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <poll.h>
#include <QElapsedTimer>
#include <QFile>
#include <stdexcept>
#include <termios.h>
#include <unistd.h>

#include "Apoio.h"

namespace apoio {

inline constexpr int kPaciencia = 20000; // ms; a bound, not a wait

/// The host's end of the line.
class Hospede {
public:
    explicit Hospede(const QString &porta)
        : m_fd(open(QFile::encodeName(porta).constData(), O_RDWR | O_NOCTTY))
    {
        termios modo{};
        tcgetattr(m_fd, &modo);
        cfmakeraw(&modo);
        tcsetattr(m_fd, TCSANOW, &modo);
    }
    ~Hospede() { close(m_fd); }
    Hospede(const Hospede &) = delete;
    Hospede &operator=(const Hospede &) = delete;

    [[nodiscard]] int Descritor() const { return m_fd; }
    void Envia(const std::string &bytes)
    {
        if (write(m_fd, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
            throw std::runtime_error("the line takes no bytes");
    }
    /// Reads until there are `quantos` bytes, the line hangs up or `ms` are over.
    std::string Le(std::size_t quantos, int ms = kPaciencia)
    {
        std::string lidos;
        QElapsedTimer relogio;
        relogio.start();
        while (lidos.size() < quantos) {
            pollfd espera{m_fd, POLLIN, 0};
            if (poll(&espera, 1, static_cast<int>(std::max<qint64>(0, ms - relogio.elapsed()))) <= 0)
                return lidos;
            std::array<char, 256> bytes{};
            const ssize_t n = read(m_fd, bytes.data(), std::min(bytes.size(), quantos - lidos.size()));
            if (n <= 0) {
                m_caiu = true;
                return lidos;
            }
            lidos.append(bytes.data(), static_cast<std::size_t>(n));
        }
        return lidos;
    }
    /// Sends an order. @returns its result, 0 when there was none
    int Ordena(char tipo, std::vector<Argumento> argumentos)
    {
        const auto quadro = Quadro(tipo, std::move(argumentos), m_sequencia++);
        Envia(qx7032::CodificaQuadro(quadro));
        if (Le(1) != "\x06")
            return 0;
        const std::string resposta = Le(10);
        for (int resultado : {1, 20, 21, 22, 23, 24, 29}) {
            if (resposta == qx7032::CodificaResultado(quadro.sequencia, static_cast<std::int16_t>(resultado)))
                return resultado;
        }
        return 0;
    }
    int Cheque(const char *valor = "1.234,56")
    {
        return Ordena('C', {"001", valor, "Jo\xC6o", "S\xC6o Paulo", "05/03/26", ""});
    }
    [[nodiscard]] bool Caiu() const { return m_caiu; }

private:
    int m_fd;
    int m_sequencia = 0;
    bool m_caiu = false;
};

} // namespace apoio
