// Code page 850, the device's character set: each of its 256 bytes to Unicode and back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qx7032 {

/// The character of a byte; bytes below 80 are ASCII, control characters included.
[[nodiscard]] char32_t UnicodeDe850(unsigned char byte);
/// The byte of a character; nothing when code page 850 has none.
[[nodiscard]] std::optional<unsigned char> Byte850De(char32_t caractere);
/// A text of the device in UTF-8. Every byte has a character, so that nothing is lost.
[[nodiscard]] std::string Utf8De850(std::string_view bytes);
/// A UTF-8 text in the device's bytes; what code page 850 lacks, and bytes that are no UTF-8, become '?'.
[[nodiscard]] std::string Texto850De(std::string_view utf8);

} // namespace qx7032
