// The commands of qx70-banco. Each takes the words behind its name and answers the exit code.
#pragma once

#include <QStringList>

namespace banco {

/// Exit codes of the program; they stand in --ajuda too.
enum Saida : int {
    kFeito = 0,      ///< done
    kFalhou = 1,     ///< refused or failed; nothing was changed
    kMalChamado = 2, ///< the call itself is wrong
    kDefeitos = 3,   ///< the check ran and found defects
};

/// Makes an empty store. Never overwrites one.
/// @throws RuntimeError 3051 when the file exists or cannot be made
int Cria(const QStringList &argumentos);

/// Fills the empty tables of a store with invented data and writes the banks' layouts into QX70.INI.
/// @throws RuntimeError 3024, 3050, 3051, 3078, 3343 when the store cannot take them; then nothing is changed
int Semeia(const QStringList &argumentos);

/// Looks the store over, and the banks' layouts in QX70.INI, and tells what is wrong; changes nothing.
/// @throws RuntimeError 3024, 3050, 3051 when it cannot be looked at
int Confere(const QStringList &argumentos);

/// Copies the store and QX70.INI into another folder while the program may be writing. Never overwrites a
/// file.
/// @throws RuntimeError 3024, 3050, 3051, 3343; then nothing is in the other folder
int Copia(const QStringList &argumentos);

/// Writes the tables of a store into CSV files of a folder, all of them or none.
/// @throws RuntimeError 3024, 3050, 3051, 3078, 3343 when they cannot be read or written; then nothing is
/// there
int Exporta(const QStringList &argumentos);

/// Adds the rows of CSV files to the tables of a store: all lines of all files or none.
/// @throws RuntimeError 3024, 3050, 3051, 3078, 3343 when a file cannot be read or the store cannot take
/// them; then nothing is changed
int Importa(const QStringList &argumentos);

} // namespace banco
