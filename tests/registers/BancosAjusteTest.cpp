// The bank register and its graphic adjustment side by side: when it opens and closes, and what goes to and
// fro.
#include "ComCadastro.h"

#include <QLabel>

using namespace teste;

namespace {

const std::string kUsual = "001|005|007|010|013|092|017|009|011|050|031|040|065";
const std::string kDobro = "004|006|008|010|012|014|016|018|020|022|024|026|028";

class BancosAjuste : public ComBancos {
protected:
    [[nodiscard]] bool Ajustando() { return !Abertas("Ajusta").isEmpty(); }
    [[nodiscard]] QWidget &Ajuste() { return Aberta("Ajusta"); }
    void AbreAjuste()
    {
        Aperta("Command3D2");
        AtivaTela("Ajusta");
    }
    /// Opens it on bank 001, chosen in the list.
    void AjustaBancoUm()
    {
        AbreCadastro();
        ClicaNaLinha(1);
        AbreAjuste();
    }
    /// Presses a key in a field of the adjustment.
    void Move(int campo, Qt::Key tecla, int vezes = 1)
    {
        AtivaTela("Ajusta");
        apoio::ClicaEm(Ajuste(), QString("Text1(%1)").arg(campo));
        for (int i = 0; i < vezes; ++i)
            apoio::Tecla(Ajuste(), tecla);
    }
    void Ok() { ApertaNoAjuste("Command3D1(0)"); }
    void Cancelar() { ApertaNoAjuste("Command3D1(1)"); }
    [[nodiscard]] std::string Celula(int i)
    {
        return apoio::Controle<QLabel>(Ajuste(), QString("Label2(%1)").arg(i))->text().toStdString();
    }
    /// The thirteen numbers in the boxes of the register.
    [[nodiscard]] std::string Numeros() { return Caixas().substr(Caixa(0).size() + Caixa(1).size() + 2); }

private:
    void ApertaNoAjuste(const QString &botao)
    {
        AtivaTela("Ajusta");
        apoio::ClicaEm(Ajuste(), botao);
    }
};

// --- opening ---

struct CasoAbertura {
    std::string nome;
    QString codigo, nomeDoBanco;
    bool abre;
};
void PrintTo(const CasoAbertura &c, std::ostream *os)
{
    *os << c.codigo.toStdString() << '/' << c.nomeDoBanco.toStdString();
}
class AberturaDoAjuste : public BancosAjuste, public testing::WithParamInterface<CasoAbertura> {};
TEST_P(AberturaDoAjuste, NeedsNumberAndName)
{
    AbreCadastro();
    PoeNaCaixa(0, GetParam().codigo);
    PoeNaCaixa(1, GetParam().nomeDoBanco);
    Aperta("Command3D2");
    EXPECT_EQ(Ajustando(), GetParam().abre);
    EXPECT_EQ(Numeros(), GetParam().abre ? kUsual : "||||||||||||");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Caixas, AberturaDoAjuste,
                         testing::Values(CasoAbertura{"Neither", "", "", false},
                                         CasoAbertura{"NumberAlone", "104", "", false},
                                         CasoAbertura{"NameAlone", "", "BANCO NOVO", false},
                                         CasoAbertura{"Both", "104", "BANCO NOVO", true}),
                         kNomeDoCaso);

TEST_F(BancosAjuste, OpensInFrontOnTheBankOfTheRegister)
{
    AbreCadastro();
    ClicaNaLinha(1);
    Aperta("Command3D2");
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &Ajuste(); }));
    EXPECT_EQ(apoio::Controle<QLabel>(Ajuste(), "Cabecalho")->text(), "001 - BANCO UM");
    EXPECT_EQ(Celula(0) + ' ' + Celula(5) + ' ' + Celula(10), "001 092 081");
    EXPECT_TRUE(EstaAberto()) << "the register stays behind it";
}

