// Rules of the registers: their boxes, their list rows, their texts.
#pragma once

#include <QString>

namespace registers {

inline const QString kCampoCodigo = QStringLiteral("Codigo");
inline const QString kCampoNome = QStringLiteral("Nome");

/// Row of a register's list.
inline QString LinhaDaLista(const QString &codigo, const QString &nome)
{
    return codigo + QStringLiteral(" - ") + nome;
}

inline const QString kComando = QStringLiteral("Comando QX70"); ///< title of the questions about the device

/// Caption of the screen that lists a register.
inline QString LegendaDoTotal(qint64 linhas, const QString &palavras)
{
    return QStringLiteral("Total = ") + QString::number(linhas) + palavras;
}

/// What a number box holds once it is left: the number's value under a pattern of digits, so that a text that
/// is no number becomes zeros; an empty box stays empty.
QString NumeroAoSair(const QString &texto, const QString &padrao);

/// A row of a register of codes and names taken apart by position: the code in characters 1 to 5, the name
/// from the ninth on.
struct CodigoENome {
    QString codigo, nome;
};
/// @param tamanho characters of the name that are taken
CodigoENome PartesDaLinha(const QString &linha, int tamanho);

} // namespace registers
