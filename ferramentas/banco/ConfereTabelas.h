// Checking the file and its tables: what is there, what is missing, and how rows are walked.
#pragma once

#include "ConfereAchados.h"
#include "Esquema.h"

#include <string>
#include <string_view>
#include <vector>

namespace SQLite {
class Database;
}

namespace banco {

/// A table of the store as the file has it.
struct TabelaAchada {
    std::string nome;      ///< between quotes, as SQL takes it
    std::string numero;    ///< SQL name of the row number; empty when rows have none
    std::string ordem;     ///< SQL terms of the order in which the program walks the rows; may be empty
    bool temTodos = false; ///< whether all fields are there
};

/// Lets the engine look at every page of the file and at every index. @throws SQLite::Exception
void ConfereArquivo(SQLite::Database &loja, Achados &achados);
/// The six tables with their fields and indexes. @return what was found of each, in the order of Tabelas();
/// the name is empty where it is missing. @throws SQLite::Exception
std::vector<TabelaAchada> ConfereTabelas(SQLite::Database &loja, Achados &achados);
/// Of those, the one of that name.
const TabelaAchada &AchadaDe(const std::vector<TabelaAchada> &achadas, std::string_view nome);

} // namespace banco
