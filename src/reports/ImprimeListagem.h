// The listing of a register on its way out: page by page into the device, or as a document of the system
// printer.
#pragma once

#include "reports/Listagem.h"

namespace nucleo {
class Sistema;
}

namespace reports {

/// Output of a listing; any other number is the device too.
enum SaidaDaListagem : int { kNoDispositivo = 0, kNaImpressora = 1 };

/// Lists cities or payees. The device asks for a document before each page, and the operator may end the
/// listing there; the system printer asks for the printer once. Failures are told to the operator here.
void ListaCadastro(int saida, Ordem ordem, Cadastrados tabela, nucleo::Sistema &sistema);

/// The same for the banks of the cheques, or for those of the transfers.
void ListaBancos(int saida, Ordem ordem, nucleo::Sistema &sistema, Cadastrados tabela = Cadastrados::Bancos);

} // namespace reports
