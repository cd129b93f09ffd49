// Printing the back of a cheque: the question, what reaches the device, the labels, and every way it can end.
#include "ComEntrada.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QProgressBar>

using namespace teste;

namespace {

const QString kRecuo(15, ' ');

/// The five calls of a text that went out.
QStringList UmVerso(const QString &bytes, int modo)
{
    return {R"(IniciaPorta("COM2"))", "TravaDoc(1)",
            QString("FormataTX(\"%1\",%2,0,0,0,0)").arg(bytes).arg(modo), "TravaDoc(0)", "FechaPorta()"};
}

/// Notes each change of colour of the labels, and each painting of one that is red.
class Rotulos final : public QObject {
public:
    explicit Rotulos(const QWidget &tela)
    {
        for (int i = 7; i <= 16; ++i) {
            m_rotulos << apoio::Controle<QLabel>(tela, QString("Label1(%1)").arg(i));
            m_rotulos.last()->installEventFilter(this);
        }
        m_comum = m_rotulos.first()->palette().color(QPalette::WindowText);
    }
    bool eventFilter(QObject *objeto, QEvent *evento) override
    {
        const auto *rotulo = static_cast<QLabel *>(objeto);
        const QColor cor = rotulo->palette().color(QPalette::WindowText);
        const QString nome = rotulo->text().remove(':');
        if (evento->type() == QEvent::PaletteChange)
            cores << nome + (cor == Qt::red ? " red" : cor == m_comum ? " black" : " " + cor.name());
        if (evento->type() == QEvent::Paint && cor == Qt::red)
            pintados << nome;
        return false;
    }
    [[nodiscard]] bool TodosPretos() const
    {
        return std::all_of(m_rotulos.begin(), m_rotulos.end(), [this](const QLabel *rotulo) {
            return rotulo->palette().color(QPalette::WindowText) == m_comum;
        });
    }
    QStringList cores;    ///< "Cmd1 red", in their order
    QStringList pintados; ///< labels that stood red on the screen

private:
    QList<QLabel *> m_rotulos;
    QColor m_comum;
};

class ImprimeVerso : public ComEntrada {
protected:
    void AbreCom(const QMap<int, QString> &linhas)
    {
        Abre();
        PreencheCheque();
        for (auto linha = linhas.begin(); linha != linhas.end(); ++linha)
            Poe(QString("Text2(%1)").arg(linha.key()), linha.value());
    }
    void Imprime() { Clica("Opcoes(1)"); }
    void EsperaInsira(const apoio::Caixa &caixa)
    {
        EXPECT_EQ(caixa.texto, "Insira o Documento.");
        EXPECT_EQ(caixa.titulo, "Impressão do Verso");
        EXPECT_EQ(caixa.icone, QMessageBox::Information);
        EXPECT_EQ(caixa.botoes, QMessageBox::Ok | QMessageBox::Cancel);
        EXPECT_EQ(caixa.padrao, QMessageBox::Ok);
    }
    void EsperaSoAPergunta()
    {
        ASSERT_EQ(m_caixas->Quantas(), 1U);
        EsperaInsira(m_caixas->Ultima());
    }
    /// Behind the question came one failure of the sending.
    void EsperaFalha(const char *texto)
    {
        ASSERT_EQ(m_caixas->Quantas(), 2U);
        EsperaInsira(m_caixas->Vistas()[0]);
        EXPECT_EQ(m_caixas->Ultima().texto, texto);
        EXPECT_EQ(m_caixas->Ultima().titulo, "QX70 MIRA - Document Printer");
        EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Critical);
        EXPECT_EQ(m_caixas->Ultima().botoes, QMessageBox::Ok);
        EXPECT_EQ(Foco(), "Text2(0)");
    }
    void EsperaUmVerso()
    {
        EsperaSoAPergunta();
        EXPECT_EQ(m_gravadora.Chamadas(), UmVerso(kRecuo + "um\\x0A", 3));
        EXPECT_EQ(Foco(), "Text2(0)");
    }
};

// --- the ways to it ---

TEST_F(ImprimeVerso, ByClick)
{
    AbreCom({{0, "um"}});
    Imprime();
    EsperaUmVerso();
}

TEST_F(ImprimeVerso, ByEnterOnTheButton)
{
    AbreCom({{0, "um"}});
    apoio::Controle<QPushButton>(Tela(), "Opcoes(1)")->setFocus();
    Tecla(Qt::Key_Return);
    EsperaUmVerso();
}

