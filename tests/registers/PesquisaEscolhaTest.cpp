// How the search popup searches, and what it hands back to the field.
#include "ComPesquisa.h"

using namespace teste;

namespace {

class PesquisaDe : public ComPesquisa {};

// --- searching ---

struct CasoBusca {
    std::string nome;
    QString texto;
    std::string achados;
};
void PrintTo(const CasoBusca &c, std::ostream *os)
{
    *os << c.texto.toStdString();
}
class BuscaDaPesquisa : public ComPesquisa, public testing::WithParamInterface<CasoBusca> {
protected:
    void SetUp() override
    {
        m_escritorio.Sql(
            "DELETE FROM Cidade; INSERT INTO Cidade VALUES ('00012', 'Rio'), ('00011', 'Recife'), "
            "('10000', '1 de Maio'), ('00100', '0A'), ('00200', 'Ágata'), ('00300', 'abc')");
    }
};
TEST_P(BuscaDaPesquisa, ListsWhatBeginsSo)
{
    AbrePor(kCampoCidade);
    DigitaNela("Text1", GetParam().texto);
    EXPECT_EQ(Lista(), GetParam().achados);
    EXPECT_EQ(FocoDele(), "Text1");
    EXPECT_EQ(LinhaCorrente(), "");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(Linhas("SELECT count(*) FROM Cidade"), "6");
}
INSTANTIATE_TEST_SUITE_P(
    Textos, BuscaDaPesquisa,
    testing::Values(
        CasoBusca{"DigitsSearchTheCode", "0001", "00011 - Recife|00012 - Rio"},
        CasoBusca{"DigitsFromTheLeftOnly", "1", "10000 - 1 de Maio"},
        CasoBusca{"LettersSearchTheName", "R", "00011 - Recife|00012 - Rio"},
        CasoBusca{"CaseIsTheSame", "re", "00011 - Recife"}, CasoBusca{"DigitsAndLetters", "0A", "00100 - 0A"},
        CasoBusca{"NotFromTheMiddle", "io", ""},
        CasoBusca{"AStarTypedIsAStarOfTheSearch", "*ife", "00011 - Recife"},
        CasoBusca{"AQuestionMarkIsAnyCharacter", "R?o", "00012 - Rio"},
        CasoBusca{"OrderOfTheLanguage", "*a", "00100 - 0A|10000 - 1 de Maio|00300 - abc|00200 - Ágata"},
        CasoBusca{"AQuoteIsRefusedInSilence", "D'", ""}, CasoBusca{"ABracketIsRefusedInSilence", "[", ""},
        CasoBusca{"AStatement", "'); DELETE FROM Cidade; --", ""},
        CasoBusca{"Nothing", "",
                  "00012 - Rio|00011 - Recife|10000 - 1 de Maio|00100 - 0A|00200 - Ágata|00300 - abc"}),
    kNomeDoCaso);

TEST_F(PesquisaDe, BanksAndPayeesAreSearchedTheSameWay)
{
    AbrePor(kCampoBanco);
    DigitaNela("Text1", "3");
    EXPECT_EQ(Lista(), "341 - CAIXA TRES");
    DigitaNela("Text1", "ba");
    EXPECT_EQ(Lista(), "237 - BANCO DOIS|001 - BANCO UM");
    Fecha(Cancela);
    F3("Text1(2)");
    AtivaTela("Pesquisa");
    DigitaNela("Text1", "000");
    EXPECT_EQ(Lista(), "00007 - Ana|00045 - Bento");
    DigitaNela("Text1", "jos");
    EXPECT_EQ(Lista(), "00123 - José Luís");
}

TEST_F(PesquisaDe, ASearchedRowIsTheOneTaken)
{
    AbrePor(kCampoFavorecido);
    DigitaNela("Text1", "B");
    DuploClique(0);
    EsperaDeVolta(kCampoFavorecido, "Bento");
}

// --- what is handed back ---

TEST_F(PesquisaDe, TheNameIsLookedUpInTheStoreByItsCode)
{
    AbrePor(kCampoFavorecido);
    m_escritorio.Sql("UPDATE Favorecido SET Nome = 'Ana Maria' WHERE Codigo = '00007'");
    DuploClique(1);
    EsperaDeVolta(kCampoFavorecido, "Ana Maria");
    F3("Text1(3)");
    AtivaTela("Pesquisa");
    m_escritorio.Sql("UPDATE Cidade SET Nome = 'Olinda' WHERE Codigo = '00003'");
    DuploClique(1);
    EsperaDeVolta(kCampoCidade, "Olinda");
}

TEST_F(PesquisaDe, APayeeOrACityWithNoRowIsAnEmptyChoice)
{
    for (const Campo &campo : {kCampoFavorecido, kCampoCidade}) {
        AbrePor(campo, "abc");
        m_escritorio.Sql("DELETE FROM " + campo.registro.tabela + " WHERE rowid = 2");
        DuploClique(1);
        EsperaDeVolta(campo, "abc");
        EXPECT_EQ(m_caixas->Quantas(), 0U);
    }
}

TEST_F(PesquisaDe, ABankIsHandedBackByItsRowAlone)
{
    AbrePor(kCampoBanco);
    m_escritorio.Sql("UPDATE Bancos SET Codigo = '999', Nome = 'X' WHERE Codigo = '001'");
    DuploClique(1);
    EsperaDeVolta(kCampoBanco, "001");
}

TEST_F(PesquisaDe, ABankThatComesBackIsLookedUpOnLeaving)
{
    AbrePor(kCampoBanco);
    DuploClique(1);
    Ativa();
    EXPECT_EQ(NomeDoBanco(), "");
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(NomeDoBanco(), "BANCO UM");
    EXPECT_EQ(Texto("Text1(0)"), "001");
}

TEST_F(PesquisaDe, ACityLongerThanItsFieldIsCutThereTo15)
{
    m_escritorio.Sql(
        "DELETE FROM Cidade; INSERT INTO Cidade VALUES ('00001', 'São José do Rio Preto do Sul')");
    AbrePor(kCampoCidade);
    DuploClique(0);
    Tela().activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_caixas->Quantas() > 0; }));
    EsperaCaixa("Tamanho Máximo deste campo...", "Erro", QMessageBox::Warning);
    EXPECT_EQ(Texto("Text1(3)"), "São José do Rio");
}

