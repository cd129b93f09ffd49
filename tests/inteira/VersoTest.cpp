// The back of the cheque on the paper, and an extra field from its programming to its place on the front.
#include "Mesa.h"

#include <QAction>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPushButton>

namespace inteira {

namespace {

const Vista kInsiraNoVerso{QStringLiteral("Impressão do Verso"), QStringLiteral("Insira o Documento.")};
const QString kTitulo = QStringLiteral("QX70 MIRA - Document Printer");
const QString kRecuo(15, ' ');

QByteArray Numero(int numero)
{
    return QByteArray(1, static_cast<char>(numero / 256)) + QByteArray(1, static_cast<char>(numero % 256));
}

/// The three frames of a text: the document held, the text in its mode, the document let go.
QByteArray QuadrosDoVerso(int sequencia, const QByteArray &texto, int modo)
{
    return Quadro('T', sequencia, Numero(1)) +
           Quadro('F', sequencia + 1, Argumento(texto) + Numero(modo) + QByteArray(8, '\0')) +
           Quadro('T', sequencia + 2, Numero(0));
}

class VersoInteiroTest : public Mesa {
protected:
    void LigaEAbre()
    {
        Liga();
        Abre();
        Ativa();
    }
    /// Makes the screen the active window in front of the splash, so that its mnemonics are heard.
    void Ativa()
    {
        Tela().activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &Tela(); }));
    }
    /// Types the lines from the first on; an index that is not told stays empty.
    void DigitaLinhas(const QMap<int, QString> &linhas)
    {
        apoio::ClicaEm(Tela(), "Text2(0)");
        ASSERT_EQ(apoio::Foco(Tela()), "Text2(0)");
        for (int i = 0; i < 10; ++i) {
            Preenche(linhas.value(i));
            apoio::Tecla(Tela(), Qt::Key_Return);
        }
    }
    void ImprimeVerso()
    {
        Ativa(); // here nothing brings the window to the front behind a message box
        apoio::Tecla(Tela(), Qt::Key_V, Qt::AltModifier);
    }
    /// Columns of each line of the nth document.
    [[nodiscard]] std::string Larguras(int n) const
    {
        QFile arquivo(aparelho.Documentos().value(n - 1).chopped(4) + ".json");
        if (!arquivo.open(QIODevice::ReadOnly))
            return "no detail";
        std::string larguras;
        const QJsonArray linhas = QJsonDocument::fromJson(arquivo.readAll()).object()["linhas"].toArray();
        for (const auto &linha : linhas)
            larguras += std::to_string(linha.toObject()["largura"].toInt()) + ' ';
        return larguras;
    }
    void EsperaUmaFolha(const QStringList &linhas)
    {
        EXPECT_EQ(Vistas(), std::vector{kInsiraNoVerso});
        ASSERT_EQ(aparelho.Documentos().size(), 1);
        EXPECT_TRUE(aparelho.Documentos()[0].endsWith("-folha.txt"));
        EXPECT_EQ(Folha(1), linhas);
        EXPECT_EQ(apoio::Foco(Tela()), "Text2(0)");
        EXPECT_EQ(Log().size(), 0);
    }
};

} // namespace

TEST_F(VersoInteiroTest, TenLinesStandIndentedOneBelowTheOther)
{
    LigaEAbre();
    QMap<int, QString> linhas;
    QStringList esperadas;
    for (int i = 0; i < 10; ++i) {
        linhas[i] = QString("Linha %1 do endosso").arg(i + 1);
        esperadas << kRecuo + linhas[i];
    }
    DigitaLinhas(linhas);
    ImprimeVerso();
    EsperaUmaFolha(esperadas);
    EXPECT_EQ(aparelho.Bytes().toHex(' '),
              QuadrosDoVerso(0, esperadas.join('\n').toLatin1() + '\n', 3).toHex(' '));
}

