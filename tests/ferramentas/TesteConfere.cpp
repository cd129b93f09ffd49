// qx70-banco confere: each thing that can be wrong with rows and tables is told with its place, and nothing
// is mended.
#include "ApoioConfere.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <SQLiteCpp/SQLiteCpp.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

TEST(Confere, FindsNothingInAStoreOfTheProgram)
{
    const Escritorio escritorio;
    ASSERT_EQ(
        escritorio
            .Semeia({"--bancos", "999", "--cidades", "300", "--favorecidos", "300", "--cheques", "5000"})
            .codigo,
        0);
    const Bytes antes(escritorio);
    const Execucao confere = Confere(escritorio);
    EXPECT_EQ(confere.codigo, 0);
    EXPECT_EQ(confere.saida.toStdString(), "Conferido: 5000 cheques, 999 bancos, 0 bancos de transferência, "
                                           "300 favorecidos, 300 cidades, 0 leiautes "
                                           "de cópia. Nada de errado.\n");
    EXPECT_TRUE(confere.erros.isEmpty());
    EXPECT_TRUE(Bytes(escritorio) == antes);
}

TEST(Confere, FindsNothingInAnEmptyStoreButMissesTheSettings)
{
    const Escritorio escritorio;
    const Execucao confere = Confere(escritorio);
    EXPECT_EQ(confere.codigo, 0);
    EXPECT_THAT(Achados(confere),
                ElementsAre(HasSubstr("Aviso: não há o arquivo " + escritorio.Ini().toStdString())));
    EXPECT_THAT(Resumo(confere), HasSubstr("Conferido: 0 cheques, 0 bancos"));
    EXPECT_THAT(Resumo(confere), HasSubstr("Nada de errado, 1 aviso."));
}

// One thing wrong in the store, told in one line.

struct CasoLoja {
    std::string nome;
    const char *comandos; ///< run on the store of Pequeno
    const char *dito;     ///< the one finding
};
void PrintTo(const CasoLoja &c, std::ostream *os)
{
    *os << c.comandos;
}

class LojaConferidaTest : public testing::TestWithParam<CasoLoja> {};

TEST_P(LojaConferidaTest, IsToldWithItsPlaceAndNotMended)
{
    const Pequeno escritorio;
    Muda(escritorio, GetParam().comandos);
    const Bytes antes(escritorio);
    const Execucao confere = Confere(escritorio);
    EXPECT_THAT(Achados(confere), ElementsAre(GetParam().dito));
    const bool defeito = std::string_view(GetParam().dito).starts_with("Defeito");
    EXPECT_EQ(confere.codigo, defeito ? 3 : 0);
    EXPECT_THAT(Resumo(confere), testing::EndsWith(defeito ? ". 1 defeito." : ". Nada de errado, 1 aviso."));
    EXPECT_TRUE(Bytes(escritorio) == antes);
}

