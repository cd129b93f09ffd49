// Rules of a bank's layout: its fields, its line in the settings file, what the graphic adjustment starts
// from.
#pragma once

#include "device/Posicoes.h"
#include "registers/CaixasDoBanco.h"

#include <QString>

namespace registers {

using device::TextosDoBanco;

inline const QString kTresDigitos = QStringLiteral("000");

/// Store field of a box: `Codigo`, `Nome`, `L1` to `L5`, `C1` to `C8`.
QString CampoDaCaixa(int indice);
/// Characters that a box takes.
int LimiteDaCaixa(int indice);

/// Value of the bank's key in section `Formato`: the thirteen numbers, two digits below 100, then four
/// blanks, a semicolon and the first 20 characters of the name, a comment for whoever reads the file:
/// "01,05,07,10,13,92,17,09,11,50,31,40,65    ; BANCO EXEMPLO".
QString TextoDoFormato(const TextosDoBanco &caixas);

/// Whether the answer to the writing of that key is a failure. On purpose never true today: a write answers
/// "0" or "1".
bool FormatoFalhou(const QString &resultado);

/// The boxes as the graphic adjustment starts from them: every number in three digits; one that is zero or
/// none becomes twice its box's index, and where all thirteen are, the usual layout takes their place.
TextosDoBanco PreparaAjuste(TextosDoBanco caixas);

} // namespace registers
