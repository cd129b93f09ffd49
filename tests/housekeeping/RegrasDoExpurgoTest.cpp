// Rules of the purge: the age of a stored date, the day in the name of a copy file, the words of the
// questions.
#include "housekeeping/RegrasDoExpurgo.h"
#include "plataforma/basico/RuntimeError.h"

#include <gtest/gtest.h>
#include <string>

using namespace housekeeping;

namespace {

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };
const QDate kHoje(2003, 2, 1);

struct CasoHoje {
    std::string nome;
    QString texto;
    QDate dia;
};
void PrintTo(const CasoHoje &c, std::ostream *os)
{
    *os << c.texto.toStdString();
}
class HojeDoExpurgoTest : public testing::TestWithParam<CasoHoje> {};

TEST_P(HojeDoExpurgoTest, ReadsDayMonthYear)
{
    EXPECT_EQ(HojeDoExpurgo(GetParam().texto), GetParam().dia);
}

INSTANTIATE_TEST_SUITE_P(Dias, HojeDoExpurgoTest,
                         testing::Values(CasoHoje{"Usual", "010203", QDate(2003, 2, 1)},
                                         CasoHoje{"LastOfThisCentury", "311229", QDate(2029, 12, 31)},
                                         CasoHoje{"FirstOfTheLastCentury", "010130", QDate(1930, 1, 1)}),
                         kNomeDoCaso);

TEST(HojeDoExpurgo, RefusesWhatIsNoDate)
{
    try {
        HojeDoExpurgo("311103");
        FAIL() << "nothing was thrown";
    } catch (const plataforma::RuntimeError &erro) {
        EXPECT_EQ(erro.number(), plataforma::ErrTypeMismatch);
    }
}

struct CasoIdade {
    std::string nome;
    QString data;
    std::optional<qint64> dias;
};
void PrintTo(const CasoIdade &c, std::ostream *os)
{
    *os << '"' << c.data.toStdString() << '"';
}
class IdadeDosChequesTest : public testing::TestWithParam<CasoIdade> {};

TEST_P(IdadeDosChequesTest, IsCountedInDaysUpToToday)
{
    EXPECT_EQ(IdadeDosCheques(kHoje)(GetParam().data), GetParam().dias);
}

INSTANTIATE_TEST_SUITE_P(
    Datas, IdadeDosChequesTest,
    testing::Values(CasoIdade{"Today", "01/02/03", 0}, CasoIdade{"Yesterday", "31/01/03", 1},
                    CasoIdade{"ThirtyDays", "02/01/03", 30}, CasoIdade{"ThirtyOneDays", "01/01/03", 31},
                    CasoIdade{"Tomorrow", "02/02/03", -1}, CasoIdade{"OverALeapDay", "01/02/00", 1096},
                    CasoIdade{"LastYearOfThisCentury", "01/02/29", -9497},
                    CasoIdade{"FirstYearOfTheLastCentury", "01/02/30", 26663},
                    CasoIdade{"FourDigitsOfTheYear", "01/01/2003", 31},
                    CasoIdade{"ShortOneIsFilledWithBlanks", "1/1/03", 31},
                    CasoIdade{"WithoutBars", "010103", std::nullopt},
                    CasoIdade{"DayThatIsNot", "31/04/02", std::nullopt},
                    CasoIdade{"Month13", "01/13/02", std::nullopt}, CasoIdade{"OneBlank", " ", std::nullopt},
                    CasoIdade{"Words", "ontem", std::nullopt}),
    kNomeDoCaso);

TEST(IdadeDosCheques, EachDateIsJudgedByItself)
{
    IdadeDosCheques idade(kHoje);
    EXPECT_EQ(idade("01/01/03"), 31);
    EXPECT_EQ(idade("01/01/03"), 31);
    EXPECT_EQ(idade("02/01/03"), 30);
    EXPECT_EQ(idade("xx"), std::nullopt);
    EXPECT_EQ(idade("xx"), std::nullopt);
    EXPECT_EQ(idade("02/01/03"), 30);
}

struct CasoNome {
    std::string nome;
    QString arquivo;
    std::optional<QDate> data;
};
void PrintTo(const CasoNome &c, std::ostream *os)
{
    *os << c.arquivo.toStdString();
}
class DataDaCopiaTest : public testing::TestWithParam<CasoNome> {};

TEST_P(DataDaCopiaTest, StandsInTheName)
{
    EXPECT_EQ(DataDaCopia(GetParam().arquivo), GetParam().data);
}

INSTANTIATE_TEST_SUITE_P(
    Nomes, DataDaCopiaTest,
    testing::Values(CasoNome{"Usual", "cop0102.99", QDate(1999, 2, 1)},
                    CasoNome{"Capitals", "COP3112.02", QDate(2002, 12, 31)},
                    CasoNome{"LastYearOfThisCentury", "cop0102.29", QDate(2029, 2, 1)},
                    CasoNome{"FirstYearOfTheLastCentury", "cop0102.30", QDate(1930, 2, 1)},
                    CasoNome{"LeapDay", "cop2902.00", QDate(2000, 2, 29)},
                    CasoNome{"LeapDayOfACommonYear", "cop2902.99", std::nullopt},
                    CasoNome{"Month13", "cop0113.99", std::nullopt},
                    CasoNome{"DayZero", "cop0001.99", std::nullopt},
                    CasoNome{"OtherCopies", "cop.txt", std::nullopt},
                    CasoNome{"OneCharacterLess", "cop102.99", std::nullopt},
                    CasoNome{"OneCharacterMore", "cop0102.999", std::nullopt},
                    CasoNome{"YearOfFour", "cop0102.1999", std::nullopt},
                    CasoNome{"TenLetters", "copias.txt", std::nullopt},
                    CasoNome{"OnlyThePointIsNotLookedAt", "cop0102x99", QDate(1999, 2, 1)}),
    kNomeDoCaso);

struct CasoVenceu {
    std::string nome;
    qint64 dias;
    int periodo;
    bool venceu;
};
void PrintTo(const CasoVenceu &c, std::ostream *os)
{
    *os << c.dias << " days of " << c.periodo;
}
class VenceuTest : public testing::TestWithParam<CasoVenceu> {};

TEST_P(VenceuTest, OnlyStrictlyAboveThePeriod)
{
    EXPECT_EQ(Venceu(GetParam().dias, GetParam().periodo), GetParam().venceu);
}

INSTANTIATE_TEST_SUITE_P(Idades, VenceuTest,
                         testing::Values(CasoVenceu{"OneDayLess", 29, 30, false},
                                         CasoVenceu{"ExactlyThatOld", 30, 30, false},
                                         CasoVenceu{"OneDayMore", 31, 30, true},
                                         CasoVenceu{"InTheFuture", -400, 30, false}),
                         kNomeDoCaso);

TEST(PerguntaDoExpurgo, TellsThePeriod)
{
    EXPECT_EQ(PerguntaDosCheques(30).toStdString(),
              "O banco de dados possui cheques cadastrados a mais de 30 dia(s), contando a partir da data de "
              "apresentação. Deseja exclui-los?");
    EXPECT_EQ(PerguntaDasCopias(3650).toStdString(),
              "O aplicativo possui arquivos de copia com mais de 3650 dias! Deseja exclui-los?");
}

} // namespace
