// qx70-banco confere: how much is told, wrong calls, and what is wrong with the file itself.
#include "ApoioConfere.h"
#include "Escritor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <SQLiteCpp/SQLiteCpp.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

// How much is told.

TEST(LimiteDeAchados, TwentyOfAKindAreToldAndTheOthersCounted)
{
    const Escritorio escritorio;
    ASSERT_EQ(escritorio.Semeia({"--bancos", "1", "--cheques", "100"}).codigo, 0);
    Muda(escritorio, "UPDATE Log SET StCancel='x'; UPDATE Log SET V_CH='y' WHERE rowid=50");
    const Execucao confere = Confere(escritorio);
    EXPECT_EQ(confere.codigo, 3);
    const std::vector<std::string> achados = Achados(confere);
    ASSERT_EQ(achados.size(), 22U);
    EXPECT_THAT(achados[0], HasSubstr("linha 50"));
    EXPECT_THAT(achados[20], HasSubstr("linha 20 "));
    EXPECT_EQ(achados[21], "Defeito: mais 80 como os de cima; com --tudo saem todos.");
    EXPECT_THAT(Resumo(confere), testing::EndsWith(". 101 defeitos."));
}

TEST(LimiteDeAchados, EverythingIsToldWhenAsked)
{
    const Escritorio escritorio;
    ASSERT_EQ(escritorio.Semeia({"--bancos", "1", "--cheques", "100"}).codigo, 0);
    Muda(escritorio, "UPDATE Log SET StCancel='x'");
    const Execucao confere = Confere(escritorio, {QStringLiteral("--tudo")});
    const std::vector<std::string> achados = Achados(confere);
    ASSERT_EQ(achados.size(), 100U);
    EXPECT_THAT(achados[99], HasSubstr("linha 100 (Index \"0000000100\")"));
}

TEST(Sequencia, ALogInDisorderIsToldRowByRow)
{
    const Escritorio escritorio;
    ASSERT_EQ(escritorio.Semeia({"--bancos", "1"}).codigo, 0);
    // 5 6 7 | 1 2 | 6 7 8 | 7 | 12
    for (const int numero : {5, 6, 7, 1, 2, 6, 7, 8, 7, 12})
        Muda(escritorio, "INSERT INTO Log(\"Index\",Codigo,V_CH) SELECT printf('%010d'," +
                             std::to_string(numero) + "), printf('%05d'," + std::to_string(numero) +
                             "), '1,'");
    const std::vector<std::string> achados = Achados(Confere(escritorio));
    ASSERT_EQ(achados.size(), 7U);
    EXPECT_EQ(achados[0], "Defeito: Log, linha 6: o Index \"0000000006\" é também o da linha 2.");
    EXPECT_EQ(achados[1], "Defeito: Log, linha 7: o Index \"0000000007\" é também o da linha 3.");
    EXPECT_THAT(achados[2],
                testing::StartsWith("Defeito: Log, linha 9: o Index \"0000000007\" é também o da linha "));
    EXPECT_THAT(achados[3], HasSubstr("linha 4 (Index \"0000000001\"): vem depois de 0000000007."));
    EXPECT_THAT(achados[4], HasSubstr("linha 9 (Index \"0000000007\"): vem depois de 0000000008."));
    EXPECT_THAT(achados[5],
                HasSubstr("faltam 2 números de Index, de 0000000003 a 0000000004, depois da linha 5;"));
    EXPECT_THAT(achados[6],
                HasSubstr("faltam 3 números de Index, de 0000000009 a 0000000011, depois da linha 8;"));
}

TEST(Sequencia, IsFollowedThroughManyRows)
{
    const Escritorio escritorio;
    ASSERT_EQ(escritorio.Semeia({"--bancos", "1", "--cheques", "45000"}).codigo, 0);
    Muda(escritorio,
         "DELETE FROM Log WHERE rowid=20001; UPDATE Log SET V_CH='x' WHERE rowid IN (20000, 40002)");
    const Execucao confere = Confere(escritorio);
    EXPECT_THAT(Achados(confere), ElementsAre(HasSubstr("Log, linha 20000 (Index \"0000020000\"), V_CH"),
                                              HasSubstr("Log, linha 40001 (Index \"0000040002\"), V_CH"),
                                              HasSubstr("falta o Index 0000020001 depois da linha 20000;")));
    EXPECT_THAT(Resumo(confere), HasSubstr("Conferido: 44999 cheques"));
}

