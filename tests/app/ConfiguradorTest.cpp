// The first-run step and the device configuration tool: asked, started, raised, or told to be missing.
#include "ComMain.h"

#include "app/Configurador.h"

#include <QDir>
#include <QFile>

using namespace apoio;

namespace {

const QString kPergunta =
    QString::fromUtf8("Para o correto funcionamento entre a impressora e o aplicativo,\nverifique o cabo de "
                      "conexão e pressione <ok> para acertar a configuração!");
const QString kObservacao =
    QString::fromUtf8("Obs.: Caso altere a porta de comunicação, favor reiniciar aplicativo!");
const QString kNaoEncontrado = QString::fromUtf8("Aplicativo \"QX70CFG.EXE\" não encontrado!\n");
constexpr char kFerramenta[] = "QX70CFG.EXE";

class ConfiguradorTest : public teste::ComMain {
protected:
    void SetUp() override
    {
        ComMain::SetUp();
        ASSERT_TRUE(m_noCaminho.isValid());
        m_caminhoAntes = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(m_noCaminho.path()));
    }
    void TearDown() override { qputenv("PATH", m_caminhoAntes); }

    /// A tool that tells of its start by a file in the office folder.
    [[nodiscard]] QByteArray Ferramenta(const QString &marca) const
    {
        return "#!/bin/sh\n: > '" + QFile::encodeName(m_escritorio.Arquivo(marca)) + "'\n";
    }
    [[nodiscard]] bool Existe(const QString &nome) const { return QFile::exists(m_escritorio.Arquivo(nome)); }
    /// Waits for a file that another process makes.
    [[nodiscard]] bool Aparece(const QString &nome) const
    {
        return QTest::qWaitFor([&] { return Existe(nome); }, 30000);
    }
    void PoeFirstTime(const QString &valor) { m_escritorio.GravaIni("[Config]\nFirstTime=" + valor + "\n"); }
    [[nodiscard]] QString FirstTime() const { return m_escritorio.Chave("Config", "FirstTime"); }
    void ChegaAoSegundoTique()
    {
        Inicia();
        Tique();
        ASSERT_EQ(m_caixas.Quantas(), 0U) << "nothing is asked at the first tick";
        Tique();
    }

    QTemporaryDir m_noCaminho; ///< the only folder of PATH

private:
    QByteArray m_caminhoAntes;
};

// --- first run ---

