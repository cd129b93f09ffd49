// Characters as a dot-matrix head prints them: each one a raster of dots.
#pragma once

#include <QColor>
#include <QHash>
#include <QPainter>
#include <QRectF>
#include <vector>

namespace simulador {

class FonteDeAgulhas {
public:
    /// Prints one character into its cell. With emphasis it is struck twice, half a dot apart.
    void Imprime(QPainter &pintor, const QRectF &celula, QChar caractere, const QColor &cor,
                 bool enfase = false);
    /// Prints a text from the cell on, one cell a character.
    void Imprime(QPainter &pintor, const QRectF &primeira, const QString &texto, const QColor &cor,
                 bool enfase = false);

private:
    const std::vector<QPoint> &PontosDe(QChar caractere);
    QHash<QChar, std::vector<QPoint>> m_pontos;
};

} // namespace simulador