// Wrong calls.

struct CasoChamada {
    std::string nome;
    QStringList palavras;
    const char *dito;
};
void PrintTo(const CasoChamada &c, std::ostream *os)
{
    *os << c.nome;
}

class ChamadaDeConfereTest : public testing::TestWithParam<CasoChamada> {};

TEST_P(ChamadaDeConfereTest, IsRefused)
{
    const Execucao confere = Banco(QStringList{QStringLiteral("confere")} + GetParam().palavras);
    EXPECT_EQ(confere.codigo, 2);
    EXPECT_TRUE(confere.saida.isEmpty());
    EXPECT_THAT(confere.erros.toStdString(), HasSubstr(GetParam().dito));
    EXPECT_THAT(confere.erros.toStdString(), HasSubstr("--ajuda"));
}

INSTANTIATE_TEST_SUITE_P(Chamadas, ChamadaDeConfereTest,
                         testing::Values(CasoChamada{"NoFolder", {}, "pede a pasta"},
                                         CasoChamada{"OnlyTheOption", {"--tudo"}, "pede a pasta"},
                                         CasoChamada{"TwoFolders", {"uma", "outra"}, "\"outra\" sobra"},
                                         CasoChamada{"EmptyName", {""}, "\"\" sobra"},
                                         CasoChamada{
                                             "UnknownOption", {"uma", "--conserta"}, "\"--conserta\""}),
                         [](const auto &caso) { return caso.param.nome; });

TEST(AjudaDeConfere, TellsOptionAndResult)
{
    const Execucao ajuda = Banco({QStringLiteral("confere"), QStringLiteral("--ajuda")});
    EXPECT_EQ(ajuda.codigo, 0);
    for (const char *palavra :
         {"confere PASTA [--tudo]", "copia PASTA DESTINO", "3 \"confere\" achou defeitos"})
        EXPECT_THAT(ajuda.saida.toStdString(), HasSubstr(palavra));
}

// The file itself.

TEST(ArquivoConferido, AStoreThatIsNotThereCannotBeChecked)
{
    const QTemporaryDir pasta;
    const Execucao confere = Banco({QStringLiteral("confere"), pasta.path()});
    EXPECT_EQ(confere.codigo, 1);
    EXPECT_TRUE(confere.saida.isEmpty());
    EXPECT_THAT(confere.erros.toStdString(),
                HasSubstr("Não existe o banco de dados " + pasta.path().toStdString()));
    EXPECT_TRUE(NomesEm(pasta.path()).isEmpty());
}

struct CasoArquivo {
    std::string nome;
    QByteArray bytes;
    const char *dito;
};
void PrintTo(const CasoArquivo &c, std::ostream *os)
{
    *os << c.nome;
}

class ArquivoConferidoTest : public testing::TestWithParam<CasoArquivo> {};

