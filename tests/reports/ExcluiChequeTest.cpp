// A cheque taken out of the store from the list.
#include "ComRelato.h"

#include <QFile>
#include <QScrollBar>
#include <sqlite3.h>

using namespace teste;

namespace {

using ExcluiChequeTest = ComRelato;

TEST_F(ExcluiChequeTest, AsksWithYesAndNo)
{
    AbreRelato();
    ClicaNaLinha(1);
    Aperta("Elimina");
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    const apoio::Caixa caixa = m_caixas->Ultima();
    EXPECT_EQ(caixa.texto,
              "Este Cheque Será Eliminado Da Base de Dados de seu computador!Tem Certeza que deseja "
              "Eliminá-lo?");
    EXPECT_EQ(caixa.titulo, "Atenção");
    EXPECT_EQ(caixa.icone, QMessageBox::Question);
    EXPECT_EQ(caixa.botoes, QMessageBox::Yes | QMessageBox::No);
}

TEST_F(ExcluiChequeTest, YesTakesTheRowAwayAndReadsTheListAgain)
{
    AbreRelato();
    ClicaNaLinha(1);
    Responde(QMessageBox::Yes);
    Aperta("Elimina");
    EXPECT_EQ(Status(), "1: 3:C 4:");
    EXPECT_EQ(Listados(), "1 3 4");
    EXPECT_EQ(Total(), "1.235,25");
    EXPECT_EQ(Painel(), m_painelVazio);
    EXPECT_EQ(List1()->Corrente(), -1) << "no row is chosen: a second press deletes nothing";
    EXPECT_EQ(Chamadas(), "") << "the device is not touched";
    EXPECT_TRUE(OutroEscreve());
}

TEST_F(ExcluiChequeTest, ASecondPressAsksNothing)
{
    AbreRelato();
    ClicaNaLinha(1);
    Responde(QMessageBox::Yes);
    Aperta("Elimina");
    Aperta("Elimina");
    EXPECT_EQ(m_caixas->Quantas(), 1U) << Vistas();
    EXPECT_EQ(Status(), "1: 3:C 4:");
}

TEST_F(ExcluiChequeTest, TheListShowsTheSameStretch)
{
    GravaIguais(300);
    AbreRelato();
    ClicaNaLinha(150);
    List1()->verticalScrollBar()->setValue(145);
    ASSERT_EQ(List1()->verticalScrollBar()->value(), 145);
    Responde(QMessageBox::Yes);
    Aperta("Elimina");
    EXPECT_EQ(List1()->Quantas(), 299);
    EXPECT_EQ(List1()->verticalScrollBar()->value(), 145);
    EXPECT_EQ(List1()->Corrente(), -1);
    EXPECT_EQ(List1()->TextoDe(150).right(10), "0000000152");
}

TEST_F(ExcluiChequeTest, NoEndsIt)
{
    AbreRelato();
    ClicaNaLinha(1);
    const std::string painel = Painel();
    Responde(QMessageBox::No);
    Aperta("Elimina");
    EXPECT_EQ(Status(), "1: 2: 3:C 4:");
    EXPECT_EQ(Painel(), painel);
    EXPECT_EQ(List1()->Corrente(), 1);
}

TEST_F(ExcluiChequeTest, WithNoLineChosenNothingIsAsked)
{
    AbreRelato();
    Aperta("Elimina");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(Status(), "1: 2: 3:C 4:");
}

TEST_F(ExcluiChequeTest, GivesUpTheFilter)
{
    AbreRelato();
    Aperta("SSCommand6");
    AtivaTela("Filtro");
    apoio::ClicaEm(Aberta("Filtro"), "Text1(0)");
    apoio::Digita(Aberta("Filtro"), "1");
    ApertaEm("Filtro", "Command3D1(0)");
    Descarta();
    ASSERT_EQ(Listados(), "1 3");
    ClicaNaLinha(1);
    Aperta("Elimina");
    EXPECT_EQ(Status(), "1: 2: 4:");
    EXPECT_EQ(Listados(), "1 2 4");
}

TEST_F(ExcluiChequeTest, OneThatIsGoneIsToldAndNoOtherIsDeleted)
{
    AbreRelato();
    ClicaNaLinha(1);
    m_escritorio.Sql("DELETE FROM Log WHERE rowid = 2");
    Aperta("Elimina");
    ASSERT_EQ(m_caixas->Quantas(), 2U);
    EXPECT_TRUE(m_caixas->Ultima().texto.contains("0000000002")) << Vistas();
    EXPECT_EQ(Status(), "1: 3:C 4:");
    EXPECT_EQ(Listados(), "1 3 4");
}

TEST_F(ExcluiChequeTest, AStoreThatIsHeldIsToldAndTheRowStays)
{
    AbreRelato();
    ClicaNaLinha(1);
    sqlite3 *outro = nullptr;
    ASSERT_EQ(sqlite3_open(m_escritorio.Arquivo("QX70.MDB").toUtf8().constData(), &outro), SQLITE_OK);
    const auto fecha = qScopeGuard([outro] { sqlite3_close(outro); });
    ASSERT_EQ(sqlite3_exec(outro, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    Aperta("Elimina");
    ASSERT_EQ(m_caixas->Quantas(), 2U);
    EXPECT_TRUE(m_caixas->Ultima().texto.startsWith("Ocorreu erro 3050!")) << Vistas();
    EXPECT_EQ(sqlite3_exec(outro, "ROLLBACK", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_EQ(Status(), "1: 2: 3:C 4:");
    EXPECT_EQ(Lista(), kLinhas);
    EXPECT_EQ(List1()->Corrente(), 1) << "it can be tried again";
}

TEST_F(ExcluiChequeTest, WithoutAStoreItIsTold)
{
    AbreRelato();
    ClicaNaLinha(1);
    ASSERT_TRUE(QFile::rename(m_escritorio.Arquivo("QX70.MDB"), m_escritorio.Arquivo("longe.MDB")));
    Aperta("Elimina");
    ASSERT_EQ(m_caixas->Quantas(), 2U);
    EXPECT_EQ(m_caixas->Ultima().texto, "O Banco de dados \"QX70.MDB\" nao foi encontrado!");
    EXPECT_EQ(Lista(), kLinhas);
}

TEST_F(ExcluiChequeTest, AChequePrintedOnMainMeanwhileStays)
{
    AbreRelato();
    ClicaNaLinha(3);
    Ativa();
    PreencheCheque();
    Clica("Opcoes(0)");
    ASSERT_EQ(Log().size(), 5);
    Aperta("Elimina");
    EXPECT_EQ(Status(), "1: 2: 3:C 5:");
    EXPECT_EQ(Listados(), "1 2 3 5");
}

} // namespace