INSTANTIATE_TEST_SUITE_P(
    Log, LojaConferidaTest,
    testing::Values(
        CasoLoja{"IndexOfNineDigits", "UPDATE Log SET \"Index\"='000000010' WHERE rowid=10",
                 "Defeito: Log, linha 10 (Index \"000000010\"): o Index não tem dez algarismos."},
        CasoLoja{"IndexWithALetter", "UPDATE Log SET \"Index\"='000000001O' WHERE rowid=10",
                 "Defeito: Log, linha 10 (Index \"000000001O\"): o Index não tem dez algarismos."},
        CasoLoja{"IndexThatIsNull", "UPDATE Log SET \"Index\"=NULL WHERE rowid=10",
                 "Defeito: Log, linha 10 (Index (sem valor)): o Index não tem dez algarismos."},
        CasoLoja{"IndexTwiceInARow", "INSERT INTO Log SELECT * FROM Log WHERE rowid=10",
                 "Defeito: Log, linha 11: o Index \"0000000010\" é também o da linha 10."},
        CasoLoja{"NumbersThatGoBack",
                 "UPDATE Log SET \"Index\"='0000000011', Codigo='00011' WHERE rowid=9;"
                 "UPDATE Log SET \"Index\"='0000000009', Codigo='00009' WHERE rowid=8;"
                 "UPDATE Log SET \"Index\"='0000000008', Codigo='00008' WHERE rowid=7;"
                 "UPDATE Log SET \"Index\"='0000000007', Codigo='00007' WHERE rowid=6;"
                 "UPDATE Log SET \"Index\"='0000000006', Codigo='00006' WHERE rowid=5;"
                 "UPDATE Log SET \"Index\"='0000000005', Codigo='00005' WHERE rowid=4;"
                 "UPDATE Log SET \"Index\"='0000000004', Codigo='00004' WHERE rowid=3;"
                 "UPDATE Log SET \"Index\"='0000000003', Codigo='00003' WHERE rowid=2;"
                 "UPDATE Log SET \"Index\"='0000000002', Codigo='00002' WHERE rowid=1",
                 "Defeito: Log, linha 10 (Index \"0000000010\"): vem depois de 0000000011. O programa tira o "
                 "próximo "
                 "número da última linha; com as linhas fora de ordem, um número pode sair duas vezes."},
        CasoLoja{
            "OneChequeDeleted", "DELETE FROM Log WHERE \"Index\"='0000000004'",
            "Aviso: Log: falta o Index 0000000004 depois da linha 3; cheques excluídos deixam essas falhas."},
        CasoLoja{
            "SomeChequesDeleted", "DELETE FROM Log WHERE rowid BETWEEN 3 AND 7",
            "Aviso: Log: faltam 5 números de Index, de 0000000003 a 0000000007, depois da linha 2; cheques "
            "excluídos deixam essas falhas."},
        CasoLoja{"CodeOfAnotherNumber", "UPDATE Log SET Codigo='00005' WHERE rowid=4",
                 "Defeito: Log, linha 4 (Index \"0000000004\"), Codigo \"00005\": não é o fim do Index."},
        CasoLoja{"EmptyCode", "UPDATE Log SET Codigo='' WHERE rowid=4",
                 "Defeito: Log, linha 4 (Index \"0000000004\"), Codigo \"\": não é o fim do Index."},
        CasoLoja{"EmptyCodeInTheFirstRow", "UPDATE Log SET Codigo='' WHERE rowid=1",
                 "Defeito: Log, linha 1 (Index \"0000000001\"): é a primeira e está sem Codigo; por isso o "
                 "próximo "
                 "cheque receberia outra vez o Index 0000000001."},
        CasoLoja{"NoCodeInTheFirstRow", "UPDATE Log SET Codigo=NULL WHERE rowid=1",
                 "Defeito: Log, linha 1 (Index \"0000000001\"): é a primeira e está sem Codigo; por isso o "
                 "próximo "
                 "cheque receberia outra vez o Index 0000000001."},
        CasoLoja{"DayThatDoesNotExist", "UPDATE Log SET Data='31/02/04' WHERE rowid=5",
                 "Defeito: Log, linha 5 (Index \"0000000005\"), Data \"31/02/04\": não é uma data, e a "
                 "exclusão de "
                 "cheques antigos pararia nela."},
        CasoLoja{"DateOfOneBlank", "UPDATE Log SET Data=' ' WHERE rowid=5",
                 "Defeito: Log, linha 5 (Index \"0000000005\"), Data \" \": não é uma data, e a exclusão de "
                 "cheques "
                 "antigos pararia nela."},
        CasoLoja{"ValueInWords", "UPDATE Log SET V_CH='mil' WHERE rowid=6",
                 "Defeito: Log, linha 6 (Index \"0000000006\"), V_CH \"mil\": não é um valor, e os "
                 "relatórios não podem "
                 "somá-lo."},
        CasoLoja{"ValueWithTwoCommas", "UPDATE Log SET V_CH='1,2,3' WHERE rowid=6",
                 "Defeito: Log, linha 6 (Index \"0000000006\"), V_CH \"1,2,3\": não é um valor, e os "
                 "relatórios não "
                 "podem somá-lo."},
        CasoLoja{"EmptyValue", "UPDATE Log SET V_CH='' WHERE rowid=6",
                 "Defeito: Log, linha 6 (Index \"0000000006\"), V_CH \"\": não é um valor, e os relatórios "
                 "não podem "
                 "somá-lo."},
        CasoLoja{
            "LongValueIsCut",
            "UPDATE Log SET V_CH='"
            "123456789 123456789 123456789 123456789 123456789 123456789 x' WHERE rowid=6",
            "Defeito: Log, linha 6 (Index \"0000000006\"), V_CH \"123456789 123456789 123456789 123456789 "
            "123456789 123456789 ...\": não é um valor, e os relatórios não podem somá-lo."},
        CasoLoja{
            "CancelledInASmallLetter", "UPDATE Log SET StCancel='c' WHERE rowid=7",
            "Defeito: Log, linha 7 (Index \"0000000007\"), StCancel \"c\": devia ser um branco ou \"C\"."},
        CasoLoja{
            "CancelledWithAccents", "UPDATE Log SET StCancel='não' WHERE rowid=7",
            "Defeito: Log, linha 7 (Index \"0000000007\"), StCancel \"não\": devia ser um branco ou \"C\"."}),
    [](const auto &caso) { return caso.param.nome; });

