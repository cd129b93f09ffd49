// The blank form of a cheque. It bears no bank's name or mark and says that it is for training.
#include "FormularioEmBranco.h"

#include <algorithm>
#include <cmath>
#include <QLinearGradient>
#include <QPainterPath>
#include <QStringList>

#include "DesenhoDoCheque.h"

namespace simulador {

namespace {

const QColor kCorDoFundo(0xD5, 0xDA, 0xDF);
const QColor kCorDoRotulo(0x2F, 0x5D, 0x62);
const QColor kCorDaRegua(0x6E, 0x96, 0x98);
const QColor kCorPreImpressa(0x3A, 0x4A, 0x50);

QFont FonteDeRotulo(double tamanho, bool negrito = false)
{
    QFont fonte(QStringLiteral("Liberation Sans"));
    fonte.setStyleHint(QFont::SansSerif);
    fonte.setPixelSize(static_cast<int>(tamanho));
    fonte.setBold(negrito);
    return fonte;
}

void DesenhaOndas(QPainter &pintor, const QRectF &papel, const QColor &cor, double comprimento,
                  double amplitude, double passo, double desvio)
{
    pintor.setPen(QPen(cor, 1.0));
    pintor.setBrush(Qt::NoBrush);
    int n = 0;
    for (double y = papel.top() - amplitude; y < papel.bottom() + amplitude; y += passo, ++n) {
        QPainterPath onda;
        for (double x = papel.left(); x <= papel.right() + 18; x += 18) {
            const double fase = 2 * M_PI * (x - papel.left()) / comprimento + desvio * n;
            const QPointF ponto(x, y + amplitude * std::sin(fase) * std::cos(fase / 3.7));
            if (x == papel.left())
                onda.moveTo(ponto);
            else
                onda.lineTo(ponto);
        }
        pintor.drawPath(onda);
    }
}

void DesenhaRoseta(QPainter &pintor, QPointF centro, double raio, const QColor &cor)
{
    pintor.setPen(QPen(cor, 1.0));
    pintor.setBrush(Qt::NoBrush);
    for (int anel = 0; anel < 12; ++anel) {
        QPainterPath curva;
        for (int grau = 0; grau <= 360; grau += 3) {
            const double angulo = grau * M_PI / 180;
            const double r = raio * (0.55 + 0.03 * anel + 0.1 * std::sin(16 * angulo + anel * 0.4));
            const QPointF ponto(centro.x() + r * std::cos(angulo), centro.y() + r * std::sin(angulo));
            if (grau == 0)
                curva.moveTo(ponto);
            else
                curva.lineTo(ponto);
        }
        pintor.drawPath(curva);
    }
}

void Escreve(QPainter &pintor, const QRectF &onde, int alinhamento, const QString &texto, const QFont &fonte,
             const QColor &cor = kCorDoRotulo)
{
    pintor.setFont(fonte);
    pintor.setPen(cor);
    pintor.drawText(onde, alinhamento | Qt::TextDontClip, texto);
}

/// A rule under the cells from `inicio` to the column `fim` of the same line.
void DesenhaRegua(QPainter &pintor, Lugar inicio, int fim)
{
    if (fim < inicio.coluna)
        return;
    const QRectF primeira = CelulaDe(inicio);
    const QRectF ultima = CelulaDe({inicio.linha, fim});
    pintor.setPen(QPen(kCorDaRegua, 1.4));
    pintor.drawLine(QPointF(primeira.left() - 2, primeira.bottom() - 1),
                    QPointF(ultima.right() + 2, ultima.bottom() - 1));
}

void DesenhaCaixa(QPainter &pintor, const QRectF &caixa, const QString &rotulo, const QString &conteudo)
{
    pintor.setPen(QPen(kCorDaRegua, 1.2));
    pintor.setBrush(QColor(255, 255, 255, 90));
    pintor.drawRect(caixa);
    Escreve(pintor, caixa.adjusted(5, 2, 0, 0), Qt::AlignLeft | Qt::AlignTop, rotulo, FonteDeRotulo(12));
    Escreve(pintor, caixa.adjusted(0, 10, 0, 0), Qt::AlignHCenter | Qt::AlignVCenter, conteudo,
            FonteDeRotulo(20, true), kCorPreImpressa);
}

/// The boxes along the top, on the side of the amount that has room.
void DesenhaCabecalho(QPainter &pintor, const Formulario &formulario)
{
    const Lugar valor = formulario.lugares[0];
    int primeira = 2;
    int ultima = 119;
    if (valor.linha <= 2 && valor.coluna > 50)
        ultima = valor.coluna - 6;
    else if (valor.linha <= 2)
        primeira = valor.coluna + 19;
    const QRectF faixa(CelulaDe({1, primeira}).topLeft() + QPointF(0, 2),
                       CelulaDe({1, std::max(primeira + 1, std::min(ultima, primeira + 84))}).bottomRight() +
                           QPointF(0, 14));
    struct Caixa {
        QString rotulo;
        QString conteudo;
        double parte; // of the width
    };
    const std::vector<Caixa> caixas = {{"Comp", "000", 0.11},         {"Banco", formulario.banco, 0.12},
                                       {"Agência", "0000", 0.15},     {"Conta", "00.000-0", 0.30},
                                       {"Cheque Nº", "000000", 0.26}, {"Série", "A", 0.06}};
    double x = faixa.left();
    for (const Caixa &caixa : caixas) {
        const double largura = faixa.width() * caixa.parte;
        DesenhaCaixa(pintor, QRectF(x, faixa.top(), largura, faixa.height()), caixa.rotulo, caixa.conteudo);
        x += largura;
    }
}

void DesenhaValor(QPainter &pintor, Lugar valor)
{
    const QRectF primeira = CelulaDe({valor.linha, std::max(1, valor.coluna - 4)});
    const QRectF ultima = CelulaDe({valor.linha, valor.coluna < 60 ? valor.coluna + 17 : 119});
    QRectF caixa(primeira.topLeft(), ultima.bottomRight());
    caixa.adjust(0, -3, 6, 4);
    pintor.setPen(QPen(kCorDaRegua, 1.6));
    pintor.setBrush(QColor(255, 255, 255, 130));
    pintor.drawRoundedRect(caixa, 5, 5);
    if (valor.coluna > 4)
        Escreve(pintor, caixa.adjusted(8, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, "R$",
                FonteDeRotulo(24, true));
}

void DesenhaExtenso(QPainter &pintor, Lugar primeira, Lugar segunda, bool livreAcima)
{
    DesenhaRegua(pintor, primeira, 118);
    DesenhaRegua(pintor, segunda, 118);
    const QRectF celula = CelulaDe(primeira);
    const QRectF margem(CelulaDe({primeira.linha, 2}).topLeft(), QPointF(celula.left() - 8, celula.bottom()));
    if (primeira.coluna >= 12)
        Escreve(pintor, margem, Qt::AlignLeft | Qt::AlignBottom, "Pague por este\ncheque a quantia de",
                FonteDeRotulo(15));
    else if (livreAcima)
        Escreve(pintor, QRectF(celula.left(), celula.top() - 18, 400, 18), Qt::AlignLeft | Qt::AlignVCenter,
                "Pague por este cheque a quantia de", FonteDeRotulo(14));
}

void DesenhaFavorecido(QPainter &pintor, Lugar lugar)
{
    const QRectF celula = CelulaDe(lugar);
    if (lugar.coluna > 2)
        Escreve(pintor, QRectF(celula.left() - 28, celula.top(), 20, celula.height()),
                Qt::AlignRight | Qt::AlignBottom, "a", FonteDeRotulo(18));
    const bool comOrdem = lugar.coluna < 60;
    DesenhaRegua(pintor, lugar, comOrdem ? 106 : 119);
    if (comOrdem)
        Escreve(pintor, QRectF(CelulaDe({lugar.linha, 108}).left(), celula.top(), 170, celula.height()),
                Qt::AlignLeft | Qt::AlignBottom, "ou à sua ordem", FonteDeRotulo(18));
}

/// "de" right before a part of the date.
void EscreveDe(QPainter &pintor, Lugar antesDe)
{
    const QRectF celula = CelulaDe(antesDe);
    if (antesDe.coluna > 3)
        Escreve(pintor, QRectF(celula.left() - 60, celula.top(), 48, celula.height() - 2),
                Qt::AlignRight | Qt::AlignBottom, "de", FonteDeRotulo(16));
}

void DesenhaData(QPainter &pintor, const Formulario &formulario)
{
    const auto &lugares = formulario.lugares;
    const Lugar cidade = lugares[4];
    const Lugar dia = lugares[5];
    const Lugar mes = lugares[6];
    const Lugar ano = lugares[7];
    const int prefixo = static_cast<int>(formulario.prefixoDoAno.size());
    DesenhaRegua(pintor, cidade, std::min(dia.coluna - 3, cidade.coluna + 27));
    DesenhaRegua(pintor, dia, dia.coluna + 1);
    DesenhaRegua(pintor, mes, std::min(mes.coluna + 11, ano.coluna - prefixo - 4));
    DesenhaRegua(pintor, ano, std::min(kColunas, ano.coluna + 3 - prefixo));
    EscreveDe(pintor, mes);
    EscreveDe(pintor, {ano.linha, ano.coluna - prefixo});
    const QRectF celula = CelulaDe(ano);
    Escreve(pintor, QRectF(celula.left() - 100, celula.top(), 98, celula.height() - 5),
            Qt::AlignRight | Qt::AlignVCenter, formulario.prefixoDoAno, FonteDeRotulo(24), kCorPreImpressa);
}

void DesenhaRodape(QPainter &pintor, int linhaDaCidade)
{
    const double y = CelulaDe({std::min(linhaDaCidade + 4, 19), 1}).bottom() - 4;
    const QRectF assinatura(CelulaDe({1, 66}).left(), y,
                            CelulaDe({1, 118}).right() - CelulaDe({1, 66}).left(), 20);
    pintor.setPen(QPen(kCorDaRegua, 1.4));
    pintor.drawLine(assinatura.topLeft(), assinatura.topRight());
    Escreve(pintor, assinatura, Qt::AlignHCenter | Qt::AlignTop, "Assinatura do emitente", FonteDeRotulo(14));
    const QRectF esquerda(CelulaDe({20, 3}).left(), CelulaDe({20, 1}).top() - 30, 700, 60);
    Escreve(pintor, esquerda, Qt::AlignLeft | Qt::AlignBottom,
            "EMITENTE DE EXEMPLO\nDocumento de treinamento, sem valor", FonteDeRotulo(15));
}

/// The form as it would have been made for these texts: where a text had to be moved left, its place is
/// further left.
Formulario FormularioVisto(const Documento &cheque)
{
    Formulario formulario = cheque.formulario;
    for (const TextoPosto &posto : cheque.textos) {
        if (posto.campo == Campo::Extra)
            continue;
        Lugar &lugar = formulario.lugares.at(static_cast<std::size_t>(posto.campo));
        lugar.coluna = std::min(lugar.coluna, posto.lugar.coluna);
    }
    return formulario;
}

/// Whether nothing is printed on the left of a line.
bool EsquerdaLivre(const Documento &cheque, int linha)
{
    return std::none_of(cheque.textos.begin(), cheque.textos.end(), [linha](const TextoPosto &posto) {
        return posto.lugar.linha == linha && posto.lugar.coluna < 40;
    });
}

} // namespace

void DesenhaPapelDoCheque(QPainter &pintor, const QRectF &tudo, const QRectF &papel)
{
    pintor.fillRect(tudo, kCorDoFundo);
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(QColor(0, 0, 0, 34));
    pintor.drawRoundedRect(papel.translated(4, 5), 6, 6);
    QLinearGradient tinta(papel.topLeft(), papel.bottomRight());
    tinta.setColorAt(0, QColor(0xF6, 0xF9, 0xF2));
    tinta.setColorAt(0.55, QColor(0xEA, 0xF4, 0xEF));
    tinta.setColorAt(1, QColor(0xE6, 0xF0, 0xF6));
    pintor.setBrush(tinta);
    pintor.drawRoundedRect(papel, 6, 6);
    pintor.save();
    pintor.setClipRect(papel);
    DesenhaOndas(pintor, papel, QColor(0x5F, 0xA8, 0x92, 44), 420, 26, 13, 0.19);
    DesenhaOndas(pintor, papel, QColor(0x6C, 0x9C, 0xC4, 36), 610, 34, 16, -0.13);
    DesenhaRoseta(pintor, papel.center() + QPointF(-papel.width() * 0.31, papel.height() * 0.12), 190,
                  QColor(0x4F, 0x9A, 0x84, 46));
    pintor.restore();
    pintor.setBrush(Qt::NoBrush);
    pintor.setPen(QPen(QColor(0x8F, 0xB4, 0xAE), 1.2));
    pintor.drawRoundedRect(papel.adjusted(6, 6, -6, -6), 4, 4);
}

void DesenhaPreImpresso(QPainter &pintor, const Documento &cheque)
{
    const Formulario formulario = FormularioVisto(cheque);
    const auto &lugares = formulario.lugares;
    DesenhaCabecalho(pintor, formulario);
    DesenhaValor(pintor, lugares[0]);
    DesenhaExtenso(pintor, lugares[1], lugares[2], EsquerdaLivre(cheque, lugares[1].linha - 1));
    DesenhaFavorecido(pintor, lugares[3]);
    DesenhaData(pintor, formulario);
    DesenhaRodape(pintor, lugares[4].linha);
}

} // namespace simulador
