// Rules of the date fields; texts are read by position and may look odd afterwards.
#include "nucleo/DatasDeEntrada.h"

#include "plataforma/basico/Data.h"
#include "plataforma/basico/Formato.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/Texto.h"
#include <array>
#include <cmath>

namespace nucleo {

namespace {

using plataforma::Format;
using plataforma::Left;
using plataforma::Len;
using plataforma::Mid;
using plataforma::Right;
using plataforma::Val;

/// Day, month and year run together ("ddmmyyyy") where both bars are there. With one bar only, what follows
/// it.
QString JuntaPartes(const QString &texto)
{
    const qsizetype primeira = texto.indexOf(QLatin1Char('/'));
    if (primeira < 0)
        return texto;
    const QString dia = Format(Val(Left(texto, primeira)), QStringLiteral("00"));
    const QString resto = Mid(texto, primeira + 2);
    const qsizetype segunda = resto.indexOf(QLatin1Char('/'));
    if (segunda < 0)
        return resto;
    const QString mes = Format(Val(Left(resto, segunda)), QStringLiteral("00"));
    const QString ano = Format(Val(Mid(resto, segunda + 2)), QStringLiteral("0000"));
    return dia + mes + ano;
}

double UltimoDiaDeFevereiro(double ano)
{
    return std::fmod(std::nearbyint(ano), 4.0) == 0.0 ? 29 : 28;
}

/// 0 for what is no month.
double UltimoDia(double mes, double ano)
{
    if (mes == 2)
        return UltimoDiaDeFevereiro(ano);
    if (mes == 4 || mes == 6 || mes == 9 || mes == 11)
        return 30;
    const bool longo = mes == 1 || mes == 3 || mes == 5 || mes == 7 || mes == 8 || mes == 10 || mes == 12;
    return longo ? 31 : 0;
}

} // namespace

QString AplicaRegraDasBarras(const QString &texto)
{
    QString partes = JuntaPartes(texto);
    // On purpose: the year is taken from the typed text at its seventh character, so 01/02/2003 gives
    // year 20.
    if (Len(partes) >= 8)
        partes = Left(partes, 4) + Mid(texto, 7, 2);
    // On purpose: up to 6 characters stay as typed, bars included.
    return Len(texto) > 6 ? partes : texto;
}

bool DataValida(const QString &texto)
{
    const double dia = Val(Mid(texto, 1, 2));
    const double mes = Val(Mid(texto, 3, 2));
    const double ano = Val(Mid(texto, 5, 4));
    return dia >= 1 && dia <= UltimoDia(mes, ano);
}

QString HojeParaCampo(const QDate &hoje)
{
    const QString data = plataforma::DateText(hoje);
    return Left(data, 2) + Mid(data, 4, 2) + Right(data, 2);
}

QString MesPorNumero(double numero)
{
    static const std::array<QString, 12> kMeses{
        QStringLiteral("Janeiro"), QStringLiteral("Fevereiro"), QStringLiteral("Março"),
        QStringLiteral("Abril"),   QStringLiteral("Maio"),      QStringLiteral("Junho"),
        QStringLiteral("Julho"),   QStringLiteral("Agosto"),    QStringLiteral("Setembro"),
        QStringLiteral("Outubro"), QStringLiteral("Novembro"),  QStringLiteral("Dezembro")};
    for (size_t i = 0; i < kMeses.size(); ++i) {
        if (numero == static_cast<double>(i + 1))
            return kMeses.at(i);
    }
    return QStringLiteral("ERRO");
}

} // namespace nucleo
