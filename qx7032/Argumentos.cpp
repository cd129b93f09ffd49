// Argument lists of the frames; see Argumentos.h.
#include "qx7032/Argumentos.h"

#include "qx7032/Quadro.h"

namespace qx7032 {

EscritorDeArgumentos &EscritorDeArgumentos::Texto(std::string_view texto)
{
    if (texto.size() > kCargaMaxima) {
        m_cabe = false;
        return *this;
    }
    m_carga.push_back(static_cast<char>(texto.size() >> 8));
    m_carga.push_back(static_cast<char>(texto.size() & 0xFF));
    m_carga += texto;
    return *this;
}

EscritorDeArgumentos &EscritorDeArgumentos::Numero(std::int16_t numero)
{
    const auto bits = static_cast<std::uint16_t>(numero);
    m_carga.push_back(static_cast<char>(bits >> 8));
    m_carga.push_back(static_cast<char>(bits & 0xFF));
    return *this;
}

bool EscritorDeArgumentos::Cabe() const
{
    return m_cabe && m_carga.size() <= kCargaMaxima;
}

std::optional<std::int16_t> LeitorDeArgumentos::Numero()
{
    if (m_falhou || m_resto.size() < 2) {
        m_falhou = true;
        return std::nullopt;
    }
    const auto alto = static_cast<unsigned char>(m_resto[0]);
    const auto baixo = static_cast<unsigned char>(m_resto[1]);
    m_resto.remove_prefix(2);
    return static_cast<std::int16_t>(static_cast<std::uint16_t>((alto << 8) | baixo));
}

std::optional<std::string> LeitorDeArgumentos::Texto()
{
    const auto bits = Numero();
    if (!bits)
        return std::nullopt;
    const std::size_t tamanho = static_cast<std::uint16_t>(*bits);
    if (m_resto.size() < tamanho) {
        m_falhou = true;
        return std::nullopt;
    }
    std::string texto(m_resto.substr(0, tamanho));
    m_resto.remove_prefix(tamanho);
    return texto;
}

} // namespace qx7032
