// The bank register: what it shows, its boxes, choosing a bank, searching, and its way in and out.
#include "ComCadastro.h"
#include "Ordem.h"

#include <QGroupBox>
#include <QLabel>
#include <QScreen>
#include <QSet>

using namespace teste;

namespace {

using BancosTest = ComBancos;

// --- what it shows ---

TEST_F(BancosTest, HasItsNameCaptionAndPlace)
{
    AbreCadastro();
    EXPECT_EQ(Cadastro().objectName(), "Bancos");
    EXPECT_EQ(Cadastro().windowTitle(), "Cadastro de Bancos");
    EXPECT_TRUE(Cadastro().isWindow());
    const QPoint meio = Cadastro().screen()->availableGeometry().center();
    EXPECT_LE((Cadastro().frameGeometry().center() - meio).manhattanLength(), 4) << "in the middle";
}

TEST_F(BancosTest, OpensReadyToInsertWithEveryBankAndNothingInTheBoxes)
{
    AbreCadastro();
    EXPECT_EQ(Estado(), kPronto);
    EXPECT_EQ(Caixas(), m_vazias);
    EXPECT_EQ(Caixa("Text2"), "");
    EXPECT_EQ(Lista(), m_lista) << "in the order in which they were stored";
    EXPECT_EQ(List1()->Corrente(), -1);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(Dados().FechaTela, 0);
    EXPECT_EQ(Chamadas(), "");
}

TEST_F(BancosTest, MainStaysLiveBehindIt)
{
    AbreCadastro();
    EXPECT_FALSE(Cadastro().isModal());
    Ativa();
    DigitaEm("Text1(2)", "Ana");
    EXPECT_EQ(Texto("Text1(2)"), "Ana");
}

TEST_F(BancosTest, IsOneScreen)
{
    AbreCadastro();
    PoeNaCaixa(1, "a meio");
    Ativa();
    AbreDeNovo();
    EXPECT_EQ(Abertas("Bancos").size(), 1);
    EXPECT_EQ(Caixa(1), "a meio");
}

struct CasoTexto {
    std::string nome;
    QString texto;
    int vezes;
};
void PrintTo(const CasoTexto &c, std::ostream *os)
{
    *os << c.texto.toStdString();
}
class RotuloDoBanco : public ComBancosDe<CasoTexto> {};
TEST_P(RotuloDoBanco, StandsOnTheScreen)
{
    AbreCadastro();
    int vezes = 0;
    for (const auto *rotulo : Cadastro().findChildren<QLabel *>())
        vezes += rotulo->text() == GetParam().texto && rotulo->isVisible() ? 1 : 0;
    for (const auto *grupo : Cadastro().findChildren<QGroupBox *>())
        vezes += grupo->title() == GetParam().texto && grupo->isVisible() ? 1 : 0;
    EXPECT_EQ(vezes, GetParam().vezes);
}
INSTANTIATE_TEST_SUITE_P(
    Rotulos, RotuloDoBanco,
    testing::Values(CasoTexto{"Number", "Codigo:", 1}, CasoTexto{"Name", "Nome:", 1},
                    CasoTexto{"Amount", "Valor Numérico:", 1}, CasoTexto{"FirstWords", "Valor Extenso 1:", 1},
                    CasoTexto{"SecondWords", "Valor Extenso 2:", 1},
                    CasoTexto{"Payee", "Nome Favorecido:", 1}, CasoTexto{"City", "Cidade:", 1},
                    CasoTexto{"Date", "Dia/Mês/Ano:", 1}, CasoTexto{"HeadOfEachBlock", "Linha / Coluna", 2},
                    CasoTexto{"HeadOfTheDate", "Colunas", 1}, CasoTexto{"Search", "Pesquisar por:", 1}),
    kNomeDoCaso);

struct CasoBotao {
    std::string nome;
    QString controle;
    QString texto;
};
void PrintTo(const CasoBotao &c, std::ostream *os)
{
    *os << c.controle.toStdString();
}
class BotaoDoBanco : public ComBancosDe<CasoBotao> {};
TEST_P(BotaoDoBanco, HasItsCaption)
{
    AbreCadastro();
    EXPECT_EQ(apoio::Controle<QPushButton>(Cadastro(), GetParam().controle)->text(), GetParam().texto);
}
INSTANTIATE_TEST_SUITE_P(Botoes, BotaoDoBanco,
                         testing::Values(CasoBotao{"Insert", "Command3D1(0)", "&Incluir"},
                                         CasoBotao{"Change", "Command3D1(1)", "&Alterar"},
                                         CasoBotao{"Remove", "Command3D1(2)", "&Excluir"},
                                         CasoBotao{"Close", "Command3D1(3)", "Fecha&r"},
                                         CasoBotao{"Adjust", "Command3D2", "Ajuste Gráfico"},
                                         CasoBotao{"Print", "SSCommand1", "Imprimir Lista"}),
                         kNomeDoCaso);

TEST_F(BancosTest, EachBoxIsReadAloudByANameOfItsOwn)
{
    AbreCadastro();
    const std::array<std::string, 15> nomes = {"Codigo:",
                                               "Nome:",
                                               "Valor Numérico: Linha",
                                               "Valor Extenso 1: Linha",
                                               "Valor Extenso 2: Linha",
                                               "Nome Favorecido: Linha",
                                               "Cidade: Linha",
                                               "Valor Numérico: Coluna",
                                               "Valor Extenso 1: Coluna",
                                               "Valor Extenso 2: Coluna",
                                               "Nome Favorecido: Coluna",
                                               "Cidade: Coluna",
                                               "Dia/Mês/Ano: Dia",
                                               "Dia/Mês/Ano: Mês",
                                               "Dia/Mês/Ano: Ano"};
    for (int i = 0; i < 15; ++i) {
        const auto *caixa = apoio::Controle<QLineEdit>(Cadastro(), QString("Text1(%1)").arg(i));
        EXPECT_EQ(caixa->accessibleName().toStdString(), nomes.at(static_cast<std::size_t>(i))) << i;
    }
    EXPECT_EQ(apoio::Controle<QLineEdit>(Cadastro(), "Text2")->accessibleName(), "Pesquisar por:");
    EXPECT_FALSE(List1()->accessibleName().isEmpty());
}

TEST_F(BancosTest, TabWalksInReadingOrderWhileNoBankIsChosen)
{
    AbreCadastro();
    VaiA("Text1(0)");
    const QStringList volta = VoltaDoTab(Cadastro());
    const QStringList lida = APartirDe(OrdemDeLeitura(Cadastro()), "Text1(0)");
    EXPECT_EQ(volta.join(' '), lida.join(' '));
    EXPECT_EQ(QSet<QString>(volta.begin(), volta.end()).size(), 15 + 6)
        << "boxes; search, list, Incluir, Fechar, adjustment, print: " << volta.join(' ').toStdString();
}

TEST_F(BancosTest, TabWalksInReadingOrderWhileABankIsChosen)
{
    AbreCadastro();
    ClicaNaLinha(1);
    VaiA("Text1(1)");
    const QStringList volta = VoltaDoTab(Cadastro());
    EXPECT_EQ(volta.join(' '), APartirDe(OrdemDeLeitura(Cadastro()), "Text1(1)").join(' '));
    EXPECT_FALSE(volta.contains("Text1(0)"));
    EXPECT_TRUE(volta.contains("Command3D1(1)") && volta.contains("Command3D1(2)"));
}

TEST_F(BancosTest, EveryMnemonicIsItsOwn)
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

TEST_F(BancosTest, AMnemonicLeavesTheBoxAndPresses)
{
    AbreCadastro();
    DigitaNela("Text1(0)", "7");
    TeclaNele(Qt::Key_I, Qt::AltModifier);
    EXPECT_EQ(Vistas(), "[Erro] Campo Inválido...");
    EXPECT_EQ(Caixa(0), "007");
    EXPECT_EQ(FocoDele(), "Text1(1)");
}

// --- cutting ---

struct CasoCorte {
    std::string nome;
    int caixa;
    QString longo;
    std::string fica;
};
void PrintTo(const CasoCorte &c, std::ostream *os)
{
    *os << c.nome;
}
std::vector<CasoCorte> Cortes()
{
    std::vector<CasoCorte> casos = {
        {"Number", 0, "1234", "123"},
        {"NumberMuchTooLong", 0, "9876543210", "987"},
        {"Name", 1, "123456789012345678901234567890X", "123456789012345678901234567890"},
        {"NameWithAccents", 1, QString(29, 'x') + "ÇÃ", std::string(29, 'x') + "Ç"}};
    for (int i = 2; i < 15; ++i)
        casos.push_back({"Position" + std::to_string(i), i, "0451", "045"});
    return casos;
}
class CorteDoBanco : public ComBancosDe<CasoCorte> {};
TEST_P(CorteDoBanco, KeepsTheFirstCharactersOfATextThatIsSet)
{
    AbreCadastro();
    PoeNaCaixa(GetParam().caixa, GetParam().longo);
    EXPECT_EQ(Caixa(GetParam().caixa), GetParam().fica);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
TEST_P(CorteDoBanco, KeepsTheFirstCharactersOfWhatIsTyped)
{
    AbreCadastro();
    const QString caixa = QString("Text1(%1)").arg(GetParam().caixa);
    DigitaNela(caixa, GetParam().longo);
    EXPECT_EQ(Caixa(caixa), GetParam().fica);
    EXPECT_EQ(FocoDele(), caixa.toStdString());
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Caixas, CorteDoBanco, testing::ValuesIn(Cortes()), kNomeDoCaso);

TEST_F(BancosTest, AFullTextStaysWhole)
{
    AbreCadastro();
    PoeNaCaixa(0, "123");
    PoeNaCaixa(1, "123456789012345678901234567890");
    EXPECT_EQ(Caixa(0), "123");
    EXPECT_EQ(Caixa(1), "123456789012345678901234567890");
}

TEST_F(BancosTest, WhatIsTypedBeforeAFullTextPushesItsEndOut)
{
    AbreCadastro();
    DigitaNela("Text1(2)", "123");
    TeclaNele(Qt::Key_Home);
    apoio::Digita(Cadastro(), "9");
    EXPECT_EQ(Caixa(2), "912");
}

// --- leaving ---

struct CasoSaida {
    std::string nome;
    QString digitado;
    std::string fica;
};
void PrintTo(const CasoSaida &c, std::ostream *os)
{
    *os << '"' << c.digitado.toStdString() << '"';
}
class SaidaDaCaixa : public ComBancosDe<CasoSaida> {};
TEST_P(SaidaDaCaixa, GivesTheNumberInThreeDigits)
{
    AbreCadastro();
    for (const int i : {0, 2, 6, 7, 11, 12, 14}) {
        const QString caixa = QString("Text1(%1)").arg(i);
        DigitaNela(caixa, GetParam().digitado);
        VaiA("Text1(1)");
        EXPECT_EQ(Caixa(caixa), GetParam().fica) << i;
    }
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(
    Textos, SaidaDaCaixa,
    testing::Values(CasoSaida{"OneDigit", "7", "007"}, CasoSaida{"TwoDigits", "45", "045"},
                    CasoSaida{"ThreeDigits", "118", "118"}, CasoSaida{"Zero", "0", "000"},
                    CasoSaida{"ZerosBefore", "007", "007"}, CasoSaida{"Empty", "", ""},
                    CasoSaida{"Letters", "abc", "000"}, CasoSaida{"OneBlank", " ", "000"},
                    CasoSaida{"LetterBehindADigit", "1a", "001"},
                    CasoSaida{"LetterBeforeADigit", "a1", "000"}, CasoSaida{"BlanksAround", " 5 ", "005"},
                    CasoSaida{"NegativeIsCutToThree", "-5", "-00"}),
    kNomeDoCaso);

TEST_F(BancosTest, EveryNumberBoxIsFormattedOnLeaving)
{
    AbreCadastro();
    for (int i = 2; i < 15; ++i) {
        DigitaNela(QString("Text1(%1)").arg(i), QString::number(i));
        VaiA("Text1(0)");
    }
    EXPECT_EQ(Caixas(), "||002|003|004|005|006|007|008|009|010|011|012|013|014");
}

TEST_F(BancosTest, TheNameIsLeftAsItWasTyped)
{
    AbreCadastro();
    DigitaNela("Text1(1)", " 12 ");
    VaiA("Text1(2)");
    EXPECT_EQ(Caixa(1), " 12 ");
}

TEST_F(BancosTest, OtherProgramsAndScreensAreNoLeaving)
{
    AbreCadastro();
    DigitaNela("Text1(0)", "7");
    Ativa();
    EXPECT_EQ(Caixa(0), "7");
}

// --- arriving ---

TEST_F(BancosTest, ArrivingSelectsTheWholeText)
{
    AbreCadastro();
    Preenche(kBancoNovo);
    PoeNaCaixa("Text2", "CAI");
    VaiA("List1");
    for (int i = 0; i < 15; ++i) {
        const QString caixa = QString("Text1(%1)").arg(i);
        VaiA(caixa);
        EXPECT_EQ(Selecionado(caixa), kBancoNovo.at(static_cast<std::size_t>(i)).toStdString()) << i;
    }
    VaiA("Text2");
    EXPECT_EQ(Selecionado("Text2"), "CAI");
}

// --- Enter ---

TEST_F(BancosTest, EnterWalksTheBoxesByTheirNumbers)
{
    AbreCadastro();
    VaiA("Text1(0)");
    for (int i = 0; i < 14; ++i) {
        apoio::Digita(Cadastro(), QString::number(i + 1));
        TeclaNele(i % 2 ? Qt::Key_Enter : Qt::Key_Return);
        EXPECT_EQ(FocoDele(), "Text1(" + std::to_string(i + 1) + ')');
    }
    EXPECT_EQ(Caixas(), "001|2|003|004|005|006|007|008|009|010|011|012|013|014|");
}

TEST_F(BancosTest, EnterWalksEmptyBoxesToo)
{
    AbreCadastro();
    VaiA("Text1(0)");
    for (int i = 0; i < 15; ++i)
        TeclaNele(Qt::Key_Return);
    EXPECT_EQ(FocoDele(), "Command3D1(0)");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(BancosTest, EnterInTheLastBoxGoesToIncluirAlsoWhenABankIsChosen)
{
    AbreCadastro();
    ClicaNaLinha(0);
    VaiA("Text1(14)");
    TeclaNele(Qt::Key_Return);
    EXPECT_EQ(FocoDele(), "Command3D1(0)");
    EXPECT_EQ(Estado(), kSelecionado);
}

TEST_F(BancosTest, EnterOnAButtonPressesIt)
{
    AbreCadastro();
    VaiA("Text1(14)");
    TeclaNele(Qt::Key_Return);
    TeclaNele(Qt::Key_Return);
    EXPECT_EQ(Vistas(), "[Erro] Campo Inválido...");
}

// --- choosing a bank ---

TEST_F(BancosTest, AClickShowsTheBankAndClosesItsCode)
{
    AbreCadastro();
    ClicaNaLinha(1);
    EXPECT_EQ(Caixas(), NasCaixas(kBancoUm));
    EXPECT_EQ(Estado(), kSelecionado);
    EXPECT_EQ(LinhaCorrente(), "001 - BANCO UM");
    ClicaNaLinha(2);
    EXPECT_EQ(Caixas(), NasCaixas(kCaixaTres));
    EXPECT_EQ(Lista(), m_lista) << "the list stays whole";
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(BancosTest, ArrowKeysInTheListCountAsClicks)
{
    AbreCadastro();
    ClicaNaLinha(0);
    TeclaNele(Qt::Key_Down);
    EXPECT_EQ(Caixas(), NasCaixas(kBancoUm));
    TeclaNele(Qt::Key_End);
    EXPECT_EQ(Caixas(), NasCaixas(kCaixaTres));
    EXPECT_EQ(Estado(), kSelecionado);
}

TEST_F(BancosTest, TheBankIsReadFromTheStoreAtTheClick)
{
    AbreCadastro();
    m_escritorio.Sql("UPDATE Bancos SET Nome = 'MUDOU', C8 = '070' WHERE Codigo = '001'");
    ClicaNaLinha(1);
    EXPECT_EQ(Caixa(1), "MUDOU");
    EXPECT_EQ(Caixa(14), "070");
}

TEST_F(BancosTest, AFieldThatIsNotSetShowsAsEmpty)
{
    m_escritorio.Sql("INSERT INTO Bancos (Codigo, Nome, C1) VALUES ('900', 'POUCO', '9')");
    AbreCadastro();
    ClicaNaLinha(3);
    EXPECT_EQ(Caixas(), "900|POUCO||||||9|||||||");
}

TEST_F(BancosTest, ABankThatIsGoneFromTheStoreShowsNoNumbers)
{
    AbreCadastro();
    m_escritorio.Sql("DELETE FROM Bancos WHERE Codigo = '001'");
    ClicaNaLinha(1);
    EXPECT_EQ(Caixas(), m_vazias);
    EXPECT_TRUE(EstaAberto());
    ClicaNaLinha(0);
    EXPECT_EQ(Caixas(), NasCaixas(kBancoDois));
}

TEST_F(BancosTest, CtrlAndClickDeselectsAndIsNoClick)
{
    AbreCadastro();
    ClicaNaLinha(1);
    PoeNaCaixa(1, "digitado");
    ClicaNaLinha(1, Qt::ControlModifier);
    EXPECT_EQ(LinhaCorrente(), "");
    EXPECT_EQ(Caixa(1), "digitado");
    EXPECT_EQ(Estado(), kSelecionado);
}

TEST_F(BancosTest, ASecondClickOnTheSameRowReadsItAgain)
{
    AbreCadastro();
    ClicaNaLinha(1);
    PoeNaCaixa(1, "digitado");
    ClicaNaLinha(1);
    EXPECT_EQ(Caixa(1), "BANCO UM");
}

// --- the way out ---

TEST_F(BancosTest, FecharAndEscCloseItWithoutAQuestion)
{
    AbreCadastro();
    Preenche(kBancoNovo);
    Aperta(Fechar);
    EXPECT_FALSE(EstaAberto());
    AbreDeNovo();
    EXPECT_EQ(Caixas(), m_vazias) << "opened anew";
    Preenche(kBancoNovo);
    TeclaNele(Qt::Key_Escape);
    EXPECT_FALSE(EstaAberto());
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(Chamadas(), "");
    EXPECT_EQ(Linhas("SELECT Codigo FROM Bancos ORDER BY rowid"), "237|001|341");
}

TEST_F(BancosTest, ClosingClosesTheTable)
{
    AbreCadastro();
    EXPECT_TRUE(Dados().armazem.Aberto(nucleo::SelBancos));
    Aperta(Fechar);
    EXPECT_FALSE(Dados().armazem.Aberto(nucleo::SelBancos));
}

TEST_F(BancosTest, ABankKeptHereIsFoundByTheChequeAtOnce)
{
    AbreCadastro();
    Preenche(kBancoNovo);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    Ativa();
    DigitaEm("Text1(0)", "104");
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(NomeDoBanco(), "BANCO NOVO DA AÇÃO LTDA");
    AtivaEle();
    ClicaNaLinha(0);
    EXPECT_EQ(Caixas(), NasCaixas(kBancoDois)) << "the register works on when the entry closed the table";
}

} // namespace
