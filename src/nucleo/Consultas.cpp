// See Consultas.h. The texts go to the query engine as they stand; what is typed is not quoted.
#include "nucleo/Consultas.h"

#include "plataforma/basico/Numero.h"

namespace nucleo {

namespace {

QString NomeDaTabela(int tabela)
{
    switch (tabela) {
    case SelCidade:
        return QStringLiteral("Cidade");
    case SelBancos:
        return QStringLiteral("Bancos");
    case SelLog:
        return QStringLiteral("Log");
    case SelTransferencia:
        return QStringLiteral("Transferencia");
    case SelScript:
        return QStringLiteral("Script");
    default:
        return QStringLiteral("Favorecido");
    }
}

} // namespace

int TabelaDaBusca(int tabela)
{
    // On purpose: 9, the copy layouts elsewhere, means the payees here.
    return tabela == SelScript ? SelFavorecido : tabela;
}

QString ConsultaPorCodigo(const QString &chave, int tabela)
{
    const QString nome = NomeDaTabela(TabelaDaBusca(tabela));
    QString consulta = QStringLiteral("Select * From ") + nome;
    if (!chave.isEmpty())
        consulta +=
            (tabela == SelLog ? QStringLiteral(" Where (Index='") : QStringLiteral(" Where (Codigo='")) +
            chave + QStringLiteral("')");
    return consulta;
}

QString ConsultaDoFiltro(const QString &texto, int tabela)
{
    QString consulta = QStringLiteral("Select * From ") + NomeDaTabela(tabela);
    if (texto.isEmpty())
        return consulta;
    const QString campo = tabela == SelLog               ? QStringLiteral("Banco")
                          : plataforma::IsNumeric(texto) ? QStringLiteral("Codigo")
                                                         : QStringLiteral("Nome");
    return consulta + QStringLiteral(" Where (Left(") + campo + QLatin1Char(',') +
           QString::number(texto.size()) + QStringLiteral(")='") + texto + QStringLiteral("')") +
           QStringLiteral(" Order by ") + campo;
}

QString ConsultaDaPesquisa(const QString &texto, int tabela)
{
    QString consulta = QStringLiteral("Select * From ") + NomeDaTabela(tabela);
    if (texto.isEmpty())
        return consulta;
    const QString campo = plataforma::IsNumeric(texto) ? QStringLiteral("Codigo") : QStringLiteral("Nome");
    return consulta + QStringLiteral(" Where ") + campo + QStringLiteral(" Like ('") + texto +
           QStringLiteral("*')") + QStringLiteral(" Order by ") + campo;
}

} // namespace nucleo
