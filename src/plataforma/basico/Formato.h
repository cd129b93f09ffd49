// Format: numbers and texts put into a pattern, by Brazilian rules.
#pragma once

#include <QString>

namespace plataforma {

/// A number under a pattern of digit signs, or its usual text ("1234,5") under "@" slots.
/// "#" shows a digit where there is one, "0" always; "." is the decimal sign and shows as a comma, even with
/// nothing behind it; a "," behind a digit sign groups by three; digits beyond the signs are all shown.
/// Rounded half away from zero on 15 significant digits. "\" and double quotes make literals; any other
/// character stands for itself. The empty pattern gives the usual text.
/// @throws RuntimeError 5 when the number is infinite or none
QString Format(double valor, const QString &padrao);
/// A text under a pattern of "@" slots, filled from the right, or from the left where a "!" stands. Under a
/// number pattern a numeric text, a date ("01/02/99": its days since 30/12/1899) and a time ("12:30": its
/// part of a day) are converted first, and any other text comes back unchanged.
QString Format(const QString &texto, const QString &padrao);

} // namespace plataforma
