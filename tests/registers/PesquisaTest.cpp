// The search popup over each of its tables: what it shows, what is chosen, and the registers it opens.
#include "ComPesquisa.h"
#include "Ordem.h"

#include <QFile>
#include <QLabel>
#include <QScreen>

using namespace teste;

namespace {

class Pesquisa : public ComPesquisa, public testing::WithParamInterface<Campo> {};

// --- what it shows ---

TEST_P(Pesquisa, OpensBesideMainWithTheRowsOfItsTable)
{
    AbrePor(GetParam());
    EXPECT_EQ(Cadastro().objectName(), "Pesquisa");
    EXPECT_EQ(Cadastro().windowTitle(), "Pesquisa");
    EXPECT_FALSE(Cadastro().isModal());
    const QPoint meio = Cadastro().screen()->availableGeometry().center();
    EXPECT_LE((Cadastro().frameGeometry().center() - meio).manhattanLength(), 4) << "in the middle";
    EXPECT_EQ(Dados().TipoPesquisa, GetParam().tipo);
    EXPECT_EQ(Lista(), GetParam().lista) << "in the order in which they were stored";
    EXPECT_EQ(LinhaCorrente(), "");
    EXPECT_EQ(Caixa("Text1"), "");
    EXPECT_EQ(FocoDele(), "Text1");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_P(Pesquisa, ButtonsAndLabelHaveTheirTexts)
{
    AbrePor(GetParam());
    const std::array<const char *, 3> textos = {"Fecha&r", "&Cancelar", "Ca&dastrar"};
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(apoio::Controle<QPushButton>(Cadastro(), QString("Command3D1(%1)").arg(i))->text(),
                  textos.at(static_cast<std::size_t>(i)));
    bool rotulo = false;
    for (const auto *l : Cadastro().findChildren<QLabel *>())
        rotulo = rotulo || (l->text() == "Procurar:" && l->isVisible());
    EXPECT_TRUE(rotulo);
    EXPECT_EQ(apoio::Controle<QLineEdit>(Cadastro(), "Text1")->accessibleName(), "Procurar:");
    EXPECT_FALSE(List1()->accessibleName().isEmpty());
}

TEST_P(Pesquisa, TabWalksInReadingOrder)
{
    AbrePor(GetParam());
    const QStringList volta = VoltaDoTab(Cadastro());
    EXPECT_EQ(volta.join(' '), APartirDe(OrdemDeLeitura(Cadastro()), "Text1").join(' '));
    EXPECT_EQ(volta.size(), 5) << volta.join(' ').toStdString();
}

TEST_P(Pesquisa, EmptiesAFormerChoiceOnOpening)
{
    Abre();
    Dados().TextoPesquisa = "de antes";
    VaiPara(GetParam().controle);
    Dados().TextoPesquisa = "de antes";
    Tecla(Qt::Key_F3);
    EXPECT_EQ(Dados().TextoPesquisa, "");
}

TEST_P(Pesquisa, LeavesTheFieldAsItIsWhileItStands)
{
    AbrePor(GetParam(), "abc");
    EXPECT_EQ(Texto(GetParam().controle), "abc") << "another screen is no leaving";
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_P(Pesquisa, TheSameFieldOpensItOnce)
{
    AbrePor(GetParam());
    F3(GetParam().controle);
    EXPECT_EQ(Abertas("Pesquisa").size(), 1);
}

// --- taking the choice ---

TEST_P(Pesquisa, FecharTakesTheCurrentRow)
{
    AbrePor(GetParam(), "abc");
    ClicaNaLinha(1);
    EXPECT_EQ(Dados().TextoPesquisa, "") << "not before it closes";
    Fecha(FechaEscolhendo);
    EsperaDeVolta(GetParam(), GetParam().escolha);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_P(Pesquisa, ADoubleClickTakesItsRow)
{
    AbrePor(GetParam(), "abc");
    DuploClique(1);
    EsperaDeVolta(GetParam(), GetParam().escolha);
}

TEST_P(Pesquisa, ARowReachedByKeysIsTaken)
{
    AbrePor(GetParam());
    ClicaNaLinha(0);
    TeclaNele(Qt::Key_Down);
    TeclaNele(Qt::Key_R, Qt::AltModifier);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EsperaDeVolta(GetParam(), GetParam().escolha);
}

TEST_P(Pesquisa, TheChosenTextIsSelectedAndTheFieldWillBeValidated)
{
    AbrePor(GetParam());
    Dados().ValidaCampos = 0;
    DuploClique(1);
    Ativa();
    EXPECT_EQ(Selecao(GetParam().controle), GetParam().escolha);
    EXPECT_EQ(Dados().ValidaCampos, 1);
}

TEST_P(Pesquisa, FecharWithNoCurrentRowChoosesNothing)
{
    AbrePor(GetParam(), "abc");
    Fecha(FechaEscolhendo);
    EsperaDeVolta(GetParam(), "abc");
}

TEST_P(Pesquisa, ADeselectedRowIsNotTaken)
{
    AbrePor(GetParam(), "abc");
    ClicaNaLinha(1);
    ClicaNaLinha(1, Qt::ControlModifier);
    Fecha(FechaEscolhendo);
    EsperaDeVolta(GetParam(), "abc");
}

TEST_P(Pesquisa, AfterASearchNoRowIsCurrent)
{
    AbrePor(GetParam(), "abc");
    ClicaNaLinha(1);
    DigitaNela("Text1", "x");
    DigitaNela("Text1", "");
    EXPECT_EQ(Lista(), GetParam().lista);
    EXPECT_EQ(LinhaCorrente(), "");
    Fecha(FechaEscolhendo);
    EsperaDeVolta(GetParam(), "abc");
}

TEST_P(Pesquisa, CancelarChoosesNothing)
{
    AbrePor(GetParam(), "abc");
    ClicaNaLinha(1);
    Fecha(Cancela);
    EsperaDeVolta(GetParam(), "abc");
}

TEST_P(Pesquisa, EscChoosesNothing)
{
    AbrePor(GetParam(), "abc");
    ClicaNaLinha(1);
    TeclaNele(Qt::Key_Escape);
    EsperaDeVolta(GetParam(), "abc");
}

TEST_P(Pesquisa, TheButtonOfTheWindowChoosesNothing)
{
    AbrePor(GetParam(), "abc");
    ClicaNaLinha(1);
    Cadastro().close();
    EsperaDeVolta(GetParam(), "abc");
}

TEST_P(Pesquisa, ClosingClosesTheTable)
{
    AbrePor(GetParam());
    EXPECT_TRUE(Dados().armazem.Aberto(GetParam().tipo));
    for (const int outro : {0, 1, 2, 3})
        EXPECT_EQ(Dados().armazem.Aberto(outro), outro == GetParam().tipo) << outro;
    Fecha(Cancela);
    EXPECT_FALSE(Dados().armazem.Aberto(GetParam().tipo));
}

TEST_P(Pesquisa, AnotherProgramCanWriteWhileItIsOpen)
{
    m_escritorio.Sql("WITH n(i) AS (SELECT 1000 UNION ALL SELECT i + 1 FROM n WHERE i < 4000) INSERT INTO " +
                     GetParam().registro.tabela +
                     " (Codigo, Nome) SELECT CAST(i AS TEXT), 'Nome ' || i FROM n");
    AbrePor(GetParam());
    ASSERT_EQ(List1()->Quantas(), 3004);
    EXPECT_TRUE(OutroEscreve()) << "just opened";
    DigitaNela("Text1", "N");
    EXPECT_TRUE(OutroEscreve()) << "searched";
    DuploClique(0);
    EXPECT_TRUE(OutroEscreve()) << "chosen";
}

// --- an empty table ---

TEST_P(Pesquisa, AnEmptyTableIsAskedAboutAtOnceAndCancelCloses)
{
    m_escritorio.Sql("DELETE FROM " + GetParam().registro.tabela);
    Abre();
    VaiPara(GetParam().controle);
    Poe(GetParam().controle, "abc");
    m_caixas->Responde(QMessageBox::Cancel);
    F3(GetParam().controle);
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_caixas->Quantas() > 0 && !EstaAberto(); }));
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    const apoio::Caixa caixa = m_caixas->Ultima();
    EXPECT_EQ(caixa.texto.toStdString(),
              "Nao existe registro para pesquisar!!!\nDeseja cadastrar algum dado?");
    EXPECT_EQ(caixa.titulo, "QX70 MIRA - Document Printer");
    EXPECT_EQ(caixa.icone, QMessageBox::NoIcon);
    EXPECT_EQ(caixa.botoes, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(caixa.padrao, QMessageBox::Ok);
    EXPECT_TRUE(Abertas(GetParam().registro.tela).isEmpty());
    EsperaDeVolta(GetParam(), "abc");
}

TEST_P(Pesquisa, AnEmptyTableAndOkOpensItsRegister)
{
    m_escritorio.Sql("DELETE FROM " + GetParam().registro.tabela);
    Abre();
    m_caixas->Responde(QMessageBox::Ok);
    F3(GetParam().controle);
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_caixas->Quantas() > 0 && !EstaAberto(); }));
    EXPECT_EQ(m_caixas->Quantas(), 1U);
    EXPECT_EQ(Abertas(GetParam().registro.tela).size(), 1);
    EXPECT_EQ(Dados().TextoPesquisa, "");
    QWidget &registro = Aberta(GetParam().registro.tela);
    EXPECT_TRUE(apoio::Controle<QPushButton>(registro, "Command3D1(0)")->isEnabled());
}

