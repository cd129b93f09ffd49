// The short command strings that the program itself builds for the device.
#pragma once

#include <optional>
#include <QString>

namespace device {

/// Length of a year-digit command, in characters.
inline constexpr int kTamanhoDoComandoDeData = 5;

/// Tells the device how many digits of the year to print: ESC, AF, "D", the digit, CR.
/// Nothing for other than 1, 2 and 4 digits.
std::optional<QString> ComandoDeDigitosDoAno(int digitos);

/// ESC "I": goes before the first and behind the last line of a copy sent in reverse order.
inline const QString kMarcaDeCopiaInvertida = QStringLiteral("\x1B"
                                                             "I");

/// Ends the text of a transfer page: CR, LF, ESC, "@".
inline const QString kFimDaPaginaDeTransferencia = QStringLiteral("\r\n\x1B@");

/// Ends a copy line: CR, LF.
inline const QString kFimDeLinha = QStringLiteral("\r\n");

} // namespace device
