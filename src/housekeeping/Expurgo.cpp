// See Expurgo.h.
#include "housekeeping/Expurgo.h"

#include "nucleo/Mensagens.h"
#include "nucleo/Sistema.h"

namespace housekeeping {

void ExcluiChequesAntigos(nucleo::Sistema &sistema)
{
    if (sistema.armazem.AbreBanco(0, 0, 0, 1, 0) == nucleo::kSemBanco) {
        sistema.mensagens.MsgBox(nucleo::TextoBancoNaoEncontrado(sistema.ArquivoDados));
        return;
    }
    sistema.armazem.FechaBanco(0, 0, 0, 1);
}

void ExcluiCopiasAntigas(nucleo::Sistema &) {}

} // namespace housekeeping
