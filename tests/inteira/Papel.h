// What must stand on the paper and on the line, reckoned by the tests themselves from the bank's thirteen
// numbers.
#pragma once

#include <array>
#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace inteira {

inline constexpr int kLinhas = 20;   ///< of the cheque form
inline constexpr int kColunas = 120; ///< of the cheque form
inline constexpr int kUltimaColunaDoExtenso = 118;

/// A bank's layout as the register keeps it: lines of amount, words 1, words 2, payee, city and date; columns
/// of the same five; then day, month and year as distances from the city's column.
using Posicoes = std::array<int, 13>;
enum Posicao { L1, L2, L3, L4, L5, C1, C2, C3, C4, C5, C6, C7, C8 };

/// A text at its line and column, both from 1.
struct Posto {
    int linha;
    int coluna;
    QString texto;
};

/// What is to be read on a cheque.
struct ChequeNoPapel {
    QString valor;    ///< "1.234,56", without the signs around it
    QString palavras; ///< the whole amount in words
    QString favorecido, cidade, dia, mes, ano;
    QList<Posto> extras;
};

/// The twenty lines that the form must show. Throws when two texts would meet: the case is wrong then.
QStringList FolhaEsperada(const Posicoes &posicoes, const ChequeNoPapel &cheque);
/// The words as two lines, broken at a blank, as many on the first as fit there, each filled with '*' to its
/// end.
std::array<QString, 2> LinhasDasPalavras(const QString &palavras, int coluna1, int coluna2);

/// The lines of a document that came out; blanks at their ends are kept.
QStringList LeFolha(const QString &documento);

/// A whole frame, built here: order `tipo` under a sequence number, around its argument list.
QByteArray Quadro(char tipo, int sequencia, const QByteArray &carga);
/// A text as an argument: two bytes of length and its bytes.
QByteArray Argumento(const QByteArray &texto);
/// The frame of a cheque of six texts.
QByteArray QuadroDoCheque(int sequencia, const QList<QByteArray> &textos);

} // namespace inteira
