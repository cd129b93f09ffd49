// Rules of the filter's fields: limits, what leaving a field does, the way of Enter.
#include "reports/RegrasDoFiltro.h"

#include <gtest/gtest.h>

using namespace reports;

namespace {

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };
const QDate kHoje(2007, 3, 5);

struct CasoCorte {
    std::string nome;
    int campo;
    QString texto;
    std::optional<QString> fica;
};
void PrintTo(const CasoCorte &c, std::ostream *os)
{
    *os << c.campo << ": " << c.texto.toStdString();
}
class CortaCampoDoFiltroTest : public testing::TestWithParam<CasoCorte> {};

TEST_P(CortaCampoDoFiltroTest, CutsWhatIsLongerThanTheField)
{
    EXPECT_EQ(CortaCampoDoFiltro(GetParam().campo, GetParam().texto), GetParam().fica);
}

INSTANTIATE_TEST_SUITE_P(
    Campos, CortaCampoDoFiltroTest,
    testing::Values(CasoCorte{"BankOfThree", 0, "001", std::nullopt},
                    CasoCorte{"BankOfFour", 0, "0012", "001"}, CasoCorte{"BankPasted", 0, "001234567", "001"},
                    CasoCorte{"BankEmpty", 0, "", std::nullopt},
                    CasoCorte{"FirstDateOfEight", 1, "01/02/99", std::nullopt},
                    CasoCorte{"FirstDateOfNine", 1, "01/02/199", "01/02/19"},
                    CasoCorte{"LastDateOfEight", 2, "01/02/99", std::nullopt},
                    CasoCorte{"LastDateOfTen", 2, "01/02/1999", "01/02/19"},
                    CasoCorte{"FirstValueHasNoLimit", 3, "1.000.000.000.000,00", std::nullopt},
                    CasoCorte{"LastValueHasNoLimit", 4, "1.000.000.000.000,00", std::nullopt},
                    CasoCorte{"PayeeHasNoLimit", 5, QString(200, 'x'), std::nullopt},
                    CasoCorte{"CityHasNoLimit", 6, QString(200, 'x'), std::nullopt},
                    CasoCorte{"CommentHasNoLimit", 7, QString(200, 'x'), std::nullopt}),
    kNomeDoCaso);

TEST(CortaCampoDoFiltro, TheCutIsTold)
{
    EXPECT_EQ(kCampoCheio.texto.toStdString(), "Tamanho Máximo deste campo...");
    EXPECT_EQ(kCampoCheio.titulo.toStdString(), "Erro");
}

struct CasoBanco {
    std::string nome;
    QString texto;
    std::optional<QString> codigo;
};
void PrintTo(const CasoBanco &c, std::ostream *os)
{
    *os << '"' << c.texto.toStdString() << '"';
}
class BancoDoFiltroAoSairTest : public testing::TestWithParam<CasoBanco> {};

TEST_P(BancoDoFiltroAoSairTest, GivesTheCodeToLookUp)
{
    EXPECT_EQ(BancoDoFiltroAoSair(GetParam().texto), GetParam().codigo);
}

INSTANTIATE_TEST_SUITE_P(
    Textos, BancoDoFiltroAoSairTest,
    testing::Values(CasoBanco{"OneDigit", "1", "001"}, CasoBanco{"TwoDigits", "33", "033"},
                    CasoBanco{"ThreeDigits", "237", "237"}, CasoBanco{"Empty", "", std::nullopt},
                    CasoBanco{"Zero", "0", std::nullopt}, CasoBanco{"Zeros", "000", std::nullopt},
                    CasoBanco{"Negative", "-1", std::nullopt}, CasoBanco{"Letters", "abc", std::nullopt},
                    CasoBanco{"Blank", " ", std::nullopt}),
    kNomeDoCaso);

TEST(BancoDoFiltroAoSair, ACodeNotFoundIsTold)
{
    EXPECT_EQ(kBancoInvalido.texto.toStdString(), "Banco Inválido...");
    EXPECT_EQ(kBancoInvalido.titulo.toStdString(), "Erro");
}

enum class Recusa { Nenhuma, Tamanho, Data, Valor };
void Confere(const std::optional<AvisoDoFiltro> &aviso, Recusa recusa)
{
    ASSERT_EQ(aviso.has_value(), recusa != Recusa::Nenhuma);
    if (!aviso)
        return;
    const char *texto = recusa == Recusa::Tamanho ? "Voce deve entrar com (ddmmaa) diamesano..."
                        : recusa == Recusa::Data  ? "Data Inválida..."
                                                  : "O valor especificado não é um valor válido!";
    EXPECT_EQ(aviso->texto.toStdString(), texto);
    if (recusa != Recusa::Data) {
        EXPECT_EQ(aviso->titulo.toStdString(), "Erro");
    }
}

