// The screen that programs the places of the extra fields: what it shows, saves and refuses, and its closing.
#include "ComCmpExtra.h"
#include "Ordem.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <QScreen>

using namespace teste;

namespace {

using CmpExtraTest = ComCmpExtra;

// --- what it shows ---

TEST_F(CmpExtraTest, HasItsNameCaptionAndPlace)
{
    AbreCom("");
    EXPECT_EQ(Extra().objectName(), "CmpExtra");
    EXPECT_EQ(Extra().windowTitle(), "Programa Campo");
    EXPECT_TRUE(Extra().isWindow());
    EXPECT_FALSE(Extra().isModal());
    const QPoint meio = Extra().screen()->availableGeometry().center();
    EXPECT_LE((Extra().frameGeometry().center() - meio).manhattanLength(), 4) << "in the middle";
}

TEST_F(CmpExtraTest, ControlsHaveTheirCaptions)
{
    AbreCom("");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(Opcao(i)->text(), QString("Campo %1").arg(i + 1));
    EXPECT_EQ(apoio::Controle<QPushButton>(Extra(), "BtnCmd(0)")->text(), "Salvar");
    EXPECT_EQ(apoio::Controle<QPushButton>(Extra(), "BtnCmd(2)")->text(), "Fechar");
    EXPECT_EQ(Extra().findChild<QWidget *>("BtnCmd(1)"), nullptr) << "a gap of the array, on purpose";
    QStringList rotulos;
    for (const auto *rotulo : Extra().findChildren<QLabel *>())
        rotulos << rotulo->text();
    EXPECT_EQ(rotulos.join(' '), "Linha: Coluna:");
    EXPECT_EQ(apoio::Controle<QLineEdit>(Extra(), "PosText(0)")->accessibleName(), "Linha:");
    EXPECT_EQ(apoio::Controle<QLineEdit>(Extra(), "PosText(1)")->accessibleName(), "Coluna:");
}

TEST_F(CmpExtraTest, FramesHoldTheirControls)
{
    AbreCom("");
    QMap<QString, QGroupBox *> quadros;
    for (auto *quadro : Extra().findChildren<QGroupBox *>())
        quadros[quadro->title()] = quadro;
    ASSERT_EQ(quadros.keys().join('|'), "Número|Posição:");
    EXPECT_EQ(quadros["Número"]->findChildren<QRadioButton *>().size(), 3);
    EXPECT_EQ(quadros["Posição:"]->findChildren<QLineEdit *>().size(), 2);
}

TEST_F(CmpExtraTest, OpensWithNothingChosenAndEmptyBoxes)
{
    AbreCom("Campo00Lin=5\nCampo00Col=12\n");
    EXPECT_EQ(Ligadas(), "");
    EXPECT_EQ(Posicao(), ",");
}

TEST_F(CmpExtraTest, EachFieldShowsItsOwnPlace)
{
    AbreCom("Campo00Lin=1\nCampo00Col=10\nCampo01Lin=2\nCampo01Col=20\nCampo02Lin=3\nCampo02Col=30\n");
    std::string vistas;
    for (const int i : {1, 0, 2, 1}) {
        Escolhe(i);
        vistas += Ligadas() + ':' + Posicao() + ' ';
    }
    EXPECT_EQ(vistas, "1:2,20 0:1,10 2:3,30 1:2,20 ");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(CmpExtraTest, AnArrowChoosesTheNextField)
{
    AbreCom("Campo00Lin=1\nCampo00Col=10\nCampo01Lin=2\nCampo01Col=20\n");
    Escolhe(0);
    apoio::Tecla(Extra(), Qt::Key_Down);
    EXPECT_EQ(Ligadas() + ':' + Posicao(), "1:2,20");
}

struct CasoMostrado {
    std::string nome;
    QString chaves;
    std::string posicao;
};
void PrintTo(const CasoMostrado &c, std::ostream *os)
{
    *os << c.nome;
}
class CampoEscolhido : public ComCmpExtra, public testing::WithParamInterface<CasoMostrado> {};
TEST_P(CampoEscolhido, ShowsBothNumbersOrNeither)
{
    AbreCom(GetParam().chaves + "Campo01Lin=9\nCampo01Col=90\n");
    Escolhe(1);
    ASSERT_EQ(Posicao(), "9,90");
    Escolhe(0);
    EXPECT_EQ(Posicao(), GetParam().posicao);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Chaves, CampoEscolhido,
                         testing::Values(CasoMostrado{"NeverProgrammed", "", ","},
                                         CasoMostrado{"Both", "Campo00Lin=20\nCampo00Col=120\n", "20,120"},
                                         CasoMostrado{"NoLine", "Campo00Col=12\n", ","},
                                         CasoMostrado{"NoColumn", "Campo00Lin=5\n", ","},
                                         CasoMostrado{"LineZero", "Campo00Lin=0\nCampo00Col=12\n", ","},
                                         CasoMostrado{"ColumnZero", "Campo00Lin=5\nCampo00Col=0\n", ","},
                                         CasoMostrado{"MinusTwo", "Campo00Lin=-2\nCampo00Col=-2\n", ","},
                                         CasoMostrado{"EmptyKeys", "Campo00Lin=\nCampo00Col=\n", ","},
                                         CasoMostrado{"CharacterBelowTheDigitsIsDropped",
                                                      "Campo00Lin=5-\nCampo00Col=12.\n", "5,12"},
                                         CasoMostrado{"OverTheLimitOfPrinting",
                                                      "Campo00Lin=99\nCampo00Col=999\n", "99,999"}),
                         kNomeDoCaso);

TEST_F(CmpExtraTest, AStoredLineOfThreeDigitsIsCutWhenItIsShown)
{
    AbreCom("Campo00Lin=123\nCampo00Col=7\n");
    Escolhe(0);
    EsperaCaixaDeErro("Tamanho Máximo deste campo...");
    EXPECT_EQ(Posicao(), "12,7");
}

TEST_F(CmpExtraTest, AStoredColumnOfFourDigitsIsCutWhenItIsShown)
{
    AbreCom("Campo01Lin=7\nCampo01Col=1234\n");
    Escolhe(1);
    EsperaCaixaDeErro("Tamanho Máximo deste campo...");
    EXPECT_EQ(Posicao(), "7,123");
    EXPECT_EQ(Chaves(), "none none 7 1234 none none") << "what is stored stays";
}

// --- saving ---

struct CasoSalvo {
    std::string nome;
    QString linha;
    QString coluna;
    bool salva;
};
void PrintTo(const CasoSalvo &c, std::ostream *os)
{
    *os << c.linha.toStdString() << ',' << c.coluna.toStdString();
}
class Salvo : public ComCmpExtra, public testing::WithParamInterface<CasoSalvo> {};
TEST_P(Salvo, WhenBothAreFilledAndWithinTheForm)
{
    AbreCom("");
    Escolhe(1);
    const QString antes = m_escritorio.LeIni();
    Programa(GetParam().linha, GetParam().coluna);
    if (GetParam().salva) {
        EXPECT_EQ(m_caixas->Quantas(), 0U);
        EXPECT_EQ(Chaves(), "none none " + GetParam().linha.toStdString() + ' ' +
                                GetParam().coluna.toStdString() + " none none");
    } else {
        EsperaCaixaDeErro("Campo incorreto");
        EXPECT_EQ(m_escritorio.LeIni().toStdString(), antes.toStdString());
    }
    EXPECT_EQ(Posicao(), GetParam().linha.toStdString() + ',' + GetParam().coluna.toStdString());
    EXPECT_EQ(Ligadas(), "1");
    EXPECT_EQ(Abertas().size(), 1) << "it stays open";
}
INSTANTIATE_TEST_SUITE_P(
    Posicoes, Salvo,
    testing::Values(CasoSalvo{"Usual", "5", "12", true}, CasoSalvo{"Line20Column120", "20", "120", true},
                    CasoSalvo{"Line21", "21", "120", false}, CasoSalvo{"Column121", "20", "121", false},
                    CasoSalvo{"NoLine", "", "12", false}, CasoSalvo{"NoColumn", "5", "", false},
                    CasoSalvo{"Neither", "", "", false}, CasoSalvo{"BothZero", "0", "0", true},
                    CasoSalvo{"LeadingZerosStay", "05", "012", true}),
    kNomeDoCaso);

TEST_F(CmpExtraTest, SavingWithNoOptionOnGoesToTheFirstField)
{
    AbreCom("");
    Programa("7", "70");
    EXPECT_EQ(Chaves(), "7 70 none none none none");
    EXPECT_EQ(Ligadas(), "0");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(CmpExtraTest, ARefusedSaveWithNoOptionOnLeavesThemOff)
{
    AbreCom("");
    Programa("21", "70");
    EsperaCaixaDeErro("Campo incorreto");
    EXPECT_EQ(Ligadas(), "");
}

TEST_F(CmpExtraTest, EachFieldIsSavedUnderItsOwnKeys)
{
    AbreCom("");
    for (int i = 0; i < 3; ++i) {
        Escolhe(i);
        Programa(QString::number(i + 1), QString::number((i + 1) * 11));
    }
    EXPECT_EQ(Chaves(), "1 11 2 22 3 33");
    Escolhe(0);
    EXPECT_EQ(Posicao(), "1,11") << "the screen keeps what it saved";
}

TEST_F(CmpExtraTest, SavingLeavesTheOtherKeysOfTheSection)
{
    AbreCom("Campo00=texto\nValor=1,00\nCampo02Lin=3\nCampo02Col=30\n");
    Escolhe(2);
    Programa("4", "40");
    EXPECT_EQ(Chave("Campo00"), "texto");
    EXPECT_EQ(Chave("Valor"), "1,00");
    EXPECT_EQ(Chaves(), "none none none none 4 40");
}

TEST_F(CmpExtraTest, NumbersThatWereNotSavedGoWithTheNextChoice)
{
    AbreCom("Campo00Lin=1\nCampo00Col=10\n");
    Escolhe(0);
    DigitaNaPosicao(0, "9");
    Escolhe(1);
    EXPECT_EQ(Posicao(), ",");
    Escolhe(0);
    EXPECT_EQ(Posicao(), "1,10");
    EXPECT_EQ(Chaves(), "1 10 none none none none");
}

TEST_F(CmpExtraTest, EnterOnTheButtonSaves)
{
    AbreCom("");
    DigitaNaPosicao(0, "5");
    DigitaNaPosicao(1, "50");
    apoio::Controle<QPushButton>(Extra(), "BtnCmd(0)")->setFocus();
    apoio::Tecla(Extra(), Qt::Key_Return);
    EXPECT_EQ(Chaves(), "5 50 none none none none");
}

TEST_F(CmpExtraTest, AFailedWriteIsNotTold)
{
    AbreCom("");
    ASSERT_TRUE(QFile::remove(m_escritorio.Arquivo("QX70.INI")));
    ASSERT_TRUE(QDir(m_escritorio.Pasta()).mkpath("QX70.INI/cheia"));
    Programa("5", "50");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    Escolhe(1);
    Escolhe(0);
    EXPECT_EQ(Posicao(), "5,50") << "the screen has taken it all the same";
}

// --- closing and opening again ---

struct CasoFecha {
    std::string nome;
    bool esc;
};
void PrintTo(const CasoFecha &c, std::ostream *os)
{
    *os << c.nome;
}
class Fechado : public ComCmpExtra, public testing::WithParamInterface<CasoFecha> {};
TEST_P(Fechado, SavesNothingAndOpensAfresh)
{
    AbreCom("Campo00Lin=1\nCampo00Col=10\n");
    Escolhe(0);
    DigitaNaPosicao(0, "9");
    const QString antes = m_escritorio.LeIni();
    if (GetParam().esc)
        apoio::Tecla(Extra(), Qt::Key_Escape);
    else
        apoio::ClicaEm(Extra(), "BtnCmd(2)");
    EXPECT_EQ(Abertas().size(), 0);
    EXPECT_EQ(m_escritorio.LeIni().toStdString(), antes.toStdString());
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    AbreExtra();
    EXPECT_EQ(Ligadas(), "");
    EXPECT_EQ(Posicao(), ",");
    Escolhe(0);
    EXPECT_EQ(Posicao(), "1,10");
}
INSTANTIATE_TEST_SUITE_P(Modos, Fechado,
                         testing::Values(CasoFecha{"ByItsButton", false}, CasoFecha{"ByEsc", true}),
                         kNomeDoCaso);

TEST_F(CmpExtraTest, OpeningAgainReadsTheSettingsAgain)
{
    AbreCom("");
    apoio::ClicaEm(Extra(), "BtnCmd(2)");
    Ini("[FrenteInfo]\nCampo02Lin=8\nCampo02Col=80\n");
    AbreExtra();
    Escolhe(2);
    EXPECT_EQ(Posicao(), "8,80");
}

TEST_F(CmpExtraTest, ASecondOpeningRaisesTheOneThatIsOpen)
{
    AbreCom("");
    DigitaNaPosicao(0, "9");
    const QPointer<QWidget> primeira = &Extra();
    Ativa();
    Tela().findChild<QAction *>("CpoX")->trigger();
    ASSERT_EQ(Abertas().size(), 1);
    EXPECT_EQ(&Extra(), primeira);
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == primeira; }));
    EXPECT_EQ(Posicao(), "9,");
}

TEST_F(CmpExtraTest, TabWalksInReadingOrder)
{
    AbreCom("");
    Escolhe(0);
    ASSERT_EQ(apoio::Foco(Extra()), "CmdNumCampo(0)");
    const QStringList volta = VoltaDoTab(Extra());
    EXPECT_EQ(volta.join(' '), "CmdNumCampo(0) PosText(0) PosText(1) BtnCmd(0) BtnCmd(2)");
    EXPECT_EQ(volta, APartirDe(OrdemDeLeitura(Extra()), "CmdNumCampo(0)"))
        << "read: " << OrdemDeLeitura(Extra()).join(' ').toStdString();
}

TEST_F(CmpExtraTest, MainGoesOnBesideIt)
{
    AbreCom("");
    Ativa();
    DigitaEm("TxtCpo(0)", "a");
    EXPECT_EQ(Texto("TxtCpo(0)"), "a");
    EXPECT_EQ(Abertas().size(), 1);
}

} // namespace
