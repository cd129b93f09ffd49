// A double as the decimal digits that count: the 15 significant ones, and their rounding.
#pragma once

#include <QString>
#include <string>

namespace plataforma {

/// The value 0,DDD... x 10^ponto. No leading zero among the digits; zero has none at all.
struct Decimal {
    std::string digitos;
    int ponto = 0; ///< how many digits stand before the decimal sign; may be negative
    bool negativo = false;

    [[nodiscard]] bool Zero() const { return digitos.empty(); }
    /// The digits before the decimal sign, empty when there are none but zeros.
    [[nodiscard]] std::string Inteiros() const;
    /// The digit at place `casa` behind the decimal sign, counted from 1.
    [[nodiscard]] char Casa(int casa) const;
};

/// The 15 significant digits of a number. @throws RuntimeError 5 when it is infinite or no number
Decimal DecimalDe(double valor);
/// Rounded half away from zero to `casas` places behind the decimal sign.
Decimal Arredonda(const Decimal &numero, int casas);
/// The shortest usual text of a number, with the decimal comma: "1234,5", "1E+15".
QString TextoDoNumero(double valor);

} // namespace plataforma
