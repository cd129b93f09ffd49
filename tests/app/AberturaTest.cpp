// The splash and the timer of the main screen: its ticks, and the two pictures that take turns.
#include "ComMain.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

using namespace apoio;

namespace {

class AberturaTest : public teste::ComMain {
protected:
    QTimer *Timer1() { return Tela().findChild<QTimer *>("Timer1"); }
};

TEST_F(AberturaTest, SplashStandsWhileTheProgramStarts)
{
    QFile::remove(m_escritorio.Arquivo("QX70.MDB"));
    Monta();
    bool naAbertura = false;
    m_caixas.AoAbrir([&](QMessageBox &) { naAbertura = Janela("Sobre") != nullptr; });
    Tela().IniciaAplicacao({});
    EXPECT_EQ(m_caixas.Quantas(), 1U);
    EXPECT_TRUE(naAbertura);
    EXPECT_NE(Janela("Sobre"), nullptr) << "it waits for the timer";
}

TEST_F(AberturaTest, SplashHasNoButtonAndAsksToWait)
{
    Inicia();
    QWidget *abertura = Janela("Sobre");
    ASSERT_NE(abertura, nullptr);
    EXPECT_EQ(abertura->windowTitle(), "Sobre o QX70  Mira Document Printer   Aguarde um instante...");
    EXPECT_FALSE(Controle<QPushButton>(*abertura, "Command3D1")->isVisible());
    EXPECT_FALSE(abertura->isModal());
}

TEST_F(AberturaTest, SplashTakesNoFocus)
{
    Inicia();
    const QWidget *abertura = Janela("Sobre");
    ASSERT_NE(abertura, nullptr);
    EXPECT_TRUE(abertura->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_TRUE(abertura->windowFlags() & Qt::WindowDoesNotAcceptFocus) << "nor by a click";
}

TEST_F(AberturaTest, AboutDuringTheStartIsTheSplashItself)
{
    Inicia();
    Escolhe("Sobre_T");
    EXPECT_EQ(Tela().findChildren<QWidget *>("Sobre").size(), 1);
    Tique();
    Escolhe("Sobre_T");
    Tique();
    EXPECT_EQ(Janela("Sobre"), nullptr) << "no window without a button is left behind";
    Escolhe("Sobre_T");
    ASSERT_NE(Janela("Sobre"), nullptr);
    EXPECT_TRUE(Controle<QPushButton>(*Janela("Sobre"), "Command3D1")->isVisible());
}

TEST_F(AberturaTest, SplashGoesAtTheSecondTick)
{
    Inicia();
    Tique();
    EXPECT_NE(Janela("Sobre"), nullptr);
    Tique();
    EXPECT_EQ(Janela("Sobre"), nullptr);
    EXPECT_EQ(m_caixas.Quantas(), 0U);
}

TEST_F(AberturaTest, IntervalGrowsAtTheSecondTickAndStays)
{
    Inicia();
    ASSERT_TRUE(Timer1()->isActive());
    EXPECT_FALSE(Timer1()->isSingleShot());
    QList<int> intervalos{Timer1()->interval()};
    for (int i = 0; i < 4; ++i) {
        Tique();
        intervalos << Timer1()->interval();
    }
    EXPECT_EQ(intervalos, (QList<int>{2500, 2500, 10000, 10000, 10000}));
    EXPECT_TRUE(Timer1()->isActive());
}

// --- pictures ---

class LogoTest : public AberturaTest {
protected:
    void PoeLogo(const QString &nome, Qt::GlobalColor cor)
    {
        QImage figura(8, 8, QImage::Format_RGB32);
        figura.fill(cor);
        ASSERT_TRUE(figura.save(m_escritorio.Arquivo(nome), "BMP"));
    }
    /// Name of the colour shown; "none" while there is no picture.
    QString Mostrada()
    {
        const auto *imagem = Controle<QLabel>(Tela(), "Image1");
        const QImage figura = imagem->pixmap(Qt::ReturnByValue).toImage();
        if (figura.isNull())
            return "none";
        const QColor cor = figura.pixelColor(figura.rect().center());
        return cor == QColor(Qt::red) ? "red" : cor == QColor(Qt::blue) ? "blue" : cor.name();
    }
    QString DepoisDeTiques(int quantos)
    {
        QStringList vistas;
        for (int i = 0; i < quantos; ++i) {
            Tique();
            vistas << Mostrada();
        }
        return vistas.join(' ');
    }
};

TEST_F(LogoTest, PicturesTakeTurns)
{
    PoeLogo("QX50A.bmp", Qt::red);
    PoeLogo("kvlg01.bmp", Qt::blue);
    Inicia();
    EXPECT_EQ(DepoisDeTiques(5), "red blue red blue red");
    EXPECT_TRUE(Controle<QLabel>(Tela(), "Image1")->isVisible());
}

struct CasoLogo {
    std::string nome;
    const char *vermelha; ///< name on disk of the red picture; null: none
    const char *azul;
    const char *vistas;
};
void PrintTo(const CasoLogo &caso, std::ostream *os)
{
    *os << caso.nome;
}
class NomeDoLogoTest : public LogoTest, public testing::WithParamInterface<CasoLogo> {};
TEST_P(NomeDoLogoTest, CountsAsItStandsOnDisk)
{
    if (GetParam().vermelha)
        PoeLogo(GetParam().vermelha, Qt::red);
    if (GetParam().azul)
        PoeLogo(GetParam().azul, Qt::blue);
    Inicia();
    EXPECT_EQ(DepoisDeTiques(4), GetParam().vistas);
    EXPECT_EQ(m_caixas.Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(
    Nomes, NomeDoLogoTest,
    testing::Values(CasoLogo{"LowerCaseLetterOfTheFirstIsNeverShown", "QX50a.bmp", "kvlg01.bmp",
                             "none blue blue blue"},
                    CasoLogo{"AllLowerCaseIsNotShown", "qx50a.bmp", nullptr, "none none none none"},
                    CasoLogo{"UpperCaseOfTheSecondIsNotShown", "QX50A.bmp", "KVLG01.BMP", "red red red red"},
                    CasoLogo{"UpperCaseSuffixIsNotShown", "QX50A.BMP", "kvlg01.bmp", "none blue blue blue"},
                    CasoLogo{"FirstMissing", nullptr, "kvlg01.bmp", "none blue blue blue"},
                    CasoLogo{"SecondMissing", "QX50A.bmp", nullptr, "red red red red"},
                    CasoLogo{"BothMissing", nullptr, nullptr, "none none none none"}),
    [](const auto &caso) { return caso.param.nome; });

TEST_F(LogoTest, PictureDeletedLaterLeavesTheOneThatIsThere)
{
    PoeLogo("QX50A.bmp", Qt::red);
    PoeLogo("kvlg01.bmp", Qt::blue);
    Inicia();
    EXPECT_EQ(DepoisDeTiques(2), "red blue");
    QFile::remove(m_escritorio.Arquivo("QX50A.bmp"));
    EXPECT_EQ(DepoisDeTiques(2), "blue blue");
}

TEST_F(LogoTest, PicturesAreSoughtInTheOfficeFolderWhateverTheCurrentOne)
{
    PoeLogo("QX50A.bmp", Qt::red);
    Inicia();
    ASSERT_TRUE(QDir::setCurrent(QDir::rootPath()));
    EXPECT_EQ(DepoisDeTiques(1), "red");
}

TEST_F(LogoTest, FileThatIsNoPictureIsSilent)
{
    PoeArquivo("QX50A.bmp", "no picture");
    PoeLogo("kvlg01.bmp", Qt::blue);
    Inicia();
    EXPECT_EQ(DepoisDeTiques(3).section(' ', 1), "blue blue")
        << "the faulty one leaves the one that is there";
    EXPECT_EQ(m_caixas.Quantas(), 0U);
}

} // namespace
