// Rules of the options screen: what a box may hold, and what confirming writes.
#pragma once

#include <array>
#include <QString>
#include <utility>
#include <vector>

namespace nucleo {
class Sistema;
}

namespace housekeeping {

inline constexpr int kPrazosDasOpcoes = 3; ///< Text01: cheques, copies (days), cheques a page
inline constexpr int kMenorOpcao = 1;
inline constexpr int kMaiorOpcao = 3650;

/// What leaving a box makes of its text: its number (`Val`), held between 1 and 3650.
int OpcaoAoSair(const QString &texto);

/// The screen as it stands when it is confirmed.
struct OpcoesNaTela {
    std::array<QString, kPrazosDasOpcoes> textos; ///< Text01
    bool impressaoInvertida = false;              ///< CheckImpInv
    bool numeroObrigatorio = false;               ///< CheckUsarNum
};

/// Keys of section `Opcoes` and their new values, in the order in which they are written: a box only when it
/// differs from the number in memory, both check boxes always.
std::vector<std::pair<QString, QString>> ChavesAGravar(const OpcoesNaTela &tela,
                                                       const nucleo::Sistema &sistema);
/// The screen as it opens: the variables in memory.
OpcoesNaTela OpcoesEmMemoria(const nucleo::Sistema &sistema);
/// Takes the screen into the variables: a box only when it differs.
void TomaOpcoes(const OpcoesNaTela &tela, nucleo::Sistema &sistema);

} // namespace housekeeping
