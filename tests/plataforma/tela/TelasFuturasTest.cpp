// The hardest habits of screens, on small screens built from the base alone: computed rows, walks past the
// end, leaves that send elsewhere, the caret in a text of many lines.
#include "apoio/Caixas.h"
#include "apoio/Controles.h"
#include "plataforma/basico/TabelaDeLinhas.h"
#include "plataforma/tela/Arranjo.h"
#include "plataforma/tela/Caixas.h"
#include "plataforma/tela/Tela.h"

#include <gtest/gtest.h>
#include <QPlainTextEdit>
#include <QVBoxLayout>

using namespace apoio;
using plataforma::Arranjo;
using plataforma::Regras;
using plataforma::TabelaDeLinhas;
using plataforma::Tela;

namespace {

class ComTela : public testing::Test {
protected:
    static void Abre(Tela &tela, QWidget *primeiro)
    {
        tela.show();
        tela.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&tela));
        primeiro->setFocus();
    }
    plataforma::Caixas m_mensagens;
};

// A row of days and a date box that computes when it gets the focus; Enter in a count box sends Enter on.
class Serie final : public Tela {
public:
    explicit Serie(plataforma::Mensagens &mensagens) : Tela(QStringLiteral("Serie"), mensagens)
    {
        auto *caixa = new QVBoxLayout(this);
        parcelas = new QLineEdit;
        parcelas->setObjectName("parcelas");
        caixa->addWidget(parcelas);
        for (int i = 0; i < 25; ++i) {
            text1.Poe(i, new QLineEdit);
            caixa->addWidget(text1(i));
            Regras regras;
            regras.enter = [this, i] { Caminha(i >= 1 && i <= 12 ? text1(13) : text1(i + 1)); };
            if (i >= 13)
                regras.chega = [this] { ++calculos; };
            regras.deixa = [this, i] {
                if (i < 1 || i > 12 || !text1(i)->text().isEmpty())
                    return true;
                MoveFoco(text1(13));
                return true;
            };
            Registra(text1(i), regras);
        }
        Regras regras;
        regras.enter = [this] {
            MoveFoco(text1(2));
            EnviaEnter(text1(2));
        };
        Registra(parcelas, regras);
    }
    Arranjo<QLineEdit> text1{QStringLiteral("Text1")};
    QLineEdit *parcelas = nullptr;
    int calculos = 0;
};

class TelasFuturas : public ComTela {};

TEST_F(TelasFuturas, EnterSentToAnotherBoxReachesTheDatesAndComputesOnce)
{
    Serie tela(m_mensagens);
    Abre(tela, tela.parcelas);
    tela.text1(2)->setText("30");
    Tecla(tela, Qt::Key_Return);
    EXPECT_EQ(Foco(tela), "Text1(13)");
    EXPECT_EQ(tela.calculos, 1);
}

TEST_F(TelasFuturas, LeavingAnEmptyRowSendsToTheDatesWhereverTheTabWent)
{
    Serie tela(m_mensagens);
    Abre(tela, tela.text1(3));
    Tecla(tela, Qt::Key_Tab);
    EXPECT_EQ(Foco(tela), "Text1(13)");
    EXPECT_EQ(tela.calculos, 1);
}

// Eight boxes whose Enter goes to the next one: from the last it meets a gap.
TEST_F(TelasFuturas, EnterPastTheLastBoxIsToldAndTheScreenGoesOn)
{
    Tela tela(QStringLiteral("Filtro"), m_mensagens);
    auto *caixa = new QVBoxLayout(&tela);
    Arranjo<QLineEdit> text1(QStringLiteral("Text1"));
    for (int i = 0; i < 8; ++i) {
        text1.Poe(i, new QLineEdit);
        caixa->addWidget(text1(i));
        Regras regras;
        regras.chega = [&text1, i] { text1(i)->clear(); };
        regras.enter = [&tela, &text1, i] { tela.Caminha(text1(i + 1)); };
        tela.Registra(text1(i), regras);
    }
    Abre(tela, text1(7));
    Caixas caixas;
    Tecla(tela, Qt::Key_Return);
    ASSERT_EQ(caixas.Quantas(), 1U);
    EXPECT_TRUE(caixas.Ultima().texto.startsWith("Ocorreu erro 9!")) << caixas.Ultima().texto.toStdString();
    EXPECT_EQ(Foco(tela), "Text1(7)");
    Digita(tela, "x");
    EXPECT_EQ(text1(7)->text(), "x");
}

