// Opening the store only to read it, and the failures of reading in words.
#pragma once

#include "plataforma/basico/RuntimeError.h"

#include <memory>
#include <QString>

namespace SQLite {
class Database;
class Exception;
} // namespace SQLite

namespace banco {

/// The store, opened so that nothing of it changes, with a bounded wait for other programs. Only a write that
/// was cut off half way is taken back, as the next program to open the file would do.
/// @throws RuntimeError 3024 missing, 3051 not readable; SQLite::Exception what the first reading meets
std::unique_ptr<SQLite::Database> AbreParaLer(const QString &caminho);

/// Whether the file itself is at fault: no database, or a damaged one.
bool EstaDanificado(const SQLite::Exception &erro);

/// A failure while reading as one that tells what failed, on what, and what to do.
plataforma::RuntimeError ErroDeLeitura(const SQLite::Exception &erro, const QString &caminho);

/// The whole content of the file. @throws RuntimeError 3051 when it cannot be read
QByteArray LeTudo(const QString &caminho);

} // namespace banco
