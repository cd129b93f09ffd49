// Inserting a bank: the row, its line in the settings file, the form afterwards, and what stops it.
#include "ComCadastro.h"

#include <QDir>
#include <QFile>

using namespace teste;

namespace {

class BancosIncluiTest : public ComBancos {
protected:
    /// Opens the register, fills the boxes and presses Incluir; nothing goes to the device.
    void Inclui(const LinhaDoBanco &banco = kBancoNovo)
    {
        AbreCadastro();
        Preenche(banco);
        Responde(QMessageBox::No);
        Aperta(Incluir);
    }
};

TEST_F(BancosIncluiTest, StoresTheRowBehindTheOthers)
{
    Inclui();
    EXPECT_EQ(Tabela(), NaTabela(kBancoDois) + '|' + NaTabela(kBancoUm) + '|' + NaTabela(kCaixaTres) + '|' +
                            NaTabela(kBancoNovo));
    EXPECT_EQ(Vistas(), m_pergunta);
}

TEST_F(BancosIncluiTest, WritesTheLayoutIntoTheSettings)
{
    Inclui();
    EXPECT_EQ(Formato("104").toStdString(),
              "04,08,10,13,16,95,20,12,14,48,34,43,68    ; BANCO NOVO DA AÇÃO L");
    EXPECT_EQ(m_escritorio.LeIni().count("[Formato]"), 1);
    EXPECT_EQ(Formato("001"), QString()) << "of this bank only";
}

TEST_F(BancosIncluiTest, LeavesAnEmptyFormReadyForTheNext)
{
    Inclui();
    EXPECT_EQ(Caixas(), m_vazias);
    EXPECT_EQ(Caixa("Text2"), "");
    EXPECT_EQ(Estado(), kPronto);
    EXPECT_EQ(Lista(), m_lista + "|104 - BANCO NOVO DA AÇÃO LTDA");
    EXPECT_EQ(LinhaCorrente(), "");
    EXPECT_EQ(FocoDele(), "Text1(0)");
    EXPECT_FALSE(Ampulheta());
}

TEST_F(BancosIncluiTest, TwoInARow)
{
    Inclui();
    LinhaDoBanco outro = kBancoNovo;
    outro[0] = "105";
    Preenche(outro);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_EQ(Linhas("SELECT Codigo FROM Bancos ORDER BY rowid"), "237|001|341|104|105");
    EXPECT_FALSE(Formato("104").isEmpty() || Formato("105").isEmpty());
}

TEST_F(BancosIncluiTest, TheFirstOfAnEmptyTable)
{
    m_escritorio.Sql("DELETE FROM Bancos");
    Inclui();
    EXPECT_EQ(Lista(), "104 - BANCO NOVO DA AÇÃO LTDA");
    EXPECT_EQ(Tabela(), NaTabela(kBancoNovo));
}

TEST_F(BancosIncluiTest, TypedByKeysAlone)
{
    AbreCadastro();
    VaiA("Text1(0)");
    for (const char *texto :
         {"7", "Banco Sete", "1", "5", "7", "10", "13", "92", "17", "9", "11", "50", "31", "40", "65"}) {
        apoio::Digita(Cadastro(), texto);
        TeclaNele(Qt::Key_Return);
    }
    ASSERT_EQ(FocoDele(), "Command3D1(0)");
    TeclaNele(Qt::Key_Return);
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '007'"),
              "007,Banco Sete,001,005,007,010,013,092,017,009,011,050,031,040,065");
    EXPECT_EQ(Chamadas(),
              "IniciaPorta(\"COM2\") IncluiBanco(\"007\",\"001,005,007,010,013,092,017,009,011,050,031,"
              "040,065\") FechaPorta()");
    EXPECT_EQ(Formato("007").toStdString(), "01,05,07,10,13,92,17,09,11,50,31,40,65    ; Banco Sete");
}

TEST_F(BancosIncluiTest, AQuoteInTheNameIsStoredAsItIs)
{
    LinhaDoBanco banco = kBancoNovo;
    banco[1] = "BANCO D'OURO \"X\"; Y";
    Inclui(banco);
    EXPECT_EQ(Linhas("SELECT Nome FROM Bancos WHERE Codigo = '104'"), "BANCO D'OURO \"X\"; Y");
    EXPECT_EQ(Lista(), m_lista + "|104 - BANCO D'OURO \"X\"; Y");
    EXPECT_EQ(Formato("104").toStdString(),
              "04,08,10,13,16,95,20,12,14,48,34,43,68    ; BANCO D'OURO \"X\"; Y");
}

// With the search empty, a new entry leaves the list's row current, and a current row stores nothing: the
// operator takes it away first. On purpose.
TEST_F(BancosIncluiTest, AfterAChosenBankTheRowOfTheListStoresNothing)
{
    AbreCadastro();
    ClicaNaLinha(1);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    ASSERT_EQ(LinhaCorrente(), "001 - BANCO UM");
    const std::string antes = Tabela();
    Preenche(kBancoNovo);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_EQ(Tabela(), antes);
    EXPECT_EQ(Formato("104"), QString());
    EXPECT_EQ(Caixas(), m_vazias);
    EXPECT_EQ(Estado(), kPronto);
    EXPECT_EQ(Vistas(), m_pergunta + '|' + m_pergunta);
    EXPECT_FALSE(Ampulheta());
}

