// Key codes as the screens know them, from Qt's.
#pragma once

#include <Qt>

namespace plataforma {

enum Tecla : int {
    TeclaEsquerda = 37,
    TeclaAcima = 38,
    TeclaDireita = 39,
    TeclaAbaixo = 40,
    TeclaF3 = 114,
    TeclaF4 = 115,
    TeclaF8 = 119
};

/// The virtual key code of a Qt key for F1 to F12 (112 to 123) and the arrows (37 to 40); 0 for all others.
[[nodiscard]] constexpr int CodigoDaTecla(int qt)
{
    if (qt >= Qt::Key_F1 && qt <= Qt::Key_F12)
        return 112 + (qt - Qt::Key_F1);
    switch (qt) {
    case Qt::Key_Left:
        return TeclaEsquerda;
    case Qt::Key_Up:
        return TeclaAcima;
    case Qt::Key_Right:
        return TeclaDireita;
    case Qt::Key_Down:
        return TeclaAbaixo;
    default:
        return 0;
    }
}

} // namespace plataforma
