// A text box with a limit on what is typed into it.
#pragma once

#include <QLineEdit>

namespace plataforma {

/// The limit holds for the keyboard (and for pasting, which takes what fits); text set by the program is
/// never cut by it.
class CampoTexto final : public QLineEdit {
    Q_OBJECT
public:
    /// @param limite characters that may be typed; 0 for no limit
    explicit CampoTexto(int limite = 0, QWidget *pai = nullptr);

protected:
    void keyPressEvent(QKeyEvent *evento) override;

private:
    void Cola();
    int m_limite;
};

} // namespace plataforma
