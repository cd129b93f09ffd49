// The grid: columns and lines go out to positions and come back unchanged, on the paper and beyond it.
#include "registers/Grade.h"

#include <gtest/gtest.h>

using namespace registers;

namespace {

std::string Numero(int n)
{
    return QString("%1").arg(n, 3, 10, QLatin1Char('0')).toStdString();
}

class LinhaDaGrade : public testing::TestWithParam<int> {};
TEST_P(LinhaDaGrade, GoesOutAndComesBackUnchanged)
{
    const double topo = TopoDaLinha(GetParam());
    EXPECT_EQ(topo, 119 + (GetParam() - 1) * 188);
    EXPECT_EQ(LeLinha(topo).toStdString(), Numero(GetParam()));
}
TEST_P(LinhaDaGrade, StandsALittleBelowTheWholeNumber)
{
    const double linha = LinhasAcima(TopoDaLinha(GetParam())) + 1;
    EXPECT_LT(linha, GetParam());
    EXPECT_GT(linha, GetParam() - 0.006);
}
INSTANTIATE_TEST_SUITE_P(Papel, LinhaDaGrade, testing::Range(1, 22));

class ColunaDaGrade : public testing::TestWithParam<int> {};
TEST_P(ColunaDaGrade, GoesOutAndComesBackUnchanged)
{
    const double esquerda = EsquerdaDaColuna(GetParam());
    EXPECT_EQ(esquerda, 119 + (GetParam() - 1) * 68);
    EXPECT_EQ(LeColuna(esquerda).toStdString(), Numero(GetParam()));
}
TEST_P(ColunaDaGrade, StandsALittleBelowTheWholeNumber)
{
    const double coluna = ColunasAntes(EsquerdaDaColuna(GetParam())) + 1;
    EXPECT_LT(coluna, GetParam());
    EXPECT_GT(coluna, GetParam() - 0.015);
}
TEST_P(ColunaDaGrade, EveryDistanceFromACityThereComesBackAsTheirSum)
{
    for (int distancia = 0; distancia <= 120; ++distancia) {
        const double esquerda = EsquerdaDaParteDaData(EsquerdaDaColuna(GetParam()), distancia);
        EXPECT_EQ(LeColunaDaParteDaData(esquerda).toStdString(), Numero(GetParam() + distancia)) << distancia;
    }
}
INSTANTIATE_TEST_SUITE_P(Papel, ColunaDaGrade, testing::Range(1, 121));

TEST(EsquerdaDaParteDaData, StandsOneColumnAndOneUnitToTheLeftOnPurpose)
{
    EXPECT_EQ(EsquerdaDaParteDaData(EsquerdaDaColuna(50), 31), 5490);
    EXPECT_EQ(EsquerdaDaColuna(81), 5559);
    EXPECT_EQ(kRecuoDaData, 5559 - 5490);
}

struct CasoForaDoPapel {
    std::string nome;
    double numero;
    double esquerda;
    double topo;
    std::string coluna;
    std::string linha;
};
void PrintTo(const CasoForaDoPapel &c, std::ostream *os)
{
    *os << c.nome;
}
class ForaDoPapel : public testing::TestWithParam<CasoForaDoPapel> {};
TEST_P(ForaDoPapel, FollowsTheFormulas)
{
    const CasoForaDoPapel &caso = GetParam();
    EXPECT_EQ(EsquerdaDaColuna(caso.numero), caso.esquerda);
    EXPECT_EQ(TopoDaLinha(caso.numero), caso.topo);
    EXPECT_EQ(LeColuna(caso.esquerda).toStdString(), caso.coluna);
    EXPECT_EQ(LeLinha(caso.topo).toStdString(), caso.linha);
}
INSTANTIATE_TEST_SUITE_P(Numeros, ForaDoPapel,
                         testing::Values(CasoForaDoPapel{"ZeroShowsTheSignOfTheLostUnit", 0, 51, -69, "-000",
                                                         "-000"},
                                         CasoForaDoPapel{"BelowZero", -3, -153, -633, "-003", "-003"},
                                         CasoForaDoPapel{"ThreeDigits", 999, 67983, 187743, "999", "999"},
                                         CasoForaDoPapel{"FourDigits", 1000, 68051, 187931, "1000", "1000"}),
                         [](const auto &caso) { return caso.param.nome; });

struct CasoNumero {
    std::string nome;
    QString texto;
    double numero;
};
void PrintTo(const CasoNumero &c, std::ostream *os)
{
    *os << c.texto.toStdString();
}
class NumeroDeTexto : public testing::TestWithParam<CasoNumero> {};
TEST_P(NumeroDeTexto, IsTheLeadingNumberOrZero)
{
    EXPECT_EQ(NumeroDoLeiaute(GetParam().texto), GetParam().numero);
}
INSTANTIATE_TEST_SUITE_P(Textos, NumeroDeTexto,
                         testing::Values(CasoNumero{"ThreeDigits", "092", 92}, CasoNumero{"Nothing", "", 0},
                                         CasoNumero{"Letters", "abc", 0}, CasoNumero{"Negative", "-03", -3},
                                         CasoNumero{"TooLarge", "1e300", 1000000},
                                         CasoNumero{"TooSmall", "-1e300", -1000000}),
                         [](const auto &caso) { return caso.param.nome; });

} // namespace
