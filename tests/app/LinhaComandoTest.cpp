// The command line that prefills a cheque.
#include "app/LinhaComando.h"
#include "apoio/Caixas.h"

#include <gtest/gtest.h>

using app::ArgumentosLinha;
using app::LeLinhaComando;

namespace {

struct CasoLinha {
    std::string nome;
    QString linha;
    ArgumentosLinha esperado;
};
void PrintTo(const CasoLinha &caso, std::ostream *os)
{
    *os << caso.nome;
}
class LinhaComandoTest : public testing::TestWithParam<CasoLinha> {};
TEST_P(LinhaComandoTest, FillsTheFields)
{
    EXPECT_EQ(LeLinhaComando(GetParam().linha), GetParam().esperado);
}
INSTANTIATE_TEST_SUITE_P(
    Linhas, LinhaComandoTest,
    testing::Values(
        CasoLinha{"AllLetters",
                  "/B237/V150,00/FName/LCity/D010299/C000123",
                  {"237", "150,00", "Name", "City", "010299", "", "000123", ""}},
        CasoLinha{"LettersInAnyCase", "/b341/v10/fX/lY/d1/c2", {"341", "10", "X", "Y", "1", "", "2", ""}},
        CasoLinha{"UnknownLetterIsDropped", "/X12", {}},
        CasoLinha{"LetterWithoutAValueIsForgotten", "/B/V10,00", {"", "10,00"}},
        CasoLinha{"DateWithBarsIsCutAtTheBars", "/D01/02/99", {"", "", "", "", "01"}},
        CasoLinha{"ValueMayHoldBlanks", "/FJoao da Silva /V1", {"", "1", "Joao da Silva"}},
        CasoLinha{"ValueOfBlanksIsEmpty", "/B   /V1", {"", "1"}},
        CasoLinha{"TextBeforeTheFirstBarIsSkipped", "qx70 --x 12 /B001", {"001"}},
        CasoLinha{"LastOfTwoEqualLettersHolds", "/B001/B002", {"002"}},
        CasoLinha{"BlankIsTheLetter", "/ B001", {}}, CasoLinha{"OnlyABar", "/", {}},
        CasoLinha{"Empty", "", {}}, CasoLinha{"TwoBars", "//B001", {"001"}},
        CasoLinha{"Accents", QString::fromUtf8("/LSão Paulo"), {"", "", "", QString::fromUtf8("São Paulo")}}),
    [](const auto &caso) { return caso.param.nome; });

TEST(GuardaArgumento, IndicesFiveAndSevenAreNeverFilled)
{
    for (int letra = 32; letra < 256; ++letra) {
        ArgumentosLinha argumentos;
        app::GuardaArgumento(argumentos, QString(QChar(letra)), "x");
        EXPECT_EQ(argumentos[5], "") << letra;
        EXPECT_EQ(argumentos[7], "") << letra;
    }
}

} // namespace
