// Lista: filling, real clicks on a shown list, which row is current, and how many texts are made.
#include "ComLista.h"

#include <QScrollBar>

using namespace teste;

namespace {
class ListaTest : public ComLista {};
} // namespace

TEST_F(ListaTest, MakesTheTextsOfTheRowsThatItShowsOnly)
{
    Enche(MUITAS);
    Mostra();
    (void)m_janela.grab();
    EXPECT_EQ(m_lista->Quantas(), MUITAS);
    EXPECT_GT(m_textos, 5);
    EXPECT_LT(m_textos, 300);
    m_textos = 0;
    Tecla(Qt::Key_End);
    (void)m_janela.grab();
    EXPECT_EQ(m_lista->TextoCorrente(), "100000 - linha");
    EXPECT_GT(m_textos, 5);
    EXPECT_LT(m_textos, 300);
}

TEST_F(ListaTest, HasNoCurrentRowWhenFilled)
{
    Enche(3);
    EXPECT_EQ(m_lista->Corrente(), -1);
    Mostra();
    EXPECT_EQ(m_lista->Corrente(), -1);
    EXPECT_TRUE(m_lista->TextoCorrente().isEmpty());
    m_lista->PoeCorrente(2);
    Enche(3);
    EXPECT_EQ(m_lista->Corrente(), -1);
    EXPECT_TRUE(m_clicadas.isEmpty());
}

TEST_F(ListaTest, FillingAgainShowsTheFirstRow)
{
    Enche(1000);
    Mostra();
    m_lista->PoeCorrente(999);
    (void)m_janela.grab();
    ASSERT_GT(m_lista->verticalScrollBar()->value(), 0);
    Enche(900);
    (void)m_janela.grab();
    EXPECT_EQ(m_lista->verticalScrollBar()->value(), 0);
    EXPECT_EQ(m_lista->indexAt(Ponto(0)).row(), 0);
}

TEST_F(ListaTest, AProgramMakesARowCurrentWithoutAClick)
{
    Enche(MUITAS);
    Mostra();
    m_lista->PoeCorrente(70000);
    EXPECT_EQ(m_lista->Corrente(), 70000);
    EXPECT_EQ(m_lista->TextoCorrente(), "70001 - linha");
    EXPECT_TRUE(m_lista->viewport()->rect().contains(Ponto(70000)));
    m_lista->PoeCorrente(-1);
    EXPECT_EQ(m_lista->Corrente(), -1);
    EXPECT_TRUE(m_clicadas.isEmpty());
    Tecla(Qt::Key_Down);
    EXPECT_EQ(m_clicadas, Linhas{0});
}

TEST_F(ListaTest, NoRowStandsOutsideOfTheList)
{
    Enche(3);
    m_lista->PoeCorrente(1);
    m_lista->PoeCorrente(3);
    EXPECT_EQ(m_lista->Corrente(), -1);
    EXPECT_TRUE(m_lista->TextoDe(3).isEmpty());
    EXPECT_TRUE(m_lista->TextoDe(-1).isEmpty());
    EXPECT_EQ(m_lista->TextoDe(2), "00003 - linha");
}

TEST_F(ListaTest, AClickMakesItsRowCurrentAndCountsAgainOnTheSameRow)
{
    Enche(5);
    Mostra();
    Clica(Ponto(2));
    EXPECT_EQ(m_lista->Corrente(), 2);
    EXPECT_EQ(m_clicadas, Linhas{2});
    QTest::mouseClick(m_lista->viewport(), Qt::LeftButton, {}, Ponto(4), 1000);
    QTest::mouseClick(m_lista->viewport(), Qt::LeftButton, {}, Ponto(4), 1000);
    EXPECT_EQ(m_clicadas, (Linhas{2, 4, 4}));
    EXPECT_TRUE(m_duplas.isEmpty());
}

TEST_F(ListaTest, AClickOutsideOfTheRowsKeepsTheCurrentOneInSilence)
{
    Enche(3);
    Mostra();
    Clica(Vazio());
    EXPECT_EQ(m_lista->Corrente(), -1);
    m_lista->PoeCorrente(1);
    for (const auto modificador : {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier})
        Clica(Vazio(), modificador);
    ClicaDuasVezes(Vazio());
    EXPECT_EQ(m_lista->Corrente(), 1);
    EXPECT_TRUE(m_clicadas.isEmpty());
    EXPECT_TRUE(m_duplas.isEmpty());
}

TEST_F(ListaTest, CtrlClickOnTheCurrentRowLeavesNone)
{
    Enche(5);
    Mostra();
    Clica(Ponto(2));
    m_clicadas.clear();
    Clica(Ponto(2), Qt::ControlModifier);
    EXPECT_EQ(m_lista->Corrente(), -1);
    EXPECT_TRUE(m_lista->TextoCorrente().isEmpty());
    EXPECT_TRUE(m_clicadas.isEmpty());
    Clica(Ponto(3), Qt::ControlModifier);
    EXPECT_EQ(m_lista->Corrente(), 3);
    EXPECT_EQ(m_clicadas, Linhas{3});
}

