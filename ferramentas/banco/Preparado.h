// A prepared statement used through the library's own C interface, for loops over a million rows.
#pragma once

#include <memory>
#include <sqlite3.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <string>

namespace banco {

struct Finaliza {
    void operator()(sqlite3_stmt *comando) const { sqlite3_finalize(comando); }
};
using Preparado = std::unique_ptr<sqlite3_stmt, Finaliza>;

/// @throws SQLite::Exception when the statement does not fit the store
inline Preparado Prepara(SQLite::Database &loja, const std::string &sql)
{
    sqlite3_stmt *comando = nullptr;
    const int codigo = sqlite3_prepare_v3(loja.getHandle(), sql.c_str(), static_cast<int>(sql.size()) + 1,
                                          SQLITE_PREPARE_PERSISTENT, &comando, nullptr);
    if (codigo != SQLITE_OK)
        throw SQLite::Exception(loja.getHandle(), codigo);
    return Preparado(comando);
}

/// One step. @return whether there is a row. @throws SQLite::Exception
inline bool Passo(SQLite::Database &loja, const Preparado &comando)
{
    const int codigo = sqlite3_step(comando.get());
    if (codigo != SQLITE_ROW && codigo != SQLITE_DONE)
        throw SQLite::Exception(loja.getHandle(), codigo);
    return codigo == SQLITE_ROW;
}

} // namespace banco
