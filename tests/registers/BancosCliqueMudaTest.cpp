// Changing and removing a bank: the row, the settings, the device, and the form afterwards.
#include "ComCadastro.h"

using namespace teste;

namespace {

class BancosMudaTest : public ComBancos {
protected:
    /// Every field another one but the code.
    const LinhaDoBanco m_mudado = {"001", "NOME NOVO", "003", "006", "009", "012", "015", "100",
                                   "021", "013",       "015", "049", "029", "038", "060"};
    void MudaTudo()
    {
        AbreCadastro();
        ClicaNaLinha(1);
        Preenche(m_mudado);
    }
    void EsperaFormularioLimpo()
    {
        EXPECT_EQ(Caixas(), m_vazias);
        EXPECT_EQ(Caixa("Text2"), "");
        EXPECT_EQ(Estado(), kPronto);
        EXPECT_EQ(LinhaCorrente(), "");
        EXPECT_EQ(FocoDele(), "Text1(0)");
        EXPECT_FALSE(Ampulheta());
    }
};

TEST_F(BancosMudaTest, AlterarWritesAllFifteenFieldsOfThatRow)
{
    MudaTudo();
    Responde(QMessageBox::No);
    Aperta(Alterar);
    EXPECT_EQ(Tabela(), NaTabela(kBancoDois) + '|' + NaTabela(m_mudado) + '|' + NaTabela(kCaixaTres));
    EXPECT_EQ(Formato("001").toStdString(), "03,06,09,12,15,100,21,13,15,49,29,38,60    ; NOME NOVO");
    EXPECT_EQ(Vistas(), m_pergunta);
    EXPECT_EQ(Chamadas(), "");
    EXPECT_EQ(Lista(), "237 - BANCO DOIS|001 - NOME NOVO|341 - CAIXA TRES");
    EsperaFormularioLimpo();
}

TEST_F(BancosMudaTest, AlterarWithYesSendsItFirst)
{
    MudaTudo();
    Responde(QMessageBox::Yes);
    Aperta(Alterar);
    EXPECT_EQ(Chamadas(), EnvioDoBanco(m_mudado));
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '001'"), NaTabela(m_mudado));
}

TEST_F(BancosMudaTest, AlterarReplacesItsLineInTheSettings)
{
    Ini("[Formato]\n237=outro\n001=velho\n[Verso]\nLinha00=x\n");
    MudaTudo();
    Responde(QMessageBox::No);
    Aperta(Alterar);
    EXPECT_EQ(Formato("001").toStdString(), "03,06,09,12,15,100,21,13,15,49,29,38,60    ; NOME NOVO");
    EXPECT_EQ(Formato("237"), "outro");
    EXPECT_EQ(m_escritorio.Chave("Verso", "Linha00"), "x");
    EXPECT_EQ(m_escritorio.LeIni().count("001="), 1);
}

TEST_F(BancosMudaTest, AlterarThatIsRefusedChangesNothing)
{
    AbreCadastro();
    ClicaNaLinha(1);
    PoeNaCaixa(1, "NOME NOVO");
    PoeNaCaixa(6, "018");
    const std::string antes = Tabela();
    Responde(QMessageBox::Yes);
    Aperta(Alterar);
    EXPECT_EQ(m_caixas->Ultima().titulo, "QX70 Printer Error");
    EXPECT_EQ(Tabela(), antes);
    EXPECT_EQ(Formato("001"), QString());
    EXPECT_EQ(Caixa(1), "NOME NOVO");
    EXPECT_EQ(Caixa(6), "018");
    EXPECT_EQ(Estado(), kSelecionado);
    EXPECT_EQ(LinhaCorrente(), "001 - BANCO UM");
}

TEST_F(BancosMudaTest, AlterarGoesOnWhenTheDeviceFails)
{
    MudaTudo();
    m_gravadora.Roteiro("resultado IniciaPorta 0\nresultado IncluiBanco 22\n");
    Responde(QMessageBox::Yes);
    Aperta(Alterar);
    EXPECT_EQ(Vistas(), m_pergunta);
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '001'"), NaTabela(m_mudado));
}

TEST_F(BancosMudaTest, AlterarKeepsAFieldThatTheScreenDoesNotKnow)
{
    m_escritorio.Sql("ALTER TABLE Bancos ADD COLUMN Gerente TEXT; UPDATE Bancos SET Gerente = 'Zé'");
    MudaTudo();
    Responde(QMessageBox::No);
    Aperta(Alterar);
    EXPECT_EQ(Linhas("SELECT Nome, Gerente FROM Bancos WHERE Codigo = '001'"), "NOME NOVO,Zé");
}

TEST_F(BancosMudaTest, ExcluirRemovesWithoutAQuestion)
{
    Ini("[Formato]\n001=fica\n");
    AbreCadastro();
    ClicaNaLinha(1);
    const QString ini = m_escritorio.LeIni();
    Aperta(Excluir);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(Tabela(), NaTabela(kBancoDois) + '|' + NaTabela(kCaixaTres));
    EXPECT_EQ(m_escritorio.LeIni().toStdString(), ini.toStdString()) << "its key stays behind";
    EXPECT_EQ(Chamadas(), "") << "the device keeps its entry";
    EXPECT_EQ(Lista(), "237 - BANCO DOIS|341 - CAIXA TRES");
    EsperaFormularioLimpo();
}

TEST_F(BancosMudaTest, ExcluirOfTheLastBankLeavesAnEmptyList)
{
    m_escritorio.Sql("DELETE FROM Bancos WHERE Codigo <> '001'");
    AbreCadastro();
    ClicaNaLinha(0);
    Aperta(Excluir);
    EXPECT_EQ(Tabela(), "");
    EXPECT_EQ(Lista(), "");
    EsperaFormularioLimpo();
}

TEST_F(BancosMudaTest, ExcluirTakesOneOfTwoRowsWithTheSameCode)
{
    m_escritorio.Sql(
        "INSERT INTO Bancos SELECT Codigo, 'SEGUNDO', L1, L2, L3, L4, L5, C1, C2, C3, C4, C5, C6, C7, "
        "C8 FROM Bancos WHERE Codigo = '001'");
    AbreCadastro();
    ClicaNaLinha(1);
    Aperta(Excluir);
    EXPECT_EQ(Linhas("SELECT Codigo, Nome FROM Bancos ORDER BY rowid"),
              "237,BANCO DOIS|341,CAIXA TRES|001,SEGUNDO");
}

TEST_F(BancosMudaTest, ARemovedBankCanBeInsertedAgain)
{
    AbreCadastro();
    ClicaNaLinha(1);
    Aperta(Excluir);
    Preenche(kBancoUm);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '001'"), NaTabela(kBancoUm));
    EXPECT_EQ(Formato("001").toStdString(), "01,05,07,10,13,92,17,09,11,50,31,40,65    ; BANCO UM");
}

// --- no row is current ---

struct CasoSemLinha {
    std::string nome;
    int botao;
    bool pelaBusca; ///< the row went by a search, not by Ctrl and a click
};
void PrintTo(const CasoSemLinha &c, std::ostream *os)
{
    *os << c.nome;
}
class SemLinha : public ComBancosDe<CasoSemLinha> {};
TEST_P(SemLinha, AsksForABankAndStartsAnew)
{
    AbreCadastro();
    ClicaNaLinha(1);
    PoeNaCaixa(1, "NOME NOVO");
    if (GetParam().pelaBusca)
        DigitaNela("Text2", "CAIXA");
    else
        ClicaNaLinha(1, Qt::ControlModifier);
    ASSERT_EQ(LinhaCorrente(), "");
    const std::string antes = Tabela();
    if (GetParam().botao == Alterar)
        Responde(QMessageBox::No);
    Aperta(GetParam().botao);
    EXPECT_EQ(Vistas(),
              (GetParam().botao == Alterar ? m_pergunta + '|' : "") + "[Erro] Selecione um banco...");
    EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Warning);
    EXPECT_EQ(m_caixas->Ultima().botoes, QMessageBox::Ok);
    EXPECT_EQ(Tabela(), antes);
    EXPECT_EQ(Formato("001"), QString());
    EXPECT_EQ(Caixas(), m_vazias);
    EXPECT_EQ(Caixa("Text2"), "");
    EXPECT_EQ(Estado(), kPronto);
    EXPECT_EQ(Lista(), m_lista);
    EXPECT_FALSE(Ampulheta());
}
INSTANTIATE_TEST_SUITE_P(Botoes, SemLinha,
                         testing::Values(CasoSemLinha{"ChangeAfterDeselecting", Alterar, false},
                                         CasoSemLinha{"ChangeAfterASearch", Alterar, true},
                                         CasoSemLinha{"RemovalAfterDeselecting", Excluir, false},
                                         CasoSemLinha{"RemovalAfterASearch", Excluir, true}),
                         kNomeDoCaso);

