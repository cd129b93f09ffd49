// The drawing of a blank cheque form in the units of the layouts' grid.
#pragma once

#include <QString>

class QPainter;

namespace registers {

/// Size of the paper in units: 120 columns, 21 lines, and the edge of the grid all around.
inline constexpr double kLarguraDoCheque = 119 + 120 * 68 + 119;
inline constexpr double kAlturaDoCheque = 119 + 21 * 188 + 233;

/// Draws the paper from (0, 0) on; one unit of the painter is one unit of the grid.
void DesenhaCheque(QPainter &pintor, const QString &codigoDoBanco, const QString &nomeDoBanco);

} // namespace registers
