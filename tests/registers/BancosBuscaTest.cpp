// The search of the bank register: what is typed is a code or the beginning of a name, and a query at once.
#include "ComCadastro.h"

using namespace teste;

namespace {

using BancosBuscaTest = ComBancos;

struct CasoBusca {
    std::string nome;
    QString texto;
    std::string achados;
};
void PrintTo(const CasoBusca &c, std::ostream *os)
{
    *os << c.texto.toStdString();
}
class BuscaDeBanco : public ComBancosDe<CasoBusca> {
protected:
    void SetUp() override
    {
        m_escritorio.Sql(
            "DELETE FROM Bancos; INSERT INTO Bancos (Codigo, Nome) VALUES ('129', 'BANCO Z'), "
            "('127', 'BANCO A'), ('012', 'CAIXA'), ('120', '12A BANCO'), ('500', '1,5 POR CENTO'), "
            "('700', 'BARRA'), ('701', 'Banco Ágil'), ('702', 'ÁGUA')");
        AbreCadastro();
    }
};
TEST_P(BuscaDeBanco, ListsWhatBeginsSo)
{
    DigitaNela("Text2", GetParam().texto);
    EXPECT_EQ(Lista(), GetParam().achados);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(FocoDele(), "Text2");
    EXPECT_EQ(Estado(), kPronto);
    EXPECT_EQ(LinhaCorrente(), "");
}
const std::string kTodosEmOrdem =
    "129 - BANCO Z|127 - BANCO A|012 - CAIXA|120 - 12A BANCO|500 - 1,5 POR CENTO|"
    "700 - BARRA|701 - Banco Ágil|702 - ÁGUA";
INSTANTIATE_TEST_SUITE_P(
    Textos, BuscaDeBanco,
    testing::Values(CasoBusca{"DigitsSearchTheCode", "12", "120 - 12A BANCO|127 - BANCO A|129 - BANCO Z"},
                    CasoBusca{"AWholeCode", "127", "127 - BANCO A"}, CasoBusca{"FromTheLeftOnly", "2", ""},
                    CasoBusca{"ACodeTooLong", "1270", ""},
                    CasoBusca{"LettersSearchTheName", "BA",
                              "127 - BANCO A|701 - Banco Ágil|129 - BANCO Z|700 - BARRA"},
                    CasoBusca{"LettersFromTheLeftOnly", "XA", ""},
                    CasoBusca{"CaseIsTheSame", "caix", "012 - CAIXA"},
                    CasoBusca{"DigitsAndLettersSearchTheName", "12A", "120 - 12A BANCO"},
                    CasoBusca{"ADecimalCommaIsANumber", "1,5", ""},
                    CasoBusca{"ABlankInside", "BANCO ", "127 - BANCO A|701 - Banco Ágil|129 - BANCO Z"},
                    CasoBusca{"Accents", "Ág", "702 - ÁGUA"}, CasoBusca{"Nothing", "", kTodosEmOrdem},
                    CasoBusca{"AStarIsAStar", "B*", ""}),
    kNomeDoCaso);

TEST_F(BancosBuscaTest, EachKeyInTheSearchListsAnew)
{
    AbreCadastro();
    VaiA("Text2");
    apoio::Digita(Cadastro(), "B");
    EXPECT_EQ(Lista(), "237 - BANCO DOIS|001 - BANCO UM");
    apoio::Digita(Cadastro(), "ANCO U");
    EXPECT_EQ(Lista(), "001 - BANCO UM");
    for (int i = 0; i < 7; ++i)
        TeclaNele(Qt::Key_Backspace);
    EXPECT_EQ(Lista(), m_lista);
}

TEST_F(BancosBuscaTest, TheSearchLeavesBoxesAndButtons)
{
    AbreCadastro();
    ClicaNaLinha(1);
    DigitaNela("Text2", "CAI");
    EXPECT_EQ(Caixas(), NasCaixas(kBancoUm));
    EXPECT_EQ(Estado(), kSelecionado);
    EXPECT_EQ(LinhaCorrente(), "");
    ClicaNaLinha(0);
    EXPECT_EQ(Caixas(), NasCaixas(kCaixaTres));
}

struct CasoAspas {
    std::string nome;
    QString texto;
    std::string achados;
};
void PrintTo(const CasoAspas &c, std::ostream *os)
{
    *os << c.texto.toStdString();
}
class AspasNaBusca : public ComBancosDe<CasoAspas> {};
TEST_P(AspasNaBusca, ReachTheQueryAndChangeNothing)
{
    AbreCadastro();
    const std::string antes = Tabela();
    PoeNaCaixa("Text2", GetParam().texto);
    EXPECT_EQ(Lista(), GetParam().achados);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(Tabela(), antes);
    PoeNaCaixa("Text2", "");
    EXPECT_EQ(Lista(), m_lista) << "and the search goes on";
}
INSTANTIATE_TEST_SUITE_P(Textos, AspasNaBusca,
                         testing::Values(CasoAspas{"OneQuoteIsRefusedInSilence", "D'", ""},
                                         CasoAspas{"OnlyAQuote", "'", ""},
                                         CasoAspas{"ATextThatIsTrueForAll", "x' Or 'a'='a",
                                                   "237 - BANCO DOIS|001 - BANCO UM|341 - CAIXA TRES"},
                                         CasoAspas{"ASecondStatement", "'); DELETE FROM Bancos; --", ""},
                                         CasoAspas{"ABracket", "]", ""}, CasoAspas{"AParenthesis", ")", ""}),
                         kNomeDoCaso);

TEST_F(BancosBuscaTest, AStatementTypedIntoTheSearchDoesNotRun)
{
    AbreCadastro();
    const std::string antes = Tabela();
    PoeNaCaixa("Text2", "x' Or 'a'='a'); DELETE FROM Bancos; Select * From (Bancos");
    EXPECT_EQ(Tabela(), antes);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(BancosBuscaTest, TypingAQuoteLeavesTheListEmptyAndTheFocus)
{
    AbreCadastro();
    DigitaNela("Text2", "D'A");
    EXPECT_EQ(Lista(), "");
    EXPECT_EQ(Caixa("Text2"), "D'A");
    EXPECT_EQ(FocoDele(), "Text2");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(BancosBuscaTest, ANameWithAnAccentFollowsPortugueseOrder)
{
    m_escritorio.Sql("DELETE FROM Bancos; INSERT INTO Bancos (Codigo, Nome) VALUES ('001', 'BZ'), "
                     "('002', 'Bá'), ('003', 'BB'), ('004', 'ba')");
    AbreCadastro();
    DigitaNela("Text2", "b");
    EXPECT_EQ(Lista(), "004 - ba|002 - Bá|003 - BB|001 - BZ");
}

} // namespace
