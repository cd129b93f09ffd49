// Dates read from texts: day first, strictly; two-digit years 00-29 are 20xx, 30-99 are 19xx.
#include "plataforma/basico/Data.h"

#include "plataforma/basico/RuntimeError.h"
#include "plataforma/basico/Texto.h"

#include <algorithm>
#include <optional>
#include <QStringView>

namespace plataforma {

namespace {

/// The number of a part of a date, none when it holds anything but digits or has another length.
std::optional<int> Parte(QStringView parte, qsizetype maximo)
{
    const auto digito = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    if (parte.isEmpty() || parte.size() > maximo || !std::all_of(parte.begin(), parte.end(), digito)) {
        return std::nullopt;
    }
    return parte.toInt();
}

/// The year of one, two or four digits; three are a slip of the keys, not a year.
std::optional<int> Ano(QStringView parte)
{
    const auto ano = Parte(parte, 4);
    if (!ano || parte.size() == 3) {
        return std::nullopt;
    }
    if (parte.size() == 4) {
        return ano;
    }
    return *ano + (*ano <= 29 ? 2000 : 1900);
}

QDate LeData(const QString &texto)
{
    const QString limpo = Trim(texto);
    const auto partes = QStringView(limpo).split(QLatin1Char('/'));
    if (partes.size() != 3) {
        return {};
    }
    const auto dia = Parte(partes[0], 2);
    const auto mes = Parte(partes[1], 2);
    const auto ano = Ano(partes[2]);
    return dia && mes && ano ? QDate(*ano, *mes, *dia) : QDate();
}

} // namespace

QDate CVDate(const QString &texto)
{
    const QDate data = LeData(texto);
    if (!data.isValid()) {
        throw RuntimeError(ErrTypeMismatch, QStringLiteral("\"%1\" não é uma data.").arg(texto));
    }
    return data;
}

bool IsDate(const QString &texto)
{
    return LeData(texto).isValid();
}

QString DateText(const QDate &data)
{
    return data.toString(QStringLiteral("dd/MM/yyyy"));
}

qint64 DateDiff(const QDate &de, const QDate &ate)
{
    return de.daysTo(ate);
}

} // namespace plataforma
