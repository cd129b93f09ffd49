// The click on the buttons of the registers of cities and payees, but for what goes to the device.
#include "CodigoENome.h"

using namespace teste;

namespace {

using CodigoENomeClique = CodigoENomeDeCada;

// --- Incluir ---

TEST_P(CodigoENomeClique, IncluirStoresTheRowAndKeepsTheBoxes)
{
    AbreCadastro();
    const std::string antes = Nomes();
    Preenche("00900", "Nova Ação");
    ApertaSemAparelho(Incluir);
    EXPECT_EQ(Nomes(), antes + "|00900,Nova Ação");
    EXPECT_EQ(Lista(), C().lista + "|00900 - Nova Ação");
    EXPECT_EQ(LinhaCorrente(), "");
    EXPECT_EQ(Caixas(), "00900|Nova Ação");
    EXPECT_EQ(Estado(), kPronto);
    EXPECT_EQ(FocoDele(), "Text1(0)");
    EXPECT_EQ(Avisos(), "");
    EXPECT_EQ(Chamadas(), "");
    EXPECT_FALSE(m_escritorio.LeIni().contains("[Formato]")) << "no line in the settings";
}

TEST_P(CodigoENomeClique, TypedByKeysAlone)
{
    AbreCadastro();
    VaiA("Text1(0)");
    apoio::Digita(Cadastro(), "77");
    TeclaNele(Qt::Key_Return);
    apoio::Digita(Cadastro(), "Nova");
    TeclaNele(Qt::Key_Return);
    if (Pergunta())
        m_caixas->Responde(QMessageBox::No);
    TeclaNele(Qt::Key_Return);
    EXPECT_EQ(Linhas("SELECT Nome FROM " + C().registro.tabela + " WHERE Codigo = '00077'"), "Nova");
    AtivaEle();
    TeclaNele(Qt::Key_R, Qt::AltModifier);
    EXPECT_FALSE(EstaAberto());
}

TEST_P(CodigoENomeClique, AnEmptyBoxIsToldAndTakesTheFocus)
{
    AbreCadastro();
    const std::string antes = Nomes();
    for (const int vazia : {0, 1}) {
        Preenche("00900", "Nova");
        PoeNaCaixa(vazia, "");
        Aperta(Incluir);
        EXPECT_EQ(Vistas(), vazia == 0 ? "[Erro] Campo Inválido..."
                                       : "[Erro] Campo Inválido...|[Erro] Campo Inválido...");
        EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Warning);
        EXPECT_EQ(m_caixas->Ultima().botoes, QMessageBox::Ok);
        EXPECT_EQ(FocoDele(), "Text1(" + std::to_string(vazia) + ')');
    }
    EXPECT_EQ(Nomes(), antes);
    EXPECT_EQ(Chamadas(), "");
}

TEST_P(CodigoENomeClique, BothBoxesEmptyAreToldOnceAtTheCode)
{
    AbreCadastro();
    Aperta(Incluir);
    EXPECT_EQ(Vistas(), "[Erro] Campo Inválido...");
    EXPECT_EQ(FocoDele(), "Text1(0)");
}

TEST_P(CodigoENomeClique, ACodeThatIsTakenIsRefused)
{
    AbreCadastro();
    const std::string antes = Nomes();
    Preenche(QString::fromStdString(C().codigo), "Outra");
    ApertaSemAparelho(Incluir);
    EXPECT_EQ(Avisos(), "[Erro] Codigo ja cadastrado...");
    EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Warning);
    EXPECT_EQ(Nomes(), antes);
    EXPECT_EQ(Caixas(), C().codigo + "|Outra");
    EXPECT_EQ(Estado(), kPronto);
}

TEST_P(CodigoENomeClique, IncluirWithARowChosenOnlyStartsAnewAndKeepsTheBoxes)
{
    AbreCadastro();
    ClicaNaLinha(1);
    const std::string antes = Nomes();
    ApertaSemAparelho(Incluir);
    EXPECT_EQ(Avisos(), "");
    EXPECT_EQ(Caixas(), C().codigo + '|' + C().nome);
    EXPECT_EQ(Estado(), kPronto);
    EXPECT_EQ(FocoDele(), "Text1(0)");
    EXPECT_EQ(Nomes(), antes);
}

TEST_P(CodigoENomeClique, IncluirWithARowChosenAndNoNameNeitherAsksNorTells)
{
    AbreCadastro();
    ClicaNaLinha(1);
    PoeNaCaixa(1, "");
    Aperta(Incluir);
    EXPECT_EQ(Vistas(), "") << "neither the question for the device nor a refusal";
    EXPECT_EQ(Chamadas(), "");
    EXPECT_EQ(Estado(), kPronto);
    EXPECT_EQ(FocoDele(), "Text1(0)");
}

// The row of the list stays current behind a new entry; the first insertion then only lets it go. On purpose.
TEST_P(CodigoENomeClique, TheRowOfTheListStoresNothingAndGoes)
{
    AbreCadastro();
    ClicaNaLinha(1);
    ApertaSemAparelho(Incluir);
    ASSERT_FALSE(LinhaCorrente().empty());
    const std::string antes = Nomes();
    Preenche("00900", "Nova");
    ApertaSemAparelho(Incluir);
    EXPECT_EQ(Nomes(), antes);
    EXPECT_EQ(LinhaCorrente(), "");
    EXPECT_EQ(Caixas(), "00900|Nova");
    EXPECT_EQ(Avisos(), "");
    EXPECT_FALSE(Ampulheta());
    ApertaSemAparelho(Incluir);
    EXPECT_EQ(Nomes(), antes + "|00900,Nova");
}

