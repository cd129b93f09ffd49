// The general report of the list's cheques in a text file.
#include "ComEnvio.h"

#include <QRegularExpression>

using namespace teste;

namespace {

using CriaRelatorioTest = ComEnvio;

TEST_F(CriaRelatorioTest, WritesEveryChequeAndSaysSo)
{
    m_escritorio.Sql("DELETE FROM Log WHERE rowid NOT IN (2, 3)");
    AbreRelato();
    SalvaEm("criar", Destino());
    EsperaCaixa("O Relatório Foi Criado Com Sucesso, Poderá Abri-lo no Word ou Excel",
                QString::fromStdString(kTitulo), QMessageBox::NoIcon);
    EXPECT_EQ(NoArquivo(), "Relat\xF3rio Geral de Cheques Emitidos\r\n\r\n"
                           "   237 - BANCO DOIS  CH. N\xBA:  \r\n"
                           "Valor: 1.000,00   Loc.: S\xE3o Paulo   Data: 15/02/03\r\n"
                           "Fav.: Jos\xE9 Lu\xEDs\r\na\r\nb\r\nc\r\n" +
                               QByteArray(56, '*') +
                               "\r\n"
                               "   001 - BANCO UM  CH. N\xBA: 000125\r\n"
                               "Valor: 50,25   Loc.: Olinda   Data: 20/02/03\r\n"
                               "Fav.: Ana Lima\r\n" +
                               QByteArray(56, '*') + "\r\n");
    EXPECT_TRUE(OutroEscreve());
}

TEST_F(CriaRelatorioTest, OfAnEmptyLogHasItsTitle)
{
    m_escritorio.Sql("DELETE FROM Log");
    AbreRelato();
    SalvaEm("criar", Destino());
    EXPECT_EQ(NoArquivo(), "Relat\xF3rio Geral de Cheques Emitidos\r\n\r\n");
    EXPECT_EQ(m_caixas->Quantas(), 1U);
}

TEST_F(CriaRelatorioTest, ABankThatIsNotRegistered)
{
    m_escritorio.Sql("DELETE FROM Log WHERE rowid <> 4");
    AbreRelato();
    SalvaEm("criar", Destino());
    EXPECT_TRUE(NoArquivo().contains("   341 - Inexistente  CH. N\xBA: 000126\r\n"));
}

TEST_F(CriaRelatorioTest, HoldsTheFilteredChequesAndReadsTheStore)
{
    AbreRelato();
    Aperta("SSCommand6");
    AtivaTela("Filtro");
    apoio::ClicaEm(Aberta("Filtro"), "Text1(0)");
    apoio::Digita(Aberta("Filtro"), "1");
    ApertaEm("Filtro", "Command3D1(0)");
    Descarta();
    m_escritorio.Sql("UPDATE Log SET Favor = 'Outro' WHERE rowid = 1");
    ClicaNaLinha(1); // a look-up in between
    SalvaEm("criar", Destino());
    const QByteArray bytes = NoArquivo();
    EXPECT_EQ(bytes.count("Fav.: "), 2);
    EXPECT_TRUE(bytes.contains("Fav.: Outro\r\n"));
    EXPECT_FALSE(bytes.contains("BANCO DOIS"));
}

TEST_F(CriaRelatorioTest, AChequePrintedOnMainMeanwhileTakesNothingFromIt)
{
    AbreRelato();
    Ativa();
    PreencheCheque();
    Clica("Opcoes(0)");
    ASSERT_FALSE(Dados().armazem.Aberto(nucleo::SelLog)) << "the set is gone with it";
    SalvaEm("criar", Destino());
    EXPECT_EQ(NoArquivo().count("Fav.: "), 5) << "and the new one is in the store by now";
    EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::NoIcon) << Vistas();
}

