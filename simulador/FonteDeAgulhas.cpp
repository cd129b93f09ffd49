// The raster of a character is taken from a fixed-pitch font drawn small and without smoothing.
#include "FonteDeAgulhas.h"

#include <QFont>
#include <QImage>
#include <QPolygonF>

namespace simulador {

namespace {
constexpr int kLargura = 8; // dots of a cell
constexpr int kAltura = 16;
constexpr int kTamanho = 13;            // of the font, so that it fills the raster
constexpr int kBase = 12;               // dots above the base line
constexpr double kAlturaDaLetra = 0.86; // of the cell, what the raster covers
constexpr double kDiametro = 1.3;       // of a dot, in steps of the raster
} // namespace

static QFont FonteDoRaster()
{
    QFont fonte(QStringLiteral("DejaVu Sans Mono"));
    fonte.setStyleHint(QFont::Monospace, QFont::NoAntialias);
    fonte.setPixelSize(kTamanho);
    fonte.setHintingPreference(QFont::PreferFullHinting);
    return fonte;
}

const std::vector<QPoint> &FonteDeAgulhas::PontosDe(QChar caractere)
{
    const auto guardados = m_pontos.constFind(caractere);
    if (guardados != m_pontos.constEnd())
        return *guardados;
    QImage raster(kLargura, kAltura, QImage::Format_RGB32);
    raster.fill(Qt::white);
    QPainter pintor(&raster);
    pintor.setFont(FonteDoRaster());
    pintor.drawText(QPoint(0, kBase), QString(caractere));
    pintor.end();
    std::vector<QPoint> pontos;
    for (int y = 0; y < kAltura; ++y) {
        for (int x = 0; x < kLargura; ++x) {
            if (qGray(raster.pixel(x, y)) < 128)
                pontos.emplace_back(x, y);
        }
    }
    return *m_pontos.insert(caractere, pontos);
}

void FonteDeAgulhas::Imprime(QPainter &pintor, const QRectF &celula, QChar caractere, const QColor &cor,
                             bool enfase)
{
    if (caractere == QLatin1Char(' '))
        return;
    const double passoX = celula.width() / kLargura;
    const double passoY = celula.height() * kAlturaDaLetra / kAltura;
    const double topo = celula.top() + celula.height() * (1 - kAlturaDaLetra) / 2;
    QPolygonF pontos;
    for (const QPoint &p : PontosDe(caractere)) {
        pontos << QPointF(celula.left() + (p.x() + 0.5) * passoX, topo + (p.y() + 0.5) * passoY);
        if (enfase)
            pontos << pontos.last() + QPointF(passoX / 2, 0);
    }
    pintor.setPen(QPen(cor, passoX * kDiametro, Qt::SolidLine, Qt::RoundCap));
    pintor.drawPoints(pontos);
}

void FonteDeAgulhas::Imprime(QPainter &pintor, const QRectF &primeira, const QString &texto,
                             const QColor &cor, bool enfase)
{
    QRectF celula = primeira;
    for (const QChar caractere : texto) {
        Imprime(pintor, celula, caractere, cor, enfase);
        celula.translate(celula.width(), 0);
    }
}

} // namespace simulador
