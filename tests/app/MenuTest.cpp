// The menu of the main screen, its window, the names of its controls, the hint strip and the gauge.
#include "ComMain.h"

#include "app/ajuda/Ajuda.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QSignalSpy>
#include <QTextBrowser>
#include <QTimer>

using namespace apoio;

namespace {

using MenuTest = teste::ComMain;

QList<QAction *> Entradas(const QMenu *menu)
{
    QList<QAction *> entradas;
    const auto acoes = menu->actions();
    for (QAction *acao : acoes) {
        if (!acao->isSeparator())
            entradas << acao;
    }
    return entradas;
}

struct CasoMenu {
    std::string nome;
    QString titulo;  ///< caption of the menu
    QString entrada; ///< control of the entry whose menu this is; empty: a menu of the bar
    QString entradas;
};
void PrintTo(const CasoMenu &caso, std::ostream *os)
{
    *os << caso.nome;
}
class EntradasDoMenuTest : public teste::ComMain, public testing::WithParamInterface<CasoMenu> {
protected:
    QMenu *Menu()
    {
        const CasoMenu &caso = GetParam();
        if (!caso.entrada.isEmpty())
            return Controle<QAction>(Tela(), caso.entrada)->menu();
        const auto acoes = Controle<QMenuBar>(Tela(), "")->actions();
        for (const QAction *acao : acoes) {
            if (acao->text() == caso.titulo)
                return acao->menu();
        }
        return nullptr;
    }
};
TEST_P(EntradasDoMenuTest, StandInTheirOrder)
{
    Inicia();
    const QMenu *menu = Menu();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->title(), GetParam().titulo);
    QStringList vistas;
    for (const QAction *acao : Entradas(menu))
        vistas << acao->objectName() + "=" + acao->text();
    EXPECT_EQ(vistas.join('|'), GetParam().entradas);
}
INSTANTIATE_TEST_SUITE_P(
    Menus, EntradasDoMenuTest,
    testing::Values(
        CasoMenu{"File", "&Arquivo", "",
                 QString::fromUtf8("Conf_Qx70=C&onfigurações|MOpSoft=Opções do Sof&tware|Sair=&Sair")},
        CasoMenu{"Registers", "&Cadastro", "",
                 QString::fromUtf8("Bank=&Bancos|Favor=&Favorecidos|Cidad=&Cidades|CpoX=Campo &Extra|"
                                   "Layout=&Layout de Cópia")},
        CasoMenu{"Banks", "&Bancos", "Bank",
                 QString::fromUtf8("subChequeNormal=Para Impressão de Cheque &Normal|"
                                   "subChequeTransferencia=Para Impressão de Cheque &Transferência")},
        CasoMenu{"Printing", QString::fromUtf8("&Impressão"), "",
                 QString::fromUtf8("Imp_Cheque=&Cheque|Imp_ChequeTransf=Cheque &Transferência|"
                                   "ch_pr=Cheques a &Prazo|CopiaCheque=Cópia do C&heque|"
                                   "Verso=&Verso do Cheque|Relat=&Relatório|"
                                   "Can_Rel=Cance&la Relatório")},
        CasoMenu{"Help", "Aju&da", "",
                 "Topicos=Aj&uda do Sofware QX-70 Mira|Sobre_T=&Sobre o Software QX-70 Mira"}),
    [](const auto &caso) { return caso.param.nome; });

TEST_F(MenuTest, BarHasFourMenusInTheirOrder)
{
    Inicia();
    QStringList titulos;
    for (const QAction *acao : Tela().findChild<QMenuBar *>()->actions())
        titulos << acao->text();
    EXPECT_EQ(titulos.join('|'), QString::fromUtf8("&Arquivo|&Cadastro|&Impressão|Aju&da"));
    const auto *arq = Tela().findChild<QAction *>("arq");
    ASSERT_NE(arq, nullptr);
    EXPECT_EQ(arq->text(), "&Arquivo");
}

