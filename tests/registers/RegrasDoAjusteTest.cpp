// Rules of the graphic adjustment: where the fields open, how far keys and mouse take them, and what goes
// back.
#include "registers/RegrasDoAjuste.h"
#include "CaixasDeTeste.h"
#include "device/Posicoes.h"

#include <gtest/gtest.h>

using namespace registers;

namespace {

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };
constexpr int kOutraTecla = 0;

LugaresDoAjuste Usual()
{
    return ColocaCampos({"001", "005", "007", "010", "013"},
                        {"092", "017", "009", "011", "050", "031", "040", "065"});
}
Lugar &Do(LugaresDoAjuste &lugares, int campo)
{
    return lugares.at(static_cast<std::size_t>(campo));
}
/// The usual layout with one field elsewhere.
LugaresDoAjuste Com(int campo, int linha, int coluna)
{
    LugaresDoAjuste lugares = Usual();
    Do(lugares, campo).topo = TopoDaLinha(linha);
    Do(lugares, campo).esquerda = EsquerdaDaColuna(coluna);
    return lugares;
}
void Aperta(LugaresDoAjuste &lugares, int campo, int tecla, int vezes)
{
    for (int i = 0; i < vezes; ++i)
        AplicaTecla(lugares, campo, tecla);
}
std::string Linha(const LugaresDoAjuste &lugares, int campo)
{
    return LeCampos(lugares).at(static_cast<std::size_t>(CelulasDe(campo).linha)).toStdString();
}
std::string Coluna(const LugaresDoAjuste &lugares, int campo)
{
    return LeCampos(lugares).at(static_cast<std::size_t>(CelulasDe(campo).coluna)).toStdString();
}
std::string Leitura(const LugaresDoAjuste &lugares)
{
    QStringList textos;
    for (const QString &texto : LeCampos(lugares))
        textos << texto;
    return textos.join(' ').toStdString();
}

// --- where they open ---

TEST(ColocaCampos, PutsEachFieldOnItsLineAndColumn)
{
    const LugaresDoAjuste lugares = Usual();
    const std::array<std::array<double, 3>, 8> esperados = {{{6307, 119, 14 * 68},
                                                             {1207, 871, 43 * 68},
                                                             {663, 1247, 40 * 68},
                                                             {799, 1811, 24 * 68},
                                                             {3451, 2375, 14 * 68},
                                                             {5490, 2375, 2 * 68 + 69},
                                                             {6102, 2375, 5 * 68 + 69},
                                                             {7802, 2375, 4 * 68 + 69}}};
    for (std::size_t i = 0; i < esperados.size(); ++i) {
        const auto &[esquerda, topo, largura] = esperados.at(i);
        EXPECT_EQ(lugares.at(i), (Lugar{esquerda, topo, largura})) << i;
    }
}

TEST(ColocaCampos, ShowsTheUsualLayoutAsItCame)
{
    EXPECT_EQ(Leitura(Usual()), "001 005 007 010 013 092 017 009 011 050 081 090 115");
}

TEST(ColocaCampos, CountsATextThatIsNoNumberAsZero)
{
    const LugaresDoAjuste lugares =
        ColocaCampos({"abc", "", "x7", "010", "-"}, {"?", "", "c", "011", "ab", "d"});
    EXPECT_EQ(lugares.at(0).esquerda, 51);
    EXPECT_EQ(lugares.at(0).topo, -69);
    EXPECT_EQ(lugares.at(5).esquerda, 51 - 69) << "day at a distance of 0 from a city at column 0";
    EXPECT_EQ(Leitura(lugares), "-000 -000 -000 010 -000 -000 -000 -000 011 -000 -000 -000 -000");
}

TEST(ColocaCampos, ANumberBeyondAllMeasureStaysOne)
{
    const LugaresDoAjuste lugares = ColocaCampos({"1e308"}, {"-1e308"});
    EXPECT_EQ(Linha(lugares, 0), "1000000");
    EXPECT_EQ(Coluna(lugares, 0), "-1000000");
}

TEST(AmostraDoCampo, SaysWhatTheFieldsPrint)
{
    EXPECT_EQ(AmostraDoCampo(0).toStdString(), "    #9.999,99#");
    EXPECT_EQ(AmostraDoCampo(1).toStdString(), "Nove Mil, Novecentos e Noventa e Nove Reais");
    EXPECT_EQ(AmostraDoCampo(2).toStdString(), "e Noventa e Nove CentavosXXXXXXXXXXXXXXX");
    EXPECT_EQ(AmostraDoCampo(5).size(), 2);
    EXPECT_EQ(AmostraDoCampo(6).toStdString(), "Junho");
    EXPECT_EQ(AmostraDoCampo(7).size(), 4);
}

