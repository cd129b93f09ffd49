// Message boxes and the wait state.
#include "apoio/Caixas.h"
#include "apoio/Controles.h"
#include "plataforma/tela/Caixas.h"
#include "plataforma/tela/Tela.h"

#include <gtest/gtest.h>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

using plataforma::Botoes;
using plataforma::Icone;
using plataforma::Resposta;

namespace {

struct CasoIcone {
    std::string nome;
    Icone icone;
    QMessageBox::Icon qt;
};
void PrintTo(const CasoIcone &caso, std::ostream *os)
{
    *os << caso.nome;
}
class IconeTest : public testing::TestWithParam<CasoIcone> {};
TEST_P(IconeTest, IsTheOneOfTheBox)
{
    apoio::Caixas caixas;
    plataforma::Caixas mensagens;
    mensagens.MsgBox("t", Botoes::Ok, GetParam().icone, "x");
    ASSERT_EQ(caixas.Quantas(), 1U);
    EXPECT_EQ(caixas.Ultima().icone, GetParam().qt);
}
INSTANTIATE_TEST_SUITE_P(Icones, IconeTest,
                         testing::Values(CasoIcone{"None", Icone::Nenhum, QMessageBox::NoIcon},
                                         CasoIcone{"Information", Icone::Informacao,
                                                   QMessageBox::Information},
                                         CasoIcone{"Exclamation", Icone::Exclamacao, QMessageBox::Warning},
                                         CasoIcone{"Stop", Icone::Pare, QMessageBox::Critical},
                                         CasoIcone{"Question", Icone::Pergunta, QMessageBox::Question}),
                         [](const auto &caso) { return caso.param.nome; });

struct CasoBotao {
    std::string nome;
    Botoes botoes;
    QMessageBox::StandardButton premido;
    Resposta resposta;
    QMessageBox::StandardButton padrao;
};
void PrintTo(const CasoBotao &caso, std::ostream *os)
{
    *os << caso.nome;
}
class BotaoTest : public testing::TestWithParam<CasoBotao> {};
TEST_P(BotaoTest, GivesItsAnswerAndTheFirstIsTheDefault)
{
    apoio::Caixas caixas;
    plataforma::Caixas mensagens;
    caixas.Responde(GetParam().premido);
    EXPECT_EQ(mensagens.MsgBox("t", GetParam().botoes, Icone::Nenhum, "x"), GetParam().resposta);
    EXPECT_EQ(caixas.Ultima().padrao, GetParam().padrao);
}
INSTANTIATE_TEST_SUITE_P(
    Botoes, BotaoTest,
    testing::Values(CasoBotao{"Ok", Botoes::Ok, QMessageBox::Ok, Resposta::Ok, QMessageBox::Ok},
                    CasoBotao{"OkOfTwo", Botoes::OkCancelar, QMessageBox::Ok, Resposta::Ok, QMessageBox::Ok},
                    CasoBotao{"Cancel", Botoes::OkCancelar, QMessageBox::Cancel, Resposta::Cancelar,
                              QMessageBox::Ok},
                    CasoBotao{"Yes", Botoes::SimNao, QMessageBox::Yes, Resposta::Sim, QMessageBox::Yes},
                    CasoBotao{"No", Botoes::SimNao, QMessageBox::No, Resposta::Nao, QMessageBox::Yes}),
    [](const auto &caso) { return caso.param.nome; });

struct CasoEsc {
    std::string nome;
    Botoes botoes;
    Resposta resposta;
};
void PrintTo(const CasoEsc &caso, std::ostream *os)
{
    *os << caso.nome;
}
class EscTest : public testing::TestWithParam<CasoEsc> {};
TEST_P(EscTest, IsTheRefusingAnswer)
{
    apoio::Caixas caixas;
    plataforma::Caixas mensagens;
    caixas.AoAbrir([](QMessageBox &caixa) { QTest::keyClick(&caixa, Qt::Key_Escape); });
    EXPECT_EQ(mensagens.MsgBox("t", GetParam().botoes, Icone::Nenhum, "x"), GetParam().resposta);
}
INSTANTIATE_TEST_SUITE_P(Esc, EscTest,
                         testing::Values(CasoEsc{"OneButton", Botoes::Ok, Resposta::Ok},
                                         CasoEsc{"OkCancel", Botoes::OkCancelar, Resposta::Cancelar},
                                         CasoEsc{"YesNo", Botoes::SimNao, Resposta::Nao}),
                         [](const auto &caso) { return caso.param.nome; });

TEST(Caixas, TextIsPlainAndEveryBreakIsOneLine)
{
    apoio::Caixas caixas;
    plataforma::Caixas mensagens;
    mensagens.MsgBox("<b>um</b>\rdois\r\ntres\nquatro", Botoes::Ok, Icone::Nenhum, "x");
    EXPECT_EQ(caixas.Ultima().texto, "<b>um</b>\ndois\ntres\nquatro");
}

TEST(Caixas, DefaultTitleIsTheProgram)
{
    apoio::Caixas caixas;
    plataforma::Caixas caixa;
    plataforma::Mensagens &mensagens = caixa;
    mensagens.MsgBox("t");
    EXPECT_EQ(caixas.Ultima().titulo, "QX70 MIRA - Document Printer");
}

TEST(Caixas, StandardButtonsSpeakPortuguese)
{
    apoio::Caixas caixas;
    plataforma::Caixas mensagens;
    QStringList textos;
    caixas.AoAbrir([&](QMessageBox &caixa) {
        for (const auto *botao : caixa.buttons())
            textos << botao->text().remove('&');
    });
    mensagens.MsgBox("t", Botoes::SimNao, Icone::Nenhum, "x");
    EXPECT_EQ(textos, QStringList({"Sim", QString::fromUtf8("Não")}));
}

TEST(Caixas, KeyHeldFromBeforeAnswersNothing)
{
    apoio::Caixas caixas;
    plataforma::Caixas mensagens;
    bool aberta = false;
    caixas.AoAbrir([&aberta](QMessageBox &caixa) {
        QKeyEvent repetida(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
        QCoreApplication::sendEvent(caixa.defaultButton(), &repetida);
        QCoreApplication::sendEvent(&caixa, &repetida);
        aberta = caixa.isVisible();
    });
    caixas.Responde(QMessageBox::Cancel);
    EXPECT_EQ(mensagens.MsgBox("t", Botoes::OkCancelar, Icone::Nenhum, "x"), Resposta::Cancelar);
    EXPECT_TRUE(aberta);
}

// No agreement comes out of a box that nobody answered.
TEST(Caixas, OneTakenAwayIsCancelled)
{
    apoio::Caixas caixas;
    plataforma::Caixas mensagens;
    caixas.AoAbrir([](QMessageBox &caixa) { caixa.hide(); });
    EXPECT_EQ(mensagens.MsgBox("t", Botoes::OkCancelar, Icone::Nenhum, "x"), Resposta::Cancelar);
}

struct CasoLetra {
    std::string nome;
    Qt::Key tecla;
    Resposta resposta;
};
void PrintTo(const CasoLetra &caso, std::ostream *os)
{
    *os << caso.nome;
}
class LetraTest : public testing::TestWithParam<CasoLetra> {};
TEST_P(LetraTest, AnswersAloneFromTheFocusedButtonAndFromTheBox)
{
    for (const bool noBotao : {true, false}) {
        apoio::Caixas caixas;
        plataforma::Caixas mensagens;
        caixas.AoAbrir([&](QMessageBox &caixa) {
            QWidget *alvo = noBotao ? static_cast<QWidget *>(caixa.defaultButton()) : &caixa;
            QKeyEvent letra(QEvent::KeyPress, GetParam().tecla, Qt::NoModifier);
            QCoreApplication::sendEvent(alvo, &letra);
        });
        caixas.Responde(GetParam().resposta == Resposta::Sim ? QMessageBox::No : QMessageBox::Yes);
        EXPECT_EQ(mensagens.MsgBox("t", Botoes::SimNao, Icone::Pergunta, "x"), GetParam().resposta);
    }
}
INSTANTIATE_TEST_SUITE_P(Letras, LetraTest,
                         testing::Values(CasoLetra{"Sim", Qt::Key_S, Resposta::Sim},
                                         CasoLetra{"Nao", Qt::Key_N, Resposta::Nao}),
                         [](const auto &caso) { return caso.param.nome; });

TEST(OcupadoDaTela, NoTickRunsWhereNobodyCouldAnswerItsBox)
{
    QTimer tique;
    int vezes = 0;
    QObject::connect(&tique, &QTimer::timeout, &tique, [&vezes] { ++vezes; });
    tique.start(0);
    plataforma::OcupadoDaTela ocupado;
    ocupado.Comeca();
    ocupado.Termina();
    EXPECT_EQ(vezes, 0);
    EXPECT_TRUE(QTest::qWaitFor([&vezes] { return vezes > 0; })) << "it comes again";
}

TEST(Caixas, StandOverAScreenAndNeverOverASplash)
{
    plataforma::Caixas mensagens;
    plataforma::Tela tela(QStringLiteral("Prova"), mensagens);
    tela.show();
    QWidget abertura(&tela, Qt::Dialog | Qt::WindowDoesNotAcceptFocus);
    abertura.show();
    abertura.activateWindow();
    QCoreApplication::processEvents();
    apoio::Caixas caixas;
    QWidget *pai = nullptr;
    caixas.AoAbrir([&pai](QMessageBox &caixa) { pai = caixa.parentWidget(); });
    mensagens.MsgBox("t", Botoes::Ok, Icone::Nenhum, "x");
    EXPECT_EQ(pai, &tela);
}

TEST(OcupadoDaTela, KeysPressedDuringTheCallAreThrownAway)
{
    QLineEdit campo;
    campo.show();
    campo.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&campo));
    plataforma::OcupadoDaTela ocupado;
    ocupado.Comeca();
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    ocupado.Comeca();
    QCoreApplication::postEvent(&campo, new QKeyEvent(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, "x"));
    ocupado.Termina();
    EXPECT_NE(QGuiApplication::overrideCursor(), nullptr) << "only the outermost end acts";
    ocupado.Termina();
    QCoreApplication::processEvents();
    EXPECT_EQ(campo.text(), QString());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    QTest::keyClick(&campo, Qt::Key_Y);
    EXPECT_EQ(campo.text(), "y");
}

