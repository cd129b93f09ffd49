// The position rule of a bank layout, each limit from both sides.
#include "device/Posicoes.h"

#include <gtest/gtest.h>
#include <map>
#include <string>

using device::TextosDoBanco;
using device::VerificaPosicoes;

namespace {

struct CasoPosicao {
    std::string nome;
    std::map<size_t, const char *> caixas; ///< what differs from a layout that passes
    bool passa;
};

void PrintTo(const CasoPosicao &c, std::ostream *os)
{
    for (const auto &[caixa, texto] : c.caixas)
        *os << "Text1(" << caixa << ")=" << texto << " ";
}

TextosDoBanco Leiaute(const CasoPosicao &caso)
{
    TextosDoBanco textos{"237", "BANCO EXEMPLO", "001", "005", "007", "010", "013", "092",
                         "017", "009",           "011", "050", "031", "040", "065"};
    for (const auto &[caixa, texto] : caso.caixas)
        textos.at(caixa) = texto;
    return textos;
}

class VerificaPosicoesTest : public testing::TestWithParam<CasoPosicao> {};

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };

} // namespace

TEST_P(VerificaPosicoesTest, JudgesTheLayout)
{
    EXPECT_EQ(VerificaPosicoes(Leiaute(GetParam())), GetParam().passa);
}

INSTANTIATE_TEST_SUITE_P(Usual, VerificaPosicoesTest,
                         testing::Values(CasoPosicao{"StartingLayout", {}, true},
                                         CasoPosicao{"NameIsNotLookedAt", {{1, ""}}, true}),
                         kNomeDoCaso);

INSTANTIATE_TEST_SUITE_P(Isentos, VerificaPosicoesTest,
                         testing::Values(CasoPosicao{"Bank995", {{0, "995"}, {6, "999"}}, true},
                                         CasoPosicao{"Bank999", {{0, "999"}, {2, "999"}}, true},
                                         CasoPosicao{"Bank994", {{0, "994"}, {6, "018"}}, false}),
                         kNomeDoCaso);

INSTANTIATE_TEST_SUITE_P(
    Ordem, VerificaPosicoesTest,
    testing::Values(CasoPosicao{"ValueLineEqualsFirstWords", {{2, "001"}, {3, "001"}}, false},
                    CasoPosicao{"ValueLineAboveFirstWords", {{2, "001"}, {3, "004"}}, true},
                    CasoPosicao{"ValueAndFirstWordsBothFour", {{2, "004"}, {3, "004"}}, false},
                    CasoPosicao{"WordsLinesEqual", {{3, "007"}, {4, "007"}}, false},
                    CasoPosicao{"SecondWordsAndPayeeEqual", {{4, "010"}, {5, "010"}}, false},
                    CasoPosicao{"PayeeAndCityEqual", {{5, "013"}, {6, "013"}}, false},
                    CasoPosicao{"PayeeBehindCity", {{5, "014"}, {6, "013"}}, false},
                    CasoPosicao{"DayAndMonthEqual", {{12, "040"}, {13, "040"}}, false},
                    CasoPosicao{"MonthAndYearEqual", {{13, "065"}, {14, "065"}}, false},
                    CasoPosicao{"DayAfterMonth", {{12, "041"}, {13, "040"}}, false}),
    kNomeDoCaso);

// On purpose: the order is that of the texts, so that without leading zeros "9" stands behind "10".
INSTANTIATE_TEST_SUITE_P(
    OrdemDeTexto, VerificaPosicoesTest,
    testing::Values(
        CasoPosicao{"NineBeforeTenAsNumbersFails", {{4, "9"}, {5, "10"}}, false},
        CasoPosicao{"TenBeforeNineAsTextsPasses", {{12, "010"}, {13, "9"}, {14, "95"}, {11, "020"}}, true}),
    kNomeDoCaso);

