// Calls of the shared part of the device link, with Qt's texts.
#include "Palavras.h"

#include "qx7032/Extenso.h"
#include "qx7032/Pagina850.h"
#include "qx7032/Windows1252.h"

namespace simulador {

QString TextoDe850(const QByteArray &bytes)
{
    return QString::fromStdString(qx7032::Utf8De850(bytes.toStdString()));
}

QString TextoDe1252(const QByteArray &bytes)
{
    return QString::fromStdString(qx7032::Utf8De1252(bytes.toStdString()));
}

std::optional<QString> PalavrasDe(std::int64_t centavos, const QString &singular, const QString &plural)
{
    const std::string palavras = qx7032::PorExtenso(centavos, singular.toStdString(), plural.toStdString());
    if (palavras.empty())
        return std::nullopt;
    return QString::fromStdString(palavras);
}

} // namespace simulador
