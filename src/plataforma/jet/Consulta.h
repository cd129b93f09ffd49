// A query of the dialect read into its parts, ready to be put together as SQL.
#pragma once

#include "Tabela.h"
#include <functional>

namespace plataforma::jet {

struct CampoDaConsulta {
    QString nome;     ///< as the dynaset calls it: the field's name, or the one given by "As"
    qsizetype coluna; ///< index in the table's columns
};

struct Consulta {
    Tabela tabela;
    QList<CampoDaConsulta> campos;
    QString condicao; ///< SQL; empty: every row
    QString ordem;    ///< SQL; empty: the order of the keys
};

/// Gives the table of a name. @throws RuntimeError 3078
using BuscaTabela = std::function<Tabela(const QString &)>;

/// Reads "Select ... From table [Where condition] [Order by ...]" or a bare table name. One table, no
/// sub-queries.
/// @throws RuntimeError 3075 refused; 3078 no such table
Consulta LeConsulta(const QString &texto, const BuscaTabela &busca);
/// A condition alone, as FindFirst takes it, in SQL. @throws RuntimeError 3075
QString LeCriterio(const QString &texto, const Tabela &tabela);

} // namespace plataforma::jet
