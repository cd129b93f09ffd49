// The places of the three extra fields on the front: where they are saved and what may be saved.
#pragma once

#include "cheques/RegrasDaEntrada.h"

#include <array>
#include <cstdint>
#include <optional>
#include <QString>

namespace nucleo {
class QX_INI;
}

namespace cheques {

/// Section of the settings that holds texts and places of the front.
inline const QString kFrenteInfo = QStringLiteral("FrenteInfo");
/// Lines of the form and its columns, both counted from 1.
inline constexpr int kUltimaLinha = 20;
inline constexpr int kUltimaColuna = 120;
inline constexpr int kSemPosicao = -2; ///< a position key that is not in the settings

/// The two boxes of a place, and the two keys of each field.
enum LadoDaPosicao : int { LadoLinha = 0, LadoColuna = 1 };

/// Key of the line or column of field `n` (0 to 2): "Campo00Lin", "Campo00Col".
QString ChaveDaPosicao(int n, int lado);
/// The number in a position key; a last character of code below "0" is dropped first. kSemPosicao when it is
/// missing.
int PosicaoDaChave(const QString &valor);
/// Line or column of field `n` as it is saved; kSemPosicao when it is not.
int LePosicao(const nucleo::QX_INI &ini, int n, int lado);

/// A place as the screen keeps it: 0 for none.
struct PosicaoExtra {
    std::int16_t linha = 0;
    std::int16_t coluna = 0;
};
/// The place of field `n`; a key that is missing counts as 0.
PosicaoExtra LePosicaoExtra(const nucleo::QX_INI &ini, int n);

/// What the two boxes show of a place: both numbers, or nothing when either is 0.
std::array<QString, 2> TextosDaPosicao(const PosicaoExtra &posicao);
/// The text that the length rule leaves of an over-long one (2 digits of a line, 3 of a column), nothing when
/// it is not over-long.
std::optional<QString> CortaPosicao(int lado, const QString &texto);
/// Whether the two texts may be saved: both filled, line at most 20, column at most 120.
bool PosicaoAceita(const QString &linha, const QString &coluna);

} // namespace cheques
