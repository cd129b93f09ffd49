// Bank layouts taken over from the program's settings file.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QStringList>

#include "Memoria.h"

namespace simulador {

struct FormatosLidos {
    QMap<QString, Banco> bancos; ///< by number, three digits
    QStringList avisos;          ///< the keys that are no layout, in Portuguese
};
/// Section Formato of a settings file (Windows-1252): key = bank number, value = thirteen numbers, then
/// blanks, ";" and the name. Names of sections count without regard to case, the first of two equal keys
/// wins, and ";" at the start of a line is a comment.
FormatosLidos LeFormatos(const QByteArray &arquivo);

} // namespace simulador