struct CasoAoSair {
    std::string nome;
    QString texto;
    QString fica; ///< looked at only where nothing is refused
    Recusa recusa = Recusa::Nenhuma;
};
void PrintTo(const CasoAoSair &c, std::ostream *os)
{
    *os << '"' << c.texto.toStdString() << '"';
}
class DataDoFiltroAoSairTest : public testing::TestWithParam<CasoAoSair> {};

TEST_P(DataDoFiltroAoSairTest, TakesADayOrSixDigits)
{
    const CampoAoSair campo = DataDoFiltroAoSair(GetParam().texto, kHoje);
    Confere(campo.aviso, GetParam().recusa);
    if (GetParam().recusa == Recusa::Nenhuma) {
        EXPECT_EQ(campo.texto.toStdString(), GetParam().fica.toStdString());
    }
}

INSTANTIATE_TEST_SUITE_P(Datas, DataDoFiltroAoSairTest,
                         testing::Values(CasoAoSair{"Empty", "", ""},
                                         CasoAoSair{"DayOfOneDigit", "7", "07/03/07"},
                                         CasoAoSair{"DayOfTwoDigits", "28", "28/03/07"},
                                         CasoAoSair{"LastDayOfTheMonth", "31", "31/03/07"},
                                         CasoAoSair{"DayThatTheMonthHasNot", "32", "", Recusa::Data},
                                         CasoAoSair{"DayZero", "0", "", Recusa::Data},
                                         CasoAoSair{"DayOfLetters", "ab", "", Recusa::Data},
                                         CasoAoSair{"SixDigits", "010299", "01/02/99"},
                                         CasoAoSair{"LeapDay", "290200", "29/02/00"},
                                         CasoAoSair{"NoLeapDay", "290299", "", Recusa::Data},
                                         CasoAoSair{"DayZeroOfSixDigits", "001299", "", Recusa::Data},
                                         CasoAoSair{"Month13", "011399", "", Recusa::Data},
                                         CasoAoSair{"June31", "310699", "", Recusa::Data},
                                         CasoAoSair{"ThreeDigits", "102", "", Recusa::Tamanho},
                                         CasoAoSair{"FiveDigits", "10299", "", Recusa::Tamanho},
                                         CasoAoSair{"SevenDigits", "0102999", "", Recusa::Tamanho},
                                         CasoAoSair{"EightDigits", "01021999", "", Recusa::Tamanho},
                                         CasoAoSair{"WithBars", "01/02/99", "", Recusa::Tamanho}),
                         kNomeDoCaso);

TEST(DataDoFiltroAoSair, ADayTakesTheMonthAndYearOfToday)
{
    EXPECT_EQ(DataDoFiltroAoSair("9", QDate(1999, 12, 31)).texto.toStdString(), "09/12/99");
    EXPECT_EQ(DataDoFiltroAoSair("29", QDate(2000, 2, 1)).texto.toStdString(), "29/02/00");
    EXPECT_TRUE(DataDoFiltroAoSair("31", QDate(2007, 4, 30)).aviso.has_value());
}

class ValorDoFiltroAoSairTest : public testing::TestWithParam<CasoAoSair> {};

TEST_P(ValorDoFiltroAoSairTest, TakesANumber)
{
    const CampoAoSair campo = ValorDoFiltroAoSair(GetParam().texto);
    Confere(campo.aviso, GetParam().recusa);
    if (GetParam().recusa == Recusa::Nenhuma) {
        EXPECT_EQ(campo.texto.toStdString(), GetParam().fica.toStdString());
    }
}

INSTANTIATE_TEST_SUITE_P(Valores, ValorDoFiltroAoSairTest,
                         testing::Values(CasoAoSair{"Empty", "", ""}, CasoAoSair{"Whole", "10", "10,00"},
                                         CasoAoSair{"Zero", "0", "0,00"},
                                         CasoAoSair{"WithComma", "1234,5", "1.234,50"},
                                         CasoAoSair{"WithPoints", "1.234.567,89", "1.234.567,89"},
                                         CasoAoSair{"RoundedAwayFromZero", "1,005", "1,01"},
                                         CasoAoSair{"Large", "99999999999,99", "99.999.999.999,99"},
                                         CasoAoSair{"Letters", "dez", "", Recusa::Valor},
                                         CasoAoSair{"NumberWithLetters", "10 reais", "", Recusa::Valor},
                                         CasoAoSair{"TwoCommas", "1,2,3", "", Recusa::Valor},
                                         CasoAoSair{"Blank", " ", "", Recusa::Valor}),
                         kNomeDoCaso);

TEST(ProximoCampoDoFiltro, EnterMovesToTheNextFieldAndAcceptsFromTheCity)
{
    for (int campo = 0; campo < 6; ++campo)
        EXPECT_EQ(ProximoCampoDoFiltro(campo), campo + 1);
    EXPECT_EQ(ProximoCampoDoFiltro(6), kAceitaOFiltro);
}

// On purpose: there is no field 8.
TEST(ProximoCampoDoFiltro, EnterInTheCommentLooksForAFieldThatDoesNotExist)
{
    EXPECT_EQ(ProximoCampoDoFiltro(7), 8);
}

} // namespace