TEST_F(BancosAjuste, ASecondPressRaisesItAndPreparesNothingAgain)
{
    AjustaBancoUm();
    const QWidget *primeira = &Ajuste();
    Move(0, Qt::Key_Down, 2);
    ASSERT_EQ(Celula(0), "003");
    PoeNaCaixa(7, "000"); // as a program does: nothing is typed
    Aperta("Command3D2");
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == primeira; }));
    EXPECT_EQ(Abertas("Ajusta").size(), 1);
    EXPECT_EQ(&Ajuste(), primeira);
    EXPECT_EQ(Celula(0), "003") << "what was moved stays";
    EXPECT_EQ(Caixa(7), "000");
    EXPECT_EQ(Dados().AjusteC.at(0), "092");
}

TEST_F(BancosAjuste, OpenedAnewItStartsFromTheBoxes)
{
    AjustaBancoUm();
    Move(0, Qt::Key_Down, 2);
    Cancelar();
    ASSERT_FALSE(Ajustando());
    AbreAjuste();
    EXPECT_EQ(Celula(0), "001");
}

// --- closing ---

TEST_F(BancosAjuste, AnotherBankClickedClosesIt)
{
    AjustaBancoUm();
    Move(0, Qt::Key_Down);
    ClicaNaLinha(0);
    EXPECT_FALSE(Ajustando());
    EXPECT_EQ(Caixas(), NasCaixas(kBancoDois));
}

TEST_F(BancosAjuste, ANewEntryClosesIt)
{
    AjustaBancoUm();
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_FALSE(Ajustando());
    EXPECT_EQ(Caixas(), m_vazias);
}

class OperacaoAoLado : public BancosAjuste, public testing::WithParamInterface<int> {};
TEST_P(OperacaoAoLado, ClosesItOnceItIsFinished)
{
    AbreCadastro();
    if (GetParam() == Incluir)
        Preenche(kBancoNovo);
    else
        ClicaNaLinha(1);
    AbreAjuste();
    const std::string antes = Tabela();
    if (GetParam() != Excluir)
        Responde(QMessageBox::No);
    PoeNaCaixa(1, "NOME NOVO");
    Aperta(GetParam());
    EXPECT_NE(Tabela(), antes) << "done";
    EXPECT_FALSE(Ajustando());
    EXPECT_EQ(Caixas(), m_vazias);
}
std::string NomeDaOperacao(const testing::TestParamInfo<int> &caso)
{
    return caso.param == Incluir ? "Insertion" : caso.param == Alterar ? "Change" : "Removal";
}
INSTANTIATE_TEST_SUITE_P(Botoes, OperacaoAoLado, testing::Values(Incluir, Alterar, Excluir), NomeDaOperacao);

TEST_F(BancosAjuste, AnOperationThatIsRefusedLeavesItOpen)
{
    AjustaBancoUm();
    PoeNaCaixa(5, "");
    Aperta(Excluir);
    EXPECT_EQ(Vistas(), "[Erro] Campo Inválido...");
    EXPECT_TRUE(Ajustando());
}

struct CasoFim {
    std::string nome;
    std::function<void(QWidget &)> fecha;
};
void PrintTo(const CasoFim &c, std::ostream *os)
{
    *os << c.nome;
}
class FimDoCadastro : public BancosAjuste, public testing::WithParamInterface<CasoFim> {};
TEST_P(FimDoCadastro, ClosesItToo)
{
    AjustaBancoUm();
    AtivaEle();
    GetParam().fecha(Cadastro());
    EXPECT_FALSE(EstaAberto());
    EXPECT_FALSE(Ajustando());
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '001'"), NaTabela(kBancoUm));
}
INSTANTIATE_TEST_SUITE_P(
    Modos, FimDoCadastro,
    testing::Values(CasoFim{"ByItsButton", [](QWidget &tela) { apoio::ClicaEm(tela, "Command3D1(3)"); }},
                    CasoFim{"ByEsc", [](QWidget &tela) { apoio::Tecla(tela, Qt::Key_Escape); }},
                    CasoFim{"ByTheWindow", [](QWidget &tela) { tela.close(); }}),
    kNomeDoCaso);

