// Failures of the SQL engine put into the run-time failures that the rooms above know.
#pragma once

#include "plataforma/basico/RuntimeError.h"
#include <QString>

struct sqlite3;

namespace plataforma::jet {

/// Numbers that only this room raises.
enum NumeroDeErro : int {
    ErrNaoEdita = 3020,      ///< Update or SetField outside AddNew and Edit
    ErrChaveRepetida = 3022, ///< the row breaks a rule of its table, such as a unique key
    ErrFechado = 3420,       ///< the dynaset was closed
};

/// Raises what the engine's result code means: 3050 locked, 3051 cannot be opened or written, 3343 no
/// database or damaged, 3022 a rule of the table, 13 a value of the wrong kind, 3075 everything else.
/// @param detalhe the engine's own words, shown behind ours
[[noreturn]] void LancaErroDoMotor(int codigo, const QString &arquivo, const QString &detalhe);
[[noreturn]] void LancaConsultaRecusada(const QString &motivo, const QString &consulta);
[[noreturn]] void LancaSemTabela(const QString &tabela);
[[noreturn]] void LancaSemCampo(const QString &campo, const QString &tabela);

} // namespace plataforma::jet
