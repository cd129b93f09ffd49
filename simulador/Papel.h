// Documents drawn: on any painter, as PNG and as PDF.
#pragma once

#include <QByteArray>
#include <QPainter>
#include <QSizeF>

#include "Documento.h"

namespace simulador {

/// Size of the whole picture, paper and the ground around it, in drawing units; a PNG has one pixel a unit.
QSizeF TamanhoDe(const Documento &documento);
/// Draws the document into (0, 0) to TamanhoDe.
void Desenha(QPainter &pintor, const Documento &documento);

QByteArray PngDe(const Documento &documento);
/// One page of the picture's size, a cheque in its true width of 175 mm.
QByteArray PdfDe(const Documento &documento);

} // namespace simulador
