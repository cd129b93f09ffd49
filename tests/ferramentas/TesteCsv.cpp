// CSV text, its encodings, and what rows from outside must be like.
#include "Codificacao.h"
#include "Csv.h"
#include "Regras.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>

using namespace banco;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

// A source that gives at most so many bytes at a time.
LeitorCsv::Fonte FonteDe(const std::string &texto, std::size_t aosPoucos)
{
    return [&texto, aosPoucos, dados = std::size_t{0}](char *para, std::size_t quantos) mutable {
        const std::size_t n = std::min({quantos, aosPoucos, texto.size() - dados});
        texto.copy(para, n, dados);
        dados += n;
        return n;
    };
}

// "1: a|'b'|~" is a record of line 1 with a plain field, a quoted one and none.
std::vector<std::string> Registros(const std::string &texto, std::size_t aosPoucos, char separador = ';')
{
    LeitorCsv leitor(FonteDe(texto, aosPoucos), separador);
    std::vector<std::string> registros;
    for (RegistroCsv registro; leitor.Le(registro);) {
        std::string dito = std::to_string(registro.linha) + ":";
        if (registro.erro != ErroCsv::Nenhum) {
            registros.push_back(dito + " !" + TextoDoErro(registro.erro).toStdString());
            continue;
        }
        for (const CampoCsv &campo : registro.campos) {
            const std::string dentro(campo.texto);
            dito += (&campo == registro.campos.data() ? " " : "|") + (campo.entreAspas ? "'" + dentro + "'"
                                                                      : dentro.empty() ? "~"
                                                                                       : dentro);
        }
        registros.push_back(dito);
    }
    return registros;
}

struct CasoLido {
    std::string nome;
    std::string texto;
    std::vector<std::string> registros; ///< of an error, how its words begin
};
void PrintTo(const CasoLido &c, std::ostream *os)
{
    *os << c.nome;
}

class LeituraTest : public testing::TestWithParam<CasoLido> {
protected:
    static void Compara(const std::vector<std::string> &lidos)
    {
        ASSERT_EQ(lidos.size(), GetParam().registros.size()) << testing::PrintToString(lidos);
        for (std::size_t i = 0; i < lidos.size(); ++i) {
            const std::string &esperado = GetParam().registros[i];
            const bool erro = esperado.find('!') != std::string::npos;
            EXPECT_EQ(erro ? lidos[i].substr(0, esperado.size()) : lidos[i], esperado);
        }
    }
};

TEST_P(LeituraTest, TakesRecordsApartAndTellsTheirLine)
{
    Compara(Registros(GetParam().texto, 1 << 20));
}

TEST_P(LeituraTest, TakesTheSameApartWhereverTheBytesAreParted)
{
    for (const std::size_t n : {1U, 2U, 3U, 5U})
        Compara(Registros(GetParam().texto, n));
}

const std::string kNulo(1, '\0');

