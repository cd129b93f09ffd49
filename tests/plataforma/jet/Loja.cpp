// A store in a temporary folder for the tests.
#include "Loja.h"

#include <stdexcept>

namespace loja {

const char *const TABELAS = R"(
create table Bancos (Codigo TEXT, Nome TEXT, L1 TEXT, L2 TEXT, L3 TEXT, L4 TEXT, L5 TEXT,
  C1 TEXT, C2 TEXT, C3 TEXT, C4 TEXT, C5 TEXT, C6 TEXT, C7 TEXT, C8 TEXT);
create table Transferencia (Codigo TEXT, Nome TEXT, L1 TEXT, C1 TEXT);
create table Script (Codigo TEXT, Nome TEXT, l1 TEXT, c1 TEXT);
create table Favorecido (Codigo TEXT, Nome TEXT);
create table Cidade (Codigo TEXT, Nome TEXT);
create table Log ("Index" TEXT, Codigo TEXT, Banco TEXT, V_CH TEXT, Favor TEXT, Local TEXT, Data TEXT,
  NRCH TEXT, StCancel TEXT, Comentario TEXT, Comentario1 TEXT, Comentario2 TEXT);
)";

OutroPrograma::OutroPrograma(const QString &caminho)
{
    if (sqlite3_open(caminho.toUtf8().constData(), &m_db) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(m_db));
}

void OutroPrograma::Executa(const QString &sql) const
{
    if (sqlite3_exec(m_db, sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(m_db));
}

QString OutroPrograma::Valor(const QString &sql) const
{
    QString valor;
    const auto linha = [](void *saida, int, char **valores, char **) {
        *static_cast<QString *>(saida) = QString::fromUtf8(valores[0]);
        return 0;
    };
    if (sqlite3_exec(m_db, sql.toUtf8().constData(), linha, &valor, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(m_db));
    return valor;
}

Loja::Loja()
{
    Executa(TABELAS);
}

void Loja::SemeiaLog(int quantas) const
{
    const QString sql =
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < QUANTAS) "
        "insert into Log select printf('%010d', i), printf('%05d', i), '001', printf('%d,50', i), "
        "'Favorecido ' || i, 'Recife', '01/02/99', ' ', ' ', '', '', '' from n";
    Executa(QString(sql).replace("QUANTAS", QString::number(quantas)));
}

QString Loja::Conteudo() const
{
    const OutroPrograma outro(Caminho());
    QString tudo = outro.Valor("select group_concat(sql, ';') from sqlite_master");
    for (const char *tabela : {"Bancos", "Transferencia", "Script", "Favorecido", "Cidade", "Log"}) {
        const QString colunas = outro.Valor(
            QString("select group_concat('quote(\"' || name || '\")', ' || ') from pragma_table_info('%1')")
                .arg(tabela));
        tudo += '\n' + outro.Valor(QString("select group_concat(%2, ';') from %1").arg(tabela, colunas));
    }
    return tudo;
}

QStringList Coluna(plataforma::Dynaset &d, const QString &campo)
{
    QStringList valores;
    for (d.MoveFirst(); !d.AtEnd(); d.MoveNext())
        valores.append(d.Field(campo).isNull() ? "<NULL>" : d.Field(campo));
    return valores;
}

QStringList Coluna(const QString &caminho, const QString &consulta, const QString &campo)
{
    return Coluna(*plataforma::Database(caminho).OpenDynaset(consulta), campo);
}

} // namespace loja
