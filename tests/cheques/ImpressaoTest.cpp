// Printing a normal cheque: the order of questions and device calls, the bytes, and every way it can end.
#include "ComEntrada.h"

#include <QAction>
#include <QCheckBox>
#include <QFile>
#include <QProgressBar>

using namespace teste;

namespace {

const QString kIniciaPorta = QStringLiteral("IniciaPorta(\"COM2\")");
const QString kImprime =
    QStringLiteral(R"(ImprimeCheque("237","1.234,50","Jos\x82 Lu\xA1s","S\xC6o Jo\xC6o","01/02/03",""))");
const QString kFechaPorta = QStringLiteral("FechaPorta()");
const QStringList kUmCheque = {kIniciaPorta, kImprime, kFechaPorta};

class Impressao : public ComEntrada {
protected:
    void AbrePreenchido()
    {
        Abre();
        PreencheCheque();
    }
    void Imprime() { Clica("Opcoes(0)"); }
    void EsperaInsira(const apoio::Caixa &caixa)
    {
        EXPECT_EQ(caixa.texto, "Insira o Documento.");
        EXPECT_EQ(caixa.titulo, "Impressão do Cheque");
        EXPECT_EQ(caixa.icone, QMessageBox::Information);
        EXPECT_EQ(caixa.botoes, QMessageBox::Ok | QMessageBox::Cancel);
        EXPECT_EQ(caixa.padrao, QMessageBox::Ok);
    }
    /// The only box asked for the document, and one cheque went out.
    void EsperaUmCheque()
    {
        ASSERT_EQ(m_caixas->Quantas(), 1U);
        EsperaInsira(m_caixas->Ultima());
        EXPECT_EQ(m_gravadora.Chamadas(), kUmCheque);
        EXPECT_EQ(Log().size(), 1);
    }
    void EsperaCamposComoEstavam()
    {
        EXPECT_EQ(Texto("Text1(0)"), "237");
        EXPECT_EQ(Texto("Text1(1)"), "1.234,50");
        EXPECT_EQ(Texto("Text1(2)"), "José Luís");
        EXPECT_EQ(Texto("Text1(3)"), "São João");
        EXPECT_EQ(Texto("Text1(4)"), "01/02/03");
        EXPECT_EQ(Texto("Text1(6)"), "000123");
    }
};

TEST_F(Impressao, ByClick)
{
    AbrePreenchido();
    Imprime();
    EsperaUmCheque();
}

TEST_F(Impressao, ByEnterInTheNumberAndEnterOnTheButton)
{
    AbrePreenchido();
    VaiPara("Text1(6)");
    Tecla(Qt::Key_Return);
    ASSERT_EQ(Foco(), "Opcoes(0)");
    EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
    Tecla(Qt::Key_Return);
    EsperaUmCheque();
}

TEST_F(Impressao, ByMnemonic)
{
    AbrePreenchido();
    Tecla(Qt::Key_H, Qt::AltModifier);
    EsperaUmCheque();
}

TEST_F(Impressao, ByMenu)
{
    AbrePreenchido();
    Tela().findChild<QAction *>("Imp_Cheque")->trigger();
    EsperaUmCheque();
}

TEST_F(Impressao, LeavesTheFieldsAndGoesToTheBank)
{
    AbrePreenchido();
    Imprime();
    EsperaCamposComoEstavam();
    EXPECT_EQ(Foco(), "Text1(0)");
    EXPECT_EQ(Selecao("Text1(0)"), "237");
}

TEST_F(Impressao, SecondPressPrintsASecondCheque)
{
    AbrePreenchido();
    Imprime();
    Ativa();
    Imprime();
    EXPECT_EQ(m_gravadora.Chamadas(), kUmCheque + kUmCheque);
    EXPECT_EQ(Log().size(), 2);
}

TEST_F(Impressao, PortIsOpenedBehindTheQuestion)
{
    AbrePreenchido();
    QStringList antes = {"no box"};
    m_caixas->AoAbrir([&](QMessageBox &) { antes = m_gravadora.Chamadas(); });
    Imprime();
    EXPECT_TRUE(antes.isEmpty());
    EXPECT_EQ(m_gravadora.Chamadas(), kUmCheque);
}

TEST_F(Impressao, GaugeRunsToItsEnd)
{
    AbrePreenchido();
    auto *gauge = apoio::Controle<QProgressBar>(Tela(), "Gauge1");
    gauge->setValue(0);
    Imprime();
    EXPECT_EQ(gauge->value(), 100);
}

TEST_F(Impressao, TextsAreTrimmed)
{
    AbrePreenchido();
    Poe("Text1(2)", "  Ana  ");
    Poe("Text1(3)", " Rio ");
    Poe("Text1(4)", "010203 ");
    Imprime();
    ASSERT_EQ(m_gravadora.Chamadas().size(), 3);
    EXPECT_EQ(m_gravadora.Chamadas()[1], R"(ImprimeCheque("237","1.234,50","Ana","Rio","010203",""))");
}

TEST_F(Impressao, ValueIsSentAsAnAmount)
{
    AbrePreenchido();
    Poe("Text1(1)", "1234567,5");
    Imprime();
    ASSERT_EQ(m_gravadora.Chamadas().size(), 3);
    EXPECT_TRUE(m_gravadora.Chamadas()[1].startsWith(R"(ImprimeCheque("237","1.234.567,50",)"))
        << m_gravadora.Chamadas()[1].toStdString();
}

TEST_F(Impressao, EmptyPayeeGoesOutAsAPointAndKeepsIt)
{
    AbrePreenchido();
    Poe("Text1(2)", "");
    Imprime();
    ASSERT_EQ(m_gravadora.Chamadas().size(), 3);
    EXPECT_EQ(m_gravadora.Chamadas()[1],
              R"(ImprimeCheque("237","1.234,50",".","S\xC6o Jo\xC6o","01/02/03",""))");
    EXPECT_EQ(Texto("Text1(2)"), ".");
    ASSERT_EQ(Log().size(), 1);
    EXPECT_EQ(Log()[0][4], ".");
}

TEST_F(Impressao, CommentLinesAreSharedAlsoWhenItIsCancelled)
{
    AbrePreenchido();
    Poe("Text2(0)", "um");
    Poe("Text2(1)", "dois");
    Poe("Text2(2)", "três");
    m_caixas->Responde(QMessageBox::Cancel);
    Imprime();
    EXPECT_EQ(Dados().ComentarioLinha1, "um");
    EXPECT_EQ(Dados().ComentarioLinha2, "dois");
    EXPECT_EQ(Dados().ComentarioLinha3, "três");
}

TEST_F(Impressao, CancelPrintsNothingLogsNothingAndSaysNothing)
{
    AbrePreenchido();
    Poe("Text1(2)", "");
    m_caixas->Responde(QMessageBox::Cancel);
    Imprime();
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    EsperaInsira(m_caixas->Ultima());
    EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
    EXPECT_TRUE(Log().isEmpty());
    EXPECT_EQ(Texto("Text1(2)"), "");
    EXPECT_EQ(Foco(), "Text1(0)");
}

// What was handed over while the box stood is for the next cheque.
TEST_F(Impressao, PayeeHandedOverMeanwhileIsKeptAndNotPrinted)
{
    AbrePreenchido();
    Poe("Text1(2)", "");
    m_caixas->AoAbrir([this](QMessageBox &) { Tela().Recebe({{2, "Ana"}}); });
    Imprime();
    ASSERT_EQ(m_gravadora.Chamadas().size(), 3);
    EXPECT_TRUE(m_gravadora.Chamadas()[1].contains(R"(,".",)")) << m_gravadora.Chamadas()[1].toStdString();
    EXPECT_EQ(Log()[0][4], ".");
    EXPECT_EQ(Texto("Text1(2)"), "Ana");
}

TEST_F(Impressao, PortThatDoesNotOpenIsNotTested)
{
    m_gravadora.Roteiro("resultado IniciaPorta 0\nresultado FechaPorta 0\n");
    AbrePreenchido();
    Imprime();
    EsperaUmCheque();
}

TEST_F(Impressao, PortNameThatTheLibraryRewritesIsKept)
{
    m_gravadora.Roteiro("reescreve IniciaPorta COM4\n");
    AbrePreenchido();
    Imprime();
    EXPECT_EQ(Dados().PortaSerial, "COM4");
}

TEST_F(Impressao, UntickedBoxLeavesTheLogAsItWas)
{
    AbrePreenchido();
    Clica("CheckBox");
    ASSERT_FALSE(Entrada().IncluiNoRelatorio());
    Imprime();
    EXPECT_EQ(m_gravadora.Chamadas(), kUmCheque);
    EXPECT_TRUE(Log().isEmpty());
    EXPECT_EQ(m_caixas->Quantas(), 1U);
}

TEST_F(Impressao, LogThatCannotBeOpenedIsNotTold)
{
    AbrePreenchido();
    m_escritorio.Sql("DROP TABLE Log");
    Imprime();
    EXPECT_EQ(m_gravadora.Chamadas(), kUmCheque);
    EXPECT_EQ(m_caixas->Quantas(), 1U);
    EXPECT_EQ(Foco(), "Text1(0)");
}

TEST_F(Impressao, MissingStoreIsNotTold)
{
    AbrePreenchido();
    ASSERT_TRUE(QFile::remove(m_escritorio.Arquivo("QX70.MDB")));
    Imprime();
    EXPECT_EQ(m_gravadora.Chamadas(), kUmCheque);
    EXPECT_EQ(m_caixas->Quantas(), 1U);
    EXPECT_FALSE(QFile::exists(m_escritorio.Arquivo("QX70.MDB")));
}

TEST_F(Impressao, ValueThatIsNoNumberEndsBeforeThePort)
{
    AbrePreenchido();
    Poe("Text1(1)", "abc");
    Imprime();
    ASSERT_EQ(m_caixas->Quantas(), 2U);
    EsperaInsira(m_caixas->Vistas()[0]);
    EXPECT_TRUE(m_caixas->Ultima().texto.startsWith("Ocorreu erro 13!\n"));
    EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
    EXPECT_TRUE(Log().isEmpty());
}

TEST_F(Impressao, MissingLibraryIsToldAndLogsNothing)
{
    ASSERT_TRUE(QFile::remove(m_escritorio.Arquivo("libqx7032.so")));
    ASSERT_TRUE(QFile(m_escritorio.Arquivo("libqx7032.so")).open(QIODevice::WriteOnly));
    AbrePreenchido();
    Imprime();
    ASSERT_EQ(m_caixas->Quantas(), 3U);
    EsperaInsira(m_caixas->Vistas()[0]);
    EXPECT_EQ(m_caixas->Ultima().texto, "Problemas com a impressao do cheque");
    EXPECT_EQ(m_caixas->Ultima().titulo, "Impressão do Cheque (-001)");
    EXPECT_TRUE(Log().isEmpty());
    EsperaCamposComoEstavam();
}

struct CasoResultado {
    std::string nome;
    int resultado;
    QString titulo;
};
void PrintTo(const CasoResultado &c, std::ostream *os)
{
    *os << "result " << c.resultado;
}
class FalhaDaImpressao : public Impressao, public testing::WithParamInterface<CasoResultado> {};
TEST_P(FalhaDaImpressao, IsToldWithItsNumberAndLogsNothing)
{
    m_gravadora.Roteiro("resultado ImprimeCheque " + QByteArray::number(GetParam().resultado) + "\n");
    AbrePreenchido();
    Imprime();
    ASSERT_EQ(m_caixas->Quantas(), 2U);
    const apoio::Caixa caixa = m_caixas->Ultima();
    EXPECT_EQ(caixa.texto, "Problemas com a impressao do cheque");
    EXPECT_EQ(caixa.titulo, GetParam().titulo);
    EXPECT_EQ(caixa.icone, QMessageBox::Warning);
    EXPECT_EQ(caixa.botoes, QMessageBox::Ok);
    EXPECT_EQ(m_gravadora.Chamadas(), kUmCheque);
    EXPECT_TRUE(Log().isEmpty());
}
TEST_P(FalhaDaImpressao, KeepsTheFieldsForAnotherPress)
{
    const QByteArray numero = QByteArray::number(GetParam().resultado);
    m_gravadora.Roteiro("resultado ImprimeCheque " + numero + " 1\n");
    AbrePreenchido();
    Imprime();
    EsperaCamposComoEstavam();
    EXPECT_EQ(Foco(), "Text1(0)");
    Ativa();
    Imprime();
    EXPECT_EQ(m_gravadora.Chamadas(), kUmCheque + kUmCheque);
    EXPECT_EQ(Log().size(), 1);
}
TEST_P(FalhaDaImpressao, ClosesThePortBeforeItIsTold)
{
    m_gravadora.Roteiro("resultado ImprimeCheque " + QByteArray::number(GetParam().resultado) + "\n");
    AbrePreenchido();
    QStringList antes;
    m_caixas->AoAbrir(
        [&](QMessageBox &) { m_caixas->AoAbrir([&](QMessageBox &) { antes = m_gravadora.Chamadas(); }); });
    Imprime();
    EXPECT_EQ(antes, kUmCheque);
}
TEST_P(FalhaDaImpressao, IsToldAlsoWithTheBoxUnticked)
{
    m_gravadora.Roteiro("resultado ImprimeCheque " + QByteArray::number(GetParam().resultado) + "\n");
    AbrePreenchido();
    Clica("CheckBox");
    Imprime();
    EXPECT_EQ(m_caixas->Ultima().titulo, GetParam().titulo);
    EXPECT_EQ(m_gravadora.Chamadas(), kUmCheque);
}
INSTANTIATE_TEST_SUITE_P(Resultados, FalhaDaImpressao,
                         testing::Values(CasoResultado{"Result0", 0, "Impressão do Cheque (000)"},
                                         CasoResultado{"Result2", 2, "Impressão do Cheque (002)"},
                                         CasoResultado{"Result22", 22, "Impressão do Cheque (022)"},
                                         CasoResultado{"Result100", 100, "Impressão do Cheque (100)"},
                                         CasoResultado{"ResultBelowZero", -2, "Impressão do Cheque (-002)"}),
                         kNomeDoCaso);

} // namespace
