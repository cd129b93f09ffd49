// Paper with fixed-pitch lines; a line printed upside down stands on its head at its own place.
#include "DesenhoDaFolha.h"

#include <algorithm>

#include "FonteDeAgulhas.h"

namespace simulador {

namespace {
constexpr double kFundo = 24;  // ground around the paper
constexpr double kMargem = 48; // of the paper
constexpr double kLarguraDoTexto = 1120;
constexpr double kAlturaDaLinha = 30;
constexpr int kLinhasMinimas = 16; // a short text does not make a strip of paper
const QColor kCorDoFundo(0xD9, 0xDD, 0xE1);
const QColor kCorDoPapel(0xFD, 0xFC, 0xF8);
const QColor kCorDaBorda(0xB8, 0xB8, 0xB0);
const QColor kCorDaTinta(0x20, 0x24, 0x3C);

void DesenhaLinha(QPainter &pintor, FonteDeAgulhas &fonte, const LinhaDeFolha &linha, const QRectF &faixa)
{
    pintor.save();
    if (linha.invertida) {
        pintor.translate(faixa.center());
        pintor.rotate(180);
        pintor.translate(-faixa.center());
    }
    const QRectF celula(faixa.left(), faixa.top(), faixa.width() / linha.largura, faixa.height());
    fonte.Imprime(pintor, celula, linha.texto, kCorDaTinta, linha.enfase);
    pintor.restore();
}
} // namespace

QSizeF TamanhoDaFolha(const Documento &documento)
{
    const auto linhas = std::max<double>(kLinhasMinimas, static_cast<double>(documento.linhas.size()));
    return {kLarguraDoTexto + 2 * (kMargem + kFundo), linhas * kAlturaDaLinha + 2 * (kMargem + kFundo)};
}

void DesenhaFolha(QPainter &pintor, const Documento &documento)
{
    const QRectF tudo(QPointF(0, 0), TamanhoDaFolha(documento));
    pintor.fillRect(tudo, kCorDoFundo);
    const QRectF papel = tudo.adjusted(kFundo, kFundo, -kFundo, -kFundo);
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(QColor(0, 0, 0, 30));
    pintor.drawRect(papel.translated(4, 5));
    pintor.setPen(QPen(kCorDaBorda, 1));
    pintor.setBrush(kCorDoPapel);
    pintor.drawRect(papel);
    FonteDeAgulhas fonte;
    QRectF faixa(papel.left() + kMargem, papel.top() + kMargem, kLarguraDoTexto, kAlturaDaLinha);
    for (const LinhaDeFolha &linha : documento.linhas) {
        DesenhaLinha(pintor, fonte, linha, faixa);
        faixa.translate(0, kAlturaDaLinha);
    }
}

} // namespace simulador
