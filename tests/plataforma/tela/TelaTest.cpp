// The focus, key and change rules of the screen base.
#include "plataforma/tela/Tela.h"
#include "apoio/Caixas.h"
#include "apoio/Controles.h"
#include "plataforma/tela/Arranjo.h"
#include "plataforma/tela/Caixas.h"

#include <gtest/gtest.h>
#include <QDialog>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

using namespace apoio;
using plataforma::Regras;
using plataforma::RuntimeError;

namespace {

// Three boxes A, B, C and a button; each rule notes its turn.
class TelaDeProva final : public plataforma::Tela {
public:
    explicit TelaDeProva(plataforma::Mensagens &mensagens) : Tela(QStringLiteral("Prova"), mensagens)
    {
        auto *caixa = new QVBoxLayout(this);
        for (const QString &nome : QStringList{"A", "B", "C"}) {
            auto *campo = new QLineEdit;
            campo->setObjectName(nome);
            caixa->addWidget(campo);
            Registra(campo, Notas(nome));
        }
        botao = new QPushButton(QStringLiteral("&Botao"));
        botao->setObjectName(QStringLiteral("Botao"));
        caixa->addWidget(botao);
        Registra(botao, Notas(QStringLiteral("Botao")));
        connect(botao, &QPushButton::clicked, this, [this] { diario << QStringLiteral("pressiona Botao"); });
    }

    Regras Notas(const QString &nome)
    {
        Regras regras;
        regras.antes = [this, nome] { diario << "antes " + nome; };
        regras.chega = [this, nome] {
            diario << "chega " + nome;
            if (aoChegar)
                aoChegar(nome);
        };
        regras.deixa = [this, nome] {
            diario << "deixa " + nome;
            return !aoDeixar || aoDeixar(nome);
        };
        regras.enter = [this, nome] {
            diario << "enter " + nome;
            if (nome == QStringLiteral("A"))
                Caminha(Controle<QWidget>(*this, QStringLiteral("B")));
        };
        regras.tecla = [this, nome](int codigo) {
            diario << QStringLiteral("tecla %1 %2").arg(codigo).arg(nome);
        };
        regras.clique = [this, nome] { diario << "clique " + nome; };
        regras.muda = [this, nome] { diario << "muda " + nome; };
        return regras;
    }
    QWidget *Campo(const QString &nome) { return Controle<QWidget>(*this, nome); }

    QStringList diario;
    std::function<bool(const QString &)> aoDeixar;
    std::function<void(const QString &)> aoChegar;
    QPushButton *botao = nullptr;
};

class TelaTest : public testing::Test {
protected:
    void SetUp() override
    {
        m_tela.show();
        m_tela.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_tela));
        Controle<QWidget>(m_tela, "A")->setFocus();
        m_tela.diario.clear();
    }
    plataforma::Caixas m_mensagens;
    TelaDeProva m_tela{m_mensagens};
};

} // namespace

TEST_F(TelaTest, TabRunsFirstPartOfArrivalThenLeaveThenRestOfArrival)
{
    Tecla(m_tela, Qt::Key_Tab);
    EXPECT_EQ(m_tela.diario, QStringList({"antes B", "deixa A", "chega B"}));
    EXPECT_EQ(Foco(m_tela), "B");
}

TEST_F(TelaTest, ClickMovesByTheSameRulesAndRunsTheClickRule)
{
    ClicaEm(m_tela, "C");
    EXPECT_EQ(m_tela.diario, QStringList({"antes C", "deixa A", "chega C", "clique C"}));
}

TEST_F(TelaTest, ClickInTheFieldThatHasTheFocusRunsOnlyTheClickRule)
{
    ClicaEm(m_tela, "A");
    EXPECT_EQ(m_tela.diario, QStringList({"clique A"}));
}

