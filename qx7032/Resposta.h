// The host's ear: takes the device's answer to one order apart, byte by byte. It has no clock.
#pragma once

#include "qx7032/Quadro.h"

#include <cstdint>

namespace qx7032 {

class LeitorDeResposta {
public:
    enum class Passo {
        Nada,      ///< more bytes are needed
        Confirmou, ///< the device has the order; its result comes after the work
        Atrasada,  ///< that was the late result of an earlier order, our confirmation is still to come
        Terminou,  ///< Resultado() holds what the operation answers
    };

    /// @param sequencia the sequence number of the order
    explicit LeitorDeResposta(std::uint8_t sequencia) : m_sequencia(sequencia) {}

    Passo Recebe(char byte);
    /// The result number, after Terminou.
    [[nodiscard]] int Resultado() const { return m_resultado; }
    /// The result number when no more bytes come in time.
    [[nodiscard]] int ResultadoNoPrazo() const;

private:
    Passo Termina(int resultado);
    Passo JulgaQuadro();

    std::uint8_t m_sequencia;
    bool m_confirmado = false;
    int m_resultado = 0;
    LeitorDeQuadro m_leitor;
};

} // namespace qx7032
