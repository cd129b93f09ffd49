// The layout of a cheque: six texts and the bank's thirteen numbers in, the placed texts out. Pure, knows no
// device state.
#pragma once

#include <cstdint>
#include <optional>
#include <QDate>
#include <QString>
#include <variant>
#include <vector>

#include "Documento.h"
#include "Posicoes.h"

namespace simulador {

/// The last column of the words: what they leave free up to here is filled with '*'.
inline constexpr int kFimDoExtenso = 118;

struct TextosDoCheque {
    QString banco; ///< three digits
    QString valor; ///< by Brazilian rules: "1.234,56"
    QString favorecido;
    QString cidade;
    QString data; ///< day, month, year: "dd/mm/yy"
    bool operator==(const TextosDoCheque &) const = default;
};

struct CampoExtra {
    Lugar lugar;
    QString texto;
};

/// What the device knows when it lays a cheque out.
struct EstadoDoLeiaute {
    Posicoes posicoes;
    QString nomeDoBanco;
    int digitosDoAno = 4; ///< 1, 2 or 4
    QString moedaSingular;
    QString moedaPlural;
    std::vector<CampoExtra> extras;
};

/// Why a cheque cannot be laid out; always result 23.
struct Recusa {
    QString motivo; ///< in Portuguese, for the operator
};

/// Cents of an amount from "0,00" to "999.999.999,99", points between the groups or none; empty for any other
/// text.
std::optional<std::int64_t> CentavosDe(const QString &valor);
/// "#1.234,56#", as the device prints an amount in figures.
QString ValorImpresso(std::int64_t centavos);
/// The date of "dd/mm/yy" or "dd/mm/yyyy", also with one digit, with repeated bars, or as six or eight digits
/// with no bar. Years of two digits: 00-29 are 20xx, 30-99 are 19xx. Empty for any other text and for a day
/// that the calendar lacks.
std::optional<QDate> DataDe(const QString &texto);
/// "Janeiro" to "Dezembro".
QString NomeDoMes(int mes);
/// The digits of the year that the device prints: the last one, the last two or all four.
QString AnoImpresso(int ano, int digitos);
/// What the form has in print before them: "199", "20" or nothing.
QString PrefixoDoAno(int digitos);

/// The words broken at blanks into two lines, each filled with '*' up to kFimDoExtenso.
struct LinhasDoExtenso {
    int coluna1 = 1;
    int coluna2 = 1;
    QString palavras1; ///< without the filling
    QString palavras2;
};
/// Takes as many words as fit behind `coluna1`, the rest behind `coluna2`. Where they do not fit, the second
/// line begins further left, then the first. Empty when they do not even fit into two whole lines.
std::optional<LinhasDoExtenso> RepartePalavras(const QString &palavras, int coluna1, int coluna2);

/// Lays the cheque out. Every text stays inside the form and none is cut: one that would run over column 120
/// is moved left to end there, and texts of one line that would touch are moved left too, the left one first.
/// Words of the amount, and extra fields, give way to nothing: where another text would cover them the cheque
/// is refused. '*' stands only where nothing else is printed.
std::variant<Documento, Recusa> MontaCheque(const TextosDoCheque &textos, const EstadoDoLeiaute &estado);

} // namespace simulador
