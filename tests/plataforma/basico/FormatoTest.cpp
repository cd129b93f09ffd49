// Format: numbers and texts put into a pattern.
#include "plataforma/basico/Formato.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/RuntimeError.h"
#include "Tabela.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace plataforma;

namespace {

TEST(Format, AgreesWithTheTable)
{
    for (const QStringList &linha : tabela::Le("format.tsv", 4)) {
        const bool texto = linha[0] == "BSTR";
        const QString saida = texto ? Format(linha[1], linha[2]) : Format(linha[1].toDouble(), linha[2]);
        EXPECT_EQ(saida.toStdString(), linha[3].toStdString()) << tabela::Mostra(linha);
    }
}

struct CasoNumero {
    std::string nome;
    double valor;
    QString padrao;
    QString sai;
};
void PrintTo(const CasoNumero &caso, std::ostream *os)
{
    *os << "Format(" << caso.valor << ", " << caso.padrao.toStdString() << ')';
}
class FormatNumeroTest : public testing::TestWithParam<CasoNumero> {};
TEST_P(FormatNumeroTest, Writes)
{
    EXPECT_EQ(Format(GetParam().valor, GetParam().padrao).toStdString(), GetParam().sai.toStdString());
}

INSTANTIATE_TEST_SUITE_P(Rounding, FormatNumeroTest,
                         testing::Values(CasoNumero{"TieThatBinaryHoldsBelow", 1.005, "0.00", "1,01"},
                                         CasoNumero{"NextTie", 2.675, "0.00", "2,68"},
                                         CasoNumero{"TieThatBinaryHoldsExactly", 0.125, "0.00", "0,13"},
                                         CasoNumero{"TieOfAWholePattern", 2.5, "000", "003"},
                                         CasoNumero{"NegativeTie", -2.5, "000", "-003"},
                                         CasoNumero{"JustBelowTheTie", 1.00499, "0.00", "1,00"},
                                         CasoNumero{"CarryIntoANewDigit", 999.995, "#,##0.00", "1.000,00"},
                                         CasoNumero{"CarryOutOfNothing", 0.995, "#.##", "1,"},
                                         CasoNumero{"HalfOfOne", 0.5, "0", "1"},
                                         CasoNumero{"FarBelowOne", 0.04, "0", "0"},
                                         CasoNumero{"MorePlacesThanDigits", 0.1, "0.00000000000000000000",
                                                    "0,10000000000000000000"},
                                         CasoNumero{"FifteenDigitsOnly", 1.23456789012345678,
                                                    "0.0000000000000000", "1,2345678901234600"},
                                         CasoNumero{"SmallestNumber", 5e-324, "0.00", "0,00"}),
                         [](const auto &caso) { return caso.param.nome; });

INSTANTIATE_TEST_SUITE_P(
    Signs, FormatNumeroTest,
    testing::Values(CasoNumero{"ZeroAmount", 0, "###,##0.00", "0,00"},
                    CasoNumero{"MinusZero", -0.0, "000", "000"},
                    CasoNumero{"AmountThatRoundsToZeroShowsNoSign", -0.004, "###,##0.00", "0,00"},
                    CasoNumero{"TinyRemainderShowsNoSign", -2.7755575615628914e-17, "#,###,##0.00", "0,00"},
                    CasoNumero{"RoundsToZeroUnderOptionalDigits", -0.001, "###########.##", ","},
                    CasoNumero{"WholePatternKeepsTheSignOnPurpose", -0.4, "000", "-000"},
                    CasoNumero{"NothingShownNoSign", -0.4, "###", ""},
                    CasoNumero{"OneCentBelowZero", -0.01, "0.00", "-0,01"},
                    CasoNumero{"SignBeforeALiteral", -5, "R\\$ 0.00", "-R$ 5,00"}),
    [](const auto &caso) { return caso.param.nome; });

INSTANTIATE_TEST_SUITE_P(
    Patterns, FormatNumeroTest,
    testing::Values(
        CasoNumero{"CommaKeptOnAWholeAmount", 1234, "###########.##", "1234,"},
        CasoNumero{"CommaBeforeTheHalf", 0.5, "###########.##", ",5"},
        CasoNumero{"CommaAlone", 0, "###########.##", ","},
        CasoNumero{"CommaAnywhereGroupsByThree", 1234567.5, "#,###0.00", "1.234.567,50"},
        CasoNumero{"CommaBehindTheFirstSign", 1234567, "0,0", "1.234.567"},
        CasoNumero{"GroupsOfForcedZeros", 5, "000,000", "000.005"},
        CasoNumero{"MoreDigitsThanSlots", 1234, "000", "1234"}, CasoNumero{"NoDigitOfZero", 0, "####", ""},
        CasoNumero{"ForcedBehindOptional", 7, "#00", "07"},
        CasoNumero{"OptionalBehindForced", 7, "0##", "007"},
        CasoNumero{"ForcedDecimalBehindOptional", 1, "0.#0", "1,00"},
        CasoNumero{"OptionalDecimalsCut", 1.5, "0.0###", "1,5"},
        CasoNumero{"NoSlotBeforeThePoint", 12.5, ".00", "12,50"},
        CasoNumero{"OtherCharactersStand", 12, "(000) n", "(012) n"},
        CasoNumero{"LiteralsBetweenDigits", 10299, "00/00/00", "01/02/99"},
        CasoNumero{"SurplusAtTheFirstDigit", 1234567, "00/00/00", "123/45/67"},
        CasoNumero{"QuotedDigitSign", 5, "\"n# 0\" 0", "n# 0 5"},
        CasoNumero{"EscapedDigitSign", 5, "\\#0", "#5"}, CasoNumero{"EscapedSlot", 5, "\\@0", "@5"},
        CasoNumero{"QuoteNeverClosed", 5, "0\" @", "5 @"}, CasoNumero{"EscapeAtTheEnd", 5, "0\\", "5\\"},
        CasoNumero{"SecondPointStands", 5, "0.0.0", "5,0.0"}, CasoNumero{"NoDigitSignAtAll", 5, "abc", "abc"},
        CasoNumero{"CentsOfAGreatAmount", 123456789012.34, "###,###,###,###,##0.00", "123.456.789.012,34"},
        CasoNumero{"BeyondFifteenDigitsAreZeros", 1e22, "0", "10000000000000000000000"}),
    [](const auto &caso) { return caso.param.nome; });

INSTANTIATE_TEST_SUITE_P(NumberInSlots, FormatNumeroTest,
                         testing::Values(CasoNumero{"Whole", 5, "@@@", "  5"},
                                         CasoNumero{"Decimals", 1234.5, "@@@@@@@@", "  1234,5"},
                                         CasoNumero{"NegativeFromTheLeft", -1.5, "!@@@@@@", "-1,5  "},
                                         CasoNumero{"Great", 1e15, "@", "1E+15"},
                                         CasoNumero{"FifteenDigits", 999999999999999, "@", "999999999999999"},
                                         CasoNumero{"Small", 0.00001, "@", "1E-05"},
                                         CasoNumero{"NotSoSmall", 0.0001, "@", "0,0001"},
                                         CasoNumero{"SmallAndLong", 1.5e-7, "@", "1,5E-07"},
                                         CasoNumero{"SumOfTenths", 0.1 + 0.2, "@", "0,3"},
                                         CasoNumero{"NoPattern", 1234.5, "", "1234,5"}),
                         [](const auto &caso) { return caso.param.nome; });

struct CasoTexto {
    std::string nome;
    QString texto;
    QString padrao;
    QString sai;
};
void PrintTo(const CasoTexto &caso, std::ostream *os)
{
    *os << "Format(\"" << caso.texto.toStdString() << "\", " << caso.padrao.toStdString() << ')';
}
class FormatTextoTest : public testing::TestWithParam<CasoTexto> {};
TEST_P(FormatTextoTest, Writes)
{
    EXPECT_EQ(Format(GetParam().texto, GetParam().padrao).toStdString(), GetParam().sai.toStdString());
}

INSTANTIATE_TEST_SUITE_P(
    Formato, FormatTextoTest,
    testing::Values(CasoTexto{"DateByPosition", "010299", "@@/@@/@@", "01/02/99"},
                    CasoTexto{"ShortDateFromTheRight", "1102", "@@/@@/@@", "  /11/02"},
                    CasoTexto{"BarredDateLooksOdd", "1/2/99", "@@/@@/@@", "1//2//99"},
                    CasoTexto{"SurplusBeforeTheFirstSlot", "12345678", "@@/@@/@@", "1234/56/78"},
                    CasoTexto{"SurplusBehindTheLastSlot", "12345678", "!@@/@@/@@", "12/34/5678"},
                    CasoTexto{"FilledFromTheLeft", "123", "!@@/@@", "12/3 "},
                    CasoTexto{"LeftAlignedDate", "01/02/99", "!@@@@@@@@", "01/02/99"},
                    CasoTexto{"ExclamationBehindTheSlots", "1", "@@!", "1 "},
                    CasoTexto{"OneSlotShowsAll", "abcdef", "-@-", "-abcdef-"},
                    CasoTexto{"QuotedSlot", "ab", "\"@\"@@", "@ab"},
                    CasoTexto{"QuotedExclamation", "a", "\"!\"@@", "! a"},
                    CasoTexto{"DigitSignIsLiteralAmongSlots", "ab", "@#@0", "a#b0"},
                    CasoTexto{"NumericTextIsConverted", "1.234,5", "####0.00", "1234,50"},
                    CasoTexto{"NumericTextInABracket", "(5)", "000", "-005"},
                    CasoTexto{"OtherTextComesBackUnchanged", " doze ", "####0.00", " doze "},
                    CasoTexto{"EmptyTextStaysEmpty", "", "000", ""},
                    CasoTexto{"DateIsItsDayNumber", "01/01/1900", "0", "2"},
                    CasoTexto{"DateBeforeTheFirstDay", "29/12/1899", "0", "-1"},
                    CasoTexto{"NoDateComesBackUnchanged", "31/02/99", "0", "31/02/99"},
                    CasoTexto{"TimeIsItsPartOfTheDay", "06:00", "0.00", "0,25"},
                    CasoTexto{"TimeWithSeconds", "12:00:00", "0.0", "0,5"},
                    CasoTexto{"NoTimeComesBackUnchanged", "25:00", "0.0", "25:00"},
                    CasoTexto{"NoPattern", "12,50", "", "12,50"}),
    [](const auto &caso) { return caso.param.nome; });

TEST(Format, WhatIsNoNumberIsABadArgument)
{
    for (const double valor : {std::nan(""), HUGE_VAL, -HUGE_VAL}) {
        for (const char *padrao : {"0.00", "@@", ""}) {
            try {
                Format(valor, QString(padrao));
                ADD_FAILURE() << "nothing was thrown for " << valor << " under " << padrao;
            } catch (const RuntimeError &erro) {
                EXPECT_EQ(erro.number(), ErrInvalidCall);
            }
        }
    }
}

TEST(Format, EveryAmountOfCentsIsReadBack)
{
    for (int centavos = -250000; centavos <= 250000; centavos += 37) {
        const double valor = centavos / 100.0;
        for (const char *padrao : {"###,##0.00", "###########.##", "####0.00"}) {
            const QString texto = Format(valor, QString(padrao));
            const bool vazio = texto == ","; // zero under optional digits, which no reader takes
            ASSERT_EQ(vazio ? 0 : Centavos(CDbl(texto)), centavos) << texto.toStdString();
        }
    }
}

} // namespace
