// The command line of a program that wants a cheque prefilled: /B237/V150,00/FNome/LCidade/D010299/C000123
#pragma once

#include <array>
#include <QString>

namespace app {

/// Values by index of `Text1`; 5 and 7 are never filled.
using ArgumentosLinha = std::array<QString, 8>;

/// Parses a command line. The letter's case does not matter, values are trimmed and may hold blanks but no
/// "/"; unknown letters and empty values are dropped.
ArgumentosLinha LeLinhaComando(const QString &linha);
/// Puts one pair into the arguments; a letter that names no field is dropped.
void GuardaArgumento(ArgumentosLinha &argumentos, const QString &letra, const QString &valor);

} // namespace app
