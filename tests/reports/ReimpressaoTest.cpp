// A cheque of the log handed back to the main screen, and printed again from there.
#include "ComRelato.h"

#include <QCheckBox>
#include <QFile>

using namespace teste;

namespace {

const std::string kPergunta =
    '[' + kTitulo + "] O cheque atual possui status de cancelado!\nConfirma reimpressao?";

class ReimpressaoTest : public ComRelato {
protected:
    void Reimprime(int linha, QMessageBox::StandardButton resposta = QMessageBox::NoButton)
    {
        AbreRelato();
        if (resposta != QMessageBox::NoButton)
            Responde(resposta);
        ClicaNaLinha(linha);
        Aperta("SSCommand3");
        Descarta();
    }
    [[nodiscard]] bool Inclui() { return apoio::Controle<QCheckBox>(Tela(), "CheckBox")->isChecked(); }
    /// The fields of Main, and its bank's name, with '|' between them.
    [[nodiscard]] std::string NoMain()
    {
        QStringList textos;
        for (const int i : {0, 1, 2, 3, 4, 6})
            textos << apoio::Texto(Tela(), QString("Text1(%1)").arg(i));
        return textos.join('|').toStdString() + '|' + NomeDoBanco();
    }
    [[nodiscard]] std::string LinhasNoMain()
    {
        QStringList textos;
        for (int i = 0; i < 4; ++i)
            textos << apoio::Texto(Tela(), QString("Text2(%1)").arg(i));
        return textos.join('|').toStdString();
    }
    const std::string m_vazio = "||||||";
};

TEST_F(ReimpressaoTest, FillsTheFieldsAndCloses)
{
    Reimprime(1);
    EXPECT_FALSE(EstaAberta("Relato"));
    EXPECT_EQ(NoMain(), "237|1.000,00|José Luís|São Paulo|15/02/03| |BANCO DOIS");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(Chamadas(), "") << "nothing goes to the device yet";
}

TEST_F(ReimpressaoTest, UnticksTheInclusion)
{
    Abre();
    ASSERT_TRUE(Inclui());
    Reimprime(0);
    EXPECT_FALSE(Inclui());
}

TEST_F(ReimpressaoTest, TheCommentsTakeTheFirstThreeLines)
{
    Ini("[Verso]\nLinha00=x\nLinha01=y\nLinha02=z\nLinha03=w\n");
    Reimprime(1);
    EXPECT_EQ(LinhasNoMain(), "a|b|c|w");
}

TEST_F(ReimpressaoTest, AChequeWithoutCommentsEmptiesThem)
{
    Ini("[Verso]\nLinha00=x\nLinha01=y\nLinha02=z\nLinha03=w\n");
    Abre();
    ASSERT_EQ(LinhasNoMain(), "x|y|z|w");
    AbrePeloMenu("Relat", "Relato");
    Grava({"0000000005", "001", "1,", "Ana", "Recife", "01/02/03", "1", " "});
    Aperta("SSCommand5");
    ClicaNaLinha(4);
    Aperta("SSCommand3");
    EXPECT_EQ(LinhasNoMain(), "|||w");
}

TEST_F(ReimpressaoTest, ExtraFieldsAndTheLinesBehindTheThirdStay)
{
    Abre();
    for (int i = 0; i < 10; ++i)
        Poe(QString("Text2(%1)").arg(i), QString("linha %1").arg(i + 1));
    for (int i = 0; i < 3; ++i)
        Poe(QString("TxtCpo(%1)").arg(i), QString("extra %1").arg(i + 1));
    AbrePeloMenu("Relat", "Relato");
    ClicaNaLinha(1);
    Aperta("SSCommand3");
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(Texto(QString("Text2(%1)").arg(i)), std::string(1, static_cast<char>('a' + i)));
        EXPECT_EQ(Texto(QString("TxtCpo(%1)").arg(i)), "extra " + std::to_string(i + 1));
    }
    for (int i = 3; i < 10; ++i)
        EXPECT_EQ(Texto(QString("Text2(%1)").arg(i)), "linha " + std::to_string(i + 1));
}

TEST_F(ReimpressaoTest, TheInclusionIsOffAtTheNextStartToo)
{
    Abre();
    ASSERT_EQ(m_escritorio.Chave("Sistema", "InRel"), "1");
    AbrePeloMenu("Relat", "Relato");
    ClicaNaLinha(0);
    Aperta("SSCommand3");
    Tela().close();
    EXPECT_EQ(m_escritorio.Chave("Sistema", "InRel"), "0");
    Abre();
    EXPECT_FALSE(Inclui());
}

TEST_F(ReimpressaoTest, ThePrintMakesNoSecondRow)
{
    Reimprime(0);
    Ativa();
    Clica("Opcoes(0)");
    ASSERT_EQ(m_caixas->Quantas(), 1U) << Vistas();
    EXPECT_EQ(m_caixas->Ultima().texto, "Insira o Documento.");
    EXPECT_TRUE(m_gravadora.Chamadas().contains(
        R"(ImprimeCheque("001","1.234,50","Ana Lima","Recife","01/02/03",""))"))
        << Chamadas();
    EXPECT_EQ(Log().size(), 4);
}

