// The amount in words as a file: what the operation MontaValor does.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qx7032 {

inline constexpr const char *kArquivoDoExtenso = "Extenso.ret"; ///< in the current directory
inline constexpr char kFecho = '.';                             ///< the one character that closes the words

/// The cents of an amount written "1234,56": digits, a comma, two digits, blanks around it allowed.
/// Nothing when it is written otherwise or is over kCentavosMaximos.
[[nodiscard]] std::optional<std::int64_t> LeCentavos(std::string_view valor);

/// Writes the words of an amount to kArquivoDoExtenso; a failure leaves an older file as it was.
/// @param singular,plural the currency's names in Windows-1252
/// @return QX7032_VALOR_MONTADO, QX7032_VALOR_INVALIDO or QX7032_ARQUIVO_NAO_ABRIU
int GravaExtenso(std::string_view valor, std::string_view singular, std::string_view plural);

} // namespace qx7032