TEST_F(TelasFuturas, LeaveThatEnablesTheFirstBoxAndGoesThere)
{
    Tela tela(QStringLiteral("Script"), m_mensagens);
    auto *caixa = new QVBoxLayout(&tela);
    Arranjo<QLineEdit> text1(QStringLiteral("Text1"));
    for (int i = 0; i < 3; ++i) {
        text1.Poe(i, new QLineEdit);
        caixa->addWidget(text1(i));
        Regras regras;
        regras.deixa = [&tela, &text1, i] {
            if (text1(i)->text().isEmpty()) {
                text1(0)->setEnabled(true);
                tela.MoveFoco(text1(0));
            }
            return true;
        };
        tela.Registra(text1(i), regras);
    }
    text1(0)->setEnabled(false);
    Abre(tela, text1(1));
    Tecla(tela, Qt::Key_Tab);
    EXPECT_TRUE(text1(0)->isEnabled());
    EXPECT_EQ(Foco(tela), "Text1(0)");
}

TEST_F(TelasFuturas, CaretOfATextOfManyLinesIsFoundByTheLineTable)
{
    Tela tela(QStringLiteral("CmpCopia"), m_mensagens);
    auto *caixa = new QVBoxLayout(&tela);
    auto *copia = new QPlainTextEdit;
    copia->setLineWrapMode(QPlainTextEdit::NoWrap);
    caixa->addWidget(copia);
    int cliques = 0;
    Regras regras;
    regras.clique = [&cliques] { ++cliques; };
    tela.Registra(copia, regras);
    copia->setPlainText("primeira\nsegunda\n\nquarta");
    Abre(tela, copia);
    Tecla(tela, Qt::Key_Down);
    Tecla(tela, Qt::Key_Right);
    const TabelaDeLinhas tabela(copia->toPlainText());
    const qsizetype caret = tabela.DaCaixa(copia->textCursor().position());
    EXPECT_EQ(tabela.LineFromChar(caret), 1);
    EXPECT_EQ(caret - tabela.LineIndex(1), 1);
    QTest::mouseClick(copia->viewport(), Qt::LeftButton);
    EXPECT_EQ(cliques, 1) << "a click in the text reaches the rule of the box";
}

struct CasoLinha {
    std::string nome;
    QString texto;
    qsizetype linhas;
    qsizetype posicao, linha, inicio, tamanho;
};
void PrintTo(const CasoLinha &caso, std::ostream *os)
{
    *os << caso.nome;
}
class TabelaDeLinhasTest : public testing::TestWithParam<CasoLinha> {};
TEST_P(TabelaDeLinhasTest, AnswersAsTheBoxDoes)
{
    const CasoLinha &caso = GetParam();
    const TabelaDeLinhas tabela(caso.texto);
    EXPECT_EQ(tabela.LineCount(), caso.linhas);
    EXPECT_EQ(tabela.LineFromChar(caso.posicao), caso.linha);
    EXPECT_EQ(tabela.LineIndex(caso.linha), caso.inicio);
    EXPECT_EQ(tabela.LineLength(caso.posicao), caso.tamanho);
}
INSTANTIATE_TEST_SUITE_P(Linhas, TabelaDeLinhasTest,
                         testing::Values(CasoLinha{"EmptyTextHasOneLine", "", 1, 0, 0, 0, 0},
                                         CasoLinha{"FirstLine", "abc\r\nde", 2, 2, 0, 0, 3},
                                         CasoLinha{"BreakBelongsToItsLine", "abc\r\nde", 2, 4, 0, 0, 3},
                                         CasoLinha{"SecondLine", "abc\r\nde", 2, 5, 1, 5, 2},
                                         CasoLinha{"BehindTheEndIsTheLastLine", "abc\r\nde", 2, 99, 1, 5, 2},
                                         CasoLinha{"LineFeedAloneCountsAsTwo", "a\nb", 2, 3, 1, 3, 1},
                                         CasoLinha{"EmptyLineBetween", "a\r\n\r\nb", 3, 3, 1, 3, 0},
                                         CasoLinha{"LastLineEmpty", "a\r\n", 2, 3, 1, 3, 0}),
                         [](const auto &caso) { return caso.param.nome; });

TEST(TabelaDeLinhas, NoSuchLine)
{
    EXPECT_EQ(TabelaDeLinhas("a").LineIndex(1), -1);
    EXPECT_EQ(TabelaDeLinhas("a").LineIndex(-1), -1);
}

TEST(TabelaDeLinhas, PositionInTheBoxCountsABreakOnce)
{
    const TabelaDeLinhas tabela("ab\ncd\nef");
    EXPECT_EQ(tabela.DaCaixa(0), 0);
    EXPECT_EQ(tabela.DaCaixa(2), 2);
    EXPECT_EQ(tabela.DaCaixa(3), 4);
    EXPECT_EQ(tabela.DaCaixa(6), 8);
    EXPECT_EQ(tabela.DaCaixa(8), 10);
}

} // namespace
