// One open connection to the store file: its options, its guard against writing queries, its tables.
#pragma once

#include "plataforma/jet/Database.h"
#include "Tabela.h"
#include <SQLiteCpp/Database.h>

namespace plataforma {

struct Database::Connection {
    /// What statements may do at this moment. Outside of Escrita and Esquema the engine itself refuses
    /// whatever is more than reading rows.
    enum class Modo { Leitura, Escrita, Esquema };

    /// @throws RuntimeError as Database
    explicit Connection(const QString &caminho);

    [[nodiscard]] sqlite3 *Motor() const { return m_banco.getHandle(); }
    [[nodiscard]] const QString &Caminho() const { return m_caminho; }
    /// @throws RuntimeError 3078; 3051 the table has no key by which a row can be found again
    [[nodiscard]] jet::Tabela LeTabela(const QString &nome);
    /// How long a lock of another program is waited for: a moment, or longer, for a write.
    void EsperaMais(bool mais) const noexcept;
    /// Raises the last failure of the engine on this connection.
    [[noreturn]] void LancaErro(int codigo) const;

    Modo modo = Modo::Esquema;
    quint64 escritas = 0; ///< rows written so far; a dynaset whose rows are older reads them again

private:
    void Configura();

    QString m_caminho;
    SQLite::Database m_banco;
};

} // namespace plataforma

namespace plataforma::jet {
using Conexao = Database::Connection;
}