TEST_F(VersoInteiroTest, ALineInTheMiddleStandsInItsPlace)
{
    LigaEAbre();
    DigitaLinhas({{5, "So a sexta"}});
    ImprimeVerso();
    EsperaUmaFolha({"", "", "", "", "", kRecuo + "So a sexta"});
    EXPECT_EQ(aparelho.Bytes().toHex(' '),
              QuadrosDoVerso(0, "\n\n\n\n\n" + kRecuo.toLatin1() + "So a sexta\n", 3).toHex(' '));
}

TEST_F(VersoInteiroTest, SixtyFiveCharactersFillTheEightyColumns)
{
    LigaEAbre();
    const QString linha = QString("0123456789").repeated(6) + "ABCDE";
    DigitaLinhas({{0, linha}, {1, "curta"}});
    ImprimeVerso();
    EsperaUmaFolha({kRecuo + linha, kRecuo + "curta"});
    EXPECT_EQ(Larguras(1), "80 80 ");
}

TEST_F(VersoInteiroTest, OneCharacterMoreMakesAllLinesNarrower)
{
    LigaEAbre();
    const QString linha = QString("0123456789").repeated(6) + "ABCDEF";
    const QString cheia = QString("0123456789").repeated(8);
    DigitaLinhas({{0, "curta"}, {1, linha}, {2, cheia}});
    ImprimeVerso();
    EsperaUmaFolha({kRecuo + "curta", kRecuo + linha, kRecuo + cheia});
    EXPECT_EQ(Larguras(1), "96 96 96 ");
}

TEST_F(VersoInteiroTest, AccentsStandRightOnThePaper)
{
    LigaEAbre();
    DigitaLinhas({{0, "São João, à vista: não à ordem"}, {1, "Ç É Õ Ü ª º §"}});
    ImprimeVerso();
    EsperaUmaFolha({kRecuo + "São João, à vista: não à ordem", kRecuo + "Ç É Õ Ü ª º §"});
}

TEST_F(VersoInteiroTest, SavedLinesComeOutAtTheNextStart)
{
    PoeChave("Verso", "Linha00", "Pague-se a Ana");
    PoeChave("Verso", "Linha02", " ");
    LigaEAbre();
    ImprimeVerso();
    EsperaUmaFolha({kRecuo + "Pague-se a Ana", "", ""});
    EXPECT_EQ(aparelho.Bytes().toHex(' '),
              QuadrosDoVerso(0, kRecuo.toLatin1() + "Pague-se a Ana\n\n" + QByteArray(16, ' ') + '\n', 3)
                  .toHex(' '));
}

TEST_F(VersoInteiroTest, EmptyLinesSendNoByte)
{
    LigaEAbre();
    ImprimeVerso();
    EXPECT_EQ(Vistas(), std::vector{kInsiraNoVerso});
    EXPECT_EQ(aparelho.Bytes().toHex(), QByteArray());
    EXPECT_EQ(aparelho.Documentos().size(), 0);
}

TEST_F(VersoInteiroTest, ChequeThenItsBack)
{
    CadastraBanco("001", "Primeiro", kPosicoesPadrao);
    LigaEAbre();
    Digita({"1", "10", "Ana", "Olinda", "010224", "1", {"Cruzado"}});
    Imprime();
    ImprimeVerso();
    ASSERT_EQ(aparelho.Documentos().size(), 2);
    EXPECT_EQ(Folha(1),
              FolhaEsperada(kPosicoesPadrao,
                            {"10,00", "dez reais", "Ana", "Olinda", "01", "Fevereiro", "2024", {}}));
    EXPECT_EQ(Folha(2), QStringList{kRecuo + "Cruzado"});
    EXPECT_EQ(Log().size(), 1) << "the cheque has a row, its back has none";
}

TEST_F(VersoInteiroTest, ADeviceThatIsOffIsTold)
{
    Abre();
    DigitaLinhas({{0, "um"}});
    ImprimeVerso();
    EXPECT_EQ(Vistas(),
              (std::vector<Vista>{kInsiraNoVerso, {kTitulo, "Erro de comunicação com a impressora."}}));
    EXPECT_EQ(apoio::Foco(Tela()), "Text2(0)");
}