TEST_F(MenuTest, OnlyEntriesThatLeadSomewhereAreEnabled)
{
    Inicia();
    QStringList ligadas;
    for (const char *nome : {"Conf_Qx70", "MOpSoft", "Sair", "subChequeNormal", "subChequeTransferencia",
                             "Favor", "Cidad", "CpoX", "Layout", "Imp_Cheque", "Imp_ChequeTransf", "ch_pr",
                             "CopiaCheque", "Verso", "Relat", "Can_Rel", "Topicos", "Sobre_T"}) {
        const auto *acao = Tela().findChild<QAction *>(nome);
        ASSERT_NE(acao, nullptr) << nome;
        if (acao->isEnabled())
            ligadas << nome;
    }
    EXPECT_EQ(ligadas.join(' '),
              "Conf_Qx70 MOpSoft Sair subChequeNormal Favor Cidad CpoX Imp_Cheque Verso Relat "
              "Can_Rel Topicos Sobre_T");
}

TEST_F(MenuTest, NoEntryTakesAnAcceleratorThatAnotherControlHas)
{
    Inicia();
    TerminaAbertura();
    QStringList textos;
    for (const QAction *acao : Tela().findChild<QMenuBar *>()->actions())
        textos << acao->text();
    for (const auto *botao : Tela().findChildren<QAbstractButton *>())
        textos << botao->text();
    QSet<QChar> letras;
    for (const QString &texto : textos) {
        const qsizetype onde = texto.indexOf('&');
        if (onde < 0)
            continue;
        const QChar letra = texto.at(onde + 1).toLower();
        EXPECT_FALSE(letras.contains(letra)) << texto.toStdString();
        letras.insert(letra);
    }
    EXPECT_EQ(letras.size(), 11) << "four menus and seven buttons";
}

TEST_F(MenuTest, PrintEntryDoesWhatTheButtonDoes)
{
    Inicia();
    Escolhe("Imp_Cheque");
    ASSERT_EQ(m_caixas.Quantas(), 1U);
    EXPECT_EQ(m_caixas.Ultima().texto, QString::fromUtf8("O número do banco não pode ser vazio"));
    EXPECT_EQ(Foco(Tela()), "Text1(0)");
}

TEST_F(MenuTest, PrintEntryPrintsAFilledCheque)
{
    Inicia({"001", "10,00", "Ana", "Recife", "05/03/99", "", "7"});
    Escolhe("Imp_Cheque");
    EXPECT_EQ(m_caixas.Ultima().texto, "Insira o Documento.");
    EXPECT_TRUE(Chamadas().contains(R"(ImprimeCheque("001","10,00","Ana","Recife","05/03/99",""))"))
        << Chamadas().join('\n').toStdString();
    EXPECT_EQ(m_escritorio.Linhas("SELECT Banco FROM Log").size(), 1);
}

TEST_F(MenuTest, MenuIsReachedByTheKeyboard)
{
    Inicia();
    Ativa();
    QTest::keyClick(Tela().focusWidget(), Qt::Key_A, Qt::AltModifier);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->title(), "&Arquivo");
    QSignalSpy encerrou(&Tela(), &app::Main::Encerrou);
    QTest::keyClick(menu, Qt::Key_S);
    EXPECT_EQ(encerrou.count(), 1);
}

// --- help ---

TEST_F(MenuTest, HelpOpensAtItsContentsAndStaysOneWindow)
{
    Inicia();
    Escolhe("Topicos");
    auto *ajuda = Tela().findChild<app::Ajuda *>();
    ASSERT_NE(ajuda, nullptr);
    EXPECT_TRUE(ajuda->isVisible());
    EXPECT_FALSE(ajuda->isModal());
    EXPECT_EQ(ajuda->findChild<QTextBrowser *>()->source().fileName(), "Conteudo.html");
    ajuda->close();
    Escolhe("Topicos");
    EXPECT_EQ(Tela().findChildren<app::Ajuda *>().size(), 1);
    EXPECT_TRUE(ajuda->isVisible());
}

// --- window ---

TEST_F(MenuTest, WindowHasNameAndCaption)
{
    Inicia();
    EXPECT_EQ(Tela().objectName(), "Main");
    EXPECT_EQ(Tela().windowTitle(), "QX70 - Mira Document Printer");
}

