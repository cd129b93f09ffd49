// The thirteen numbers that place a bank's printed fields, as the store and QX70.INI hold them.
#include "Leiaute.h"

#include "plataforma/basico/Formato.h"
#include "plataforma/basico/Texto.h"

#include <QStringList>

namespace banco {

std::string CampoDoLeiaute(int numero)
{
    return plataforma::Format(static_cast<double>(numero), QStringLiteral("000")).toStdString();
}

QString TextoDoFormato(const Leiaute &leiaute, const QString &nome)
{
    QStringList numeros;
    for (const int numero : leiaute)
        numeros.append(plataforma::Format(static_cast<double>(numero), QStringLiteral("00")));
    return numeros.join(QLatin1Char(',')) + QStringLiteral("    ; ") + plataforma::Left(nome, 20);
}

} // namespace banco
