// Reading whole tables while another program may write: the store is held for a moment at a time, and what is
// read is nevertheless of one state.
#include "Percurso.h"

#include "Esquema.h"

#include <limits>

namespace banco {

namespace {

constexpr auto kMomento = std::chrono::milliseconds(100); // the program itself waits 250 ms for its turn

// The fields of the primary key, in which order rows without numbers lie.
std::string OrdemDaChave(SQLite::Database &loja, const Tabela &tabela)
{
    const Preparado consulta =
        Prepara(loja, "SELECT group_concat('t.[' || name || ']') FROM (SELECT name FROM pragma_table_info('" +
                          std::string(tabela.nome) + "') WHERE pk > 0 ORDER BY pk)");
    Passo(loja, consulta);
    return reinterpret_cast<const char *>(sqlite3_column_text(consulta.get(), 0));
}

// Names in brackets belong to the table: one that is missing is an error. In double quotes it would be taken
// for a text.
std::string Consulta(SQLite::Database &loja, const Tabela &tabela, bool numerada)
{
    std::string sql = "SELECT ";
    for (const std::string_view campo : tabela.campos)
        sql += "t.[" + std::string(campo) + "], ";
    sql += numerada ? "t.rowid" : "0";
    sql += " FROM [" + std::string(tabela.nome) + "] AS t ";
    return sql +
           (numerada ? "WHERE t.rowid >= ? ORDER BY t.rowid" : "ORDER BY " + OrdemDaChave(loja, tabela));
}

} // namespace

bool TemNumeros(SQLite::Database &loja, const Tabela &tabela)
{
    const Preparado consulta =
        Prepara(loja, "SELECT wr FROM pragma_table_list WHERE schema = 'main' AND lower(name) = lower('" +
                          std::string(tabela.nome) + "')");
    return !Passo(loja, consulta) || sqlite3_column_int(consulta.get(), 0) == 0;
}

bool Momentos::Comeca()
{
    m_loja.exec("BEGIN");
    m_aberto = true;
    m_desde = std::chrono::steady_clock::now();
    const Preparado consulta = Prepara(m_loja, "PRAGMA data_version");
    Passo(m_loja, consulta);
    const std::int64_t versao = sqlite3_column_int64(consulta.get(), 0);
    if (!m_versao)
        m_versao = versao;
    return *m_versao == versao;
}

void Momentos::Termina()
{
    m_loja.exec("COMMIT");
    m_aberto = false;
}

bool Momentos::Venceu() const
{
    return std::chrono::steady_clock::now() - m_desde >= kMomento;
}

Percurso::Percurso(SQLite::Database &loja, const Tabela &tabela)
    : m_loja(loja), m_tabela(tabela), m_numerada(TemNumeros(loja, tabela)),
      m_consulta(Prepara(loja, Consulta(loja, tabela, m_numerada)))
{
}

bool Percurso::Proxima()
{
    if (!m_andando && m_numerada) {
        constexpr auto kPrimeira = std::numeric_limits<sqlite3_int64>::min();
        if (m_lidas > 0 && m_posicao == std::numeric_limits<sqlite3_int64>::max())
            return false;
        sqlite3_bind_int64(m_consulta.get(), 1, m_lidas == 0 ? kPrimeira : m_posicao + 1);
    }
    m_andando = true;
    if (!Passo(m_loja, m_consulta))
        return false;
    m_posicao = sqlite3_column_int64(m_consulta.get(), static_cast<int>(m_tabela.campos.size()));
    ++m_lidas;
    return true;
}

void Percurso::Solta()
{
    sqlite3_reset(m_consulta.get());
    m_andando = false;
}

std::int64_t Percurso::UltimaPosicao() const
{
    if (!m_numerada)
        return 0;
    const Preparado consulta = Prepara(m_loja, "SELECT max(rowid) FROM [" + std::string(m_tabela.nome) + "]");
    Passo(m_loja, consulta);
    return sqlite3_column_int64(consulta.get(), 0);
}

std::optional<std::string_view> Percurso::Campo(int campo) const
{
    const unsigned char *const texto = sqlite3_column_text(m_consulta.get(), campo);
    if (!texto) {
        if (sqlite3_column_type(m_consulta.get(), campo) == SQLITE_NULL)
            return std::nullopt;
        return std::string_view();
    }
    const auto bytes = static_cast<std::size_t>(sqlite3_column_bytes(m_consulta.get(), campo));
    return std::string_view(reinterpret_cast<const char *>(texto), bytes);
}

} // namespace banco
