// A query of the dialect read into its parts, ready to be put together as SQL.
#include "Consulta.h"

#include "Expressao.h"

namespace plataforma::jet {

namespace {

bool ENomeSozinho(Leitor leitor)
{
    const Palavra::Tipo tipo = leitor.Atual().tipo;
    leitor.Avanca();
    return leitor.NoFim() && (tipo == Palavra::Nome || tipo == Palavra::NomeEntreColchetes);
}

QList<CampoDaConsulta> TodosOsCampos(const Tabela &tabela)
{
    QList<CampoDaConsulta> campos;
    for (qsizetype i = 0; i < tabela.colunas.size(); ++i)
        campos.append({tabela.colunas[i].nome, i});
    return campos;
}

// Passes over the list of fields, which can only be read once the table is known.
void PulaCampos(Leitor &leitor)
{
    while (!leitor.Ve("from")) {
        if (leitor.NoFim())
            leitor.Exige("from");
        leitor.Avanca();
    }
}

bool AceitaTodos(Leitor &leitor)
{
    if (leitor.Aceita("*"))
        return true;
    Leitor adiante = leitor;
    adiante.Avanca();
    if (!adiante.Aceita(".") || !adiante.Aceita("*"))
        return false;
    leitor.ExigeNome();
    leitor.Exige(".");
    leitor.Exige("*");
    return true;
}

QList<CampoDaConsulta> LeCampos(Leitor &leitor, const Tabela &tabela, const QString &apelido)
{
    QList<CampoDaConsulta> campos;
    do {
        if (AceitaTodos(leitor)) {
            campos += TodosOsCampos(tabela);
            continue;
        }
        const qsizetype coluna = Expressao(leitor, tabela, apelido).Campo();
        const QString nome = leitor.Aceita("as") ? leitor.ExigeNome() : tabela.colunas[coluna].nome;
        campos.append({nome, coluna});
    } while (leitor.Aceita(","));
    if (!leitor.Ve("from"))
        leitor.Recusa();
    return campos;
}

QString LeOrdem(Leitor &leitor, const Tabela &tabela, const QString &apelido)
{
    QString ordem;
    do {
        ordem += (ordem.isEmpty() ? "" : ", ") + Expressao(leitor, tabela, apelido).Ordem();
        if (leitor.Aceita("desc"))
            ordem += " desc";
        else
            leitor.Aceita("asc");
    } while (leitor.Aceita(","));
    return ordem;
}

} // namespace

Consulta LeConsulta(const QString &texto, const BuscaTabela &busca)
{
    Leitor leitor(texto);
    Consulta consulta;
    if (ENomeSozinho(leitor)) {
        consulta.tabela = busca(leitor.Atual().texto);
        consulta.campos = TodosOsCampos(consulta.tabela);
        return consulta;
    }
    leitor.Exige("select");
    Leitor campos = leitor;
    PulaCampos(leitor);
    leitor.Exige("from");
    consulta.tabela = busca(leitor.ExigeNome());
    QString apelido;
    if (leitor.Aceita("as") || !(leitor.NoFim() || leitor.Ve("where") || leitor.Ve("order")))
        apelido = leitor.ExigeNome();
    consulta.campos = LeCampos(campos, consulta.tabela, apelido);
    if (leitor.Aceita("where"))
        consulta.condicao = Expressao(leitor, consulta.tabela, apelido).Condicao();
    if (leitor.Aceita("order")) {
        leitor.Exige("by");
        consulta.ordem = LeOrdem(leitor, consulta.tabela, apelido);
    }
    if (!leitor.NoFim())
        leitor.Recusa();
    return consulta;
}

QString LeCriterio(const QString &texto, const Tabela &tabela)
{
    Leitor leitor(texto);
    const QString condicao = Expressao(leitor, tabela, {}).Condicao();
    if (!leitor.NoFim() || !leitor.Atual().texto.isEmpty())
        leitor.Recusa("o critério é uma condição só.");
    return condicao;
}

} // namespace plataforma::jet
