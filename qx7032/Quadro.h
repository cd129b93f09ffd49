// A frame of the serial line: 02 | LEN hi lo | TYPE | SEQ | PAYLOAD | CRC hi lo | 03. Bytes are held in
// std::string.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace qx7032 {

inline constexpr char kInicio = '\x02';            ///< first byte of a frame
inline constexpr char kFim = '\x03';               ///< last byte of a frame
inline constexpr char kRecebido = '\x06';          ///< answer: the frame came whole
inline constexpr char kNaoRecebido = '\x15';       ///< answer: the frame came damaged, nothing was done
inline constexpr char kEscape = '\x1b';            ///< first byte of a command outside a frame
inline constexpr char kTipoResultado = 'r';        ///< the frame that carries a result number
inline constexpr std::size_t kCargaMaxima = 32767; ///< bytes of payload
inline constexpr std::size_t kMoldura = 8;         ///< bytes of a frame besides its payload

/// One order of the host, or one result of the device.
struct Quadro {
    char tipo = 0;
    std::uint8_t sequencia = 0;
    std::string carga; ///< at most kCargaMaxima bytes
    bool operator==(const Quadro &) const = default;
};

/// CRC-16/CCITT-FALSE (polynomial 1021, start FFFF, nothing reflected): "123456789" gives 29B1.
[[nodiscard]] std::uint16_t CalculaCrc(std::string_view bytes, std::uint16_t inicio = 0xFFFF);

/// The bytes of a frame on the line; empty when the payload is over kCargaMaxima.
[[nodiscard]] std::string CodificaQuadro(const Quadro &quadro);

/// The device's answer to an order: a frame of type 'r' with the order's sequence and the result number.
[[nodiscard]] std::string CodificaResultado(std::uint8_t sequencia, std::int16_t resultado);

/// Takes one frame apart byte by byte. Knows no time: who feeds it decides when a gap is too long.
class LeitorDeQuadro {
public:
    enum class Estado { Aguarda, Dentro, Inteiro, Danificado };

    /// Takes the next byte. The first one must be kInicio. After Inteiro or Danificado a new frame begins.
    Estado Recebe(char byte);
    /// The frame last completed; meaningful after Recebe answered Inteiro.
    [[nodiscard]] const Quadro &Lido() const { return m_quadro; }
    [[nodiscard]] bool Dentro() const { return !m_bytes.empty(); }
    void Recomeca() { m_bytes.clear(); }

private:
    [[nodiscard]] std::size_t TamanhoDaCarga() const;
    Estado Termina();
    std::string m_bytes; // from kInicio on
    Quadro m_quadro;
};

} // namespace qx7032
