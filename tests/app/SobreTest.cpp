// The About box: its lines, its ways out, and the credits behind a double click.
#include "ComMain.h"

#include <algorithm>
#include <QLabel>
#include <QPushButton>

using namespace apoio;

namespace {

class SobreTest : public teste::ComMain {
protected:
    void SetUp() override
    {
        ComMain::SetUp();
        Inicia();
        TerminaAbertura();
        ASSERT_EQ(Janela("Sobre"), nullptr);
        Escolhe("Sobre_T");
        m_sobre = Janela("Sobre");
        ASSERT_NE(m_sobre, nullptr);
        m_sobre->activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == m_sobre; }));
    }
    /// Texts of the labels from top to bottom, blanks and all.
    [[nodiscard]] QStringList Linhas() const
    {
        auto rotulos = m_sobre->findChildren<QLabel *>();
        std::stable_sort(rotulos.begin(), rotulos.end(), [this](const QLabel *a, const QLabel *b) {
            return a->mapTo(m_sobre, QPoint()).y() < b->mapTo(m_sobre, QPoint()).y();
        });
        QStringList linhas;
        for (const QLabel *rotulo : rotulos)
            linhas << rotulo->text().split('\n');
        return linhas;
    }
    [[nodiscard]] static bool Aberto()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return Janela("Sobre") != nullptr;
    }

    QWidget *m_sobre = nullptr;
};

TEST_F(SobreTest, HasCaptionAndButton)
{
    EXPECT_EQ(m_sobre->windowTitle(), "Sobre o QX70  Mira Document Printer");
    EXPECT_TRUE(Controle<QPushButton>(*m_sobre, "Command3D1")->isVisible());
    EXPECT_FALSE(m_sobre->isModal()) << "the main screen stays live behind it";
}

TEST_F(SobreTest, LinesStandInTheirOrder)
{
    const QStringList linhas = Linhas();
    ASSERT_EQ(linhas.size(), 7);
    EXPECT_EQ(linhas[0].trimmed(), "QX70 - Mira Document Printer");
    EXPECT_EQ(linhas[1].trimmed(), "");
    EXPECT_NE(linhas[2].trimmed(), "");
    EXPECT_EQ(linhas[3].trimmed(), "");
    EXPECT_EQ(linhas[4].trimmed(), QString::fromUtf8("Versão 5.5 - Out/99"));
    EXPECT_NE(linhas[5].trimmed(), "");
    EXPECT_TRUE(linhas[6].trimmed().startsWith("E-mail: "));
    EXPECT_GT(linhas[6].trimmed().size(), 8);
}

TEST_F(SobreTest, LinesAreCentredWithBlanks)
{
    for (const QString &linha : Linhas()) {
        const qsizetype antes = linha.indexOf(linha.trimmed());
        const qsizetype depois = linha.size() - antes - linha.trimmed().size();
        if (linha.trimmed().isEmpty())
            continue;
        EXPECT_GE(antes, 1) << linha.toStdString();
        EXPECT_GE(depois, 1) << linha.toStdString();
        EXPECT_LE(std::abs(antes - depois), 1) << linha.toStdString();
    }
}

TEST_F(SobreTest, ButtonCloses)
{
    QTest::mouseClick(Controle<QPushButton>(*m_sobre, "Command3D1"), Qt::LeftButton);
    EXPECT_FALSE(Aberto());
    EXPECT_TRUE(Tela().isVisible());
}

TEST_F(SobreTest, EnterOnTheButtonCloses)
{
    ASSERT_EQ(Foco(*m_sobre), "Command3D1");
    Tecla(*m_sobre, Qt::Key_Return);
    EXPECT_FALSE(Aberto());
}

TEST_F(SobreTest, EscapeCloses)
{
    QTest::keyClick(m_sobre, Qt::Key_Escape);
    EXPECT_FALSE(Aberto());
}

TEST_F(SobreTest, OpensAgain)
{
    QTest::keyClick(m_sobre, Qt::Key_Escape);
    ASSERT_FALSE(Aberto());
    Escolhe("Sobre_T");
    EXPECT_TRUE(Aberto());
    Escolhe("Sobre_T");
    EXPECT_EQ(Tela().findChildren<QWidget *>("Sobre").size(), 1) << "one box, however often it is asked for";
}

TEST_F(SobreTest, DoubleClickOnTheFirstLineBringsTheCredits)
{
    QTest::mouseDClick(Controle<QLabel>(*m_sobre, "Label1"), Qt::LeftButton);
    ASSERT_EQ(m_caixas.Quantas(), 1U);
    EXPECT_NE(m_caixas.Ultima().texto.trimmed(), "");
    EXPECT_EQ(m_caixas.Ultima().botoes, QMessageBox::Ok);
    EXPECT_TRUE(Aberto());
}

TEST_F(SobreTest, OneClickOrADoubleClickElsewhereBringsNothing)
{
    QTest::mouseClick(Controle<QLabel>(*m_sobre, "Label1"), Qt::LeftButton);
    EXPECT_EQ(m_caixas.Quantas(), 0U);
    QTest::mouseDClick(m_sobre, Qt::LeftButton, Qt::NoModifier, m_sobre->rect().bottomLeft() + QPoint(2, -2));
    EXPECT_EQ(m_caixas.Quantas(), 0U);
}

TEST_F(SobreTest, MainScreenStaysUsableBehindIt)
{
    Ativa();
    ClicaEm(Tela(), "Text1(2)");
    Digita(Tela(), "Ana");
    EXPECT_EQ(Texto(Tela(), "Text1(2)"), "Ana");
    EXPECT_TRUE(Aberto());
}

} // namespace
