// Rules of the graphic adjustment of a bank: its eight fields on the picture, what a key does to one, and
// what goes back to the register.
#pragma once

#include "plataforma/basico/Teclas.h"
#include "registers/Grade.h"

#include <array>
#include <QString>

namespace registers {

class CaixasDoBanco;

enum CampoDoAjuste : int {
    AjusteValor,
    AjusteExtenso1,
    AjusteExtenso2,
    AjusteFavorecido,
    AjusteCidade,
    AjusteDia,
    AjusteMes,
    AjusteAno
};
inline constexpr int kCamposDoAjuste = 8;
inline constexpr int kCelulasDoAjuste = 13;

using LugaresDoAjuste = std::array<Lugar, kCamposDoAjuste>;
/// Texts of `Label2(0)` to `Label2(12)`: 0-4 lines, 5-9 columns, 10-12 columns of day, month and year.
using LeituraDoAjuste = std::array<QString, kCelulasDoAjuste>;

/// Cells of the read-out that belong to a field.
struct CelulasDoCampo {
    int linha;
    int coluna;
};

inline const QString kErroDoAjuste =
    QStringLiteral("Algum erro relacionado a posição dos campos foi detectado.\n"
                   "Verifique se os mesmos estão corretos, ou pressione a tecla Cancelar.");
inline const QString kTituloDeErroDoAjuste = QStringLiteral("Ajuste Gráfico Incorreto");

/// The text that stands in a field.
[[nodiscard]] const QString &AmostraDoCampo(int campo);
[[nodiscard]] CelulasDoCampo CelulasDe(int campo);

/// The fields where the buffer puts them: `linhas` holds `L1` to `L5` from 0 on, `colunas` `C1` to `C8`.
[[nodiscard]] LugaresDoAjuste ColocaCampos(const std::array<QString, 8> &linhas,
                                           const std::array<QString, 11> &colunas);
/// What a key does while a field is selected. @param tecla key code; any but an arrow moves nothing
/// @return whether the read-out is filled again: not after another key, nor when a line limit ended the key
bool AplicaTecla(LugaresDoAjuste &lugares, int campo, int tecla);
/// Takes a field as near to a place as arrow keys bring it.
void LevaCampo(LugaresDoAjuste &lugares, int campo, double esquerda, double topo);

[[nodiscard]] LeituraDoAjuste LeCampos(const LugaresDoAjuste &lugares);
/// Copies a read-out to the register, day, month and year as distances from the city.
void DevolveAsCaixas(const LeituraDoAjuste &leitura, CaixasDoBanco &caixas);

/// Whether amount, words, payee and city stand under each other, and city, day, month and year behind each
/// other.
[[nodiscard]] bool CamposEmOrdem(const LugaresDoAjuste &lugares);

} // namespace registers
