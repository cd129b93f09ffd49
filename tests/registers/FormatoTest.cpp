// The line of a bank in the settings file, and the numbers that the graphic adjustment starts from.
#include "ComCadastro.h"
#include "registers/RegrasDoBanco.h"

using namespace teste;

namespace {

registers::TextosDoBanco Com(std::initializer_list<std::pair<int, const char *>> mudancas)
{
    registers::TextosDoBanco textos = kBancoUm;
    for (const auto &[caixa, texto] : mudancas)
        textos.at(static_cast<std::size_t>(caixa)) = QString::fromUtf8(texto);
    return textos;
}

struct CasoFormato {
    std::string nome;
    registers::TextosDoBanco textos;
    std::string valor;
};
void PrintTo(const CasoFormato &c, std::ostream *os)
{
    *os << c.nome;
}
class TextoDoFormato : public testing::TestWithParam<CasoFormato> {};
TEST_P(TextoDoFormato, HasThirteenNumbersAndTheName)
{
    EXPECT_EQ(registers::TextoDoFormato(GetParam().textos).toStdString(), GetParam().valor);
}
INSTANTIATE_TEST_SUITE_P(
    Bancos, TextoDoFormato,
    testing::Values(
        CasoFormato{"Defaults", Com({{1, "BANCO EXEMPLO"}}),
                    "01,05,07,10,13,92,17,09,11,50,31,40,65    ; BANCO EXEMPLO"},
        CasoFormato{"NinetyNine", Com({{7, "099"}}), "01,05,07,10,13,99,17,09,11,50,31,40,65    ; BANCO UM"},
        CasoFormato{"AHundred", Com({{7, "100"}}), "01,05,07,10,13,100,17,09,11,50,31,40,65    ; BANCO UM"},
        CasoFormato{"Seven", Com({{7, "007"}}), "01,05,07,10,13,07,17,09,11,50,31,40,65    ; BANCO UM"},
        CasoFormato{"OneDigitAsTyped", Com({{7, "7"}}),
                    "01,05,07,10,13,07,17,09,11,50,31,40,65    ; BANCO UM"},
        CasoFormato{"Zero", Com({{14, "000"}}), "01,05,07,10,13,92,17,09,11,50,31,40,00    ; BANCO UM"},
        CasoFormato{"Highest", Com({{2, "999"}, {14, "999"}}),
                    "999,05,07,10,13,92,17,09,11,50,31,40,999    ; BANCO UM"},
        CasoFormato{"LettersCountAsZero", Com({{3, "abc"}}),
                    "01,00,07,10,13,92,17,09,11,50,31,40,65    ; BANCO UM"},
        CasoFormato{"NegativeOfOneDigit", Com({{12, "-5"}}),
                    "01,05,07,10,13,92,17,09,11,50,-05,40,65    ; BANCO UM"},
        CasoFormato{"NegativeOfTwoDigits", Com({{12, "-12"}}),
                    "01,05,07,10,13,92,17,09,11,50,-12,40,65    ; BANCO UM"},
        CasoFormato{"MinusZeroHasNoSign", Com({{12, "-00"}}),
                    "01,05,07,10,13,92,17,09,11,50,00,40,65    ; BANCO UM"},
        CasoFormato{"NameOfTwenty", Com({{1, "12345678901234567890"}}),
                    "01,05,07,10,13,92,17,09,11,50,31,40,65    ; 12345678901234567890"},
        CasoFormato{"NameOfThirtyIsCut", Com({{1, "123456789012345678901234567890"}}),
                    "01,05,07,10,13,92,17,09,11,50,31,40,65    ; 12345678901234567890"},
        CasoFormato{"NoName", Com({{1, ""}}), "01,05,07,10,13,92,17,09,11,50,31,40,65    ; "},
        CasoFormato{"Accents", Com({{1, "AÇÃO"}}), "01,05,07,10,13,92,17,09,11,50,31,40,65    ; AÇÃO"}),
    kNomeDoCaso);

struct CasoResultado {
    std::string nome;
    QString resultado;
    bool falhou;
};
void PrintTo(const CasoResultado &c, std::ostream *os)
{
    *os << '"' << c.resultado.toStdString() << '"';
}
class FormatoFalhou : public testing::TestWithParam<CasoResultado> {};
TEST_P(FormatoFalhou, WhenTheAnswerReadsBelowZero)
{
    EXPECT_EQ(registers::FormatoFalhou(GetParam().resultado), GetParam().falhou);
}
INSTANTIATE_TEST_SUITE_P(Respostas, FormatoFalhou,
                         testing::Values(CasoResultado{"Negative", "-1", true},
                                         CasoResultado{"NotWritten", "0", false},
                                         CasoResultado{"Written", "1", false},
                                         CasoResultado{"Nothing", "", false}),
                         kNomeDoCaso);

struct CasoAjuste {
    std::string nome;
    LinhaDoBanco antes;
    std::string depois;
};
void PrintTo(const CasoAjuste &c, std::ostream *os)
{
    *os << c.nome;
}
LinhaDoBanco So(std::initializer_list<std::pair<int, const char *>> numeros, const char *outros = "")
{
    LinhaDoBanco banco;
    banco.fill(outros);
    banco[0] = "001";
    banco[1] = "BANCO UM";
    for (const auto &[caixa, texto] : numeros)
        banco.at(static_cast<std::size_t>(caixa)) = texto;
    return banco;
}
const std::string kPadrao = "001|BANCO UM|001|005|007|010|013|092|017|009|011|050|031|040|065";
const std::vector<CasoAjuste> kAjustes = {
    {"AllEmptyTakesTheDefaults", So({}), kPadrao},
    {"AllZeroTakesTheDefaults", So({}, "000"), kPadrao},
    {"LettersAreNoNumbers", So({{5, "abc"}}), kPadrao},
    {"OneFilledLeavesTheRestTwiceTheirIndex", So({{9, "050"}}),
     "001|BANCO UM|004|006|008|010|012|014|016|050|020|022|024|026|028"},
    {"TheFirstFilled", So({{2, "3"}}, "000"),
     "001|BANCO UM|003|006|008|010|012|014|016|018|020|022|024|026|028"},
    {"TheLastFilled", So({{14, "1"}}), "001|BANCO UM|004|006|008|010|012|014|016|018|020|022|024|026|001"},
    {"NegativeIsNotAboveZero", So({{3, "-5"}, {4, "9"}}),
     "001|BANCO UM|004|006|009|010|012|014|016|018|020|022|024|026|028"},
    {"AWholeLayoutStays", kBancoDois, "237|BANCO DOIS|002|006|008|011|014|093|018|010|012|051|032|041|066"},
};

class PreparaAjuste : public testing::TestWithParam<CasoAjuste> {};
TEST_P(PreparaAjuste, GivesThirteenNumbers)
{
    const registers::TextosDoBanco textos = registers::PreparaAjuste(GetParam().antes);
    EXPECT_EQ(NasCaixas(textos), GetParam().depois);
}
INSTANTIATE_TEST_SUITE_P(Bancos, PreparaAjuste, testing::ValuesIn(kAjustes), kNomeDoCaso);

// --- the button of the screen ---

class AjusteGrafico : public ComBancosDe<CasoAjuste> {};
TEST_P(AjusteGrafico, ShowsTheNumbersInTheBoxesAndHandsThemOn)
{
    AbreCadastro();
    Preenche(GetParam().antes);
    Aperta("Command3D2");
    EXPECT_EQ(Caixas(), GetParam().depois);
    std::string ajuste = Caixa(0) + '|' + Caixa(1);
    for (std::size_t i = 0; i < 5; ++i)
        ajuste += '|' + Dados().AjusteL.at(i).toStdString();
    for (std::size_t i = 0; i < 8; ++i)
        ajuste += '|' + Dados().AjusteC.at(i).toStdString();
    EXPECT_EQ(ajuste, GetParam().depois);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(Tabela(), NaTabela(kBancoDois) + '|' + NaTabela(kBancoUm) + '|' + NaTabela(kCaixaTres));
}
INSTANTIATE_TEST_SUITE_P(Bancos, AjusteGrafico, testing::ValuesIn(kAjustes), kNomeDoCaso);

class AjusteAberto : public ComBancos {
protected:
    void SetUp() override
    {
        AbreCadastro();
        ClicaNaLinha(1);
        Aperta("Command3D2");
        ASSERT_EQ(Abertas("Ajusta").size(), 1);
    }
    void EsperaFechado()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(Abertas("Ajusta").isEmpty());
    }
};