TEST_F(PesquisaDe, TheChoiceIsHandedBackOnce)
{
    AbrePor(kCampoCidade);
    ClicaNaLinha(1);
    Fecha(FechaEscolhendo);
    Ativa();
    EXPECT_EQ(Texto("Text1(3)"), "Recife");
    VaiPara("Text1(2)");
    EXPECT_EQ(Texto("Text1(2)"), "") << "handed back once";
}

// --- F3 elsewhere ---

struct CasoSemPesquisa {
    QString controle;
};
void PrintTo(const CasoSemPesquisa &c, std::ostream *os)
{
    *os << c.controle.toStdString();
}
class SemPesquisa : public ComPesquisa, public testing::WithParamInterface<CasoSemPesquisa> {};
TEST_P(SemPesquisa, OpensNoPopup)
{
    Abre();
    PreencheCheque();
    F3(GetParam().controle);
    EXPECT_FALSE(EstaAberto());
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Campos, SemPesquisa,
                         testing::Values(CasoSemPesquisa{"Text1(1)"}, CasoSemPesquisa{"Text1(4)"},
                                         CasoSemPesquisa{"Text1(6)"}, CasoSemPesquisa{"TxtCpo(0)"},
                                         CasoSemPesquisa{"Text2(0)"}),
                         [](const auto &caso) {
                             QString nome = caso.param.controle;
                             return nome.remove('(').remove(')').toStdString();
                         });

TEST_F(PesquisaDe, AnotherFieldShowsItsOwnTable)
{
    AbrePor(kCampoBanco);
    F3("Text1(3)");
    EXPECT_EQ(Abertas("Pesquisa").size(), 1);
    AtivaTela("Pesquisa");
    EXPECT_EQ(Lista(), kCampoCidade.lista);
    DuploClique(1);
    EsperaDeVolta(kCampoCidade, "Recife");
}

} // namespace
