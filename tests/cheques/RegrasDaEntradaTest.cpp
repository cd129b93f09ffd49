// Rules of the entry of a normal cheque: the length rule, what leaving a field makes of it, the check before
// use.
#include "cheques/RegrasDaEntrada.h"

#include <gtest/gtest.h>
#include <map>
#include <string>

using namespace cheques;

namespace {

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };

struct CasoCorte {
    std::string nome;
    int campo;
    int tamanho;
    int resta; ///< characters that stay; 0 when the text is not touched
};
void PrintTo(const CasoCorte &c, std::ostream *os)
{
    *os << "Text1(" << c.campo << ") with " << c.tamanho << " characters";
}
class CortaCampoTest : public testing::TestWithParam<CasoCorte> {};

TEST_P(CortaCampoTest, KeepsTheFirstCharacters)
{
    const CasoCorte &caso = GetParam();
    QString texto;
    for (int i = 0; i < caso.tamanho; ++i)
        texto += QChar('a' + i % 26);
    const std::optional<QString> cortado = CortaCampo(caso.campo, texto);
    ASSERT_EQ(cortado.has_value(), caso.resta > 0);
    if (cortado) {
        EXPECT_EQ(cortado->toStdString(), texto.toStdString().substr(0, static_cast<size_t>(caso.resta)));
    }
}

// On purpose: a city above 20 characters is cut to 15, not to its limit.
INSTANTIATE_TEST_SUITE_P(Campos, CortaCampoTest,
                         testing::Values(CasoCorte{"BankOfThreeStays", CampoBanco, 3, 0},
                                         CasoCorte{"BankOfFourIsCutToThree", CampoBanco, 4, 3},
                                         CasoCorte{"ValueOf16Stays", CampoValor, 16, 0},
                                         CasoCorte{"ValueOf17IsCutTo16", CampoValor, 17, 16},
                                         CasoCorte{"PayeeOf47Stays", CampoFavorecido, 47, 0},
                                         CasoCorte{"PayeeOf48IsCutTo47", CampoFavorecido, 48, 47},
                                         CasoCorte{"CityOf16Stays", CampoCidade, 16, 0},
                                         CasoCorte{"CityOf20Stays", CampoCidade, 20, 0},
                                         CasoCorte{"CityOf21IsCutTo15", CampoCidade, 21, 15},
                                         CasoCorte{"NumberOf12Stays", CampoNumero, 12, 0},
                                         CasoCorte{"NumberOf13IsCutTo12", CampoNumero, 13, 12},
                                         CasoCorte{"DateHasNoRule", CampoData, 200, 0},
                                         CasoCorte{"EmptyStays", CampoBanco, 0, 0}),
                         kNomeDoCaso);

TEST(LimiteDoCampo, IsTheMostThatAFieldHolds)
{
    const std::map<int, int> limites = {{CampoBanco, 3},   {CampoValor, 16}, {CampoFavorecido, 47},
                                        {CampoCidade, 20}, {CampoData, 0},   {CampoNumero, 12}};
    for (const auto &[campo, limite] : limites)
        EXPECT_EQ(LimiteDoCampo(campo), limite) << "Text1(" << campo << ")";
}

TEST(CortaLinha, CutsAt81CharactersTo80)
{
    EXPECT_FALSE(CortaLinha(QString(80, 'x')).has_value());
    EXPECT_EQ(CortaLinha(QString(80, 'x') + "y"), QString(80, 'x'));
    EXPECT_EQ(CortaLinha(QString(300, 'x')), QString(80, 'x'));
}

struct CasoTexto {
    std::string nome;
    const char *digitado;
    const char *fica; ///< null: refused
};
void PrintTo(const CasoTexto &c, std::ostream *os)
{
    *os << '"' << c.digitado << '"';
}
class BancoAoSairTest : public testing::TestWithParam<CasoTexto> {};

TEST_P(BancoAoSairTest, ShowsThreeDigitsOrNothing)
{
    EXPECT_EQ(BancoAoSair(GetParam().digitado).toStdString(), GetParam().fica);
}

