// The drawing of a sheet of free lines.
#pragma once

#include <QPainter>
#include <QSizeF>

#include "Documento.h"

namespace simulador {

QSizeF TamanhoDaFolha(const Documento &documento);
void DesenhaFolha(QPainter &pintor, const Documento &documento);

} // namespace simulador
