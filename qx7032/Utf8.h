// UTF-8, one character at a time.
#pragma once

#include <string>
#include <string_view>

namespace qx7032 {

/// Adds a character to a UTF-8 text; a number that is no character is added as U+FFFD.
void PoeUtf8(std::string &destino, char32_t caractere);
/// Takes the first character off a non-empty text; a byte that begins no valid character is taken alone, as
/// U+FFFD.
[[nodiscard]] char32_t TomaUtf8(std::string_view &texto);

} // namespace qx7032
