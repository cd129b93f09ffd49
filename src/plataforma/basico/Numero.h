// Numbers read from texts, by Brazilian rules whatever the machine's locale.
#pragma once

#include <QString>

namespace plataforma {

/// The leading number of a text, 0 when there is none. The point is the decimal sign, a comma ends the
/// number, blanks inside are skipped. "1e3", "1d3", "&HFF" and "&O17" are numbers too. Always finite.
double Val(const QString &texto);
/// Whether CDbl reads the text.
bool IsNumeric(const QString &texto);
/// The number written in `texto` by Brazilian rules: "1.234,56". Points behind a first digit are skipped
/// wherever they stand; taken too: a sign on either side, brackets for a negative, "R$", an exponent, "&H1F",
/// blanks around.
/// @throws RuntimeError 13 when `texto` is no number; the empty text is none
double CDbl(const QString &texto);
/// An amount in whole cents, rounded half away from zero on 15 significant digits; for comparing amounts.
/// Beyond 64 bits the nearest end of the range.
/// @throws RuntimeError 5 when the number is infinite or none
qint64 Centavos(double valor);

} // namespace plataforma