TEST_F(MenuTest, WindowFitsASmallScreenWithRoomForItsFrame)
{
    Inicia();
    for (const QSize &tamanho : {Tela().size(), Tela().minimumSizeHint()}) {
        EXPECT_LE(tamanho.width(), 1024 - 8);
        EXPECT_LE(tamanho.height(), 768 - 68) << "frame and a task bar";
    }
}

TEST_F(MenuTest, AtItsSmallestNothingIsCutOrCovered)
{
    Inicia();
    Tela().resize(Tela().minimumSizeHint());
    QApplication::processEvents();
    QList<QWidget *> controles;
    for (auto *controle : Tela().findChildren<QWidget *>()) {
        if (controle->isVisible() &&
            (qobject_cast<QLineEdit *>(controle) || qobject_cast<QAbstractButton *>(controle)) &&
            !controle->objectName().isEmpty())
            controles << controle;
    }
    ASSERT_GE(controles.size(), 31) << "six fields, three extras, ten lines, eight functions, four options";
    const auto lugar = [this](const QWidget *c) { return QRect(c->mapTo(&Tela(), QPoint()), c->size()); };
    for (qsizetype i = 0; i < controles.size(); ++i) {
        EXPECT_TRUE(Tela().rect().contains(lugar(controles[i]))) << controles[i]->objectName().toStdString();
        EXPECT_GE(controles[i]->height(), controles[i]->minimumSizeHint().height())
            << controles[i]->objectName().toStdString();
        for (qsizetype j = 0; j < i; ++j)
            EXPECT_FALSE(lugar(controles[i]).intersects(lugar(controles[j])))
                << controles[i]->objectName().toStdString() << " over "
                << controles[j]->objectName().toStdString();
    }
}

// --- names ---

template <class T> void Exige(const QWidget &tela, const QStringList &nomes)
{
    for (const QString &nome : nomes)
        EXPECT_EQ(tela.findChildren<T *>(nome).size(), 1) << nome.toStdString();
}
QStringList Arranjo(const QString &nome, const QList<int> &indices)
{
    QStringList nomes;
    for (const int i : indices)
        nomes << QString("%1(%2)").arg(nome).arg(i);
    return nomes;
}

