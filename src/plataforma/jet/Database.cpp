// The store: opening the file, and opening dynasets over it.
#include "Database.h"

#include "Comando.h"
#include "Conexao.h"
#include "Dynaset.h"
#include "DynasetImpl.h"
#include <sqlite3.h>

namespace plataforma {

Database::Database(const QString &caminho) : m_conexao(std::make_shared<Connection>(caminho)) {}

Database::~Database() = default;

std::unique_ptr<Dynaset> Database::OpenDynaset(const QString &consulta) const
{
    const auto busca = [this](const QString &nome) { return m_conexao->LeTabela(nome); };
    return std::make_unique<Dynaset>(
        std::make_unique<Dynaset::Impl>(m_conexao, jet::LeConsulta(consulta, busca)));
}

void Database::BeginTrans() const
{
    // A lock for writing is no reading command to the engine, unlike a plain beginning.
    const jet::ModoTemporario escrita(*m_conexao, Connection::Modo::Escrita);
    jet::Comando(*m_conexao, "begin immediate").Passo();
    ++m_conexao->escritas; // rows read before others were kept out may be old
}

void Database::CommitTrans() const
{
    const jet::ModoTemporario escrita(*m_conexao, Connection::Modo::Escrita);
    try {
        jet::Comando(*m_conexao, "commit").Passo();
    } catch (...) {
        Rollback();
        throw;
    }
}

void Database::Rollback() const noexcept
{
    if (sqlite3_get_autocommit(m_conexao->Motor()) != 0)
        return;
    sqlite3_exec(m_conexao->Motor(), "rollback", nullptr, nullptr, nullptr);
    ++m_conexao->escritas; // the rows in hand may be others now
}

} // namespace plataforma