TEST_F(ListaTest, CtrlSpaceGivesTheCurrentRowUpAndTakesItAgain)
{
    Enche(5);
    Mostra();
    Clica(Ponto(2));
    m_clicadas.clear();
    Tecla(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(m_lista->Corrente(), -1);
    EXPECT_TRUE(m_clicadas.isEmpty());
    Tecla(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(m_clicadas, Linhas{2});
}

TEST_F(ListaTest, OtherButtonsOfTheMouseClickNothing)
{
    Enche(5);
    Mostra();
    m_lista->PoeCorrente(1);
    for (const auto botao : {Qt::RightButton, Qt::MiddleButton}) {
        Clica(Ponto(3), {}, botao);
        ClicaDuasVezes(Ponto(3), {}, botao);
    }
    EXPECT_EQ(m_lista->Corrente(), 1);
    EXPECT_TRUE(m_clicadas.isEmpty());
    EXPECT_TRUE(m_duplas.isEmpty());
}

TEST_F(ListaTest, DraggingEndsOnTheRowWhereTheMouseIsReleased)
{
    Enche(5);
    Mostra();
    QTest::mousePress(m_lista->viewport(), Qt::LeftButton, {}, Ponto(1));
    QTest::mouseMove(m_lista->viewport(), Ponto(2));
    QTest::mouseMove(m_lista->viewport(), Ponto(3));
    EXPECT_TRUE(m_clicadas.isEmpty());
    QTest::mouseRelease(m_lista->viewport(), Qt::LeftButton, {}, Ponto(3));
    EXPECT_EQ(m_clicadas, Linhas{m_lista->Corrente()});
    EXPECT_GT(m_lista->Corrente(), 0);
}

TEST_F(ListaTest, ReleasedOutsideOfTheRowsTheRowPressedStaysCurrent)
{
    Enche(5);
    Mostra();
    QTest::mousePress(m_lista->viewport(), Qt::LeftButton, {}, Ponto(1));
    QTest::mouseRelease(m_lista->viewport(), Qt::LeftButton, {}, Vazio());
    EXPECT_EQ(m_clicadas, Linhas{1});
    EXPECT_EQ(m_lista->Corrente(), 1);
}

TEST_F(ListaTest, ADoubleClickIsOneClickAndOneDoubleClick)
{
    Enche(5);
    Mostra();
    ClicaDuasVezes(Ponto(2));
    EXPECT_EQ(m_clicadas, Linhas{2});
    EXPECT_EQ(m_duplas, Linhas{2});
    Clica(Ponto(3));
    EXPECT_EQ(m_clicadas, (Linhas{2, 3}));
}

TEST_F(ListaTest, CtrlAndTwoQuickClicksOnTheCurrentRowAreTwoClicks)
{
    Enche(5);
    Mostra();
    Clica(Ponto(2));
    ClicaDuasVezes(Ponto(2), Qt::ControlModifier);
    EXPECT_EQ(m_lista->Corrente(), 2);
    EXPECT_EQ(m_clicadas, (Linhas{2, 2}));
    EXPECT_TRUE(m_duplas.isEmpty());
}

TEST_F(ListaTest, TwoQuickClicksOnTwoRowsAreNoDoubleClick)
{
    Enche(5);
    Mostra();
    Clica(Ponto(2));
    QTest::mouseEvent(QTest::MouseDClick, m_lista->viewport(), Qt::LeftButton, {}, Ponto(3));
    QTest::mouseRelease(m_lista->viewport(), Qt::LeftButton, {}, Ponto(3));
    EXPECT_EQ(m_clicadas, (Linhas{2, 3}));
    EXPECT_TRUE(m_duplas.isEmpty());
}

TEST_F(ListaTest, ADoubleClickMayTakeTheListAway)
{
    auto *janela = new QWidget;
    auto *lista = new Lista(janela);
    lista->Enche(3, [](int) { return QStringLiteral("linha"); });
    janela->show();
    QObject::connect(lista, &Lista::ClicadaDuasVezes, janela, [janela] { delete janela; });
    const QPointer<QWidget> vivo = janela;
    const QPoint ponto = lista->visualRect(lista->model()->index(1, 0)).center();
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, ponto);
    QTest::mouseEvent(QTest::MouseDClick, lista->viewport(), Qt::LeftButton, {}, ponto);
    EXPECT_TRUE(vivo.isNull());
}

TEST_F(ListaTest, AnEmptyListTakesClicksAndKeysInSilence)
{
    Mostra();
    EXPECT_EQ(m_lista->Quantas(), 0);
    Clica({10, 10});
    ClicaDuasVezes({10, 10});
    Tecla(Qt::Key_Space);
    Tecla(Qt::Key_Space, Qt::ControlModifier);
    Tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(m_lista->Corrente(), -1);
    EXPECT_TRUE(m_clicadas.isEmpty());
    EXPECT_TRUE(m_duplas.isEmpty());
}

TEST_F(ListaTest, AClickMayFillTheListAgain)
{
    Enche(5);
    Mostra();
    QObject::connect(m_lista, &Lista::Clicada, m_lista, [this] { Enche(2); });
    Clica(Ponto(3));
    EXPECT_EQ(m_lista->Quantas(), 2);
    EXPECT_EQ(m_lista->Corrente(), -1);
    Tecla(Qt::Key_End);
    EXPECT_EQ(m_lista->Corrente(), -1);
    EXPECT_EQ(m_clicadas, (Linhas{3, 1}));
}
