// See ConsultasDoLog.h.
#include "reports/ConsultasDoLog.h"

namespace reports {

namespace {

/// " And" or " Where", and the range of one field, its last end being the first one where it is empty.
QString Faixa(bool primeira, const QString &campo, const QString &funcao, const QString &ini,
              const QString &fim)
{
    const QString valor = funcao + QStringLiteral("('");
    return (primeira ? QStringLiteral(" Where (") : QStringLiteral(" And (")) + funcao + QLatin1Char('(') +
           campo + QStringLiteral(") between ") + valor + ini + QStringLiteral("') and ") + valor +
           (fim.isEmpty() ? ini : fim) + QStringLiteral("'))");
}

QString FaixaDeDatas(bool primeira, const QString &ini, const QString &fim)
{
    return Faixa(primeira, QStringLiteral("Data"), QStringLiteral("CVDate"), ini, fim);
}

QString FaixaDeValores(bool primeira, const QString &ini, const QString &fim)
{
    return Faixa(primeira, QStringLiteral("V_CH"), QStringLiteral("CDBL"), ini, fim);
}

// On purpose: no blank in front of the word, and the bank alone decides which word it is.
QString Ligacao(bool temBanco)
{
    return temBanco ? QStringLiteral("and (") : QStringLiteral("where (");
}

} // namespace

QString ConsultaDoFiltro(const CamposDoFiltro &campos)
{
    QString consulta = QStringLiteral("Select * From Log ");
    const bool temBanco = !campos.banco.isEmpty();
    int termos = temBanco ? 1 : 0;
    if (temBanco)
        consulta += QStringLiteral("Where (Banco='") + campos.banco + QStringLiteral("')");
    if (!campos.favor.isEmpty()) {
        consulta += Ligacao(temBanco) + QStringLiteral("Favor='") + campos.favor + QStringLiteral("')");
        ++termos;
    }
    if (!campos.local.isEmpty()) {
        consulta += Ligacao(temBanco) + QStringLiteral("Local='") + campos.local + QStringLiteral("')");
        ++termos;
    }
    if (!campos.dataIni.isEmpty()) {
        consulta += FaixaDeDatas(termos == 0, campos.dataIni, campos.dataFim);
        ++termos;
    }
    if (!campos.valorIni.isEmpty())
        consulta += FaixaDeValores(termos == 0, campos.valorIni, campos.valorFim);
    // On purpose: the comment asks after the bank only, and its "or" terms bind to the whole query.
    if (!campos.comentario.isEmpty()) {
        const QString fim = campos.comentario + QStringLiteral("*')");
        consulta += Ligacao(temBanco) + QStringLiteral("Comentario like '*") + fim +
                    QStringLiteral("or (Comentario1 like '*") + fim +
                    QStringLiteral("or (Comentario2 like '*") + fim;
    }
    return consulta;
}

QString ConsultaDaLista(const QString &banco, const QString &dataIni, const QString &dataFim,
                        const QString &valorIni, const QString &valorFim)
{
    QString consulta = QStringLiteral("Select * From Log");
    bool primeira = banco.isEmpty();
    if (!primeira)
        consulta += QStringLiteral(" Where (Banco='") + banco + QStringLiteral("')");
    if (!dataIni.isEmpty()) {
        consulta += FaixaDeDatas(primeira, dataIni, dataFim);
        primeira = false;
    }
    if (!valorIni.isEmpty())
        consulta += FaixaDeValores(primeira, valorIni, valorFim);
    return consulta;
}

} // namespace reports
