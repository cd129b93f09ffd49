// Paper, pre-print and print of a cheque.
#include "DesenhoDoCheque.h"

#include "FonteDeAgulhas.h"
#include "FormularioEmBranco.h"

namespace simulador {

namespace {
constexpr double kLarguraDaCelula = 14;
constexpr double kAlturaDaCelula = 38;
constexpr double kFundo = 24; // ground around the paper
constexpr double kFolga = 16; // paper around the grid
const QColor kCorDaTinta(0x10, 0x16, 0x40);
} // namespace

double LarguraDoPapelDoCheque()
{
    return kColunas * kLarguraDaCelula + 2 * kFolga;
}

QSizeF TamanhoDoCheque()
{
    return {LarguraDoPapelDoCheque() + 2 * kFundo, kLinhas * kAlturaDaCelula + 2 * (kFolga + kFundo)};
}

QRectF CelulaDe(Lugar lugar)
{
    return {kFundo + kFolga + (lugar.coluna - 1) * kLarguraDaCelula,
            kFundo + kFolga + (lugar.linha - 1) * kAlturaDaCelula, kLarguraDaCelula, kAlturaDaCelula};
}

void DesenhaCheque(QPainter &pintor, const Documento &documento)
{
    const QRectF tudo(QPointF(0, 0), TamanhoDoCheque());
    DesenhaPapelDoCheque(pintor, tudo, tudo.adjusted(kFundo, kFundo, -kFundo, -kFundo));
    DesenhaPreImpresso(pintor, documento);
    FonteDeAgulhas fonte;
    for (const TextoPosto &posto : documento.textos)
        fonte.Imprime(pintor, CelulaDe(posto.lugar), posto.texto, kCorDaTinta);
}

} // namespace simulador