TEST_P(ArquivoConferidoTest, IsADefect)
{
    const QTemporaryDir pasta;
    const QString loja = pasta.filePath(QStringLiteral("QX70.MDB"));
    EscreveArquivo(loja, GetParam().bytes);
    const Execucao confere = Banco({QStringLiteral("confere"), pasta.path()});
    EXPECT_EQ(confere.codigo, 3);
    EXPECT_THAT(confere.saida.toStdString(),
                HasSubstr("Defeito: o arquivo " + loja.toStdString() + GetParam().dito));
    EXPECT_EQ(LeArquivo(loja), GetParam().bytes);
    EXPECT_EQ(NomesEm(pasta.path()).size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Arquivos, ArquivoConferidoTest,
                         testing::Values(CasoArquivo{"Empty", "", " está vazio."},
                                         CasoArquivo{"OfAnotherKind", QByteArray("nada disto ").repeated(500),
                                                     " não é um banco de dados ou está danificado"},
                                         CasoArquivo{"TooShort", "SQLite format 3",
                                                     " não é um banco de dados ou está danificado"}),
                         [](const auto &caso) { return caso.param.nome; });

TEST(ArquivoConferido, ATruncatedStoreIsDamaged)
{
    const Escritorio escritorio;
    ASSERT_EQ(escritorio.Semeia({"--bancos", "1", "--cheques", "2000"}).codigo, 0);
    const QByteArray bytes = LeArquivo(escritorio.Loja());
    EscreveArquivo(escritorio.Loja(), bytes.left(bytes.size() / 2));
    const Execucao confere = Confere(escritorio);
    EXPECT_EQ(confere.codigo, 3);
    EXPECT_THAT(confere.saida.toStdString(), HasSubstr("danificado"));
    EXPECT_EQ(LeArquivo(escritorio.Loja()).size(), bytes.size() / 2);
}

TEST(ArquivoConferido, APageOfRubbishIsDamage)
{
    const Escritorio escritorio;
    ASSERT_EQ(escritorio.Semeia({"--bancos", "1", "--cheques", "2000"}).codigo, 0);
    QByteArray bytes = LeArquivo(escritorio.Loja());
    bytes.replace(bytes.size() / 2 / 4096 * 4096, 4096, QByteArray(4096, '\x55'));
    EscreveArquivo(escritorio.Loja(), bytes);
    const Execucao confere = Confere(escritorio);
    EXPECT_EQ(confere.codigo, 3);
    EXPECT_THAT(confere.saida.toStdString(), HasSubstr("Defeito: o arquivo está danificado ("));
    EXPECT_EQ(LeArquivo(escritorio.Loja()), bytes);
}

TEST(ArquivoConferido, AnIndexThatLacksARowIsNamed)
{
    const Pequeno escritorio;
    // The last page taken by the index of the log is emptied of one entry: its count of cells goes down by
    // one.
    const int pagina =
        std::stoi(Valor(escritorio.Loja(), "SELECT rootpage FROM sqlite_master WHERE name='iLogIndex'"));
    QByteArray bytes = LeArquivo(escritorio.Loja());
    const int contagem = (pagina - 1) * 4096 + 4;
    ASSERT_EQ(bytes[contagem], 10);
    bytes[contagem] = 9;
    EscreveArquivo(escritorio.Loja(), bytes);
    const Execucao confere = Confere(escritorio);
    EXPECT_EQ(confere.codigo, 3);
    EXPECT_THAT(confere.saida.toStdString(),
                HasSubstr("Defeito: a linha de número interno 10 falta no índice iLogIndex"));
    EXPECT_THAT(confere.saida.toStdString(),
                HasSubstr("Defeito: o índice iLogIndex não tem tantas entradas"));
}

// A store with half a transaction in it, as a program killed while it writes leaves it: the files of one that
// is just writing, copied.
void DeixaPelaMetade(const Escritorio &escritorio, const QString &pasta)
{
    SQLite::Database loja(escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE);
    loja.exec("PRAGMA cache_size=5; BEGIN; UPDATE Log SET StCancel='meio', \"Index\"='x'");
    for (const QString &nome :
         {QStringLiteral("QX70.MDB"), QStringLiteral("QX70.MDB-journal"), QStringLiteral("QX70.INI")})
        ASSERT_TRUE(QFile::copy(escritorio.Caminho(nome), QDir(pasta).filePath(nome))) << nome.toStdString();
}

TEST(ArquivoConferido, AWriteCutOffHalfWayIsTakenBackBeforeLooking)
{
    const Escritorio escritorio;
    ASSERT_EQ(escritorio.Semeia({"--bancos", "1", "--cheques", "2000"}).codigo, 0);
    const QByteArray inteira = LeArquivo(escritorio.Loja());
    const QTemporaryDir pasta;
    DeixaPelaMetade(escritorio, pasta.path());
    const QString loja = pasta.filePath(QStringLiteral("QX70.MDB"));
    ASSERT_NE(LeArquivo(loja), inteira);
    const Execucao confere = Banco({QStringLiteral("confere"), pasta.path()});
    EXPECT_EQ(confere.codigo, 0) << confere.erros.toStdString();
    EXPECT_THAT(Resumo(confere), HasSubstr("Conferido: 2000 cheques"));
    EXPECT_EQ(LeArquivo(loja), inteira);
    EXPECT_EQ(NomesEm(pasta.path()), (QStringList{QStringLiteral("QX70.INI"), QStringLiteral("QX70.MDB")}));
}

TEST(ArquivoConferido, AStoreInUseCannotBeChecked)
{
    const Pequeno escritorio;
    SQLite::Database outro(escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE);
    outro.exec("BEGIN EXCLUSIVE");
    const Execucao confere = Confere(escritorio);
    EXPECT_EQ(confere.codigo, 1);
    EXPECT_TRUE(confere.saida.isEmpty());
    EXPECT_THAT(confere.erros.toStdString(), HasSubstr("em uso por outro programa"));
}

TEST(ArquivoConferido, AProgramThatWritesMeanwhileBringsNoDefect)
{
    const Escritorio escritorio;
    ASSERT_EQ(escritorio.Semeia({"--cheques", "50000"}).codigo, 0);
    const Escritor escritor(escritorio.Loja());
    const int antes = escritor.Escritas();
    const Execucao confere = Confere(escritorio);
    EXPECT_GT(escritor.Escritas(), antes) << "nothing was written meanwhile";
    EXPECT_EQ(confere.codigo, 0) << confere.erros.toStdString();
    EXPECT_THAT(Achados(confere), IsEmpty());
    EXPECT_THAT(Resumo(confere), HasSubstr("Nada de errado."));
    EXPECT_FALSE(escritor.Falhou());
}

TEST(ArquivoConferido, AProgramThatOnlyReadsDoesNotDisturb)
{
    const Pequeno escritorio;
    SQLite::Database outro(escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE);
    outro.exec("BEGIN; SELECT * FROM Log");
    EXPECT_EQ(Confere(escritorio).codigo, 0);
}

TEST(ArquivoConferido, RowsThatAnotherProgramKeepsBesideTheStoreAreLookedAt)
{
    const Pequeno escritorio;
    SQLite::Database outro(escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE);
    outro.exec("PRAGMA journal_mode=WAL; UPDATE Log SET StCancel='x' WHERE rowid=3");
    const Bytes antes(escritorio);
    const Execucao confere = Confere(escritorio);
    EXPECT_EQ(confere.codigo, 3);
    EXPECT_THAT(Achados(confere), ElementsAre(HasSubstr("linha 3 (Index \"0000000003\"), StCancel")));
    EXPECT_TRUE(Bytes(escritorio) == antes);
}

TEST(ArquivoConferido, RowsBesideAStoreThatNobodyHasOpenStayThere)
{
    const Pequeno escritorio;
    const QTemporaryDir pasta;
    const QStringList nomes{QStringLiteral("QX70.INI"), QStringLiteral("QX70.MDB"),
                            QStringLiteral("QX70.MDB-wal")};
    {
        SQLite::Database outro(escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE);
        outro.exec("PRAGMA journal_mode=WAL; UPDATE Log SET StCancel='x' WHERE rowid=3");
        for (const QString &nome : nomes)
            ASSERT_TRUE(QFile::copy(escritorio.Caminho(nome), pasta.filePath(nome)));
    }
    QList<QByteArray> antes;
    for (const QString &nome : nomes)
        antes.append(LeArquivo(pasta.filePath(nome)));
    const Execucao confere = Banco({QStringLiteral("confere"), pasta.path()});
    EXPECT_THAT(Achados(confere), ElementsAre(HasSubstr("linha 3 (Index \"0000000003\"), StCancel")));
    for (qsizetype i = 0; i < nomes.size(); ++i)
        EXPECT_EQ(LeArquivo(pasta.filePath(nomes[i])), antes[i]) << nomes[i].toStdString();
}

TEST(ArquivoConferido, AStoreThatOnceHadRowsBesideItIsLeftAsItIs)
{
    const Pequeno escritorio;
    Muda(escritorio, "PRAGMA journal_mode=WAL");
    const Bytes antes(escritorio);
    EXPECT_EQ(Confere(escritorio).codigo, 0);
    EXPECT_TRUE(Bytes(escritorio) == antes);
}

} // namespace