TEST_F(TelaTest, LeaveRuleThatKeepsTheFocusStopsTheArrival)
{
    m_tela.aoDeixar = [](const QString &) { return false; };
    Tecla(m_tela, Qt::Key_Tab);
    EXPECT_EQ(m_tela.diario, QStringList({"antes B", "deixa A"}));
    EXPECT_EQ(Foco(m_tela), "A");
    m_tela.diario.clear();
    m_tela.aoDeixar = nullptr;
    Tecla(m_tela, Qt::Key_Tab);
    EXPECT_EQ(m_tela.diario, QStringList({"antes B", "deixa A", "chega B"}));
}

TEST_F(TelaTest, RefusedClickOnAButtonPressesNothing)
{
    m_tela.aoDeixar = [](const QString &) { return false; };
    ClicaEm(m_tela, "Botao");
    EXPECT_EQ(m_tela.diario, QStringList({"antes Botao", "deixa A"}));
    EXPECT_FALSE(m_tela.botao->isDown());
    m_tela.aoDeixar = nullptr;
    ClicaEm(m_tela, "Botao");
    EXPECT_TRUE(m_tela.diario.contains("pressiona Botao"));
}

// On a desktop the box takes the release of the click that it interrupted.
TEST_F(TelaTest, ClickInterruptedByABoxPressesNothingAndTheNextOneDoes)
{
    Caixas caixas;
    m_tela.aoDeixar = [this](const QString &) {
        m_mensagens.MsgBox("x", plataforma::Botoes::Ok, plataforma::Icone::Nenhum, "t");
        return true;
    };
    QTest::mousePress(m_tela.botao, Qt::LeftButton);
    EXPECT_EQ(caixas.Quantas(), 1U);
    EXPECT_FALSE(m_tela.diario.contains("pressiona Botao"));
    EXPECT_FALSE(m_tela.botao->isDown());
    QTest::mouseClick(m_tela.botao, Qt::LeftButton);
    EXPECT_EQ(m_tela.diario.count("pressiona Botao"), 1);
}

TEST_F(TelaTest, DoubleClickThatWasRefusedLeavesTheButtonUp)
{
    m_tela.aoDeixar = [](const QString &) { return false; };
    QTest::mouseDClick(m_tela.botao, Qt::LeftButton);
    EXPECT_FALSE(m_tela.diario.contains("pressiona Botao"));
    EXPECT_FALSE(m_tela.botao->isDown());
}

TEST_F(TelaTest, ArrowOfTheKeypadCountsAsAnArrow)
{
    Tecla(m_tela, Qt::Key_Down, Qt::KeypadModifier);
    EXPECT_EQ(m_tela.diario, QStringList({"tecla 40 A"}));
}

TEST_F(TelaTest, DialogueCancelledIsNotToldAgain)
{
    Caixas caixas;
    m_tela.Guarda([] { throw RuntimeError(32755, QString()); });
    EXPECT_EQ(caixas.Quantas(), 0U);
}

TEST_F(TelaTest, RefusedTabDoesNotSpoilALaterClick)
{
    m_tela.aoDeixar = [](const QString &) { return false; };
    Tecla(m_tela, Qt::Key_Backtab, Qt::ShiftModifier); // to the button, refused
    m_tela.aoDeixar = nullptr;
    m_tela.diario.clear();
    ClicaEm(m_tela, "Botao");
    EXPECT_EQ(m_tela.diario.last(), "pressiona Botao");
}

TEST_F(TelaTest, MessageBoxInALeaveRuleIsNoMoveAndDoesNotStopTheRule)
{
    Caixas caixas;
    m_tela.aoDeixar = [this](const QString &) {
        m_mensagens.MsgBox("x", plataforma::Botoes::Ok, plataforma::Icone::Nenhum, "t");
        m_tela.diario << "depois da caixa";
        return false;
    };
    Tecla(m_tela, Qt::Key_Tab);
    EXPECT_EQ(caixas.Quantas(), 1U);
    EXPECT_EQ(m_tela.diario, QStringList({"antes B", "deixa A", "depois da caixa"}));
    EXPECT_EQ(Foco(m_tela), "A");
}

