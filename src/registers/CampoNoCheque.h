// A sample field on the picture of a form: it is selected, moved by keys and by the mouse, never typed into.
#pragma once

#include <QLineEdit>

namespace registers {

/// Each character of its text is one column wide.
class CampoNoCheque final : public QLineEdit {
    Q_OBJECT
public:
    explicit CampoNoCheque(const QString &amostra, QWidget *folha = nullptr);

    /// Where the text begins and how wide a column is, in pixels inside the frame; the font fits it.
    void PoeMedidas(double recuo, double coluna);
    /// Shows it as the selected one, or as one of the others.
    void Realca(bool realcado);

    /// Pixels of the frame on each side of the text's own place.
    static constexpr int kMoldura = 3;

Q_SIGNALS:
    /// A key was pressed, or repeats; Tab is no such key. @param tecla its code (Teclas.h), 0 for most
    void Pressionada(int tecla);
    /// The mouse has taken hold of it.
    void Pega();
    /// The mouse stands so far from where it took hold.
    void Arrastada(QPoint pixels);

protected:
    void keyPressEvent(QKeyEvent *evento) override;
    void mousePressEvent(QMouseEvent *evento) override;
    void mouseMoveEvent(QMouseEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;
    void mouseDoubleClickEvent(QMouseEvent *evento) override;
    void paintEvent(QPaintEvent *evento) override;

private:
    double m_recuo = 0;
    double m_coluna = 1;
    bool m_realcado = false;
    bool m_pego = false;
    QPoint m_ondePegou;
};

} // namespace registers
