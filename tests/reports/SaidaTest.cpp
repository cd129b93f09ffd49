// Listings of the registers on their way out: from the register's screen over Saida to a library that records
// its calls, and to the sheets of a printing system.
#include "apoio/Dialogos.h"
#include "apoio/FilaDeImpressao.h"
#include "ComCadastro.h"
#include "TeclaNoEnvio.h"

#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QPrintDialog>
#include <QRadioButton>

using namespace teste;

namespace {

constexpr int kPorNome = 0;
constexpr int kPorCodigo = 1;
const QString kInsira = QStringLiteral("Insira o Documento.");
using Dialogo = apoio::Dialogos<QPrintDialog>;

void Aceita(QPrintDialog &dialogo)
{
    apoio::AperteNoDialogo(dialogo, QDialogButtonBox::Ok);
}
void Cancela(QPrintDialog &dialogo)
{
    apoio::AperteNoDialogo(dialogo, QDialogButtonBox::Cancel);
}

class ComListagem : public ComCadastro {
protected:
    using ComCadastro::ComCadastro;

    static void Escolhe(QWidget &saida, const QString &opcao)
    {
        auto *botao = apoio::Controle<QRadioButton>(saida, opcao);
        QTest::mouseClick(botao, Qt::LeftButton, {}, QPoint(8, botao->height() / 2));
        ASSERT_TRUE(botao->isChecked());
    }
    /// Opens Saida from the register and prints. @return whether Saida stood when it was done
    bool Lista(const QString &impressao, int ordem, bool naImpressora)
    {
        bool fica = false;
        NaTelaModal(
            "Saida", [&] { Aperta(impressao); },
            [&](QWidget &saida) {
                Escolhe(saida, QString("Option1(%1)").arg(ordem));
                Escolhe(saida, QString("Option2(%1)").arg(naImpressora ? 1 : 0));
                m_gravadora.Esquece();
                apoio::ClicaEm(saida, "Command1");
                fica = saida.isVisible() && saida.isEnabled();
            });
        return fica;
    }
    bool Lista(int ordem = kPorNome, bool naImpressora = false)
    {
        return Lista(m_registro.impressao, ordem, naImpressora);
    }
    /// Texts sent to the device, one a page.
    [[nodiscard]] QStringList Paginas() const
    {
        QStringList paginas;
        for (const QString &chamada : m_gravadora.Chamadas())
            if (chamada.startsWith("FormataTX(")) {
                EXPECT_TRUE(chamada.endsWith("\",1,0,0,0,0)")) << chamada.toStdString();
                paginas << chamada;
            }
        return paginas;
    }
    /// Codes of the store that stand in a text, in their order.
    static std::string CodigosEm(const QString &texto, const QStringList &codigos)
    {
        std::map<qsizetype, QString> achados;
        for (const QString &codigo : codigos)
            if (const qsizetype onde = texto.indexOf(codigo); onde >= 0)
                achados[onde] = codigo;
        QStringList lista;
        for (const auto &[onde, codigo] : achados)
            lista << codigo;
        return lista.join(' ').toStdString();
    }
    /// So many payees in place of those of the store, "00001" being "Favorecido 1".
    void PoeFavorecidos(int quantos)
    {
        QStringList linhas;
        for (int i = 1; i <= quantos; ++i)
            linhas << QString("('%1', 'Favorecido %2')").arg(i, 5, 10, QChar('0')).arg(i);
        m_escritorio.Sql("DELETE FROM Favorecido; INSERT INTO Favorecido VALUES " + linhas.join(','));
    }
    [[nodiscard]] QStringList Perguntas() const
    {
        QStringList perguntas;
        for (const apoio::Caixa &caixa : m_caixas->Vistas())
            perguntas << caixa.titulo + ": " + caixa.texto;
        return perguntas;
    }
};

// Into the device

struct CasoLista {
    Registro registro;
    QString titulo;    ///< of the question
    QString relatorio; ///< in the head of the page
    QStringList porNome, porCodigo;
};
void PrintTo(const CasoLista &c, std::ostream *os)
{
    *os << c.registro.tela.toStdString();
}
class ListaNoDispositivo : public ComListagem, public testing::WithParamInterface<CasoLista> {
protected:
    ListaNoDispositivo() : ComListagem(GetParam().registro) {}
};

TEST_P(ListaNoDispositivo, AsksForADocumentAndSendsThePage)
{
    AbreCadastro();
    EXPECT_TRUE(Lista());
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    const apoio::Caixa pergunta = m_caixas->Ultima();
    EXPECT_EQ(pergunta.texto, kInsira);
    EXPECT_EQ(pergunta.titulo, GetParam().titulo);
    EXPECT_EQ(pergunta.icone, QMessageBox::NoIcon);
    EXPECT_EQ(pergunta.botoes, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(pergunta.padrao, QMessageBox::Ok);
    const QStringList chamadas = m_gravadora.Chamadas();
    ASSERT_EQ(chamadas.size(), 5);
    EXPECT_TRUE(chamadas[0].startsWith("IniciaPorta("));
    EXPECT_EQ(chamadas[1], "TravaDoc(1)");
    EXPECT_TRUE(Paginas().value(0).contains(" de " + GetParam().relatorio + "\\x0A"));
    EXPECT_TRUE(Paginas().value(0).contains("01/02/03")) << "the day stands in the head";
    EXPECT_EQ(chamadas[3], "TravaDoc(0)");
    EXPECT_EQ(chamadas[4], "FechaPorta()");
}

TEST_P(ListaNoDispositivo, GoesByNameOrByCode)
{
    AbreCadastro();
    Lista(kPorNome);
    EXPECT_EQ(CodigosEm(Paginas().value(0), GetParam().porNome), GetParam().porNome.join(' ').toStdString());
    Lista(kPorCodigo);
    EXPECT_EQ(CodigosEm(Paginas().value(0), GetParam().porCodigo),
              GetParam().porCodigo.join(' ').toStdString());
}

TEST_P(ListaNoDispositivo, CancellingTheDocumentSendsNothing)
{
    AbreCadastro();
    m_caixas->Responde(QMessageBox::Cancel);
    EXPECT_TRUE(Lista());
    EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
    EXPECT_EQ(m_caixas->Quantas(), 1U);
}

TEST_P(ListaNoDispositivo, LeavesTheRegisterWithTheRowItHadChosen)
{
    AbreCadastro();
    ClicaNaLinha(1);
    const std::string linha = LinhaCorrente();
    Lista();
    EXPECT_EQ(LinhaCorrente(), linha);
    EXPECT_EQ(Estado(), kSelecionado);
    PoeNaCaixa(1, "NOVO NOME");
    m_caixas->Responde(QMessageBox::No);
    Aperta(Alterar);
    EXPECT_EQ(Linhas("SELECT rowid FROM " + GetParam().registro.tabela + " WHERE Nome = 'NOVO NOME'"), "2");
}

TEST_P(ListaNoDispositivo, AStoreThatIsGoneIsReportedByItsNumber)
{
    AbreCadastro();
    m_caixas->AoAbrir([this](QMessageBox &) {
        ASSERT_TRUE(QFile::rename(m_escritorio.Arquivo("QX70.MDB"), m_escritorio.Arquivo("longe.MDB")));
    });
    EXPECT_TRUE(Lista());
    ASSERT_EQ(m_caixas->Quantas(), 2U);
    EXPECT_EQ(m_caixas->Ultima().texto, "Ocorreu erro 3024!");
    EXPECT_EQ(m_caixas->Ultima().titulo, "QX70 MIRA - Document Printer");
    EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Warning);
    EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Cadastros, ListaNoDispositivo,
    testing::Values(CasoLista{kBancos, "Impressão", "Bancos", {"237", "001", "341"}, {"001", "237", "341"}},
                    CasoLista{kCidade,
                              "Impressão de Relatório",
                              "Cidades",
                              {"00100", "00003", "00020"},
                              {"00003", "00020", "00100"}},
                    CasoLista{kFavorec,
                              "Impressão de Relatório",
                              "Favorecidos",
                              {"00007", "00045", "00123"},
                              {"00007", "00045", "00123"}}),
    [](const auto &caso) { return caso.param.registro.tela.toStdString(); });

class ListaDeFavorecidos : public ComListagem {
protected:
    ListaDeFavorecidos() : ComListagem(kFavorec) {}
    static constexpr const char *kPergunta = "Impressão de Relatório: Insira o Documento.";
};

TEST_F(ListaDeFavorecidos, OptionsAndTotalStandInTheirFrames)
{
    AbreCadastro();
    QMap<QString, QStringList> quadros;
    NaTelaModal(
        "Saida", [this] { Aperta(kFavorec.impressao); },
        [&quadros](QWidget &saida) {
            EXPECT_EQ(saida.windowTitle(), "Saída");
            EXPECT_TRUE(saida.isModal());
            for (const auto *quadro : saida.findChildren<QGroupBox *>()) {
                for (const auto *opcao : quadro->findChildren<QRadioButton *>())
                    quadros[quadro->title()] << opcao->objectName() + ' ' + opcao->text();
                for (const auto *rotulo : quadro->findChildren<QLabel *>())
                    quadros[quadro->title()] << rotulo->objectName() + ' ' + rotulo->text();
            }
            for (const auto &[nome, texto] : {std::pair{"Command1", "Imprimir"}, {"Command2", "Sair"}})
                EXPECT_EQ(apoio::Controle<QPushButton>(saida, nome)->text(), texto);
        });
    EXPECT_EQ(quadros.size(), 3);
    EXPECT_EQ(quadros["Ordem"].join('|'), "Option1(0) Nome|Option1(1) Código");
    EXPECT_EQ(quadros["Saída"].join('|'), "Option2(0) QX70|Option2(1) Impressora Win");
    EXPECT_EQ(quadros["Quantidade"].join('|'), "Label1 Total = 3 Favorecidos ");
}

TEST_F(ListaDeFavorecidos, AsksAgainBeforeEachPage)
{
    PoeFavorecidos(40);
    AbreCadastro();
    EXPECT_TRUE(Lista(kPorCodigo));
    const QStringList paginas = Paginas();
    ASSERT_EQ(paginas.size(), 3);
    EXPECT_EQ(Perguntas(), QStringList(3, kPergunta));
    EXPECT_TRUE(paginas[0].contains("Pag:01/03") && paginas[0].contains("00016") &&
                !paginas[0].contains("00017"));
    EXPECT_TRUE(paginas[1].contains("Pag:02/03") && paginas[1].contains("00017") &&
                paginas[1].contains("00032"));
    EXPECT_TRUE(paginas[2].contains("Pag:03/03") && paginas[2].contains("00033") &&
                paginas[2].contains("00040"));
    EXPECT_EQ(m_gravadora.Chamadas().filter("FechaPorta").size(), 3)
        << "the port is free while a question stands";
}

TEST_F(ListaDeFavorecidos, CancellingBetweenPagesEndsIt)
{
    PoeFavorecidos(40);
    AbreCadastro();
    for (const auto resposta : {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Cancel})
        m_caixas->Responde(resposta);
    EXPECT_TRUE(Lista(kPorCodigo));
    EXPECT_EQ(Paginas().size(), 2);
    EXPECT_EQ(Perguntas(), QStringList(3, kPergunta));
}

TEST_F(ListaDeFavorecidos, AFullPageIsFollowedByAnEmptyOne)
{
    PoeFavorecidos(16);
    AbreCadastro();
    Lista(kPorCodigo);
    ASSERT_EQ(Paginas().size(), 2);
    EXPECT_TRUE(Paginas()[1].contains("Pag:02/01"));
    EXPECT_FALSE(Paginas()[1].contains("Favorecido 1"));
}

TEST_F(ListaDeFavorecidos, APortThatDoesNotOpenIsToldOnEachPage)
{
    PoeFavorecidos(20);
    m_gravadora.Roteiro("resultado IniciaPorta 0\n");
    AbreCadastro();
    EXPECT_TRUE(Lista());
    EXPECT_EQ(Paginas().size(), 0);
    const QString falha = "QX70 MIRA - Document Printer: Erro de comunicação com a impressora.";
    EXPECT_EQ(Perguntas(), (QStringList{kPergunta, falha, kPergunta, falha}));
}

TEST_F(ListaDeFavorecidos, WithoutAnOrderNothingIsPrinted)
{
    AbreCadastro();
    NaTelaModal(
        "Saida", [this] { Aperta(kFavorec.impressao); },
        [this](QWidget &saida) {
            for (const char *nome : {"Option1(0)", "Option1(1)"}) {
                auto *opcao = apoio::Controle<QRadioButton>(saida, nome);
                opcao->setAutoExclusive(false);
                opcao->setChecked(false);
            }
            m_gravadora.Esquece();
            apoio::ClicaEm(saida, "Command1");
            EXPECT_TRUE(saida.isVisible());
        });
    EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(ListaDeFavorecidos, EnterOnTheButtonPrints)
{
    AbreCadastro();
    NaTelaModal(
        "Saida", [this] { Aperta(kFavorec.impressao); },
        [this](QWidget &saida) {
            apoio::Controle<QPushButton>(saida, "Command1")->setFocus();
            m_gravadora.Esquece();
            apoio::Tecla(saida, Qt::Key_Return);
        });
    EXPECT_EQ(Paginas().size(), 1);
}

class TeclaNaListagem : public ListaDeFavorecidos, public testing::WithParamInterface<CasoTecla> {};
TEST_P(TeclaNaListagem, AnswersNoQuestionAndPressesNoButton)
{
    PoeFavorecidos(40);
    AbreCadastro();
    m_caixas->Responde(QMessageBox::Ok);
    if (GetParam().cancela)
        m_caixas->Responde(QMessageBox::Cancel);
    const TeclaNoEnvio operador(m_escritorio, GetParam().tecla);
    EXPECT_TRUE(Lista(kPorCodigo)) << "the screen stays";
    ASSERT_TRUE(operador.Apertou());
    EXPECT_TRUE(operador.Ampulheta());
    EXPECT_EQ(Paginas().size(), GetParam().cancela ? 1 : 3);
    EXPECT_EQ(Perguntas(), QStringList(GetParam().cancela ? 2 : 3, kPergunta));
}
INSTANTIATE_TEST_SUITE_P(Teclas, TeclaNaListagem, kTeclas, kNomeDoCaso);

// Onto the sheets

class ListaNaImpressora : public ListaDeFavorecidos {
protected:
    void ComFila(const apoio::Fila &fila = {"Papel"})
    {
        m_cups = std::make_unique<apoio::FilaDeImpressao>(QList<apoio::Fila>{fila});
        m_cups->Liga();
    }
    void EsperaOs4Motivos()
    {
        ASSERT_EQ(m_caixas->Quantas(), 1U);
        EXPECT_EQ(m_caixas->Ultima().texto, "Ocorreu erro 482! Possiveis Causas:\n"
                                            "- A impressora não foi encontrada!\n"
                                            "- A impressora está desligada!\n"
                                            "- Fim de papel ou papel enroscado!");
        EXPECT_EQ(m_caixas->Ultima().titulo, "QX70 MIRA - Document Printer");
        EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Warning);
        EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
    }
    std::unique_ptr<apoio::FilaDeImpressao> m_cups;
};

TEST_F(ListaNaImpressora, EveryLineStandsOnItsSheet)
{
    PoeFavorecidos(120);
    ComFila();
    Dialogo dialogo(Aceita);
    AbreCadastro();
    EXPECT_TRUE(Lista(kPorCodigo, true));
    EXPECT_EQ(dialogo.Vistos(), 1);
    EXPECT_EQ(m_caixas->Quantas(), 0U) << "the printer is asked for once, and no document";
    EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
    const QList<QStringList> folhas = apoio::FolhasDoPdf(m_cups->Documento(1));
    ASSERT_EQ(folhas.size(), 3);
    int numero = 0;
    for (const QStringList &folha : folhas) {
        ASSERT_GE(folha.size(), 5);
        EXPECT_EQ(folha[0], QString(76, '-'));
        EXPECT_TRUE(folha[1].startsWith("01/02/03") && folha[1].endsWith("Relatório de Favorecidos"));
        EXPECT_TRUE(folha[2].endsWith(QString("Pag:0%1/03").arg(1 + numero / 50))) << folha[2].toStdString();
        EXPECT_EQ(folha[4], "NºFavorec.|Favorecido");
        for (const QString &linha : folha.mid(5)) {
            ++numero;
            EXPECT_EQ(linha.simplified(),
                      QString("%1 |Favorecido %2").arg(numero, 5, 10, QChar('0')).arg(numero));
        }
    }
    EXPECT_EQ(folhas[0].size(), 55);
    EXPECT_EQ(numero, 120);
}

TEST_F(ListaNaImpressora, GoesByNameToo)
{
    ComFila();
    Dialogo dialogo(Aceita);
    AbreCadastro();
    Lista(kPorNome, true);
    const QString folha = apoio::FolhasDoPdf(m_cups->Documento(1)).value(0).join('\n');
    EXPECT_EQ(CodigosEm(folha, {"00007", "00045", "00123"}), "00007 00045 00123");
    EXPECT_TRUE(folha.contains("José Luís")) << "accents stay on the printer";
}

TEST_F(ListaNaImpressora, CancellingTheDialogueSaysAndPrintsNothing)
{
    ComFila();
    AbreCadastro();
    {
        Dialogo dialogo(Cancela);
        EXPECT_TRUE(Lista(kPorNome, true));
        EXPECT_EQ(dialogo.Vistos(), 1);
    }
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(m_cups->Documentos(), 0);
    EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
}

TEST_F(ListaNaImpressora, WithoutAPrintingSystemTheFourCausesAreTold)
{
    const apoio::FilaDeImpressao desligada;
    AbreCadastro();
    EXPECT_TRUE(Lista(kPorNome, true));
    EsperaOs4Motivos();
}

TEST_F(ListaNaImpressora, ADisabledPrinterHasTheFourCausesTold)
{
    ComFila({"Papel", true, true});
    Dialogo dialogo(Aceita);
    AbreCadastro();
    EXPECT_TRUE(Lista(kPorNome, true));
    EsperaOs4Motivos();
}

TEST_F(ListaNaImpressora, ARefusedDocumentHasTheFourCausesTold)
{
    ComFila({"Papel", true, false, true});
    Dialogo dialogo(Aceita);
    AbreCadastro();
    EXPECT_TRUE(Lista(kPorNome, true));
    EsperaOs4Motivos();
}

} // namespace
