// The amount in words, as the Device Library writes it.
#pragma once

#include "device/Impressora.h"
#include <QString>

namespace device {

/// File that the library leaves in the current directory, Windows-1252.
inline const QString kArquivoDoExtenso = QStringLiteral("Extenso.ret");

/// The words of an amount such as "1.234,50", trimmed. Always in "real" and "reais", whatever the settings
/// say. Empty when the library refused; the operator was then told.
/// @throws RuntimeError 53 when the library answered well and left no file
QString ValorPorExtenso(const QString &valor, Impressora &impressora, nucleo::Mensagens &mensagens);

} // namespace device
