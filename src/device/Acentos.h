// Text made safe for the device: Windows characters turned into those of code page 850.
#pragma once

#include <QString>

namespace device {

/// Code (byte) of a character on the device, -1 when it goes out unchanged. Exact and case-sensitive.
int CodigoDispositivo(QChar letra);

/// The text whose characters, written in Windows-1252, are the device's bytes; as long as `texto`. Despite
/// the name the accents stay. Running it twice spoils a text.
QString RemoveAcentos(const QString &texto);

} // namespace device
