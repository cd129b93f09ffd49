// Windows by title on a display of the test's own, and without any display.
#include "Desktop.h"
#include "plataforma/ambiente/Janelas.h"
#include <QCoreApplication>
#include <QProcess>

using namespace plataforma;

using Janelas = std::vector<xcb_window_t>;

TEST_F(DesktopTeste, TitlesComeInTheOrderOfTheList)
{
    const auto uma = Cria("QX70CFG - Configuração");
    const auto outra = Cria("Editor");
    Lista({outra, uma});
    EXPECT_EQ(TitulosDasJanelas().join('|'), "Editor|QX70CFG - Configuração");
}

TEST_F(DesktopTeste, TheNewTitleGoesBeforeTheOldOneAndTheOldOneServesAlone)
{
    const auto ambos = Cria("novo ç", "velho");
    const auto velho = Cria(nullptr, "Configura\xe7\xe3o");
    Lista({ambos, velho});
    EXPECT_EQ(TitulosDasJanelas().join('|'), "novo ç|Configuração");
}

TEST_F(DesktopTeste, WindowsWithoutTitleOrOutsideTheListAreLeftOut)
{
    const auto semTitulo = Cria(nullptr);
    const auto vazia = Cria("");
    Cria("fora da lista");
    const auto boa = Cria("boa");
    Lista({semTitulo, vazia, boa});
    EXPECT_EQ(TitulosDasJanelas().join('|'), "boa");
}

TEST_F(DesktopTeste, AWindowThatIsGoneIsNoFailure)
{
    const auto boa = Cria("boa");
    Lista({boa + 1000, boa});
    EXPECT_EQ(TitulosDasJanelas().join('|'), "boa");
}

TEST_F(DesktopTeste, NoListIsNoWindow)
{
    Cria("solta");
    EXPECT_TRUE(TitulosDasJanelas().isEmpty());
    EXPECT_FALSE(AtivaJanela("solta"));
}

TEST_F(DesktopTeste, ActivatingAsksTheWindowManagerInTheOperatorsName)
{
    const auto outra = Cria("Editor");
    const auto alvo = Cria("QX70CFG");
    Lista({outra, alvo});
    EXPECT_TRUE(AtivaJanela("QX70CFG"));
    const Pedidos pedidos = Recebidos();
    EXPECT_EQ(pedidos.ativar, Janelas{alvo});
    EXPECT_EQ(pedidos.origem, 2U);
    EXPECT_TRUE(pedidos.restaurar.empty()) << "the window was not minimised";
}

TEST_F(DesktopTeste, AMinimisedWindowIsRestoredToo)
{
    const auto alvo = Cria("QX70CFG", nullptr, true);
    Lista({alvo});
    EXPECT_TRUE(AtivaJanela("QX70CFG"));
    const Pedidos pedidos = Recebidos();
    EXPECT_EQ(pedidos.restaurar, Janelas{alvo});
    EXPECT_EQ(pedidos.ativar, Janelas{alvo});
}

TEST_F(DesktopTeste, OfEqualTitlesTheOldestWindowIsActivated)
{
    const auto velha = Cria("QX70CFG");
    const auto nova = Cria("QX70CFG");
    Lista({velha, nova});
    EXPECT_TRUE(AtivaJanela("QX70CFG"));
    EXPECT_EQ(Recebidos().ativar, Janelas{velha});
}

TEST_F(DesktopTeste, OnlyTheWholeTitleCounts)
{
    Lista({Cria("QX70CFG 2")});
    EXPECT_FALSE(AtivaJanela("QX70CFG"));
    EXPECT_FALSE(AtivaJanela(""));
    EXPECT_TRUE(Recebidos().ativar.empty());
}

TEST_F(DesktopTeste, TheWalkYieldsToTheEventLoopAfterEachWindow)
{
    Lista({Cria("uma"), Cria("duas")});
    QStringList ordem;
    QObject contexto;
    PercorreJanelas([&](const QString &titulo) {
        ordem.append(titulo);
        QMetaObject::invokeMethod(
            &contexto, [&ordem] { ordem.append("evento"); }, Qt::QueuedConnection);
    });
    EXPECT_EQ(ordem.join(' '), "uma evento duas evento");
}

TEST_F(DesktopTeste, AWindowClosedDuringTheWalkIsPassedOver)
{
    const auto segunda = Cria("segunda");
    Lista({Cria("primeira"), segunda, Cria("terceira")});
    QStringList vistas;
    PercorreJanelas([&](const QString &titulo) {
        vistas.append(titulo);
        if (titulo == "primeira")
            Destroi(segunda);
    });
    EXPECT_EQ(vistas.join(' '), "primeira terceira");
}

/// The titles that a program on a Qt platform of this name sees.
static QString TitulosVistosPor(const QString &plataforma)
{
    QProcess processo;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert("QT_QPA_PLATFORM", plataforma);
    processo.setProcessEnvironment(ambiente);
    processo.start(QX70_COPIA_AUXILIAR, {"janelas"});
    EXPECT_TRUE(processo.waitForFinished());
    return QString::fromUtf8(processo.readAllStandardOutput()).trimmed();
}

TEST_F(DesktopTeste, AProgramWithoutAScreenSeesNoWindows)
{
    Lista({Cria("QX70CFG")});
    EXPECT_EQ(TitulosVistosPor("offscreen"), "");
    EXPECT_EQ(TitulosVistosPor("xcb"), "QX70CFG");
}

namespace {
struct CasoDisplay {
    std::string nome;
    QByteArray display;
};
void PrintTo(const CasoDisplay &caso, std::ostream *os)
{
    *os << '"' << caso.display.toStdString() << '"';
}
class SemDisplayTeste : public testing::TestWithParam<CasoDisplay> {};
} // namespace

TEST_P(SemDisplayTeste, ThereAreNoWindowsAndNoFailure)
{
    const QByteArray antes = qgetenv("DISPLAY");
    qputenv("DISPLAY", GetParam().display);
    EXPECT_TRUE(TitulosDasJanelas().isEmpty());
    EXPECT_FALSE(AtivaJanela("QX70CFG"));
    int visitas = 0;
    PercorreJanelas([&](const QString &) { ++visitas; });
    EXPECT_EQ(visitas, 0);
    qputenv("DISPLAY", antes);
}

INSTANTIATE_TEST_SUITE_P(Displays, SemDisplayTeste,
                         testing::Values(CasoDisplay{"NoneNamed", ""}, CasoDisplay{"NobodyThere", ":60999"},
                                         CasoDisplay{"Rubbish", "rubbish"}),
                         [](const auto &caso) { return caso.param.nome; });