// --- lines ---

struct CasoLinhas {
    std::string nome;
    int campo;
    int primeira;
    int ultima;
};
void PrintTo(const CasoLinhas &c, std::ostream *os)
{
    *os << c.nome;
}
class LinhasDoCampo : public testing::TestWithParam<CasoLinhas> {
protected:
    const int m_campo = GetParam().campo;
    const int m_primeira = GetParam().primeira;
    const int m_ultima = GetParam().ultima;
};
TEST_P(LinhasDoCampo, UpStopsOnTheLineOfItsLimit)
{
    LugaresDoAjuste lugares = Com(m_campo, m_primeira + 1, 20);
    EXPECT_TRUE(AplicaTecla(lugares, m_campo, plataforma::TeclaAcima));
    EXPECT_EQ(Do(lugares, m_campo).topo, TopoDaLinha(m_primeira));
    const LugaresDoAjuste antes = lugares;
    EXPECT_FALSE(AplicaTecla(lugares, m_campo, plataforma::TeclaAcima));
    EXPECT_EQ(lugares, antes);
}
TEST_P(LinhasDoCampo, DownStopsOneLineBelowItsLimit)
{
    LugaresDoAjuste lugares = Com(m_campo, m_ultima - 1, 20);
    EXPECT_TRUE(AplicaTecla(lugares, m_campo, plataforma::TeclaAbaixo));
    EXPECT_EQ(Do(lugares, m_campo).topo, TopoDaLinha(m_ultima));
    const LugaresDoAjuste antes = lugares;
    EXPECT_FALSE(AplicaTecla(lugares, m_campo, plataforma::TeclaAbaixo));
    EXPECT_EQ(lugares, antes);
}
TEST_P(LinhasDoCampo, FromBeyondTheyComeInAndNoFurther)
{
    LugaresDoAjuste lugares = Com(m_campo, 40, 20);
    EXPECT_FALSE(AplicaTecla(lugares, m_campo, plataforma::TeclaAbaixo));
    Aperta(lugares, m_campo, plataforma::TeclaAcima, 60);
    EXPECT_EQ(Do(lugares, m_campo).topo, TopoDaLinha(m_primeira));
    lugares = Com(m_campo, -5, 20);
    EXPECT_FALSE(AplicaTecla(lugares, m_campo, plataforma::TeclaAcima));
    Aperta(lugares, m_campo, plataforma::TeclaAbaixo, 60);
    EXPECT_EQ(Do(lugares, m_campo).topo, TopoDaLinha(m_ultima));
}
TEST_P(LinhasDoCampo, UpAndDownKeepTheColumn)
{
    LugaresDoAjuste lugares = Com(m_campo, m_primeira, 20);
    Aperta(lugares, m_campo, plataforma::TeclaAbaixo, 3);
    Aperta(lugares, m_campo, plataforma::TeclaAcima, 1);
    EXPECT_EQ(Do(lugares, m_campo).esquerda, EsquerdaDaColuna(20));
    EXPECT_EQ(Do(lugares, m_campo).topo, TopoDaLinha(m_primeira + 2));
}
INSTANTIATE_TEST_SUITE_P(Campos, LinhasDoCampo,
                         testing::Values(CasoLinhas{"Amount", 0, 1, 5}, CasoLinhas{"FirstWords", 1, 4, 9},
                                         CasoLinhas{"SecondWords", 2, 6, 12}, CasoLinhas{"Payee", 3, 8, 15},
                                         CasoLinhas{"City", 4, 10, 17}),
                         kNomeDoCaso);