class DigitadoAoLado : public BancosAjuste, public testing::WithParamInterface<int> {};
TEST_P(DigitadoAoLado, ClosesItAtTheFirstKeyAndNotBefore)
{
    AbreCadastro();
    Preenche(kBancoNovo);
    AbreAjuste();
    const QString caixa = QString("Text1(%1)").arg(GetParam());
    VaiA(caixa);
    EXPECT_TRUE(Ajustando()) << "going there types nothing";
    apoio::Digita(Cadastro(), "9");
    EXPECT_FALSE(Ajustando());
    EXPECT_EQ(Caixa(caixa), "9");
}
INSTANTIATE_TEST_SUITE_P(Caixas, DigitadoAoLado, testing::Range(0, 15),
                         [](const auto &caso) { return "Text1_" + std::to_string(caso.param); });

// --- what comes back ---

TEST_F(BancosAjuste, OkAndThenAlterarStoreTheNumbers)
{
    AjustaBancoUm();
    Move(0, Qt::Key_Down, 2);
    Move(4, Qt::Key_Left, 5);
    Ok();
    EXPECT_FALSE(Ajustando());
    EXPECT_EQ(Numeros(), "003|005|007|010|013|092|017|009|011|045|036|045|070");
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '001'"), NaTabela(kBancoUm)) << "not by OK alone";
    EXPECT_EQ(Estado(), kSelecionado);
    Responde(QMessageBox::No);
    Aperta(Alterar);
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '001'"),
              "001,BANCO UM,003,005,007,010,013,092,017,009,011,045,036,045,070");
    EXPECT_EQ(Formato("001").toStdString(), "03,05,07,10,13,92,17,09,11,45,36,45,70    ; BANCO UM");
    EXPECT_EQ(Vistas(), m_pergunta);
}

TEST_F(BancosAjuste, CancelarGivesNothingBack)
{
    AjustaBancoUm();
    Move(0, Qt::Key_Down, 2);
    Cancelar();
    EXPECT_FALSE(Ajustando());
    EXPECT_EQ(Caixas(), NasCaixas(kBancoUm));
}

TEST_F(BancosAjuste, ARefusedOrderLeavesItsNumbersInTheBoxesAndStaysOpenOnPurpose)
{
    AjustaBancoUm();
    Move(0, Qt::Key_Down, 4);
    Ok();
    EsperaCaixa("Algum erro relacionado a posição dos campos foi detectado.\n"
                "Verifique se os mesmos estão corretos, ou pressione a tecla Cancelar.",
                "Ajuste Gráfico Incorreto", QMessageBox::Warning);
    EXPECT_TRUE(Ajustando());
    EXPECT_EQ(Caixa(2), "005");
    Cancelar();
    EXPECT_FALSE(Ajustando());
    EXPECT_EQ(Numeros(), "005|005|007|010|013|092|017|009|011|050|031|040|065")
        << "Cancelar takes nothing back";
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '001'"), NaTabela(kBancoUm));
}

TEST_F(BancosAjuste, TheUsualLayoutThatWasPreparedStaysAfterCancelar)
{
    AbreCadastro();
    PoeNaCaixa(0, "104");
    PoeNaCaixa(1, "BANCO NOVO");
    AbreAjuste();
    EXPECT_EQ(Numeros(), kUsual);
    Cancelar();
    EXPECT_EQ(Numeros(), kUsual);
}

TEST_F(BancosAjuste, ThePreparedDoublesOfTheIndexStayAfterCancelar)
{
    AbreCadastro();
    PoeNaCaixa(0, "104");
    PoeNaCaixa(1, "BANCO NOVO");
    PoeNaCaixa(14, "28");
    AbreAjuste();
    EXPECT_EQ(Numeros(), kDobro);
    Cancelar();
    EXPECT_EQ(Numeros(), kDobro);
}

// From 995 on the order is not asked: the day stands before the city, and OK writes "-003" into its box,
// which takes three characters.
TEST_F(BancosAjuste, ANegativeDistanceIsCutToThreeCharactersInItsBoxOnPurpose)
{
    m_escritorio.Sql("UPDATE Bancos SET Codigo = '995' WHERE Codigo = '001'");
    AbreCadastro();
    ClicaNaLinha(1);
    AbreAjuste();
    Move(5, Qt::Key_Left, 34);
    ASSERT_EQ(Celula(10), "047");
    Ok();
    EXPECT_FALSE(Ajustando());
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(Numeros(), "001|005|007|010|013|092|017|009|011|050|-00|040|065");
}

} // namespace
