// What the forms of all screens share: one spacing, widths in characters, labels beside their boxes.
#pragma once

#include "plataforma/tela/Arranjo.h"

#include <QString>
#include <vector>

class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

namespace plataforma {

/// Pixels between controls, and around the controls of a screen.
inline constexpr int kEspaco = 8;
inline constexpr int kMargem = 12;

/// The width in pixels in which `n` characters of the box's own font can be read whole.
int LarguraPara(const QLineEdit *campo, int n);
/// A label to stand on the left of a control, aligned to it; the control is called after it.
QLabel *Rotulo(const QString &texto, QWidget *controle);
/// A box with its controls one below the other.
QGroupBox *Quadro(const QString &titulo, const std::vector<QWidget *> &dentro);
/// The buttons of a screen in one row, at its right end.
QHBoxLayout *LinhaDeBotoes(const Arranjo<QPushButton> &botoes);

} // namespace plataforma