INSTANTIATE_TEST_SUITE_P(
    Textos, LeituraTest,
    testing::Values(
        CasoLido{"NothingAtAll", "", {}}, CasoLido{"CrLf", "a;b\r\nc;d\r\n", {"1: a|b", "2: c|d"}},
        CasoLido{"Lf", "a;b\nc;d\n", {"1: a|b", "2: c|d"}},
        CasoLido{"BothEnds", "a\r\nb\nc\r\n", {"1: a", "2: b", "3: c"}},
        CasoLido{"NoEndBehindTheLast", "a;b\nc;d", {"1: a|b", "2: c|d"}},
        CasoLido{"NoValueAndEmptyText", ";\"\";\n", {"1: ~|''|~"}},
        CasoLido{"NoValueAtTheEndOfTheFile", "a;", {"1: a|~"}},
        CasoLido{"SeparatorInQuotes", "\"a;b\";c\n", {"1: 'a;b'|c"}},
        CasoLido{"QuotesDoubled", "\"a\"\"b\";\"\"\"\";\"\"\"c\"\"\"\n", {"1: 'a\"b'|'\"'|'\"c\"'"}},
        CasoLido{"QuotesAtTheEndOfTheFile", "x;\"a\"\"\"", {"1: x|'a\"'"}},
        CasoLido{"BreaksInQuotesCountAsLines", "\"a\r\nb\nc\";d\r\ne\r\n", {"1: 'a\r\nb\nc'|d", "4: e"}},
        CasoLido{"LoneCrInQuotesIsNoLine", "\"a\rb\"\nc\n", {"1: 'a\rb'", "2: c"}},
        CasoLido{"BlanksAreKept", " a ;\" \"\n", {"1:  a |' '"}},
        CasoLido{"EmptyLastLine", "a\r\n\r\n", {"1: a"}}, CasoLido{"EmptyLastLineWithLf", "a\n\n", {"1: a"}},
        CasoLido{"EmptyLine", "a\n\nb\n", {"1: a", "2: !a linha está vazia", "3: b"}},
        CasoLido{"TwoEmptyLinesAtTheEnd", "a\r\n\r\n\r\n", {"1: a", "2: !a linha está vazia"}},
        CasoLido{"UnclosedQuotes", "a\nb;\"c\nd\n", {"1: a", "2: !as aspas abertas nesta linha"}},
        CasoLido{"QuotesInsideAField", "a;b\"c\"\nd\n", {"1: !há aspas no meio de um campo", "2: d"}},
        CasoLido{"TextBehindQuotes", "\"a\nb\"c;d\ne\n", {"1: !há texto depois das aspas", "3: e"}},
        CasoLido{"BlankBehindQuotes", "\"a\" ;d\ne\n", {"1: !há texto depois das aspas", "2: e"}},
        CasoLido{"LoneCr", "a\rb\nc\n", {"1: !há um retorno de carro", "2: c"}},
        CasoLido{"LoneCrAtTheEndOfTheFile", "a\r", {"1: !há um retorno de carro"}},
        CasoLido{"Nul", "a" + kNulo + "b\nc\n", {"1: !há um caractere nulo", "2: c"}},
        CasoLido{"NulInQuotes", "\"a\n" + kNulo + "\";b\nc\n", {"1: !há um caractere nulo", "3: c"}},
        CasoLido{"NulBehindQuotes", "\"a\"" + kNulo + "\nc\n", {"1: !há um caractere nulo", "2: c"}}),
    [](const auto &caso) { return caso.param.nome; });

TEST(Leitura, GoesOnBehindALineThatIsTooLong)
{
    const std::string longa(LeitorCsv::kMaiorRegistro + 10, 'x');
    EXPECT_THAT(Registros("a\n" + longa + ";y\nb\n", 1 << 20),
                ElementsAre("1: a", HasSubstr("2: !a linha tem mais de 1 MB"), "3: b"));
}

TEST(Leitura, TakesQuotesThatNeverCloseForUnclosedHoweverLongTheFileIs)
{
    const std::string resto(3 * LeitorCsv::kMaiorRegistro, '\n');
    EXPECT_THAT(Registros("a\n\"b" + resto, 1 << 20),
                ElementsAre("1: a", HasSubstr("2: !as aspas abertas nesta linha")));
}

TEST(Leitura, ReadsARecordAsLongAsAllowedBehindOthers)
{
    const std::string longa(LeitorCsv::kMaiorRegistro - 2, 'x');
    EXPECT_EQ(Registros("a\n" + longa + "\nb\n", 60000).size(), 3U);
}

TEST(Leitura, HeedsTheSeparatorAskedFor)
{
    EXPECT_THAT(Registros("a;b,c\n", 100, ','), ElementsAre("1: a;b|c"));
    EXPECT_THAT(Registros("a;b\tc\n", 100, '\t'), ElementsAre("1: a;b|c"));
}

struct CasoEscrito {
    std::string nome;
    std::string texto; ///< as in the store
    std::string ansi;  ///< the field in Windows-1252
    std::string utf8;  ///< the field in UTF-8
};
void PrintTo(const CasoEscrito &c, std::ostream *os)
{
    *os << c.nome;
}