class ParteDaData : public testing::TestWithParam<int> {};
TEST_P(ParteDaData, UpHasNoLastingEffect)
{
    LugaresDoAjuste lugares = Usual();
    EXPECT_TRUE(AplicaTecla(lugares, GetParam(), plataforma::TeclaAcima)) << "it moves, and is moved back";
    EXPECT_EQ(lugares, Usual());
}
TEST_P(ParteDaData, DownEndsEarly)
{
    LugaresDoAjuste lugares = Usual();
    EXPECT_FALSE(AplicaTecla(lugares, GetParam(), plataforma::TeclaAbaixo));
    EXPECT_EQ(lugares, Usual());
}
TEST_P(ParteDaData, FollowsTheCityToItsLine)
{
    LugaresDoAjuste lugares = Usual();
    Aperta(lugares, AjusteCidade, plataforma::TeclaAbaixo, 2);
    EXPECT_EQ(Do(lugares, GetParam()).topo, TopoDaLinha(15));
}
TEST_P(ParteDaData, StaysInItsColumnWhenTheCityMoves)
{
    LugaresDoAjuste lugares = Usual();
    const std::string antes = Coluna(lugares, GetParam());
    Aperta(lugares, AjusteCidade, plataforma::TeclaEsquerda, 10);
    EXPECT_EQ(Coluna(lugares, GetParam()), antes);
}
// Their positions stand one column to the left, and the edges of the paper are those of the positions.
TEST_P(ParteDaData, ReachesColumns2To121OnPurpose)
{
    LugaresDoAjuste lugares = Usual();
    Aperta(lugares, GetParam(), plataforma::TeclaEsquerda, 200);
    EXPECT_EQ(Coluna(lugares, GetParam()), "002");
    Aperta(lugares, GetParam(), plataforma::TeclaDireita, 200);
    EXPECT_EQ(Coluna(lugares, GetParam()), "121");
}
// Only a key that does not end early, or any other key, brings them back to the city's line.
TEST_P(ParteDaData, ComesBackToTheCitysLineAfterAnyKeyButOneThatEndedEarly)
{
    LugaresDoAjuste lugares = Com(AjusteCidade, 17, 50);
    Do(lugares, GetParam()).topo = TopoDaLinha(3);
    EXPECT_FALSE(AplicaTecla(lugares, AjusteCidade, plataforma::TeclaAbaixo));
    EXPECT_EQ(Do(lugares, GetParam()).topo, TopoDaLinha(3));
    EXPECT_FALSE(AplicaTecla(lugares, AjusteCidade, kOutraTecla)) << "the read-out stays";
    EXPECT_EQ(Do(lugares, GetParam()).topo, TopoDaLinha(17));
}
INSTANTIATE_TEST_SUITE_P(Campos, ParteDaData, testing::Values(AjusteDia, AjusteMes, AjusteAno));

TEST(AplicaTecla, AboveTheFirstLineADateDoesNotClimb)
{
    LugaresDoAjuste lugares = Com(AjusteCidade, 1, 50);
    AplicaTecla(lugares, AjusteDia, kOutraTecla);
    EXPECT_TRUE(AplicaTecla(lugares, AjusteDia, plataforma::TeclaAcima));
    EXPECT_EQ(lugares.at(AjusteDia).topo, TopoDaLinha(1));
}

TEST(AplicaTecla, AnotherKeyMovesNothing)
{
    for (const int tecla : {kOutraTecla, 13, 35, 36, 41, 114}) {
        LugaresDoAjuste lugares = Usual();
        EXPECT_FALSE(AplicaTecla(lugares, AjusteValor, tecla)) << tecla;
        EXPECT_EQ(lugares, Usual()) << tecla;
    }
}

// --- columns ---

class ColunasDoCampo : public testing::TestWithParam<int> {};
TEST_P(ColunasDoCampo, LeftAndRightGoToTheEdgesAndNoFurther)
{
    const int campo = GetParam();
    LugaresDoAjuste lugares = Com(campo, 10, 2);
    EXPECT_TRUE(AplicaTecla(lugares, campo, plataforma::TeclaEsquerda));
    EXPECT_EQ(Coluna(lugares, campo), "001");
    const LugaresDoAjuste naEsquerda = lugares;
    EXPECT_TRUE(AplicaTecla(lugares, campo, plataforma::TeclaEsquerda))
        << "no limit of lines: the read-out is filled";
    EXPECT_EQ(lugares, naEsquerda);
    lugares = Com(campo, 10, 119);
    EXPECT_TRUE(AplicaTecla(lugares, campo, plataforma::TeclaDireita));
    EXPECT_EQ(Coluna(lugares, campo), "120");
    const LugaresDoAjuste naDireita = lugares;
    EXPECT_TRUE(AplicaTecla(lugares, campo, plataforma::TeclaDireita));
    EXPECT_EQ(lugares, naDireita) << "nothing changes, the width neither";
    EXPECT_EQ(Do(lugares, campo).topo, TopoDaLinha(10));
}
TEST_P(ColunasDoCampo, FromBeyondTheEdgesTheyComeIn)
{
    const int campo = GetParam();
    LugaresDoAjuste lugares = Com(campo, 10, 300);
    AplicaTecla(lugares, campo, plataforma::TeclaDireita);
    EXPECT_EQ(Coluna(lugares, campo), "300");
    AplicaTecla(lugares, campo, plataforma::TeclaEsquerda);
    EXPECT_EQ(Coluna(lugares, campo), "299");
    lugares = Com(campo, 10, -2);
    AplicaTecla(lugares, campo, plataforma::TeclaEsquerda);
    EXPECT_EQ(Coluna(lugares, campo), "-002");
    AplicaTecla(lugares, campo, plataforma::TeclaDireita);
    EXPECT_EQ(Coluna(lugares, campo), "-001");
}
INSTANTIATE_TEST_SUITE_P(Campos, ColunasDoCampo,
                         testing::Values(AjusteValor, AjusteExtenso1, AjusteExtenso2, AjusteFavorecido,
                                         AjusteCidade));