INSTANTIATE_TEST_SUITE_P(
    Bancos, BancoAoSairTest,
    testing::Values(CasoTexto{"OneDigitIsFilled", "1", "001"}, CasoTexto{"TwoDigitsAreFilled", "41", "041"},
                    CasoTexto{"ThreeDigitsStay", "237", "237"}, CasoTexto{"FilledNumberStays", "001", "001"},
                    CasoTexto{"BlanksAreDropped", " 7", "007"}, CasoTexto{"LettersGiveNothing", "abc", ""},
                    CasoTexto{"ZeroGivesNothing", "0", ""}, CasoTexto{"ZerosGiveNothing", "000", ""},
                    CasoTexto{"NegativeGivesNothing", "-5", ""}, CasoTexto{"EmptyGivesNothing", "", ""},
                    CasoTexto{"BlankGivesNothing", " ", ""},
                    CasoTexto{"LetterBehindIsPassedOver", "1a", "001"},
                    CasoTexto{"FractionIsRounded", "0.4", "000"},
                    CasoTexto{"ExponentGoesBeyondThreeDigits", "1e3", "1000"}),
    kNomeDoCaso);

class ValorAoSairTest : public testing::TestWithParam<CasoTexto> {};

TEST_P(ValorAoSairTest, ShowsAnAmountOrRefuses)
{
    const std::optional<QString> texto = ValorAoSair(GetParam().digitado);
    ASSERT_EQ(texto.has_value(), GetParam().fica != nullptr);
    if (texto) {
        EXPECT_EQ(texto->toStdString(), GetParam().fica);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Valores, ValorAoSairTest,
    testing::Values(
        CasoTexto{"OneDecimalIsFilled", "1.234,5", "1.234,50"}, CasoTexto{"WholeNumber", "100", "100,00"},
        CasoTexto{"ThousandsAreGrouped", "1234567,89", "1.234.567,89"},
        CasoTexto{"ShownAmountStays", "1.234,50", "1.234,50"}, CasoTexto{"ZeroIsAnAmount", "0", "0,00"},
        CasoTexto{"RoundsHalfAwayFromZero", "2,675", "2,68"},
        CasoTexto{"RoundsTheDecimalValue", "1,005", "1,01"}, CasoTexto{"Negative", "-33,33", "-33,33"},
        CasoTexto{"NegativeThatRoundsToZeroHasNoSign", "-0,001", "0,00"},
        CasoTexto{"CurrencySign", "R$ 10,00", "10,00"}, CasoTexto{"BlanksAround", " 12 ", "12,00"},
        CasoTexto{"PointIsNoDecimalSign", "1234.50", "123.450,00"}, CasoTexto{"EmptyIsRefused", "", nullptr},
        CasoTexto{"BlankIsRefused", " ", nullptr}, CasoTexto{"LettersAreRefused", "abc", nullptr},
        CasoTexto{"LetterBehindIsRefused", "12a", nullptr}, CasoTexto{"CommaIsRefused", ",", nullptr},
        CasoTexto{"TwoCommasAreRefused", "1,2,3", nullptr}),
    kNomeDoCaso);

class DataDoChequeAoSairTest : public testing::TestWithParam<CasoTexto> {};

TEST_P(DataDoChequeAoSairTest, ShowsADayOrRefuses)
{
    const DataAoSair data = DataDoChequeAoSair(GetParam().digitado, QDate(2003, 2, 1));
    EXPECT_EQ(data.valida, GetParam().fica != nullptr);
    if (GetParam().fica) {
        EXPECT_EQ(data.texto.toStdString(), GetParam().fica);
    }
    EXPECT_FALSE(data.hoje);
}

TEST(DataDoChequeAoSair, RefusedDateStandsWithoutBarsWhileItIsTold)
{
    EXPECT_EQ(DataDoChequeAoSair("31/04/99", QDate(2003, 2, 1)).texto, QString("310499"));
    EXPECT_EQ(DataDoChequeAoSair("310499", QDate(2003, 2, 1)).texto, QString("310499"));
}

// On purpose: ten characters give the century for the year; six with bars and short ones show oddly.
INSTANTIATE_TEST_SUITE_P(
    Datas, DataDoChequeAoSairTest,
    testing::Values(CasoTexto{"SixDigits", "010299", "01/02/99"},
                    CasoTexto{"EightCharacters", "01/02/99", "01/02/99"},
                    CasoTexto{"ShortPartsAndLongYear", "1/2/2003", "01/02/03"},
                    CasoTexto{"TenCharactersGiveYear20", "01/02/2003", "01/02/20"},
                    CasoTexto{"SixCharactersWithBarsShowTheirBarsTwice", "1/2/99", "1//2//99"},
                    CasoTexto{"EightDigits", "01022003", "01/02/03"},
                    CasoTexto{"FourDigitsFillFromTheRight", "1102", "  /11/02"},
                    CasoTexto{"SevenCharactersLoseADigitOfTheYear", "1/12/99", " 0/11/29"},
                    CasoTexto{"LeapDayOfYearZero", "290200", "29/02/00"},
                    CasoTexto{"LeapDayOfALeapYear", "290296", "29/02/96"},
                    CasoTexto{"LeapDayOfACommonYear", "290299", nullptr},
                    CasoTexto{"April31", "310499", nullptr},
                    CasoTexto{"April31WithBars", "31/04/99", nullptr},
                    CasoTexto{"DayZero", "001299", nullptr}, CasoTexto{"Month13", "011399", nullptr},
                    CasoTexto{"Letters", "hoje", nullptr}, CasoTexto{"Blank", " ", nullptr}),
    kNomeDoCaso);

TEST(DataDoChequeAoSair, EmptyTakesTodayAsItIsShown)
{
    const DataAoSair data = DataDoChequeAoSair("", QDate(2003, 2, 1));
    EXPECT_TRUE(data.hoje);
    EXPECT_TRUE(data.valida);
    EXPECT_EQ(data.texto, "01/02/03");
    EXPECT_EQ(DataDoChequeAoSair("", QDate(1999, 12, 31)).texto, "31/12/99");
}

struct CasoVerifica {
    std::string nome;
    TextosDoCheque cheque;
    const char *texto; ///< null: passes
    int campo;
    bool numeroObrigatorio = true;
};
void PrintTo(const CasoVerifica &c, std::ostream *os)
{
    *os << c.nome;
}
class VerificaCamposDoChequeTest : public testing::TestWithParam<CasoVerifica> {};

TEST_P(VerificaCamposDoChequeTest, TellsTheFirstFault)
{
    const std::optional<Recusa> recusa =
        VerificaCamposDoCheque(GetParam().cheque, GetParam().numeroObrigatorio);
    ASSERT_EQ(recusa.has_value(), GetParam().texto != nullptr);
    if (recusa) {
        EXPECT_EQ(recusa->texto.toStdString(), GetParam().texto);
        EXPECT_EQ(recusa->campo, GetParam().campo);
    }
}

TextosDoCheque Cheque(const char *banco, const char *valor, const char *cidade, const char *data,
                      const char *numero)
{
    return {banco, valor, "", cidade, data, numero, {}};
}
const char *const kBancoVazio = "O número do banco não pode ser vazio";
const char *const kValorZero = "O valor não pode ser igual a zero (0,00).";
const char *const kValorVazio = "O valor não pode ser vazio";
const char *const kBancoInvalido = "Valor inválido";
const char *const kCidadeVazia = "A cidade não pode ser vazia";
const char *const kDataVazia = "A data não pode ser vazia";

// Each row has every later fault as well, so that the order shows.
// On purpose: a bank number of 0 or less is told as a fault of the value.
INSTANTIATE_TEST_SUITE_P(
    Ordem, VerificaCamposDoChequeTest,
    testing::Values(
        CasoVerifica{"BankEmptyBeforeAll", Cheque("", "0,00", "", "", ""), kBancoVazio, CampoBanco},
        CasoVerifica{"BankEmptyBeforeValueEmpty", Cheque("", "", "", "", ""), kBancoVazio, CampoBanco},
        CasoVerifica{"ValueZeroBeforeBankZero", Cheque("0", "0,00", "", "", ""), kValorZero, CampoValor},
        CasoVerifica{"ValueEmptyBeforeBankZero", Cheque("0", "", "", "", ""), kValorVazio, CampoValor},
        CasoVerifica{"BankZeroIsToldAsTheValue", Cheque("0", "1,00", "", "", ""), kBancoInvalido, CampoValor},
        CasoVerifica{"BankBelowZeroIsToldAsTheValue", Cheque("-1", "1,00", "", "", ""), kBancoInvalido,
                     CampoValor},
        CasoVerifica{"CityEmptyBeforeDateEmpty", Cheque("001", "1,00", "", "", ""), kCidadeVazia,
                     CampoCidade},
        CasoVerifica{"CityEmptyBeforeDateWrong", Cheque("001", "1,00", "", "310499", ""), kCidadeVazia,
                     CampoCidade},
        CasoVerifica{"DateEmptyBeforeNumber", Cheque("001", "1,00", "X", "", ""), kDataVazia, CampoData},
        CasoVerifica{"DateWrongBeforeNumberIsSilent", Cheque("001", "1,00", "X", "31/04/99", ""), "",
                     CampoData},
        CasoVerifica{"NumberEmptyIsSilent", Cheque("001", "1,00", "X", "01/02/03", ""), "", CampoNumero}),
    kNomeDoCaso);

INSTANTIATE_TEST_SUITE_P(
    Passam, VerificaCamposDoChequeTest,
    testing::Values(
        CasoVerifica{"AllFilledButThePayee", Cheque("001", "1,00", "X", "01/02/03", "1"), nullptr, 0},
        CasoVerifica{"NumberEmptyWhenNotCompulsory", Cheque("001", "1,00", "X", "01/02/03", ""), nullptr, 0,
                     false},
        CasoVerifica{"NumberOfOneBlank", Cheque("001", "1,00", "X", "01/02/03", " "), nullptr, 0},
        CasoVerifica{"ZeroInAnotherForm", Cheque("001", "0", "X", "01/02/03", "1"), nullptr, 0},
        CasoVerifica{"DateWithoutBars", Cheque("001", "1,00", "X", "010203", "1"), nullptr, 0},
        CasoVerifica{"DateOfTenCharacters", Cheque("001", "1,00", "X", "01/02/2003", "1"), nullptr, 0},
        CasoVerifica{"DateWithItsBarsTwice", Cheque("001", "1,00", "X", "1//2//99", "1"), nullptr, 0}),
    kNomeDoCaso);

INSTANTIATE_TEST_SUITE_P(
    DatasErradas, VerificaCamposDoChequeTest,
    testing::Values(
        CasoVerifica{"April31", Cheque("001", "1,00", "X", "31/04/99", "1"), "", CampoData},
        CasoVerifica{"LeapDayOfACommonYear", Cheque("001", "1,00", "X", "29/02/99", "1"), "", CampoData},
        CasoVerifica{"Month13WithoutBars", Cheque("001", "1,00", "X", "011399", "1"), "", CampoData},
        CasoVerifica{"SevenCharactersKeepTheirBars", Cheque("001", "1,00", "X", "10/2/99", "1"), "",
                     CampoData},
        CasoVerifica{"DayOfBlanks", Cheque("001", "1,00", "X", "  /11/02", "1"), "", CampoData}),
    kNomeDoCaso);

TEST(ProximoCampo, GoesDownTheFieldsAndThenToPrinting)
{
    const std::map<int, int> proximos = {{0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 6}, {6, kVaiParaImprimir}};
    for (const auto &[de, para] : proximos)
        EXPECT_EQ(ProximoCampo(de), para) << "from Text1(" << de << ")";
}

TEST(ChaveDoCampo, DateAndNumberHaveNone)
{
    const std::map<int, std::string> chaves = {{0, "NumBanco"}, {1, "Valor"}, {2, "Favorecido"},
                                               {3, "Cidade"},   {4, ""},      {6, ""}};
    for (const auto &[campo, chave] : chaves)
        EXPECT_EQ(ChaveDoCampo(campo).toStdString(), chave) << "Text1(" << campo << ")";
}

TEST(Chaves, OfExtrasAndLinesHaveTwoDigits)
{
    EXPECT_EQ(ChaveDoExtra(0), "Campo00");
    EXPECT_EQ(ChaveDoExtra(2), "Campo02");
    EXPECT_EQ(ChaveDoVerso(0), "Linha00");
    EXPECT_EQ(ChaveDoVerso(9), "Linha09");
}

} // namespace
