// The options of "exporta" and "importa", read from the words of the call.
#pragma once

#include "Codificacao.h"

#include <optional>
#include <QString>
#include <QStringList>
#include <vector>

namespace banco {

struct Tabela;

struct OpcoesCsv {
    QString pasta;                       ///< where the store lies
    QStringList lugares;                 ///< the other words: a folder to write to, or files to read
    std::vector<const Tabela *> tabelas; ///< each once; empty means all
    std::optional<char> separador;       ///< ';', ',' or TAB
    std::optional<Codificacao> codificacao;
    bool formato = false; ///< of "importa" alone
};

/// Reads the words behind a command into `opcoes`. @return what is wrong with them, empty when nothing is
[[nodiscard]] QString LeOpcoesCsv(const QString &comando, const QStringList &palavras, OpcoesCsv &opcoes);

/// The table of that name in any case; null when there is none.
const Tabela *AchaTabela(const QString &nome);
/// "Bancos, Transferencia, ..."
QString NomesDasTabelas();

} // namespace banco
