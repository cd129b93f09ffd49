// The faults that the simulated device can be told to show.
#pragma once

#include <optional>
#include <QString>
#include <vector>

namespace simulador {

enum class TipoDeFalha {
    Nenhuma,
    SemDocumento, ///< result 20
    FimDePapel,   ///< result 21
    Silencio,     ///< nothing is done and nothing answered
    Lixo,         ///< nothing is done, rubbish is answered
    Queda,        ///< prints, then the line hangs up in the middle of the answer
    Lenta,        ///< answers late
    ImprimeEErra, ///< prints, then result 29
    SemFim,       ///< takes the order and prints, but never tells the result
    Nak,          ///< nothing is done, the frame counts as damaged
};

/// A fault in force. Of the line (silence, rubbish, hang-up, late, no end, damaged) it strikes every
/// operation; of the paper (no document, end of paper, prints and fails) only those that print or hold a
/// document.
struct Falha {
    TipoDeFalha tipo = TipoDeFalha::Nenhuma;
    int documentos = 0; ///< how many documents more; 0 = until changed
    /// One document has gone under the fault.
    void Gasta();
    bool operator==(const Falha &) const = default;
};

struct NomeDeFalha {
    TipoDeFalha tipo;
    QString nome;   ///< on the command line: "fim-de-papel"
    QString rotulo; ///< in the window: "Fim de papel"
};

/// All faults, `Nenhuma` first.
const std::vector<NomeDeFalha> &NomesDeFalhas();
/// "NOME" or "NOME:N", N from 1 to 9999; empty when it is neither.
std::optional<Falha> LeFalha(const QString &texto);
/// The reverse of LeFalha.
QString EscreveFalha(const Falha &falha);

} // namespace simulador
