// The report that ends a printed or written document when something failed on its way.
#pragma once

#include "nucleo/Mensagens.h"

#include <functional>

namespace nucleo {

/// Tells the operator the failure of a document by the number of the run-time failure. 0 and a cancelled
/// dialogue (32755) say nothing; 482 says what may be wrong with the printer.
void RelataErro(int numero, Mensagens &mensagens);

/// Sends a document; a RuntimeError ends it with that report.
void EnviaComRelato(const std::function<void()> &envio, Mensagens &mensagens);

} // namespace nucleo
