// Windows-1252, the character set of the texts that the program and its files use.
#pragma once

#include <string>
#include <string_view>

namespace qx7032 {

/// A Windows-1252 text in UTF-8; the five bytes without a character become the control characters of that
/// number.
[[nodiscard]] std::string Utf8De1252(std::string_view bytes);
/// A UTF-8 text in Windows-1252; a character outside it becomes '?'.
[[nodiscard]] std::string Texto1252De(std::string_view utf8);

} // namespace qx7032
