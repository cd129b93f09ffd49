// The report of the list on the device, page by page, a cheque of the log printed once more, and cheques
// cancelled in the device.
#include "Mesa.h"

#include "plataforma/tela/Lista.h"

#include <QAction>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace inteira {

namespace {

const Vista kNovoDocumento{QStringLiteral("Impressão de Relatório"),
                           QStringLiteral("Insira novo Documento...")};
const QString kMargem(12, ' ');
const QString kTraco = kMargem + QString(94, '-');

class RelatorioInteiroTest : public Mesa {
protected:
    /// A log of cheques of 1.000,50 each, every one with its number.
    void PoeNoLog(int quantos)
    {
        for (int i = 1; i <= quantos; ++i)
            escritorio.Sql(
                QString("INSERT INTO Log (\"Index\", Codigo, Banco, V_CH, Favor, Local, Data, NRCH, "
                        "StCancel, Comentario, Comentario1, Comentario2) VALUES ('%1', '%2', '001', "
                        "'1000,5', 'José Ação', 'São Luís', '17/05/24', '%3', ' ', 'um', 'dois', '')")
                    .arg(i, 10, 10, QChar('0'))
                    .arg(i, 5, 10, QChar('0'))
                    .arg(i, 6, 10, QChar('0')));
    }
    void AbreRelato()
    {
        Tela().findChild<QAction *>("Relat")->trigger();
        Ativa();
    }
    void Ativa()
    {
        Relato().activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &Relato(); }));
    }
    QWidget &Relato()
    {
        auto *relato = Tela().findChild<QWidget *>("Relato");
        if (!relato)
            throw std::runtime_error("the list is not open");
        return *relato;
    }
    /// A page as it must stand on the sheet: cheques from one number to another, then the totals.
    static QStringList Pagina(int numero, int de, int ate, const QString &pagina, const QString &acumulado)
    {
        QStringList linhas = {kTraco,
                              kMargem + "17/05/24               Relatorio de Cheques Impressos",
                              QString(32, ' ') + QString("Pag:0%1/03").arg(numero),
                              kTraco,
                              kMargem + "N. Cheque    | Bco | Valor            | Data     | Favorecido",
                              kTraco};
        for (int i = de; i <= ate; ++i)
            linhas << kMargem + QString("      %1 | 001 |         1.000,50 | 17/05/24 | José Ação")
                                    .arg(i, 6, 10, QChar('0'));
        linhas << kTraco;
        linhas << kMargem + "Total da página              |" + pagina.rightJustified(17);
        linhas << kMargem + "Total acumulado              |" + acumulado.rightJustified(17);
        linhas << kMargem + "Total cancelados acumulados  |" + QString("0,00").rightJustified(17);
        return linhas;
    }
    /// The sheet without the blanks at the ends of its lines.
    [[nodiscard]] std::string NoPapel(int n) const
    {
        QStringList linhas = Folha(n);
        for (QString &linha : linhas)
            while (linha.endsWith(' '))
                linha.chop(1);
        while (!linhas.isEmpty() && linhas.last().isEmpty())
            linhas.removeLast();
        return linhas.join('\n').toStdString();
    }
};

} // namespace

TEST_F(RelatorioInteiroTest, ThreePagesComeOutPageByPage)
{
    PoeNoLog(30);
    Liga();
    Abre();
    AbreRelato();
    apoio::ClicaEm(Relato(), "SSCommand1");
    EXPECT_EQ(Vistas(), (std::vector{kInsira, kNovoDocumento, kNovoDocumento}));
    ASSERT_EQ(aparelho.Documentos().size(), 3);
    EXPECT_EQ(NoPapel(1), Pagina(1, 1, 13, "13.006,50", "13.006,50").join('\n').toStdString());
    EXPECT_EQ(NoPapel(2), Pagina(2, 14, 26, "13.006,50", "26.013,00").join('\n').toStdString());
    EXPECT_EQ(NoPapel(3), Pagina(3, 27, 30, "4.002,00", "30.015,00").join('\n').toStdString());
}

TEST_F(RelatorioInteiroTest, CancelBetweenThePagesEndsIt)
{
    PoeNoLog(30);
    Liga();
    Abre();
    AbreRelato();
    caixas.Responde(QMessageBox::Ok);
    caixas.Responde(QMessageBox::Cancel);
    apoio::ClicaEm(Relato(), "SSCommand1");
    EXPECT_EQ(Vistas(), (std::vector{kInsira, kNovoDocumento}));
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(NoPapel(1), Pagina(1, 1, 13, "13.006,50", "13.006,50").join('\n').toStdString());
}

TEST_F(RelatorioInteiroTest, ADeviceThatIsOffIsToldAndNoPageIsLostInSilence)
{
    PoeNoLog(1);
    Abre(); // nothing is at the other end of the line
    AbreRelato();
    apoio::ClicaEm(Relato(), "SSCommand1");
    const Vista semPorta{"QX70 MIRA - Document Printer", "Erro de comunicação com a impressora."};
    EXPECT_EQ(Vistas(), (std::vector{kInsira, semPorta}));
}