class EscritaTest : public testing::TestWithParam<CasoEscrito> {};

TEST_P(EscritaTest, QuotesWhatReadingNeedsAndEncodes)
{
    std::string ansi, utf8;
    EXPECT_EQ(EscritorCsv(';', Codificacao::Windows1252).Poe(ansi, GetParam().texto),
              EscritorCsv::Falha::Nenhuma);
    EXPECT_EQ(EscritorCsv(';', Codificacao::Utf8).Poe(utf8, GetParam().texto), EscritorCsv::Falha::Nenhuma);
    EXPECT_EQ(ansi, GetParam().ansi);
    EXPECT_EQ(utf8, GetParam().utf8);
}

INSTANTIATE_TEST_SUITE_P(Textos, EscritaTest,
                         testing::Values(CasoEscrito{"Plain", "1234,5", "1234,5", "1234,5"},
                                         CasoEscrito{"Accents", "João é", "Jo\xE3o \xE9", "João é"},
                                         CasoEscrito{"FarEndOfTheCodePage", "€Ÿ–", "\x80\x9F\x96", "€Ÿ–"},
                                         CasoEscrito{"EmptyText", "", "\"\"", "\"\""},
                                         CasoEscrito{"OneBlank", " ", "\" \"", "\" \""},
                                         CasoEscrito{"BlankInFront", " a", "\" a\"", "\" a\""},
                                         CasoEscrito{"BlankBehind", "a ", "\"a \"", "\"a \""},
                                         CasoEscrito{"BlankInside", "a b", "a b", "a b"},
                                         CasoEscrito{"Separator", "a;é", "\"a;\xE9\"", "\"a;é\""},
                                         CasoEscrito{"Quotes", "\"a\"", "\"\"\"a\"\"\"", "\"\"\"a\"\"\""},
                                         CasoEscrito{"QuotesAlone", "\"", "\"\"\"\"", "\"\"\"\""},
                                         CasoEscrito{"LineBreak", "a\nb", "\"a\nb\"", "\"a\nb\""},
                                         CasoEscrito{"CarriageReturn", "a\r", "\"a\r\"", "\"a\r\""},
                                         CasoEscrito{"BytesOfAnotherProgram", "Jo\xE3o", "Jo\xE3o", "João"}),
                         [](const auto &caso) { return caso.param.nome; });

TEST(Escrita, RefusesWhatTheCodePageLacks)
{
    std::string saida;
    const EscritorCsv ansi(';', Codificacao::Windows1252);
    EXPECT_EQ(ansi.Poe(saida, "Łódź"), EscritorCsv::Falha::ForaDaPagina);
    EXPECT_EQ(ansi.Poe(saida, "\xC2\x81"), EscritorCsv::Falha::ForaDaPagina);
    EXPECT_EQ(ansi.Poe(saida, "\xF0\x9F\x98\x80"), EscritorCsv::Falha::ForaDaPagina);
    EXPECT_EQ(EscritorCsv(';', Codificacao::Utf8).Poe(saida, "Łódź"), EscritorCsv::Falha::Nenhuma);
}

TEST(Escrita, RefusesANulInEitherEncoding)
{
    std::string saida;
    const std::string nulo = "a" + kNulo + "b";
    EXPECT_EQ(EscritorCsv(';', Codificacao::Windows1252).Poe(saida, nulo), EscritorCsv::Falha::Nulo);
    EXPECT_EQ(EscritorCsv(';', Codificacao::Utf8).Poe(saida, nulo), EscritorCsv::Falha::Nulo);
}

TEST(Ansi, EveryByteOfTheCodePageComesBackAndTheFiveOpenOnesAreRefused)
{
    int recusados = 0;
    for (int i = 1; i < 256; ++i) {
        const std::string byte(1, static_cast<char>(i));
        std::string utf8, ansi;
        if (PoeEmUtf8(utf8, byte) != std::string_view::npos) {
            ++recusados;
            EXPECT_TRUE(i == 0x81 || i == 0x8D || i == 0x8F || i == 0x90 || i == 0x9D) << i;
            continue;
        }
        EXPECT_EQ(PoeEmAnsi(ansi, utf8), std::string_view::npos) << i;
        EXPECT_EQ(ansi, byte) << i;
    }
    EXPECT_EQ(recusados, 5);
}

