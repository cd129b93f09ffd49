// Rules of printing and logging a normal cheque: places of the extra fields, the six texts, the row of the
// log.
#include "cheques/RegrasDaImpressao.h"
#include "plataforma/basico/RuntimeError.h"

#include <gtest/gtest.h>
#include <string>

using namespace cheques;

namespace {

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };

struct CasoPosicao {
    std::string nome;
    const char *valor;
    int posicao;
};
void PrintTo(const CasoPosicao &c, std::ostream *os)
{
    *os << '"' << c.valor << '"';
}
class PosicaoDaChaveTest : public testing::TestWithParam<CasoPosicao> {};

TEST_P(PosicaoDaChaveTest, IsTheNumberThatRemains)
{
    EXPECT_EQ(PosicaoDaChave(GetParam().valor), GetParam().posicao);
}

INSTANTIATE_TEST_SUITE_P(
    Valores, PosicaoDaChaveTest,
    testing::Values(CasoPosicao{"Digits", "20", 20}, CasoPosicao{"BlankBehindIsDropped", "20 ", 20},
                    CasoPosicao{"SignBehindIsDropped", "5-", 5}, CasoPosicao{"BarBehindIsDropped", "10/", 10},
                    CasoPosicao{"OnlyOneIsDropped", "1 2 ", 12},
                    CasoPosicao{"LetterBehindIsNoDigit", "10a", 10},
                    CasoPosicao{"MissingKey", "-2", kSemPosicao}, CasoPosicao{"EmptyKey", "", 0},
                    CasoPosicao{"Blank", " ", 0}, CasoPosicao{"Letters", "abc", 0}),
    kNomeDoCaso);

struct CasoExtras {
    std::string nome;
    std::array<CampoExtra, kCamposExtras> campos;
    const char *texto; ///< null: all pass
};
void PrintTo(const CasoExtras &c, std::ostream *os)
{
    *os << c.nome;
}
class VerificaCamposExtrasTest : public testing::TestWithParam<CasoExtras> {};

TEST_P(VerificaCamposExtrasTest, TellsTheFirstFieldThatHasNoPlace)
{
    const std::optional<QString> recusa = VerificaCamposExtras(GetParam().campos);
    ASSERT_EQ(recusa.has_value(), GetParam().texto != nullptr);
    if (recusa) {
        EXPECT_EQ(recusa->toStdString(), GetParam().texto);
    }
}

const CampoExtra kVazio;
const QString k100 = QString(100, 'x');

INSTANTIATE_TEST_SUITE_P(
    Passam, VerificaCamposExtrasTest,
    testing::Values(CasoExtras{"AllEmptyWithoutAPlace", {kVazio, kVazio, kVazio}, nullptr},
                    CasoExtras{"EmptyOutOfRange", {CampoExtra{99, 200, ""}, kVazio, kVazio}, nullptr},
                    CasoExtras{"AllFilled",
                               {CampoExtra{1, 1, "a"}, CampoExtra{2, 2, "b"}, CampoExtra{3, 3, "c"}},
                               nullptr},
                    CasoExtras{"100CharactersAtColumn19", {CampoExtra{1, 19, k100}, kVazio, kVazio}, nullptr},
                    CasoExtras{"Line20", {kVazio, kVazio, CampoExtra{20, 1, "x"}}, nullptr},
                    CasoExtras{"LineAndColumnZero", {CampoExtra{0, 0, "x"}, kVazio, kVazio}, nullptr}),
    kNomeDoCaso);

INSTANTIATE_TEST_SUITE_P(
    SemPosicao, VerificaCamposExtrasTest,
    testing::Values(CasoExtras{"NeitherLineNorColumn",
                               {CampoExtra{-2, -2, "x"}, kVazio, kVazio},
                               "Valores de posicao nao cadastrados na impressao do campo1!\n"},
                    CasoExtras{"LineOnly",
                               {kVazio, CampoExtra{5, -2, "x"}, kVazio},
                               "Valores de posicao nao cadastrados na impressao do campo2!\n"},
                    CasoExtras{"ColumnOnly",
                               {kVazio, kVazio, CampoExtra{-2, 5, "x"}},
                               "Valores de posicao nao cadastrados na impressao do campo3!\n"},
                    CasoExtras{"NoPlaceBeforeOutOfRange",
                               {CampoExtra{-2, 150, "x"}, kVazio, kVazio},
                               "Valores de posicao nao cadastrados na impressao do campo1!\n"},
                    CasoExtras{"TheFirstOfTwoIsTold",
                               {CampoExtra{1, 1, "a"}, CampoExtra{-2, -2, "b"}, CampoExtra{21, 1, "c"}},
                               "Valores de posicao nao cadastrados na impressao do campo2!\n"}),
    kNomeDoCaso);

INSTANTIATE_TEST_SUITE_P(ForaDoLimite, VerificaCamposExtrasTest,
                         testing::Values(CasoExtras{"100CharactersAtColumn20",
                                                    {CampoExtra{1, 20, k100}, kVazio, kVazio},
                                                    "Valores de posicao incorretos na impressao do campo1!\n"
                                                    "Linha =1 e Coluna = 20 + texto de tamanho 100!"},
                                         CasoExtras{"Line21",
                                                    {kVazio, CampoExtra{21, 1, "abc"}, kVazio},
                                                    "Valores de posicao incorretos na impressao do campo2!\n"
                                                    "Linha =21 e Coluna = 1 + texto de tamanho 3!"},
                                         CasoExtras{"OutOfRangeBeforeALaterOneWithoutAPlace",
                                                    {CampoExtra{21, 1, "a"}, CampoExtra{-2, -2, "b"}, kVazio},
                                                    "Valores de posicao incorretos na impressao do campo1!\n"
                                                    "Linha =21 e Coluna = 1 + texto de tamanho 1!"},
                                         CasoExtras{"OneCharacterTooFar",
                                                    {kVazio, kVazio, CampoExtra{1, 119, "x"}},
                                                    "Valores de posicao incorretos na impressao do campo3!\n"
                                                    "Linha =1 e Coluna = 119 + texto de tamanho 1!"}),
                         kNomeDoCaso);

