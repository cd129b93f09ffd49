// A recordset that is read row by row and can be written: the calls, each refused once the dynaset is closed.
#include "Dynaset.h"

#include "DynasetImpl.h"
#include "Erros.h"

namespace plataforma {

namespace {

Dynaset::Impl &Aberto(const std::unique_ptr<Dynaset::Impl> &impl)
{
    if (!impl)
        throw RuntimeError(jet::ErrFechado, "O conjunto de registros já foi fechado.");
    return *impl;
}

} // namespace

Dynaset::Dynaset(std::unique_ptr<Impl> impl) : m_impl(std::move(impl)) {}

Dynaset::~Dynaset() = default;

bool Dynaset::BOF() const
{
    return Aberto(m_impl).EstaAntes();
}
bool Dynaset::AtEnd() const
{
    return Aberto(m_impl).EstaDepois();
}
bool Dynaset::HasRows() const
{
    return Aberto(m_impl).TemLinhas();
}
qint64 Dynaset::RecordCount() const
{
    return Aberto(m_impl).Conta();
}
QStringList Dynaset::FieldNames() const
{
    return Aberto(m_impl).Campos();
}

void Dynaset::MoveFirst()
{
    Aberto(m_impl).VaiParaPrimeira();
}
void Dynaset::MoveLast()
{
    Aberto(m_impl).VaiParaUltima();
}
void Dynaset::MoveNext()
{
    Aberto(m_impl).Avanca();
}
void Dynaset::MovePrevious()
{
    Aberto(m_impl).Recua();
}
void Dynaset::FindFirst(const QString &criterio)
{
    Aberto(m_impl).Procura(criterio);
}
bool Dynaset::NoMatch() const
{
    return Aberto(m_impl).SemPar();
}

QString Dynaset::Field(const QString &nome) const
{
    return Aberto(m_impl).Le(nome);
}
Rows Dynaset::GetRows(const QStringList &campos) const
{
    return Aberto(m_impl).LeTudo(campos);
}
void Dynaset::SetField(const QString &nome, const QString &valor)
{
    Aberto(m_impl).Poe(nome, valor);
}

void Dynaset::AddNew()
{
    Aberto(m_impl).IniciaInclusao();
}
void Dynaset::Edit()
{
    Aberto(m_impl).IniciaAlteracao();
}
void Dynaset::Update()
{
    Aberto(m_impl).Grava();
}
void Dynaset::Delete()
{
    Aberto(m_impl).Apaga();
}

void Dynaset::Close()
{
    Aberto(m_impl);
    m_impl.reset();
}

} // namespace plataforma
