// Other programs, started and left to themselves.
#pragma once

#include <QString>

namespace plataforma {

/// Starts the program whose file has exactly this name, in `pasta` or else in a folder of PATH; it runs on
/// when this program ends, with `pasta` as its current folder. Returns as soon as it is started.
/// @throws RuntimeError 53 no such executable file; 5 the system cannot run the file
void IniciaPrograma(const QString &nome, const QString &pasta);

} // namespace plataforma