struct CasoUtf8 {
    std::string nome;
    std::string bytes;
    std::size_t fora; ///< position of the first byte that does not belong; npos
};
void PrintTo(const CasoUtf8 &c, std::ostream *os)
{
    *os << c.nome;
}

class Utf8Test : public testing::TestWithParam<CasoUtf8> {};

TEST_P(Utf8Test, IsJudgedStrictly)
{
    EXPECT_EQ(AchaForaDeUtf8(GetParam().bytes), GetParam().fora);
}

constexpr std::size_t kNada = std::string_view::npos;
INSTANTIATE_TEST_SUITE_P(
    Bytes, Utf8Test,
    testing::Values(CasoUtf8{"Ascii", "abcdefghijklm", kNada}, CasoUtf8{"TwoBytes", "aé", kNada},
                    CasoUtf8{"ThreeBytes", "a€b", kNada}, CasoUtf8{"FourBytes", "\xF0\x9F\x98\x80", kNada},
                    CasoUtf8{"LastCharacter", "\xF4\x8F\xBF\xBF", kNada},
                    CasoUtf8{"BeyondTheLast", "a\xF4\x90\x80\x80", 1}, CasoUtf8{"Overlong", "\xC0\xAF", 0},
                    CasoUtf8{"OverlongOfThree", "\xE0\x80\x80", 0},
                    CasoUtf8{"OverlongOfFour", "\xF0\x80\x80\x80", 0},
                    CasoUtf8{"HalfPair", "\xED\xA0\x80", 0}, CasoUtf8{"CutOff", "abcdefgh\xE2\x82", 8},
                    CasoUtf8{"ContinuationAlone", "a\x80", 1}, CasoUtf8{"Ansi", "Jo\xE3o", 2}),
    [](const auto &caso) { return caso.param.nome; });

struct CasoDetectado {
    std::string nome;
    std::string bytes;
    Codificacao codificacao;
};
void PrintTo(const CasoDetectado &c, std::ostream *os)
{
    *os << c.nome;
}

class DetectorTest : public testing::TestWithParam<CasoDetectado> {};

TEST_P(DetectorTest, FindsTheSameHoweverTheBytesAreParted)
{
    const std::string &bytes = GetParam().bytes;
    for (const std::size_t n : {1U, 2U, 3U, 7U, 1000U}) {
        Detector detector;
        for (std::size_t i = 0; i < bytes.size(); i += n)
            detector.Ve(std::string_view(bytes).substr(i, n));
        EXPECT_EQ(detector.Resultado(), GetParam().codificacao) << n << " bytes at a time";
    }
}

INSTANTIATE_TEST_SUITE_P(
    Arquivos, DetectorTest,
    testing::Values(CasoDetectado{"Nothing", "", Codificacao::Windows1252},
                    CasoDetectado{"Ascii", "Codigo;Nome\n", Codificacao::Windows1252},
                    CasoDetectado{"Utf8", "Codigo;Nome\n1;João\n", Codificacao::Utf8},
                    CasoDetectado{"OneCharacterOfUtf8", "é", Codificacao::Utf8},
                    CasoDetectado{"Ansi", "Codigo;Nome\n1;Jo\xE3o\n", Codificacao::Windows1252},
                    CasoDetectado{"AnsiByteAlone", "\xE3", Codificacao::Windows1252},
                    CasoDetectado{"AnsiBehindUtf8", "João Jo\xE3o João", Codificacao::Windows1252},
                    CasoDetectado{"AnsiAtTheEnd", "João Jo\xE3", Codificacao::Windows1252},
                    CasoDetectado{"MarkAlone", "\xEF\xBB\xBF", Codificacao::Utf8},
                    CasoDetectado{"MarkBeforeAscii",
                                  "\xEF\xBB\xBF"
                                  "Codigo\n",
                                  Codificacao::Utf8},
                    CasoDetectado{"MarkBeforeAWrongByte",
                                  "\xEF\xBB\xBF"
                                  "Jo\xE3o\n",
                                  Codificacao::Utf8}),
    [](const auto &caso) { return caso.param.nome; });

