// What is wrong with the folder and the settings file that the program was started on.
#pragma once

#include <QString>

namespace nucleo {

class Sistema;

/// Settings are read and written in silence; this is what an operator must know about them at the start.
/// @return what failed, on what, and what follows; empty when the folder is there and the settings file can
/// be read or is not there yet
QString FalhaDaInstalacao(const QString &caminhoApp, const QString &arquivoIni);

/// Tells it in one box, when there is anything to tell. @return whether there was
bool AvisaFalhaDaInstalacao(Sistema &sistema);

} // namespace nucleo
