// Limits on what is typed.
#include "plataforma/tela/CampoTexto.h"
#include "apoio/Controles.h"

#include <gtest/gtest.h>
#include <QClipboard>

using plataforma::CampoTexto;

namespace {

TEST(CampoTexto, TypingStopsAtTheLimit)
{
    CampoTexto campo(3);
    QTest::keyClicks(&campo, "12345");
    EXPECT_EQ(campo.text(), "123");
}

TEST(CampoTexto, TypingIntoTheMiddleOfAFullBoxChangesNothing)
{
    CampoTexto campo(3);
    campo.setText("123");
    campo.setCursorPosition(1);
    QTest::keyClicks(&campo, "9");
    EXPECT_EQ(campo.text(), "123");
}

TEST(CampoTexto, TypingOverASelectionReplacesIt)
{
    CampoTexto campo(3);
    campo.setText("123");
    campo.selectAll();
    QTest::keyClicks(&campo, "9");
    EXPECT_EQ(campo.text(), "9");
}

TEST(CampoTexto, TheProgramIsNotCut)
{
    CampoTexto campo(3);
    campo.setText("123456");
    EXPECT_EQ(campo.text(), "123456");
}

TEST(CampoTexto, PastingTakesWhatFits)
{
    QGuiApplication::clipboard()->setText("abcdef");
    CampoTexto campo(4);
    campo.setText("1");
    QTest::keyClick(&campo, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(campo.text(), "1abc");
}

TEST(CampoTexto, NoLimitTakesAll)
{
    CampoTexto campo;
    QTest::keyClicks(&campo, QString(200, 'x'));
    EXPECT_EQ(campo.text().size(), 200);
}

struct CasoDigitos {
    std::string nome;
    QString texto;
    int cursor;
    QString fica;
    int cursorDepois;
};
void PrintTo(const CasoDigitos &caso, std::ostream *os)
{
    *os << '"' << caso.texto.toStdString() << "\" at " << caso.cursor;
}
class DeixaSoDigitosTest : public testing::TestWithParam<CasoDigitos> {};
TEST_P(DeixaSoDigitosTest, KeepsTheCaretBehindItsDigit)
{
    QLineEdit campo;
    campo.setText(GetParam().texto);
    campo.setCursorPosition(GetParam().cursor);
    plataforma::DeixaSoDigitos(&campo);
    EXPECT_EQ(campo.text(), GetParam().fica);
    EXPECT_EQ(campo.cursorPosition(), GetParam().cursorDepois);
}
INSTANTIATE_TEST_SUITE_P(Textos, DeixaSoDigitosTest,
                         testing::Values(CasoDigitos{"LetterAtTheEnd", "12a", 3, "12", 2},
                                         CasoDigitos{"LetterAtTheBeginning", "a12", 1, "12", 0},
                                         CasoDigitos{"LetterBetween", "1a2", 2, "12", 1},
                                         CasoDigitos{"CaretBeforeTheLetter", "12a3", 1, "123", 1},
                                         CasoDigitos{"ManyLetters", "ab1cd2ef3", 6, "123", 2},
                                         CasoDigitos{"OnlyLetters", "abc", 2, "", 0},
                                         CasoDigitos{"OnlyDigits", "123", 1, "123", 1}),
                         [](const auto &caso) { return caso.param.nome; });

TEST(DeixaSoDigitos, LeavesASelectionOfDigitsAlone)
{
    QLineEdit campo;
    campo.setText("123");
    campo.setSelection(0, 2);
    plataforma::DeixaSoDigitos(&campo);
    EXPECT_EQ(campo.selectedText(), "12");
}

} // namespace