// A row of a table, "campo=valor" for each field that has a value.
Linha MontaLinha(const Tabela &tabela, const std::vector<std::pair<std::string, std::string>> &valores)
{
    Linha linha(tabela.campos.size());
    for (const auto &[campo, valor] : valores) {
        const auto lugar = std::find(tabela.campos.begin(), tabela.campos.end(), campo);
        if (lugar == tabela.campos.end())
            throw std::out_of_range(campo);
        linha[static_cast<std::size_t>(lugar - tabela.campos.begin())] = {valor, false};
    }
    return linha;
}

std::string Dita(const Linha &linha)
{
    std::string dita;
    for (const Campo &campo : linha)
        dita += (campo.nulo ? "~" : "'" + campo.texto + "'") + "|";
    return dita;
}

const std::vector<std::pair<std::string, std::string>> kCheque{
    {"Index", "0000000012"}, {"Codigo", "00012"},  {"Banco", "001"},
    {"V_CH", "1234,5"},      {"Favor", "Padaria"}, {"Local", "Natal"},
    {"Data", "29/02/00"},    {"NRCH", "000123"},   {"StCancel", "C"}};

TEST(Regras, LeaveARowAsTheProgramStoresIt)
{
    Linha linha = MontaLinha(TabelaDe("Log"), kCheque);
    const std::string antes = Dita(linha);
    RegrasDaTabela regras(TabelaDe("Log"));
    EXPECT_TRUE(regras.Aplica(linha).isEmpty());
    EXPECT_EQ(Dita(linha), antes);
    EXPECT_EQ(regras.Completados(), 0);
}

struct CasoMudado {
    std::string nome;
    std::string tabela;
    std::string campo;
    std::string valor;
    std::string depois;
    int completados;
};
void PrintTo(const CasoMudado &c, std::ostream *os)
{
    *os << c.nome;
}

// The field's value in a row that is good but for it.
class MudancaTest : public testing::TestWithParam<CasoMudado> {};

TEST_P(MudancaTest, GivesTheRowItsFormBack)
{
    const Tabela &tabela = TabelaDe(GetParam().tabela);
    auto valores = tabela.nome == "Log" ? kCheque : decltype(kCheque){{"Codigo", "001"}};
    if (tabela.nome == "Favorecido" || tabela.nome == "Cidade")
        valores = {{"Codigo", "00001"}};
    valores.emplace_back(GetParam().campo, GetParam().valor);
    Linha linha = MontaLinha(tabela, valores);
    RegrasDaTabela regras(tabela);
    EXPECT_EQ(regras.Aplica(linha).join(QLatin1Char(';')).toStdString(), "");
    valores.back().second = GetParam().depois;
    EXPECT_EQ(Dita(linha), Dita(MontaLinha(tabela, valores)));
    EXPECT_EQ(regras.Completados(), GetParam().completados);
}

