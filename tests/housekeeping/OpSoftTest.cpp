// The options screen: what it shows, what confirming writes, what Cancel leaves, and when it takes effect.
#include "ComOpSoft.h"
#include "Ordem.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QScreen>

using namespace teste;

namespace {

using OpSoftTest = ComOpSoft;

// --- what it shows ---

TEST_F(OpSoftTest, HasItsNameCaptionAndPlace)
{
    AbreCom();
    EXPECT_EQ(OpSoft().objectName(), "OpSoft");
    EXPECT_EQ(OpSoft().windowTitle(), "Opçoes do Software");
    const QPoint meio = OpSoft().screen()->availableGeometry().center();
    EXPECT_LE((OpSoft().frameGeometry().center() - meio).manhattanLength(), 4) << "in the middle";
}

TEST_F(OpSoftTest, TextsStandAroundTheBoxes)
{
    AbreCom();
    QStringList rotulos;
    for (const auto *rotulo : OpSoft().findChildren<QLabel *>())
        rotulos << rotulo->text();
    rotulos.sort();
    QStringList esperados = {"Excluir cheques com mais de",
                             "dia(s), a partir",
                             "da data de apresentação.",
                             "Excluir arquivos de cópia com mais de",
                             "dias(s).",
                             "Enviar",
                             "cheques por página no relatório.",
                             "(para impressora padrão do win)"};
    esperados.sort();
    EXPECT_EQ(rotulos.join('|').toStdString(), esperados.join('|').toStdString());
    EXPECT_EQ(Marca("CheckImpInv")->text(), "Usar impressão invertida para cópias!");
    EXPECT_EQ(Marca("CheckUsarNum")->text(), "&Solicitar número de cheque para impressão.");
    EXPECT_EQ(apoio::Controle<QPushButton>(OpSoft(), "BtnCmd(0)")->text(), "C&onfirmar");
    EXPECT_EQ(apoio::Controle<QPushButton>(OpSoft(), "BtnCmd(1)")->text(), "&Cancelar");
}

TEST_F(OpSoftTest, ShowsTheDefaultsWhenNothingIsStored)
{
    AbreCom();
    EXPECT_EQ(Prazo(0), "30");
    EXPECT_EQ(Prazo(1), "30");
    EXPECT_EQ(Prazo(2), "55");
    EXPECT_TRUE(Marca("CheckImpInv")->isChecked());
    EXPECT_TRUE(Marca("CheckUsarNum")->isChecked());
}

TEST_F(OpSoftTest, ShowsTheVariablesInBoxesBarsAndSwitches)
{
    AbreCom(m_todas);
    const std::array<int, 3> valores = {12, 34, 56};
    for (int i = 0; i < 3; ++i) {
        const int valor = valores.at(static_cast<std::size_t>(i));
        EXPECT_EQ(Prazo(i), std::to_string(valor)) << i;
        EXPECT_EQ(Barra(i)->value(), valor) << i;
        EXPECT_EQ(Barra(i)->minimum(), i == 2 ? 10 : 1) << i;
        EXPECT_EQ(Barra(i)->maximum(), 3650) << i;
        EXPECT_EQ(Barra(i)->orientation(), Qt::Vertical) << i;
    }
    EXPECT_FALSE(Marca("CheckImpInv")->isChecked());
    EXPECT_TRUE(Marca("CheckUsarNum")->isChecked());
}

TEST_F(OpSoftTest, ShowsTheMemoryAndNotTheFile)
{
    Abre();
    Ini("[Opcoes]\n" + m_todas);
    AbreOpcoes();
    EXPECT_EQ(Prazo(0), "30");
    EXPECT_TRUE(Marca("CheckImpInv")->isChecked());
}

// --- confirming ---

TEST_F(OpSoftTest, UnchangedWritesTheTwoSwitchesOnly)
{
    AbreCom();
    Confirma();
    EXPECT_FALSE(EstaAberta());
    EXPECT_EQ(Secao(), "UsarImpInv=1 NumCObrig=1");
    EXPECT_EQ(Memoria(), "30 30 55 1 1");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(OpSoftTest, ChangedWritesAllInTheirOrder)
{
    AbreCom();
    MudaTudo();
    EXPECT_EQ(Memoria(), "30 30 55 1 1") << "nothing is taken before";
    Confirma();
    EXPECT_FALSE(EstaAberta());
    EXPECT_EQ(Secao(), "PeriodoRelExc=31 PeriodoCopExc=41 UsarImpInv=0 NumCObrig=0 NumChkPgRel=56");
    EXPECT_EQ(Memoria(), "31 41 56 0 0");
}

struct CasoUmaOpcao {
    std::string nome;
    int prazo;
    std::string secao;
};
void PrintTo(const CasoUmaOpcao &c, std::ostream *os)
{
    *os << c.nome;
}
class UmaOpcao : public ComOpSoft, public testing::WithParamInterface<CasoUmaOpcao> {};
TEST_P(UmaOpcao, IsTheOnlyBoxThatIsWritten)
{
    AbreCom();
    DigitaPrazo(GetParam().prazo, "77");
    Confirma();
    EXPECT_EQ(Secao(), GetParam().secao);
}
INSTANTIATE_TEST_SUITE_P(
    Opcoes, UmaOpcao,
    testing::Values(CasoUmaOpcao{"Cheques", 0, "PeriodoRelExc=77 UsarImpInv=1 NumCObrig=1"},
                    CasoUmaOpcao{"Copies", 1, "PeriodoCopExc=77 UsarImpInv=1 NumCObrig=1"},
                    CasoUmaOpcao{"ChequesAPage", 2, "UsarImpInv=1 NumCObrig=1 NumChkPgRel=77"}),
    kNomeDoCaso);

TEST_F(OpSoftTest, OtherKeysOfTheFileStay)
{
    AbreCom("UsaData=x\nScript=001\n" + m_todas);
    MudaTudo();
    Confirma();
    EXPECT_EQ(m_escritorio.LeIni().toStdString(),
              "[Sistema]\r\nInRel=1\r\nport=COM2\r\n[Opcoes]\r\nUsaData=x\r\nScript=001\r\n"
              "PeriodoRelExc=31\r\nPeriodoCopExc=41\r\nNumChkPgRel=56\r\nUsarImpInv=1\r\nNumCObrig=0\r\n");
}

TEST_F(OpSoftTest, AFailedWriteIsNotTold)
{
    AbreCom();
    MudaTudo();
    ASSERT_TRUE(QFile::remove(m_escritorio.Arquivo("QX70.INI")));
    ASSERT_TRUE(QDir(m_escritorio.Pasta()).mkpath("QX70.INI/cheia"));
    Confirma();
    EXPECT_FALSE(EstaAberta());
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(Memoria(), "31 41 56 0 0");
}

TEST_F(OpSoftTest, TheMnemonicLeavesTheBoxInUseAndConfirms)
{
    AbreCom();
    DigitaPrazo(0, "9999");
    TeclaNela(Qt::Key_O, Qt::AltModifier);
    EXPECT_FALSE(EstaAberta());
    EXPECT_EQ(m_escritorio.Chave("Opcoes", "PeriodoRelExc"), "3650");
    EXPECT_EQ(Dados().PeriodoRelExc, 3650);
}

TEST_F(OpSoftTest, EnterLeavesTheBoxInUseAndConfirms)
{
    AbreCom();
    DigitaPrazo(2, "");
    TeclaNela(Qt::Key_Return);
    EXPECT_FALSE(EstaAberta());
    EXPECT_EQ(m_escritorio.Chave("Opcoes", "NumChkPgRel"), "1");
    EXPECT_EQ(Dados().NumChkPgRel, 1);
}

TEST_F(OpSoftTest, FiveChequesAPageAreConfirmed)
{
    AbreCom();
    DigitaPrazo(2, "5");
    Confirma();
    EXPECT_EQ(m_escritorio.Chave("Opcoes", "NumChkPgRel"), "5");
}

TEST_F(OpSoftTest, TheSwitchHasItsMnemonic)
{
    AbreCom();
    TeclaNela(Qt::Key_S, Qt::AltModifier);
    EXPECT_FALSE(Marca("CheckUsarNum")->isChecked());
    EXPECT_EQ(FocoNela(), "CheckUsarNum");
}

struct CasoCancela {
    std::string nome;
    std::function<void(const QWidget &)> faz;
};
void PrintTo(const CasoCancela &c, std::ostream *os)
{
    *os << c.nome;
}
class Cancelado : public ComOpSoft, public testing::WithParamInterface<CasoCancela> {};
TEST_P(Cancelado, LeavesFileAndMemoryAsTheyWere)
{
    AbreCom(m_todas);
    const QString antes = m_escritorio.LeIni();
    MudaTudo();
    GetParam().faz(OpSoft());
    EXPECT_FALSE(EstaAberta());
    EXPECT_EQ(m_escritorio.LeIni().toStdString(), antes.toStdString());
    EXPECT_EQ(Memoria(), "12 34 56 0 1");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    AbreOpcoes();
    EXPECT_EQ(Prazo(0), "12");
    EXPECT_FALSE(Marca("CheckImpInv")->isChecked());
}
INSTANTIATE_TEST_SUITE_P(
    Modos, Cancelado,
    testing::Values(
        CasoCancela{"ByItsButton", [](const QWidget &opSoft) { apoio::ClicaEm(opSoft, "BtnCmd(1)"); }},
        CasoCancela{"ByMnemonic",
                    [](const QWidget &opSoft) { apoio::Tecla(opSoft, Qt::Key_C, Qt::AltModifier); }},
        CasoCancela{"ByEsc", [](const QWidget &opSoft) { apoio::Tecla(opSoft, Qt::Key_Escape); }}),
    kNomeDoCaso);

// --- effect ---

TEST_F(OpSoftTest, TheCompulsoryNumberTakesEffectAtOnce)
{
    AbreCom();
    PreencheCheque();
    Poe("Text1(6)", "");
    const auto imprime = [this] {
        Ativa();
        m_gravadora.Esquece();
        Clica("Opcoes(0)");
        return m_gravadora.Chamadas().size();
    };
    EXPECT_EQ(imprime(), 0) << "compulsory while the screen is only open";
    AtivaTela("OpSoft");
    ClicaNaMarca("CheckUsarNum");
    EXPECT_EQ(imprime(), 0) << "and until it is confirmed";
    AtivaTela("OpSoft");
    Confirma();
    EXPECT_EQ(imprime(), 3);
    AbreOpcoes();
    ClicaNaMarca("CheckUsarNum");
    Confirma();
    EXPECT_EQ(imprime(), 0);
    EXPECT_EQ(Foco(), "Text1(6)");
}

TEST_F(OpSoftTest, NewPeriodsTakeEffectAtTheNextStart)
{
    m_escritorio.Sql("INSERT INTO Log (\"Index\", Codigo, Data) VALUES ('0000000001', '00001', '12/01/03')");
    QFile copia(m_escritorio.Arquivo("cop1201.03")); // twenty days old, both
    ASSERT_TRUE(copia.open(QIODevice::WriteOnly));
    AbreCom();
    EXPECT_EQ(m_caixasDoInicio.size(), 0U);
    DigitaPrazo(0, "19");
    DigitaPrazo(1, "19");
    Confirma();
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(Log().size(), 1);
    Abre();
    EXPECT_EQ(m_caixasDoInicio.size(), 3U) << "two questions of the cheques, one of the copies";
    EXPECT_EQ(Log().size(), 0);
    EXPECT_FALSE(copia.exists());
}

TEST_F(OpSoftTest, WhatWasConfirmedIsThereAtTheNextStart)
{
    AbreCom();
    MudaTudo();
    Confirma();
    Abre();
    EXPECT_EQ(Memoria(), "31 41 56 0 0");
    AbreOpcoes();
    EXPECT_EQ(Prazo(0) + ' ' + Prazo(1) + ' ' + Prazo(2), "31 41 56");
}

// --- window ---

TEST_F(OpSoftTest, ASecondOpeningRaisesTheOneThatIsOpen)
{
    AbreCom();
    DigitaPrazo(0, "9");
    const QPointer<QWidget> primeira = &OpSoft();
    Ativa();
    Tela().findChild<QAction *>("MOpSoft")->trigger();
    ASSERT_EQ(Abertas("OpSoft").size(), 1);
    EXPECT_EQ(&OpSoft(), primeira);
    EXPECT_EQ(Prazo(0), "9");
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == primeira; }));
}

TEST_F(OpSoftTest, TabWalksInReadingOrder)
{
    AbreCom();
    VaiNelaPara("Text01(0)");
    const QStringList volta = VoltaDoTab(OpSoft());
    EXPECT_EQ(volta.join(' '), "Text01(0) VScroll01(0) Text01(1) VScroll01(1) Text01(2) VScroll01(2) "
                               "CheckImpInv CheckUsarNum BtnCmd(0) BtnCmd(1)");
    EXPECT_EQ(volta, APartirDe(OrdemDeLeitura(OpSoft()), "Text01(0)"))
        << "read: " << OrdemDeLeitura(OpSoft()).join(' ').toStdString();
}

} // namespace
