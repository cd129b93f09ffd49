// Boxes and bars of the options screen: what may be typed, what leaving does, and which bar writes where.
#include "ComOpSoft.h"

#include <QStyleOptionSlider>

using namespace teste;

namespace {

using OpSoftTest = ComOpSoft;

// --- boxes ---

struct CasoDigitado {
    std::string nome;
    QString teclas;
    std::string fica;
};
void PrintTo(const CasoDigitado &c, std::ostream *os)
{
    *os << '"' << c.teclas.toStdString() << '"';
}
class PrazoDigitado : public ComOpSoft, public testing::WithParamInterface<CasoDigitado> {};
TEST_P(PrazoDigitado, KeepsTheDigitsOnly)
{
    AbreCom();
    for (int i = 0; i < 3; ++i) {
        DigitaPrazo(i, GetParam().teclas);
        EXPECT_EQ(Prazo(i), GetParam().fica) << i;
    }
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Teclas, PrazoDigitado,
                         testing::Values(CasoDigitado{"LetterBetween", "12a3", "123"},
                                         CasoDigitado{"OnlyLetters", "abc", ""},
                                         CasoDigitado{"SignAndComma", "-1,5", "15"},
                                         CasoDigitado{"AboveTheBoundWhileTyping", "99999", "99999"},
                                         CasoDigitado{"ZeroWhileTyping", "0", "0"}),
                         kNomeDoCaso);

TEST_F(OpSoftTest, TheCaretStaysWhereALetterVanished)
{
    AbreCom();
    DigitaPrazo(0, "12");
    TeclaNela(Qt::Key_Left);
    apoio::Digita(OpSoft(), "x3");
    EXPECT_EQ(Prazo(0), "132");
}

struct CasoSaida {
    std::string nome;
    int prazo;
    QString texto;
    std::string fica;
    int barra;
};
void PrintTo(const CasoSaida &c, std::ostream *os)
{
    *os << "Text01(" << c.prazo << ") \"" << c.texto.toStdString() << '"';
}
class PrazoDeixado : public ComOpSoft, public testing::WithParamInterface<CasoSaida> {};
TEST_P(PrazoDeixado, IsHeldBetween1And3650AndTakesTheBarAlong)
{
    AbreCom();
    DigitaPrazo(GetParam().prazo, GetParam().texto);
    apoio::ClicaEm(OpSoft(), GetParam().prazo == 1 ? "Text01(0)" : "Text01(1)");
    EXPECT_EQ(Prazo(GetParam().prazo), GetParam().fica);
    EXPECT_EQ(Barra(GetParam().prazo)->value(), GetParam().barra);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Textos, PrazoDeixado,
                         testing::Values(CasoSaida{"Usual", 0, "77", "77", 77},
                                         CasoSaida{"Empty", 0, "", "1", 1}, CasoSaida{"Zero", 1, "0", "1", 1},
                                         CasoSaida{"FourNines", 0, "9999", "3650", 3650},
                                         CasoSaida{"Highest", 1, "3650", "3650", 3650},
                                         CasoSaida{"OneTooMany", 1, "3651", "3650", 3650},
                                         CasoSaida{"LeadingZeros", 0, "007", "7", 7},
                                         CasoSaida{"ChequesAPageEmpty", 2, "", "1", 10},
                                         CasoSaida{"ChequesAPageFourNines", 2, "9999", "3650", 3650}),
                         kNomeDoCaso);
// On purpose: the box goes down to 1, though its bar stops at 10.
INSTANTIATE_TEST_SUITE_P(TerceiraBarra, PrazoDeixado,
                         testing::Values(CasoSaida{"FiveStandsInTheBox", 2, "5", "5", 10},
                                         CasoSaida{"Ten", 2, "10", "10", 10}),
                         kNomeDoCaso);

TEST_F(OpSoftTest, TabLeavesABoxToo)
{
    AbreCom();
    DigitaPrazo(0, "9999");
    TeclaNela(Qt::Key_Tab);
    EXPECT_EQ(Prazo(0), "3650");
}

TEST_F(OpSoftTest, ArrivingSelectsTheWholeText)
{
    AbreCom(m_todas);
    for (int i = 0; i < 3; ++i) {
        VaiNelaPara(QString("Text01(%1)").arg(i));
        EXPECT_EQ(
            apoio::Controle<QLineEdit>(OpSoft(), QString("Text01(%1)").arg(i))->selectedText().toStdString(),
            Prazo(i));
    }
}

TEST_F(OpSoftTest, ClickIntoABoxSelectsTheWholeText)
{
    AbreCom(m_todas);
    VaiNelaPara("CheckImpInv");
    apoio::ClicaEm(OpSoft(), "Text01(1)");
    EXPECT_EQ(apoio::Controle<QLineEdit>(OpSoft(), "Text01(1)")->selectedText(), "34");
}

struct CasoForaDosLimites {
    std::string nome;
    QString guardado;
    std::string aoSair;
};
void PrintTo(const CasoForaDosLimites &c, std::ostream *os)
{
    *os << c.guardado.toStdString();
}
class GuardadoForaDosLimites : public ComOpSoft, public testing::WithParamInterface<CasoForaDosLimites> {};
TEST_P(GuardadoForaDosLimites, IsShownAsStoredAndHeldOnLeaving)
{
    AbreCom("PeriodoRelExc=40\nPeriodoCopExc=" + GetParam().guardado + "\n");
    EXPECT_EQ(Prazo(1), GetParam().guardado.toStdString());
    VaiNelaPara("Text01(1)");
    EXPECT_EQ(Prazo(1), GetParam().guardado.toStdString());
    TeclaNela(Qt::Key_Tab);
    EXPECT_EQ(Prazo(1), GetParam().aoSair);
    Confirma();
    EXPECT_EQ(m_escritorio.Chave("Opcoes", "PeriodoCopExc").toStdString(), GetParam().aoSair);
    EXPECT_EQ(std::to_string(Dados().PeriodoCopExc), GetParam().aoSair);
}
TEST_P(GuardadoForaDosLimites, StaysWhenItsBoxIsNotVisited)
{
    AbreCom("PeriodoRelExc=40\nPeriodoCopExc=" + GetParam().guardado + "\n");
    DigitaPrazo(0, "41");
    Confirma();
    EXPECT_EQ(m_escritorio.Chave("Opcoes", "PeriodoRelExc"), "41");
    EXPECT_EQ(m_escritorio.Chave("Opcoes", "PeriodoCopExc"), GetParam().guardado);
    EXPECT_EQ(Dados().PeriodoCopExc, GetParam().guardado.toInt());
}
INSTANTIATE_TEST_SUITE_P(Valores, GuardadoForaDosLimites,
                         testing::Values(CasoForaDosLimites{"Zero", "0", "1"},
                                         CasoForaDosLimites{"Above", "5000", "3650"},
                                         CasoForaDosLimites{"FarAbove", "40000", "3650"},
                                         CasoForaDosLimites{"Negative", "-5", "1"}),
                         kNomeDoCaso);

// --- bars ---

class BarraTest : public ComOpSoft {
protected:
    /// Presses the arrow of a bar with the mouse.
    void ClicaNaSeta(int i, QStyle::SubControl seta)
    {
        QScrollBar *barra = Barra(i);
        QStyleOptionSlider opcao;
        opcao.initFrom(barra);
        opcao.orientation = barra->orientation();
        opcao.minimum = barra->minimum();
        opcao.maximum = barra->maximum();
        opcao.sliderPosition = opcao.sliderValue = barra->value();
        opcao.singleStep = barra->singleStep();
        opcao.pageStep = barra->pageStep();
        opcao.subControls = QStyle::SC_All;
        const QRect lugar = barra->style()->subControlRect(QStyle::CC_ScrollBar, &opcao, seta, barra);
        ASSERT_FALSE(lugar.isEmpty());
        QTest::mouseClick(barra, Qt::LeftButton, {}, lugar.center());
    }
    /// What the box of each bar shows behind each key.
    [[nodiscard]] std::string DepoisDasTeclas(int i, const QList<Qt::Key> &teclas)
    {
        VaiNelaPara(QString("VScroll01(%1)").arg(i));
        std::string vistos;
        for (const Qt::Key tecla : teclas) {
            TeclaNela(tecla);
            vistos += Prazo(i) + ' ';
            EXPECT_EQ(std::to_string(Barra(i)->value()), Prazo(i));
        }
        return vistos;
    }
};

TEST_F(BarraTest, ArrowKeysWriteIntoItsBox)
{
    AbreCom(m_todas);
    EXPECT_EQ(DepoisDasTeclas(0, {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}), "13 14 13 ");
    EXPECT_EQ(DepoisDasTeclas(1, {Qt::Key_Up, Qt::Key_Down, Qt::Key_Down}), "33 34 35 ");
    EXPECT_EQ(DepoisDasTeclas(2, {Qt::Key_Down}), "57 ");
    EXPECT_EQ(Prazo(0) + ' ' + Prazo(1), "13 35") << "each bar writes into its own box";
}

TEST_F(BarraTest, ItsEndsAreTheBounds)
{
    AbreCom(m_todas);
    EXPECT_EQ(DepoisDasTeclas(0, {Qt::Key_End, Qt::Key_Down, Qt::Key_Home, Qt::Key_Up}), "3650 3650 1 1 ");
    EXPECT_EQ(DepoisDasTeclas(2, {Qt::Key_Home, Qt::Key_Up, Qt::Key_End}), "10 10 3650 ");
}

TEST_F(BarraTest, ItsArrowsTakeAClickFromAnywhere)
{
    AbreCom(m_todas);
    VaiNelaPara("CheckImpInv");
    ClicaNaSeta(0, QStyle::SC_ScrollBarAddLine);
    EXPECT_EQ(Prazo(0), "13");
    EXPECT_EQ(FocoNela(), "VScroll01(0)");
    ClicaNaSeta(1, QStyle::SC_ScrollBarSubLine);
    ClicaNaSeta(1, QStyle::SC_ScrollBarSubLine);
    EXPECT_EQ(Prazo(1), "32");
    EXPECT_EQ(Prazo(0), "13");
}

TEST_F(BarraTest, AClickBehindTypingStartsFromTheNumberTyped)
{
    AbreCom(m_todas);
    DigitaPrazo(0, "100");
    ClicaNaSeta(0, QStyle::SC_ScrollBarAddLine);
    EXPECT_EQ(Prazo(0), "101");
}

TEST_F(BarraTest, ArrivingAtItChangesNothing)
{
    AbreCom(m_todas);
    VaiNelaPara("VScroll01(0)");
    EXPECT_EQ(Prazo(0), "12");
    EXPECT_EQ(Barra(0)->value(), 12);
}

// On purpose: the bar stops at 10, the box does not.
TEST_F(BarraTest, ArrivingAtTheThirdLeavesALowerNumberInTheBox)
{
    AbreCom(m_todas);
    DigitaPrazo(2, "5");
    VaiNelaPara("VScroll01(2)");
    EXPECT_EQ(Prazo(2), "5");
    EXPECT_EQ(Barra(2)->value(), 10);
    TeclaNela(Qt::Key_Up);
    EXPECT_EQ(Prazo(2), "5");
    TeclaNela(Qt::Key_Down);
    EXPECT_EQ(Prazo(2), "11");
}

TEST_F(BarraTest, WithoutTheFocusItsChangesStayOutOfTheBox)
{
    AbreCom(m_todas);
    VaiNelaPara("Text01(1)");
    Barra(0)->setValue(99);
    Barra(1)->setValue(99);
    EXPECT_EQ(Prazo(0), "12");
    EXPECT_EQ(Prazo(1), "34");
}

TEST_F(BarraTest, LeavingItEndsItsWriting)
{
    AbreCom(m_todas);
    EXPECT_EQ(DepoisDasTeclas(0, {Qt::Key_Down}), "13 ");
    VaiNelaPara("CheckImpInv");
    Barra(0)->setValue(99);
    EXPECT_EQ(Prazo(0), "13");
}

TEST_F(BarraTest, ArrivingSetsItFromTheBox)
{
    AbreCom(m_todas);
    VaiNelaPara("CheckImpInv");
    Barra(0)->setValue(99);
    VaiNelaPara("VScroll01(0)");
    EXPECT_EQ(Barra(0)->value(), 12);
    EXPECT_EQ(Prazo(0), "12");
}

TEST_F(BarraTest, WhatItWroteIsConfirmed)
{
    AbreCom(m_todas);
    EXPECT_EQ(DepoisDasTeclas(2, {Qt::Key_Down}), "57 ");
    Confirma();
    EXPECT_EQ(m_escritorio.Chave("Opcoes", "NumChkPgRel"), "57");
    EXPECT_EQ(Dados().NumChkPgRel, 57);
}

} // namespace