INSTANTIATE_TEST_SUITE_P(
    Linhas, VerificaPosicoesTest,
    testing::Values(CasoPosicao{"ValueLineZero", {{2, "000"}}, false},
                    CasoPosicao{"ValueLineFive", {{2, "005"}, {3, "006"}}, true},
                    CasoPosicao{"ValueLineSix", {{2, "006"}, {3, "008"}, {4, "009"}}, false},
                    CasoPosicao{"FirstWordsThree", {{3, "003"}}, false},
                    CasoPosicao{"FirstWordsFour", {{3, "004"}}, true},
                    CasoPosicao{"FirstWordsNine", {{3, "009"}, {4, "010"}, {5, "011"}}, true},
                    CasoPosicao{"FirstWordsTen", {{3, "010"}, {4, "011"}, {5, "012"}}, false},
                    CasoPosicao{"SecondWordsFive", {{3, "004"}, {4, "005"}}, false},
                    CasoPosicao{"SecondWordsSix", {{3, "004"}, {4, "006"}}, true},
                    CasoPosicao{"SecondWordsTwelve", {{4, "012"}, {5, "013"}, {6, "014"}}, true},
                    CasoPosicao{"SecondWordsThirteen", {{4, "013"}, {5, "014"}, {6, "015"}}, false},
                    CasoPosicao{"PayeeSeven", {{3, "004"}, {4, "006"}, {5, "007"}}, false},
                    CasoPosicao{"PayeeEight", {{3, "004"}, {4, "006"}, {5, "008"}}, true},
                    CasoPosicao{"PayeeFifteen", {{5, "015"}, {6, "016"}}, true},
                    CasoPosicao{"PayeeSixteen", {{5, "016"}, {6, "017"}}, false},
                    CasoPosicao{"CityNine", {{5, "008"}, {6, "009"}}, false},
                    CasoPosicao{"CityTen", {{5, "008"}, {6, "010"}}, true},
                    CasoPosicao{"CitySeventeen", {{6, "017"}}, true},
                    CasoPosicao{"CityEighteen", {{6, "018"}}, false}),
    kNomeDoCaso);

INSTANTIATE_TEST_SUITE_P(
    Colunas, VerificaPosicoesTest,
    testing::Values(
        CasoPosicao{"Value118", {{7, "118"}}, true}, CasoPosicao{"Value119", {{7, "119"}}, false},
        CasoPosicao{"FirstWords118", {{8, "118"}}, true}, CasoPosicao{"FirstWords119", {{8, "119"}}, false},
        CasoPosicao{"SecondWords118", {{9, "118"}}, true}, CasoPosicao{"SecondWords119", {{9, "119"}}, false},
        CasoPosicao{"Payee118", {{10, "118"}}, true}, CasoPosicao{"Payee119", {{10, "119"}}, false},
        CasoPosicao{"City118WithDistancesAtTheLeft", {{11, "118"}, {12, "-4"}, {13, "-5"}, {14, "-6"}}, true},
        CasoPosicao{
            "City119WithDistancesAtTheLeft", {{11, "119"}, {12, "-5"}, {13, "-6"}, {14, "-7"}}, false},
        CasoPosicao{"ColumnZeroPasses", {{7, "000"}}, true}),
    kNomeDoCaso);

INSTANTIATE_TEST_SUITE_P(
    Somas, VerificaPosicoesTest,
    testing::Values(CasoPosicao{"DayAt114", {{11, "100"}, {12, "014"}, {13, "015"}, {14, "016"}}, true},
                    CasoPosicao{"DayAt115", {{11, "100"}, {12, "015"}, {13, "016"}, {14, "017"}}, false},
                    CasoPosicao{"MonthAt116", {{11, "100"}, {12, "001"}, {13, "016"}, {14, "017"}}, true},
                    CasoPosicao{"MonthAt117", {{11, "100"}, {12, "001"}, {13, "017"}, {14, "018"}}, false},
                    CasoPosicao{"YearAt115", {{11, "100"}, {12, "001"}, {13, "002"}, {14, "015"}}, true},
                    CasoPosicao{"YearAt118", {{11, "100"}, {12, "001"}, {13, "002"}, {14, "018"}}, true},
                    CasoPosicao{"YearAt119", {{11, "100"}, {12, "001"}, {13, "002"}, {14, "019"}}, false}),
    kNomeDoCaso);
