// A settings file or an application folder that cannot be used: told once at the start, nothing in its place
// is lost, and the program goes on with its defaults.
#include "ComMain.h"
#include "Disco.h"

#include <ctime>
#include <functional>
#include <QCheckBox>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <sys/stat.h>

using namespace apoio;

namespace {

constexpr int kLimiteMs = 60000;
const QByteArray kIni = "[Sistema]\r\nport=COM4\r\n[FrenteInfo]\r\nCidade=Olinda\r\n";

void CriaCano(const QString &caminho)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(caminho).constData(), 0600), 0);
}

/// What stands under a name: its kind, and its bytes when it is a file.
QByteArray Retrato(const QString &caminho)
{
    struct stat dados {};
    if (lstat(QFile::encodeName(caminho).constData(), &dados) != 0)
        return "nothing";
    if (S_ISFIFO(dados.st_mode))
        return "pipe";
    if (S_ISLNK(dados.st_mode))
        return "link";
    if (S_ISDIR(dados.st_mode))
        return "folder";
    QFile arquivo(caminho);
    return arquivo.open(QIODevice::ReadOnly) ? "file " + arquivo.readAll() : QByteArray("closed file");
}

struct CasoIni {
    std::string nome;
    std::function<void(const QString &ini)> poe;
    mode_t direitos; ///< of the file, to an ordinary user; 0 leaves them
    QString falha;   ///< %1 is the file
};
void PrintTo(const CasoIni &caso, std::ostream *os)
{
    *os << caso.nome;
}

const QString kNaoLido = QStringLiteral("O arquivo de configuração \"%1\" não pôde ser lido.");
const QString kNaoArquivo = QStringLiteral("O caminho \"%1\" não é um arquivo de configuração.");
const QString kFim = QStringLiteral("\nOs valores iniciais serão usados e nada será gravado nele.\n"
                                    "Verifique o arquivo e as suas permissões, e abra o programa de novo.");

void PoeIni(const QString &caminho)
{
    QFile arquivo(caminho);
    ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
    ASSERT_EQ(arquivo.write(kIni), kIni.size());
}

class FaltasDoIni : public teste::ComMain, public testing::WithParamInterface<CasoIni> {};

TEST_P(FaltasDoIni, IsToldOnceAndNothingInItsPlaceIsLost)
{
    const QString ini = m_escritorio.Arquivo("QX70.INI");
    GetParam().poe(ini);
    const QByteArray antes = Retrato(ini);
    {
        std::unique_ptr<teste::ComDireitos> direitos;
        if (GetParam().direitos != 0)
            direitos = std::make_unique<teste::ComDireitos>(m_escritorio.Pasta(), ini, GetParam().direitos);
        Monta();
        bool mostrada = false;
        m_caixas.AoAbrir([&](QMessageBox &) { mostrada = Tela().isVisible(); });
        Tela().IniciaAplicacao({});
        EXPECT_TRUE(mostrada);
        ASSERT_EQ(m_caixas.Quantas(), 1U);
        EXPECT_EQ(m_caixas.Ultima().texto, GetParam().falha.arg(ini) + kFim);
        EXPECT_EQ(m_caixas.Ultima().titulo, "QX70 MIRA - Document Printer");
        EXPECT_EQ(m_caixas.Ultima().icone, QMessageBox::Warning);
        EXPECT_EQ(Dados().PortaSerial, "COM2");
        EXPECT_TRUE(Controle<QCheckBox>(Tela(), "CheckBox")->isChecked());
        TerminaAbertura();
        ClicaEm(Tela(), "Text1(3)");
        Digita(Tela(), "Recife");
        Tecla(Tela(), Qt::Key_F4);
        EXPECT_EQ(Texto(Tela(), "Text1(3)"), "Recife");
        Tela().close();
        EXPECT_EQ(m_caixas.Quantas(), 1U);
    }
    EXPECT_EQ(Retrato(ini), antes);
}

