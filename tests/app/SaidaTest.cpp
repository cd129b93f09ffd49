// Leaving the main screen, and fields handed over to it by a second copy.
#include "ComMain.h"

#include "app/ajuda/Ajuda.h"

#include <QCheckBox>
#include <QSignalSpy>

using namespace apoio;

namespace {

// --- leaving ---

struct CasoSaida {
    std::string nome;
    bool peloMenu;
    bool marcada;
};
void PrintTo(const CasoSaida &caso, std::ostream *os)
{
    *os << caso.nome;
}
class SaidaTest : public teste::ComMain, public testing::WithParamInterface<CasoSaida> {};
TEST_P(SaidaTest, WritesTheBoxAndNothingElse)
{
    const QString antes = QString("; do escritorio\n[Sistema]\nInRel=%1\nport=COM1\nx=1\n[FrenteInfo]\n"
                                  "Cidade=Santos\n[Opcoes]\nPeriodoRelExc=15\n")
                              .arg(GetParam().marcada ? "0" : "1");
    m_escritorio.GravaIni(antes);
    Inicia({"237", "10,00", "Ana", "Recife"});
    Controle<QCheckBox>(Tela(), "CheckBox")->setChecked(GetParam().marcada);
    Dados().PeriodoRelExc = 99;
    ASSERT_EQ(m_escritorio.LeIni(), QString(antes).replace("\n", "\r\n")) << "nothing is written before";
    QSignalSpy encerrou(&Tela(), &app::Main::Encerrou);
    if (GetParam().peloMenu)
        Escolhe("Sair");
    else
        Tela().close();
    EXPECT_EQ(encerrou.count(), 1);
    EXPECT_EQ(m_caixas.Quantas(), 0U);
    const QString depois = QString(antes).replace(GetParam().marcada ? "InRel=0" : "InRel=1",
                                                  GetParam().marcada ? "InRel=1" : "InRel=0");
    EXPECT_EQ(m_escritorio.LeIni(), QString(depois).replace("\n", "\r\n"));
}
INSTANTIATE_TEST_SUITE_P(Saidas, SaidaTest,
                         testing::Values(CasoSaida{"BySairTicked", true, true},
                                         CasoSaida{"BySairNotTicked", true, false},
                                         CasoSaida{"ByClosingTicked", false, true},
                                         CasoSaida{"ByClosingNotTicked", false, false}),
                         [](const auto &caso) { return caso.param.nome; });

using InRelTest = teste::ComMain;
TEST_F(InRelTest, ComesBackAtTheNextStart)
{
    Inicia();
    Controle<QCheckBox>(Tela(), "CheckBox")->setChecked(false);
    Escolhe("Sair");
    Inicia();
    EXPECT_FALSE(Controle<QCheckBox>(Tela(), "CheckBox")->isChecked());
}

TEST_F(InRelTest, ScreenThatIsOpenDoesNotHoldTheEnd)
{
    Inicia();
    Escolhe("Topicos");
    QSignalSpy encerrou(&Tela(), &app::Main::Encerrou);
    Escolhe("Sair");
    EXPECT_EQ(encerrou.count(), 1);
    EXPECT_EQ(m_escritorio.Chave("Sistema", "InRel"), "1");
}

// --- hand-over ---

struct CasoRecebe {
    std::string nome;
    plataforma::Campos campos;
    const char *campo;
    QString depois;
    std::size_t caixas;
};
void PrintTo(const CasoRecebe &caso, std::ostream *os)
{
    *os << caso.nome;
}
class RecebeTest : public teste::ComMain, public testing::WithParamInterface<CasoRecebe> {};
TEST_P(RecebeTest, SetsTheFieldUnderItsChangeRule)
{
    Inicia();
    Tela().Recebe(GetParam().campos);
    EXPECT_EQ(Texto(Tela(), GetParam().campo), GetParam().depois);
    ASSERT_EQ(m_caixas.Quantas(), GetParam().caixas);
    if (GetParam().caixas > 0) {
        EXPECT_EQ(m_caixas.Ultima().texto, QString::fromUtf8("Tamanho Máximo deste campo..."));
        EXPECT_EQ(m_caixas.Ultima().titulo, "Erro");
        EXPECT_EQ(m_caixas.Ultima().icone, QMessageBox::Warning);
    }
}
INSTANTIATE_TEST_SUITE_P(
    Campos, RecebeTest,
    testing::Values(
        CasoRecebe{"BankAsItStands", {{0, "1"}}, "Text1(0)", "1", 0},
        CasoRecebe{"BankCutToThree", {{0, "3411"}}, "Text1(0)", "341", 1},
        CasoRecebe{"ValueIsNotChecked", {{1, "abc"}}, "Text1(1)", "abc", 0},
        CasoRecebe{"ValueCutToSixteen", {{1, QString(17, '9')}}, "Text1(1)", QString(16, '9'), 1},
        CasoRecebe{"PayeeOfFortySeven", {{2, QString(47, 'a')}}, "Text1(2)", QString(47, 'a'), 0},
        CasoRecebe{"PayeeCutToFortySeven", {{2, QString(60, 'a')}}, "Text1(2)", QString(47, 'a'), 1},
        CasoRecebe{"CityOfTwenty", {{3, QString(20, 'c')}}, "Text1(3)", QString(20, 'c'), 0},
        CasoRecebe{"CityOfTwentyOneCutToFifteen", {{3, QString(21, 'c')}}, "Text1(3)", QString(15, 'c'), 1},
        CasoRecebe{"DateHasNoRule", {{4, "010299xxxxxxxxxxxxx"}}, "Text1(4)", "010299xxxxxxxxxxxxx", 0},
        CasoRecebe{"NumberCutToTwelve", {{6, "1234567890123"}}, "Text1(6)", "123456789012", 1},
        CasoRecebe{"LaterOfTwoHolds", {{1, "1,00"}, {1, "2,00"}}, "Text1(1)", "2,00", 0}),
    [](const auto &caso) { return caso.param.nome; });

class EntregaTest : public teste::ComMain {
protected:
    QString Campos()
    {
        QStringList textos;
        for (const auto *campo : Tela().findChildren<QLineEdit *>())
            textos << campo->objectName() + "=" + campo->text();
        return textos.join('|');
    }
};

TEST_F(EntregaTest, FieldsThatAreNotThereAreIgnored)
{
    Inicia({"237", "10,00"});
    const QString antes = Campos();
    Tela().Recebe({{5, "x"}, {7, "x"}, {8, "x"}, {200, "x"}, {-1, "x"}});
    EXPECT_EQ(Campos(), antes);
    EXPECT_EQ(m_caixas.Quantas(), 0U);
}

TEST_F(EntregaTest, OtherFieldsStay)
{
    Inicia({"237", "10,00", "Ana"});
    Tela().Recebe({{1, "20,00"}, {6, "9"}});
    EXPECT_EQ(Texto(Tela(), "Text1(0)"), "237");
    EXPECT_EQ(Texto(Tela(), "Text1(1)"), "20,00");
    EXPECT_EQ(Texto(Tela(), "Text1(2)"), "Ana");
    EXPECT_EQ(Texto(Tela(), "Text1(6)"), "9");
}

TEST_F(EntregaTest, WithoutFieldsTheScreenIsMerelyBroughtUp)
{
    Inicia({"237", "10,00"});
    const QString antes = Campos();
    Tela().showMinimized();
    QApplication::processEvents();
    ASSERT_TRUE(Tela().isMinimized());
    Tela().Recebe({});
    EXPECT_FALSE(Tela().isMinimized());
    EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &Tela(); }));
    EXPECT_EQ(Campos(), antes);
}