TEST_F(BancosMudaTest, ThePointerIsTheHourglassWhileTheListIsFilled)
{
    AbreCadastro();
    ClicaNaLinha(1);
    QStringList vistas;
    ObservaAmpulheta(vistas);
    Aperta(Excluir);
    EXPECT_EQ(vistas.value(0).toStdString(), "hourglass");
    EXPECT_FALSE(Ampulheta());
}

struct CasoFalta {
    std::string nome;
    int botao;
    QString sql;
};
void PrintTo(const CasoFalta &c, std::ostream *os)
{
    *os << c.nome;
}
class FaltaAoMudar : public ComBancosDe<CasoFalta> {};
TEST_P(FaltaAoMudar, IsToldInOneBoxAndTheBoxesStay)
{
    AbreCadastro();
    ClicaNaLinha(1);
    PoeNaCaixa(1, "NOME NOVO");
    m_escritorio.Sql(GetParam().sql);
    const std::string antes = Tabela();
    if (GetParam().botao == Alterar)
        Responde(QMessageBox::No);
    Aperta(GetParam().botao);
    EXPECT_EQ(m_caixas->Quantas(), GetParam().botao == Alterar ? 2U : 1U) << Vistas();
    EXPECT_TRUE(m_caixas->Ultima().texto.startsWith("Ocorreu erro 3022!\n")) << Vistas();
    EXPECT_EQ(Tabela(), antes);
    EXPECT_EQ(Caixa(0), "001");
    EXPECT_EQ(Caixa(1), "NOME NOVO");
    EXPECT_EQ(Formato("001"), QString());
    EXPECT_FALSE(Ampulheta());
}
INSTANTIATE_TEST_SUITE_P(
    Faltas, FaltaAoMudar,
    testing::Values(
        CasoFalta{"ChangeRefused", Alterar,
                  "CREATE TRIGGER nada BEFORE UPDATE ON Bancos BEGIN SELECT RAISE(ABORT, 'nada'); END"},
        CasoFalta{"RemovalRefused", Excluir,
                  "CREATE TRIGGER nada BEFORE DELETE ON Bancos BEGIN SELECT RAISE(ABORT, 'nada'); END"}),
    kNomeDoCaso);

} // namespace
