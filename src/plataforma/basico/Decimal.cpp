// A double as the decimal digits that count: the 15 significant ones, and their rounding.
#include "plataforma/basico/Decimal.h"

#include "plataforma/basico/RuntimeError.h"

#include <array>
#include <charconv>
#include <cmath>

namespace plataforma {

namespace {

constexpr int Significativos = 15;

void CortaZerosFinais(Decimal &numero)
{
    numero.digitos.erase(numero.digitos.find_last_not_of('0') + 1);
    if (numero.Zero()) {
        numero.ponto = 0;
    }
}

/// Adds one to the last digit; a carry out of the first one moves the decimal sign.
void SomaUmNoFim(Decimal &numero)
{
    for (auto digito = numero.digitos.rbegin(); digito != numero.digitos.rend(); ++digito) {
        if (*digito != '9') {
            ++*digito;
            return;
        }
        *digito = '0';
    }
    numero.digitos.insert(0, 1, '1');
    ++numero.ponto;
}

QString TextoCientifico(const Decimal &numero)
{
    QString texto = QString(QLatin1Char(numero.digitos[0]));
    if (numero.digitos.size() > 1) {
        texto += QLatin1Char(',') + QString::fromStdString(numero.digitos.substr(1));
    }
    const int expoente = numero.ponto - 1;
    texto += expoente < 0 ? QStringLiteral("E-") : QStringLiteral("E+");
    return texto + QString::number(std::abs(expoente)).rightJustified(2, QLatin1Char('0'));
}

QString TextoCorrido(const Decimal &numero)
{
    const std::string inteiros = numero.Inteiros();
    QString texto = inteiros.empty() ? QStringLiteral("0") : QString::fromStdString(inteiros);
    const int casas = static_cast<int>(numero.digitos.size()) - numero.ponto;
    if (casas > 0) {
        texto += QLatin1Char(',');
    }
    for (int casa = 1; casa <= casas; ++casa) {
        texto += QLatin1Char(numero.Casa(casa));
    }
    return texto;
}

} // namespace

std::string Decimal::Inteiros() const
{
    if (ponto <= 0 || Zero()) {
        return {};
    }
    std::string inteiros = digitos.substr(0, static_cast<std::size_t>(ponto));
    inteiros.resize(static_cast<std::size_t>(ponto), '0');
    return inteiros;
}

char Decimal::Casa(int casa) const
{
    const int lugar = ponto + casa - 1;
    return lugar >= 0 && lugar < static_cast<int>(digitos.size()) ? digitos[static_cast<std::size_t>(lugar)]
                                                                  : '0';
}

Decimal DecimalDe(double valor)
{
    if (!std::isfinite(valor)) {
        throw RuntimeError(ErrInvalidCall, QStringLiteral("O resultado da conta não é um número."));
    }
    Decimal numero;
    if (valor == 0) {
        return numero;
    }
    std::array<char, 32> texto{};
    const auto fim = std::to_chars(texto.data(), texto.data() + texto.size(), std::fabs(valor),
                                   std::chars_format::scientific, Significativos - 1)
                         .ptr;
    const std::string escrito(texto.data(), fim); // "d.dddddddddddddde+xx"
    const auto e = escrito.find('e');
    numero.digitos = escrito[0] + escrito.substr(2, e - 2);
    numero.ponto = std::stoi(escrito.substr(e + 1)) + 1;
    CortaZerosFinais(numero);
    numero.negativo = valor < 0;
    return numero;
}

Decimal Arredonda(const Decimal &numero, int casas)
{
    const int mantidos = numero.ponto + casas;
    if (mantidos >= static_cast<int>(numero.digitos.size())) {
        return numero;
    }
    Decimal redondo;
    redondo.negativo = numero.negativo;
    if (mantidos < 0) {
        return redondo;
    }
    const auto corte = static_cast<std::size_t>(mantidos);
    redondo.ponto = numero.ponto;
    redondo.digitos = numero.digitos.substr(0, corte);
    if (numero.digitos[corte] >= '5') {
        SomaUmNoFim(redondo);
    }
    CortaZerosFinais(redondo);
    return redondo;
}

QString TextoDoNumero(double valor)
{
    const Decimal numero = DecimalDe(valor);
    if (numero.Zero()) {
        return QStringLiteral("0");
    }
    const QString sinal = numero.negativo ? QStringLiteral("-") : QString();
    const bool corrido = numero.ponto > -4 && numero.ponto <= Significativos;
    return sinal + (corrido ? TextoCorrido(numero) : TextoCientifico(numero));
}

} // namespace plataforma
