// The position rule: what must hold of a bank layout before it goes to the device.
#pragma once

#include <array>
#include <QString>

namespace device {

/// Boxes of the bank register: 0 number, 1 name, 2-6 lines, 7-11 columns, 12-14 distances of day, month and
/// year from the city's column.
using TextosDoBanco = std::array<QString, 15>;

inline const QString kErroDePosicoes =
    QStringLiteral("Algum erro relacionado a posição dos campos foi detectado.\n"
                   "Verifique se os mesmos estão corretos.");
inline const QString kTituloDeErroDePosicoes = QStringLiteral("QX70 Printer Error");

/// Bank numbers from 995 on are bound by no rule of positions.
bool IsentoDasPosicoes(const QString &codigo);

/// Whether the layout may go to the device. Bank numbers from 995 on are exempt.
bool VerificaPosicoes(const TextosDoBanco &textos);

} // namespace device
