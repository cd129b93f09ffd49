// The store: one SQLite file, opened shared, and the dynasets over it.
#pragma once

#include <memory>
#include <QString>

namespace plataforma {

class Dynaset;

/// An open store. Each write is on disk (full sync) when the call returns; no transaction spans two calls.
class Database {
public:
    /// @throws RuntimeError 3024 the file is missing; 3050 locked by another program; 3051 cannot be opened;
    /// 3343 not a database
    explicit Database(const QString &caminho);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    /// Opens a dynaset over a query text or a bare table name ("Log"). The dialect, over one table:
    /// "Select fields or * From table [As name] [Where condition] [Order by fields [Desc]]", with
    /// comparisons, Like (* ? # [ ]), Between, In, Is Null, And, Or, Not, Left, Right, Mid, Trim, Len, Val,
    /// CDbl, CVDate. Texts stand in ' or ", names may stand in [ ]. Names and texts match without regard to
    /// case, and texts sort in Portuguese order. Where CDbl or CVDate cannot read a row's text, the row meets
    /// no comparison. Only the first statement is looked at: what follows a ";" is never run, and only
    /// reading is understood. The dynaset keeps the connection alive; it may outlive this object.
    /// @throws RuntimeError 3075 query refused; 3078 no such table; 3050 locked; 3051 a table without any key
    [[nodiscard]] std::unique_ptr<Dynaset> OpenDynaset(const QString &consulta) const;

    struct Connection; ///< shared by the dynasets, hidden in the source file

private:
    std::shared_ptr<Connection> m_conexao;
};

} // namespace plataforma
