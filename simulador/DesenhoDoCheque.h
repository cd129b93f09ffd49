// The drawing of a cheque: a blank form made for the bank's layout, and the device's texts on it.
#pragma once

#include <QPainter>
#include <QSizeF>

#include "Documento.h"

namespace simulador {

inline constexpr double kLarguraDoChequeMm = 175;

QSizeF TamanhoDoCheque();
/// Width of the paper in drawing units.
double LarguraDoPapelDoCheque();
void DesenhaCheque(QPainter &pintor, const Documento &documento);

/// The cell of a place on the form, in drawing units.
QRectF CelulaDe(Lugar lugar);

} // namespace simulador