TEST_F(VersoInteiroTest, ARefusedTextIsToldAndTheNextPressPrintsItOnce)
{
    LigaEAbre();
    DigitaLinhas({{0, "um"}, {1, "dois"}});
    aparelho.PoeFalha("sem-documento");
    ImprimeVerso();
    const Vista falha{kTitulo, "Erro ao enviar as informações para a impressora."};
    EXPECT_EQ(Vistas(), (std::vector<Vista>{kInsiraNoVerso, falha}));
    EXPECT_EQ(aparelho.Documentos().size(), 0);
    aparelho.PoeFalha("nenhuma");
    ImprimeVerso();
    EXPECT_EQ(Vistas(), (std::vector<Vista>{kInsiraNoVerso, falha, kInsiraNoVerso}));
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(Folha(1), (QStringList{kRecuo + "um", kRecuo + "dois"}));
}

// --- an extra field, from its programming to the paper ---

class CampoProgramadoTest : public Mesa {
protected:
    CampoProgramadoTest()
    {
        CadastraBanco("001", "Primeiro", kPosicoesPadrao);
        Liga();
        Abre();
    }
    QWidget &CmpExtra()
    {
        auto *tela = Tela().findChild<QWidget *>("CmpExtra");
        if (!tela || !tela->isVisible())
            throw std::runtime_error("the screen is not open");
        return *tela;
    }
    static bool Ativa(QWidget &tela)
    {
        tela.activateWindow();
        return QTest::qWaitFor([&tela] { return QApplication::activeWindow() == &tela; });
    }
    /// F3 in the extra field, then its number, line and column by keys alone.
    void Programa(int campo, const QString &linha, const QString &coluna)
    {
        TabAte(QString("TxtCpo(%1)").arg(campo));
        apoio::Tecla(Tela(), Qt::Key_F3);
        QWidget &tela = CmpExtra();
        ASSERT_TRUE(Ativa(tela));
        const auto vai = [&tela](const QString &nome) {
            for (int i = 0; i < 20 && apoio::Foco(tela) != nome; ++i)
                apoio::Tecla(tela, Qt::Key_Tab);
            ASSERT_EQ(apoio::Foco(tela), nome);
        };
        vai("CmdNumCampo(0)");
        apoio::Tecla(tela, Qt::Key_Space);
        for (int i = 0; i < campo; ++i)
            apoio::Tecla(tela, Qt::Key_Down);
        vai("PosText(0)");
        apoio::Digita(tela, linha);
        vai("PosText(1)");
        apoio::Digita(tela, coluna);
        vai("BtnCmd(0)");
        apoio::Tecla(tela, Qt::Key_Return);
        apoio::Tecla(tela, Qt::Key_Escape);
        ASSERT_TRUE(Ativa(Tela()));
    }
};

TEST_F(CampoProgramadoTest, ComesOutAtItsLineAndColumn)
{
    Programa(0, "2", "3");
    Programa(2, "20", "100");
    TabAte("Text1(0)");
    Digita({"1", "10", "Ana", "Olinda", "010224", "1", {}});
    TabAte("TxtCpo(0)");
    Preenche("Bom para 10/03");
    TabAte("TxtCpo(2)");
    Preenche("No 42");
    TabAte("Opcoes(0)");
    Imprime();
    EXPECT_EQ(Vistas(), std::vector{kInsira});
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(Folha(1), FolhaEsperada(kPosicoesPadrao, {"10,00",
                                                        "dez reais",
                                                        "Ana",
                                                        "Olinda",
                                                        "01",
                                                        "Fevereiro",
                                                        "2024",
                                                        {{2, 3, "Bom para 10/03"}, {20, 100, "No 42"}}}));
}

} // namespace inteira
