// See Grade.h.
#include "registers/Grade.h"

#include "plataforma/basico/Formato.h"
#include "plataforma/basico/Numero.h"

#include <algorithm>

namespace registers {

namespace {

constexpr double kMaiorNumero = 1000000;
static_assert(kRecuoDaData == kUnidadesPorLinha - kOrigemNaIda);

} // namespace

double EsquerdaDaColuna(double coluna)
{
    return kOrigemNaIda + (coluna - 1) * kUnidadesPorColuna;
}

double TopoDaLinha(double linha)
{
    return kOrigemNaIda + (linha - 1) * kUnidadesPorLinha;
}

// On purpose with the height of a line in it: the read-out of these fields counts one column more.
double EsquerdaDaParteDaData(double esquerdaDaCidade, double distancia)
{
    return esquerdaDaCidade + distancia * kUnidadesPorColuna + kOrigemNaIda - kUnidadesPorLinha;
}

double ColunasAntes(double esquerda)
{
    return (esquerda - kOrigemNaVolta) / kUnidadesPorColuna;
}

double LinhasAcima(double topo)
{
    return (topo - kOrigemNaVolta) / kUnidadesPorLinha;
}

QString LeColuna(double esquerda)
{
    return EmTresAlgarismos(ColunasAntes(esquerda) + 1);
}

QString LeLinha(double topo)
{
    return EmTresAlgarismos(LinhasAcima(topo) + 1);
}

QString LeColunaDaParteDaData(double esquerda)
{
    return EmTresAlgarismos(ColunasAntes(esquerda) + 2);
}

QString EmTresAlgarismos(double numero)
{
    return plataforma::Format(numero, QStringLiteral("000"));
}

double NumeroDoLeiaute(const QString &texto)
{
    return std::clamp(plataforma::Val(texto), -kMaiorNumero, kMaiorNumero);
}

} // namespace registers
