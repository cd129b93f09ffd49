// The commands of qx70-banco. Each takes the words behind its name and answers the exit code.
#pragma once

#include <QStringList>

namespace banco {

/// Exit codes of the program; they stand in --ajuda too.
enum Saida : int {
    kFeito = 0,      ///< done
    kFalhou = 1,     ///< refused or failed; nothing was changed
    kMalChamado = 2, ///< the call itself is wrong
};

/// Makes an empty store. Never overwrites one.
/// @throws RuntimeError 3051 when the file exists or cannot be made
int Cria(const QStringList &argumentos);

/// Fills the empty tables of a store with invented data and writes the banks' layouts into QX70.INI.
/// @throws RuntimeError 3024, 3050, 3051, 3078, 3343 when the store cannot take them; then nothing is changed
int Semeia(const QStringList &argumentos);

} // namespace banco
