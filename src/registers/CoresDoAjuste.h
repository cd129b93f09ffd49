// The two colours of the adjustment screens: of the selected field and its read-out, and of all others.
#pragma once

#include <QColor>

namespace registers {

inline constexpr QColor kCorRealcada(0, 255, 255);    ///< cyan
inline constexpr QColor kCorDeRepouso(255, 255, 128); ///< pale yellow
/// On both of them, also where the theme writes in white.
inline constexpr QColor kCorDoTexto(0, 0, 0);

} // namespace registers
