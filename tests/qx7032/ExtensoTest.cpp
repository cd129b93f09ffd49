// Amounts in words: read back by a reader of its own, and compared with words of other software.
#include "LeitorDeExtenso.h"

#include "qx7032/Extenso.h"

#include <cstdlib>
#include <fstream>
#include <random>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using qx7032::PorExtenso;

namespace {

std::string EmReais(std::int64_t centavos)
{
    return PorExtenso(centavos, "real", "reais");
}

void ExigeIdaEVolta(std::int64_t centavos)
{
    const std::string palavras = EmReais(centavos);
    const ExtensoLido lido = LeExtenso(palavras);
    ASSERT_EQ(lido.erro, "") << centavos << ": " << palavras;
    ASSERT_EQ(lido.centavos, centavos) << palavras;
}

struct CasoExtenso {
    std::string nome;
    std::int64_t centavos;
    const char *palavras;
};
void PrintTo(const CasoExtenso &c, std::ostream *os)
{
    *os << c.centavos;
}

class PorExtensoTest : public testing::TestWithParam<CasoExtenso> {};

TEST_P(PorExtensoTest, WritesTheWords)
{
    EXPECT_EQ(EmReais(GetParam().centavos), GetParam().palavras);
}

INSTANTIATE_TEST_SUITE_P(
    Valores, PorExtensoTest,
    testing::Values(
        CasoExtenso{"NothingIsZeroReais", 0, "zero reais"}, CasoExtenso{"OneCentIsSingular", 1, "um centavo"},
        CasoExtenso{"BelowOneRealThereAreNoReais", 50, "cinquenta centavos"},
        CasoExtenso{"OneRealIsSingular", 100, "um real"},
        CasoExtenso{"TwoReaisAndOneCent", 201, "dois reais e um centavo"},
        CasoExtenso{"FourteenIsQuatorze", 1400, "quatorze reais"},
        CasoExtenso{"HundredAloneIsCem", 10000, "cem reais"},
        CasoExtenso{"HundredAndMoreIsCento", 10100, "cento e um reais"},
        CasoExtenso{"AThousandIsMilAlone", 100000, "mil reais"},
        CasoExtenso{"WholeHundredsTakeE", 110000, "mil e cem reais"},
        CasoExtenso{"OtherHundredsTakeNoE", 123456,
                    "mil duzentos e trinta e quatro reais e cinquenta e seis centavos"},
        CasoExtenso{"BelowHundredTakesE", 100100, "mil e um reais"},
        CasoExtenso{"LastOfTheThousands", 99999900,
                    "novecentos e noventa e nove mil novecentos e noventa e nove reais"},
        CasoExtenso{"ExactMillionTakesDe", 100000000, "um milhão de reais"},
        CasoExtenso{"ExactMillionWithCentsTakesDe", 200000050, "dois milhões de reais e cinquenta centavos"},
        CasoExtenso{"MillionAndOneTakesNoDe", 100000100, "um milhão e um reais"},
        CasoExtenso{"MillionAndAThousand", 100100000, "um milhão e mil reais"},
        CasoExtenso{"MillionAndAHundredThousand", 110000000, "um milhão e cem mil reais"},
        CasoExtenso{"EveryOrderFilled", 123456700,
                    "um milhão duzentos e trinta e quatro mil quinhentos e sessenta e sete reais"},
        CasoExtenso{
            "HighestAmountOfACheque", 99999999999,
            "novecentos e noventa e nove milhões novecentos e noventa e nove mil novecentos e noventa "
            "e nove reais e noventa e nove centavos"},
        CasoExtenso{"ExactBillionTakesDe", 100000000000, "um bilhão de reais"},
        CasoExtenso{"BillionAndAMillion", 200100000000, "dois bilhões e um milhão de reais"}),
    [](const auto &caso) { return caso.param.nome; });

TEST(PorExtenso, EveryWholeAmountUpTo100000IsReadBack)
{
    for (std::int64_t reais = 1; reais <= 100'000; ++reais)
        ExigeIdaEVolta(reais * 100);
}

TEST(PorExtenso, EveryCentIsReadBackAloneAndWithReais)
{
    for (const std::int64_t reais : {0, 1, 2, 100, 1000, 1100, 1'000'000, 999'999'999})
        for (std::int64_t centavos = 1; centavos <= 99; ++centavos)
            ExigeIdaEVolta(reais * 100 + centavos);
}

TEST(PorExtenso, TheSurroundingsOfEveryOrderAreReadBack)
{
    for (const std::int64_t ordem : {1'000LL, 10'000LL, 100'000LL, 1'000'000LL, 10'000'000LL, 100'000'000LL,
                                     1'000'000'000LL, 100'000'000'000LL})
        for (std::int64_t fator = 1; fator <= 9; ++fator)
            for (const std::int64_t passo : {-1'000'000, -1'000, -101, -100, -1, 0, 1, 99, 100, 101, 200, 999,
                                             1'000, 1'100, 1'001, 100'000, 100'100, 1'000'000})
                if (ordem * fator + passo > 0)
                    ExigeIdaEVolta((ordem * fator + passo) * 100);
}

TEST(PorExtenso, AHundredThousandAmountsTakenByLotAreReadBack)
{
    std::mt19937_64 sorteio(7032);
    std::uniform_int_distribution<std::int64_t> doCheque(1, 99'999'999'999);
    std::uniform_int_distribution<std::int64_t> tudo(1, qx7032::kCentavosMaximos);
    for (int i = 0; i < 50'000; ++i) {
        ExigeIdaEVolta(doCheque(sorteio));
        ExigeIdaEVolta(tudo(sorteio));
    }
}

// Rows "amount TAB "words""; an amount without a point is whole reais.
TEST(PorExtenso, AgreesWithTheWordsOfOtherSoftware)
{
    std::ifstream arquivo(QX70_TEST_DATA "/words.tsv");
    std::string linha;
    std::getline(arquivo, linha);
    int linhas = 0;
    for (; std::getline(arquivo, linha); ++linhas) {
        const std::size_t tabulador = linha.find('\t');
        const std::size_t ponto = std::min(linha.find('.'), tabulador);
        std::int64_t centavos = std::atoll(linha.c_str()) * 100;
        if (ponto < tabulador)
            centavos += std::atoll(linha.c_str() + ponto + 1);
        EXPECT_EQ('"' + EmReais(centavos) + '"', linha.substr(tabulador + 1)) << linha;
    }
    EXPECT_EQ(linhas, 66);
}

TEST(PorExtenso, NamesTheCurrencyAsTold)
{
    EXPECT_EQ(PorExtenso(100, "dólar", "dólares"), "um dólar");
    EXPECT_EQ(PorExtenso(200000000, "dólar", "dólares"), "dois milhões de dólares");
    EXPECT_EQ(PorExtenso(250, "cruzeiro real", "cruzeiros reais"),
              "dois cruzeiros reais e cinquenta centavos");
}

TEST(PorExtenso, HasNoWordsOutOfRange)
{
    EXPECT_EQ(EmReais(-1), "");
    EXPECT_NE(EmReais(qx7032::kCentavosMaximos), "");
    EXPECT_EQ(EmReais(qx7032::kCentavosMaximos + 1), "");
}

TEST(PastasDosNumeros, BeginWithTheSystemAndEndBesideTheProgram)
{
    unsetenv("QX7032_NUMEROS");
    const auto pastas = qx7032::PastasDosNumeros();
    ASSERT_EQ(pastas.size(), 4U);
    EXPECT_EQ(pastas.front(), "/usr/share/libnumbertext/");
    EXPECT_THAT(pastas[2], testing::EndsWith("/libnumbertext/"));
    EXPECT_THAT(pastas[3], testing::EndsWith("/../share/libnumbertext/"));
}

TEST(PastasDosNumeros, AreOneWhenTheEnvironmentNamesIt)
{
    setenv("QX7032_NUMEROS", "/dados", 1);
    EXPECT_THAT(qx7032::PastasDosNumeros(), testing::ElementsAre("/dados/"));
    unsetenv("QX7032_NUMEROS");
}

struct CasoRecusa {
    std::string nome;
    const char *palavras;
};
void PrintTo(const CasoRecusa &c, std::ostream *os)
{
    *os << c.palavras;
}

// The reader judges the writer, so it must refuse what is wrong.
class LeExtensoTest : public testing::TestWithParam<CasoRecusa> {};

TEST_P(LeExtensoTest, RefusesBadPortuguese)
{
    EXPECT_NE(LeExtenso(GetParam().palavras).erro, "");
}

INSTANTIATE_TEST_SUITE_P(
    Frases, LeExtensoTest,
    testing::Values(CasoRecusa{"OneThousandWithUm", "um mil reais"},
                    CasoRecusa{"EBeforeMixedHundreds", "mil e duzentos e trinta reais"},
                    CasoRecusa{"NoEBeforeWholeHundreds", "mil duzentos reais"},
                    CasoRecusa{"NoEBeforeUnits", "mil um reais"},
                    CasoRecusa{"EBetweenMillionsAndThousandsThatGoOn", "um milhão e mil e um reais"},
                    CasoRecusa{"NoDeAfterExactMillions", "um milhão reais"},
                    CasoRecusa{"DeAfterOtherNumbers", "mil de reais"}, CasoRecusa{"PluralOfOne", "um reais"},
                    CasoRecusa{"SingularOfTwo", "dois real"},
                    CasoRecusa{"SingularMillionOfTwo", "dois milhão de reais"},
                    CasoRecusa{"ZeroBeforeCents", "zero reais e um centavo"},
                    CasoRecusa{"OneCentInThePlural", "um centavos"},
                    CasoRecusa{"CentsWithoutE", "dois reais um centavo"},
                    CasoRecusa{"HundredCents", "cem centavos"}, CasoRecusa{"CentoAlone", "cento reais"},
                    CasoRecusa{"OtherSpellingOfFourteen", "catorze reais"},
                    CasoRecusa{"OrdersGoingUp", "mil um milhão de reais"},
                    CasoRecusa{"TwoBlanks", "dois  reais"}, CasoRecusa{"Nothing", ""},
                    CasoRecusa{"NumberAlone", "dois"}, CasoRecusa{"WordsBehind", "um centavo e"}),
    [](const auto &caso) { return caso.param.nome; });

} // namespace
