// Marks a cheque of the log as cancelled.
#pragma once

#include "nucleo/Mensagens.h"

#include <QString>

namespace plataforma {
class Dynaset;
}

namespace reports {

/// Goes to the record of an `Index`; one that is current already is taken as it is.
/// @return whether there is one
bool VaiParaOCheque(plataforma::Dynaset &log, const QString &chave);

/// The record of that `Index` is marked when `estado` is "C" or "c", and deleted with any other one; where
/// there is none the operator is told. @return whether there was one
/// @throws RuntimeError as Edit, Update and Delete
bool MarcaCancelado(plataforma::Dynaset &log, const QString &chave, const QString &estado,
                    nucleo::Mensagens &mensagens);

} // namespace reports