// --- widths ---

struct CasoLargura {
    std::string nome;
    int campo;
    int de; ///< column before the key
    int tecla;
    int cresce;
};
void PrintTo(const CasoLargura &c, std::ostream *os)
{
    *os << c.nome;
}
class LarguraDoCampo : public testing::TestWithParam<CasoLargura> {};
TEST_P(LarguraDoCampo, FollowsTheRoomOnTheRight)
{
    LugaresDoAjuste lugares = Com(GetParam().campo, 10, GetParam().de);
    const double antes = Do(lugares, GetParam().campo).largura;
    AplicaTecla(lugares, GetParam().campo, GetParam().tecla);
    EXPECT_EQ(Do(lugares, GetParam().campo).largura - antes, GetParam().cresce);
}
INSTANTIATE_TEST_SUITE_P(
    Direita, LarguraDoCampo,
    testing::Values(CasoLargura{"FirstWordsInto75", 1, 74, plataforma::TeclaDireita, 0},
                    CasoLargura{"FirstWordsInto76", 1, 75, plataforma::TeclaDireita, -70},
                    CasoLargura{"SecondWordsInto75", 2, 74, plataforma::TeclaDireita, 0},
                    CasoLargura{"SecondWordsInto76", 2, 75, plataforma::TeclaDireita, -70},
                    CasoLargura{"SecondWordsInto120", 2, 119, plataforma::TeclaDireita, -70},
                    CasoLargura{"PayeeInto111", 3, 110, plataforma::TeclaDireita, 0},
                    CasoLargura{"PayeeInto112", 3, 111, plataforma::TeclaDireita, -70},
                    CasoLargura{"PayeeInto120", 3, 119, plataforma::TeclaDireita, -70},
                    CasoLargura{"PayeeAtTheEdge", 3, 120, plataforma::TeclaDireita, 0},
                    CasoLargura{"AmountNever", 0, 115, plataforma::TeclaDireita, 0},
                    CasoLargura{"CityNever", 4, 115, plataforma::TeclaDireita, 0},
                    CasoLargura{"DayNever", 5, 115, plataforma::TeclaDireita, 0}),
    kNomeDoCaso);
INSTANTIATE_TEST_SUITE_P(
    Esquerda, LarguraDoCampo,
    testing::Values(CasoLargura{"FirstWordsInto77", 1, 78, plataforma::TeclaEsquerda, 70},
                    CasoLargura{"FirstWordsInto76", 1, 77, plataforma::TeclaEsquerda, 0},
                    CasoLargura{"SecondWordsInto77", 2, 78, plataforma::TeclaEsquerda, 70},
                    CasoLargura{"SecondWordsInto76", 2, 77, plataforma::TeclaEsquerda, 0},
                    CasoLargura{"FirstWordsInto119", 1, 120, plataforma::TeclaEsquerda, 70},
                    CasoLargura{"FirstWordsInto121", 1, 122, plataforma::TeclaEsquerda, 0},
                    CasoLargura{"PayeeInto112", 3, 113, plataforma::TeclaEsquerda, 70},
                    CasoLargura{"PayeeInto111", 3, 112, plataforma::TeclaEsquerda, 0},
                    CasoLargura{"PayeeInto120", 3, 121, plataforma::TeclaEsquerda, 70},
                    CasoLargura{"PayeeInto121", 3, 122, plataforma::TeclaEsquerda, 0},
                    CasoLargura{"AmountNever", 0, 115, plataforma::TeclaEsquerda, 0},
                    CasoLargura{"CityNever", 4, 115, plataforma::TeclaEsquerda, 0},
                    CasoLargura{"MonthNever", 6, 115, plataforma::TeclaEsquerda, 0}),
    kNomeDoCaso);

