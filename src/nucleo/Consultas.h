// Query texts of the shared lookups, by table selector.
#pragma once

#include <QString>

namespace nucleo {

/// Table selectors of the shared store routines.
enum Seletor : int {
    SelFavorecido = 0,
    SelCidade = 1,
    SelBancos = 2,
    SelLog = 3,
    SelTransferencia = 4,
    SelScript = 9
};

/// The table whose set BuscaPorCodigo replaces.
int TabelaDaBusca(int tabela);
/// Query of BuscaPorCodigo; an empty key means the whole table. Selector 9 goes to `Favorecido`, on purpose.
QString ConsultaPorCodigo(const QString &chave, int tabela);
/// Query of FiltraRegistros, the incremental search of the registers.
QString ConsultaDoFiltro(const QString &texto, int tabela);
/// Query of PesquisaRegistros, the search of the popup (tables 0 to 2).
QString ConsultaDaPesquisa(const QString &texto, int tabela);

} // namespace nucleo
