// What the registers of cities and payees have in common: two boxes, the list, and the search.
#include "CodigoENome.h"
#include "Ordem.h"

#include <QScreen>

using namespace teste;

namespace {

using CodigoENome = CodigoENomeDeCada;

// --- what it shows ---

TEST_P(CodigoENome, HasItsNameCaptionAndPlace)
{
    AbreCadastro();
    EXPECT_EQ(Cadastro().objectName(), C().registro.tela);
    EXPECT_EQ(Cadastro().windowTitle(), C().titulo);
    const QPoint meio = Cadastro().screen()->availableGeometry().center();
    EXPECT_LE((Cadastro().frameGeometry().center() - meio).manhattanLength(), 4) << "in the middle";
}

TEST_P(CodigoENome, OpensReadyToInsertWithEveryRow)
{
    AbreCadastro();
    EXPECT_EQ(Estado(), kPronto);
    EXPECT_EQ(Caixas(), "|");
    EXPECT_EQ(Caixa("Text2"), "");
    EXPECT_EQ(Lista(), C().lista) << "in the order in which they were stored";
    EXPECT_EQ(LinhaCorrente(), "");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_P(CodigoENome, LabelsAndCaptionsStandOnTheScreen)
{
    AbreCadastro();
    for (const QString &texto : {QString("Codigo:"), C().rotuloDoNome, QString("Procurar por:")})
        EXPECT_TRUE(TemTexto(texto)) << texto.toStdString();
    const std::array<const char *, 4> textos = {"&Incluir", "&Alterar", "&Excluir", "Fecha&r"};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(apoio::Controle<QPushButton>(Cadastro(), QString("Command3D1(%1)").arg(i))->text(),
                  textos.at(static_cast<std::size_t>(i)));
    EXPECT_EQ(apoio::Controle<QPushButton>(Cadastro(), C().registro.impressao)->text(), C().textoDaImpressao);
    EXPECT_EQ(Cadastro().findChild<QWidget *>("Text1(2)"), nullptr);
}

TEST_P(CodigoENome, BoxesAreReadAloudByTheirLabels)
{
    AbreCadastro();
    const auto nome = [this](const char *caixa) {
        return apoio::Controle<QLineEdit>(Cadastro(), caixa)->accessibleName();
    };
    EXPECT_EQ(nome("Text1(0)"), "Codigo:");
    EXPECT_EQ(nome("Text1(1)"), C().rotuloDoNome);
    EXPECT_EQ(nome("Text2"), "Procurar por:");
    EXPECT_FALSE(List1()->accessibleName().isEmpty());
}

TEST_P(CodigoENome, TabWalksInReadingOrder)
{
    AbreCadastro();
    VaiA("Text1(0)");
    const QStringList volta = VoltaDoTab(Cadastro());
    EXPECT_EQ(volta.join(' '), APartirDe(OrdemDeLeitura(Cadastro()), "Text1(0)").join(' '));
    EXPECT_EQ(volta.size(), 7) << volta.join(' ').toStdString();
    ClicaNaLinha(1);
    VaiA("Text1(1)");
    const QStringList escolhido = VoltaDoTab(Cadastro());
    EXPECT_EQ(escolhido.join(' '), APartirDe(OrdemDeLeitura(Cadastro()), "Text1(1)").join(' '));
    EXPECT_EQ(escolhido.size(), 8) << escolhido.join(' ').toStdString();
}

TEST_P(CodigoENome, EveryMnemonicIsItsOwn)
{
    AbreCadastro();
    QStringList teclas;
    for (const auto *botao : Cadastro().findChildren<QAbstractButton *>()) {
        const QString tecla = QKeySequence::mnemonic(botao->text()).toString();
        EXPECT_TRUE(tecla.isEmpty() || !teclas.contains(tecla)) << tecla.toStdString();
        teclas << tecla;
    }
    for (const char *tecla : {"Alt+I", "Alt+A", "Alt+E", "Alt+R"})
        EXPECT_TRUE(teclas.contains(tecla)) << tecla;
}

// --- the boxes ---

TEST_P(CodigoENome, LongTextsAreCutAtEachChange)
{
    AbreCadastro();
    const QString cheio = QString(C().tamanho - 1, 'x') + "Ã";
    PoeNaCaixa(0, "123456");
    PoeNaCaixa(1, cheio + "y");
    EXPECT_EQ(Caixas(), "12345|" + cheio.toStdString());
    DigitaNela("Text1(0)", "765432");
    EXPECT_EQ(Caixa(0), "76543");
    DigitaNela("Text1(1)", cheio + "yz");
    EXPECT_EQ(Caixa(1), cheio.toStdString());
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_P(CodigoENome, WhatIsTypedBeforeAFullTextPushesItsEndOut)
{
    AbreCadastro();
    DigitaNela("Text1(0)", "12345");
    TeclaNele(Qt::Key_Home);
    apoio::Digita(Cadastro(), "9");
    EXPECT_EQ(Caixa(0), "91234");
}

TEST_P(CodigoENome, LeavingTheCodeGivesItFiveDigits)
{
    AbreCadastro();
    const std::vector<std::pair<QString, std::string>> casos = {
        {"12", "00012"},  {"123", "00123"}, {"54321", "54321"}, {"0", "00000"},
        {"abc", "00000"}, {"", ""},         {" ", "00000"}};
    for (const auto &[digitado, fica] : casos) {
        DigitaNela("Text1(0)", digitado);
        VaiA("Text1(1)");
        EXPECT_EQ(Caixa(0), fica) << digitado.toStdString();
    }
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_P(CodigoENome, TheNameIsLeftAsItWasTyped)
{
    AbreCadastro();
    DigitaNela("Text1(1)", " 7 ");
    VaiA("Text1(0)");
    EXPECT_EQ(Caixa(1), " 7 ");
}

TEST_P(CodigoENome, ArrivingSelectsTheWholeText)
{
    AbreCadastro();
    Preenche("00900", "Nova");
    PoeNaCaixa("Text2", "R");
    VaiA("Text1(1)");
    EXPECT_EQ(Selecionado("Text1(1)"), "Nova");
    VaiA("Text1(0)");
    EXPECT_EQ(Selecionado("Text1(0)"), "00900");
    VaiA("Text2");
    EXPECT_EQ(Selecionado("Text2"), "R");
}

TEST_P(CodigoENome, EnterGoesFromCodeToNameToIncluir)
{
    AbreCadastro();
    DigitaNela("Text1(0)", "9");
    TeclaNele(Qt::Key_Return);
    EXPECT_EQ(Caixa(0), "00009");
    EXPECT_EQ(FocoDele(), "Text1(1)");
    TeclaNele(Qt::Key_Enter);
    EXPECT_EQ(FocoDele(), "Command3D1(0)");
    ClicaNaLinha(1);
    VaiA("Text1(1)");
    TeclaNele(Qt::Key_Return);
    EXPECT_EQ(FocoDele(), "Command3D1(0)");
}

// --- choosing a row ---

TEST_P(CodigoENome, AClickTakesTheRowOfTheListAndNotTheStore)
{
    AbreCadastro();
    m_escritorio.Sql("UPDATE " + C().registro.tabela + " SET Nome = 'mudou'");
    ClicaNaLinha(1);
    EXPECT_EQ(Caixas(), C().codigo + '|' + C().nome);
    EXPECT_EQ(Estado(), kSelecionado);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_P(CodigoENome, ArrowKeysInTheListCountAsClicks)
{
    AbreCadastro();
    ClicaNaLinha(0);
    TeclaNele(Qt::Key_Down);
    EXPECT_EQ(Caixas(), C().codigo + '|' + C().nome);
}

// The row is cut by position: on purpose, also where a code has not five characters.
TEST_P(CodigoENome, AShortCodeIsTakenByPosition)
{
    m_escritorio.Sql("DELETE FROM " + C().registro.tabela + "; INSERT INTO " + C().registro.tabela +
                     " VALUES ('7', 'Olinda')");
    AbreCadastro();
    ASSERT_EQ(Lista(), "7 - Olinda");
    ClicaNaLinha(0);
    EXPECT_EQ(Caixas(), "7 - O|da");
}

TEST_P(CodigoENome, ALongStoredNameIsCutToTheBox)
{
    const QString longo = QString("abcdefghij").repeated(9);
    m_escritorio.Sql("DELETE FROM " + C().registro.tabela + "; INSERT INTO " + C().registro.tabela +
                     " VALUES ('00001', '" + longo + "')");
    AbreCadastro();
    EXPECT_EQ(Lista(), "00001 - " + longo.toStdString());
    ClicaNaLinha(0);
    EXPECT_EQ(Caixa(1), longo.left(C().tamanho).toStdString());
}

TEST_P(CodigoENome, ANameWithADashIsWhole)
{
    m_escritorio.Sql("INSERT INTO " + C().registro.tabela + " VALUES ('00800', 'A - B')");
    AbreCadastro();
    ClicaNaLinha(3);
    EXPECT_EQ(Caixas(), "00800|A - B");
}

TEST_P(CodigoENome, CtrlAndClickDeselectsAndIsNoClick)
{
    AbreCadastro();
    ClicaNaLinha(1);
    PoeNaCaixa(1, "digitado");
    ClicaNaLinha(1, Qt::ControlModifier);
    EXPECT_EQ(LinhaCorrente(), "");
    EXPECT_EQ(Caixas(), C().codigo + "|digitado");
    EXPECT_EQ(Estado(), kSelecionado);
}

// --- the search ---

TEST_P(CodigoENome, SearchesCodeOrName)
{
    m_escritorio.Sql(
        "DELETE FROM " + C().registro.tabela + "; INSERT INTO " + C().registro.tabela +
        " VALUES ('00012', 'Rio'), ('00011', 'Recife'), ('10000', '1 de Maio'), ('00100', '0A')");
    AbreCadastro();
    const std::vector<std::pair<QString, std::string>> casos = {
        {"0001", "00011 - Recife|00012 - Rio"},
        {"1", "10000 - 1 de Maio"},
        {"r", "00011 - Recife|00012 - Rio"},
        {"0A", "00100 - 0A"},
        {"io", ""},
        {"D'", ""},
        {"", "00012 - Rio|00011 - Recife|10000 - 1 de Maio|00100 - 0A"}};
    for (const auto &[texto, achados] : casos) {
        DigitaNela("Text2", texto);
        EXPECT_EQ(Lista(), achados) << texto.toStdString();
        EXPECT_EQ(LinhaCorrente(), "");
    }
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(Estado(), kPronto);
}

TEST_P(CodigoENome, AStatementTypedIntoTheSearchDoesNotRun)
{
    AbreCadastro();
    const std::string antes = Nomes();
    PoeNaCaixa("Text2", "'); DELETE FROM " + C().registro.tabela + "; --");
    EXPECT_EQ(Lista(), "");
    EXPECT_EQ(Nomes(), antes);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    PoeNaCaixa("Text2", "");
    EXPECT_EQ(Lista(), C().lista);
}

// --- the way out ---

TEST_P(CodigoENome, FecharAndEscCloseItWithoutAQuestion)
{
    AbreCadastro();
    Preenche("00900", "Nova");
    Aperta(Fechar);
    EXPECT_FALSE(EstaAberto());
    EXPECT_FALSE(Dados().armazem.Aberto(C().registro.seletor));
    AbreDeNovo();
    EXPECT_EQ(Caixas(), "|");
    ClicaNaLinha(0);
    TeclaNele(Qt::Key_Escape);
    EXPECT_FALSE(EstaAberto());
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(Linhas("SELECT count(*) FROM " + C().registro.tabela), "3");
}

INSTANTIATE_TEST_SUITE_P(Cadastros, CodigoENome, testing::Values(kCasoCidade, kCasoFavorec), kNomeDoCadastro);

} // namespace