INSTANTIATE_TEST_SUITE_P(
    Tabelas, LojaConferidaTest,
    testing::Values(
        CasoLoja{"NoPayees", "DROP TABLE Favorecido", "Defeito: falta a tabela Favorecido."},
        CasoLoja{"AnotherTable", "CREATE TABLE Anexos(a)",
                 "Aviso: há uma tabela a mais, Anexos, que o programa não usa."},
        CasoLoja{"AnotherField", "ALTER TABLE Cidade ADD COLUMN UF TEXT",
                 "Aviso: a tabela Cidade tem um campo a mais, UF, que o programa não usa."},
        CasoLoja{"NoIndexOnTheLog", "DROP INDEX iLogIndex",
                 "Aviso: a tabela Log não tem índice por Index: as buscas ficam mais lentas."},
        CasoLoja{"IndexOfAPartOfTheRows",
                 "DROP INDEX iBancosCodigo; CREATE INDEX parte ON Bancos(Codigo) WHERE Nome<>''",
                 "Aviso: a tabela Bancos não tem índice por Codigo: as buscas ficam mais lentas."},
        CasoLoja{"IndexByAnotherFieldFirst",
                 "DROP INDEX iCidadeCodigo; CREATE INDEX outro ON Cidade(Nome, Codigo)",
                 "Aviso: a tabela Cidade não tem índice por Codigo: as buscas ficam mais lentas."},
        CasoLoja{"CityTwice", "INSERT INTO Cidade VALUES ('00001', 'Natal')",
                 "Defeito: Cidade, linha 3 (Codigo \"00001\"): o Codigo é também o da linha 1, e o programa "
                 "só acha "
                 "aquela."},
        CasoLoja{"PayeeTwice", "INSERT INTO Favorecido VALUES ('00002', 'Ana')",
                 "Defeito: Favorecido, linha 3 (Codigo \"00002\"): o Codigo é também o da linha 2, e o "
                 "programa só acha "
                 "aquela."},
        CasoLoja{
            "BankTwice", "INSERT INTO Bancos SELECT * FROM Bancos WHERE Codigo='002'",
            "Defeito: Bancos, linha 4 (Codigo \"002\"): o Codigo é também o da linha 2, e o programa só acha "
            "aquela."},
        CasoLoja{
            "CopyLayoutTwice", "INSERT INTO Script(Codigo) VALUES ('a01'), ('A01')",
            "Defeito: Script, linha 2 (Codigo \"A01\"): o Codigo é também o da linha 1, e o programa só acha "
            "aquela."},
        CasoLoja{"CityWithoutCode", "INSERT INTO Cidade VALUES ('', 'Natal')",
                 "Defeito: Cidade, linha 3 (Codigo \"\"): sem Codigo o registro não pode ser achado."}),
    [](const auto &caso) { return caso.param.nome; });