TEST_F(RelatorioInteiroTest, AReprintComesOutAndLeavesNoSecondRow)
{
    CadastraBanco("001", "Primeiro", kPosicoesPadrao);
    PoeNoLog(2);
    Liga();
    Abre();
    AbreRelato();
    auto *lista = apoio::Controle<plataforma::Lista>(Relato(), "List1");
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {},
                      QPoint(20, lista->visualRect(lista->model()->index(1, 0)).center().y()));
    apoio::ClicaEm(Relato(), "SSCommand3");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Campos().mid(0, 6),
              (QStringList{"001", "1.000,50", "José Ação", "São Luís", "17/05/24", "000002"}));
    Tela().activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &Tela(); }));
    apoio::ClicaEm(Tela(), "Text1(6)");
    apoio::Tecla(Tela(), Qt::Key_Return);
    Imprime();
    EXPECT_EQ(Vistas(), std::vector{kInsira});
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(Folha(1), FolhaEsperada(kPosicoesPadrao, {"1.000,50",
                                                        "mil reais e cinquenta centavos",
                                                        "José Ação",
                                                        "São Luís",
                                                        "17",
                                                        "Maio",
                                                        "2024",
                                                        {}}));
    EXPECT_EQ(Log().size(), 2) << "no second row";
}

namespace {

/// A screen that cancels in the device, what is chosen there, and what the device must get.
struct CasoCancela {
    std::string nome;
    QString tela;
    QStringList opcoes;
    QString botao;
    QByteArray alvo;
    qsizetype ficam;           ///< cheques in the device's own report, of three
    QList<QStringList> status; ///< of the rows, in their order
};
void PrintTo(const CasoCancela &c, std::ostream *os)
{
    *os << c.nome;
}
class CancelaInteiroTest : public RelatorioInteiroTest, public testing::WithParamInterface<CasoCancela> {
protected:
    void ImprimeTres()
    {
        CadastraBanco("001", "Primeiro", kPosicoesPadrao);
        Liga();
        Abre();
        for (const char *numero : {"7", "8", "9"}) {
            Digita({"1", "1234,5", "Maria", "Recife", "030524", numero, {}});
            Imprime();
        }
        ASSERT_EQ(aparelho.Documentos().size(), 3);
        ASSERT_EQ(NaMemoria(), 3);
    }
    QWidget &AbreTela()
    {
        if (GetParam().tela == "CanRel") {
            Tela().findChild<QAction *>("Can_Rel")->trigger();
        } else {
            AbreRelato();
            apoio::ClicaEm(Relato(), "SSCommand4");
        }
        auto *tela = Tela().findChild<QWidget *>(GetParam().tela);
        if (!tela)
            throw std::runtime_error("no screen that cancels");
        return *tela;
    }
    /// Cheques in the report that the device keeps.
    [[nodiscard]] qsizetype NaMemoria() const
    {
        QFile arquivo(aparelho.PastaDosDocumentos() + "/memoria.json");
        if (!arquivo.open(QIODevice::ReadOnly))
            return -1;
        return QJsonDocument::fromJson(arquivo.readAll()).object()["relatorio"].toArray().size();
    }
    /// How often an order to cancel stands on the line, whatever its number in the sequence.
    static qsizetype Ordens(const QByteArray &bytes, const QByteArray &alvo)
    {
        qsizetype vezes = 0;
        for (int sequencia = 0; sequencia < 256; ++sequencia)
            vezes += bytes.count(Quadro('R', sequencia, Argumento(alvo)));
        return vezes;
    }
};

} // namespace

TEST_P(CancelaInteiroTest, TheDeviceGetsItsLetterAndForgetsTheCheques)
{
    ImprimeTres();
    const qsizetype antes = aparelho.Bytes().size();
    QWidget &tela = AbreTela();
    for (const QString &opcao : GetParam().opcoes)
        apoio::Controle<QAbstractButton>(tela, opcao)->click();
    apoio::ClicaEm(tela, GetParam().botao);
    const QByteArray bytes = aparelho.Bytes().mid(antes);
    for (const char *alvo : {"u", "U", "*"})
        EXPECT_EQ(Ordens(bytes, alvo), GetParam().alvo == alvo ? 1 : 0) << alvo;
    EXPECT_EQ(NaMemoria(), GetParam().ficam);
    EXPECT_EQ(escritorio.Linhas("SELECT trim(StCancel) FROM Log ORDER BY rowid"), GetParam().status);
    EXPECT_EQ(Vistas(), std::vector<Vista>(3, kInsira)) << "nothing is told";
    EXPECT_FALSE(tela.isVisible());
}

INSTANTIATE_TEST_SUITE_P(
    Telas, CancelaInteiroTest,
    testing::Values(CasoCancela{"TheLastFromTheLog",
                                "ExcluiRel",
                                {"RadioBox01(0)", "CheckBox01(0)"},
                                "BtnCmd(0)",
                                "u",
                                2,
                                {{""}, {""}, {"C"}}},
                    CasoCancela{"AllFromTheLog",
                                "ExcluiRel",
                                {"RadioBox01(1)", "CheckBox01(0)"},
                                "BtnCmd(0)",
                                "*",
                                0,
                                {{"C"}, {"C"}, {"C"}}},
                    CasoCancela{"TheLastInTheDeviceAlone",
                                "ExcluiRel",
                                {"RadioBox01(0)", "CheckBox01(0)", "CheckBox01(1)"},
                                "BtnCmd(0)",
                                "u",
                                2,
                                {{""}, {""}, {""}}},
                    CasoCancela{
                        "TheLastFromTheMenu", "CanRel", {}, "Command3D1(1)", "U", 2, {{""}, {""}, {""}}},
                    CasoCancela{"AllFromTheMenu", "CanRel", {}, "Command3D1(0)", "*", 0, {{""}, {""}, {""}}},
                    CasoCancela{"NoneFromTheMenu", "CanRel", {}, "Command3D1(2)", "", 3, {{""}, {""}, {""}}}),
    [](const auto &caso) { return caso.param.nome; });

} // namespace inteira
