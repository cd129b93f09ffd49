// The short ways of the log's amounts and lines, against the plain rules they stand for.
#include "plataforma/basico/Formato.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/RuntimeError.h"
#include "reports/LinhaDoLog.h"
#include "reports/Quantia.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <optional>
#include <random>

using namespace plataforma;
using namespace reports;

namespace {

/// The number, or nothing when the text is refused as one.
std::optional<double> Lido(const std::function<double(const QString &)> &le, const QString &texto)
{
    try {
        return le(texto);
    } catch (const RuntimeError &erro) {
        EXPECT_EQ(erro.number(), ErrTypeMismatch);
        return std::nullopt;
    }
}

void ConfereLeitura(const QString &texto)
{
    const auto esperado = Lido(CDbl, texto);
    const auto lido = Lido([](const QString &t) { return LeQuantia(t); }, texto);
    ASSERT_EQ(lido, esperado) << '"' << texto.toStdString() << '"';
    ASSERT_EQ(EQuantia(texto), esperado.has_value()) << '"' << texto.toStdString() << '"';
}

void ConfereEscrita(double valor)
{
    for (const auto *padrao :
         {"#,###,###,##0.00", "##,###,###,##0.00", "###,###,###,###,##0.00", "#,###0.00"})
        ASSERT_EQ(EscreveQuantia(valor), Format(valor, QLatin1String(padrao)))
            << padrao << ' ' << std::hexfloat << valor;
}

QString LinhaPorFormat(const ChequeDoLog &c)
{
    const QString valor = Format(CDbl(c.vCh), QStringLiteral("#,###,###,##0.00"));
    const QString divisa = QStringLiteral(" | ");
    return (c.stCancel == QStringLiteral("C") ? QStringLiteral("C |") : QStringLiteral("  |")) +
           Format(c.nrch, QString(12, QLatin1Char('@'))) + divisa + c.banco + divisa +
           Format(valor, QString(16, QLatin1Char('@'))) + divisa +
           Format(c.data, QStringLiteral("!@@@@@@@@")) + divisa +
           Format(c.favor, QLatin1Char('!') + QString(74, QLatin1Char('@'))) +
           Format(c.index, QString(10, QLatin1Char('@')));
}

} // namespace

TEST(LeQuantia, AnswersAsCDblOnAnyMixOfItsSigns)
{
    const QString sinais = QStringLiteral("0123456789012345678900,,..  -+e(R");
    std::mt19937 acaso(20260101);
    for (int i = 0; i < 40000; ++i) {
        QString texto;
        for (auto n = acaso() % 19; n > 0; --n)
            texto += sinais[static_cast<qsizetype>(acaso() % static_cast<unsigned>(sinais.size()))];
        ConfereLeitura(texto);
    }
}

TEST(LeQuantia, AnswersAsCDblOnAmounts)
{
    std::mt19937_64 acaso(7);
    for (int i = 0; i < 40000; ++i) {
        const auto centavos = static_cast<qint64>(acaso() % 1000000000000000U >> acaso() % 50);
        const double valor = static_cast<double>(i % 3 == 0 ? -centavos : centavos) / 100.0;
        ConfereLeitura(Format(valor, QStringLiteral("###########.##")));
        ConfereLeitura(QLatin1Char(' ') + Format(valor, QStringLiteral("#,###,###,##0.00")));
    }
}

TEST(EscreveQuantia, WritesAsFormatWhateverTheFraction)
{
    std::mt19937_64 acaso(11);
    std::uniform_real_distribution<double> mantissa(-1, 1);
    for (int i = 0; i < 40000; ++i)
        ConfereEscrita(mantissa(acaso) * std::pow(10.0, static_cast<double>(acaso() % 26) - 6));
}

TEST(EscreveQuantia, WritesAsFormatAroundEachHalfCent)
{
    std::mt19937_64 acaso(13);
    for (int i = 0; i < 10000; ++i) {
        const auto milesimos = static_cast<qint64>(acaso() % 1000000000000000U >> acaso() % 50) / 5 * 5;
        const double valor = static_cast<double>(milesimos) / 1000.0;
        for (const double v : {valor, -valor, std::nextafter(valor, 1e300), std::nextafter(valor, -1e300)})
            ConfereEscrita(v);
    }
}

TEST(EscreveQuantia, RefusesWhatIsNoNumber)
{
    EXPECT_THROW(EscreveQuantia(std::nan("")), RuntimeError);
}

TEST(LinhaDoLog, IsWhatThePatternsGive)
{
    const QString longo(90, QLatin1Char('x'));
    for (const auto &cheque :
         {ChequeDoLog{"C", "123", "001", "1234,5", "01/02/99", "Fulano", "0000000001"},
          ChequeDoLog{"", "", "", "0", "", "", ""},
          ChequeDoLog{" ", "1234567890123", "0001", "123456789012345", "01/02/1999", longo, "12345678901"},
          ChequeDoLog{"c", "!@#", "3", ",07", " 1//2//99", "!João & Cia.", "1"}})
        EXPECT_EQ(LinhaDoLog(cheque), LinhaPorFormat(cheque));
}
