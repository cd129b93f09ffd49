// Dates as they are typed: the bar rule, what counts as a day, today, and month names.
#include "nucleo/DatasDeEntrada.h"

#include <gtest/gtest.h>
#include <string>

using namespace nucleo;

namespace {

struct CasoBarras {
    std::string nome;
    const char *digitado;
    const char *campo;
};

void PrintTo(const CasoBarras &c, std::ostream *os)
{
    *os << '"' << c.digitado << '"';
}

struct CasoData {
    std::string nome;
    const char *texto;
    bool valida;
};

void PrintTo(const CasoData &c, std::ostream *os)
{
    *os << '"' << c.texto << '"';
}

struct CasoMes {
    std::string nome;
    double numero;
    const char *mes;
};

void PrintTo(const CasoMes &c, std::ostream *os)
{
    *os << c.numero;
}

class AplicaRegraDasBarrasTest : public testing::TestWithParam<CasoBarras> {};
class DataValidaTest : public testing::TestWithParam<CasoData> {};
class MesPorNumeroTest : public testing::TestWithParam<CasoMes> {};

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };

} // namespace

TEST_P(AplicaRegraDasBarrasTest, LeavesTheField)
{
    EXPECT_EQ(AplicaRegraDasBarras(GetParam().digitado).toStdString(), GetParam().campo);
}

INSTANTIATE_TEST_SUITE_P(
    Digitadas, AplicaRegraDasBarrasTest,
    testing::Values(CasoBarras{"SixDigitsStay", "010299", "010299"},
                    CasoBarras{"EightCharactersLoseTheirBars", "01/02/99", "010299"},
                    CasoBarras{"ShortPartsAreFilledAndTheLongYearCut", "1/2/2003", "010203"},
                    CasoBarras{"TenCharactersGiveTheCenturyForTheYear", "01/02/2003", "010220"},
                    CasoBarras{"SixCharactersStayWithTheirBars", "1/2/99", "1/2/99"},
                    CasoBarras{"SevenCharactersLeaveOneDigitOfTheYear", "1/02/99", "01029"},
                    CasoBarras{"EightDigitsTakeTheLastTwo", "01022003", "010203"},
                    CasoBarras{"OneBarKeepsWhatFollowsIt", "01/0299", "0299"},
                    CasoBarras{"SevenDigitsStay", "0102999", "0102999"},
                    CasoBarras{"ThirdBarFallsBehindTheYear", "1/2/3/99", "010299"},
                    CasoBarras{"WordsAroundBarsBecomeZeros", "aa/bb/cc", "0000cc"},
                    CasoBarras{"EmptyStays", "", ""}),
    kNomeDoCaso);

TEST_P(DataValidaTest, JudgesByPosition)
{
    EXPECT_EQ(DataValida(GetParam().texto), GetParam().valida);
}

INSTANTIATE_TEST_SUITE_P(
    Datas, DataValidaTest,
    testing::Values(
        CasoData{"LeapDayOfYearZero", "290200", true}, CasoData{"LeapDayOfACommonYear", "290299", false},
        CasoData{"LeapDayOfALeapYear", "290296", true}, CasoData{"Feb30OfALeapYear", "300296", false},
        CasoData{"Feb28OfACommonYear", "280299", true}, CasoData{"Feb30OfYearZero", "300200", false},
        CasoData{"LeapDayWithoutAYear", "2902", true}, CasoData{"LeapDayOfAnUnreadableYear", "2902xx", true},
        CasoData{"LeapDayOf1900ByTheRuleOfFour", "29021900", true},
        CasoData{"LeapDayOf1999", "29021999", false}, CasoData{"April31", "310499", false},
        CasoData{"DayZero", "001299", false}, CasoData{"Month13", "011399", false},
        CasoData{"MonthZero", "010099", false}, CasoData{"Empty", "", false},
        CasoData{"DayOnly", "01", false}, CasoData{"Letters", "abcdef", false},
        CasoData{"ShortPartsWithBars", "1/2/99", true}, CasoData{"FourDigits", "1102", true},
        CasoData{"BarsInFullPlaceAreNoMonth", "01/02/99", false}),
    kNomeDoCaso);

INSTANTIATE_TEST_SUITE_P(
    UltimosDias, DataValidaTest,
    testing::Values(CasoData{"January31", "310199", true}, CasoData{"January32", "320199", false},
                    CasoData{"March31", "310399", true}, CasoData{"March32", "320399", false},
                    CasoData{"April30", "300499", true}, CasoData{"May31", "310599", true},
                    CasoData{"May32", "320599", false}, CasoData{"June30", "300699", true},
                    CasoData{"June31", "310699", false}, CasoData{"July31", "310799", true},
                    CasoData{"July32", "320799", false}, CasoData{"August31", "310899", true},
                    CasoData{"August32", "320899", false}, CasoData{"September30", "300999", true},
                    CasoData{"September31", "310999", false}, CasoData{"October31", "311099", true},
                    CasoData{"October32", "321099", false}, CasoData{"November30", "301199", true},
                    CasoData{"November31", "311199", false}, CasoData{"December31", "311299", true},
                    CasoData{"December32", "321299", false}),
    kNomeDoCaso);

TEST(HojeParaCampo, IsDayMonthAndTwoDigitsOfTheYear)
{
    EXPECT_EQ(HojeParaCampo(QDate(2003, 2, 1)), "010203");
    EXPECT_EQ(HojeParaCampo(QDate(1999, 12, 31)), "311299");
}

TEST_P(MesPorNumeroTest, NamesTheMonth)
{
    EXPECT_EQ(MesPorNumero(GetParam().numero).toStdString(), GetParam().mes);
}

INSTANTIATE_TEST_SUITE_P(
    Meses, MesPorNumeroTest,
    testing::Values(CasoMes{"January", 1, "Janeiro"}, CasoMes{"February", 2, "Fevereiro"},
                    CasoMes{"March", 3, "Março"}, CasoMes{"April", 4, "Abril"}, CasoMes{"May", 5, "Maio"},
                    CasoMes{"June", 6, "Junho"}, CasoMes{"July", 7, "Julho"}, CasoMes{"August", 8, "Agosto"},
                    CasoMes{"September", 9, "Setembro"}, CasoMes{"October", 10, "Outubro"},
                    CasoMes{"November", 11, "Novembro"}, CasoMes{"December", 12, "Dezembro"}),
    kNomeDoCaso);

INSTANTIATE_TEST_SUITE_P(Outros, MesPorNumeroTest,
                         testing::Values(CasoMes{"Zero", 0, "ERRO"}, CasoMes{"Thirteen", 13, "ERRO"},
                                         CasoMes{"Negative", -1, "ERRO"},
                                         CasoMes{"TwoAndAHalf", 2.5, "ERRO"}),
                         kNomeDoCaso);
