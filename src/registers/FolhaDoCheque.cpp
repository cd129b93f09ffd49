// See FolhaDoCheque.h.
#include "registers/FolhaDoCheque.h"

#include "registers/CampoNoCheque.h"
#include "registers/CoresDoAjuste.h"
#include "registers/DesenhoDoCheque.h"

#include <algorithm>
#include <cmath>
#include <QEvent>
#include <QFontInfo>
#include <QPainter>

namespace registers {

namespace {

constexpr int kColunas = 120;
constexpr int kLinhas = 21;
constexpr int kColunasPorNumero = 10;
constexpr double kMenorColuna = 5.5; // pixels
constexpr double kColunaPreferida = 9;
constexpr int kTraco = 6; // pixels of a ruler's long mark
constexpr int kFolga = 4;
constexpr double kMenorCampo = 2 * kUnidadesPorColuna;
// Far outside of any window, and still a coordinate.
constexpr double kLongeEmPixels = 20000;

QFont FonteDaRegua(const QFont &base)
{
    QFont fonte = base;
    constexpr double kParte = 0.85;
    fonte.setPointSizeF(QFontInfo(base).pointSizeF() * kParte);
    return fonte;
}

int Pixel(double valor)
{
    return static_cast<int>(std::lround(std::clamp(valor, -kLongeEmPixels, kLongeEmPixels)));
}

} // namespace

FolhaDoCheque::FolhaDoCheque(const QString &codigoDoBanco, const QString &nomeDoBanco, QWidget *pai)
    : QWidget(pai), m_codigoDoBanco(codigoDoBanco), m_nomeDoBanco(nomeDoBanco)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void FolhaDoCheque::Coloca(CampoNoCheque *campo, const Lugar &lugar, double recuo)
{
    const Posto &posto = m_campos[campo] = Posto{lugar, recuo};
    Arruma(campo, posto);
    update();
}

void FolhaDoCheque::Marca(const CampoNoCheque *campo)
{
    m_marcado = campo;
    update();
}

double FolhaDoCheque::Escala() const
{
    const QSize livre = contentsRect().marginsRemoved(Reguas()).size();
    return std::max(std::min(livre.width() / kLarguraDoCheque, livre.height() / kAlturaDoCheque), 0.001);
}

int FolhaDoCheque::AlturaPara(int largura) const
{
    return static_cast<int>(largura * kAlturaDoCheque / kLarguraDoCheque);
}

QMargins FolhaDoCheque::Reguas() const
{
    const QFontMetrics medidas(FonteDaRegua(font()));
    return {medidas.horizontalAdvance(QStringLiteral("00")) + kTraco + kFolga,
            medidas.height() + kTraco + kFolga, kFolga, kFolga};
}

QSize FolhaDoCheque::TamanhoPara(double pixelsPorColuna) const
{
    const double escala = pixelsPorColuna / kUnidadesPorColuna;
    const QSize papel(static_cast<int>(std::ceil(kLarguraDoCheque * escala)),
                      static_cast<int>(std::ceil(kAlturaDoCheque * escala)));
    return papel.grownBy(Reguas());
}

QSize FolhaDoCheque::sizeHint() const
{
    return TamanhoPara(kColunaPreferida);
}

QSize FolhaDoCheque::minimumSizeHint() const
{
    return TamanhoPara(kMenorColuna);
}

QRectF FolhaDoCheque::Papel() const
{
    const QRectF livre = contentsRect().marginsRemoved(Reguas());
    const QSizeF papel(kLarguraDoCheque * Escala(), kAlturaDoCheque * Escala());
    const QPointF folga((livre.width() - papel.width()) / 2, (livre.height() - papel.height()) / 2);
    // On whole pixels, so that the drawing stays sharp.
    const QPointF canto = livre.topLeft() + folga;
    return {QPointF(std::floor(canto.x()), std::floor(canto.y())), papel};
}

// A field too narrow to be seen is drawn wider; its number stays.
void FolhaDoCheque::Arruma(CampoNoCheque *campo, const Posto &posto) const
{
    const double escala = Escala();
    const QPointF canto = Papel().topLeft();
    const double largura = std::max(posto.lugar.largura, posto.recuo + kMenorCampo);
    const int esquerda = Pixel(canto.x() + posto.lugar.esquerda * escala);
    const int topo = Pixel(canto.y() + posto.lugar.topo * escala);
    constexpr int kMoldura = CampoNoCheque::kMoldura;
    campo->PoeMedidas(posto.recuo * escala, kUnidadesPorColuna * escala);
    campo->setGeometry(esquerda - kMoldura, topo - kMoldura, Pixel(largura * escala) + 2 * kMoldura,
                       Pixel(kUnidadesPorLinha * escala) + 2 * kMoldura);
}

void FolhaDoCheque::resizeEvent(QResizeEvent *evento)
{
    QWidget::resizeEvent(evento);
    for (const auto &[campo, posto] : m_campos)
        Arruma(campo, posto);
}

void FolhaDoCheque::changeEvent(QEvent *evento)
{
    QWidget::changeEvent(evento);
    if (evento->type() != QEvent::FontChange)
        return;
    m_papel = QPixmap();
    updateGeometry();
}

void FolhaDoCheque::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    PintaPapel(pintor);
    PintaMarca(pintor);
    pintor.setFont(FonteDaRegua(font()));
    pintor.setPen(palette().color(QPalette::WindowText));
    PintaRegua(pintor, Qt::Horizontal);
    PintaRegua(pintor, Qt::Vertical);
}