TEST_F(BancosIncluiTest, OnceTheRowIsDeselectedItIsStored)
{
    AbreCadastro();
    ClicaNaLinha(1);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    ClicaNaLinha(1, Qt::ControlModifier);
    ASSERT_EQ(Estado(), kPronto);
    Preenche(kBancoNovo);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '104'"), NaTabela(kBancoNovo));
}

TEST_F(BancosIncluiTest, AfterASearchedBankTheNextIsStoredAtOnce)
{
    AbreCadastro();
    DigitaNela("Text2", "BANCO UM");
    ClicaNaLinha(0);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    Preenche(kBancoNovo);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '104'"), NaTabela(kBancoNovo));
}

TEST_F(BancosIncluiTest, WithASearchAllBanksAreListedAfterwards)
{
    AbreCadastro();
    DigitaNela("Text2", "CAIXA");
    Preenche(kBancoNovo);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_EQ(Caixa("Text2"), "");
    EXPECT_EQ(Lista(), m_lista + "|104 - BANCO NOVO DA AÇÃO LTDA");
}

TEST_F(BancosIncluiTest, ThePointerIsTheHourglassWhileTheListIsFilled)
{
    AbreCadastro();
    QStringList vistas;
    ObservaAmpulheta(vistas);
    Preenche(kBancoNovo);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_EQ(vistas.value(0).toStdString(), "hourglass");
    EXPECT_FALSE(Ampulheta());
}

// --- what fails ---

TEST_F(BancosIncluiTest, ASettingsFileThatIsNotWrittenIsNotTold)
{
    AbreCadastro();
    ASSERT_TRUE(QFile::remove(m_escritorio.Arquivo("QX70.INI")));
    ASSERT_TRUE(QDir(m_escritorio.Pasta()).mkpath("QX70.INI/cheia"));
    Preenche(kBancoNovo);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_EQ(Vistas(), m_pergunta) << "on purpose: a failed write answers 0, which is not below 0";
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '104'"), NaTabela(kBancoNovo));
    EXPECT_EQ(Caixas(), m_vazias);
}

struct CasoFalta {
    std::string nome;
    QString sql;
    QString erro;
};
void PrintTo(const CasoFalta &c, std::ostream *os)
{
    *os << c.nome;
}
class FaltaNoBanco : public ComBancosDe<CasoFalta> {};
TEST_P(FaltaNoBanco, IsToldInOneBoxAndTheBoxesStay)
{
    AbreCadastro();
    Preenche(kBancoNovo);
    m_escritorio.Sql(GetParam().sql);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    ASSERT_EQ(m_caixas->Quantas(), 2U) << Vistas();
    EXPECT_TRUE(m_caixas->Ultima().texto.startsWith(GetParam().erro)) << Vistas();
    EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Warning);
    EXPECT_EQ(Caixas(), NasCaixas(kBancoNovo));
    EXPECT_EQ(Formato("104"), QString());
    EXPECT_FALSE(Ampulheta());
    TeclaNele(Qt::Key_Escape);
    EXPECT_FALSE(EstaAberto());
}
INSTANTIATE_TEST_SUITE_P(
    Faltas, FaltaNoBanco,
    testing::Values(
        CasoFalta{"TableMissing", "DROP TABLE Bancos", "O Banco de dados \"QX70.MDB\" nao foi encontrado!"},
        CasoFalta{"FieldMissing", "ALTER TABLE Bancos RENAME COLUMN C8 TO D8", "Ocorreu erro 3265!\n"},
        CasoFalta{"RowRefused",
                  "CREATE TRIGGER nada BEFORE INSERT ON Bancos BEGIN SELECT RAISE(ABORT, 'nada'); END",
                  "Ocorreu erro 3022!\n"}),
    kNomeDoCaso);

TEST_F(BancosIncluiTest, ARowThatWasRefusedIsStoredOnceItCan)
{
    AbreCadastro();
    Preenche(kBancoNovo);
    m_escritorio.Sql("CREATE TRIGGER nada BEFORE INSERT ON Bancos BEGIN SELECT RAISE(ABORT, 'nada'); END");
    Responde(QMessageBox::No);
    Aperta(Incluir);
    m_escritorio.Sql("DROP TRIGGER nada");
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '104'"), NaTabela(kBancoNovo));
    EXPECT_EQ(Caixas(), m_vazias);
}

TEST_F(BancosIncluiTest, AStoreMovedAwayTakesNoRowAndNoneIsMade)
{
    AbreCadastro();
    Preenche(kBancoNovo);
    ASSERT_TRUE(QFile::rename(m_escritorio.Arquivo("QX70.MDB"), m_escritorio.Arquivo("longe.MDB")));
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_EQ(Vistas(), m_pergunta + "|[Erro] O Banco de dados \"QX70.MDB\" nao foi encontrado!");
    EXPECT_EQ(Caixas(), NasCaixas(kBancoNovo));
    EXPECT_EQ(Formato("104"), QString());
    EXPECT_FALSE(QFile::exists(m_escritorio.Arquivo("QX70.MDB")));
    ASSERT_TRUE(QFile::rename(m_escritorio.Arquivo("longe.MDB"), m_escritorio.Arquivo("QX70.MDB")));
    EXPECT_EQ(Linhas("SELECT Codigo FROM Bancos ORDER BY rowid"), "237|001|341");
}

} // namespace