TEST(TabelasConferidas, AMissingFieldIsToldAndItsRowsAreNotLookedAt)
{
    const Pequeno escritorio;
    Muda(escritorio, "ALTER TABLE Log DROP COLUMN V_CH");
    const Execucao confere = Confere(escritorio);
    EXPECT_EQ(confere.codigo, 3);
    EXPECT_THAT(
        Achados(confere),
        ElementsAre("Defeito: falta o campo V_CH da tabela Log.",
                    "Aviso: as linhas da tabela Log não foram conferidas, porque lhe faltam campos."));
    EXPECT_THAT(Resumo(confere), HasSubstr("Conferido: 3 bancos"));
}

TEST(TabelasConferidas, AViewInThePlaceOfATableIsNone)
{
    const Pequeno escritorio;
    Muda(escritorio, "DROP TABLE Script; CREATE VIEW Script AS SELECT * FROM Bancos");
    const Execucao confere = Confere(escritorio);
    EXPECT_EQ(confere.codigo, 3);
    EXPECT_THAT(Achados(confere),
                ElementsAre("Defeito: falta a tabela Script.",
                            "Aviso: há uma tabela a mais, Script, que o programa não usa."));
}

// What another program may have written, and ours reads.

struct CasoAceito {
    std::string nome;
    const char *comandos;
};
void PrintTo(const CasoAceito &c, std::ostream *os)
{
    *os << c.comandos;
}

class LojaAceitaTest : public testing::TestWithParam<CasoAceito> {};

TEST_P(LojaAceitaTest, IsNothingWrong)
{
    const Pequeno escritorio;
    Muda(escritorio, GetParam().comandos);
    const Bytes antes(escritorio);
    const Execucao confere = Confere(escritorio);
    EXPECT_EQ(confere.codigo, 0);
    EXPECT_THAT(Achados(confere), IsEmpty());
    EXPECT_THAT(Resumo(confere), HasSubstr("Conferido: "));
    EXPECT_TRUE(Bytes(escritorio) == antes);
}