TEST_F(EntregaTest, ComesToTheFrontOfAnotherScreen)
{
    Inicia();
    TerminaAbertura();
    Escolhe("Topicos");
    auto *ajuda = Tela().findChild<app::Ajuda *>();
    ASSERT_TRUE(QTest::qWaitFor([ajuda] { return QApplication::activeWindow() == ajuda; }));
    Tela().Recebe({{1, "20,00"}});
    EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &Tela(); }));
    EXPECT_EQ(Texto(Tela(), "Text1(1)"), "20,00");
}

TEST_F(EntregaTest, FocusStaysWhereTheOperatorHadIt)
{
    Inicia();
    Ativa();
    ClicaEm(Tela(), "Text2(3)");
    Tela().Recebe({{1, "20,00"}});
    EXPECT_EQ(Foco(Tela()), "Text2(3)");
}

TEST_F(EntregaTest, ArrivesWhileABoxStands)
{
    Inicia();
    m_caixas.AoAbrir([this](QMessageBox &caixa) {
        Tela().Recebe({{0, "341"}, {1, "20,00"}});
        EXPECT_TRUE(caixa.isVisible());
    });
    Escolhe("Imp_Cheque");
    ASSERT_EQ(m_caixas.Quantas(), 1U);
    EXPECT_EQ(m_caixas.Ultima().texto, QString::fromUtf8("O número do banco não pode ser vazio"));
    EXPECT_EQ(Texto(Tela(), "Text1(0)"), "341");
    EXPECT_EQ(Texto(Tela(), "Text1(1)"), "20,00");
}

TEST_F(EntregaTest, FieldTooLongWhileABoxStandsIsToldOverIt)
{
    Inicia();
    m_caixas.AoAbrir([this](QMessageBox &) { Tela().Recebe({{2, QString(60, 'a')}}); });
    Escolhe("Imp_Cheque");
    ASSERT_EQ(m_caixas.Quantas(), 2U);
    EXPECT_EQ(m_caixas.Ultima().titulo, "Erro");
    EXPECT_EQ(Texto(Tela(), "Text1(2)"), QString(47, 'a'));
}

TEST_F(EntregaTest, NothingIsPrintedByAHandOver)
{
    Inicia();
    Tela().Recebe({{0, "001"}, {1, "10,00"}, {2, "Ana"}, {3, "Recife"}, {4, "05/03/99"}, {6, "7"}});
    QApplication::processEvents();
    EXPECT_TRUE(Chamadas().isEmpty());
    EXPECT_EQ(m_caixas.Quantas(), 0U);
}

} // namespace
