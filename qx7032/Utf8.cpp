// UTF-8, one character at a time; see Utf8.h.
#include "qx7032/Utf8.h"

#include <cstddef>

namespace qx7032 {

namespace {

constexpr char32_t kSubstituto = 0xFFFD;

bool EhCaractere(char32_t c)
{
    return c <= 0x10FFFF && !(c >= 0xD800 && c <= 0xDFFF);
}

// How many bytes follow this first byte; 0 for one that begins no longer sequence.
std::size_t Continuacoes(unsigned char primeiro)
{
    if (primeiro >= 0xC2 && primeiro < 0xE0)
        return 1;
    if (primeiro >= 0xE0 && primeiro < 0xF0)
        return 2;
    return primeiro >= 0xF0 && primeiro < 0xF5 ? 3 : 0;
}

} // namespace

void PoeUtf8(std::string &destino, char32_t caractere)
{
    const char32_t c = EhCaractere(caractere) ? caractere : kSubstituto;
    const auto poe = [&destino](char32_t byte) { destino.push_back(static_cast<char>(byte)); };
    const auto segue = [&](int deslocamento) { poe(0x80 | ((c >> deslocamento) & 0x3F)); };
    if (c < 0x80) {
        poe(c);
    } else if (c < 0x800) {
        poe(0xC0 | (c >> 6));
        segue(0);
    } else if (c < 0x10000) {
        poe(0xE0 | (c >> 12));
        segue(6);
        segue(0);
    } else {
        poe(0xF0 | (c >> 18));
        segue(12);
        segue(6);
        segue(0);
    }
}

char32_t TomaUtf8(std::string_view &texto)
{
    static constexpr char32_t menor[] = {0, 0x80, 0x800, 0x10000};
    const auto primeiro = static_cast<unsigned char>(texto.front());
    const std::size_t n = Continuacoes(primeiro);
    char32_t c = primeiro;
    bool valido = primeiro < 0x80 || (n > 0 && texto.size() > n);
    if (valido && n > 0) {
        c = primeiro & (0x3FU >> n);
        for (std::size_t i = 1; i <= n; ++i) {
            const auto byte = static_cast<unsigned char>(texto[i]);
            valido = valido && (byte & 0xC0) == 0x80;
            c = (c << 6) | (byte & 0x3FU);
        }
        valido = valido && c >= menor[n] && EhCaractere(c);
    }
    texto.remove_prefix(valido ? n + 1 : 1);
    return valido ? c : kSubstituto;
}

} // namespace qx7032
