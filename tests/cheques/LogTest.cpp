// The row of the log behind a printed cheque.
#include "ComEntrada.h"

using namespace teste;

namespace {

class Registro : public ComEntrada {
protected:
    void AbrePreenchido()
    {
        Abre();
        PreencheCheque();
    }
    /// Prints, and gives the last row.
    QStringList Imprime()
    {
        Clica("Opcoes(0)");
        const QList<QStringList> linhas = Log();
        return linhas.isEmpty() ? QStringList{} : linhas.last();
    }
    void PoeLinha(const QString &index, const QString &codigo) const
    {
        m_escritorio.Sql("INSERT INTO Log (\"Index\", Codigo, Data) VALUES ('" + index + "', " + codigo +
                         ", '01/02/03')");
    }
};

enum Coluna { Index, Codigo, Banco, Valor, Favor, Local, Data, Numero };

TEST_F(Registro, HasEveryFieldAsItIsOnTheScreen)
{
    AbrePreenchido();
    Poe("Text2(0)", "ação");
    Poe("Text2(1)", "dois");
    Poe("Text2(2)", "três");
    Poe("Text2(3)", "quatro");
    EXPECT_EQ(Imprime(), QStringList({"0000000001", "00001", "237", "1234,5", "José Luís", "São João",
                                      "01/02/03", "000123", " ", "ação", "dois", "três"}));
}

TEST_F(Registro, RowThatCannotBeWrittenIsToldAndTheFocusLeavesTheButton)
{
    AbrePreenchido();
    m_escritorio.Sql("create trigger recusa before insert on Log begin select raise(abort, 'cheia'); end");
    EXPECT_TRUE(Imprime().isEmpty());
    EXPECT_TRUE(m_caixas->Ultima().texto.startsWith("Ocorreu erro "))
        << m_caixas->Ultima().texto.toStdString();
    EXPECT_EQ(apoio::Foco(Tela()), "Text1(0)") << "another Enter must not print again";
    EXPECT_EQ(apoio::Texto(Tela(), "Text1(1)"), "1.234,50");
    m_escritorio.Sql("drop trigger recusa");
    EXPECT_EQ(Imprime().size(), 12) << "the next cheque is logged";
}

// What the operator confirms is one cheque, though another program hands fields over meanwhile.
TEST_F(Registro, FieldsHandedOverWhileTheDocumentIsAskedForAreNotMixedIn)
{
    AbrePreenchido();
    m_caixas->AoAbrir([this](QMessageBox &) { Tela().Recebe({{1, "9,99"}, {2, "Outro"}}); });
    const QStringList linha = Imprime();
    ASSERT_EQ(linha.size(), 12);
    EXPECT_EQ(linha[Valor], "1234,5");
    EXPECT_EQ(linha[Favor], QString("José Luís"));
    EXPECT_EQ(apoio::Texto(Tela(), "Text1(2)"), "Outro") << "the fields have what was handed over";
}

TEST_F(Registro, BlanksAroundATextAreKept)
{
    AbrePreenchido();
    Poe("Text1(2)", "  Ana  ");
    Poe("Text1(3)", " Rio ");
    const QStringList linha = Imprime();
    ASSERT_EQ(linha.size(), 12);
    EXPECT_EQ(linha[Favor], "  Ana  ");
    EXPECT_EQ(linha[Local], " Rio ");
}

TEST_F(Registro, EmptyNumberIsOneBlank)
{
    Ini("[Opcoes]\nNumCObrig=0\n");
    AbrePreenchido();
    Poe("Text1(6)", "");
    const QStringList linha = Imprime();
    ASSERT_EQ(linha.size(), 12);
    EXPECT_EQ(linha[Numero], " ");
}

TEST_F(Registro, WholeAmountKeepsItsComma)
{
    AbrePreenchido();
    Poe("Text1(1)", "1.000,00");
    const QStringList linha = Imprime();
    ASSERT_EQ(linha.size(), 12);
    EXPECT_EQ(linha[Valor], "1000,");
}

TEST_F(Registro, ChequeOfTodayHasTheDateThatIsShown)
{
    AbrePreenchido();
    Poe("Text1(4)", "");
    VaiPara("Text1(4)");
    Tecla(Qt::Key_Return);
    const QStringList linha = Imprime();
    ASSERT_EQ(linha.size(), 12);
    EXPECT_EQ(linha[Data], "01/02/03");
}

TEST_F(Registro, SecondChequeIsTheNextRow)
{
    AbrePreenchido();
    Imprime();
    Ativa();
    const QStringList linha = Imprime();
    EXPECT_EQ(Log().size(), 2);
    ASSERT_EQ(linha.size(), 12);
    EXPECT_EQ(linha[Index], "0000000002");
    EXPECT_EQ(linha[Codigo], "00002");
}

TEST_F(Registro, CodigoWrapsWhileIndexGoesOn)
{
    PoeLinha("0000099999", "'99999'");
    AbrePreenchido();
    const QStringList linha = Imprime();
    ASSERT_EQ(linha.size(), 12);
    EXPECT_EQ(linha[Index], "0000100000");
    EXPECT_EQ(linha[Codigo], "00000");
}

TEST_F(Registro, FollowsTheLastRowNotTheHighest)
{
    PoeLinha("0000000009", "'00009'");
    PoeLinha("0000000004", "'00004'");
    AbrePreenchido();
    const QStringList linha = Imprime();
    ASSERT_EQ(linha.size(), 12);
    EXPECT_EQ(linha[Index], "0000000005");
}

TEST_F(Registro, FirstRowWithoutCodigoStartsAnew)
{
    PoeLinha("0000000009", "''");
    PoeLinha("0000000010", "'00010'");
    AbrePreenchido();
    const QStringList linha = Imprime();
    ASSERT_EQ(linha.size(), 12);
    EXPECT_EQ(linha[Index], "0000000001");
    EXPECT_EQ(linha[Codigo], "00001");
    EXPECT_EQ(Log().size(), 3);
}

TEST_F(Registro, FirstRowWithNullCodigoStartsAnew)
{
    PoeLinha("0000000009", "NULL");
    AbrePreenchido();
    const QStringList linha = Imprime();
    ASSERT_EQ(linha.size(), 12);
    EXPECT_EQ(linha[Index], "0000000001");
}

TEST_F(Registro, LogIsClosedBehindIt)
{
    AbrePreenchido();
    Imprime();
    ASSERT_EQ(Log().size(), 1);
    EXPECT_FALSE(Dados().armazem.Aberto(nucleo::SelLog));
}

} // namespace
