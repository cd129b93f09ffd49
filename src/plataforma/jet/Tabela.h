// What the dialect must know of a table: its fields, and the key by which a row is found again.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace plataforma::jet {

struct Coluna {
    QString nome; ///< as the file spells it
    bool comparaDireto =
        true; ///< "=" on texts without letters may use the column's own order, and so its index
};

struct Tabela {
    QString nome; ///< as the file spells it
    QList<Coluna> colunas;
    QStringList chave;     ///< SQL names of the key: the row number, or the columns of the primary key
    bool temNumero = true; ///< the key is the row number

    /// Index of a field, found without regard to case; -1 when there is none.
    [[nodiscard]] qsizetype IndiceDe(const QString &campo) const;
};

/// A name as SQL takes it whatever it reserves: "Index" between double quotes.
QString NomeCitado(const QString &nome);
/// A text as a SQL literal.
QString TextoCitado(const QString &texto);

} // namespace plataforma::jet