TEST(AplicaTecla, AWordsLinePastColumn76AndBackIsNarrowerOnPurpose)
{
    for (const int campo : {AjusteExtenso1, AjusteExtenso2}) {
        LugaresDoAjuste lugares = Com(campo, 8, 70);
        const Lugar antes = Do(lugares, campo);
        Aperta(lugares, campo, plataforma::TeclaDireita, 10);
        Aperta(lugares, campo, plataforma::TeclaEsquerda, 10);
        EXPECT_EQ(Do(lugares, campo), (Lugar{antes.esquerda, antes.topo, antes.largura - 140})) << campo;
    }
}

TEST(AplicaTecla, TheWidthIsKeptWhenNoRoomIsLeft)
{
    LugaresDoAjuste lugares = Com(AjusteExtenso1, 5, 17);
    Aperta(lugares, AjusteExtenso1, plataforma::TeclaDireita, 200);
    EXPECT_EQ(lugares.at(AjusteExtenso1).largura, 43 * 68 - 45 * 70);
    EXPECT_EQ(Coluna(lugares, AjusteExtenso1), "120");
}

// --- dragging ---

struct CasoArrasto {
    std::string nome;
    int campo;
    int linha, coluna; ///< of the place that it is taken to
    std::string chega; ///< line and column that it reaches
};
void PrintTo(const CasoArrasto &c, std::ostream *os)
{
    *os << c.nome;
}
class Arrasto : public testing::TestWithParam<CasoArrasto> {};
TEST_P(Arrasto, GoesAsFarAsKeysGo)
{
    const CasoArrasto &caso = GetParam();
    LugaresDoAjuste lugares = Usual();
    LevaCampo(lugares, caso.campo, EsquerdaDaColuna(caso.coluna), TopoDaLinha(caso.linha));
    EXPECT_EQ(Linha(lugares, caso.campo) + ' ' + Coluna(lugares, caso.campo), caso.chega);
}
INSTANTIATE_TEST_SUITE_P(Lugares, Arrasto,
                         testing::Values(CasoArrasto{"Inside", 1, 8, 30, "008 030"},
                                         CasoArrasto{"BeyondTheUpperLeft", 1, -50, -50, "004 001"},
                                         CasoArrasto{"BeyondTheLowerRight", 1, 50, 500, "009 120"},
                                         CasoArrasto{"CityTakesTheDateAlong", 4, 11, 40, "011 040"},
                                         CasoArrasto{"DateKeepsItsLine", 5, 2, 70, "013 071"}),
                         kNomeDoCaso);

TEST(LevaCampo, GoesToTheNearestStep)
{
    LugaresDoAjuste lugares = Usual();
    const Lugar antes = lugares.at(AjusteExtenso1);
    LevaCampo(lugares, AjusteExtenso1, antes.esquerda + 34, antes.topo - 94);
    EXPECT_EQ(lugares.at(AjusteExtenso1), antes) << "half a step is none";
    LevaCampo(lugares, AjusteExtenso1, antes.esquerda + 35, antes.topo + 95);
    EXPECT_EQ(lugares.at(AjusteExtenso1), (Lugar{antes.esquerda + 68, antes.topo + 188, antes.largura}));
}

TEST(LevaCampo, ChangesTheWidthAsTheKeysDo)
{
    LugaresDoAjuste comTeclas = Com(AjusteExtenso2, 7, 70);
    LugaresDoAjuste comRato = comTeclas;
    Aperta(comTeclas, AjusteExtenso2, plataforma::TeclaDireita, 10);
    LevaCampo(comRato, AjusteExtenso2, EsquerdaDaColuna(80), TopoDaLinha(7));
    EXPECT_EQ(comRato, comTeclas);
}

// --- what goes back ---

TEST(DevolveAsCaixas, ReturnsTheNumbersThatCame)
{
    teste::CaixasDeTeste caixas("001", "BANCO EXEMPLO");
    DevolveAsCaixas(LeCampos(Usual()), caixas);
    EXPECT_EQ(caixas.Numeros(), "001 005 007 010 013 092 017 009 011 050 031 040 065");
    EXPECT_EQ(caixas.Caixa(0).toStdString() + caixas.Caixa(1).toStdString(), "001BANCO EXEMPLO");
}

