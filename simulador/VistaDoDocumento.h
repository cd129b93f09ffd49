// A widget that shows one document: a cheque as large as it fits, a sheet in the full width.
#pragma once

#include <optional>
#include <QImage>
#include <QTimer>
#include <QWidget>

#include "Documento.h"

namespace simulador {

class VistaDoDocumento final : public QWidget {
    Q_OBJECT
public:
    explicit VistaDoDocumento(QWidget *pai = nullptr);
    void Mostra(const Documento &documento);
    [[nodiscard]] QSize sizeHint() const override { return {900, 430}; }

protected:
    void paintEvent(QPaintEvent *evento) override;
    void resizeEvent(QResizeEvent *evento) override;

private:
    [[nodiscard]] QRectF Moldura() const;
    void AjustaAltura();
    void Refaz();

    std::optional<Documento> m_documento;
    QImage m_imagem; // the document in the size last drawn
    QTimer m_refaz;  // while the size changes the old picture is stretched
};

} // namespace simulador
