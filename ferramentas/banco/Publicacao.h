// Giving finished files their names: whole, on disk, and never over another file.
#pragma once

#include "plataforma/basico/RuntimeError.h"

#include <QString>

namespace banco {

/// That `destino` is there already and stays as it is.
plataforma::RuntimeError ErroDeExistente(const QString &destino);

/// Refuses a place for a new store beside which another one's journal lies: the next program to open the new
/// store would put the other one's pages into it. @throws RuntimeError 3051
void ExigeSemDiario(const QString &destino);

/// Gives the finished file its name, only when the name is free; both lie on the same file system.
/// @throws RuntimeError 3051 the name is taken, or the folder cannot be written
void PublicaSemSobrescrever(const QString &pronto, const QString &destino);

/// Brings the names in a folder to the disk. A file system that cannot do it is passed over.
void SincronizaPasta(const QString &pasta);

} // namespace banco
