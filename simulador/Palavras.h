// Texts of the device as QString: code pages and the amount in words.
#pragma once

#include <cstdint>
#include <optional>
#include <QByteArray>
#include <QString>

namespace simulador {

/// The text of bytes in code page 850.
QString TextoDe850(const QByteArray &bytes);
/// The text of bytes in Windows-1252.
QString TextoDe1252(const QByteArray &bytes);
/// The words of an amount in cents; empty when it has none or the data of the numbers is missing.
std::optional<QString> PalavrasDe(std::int64_t centavos, const QString &singular, const QString &plural);

} // namespace simulador
