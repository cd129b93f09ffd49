// Rules of the purge: how old a date is, which names are copy files, and the two questions.
#pragma once

#include <optional>
#include <QDate>
#include <QString>

namespace housekeeping {

/// Today as the purge reckons with it: "ddmmyy" turned into a date.
/// @throws RuntimeError 13 when the text is no date
QDate HojeDoExpurgo(const QString &dataHoje);

/// The day that a stored `Data` tells; nothing when the purge cannot read it, and would stop at it.
std::optional<QDate> DataDoCheque(const QString &data);

/// Age in days of the dates that stand in the log; rows of one day stand together, so the last one is kept.
class IdadeDosCheques {
public:
    explicit IdadeDosCheques(const QDate &hoje) : m_hoje(hoje) {}
    /// Days from a stored `Data` to today, negative for one to come; nothing when it is no date.
    std::optional<qint64> operator()(const QString &data);

private:
    QDate m_hoje;
    QString m_ultima;
    std::optional<qint64> m_dias;
};

/// The day that the name of a copy file ("copDDMM.YY", in any case) tells; nothing when the name has another
/// length or tells no day.
std::optional<QDate> DataDaCopia(const QString &nome);

/// Whether a cheque or copy of that age goes: strictly above the period, so one exactly that old stays.
inline bool Venceu(qint64 dias, int periodo)
{
    return dias > periodo;
}

QString PerguntaDosCheques(int periodo);
QString PerguntaDasCopias(int periodo);

} // namespace housekeeping