TEST_F(ReimpressaoTest, WithNoChequeInThePanelNothingHappens)
{
    AbreRelato();
    Aperta("SSCommand3");
    EXPECT_TRUE(EstaAberta("Relato"));
    EXPECT_EQ(NoMain(), m_vazio);
    EXPECT_TRUE(Inclui());
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(ReimpressaoTest, AfterListaCompletaNothingIsChosen)
{
    AbreRelato();
    ClicaNaLinha(0);
    Aperta("SSCommand5");
    Aperta("SSCommand3");
    EXPECT_TRUE(EstaAberta("Relato"));
    EXPECT_EQ(NoMain(), m_vazio);
}

// --- a cancelled one ---

TEST_F(ReimpressaoTest, ACancelledChequeIsAskedAboutFirst)
{
    Reimprime(2, QMessageBox::Ok);
    EXPECT_EQ(Vistas(), kPergunta);
    EXPECT_EQ(m_caixas->Ultima().botoes, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(m_caixas->Ultima().padrao, QMessageBox::Ok);
    EXPECT_EQ(NoMain(), "001|50,25|Ana Lima|Olinda|20/02/03|000125|BANCO UM");
    EXPECT_FALSE(EstaAberta("Relato"));
}

TEST_F(ReimpressaoTest, CancelChangesNothing)
{
    Reimprime(2, QMessageBox::Cancel);
    EXPECT_TRUE(EstaAberta("Relato"));
    EXPECT_EQ(NoMain(), m_vazio);
    EXPECT_TRUE(Inclui());
    EXPECT_EQ(Rotulo(6), "000125") << "the panel stays";
}

TEST_F(ReimpressaoTest, OneCancelledAMomentAgoIsAskedAboutToo)
{
    AbreRelato();
    ClicaNaLinha(3);
    m_escritorio.Sql("INSERT INTO Bancos (Codigo, Nome) VALUES ('341', 'BANCO TRES')");
    Aperta("SSCommand4");
    AtivaTela("ExcluiRel");
    Marca("ExcluiRel", "RadioBox01(0)");
    ApertaEm("ExcluiRel", "BtnCmd(0)");
    Descarta();
    ASSERT_EQ(Status(), "1: 2: 3:C 4:C");
    Responde(QMessageBox::Cancel);
    Aperta("SSCommand3");
    EXPECT_EQ(Vistas(), kPergunta);
}

// --- a bank that is gone ---

TEST_F(ReimpressaoTest, WithoutItsBankItIsRefused)
{
    Reimprime(3);
    EsperaCaixa("Banco inexistente, não é possível re-imprimir!", "Erro", QMessageBox::NoIcon);
    EXPECT_TRUE(EstaAberta("Relato"));
    EXPECT_EQ(NoMain(), m_vazio);
    EXPECT_TRUE(Inclui());
}

TEST_F(ReimpressaoTest, TheQuestionComesBeforeTheMissingBank)
{
    m_escritorio.Sql("DELETE FROM Bancos");
    Reimprime(2, QMessageBox::Ok);
    EXPECT_EQ(Vistas(), kPergunta + "|[Erro] Banco inexistente, não é possível re-imprimir!");
}

TEST_F(ReimpressaoTest, WithoutAStoreItIsTold)
{
    AbreRelato();
    ClicaNaLinha(0);
    ASSERT_TRUE(QFile::rename(m_escritorio.Arquivo("QX70.MDB"), m_escritorio.Arquivo("longe.MDB")));
    Aperta("SSCommand3");
    EXPECT_EQ(Vistas(), '[' + kTitulo + "] O Banco de dados \"QX70.MDB\" nao foi encontrado!");
    EXPECT_EQ(NoMain(), m_vazio);
}

// --- what main did meanwhile ---

TEST_F(ReimpressaoTest, TheCommentsAreThoseOfTheChequeAndNotOfOnePrintedMeanwhile)
{
    AbreRelato();
    ClicaNaLinha(1);
    Ativa();
    PreencheCheque();
    Poe("Text2(0)", "de outro cheque");
    Clica("Opcoes(0)");
    ASSERT_EQ(Dados().ComentarioLinha1, "de outro cheque");
    Aperta("SSCommand3");
    EXPECT_EQ(LinhasNoMain().substr(0, 5), "a|b|c");
}

TEST_F(ReimpressaoTest, ChequesChosenBeforeAFilterStayInThePanel)
{
    AbreRelato();
    ClicaNaLinha(0);
    Aperta("SSCommand6");
    AtivaTela("Filtro");
    apoio::ClicaEm(Aberta("Filtro"), "Text1(0)");
    apoio::Digita(Aberta("Filtro"), "237");
    ApertaEm("Filtro", "Command3D1(0)");
    Descarta();
    ASSERT_EQ(Listados(), "2");
    Aperta("SSCommand3");
    EXPECT_EQ(NoMain(), "001|1.234,50|Ana Lima|Recife|01/02/03|000123|BANCO UM");
}

} // namespace
