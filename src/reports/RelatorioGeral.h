// The general report of the log: plain text of every cheque of the set, with its comments.
#pragma once

#include <array>
#include <optional>
#include <QString>

namespace reports {

/// A row of the log as the general report shows it, as it is stored.
struct ChequeDoRelatorioGeral {
    QString banco, nrch, vCh, local, data, favor;
    std::array<QString, 3> comentarios;
};

/// What the report begins with: its title and an empty line.
QString TituloDoRelatorioGeral();
/// The lines of one cheque. A value that is no number stands as stored.
/// @param nomeDoBanco nothing when the register does not have the bank
QString BlocoDoRelatorioGeral(const ChequeDoRelatorioGeral &cheque,
                              const std::optional<QString> &nomeDoBanco);

} // namespace reports