TEST_F(MenuTest, EveryControlHasItsNameOnce)
{
    Inicia();
    TerminaAbertura();
    Exige<QLineEdit>(Tela(), Arranjo("Text1", {0, 1, 2, 3, 4, 6}));
    Exige<QLineEdit>(Tela(), Arranjo("TxtCpo", {0, 1, 2}));
    Exige<QLineEdit>(Tela(), Arranjo("Text2", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    Exige<QPushButton>(Tela(), Arranjo("Opcoes", {0, 1, 2, 3, 4, 5, 6, 7}));
    Exige<QLabel>(Tela(), Arranjo("Label1", {6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}));
    Exige<QLabel>(Tela(), {"Panel3D2", "Image1", "Label3", "Label4"});
    Exige<QRadioButton>(Tela(), {"Option1", "Option2", "Option3"});
    Exige<QCheckBox>(Tela(), {"CheckBox"});
    Exige<QGroupBox>(Tela(), {"Frame1"});
    Exige<QProgressBar>(Tela(), {"Gauge1"});
    EXPECT_EQ(Tela().findChildren<QTimer *>("Timer1").size(), 1);
    EXPECT_EQ(Tela().findChild<QWidget *>("Text1(5)"), nullptr) << "a gap of the array, on purpose";
}

// --- hint strip ---

class DicaTest : public teste::ComMain {
protected:
    QString Dica() { return Controle<QLabel>(Tela(), "Panel3D2")->text(); }
    const QString m_dosCampos = "F3 - Pesquisa  |  F8 - Limpa Campo  |  F4 - Grava Linha";
    const QString m_dosExtras = "F3 - Programa Campo  |  F8 - Limpa Campo  |  F4 - Grava Linha";
};

TEST_F(DicaTest, TellsTheKeysOfTheFields)
{
    Inicia();
    EXPECT_EQ(Dica(), m_dosCampos);
}

TEST_F(DicaTest, ChangesWhileAnExtraFieldHasTheFocus)
{
    Inicia();
    Ativa();
    QStringList vistas;
    for (const char *campo : {"TxtCpo(0)", "TxtCpo(2)", "Text2(0)", "TxtCpo(1)", "Text1(2)"}) {
        ClicaEm(Tela(), campo);
        vistas << (Dica() == m_dosExtras ? "extras" : Dica() == m_dosCampos ? "fields" : Dica());
    }
    EXPECT_EQ(vistas.join(' '), "extras extras fields extras fields");
}

// --- gauge ---

QString NomeDaCor(const QColor &cor)
{
    const bool vermelho = cor.red() > 150;
    const bool verde = cor.green() > 150;
    if (cor.blue() > 120)
        return "no colour " + cor.name();
    return vermelho && verde ? "yellow" : vermelho ? "red" : verde ? "green" : "no colour " + cor.name();
}

class IndicadorTest : public teste::ComMain {
protected:
    QProgressBar *Gauge1() { return Controle<QProgressBar>(Tela(), "Gauge1"); }
    /// Colour of the filled part, near its left end.
    QString CorMostrada()
    {
        const QImage figura = Gauge1()->grab().toImage();
        return NomeDaCor(figura.pixelColor(figura.width() / 20, figura.height() / 2));
    }
};

struct CasoCor {
    std::string nome;
    std::uint32_t bgr;
    const char *mostrada;
};
void PrintTo(const CasoCor &caso, std::ostream *os)
{
    *os << caso.nome;
}
class CorDoIndicadorTest : public IndicadorTest, public testing::WithParamInterface<CasoCor> {};
TEST_P(CorDoIndicadorTest, IsABlueGreenRedNumber)
{
    Inicia();
    Tela().Valor(50);
    Tela().Cor(GetParam().bgr);
    EXPECT_EQ(CorMostrada(), GetParam().mostrada);
    EXPECT_EQ(Gauge1()->value(), 50);
}
INSTANTIATE_TEST_SUITE_P(Cores, CorDoIndicadorTest,
                         testing::Values(CasoCor{"Green", 0x00FF00, "green"},
                                         CasoCor{"Yellow", 0x00FFFF, "yellow"},
                                         CasoCor{"Red", 0x0000FF, "red"}),
                         [](const auto &caso) { return caso.param.nome; });

TEST_F(IndicadorTest, StartsEmptyFromZeroToAHundred)
{
    Inicia();
    EXPECT_EQ(Gauge1()->minimum(), 0);
    EXPECT_EQ(Gauge1()->maximum(), 100);
    EXPECT_LE(Gauge1()->value(), 0);
}

TEST_F(IndicadorTest, PrintRunsItThroughItsColoursAndLeavesItRed)
{
    Inicia({"001", "10,00", "Ana", "Recife", "05/03/99", "", "7"});
    QStringList vistas;
    QObject::connect(Gauge1(), &QProgressBar::valueChanged, Gauge1(), [&](int valor) {
        if (QList<int>{20, 50, 60, 70, 80, 90}.contains(valor))
            vistas << QString("%1 %2").arg(valor).arg(CorMostrada());
    });
    ClicaEm(Tela(), "Opcoes(0)");
    EXPECT_EQ(vistas.join(", "), "20 green, 50 green, 60 green, 70 yellow, 80 yellow, 90 red");
    EXPECT_EQ(Gauge1()->value(), 100);
    EXPECT_EQ(CorMostrada(), "red") << "on purpose: nothing turns it back";
}

TEST_F(IndicadorTest, CancelledQuestionLeavesItAlone)
{
    Inicia({"001", "10,00", "Ana", "Recife", "05/03/99", "", "7"});
    const QSignalSpy mudou(Gauge1(), &QProgressBar::valueChanged);
    m_caixas.Responde(QMessageBox::Cancel);
    ClicaEm(Tela(), "Opcoes(0)");
    EXPECT_EQ(m_caixas.Ultima().texto, "Insira o Documento.");
    EXPECT_EQ(mudou.count(), 0);
}

} // namespace
