// The list of codes and names that registers and popup show.
#pragma once

namespace nucleo {
class Armazem;
}
namespace plataforma {
class Lista;
}

namespace registers {

/// Fills a list with the rows of a table's current set, in its order. The rows are copied: nothing of the
/// store stays open.
/// @param tabela its selector (nucleo::Seletor)
/// @throws RuntimeError 3420 no set is open; 3050, 3051, 3343 as any reading
void PreencheLista(plataforma::Lista &lista, nucleo::Armazem &armazem, int tabela);

} // namespace registers
