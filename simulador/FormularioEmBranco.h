// The blank form of a cheque: its paper, and the labels and rules where a bank's layout expects the fields.
#pragma once

#include <QPainter>
#include <QRectF>

#include "Documento.h"

namespace simulador {

/// The ground, the paper with its quiet pattern, and its frame.
void DesenhaPapelDoCheque(QPainter &pintor, const QRectF &tudo, const QRectF &papel);
/// Labels, boxes and rules, where the layout expects the fields of this cheque.
void DesenhaPreImpresso(QPainter &pintor, const Documento &cheque);

} // namespace simulador
