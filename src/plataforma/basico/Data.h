// Dates read from texts: day first, strictly; two-digit years 00-29 are 20xx, 30-99 are 19xx.
#pragma once

#include <QDate>
#include <QString>

namespace plataforma {

/// The date written as day, month and year of 1 or 2, 1 or 2, and 1, 2 or 4 digits, parted by "/".
/// @throws RuntimeError 13 when the text is no date
QDate CVDate(const QString &texto);
bool IsDate(const QString &texto);
/// The date in the machine's short form, which is always "dd/mm/yyyy" here.
QString DateText(const QDate &data);
/// Whole days from `de` to `ate`; negative when `ate` is earlier.
qint64 DateDiff(const QDate &de, const QDate &ate);

} // namespace plataforma
