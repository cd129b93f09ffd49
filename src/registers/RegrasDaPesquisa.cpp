// See RegrasDaPesquisa.h.
#include "registers/RegrasDaPesquisa.h"

#include "nucleo/Consultas.h"
#include "plataforma/basico/Texto.h"

namespace registers {

bool TemRegistros(int tipo)
{
    return tipo == nucleo::SelFavorecido || tipo == nucleo::SelCidade || tipo == nucleo::SelBancos;
}

QString CodigoDaEscolha(const QString &linha, int tipo)
{
    return plataforma::Left(linha, tipo == nucleo::SelFavorecido || tipo == nucleo::SelCidade ? 5 : 3);
}

} // namespace registers