TEST_P(Pesquisa, AnEmptyListIsAskedAboutOnlyWhenTheSearchGetsTheFocus)
{
    AbrePor(GetParam(), "abc");
    DigitaNela("Text1", "zzz");
    EXPECT_EQ(Lista(), "");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    TeclaNele(Qt::Key_Tab);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_TRUE(EstaAberto());
    m_caixas->Responde(QMessageBox::Cancel);
    TeclaNele(Qt::Key_Backtab);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !EstaAberto(); }));
    EXPECT_EQ(m_caixas->Quantas(), 1U);
    EsperaDeVolta(GetParam(), "abc");
}

// --- Cadastrar ---

TEST_P(Pesquisa, CadastrarOpensTheRegisterAndChoosesNothing)
{
    AbrePor(GetParam(), "abc");
    ClicaNaLinha(1);
    Fecha(Cadastra);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(Abertas(GetParam().registro.tela).size(), 1);
    AtivaTela(GetParam().registro.tela);
    Aberta(GetParam().registro.tela).close();
    EsperaDeVolta(GetParam(), "abc");
}

TEST_P(Pesquisa, ARegisterThatItOpenedKeepsWorking)
{
    AbrePor(GetParam());
    Fecha(Cadastra);
    QWidget &registro = Aberta(GetParam().registro.tela);
    apoio::Controle<QLineEdit>(registro, "Text2")->setText("zzz");
    EXPECT_EQ(apoio::Controle<plataforma::Lista>(registro, "List1")->Quantas(), 0);
    apoio::Controle<QLineEdit>(registro, "Text2")->clear();
    EXPECT_EQ(apoio::Controle<plataforma::Lista>(registro, "List1")->Quantas(), 3);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_P(Pesquisa, BesideItsOpenRegisterItClosesWithoutHarm)
{
    Abre();
    AbrePeloMenu(GetParam().registro.entrada, GetParam().registro.tela);
    F3(GetParam().controle);
    AtivaTela("Pesquisa");
    Fecha(Cancela);
    QWidget &registro = Aberta(GetParam().registro.tela);
    AtivaTela(GetParam().registro.tela);
    auto *lista = apoio::Controle<plataforma::Lista>(registro, "List1");
    apoio::Controle<QLineEdit>(registro, "Text2")->setText("zzz");
    EXPECT_EQ(lista->Quantas(), 0);
    apoio::Controle<QLineEdit>(registro, "Text2")->clear();
    EXPECT_EQ(lista->Quantas(), 3);
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {},
                      lista->visualRect(lista->model()->index(1, 0)).center());
    EXPECT_EQ(apoio::Texto(registro, "Text1(1)").toStdString(),
              GetParam().tipo == 2 ? "BANCO UM" : GetParam().escolha);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

// --- no store ---

TEST_P(Pesquisa, WithoutAStoreItIsToldAndTheFieldStays)
{
    Abre();
    VaiPara(GetParam().controle);
    Poe(GetParam().controle, "abc");
    ASSERT_TRUE(QFile::remove(m_escritorio.Arquivo("QX70.MDB")));
    F3(GetParam().controle);
    EsperaCaixa("O Banco de dados \"QX70.MDB\" nao foi encontrado!", "Erro", QMessageBox::Warning);
    EXPECT_EQ(Dados().FechaTela, 0);
    EsperaDeVolta(GetParam(), "abc");
    EXPECT_EQ(m_caixas->Quantas(), 1U);
}

TEST_P(Pesquisa, ATableThatGoesWhileItIsOpenFailsTheLookUpOfANameAndNotABank)
{
    AbrePor(GetParam(), "abc");
    m_escritorio.Sql("DROP TABLE " + GetParam().registro.tabela);
    ClicaNaLinha(1);
    Fecha(FechaEscolhendo);
    const bool banco = GetParam().tipo == 2; // handed back by its row alone
    EXPECT_EQ(m_caixas->Quantas(), banco ? 0U : 1U) << Vistas();
    EXPECT_EQ(m_caixas->Ultima().texto.startsWith("Ocorreu erro "), !banco) << Vistas();
    EsperaDeVolta(GetParam(), banco ? "001" : "abc");
}

INSTANTIATE_TEST_SUITE_P(Campos, Pesquisa, testing::Values(kCampoBanco, kCampoFavorecido, kCampoCidade),
                         [](const auto &caso) { return caso.param.registro.tabela.toStdString(); });

} // namespace
