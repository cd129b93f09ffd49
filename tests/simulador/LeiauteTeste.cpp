// Amounts, dates and the placing of a cheque's texts.
#include <gmock/gmock.h>

#include "Apoio.h"
#include "Leiaute.h"

using namespace simulador;

namespace {

QString U(const char *texto)
{
    return QString::fromUtf8(texto);
}

EstadoDoLeiaute Estado(const char *posicoes, int digitos = 4)
{
    return {LePosicoes(posicoes).value(), {}, digitos, "real", "reais", {}};
}

TextosDoCheque Textos()
{
    return {"001", "1.234,56", U("João"), U("São Paulo"), "05/03/26"};
}

QString MotivoDe(const std::variant<Documento, Recusa> &montado)
{
    const Recusa *recusa = std::get_if<Recusa>(&montado);
    return recusa ? recusa->motivo : QString();
}

const TextoPosto &Posto(const Documento &documento, Campo campo)
{
    for (const TextoPosto &posto : documento.textos) {
        if (posto.campo == campo)
            return posto;
    }
    throw std::runtime_error("the field is not on the form");
}

bool TudoNoFormulario(const Documento &documento)
{
    return std::all_of(documento.textos.begin(), documento.textos.end(), [](const TextoPosto &posto) {
        return posto.lugar.linha >= 1 && posto.lugar.linha <= 20 && posto.lugar.coluna >= 1 &&
               posto.lugar.coluna + posto.texto.size() - 1 <= 120;
    });
}

// --- amounts ---

struct CasoValor {
    const char *nome;
    const char *texto;
    std::int64_t centavos; // -1: refused
    const char *impresso;
};
void PrintTo(const CasoValor &c, std::ostream *os)
{
    *os << c.texto;
}
class CentavosDeTest : public testing::TestWithParam<CasoValor> {};
TEST_P(CentavosDeTest, ReadsAndPrintsTheAmount)
{
    const auto centavos = CentavosDe(U(GetParam().texto));
    EXPECT_EQ(centavos.value_or(-1), GetParam().centavos);
    if (centavos) {
        EXPECT_EQ(ValorImpresso(*centavos), U(GetParam().impresso));
    }
}
INSTANTIATE_TEST_SUITE_P(
    Valores, CentavosDeTest,
    testing::Values(CasoValor{"OneCent", "0,01", 1, "#0,01#"}, CasoValor{"Zero", "0,00", 0, "#0,00#"},
                    CasoValor{"Groups", "1.234,56", 123456, "#1.234,56#"},
                    CasoValor{"NoGroups", "1234,56", 123456, "#1.234,56#"},
                    CasoValor{"NoCents", "1000", 100000, "#1.000,00#"},
                    CasoValor{"CommaAlone", "1000,", 100000, "#1.000,00#"},
                    CasoValor{"OneCentDigitIsTenths", "1234,5", 123450, "#1.234,50#"},
                    CasoValor{"Highest", "999.999.999,99", 99999999999, "#999.999.999,99#"},
                    CasoValor{"BlanksAround", " 2,00 ", 200, "#2,00#"},
                    CasoValor{"TooHigh", "1.000.000.000,00", -1, ""},
                    CasoValor{"TooHighWithoutPoints", "1000000000", -1, ""},
                    CasoValor{"ThreeCentDigits", "1,234", -1, ""},
                    CasoValor{"PointMisplaced", "12.34,00", -1, ""}, CasoValor{"Negative", "-1,00", -1, ""},
                    CasoValor{"Empty", "", -1, ""}, CasoValor{"Word", "dez", -1, ""},
                    CasoValor{"NoWhole", ",50", -1, ""}),
    [](const auto &caso) { return caso.param.nome; });

// --- dates ---

struct CasoData {
    const char *nome;
    const char *texto;
    const char *iso; // empty: refused
};
void PrintTo(const CasoData &c, std::ostream *os)
{
    *os << c.texto;
}
class DataDeTest : public testing::TestWithParam<CasoData> {};
TEST_P(DataDeTest, ReadsDayFirst)
{
    const auto data = DataDe(U(GetParam().texto));
    EXPECT_EQ(data ? data->toString(Qt::ISODate) : QString(), U(GetParam().iso));
}
INSTANTIATE_TEST_SUITE_P(
    Datas, DataDeTest,
    testing::Values(
        CasoData{"TwoDigitYear", "05/03/26", "2026-03-05"}, CasoData{"Year29", "01/01/29", "2029-01-01"},
        CasoData{"Year30", "01/01/30", "1930-01-01"}, CasoData{"Year99", "31/12/99", "1999-12-31"},
        CasoData{"Year00", "29/02/00", "2000-02-29"}, CasoData{"FourDigitYear", "05/03/2026", "2026-03-05"},
        CasoData{"NoBars", "050326", "2026-03-05"}, CasoData{"NoBarsFourDigitYear", "05032026", "2026-03-05"},
        CasoData{"OneDigitEach", "5/3/26", "2026-03-05"}, CasoData{"DoubledBars", "1//2//99", "1999-02-01"},
        CasoData{"LeapDayOfACommonYear", "29/02/26", ""}, CasoData{"Day31OfApril", "31/04/26", ""},
        CasoData{"Month13", "01/13/26", ""}, CasoData{"Month0", "01/00/26", ""},
        CasoData{"Day0", "00/01/26", ""}, CasoData{"TwoPartsOnly", "/11/02", ""}, CasoData{"Empty", "", ""},
        CasoData{"ThreeDigitYear", "01/01/026", ""}),
    [](const auto &caso) { return caso.param.nome; });

TEST(NomeDoMes, NamesTheTwelveMonths)
{
    QStringList nomes;
    for (int mes = 1; mes <= 12; ++mes)
        nomes << NomeDoMes(mes);
    EXPECT_EQ(nomes.join(' '),
              U("Janeiro Fevereiro Março Abril Maio Junho Julho Agosto Setembro Outubro Novembro Dezembro"));
}

struct CasoAno {
    const char *nome;
    const char *data;
    int digitos;
    const char *prefixo;
    const char *impresso;
};
void PrintTo(const CasoAno &c, std::ostream *os)
{
    *os << c.data << " / " << c.digitos;
}
class AnoTest : public testing::TestWithParam<CasoAno> {};
TEST_P(AnoTest, PrintsTheDigitsBehindThePrePrint)
{
    TextosDoCheque textos = Textos();
    textos.data = GetParam().data;
    const auto documento =
        std::get<Documento>(MontaCheque(textos, Estado(apoio::kPosicoes, GetParam().digitos)));
    EXPECT_EQ(documento.formulario.prefixoDoAno, GetParam().prefixo);
    EXPECT_EQ(Posto(documento, Campo::Ano).texto, GetParam().impresso);
    EXPECT_EQ(Posto(documento, Campo::Ano).lugar, (Lugar{13, 115}));
}
// On purpose: the digits go out whatever the form has before them, the last rows included.
INSTANTIATE_TEST_SUITE_P(Anos, AnoTest,
                         testing::Values(CasoAno{"OneDigit", "01/02/97", 1, "199", "7"},
                                         CasoAno{"TwoDigits", "01/02/26", 2, "20", "26"},
                                         CasoAno{"TwoDigitsWithZero", "01/02/05", 2, "20", "05"},
                                         CasoAno{"FourDigits", "01/02/26", 4, "", "2026"},
                                         CasoAno{"FourDigitsOfTheOldCentury", "01/02/30", 4, "", "1930"},
                                         CasoAno{"OneDigitOfAnotherDecade", "01/02/26", 1, "199", "6"},
                                         CasoAno{"TwoDigitsOfTheOldCentury", "01/02/97", 2, "20", "97"}),
                         [](const auto &caso) { return caso.param.nome; });

// --- the two lines of the words ---

struct CasoPalavras {
    const char *nome;
    const char *palavras;
    int coluna1, coluna2;
    const char *linha1;
    const char *linha2;
    int saiEm1, saiEm2;
};
void PrintTo(const CasoPalavras &c, std::ostream *os)
{
    *os << c.palavras << " at " << c.coluna1 << ", " << c.coluna2;
}
class RepartePalavrasTest : public testing::TestWithParam<CasoPalavras> {};
TEST_P(RepartePalavrasTest, BreaksAtABlank)
{
    const CasoPalavras &caso = GetParam();
    const auto linhas = RepartePalavras(U(caso.palavras), caso.coluna1, caso.coluna2);
    ASSERT_TRUE(linhas.has_value());
    EXPECT_EQ(linhas->palavras1, U(caso.linha1));
    EXPECT_EQ(linhas->palavras2, U(caso.linha2));
    EXPECT_EQ(linhas->coluna1, caso.saiEm1);
    EXPECT_EQ(linhas->coluna2, caso.saiEm2);
}
INSTANTIATE_TEST_SUITE_P(
    Palavras, RepartePalavrasTest,
    testing::Values(CasoPalavras{"FitsInTheFirstLine", "dois reais", 17, 9, "dois reais", "", 17, 9},
                    CasoPalavras{"FillsTheFirstLineExactly", "dois reais", 109, 9, "dois reais", "", 109, 9},
                    CasoPalavras{"OneColumnShort", "dois reais", 110, 9, "dois", "reais", 110, 9},
                    CasoPalavras{"NoWordFitsAbove", "dois reais", 117, 9, "", "dois reais", 117, 9},
                    CasoPalavras{"SecondLineMovesLeft", "dois reais", 117, 118, "", "dois reais", 117, 109},
                    CasoPalavras{"ColumnsBehindTheFilling", "um real", 120, 120, "", "um real", 118, 112}),
    [](const auto &caso) { return caso.param.nome; });

TEST(RepartePalavras, MovesTheFirstLineWhenTheSecondIsWhole)
{
    const QString palavras = QString("abcd ").repeated(40).trimmed(); // 199 characters
    const auto linhas = RepartePalavras(palavras, 118, 118);
    ASSERT_TRUE(linhas.has_value());
    EXPECT_EQ(linhas->coluna2, 1);
    EXPECT_EQ(linhas->palavras2.size(), 114); // 23 words: 24 would be 119
    EXPECT_EQ(linhas->coluna1, 118 - 84 + 1); // 17 words above
}

TEST(RepartePalavras, RefusesWhatTwoWholeLinesDoNotHold)
{
    EXPECT_TRUE(RepartePalavras(QString(118, 'a') + ' ' + QString(118, 'b'), 17, 9).has_value());
    EXPECT_FALSE(RepartePalavras(QString(118, 'a') + ' ' + QString(119, 'b'), 1, 1).has_value());
}

// --- whole cheques ---

struct CasoLeiaute {
    const char *nome;
    const char *posicoes;
    std::vector<Lugar> lugares; // amount, words 1, words 2, payee, city, day, month, year
};
void PrintTo(const CasoLeiaute &c, std::ostream *os)
{
    *os << c.posicoes;
}
class MontaChequeTest : public testing::TestWithParam<CasoLeiaute> {};
TEST_P(MontaChequeTest, PutsEachFieldAtItsPlace)
{
    const auto montado = MontaCheque(Textos(), Estado(GetParam().posicoes));
    ASSERT_EQ(MotivoDe(montado), QString());
    const auto &documento = std::get<Documento>(montado);
    const QStringList textos = {
        "#1.234,56#", "mil duzentos e trinta", "", U("João"), U("São Paulo"), "05", U("Março"), "2026"};
    for (std::size_t i = 0; i < 8; ++i) {
        const TextoPosto &posto = Posto(documento, static_cast<Campo>(i));
        const Lugar &lugar = GetParam().lugares.at(i);
        EXPECT_EQ(posto.lugar, lugar) << "field " << i;
        const QString &texto = textos.at(static_cast<qsizetype>(i));
        EXPECT_EQ(Grade(documento).split('\n').at(lugar.linha - 1).mid(lugar.coluna - 1, texto.size()),
                  texto);
    }
    EXPECT_TRUE(TudoNoFormulario(documento));
}
INSTANTIATE_TEST_SUITE_P(
    Leiautes, MontaChequeTest,
    testing::Values(
        CasoLeiaute{"OfferedLayout",
                    apoio::kPosicoes,
                    {{1, 92}, {5, 17}, {7, 9}, {10, 11}, {13, 50}, {13, 81}, {13, 90}, {13, 115}}},
        CasoLeiaute{"LowestLines",
                    "001,004,006,008,010,001,001,001,001,001,030,040,060",
                    {{1, 1}, {4, 1}, {6, 1}, {8, 1}, {10, 1}, {10, 31}, {10, 41}, {10, 61}}},
        CasoLeiaute{"HighestLines",
                    "005,009,012,015,017,080,020,020,020,040,020,030,050",
                    {{5, 80}, {9, 20}, {12, 20}, {15, 20}, {17, 40}, {17, 60}, {17, 70}, {17, 90}}},
        CasoLeiaute{"AmountOnTheLeft",
                    "02,06,08,11,14,05,30,25,60,02,30,36,50",
                    {{2, 5}, {6, 30}, {8, 25}, {11, 60}, {14, 2}, {14, 32}, {14, 38}, {14, 52}}},
        CasoLeiaute{"DateLeftOfTheCity",
                    "01,05,07,10,13,92,17,09,11,80,-50,-40,-20",
                    {{1, 92}, {5, 17}, {7, 9}, {10, 11}, {13, 80}, {13, 30}, {13, 40}, {13, 60}}},
        CasoLeiaute{"FieldsFromTheBottomUp",
                    "20,18,16,14,12,92,17,09,11,50,31,40,65",
                    {{20, 92}, {18, 17}, {16, 9}, {14, 11}, {12, 50}, {12, 81}, {12, 90}, {12, 115}}},
        CasoLeiaute{"AmountAndWordsOnOneLine",
                    "05,05,07,10,13,105,17,09,11,50,31,40,65",
                    {{5, 105}, {5, 17}, {7, 9}, {10, 11}, {13, 50}, {13, 81}, {13, 90}, {13, 115}}}),
    [](const auto &caso) { return caso.param.nome; });

TEST(MontaCheque, FillsBothWordsLinesWithStarsUpToColumn118)
{
    const auto documento = std::get<Documento>(MontaCheque(Textos(), Estado(apoio::kPosicoes)));
    const QString palavras = "mil duzentos e trinta e quatro reais e cinquenta e seis centavos";
    EXPECT_EQ(apoio::LinhaDe(documento, 5),
              QString(16, ' ') + palavras + QString(102 - palavras.size(), '*'));
    EXPECT_EQ(apoio::LinhaDe(documento, 7), QString(8, ' ') + QString(110, '*'));
}

TEST(MontaCheque, StarsGiveWayToAnAmountOnTheirLine)
{
    const auto documento =
        std::get<Documento>(MontaCheque(Textos(), Estado("05,05,07,10,13,100,17,09,11,50,31,40,65")));
    EXPECT_EQ(apoio::LinhaDe(documento, 5).mid(95), "****#1.234,56#*********");
    EXPECT_EQ(Posto(documento, Campo::Extenso1).texto.mid(99 - 16, 10), QString(10, ' '));
}

TEST(MontaCheque, LongestTextsStayWhole)
{
    TextosDoCheque textos = Textos();
    textos.valor = "999.999.999,99";
    textos.favorecido = QString(47, 'F');
    textos.cidade = QString(20, 'C');
    textos.data = "28/02/26";
    const auto documento =
        std::get<Documento>(MontaCheque(textos, Estado("01,05,07,10,13,118,80,80,118,60,31,40,56")));
    EXPECT_EQ(apoio::LinhaDe(documento, 1), QString(104, ' ') + "#999.999.999,99#"); // ends at column 120
    EXPECT_EQ(apoio::LinhaDe(documento, 10), QString(73, ' ') + QString(47, 'F'));
    EXPECT_EQ(apoio::LinhaDe(documento, 13).mid(59, 20), QString(20, 'C'));
    const QString extenso1 = apoio::LinhaDe(documento, 5).trimmed().remove('*');
    const QString extenso2 = apoio::LinhaDe(documento, 7).trimmed().remove('*');
    EXPECT_EQ(extenso1 + ' ' + extenso2, U("novecentos e noventa e nove milhões novecentos e noventa e nove "
                                           "mil novecentos e noventa e nove reais "
                                           "e noventa e nove centavos"));
    EXPECT_TRUE(TudoNoFormulario(documento));
}

TEST(MontaCheque, DateAtTheEdgeMovesLeftAndStaysReadable)
{
    TextosDoCheque textos = Textos();
    textos.cidade = U("São José dos Campos");
    textos.data = "15/09/26";
    // The highest columns that the position rule lets through.
    const auto documento =
        std::get<Documento>(MontaCheque(textos, Estado("01,05,07,10,13,118,118,118,118,104,10,12,14")));
    EXPECT_EQ(apoio::LinhaDe(documento, 13),
              QString(120 - 36, ' ') + U("São José dos Campos 15 Setembro 2026"));
    EXPECT_TRUE(TudoNoFormulario(documento));
}

struct CasoGasto {
    const char *nome;
    const char *posicoes;
    bool imprime;
};
void PrintTo(const CasoGasto &c, std::ostream *os)
{
    *os << c.posicoes;
}
class PosicoesForaTest : public testing::TestWithParam<CasoGasto> {};
TEST_P(PosicoesForaTest, PrintsInsideTheFormOrRefuses)
{
    const auto montado = MontaCheque(Textos(), Estado(GetParam().posicoes));
    EXPECT_EQ(MotivoDe(montado).isEmpty(), GetParam().imprime);
    if (GetParam().imprime) {
        EXPECT_TRUE(TudoNoFormulario(std::get<Documento>(montado)));
    }
}
INSTANTIATE_TEST_SUITE_P(
    Posicoes, PosicoesForaTest,
    testing::Values(CasoGasto{"ColumnsAt118", "01,05,07,10,13,118,118,118,118,118,0,0,0", true},
                    CasoGasto{"ColumnsAt120", "01,05,07,10,13,120,120,120,120,120,120,120,120", true},
                    CasoGasto{"ColumnsAt999", "01,05,07,10,13,999,999,999,999,999,999,999,999", true},
                    CasoGasto{"ColumnsAtZero", "01,05,07,10,13,0,0,0,0,0,0,0,0",
                              false},                                          // no room left of column 1
                    CasoGasto{"AllAtOne", "1,1,1,1,1,1,1,1,1,1,1,1,1", false}, // one upon the other
                    CasoGasto{"AllAt999", "999,999,999,999,999,999,999,999,999,999,999,999,999", false},
                    CasoGasto{"LinesAt999ButTheAmount", "01,05,07,10,999,92,17,09,11,50,31,40,65", true},
                    CasoGasto{"FarNegative", "-9999,05,07,10,13,-9999,17,09,11,50,31,40,65", true}),
    [](const auto &caso) { return caso.param.nome; });

struct CasoRecusa {
    const char *nome;
    TextosDoCheque textos;
};
void PrintTo(const CasoRecusa &c, std::ostream *os)
{
    *os << c.nome;
}
class TextosRecusadosTest : public testing::TestWithParam<CasoRecusa> {};
TEST_P(TextosRecusadosTest, GiveNoCheque)
{
    EXPECT_NE(MotivoDe(MontaCheque(GetParam().textos, Estado(apoio::kPosicoes))), QString());
}
INSTANTIATE_TEST_SUITE_P(
    Textos, TextosRecusadosTest,
    testing::Values(CasoRecusa{"NoAmount", {"001", "", "F", "C", "01/01/26"}},
                    CasoRecusa{"NoDate", {"001", "1,00", "F", "C", ""}},
                    CasoRecusa{"ControlInThePayee", {"001", "1,00", "F\n", "C", "01/01/26"}},
                    CasoRecusa{"PayeeOver120", {"001", "1,00", QString(121, 'F'), "C", "01/01/26"}},
                    CasoRecusa{"CityOverTheLine", {"001", "1,00", "F", QString(120, 'C'), "01/01/26"}}),
    [](const auto &caso) { return caso.param.nome; });

TEST(MontaCheque, AnEmptyPayeePrintsNothing)
{
    TextosDoCheque textos = Textos();
    textos.favorecido.clear();
    const auto documento = std::get<Documento>(MontaCheque(textos, Estado(apoio::kPosicoes)));
    EXPECT_EQ(apoio::LinhaDe(documento, 10), QString());
    EXPECT_EQ(documento.textos.size(), 7U);
}

TEST(MontaCheque, UsesTheCurrencyInMemory)
{
    EstadoDoLeiaute estado = Estado(apoio::kPosicoes);
    estado.moedaSingular = "peso";
    estado.moedaPlural = "pesos";
    const auto documento = std::get<Documento>(MontaCheque(Textos(), estado));
    EXPECT_TRUE(apoio::LinhaDe(documento, 5).contains("trinta e quatro pesos e cinquenta"));
}

TEST(MontaCheque, PutsExtraFieldsAtTheirLineAndColumn)
{
    EstadoDoLeiaute estado = Estado(apoio::kPosicoes);
    estado.extras = {{{3, 7}, "Ref. 12"}, {{20, 119}, "fim do cheque"}, {{0, 0}, "x"}, {{99, 1}, "y"}};
    const auto documento = std::get<Documento>(MontaCheque(Textos(), estado));
    EXPECT_EQ(apoio::LinhaDe(documento, 3), "      Ref. 12");
    EXPECT_EQ(apoio::LinhaDe(documento, 20),
              "y" + QString(106, ' ') + "fim do cheque"); // moved left to the edge
    EXPECT_EQ(apoio::LinhaDe(documento, 1).left(1), "x");
}

TEST(MontaCheque, RefusesAnExtraFieldOnAnotherText)
{
    EstadoDoLeiaute estado = Estado(apoio::kPosicoes);
    estado.extras = {{{10, 12}, "x"}};
    EXPECT_EQ(MotivoDe(MontaCheque(Textos(), estado)), "Um campo extra ficaria sobre outro campo.");
    estado.extras = {{{5, 110}, "x"}}; // only stars there
    EXPECT_EQ(MotivoDe(MontaCheque(Textos(), estado)), QString());
}

TEST(Grade, AChequeIsTwentyLinesOf120Characters)
{
    const auto documento = std::get<Documento>(MontaCheque(Textos(), Estado(apoio::kPosicoes)));
    const QStringList linhas = Grade(documento).split('\n');
    ASSERT_EQ(linhas.size(), 21);
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(linhas.at(i).size(), 120);
    EXPECT_EQ(linhas.last(), QString());
}

// --- the thirteen numbers ---

struct CasoPosicoes {
    const char *nome;
    const char *texto;
    const char *escrito; // empty: refused
};
void PrintTo(const CasoPosicoes &c, std::ostream *os)
{
    *os << c.texto;
}
class LePosicoesTest : public testing::TestWithParam<CasoPosicoes> {};
TEST_P(LePosicoesTest, TakesThirteenNumbers)
{
    const auto posicoes = LePosicoes(GetParam().texto);
    EXPECT_EQ(posicoes ? EscrevePosicoes(*posicoes) : QString(), GetParam().escrito);
}
INSTANTIATE_TEST_SUITE_P(
    Numeros, LePosicoesTest,
    testing::Values(CasoPosicoes{"ThreeDigits", "001,005,007,010,013,092,017,009,011,050,031,040,065",
                                 apoio::kPosicoes},
                    CasoPosicoes{"BlanksAround", " 1, 5,7 ,10,13,92,17,9,11,50,31,40,65 ", apoio::kPosicoes},
                    CasoPosicoes{"Above99", "1,5,7,10,13,118,17,9,11,50,31,40,999",
                                 "01,05,07,10,13,118,17,09,11,50,31,40,999"},
                    CasoPosicoes{"Negative", "1,5,7,10,13,92,17,9,11,50,-05,40,65",
                                 "01,05,07,10,13,92,17,09,11,50,-05,40,65"},
                    CasoPosicoes{"Twelve", "1,5,7,10,13,92,17,9,11,50,31,40", ""},
                    CasoPosicoes{"Fourteen", "1,5,7,10,13,92,17,9,11,50,31,40,65,1", ""},
                    CasoPosicoes{"OneEmpty", "1,,7,10,13,92,17,9,11,50,31,40,65", ""},
                    CasoPosicoes{"Letters", "1,5,7,10,13,92,17,9,11,50,31,40,6x", ""},
                    CasoPosicoes{"HugeNumber", "99999999999,5,7,10,13,92,17,9,11,50,31,40,65", ""},
                    CasoPosicoes{"Empty", "", ""}),
    [](const auto &caso) { return caso.param.nome; });

} // namespace
