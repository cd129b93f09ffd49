// The screen that cancels cheques in the store and in the device.
#include "ComRelato.h"
#include "Ordem.h"

#include <QCheckBox>
#include <QFile>
#include <QGroupBox>
#include <QScrollBar>
#include <sqlite3.h>

using namespace teste;

namespace {

const char *const kUltimo = "RadioBox01(0)";
const char *const kTodos = "RadioBox01(1)";
const char *const kSelecionado = "RadioBox01(2)";
const char *const kImpressora = "CheckBox01(0)";
const std::string kNoBanco = "1: 2: 3:C 4:"; // as the fixture stores them
const std::string kCancelaUltimo = R"(IniciaPorta("COM2") CancelaRel("u") FechaPorta())";
const std::string kCancelaTudo = R"(IniciaPorta("COM2") CancelaRel("*") FechaPorta())";

class ExcluiRelTest : public ComRelato {
protected:
    /// Opens the screen with a row chosen in the list, or none (-1).
    void AbreExcluiRel(int linha = -1)
    {
        AbreRelato();
        if (linha >= 0)
            ClicaNaLinha(linha);
        Reabre();
    }
    void Reabre()
    {
        Aperta("SSCommand4");
        AtivaTela("ExcluiRel");
    }
    [[nodiscard]] QWidget &ExcluiRel() { return Aberta("ExcluiRel"); }
    /// Chooses which cheques, and where they are cancelled, then confirms.
    void Confirma(const char *quais, bool noBanco, bool naImpressora)
    {
        Marca("ExcluiRel", quais);
        if (!noBanco)
            Desmarca("CheckBox01(1)");
        if (naImpressora)
            Marca("ExcluiRel", kImpressora);
        ApertaEm("ExcluiRel", "BtnCmd(0)");
    }
    void Desmarca(const char *caixa)
    {
        auto *controle = apoio::Controle<QCheckBox>(ExcluiRel(), caixa);
        QTest::mouseClick(controle, Qt::LeftButton, {}, QPoint(8, controle->height() / 2));
        ASSERT_FALSE(controle->isChecked());
    }
    [[nodiscard]] std::string Ligados()
    {
        QStringList ligados;
        for (const auto *botao : ExcluiRel().findChildren<QAbstractButton *>())
            if (botao->isChecked())
                ligados << botao->text();
        return ligados.join('|').toStdString();
    }
    /// Filters the list by its own screen.
    void Filtra(const char *campo, const QString &texto)
    {
        Aperta("SSCommand6");
        AtivaTela("Filtro");
        apoio::ClicaEm(Aberta("Filtro"), campo);
        apoio::Digita(Aberta("Filtro"), texto);
        ApertaEm("Filtro", "Command3D1(0)");
        Descarta();
    }
};

TEST_F(ExcluiRelTest, HasItsCaptions)
{
    AbreExcluiRel();
    EXPECT_EQ(ExcluiRel().windowTitle(), "Opções de Cancelamento");
    EXPECT_FALSE(ExcluiRel().isModal());
    const std::pair<const char *, const char *> textos[] = {
        {kUltimo, "Último enviado"}, {kSelecionado, "Cheque selecionado"},
        {kTodos, "Todos"},           {"CheckBox01(1)", "Banco de Dados"},
        {kImpressora, "Impressora"}, {"BtnCmd(0)", "Confirmar"},
        {"BtnCmd(1)", "Cancelar"}};
    for (const auto &[nome, texto] : textos)
        EXPECT_EQ(apoio::Controle<QAbstractButton>(ExcluiRel(), nome)->text(), texto) << nome;
    EXPECT_EQ(ExcluiRel().findChildren<QAbstractButton *>().size(), 7);
}

TEST_F(ExcluiRelTest, OpensWithTheChosenChequeInTheStore)
{
    AbreExcluiRel();
    EXPECT_EQ(Ligados(), "Cheque selecionado|Banco de Dados");
}

TEST_F(ExcluiRelTest, AClickOnTheLastMovesTheChoice)
{
    AbreExcluiRel();
    Marca("ExcluiRel", kUltimo);
    EXPECT_EQ(Ligados(), "Último enviado|Banco de Dados");
    Marca("ExcluiRel", kTodos);
    EXPECT_EQ(Ligados(), "Todos|Banco de Dados");
}

// --- the chosen cheque ---

TEST_F(ExcluiRelTest, TheChosenChequeIsMarkedAndStays)
{
    AbreExcluiRel(1);
    Confirma(kSelecionado, true, false);
    EXPECT_EQ(Status(), "1: 2:C 3:C 4:");
    EXPECT_FALSE(EstaAberta("ExcluiRel"));
    EXPECT_TRUE(EstaAberta("Relato"));
    EXPECT_EQ(Lista().at(1), "C " + kLinhas.at(1).mid(2));
    EXPECT_EQ(Total(), "1.235,25");
    EXPECT_EQ(Chamadas(), "");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(ExcluiRelTest, TheChosenChequeEmptiesSixLabels)
{
    AbreExcluiRel(1);
    Confirma(kSelecionado, true, false);
    EXPECT_EQ(Painel(), "|||||| |a|b|c") << "0 to 4 and 6";
}

TEST_F(ExcluiRelTest, TheChosenChequeGivesUpTheFilter)
{
    AbreRelato();
    Filtra("Text1(0)", "237");
    ASSERT_EQ(Listados(), "2");
    ClicaNaLinha(0);
    Reabre();
    Confirma(kSelecionado, true, false);
    EXPECT_EQ(Status(), "1: 2:C 3:C 4:");
    EXPECT_EQ(Listados(), "1 2 3 4");
}

TEST_F(ExcluiRelTest, TheDeviceAloneKnowsNoChosenCheque)
{
    AbreExcluiRel(1);
    Confirma(kSelecionado, false, true);
    EXPECT_EQ(Chamadas(), "");
    EXPECT_EQ(Status(), kNoBanco);
    EXPECT_FALSE(EstaAberta("ExcluiRel"));
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(ExcluiRelTest, WithNoLineChosenItAsksForOneAndWaits)
{
    AbreExcluiRel();
    Confirma(kSelecionado, true, false);
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    EXPECT_EQ(m_caixas->Ultima().texto, "Selecione um cheque na lista.");
    EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Warning);
    EXPECT_EQ(Status(), kNoBanco);
    ASSERT_TRUE(EstaAberta("ExcluiRel"));
    ClicaNaLinha(0);
    ApertaEm("ExcluiRel", "BtnCmd(0)");
    EXPECT_EQ(Status(), "1:C 2: 3:C 4:");
    EXPECT_FALSE(EstaAberta("ExcluiRel"));
}

TEST_F(ExcluiRelTest, AChosenChequeThatIsGoneIsToldAndTheListIsReadAgain)
{
    AbreExcluiRel(1);
    m_escritorio.Sql("DELETE FROM Log WHERE rowid = 2");
    Confirma(kSelecionado, true, false);
    EXPECT_EQ(Vistas(), '[' + kTitulo + "] Cheque nao registrado!");
    EXPECT_EQ(Status(), "1: 3:C 4:");
    EXPECT_EQ(Listados(), "1 3 4");
    EXPECT_FALSE(EstaAberta("ExcluiRel"));
}

// --- the last one ---

TEST_F(ExcluiRelTest, TheLastOneInTheStoreIsTheLastRow)
{
    AbreExcluiRel(0);
    Confirma(kUltimo, true, false);
    EXPECT_EQ(Status(), "1: 2: 3:C 4:C");
    EXPECT_EQ(Chamadas(), "");
    EXPECT_EQ(Total(), "2.234,50");
    EXPECT_EQ(Listados(), "1 2 3 4");
}

TEST_F(ExcluiRelTest, TheLastOneInTheDeviceHasASmallU)
{
    AbreExcluiRel();
    Confirma(kUltimo, false, true);
    EXPECT_EQ(Chamadas(), kCancelaUltimo);
    EXPECT_EQ(Status(), kNoBanco);
}

TEST_F(ExcluiRelTest, TheLastOneInBoth)
{
    AbreExcluiRel();
    Confirma(kUltimo, true, true);
    EXPECT_EQ(Chamadas(), kCancelaUltimo);
    EXPECT_EQ(Status(), "1: 2: 3:C 4:C");
}

TEST_F(ExcluiRelTest, UnderAFilterTheLastOneIsStillThatOfTheLog)
{
    AbreRelato();
    Filtra("Text1(0)", "237");
    Reabre();
    Confirma(kUltimo, true, false);
    EXPECT_EQ(Status(), "1: 2: 3:C 4:C");
    EXPECT_EQ(Listados(), "2") << "the filter stays";
}

TEST_F(ExcluiRelTest, AChequeAddedMeanwhileIsTheLastOne)
{
    AbreExcluiRel();
    Grava({"0000000005", "001", "10,", "Ana", "", "01/02/03", "1", " "});
    Confirma(kUltimo, true, false);
    EXPECT_EQ(Status(), "1: 2: 3:C 4: 5:C");
    EXPECT_EQ(Listados(), "1 2 3 4 5");
}

TEST_F(ExcluiRelTest, OfAnEmptyLogThereIsNoLastOne)
{
    m_escritorio.Sql("DELETE FROM Log");
    AbreExcluiRel();
    Confirma(kUltimo, true, true);
    EXPECT_EQ(Chamadas(), kCancelaUltimo);
    EXPECT_EQ(Vistas(), '[' + kTitulo + "] Cheque nao registrado!");
    EXPECT_FALSE(EstaAberta("ExcluiRel"));
}

TEST_F(ExcluiRelTest, AChequeCancelledWhileItStandsInThePanelShowsIt)
{
    AbreExcluiRel(3);
    ASSERT_EQ(Rotulo(7), " ");
    Confirma(kUltimo, true, false);
    EXPECT_EQ(Rotulo(7), "C") << "a reprint must ask first";
    EXPECT_EQ(Rotulo(6), "000126");
}

// --- all ---

TEST_F(ExcluiRelTest, AllInBothMarksEveryLine)
{
    AbreExcluiRel();
    Confirma(kTodos, true, true);
    EXPECT_EQ(Chamadas(), kCancelaTudo);
    EXPECT_EQ(Status(), "1:C 2:C 3:C 4:C");
    EXPECT_EQ(Total(), "0,00");
    EXPECT_EQ(Listados(), "1 2 3 4");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(ExcluiRelTest, AllInTheDeviceAloneLeavesTheStore)
{
    AbreExcluiRel();
    Confirma(kTodos, false, true);
    EXPECT_EQ(Chamadas(), kCancelaTudo);
    EXPECT_EQ(Status(), kNoBanco);
}

TEST_F(ExcluiRelTest, AllUnderAFilterMarksWhatTheListShows)
{
    AbreRelato();
    Filtra("Text1(0)", "1");
    ASSERT_EQ(Listados(), "1 3");
    Reabre();
    Confirma(kTodos, true, false);
    EXPECT_EQ(Status(), "1:C 2: 3:C 4:");
    EXPECT_EQ(Listados(), "1 3") << "the list stays filtered";
}

TEST_F(ExcluiRelTest, AChequeAddedMeanwhileIsNotShownAndNotMarked)
{
    AbreExcluiRel();
    Grava({"0000000005", "001", "10,", "Ana", "", "01/02/03", "1", " "});
    Confirma(kTodos, true, false);
    EXPECT_EQ(Status(), "1:C 2:C 3:C 4:C 5:");
}

TEST_F(ExcluiRelTest, OneThatIsGoneIsToldAndTheOthersAreMarked)
{
    AbreExcluiRel();
    m_escritorio.Sql("DELETE FROM Log WHERE rowid IN (1, 3)");
    Confirma(kTodos, true, false);
    EXPECT_EQ(Vistas(), '[' + kTitulo + "] Cheque nao registrado!|[" + kTitulo + "] Cheque nao registrado!");
    EXPECT_EQ(Status(), "2:C 4:C");
    EXPECT_EQ(Listados(), "2 4");
}

TEST_F(ExcluiRelTest, OthersCanWriteWhileTheMessageStands)
{
    AbreExcluiRel();
    m_escritorio.Sql("DELETE FROM Log WHERE rowid = 2");
    bool livre = false;
    m_caixas->AoAbrir([&](QMessageBox &) { livre = OutroEscreve(); });
    Confirma(kTodos, true, false);
    EXPECT_TRUE(livre);
    EXPECT_EQ(Status(), "1:C 3:C 4:C");
}

TEST_F(ExcluiRelTest, AThousandAreMarked)
{
    GravaIguais(1203);
    AbreExcluiRel();
    Confirma(kTodos, true, false);
    EXPECT_EQ(m_escritorio.Linhas("SELECT count(*) FROM Log WHERE StCancel = 'C'"),
              QList<QStringList>{{"1203"}});
    EXPECT_EQ(Total(), "0,00");
}

TEST_F(ExcluiRelTest, RowsWithTheSameIndexAreEachMarked)
{
    Grava({"0000000001", "001", "10,", "Ana", "", "01/02/03", "1", " "});
    AbreExcluiRel();
    Confirma(kTodos, true, false);
    EXPECT_EQ(Status(), "1:C 2:C 3:C 4:C 1:C");
}

struct CasoQuais {
    std::string nome;
    const char *quais;
    std::string noDispositivo;
};
void PrintTo(const CasoQuais &c, std::ostream *os)
{
    *os << c.nome;
}
class NenhumLugar : public ExcluiRelTest, public testing::WithParamInterface<CasoQuais> {};
TEST_P(NenhumLugar, IsTickedAndNothingHappens)
{
    AbreExcluiRel(0);
    Confirma(GetParam().quais, false, false);
    EXPECT_EQ(Chamadas(), "");
    EXPECT_EQ(Status(), kNoBanco);
    EXPECT_FALSE(EstaAberta("ExcluiRel"));
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Quais, NenhumLugar,
                         testing::Values(CasoQuais{"Last", kUltimo, ""},
                                         CasoQuais{"Chosen", kSelecionado, ""}, CasoQuais{"All", kTodos, ""}),
                         kNomeDoCaso);

// --- failures, closing ---

TEST_F(ExcluiRelTest, AnAnswerOfTheDeviceIsNotLookedAt)
{
    m_gravadora.Roteiro("resultado IniciaPorta 0\nresultado CancelaRel 9\n");
    AbreExcluiRel();
    Confirma(kTodos, true, true);
    EXPECT_EQ(Chamadas(), kCancelaTudo);
    EXPECT_EQ(Status(), "1:C 2:C 3:C 4:C");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

// What the device has cancelled stays cancelled there; the store can be tried again.
class BancoPreso : public ExcluiRelTest, public testing::WithParamInterface<CasoQuais> {};
TEST_P(BancoPreso, IsToldAfterTheDeviceAndNothingIsMarked)
{
    AbreExcluiRel(1);
    sqlite3 *outro = nullptr;
    ASSERT_EQ(sqlite3_open(m_escritorio.Arquivo("QX70.MDB").toUtf8().constData(), &outro), SQLITE_OK);
    const auto fecha = qScopeGuard([outro] { sqlite3_close(outro); });
    ASSERT_EQ(sqlite3_exec(outro, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    std::string antesDaCaixa = "no box";
    m_caixas->AoAbrir([&](QMessageBox &) { antesDaCaixa = Chamadas(); });
    Confirma(GetParam().quais, true, true);
    ASSERT_EQ(m_caixas->Quantas(), 1U) << Vistas();
    EXPECT_TRUE(m_caixas->Ultima().texto.startsWith("Ocorreu erro 3050!")) << Vistas();
    EXPECT_EQ(antesDaCaixa, GetParam().noDispositivo) << "the device comes first";
    EXPECT_EQ(Chamadas(), GetParam().noDispositivo) << "and once";
    EXPECT_EQ(sqlite3_exec(outro, "ROLLBACK", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_EQ(Status(), kNoBanco);
    EXPECT_EQ(Lista(), kLinhas);
    ASSERT_TRUE(EstaAberta("ExcluiRel")) << "it can be confirmed again";
    Desmarca(kImpressora);
    ApertaEm("ExcluiRel", "BtnCmd(0)");
    EXPECT_NE(Status(), kNoBanco);
    EXPECT_FALSE(EstaAberta("ExcluiRel"));
    EXPECT_EQ(Chamadas(), GetParam().noDispositivo);
}
INSTANTIATE_TEST_SUITE_P(Quais, BancoPreso,
                         testing::Values(CasoQuais{"Last", kUltimo, kCancelaUltimo},
                                         CasoQuais{"Chosen", kSelecionado, ""},
                                         CasoQuais{"All", kTodos, kCancelaTudo}),
                         kNomeDoCaso);

TEST_F(ExcluiRelTest, WithoutAStoreItIsTold)
{
    AbreExcluiRel(1);
    ASSERT_TRUE(QFile::rename(m_escritorio.Arquivo("QX70.MDB"), m_escritorio.Arquivo("longe.MDB")));
    Confirma(kSelecionado, true, false);
    EXPECT_EQ(Vistas(), '[' + kTitulo + "] O Banco de dados \"QX70.MDB\" nao foi encontrado!");
    EXPECT_EQ(Lista(), kLinhas);
}

struct CasoSai {
    std::string nome;
    bool esc;
};
void PrintTo(const CasoSai &c, std::ostream *os)
{
    *os << c.nome;
}
class ExcluiRelFechado : public ExcluiRelTest, public testing::WithParamInterface<CasoSai> {};
TEST_P(ExcluiRelFechado, ChangesNothing)
{
    AbreExcluiRel(1);
    Marca("ExcluiRel", kTodos);
    Marca("ExcluiRel", kImpressora);
    if (GetParam().esc)
        apoio::Tecla(ExcluiRel(), Qt::Key_Escape);
    else
        ApertaEm("ExcluiRel", "BtnCmd(1)");
    EXPECT_FALSE(EstaAberta("ExcluiRel"));
    EXPECT_EQ(Chamadas(), "");
    EXPECT_EQ(Status(), kNoBanco);
    Descarta();
    Reabre();
    EXPECT_EQ(Ligados(), "Cheque selecionado|Banco de Dados") << "afresh";
}
INSTANTIATE_TEST_SUITE_P(Modos, ExcluiRelFechado,
                         testing::Values(CasoSai{"ByItsButton", false}, CasoSai{"ByEsc", true}), kNomeDoCaso);

TEST_F(ExcluiRelTest, OpensAtTheChoiceThatIsOn)
{
    AbreExcluiRel();
    EXPECT_EQ(apoio::Foco(ExcluiRel()), kSelecionado);
}

TEST_F(ExcluiRelTest, ClosingTheListTakesItAway)
{
    AbreExcluiRel(1);
    Aperta("SSCommand2");
    Descarta();
    EXPECT_FALSE(EstaAberta("Relato"));
    EXPECT_TRUE(Tela().findChildren<QWidget *>("ExcluiRel").isEmpty());
    EXPECT_EQ(Status(), kNoBanco);
    EXPECT_EQ(Chamadas(), "");
}

// Each way of cancelling fills a long list again.
class MesmoLugar : public ExcluiRelTest, public testing::WithParamInterface<CasoQuais> {};
TEST_P(MesmoLugar, TheListShowsTheSameStretch)
{
    GravaIguais(300);
    AbreExcluiRel(150);
    List1()->verticalScrollBar()->setValue(145);
    ASSERT_EQ(List1()->verticalScrollBar()->value(), 145);
    Confirma(GetParam().quais, true, false);
    EXPECT_EQ(List1()->verticalScrollBar()->value(), 145);
    EXPECT_EQ(List1()->Corrente(), -1);
    EXPECT_EQ(List1()->Quantas(), 300);
}
INSTANTIATE_TEST_SUITE_P(Quais, MesmoLugar,
                         testing::Values(CasoQuais{"Last", kUltimo, ""},
                                         CasoQuais{"Chosen", kSelecionado, ""}, CasoQuais{"All", kTodos, ""}),
                         kNomeDoCaso);

TEST_F(ExcluiRelTest, ASecondOpeningRaisesTheOneThatIsOpen)
{
    AbreExcluiRel(1);
    Marca("ExcluiRel", kTodos);
    Reabre();
    EXPECT_EQ(Ligados(), "Todos|Banco de Dados");
}

TEST_F(ExcluiRelTest, TabWalksInReadingOrder)
{
    AbreExcluiRel();
    const QStringList volta = VoltaDoTab(ExcluiRel());
    EXPECT_EQ(volta.join(' ').toStdString(), "RadioBox01(2) CheckBox01(1) CheckBox01(0) BtnCmd(0) BtnCmd(1)");
    QStringList lida = OrdemDeLeitura(ExcluiRel());
    lida.removeAll(kUltimo);
    lida.removeAll(kTodos);
    EXPECT_EQ(volta, lida);
}

} // namespace
