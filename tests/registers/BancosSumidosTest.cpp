// A bank of the list that the store does not give back at the click: deleted meanwhile, not found by its row,
// or held by another program.
#include "ComCadastro.h"

using namespace teste;

namespace {

class BancosSumidos : public ComBancos {
protected:
    /// Clicks where the operator would; the button does not answer.
    void TentaExcluir()
    {
        EXPECT_FALSE(apoio::Controle<QPushButton>(Cadastro(), "Command3D1(2)")->isEnabled());
        AtivaEle();
        apoio::ClicaEm(Cadastro(), "Command3D1(2)");
        TeclaNele(Qt::Key_E, Qt::AltModifier);
    }
    void EsperaNenhumEscolhido()
    {
        EXPECT_EQ(Caixas(), m_vazias);
        EXPECT_EQ(Estado(), kPronto);
        EXPECT_EQ(LinhaCorrente(), "");
    }
};

struct CasoSumido {
    std::string nome;
    bool outroAntes; ///< whether another bank was chosen by then
    QString busca;
    int linha;          ///< of bank 001
    std::string depois; ///< the list
};
void PrintTo(const CasoSumido &c, std::ostream *os)
{
    *os << c.nome;
}
class BancoApagado : public BancosSumidos, public testing::WithParamInterface<CasoSumido> {};
TEST_P(BancoApagado, IsToldOnceAndTheListIsReadAgain)
{
    AbreCadastro();
    if (!GetParam().busca.isEmpty())
        DigitaNela("Text2", GetParam().busca);
    if (GetParam().outroAntes)
        ClicaNaLinha(0);
    m_escritorio.Sql("DELETE FROM Bancos WHERE Codigo = '001'");
    ClicaNaLinha(GetParam().linha);
    EsperaCaixa("Codigo nao encontrado...", "Erro", QMessageBox::Warning);
    EsperaNenhumEscolhido();
    EXPECT_EQ(Lista(), GetParam().depois);
    EXPECT_EQ(Caixa("Text2"), GetParam().busca.toStdString());
}
TEST_P(BancoApagado, TakesNoOtherBankAlong)
{
    AbreCadastro();
    if (!GetParam().busca.isEmpty())
        DigitaNela("Text2", GetParam().busca);
    if (GetParam().outroAntes)
        ClicaNaLinha(0);
    m_escritorio.Sql("DELETE FROM Bancos WHERE Codigo = '001'");
    ClicaNaLinha(GetParam().linha);
    TentaExcluir();
    EXPECT_EQ(Tabela(), NaTabela(kBancoDois) + '|' + NaTabela(kCaixaTres));
    EXPECT_EQ(m_caixas->Quantas(), 1U) << Vistas();
}
INSTANTIATE_TEST_SUITE_P(
    Casos, BancoApagado,
    testing::Values(CasoSumido{"AsTheFirstChoice", false, "", 1, "237 - BANCO DOIS|341 - CAIXA TRES"},
                    CasoSumido{"BehindAnotherBank", true, "", 1, "237 - BANCO DOIS|341 - CAIXA TRES"},
                    CasoSumido{"UnderASearch", false, "BAN", 1, "237 - BANCO DOIS"},
                    CasoSumido{"UnderASearchBehindAnotherBank", true, "BAN", 1, "237 - BANCO DOIS"}),
    kNomeDoCaso);

// The code is the first three characters of the row: on purpose, also where the stored one is shorter.
TEST_F(BancosSumidos, ACodeShorterThanThreeCharactersIsNotFoundByItsRowOnPurpose)
{
    m_escritorio.Sql("INSERT INTO Bancos (Codigo, Nome) VALUES ('7', 'CURTO')");
    AbreCadastro();
    ASSERT_EQ(Lista(), m_lista + "|7 - CURTO");
    const std::string antes = Tabela();
    ClicaNaLinha(3);
    EsperaCaixa("Codigo nao encontrado...", "Erro", QMessageBox::Warning);
    EsperaNenhumEscolhido();
    EXPECT_EQ(Lista(), m_lista + "|7 - CURTO") << "it is there all the same";
    TentaExcluir();
    EXPECT_EQ(Tabela(), antes);
}

class BancoTravado : public BancosSumidos, public testing::WithParamInterface<bool> {};
TEST_P(BancoTravado, IsToldInOneBoxAndNothingIsChosen)
{
    AbreCadastro();
    if (GetParam())
        ClicaNaLinha(0);
    {
        const Trava trava(m_escritorio.Arquivo("QX70.MDB"), "EXCLUSIVE");
        ClicaNaLinha(1);
    }
    ASSERT_EQ(m_caixas->Quantas(), 1U) << Vistas();
    EXPECT_TRUE(m_caixas->Ultima().texto.startsWith("Ocorreu erro 3050!\n")) << Vistas();
    EXPECT_EQ(m_caixas->Ultima().titulo, "QX70 MIRA - Document Printer");
    EXPECT_EQ(m_caixas->Ultima().botoes, QMessageBox::Ok);
    EsperaNenhumEscolhido();
    TentaExcluir();
    EXPECT_EQ(Linhas("SELECT Codigo FROM Bancos ORDER BY rowid"), "237|001|341");
    ClicaNaLinha(1);
    EXPECT_EQ(Caixas(), NasCaixas(kBancoUm)) << "once the store is free again";
    EXPECT_EQ(m_caixas->Quantas(), 1U);
}
INSTANTIATE_TEST_SUITE_P(Antes, BancoTravado, testing::Bool(), [](const auto &caso) {
    return caso.param ? "BehindAnotherBank" : "AsTheFirstChoice";
});

} // namespace