INSTANTIATE_TEST_SUITE_P(
    Arquivos, FaltasDoIni,
    testing::Values(CasoIni{"WithoutTheRightToRead", PoeIni, 0200, kNaoLido},
                    CasoIni{"AFolder", [](const QString &ini) { ASSERT_TRUE(QDir().mkdir(ini)); }, 0,
                            kNaoArquivo},
                    CasoIni{"APipe", CriaCano, 0, kNaoArquivo},
                    CasoIni{"ALinkThatLeadsNowhere",
                            [](const QString &ini) { ASSERT_TRUE(QFile::link("/qx70/falta/QX70.INI", ini)); },
                            0, kNaoLido}),
    [](const auto &caso) { return caso.param.nome; });

using FaltasDaPasta = teste::ComMain;

TEST_F(FaltasDaPasta, SettingsOfARightUserAreReadAgainAtTheNextStart)
{
    const QString ini = m_escritorio.Arquivo("QX70.INI");
    PoeIni(ini);
    {
        const teste::ComDireitos direitos(m_escritorio.Pasta(), ini, 0200);
        Inicia();
        EXPECT_EQ(Texto(Tela(), "Text1(3)"), "");
        Termina();
    }
    Inicia();
    EXPECT_EQ(Texto(Tela(), "Text1(3)"), "Olinda");
    EXPECT_EQ(Dados().PortaSerial, "COM4");
    EXPECT_EQ(m_caixas.Quantas(), 1U) << "nothing is told any more";
}

TEST_F(FaltasDaPasta, FileThatMayOnlyBeReadIsNoFailureOfTheStart)
{
    const QString ini = m_escritorio.Arquivo("QX70.INI");
    PoeIni(ini);
    const teste::ComDireitos direitos(m_escritorio.Pasta(), ini, 0400);
    Inicia();
    EXPECT_EQ(m_caixas.Quantas(), 0U);
    EXPECT_EQ(Dados().PortaSerial, "COM4");
    Termina();
}

struct CasoPasta {
    std::string nome;
    std::function<void(const QString &pasta)> poe;
    QString falha; ///< %1 is the folder
};
void PrintTo(const CasoPasta &caso, std::ostream *os)
{
    *os << caso.nome;
}

class PastaQueNaoServe : public testing::TestWithParam<CasoPasta> {
protected:
    void SetUp() override { GetParam().poe(m_pasta); }
    QTemporaryDir m_base;
    QString m_pasta = m_base.filePath("escritorio");
};

