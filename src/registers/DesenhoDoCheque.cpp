// See DesenhoDoCheque.h. Everything stands where the usual layout of a bank prints.
#include "registers/DesenhoDoCheque.h"

#include "registers/Grade.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace registers {

namespace {

constexpr double kCanto = 70;
constexpr double kAlturaDaLegenda = 82;
constexpr double kAlturaDoTexto = 112;
constexpr double kTopoDaBanda = 119 + 18 * 188;
const QColor kTinta(38, 84, 92);
const QColor kTintaClara(38, 84, 92, 46);
const QColor kPapelDeCima(246, 250, 244);
const QColor kPapelDeBaixo(222, 238, 233);

double X(double coluna)
{
    return EsquerdaDaColuna(coluna);
}

double Base(int linha)
{
    return TopoDaLinha(linha) + kUnidadesPorLinha;
}

struct Caixa {
    double de, ate; ///< columns
    QString legenda;
};
const std::array<Caixa, 10> kCaixas = {{{1, 8, QStringLiteral("Comp.")},
                                        {8, 16, QStringLiteral("Banco")},
                                        {16, 26, QStringLiteral("Agência")},
                                        {26, 31, QStringLiteral("DV")},
                                        {31, 35, QStringLiteral("C1")},
                                        {35, 54, QStringLiteral("Conta")},
                                        {54, 58, QStringLiteral("C2")},
                                        {58, 65, QStringLiteral("Série")},
                                        {65, 79, QStringLiteral("Cheque Nº")},
                                        {79, 83, QStringLiteral("C3")}}};
constexpr std::size_t kCaixaDoBanco = 1;
constexpr double kTopoDasCaixas = 30;
constexpr double kFundoDasCaixas = 330;

/// A rule to be written on, along the foot of a line.
struct Pauta {
    int linha;
    double de, ate;
};
constexpr std::array<Pauta, 8> kPautas = {{{5, 17, 121},
                                           {7, 1, 104.5},
                                           {10, 3, 106.5},
                                           {13, 44, 78},
                                           {13, 80.5, 85},
                                           {13, 89, 110},
                                           {13, 114.8, 121},
                                           {17, 64, 121}}};

/// Words on the foot of a line.
struct Dizer {
    int linha;
    double coluna;
    QString texto;
};

QFont Fonte(double altura, bool negrito = false)
{
    QFont fonte = QFont();
    fonte.setPixelSize(static_cast<int>(altura));
    fonte.setBold(negrito);
    // Drawn far larger than it is seen: no fitting to pixels.
    fonte.setHintingPreference(QFont::PreferNoHinting);
    return fonte;
}

// That height, or the smaller one at which the text is no wider than the room for it.
QFont FonteQueCabe(double altura, double largura, const QString &texto, bool negrito = false)
{
    const double natural = QFontMetricsF(Fonte(altura, negrito)).horizontalAdvance(texto);
    return Fonte(natural > largura ? std::max(altura * largura / natural, 1.0) : altura, negrito);
}

// Waves across the paper, each a little behind the last.
void DesenhaOndas(QPainter &pintor)
{
    constexpr int kOndas = 34;
    constexpr double kPasso = 60;
    for (int onda = 0; onda < kOndas; ++onda) {
        QPainterPath traco;
        for (double x = 0; x <= kLarguraDoCheque + kPasso; x += kPasso) {
            const double fase = x / 620 + onda * 0.21;
            const double y = onda * kTopoDaBanda / kOndas + 110 * std::sin(fase) + 46 * std::sin(fase * 2.3);
            x == 0 ? traco.moveTo(x, y) : traco.lineTo(x, y);
        }
        pintor.drawPath(traco);
    }
}

// A ring of woven waves, as engravers draw it.
void DesenhaRoseta(QPainter &pintor, QPointF centro, double raio)
{
    constexpr int kFios = 8;
    constexpr int kFolhas = 9;
    constexpr int kPontos = 360;
    constexpr double kVolta = 6.283185307179586;
    for (int fio = 0; fio < kFios; ++fio) {
        QPainterPath traco;
        for (int ponto = 0; ponto <= kPontos; ++ponto) {
            const double angulo = kVolta * ponto / kPontos;
            const double r = raio * (0.72 + 0.28 * std::sin(kFolhas * angulo + kVolta * fio / kFios));
            const QPointF lugar = centro + QPointF(r * std::cos(angulo), r * std::sin(angulo));
            ponto == 0 ? traco.moveTo(lugar) : traco.lineTo(lugar);
        }
        pintor.drawPath(traco);
    }
}

void DesenhaPapel(QPainter &pintor)
{
    const QRectF papel(0, 0, kLarguraDoCheque, kAlturaDoCheque);
    QPainterPath contorno;
    contorno.addRoundedRect(papel, kCanto, kCanto);
    pintor.setClipPath(contorno);
    QLinearGradient fundo(papel.topLeft(), papel.bottomRight());
    fundo.setColorAt(0, kPapelDeCima);
    fundo.setColorAt(1, kPapelDeBaixo);
    pintor.fillRect(papel, fundo);
    pintor.setBrush(Qt::NoBrush);
    pintor.setPen(QPen(kTintaClara, 7));
    DesenhaOndas(pintor);
    DesenhaRoseta(pintor, {X(61), kTopoDaBanda / 2 + 100}, 1250);
    pintor.fillRect(QRectF(0, kTopoDaBanda, kLarguraDoCheque, kAlturaDoCheque - kTopoDaBanda), Qt::white);
    pintor.setPen(QPen(kTinta, 6));
    pintor.drawLine(QPointF(0, kTopoDaBanda), QPointF(kLarguraDoCheque, kTopoDaBanda));
    pintor.setClipping(false);
    pintor.setPen(QPen(kTinta, 10));
    pintor.drawPath(contorno);
}

void DesenhaCaixas(QPainter &pintor, const QString &codigoDoBanco)
{
    for (std::size_t i = 0; i < kCaixas.size(); ++i) {
        const Caixa &caixa = kCaixas.at(i);
        const QRectF moldura(QPointF(X(caixa.de), kTopoDasCaixas), QPointF(X(caixa.ate), kFundoDasCaixas));
        pintor.setBrush(QColor(255, 255, 255, 120));
        pintor.drawRect(moldura);
        pintor.setFont(Fonte(kAlturaDaLegenda));
        pintor.drawText(moldura.adjusted(24, 10, -10, 0), Qt::AlignLeft | Qt::AlignTop, caixa.legenda);
        if (i == kCaixaDoBanco) {
            pintor.setFont(Fonte(150, true));
            pintor.drawText(moldura.adjusted(0, 0, 0, -14), Qt::AlignHCenter | Qt::AlignBottom,
                            codigoDoBanco);
        }
    }
}

void DesenhaCaixaDoValor(QPainter &pintor)
{
    const QRectF moldura(QPointF(X(85), kTopoDasCaixas), QPointF(X(121), kFundoDasCaixas));
    pintor.setBrush(QColor(255, 255, 255, 190));
    pintor.setPen(QPen(kTinta, 14));
    pintor.drawRoundedRect(moldura, 40, 40);
    pintor.setFont(Fonte(170, true));
    pintor.drawText(moldura.adjusted(50, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("R$"));
    pintor.setPen(QPen(kTinta, 8));
}

// In two lines before the column where the words usually begin.
void DesenhaPague(QPainter &pintor)
{
    const QString embaixo = QStringLiteral("cheque a quantia de");
    pintor.setFont(FonteQueCabe(kAlturaDoTexto, X(16.1) - X(1), embaixo));
    pintor.drawText(QPointF(X(1), Base(5) - kAlturaDoTexto), QStringLiteral("Pague por este"));
    pintor.drawText(QPointF(X(1), Base(5)), embaixo);
}

void DesenhaDizeres(QPainter &pintor)
{
    static const std::array<Dizer, 6> dizeres = {{{7, 105.5, QStringLiteral("e centavos acima")},
                                                  {10, 1, QStringLiteral("a")},
                                                  {10, 107.5, QStringLiteral("ou à sua ordem")},
                                                  {13, 78.2, QStringLiteral(",")},
                                                  {13, 85.7, QStringLiteral("de")},
                                                  {13, 110.6, QStringLiteral("de")}}};
    for (const Dizer &dizer : dizeres) {
        pintor.setFont(FonteQueCabe(kAlturaDoTexto, X(121) - X(dizer.coluna), dizer.texto));
        pintor.drawText(QPointF(X(dizer.coluna), Base(dizer.linha)), dizer.texto);
    }
    for (const Pauta &pauta : kPautas)
        pintor.drawLine(QPointF(X(pauta.de), Base(pauta.linha) + 12),
                        QPointF(X(pauta.ate), Base(pauta.linha) + 12));
    pintor.setFont(Fonte(kAlturaDaLegenda));
    pintor.drawText(QRectF(QPointF(X(64), Base(17) + 30), QPointF(X(121), kTopoDaBanda)),
                    Qt::AlignHCenter | Qt::AlignTop, QStringLiteral("Assinatura"));
}

// As large as fits beside the city's line.
void DesenhaNomeDoBanco(QPainter &pintor, const QString &nome)
{
    constexpr double kAltura = 300;
    const double largura = X(42) - X(1);
    pintor.setFont(FonteQueCabe(kAltura, largura, nome, true));
    pintor.drawText(QRectF(X(1), Base(13), largura, Base(16) - Base(13)), Qt::AlignLeft | Qt::AlignVCenter,
                    nome);
}

} // namespace

void DesenhaCheque(QPainter &pintor, const QString &codigoDoBanco, const QString &nomeDoBanco)
{
    DesenhaPapel(pintor);
    pintor.setPen(QPen(kTinta, 8));
    DesenhaCaixas(pintor, codigoDoBanco);
    DesenhaCaixaDoValor(pintor);
    DesenhaPague(pintor);
    DesenhaDizeres(pintor);
    DesenhaNomeDoBanco(pintor, nomeDoBanco);
}

} // namespace registers
