// The settings routine: reads, writes, sentinels.
#include "nucleo/QX_INI.h"
#include "nucleo/Sistema.h"

#include "apoio/Escritorio.h"
#include <gtest/gtest.h>

using apoio::Escritorio;
using nucleo::QX_INI;

namespace {

struct CasoLeitura {
    std::string nome;
    QString arquivo;
    QString lido;
};
void PrintTo(const CasoLeitura &caso, std::ostream *os)
{
    *os << caso.nome;
}
class GravaIniLeitura : public testing::TestWithParam<CasoLeitura> {};
TEST_P(GravaIniLeitura, AnswersTheStoredText)
{
    const Escritorio escritorio;
    escritorio.GravaIni(GetParam().arquivo);
    const QX_INI ini(escritorio.Arquivo("QX70.INI"));
    EXPECT_EQ(ini.GravaIni("FrenteInfo", "Valor"), GetParam().lido);
}
INSTANTIATE_TEST_SUITE_P(
    Leituras, GravaIniLeitura,
    testing::Values(
        CasoLeitura{"Plain", "[FrenteInfo]\nValor=10,00\n", "10,00"},
        CasoLeitura{"MissingKey", "[FrenteInfo]\nCidade=x\n", "-2"},
        CasoLeitura{"MissingSection", "[Outra]\nValor=10,00\n", "-2"},
        CasoLeitura{"EmptyValueIsNotMissing", "[FrenteInfo]\nValor=\n", ""},
        CasoLeitura{"OneBlankComesBackAsOneBlank", "[FrenteInfo]\nValor= \n", " "},
        CasoLeitura{"ValueThatBeginsWithMinusTwoReadsAsMissing", "[FrenteInfo]\nValor=-2abc\n", "-2"},
        CasoLeitura{"MinusThreeIsAValue", "[FrenteInfo]\nValor=-3\n", "-3"},
        CasoLeitura{"MinusTwentyAlsoReadsAsMissing", "[FrenteInfo]\nValor=-20\n", "-2"},
        CasoLeitura{"NamesIgnoreCase", "[frenteINFO]\nvalor=7\n", "7"},
        CasoLeitura{"LongValueIsCutTo159", "[FrenteInfo]\nValor=" + QString(300, 'x') + "\n",
                    QString(159, 'x')},
        CasoLeitura{"Exactly159", "[FrenteInfo]\nValor=" + QString(159, 'y') + "\n", QString(159, 'y')},
        CasoLeitura{"Accents", QString::fromUtf8("[FrenteInfo]\nValor=São João\n"),
                    QString::fromUtf8("São João")}),
    [](const auto &caso) { return caso.param.nome; });

TEST(GravaIni, MissingFileReadsAsMissing)
{
    const Escritorio escritorio;
    EXPECT_EQ(QX_INI(escritorio.Arquivo("QX70.INI")).GravaIni("Sistema", "port"), "-2");
}

TEST(GravaIni, WriteAnswersOneAndCreatesTheFile)
{
    const Escritorio escritorio;
    EXPECT_EQ(QX_INI(escritorio.Arquivo("QX70.INI")).GravaIni("Sistema", "port", "COM3"), "1");
    EXPECT_EQ(escritorio.LeIni(), "[Sistema]\r\nport=COM3\r\n");
}

TEST(GravaIni, FailedWriteAnswersZero)
{
    const Escritorio escritorio;
    EXPECT_EQ(QX_INI(escritorio.Arquivo("sem pasta/QX70.INI")).GravaIni("Sistema", "port", "COM3"), "0");
}

TEST(GravaIni, SentinelStoresAnEmptyValue)
{
    const Escritorio escritorio;
    escritorio.GravaIni("[Config]\nFirstTime=1\n");
    const QX_INI ini(escritorio.Arquivo("QX70.INI"));
    EXPECT_EQ(ini.GravaIni("Config", "FirstTime", "*%*"), "1");
    EXPECT_EQ(escritorio.LeIni(), "[Config]\r\nFirstTime=\r\n");
    EXPECT_EQ(ini.GravaIni("Config", "FirstTime"), "");
}

TEST(GravaIni, OneBlankWrittenComesBack)
{
    const Escritorio escritorio;
    const QX_INI ini(escritorio.Arquivo("QX70.INI"));
    ini.GravaIni("FrenteInfo", "Cidade", " ");
    EXPECT_EQ(ini.GravaIni("FrenteInfo", "Cidade"), " ");
}

struct CasoOpcao {
    std::string nome;
    QString linha;
    int valor;
};
void PrintTo(const CasoOpcao &caso, std::ostream *os)
{
    *os << caso.nome;
}
class OpcaoTest : public testing::TestWithParam<CasoOpcao> {};
TEST_P(OpcaoTest, ReadsAsANumber)
{
    const Escritorio escritorio;
    escritorio.GravaIni("[Opcoes]\n" + GetParam().linha + "\n");
    EXPECT_EQ(nucleo::OpcaoNumerica(QX_INI(escritorio.Arquivo("QX70.INI")), "PeriodoRelExc", 30),
              GetParam().valor);
}
INSTANTIATE_TEST_SUITE_P(Opcoes, OpcaoTest,
                         testing::Values(CasoOpcao{"MissingGivesTheDefault", "Outra=1", 30},
                                         CasoOpcao{"Number", "PeriodoRelExc=45", 45},
                                         CasoOpcao{"EmptyIsZero", "PeriodoRelExc=", 0},
                                         CasoOpcao{"LeadingDigitsCount", "PeriodoRelExc=12dias", 12},
                                         CasoOpcao{"NoDigitsAreZero", "PeriodoRelExc=abc", 0},
                                         CasoOpcao{"MinusTwoGivesTheDefault", "PeriodoRelExc=-2", 30},
                                         CasoOpcao{"StandsAsStored", "PeriodoRelExc=40000", 40000},
                                         CasoOpcao{"TooLargeIsTheLargest", "PeriodoRelExc=99999999999",
                                                   2147483647}),
                         [](const auto &caso) { return caso.param.nome; });

struct CasoInRel {
    std::string nome;
    QString arquivo;
    bool marcada;
    QString gravado;
};
void PrintTo(const CasoInRel &caso, std::ostream *os)
{
    *os << caso.nome;
}
class InRelTest : public testing::TestWithParam<CasoInRel> {};
TEST_P(InRelTest, DecidesTheBoxAndIsWritten)
{
    const Escritorio escritorio;
    escritorio.GravaIni(GetParam().arquivo);
    EXPECT_EQ(nucleo::CarregaInRel(QX_INI(escritorio.Arquivo("QX70.INI"))), GetParam().marcada);
    EXPECT_EQ(escritorio.Chave("Sistema", "InRel"), GetParam().gravado);
}
INSTANTIATE_TEST_SUITE_P(
    InRel, InRelTest,
    testing::Values(CasoInRel{"ZeroIsUnticked", "[Sistema]\nInRel=0\n", false, "0"},
                    CasoInRel{"MissingIsTickedAndWritten", "[Sistema]\n", true, "1"},
                    CasoInRel{"OtherNumberBecomesOne", "[Sistema]\nInRel=7\n", true, "1"},
                    CasoInRel{"EmptyReadsAsZero", "[Sistema]\nInRel=\n", false, ""},
                    CasoInRel{"WordReadsAsZero", "[Sistema]\nInRel=sim\n", false, "sim"}),
    [](const auto &caso) { return caso.param.nome; });

struct CasoPorta {
    std::string nome;
    QString arquivo;
    QString porta;
    QString gravada;
};
void PrintTo(const CasoPorta &caso, std::ostream *os)
{
    *os << caso.nome;
}
class PortaTest : public testing::TestWithParam<CasoPorta> {};
TEST_P(PortaTest, IsTheFirstFourCharacters)
{
    const Escritorio escritorio;
    escritorio.GravaIni(GetParam().arquivo);
    EXPECT_EQ(nucleo::CarregaPorta(QX_INI(escritorio.Arquivo("QX70.INI"))), GetParam().porta);
    EXPECT_EQ(escritorio.Chave("Sistema", "port"), GetParam().gravada);
}
INSTANTIATE_TEST_SUITE_P(Portas, PortaTest,
                         testing::Values(CasoPorta{"Stored", "[Sistema]\nport=COM3\n", "COM3", "COM3"},
                                         CasoPorta{"LongerIsCut", "[Sistema]\nport=COM12345\n", "COM1",
                                                   "COM12345"},
                                         CasoPorta{"MissingBecomesCom2", "[Sistema]\n", "COM2", "COM2"},
                                         CasoPorta{"EmptyStaysEmpty", "[Sistema]\nport=\n", "", ""}),
                         [](const auto &caso) { return caso.param.nome; });

TEST(DataDeHoje, IsDayMonthAndTheLastTwoDigitsOfTheYear)
{
    EXPECT_EQ(nucleo::DataDeHoje(apoio::RelogioParado(QDate(1999, 2, 1))), "010299");
    EXPECT_EQ(nucleo::DataDeHoje(apoio::RelogioParado(QDate(2026, 11, 21))), "211126");
}

} // namespace
