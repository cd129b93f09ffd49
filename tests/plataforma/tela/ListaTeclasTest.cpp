// Lista: real keys in a shown list; what moves the current row, what is typed to find one, what is copied.
#include "ComLista.h"

#include <QClipboard>

using namespace teste;

namespace {

class ListaTeclasTest : public ComLista {};

struct CasoTecla {
    std::string nome;
    Qt::Key tecla;
    int deNenhuma; ///< the row that the key makes current of ten, from none
    int deQuatro;  ///< and from row 4
};
void PrintTo(const CasoTecla &c, std::ostream *os)
{
    *os << c.nome;
}

class TeclaDeMovimentoTest : public ListaTeclasTest, public testing::WithParamInterface<CasoTecla> {};

} // namespace

TEST_P(TeclaDeMovimentoTest, MovesTheCurrentRowAsAClickDoes)
{
    Enche(10);
    Mostra();
    Tecla(GetParam().tecla);
    EXPECT_EQ(m_clicadas, Linhas{GetParam().deNenhuma});
    m_lista->PoeCorrente(4);
    m_clicadas.clear();
    Tecla(GetParam().tecla);
    EXPECT_EQ(m_lista->Corrente(), GetParam().deQuatro);
    EXPECT_EQ(m_clicadas, Linhas{GetParam().deQuatro});
}