void FolhaDoCheque::PintaPapel(QPainter &pintor)
{
    const QRectF papel = Papel();
    const double pontos = devicePixelRatioF();
    const QSize tamanho = (papel.size() * pontos).toSize() + QSize(1, 1);
    if (m_papel.size() != tamanho) {
        m_papel = QPixmap(tamanho);
        m_papel.fill(Qt::transparent);
        m_papel.setDevicePixelRatio(pontos);
        QPainter desenho(&m_papel);
        desenho.setRenderHint(QPainter::Antialiasing);
        desenho.scale(Escala(), Escala());
        DesenhaCheque(desenho, m_codigoDoBanco, m_nomeDoBanco);
    }
    pintor.drawPixmap(papel.topLeft(), m_papel);
}

// A mark for each column, a longer one each five, a number each ten; a number for each line.
void FolhaDoCheque::PintaRegua(QPainter &pintor, Qt::Orientation sentido) const
{
    const QRectF papel = Papel();
    const double escala = Escala();
    const double altura = QFontMetricsF(pintor.font()).height();
    if (sentido == Qt::Vertical) {
        for (int linha = 1; linha <= kLinhas; ++linha) {
            const double topo = papel.top() + TopoDaLinha(linha) * escala;
            pintor.drawText(QRectF(0, topo, papel.left() - kTraco, kUnidadesPorLinha * escala),
                            Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip, QString::number(linha));
        }
        return;
    }
    for (int coluna = 1; coluna <= kColunas; ++coluna) {
        const double x = papel.left() + (EsquerdaDaColuna(coluna) + kUnidadesPorColuna / 2) * escala;
        const bool numero = coluna == 1 || coluna % kColunasPorNumero == 0;
        const double traco = numero ? kTraco : coluna % 5 == 0 ? kTraco * 0.7 : kTraco * 0.35;
        pintor.drawLine(QPointF(x, papel.top() - 2), QPointF(x, papel.top() - 2 - traco));
        if (numero)
            pintor.drawText(QRectF(x - altura, papel.top() - kTraco - kFolga - altura, 2 * altura, altura),
                            Qt::AlignCenter, QString::number(coluna));
    }
}

std::optional<QRectF> FolhaDoCheque::Marcado() const
{
    for (const auto &[campo, posto] : m_campos) {
        if (campo == m_marcado)
            return QRectF(posto.lugar.esquerda + posto.recuo, posto.lugar.topo,
                          std::max(posto.lugar.largura - posto.recuo, kMenorCampo), kUnidadesPorLinha);
    }
    return std::nullopt;
}

void FolhaDoCheque::PintaMarca(QPainter &pintor) const
{
    const auto marcado = Marcado();
    if (!marcado)
        return;
    const QRectF papel = Papel();
    const QRectF campo(papel.topLeft() + marcado->topLeft() * Escala(), marcado->size() * Escala());
    const QRectF emCima(campo.left(), papel.top() - kTraco - 2, campo.width(), kTraco);
    const QRectF aoLado(papel.left() - kTraco + 1, campo.top(), kTraco - 3, campo.height());
    pintor.fillRect(emCima.intersected(QRectF(papel.left(), emCima.top(), papel.width(), kTraco)),
                    kCorRealcada);
    pintor.fillRect(aoLado.intersected(QRectF(aoLado.left(), papel.top(), kTraco, papel.height())),
                    kCorRealcada);
}

} // namespace registers
