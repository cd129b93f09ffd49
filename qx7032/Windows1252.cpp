// Windows-1252; see Windows1252.h.
#include "qx7032/Windows1252.h"

#include "qx7032/Utf8.h"

#include <algorithm>
#include <array>

namespace qx7032 {

namespace {

// Bytes 80 to 9F; the others are Latin-1.
// clang-format off
constexpr std::array<char32_t, 32> kDe80A9F = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
// clang-format on

char32_t UnicodeDe1252(unsigned char byte)
{
    return byte >= 0x80 && byte < 0xA0 ? kDe80A9F[byte - 0x80U] : char32_t{byte};
}

char Byte1252De(char32_t caractere)
{
    if (caractere < 0x80 || (caractere >= 0xA0 && caractere <= 0xFF))
        return static_cast<char>(caractere);
    const auto *achado = std::find(kDe80A9F.begin(), kDe80A9F.end(), caractere);
    return achado == kDe80A9F.end() ? '?' : static_cast<char>(0x80 + (achado - kDe80A9F.begin()));
}

} // namespace

std::string Utf8De1252(std::string_view bytes)
{
    std::string utf8;
    for (char c : bytes)
        PoeUtf8(utf8, UnicodeDe1252(static_cast<unsigned char>(c)));
    return utf8;
}

std::string Texto1252De(std::string_view utf8)
{
    std::string bytes;
    while (!utf8.empty())
        bytes.push_back(Byte1252De(TomaUtf8(utf8)));
    return bytes;
}

} // namespace qx7032