INSTANTIATE_TEST_SUITE_P(
    Lojas, LojaAceitaTest,
    testing::Values(
        CasoAceito{"EmptyDates",
                   "UPDATE Log SET Data='' WHERE rowid=2; UPDATE Log SET Data=NULL WHERE rowid=3"},
        CasoAceito{"DatesOfOtherForms",
                   "UPDATE Log SET Data='1/2/04' WHERE rowid=2; UPDATE Log SET "
                   "Data='29/02/2004' WHERE rowid=3; UPDATE Log SET Data=' 01/02/4' WHERE rowid=4"},
        CasoAceito{"ValuesOfOtherForms",
                   "UPDATE Log SET V_CH='1.234,56' WHERE rowid=2; UPDATE Log SET V_CH='R$ 1' WHERE rowid=3; "
                   "UPDATE Log SET V_CH='-1,5' WHERE rowid=4; UPDATE Log SET V_CH=',5' WHERE rowid=5; "
                   "UPDATE Log SET V_CH='123456789012345678901234567890' WHERE rowid=6"},
        CasoAceito{"CancelledAndNoWord",
                   "UPDATE Log SET StCancel='C' WHERE rowid=2; UPDATE Log SET StCancel='' WHERE rowid=3; "
                   "UPDATE Log SET StCancel=NULL WHERE rowid=4"},
        CasoAceito{"ChequesPurged", "DELETE FROM Log WHERE rowid<5"},
        CasoAceito{"LogEmptied", "DELETE FROM Log"},
        CasoAceito{
            "CodesThatWrapAround",
            "DELETE FROM Log; INSERT INTO Log(\"Index\",Codigo,V_CH) VALUES('0000099999','99999','1,'),"
            "('0000100000','00000','2,'),('0000100001','00001','3,')"},
        CasoAceito{
            "NamesInOtherLetters",
            "ALTER TABLE Log RENAME TO l2; ALTER TABLE l2 RENAME TO LOG; ALTER TABLE LOG RENAME COLUMN "
            "StCancel TO x; ALTER TABLE LOG RENAME COLUMN x TO STCANCEL"},
        CasoAceito{"RowsUnderANumberOfTheirOwn", "UPDATE Log SET rowid=rowid+9223372036854775797; UPDATE Log "
                                                 "SET rowid=-5 WHERE \"Index\"='0000000001'"},
        CasoAceito{"KeysInsteadOfIndexes",
                   "DROP TABLE Cidade; CREATE TABLE Cidade(Codigo TEXT PRIMARY KEY, Nome TEXT); DROP TABLE "
                   "Favorecido; "
                   "CREATE TABLE Favorecido(Nome TEXT, Codigo TEXT PRIMARY KEY) WITHOUT ROWID; "
                   "INSERT INTO Favorecido VALUES('Ana','00002'),('Bia','00001')"},
        CasoAceito{
            "LogByItsKey",
            "CREATE TABLE l2(\"Index\" TEXT PRIMARY KEY, Codigo, Banco, V_CH, Favor, Local, Data, NRCH, "
            "StCancel, Comentario, Comentario1, Comentario2) WITHOUT ROWID; INSERT INTO l2 SELECT * FROM Log "
            "ORDER BY rowid DESC; DROP TABLE Log; ALTER TABLE l2 RENAME TO Log"},
        CasoAceito{"NumbersStoredAsNumbers",
                   "CREATE TABLE l2 AS SELECT * FROM Log; DELETE FROM l2; DROP TABLE Log; ALTER TABLE l2 "
                   "RENAME TO Log; "
                   "CREATE INDEX i ON Log(\"Index\"); INSERT INTO Log(\"Index\",Codigo,V_CH) "
                   "VALUES(1234567890,CAST('67890' AS BLOB),CAST('12,5' AS BLOB))"}),
    [](const auto &caso) { return caso.param.nome; });

TEST(LojaAceita, AStoreInWideCharacters)
{
    const Pequeno escritorio;
    const std::string velha = escritorio.Caminho(QStringLiteral("velha.db")).toStdString();
    ASSERT_TRUE(QFile::rename(escritorio.Loja(), QString::fromStdString(velha)));
    {
        SQLite::Database nova(escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        nova.exec("PRAGMA encoding='UTF-16le'");
        for (const char *tabela : {"Bancos", "Transferencia", "Favorecido", "Cidade", "Log", "Script"}) {
            const auto sql = Valor(QString::fromStdString(velha),
                                   "SELECT sql FROM sqlite_master WHERE name='" + std::string(tabela) + "'");
            nova.exec(sql);
            for (const auto &linha :
                 Linhas(QString::fromStdString(velha), "SELECT * FROM " + std::string(tabela))) {
                std::string valores;
                for (const std::string &valor : linha)
                    valores += (valores.empty() ? "'" : ",'") + valor + "'";
                nova.exec("INSERT INTO " + std::string(tabela) + " VALUES(" + valores + ")");
            }
        }
    }
    const Execucao confere = Confere(escritorio);
    EXPECT_EQ(confere.codigo, 0) << confere.saida.toStdString();
    EXPECT_THAT(Resumo(confere), HasSubstr("Conferido: 10 cheques, 3 bancos"));
}

} // namespace
