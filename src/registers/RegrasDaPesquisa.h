// Rules of the search popup: what a chosen row hands back.
#pragma once

#include <QString>

namespace registers {

/// Whether a type of search (`TipoPesquisa`: 0 payees, 1 cities, 2 banks, 3 log) has rows to show and a
/// register to open.
bool TemRegistros(int tipo);
/// The code in a row of the list: its first 5 characters for payees and cities, its first 3 for the others.
QString CodigoDaEscolha(const QString &linha, int tipo);

} // namespace registers
