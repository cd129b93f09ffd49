// The report of the list on the device and in a file.
#include "ComEnvio.h"
#include "TeclaNoEnvio.h"

using namespace teste;

namespace {

const std::string kInsira = "[Impressão do Cheque] Insira o Documento.";
const std::string kInsiraNovo = "[Impressão de Relatório] Insira novo Documento...";
const char *const kCompacto = "OpCmd01(1)";
const char *const kArquivo = "OpCmd01(0)";

class EnviaListaTest : public ComEnvio {};

TEST_F(EnviaListaTest, AnEmptyListIsToldAndNothingIsSent)
{
    m_escritorio.Sql("DELETE FROM Log");
    AbreRelato();
    Aperta("SSCommand1");
    EsperaCaixa("Não é possivel enviar relatório!\nNenhum registro encontrado!",
                "    Relatório sem registros", QMessageBox::NoIcon);
    EXPECT_EQ(Chamadas(), "");
}

// --- the device ---

TEST_F(EnviaListaTest, OnePageForTheDeviceIsOneDocument)
{
    AbreRelato();
    Aperta("SSCommand1");
    EXPECT_EQ(Vistas(), kInsira) << "and no question behind the last page";
    EXPECT_EQ(m_caixas->Ultima().botoes, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::NoIcon);
    const QStringList chamadas = m_gravadora.Chamadas();
    ASSERT_EQ(chamadas.size(), 5);
    EXPECT_EQ(chamadas[0] + chamadas[1] + chamadas[3] + chamadas[4],
              "IniciaPorta(\"COM2\")TravaDoc(1)TravaDoc(0)FechaPorta()");
    const QString hifens = QString(12, ' ') + QString(94, '-') + "\\x0A";
    EXPECT_TRUE(chamadas[2].startsWith("FormataTX(\"" + hifens + QString(12, ' ') +
                                       "01/02/03               Relatorio de Cheques Impressos\\x0A" +
                                       QString(32, ' ') + "Pag:01/01\\x0A" + hifens))
        << chamadas[2].toStdString();
    EXPECT_TRUE(
        chamadas[2].contains("   Cancelado      000125 | 001 |            50,25 | 20/02/03 | Ana Lima"))
        << chamadas[2].toStdString();
    EXPECT_TRUE(chamadas[2].contains("Total cancelados acumulados  |            50,25\\x0A"));
    EXPECT_TRUE(chamadas[2].contains("|         2.235,25\\x0A"));
    EXPECT_TRUE(chamadas[2].endsWith("\",1,0,0,0,0)"));
}

TEST_F(EnviaListaTest, CancelAtTheFirstQuestionSendsNothing)
{
    AbreRelato();
    Responde(QMessageBox::Cancel);
    Aperta("SSCommand1");
    EXPECT_EQ(Vistas(), kInsira);
    EXPECT_EQ(Chamadas(), "");
}

TEST_F(EnviaListaTest, BetweenThePagesItAsksForANewDocument)
{
    GravaIguais(27);
    AbreRelato();
    Aperta("SSCommand1");
    EXPECT_EQ(Vistas(), kInsira + '|' + kInsiraNovo + '|' + kInsiraNovo);
    EXPECT_EQ(m_caixas->Ultima().botoes, QMessageBox::Ok | QMessageBox::Cancel);
    const QStringList paginas = Enviados();
    ASSERT_EQ(paginas.size(), 3);
    EXPECT_TRUE(paginas[0].contains("Pag:01/03"));
    EXPECT_TRUE(paginas[1].contains("Pag:02/03"));
    EXPECT_TRUE(paginas[2].contains("Pag:03/03"));
    EXPECT_TRUE(paginas[1].contains("000014") && paginas[1].contains("000026"));
    EXPECT_TRUE(paginas[2].contains("000027"));
}

TEST_F(EnviaListaTest, CancelBetweenThePagesEndsIt)
{
    GravaIguais(27);
    AbreRelato();
    Responde(QMessageBox::Ok);
    Responde(QMessageBox::Cancel);
    Aperta("SSCommand1");
    EXPECT_EQ(Enviados().size(), 1);
    EXPECT_EQ(Vistas(), kInsira + '|' + kInsiraNovo);
    EXPECT_TRUE(EstaAberta("Relato"));
}

TEST_F(EnviaListaTest, AFullPageIsFollowedByOneWithoutCheques)
{
    GravaIguais(13);
    AbreRelato();
    Aperta("SSCommand1");
    EXPECT_EQ(Vistas(), kInsira + '|' + kInsiraNovo);
    const QStringList paginas = Enviados();
    ASSERT_EQ(paginas.size(), 2);
    EXPECT_TRUE(paginas[1].contains("Pag:02/01"));
    EXPECT_FALSE(paginas[1].contains("Total"));
}

TEST_F(EnviaListaTest, APageThatTheDeviceRefusesIsToldAndTheNextIsAskedFor)
{
    m_gravadora.Roteiro("resultado FormataTX 0 1\n");
    GravaIguais(14);
    AbreRelato();
    Aperta("SSCommand1");
    EXPECT_EQ(Vistas(),
              kInsira + "|[" + kTitulo + "] Erro ao enviar as informações para a impressora.|" + kInsiraNovo);
    EXPECT_EQ(Enviados().size(), 2);
}

TEST_F(EnviaListaTest, CompactForTheDevice)
{
    AbreRelato();
    Marca("Relato", kCompacto);
    Aperta("SSCommand1");
    const QStringList paginas = Enviados();
    ASSERT_EQ(paginas.size(), 1);
    EXPECT_TRUE(paginas[0].contains(QString(8, ' ') + QString(107, '-') + "\\x0A"));
    EXPECT_TRUE(paginas[0].contains("C|      00012|001|            50,25|")) << paginas[0].toStdString();
}

TEST_F(EnviaListaTest, SendsWhatTheListShowsFiltered)
{
    AbreRelato();
    Aperta("SSCommand6");
    AtivaTela("Filtro");
    apoio::ClicaEm(Aberta("Filtro"), "Text1(0)");
    apoio::Digita(Aberta("Filtro"), "237");
    ApertaEm("Filtro", "Command3D1(0)");
    Descarta();
    m_escritorio.Sql("DELETE FROM Log");
    Aperta("SSCommand1");
    const QStringList paginas = Enviados();
    ASSERT_EQ(paginas.size(), 1);
    EXPECT_TRUE(paginas[0].contains("| 237 |")) << "the lines, not the store";
    EXPECT_FALSE(paginas[0].contains("| 001 |"));
}

class TeclaNoEnvioDaLista : public EnviaListaTest, public testing::WithParamInterface<CasoTecla> {};
TEST_P(TeclaNoEnvioDaLista, AnswersNoQuestion)
{
    GravaIguais(27);
    AbreRelato();
    Responde(QMessageBox::Ok);
    if (GetParam().cancela)
        Responde(QMessageBox::Cancel);
    const TeclaNoEnvio operador(m_escritorio, GetParam().tecla, &Relato());
    Aperta("SSCommand1");
    ASSERT_TRUE(operador.Apertou());
    EXPECT_TRUE(operador.Ampulheta());
    EXPECT_EQ(Enviados().size(), GetParam().cancela ? 1 : 3);
    EXPECT_EQ(Vistas(), kInsira + '|' + kInsiraNovo + (GetParam().cancela ? "" : '|' + kInsiraNovo));
    EXPECT_TRUE(EstaAberta("Relato"));
}
INSTANTIATE_TEST_SUITE_P(Teclas, TeclaNoEnvioDaLista, kTeclas, kNomeDoCaso);

// --- a file ---

TEST_F(EnviaListaTest, TheFileHasAllPages)
{
    GravaIguais(14);
    AbreRelato();
    Marca("Relato", kArquivo);
    SalvaEm("SSCommand1", Destino());
    const QByteArray bytes = NoArquivo();
    EXPECT_EQ(m_caixas->Quantas(), 0U) << Vistas();
    EXPECT_EQ(Chamadas(), "");
    EXPECT_TRUE(bytes.startsWith(QByteArray(12, ' ') + QByteArray(94, '-') + "\r\n"));
    EXPECT_EQ(bytes.count("Relatorio de Cheques Impressos\r\n"), 2);
    EXPECT_EQ(bytes.count("Pag:01/02\r\n"), 1);
    EXPECT_EQ(bytes.count("Pag:02/02\r\n"), 1);
    EXPECT_EQ(bytes.count("Total da p\xE1gina"), 2) << "Windows-1252";
    EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n"));
    EXPECT_EQ(bytes.count("| 001 |"), 14);
    EXPECT_TRUE(bytes.endsWith("|             0,00\r\n"));
}

TEST_F(EnviaListaTest, CompactForTheFile)
{
    AbreRelato();
    Marca("Relato", kCompacto);
    Marca("Relato", kArquivo);
    SalvaEm("SSCommand1", Destino());
    EXPECT_TRUE(NoArquivo().startsWith(QByteArray(8, ' ') + QByteArray(107, '-') + "\r\n"));
}

TEST_F(EnviaListaTest, WithoutANameNoFileIsWritten)
{
    AbreRelato();
    Marca("Relato", kArquivo);
    SalvaEm("SSCommand1", {});
    EXPECT_EQ(NoArquivo(), "no file");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(EnviaListaTest, ALongerOldFileKeepsItsTail)
{
    PoeNoArquivo(QByteArray(100000, 'x'));
    AbreRelato();
    Marca("Relato", kArquivo);
    Responde(QMessageBox::Yes);
    SalvaEm("SSCommand1", Destino());
    const QByteArray bytes = NoArquivo();
    EXPECT_EQ(bytes.size(), 100000);
    EXPECT_TRUE(bytes.startsWith("            ---"));
    EXPECT_TRUE(bytes.endsWith("xxx"));
}

} // namespace
