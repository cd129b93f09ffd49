// The two encodings of the office's text files, Windows-1252 and UTF-8, against the UTF-8 of the store.
#include "Codificacao.h"

#include "plataforma/basico/Texto.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace banco {

namespace {

constexpr char16_t kAberto = 0; // a byte that the code page leaves open

unsigned char Byte(char c)
{
    return static_cast<unsigned char>(c);
}

// The characters of the bytes 80 to FF, as the program itself reads them.
std::array<char16_t, 128> MontaPagina()
{
    std::array<char16_t, 128> pagina{};
    for (unsigned i = 0; i < pagina.size(); ++i) {
        const auto byte = static_cast<char>(0x80 + i);
        const char16_t lido = plataforma::FromAnsi(QByteArray(1, byte)).at(0).unicode();
        pagina[i] = i < 0x20 && lido == Byte(byte) ? kAberto : lido;
    }
    return pagina;
}

const std::array<char16_t, 128> &Pagina()
{
    static const std::array<char16_t, 128> kPagina = MontaPagina();
    return kPagina;
}

// How many bytes of pure ASCII a text begins with.
std::size_t ComecoEmAscii(std::string_view texto)
{
    std::size_t i = 0;
    for (std::uint64_t oito = 0; i + sizeof oito <= texto.size(); i += sizeof oito) {
        std::memcpy(&oito, texto.data() + i, sizeof oito);
        if ((oito & 0x8080808080808080U) != 0)
            break;
    }
    while (i < texto.size() && Byte(texto[i]) < 0x80)
        ++i;
    return i;
}

// The byte of a character beyond ASCII; 0 when the code page lacks it.
char ByteDe(char32_t codigo)
{
    const auto &pagina = Pagina();
    if (codigo >= 0xA0 && codigo <= 0xFF)
        return static_cast<char>(codigo);
    const auto *const fim = pagina.begin() + 0x20;
    const auto *const lugar =
        std::find_if(pagina.begin(), fim, [codigo](char16_t c) { return c != kAberto && c == codigo; });
    return lugar == fim ? '\0' : static_cast<char>(0x80 + (lugar - pagina.begin()));
}

void PoeCaractere(std::string &saida, char16_t codigo)
{
    if (codigo < 0x800) {
        saida += static_cast<char>(0xC0 | (codigo >> 6));
    } else {
        saida += static_cast<char>(0xE0 | (codigo >> 12));
        saida += static_cast<char>(0x80 | ((codigo >> 6) & 0x3F));
    }
    saida += static_cast<char>(0x80 | (codigo & 0x3F));
}

} // namespace

Caractere PrimeiroCaractere(std::string_view texto)
{
    const unsigned primeiro = Byte(texto[0]);
    if (primeiro < 0x80)
        return {primeiro, 1};
    const std::size_t bytes = primeiro < 0xC2 ? 0 : primeiro < 0xE0 ? 2 : primeiro < 0xF0 ? 3 : 4;
    if (bytes == 0 || primeiro > 0xF4 || texto.size() < bytes)
        return {};
    char32_t codigo = primeiro & (0x7FU >> bytes);
    for (std::size_t i = 1; i < bytes; ++i) {
        if ((Byte(texto[i]) & 0xC0) != 0x80)
            return {};
        codigo = (codigo << 6) | (Byte(texto[i]) & 0x3F);
    }
    const bool maisCurto = (bytes == 3 && codigo < 0x800) || (bytes == 4 && codigo < 0x10000);
    const bool meioPar = codigo >= 0xD800 && codigo <= 0xDFFF;
    return maisCurto || meioPar || codigo > 0x10FFFF ? Caractere{} : Caractere{codigo, bytes};
}

std::size_t AchaForaDeUtf8(std::string_view texto)
{
    std::size_t i = 0;
    while ((i += ComecoEmAscii(texto.substr(i))) < texto.size()) {
        const std::size_t bytes = PrimeiroCaractere(texto.substr(i)).bytes;
        if (bytes == 0)
            return i;
        i += bytes;
    }
    return std::string_view::npos;
}

std::size_t PoeEmAnsi(std::string &saida, std::string_view texto)
{
    for (std::size_t i = 0; i < texto.size();) {
        const std::size_t ascii = ComecoEmAscii(texto.substr(i));
        saida.append(texto, i, ascii);
        i += ascii;
        if (i == texto.size())
            break;
        const Caractere caractere = PrimeiroCaractere(texto.substr(i));
        const char byte = caractere.bytes == 0 ? '\0' : ByteDe(caractere.codigo);
        if (byte == '\0')
            return i;
        saida += byte;
        i += caractere.bytes;
    }
    return std::string_view::npos;
}

std::size_t PoeEmUtf8(std::string &saida, std::string_view bytes)
{
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const std::size_t ascii = ComecoEmAscii(bytes.substr(i));
        saida.append(bytes, i, ascii);
        i += ascii;
        if (i == bytes.size())
            break;
        const char16_t codigo = Pagina()[Byte(bytes[i]) - 0x80U];
        if (codigo == kAberto)
            return i;
        PoeCaractere(saida, codigo);
    }
    return std::string_view::npos;
}

std::size_t ComprimentoNaCaixa(std::string_view texto)
{
    std::size_t caracteres = 0;
    for (const char c : texto) {
        caracteres += (Byte(c) & 0xC0) != 0x80; // each character's first byte
        caracteres += Byte(c) >= 0xF0;
    }
    return caracteres;
}

void Detector::Ve(std::string_view pedaco)
{
    if (!m_utf8)
        return;
    m_resto.append(pedaco);
    if (!m_comecou && m_resto.size() >= kMarcaUtf8.size()) {
        m_comMarca = m_resto.starts_with(kMarcaUtf8);
        m_comecou = true;
    }
    if (!m_comecou)
        return;
    const std::size_t fora = AchaForaDeUtf8(m_resto);
    const std::size_t lidos = std::min(fora, m_resto.size());
    m_alemDeAscii = m_alemDeAscii || ComecoEmAscii(m_resto) < lidos;
    // Three bytes at the end may yet become a character.
    m_utf8 = m_resto.size() - lidos < 4;
    m_resto.erase(0, lidos);
}

Codificacao Detector::Resultado() const
{
    if (m_comMarca)
        return Codificacao::Utf8;
    const bool curto = !m_comecou && AchaForaDeUtf8(m_resto) == std::string_view::npos &&
                       ComecoEmAscii(m_resto) < m_resto.size();
    const bool longo = m_comecou && m_utf8 && m_resto.empty() && m_alemDeAscii;
    return curto || longo ? Codificacao::Utf8 : Codificacao::Windows1252;
}

} // namespace banco
