// The argument list inside a frame: text = length (2 bytes, big endian) + bytes, number = 2 bytes, big
// endian.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qx7032 {

/// Builds the payload of an order, argument after argument.
class EscritorDeArgumentos {
public:
    EscritorDeArgumentos &Texto(std::string_view texto);
    EscritorDeArgumentos &Numero(std::int16_t numero);
    /// False when a text or the whole list does not fit in a frame.
    [[nodiscard]] bool Cabe() const;
    [[nodiscard]] const std::string &Carga() const { return m_carga; }

private:
    std::string m_carga;
    bool m_cabe = true;
};

/// Reads a payload in the same order. Once an argument is missing or cut, nothing more is read.
class LeitorDeArgumentos {
public:
    /// `carga` must live as long as the reader.
    explicit LeitorDeArgumentos(std::string_view carga) : m_resto(carga) {}
    [[nodiscard]] std::optional<std::string> Texto();
    [[nodiscard]] std::optional<std::int16_t> Numero();
    /// True when every byte was read and no argument was missing.
    [[nodiscard]] bool Terminou() const { return !m_falhou && m_resto.empty(); }

private:
    std::string_view m_resto;
    bool m_falhou = false;
};

} // namespace qx7032