TEST_P(TeclaDeMovimentoTest, CountsAsNoClickWhereNoRowIsLeft)
{
    Enche(1);
    Mostra();
    m_lista->PoeCorrente(0);
    Tecla(GetParam().tecla);
    EXPECT_EQ(m_lista->Corrente(), 0);
    m_lista->Esvazia();
    Tecla(GetParam().tecla);
    EXPECT_EQ(m_lista->Corrente(), -1);
    EXPECT_TRUE(m_clicadas.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Teclas, TeclaDeMovimentoTest,
    testing::Values(CasoTecla{"Down", Qt::Key_Down, 0, 5}, CasoTecla{"Right", Qt::Key_Right, 0, 5},
                    CasoTecla{"Home", Qt::Key_Home, 0, 0}, CasoTecla{"PageDown", Qt::Key_PageDown, 0, 9},
                    CasoTecla{"Up", Qt::Key_Up, 9, 3}, CasoTecla{"Left", Qt::Key_Left, 9, 3},
                    CasoTecla{"End", Qt::Key_End, 9, 9}, CasoTecla{"PageUp", Qt::Key_PageUp, 9, 0}),
    [](const auto &caso) { return caso.param.nome; });

TEST_F(ListaTeclasTest, DownAfterTheCurrentRowWasGivenUpBeginsAtTheFirst)
{
    Enche(10);
    Mostra();
    Clica(Ponto(4));
    Clica(Ponto(4), Qt::ControlModifier);
    m_clicadas.clear();
    Tecla(Qt::Key_Down);
    EXPECT_EQ(m_clicadas, Linhas{0});
}

TEST_F(ListaTeclasTest, ShiftAndCtrlMoveLikeThePlainKeys)
{
    Enche(10);
    Mostra();
    m_lista->PoeCorrente(4);
    Tecla(Qt::Key_Down, Qt::ShiftModifier);
    Tecla(Qt::Key_Down, Qt::ControlModifier);
    Tecla(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(m_clicadas, (Linhas{5, 6, 9}));
    EXPECT_EQ(m_lista->selectionModel()->selectedIndexes().size(), 1);
}

TEST_F(ListaTeclasTest, PagesMoveByWhatIsInSight)
{
    Enche(MUITAS);
    Mostra();
    const int altura = m_lista->visualRect(m_lista->model()->index(0, 0)).height();
    const int inteiras = m_lista->viewport()->height() / altura;
    m_lista->PoeCorrente(0);
    Tecla(Qt::Key_PageDown);
    EXPECT_GE(m_lista->Corrente(), inteiras - 1);
    EXPECT_LE(m_lista->Corrente(), inteiras);
}

TEST_F(ListaTeclasTest, SpaceTakesTheRowWithTheFrameOfTheFocus)
{
    Enche(5);
    Mostra();
    Tecla(Qt::Key_Space);
    EXPECT_EQ(m_clicadas, Linhas{0});
    Tecla(Qt::Key_Space);
    EXPECT_EQ(m_clicadas, Linhas{0});
    EXPECT_EQ(m_lista->Corrente(), 0);
}

TEST_F(ListaTeclasTest, TypingGoesToTheRowThatBeginsSo)
{
    Enche(MUITAS);
    Mostra();
    Digita("00123");
    EXPECT_EQ(m_lista->TextoCorrente(), "00123 - linha");
    EXPECT_EQ(m_clicadas.last(), 122);
    EXPECT_EQ(m_clicadas.count(122), 1);
}

TEST_F(ListaTeclasTest, TypingTakesBlanksAndNoHeedOfCase)
{
    EncheCom({"ana", "Maria Alta", "MARIA BAIXA", "maria ção"});
    Mostra();
    Digita("maria b");
    EXPECT_EQ(m_lista->Corrente(), 2);
    Digita("x");
    EXPECT_EQ(m_lista->Corrente(), 2);
    m_lista->Esvazia();
    EncheCom({"ana", "Maria Alta", "MARIA BAIXA", "maria Ção"});
    Digita(QStringLiteral("maria ç"));
    EXPECT_EQ(m_lista->Corrente(), 3);
}

TEST_F(ListaTeclasTest, TheSameLetterAgainGoesOnRoundTheEnd)
{
    EncheCom({"beta", "alfa", "bravo", "besta"});
    Mostra();
    Digita("bbbb");
    EXPECT_EQ(m_clicadas, (Linhas{0, 2, 3, 0}));
}

TEST_F(ListaTeclasTest, TheSameDigitAgainIsFirstOfAllPartOfACode)
{
    EncheCom({"00100", "00010", "00001"});
    Mostra();
    Digita("0000");
    EXPECT_EQ(m_lista->Corrente(), 2);
}

TEST_F(ListaTeclasTest, TypingAfterAWhileBeginsAnew)
{
    EncheCom({"ana", "nora", "andre"});
    Mostra();
    Digita("an");
    EXPECT_EQ(m_clicadas, Linhas{0});
    EsqueceDigitado();
    Digita("n");
    EXPECT_EQ(m_clicadas, (Linhas{0, 1}));
}

TEST_F(ListaTeclasTest, TypingWhatNoRowBeginsWithChangesNothing)
{
    Enche(MUITAS);
    Mostra();
    m_lista->PoeCorrente(7);
    m_textos = 0;
    Digita("x");
    EXPECT_EQ(m_lista->Corrente(), 7);
    EXPECT_TRUE(m_clicadas.isEmpty());
    EXPECT_LE(m_textos, MUITAS + 300); // each row was looked at once
    m_lista->Esvazia();
    Digita("x");
    EXPECT_EQ(m_lista->Corrente(), -1);
}

TEST_F(ListaTeclasTest, CopyTakesTheTextOfTheCurrentRow)
{
    Enche(5);
    Mostra();
    QApplication::clipboard()->setText("antes");
    Tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "antes");
    m_lista->PoeCorrente(3);
    Tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "00004 - linha");
    EXPECT_EQ(m_lista->Corrente(), 3);
    EXPECT_TRUE(m_clicadas.isEmpty());
}

TEST_F(ListaTeclasTest, ACommandOfTheScreenReachesTheScreen)
{
    struct Janela : QWidget {
        void keyPressEvent(QKeyEvent *evento) override { teclas.append(evento->key()); }
        QList<int> teclas;
    } janela;
    Lista lista(&janela);
    lista.Enche(3, [](int) { return QStringLiteral("linha"); });
    const QList<int> teclas{Qt::Key_Escape, Qt::Key_Return, Qt::Key_F3, Qt::Key_Delete};
    for (const int tecla : teclas)
        QTest::keyClick(&lista, static_cast<Qt::Key>(tecla));
    QTest::sendKeyEvent(QTest::Click, &lista, Qt::Key_A, QString("\x01"), Qt::ControlModifier);
    EXPECT_EQ(janela.teclas, teclas + (QList<int>{Qt::Key_Control, Qt::Key_A}));
    EXPECT_EQ(lista.Corrente(), -1);
}
