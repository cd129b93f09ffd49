// Checking the registers: codes, and the banks' layouts in the store against those in QX70.INI.
#pragma once

#include "ConfereAchados.h"
#include "ConfereTabelas.h"

#include <QString>

namespace banco {

/// Looks at the codes of one register and, for the two registers of banks, at the keys of their section in
/// the settings file `ini`. An `ini` that is not there is passed over.
/// @return how many rows there are. @throws SQLite::Exception
qint64 ConfereCadastro(SQLite::Database &loja, const Tabela &tabela, const TabelaAchada &achada,
                       const QString &ini, Achados &achados);

} // namespace banco
