// The search popup by keys, beside other screens, and over what it does not know: the log, a store that is
// gone.
#include "ComPesquisa.h"
#include "registers/Pesquisa.h"

#include <QFile>
#include <QPointer>

using namespace teste;

namespace {

class PesquisaTeclas : public ComPesquisa, public testing::WithParamInterface<Campo> {};

// --- keys ---

TEST_P(PesquisaTeclas, EnterAndDownInTheSearchMakeTheFirstRowCurrentAndGoToTheList)
{
    for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
        AbrePor(GetParam());
        TeclaNele(tecla);
        EXPECT_EQ(FocoDele(), "List1") << tecla;
        EXPECT_EQ(List1()->Corrente(), 0) << tecla;
        EXPECT_EQ(Dados().TextoPesquisa, "") << "nothing is chosen yet";
        EXPECT_TRUE(EstaAberto());
        EXPECT_EQ(m_caixas->Quantas(), 0U);
    }
}

TEST_P(PesquisaTeclas, EnterInTheListChoosesItsRow)
{
    for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Enter}) {
        AbrePor(GetParam(), "abc");
        TeclaNele(Qt::Key_Return);
        TeclaNele(Qt::Key_Down);
        TeclaNele(tecla);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EsperaDeVolta(GetParam(), GetParam().escolha);
        EXPECT_EQ(m_caixas->Quantas(), 0U);
    }
}

TEST_P(PesquisaTeclas, EnterInTheListWithNoCurrentRowChoosesNothing)
{
    AbrePor(GetParam(), "abc");
    TeclaNele(Qt::Key_Tab);
    ASSERT_EQ(FocoDele(), "List1");
    ASSERT_EQ(LinhaCorrente(), "");
    TeclaNele(Qt::Key_Return);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EsperaDeVolta(GetParam(), "abc");
}

TEST_P(PesquisaTeclas, EnterAndDownStayOverAnEmptyList)
{
    AbrePor(GetParam());
    DigitaNela("Text1", "zzz");
    ASSERT_EQ(List1()->Quantas(), 0);
    for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
        TeclaNele(tecla);
        ASSERT_TRUE(EstaAberto()) << tecla;
        EXPECT_EQ(FocoDele(), "Text1") << tecla;
    }
    EXPECT_EQ(Caixa("Text1"), "zzz");
    EXPECT_EQ(m_caixas->Quantas(), 0U) << "the focus was there by then";
}

// --- the question over an empty table ---

TEST_P(PesquisaTeclas, TheQuestionHasTheUsualTitleAndNoIcon)
{
    m_escritorio.Sql("DELETE FROM " + GetParam().registro.tabela);
    Abre();
    m_caixas->Responde(QMessageBox::Cancel);
    F3(GetParam().controle);
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_caixas->Quantas() > 0 && !EstaAberto(); }));
    EXPECT_EQ(m_caixas->Ultima().titulo, "QX70 MIRA - Document Printer");
    EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::NoIcon);
}

// --- Cadastrar ---

TEST_P(PesquisaTeclas, CadastrarWithoutAStoreIsToldAndOpensNoRegister)
{
    AbrePor(GetParam(), "abc");
    ClicaNaLinha(1);
    ASSERT_TRUE(QFile::remove(m_escritorio.Arquivo("QX70.MDB")));
    Fecha(Cadastra);
    EsperaCaixa("O Banco de dados \"QX70.MDB\" nao foi encontrado!", "Erro", QMessageBox::Warning);
    EXPECT_TRUE(Abertas(GetParam().registro.tela).isEmpty());
    EXPECT_EQ(Dados().FechaTela, 0);
    EsperaDeVolta(GetParam(), "abc");
    EXPECT_FALSE(QFile::exists(m_escritorio.Arquivo("QX70.MDB"))) << "none is made";
}

INSTANTIATE_TEST_SUITE_P(Campos, PesquisaTeclas, testing::Values(kCampoBanco, kCampoFavorecido, kCampoCidade),
                         [](const auto &caso) { return caso.param.registro.tabela.toStdString(); });

// --- the focus moved meanwhile ---

class PesquisaAoLado : public ComPesquisa {};

TEST_F(PesquisaAoLado, AChoiceGoesToItsFieldThoughAnotherWasClickedMeanwhile)
{
    AbrePor(kCampoFavorecido, "abc");
    Ativa();
    DigitaEm("Text1(1)", "1.234,50");
    ASSERT_EQ(Foco(), "Text1(1)");
    AtivaTela("Pesquisa");
    DuploClique(1);
    EsperaDeVolta(kCampoFavorecido, "Ana");
    EXPECT_EQ(Texto("Text1(1)"), "1.234,50");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(PesquisaAoLado, NoChoiceLeavesTheFieldAndTheOneThatWasClicked)
{
    AbrePor(kCampoFavorecido, "abc");
    Ativa();
    DigitaEm("Text1(1)", "1.234,50");
    AtivaTela("Pesquisa");
    Fecha(Cancela);
    EsperaDeVolta(kCampoFavorecido, "abc");
    EXPECT_EQ(Texto("Text1(1)"), "1.234,50");
}

// --- the log ---

class PesquisaNoLog : public ComPesquisa, public testing::WithParamInterface<QMessageBox::StandardButton> {};
TEST_P(PesquisaNoLog, IsEmptyAsksAtOnceAndOpensNoRegister)
{
    m_escritorio.Sql("INSERT INTO Log (Codigo, Banco) VALUES ('001', 'BANCO UM')");
    Abre();
    Dados().TipoPesquisa = 3;
    Dados().TextoPesquisa = "de antes";
    int cadastros = 0;
    const QPointer<registers::Pesquisa> tela = new registers::Pesquisa(
        Dados(), [&](int) { ++cadastros; }, &Tela());
    EXPECT_EQ(Dados().TextoPesquisa, "");
    const auto *lista = apoio::Controle<plataforma::Lista>(*tela, "List1");
    std::string durante;
    m_caixas->AoAbrir([&](QMessageBox &) {
        durante = std::to_string(lista->Quantas()) + " rows, focus in " + FocoDele();
        for (const int tabela : {0, 1, 2, 3})
            durante += Dados().armazem.Aberto(tabela) ? ", open: " + std::to_string(tabela) : "";
    });
    m_caixas->Responde(GetParam());
    tela->show();
    tela->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_caixas->Quantas() > 0 && (!tela || !tela->isVisible()); }));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(durante, "0 rows, focus in Text1, open: 3");
    ASSERT_EQ(m_caixas->Quantas(), 1U) << Vistas();
    EXPECT_EQ(m_caixas->Ultima().texto,
              "Nao existe registro para pesquisar!!!\nDeseja cadastrar algum dado?");
    EXPECT_EQ(m_caixas->Ultima().botoes, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(cadastros, 0);
    for (const Registro &registro : {kBancos, kCidade, kFavorec})
        EXPECT_TRUE(Abertas(registro.tela).isEmpty()) << registro.tela.toStdString();
    EXPECT_EQ(Dados().TextoPesquisa, "");
    EXPECT_FALSE(Dados().armazem.Aberto(3));
}
INSTANTIATE_TEST_SUITE_P(Respostas, PesquisaNoLog, testing::Values(QMessageBox::Ok, QMessageBox::Cancel),
                         [](const auto &caso) { return caso.param == QMessageBox::Ok ? "Ok" : "Cancel"; });

} // namespace