TEST_F(ImprimeVerso, ByMnemonic)
{
    AbreCom({{0, "um"}});
    Tecla(Qt::Key_V, Qt::AltModifier);
    EsperaUmVerso();
}

TEST_F(ImprimeVerso, ByMenu)
{
    AbreCom({{0, "um"}});
    auto *entrada = Tela().findChild<QAction *>("Verso");
    ASSERT_NE(entrada, nullptr);
    entrada->trigger();
    EsperaUmVerso();
}

// On purpose: the focus goes to the lines, and a field that it leaves for them is discarded.
class MenuComUmCampoEmUso : public ImprimeVerso,
                            public testing::WithParamInterface<QMessageBox::StandardButton> {};
TEST_P(MenuComUmCampoEmUso, DiscardsTheField)
{
    AbreCom({{0, "um"}});
    DigitaEm("Text1(3)", "Santos");
    m_caixas->Responde(GetParam());
    Tela().findChild<QAction *>("Verso")->trigger();
    EXPECT_EQ(Foco(), "Text2(0)");
    EXPECT_EQ(Texto("Text1(3)"), "");
    EXPECT_EQ(m_caixas->Quantas(), 1U);
}
INSTANTIATE_TEST_SUITE_P(Respostas, MenuComUmCampoEmUso,
                         testing::Values(QMessageBox::Ok, QMessageBox::Cancel),
                         [](const auto &caso) { return caso.param == QMessageBox::Ok ? "Ok" : "Cancel"; });

TEST_F(ImprimeVerso, WithoutAChequeOnTheScreen)
{
    Abre();
    Poe("Text2(0)", "um");
    VaiPara("TxtCpo(0)");
    Imprime();
    EsperaUmVerso();
}

TEST_F(ImprimeVerso, PrintsNothingWhenTheFieldRefusesToBeLeft)
{
    AbreCom({{0, "um"}});
    DigitaEm("Text1(4)", "310499");
    Tecla(Qt::Key_V, Qt::AltModifier);
    EsperaCaixa("Data Inválida.", "QX70 MIRA - Document Printer", QMessageBox::Warning);
    EXPECT_EQ(Foco(), "Text1(4)");
    EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
}

TEST_F(ImprimeVerso, TheFieldLeftIsCheckedAndNotDiscarded)
{
    AbreCom({{0, "um"}});
    DigitaEm("Text1(1)", "10");
    Imprime();
    EXPECT_EQ(Texto("Text1(1)"), "10,00");
    EXPECT_EQ(m_gravadora.Chamadas().size(), 5);
}

// --- the question ---

TEST_F(ImprimeVerso, PortIsOpenedBehindTheQuestion)
{
    AbreCom({{0, "um"}});
    QStringList antes = {"no box"};
    m_caixas->AoAbrir([&](QMessageBox &) { antes = m_gravadora.Chamadas(); });
    Imprime();
    EXPECT_TRUE(antes.isEmpty());
    EXPECT_EQ(m_gravadora.Chamadas().size(), 5);
}

TEST_F(ImprimeVerso, CancelSendsNothingAndGoesToTheFirstLine)
{
    AbreCom({{0, "um"}});
    const Rotulos rotulos(Tela());
    m_caixas->Responde(QMessageBox::Cancel);
    Imprime();
    EsperaSoAPergunta();
    EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
    EXPECT_EQ(rotulos.cores.join(','), "");
    EXPECT_EQ(Foco(), "Text2(0)");
    EXPECT_EQ(Texto("Text2(0)"), "um");
}

TEST_F(ImprimeVerso, EmptyLinesAreAskedForAndSendNothing)
{
    AbreCom({});
    Imprime();
    EsperaSoAPergunta();
    EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
    EXPECT_EQ(Foco(), "Text2(0)");
}

// --- what is sent ---