TEST_F(AjusteAberto, TheButtonAgainLeavesOneScreen)
{
    Aperta("Command3D2");
    EXPECT_EQ(Abertas("Ajusta").size(), 1);
}

TEST_F(AjusteAberto, ChoosingAnotherBankClosesIt)
{
    ClicaNaLinha(2);
    EsperaFechado();
    EXPECT_EQ(Caixas(), NasCaixas(kCaixaTres)) << "nothing of the other bank is written into its boxes";
}

TEST_F(AjusteAberto, ClosingTheRegisterClosesIt)
{
    Aperta(Fechar);
    EXPECT_FALSE(EstaAberto());
    EsperaFechado();
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

class AjusteSemBanco : public ComBancosDe<int> {};
TEST_P(AjusteSemBanco, DoesNothingWithoutNumberOrName)
{
    AbreCadastro();
    Preenche(So({{9, "050"}}));
    PoeNaCaixa(GetParam(), "");
    const std::string antes = Caixas();
    Aperta("Command3D2");
    EXPECT_EQ(Caixas(), antes);
    EXPECT_TRUE(Abertas("Ajusta").isEmpty());
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Caixas, AjusteSemBanco, testing::Values(0, 1),
                         [](const auto &caso) { return "Text1_" + std::to_string(caso.param); });

} // namespace
