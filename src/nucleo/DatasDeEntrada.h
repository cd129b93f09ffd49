// Dates as they are typed: normalising, judging, today, and month names.
#pragma once

#include <QDate>
#include <QString>

namespace nucleo {

/// What a typed date becomes before it is judged: "ddmmyy" where the text has more than 6 characters, else
/// the text as it stands. Built for texts of 8 characters; in longer ones the year may come out wrong.
QString AplicaRegraDasBarras(const QString &texto);

/// Whether a text without bars, read by position ("ddmmyy"), is a day of the calendar. A year divisible by 4,
/// and year 0, has 29 February.
bool DataValida(const QString &texto);

/// Today as a date field takes it: "ddmmyy".
QString HojeParaCampo(const QDate &hoje);

/// "Janeiro" to "Dezembro"; "ERRO" for any number but 1 to 12.
QString MesPorNumero(double numero);

} // namespace nucleo
