// Year-digit commands.
#include "device/Comandos.h"

namespace device {

std::optional<QString> ComandoDeDigitosDoAno(int digitos)
{
    switch (digitos) {
    case 1:
        return QStringLiteral("\x1B\u00AF"
                              "D1\r");
    case 2:
        return QStringLiteral("\x1B\u00AF"
                              "D2\r");
    case 4:
        return QStringLiteral("\x1B\u00AF"
                              "D4\r");
    default:
        return std::nullopt;
    }
}

} // namespace device
