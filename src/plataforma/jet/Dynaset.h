// A recordset that is read row by row and can be written: current record, moves, search, add, edit, delete.
#pragma once

#include "plataforma/jet/Rows.h"
#include <memory>
#include <QString>
#include <QStringList>

namespace plataforma {

/// Lazy: opening one, going to the last row and adding a row cost the same on ten rows and on a million.
/// Between calls no read cursor stays open in the file, so other writers never meet a lock of ours.
/// A query without order is walked by key, some rows ahead. One with an order lists its keys on first need,
/// and one with a condition does so before its first new or changed row is stored: from then on a row stays
/// in the set however it changes. Rows that others delete are passed over by the moves. Edit, and any write
/// through the same Database, makes the row be read again; a row read ahead may be older than another
/// program's write. Each call that reads may raise RuntimeError 3050 (locked), 3051 (disk) or 3343 (damaged
/// file). Field names are matched without regard to case; every value is text, a NULL comes back as a null
/// QString.
class Dynaset {
public:
    class Impl;
    explicit Dynaset(std::unique_ptr<Impl> impl);
    ~Dynaset();
    Dynaset(const Dynaset &) = delete;
    Dynaset &operator=(const Dynaset &) = delete;

    [[nodiscard]] bool BOF() const;           ///< no row, or moved before the first
    [[nodiscard]] bool AtEnd() const;         ///< no row, or moved behind the last
    [[nodiscard]] bool HasRows() const;       ///< at least one row when opened or added since
    [[nodiscard]] qint64 RecordCount() const; ///< counts the rows of the query; may read all of them
    [[nodiscard]] QStringList FieldNames() const;

    /// Moves; on an empty set they do nothing but MoveNext/MovePrevious past the ends, which raise 3021.
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    /// Goes to the first row of the set, in its order, that meets a criterion in the query dialect, such as
    /// "Codigo ='001'". When none does, NoMatch() is true and the current row stays.
    /// @throws RuntimeError 3075 criterion refused
    void FindFirst(const QString &criterio);
    [[nodiscard]] bool NoMatch() const;

    /// Value of a field of the current row (or of the row being added or edited).
    /// @throws RuntimeError 3021 no current record; 3265 no such field
    [[nodiscard]] QString Field(const QString &nome) const;
    /// Values of some fields of all rows of the set, in its order, as they are stored: a row begun counts
    /// only after Update. The current row stays. @throws RuntimeError 3265 no such field
    [[nodiscard]] Rows GetRows(const QStringList &campos) const;
    /// Sets a field of the row being added or edited. @throws RuntimeError 3020 outside AddNew/Edit; 3265
    void SetField(const QString &nome, const QString &valor);

    /// Begins a new row, all fields NULL. After Update the current row is as before; where there was none,
    /// it is the new one.
    void AddNew();
    /// Begins a change of the current row, read from the file anew. @throws RuntimeError 3021 none, or gone
    void Edit();
    /// Stores the row begun; only the fields set are written. On disk when it returns; when it fails, the row
    /// begun stays begun. A move or a search forgets it.
    /// @throws RuntimeError 3020 nothing was begun; 3021 the row is gone; 3022 a rule of the table, such as a
    /// key; 13 a value of the wrong kind; 3050 locked; 3051 not writable or disk full
    void Update();
    /// Deletes the current row on disk; the next MoveNext goes to the one behind it.
    /// @throws RuntimeError 3021 none, or gone; 3050; 3051
    void Delete();
    /// Gives the row set back; later calls raise 3420.
    void Close();

private:
    std::unique_ptr<Impl> m_impl;
};

} // namespace plataforma
