// The options of "semeia", read from the words of the call.
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

namespace banco {

struct OpcoesDeSemeia {
    QString pasta;
    qint64 bancos = 5;
    qint64 cidades = 12;
    qint64 favorecidos = 12;
    qint64 cheques = 0;
    qint64 semente = 1;
    QDate hoje = QDate::currentDate(); ///< date of the last cheque
};

/// Reads the words behind "semeia" into `opcoes`. @return what is wrong with them, empty when nothing is
[[nodiscard]] QString LeOpcoes(const QStringList &palavras, OpcoesDeSemeia &opcoes);

} // namespace banco
