// The system printer over a printing system of the test's own: its dialogue, what comes out on the sheets,
// and what fails.
#include "apoio/Caixas.h"
#include "apoio/Dialogos.h"
#include "apoio/FilaDeImpressao.h"
#include "plataforma/ambiente/Printer.h"
#include "plataforma/ambiente/PrintServer.h"
#include "plataforma/basico/RuntimeError.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <QComboBox>
#include <QElapsedTimer>
#include <QPrintDialog>
#include <QRadioButton>
#include <QRegularExpression>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using apoio::AperteNoDialogo;
using apoio::Fila;
using apoio::FilaDeImpressao;
using plataforma::Printer;

namespace {

using Dialogo = apoio::Dialogos<QPrintDialog>;

void Aceita(QPrintDialog &dialogo)
{
    AperteNoDialogo(dialogo, QDialogButtonBox::Ok);
}
void Cancela(QPrintDialog &dialogo)
{
    AperteNoDialogo(dialogo, QDialogButtonBox::Cancel);
}

/// Unfolds the lower part of the dialogue.
void MostraOpcoes(QPrintDialog &dialogo)
{
    const auto *linha = dialogo.findChild<QDialogButtonBox *>();
    for (QAbstractButton *botao : linha->buttons())
        if (linha->standardButton(botao) == QDialogButtonBox::NoButton)
            QTest::mouseClick(botao, Qt::LeftButton);
}

bool Escolhivel(const QPrintDialog &dialogo, const char *nome)
{
    const auto *opcao = dialogo.findChild<QRadioButton *>(nome);
    return opcao && opcao->isEnabled() && opcao->isVisibleTo(&dialogo);
}

/// Number of the failure of an action, 0 when there was none.
template <class F> int Falha(F acao)
{
    try {
        acao();
    } catch (const plataforma::RuntimeError &falha) {
        EXPECT_FALSE(falha.text().isEmpty());
        return falha.number();
    }
    return 0;
}

QStringList Numeradas(int quantas)
{
    QStringList linhas;
    for (int i = 1; i <= quantas; ++i)
        linhas << QStringLiteral("linha %1").arg(i);
    return linhas;
}

class PrinterTest : public testing::Test {
protected:
    void ComFilas(const QList<Fila> &filas)
    {
        m_cups = std::make_unique<FilaDeImpressao>(filas);
        m_cups->Liga();
    }
    void ComFila() { ComFilas({{"Papel"}}); }
    /// One document of some pages, each a block.
    void Imprime(const QStringList &paginas)
    {
        Dialogo dialogo(Aceita);
        m_printer.ShowPrinter();
        for (qsizetype i = 0; i < paginas.size(); ++i) {
            if (i > 0)
                m_printer.NewPage();
            m_printer.Print(paginas[i]);
        }
        m_printer.EndDoc();
    }

