// The grid of the layouts on the picture: columns and lines become positions in units, and are read back.
#pragma once

#include <QString>

namespace registers {

inline constexpr double kUnidadesPorColuna = 68;
inline constexpr double kUnidadesPorLinha = 188;
/// Where column 1 and line 1 begin. On purpose not the same both ways: the one unit between them is lost in
/// the rounding, and keeps a field's columns and lines a little below the whole number.
inline constexpr double kOrigemNaIda = 119;
inline constexpr double kOrigemNaVolta = 120;
/// A part of the date stands so much to the left of the columns that it prints in.
inline constexpr double kRecuoDaData = 69;

/// Place of a field on the picture, in units from the upper left corner.
struct Lugar {
    double esquerda = 0;
    double topo = 0;
    double largura = 0; ///< only a hint of the room on the paper: never read back, and may fall below 0

    friend bool operator==(const Lugar &, const Lugar &) = default;
};

[[nodiscard]] double EsquerdaDaColuna(double coluna);
[[nodiscard]] double TopoDaLinha(double linha);
/// Left of the day, month or year, which are kept as columns behind the city's.
[[nodiscard]] double EsquerdaDaParteDaData(double esquerdaDaCidade, double distancia);

/// Columns to the left of a position, and lines above it, as the limits compare them: not rounded.
[[nodiscard]] double ColunasAntes(double esquerda);
[[nodiscard]] double LinhasAcima(double topo);

/// The read-out: the column or line of a position, in format "000".
[[nodiscard]] QString LeColuna(double esquerda);
[[nodiscard]] QString LeLinha(double topo);
[[nodiscard]] QString LeColunaDaParteDaData(double esquerda);

/// A number of a layout in format "000": "007", "120", "-003".
[[nodiscard]] QString EmTresAlgarismos(double numero);
/// The number of a layout's text; 0 when it is none. One beyond a million is taken as a million.
[[nodiscard]] double NumeroDoLeiaute(const QString &texto);

} // namespace registers