TextosDoCheque Cheque()
{
    TextosDoCheque cheque{" 001 ", "1234,5", " José & Cia ", " São João ", " 01/02/03 ", "000123", {}};
    cheque.linhas = {"ação", "dois", "três", "quatro"};
    return cheque;
}

TEST(MontaTextosDoCheque, TrimsAndTurnsPayeeAndCityForTheDevice)
{
    const device::TextosDoCheque textos = MontaTextosDoCheque(Cheque());
    EXPECT_EQ(textos.banco, "001");
    EXPECT_EQ(textos.valor, "1.234,50");
    // Byte 82 of the device is written in Windows-1252 as this quotation mark, byte C6 as this ligature.
    EXPECT_EQ(textos.favorecido, "Jos‚ & Cia");
    EXPECT_EQ(textos.cidade, "SÆo JoÆo");
    EXPECT_EQ(textos.data, "01/02/03");
}

TEST(MontaTextosDoCheque, TheSixthIsAlwaysEmpty)
{
    EXPECT_EQ(MontaTextosDoCheque(Cheque()).extra, "");
}

TEST(MontaTextosDoCheque, ValueThatIsNoNumberFails)
{
    TextosDoCheque cheque = Cheque();
    cheque.valor = "abc";
    try {
        MontaTextosDoCheque(cheque);
        FAIL() << "no failure";
    } catch (const plataforma::RuntimeError &falha) {
        EXPECT_EQ(falha.number(), 13);
    }
}

TEST(MontaLinhaDoLog, SetsTheFieldsInOrderAsTheyAreOnTheScreen)
{
    const std::vector<std::pair<QString, QString>> esperada = {
        {"Comentario", "ação"},  {"Comentario1", "dois"}, {"Comentario2", "três"}, {"StCancel", " "},
        {"Codigo", "00042"},     {"Banco", " 001 "},      {"V_CH", "1234,5"},      {"Favor", " José & Cia "},
        {"Local", " São João "}, {"Data", " 01/02/03 "},  {"Index", "0000000042"}, {"NRCH", "000123"}};
    const auto linha = MontaLinhaDoLog(Cheque(), "0000000042");
    ASSERT_EQ(linha.size(), esperada.size());
    for (size_t i = 0; i < linha.size(); ++i) {
        EXPECT_EQ(linha[i].first.toStdString(), esperada[i].first.toStdString());
        EXPECT_EQ(linha[i].second.toStdString(), esperada[i].second.toStdString())
            << linha[i].first.toStdString();
    }
}

std::string CampoDoLog(const TextosDoCheque &cheque, const QString &index, const QString &campo)
{
    for (const auto &[nome, valor] : MontaLinhaDoLog(cheque, index)) {
        if (nome == campo)
            return valor.toStdString();
    }
    return "no such field";
}

struct CasoLogado {
    std::string nome;
    const char *valor;
    const char *logado;
};
void PrintTo(const CasoLogado &c, std::ostream *os)
{
    *os << '"' << c.valor << '"';
}
class ValorNoLogTest : public testing::TestWithParam<CasoLogado> {};

TEST_P(ValorNoLogTest, HasNoGroups)
{
    TextosDoCheque cheque = Cheque();
    cheque.valor = GetParam().valor;
    EXPECT_EQ(CampoDoLog(cheque, "0000000001", "V_CH"), GetParam().logado);
}

// On purpose: a whole amount keeps its comma, with no digits behind it.
INSTANTIATE_TEST_SUITE_P(Valores, ValorNoLogTest,
                         testing::Values(CasoLogado{"LastZeroIsDropped", "1.234,50", "1234,5"},
                                         CasoLogado{"WholeAmountKeepsItsComma", "1.000,00", "1000,"},
                                         CasoLogado{"TwoDecimals", "10,25", "10,25"},
                                         CasoLogado{"BelowOneHasNoZero", "0,50", ",5"},
                                         CasoLogado{"Millions", "1.234.567,89", "1234567,89"}),
                         kNomeDoCaso);

TEST(MontaLinhaDoLog, CodigoIsTheLastFiveDigitsOfTheIndex)
{
    EXPECT_EQ(CampoDoLog(Cheque(), "0000099999", "Codigo"), "99999");
    EXPECT_EQ(CampoDoLog(Cheque(), "0000100000", "Codigo"), "00000");
    EXPECT_EQ(CampoDoLog(Cheque(), "0000100000", "Index"), "0000100000");
}

TEST(MontaLinhaDoLog, EmptyNumberIsOneBlank)
{
    TextosDoCheque cheque = Cheque();
    cheque.numero.clear();
    EXPECT_EQ(CampoDoLog(cheque, "0000000001", "NRCH"), " ");
}

TEST(TituloDaFalha, HasTheNumberInThreeDigits)
{
    const std::vector<std::pair<int, std::string>> titulos = {
        {0, "Impressão do Cheque (000)"},     {2, "Impressão do Cheque (002)"},
        {22, "Impressão do Cheque (022)"},    {100, "Impressão do Cheque (100)"},
        {1234, "Impressão do Cheque (1234)"}, {-1, "Impressão do Cheque (-001)"}};
    for (const auto &[resultado, titulo] : titulos)
        EXPECT_EQ(TituloDaFalha(resultado).toStdString(), titulo);
}

} // namespace
