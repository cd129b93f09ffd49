// The store as a file: where it lies, opening it for writing, and its failures in words.
#pragma once

#include "plataforma/basico/RuntimeError.h"
#include <memory>
#include <QString>

namespace SQLite {
class Database;
class Exception;
} // namespace SQLite

namespace banco {

inline constexpr char kNomeDaLoja[] = "QX70.MDB";
inline constexpr char kNomeDoIni[] = "QX70.INI";

/// The file of that name in a folder, in whatever case it is spelt there; the name as given when there is
/// none.
QString ArquivoNaPasta(const QString &pasta, const QString &nome);

/// The store of a folder, opened for writing, with full sync and a bounded wait for other programs.
/// @throws RuntimeError 3024 missing, 3051 not writable
std::unique_ptr<SQLite::Database> AbreLoja(const QString &caminho);

/// A failure of the database library as one that tells what failed, on what, and what to do.
plataforma::RuntimeError ErroDaLoja(const SQLite::Exception &erro, const QString &caminho);

/// Whether an empty folder of ours can be made in `pasta`, which tells what is wrong with it otherwise.
/// @throws RuntimeError 3051 the folder is missing, is no folder, or cannot be written
void ExigePastaGravavel(const QString &pasta);

} // namespace banco