INSTANTIATE_TEST_SUITE_P(
    Campos, MudancaTest,
    testing::Values(CasoMudado{"CodeOfABank", "Bancos", "Codigo", "1", "001", 1},
                    CasoMudado{"CodeOfATransferBank", "Transferencia", "Codigo", "22", "022", 1},
                    CasoMudado{"CodeOfALayout", "Script", "Codigo", "7", "007", 1},
                    CasoMudado{"CodeOfAPayee", "Favorecido", "Codigo", "12", "00012", 1},
                    CasoMudado{"CodeOfACity", "Cidade", "Codigo", "99999", "99999", 0},
                    CasoMudado{"LineOfABank", "Bancos", "L1", "5", "005", 1},
                    CasoMudado{"ColumnOfALayout", "Script", "c11", "80", "080", 1},
                    CasoMudado{"EmptyPosition", "Bancos", "C8", "", "", 0},
                    CasoMudado{"PositionAsItIs", "Bancos", "C1", "092", "092", 0},
                    CasoMudado{"NameAsItIs", "Bancos", "Nome", " 1 ", " 1 ", 0},
                    CasoMudado{"IndexOfACheque", "Log", "Index", "12", "0000000012", 1},
                    CasoMudado{"CodeOfACheque", "Log", "Codigo", "12", "00012", 1},
                    CasoMudado{"BankOfACheque", "Log", "Banco", "1", "001", 1},
                    CasoMudado{"BankThatIsNoNumber", "Log", "Banco", "1a", "1a", 0},
                    CasoMudado{"NoBank", "Log", "Banco", "", "", 0},
                    CasoMudado{"AmountWithoutDecimals", "Log", "V_CH", "1000,", "1000,", 0},
                    CasoMudado{"ChequeNumberAsItIs", "Log", "NRCH", "12", "12", 0},
                    CasoMudado{"NoChequeNumber", "Log", "NRCH", "", " ", 0},
                    CasoMudado{"NotCancelled", "Log", "StCancel", "", " ", 0},
                    CasoMudado{"LongestPayee", "Log", "Favor", std::string(47, 'a'), std::string(47, 'a'),
                               0}),
    [](const auto &caso) { return caso.param.nome; });

TEST(Regras, TakeMissingBlanksOfAChequeForBlanks)
{
    auto valores = kCheque;
    valores.resize(7); // up to the date
    Linha linha = MontaLinha(TabelaDe("Log"), valores);
    EXPECT_TRUE(RegrasDaTabela(TabelaDe("Log")).Aplica(linha).isEmpty());
    valores.insert(valores.end(), {{"NRCH", " "}, {"StCancel", " "}});
    EXPECT_EQ(Dita(linha), Dita(MontaLinha(TabelaDe("Log"), valores)));
}

struct CasoRecusado {
    std::string nome;
    std::string tabela;
    std::string campo;
    std::string valor;
    std::string dito;
};
void PrintTo(const CasoRecusado &c, std::ostream *os)
{
    *os << c.nome;
}

class RecusaTest : public testing::TestWithParam<CasoRecusado> {};

TEST_P(RecusaTest, NamesFieldAndValue)
{
    const Tabela &tabela = TabelaDe(GetParam().tabela);
    auto valores = tabela.nome == "Log" ? kCheque : decltype(kCheque){{"Codigo", "001"}};
    if (tabela.nome == "Favorecido" || tabela.nome == "Cidade")
        valores = {{"Codigo", "00001"}};
    valores.emplace_back(GetParam().campo, GetParam().valor);
    Linha linha = MontaLinha(tabela, valores);
    const QStringList faltas = RegrasDaTabela(tabela).Aplica(linha);
    ASSERT_EQ(faltas.size(), 1) << faltas.join(QLatin1Char(';')).toStdString();
    EXPECT_EQ(faltas.first().toStdString(), GetParam().dito);
}

