// See CampoNoCheque.h.
#include "registers/CampoNoCheque.h"

#include "plataforma/basico/Teclas.h"
#include "registers/CoresDoAjuste.h"

#include <algorithm>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace registers {

namespace {

const QColor kBorda(150, 140, 60);
const QColor kBordaRealcada(0, 70, 80);
constexpr int kOpacidade = 190; // the form shows through
constexpr double kRaio = 3;

// The fixed-pitch type in which one character is so many pixels wide.
QFont FonteDaColuna(double coluna)
{
    QFont fonte = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    constexpr double kMedida = 100; // points
    fonte.setPointSizeF(kMedida);
    const double largura = QFontMetricsF(fonte).horizontalAdvance(QLatin1Char('0'));
    fonte.setPointSizeF(std::max(kMedida * coluna / largura, 1.0));
    return fonte;
}

} // namespace

CampoNoCheque::CampoNoCheque(const QString &amostra, QWidget *folha) : QLineEdit(amostra, folha)
{
    setReadOnly(true);
    setFrame(false);
    setContextMenuPolicy(Qt::NoContextMenu);
    setCursor(Qt::OpenHandCursor);
}

void CampoNoCheque::PoeMedidas(double recuo, double coluna)
{
    if (m_coluna != coluna)
        setFont(FonteDaColuna(coluna));
    m_recuo = recuo;
    m_coluna = coluna;
    update();
}

void CampoNoCheque::Realca(bool realcado)
{
    m_realcado = realcado;
    update();
}

// The arrows end here; what else there is goes on to the screen, so that Esc closes it.
void CampoNoCheque::keyPressEvent(QKeyEvent *evento)
{
    const int codigo = plataforma::CodigoDaTecla(evento->key());
    evento->setAccepted(codigo >= plataforma::TeclaEsquerda && codigo <= plataforma::TeclaAbaixo);
    Q_EMIT Pressionada(codigo);
}

void CampoNoCheque::mousePressEvent(QMouseEvent *evento)
{
    evento->accept();
    if (evento->button() != Qt::LeftButton)
        return;
    m_pego = true;
    m_ondePegou = evento->globalPosition().toPoint();
    setCursor(Qt::ClosedHandCursor);
    Q_EMIT Pega();
}

// In the display's coordinates: its own move along with it.
void CampoNoCheque::mouseMoveEvent(QMouseEvent *evento)
{
    evento->accept();
    if (m_pego)
        Q_EMIT Arrastada(evento->globalPosition().toPoint() - m_ondePegou);
}

void CampoNoCheque::mouseReleaseEvent(QMouseEvent *evento)
{
    evento->accept();
    if (evento->button() != Qt::LeftButton)
        return;
    m_pego = false;
    setCursor(Qt::OpenHandCursor);
}

void CampoNoCheque::mouseDoubleClickEvent(QMouseEvent *evento)
{
    mousePressEvent(evento);
}

void CampoNoCheque::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    const double traco = m_realcado ? 2 : 1;
    const QRectF corpo = QRectF(rect()).adjusted(traco / 2, traco / 2, -traco / 2, -traco / 2);
    QColor fundo = m_realcado ? kCorRealcada : kCorDeRepouso;
    fundo.setAlpha(kOpacidade);
    pintor.setPen(QPen(m_realcado ? kBordaRealcada : kBorda, traco));
    pintor.setBrush(fundo);
    pintor.drawRoundedRect(corpo, kRaio, kRaio);
    pintor.setClipRect(corpo);
    pintor.setPen(kCorDoTexto);
    pintor.setFont(font());
    double x = kMoldura + m_recuo;
    const QString texto = text();
    for (const QChar letra : texto) {
        pintor.drawText(QRectF(x, 0, m_coluna, height()), Qt::AlignCenter | Qt::TextDontClip, letra);
        x += m_coluna;
    }
}

} // namespace registers