TEST_F(TelaTest, ComingBackFromAMessageBoxIsNoArrival)
{
    Caixas caixas;
    m_mensagens.MsgBox("x", plataforma::Botoes::Ok, plataforma::Icone::Nenhum, "t");
    m_tela.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_tela));
    EXPECT_EQ(m_tela.diario, QStringList());
    EXPECT_EQ(Foco(m_tela), "A");
}

TEST_F(TelaTest, ComingBackFromAnotherScreenArrives)
{
    {
        TelaDeProva outra(m_mensagens);
        outra.show();
        outra.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&outra));
        EXPECT_EQ(m_tela.diario, QStringList()) << "going to another screen leaves nothing";
    }
    m_tela.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_tela));
    EXPECT_EQ(m_tela.diario, QStringList({"antes A", "chega A"}));
}

TEST_F(TelaTest, ComingBackFromAWindowThatIsNoScreenDoesNotArrive)
{
    {
        QDialog outra;
        outra.show();
        outra.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&outra));
    }
    m_tela.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_tela));
    EXPECT_EQ(m_tela.diario, QStringList());
}

TEST_F(TelaTest, EnterWalksThroughTheLeaveRule)
{
    m_tela.aoDeixar = [](const QString &) { return false; };
    Tecla(m_tela, Qt::Key_Return);
    EXPECT_EQ(m_tela.diario, QStringList({"enter A", "antes B", "deixa A"}));
    EXPECT_EQ(Foco(m_tela), "A");
    m_tela.aoDeixar = nullptr;
    Tecla(m_tela, Qt::Key_Enter);
    EXPECT_EQ(Foco(m_tela), "B");
}

TEST_F(TelaTest, OrderedMoveGoesThroughWhateverTheLeaveRuleSays)
{
    m_tela.aoDeixar = [](const QString &) { return false; };
    m_tela.MoveFoco(m_tela.Campo("C"));
    EXPECT_EQ(m_tela.diario, QStringList({"antes C", "deixa A", "chega C"}));
    EXPECT_EQ(Foco(m_tela), "C");
}

TEST_F(TelaTest, MoveOrderedInsideALeaveRuleReplacesTheOneUnderWay)
{
    m_tela.aoDeixar = [this](const QString &nome) {
        if (nome == "A")
            m_tela.MoveFoco(m_tela.Campo("C"));
        return true;
    };
    Tecla(m_tela, Qt::Key_Tab);
    EXPECT_EQ(m_tela.diario, QStringList({"antes B", "deixa A", "antes C", "chega C"}));
    EXPECT_EQ(Foco(m_tela), "C");
}

TEST_F(TelaTest, MoveOrderedToItselfInsideALeaveRuleKeepsTheFocus)
{
    m_tela.aoDeixar = [this](const QString &nome) {
        m_tela.MoveFoco(m_tela.Campo(nome));
        return true;
    };
    Tecla(m_tela, Qt::Key_Tab);
    EXPECT_EQ(Foco(m_tela), "A");
    EXPECT_EQ(m_tela.diario, QStringList({"antes B", "deixa A"}));
}

TEST_F(TelaTest, MoveOrderedWhileArrivingMovesOn)
{
    m_tela.aoChegar = [this](const QString &nome) {
        if (nome == "B")
            m_tela.MoveFoco(m_tela.Campo("C"));
    };
    Tecla(m_tela, Qt::Key_Tab);
    EXPECT_EQ(Foco(m_tela), "C");
    EXPECT_EQ(m_tela.diario, QStringList({"antes B", "deixa A", "chega B", "antes C", "deixa B", "chega C"}));
}

