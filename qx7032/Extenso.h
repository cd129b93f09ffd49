// An amount of money in Portuguese words, as a cheque has it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace qx7032 {

/// The highest amount that has words here: 999.999.999.999,99, in cents.
inline constexpr std::int64_t kCentavosMaximos = 99'999'999'999'999;

/// The words of an amount, small letters, UTF-8, with no closing character: "dois reais e um centavo".
/// @param centavos the amount in cents, 0 to kCentavosMaximos; 0 is "zero reais"
/// @param singular,plural the currency's names in UTF-8, masculine: "real", "reais"
/// @return empty when the amount is out of range or the number data cannot be read (see CarregaNumeros)
[[nodiscard]] std::string PorExtenso(std::int64_t centavos, const std::string &singular,
                                     const std::string &plural);

/// Reads the words of the numbers, once; the first PorExtenso does it by itself. The data is looked for in
/// the folders of PastasDosNumeros. A failure is not kept: the next call looks again.
/// @return false when the data is nowhere or cannot be used
bool CarregaNumeros();

/// Where the number data is looked for, in this order, each ending in "/": the folder named by the
/// environment variable QX7032_NUMEROS alone when it is set; else the system's folders, then those beside
/// this library.
[[nodiscard]] std::vector<std::string> PastasDosNumeros();

} // namespace qx7032
