// Checking the rows of the log, one by one, in the order in which the program walks them.
#pragma once

#include "ConfereAchados.h"
#include "ConfereTabelas.h"

namespace banco {

/// Looks at every row; the store is locked for some thousand rows at a time.
/// @return how many rows there are. @throws SQLite::Exception
qint64 ConfereLog(SQLite::Database &loja, const TabelaAchada &log, Achados &achados);

} // namespace banco
