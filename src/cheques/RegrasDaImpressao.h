// Rules of printing and logging a normal cheque: positions of the extra fields, the six texts, the row.
#pragma once

#include "cheques/PosicoesExtras.h"
#include "cheques/RegrasDaEntrada.h"
#include "device/Impressora.h"

#include <array>
#include <optional>
#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

namespace cheques {

/// An extra field of the front: its text and its place on the form (line and column from 1).
struct CampoExtra {
    int linha = kSemPosicao;
    int coluna = kSemPosicao;
    QString texto;
};

/// Judges the filled fields in order; the message of the first one that has no place or does not fit, nothing
/// when all pass. Empty fields need no place.
std::optional<QString> VerificaCamposExtras(const std::array<CampoExtra, kCamposExtras> &campos);

/// The six texts of a normal cheque as the device gets them.
/// @throws RuntimeError 13 when the value is no number
device::TextosDoCheque MontaTextosDoCheque(const TextosDoCheque &cheque);

/// Field names and values of a row of Log, in the order in which they are set.
/// @throws RuntimeError 13 when the value is no number
std::vector<std::pair<QString, QString>> MontaLinhaDoLog(const TextosDoCheque &cheque, const QString &index);

/// Title of the message for a result of ImprimeCheque other than 1: "Impressão do Cheque (005)".
QString TituloDaFalha(int resultado);

} // namespace cheques
