// The picture of a cheque with the fields on it: rulers in the margin, and as large as the window leaves room
// for.
#pragma once

#include "registers/Grade.h"

#include <map>
#include <optional>
#include <QPixmap>
#include <QWidget>

namespace registers {

class CampoNoCheque;

class FolhaDoCheque final : public QWidget {
    Q_OBJECT
public:
    /// The bank's code and name stand on the paper.
    FolhaDoCheque(const QString &codigoDoBanco, const QString &nomeDoBanco, QWidget *pai = nullptr);

    /// Puts a field on the paper, or moves it. @param recuo units from its left to its text
    void Coloca(CampoNoCheque *campo, const Lugar &lugar, double recuo = 0);
    /// Marks a field's columns and line on the rulers; nullptr marks none.
    void Marca(const CampoNoCheque *campo);
    /// Pixels a unit, by the window's size.
    [[nodiscard]] double Escala() const;

    /// Pixels of height that go with so many of width.
    [[nodiscard]] int AlturaPara(int largura) const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *evento) override;
    void changeEvent(QEvent *evento) override;
    void paintEvent(QPaintEvent *evento) override;

private:
    struct Posto {
        Lugar lugar;
        double recuo = 0;
    };
    [[nodiscard]] QSize TamanhoPara(double pixelsPorColuna) const;
    [[nodiscard]] QMargins Reguas() const;
    /// The paper in pixels, in the middle of the room beside the rulers.
    [[nodiscard]] QRectF Papel() const;
    void Arruma(CampoNoCheque *campo, const Posto &posto) const;
    void PintaPapel(QPainter &pintor);
    void PintaRegua(QPainter &pintor, Qt::Orientation sentido) const;
    void PintaMarca(QPainter &pintor) const;
    [[nodiscard]] std::optional<QRectF> Marcado() const; ///< text of the marked field, in units

    QString m_codigoDoBanco;
    QString m_nomeDoBanco;
    std::map<CampoNoCheque *, Posto> m_campos;
    const CampoNoCheque *m_marcado = nullptr;
    QPixmap m_papel; ///< drawn once a size
};

} // namespace registers