TEST_F(CriaRelatorioTest, WithoutANameNothingIsWrittenOrSaid)
{
    AbreRelato();
    SalvaEm("criar", {});
    EXPECT_EQ(NoArquivo(), "no file");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(CriaRelatorioTest, ALongerOldFileKeepsItsTail)
{
    PoeNoArquivo(QByteArray(5000, 'x'));
    AbreRelato();
    Responde(QMessageBox::Yes);
    SalvaEm("criar", Destino());
    EXPECT_EQ(NoArquivo().size(), 5000);
    EXPECT_TRUE(NoArquivo().startsWith("Relat\xF3rio"));
}

TEST_F(CriaRelatorioTest, AStoreThatGoesAwayBehindTheDialogueIsToldAndNothingIsWritten)
{
    PoeNoArquivo("antigo");
    AbreRelato();
    Responde(QMessageBox::Yes);
    SalvaEm("criar", Destino(),
            [this] { QFile::rename(m_escritorio.Arquivo("QX70.MDB"), m_escritorio.Arquivo("longe.MDB")); });
    ASSERT_EQ(m_caixas->Quantas(), 2U) << Vistas();
    EXPECT_EQ(m_caixas->Ultima().texto, "O Banco de dados \"QX70.MDB\" nao foi encontrado!");
    EXPECT_EQ(m_caixas->Ultima().titulo.toStdString(), kTitulo);
    EXPECT_EQ(NoArquivo(), "antigo");
    EXPECT_EQ(Lista(), kLinhas);
}

TEST_F(CriaRelatorioTest, AnotherTableInItsPlaceIsToldByTheNumberAloneAndNothingIsWritten)
{
    AbreRelato();
    SalvaEm("criar", Destino(), [this] { m_escritorio.Sql("DROP TABLE Log"); });
    ASSERT_EQ(m_caixas->Quantas(), 1U) << Vistas();
    EXPECT_TRUE(QRegularExpression("^Ocorreu erro \\d+!$").match(m_caixas->Ultima().texto).hasMatch())
        << Vistas();
    EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Warning);
    EXPECT_EQ(NoArquivo(), "no file");
}

struct CasoSemValor {
    std::string nome;
    QString valor;
    QByteArray mostra;
};
void PrintTo(const CasoSemValor &c, std::ostream *os)
{
    *os << '"' << c.valor.toStdString() << '"';
}
class ValorNoRelatorioGeral : public ComEnvio, public testing::WithParamInterface<CasoSemValor> {};
TEST_P(ValorNoRelatorioGeral, StandsAsItIsStoredWhenItIsNoNumber)
{
    m_escritorio.Sql("DELETE FROM Log");
    Grava({"0000000001", "001", GetParam().valor, "Ana", "Recife", "01/02/03", "1", " "});
    Grava({"0000000002", "001", "2,", "Bento", "Olinda", "02/02/03", "2", " "});
    AbreRelato();
    ASSERT_EQ(Listados(), "2") << "out of the list";
    SalvaEm("criar", Destino());
    EXPECT_EQ(m_caixas->Ultima().texto,
              "O Relatório Foi Criado Com Sucesso, Poderá Abri-lo no Word ou Excel");
    const QByteArray bytes = NoArquivo();
    EXPECT_TRUE(
        bytes.contains("Valor: " + GetParam().mostra + "   Loc.: Recife   Data: 01/02/03\r\nFav.: Ana\r\n"))
        << bytes.toStdString();
    EXPECT_TRUE(bytes.contains("Valor: 2,00   Loc.: Olinda   Data: 02/02/03\r\nFav.: Bento\r\n"));
}
INSTANTIATE_TEST_SUITE_P(Textos, ValorNoRelatorioGeral,
                         testing::Values(CasoSemValor{"Letters", "abc", "abc"}, CasoSemValor{"Empty", "", ""},
                                         CasoSemValor{"TwoCommas", "1,2,3", "1,2,3"}),
                         kNomeDoCaso);

TEST_F(CriaRelatorioTest, ADateThatIsNoDateStandsAsItIsStored)
{
    Grava({"0000000005", "001", "1,", "Ana", "Recife", "31/02/03", "1", " "});
    AbreRelato();
    SalvaEm("criar", Destino());
    EXPECT_TRUE(NoArquivo().contains("Data: 31/02/03\r\n"));
}

} // namespace
