// Amounts and dates as the device reads and prints them.
#include <QRegularExpression>
#include <QStringList>

#include "Leiaute.h"

namespace simulador {

std::optional<std::int64_t> CentavosDe(const QString &valor)
{
    static const QRegularExpression forma(
        QStringLiteral("\\A([0-9]{1,9}|[0-9]{1,3}(?:\\.[0-9]{3}){1,2})(?:,([0-9]{0,2}))?\\z"));
    const QRegularExpressionMatch achado = forma.match(valor.trimmed());
    if (!achado.hasMatch())
        return std::nullopt;
    const QString inteiros = achado.captured(1).remove(QLatin1Char('.'));
    const QString centavos = achado.captured(2).leftJustified(2, QLatin1Char('0'));
    return inteiros.toLongLong() * 100 + centavos.toLongLong();
}

QString ValorImpresso(std::int64_t centavos)
{
    QString inteiros = QString::number(centavos / 100);
    for (qsizetype i = inteiros.size() - 3; i > 0; i -= 3)
        inteiros.insert(i, QLatin1Char('.'));
    return QStringLiteral("#%1,%2#").arg(inteiros).arg(centavos % 100, 2, 10, QLatin1Char('0'));
}

/// Day, month and year as digits, or an empty list.
static QStringList PartesDaData(const QString &texto)
{
    static const QRegularExpression comBarras(
        QStringLiteral("\\A([0-9]{1,2})/+([0-9]{1,2})/+([0-9]{2}|[0-9]{4})\\z"));
    static const QRegularExpression semBarras(
        QStringLiteral("\\A([0-9]{2})([0-9]{2})([0-9]{2}|[0-9]{4})\\z"));
    for (const QRegularExpression &forma : {comBarras, semBarras}) {
        const QRegularExpressionMatch achado = forma.match(texto);
        if (achado.hasMatch())
            return achado.capturedTexts().mid(1);
    }
    return {};
}

std::optional<QDate> DataDe(const QString &texto)
{
    const QStringList partes = PartesDaData(texto.trimmed());
    if (partes.isEmpty())
        return std::nullopt;
    int ano = partes.at(2).toInt();
    if (partes.at(2).size() == 2)
        ano += ano < 30 ? 2000 : 1900;
    const QDate data(ano, partes.at(1).toInt(), partes.at(0).toInt());
    if (!data.isValid())
        return std::nullopt;
    return data;
}

QString NomeDoMes(int mes)
{
    static const QStringList nomes = {"Janeiro", "Fevereiro", "Março",    "Abril",   "Maio",     "Junho",
                                      "Julho",   "Agosto",    "Setembro", "Outubro", "Novembro", "Dezembro"};
    return nomes.at(mes - 1);
}

QString AnoImpresso(int ano, int digitos)
{
    // On purpose: the device prints its digits whatever the form has before them, so that 2026 on a "199_"
    // form reads 1996.
    return QStringLiteral("%1").arg(ano, 4, 10, QLatin1Char('0')).right(digitos);
}

QString PrefixoDoAno(int digitos)
{
    if (digitos == 1)
        return QStringLiteral("199");
    return digitos == 2 ? QStringLiteral("20") : QString();
}

} // namespace simulador
