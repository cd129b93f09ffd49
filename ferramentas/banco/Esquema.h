// The tables of the store, their fields and their indexes: the one place that names them.
#pragma once

#include <QString>
#include <span>
#include <string>
#include <string_view>

namespace SQLite {
class Database;
}

namespace banco {

struct Tabela {
    std::string_view nome;
    std::span<const std::string_view> campos; ///< in the order of the file; all of them text
    std::string_view chave;                   ///< the field that the program looks rows up by
};

/// The table's name, for what the program says.
QString NomeDe(const Tabela &tabela);

/// The six tables, in the order in which they are made.
std::span<const Tabela> Tabelas();
/// The table of that name, exactly as it is spelt. @throws RuntimeError 3078 when there is none
const Tabela &TabelaDe(std::string_view nome);

/// Makes all tables and indexes in an empty file. @throws SQLite::Exception
void CriaEsquema(SQLite::Database &loja);

/// "INSERT INTO ... VALUES (?, ...)" with one place for each field, in the order of `campos`.
std::string ComandoDeInsercao(const Tabela &tabela);

/// Whether the table holds no row. @throws SQLite::Exception when the file does not have the table
bool EstaVazia(SQLite::Database &loja, const Tabela &tabela);

} // namespace banco
