// The thirteen numbers that place a bank's printed fields, as the store and QX70.INI hold them.
#pragma once

#include <array>
#include <QString>
#include <QStringList>
#include <string>

namespace banco {

/// L1 to L5, then C1 to C8. Lines and the first five columns count from 1; C6 to C8 (day, month, year) are
/// distances in columns from C5, the city.
using Leiaute = std::array<int, 13>;

/// The number as a field of the table holds it: three digits.
std::string CampoDoLeiaute(int numero);

/// The value of the bank's key in section Formato: numbers below 100 with two digits, from 100 on with three,
/// and behind them the first 20 characters of the name as a comment.
QString TextoDoFormato(const Leiaute &leiaute, const QString &nome);

/// A layout as QX70.INI holds it, taken apart.
struct TextoDoLeiaute {
    QStringList numeros; ///< as they stand
    QString nome;        ///< without blanks at its end
};

/// The reverse of TextoDoFormato: as many numbers as there are before the ";".
TextoDoLeiaute LeFormato(const QString &texto);

/// A value of section ChequeTransf, read by position: fourteen numbers of three digits, each in the first
/// three of four characters, and the name from character 62 on. No numbers when one of them is not there.
TextoDoLeiaute LeChequeTransf(const QString &texto);

/// Whether a number of the file and one of the table, each as it stands, are the same place.
bool MesmoNumero(const QString &noArquivo, const QString &naTabela);
/// Whether a name of the file is a name of the table; the file may hold it in Windows-1252, where a character
/// of another script is a "?".
bool MesmoNome(const QString &noArquivo, const QString &naTabela);

} // namespace banco