QProgressDialog *Barra()
{
    for (QWidget *janela : QApplication::topLevelWidgets())
        if (auto *barra = qobject_cast<QProgressDialog *>(janela))
            return barra;
    return nullptr;
}

// Works for as long as it takes, and the machine's own clock tells how long that was.
TEST(OcupadoDaTela, ABarStandsFromTheSecondSecondOnAndGoesAtTheEnd)
{
    plataforma::OcupadoDaTela ocupado;
    QElapsedTimer relogio;
    relogio.start();
    ocupado.Comeca();
    const QDeadlineTimer limite(30000);
    while (!Barra() && !limite.hasExpired())
        ocupado.Andamento("Trabalhando...", 30, 60);
    ASSERT_NE(Barra(), nullptr);
    EXPECT_GE(relogio.elapsed(), 1000);
    EXPECT_TRUE(Barra()->isVisible());
    EXPECT_EQ(Barra()->labelText(), "Trabalhando...");
    EXPECT_EQ(Barra()->windowTitle(), "QX70 MIRA - Document Printer");
    EXPECT_EQ(Barra()->value(), 50);
    while (Barra()->value() == 50 && !limite.hasExpired())
        ocupado.Andamento("Trabalhando...", 45, 60);
    EXPECT_EQ(Barra()->value(), 75);
    ocupado.Termina();
    EXPECT_EQ(Barra(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(OcupadoDaTela, ShortWorkShowsNoBar)
{
    plataforma::OcupadoDaTela ocupado;
    QElapsedTimer relogio;
    relogio.start();
    ocupado.Comeca();
    ocupado.Andamento("Trabalhando...", 1, 2);
    const bool mostrada = Barra() != nullptr;
    const bool curto = relogio.elapsed() < 1000;
    ocupado.Termina();
    EXPECT_TRUE(!curto || !mostrada);
}

} // namespace
