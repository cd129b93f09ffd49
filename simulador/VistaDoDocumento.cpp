// Drawing the document in the widget's own resolution.
#include "VistaDoDocumento.h"

#include <algorithm>
#include <QPainter>

#include "Papel.h"

namespace simulador {

namespace {
constexpr QSize kMenor(420, 200);
}

VistaDoDocumento::VistaDoDocumento(QWidget *pai) : QWidget(pai)
{
    setObjectName("VistaDoDocumento");
    setAccessibleName("Último documento");
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(kMenor);
    m_refaz.setSingleShot(true);
    m_refaz.setInterval(120);
    connect(&m_refaz, &QTimer::timeout, this, &VistaDoDocumento::Refaz);
}

void VistaDoDocumento::Mostra(const Documento &documento)
{
    m_documento = documento;
    setAccessibleDescription(Grade(documento).simplified());
    AjustaAltura();
    Refaz();
}

void VistaDoDocumento::AjustaAltura()
{
    // A long sheet would be too small to read as a whole: it keeps its width, and the area around it scrolls.
    int altura = kMenor.height();
    if (m_documento && m_documento->tipo == Documento::Tipo::Folha) {
        const QSizeF tamanho = TamanhoDe(*m_documento);
        altura = static_cast<int>(tamanho.height() * std::min(1.0, width() / tamanho.width()));
    }
    setMinimumHeight(altura);
}

QRectF VistaDoDocumento::Moldura() const
{
    QSizeF tamanho = TamanhoDe(*m_documento);
    tamanho.scale(size(), Qt::KeepAspectRatio);
    return {QPointF((width() - tamanho.width()) / 2, (height() - tamanho.height()) / 2), tamanho};
}

void VistaDoDocumento::Refaz()
{
    if (!m_documento || !isVisible())
        return;
    const double escala = devicePixelRatioF();
    const QSizeF tamanho = Moldura().size() * escala;
    m_imagem = QImage(tamanho.toSize().expandedTo({1, 1}), QImage::Format_RGB32);
    m_imagem.fill(Qt::white);
    QPainter pintor(&m_imagem);
    pintor.scale(m_imagem.width() / TamanhoDe(*m_documento).width(),
                 m_imagem.height() / TamanhoDe(*m_documento).height());
    Desenha(pintor, *m_documento);
    pintor.end();
    update();
}

void VistaDoDocumento::resizeEvent(QResizeEvent *)
{
    AjustaAltura();
    m_refaz.start();
}

void VistaDoDocumento::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    if (!m_documento) {
        pintor.drawText(rect(), Qt::AlignCenter,
                        "Nenhum documento ainda.\nO que o programa imprimir aparece aqui.");
        return;
    }
    if (m_imagem.isNull())
        Refaz();
    pintor.setRenderHint(QPainter::SmoothPixmapTransform);
    pintor.drawImage(Moldura(), m_imagem);
}

} // namespace simulador
