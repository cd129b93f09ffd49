// Encoding and reading of a frame; see Quadro.h.
#include "qx7032/Quadro.h"

namespace qx7032 {

namespace {

constexpr std::size_t kCabecalho = 5; // 02, LEN hi, LEN lo, TYPE, SEQ

unsigned char Byte(char c)
{
    return static_cast<unsigned char>(c);
}

void PoeDuplo(std::string &destino, std::uint16_t valor)
{
    destino.push_back(static_cast<char>(valor >> 8));
    destino.push_back(static_cast<char>(valor & 0xFF));
}

} // namespace

std::uint16_t CalculaCrc(std::string_view bytes, std::uint16_t inicio)
{
    unsigned crc = inicio;
    for (char c : bytes) {
        crc ^= static_cast<unsigned>(Byte(c)) << 8;
        for (int bit = 0; bit < 8; ++bit)
            crc = ((crc & 0x8000U) != 0 ? (crc << 1) ^ 0x1021U : crc << 1) & 0xFFFFU;
    }
    return static_cast<std::uint16_t>(crc);
}

std::string CodificaQuadro(const Quadro &quadro)
{
    std::string bytes;
    if (quadro.carga.size() > kCargaMaxima)
        return bytes;
    bytes.reserve(quadro.carga.size() + kMoldura);
    bytes.push_back(kInicio);
    PoeDuplo(bytes, static_cast<std::uint16_t>(quadro.carga.size()));
    bytes.push_back(quadro.tipo);
    bytes.push_back(static_cast<char>(quadro.sequencia));
    bytes += quadro.carga;
    PoeDuplo(bytes, CalculaCrc(std::string_view(bytes).substr(1)));
    bytes.push_back(kFim);
    return bytes;
}

std::string CodificaResultado(std::uint8_t sequencia, std::int16_t resultado)
{
    Quadro quadro{kTipoResultado, sequencia, {}};
    PoeDuplo(quadro.carga, static_cast<std::uint16_t>(resultado));
    return CodificaQuadro(quadro);
}

LeitorDeQuadro::Estado LeitorDeQuadro::Recebe(char byte)
{
    if (m_bytes.empty() && byte != kInicio)
        return Estado::Aguarda;
    m_bytes.push_back(byte);
    if (m_bytes.size() < 3)
        return Estado::Dentro;
    if (TamanhoDaCarga() > kCargaMaxima) {
        Recomeca();
        return Estado::Danificado;
    }
    return m_bytes.size() == TamanhoDaCarga() + kMoldura ? Termina() : Estado::Dentro;
}

std::size_t LeitorDeQuadro::TamanhoDaCarga() const
{
    return (static_cast<std::size_t>(Byte(m_bytes[1])) << 8) | Byte(m_bytes[2]);
}

LeitorDeQuadro::Estado LeitorDeQuadro::Termina()
{
    const std::size_t carga = TamanhoDaCarga();
    const std::string_view tudo = m_bytes;
    const auto crc = static_cast<std::uint16_t>((Byte(tudo[kCabecalho + carga]) << 8) |
                                                Byte(tudo[kCabecalho + carga + 1]));
    const bool inteiro = tudo.back() == kFim && CalculaCrc(tudo.substr(1, kCabecalho - 1 + carga)) == crc;
    if (inteiro)
        m_quadro = {tudo[3], Byte(tudo[4]), std::string(tudo.substr(kCabecalho, carga))};
    Recomeca();
    return inteiro ? Estado::Inteiro : Estado::Danificado;
}

} // namespace qx7032
