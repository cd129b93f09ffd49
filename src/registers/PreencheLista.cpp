// See PreencheLista.h.
#include "registers/PreencheLista.h"

#include "nucleo/Armazem.h"
#include "plataforma/jet/Rows.h"
#include "plataforma/tela/Lista.h"
#include "registers/RegrasDoCadastro.h"

namespace registers {

void PreencheLista(plataforma::Lista &lista, nucleo::Armazem &armazem, int tabela)
{
    const auto linhas = std::make_shared<const plataforma::Rows>(
        armazem.Conjunto(tabela).GetRows({kCampoCodigo, kCampoNome}));
    lista.Enche(static_cast<int>(linhas->Count()),
                [linhas](int i) { return LinhaDaLista(linhas->Text(i, 0), linhas->Text(i, 1)); });
}

} // namespace registers
