// The ten lines of the back of a cheque: their keys in the settings, and the text that goes to the device.
#pragma once

#include "cheques/RegrasDaEntrada.h"

#include <array>
#include <QString>

namespace nucleo {
class QX_INI;
}

namespace cheques {

/// Line `i` (0 to 9) as it is saved; empty when it is not.
QString LeVerso(const nucleo::QX_INI &ini, int i);
/// Saves line `i`; an empty text is saved as one blank.
void GravaVerso(const nucleo::QX_INI &ini, int i, const QString &texto);

/// What is sent of a back: the lines behind one another, each with its indent and a line feed.
struct TextoDoVerso {
    QString texto;
    int modo = 3; ///< 2 when a line with its indent is longer than 80 columns
};

/// Adds line `i` to what is sent. @return false, with nothing added, when it and all behind it are empty:
/// those are not sent
bool PoeLinhaDoVerso(const std::array<QString, kLinhasDoVerso> &linhas, int i, TextoDoVerso &verso);

} // namespace cheques
