// Text boxes that hold back what is typed: a box with a limit, and a rule for boxes of digits.
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

/// Cuts a box's text to its first `limite` characters; the caret stays where it stood.
void CortaEm(QLineEdit *campo, int limite);

/// Rebuilds the text of a box from its digits; the caret stays behind the digit that it stood behind.
void DeixaSoDigitos(QLineEdit *campo);

} // namespace plataforma
