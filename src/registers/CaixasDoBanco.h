// The boxes of the bank register, as the graphic adjustment sees them.
#pragma once

#include <QString>

namespace registers {

/// Where each of them stands.
inline constexpr int kCaixaDoCodigo = 0;
inline constexpr int kCaixaDoNome = 1;
inline constexpr int kPrimeiraLinha = 2;  ///< five lines from here
inline constexpr int kPrimeiraColuna = 7; ///< five columns from here, and the three distances behind them
inline constexpr int kCaixaDoDia = 12;
inline constexpr int kCaixasDoBanco = 15;

/// Boxes `Text1(0)` to `Text1(14)`: 0 number, 1 name, 2-6 lines, 7-11 columns, 12-14 distances of day, month
/// and year from the city's column.
class CaixasDoBanco {
public:
    virtual ~CaixasDoBanco() = default;
    [[nodiscard]] virtual QString Caixa(int indice) const = 0;
    virtual void PoeCaixa(int indice, const QString &texto) = 0;
};

} // namespace registers
