// Reading whole tables while another program may write: the store is held for a moment at a time, and what is
// read is nevertheless of one state.
#pragma once

#include "Preparado.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

namespace banco {

struct Tabela;

/// Moments in which the store is read. Writers wait for the end of a moment, which comes within a fraction of
/// the time that a running program waits for its turn. Between two moments others may write; the next one
/// tells.
class Momentos {
public:
    explicit Momentos(SQLite::Database &loja) : m_loja(loja) {}
    /// @return false when the store was written to since the first moment
    [[nodiscard]] bool Comeca();
    /// All statements must be reset by then.
    void Termina();
    [[nodiscard]] bool Aberto() const { return m_aberto; }
    /// Whether the moment has lasted long enough.
    [[nodiscard]] bool Venceu() const;

private:
    SQLite::Database &m_loja;
    std::optional<std::int64_t> m_versao;
    std::chrono::steady_clock::time_point m_desde;
    bool m_aberto = false;
};

/// Whether the rows of a table have numbers by which they are ordered. @throws SQLite::Exception
bool TemNumeros(SQLite::Database &loja, const Tabela &tabela);

/// The rows of one table in the order in which they lie there, to be left and taken up again at any row.
class Percurso {
public:
    Percurso(SQLite::Database &loja, const Tabela &tabela);
    /// Goes to the next row. @return false behind the last
    bool Proxima();
    /// Lets go of the store; the next Proxima goes on behind the row read last.
    void Solta();
    /// A table without row numbers can be read in one go only.
    [[nodiscard]] bool PodeSoltar() const { return m_numerada; }
    /// A field of the row, by its place in the table; nothing when it has no value.
    [[nodiscard]] std::optional<std::string_view> Campo(int campo) const;
    [[nodiscard]] std::int64_t Posicao() const { return m_posicao; } ///< number of the row
    /// Number of the last row, 0 when there is none or rows have no numbers. @throws SQLite::Exception
    [[nodiscard]] std::int64_t UltimaPosicao() const;
    [[nodiscard]] std::int64_t Lidas() const { return m_lidas; }

private:
    SQLite::Database &m_loja;
    const Tabela &m_tabela;
    bool m_numerada;
    Preparado m_consulta;
    std::int64_t m_posicao = 0;
    std::int64_t m_lidas = 0;
    bool m_andando = false;
};

} // namespace banco
