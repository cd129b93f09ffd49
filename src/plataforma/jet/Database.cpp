// The store: opening the file, and opening dynasets over it.
#include "Database.h"

#include "Conexao.h"
#include "Dynaset.h"
#include "DynasetImpl.h"

namespace plataforma {

Database::Database(const QString &caminho) : m_conexao(std::make_shared<Connection>(caminho)) {}

Database::~Database() = default;

std::unique_ptr<Dynaset> Database::OpenDynaset(const QString &consulta) const
{
    const auto busca = [this](const QString &nome) { return m_conexao->LeTabela(nome); };
    return std::make_unique<Dynaset>(
        std::make_unique<Dynaset::Impl>(m_conexao, jet::LeConsulta(consulta, busca)));
}

} // namespace plataforma
