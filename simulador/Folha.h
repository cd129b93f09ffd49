// A sheet being filled: the bytes of free texts and copy lines become lines.
#pragma once

#include <optional>
#include <QByteArray>
#include <vector>

#include "Documento.h"

namespace simulador {

/// Columns of a sheet in mode 1, 2 or 3: 136, 96, 80; empty for any other mode.
std::optional<int> LarguraDoModo(int modo);

/// The printing state of free texts, and the sheets that they fill. The texts are in code page 850. LF ends a
/// line, FF the sheet; a line longer than its width goes on in the next one. CR and other control bytes print
/// nothing. ESC @ ends the line begun and brings mode 3, no emphasis and upright printing back; ESC I turns
/// upside-down printing on and off; any other byte behind ESC is skipped.
class Folha {
public:
    /// A free text in a mode. An empty one only sets the mode, which holds for what follows. With emphasis
    /// the text ends its last line itself.
    /// @returns false, with nothing done, for an unknown mode
    bool Acrescenta(const QByteArray &texto, int modo, bool enfase);
    /// A copy line or a part of one, in the mode last set.
    void AcrescentaCru(const QByteArray &bytes);
    /// Turns upside-down printing on or off; a line begun ends first.
    void Inverte();
    /// The sheets that hold at least one line, the one being filled last; the state of the printing stays.
    std::vector<Documento> Tira();

private:
    void Recebe(char byte);
    void Inicializa();
    void TerminaLinha();
    void TerminaParcial();
    void TerminaFolha();

    std::vector<Documento> m_prontas;
    std::vector<LinhaDeFolha> m_linhas;
    QByteArray m_parcial;
    bool m_escape = false;
    bool m_quebrou = false; ///< the line before was full: an LF right behind it ends no further line
    int m_largura = 80;
    bool m_enfase = false;
    bool m_invertida = false;
};

} // namespace simulador
