// The screen of the device's configuration: what it shows, what opening it reads and writes, and its closing.
#include "ComConfigura.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <QScreen>

using namespace teste;

namespace {

using ConfiguraTest = ComConfigura;

// --- what it shows ---

TEST_F(ConfiguraTest, HasItsNameCaptionAndPlace)
{
    AbreTela();
    EXPECT_EQ(Configura().objectName(), "Configura");
    EXPECT_EQ(Configura().windowTitle(), "Configurações");
    EXPECT_TRUE(Configura().isWindow());
    EXPECT_FALSE(Configura().isModal());
    const QPoint meio = Configura().screen()->availableGeometry().center();
    EXPECT_LE((Configura().frameGeometry().center() - meio).manhattanLength(), 4) << "in the middle";
}

struct CasoQuadro {
    std::string nome;
    QString titulo;
    QStringList controles;
    QStringList rotulos;
};
void PrintTo(const CasoQuadro &c, std::ostream *os)
{
    *os << c.titulo.toStdString();
}
class Quadro : public ComConfigura, public testing::WithParamInterface<CasoQuadro> {};
TEST_P(Quadro, HoldsItsControlsAndLabels)
{
    AbreTela();
    const auto quadros = Configura().findChildren<QGroupBox *>();
    EXPECT_EQ(quadros.size(), 4);
    const auto achado = std::find_if(quadros.begin(), quadros.end(), [](const QGroupBox *quadro) {
        return quadro->title() == GetParam().titulo;
    });
    ASSERT_NE(achado, quadros.end());
    for (const QString &nome : GetParam().controles)
        EXPECT_NE((*achado)->findChild<QWidget *>(nome), nullptr) << nome.toStdString();
    QStringList rotulos;
    for (const auto *rotulo : (*achado)->findChildren<QLabel *>())
        rotulos << rotulo->text();
    EXPECT_EQ(rotulos.join('|').toStdString(), GetParam().rotulos.join('|').toStdString());
}
INSTANTIATE_TEST_SUITE_P(Quadros, Quadro,
                         testing::Values(CasoQuadro{"Currency",
                                                    "Cadastro de Moeda na Impressora",
                                                    {"Text1(0)", "Text1(1)", "Command3D1"},
                                                    {"Moeda Singular:", "Moeda Plural:"}},
                                         CasoQuadro{"Payees",
                                                    "Cadastro de Favorecidos na Impressora",
                                                    {"Text2(0)", "Text2(1)", "Command3D2"},
                                                    {"Codigo:", "Favorecido:"}},
                                         CasoQuadro{"Removal",
                                                    "Exclusão de Favorecidos da Impressora",
                                                    {"Text3", "Option3D2", "Command3D4"},
                                                    {"Codigo:"}},
                                         CasoQuadro{"Port",
                                                    "Porta Serial",
                                                    {"Option3D3(0)", "Option3D3(1)", "Option3D3(2)",
                                                     "Option3D3(3)", "Command3D7"},
                                                    {}}),
                         kNomeDoCaso);

struct CasoTexto {
    QString controle;
    QString texto;
};
void PrintTo(const CasoTexto &c, std::ostream *os)
{
    *os << c.controle.toStdString();
}
class Legenda : public ComConfigura, public testing::WithParamInterface<CasoTexto> {};
TEST_P(Legenda, StandsOnItsControl)
{
    AbreTela();
    EXPECT_EQ(apoio::Controle<QAbstractButton>(Configura(), GetParam().controle)->text(), GetParam().texto);
}
INSTANTIATE_TEST_SUITE_P(
    Botoes, Legenda,
    testing::Values(CasoTexto{"Command3D1", "&Atualizar"}, CasoTexto{"Command3D2", "A&tualizar"},
                    CasoTexto{"Command3D4", "At&ualizar"}, CasoTexto{"Command3D7", "Atua&lizar"},
                    CasoTexto{"Command3D9", "Aut&o-Teste"}, CasoTexto{"SSCommand1", "Sai&r"},
                    CasoTexto{"Option3D2", "Todos"}, CasoTexto{"Option3D3(0)", "COM&1"},
                    CasoTexto{"Option3D3(1)", "COM&2"}, CasoTexto{"Option3D3(2)", "COM&3"},
                    CasoTexto{"Option3D3(3)", "COM&4"}),
    [](const auto &caso) {
        return caso.param.controle.toStdString().substr(0, 9) + std::to_string(caso.index);
    });

TEST_F(ConfiguraTest, BoxesAreCalledAfterTheirLabels)
{
    AbreTela();
    QStringList nomes;
    for (const char *campo : {"Text1(0)", "Text1(1)", "Text2(0)", "Text2(1)", "Text3"})
        nomes << apoio::Controle<QLineEdit>(Configura(), campo)->accessibleName();
    EXPECT_EQ(nomes.join(' '), "Moeda Singular: Moeda Plural: Codigo: Favorecido: Codigo:");
}

TEST_F(ConfiguraTest, EveryMnemonicIsItsOwn)
{
    AbreTela();
    QStringList teclas;
    for (const auto *botao : Configura().findChildren<QAbstractButton *>())
        if (const QString tecla = QKeySequence::mnemonic(botao->text()).toString(); !tecla.isEmpty())
            teclas << tecla;
    EXPECT_EQ(teclas.size(), 10) << "six buttons and four ports";
    EXPECT_EQ(teclas.removeDuplicates(), 0) << teclas.join(' ').toStdString();
}

// --- opening ---

TEST_F(ConfiguraTest, ShowsTheStoredCurrencyAndEmptyPayees)
{
    Ini("m_sg=Dólar\nm_pl=Dólares\n");
    Abre();
    const QString antes = m_escritorio.LeIni();
    AbreConfigura();
    EXPECT_EQ(Campo("Text1(0)") + '|' + Campo("Text1(1)"), "Dólar|Dólares");
    EXPECT_EQ(Campo("Text2(0)") + '|' + Campo("Text2(1)") + '|' + Campo("Text3"), "||");
    EXPECT_FALSE(Opcao("Option3D2")->isChecked());
    EXPECT_EQ(FocoNela(), "Text1(0)");
    EXPECT_EQ(m_escritorio.LeIni().toStdString(), antes.toStdString());
    EXPECT_EQ(m_gravadora.Chamadas(), QStringList()) << "the device is not asked";
}

// On purpose: on a first run the box of the singular shows the plural's word, and that of the plural is
// empty.
TEST_F(ConfiguraTest, AFirstRunShowsThePluralInTheBoxOfTheSingular)
{
    Abre();
    m_escritorio.GravaIni("");
    AbreConfigura();
    EXPECT_EQ(m_escritorio.LeIni().toStdString(), "[Sistema]\r\nport=COM2\r\nm_sg=Real\r\nm_pl=Reais\r\n");
    EXPECT_EQ(Campo("Text1(0)") + '|' + Campo("Text1(1)"), "Reais|");
    EXPECT_EQ(Ligadas(), "1");
    Clica("Command3D1");
    EsperaRecusa("O nome da moeda no plural não pode ser vazio.", "Alteração da Moeda", "Text1(1)");
    Reabre();
    EXPECT_EQ(Campo("Text1(0)") + '|' + Campo("Text1(1)"), "Real|Reais") << "the second time all is right";
}

struct CasoAbertura {
    std::string nome;
    QString ini;
    std::string porta;
    std::string opcao;
    std::string chave;
};
void PrintTo(const CasoAbertura &c, std::ostream *os)
{
    *os << c.nome;
}
class PortaNaAbertura : public ComConfigura, public testing::WithParamInterface<CasoAbertura> {};
TEST_P(PortaNaAbertura, IsTakenFromTheSettings)
{
    Abre();
    m_escritorio.GravaIni(GetParam().ini);
    AbreConfigura();
    EXPECT_EQ(Dados().PortaSerial.toStdString(), GetParam().porta);
    EXPECT_EQ(Ligadas(), GetParam().opcao);
    EXPECT_EQ(Chave("port"), GetParam().chave);
    EXPECT_EQ(apoio::Controle<QLabel>(Tela(), "Label4")->text().toStdString(), GetParam().porta)
        << "the main screen shows the one in use";
}
INSTANTIATE_TEST_SUITE_P(
    Chaves, PortaNaAbertura,
    testing::Values(CasoAbertura{"First", "[Sistema]\nport=COM1\n", "COM1", "0", "COM1"},
                    CasoAbertura{"Second", "[Sistema]\nport=COM2\n", "COM2", "1", "COM2"},
                    CasoAbertura{"Third", "[Sistema]\nport=COM3\n", "COM3", "2", "COM3"},
                    CasoAbertura{"Fourth", "[Sistema]\nport=COM4\n", "COM4", "3", "COM4"},
                    CasoAbertura{"AnyOtherIsTheLastOption", "[Sistema]\nport=LPT1\n", "LPT1", "3", "LPT1"},
                    CasoAbertura{"FourCharactersCount", "[Sistema]\nport=COM12\n", "COM1", "0", "COM12"},
                    CasoAbertura{"EmptyIsNotMissing", "[Sistema]\nport=\n", "", "3", ""},
                    CasoAbertura{"MissingIsWritten", "[Opcoes]\nx=1\n", "COM2", "1", "COM2"},
                    CasoAbertura{"ANegativeNumberIsMissing", "[Sistema]\nport=-7\n", "COM2", "1", "COM2"}),
    kNomeDoCaso);

TEST_F(ConfiguraTest, SettingsThatCannotBeReadOpenWithTheDefaults)
{
    Abre();
    ASSERT_TRUE(QFile::remove(m_escritorio.Arquivo("QX70.INI")));
    ASSERT_TRUE(QDir(m_escritorio.Pasta()).mkpath("QX70.INI/cheia"));
    AbreConfigura();
    EXPECT_EQ(Campo("Text1(0)") + '|' + Campo("Text1(1)"), "Reais|");
    EXPECT_EQ(Ligadas(), "1");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

// --- closing, and beside the main screen ---

struct CasoFecha {
    std::string nome;
    std::function<void(const QWidget &)> faz;
};
void PrintTo(const CasoFecha &c, std::ostream *os)
{
    *os << c.nome;
}
class Fechada : public ComConfigura, public testing::WithParamInterface<CasoFecha> {};
TEST_P(Fechada, SendsAndWritesNothing)
{
    AbreTela();
    const QString antes = m_escritorio.LeIni();
    DigitaNela("Text1(0)", "X");
    DigitaNela("Text2(0)", "7");
    DigitaNela("Text3", "8");
    Escolhe("Option3D3(3)");
    GetParam().faz(Configura());
    EXPECT_FALSE(EstaAberta());
    EXPECT_EQ(m_escritorio.LeIni().toStdString(), antes.toStdString());
    EXPECT_EQ(m_gravadora.Chamadas(), QStringList());
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    AbreConfigura();
    EXPECT_EQ(Campo("Text1(0)") + '|' + Campo("Text2(0)") + '|' + Campo("Text3"), "Real||");
    EXPECT_EQ(Ligadas(), "1");
}
INSTANTIATE_TEST_SUITE_P(
    Modos, Fechada,
    testing::Values(CasoFecha{"ByItsButton", [](const QWidget &tela) { apoio::ClicaEm(tela, "SSCommand1"); }},
                    CasoFecha{"ByMnemonic",
                              [](const QWidget &tela) { apoio::Tecla(tela, Qt::Key_R, Qt::AltModifier); }},
                    CasoFecha{"ByEsc", [](const QWidget &tela) { apoio::Tecla(tela, Qt::Key_Escape); }}),
    kNomeDoCaso);

TEST_F(ConfiguraTest, ASecondOpeningRaisesTheOneThatIsOpen)
{
    AbreTela();
    DigitaNela("Text2(1)", "Ana");
    const QPointer<QWidget> primeira = &Configura();
    Ativa();
    Tela().findChild<QAction *>("Conf_Qx70")->trigger();
    ASSERT_EQ(Abertas("Configura").size(), 1);
    EXPECT_EQ(&Configura(), primeira);
    EXPECT_EQ(Campo("Text2(1)"), "Ana");
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == primeira; }));
}

TEST_F(ConfiguraTest, MainGoesOnBesideIt)
{
    AbreTela();
    Ativa();
    DigitaEm("TxtCpo(0)", "a");
    EXPECT_EQ(Texto("TxtCpo(0)"), "a");
    EXPECT_TRUE(EstaAberta());
}

TEST_F(ConfiguraTest, NothingIsCutOffAtItsSize)
{
    AbreTela();
    QApplication::processEvents();
    for (auto *controle : Configura().findChildren<QWidget *>()) {
        if (!controle->isVisible() || controle->objectName().isEmpty() ||
            controle->objectName().startsWith("qt_"))
            continue;
        const QRect lugar(controle->mapTo(&Configura(), QPoint()), controle->size());
        EXPECT_TRUE(Configura().rect().contains(lugar)) << controle->objectName().toStdString();
        EXPECT_GE(controle->width(), controle->minimumSizeHint().width())
            << controle->objectName().toStdString();
        EXPECT_GE(controle->height(), controle->minimumSizeHint().height())
            << controle->objectName().toStdString();
    }
    EXPECT_LE(Configura().height(), 768 - 68) << "a small screen, its frame and a task bar";
}

} // namespace
