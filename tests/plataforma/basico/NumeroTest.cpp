// Numbers read from texts, and amounts in cents.
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/RuntimeError.h"
#include "Tabela.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace plataforma;

namespace {

/// The number that CDbl refuses a text with; 0 when it takes it.
int ErroDe(const QString &texto)
{
    try {
        CDbl(texto);
    } catch (const RuntimeError &erro) {
        return erro.number();
    }
    return 0;
}

TEST(CDbl, AgreesWithTheTable)
{
    for (const QStringList &linha : tabela::Le("numeric.tsv", 3)) {
        const bool numero = linha[1] == "yes";
        EXPECT_EQ(IsNumeric(linha[0]), numero) << tabela::Mostra(linha);
        EXPECT_EQ(ErroDe(linha[0]), numero ? 0 : ErrTypeMismatch) << tabela::Mostra(linha);
        if (numero) {
            EXPECT_DOUBLE_EQ(CDbl(linha[0]), linha[2].toDouble()) << tabela::Mostra(linha);
        }
    }
}

TEST(Val, AgreesWithTheTable)
{
    for (const QStringList &linha : tabela::Le("val.tsv", 2)) {
        EXPECT_DOUBLE_EQ(Val(linha[0]), linha[1].toDouble()) << tabela::Mostra(linha);
    }
}

struct CasoNumero {
    std::string nome;
    QString texto;
    double numero;
};
void PrintTo(const CasoNumero &caso, std::ostream *os)
{
    *os << '"' << caso.texto.toStdString() << "\" = " << caso.numero;
}
std::string Nome(const testing::TestParamInfo<CasoNumero> &caso)
{
    return caso.param.nome;
}

class CDblTest : public testing::TestWithParam<CasoNumero> {};
TEST_P(CDblTest, Reads)
{
    EXPECT_TRUE(IsNumeric(GetParam().texto));
    EXPECT_DOUBLE_EQ(CDbl(GetParam().texto), GetParam().numero);
}

INSTANTIATE_TEST_SUITE_P(
    Numero, CDblTest,
    testing::Values(
        CasoNumero{"MinusBehind", "5-", -5}, CasoNumero{"MinusFarBehind", "5 -", -5},
        CasoNumero{"PlusBehind", "5+", 5}, CasoNumero{"CommaBehind", "1234,", 1234},
        CasoNumero{"CommaInFront", ",5", 0.5}, CasoNumero{"MinusAndCommaInFront", "-,5", -0.5},
        CasoNumero{"PointIsSkippedAnywhere", "1..2", 12},
        CasoNumero{"PointIsSkippedBehindTheComma", "1,234.50", 1.2345}, CasoNumero{"PointAtTheEnd", "5.", 5},
        CasoNumero{"PointsPartNoDecimals", "1234.50", 123450},
        CasoNumero{"CurrencyWithABlank", "R$ 10,00", 10},
        CasoNumero{"MinusBeforeTheCurrency", "-R$ 10,00", -10},
        CasoNumero{"MinusBehindTheCurrency", "R$ -10,00", -10},
        CasoNumero{"BracketsAndCurrency", "(R$ 10,00)", -10}, CasoNumero{"BlanksInsideBrackets", "( 5 )", -5},
        CasoNumero{"ExponentWithComma", "1,5e3", 1500}, CasoNumero{"ExponentWithPlus", "1E+3", 1000},
        CasoNumero{"ExponentInCapitalD", "1D3", 1000},
        CasoNumero{"LeadingZeros", "000000000000000000000000000012,50", 12.5},
        CasoNumero{"SmallHexadecimal", "&hff", 255}, CasoNumero{"Octal", "&O17", 15},
        CasoNumero{"HexadecimalBetweenBlanks", " &H1F ", 31},
        CasoNumero{"FarTooSmall", "1e-99999999999999999999", 0},
        CasoNumero{"ZeroTimesAnything", "0e99999999999999999999", 0},
        CasoNumero{"LongAndSmallTogether", "1000000e-310", 1e-304}, CasoNumero{"MinusZero", "-0", 0}),
    Nome);

TEST(CDbl, MinusZeroHasNoSign)
{
    EXPECT_FALSE(std::signbit(CDbl("-0")));
    EXPECT_FALSE(std::signbit(CDbl("(0,00)")));
    EXPECT_FALSE(std::signbit(Val("-0")));
}

class RecusaDeCDblTest : public testing::TestWithParam<CasoNumero> {};
TEST_P(RecusaDeCDblTest, IsATypeMismatch)
{
    EXPECT_FALSE(IsNumeric(GetParam().texto));
    EXPECT_EQ(ErroDe(GetParam().texto), ErrTypeMismatch);
}

INSTANTIATE_TEST_SUITE_P(
    Numero, RecusaDeCDblTest,
    testing::Values(
        CasoNumero{"Empty", "", 0}, CasoNumero{"Blanks", "   ", 0}, CasoNumero{"CommaAlone", ",", 0},
        CasoNumero{"PointAlone", ".", 0}, CasoNumero{"PointInFront", ".5", 0},
        CasoNumero{"MinusAndPointInFront", "-.5", 0}, CasoNumero{"DollarAlone", "$10", 0},
        CasoNumero{"TwoCommas", "1,2,3", 0}, CasoNumero{"BlankInside", "1 2", 0},
        CasoNumero{"LetterBehind", "12a", 0}, CasoNumero{"SignOnBothSides", "-5-", 0},
        CasoNumero{"SignAlone", "-", 0}, CasoNumero{"CurrencyAlone", "R$", 0},
        CasoNumero{"CurrencyTwice", "R$ 5 R$", 0}, CasoNumero{"BracketNeverOpened", "5)", 0},
        CasoNumero{"EmptyBrackets", "()", 0}, CasoNumero{"BracketsAndAMinusBehind", "(5)-", 0},
        CasoNumero{"TwoBrackets", "((5))", 0}, CasoNumero{"ExponentWithoutDigits", "1e", 0},
        CasoNumero{"ExponentWithAComma", "1e3,5", 0}, CasoNumero{"FarTooGreat", "1e99999999999999999999", 0},
        CasoNumero{"DigitsOfAnotherScript", u"١٢"_qs, 0}, CasoNumero{"HexadecimalWithoutDigits", "&H", 0},
        CasoNumero{"HexadecimalWithOtherLetters", "&H1G", 0},
        CasoNumero{"HexadecimalOfTooManyDigits", "&H11111111111111111", 0},
        CasoNumero{"NulInside", QString(QChar(u'\0')) + "1", 0}, CasoNumero{"Percent", "10%", 0}),
    Nome);

TEST(CDbl, TheRefusalNamesTheText)
{
    try {
        CDbl("doze");
        FAIL() << "nothing was thrown";
    } catch (const RuntimeError &erro) {
        EXPECT_EQ(erro.text().toStdString(), u"\"doze\" não é um número."_qs.toStdString());
        EXPECT_STREQ(erro.what(), erro.text().toUtf8().constData());
    }
}

TEST(CDbl, HundredsOfDigitsThatFitAreRead)
{
    const QString texto = QString(1000, QLatin1Char('0')) + QString(308, QLatin1Char('9'));
    EXPECT_DOUBLE_EQ(CDbl(texto), 1e308);
    EXPECT_FALSE(IsNumeric(texto + "00"));
}

class ValTest : public testing::TestWithParam<CasoNumero> {};
TEST_P(ValTest, Reads)
{
    EXPECT_DOUBLE_EQ(Val(GetParam().texto), GetParam().numero);
}

INSTANTIATE_TEST_SUITE_P(
    Numero, ValTest,
    testing::Values(CasoNumero{"CommaEndsIt", "12,99", 12}, CasoNumero{"PointInFront", ".5", 0.5},
                    CasoNumero{"MinusAndPointInFront", "-.5", -0.5}, CasoNumero{"PointAlone", ".", 0},
                    CasoNumero{"PlusInFront", "+7", 7}, CasoNumero{"TwoSigns", "--7", 0},
                    CasoNumero{"MinusAlone", "-", 0}, CasoNumero{"BlankBehindTheMinus", "- 7", -7},
                    CasoNumero{"BlanksBetweenDigits", " 1 2 3 ", 123},
                    CasoNumero{"TabAndLineFeedAreBlanks", "\t1\n2", 12},
                    CasoNumero{"NoBreakSpaceEndsIt", u"1\u00A02"_qs, 1},
                    CasoNumero{"LetterEndsIt", "45a6", 45}, CasoNumero{"LettersAloneAreZero", "abc", 0},
                    CasoNumero{"Exponent", "2.5E2", 250}, CasoNumero{"ExponentInD", "1d2", 100},
                    CasoNumero{"ExponentOfTwoSigns", "1e--2", 1}, CasoNumero{"ExponentAlone", "e5", 0},
                    CasoNumero{"Hexadecimal", "&H1F", 31},
                    CasoNumero{"HexadecimalOfSixteenBits", "&HFFFF", -1},
                    CasoNumero{"HexadecimalOfThirtyTwoBits", "&HFFFFFFFF", -1},
                    CasoNumero{"HexadecimalBetweenThem", "&H10000", 65536}, CasoNumero{"Octal", "&o20", 16},
                    CasoNumero{"CurrencyIsNoNumber", "R$ 5", 0}, CasoNumero{"BracketIsNoNumber", "(5)", 0},
                    CasoNumero{"PositionWithASmallSignBehind", "012+", 12},
                    CasoNumero{"NulEndsIt", QString("1") + QChar(u'\0') + "2", 1},
                    CasoNumero{"TooGreatIsTheGreatest", "1e999", std::numeric_limits<double>::max()},
                    CasoNumero{"TooGreatBelowZero", "-1e999", -std::numeric_limits<double>::max()},
                    CasoNumero{"TooSmallIsZero", "1e-999", 0}),
    Nome);

struct CasoCentavos {
    std::string nome;
    double valor;
    qint64 centavos;
};
void PrintTo(const CasoCentavos &caso, std::ostream *os)
{
    *os << caso.valor << " in cents";
}
class CentavosTest : public testing::TestWithParam<CasoCentavos> {};
TEST_P(CentavosTest, Rounds)
{
    EXPECT_EQ(Centavos(GetParam().valor), GetParam().centavos);
}

INSTANTIATE_TEST_SUITE_P(
    Numero, CentavosTest,
    testing::Values(CasoCentavos{"Zero", 0, 0}, CasoCentavos{"Whole", 1234, 123400},
                    CasoCentavos{"Cents", 1234.56, 123456}, CasoCentavos{"OneCent", 0.01, 1},
                    CasoCentavos{"TiesGoUp", 1.005, 101}, CasoCentavos{"TiesGoUpAgain", 2.675, 268},
                    CasoCentavos{"NegativeTiesGoAway", -1.005, -101}, CasoCentavos{"HalfACent", 0.005, 1},
                    CasoCentavos{"LessThanHalfACent", 0.00499999, 0},
                    CasoCentavos{"SumOfTenths", 0.1 + 0.2, 30},
                    CasoCentavos{"CarryThroughAllDigits", 999.995, 100000},
                    CasoCentavos{"TinyIsZero", -1e-300, 0}, CasoCentavos{"ThreeTimesAThird", 33.33 * 3, 9999},
                    CasoCentavos{"FifteenDigits", 9999999999999.99, 999999999999999},
                    CasoCentavos{"OutOfRange", 1e300, std::numeric_limits<qint64>::max()},
                    CasoCentavos{"OutOfRangeBelow", -1e300, -std::numeric_limits<qint64>::max()}),
    [](const auto &caso) { return caso.param.nome; });

TEST(Centavos, NoNumberIsABadArgument)
{
    for (const double valor : {std::nan(""), HUGE_VAL, -HUGE_VAL}) {
        try {
            Centavos(valor);
            ADD_FAILURE() << "nothing was thrown for " << valor;
        } catch (const RuntimeError &erro) {
            EXPECT_EQ(erro.number(), ErrInvalidCall);
        }
    }
}

} // namespace
