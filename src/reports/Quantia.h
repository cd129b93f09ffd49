// Amounts of the log read and written many times over: the answers of CDbl and Format, without their cost.
#pragma once

#include <QString>
#include <QStringView>

namespace reports {

/// IsNumeric of the text.
bool EQuantia(QStringView texto);
/// CDbl of the text. @throws RuntimeError 13 when it is no number
double LeQuantia(QStringView texto);

/// Format of the amount under "#,###,###,##0.00", which is its text under every pattern of the reports that
/// groups by three and shows two decimals. @throws RuntimeError 5 when it is infinite or none
QString EscreveQuantia(double valor);

} // namespace reports
