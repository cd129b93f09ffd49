// How a failing test shows texts of Qt.
#pragma once

#include <ostream>
#include <QByteArray>
#include <QString>

inline void PrintTo(const QString &texto, std::ostream *os)
{
    *os << '"' << texto.toUtf8().constData() << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *os)
{
    *os << '"' << bytes.toPercentEncoding(" ").constData() << '"';
}
