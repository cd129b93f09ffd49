// The serial line itself: opened for one program alone, written and read with a deadline, never blocking for
// good.
#pragma once

#ifndef ASIO_STANDALONE
#define ASIO_STANDALONE
#endif

#include <array>
#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

#include <asio/io_context.hpp>
#include <asio/serial_port.hpp>

namespace qx7032 {

class Linha {
public:
    using Relogio = std::chrono::steady_clock;
    enum class Leitura { Byte, Prazo, Caiu };

    Linha() : m_contexto(1), m_porta(m_contexto) {}
    ~Linha() { Fecha(); }
    Linha(const Linha &) = delete;
    Linha &operator=(const Linha &) = delete;

    /// Opens a tty raw, 8N1, locked, with nothing left over to read.
    /// @param velocidade bits per second
    /// @return QX7032_SUCESSO, or why not (QX7032_PORTA_AUSENTE ... QX7032_PORTA_NAO_CONFIGURA)
    int Abre(const std::string &dispositivo, unsigned velocidade);
    /// Throws away what has not left yet and closes; nothing happens on a closed line.
    void Fecha();
    [[nodiscard]] bool Aberta() const { return m_porta.is_open(); }

    /// Forgets what was received and not read.
    void DescartaEntrada();
    /// Writes all bytes and waits until they have left, at most until `prazo`.
    /// @return QX7032_SUCESSO, QX7032_SEM_RESPOSTA (not taken in time) or QX7032_LINHA_CAIU
    int Escreve(std::string_view bytes, Relogio::time_point prazo);
    /// Waits until everything written has left; results as of Escreve.
    int Esvazia(Relogio::time_point prazo);
    /// The next byte received, waiting at most until `prazo`.
    Leitura Le(char &byte, Relogio::time_point prazo);
    /// How long so many bytes take on this line.
    [[nodiscard]] std::chrono::milliseconds TempoDe(std::size_t bytes) const;

private:
    int Prepara(int descritor, unsigned velocidade);
    bool AjustaLinha(unsigned velocidade);
    void EsperaAte(const bool &pronto, Relogio::time_point prazo);

    asio::io_context m_contexto;
    asio::serial_port m_porta;
    unsigned m_velocidade = 9600;
    std::array<char, 256> m_recebidos{};
    std::size_t m_inicio = 0; // of what was received and not read
    std::size_t m_fim = 0;
};

} // namespace qx7032
