// See RegrasDoExpurgo.h.
#include "housekeeping/RegrasDoExpurgo.h"

#include "plataforma/basico/Data.h"
#include "plataforma/basico/Formato.h"
#include "plataforma/basico/Texto.h"

namespace housekeeping {

using namespace plataforma;

namespace {

constexpr qsizetype kTamanhoDoNome = 10; // copDDMM.YY

// "dd/mm/yy" out of a text that has the three parts at these places.
QString DataEm(const QString &texto, qsizetype dia, qsizetype mes, qsizetype ano)
{
    return Mid(texto, dia, 2) + QLatin1Char('/') + Mid(texto, mes, 2) + QLatin1Char('/') + Mid(texto, ano, 2);
}

std::optional<QDate> DataOuNada(const QString &texto)
{
    return IsDate(texto) ? std::optional(CVDate(texto)) : std::nullopt;
}

} // namespace

QDate HojeDoExpurgo(const QString &dataHoje)
{
    return CVDate(DataEm(dataHoje, 1, 3, 5));
}

std::optional<QDate> DataDoCheque(const QString &data)
{
    return DataOuNada(Format(data, QStringLiteral("!@@@@@@@@")));
}

std::optional<qint64> IdadeDosCheques::operator()(const QString &data)
{
    if (m_dias && data == m_ultima)
        return m_dias;
    m_ultima = data;
    const auto dia = DataDoCheque(data);
    m_dias = dia ? std::optional(DateDiff(*dia, m_hoje)) : std::nullopt;
    return m_dias;
}

std::optional<QDate> DataDaCopia(const QString &nome)
{
    if (Len(nome) != kTamanhoDoNome)
        return std::nullopt;
    return DataOuNada(DataEm(nome, 4, 6, 9));
}

QString PerguntaDosCheques(int periodo)
{
    return QStringLiteral("O banco de dados possui cheques cadastrados a mais de ") +
           QString::number(periodo) +
           QStringLiteral(" dia(s), contando a partir da data de apresentação. Deseja exclui-los?");
}

QString PerguntaDasCopias(int periodo)
{
    return QStringLiteral("O aplicativo possui arquivos de copia com mais de ") + QString::number(periodo) +
           QStringLiteral(" dias! Deseja exclui-los?");
}

} // namespace housekeeping