INSTANTIATE_TEST_SUITE_P(
    Campos, RecusaTest,
    testing::Values(
        CasoRecusado{"CodeWithALetter", "Bancos", "Codigo", "1A",
                     "Codigo \"1A\" não é um número de até 3 algarismos"},
        CasoRecusado{"CodeTooLong", "Bancos", "Codigo", "0001",
                     "Codigo \"0001\" não é um número de até 3 algarismos"},
        CasoRecusado{"CodeWithABlank", "Cidade", "Codigo", " 1",
                     "Codigo \" 1\" não é um número de até 5 algarismos"},
        CasoRecusado{"CodeWithASign", "Cidade", "Codigo", "-1",
                     "Codigo \"-1\" não é um número de até 5 algarismos"},
        CasoRecusado{"NoCode", "Script", "Codigo", "",
                     "Codigo está vazio, e sem ele o registro não pode ser achado"},
        CasoRecusado{"PositionWithAComma", "Bancos", "L1", "1,5",
                     "L1 \"1,5\" não é um número inteiro de até 3 algarismos"},
        CasoRecusado{"PositionTooLong", "Transferencia", "C7", "1000",
                     "C7 \"1000\" não é um número inteiro de até 3 algarismos"},
        CasoRecusado{"NegativePosition", "Script", "l8", "-1",
                     "l8 \"-1\" não é um número inteiro de até 3 algarismos"},
        CasoRecusado{"CityTooLong", "Cidade", "Nome", "São Miguel do Gostoso",
                     "Nome \"São Miguel do Gostoso\" tem 21 caracteres, e cabem 20"},
        CasoRecusado{"IndexTooLong", "Log", "Index", "00000000012",
                     "Index \"00000000012\" não é um número de até 10 algarismos"},
        CasoRecusado{"CodeOfAnotherIndex", "Log", "Codigo", "00013",
                     "Codigo \"00013\" não são os últimos algarismos do Index, 00012"},
        CasoRecusado{"ChequeWithoutCode", "Log", "Codigo", "",
                     "Codigo \"\" não são os últimos algarismos do Index, 00012"},
        CasoRecusado{"BankTooLong", "Log", "Banco", "0001", "Banco \"0001\" tem 4 caracteres, e cabem 3"},
        CasoRecusado{"AmountThatIsNone", "Log", "V_CH", "mil", "V_CH \"mil\" não é um valor"},
        CasoRecusado{"NoAmount", "Log", "V_CH", "", "V_CH \"\" não é um valor"},
        CasoRecusado{"AmountTooLong", "Log", "V_CH", "12345678901234,56",
                     "V_CH \"12345678901234,56\" tem 17 caracteres, e cabem 16"},
        CasoRecusado{"DateThatDoesNotExist", "Log", "Data", "30/02/04",
                     "Data \"30/02/04\" não é uma data na forma dd/mm/aa"},
        CasoRecusado{"DateOfFourDigitYear", "Log", "Data", "01/02/2004",
                     "Data \"01/02/2004\" não é uma data na forma dd/mm/aa"},
        CasoRecusado{"DateOfOneDigitDay", "Log", "Data", "1/02/04",
                     "Data \"1/02/04\" não é uma data na forma dd/mm/aa"},
        CasoRecusado{"DateMonthFirst", "Log", "Data", "12/13/04",
                     "Data \"12/13/04\" não é uma data na forma dd/mm/aa"},
        CasoRecusado{"DateWithLetters", "Log", "Data", "ab/cd/ef",
                     "Data \"ab/cd/ef\" não é uma data na forma dd/mm/aa"},
        CasoRecusado{"PayeeTooLong", "Log", "Favor", std::string(48, 'a'),
                     "Favor \"" + std::string(48, 'a') + "\" tem 48 caracteres, e cabem 47"},
        CasoRecusado{"CancelledByAnotherLetter", "Log", "StCancel", "c",
                     "StCancel \"c\" não é nem um branco nem \"C\""},
        CasoRecusado{"CommentTooLong", "Log", "Comentario2", std::string(81, 'x'),
                     "Comentario2 \"" + std::string(60, 'x') + "...\" tem 81 caracteres, e cabem 80"}),
    [](const auto &caso) { return caso.param.nome; });

TEST(Regras, CountAccentsAsOneCharacter)
{
    Linha linha = MontaLinha(TabelaDe("Cidade"), {{"Codigo", "00001"}, {"Nome", "ãããããããããããããããããããã"}});
    EXPECT_TRUE(RegrasDaTabela(TabelaDe("Cidade")).Aplica(linha).isEmpty());
}

TEST(Regras, TellEverythingThatIsWrongWithARow)
{
    Linha linha = MontaLinha(TabelaDe("Bancos"), {{"Codigo", "x"}, {"L1", "y"}, {"C8", "z"}});
    EXPECT_EQ(RegrasDaTabela(TabelaDe("Bancos")).Aplica(linha).size(), 3);
}

} // namespace