    std::unique_ptr<FilaDeImpressao> m_cups;
    Printer m_printer{QStringLiteral("Relatório")};
};

// The dialogue

struct CasoDialogo {
    std::string nome;
    int flags;
    bool arquivo, paginas, selecao; ///< what the dialogue offers
};
void PrintTo(const CasoDialogo &c, std::ostream *os)
{
    *os << std::hex << c.flags;
}
class ShowPrinterTest : public PrinterTest, public testing::WithParamInterface<CasoDialogo> {};

TEST_P(ShowPrinterTest, OffersWhatTheFlagsLeave)
{
    ComFila();
    Dialogo dialogo([](QPrintDialog &aberto) {
        const auto *filas = aberto.findChild<QComboBox *>("printers");
        ASSERT_NE(filas, nullptr);
        EXPECT_EQ(filas->itemText(0), "Papel");
        EXPECT_EQ(filas->count() > 1, GetParam().arquivo) << "printing to a file stands behind the printers";
        MostraOpcoes(aberto);
        for (const char *nome : {"printRange", "pagesRadioButton"})
            EXPECT_EQ(Escolhivel(aberto, nome), GetParam().paginas) << nome;
        EXPECT_EQ(Escolhivel(aberto, "printSelection"), GetParam().selecao);
        EXPECT_TRUE(Escolhivel(aberto, "printAll"));
        Cancela(aberto);
    });
    EXPECT_EQ(Falha([this] { m_printer.ShowPrinter(GetParam().flags); }), 32755);
    EXPECT_EQ(dialogo.Vistos(), 1);
}
INSTANTIATE_TEST_SUITE_P(Printer, ShowPrinterTest,
                         testing::Values(CasoDialogo{"TheReports", 0x10000C, false, false, false},
                                         CasoDialogo{"Everything", 0, true, true, true},
                                         CasoDialogo{"NoSelection", 0x4, true, true, false},
                                         CasoDialogo{"NoPageNumbers", 0x8, true, false, true},
                                         CasoDialogo{"HidePrintToFile", 0x100000, false, true, true}),
                         [](const auto &caso) { return caso.param.nome; });

TEST_F(PrinterTest, TheReportsFlagsAreTheUsualOnes)
{
    EXPECT_EQ(plataforma::kSoAImpressora, 0x10000C);
}

TEST_F(PrinterTest, TheDefaultPrinterIsShownFirstAndAnotherCanBeChosen)
{
    ComFilas({{"Alfa", false, true}, {"Beta", true}, {"Gama", false}});
    QString primeira;
    Dialogo dialogo([&](QPrintDialog &aberto) {
        auto *filas = aberto.findChild<QComboBox *>("printers");
        primeira = filas->currentText();
        filas->setCurrentIndex(filas->findText("Gama"));
        Aceita(aberto);
    });
    m_printer.ShowPrinter();
    EXPECT_EQ(primeira, "Beta");
    m_printer.Print("na Gama");
    m_printer.EndDoc();
    EXPECT_EQ(apoio::FolhasDoPdf(m_cups->Documento(1)), (QList<QStringList>{{"na Gama"}}));
}

TEST_F(PrinterTest, CancellingIs32755AndPrintsNothing)
{
    ComFila();
    {
        Dialogo dialogo(Cancela);
        EXPECT_EQ(Falha([this] { m_printer.ShowPrinter(); }), 32755);
        EXPECT_EQ(dialogo.Vistos(), 1);
    }
    Imprime({"o segundo"});
    EXPECT_EQ(apoio::FolhasDoPdf(m_cups->Documento(1)), (QList<QStringList>{{"o segundo"}}));
}

TEST_F(PrinterTest, EscCancels)
{
    ComFila();
    Dialogo dialogo([](QPrintDialog &aberto) { QTest::keyClick(&aberto, Qt::Key_Escape); });
    EXPECT_EQ(Falha([this] { m_printer.ShowPrinter(); }), 32755);
}

TEST_F(PrinterTest, AKeyHeldDownFromBeforeAnswersNothing)
{
    ComFila();
    bool aberta = false;
    Dialogo dialogo([&](QPrintDialog &aberto) {
        QKeyEvent repetida(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
        QApplication::sendEvent(aberto.focusWidget() ? aberto.focusWidget() : &aberto, &repetida);
        aberta = aberto.isVisible();
        QTest::keyClick(&aberto, Qt::Key_Return);
    });
    EXPECT_EQ(Falha([this] { m_printer.ShowPrinter(); }), 0);
    EXPECT_TRUE(aberta);
}

// What cannot be printed

TEST_F(PrinterTest, WithoutAPrintingSystemItIs482AtOnceAndNothingIsAsked)
{
    const FilaDeImpressao desligada;
    Dialogo dialogo(Aceita);
    QElapsedTimer relogio;
    relogio.start();
    EXPECT_EQ(Falha([this] { m_printer.ShowPrinter(); }), 482);
    EXPECT_EQ(dialogo.Vistos(), 0);
    EXPECT_LT(relogio.elapsed(), 3000);
}

TEST_F(PrinterTest, WithoutPrintersItIs482AndNothingIsAsked)
{
    ComFilas({});
    Dialogo dialogo(Aceita);
    EXPECT_EQ(Falha([this] { m_printer.ShowPrinter(); }), 482);
    EXPECT_EQ(dialogo.Vistos(), 0);
}

TEST_F(PrinterTest, ADisabledPrinterIs482)
{
    ComFilas({{"Papel", true, true}});
    Dialogo dialogo(Aceita);
    EXPECT_EQ(Falha([this] { m_printer.ShowPrinter(); }), 482);
    EXPECT_EQ(dialogo.Vistos(), 1);
}

TEST_F(PrinterTest, APrinterThatTakesNoDocumentsIs482)
{
    ComFilas({{"Papel", true, false, true}});
    EXPECT_EQ(Falha([this] { Imprime({"recusado"}); }), 482);
    EXPECT_EQ(m_cups->Documentos(), 0);
}

TEST_F(PrinterTest, APrintingSystemThatGoesMeanwhileIs482)
{
    ComFila();
    Dialogo dialogo(Aceita);
    m_printer.ShowPrinter();
    m_printer.Print("perdido");
    m_cups->Desliga();
    EXPECT_EQ(Falha([this] { m_printer.EndDoc(); }), 482);
}

TEST_F(PrinterTest, EndDocWithoutAPrinterIs482)
{
    m_printer.Print("sem destino");
    EXPECT_EQ(Falha([this] { m_printer.EndDoc(); }), 482);
}

TEST_F(PrinterTest, ADocumentThatIsNotEndedPrintsNothing)
{
    ComFila();
    {
        Dialogo dialogo(Aceita);
        Printer abandonada("Abandonada");
        abandonada.ShowPrinter();
        abandonada.Print("nunca");
        abandonada.NewPage();
    }
    Imprime({"este sim"});
    EXPECT_EQ(apoio::FolhasDoPdf(m_cups->Documento(1)), (QList<QStringList>{{"este sim"}}));
}

/// A socket that takes callers and never says a word.
class Mudo {
public:
    explicit Mudo(const QString &caminho) : m_fd(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un endereco{};
        endereco.sun_family = AF_UNIX;
        std::strncpy(endereco.sun_path, QFile::encodeName(caminho).constData(), sizeof endereco.sun_path - 1);
        EXPECT_EQ(bind(m_fd, reinterpret_cast<const sockaddr *>(&endereco), sizeof endereco), 0);
        EXPECT_EQ(listen(m_fd, 8), 0);
    }
    ~Mudo() { close(m_fd); }
    Mudo(const Mudo &) = delete;
    Mudo &operator=(const Mudo &) = delete;

private:
    int m_fd;
};

TEST_F(PrinterTest, APrintingSystemThatSaysNothingIsGivenUp)
{
    const FilaDeImpressao desligada;
    const Mudo mudo(FilaDeImpressao::Elo());
    QElapsedTimer relogio;
    relogio.start();
    EXPECT_FALSE(plataforma::PrintServerAnswers(300));
    EXPECT_LT(relogio.elapsed(), 5000);
}

TEST_F(PrinterTest, APrintingSystemThatRunsAnswers)
{
    ComFilas({});
    EXPECT_TRUE(plataforma::PrintServerAnswers());
}

// The sheets

TEST_F(PrinterTest, ABlockComesOutLineByLine)
{
    ComFila();
    const QString linha = "  12345678901234567890 | Não é só ação: Nº 1    fim";
    Imprime({linha + "\r\n" + "segunda\n" + "\r\n" + "quarta"});
    EXPECT_EQ(apoio::FolhasDoPdf(m_cups->Documento(1)),
              (QList<QStringList>{{linha, "segunda", "", "quarta"}}));
}

TEST_F(PrinterTest, BlocksOfAPageStandBelowEachOther)
{
    ComFila();
    Dialogo dialogo(Aceita);
    m_printer.ShowPrinter();
    m_printer.Print("um\r\n");
    m_printer.Print("dois");
    m_printer.EndDoc();
    EXPECT_EQ(apoio::FolhasDoPdf(m_cups->Documento(1)), (QList<QStringList>{{"um", "dois"}}));
}

TEST_F(PrinterTest, EachNewPageIsASheet)
{
    ComFila();
    Imprime({"primeira", "", "terceira"});
    EXPECT_EQ(apoio::FolhasDoPdf(m_cups->Documento(1)), (QList<QStringList>{{"primeira"}, {}, {"terceira"}}));
}

TEST_F(PrinterTest, ANewPageAtTheEndIsNoSheet)
{
    ComFila();
    Dialogo dialogo(Aceita);
    m_printer.ShowPrinter();
    m_printer.Print("só");
    m_printer.NewPage();
    m_printer.EndDoc();
    EXPECT_EQ(apoio::FolhasDoPdf(m_cups->Documento(1)).size(), 1);
}

TEST_F(PrinterTest, APageLongerThanTheSheetFlowsOn)
{
    ComFila();
    const QStringList linhas = Numeradas(200);
    Imprime({linhas.join("\r\n"), "a seguinte"});
    const QList<QStringList> folhas = apoio::FolhasDoPdf(m_cups->Documento(1));
    ASSERT_EQ(folhas.size(), 4);
    EXPECT_EQ(folhas[0] + folhas[1] + folhas[2], linhas);
    EXPECT_EQ(folhas[0].size(), folhas[1].size());
    // A4 within margins of 12 points, lines of 9 points and a little air between them.
    EXPECT_GE(folhas[0].size(), 70);
    EXPECT_LE(folhas[0].size(), 90);
    EXPECT_EQ(folhas[3], QStringList("a seguinte"));
}

TEST_F(PrinterTest, APageThatFillsTheSheetTakesNoSecondOne)
{
    ComFila();
    Imprime({Numeradas(200).join("\r\n")});
    const int cabem = static_cast<int>(apoio::FolhasDoPdf(m_cups->Documento(1)).first().size());
    Imprime({Numeradas(cabem).join("\r\n") + "\r\n"});
    EXPECT_EQ(apoio::FolhasDoPdf(m_cups->Documento(2)).size(), 1);
    Imprime({Numeradas(cabem + 1).join("\r\n")});
    EXPECT_EQ(apoio::FolhasDoPdf(m_cups->Documento(3)).size(), 2);
}

TEST_F(PrinterTest, OnePrinterPrintsOneDocumentAfterTheOther)
{
    ComFila();
    Imprime({"um"});
    Imprime({"dois"});
    EXPECT_EQ(apoio::FolhasDoPdf(m_cups->Documento(1)), (QList<QStringList>{{"um"}}));
    EXPECT_EQ(apoio::FolhasDoPdf(m_cups->Documento(2)), (QList<QStringList>{{"dois"}}));
}

struct CasoFonte {
    std::string nome;
    double pedido; ///< 0: none is asked for
    double pontos;
};
void PrintTo(const CasoFonte &c, std::ostream *os)
{
    *os << c.pontos << " points";
}
class FonteTest : public PrinterTest, public testing::WithParamInterface<CasoFonte> {};

TEST_P(FonteTest, IsCourierNewOrTheOneOfItsWidths)
{
    ComFila();
    if (GetParam().pedido > 0)
        m_printer.SetFont("Courier New", GetParam().pedido);
    Imprime({QString(50, ' ') + "coluna51\r\n"});
    const QString pdf = m_cups->Documento(1);
    const QString fontes = apoio::SaidaDe("pdffonts", {pdf});
    EXPECT_TRUE(fontes.contains(QRegularExpression("CourierNew|LiberationMono"))) << fontes.toStdString();
    const QString onde = apoio::SaidaDe("pdftotext", {"-bbox", pdf, "-"});
    const auto palavra = QRegularExpression("xMin=\"([0-9.]+)\"[^>]*>coluna51<").match(onde);
    ASSERT_TRUE(palavra.hasMatch()) << onde.toStdString();
    // The margin of 12 points, and fifty characters of 0.6 of the size.
    EXPECT_NEAR(palavra.captured(1).toDouble(), 12 + 50 * 0.6 * GetParam().pontos, 1.5);
}
INSTANTIATE_TEST_SUITE_P(Printer, FonteTest,
                         testing::Values(CasoFonte{"NineFromTheBeginning", 0, 9}, CasoFonte{"Nine", 9, 9},
                                         CasoFonte{"Twelve", 12, 12}),
                         [](const auto &caso) { return caso.param.nome; });

TEST_F(PrinterTest, TheQueueKnowsTheDocumentByItsName)
{
    ComFila();
    Imprime({"x"});
    EXPECT_TRUE(apoio::SaidaDe("pdfinfo", {m_cups->Documento(1)})
                    .contains(QRegularExpression("Title: +Relatório\n")));
}

} // namespace