TEST_F(TelaTest, MnemonicGivesTheButtonTheFocusBeforePressingIt)
{
    QTest::keyClick(&m_tela, Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(m_tela.diario, QStringList({"antes Botao", "deixa A", "chega Botao", "pressiona Botao"}));
    EXPECT_EQ(Foco(m_tela), "Botao");
}

TEST_F(TelaTest, MnemonicPressesNothingWhenTheFieldKeepsTheFocus)
{
    m_tela.aoDeixar = [](const QString &) { return false; };
    QTest::keyClick(&m_tela, Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(m_tela.diario, QStringList({"antes Botao", "deixa A"}));
    EXPECT_EQ(Foco(m_tela), "A");
}

// A button that gives up, while a field refuses to be left.
class BotaoQueDesiste : public TelaTest {
protected:
    void SetUp() override
    {
        TelaTest::SetUp();
        Regras regras = m_tela.Notas("Botao");
        regras.desiste = true;
        m_tela.Registra(m_tela.botao, regras);
        m_tela.aoDeixar = [](const QString &) { return false; };
    }
};

TEST_F(BotaoQueDesiste, ClickRunsNoLeaveRuleAndPresses)
{
    ClicaEm(m_tela, "Botao");
    EXPECT_EQ(m_tela.diario, QStringList({"antes Botao", "chega Botao", "clique Botao", "pressiona Botao"}));
    EXPECT_EQ(Foco(m_tela), "Botao");
}

TEST_F(BotaoQueDesiste, MnemonicRunsNoLeaveRuleAndPresses)
{
    QTest::keyClick(&m_tela, Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(m_tela.diario, QStringList({"antes Botao", "chega Botao", "pressiona Botao"}));
    EXPECT_EQ(Foco(m_tela), "Botao");
}

TEST_F(BotaoQueDesiste, TabRunsNoLeaveRuleAndPressesNothing)
{
    m_tela.MoveFoco(m_tela.Campo("C"));
    m_tela.diario.clear();
    Tecla(m_tela, Qt::Key_Tab);
    EXPECT_EQ(m_tela.diario, QStringList({"antes Botao", "chega Botao"}));
    EXPECT_EQ(Foco(m_tela), "Botao");
}

TEST_F(BotaoQueDesiste, AWalkToItRunsNoLeaveRule)
{
    EXPECT_TRUE(m_tela.Caminha(m_tela.botao));
    EXPECT_EQ(m_tela.diario, QStringList({"antes Botao", "chega Botao"}));
}

TEST_F(BotaoQueDesiste, OtherControlsStillAskTheFieldLeft)
{
    ClicaEm(m_tela, "B");
    EXPECT_EQ(m_tela.diario, QStringList({"antes B", "deixa A"}));
    EXPECT_EQ(Foco(m_tela), "A");
}

TEST_F(BotaoQueDesiste, LeavingItRunsItsOwnRule)
{
    m_tela.MoveFoco(m_tela.botao);
    m_tela.diario.clear();
    ClicaEm(m_tela, "A");
    EXPECT_EQ(m_tela.diario, QStringList({"antes A", "deixa Botao"}));
    m_tela.aoDeixar = nullptr;
    ClicaEm(m_tela, "A");
    EXPECT_EQ(Foco(m_tela), "A");
}

TEST_F(TelaTest, EnterOnAButtonPressesItOnceWhileHeld)
{
    m_tela.MoveFoco(m_tela.botao);
    m_tela.diario.clear();
    Tecla(m_tela, Qt::Key_Return);
    QKeyEvent repetida(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(m_tela.botao, &repetida);
    EXPECT_EQ(m_tela.diario.count("pressiona Botao"), 1);
}

TEST_F(TelaTest, DisabledButtonIsNotPressedByEnterOrMnemonic)
{
    m_tela.botao->setEnabled(false);
    QTest::keyClick(&m_tela, Qt::Key_B, Qt::AltModifier);
    QTest::keyClick(m_tela.botao, Qt::Key_Return);
    EXPECT_FALSE(m_tela.diario.contains("pressiona Botao"));
}

struct CasoTecla {
    std::string nome;
    Qt::Key tecla;
    QString nota;
};
void PrintTo(const CasoTecla &caso, std::ostream *os)
{
    *os << caso.nome;
}
class TeclaDeFuncaoTest : public TelaTest, public testing::WithParamInterface<CasoTecla> {};
TEST_P(TeclaDeFuncaoTest, ReachesTheFieldByItsCode)
{
    Tecla(m_tela, GetParam().tecla);
    EXPECT_EQ(m_tela.diario, QStringList({GetParam().nota}));
}
INSTANTIATE_TEST_SUITE_P(Teclas, TeclaDeFuncaoTest,
                         testing::Values(CasoTecla{"F3", Qt::Key_F3, "tecla 114 A"},
                                         CasoTecla{"F4", Qt::Key_F4, "tecla 115 A"},
                                         CasoTecla{"F8", Qt::Key_F8, "tecla 119 A"},
                                         CasoTecla{"Left", Qt::Key_Left, "tecla 37 A"},
                                         CasoTecla{"Up", Qt::Key_Up, "tecla 38 A"},
                                         CasoTecla{"Right", Qt::Key_Right, "tecla 39 A"},
                                         CasoTecla{"Down", Qt::Key_Down, "tecla 40 A"}),
                         [](const auto &caso) { return caso.param.nome; });

TEST_F(TelaTest, FunctionKeyWithAModifierIsNoneOfOurs)
{
    Tecla(m_tela, Qt::Key_F4, Qt::ControlModifier);
    EXPECT_EQ(m_tela.diario, QStringList());
}

TEST_F(TelaTest, ChangeRuleRunsForTypingAndForTheProgram)
{
    Digita(m_tela, "x");
    Controle<QLineEdit>(m_tela, "B")->setText("y");
    EXPECT_EQ(m_tela.diario, QStringList({"muda A", "muda B"}));
}

TEST_F(TelaTest, FailureNobodyCaughtEndsTheActionWithOneBox)
{
    Caixas caixas;
    m_tela.aoChegar = [](const QString &) {
        throw RuntimeError(13, QStringLiteral("\"abc\" não é número."));
    };
    Tecla(m_tela, Qt::Key_Tab);
    ASSERT_EQ(caixas.Quantas(), 1U);
    EXPECT_EQ(caixas.Ultima().texto, QString("Ocorreu erro 13!\n\"abc\" não é número."));
    EXPECT_EQ(caixas.Ultima().titulo, "QX70 MIRA - Document Printer");
    m_tela.aoChegar = nullptr;
    Tecla(m_tela, Qt::Key_Tab);
    EXPECT_EQ(Foco(m_tela), "C") << "the program goes on";
}

TEST_F(TelaTest, ClickThatArrivesLeavesTheWholeTextSelected)
{
    auto *campo = Controle<QLineEdit>(m_tela, "B");
    campo->setText("algum texto");
    m_tela.aoChegar = [campo](const QString &) { campo->selectAll(); };
    QTest::mouseClick(campo, Qt::LeftButton, {}, QPoint(12, campo->height() / 2));
    EXPECT_EQ(campo->selectedText(), "algum texto");
    QTest::mouseClick(campo, Qt::LeftButton, {}, QPoint(12, campo->height() / 2));
    EXPECT_EQ(campo->selectedText(), QString()) << "a second click puts the caret, as in any box";
}

TEST(Arranjo, GapIsASubscriptFailure)
{
    QWidget tela;
    plataforma::Arranjo<QLineEdit> texto(QStringLiteral("Text1"));
    for (const int i : {0, 1, 2, 3, 4, 6})
        texto.Poe(i, new QLineEdit(&tela));
    EXPECT_EQ(texto(6)->objectName(), "Text1(6)");
    try {
        static_cast<void>(texto(5));
        FAIL() << "index 5 must fail";
    } catch (const RuntimeError &falha) {
        EXPECT_EQ(falha.number(), 9);
    }
}