TEST_P(PastaQueNaoServe, IsToldOnceAndTheScreenStaysUsable)
{
    apoio::Caixas caixas;
    const RelogioParado relogio{QDate(1999, 3, 5)};
    app::Aplicacao aplicacao(m_pasta, relogio);
    app::Main &tela = aplicacao.TelaPrincipal();
    tela.IniciaAplicacao({"", "10,00"});
    ASSERT_EQ(caixas.Quantas(), 1U);
    EXPECT_EQ(caixas.Vistas()[0].texto, GetParam().falha.arg(m_pasta) +
                                            "\nOs valores iniciais serão usados e nada será gravado.\n"
                                            "Verifique a pasta do programa e abra-o de novo.");
    EXPECT_EQ(caixas.Vistas()[0].icone, QMessageBox::Warning);
    EXPECT_TRUE(tela.isVisible());
    EXPECT_EQ(Texto(tela, "Text1(1)"), "10,00");
    tela.close();
    EXPECT_EQ(caixas.Quantas(), 1U);
    EXPECT_EQ(QDir(m_base.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(),
              GetParam().nome == "Missing" ? 0 : 1)
        << "nothing is made in its place";
}

// The real program neither hangs nor falls: it holds its lock and takes the values of a second start.
TEST_P(PastaQueNaoServe, TheRealProgramRunsAndAnswers)
{
    QTemporaryDir usuario;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert("QX70_HOME", m_pasta);
    ambiente.insert("XDG_RUNTIME_DIR", usuario.path());
    ambiente.insert("QT_QPA_PLATFORM", "offscreen");
    QProcess primeiro;
    primeiro.setProcessEnvironment(ambiente);
    primeiro.start(QX70_BIN_DIR "/qx70", QStringList());
    ASSERT_TRUE(primeiro.waitForStarted(kLimiteMs));
    // Whichever comes second hands over; the first one listens at its socket by then.
    const auto escuta = [&] {
        return QDirIterator(usuario.path(), QDir::System, QDirIterator::Subdirectories).hasNext();
    };
    ASSERT_TRUE(QTest::qWaitFor(escuta, kLimiteMs));
    QProcess segundo;
    segundo.setProcessEnvironment(ambiente);
    segundo.start(QX70_BIN_DIR "/qx70", {"/V10,00"});
    EXPECT_TRUE(segundo.waitForFinished(kLimiteMs));
    EXPECT_EQ(segundo.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(segundo.exitCode(), 0);
    EXPECT_EQ(primeiro.state(), QProcess::Running);
    primeiro.kill();
    primeiro.waitForFinished(kLimiteMs);
    segundo.kill();
}

INSTANTIATE_TEST_SUITE_P(Pastas, PastaQueNaoServe,
                         testing::Values(CasoPasta{"Missing", [](const QString &) {},
                                                   "A pasta \"%1\" não foi encontrada."},
                                         CasoPasta{"AFile", PoeIni, "O caminho \"%1\" não é uma pasta."}),
                         [](const auto &caso) { return caso.param.nome; });

// Ten megabytes

#ifdef __SANITIZE_ADDRESS__
constexpr int kLimiteDoInicioMs = 20000;
constexpr int kTamanho = 1024 * 1024; // every line is dear under sanitizers
#elif defined(NDEBUG)
constexpr int kLimiteDoInicioMs = 2000;
constexpr int kTamanho = 10 * 1024 * 1024;
#else
constexpr int kLimiteDoInicioMs = 8000;
constexpr int kTamanho = 10 * 1024 * 1024;
#endif

struct CasoEnorme {
    std::string nome;
    QByteArray linha; ///< what the file is full of
};
void PrintTo(const CasoEnorme &caso, std::ostream *os)
{
    *os << caso.nome;
}

class IniEnorme : public teste::ComMain, public testing::WithParamInterface<CasoEnorme> {};

TEST_P(IniEnorme, StartsInTimeAndEveryKeyIsRight)
{
    const QByteArray enchimento = GetParam().linha.repeated(kTamanho / GetParam().linha.size());
    const QByteArray antes =
        "[Opcoes]\r\nNumCObrig=0\r\n[Outra]\r\n" + enchimento +
        "\r\n[Sistema]\r\n; porta\r\nport=COM3\r\nInRel=0\r\n[FrenteInfo]\r\nCidade=Olinda\r\n";
    PoeArquivo("QX70.INI", antes);
    // The processor's time: other programs at work cost this one nothing.
    const std::clock_t antesDoInicio = std::clock();
    Inicia();
    const auto ms = static_cast<int>((std::clock() - antesDoInicio) * 1000 / CLOCKS_PER_SEC);
    EXPECT_LT(ms, kLimiteDoInicioMs);
    RecordProperty("ms", ms);
    EXPECT_EQ(m_caixas.Quantas(), 0U);
    EXPECT_EQ(Dados().PortaSerial, "COM3");
    EXPECT_EQ(Dados().NumCObrig, 0);
    EXPECT_FALSE(Controle<QCheckBox>(Tela(), "CheckBox")->isChecked());
    EXPECT_EQ(Texto(Tela(), "Text1(3)"), "Olinda");
    TerminaAbertura();
    ClicaEm(Tela(), "Text1(3)");
    Tecla(Tela(), Qt::Key_F8);
    Digita(Tela(), "Recife");
    Tecla(Tela(), Qt::Key_F4);
    QFile ini(m_escritorio.Arquivo("QX70.INI"));
    ASSERT_TRUE(ini.open(QIODevice::ReadOnly));
    EXPECT_TRUE(ini.readAll() == QByteArray(antes).replace("Cidade=Olinda", "Cidade=Recife"))
        << "the other lines did not stay";
}

INSTANTIATE_TEST_SUITE_P(Linhas, IniEnorme,
                         testing::Values(CasoEnorme{"LongLines",
                                                    "chave=valor de uma linha comprida, sem acentos\r\n"},
                                         CasoEnorme{"LinesThatNameAKey", "port=9\r\n"},
                                         CasoEnorme{"NothingButHeadings", "[Sistem]\r\n"},
                                         CasoEnorme{"EmptyLines", "\r\n"}, CasoEnorme{"OneLine", "x"}),
                         [](const auto &caso) { return caso.param.nome; });

} // namespace
