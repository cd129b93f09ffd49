// The two encodings of the office's text files, Windows-1252 and UTF-8, against the UTF-8 of the store.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace banco {

enum class Codificacao { Windows1252, Utf8 };

/// What a file in UTF-8 begins with, so that spreadsheets recognise it.
inline constexpr std::string_view kMarcaUtf8 = "\xEF\xBB\xBF";

/// One character of a text in UTF-8.
struct Caractere {
    char32_t codigo = 0;
    std::size_t bytes = 0; ///< 0 where no well-formed character begins
};

/// The character at the beginning of a text that is not empty.
Caractere PrimeiroCaractere(std::string_view texto);
/// Position of the first byte of no well-formed character; npos when the whole is UTF-8.
std::size_t AchaForaDeUtf8(std::string_view texto);

/// Adds a text in UTF-8 as Windows-1252. The five bytes that the code page leaves open are nobody's.
/// @return position in `texto` of the first character that the code page lacks or that is ill-formed; npos
/// when all were added
std::size_t PoeEmAnsi(std::string &saida, std::string_view texto);
/// Adds Windows-1252 bytes as UTF-8. @return position of the first byte that the code page leaves open; npos
/// when all were added
std::size_t PoeEmUtf8(std::string &saida, std::string_view bytes);

/// How many characters a text box counts in a well-formed text: those beyond U+FFFF are two.
std::size_t ComprimentoNaCaixa(std::string_view texto);

/// Tells the encoding of a file from all its bytes, given in pieces of any size.
class Detector {
public:
    void Ve(std::string_view pedaco);
    /// UTF-8 where the bytes begin with its mark, or are UTF-8 with at least one character beyond ASCII.
    [[nodiscard]] Codificacao Resultado() const;

private:
    std::string m_resto; ///< the bytes of a character that goes on in the next piece
    bool m_comMarca = false;
    bool m_alemDeAscii = false;
    bool m_utf8 = true;
    bool m_comecou = false;
};

} // namespace banco
