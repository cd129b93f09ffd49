// The thirteen numbers of a bank's layout, and the places on the form that they mean.
#pragma once

#include <array>
#include <optional>
#include <QString>

#include "Documento.h"

namespace simulador {

/// Five lines (amount, words 1, words 2, payee, city and date) and eight columns (the same five, then day,
/// month and year as distances from the city's column). Kept as received, even where they lie off the form.
struct Posicoes {
    std::array<int, 5> linhas{};
    std::array<int, 8> colunas{};
    bool operator==(const Posicoes &) const = default;
};

/// Reads "01,05,07,10,13,92,17,09,11,50,31,40,65". Empty unless there are exactly thirteen whole numbers,
/// each from -9999 to 9999; blanks around a number do not count.
std::optional<Posicoes> LePosicoes(const QString &texto);
/// The thirteen numbers as the settings file writes them: two digits at least.
QString EscrevePosicoes(const Posicoes &posicoes);
/// The place of each field, by Campo. A number off the form is brought to its nearest line or column.
std::array<Lugar, kCamposDoBanco> LugaresDe(const Posicoes &posicoes);

} // namespace simulador