struct CasoEnviado {
    std::string nome;
    QMap<int, QString> linhas;
    QString bytes;
    int modo;
};
void PrintTo(const CasoEnviado &c, std::ostream *os)
{
    *os << c.nome;
}
class VersoEnviado : public ImprimeVerso, public testing::WithParamInterface<CasoEnviado> {};
TEST_P(VersoEnviado, IsOneTextWithItsMode)
{
    AbreCom(GetParam().linhas);
    Imprime();
    EXPECT_EQ(m_gravadora.Chamadas(), UmVerso(GetParam().bytes, GetParam().modo));
    EsperaSoAPergunta();
}
INSTANTIATE_TEST_SUITE_P(
    Linhas, VersoEnviado,
    testing::Values(
        CasoEnviado{"OnlyLineFive", {{5, "cinco"}}, QString("\\x0A").repeated(5) + kRecuo + "cinco\\x0A", 3},
        CasoEnviado{"LastLine", {{9, "dez"}}, QString("\\x0A").repeated(9) + kRecuo + "dez\\x0A", 3},
        CasoEnviado{"BlankLinesAtTheEndAreNotSent",
                    {{0, "a"}, {2, "c"}},
                    kRecuo + "a\\x0A\\x0A" + kRecuo + "c\\x0A",
                    3},
        CasoEnviado{"OneBlankPrintsAsSixteen", {{1, " "}}, "\\x0A" + kRecuo + " \\x0A", 3},
        CasoEnviado{"AccentsOfTheDevice",
                    {{0, "São João"}, {1, "Nº 1 à vista"}},
                    kRecuo + R"(S\xC6o Jo\xC6o\x0A)" + kRecuo + R"(N\xA7 1 \x85 vista\x0A)",
                    3},
        CasoEnviado{"SixtyFiveCharacters", {{0, QString(65, 'x')}}, kRecuo + QString(65, 'x') + "\\x0A", 3},
        CasoEnviado{"SixtySixCharacters",
                    {{0, "a"}, {1, QString(66, 'x')}},
                    kRecuo + "a\\x0A" + kRecuo + QString(66, 'x') + "\\x0A",
                    2}),
    kNomeDoCaso);

TEST_F(ImprimeVerso, SavedLinesOfTheStartArePrinted)
{
    Ini("[Verso]\nLinha00=endosso\nLinha01= \n");
    Abre();
    Imprime();
    EXPECT_EQ(m_gravadora.Chamadas(), UmVerso(kRecuo + "endosso\\x0A" + kRecuo + " \\x0A", 3));
}

TEST_F(ImprimeVerso, LeavesTheFieldsAndLogsNothing)
{
    AbreCom({{0, "um"}, {9, "dez"}});
    ASSERT_TRUE(Entrada().IncluiNoRelatorio());
    Imprime();
    EXPECT_EQ(m_gravadora.Chamadas().size(), 5);
    EXPECT_TRUE(Log().isEmpty());
    EXPECT_EQ(Texto("Text2(0)"), "um");
    EXPECT_EQ(Selecao("Text2(0)"), "um");
    EXPECT_EQ(Texto("Text2(9)"), "dez");
    EXPECT_EQ(Texto("Text1(0)"), "237");
    EXPECT_EQ(Dados().ComentarioLinha1, "") << "the comments of a cheque belong to its printing";
}

TEST_F(ImprimeVerso, SecondPressPrintsASecondBack)
{
    AbreCom({{0, "um"}});
    Imprime();
    Ativa();
    Imprime();
    const QStringList um = UmVerso(kRecuo + "um\\x0A", 3);
    EXPECT_EQ(m_gravadora.Chamadas(), um + um);
}

// --- labels and gauge ---

TEST_F(ImprimeVerso, EachLabelTurnsRedWhileItsLineIsTaken)
{
    AbreCom({{0, "um"}, {2, "tres"}});
    const Rotulos rotulos(Tela());
    Imprime();
    EXPECT_EQ(rotulos.cores.join(','), "Cmd1 red,Cmd1 black,Cmd2 red,Cmd2 black,Cmd3 red,Cmd3 black,"
                                       "Vrs4 red,Vrs4 black");
    EXPECT_EQ(rotulos.pintados.join(','), "Cmd1,Cmd2,Cmd3,Vrs4");
    EXPECT_TRUE(rotulos.TodosPretos());
}

TEST_F(ImprimeVerso, OfEmptyLinesOnlyTheFirstLabelTurnsRed)
{
    AbreCom({});
    const Rotulos rotulos(Tela());
    Imprime();
    EXPECT_EQ(rotulos.cores.join(','), "Cmd1 red,Cmd1 black");
}

TEST_F(ImprimeVerso, AllTenLabelsHaveTheirTurn)
{
    AbreCom({{9, "dez"}});
    const Rotulos rotulos(Tela());
    Imprime();
    EXPECT_EQ(rotulos.pintados.join(','), "Cmd1,Cmd2,Cmd3,Vrs4,Vrs5,Vrs6,Vrs7,Vrs8,Vrs9,Vrs10");
    EXPECT_TRUE(rotulos.TodosPretos());
}

