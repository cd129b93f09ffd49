// Dates read day first and strictly, and the days between them.
#include "plataforma/basico/Data.h"
#include "plataforma/basico/RuntimeError.h"
#include "Tabela.h"

#include <gtest/gtest.h>

using namespace plataforma;

namespace {

/// The date read, in ISO form; "invalid" when it is refused with a type mismatch.
std::string Lida(const QString &texto)
{
    try {
        return CVDate(texto).toString(Qt::ISODate).toStdString();
    } catch (const RuntimeError &erro) {
        return erro.number() == ErrTypeMismatch ? "invalid" : erro.what();
    }
}

TEST(CVDate, AgreesWithTheTable)
{
    for (const QStringList &linha : tabela::Le("dates_read.tsv", 2)) {
        EXPECT_EQ(Lida(linha[0]), linha[1].toStdString()) << tabela::Mostra(linha);
        EXPECT_EQ(IsDate(linha[0]), linha[1] != "invalid") << tabela::Mostra(linha);
    }
}

TEST(DateDiff, AgreesWithTheTable)
{
    for (const QStringList &linha : tabela::Le("dates_add.tsv", 4)) {
        const QDate de = CVDate(linha[1]);
        if (linha[0] == "add") {
            const QDate ate = de.addDays(linha[2].toInt());
            EXPECT_EQ(DateText(ate).toStdString(), linha[3].toStdString()) << tabela::Mostra(linha);
            EXPECT_EQ(DateDiff(de, CVDate(linha[3])), linha[2].toInt()) << tabela::Mostra(linha);
        } else {
            EXPECT_EQ(DateDiff(de, CVDate(linha[2])), linha[3].toInt()) << tabela::Mostra(linha);
        }
    }
}

struct CasoData {
    std::string nome;
    QString texto;
    std::string iso;
};
void PrintTo(const CasoData &caso, std::ostream *os)
{
    *os << '"' << caso.texto.toStdString() << "\" = " << caso.iso;
}
class CVDateTest : public testing::TestWithParam<CasoData> {};
TEST_P(CVDateTest, Reads)
{
    EXPECT_EQ(Lida(GetParam().texto), GetParam().iso);
}

INSTANTIATE_TEST_SUITE_P(
    Datas, CVDateTest,
    testing::Values(
        CasoData{"LastYearOfThisCentury", "31/12/29", "2029-12-31"},
        CasoData{"FirstYearOfTheOther", "01/01/30", "1930-01-01"},
        CasoData{"YearZero", "01/01/00", "2000-01-01"}, CasoData{"YearNinetyNine", "31/12/99", "1999-12-31"},
        CasoData{"LeapDayOfACenturyYear", "29/02/2000", "2000-02-29"},
        CasoData{"NoLeapDayOfACommonCentury", "29/02/1900", "invalid"},
        CasoData{"BlanksAround", "  01/02/99 ", "1999-02-01"},
        CasoData{"BlanksInside", "01/ 2/99", "invalid"}, CasoData{"DateWithABlankDay", "  /11/02", "invalid"},
        CasoData{"DateOfOneBlankInTheDay", " 1/02/99", "1999-02-01"},
        CasoData{"DoubleBars", "1//2//99", "invalid"}, CasoData{"NoYear", "01/02", "invalid"},
        CasoData{"NoBars", "010299", "invalid"}, CasoData{"Empty", "", "invalid"},
        CasoData{"Blanks", "        ", "invalid"}, CasoData{"BarsAlone", "  /  /  ", "invalid"},
        CasoData{"MonthFirst", "12/31/1999", "invalid"}, CasoData{"YearFirst", "1999/12/31", "invalid"},
        CasoData{"MonthZero", "01/00/99", "invalid"},
        CasoData{"YearZeroOfFourDigits", "01/01/0000", "invalid"},
        CasoData{"ThreeDigitYear", "01/01/199", "invalid"},
        CasoData{"FiveDigitYear", "01/01/19999", "invalid"},
        CasoData{"ThreeDigitDay", "001/01/99", "invalid"}, CasoData{"SignInThePart", "+1/02/99", "invalid"},
        CasoData{"MinusInThePart", "01/-2/99", "invalid"}, CasoData{"LetterInThePart", "01/0a/99", "invalid"},
        CasoData{"DigitsOfAnotherScript", u"٠١/٠٢/٩٩"_qs, "invalid"},
        CasoData{"MonthByName", "01/fev/99", "invalid"}, CasoData{"BarBehind", "01/02/99/", "invalid"},
        CasoData{"TimeBehind", "01/02/99 10:00", "invalid"}),
    [](const auto &caso) { return caso.param.nome; });

TEST(CVDate, TheRefusalNamesTheText)
{
    try {
        CVDate("31/02/99");
        FAIL() << "nothing was thrown";
    } catch (const RuntimeError &erro) {
        EXPECT_EQ(erro.text().toStdString(), u"\"31/02/99\" não é uma data."_qs.toStdString());
    }
}

TEST(CVDate, ASeriesPastTwentyNineIsReadBackACenturyEarlier)
{
    const QDate vencimento = CVDate("15/12/29").addDays(30);
    const QString escrito = DateText(vencimento);
    EXPECT_EQ(escrito, "14/01/2030");
    EXPECT_EQ(Lida(escrito.left(6) + escrito.right(2)), "1930-01-14");
}

TEST(DateText, FillsDayMonthAndYear)
{
    EXPECT_EQ(DateText(QDate(2003, 2, 1)), "01/02/2003");
    EXPECT_EQ(DateText(QDate(99, 12, 31)), "31/12/0099");
}

TEST(DateText, EveryDayOfFourCenturiesIsReadBack)
{
    const QDate fim(2100, 12, 31);
    for (QDate dia(1701, 1, 1); dia <= fim; dia = dia.addDays(1)) {
        ASSERT_EQ(CVDate(DateText(dia)), dia) << dia.toString(Qt::ISODate).toStdString();
    }
}

} // namespace