TEST(DevolveAsCaixas, APartOfTheDateBeforeTheCityIsANegativeDistance)
{
    LugaresDoAjuste lugares = Usual();
    Aperta(lugares, AjusteDia, plataforma::TeclaEsquerda, 34);
    Aperta(lugares, AjusteMes, plataforma::TeclaEsquerda, 40);
    teste::CaixasDeTeste caixas("001", "BANCO EXEMPLO");
    DevolveAsCaixas(LeCampos(lugares), caixas);
    EXPECT_EQ(caixas.Numeros(), "001 005 007 010 013 092 017 009 011 050 -003 000 065");
}

struct CasoIsento {
    std::string nome;
    QString codigo;
    bool isento;
};
void PrintTo(const CasoIsento &c, std::ostream *os)
{
    *os << c.codigo.toStdString();
}
class Isento : public testing::TestWithParam<CasoIsento> {};
TEST_P(Isento, From995On)
{
    EXPECT_EQ(device::IsentoDasPosicoes(GetParam().codigo), GetParam().isento);
}
INSTANTIATE_TEST_SUITE_P(Codigos, Isento,
                         testing::Values(CasoIsento{"Last", "994", false}, CasoIsento{"First", "995", true},
                                         CasoIsento{"Highest", "999", true},
                                         CasoIsento{"Usual", "001", false},
                                         CasoIsento{"Letters", "abc", false}, CasoIsento{"Empty", "", false}),
                         kNomeDoCaso);

struct CasoOrdem {
    std::string nome;
    std::array<QString, 8> linhas;
    std::array<QString, 11> colunas;
    bool emOrdem;
};
void PrintTo(const CasoOrdem &c, std::ostream *os)
{
    *os << c.nome;
}
class Ordem : public testing::TestWithParam<CasoOrdem> {};
TEST_P(Ordem, ComparesPositions)
{
    EXPECT_EQ(CamposEmOrdem(ColocaCampos(GetParam().linhas, GetParam().colunas)), GetParam().emOrdem);
}
INSTANTIATE_TEST_SUITE_P(
    Linhas, Ordem,
    testing::Values(
        CasoOrdem{"EachOneBelowTheLast",
                  {"4", "5", "6", "7", "8"},
                  {"1", "1", "1", "1", "1", "5", "9", "13"},
                  true},
        CasoOrdem{"AmountOnTheFirstWords",
                  {"5", "5", "7", "10", "13"},
                  {"", "", "", "", "", "5", "9", "13"},
                  false},
        CasoOrdem{"FirstWordsOnTheSecond",
                  {"1", "7", "7", "10", "13"},
                  {"", "", "", "", "", "5", "9", "13"},
                  false},
        CasoOrdem{"SecondWordsOnThePayee",
                  {"1", "5", "10", "10", "13"},
                  {"", "", "", "", "", "5", "9", "13"},
                  false},
        CasoOrdem{"PayeeOnTheCity", {"1", "5", "7", "13", "13"}, {"", "", "", "", "", "5", "9", "13"}, false},
        CasoOrdem{
            "PayeeBelowTheCity", {"1", "5", "7", "14", "13"}, {"", "", "", "", "", "5", "9", "13"}, false}),
    kNomeDoCaso);
INSTANTIATE_TEST_SUITE_P(
    Colunas, Ordem,
    testing::Values(
        CasoOrdem{
            "EachOneBehindTheLast", {"1", "5", "7", "10", "13"}, {"", "", "", "", "50", "2", "3", "4"}, true},
        CasoOrdem{
            "DayTwoBehindTheCity", {"1", "5", "7", "10", "13"}, {"", "", "", "", "50", "2", "9", "13"}, true},
        // The position of the day lies a column and a unit to the left of its own column.
        CasoOrdem{"DayOneBehindTheCityOnPurpose",
                  {"1", "5", "7", "10", "13"},
                  {"", "", "", "", "50", "1", "9", "13"},
                  false},
        CasoOrdem{
            "DayBeforeTheCity", {"1", "5", "7", "10", "13"}, {"", "", "", "", "50", "-3", "9", "13"}, false},
        CasoOrdem{
            "DayOnTheMonth", {"1", "5", "7", "10", "13"}, {"", "", "", "", "50", "9", "9", "13"}, false},
        CasoOrdem{
            "MonthOnTheYear", {"1", "5", "7", "10", "13"}, {"", "", "", "", "50", "5", "13", "13"}, false},
        CasoOrdem{"YearBeforeTheMonth",
                  {"1", "5", "7", "10", "13"},
                  {"", "", "", "", "50", "5", "13", "12"},
                  false}),
    kNomeDoCaso);

} // namespace