// --- Alterar, Excluir ---

TEST_P(CodigoENomeClique, AlterarWritesTheRow)
{
    AbreCadastro();
    ClicaNaLinha(1);
    PoeNaCaixa(1, "Outra Ação");
    Aperta(Alterar);
    EXPECT_EQ(Vistas(), "") << "the device is not asked for";
    EXPECT_EQ(Chamadas(), "");
    EXPECT_EQ(Linhas("SELECT Nome FROM " + C().registro.tabela + " WHERE rowid = 2"), "Outra Ação");
    EXPECT_EQ(Linhas("SELECT count(*) FROM " + C().registro.tabela), "3");
    EXPECT_EQ(List1()->TextoDe(1).toStdString(), C().codigo + " - Outra Ação");
    EXPECT_EQ(LinhaCorrente(), "");
    EXPECT_EQ(Caixas(), C().codigo + "|Outra Ação");
    EXPECT_EQ(Estado(), kPronto);
    EXPECT_EQ(FocoDele(), "Text1(0)");
    EXPECT_FALSE(Ampulheta());
}

TEST_P(CodigoENomeClique, ExcluirRemovesTheRow)
{
    AbreCadastro();
    ClicaNaLinha(1);
    ApertaSemAparelho(Excluir);
    EXPECT_EQ(Avisos(), "") << "nobody is asked whether to remove it";
    EXPECT_EQ(Linhas("SELECT rowid FROM " + C().registro.tabela + " ORDER BY rowid"), "1|3");
    EXPECT_EQ(List1()->Quantas(), 2);
    EXPECT_EQ(LinhaCorrente(), "");
    EXPECT_EQ(Caixas(), C().codigo + '|' + C().nome) << "the boxes stay";
    EXPECT_EQ(Estado(), kPronto);
    EXPECT_EQ(FocoDele(), "Text1(0)");
    EXPECT_FALSE(Ampulheta());
}

TEST_P(CodigoENomeClique, WithNoCurrentRowTheOperatorIsAskedForOne)
{
    for (const int botao : {Alterar, Excluir}) {
        AbreCadastro();
        ClicaNaLinha(1);
        PoeNaCaixa(1, "Outra");
        ClicaNaLinha(1, Qt::ControlModifier);
        const std::string antes = Nomes();
        ApertaSemAparelho(botao);
        EXPECT_EQ(Avisos(), C().selecione);
        EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Warning);
        EXPECT_EQ(Nomes(), antes);
        EXPECT_EQ(Estado(), kPronto);
        EXPECT_EQ(Caixas(), C().codigo + "|Outra");
        EXPECT_FALSE(Ampulheta());
    }
}

TEST_P(CodigoENomeClique, ARowThatIsGoneIsToldByChangeAndRemoval)
{
    AbreCadastro();
    ClicaNaLinha(1);
    m_escritorio.Sql("DELETE FROM " + C().registro.tabela + " WHERE rowid = 2");
    const std::string antes = Nomes();
    for (const int botao : {Alterar, Excluir})
        ApertaSemAparelho(botao);
    EXPECT_EQ(Avisos(), "[Erro] Codigo nao encontrado...|[Erro] Codigo nao encontrado...");
    EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Warning);
    EXPECT_EQ(Nomes(), antes);
    EXPECT_EQ(Caixas(), C().codigo + '|' + C().nome);
    EXPECT_EQ(Estado(), kSelecionado);
}

TEST_P(CodigoENomeClique, AnEmptyNameIsToldByChangeAndRemoval)
{
    for (const int botao : {Alterar, Excluir}) {
        AbreCadastro();
        ClicaNaLinha(1);
        PoeNaCaixa(1, "");
        const std::string antes = Nomes();
        ApertaSemAparelho(botao);
        EXPECT_EQ(Avisos(), "[Erro] Campo Inválido...");
        EXPECT_EQ(FocoDele(), "Text1(1)");
        EXPECT_EQ(Nomes(), antes);
        EXPECT_EQ(Estado(), kSelecionado);
    }
}

TEST_P(CodigoENomeClique, ThePointerIsTheHourglassWhileTheListIsFilled)
{
    AbreCadastro();
    QStringList vistas;
    ObservaAmpulheta(vistas);
    Preenche("00900", "Nova");
    ApertaSemAparelho(Incluir);
    EXPECT_EQ(vistas.value(0).toStdString(), "hourglass");
    EXPECT_FALSE(Ampulheta());
}

TEST_P(CodigoENomeClique, ARefusedRowIsToldInOneBoxAndTheBoxesStay)
{
    AbreCadastro();
    Preenche("00900", "Nova");
    m_escritorio.Sql("CREATE TRIGGER nada BEFORE INSERT ON " + C().registro.tabela +
                     " BEGIN SELECT RAISE(ABORT, 'nada'); END");
    const std::string antes = Nomes();
    ApertaSemAparelho(Incluir);
    EXPECT_TRUE(m_caixas->Ultima().texto.startsWith("Ocorreu erro 3022!\n")) << Vistas();
    EXPECT_EQ(m_caixas->Quantas(), Pergunta() ? 2U : 1U);
    EXPECT_EQ(Nomes(), antes);
    EXPECT_EQ(Caixas(), "00900|Nova");
    EXPECT_FALSE(Ampulheta());
}

INSTANTIATE_TEST_SUITE_P(Cadastros, CodigoENomeClique, testing::Values(kCasoCidade, kCasoFavorec),
                         kNomeDoCadastro);

} // namespace