TEST_F(ConfiguradorTest, FirstRunAsksAtTheSecondTick)
{
    PoeFirstTime("1");
    m_caixas.Responde(QMessageBox::Cancel);
    bool abertura = true;
    Inicia();
    m_caixas.AoAbrir([&](QMessageBox &) { abertura = Janela("Sobre") != nullptr; });
    Tique();
    Tique();
    ASSERT_EQ(m_caixas.Quantas(), 1U);
    EXPECT_EQ(m_caixas.Ultima().texto, kPergunta);
    EXPECT_EQ(m_caixas.Ultima().titulo, "QX70 MIRA - Document Printer");
    EXPECT_EQ(m_caixas.Ultima().botoes, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(m_caixas.Ultima().icone, QMessageBox::NoIcon);
    EXPECT_EQ(m_caixas.Ultima().padrao, QMessageBox::Ok);
    EXPECT_FALSE(abertura) << "the splash has gone by then";
}

TEST_F(ConfiguradorTest, CancelDoesNothingAndTheNextStartAsksAgain)
{
    PoeFirstTime("1");
    PoeArquivo(kFerramenta, Ferramenta("marca"), true);
    m_caixas.Responde(QMessageBox::Cancel);
    ChegaAoSegundoTique();
    EXPECT_EQ(m_caixas.Quantas(), 1U);
    EXPECT_EQ(FirstTime(), "1");
    Tique();
    EXPECT_EQ(m_caixas.Quantas(), 1U) << "once a start";

    Inicia();
    m_caixas.Responde(QMessageBox::Cancel);
    Tique();
    Tique();
    EXPECT_EQ(m_caixas.Quantas(), 2U);
    EXPECT_EQ(m_caixas.Ultima().texto, kPergunta);
    EXPECT_FALSE(Existe("marca"));
}

TEST_F(ConfiguradorTest, EscapeIsCancel)
{
    PoeFirstTime("1");
    m_caixas.Responde(QMessageBox::Cancel);
    QMessageBox::StandardButton premido = QMessageBox::NoButton;
    m_caixas.AoAbrir([&](QMessageBox &caixa) {
        QTest::keyClick(&caixa, Qt::Key_Escape);
        premido = caixa.standardButton(caixa.clickedButton());
    });
    ChegaAoSegundoTique();
    EXPECT_EQ(premido, QMessageBox::Cancel);
    EXPECT_EQ(m_caixas.Quantas(), 1U);
    EXPECT_EQ(FirstTime(), "1");
}

TEST_F(ConfiguradorTest, OkStartsTheToolAndIsNotAskedAgain)
{
    PoeFirstTime("1");
    PoeArquivo(kFerramenta, Ferramenta("marca"), true);
    ChegaAoSegundoTique();
    ASSERT_EQ(m_caixas.Quantas(), 2U);
    EXPECT_EQ(m_caixas.Ultima().texto, kObservacao);
    EXPECT_EQ(m_caixas.Ultima().titulo, QString::fromUtf8("Configuração da QX-70"));
    EXPECT_EQ(m_caixas.Ultima().botoes, QMessageBox::Ok);
    EXPECT_EQ(m_caixas.Ultima().icone, QMessageBox::NoIcon);
    EXPECT_TRUE(Aparece("marca"));
    EXPECT_EQ(FirstTime(), "");
    EXPECT_FALSE(FirstTime().isNull()) << "the key stays, emptied";

    Inicia();
    Tique();
    Tique();
    EXPECT_EQ(m_caixas.Quantas(), 2U);
}

TEST_F(ConfiguradorTest, KeyIsEmptiedBehindTheToolAlsoWhenItIsMissing)
{
    PoeFirstTime("1");
    Inicia();
    QString durante;
    m_caixas.Responde(QMessageBox::Ok);
    m_caixas.Responde(QMessageBox::Ok);
    m_caixas.Responde(QMessageBox::Cancel);
    m_caixas.AoAbrir([&](QMessageBox &) {
        m_caixas.AoAbrir(
            [&](QMessageBox &) { m_caixas.AoAbrir([&](QMessageBox &) { durante = FirstTime(); }); });
    });
    Tique();
    Tique();
    ASSERT_EQ(m_caixas.Quantas(), 3U);
    EXPECT_EQ(m_caixas.Ultima().texto, kNaoEncontrado);
    EXPECT_EQ(durante, "1");
    EXPECT_EQ(FirstTime(), "");
}

TEST_F(ConfiguradorTest, TickDuringTheQuestionAsksNothing)
{
    PoeFirstTime("1");
    m_caixas.Responde(QMessageBox::Cancel);
    Inicia();
    m_caixas.AoAbrir([this](QMessageBox &) { Tique(); });
    Tique();
    Tique();
    EXPECT_EQ(m_caixas.Quantas(), 1U);
}

struct CasoFirstTime {
    std::string nome;
    const char *valor; ///< null: no key
    bool pergunta;
};
void PrintTo(const CasoFirstTime &caso, std::ostream *os)
{
    *os << caso.nome;
}
class FirstTimeTest : public ConfiguradorTest, public testing::WithParamInterface<CasoFirstTime> {};
TEST_P(FirstTimeTest, AsksOnlyWhenItReadsAsOne)
{
    if (GetParam().valor)
        PoeFirstTime(GetParam().valor);
    m_caixas.Responde(QMessageBox::Cancel);
    ChegaAoSegundoTique();
    EXPECT_EQ(m_caixas.Quantas(), GetParam().pergunta ? 1U : 0U);
    EXPECT_EQ(FirstTime(), QString(GetParam().valor));
}
INSTANTIATE_TEST_SUITE_P(
    Valores, FirstTimeTest,
    testing::Values(CasoFirstTime{"One", "1", true}, CasoFirstTime{"OneWithAZero", "01", true},
                    CasoFirstTime{"OneAndWords", "1 vez", true}, CasoFirstTime{"Zero", "0", false},
                    CasoFirstTime{"Two", "2", false}, CasoFirstTime{"Ten", "10", false},
                    CasoFirstTime{"MinusOne", "-1", false}, CasoFirstTime{"OneAndAHalf", "1.5", false},
                    CasoFirstTime{"Word", "sim", false}, CasoFirstTime{"Empty", "", false},
                    CasoFirstTime{"Missing", nullptr, false}),
    [](const auto &caso) { return caso.param.nome; });

// --- the tool ---

TEST_F(ConfiguradorTest, MissingToolIsTold)
{
    Inicia();
    app::AbreConfigurador(Dados());
    ASSERT_EQ(m_caixas.Quantas(), 1U);
    EXPECT_EQ(m_caixas.Ultima().texto, kNaoEncontrado);
    EXPECT_EQ(m_caixas.Ultima().titulo, "QX70 not found!");
    EXPECT_EQ(m_caixas.Ultima().icone, QMessageBox::Information);
    EXPECT_EQ(m_caixas.Ultima().botoes, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(Dados().JanelaConfigurador, "0");
}

TEST_F(ConfiguradorTest, ToolInAnotherCaseIsMissing)
{
    PoeArquivo("qx70cfg.exe", Ferramenta("marca"), true);
    Inicia();
    app::AbreConfigurador(Dados());
    EXPECT_EQ(m_caixas.Ultima().texto, kNaoEncontrado);
    EXPECT_FALSE(Existe("marca"));
}

TEST_F(ConfiguradorTest, ToolIsStartedFromTheOfficeFolderBeforeThePath)
{
    PoeArquivo(kFerramenta, Ferramenta("da-pasta"), true);
    QFile outra(m_noCaminho.filePath(kFerramenta));
    ASSERT_TRUE(outra.open(QIODevice::WriteOnly));
    outra.write(Ferramenta("do-caminho"));
    outra.setPermissions(outra.permissions() | QFile::ExeOwner | QFile::ExeUser);
    outra.close();
    Inicia();
    ASSERT_TRUE(QDir::setCurrent(QDir::rootPath()));
    app::AbreConfigurador(Dados());
    EXPECT_TRUE(Aparece("da-pasta"));
    EXPECT_FALSE(Existe("do-caminho"));
    EXPECT_EQ(m_caixas.Quantas(), 0U);

    QFile::remove(m_escritorio.Arquivo(kFerramenta));
    app::AbreConfigurador(Dados());
    EXPECT_TRUE(Aparece("do-caminho"));
    EXPECT_EQ(m_caixas.Quantas(), 0U);
}

TEST_F(ConfiguradorTest, ToolThatCannotRunEndsTheStepAndTheProgramGoesOn)
{
    PoeFirstTime("1");
    PoeArquivo(kFerramenta,
               "\x7f"
               "ELF",
               true);
    ChegaAoSegundoTique();
    ASSERT_EQ(m_caixas.Quantas(), 3U);
    EXPECT_TRUE(m_caixas.Ultima().texto.startsWith("Ocorreu erro 5!\n"))
        << m_caixas.Ultima().texto.toStdString();
    EXPECT_EQ(FirstTime(), "1") << "the step did not come to its end";
    EXPECT_TRUE(Tela().isVisible());
}

TEST_F(ConfiguradorTest, WithoutADesktopTheWalkFindsNothing)
{
    Inicia();
    Dados().JanelaConfigurador = "QX70CFG";
    const QByteArray antes = qgetenv("DISPLAY");
    qunsetenv("DISPLAY");
    app::ProcuraConfigurador(Dados());
    if (!antes.isNull())
        qputenv("DISPLAY", antes);
    EXPECT_EQ(Dados().JanelaConfigurador, "0");
}

} // namespace
