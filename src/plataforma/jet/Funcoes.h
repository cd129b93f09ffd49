// The functions, the Like operator and the text order of the query dialect, made known to the engine.
#pragma once

struct sqlite3;

namespace plataforma::jet {

/// Registers qx_left, qx_right, qx_mid, qx_trim, qx_len, qx_val, qx_cdbl, qx_cvdate, qx_like and the order
/// PORTUGUES on one connection. NULL in gives NULL out. A text that CDbl or CVDate cannot read gives NULL as
/// well, so that one bad row is passed over and never hides the others. @return the engine's result code
int RegistraFuncoes(sqlite3 *db);

} // namespace plataforma::jet