TEST_F(ImprimeVerso, LabelsAreBlackAgainBeforeTheTextIsSent)
{
    m_gravadora.Roteiro("resultado IniciaPorta 0\n");
    AbreCom({{0, "um"}});
    const Rotulos rotulos(Tela());
    bool pretos = false;
    m_caixas->AoAbrir([&](QMessageBox &) {
        m_caixas->AoAbrir([&](QMessageBox &) { pretos = rotulos.TodosPretos() && !rotulos.cores.isEmpty(); });
    });
    Imprime();
    EXPECT_TRUE(pretos);
}

TEST_F(ImprimeVerso, GaugeRunsOnlyWhenSomethingIsSent)
{
    AbreCom({});
    auto *gauge = apoio::Controle<QProgressBar>(Tela(), "Gauge1");
    gauge->setValue(7);
    Imprime();
    EXPECT_EQ(gauge->value(), 7);
    Ativa();
    Poe("Text2(0)", "um");
    Imprime();
    EXPECT_EQ(gauge->value(), 100);
}

// --- failures ---

TEST_F(ImprimeVerso, PortThatDoesNotOpenIsToldAndNothingIsSent)
{
    m_gravadora.Roteiro("resultado IniciaPorta 0\n");
    AbreCom({{0, "um"}});
    Imprime();
    EsperaFalha("Erro de comunicação com a impressora.");
    EXPECT_EQ(m_gravadora.Chamadas(), QStringList{R"(IniciaPorta("COM2"))"});
    EXPECT_EQ(Texto("Text2(0)"), "um");
}

TEST_F(ImprimeVerso, AnyOtherAnswerOfThePortGoesOn)
{
    m_gravadora.Roteiro("resultado IniciaPorta 2\nresultado TravaDoc 0\nresultado FechaPorta 0\n");
    AbreCom({{0, "um"}});
    Imprime();
    EsperaUmVerso();
}

TEST_F(ImprimeVerso, PortNameThatTheLibraryRewritesIsKept)
{
    m_gravadora.Roteiro("reescreve IniciaPorta COM4\n");
    AbreCom({{0, "um"}});
    Imprime();
    EXPECT_EQ(Dados().PortaSerial, "COM4");
}

struct CasoFalha {
    std::string nome;
    QByteArray resultado;
};
void PrintTo(const CasoFalha &c, std::ostream *os)
{
    *os << "result " << c.resultado.toStdString();
}
class FalhaDoEnvio : public ImprimeVerso, public testing::WithParamInterface<CasoFalha> {};
// On purpose: the port stays open and the document held.
TEST_P(FalhaDoEnvio, IsToldAndLeavesThePortOpen)
{
    m_gravadora.Roteiro("resultado FormataTX " + GetParam().resultado + " 1\n");
    AbreCom({{0, "um"}});
    Imprime();
    EsperaFalha("Erro ao enviar as informações para a impressora.");
    const QStringList um = UmVerso(kRecuo + "um\\x0A", 3);
    EXPECT_EQ(m_gravadora.Chamadas(), um.mid(0, 3));
    Ativa();
    Imprime();
    EXPECT_EQ(m_gravadora.Chamadas(), um.mid(0, 3) + um) << "the next press opens the port again";
}
INSTANTIATE_TEST_SUITE_P(Resultados, FalhaDoEnvio,
                         testing::Values(CasoFalha{"Result0", "0"}, CasoFalha{"Result2", "2"},
                                         CasoFalha{"ResultBelowZero", "-1"}),
                         kNomeDoCaso);

TEST_F(ImprimeVerso, MissingLibraryIsToldAndTheLinesStay)
{
    ASSERT_TRUE(QFile::remove(m_escritorio.Arquivo("libqx7032.so")));
    ASSERT_TRUE(QFile(m_escritorio.Arquivo("libqx7032.so")).open(QIODevice::WriteOnly));
    AbreCom({{0, "um"}});
    Imprime();
    ASSERT_GE(m_caixas->Quantas(), 2U);
    EsperaInsira(m_caixas->Vistas()[0]);
    const apoio::Caixa falha = m_caixas->Ultima();
    EXPECT_EQ(falha.texto, "Erro de comunicação com a impressora.");
    EXPECT_EQ(falha.icone, QMessageBox::Critical);
    EXPECT_EQ(falha.botoes, QMessageBox::Ok);
    EXPECT_EQ(Foco(), "Text2(0)");
    EXPECT_EQ(Texto("Text2(0)"), "um");
}

} // namespace
