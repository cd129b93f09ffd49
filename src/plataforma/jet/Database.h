// The store: one SQLite file, opened shared, and the dynasets over it.
#pragma once

#include <memory>
#include <QString>

namespace plataforma {

class Dynaset;

/// An open store. Each write is on disk (full sync) when the call returns, and no transaction spans two
/// calls, but where a run of writes is bracketed by BeginTrans and CommitTrans.
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

    /// The writes that follow, through any dynaset of this object, are stored together by CommitTrans: all of
    /// them, or none when the process ends before. Other programs can read meanwhile, but not write; rows
    /// read ahead before are read again.
    /// @throws RuntimeError 3050 locked; 3051 not writable
    void BeginTrans() const;
    /// On disk when it returns. When it fails nothing of the group is stored.
    /// @throws RuntimeError 3050 locked; 3051 not writable or disk full
    void CommitTrans() const;
    /// Forgets the writes since BeginTrans; without one it does nothing. Never fails.
    void Rollback() const noexcept;

    struct Connection; ///< shared by the dynasets, hidden in the source file

private:
    std::shared_ptr<Connection> m_conexao;
};

} // namespace plataforma
