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

} // namespace
