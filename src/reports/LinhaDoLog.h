// A cheque of the log as one line of fixed columns, and as the texts of the detail panel.
#pragma once

#include <array>
#include <QString>
#include <QStringView>

namespace reports {

/// The fields of a row of the log that a list line shows, as they are stored.
struct ChequeDoLog {
    QString stCancel, nrch, banco, vCh, data, favor, index;
};

/// The line: 138 characters where no field is wider than its column and the bank has three.
/// The date stands as stored, whether it is one or not: see DataIlegivel.
/// @throws RuntimeError 13 when the value is no number
QString LinhaDoLog(const ChequeDoLog &cheque);
/// The same of texts that are kept elsewhere.
struct CamposDaLinha {
    QStringView stCancel, nrch, banco, vCh, data, favor, index;
};
QString MontaLinhaDoLog(const CamposDaLinha &campos);
/// Whether the row has a date that CVDate refuses; no date at all is none of those.
bool DataIlegivel(const ChequeDoLog &cheque);

inline const QString kCancelado = QStringLiteral("C"); ///< `StCancel` of a cancelled cheque

/// What stands above the list. As a text, the first three titles are not aligned to their columns, on
/// purpose; the screen draws each word over its own.
inline const QString kTitulosDaLista =
    QStringLiteral("Status    Nº Cheque |  Bco  |  Valor     | Data     | Favorecido")
        .leftJustified(132, QLatin1Char(' ')) +
    QStringLiteral("Índice");

bool LinhaCancelada(const QString &linha);
/// The `Index` of the row: the last 10 characters without blanks around; may be empty.
QString ChaveDaLinha(const QString &linha);

/// The value read back from a line, at its place in it.
/// @throws RuntimeError 13 when there is no number there
double ValorDaLinha(const QString &linha);

/// The value of a row as the panel and the list show it: "1.234,50".
/// @throws RuntimeError 13 when it is no number
QString TextoDoValor(const QString &vCh);
/// The total of the cheques as the panel shows it.
QString TextoDoTotal(double total);

/// The fields of a row that only the panel shows.
struct RestoDoCheque {
    QString local, comentario, comentario1, comentario2;
};
/// Texts of the labels Text1(0) to Text1(10) for a row; Text1(5), the total, is not of the row and stays
/// empty here. @throws RuntimeError 13 when the value is no number
std::array<QString, 11> DetalheDoLog(const ChequeDoLog &cheque, const RestoDoCheque &resto,
                                     const QString &nomeDoBanco);

} // namespace reports
