// qx70-banco exporta: the tables as CSV files, exactly, all or none, and of one state.
#include "Apoio.h"

#include <atomic>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <SQLiteCpp/SQLiteCpp.h>
#include <thread>

using testing::AnyOf;
using testing::HasSubstr;

namespace {

Execucao Exporta(const Escritorio &escritorio, const char *opcoes = "")
{
    return Banco(QStringList{Q("exporta"), escritorio.Caminho(), escritorio.Caminho(Q("saida"))} +
                 Opcoes(opcoes));
}

std::string Saida(const Escritorio &escritorio, const char *nome)
{
    return LeArquivo(escritorio.Caminho(Q("saida/") + Q(nome))).toStdString();
}

const QStringList kSoALoja{QStringLiteral("QX70.MDB")};

const char *const kCidades = "INSERT INTO Cidade VALUES ('00002', 'São Paulo; \"centro\"'), ('00001', NULL), "
                             "('00003', ''), ('00004', ' Natal'), ('00005', 'a' || char(13, 10) || 'b')";

TEST(Exporta, WritesEveryTableWithItsFieldNames)
{
    const Escritorio escritorio;
    ASSERT_EQ(escritorio.Semeia(Opcoes("--bancos 2 --cidades 1 --favorecidos 1 --cheques 3")).codigo, 0);
    const Execucao exporta = Exporta(escritorio);
    ASSERT_EQ(exporta.codigo, 0) << exporta.erros.toStdString();
    EXPECT_EQ(exporta.saida, Q("Bancos: 2 linhas\nTransferencia: 0 linhas\nFavorecido: 1 linha\n"
                               "Cidade: 1 linha\nLog: 3 linhas\nScript: 0 linhas\nExportado para ") +
                                 escritorio.Caminho(Q("saida\n")));
    EXPECT_EQ(NomesEm(escritorio.Caminho(Q("saida"))),
              Opcoes("Bancos.csv Cidade.csv Favorecido.csv Log.csv Script.csv Transferencia.csv"));
    EXPECT_EQ(Saida(escritorio, "Script.csv"),
              "Codigo;Nome;l1;l2;l3;l4;l5;l6;l7;l8;c1;c2;c3;c4;c5;c6;c7;c8;c9;c10;c11\r\n");
    EXPECT_EQ(Saida(escritorio, "Transferencia.csv"),
              "Codigo;Nome;L1;L2;L3;L4;L5;L6;L7;C1;C2;C3;C4;C5;C6;C7\r\n");
    EXPECT_THAT(
        Saida(escritorio, "Bancos.csv"),
        HasSubstr("\r\n001;Banco Serra Azul;001;005;007;010;013;092;017;009;011;050;031;040;065\r\n"));
    EXPECT_THAT(Saida(escritorio, "Log.csv"),
                HasSubstr("Index;Codigo;Banco;V_CH;Favor;Local;Data;NRCH;StCancel;Comentario;Comentario1;"
                          "Comentario2\r\n0000000001;00001;"));
}

TEST(Exporta, WritesWindows1252WithQuotesWhereTheyAreNeeded)
{
    const Escritorio escritorio;
    Executa(escritorio, kCidades);
    ASSERT_EQ(Exporta(escritorio, "--tabela CIDADE").codigo, 0);
    EXPECT_EQ(NomesEm(escritorio.Caminho(Q("saida"))), Opcoes("Cidade.csv"));
    EXPECT_EQ(Saida(escritorio, "Cidade.csv"),
              "Codigo;Nome\r\n00002;\"S\xE3o Paulo; \"\"centro\"\"\"\r\n00001;\r\n00003;\"\"\r\n"
              "00004;\" Natal\"\r\n00005;\"a\r\nb\"\r\n");
}

TEST(Exporta, WritesUtf8BehindItsMark)
{
    const Escritorio escritorio;
    Executa(escritorio, "INSERT INTO Cidade VALUES ('00001', 'Łódź'), ('00002', 'São, Paulo')");
    ASSERT_EQ(Exporta(escritorio, "--tabela Cidade --codificacao UTF-8 --separador ,").codigo, 0);
    EXPECT_EQ(Saida(escritorio, "Cidade.csv"), "\xEF\xBB\xBF"
                                               "Codigo,Nome\r\n00001,Łódź\r\n00002,\"São, Paulo\"\r\n");
}

TEST(Exporta, PartsFieldsByTabs)
{
    const Escritorio escritorio;
    Executa(escritorio, "INSERT INTO Cidade VALUES ('00001', 'a;b'), ('00002', 'a' || char(9) || 'b')");
    ASSERT_EQ(Exporta(escritorio, "--tabela Cidade --separador tab").codigo, 0);
    EXPECT_EQ(Saida(escritorio, "Cidade.csv"), "Codigo\tNome\r\n00001\ta;b\r\n00002\t\"a\tb\"\r\n");
}

TEST(Exporta, WritesTheTablesAskedForOnceEach)
{
    const Escritorio escritorio;
    ASSERT_EQ(Exporta(escritorio, "--tabela log --tabela Script --tabela LOG").codigo, 0);
    EXPECT_EQ(NomesEm(escritorio.Caminho(Q("saida"))), Opcoes("Log.csv Script.csv"));
}

TEST(Exporta, KeepsTheOrderOfTheRowsAndNotThatOfAnIndex)
{
    const Escritorio escritorio;
    Executa(escritorio,
            "CREATE INDEX ambos ON Cidade(Codigo, Nome); INSERT INTO Cidade VALUES ('00003', 'c'), "
            "('00001', 'a'), ('00002', 'b'); DELETE FROM Cidade WHERE Codigo = '00001'");
    ASSERT_EQ(Exporta(escritorio, "--tabela Cidade").codigo, 0);
    EXPECT_EQ(Saida(escritorio, "Cidade.csv"), "Codigo;Nome\r\n00003;c\r\n00002;b\r\n");
}

TEST(Exporta, WritesNumbersThatAnotherProgramStoredAsNumbers)
{
    const Escritorio escritorio;
    Executa(escritorio, "DROP TABLE Cidade; CREATE TABLE Cidade(Codigo, Nome); "
                        "INSERT INTO Cidade VALUES (12, 1.5)");
    ASSERT_EQ(Exporta(escritorio, "--tabela Cidade").codigo, 0);
    EXPECT_EQ(Saida(escritorio, "Cidade.csv"), "Codigo;Nome\r\n12;1.5\r\n");
}

TEST(Exporta, WritesBytesThatAreNoUtf8AsTheProgramReadsThem)
{
    const Escritorio escritorio;
    Executa(escritorio, "INSERT INTO Cidade VALUES ('00001', CAST(x'4AE36F' AS TEXT))");
    ASSERT_EQ(Exporta(escritorio, "--tabela Cidade --codificacao utf-8").codigo, 0);
    EXPECT_THAT(Saida(escritorio, "Cidade.csv"), HasSubstr("00001;Jão\r\n"));
}

TEST(Exporta, MakesTheFoldersThatAreMissing)
{
    const Escritorio escritorio;
    const QString destino = escritorio.Caminho(Q("um/dois/tres"));
    ASSERT_EQ(Banco({Q("exporta"), escritorio.Caminho(), destino}).codigo, 0);
    EXPECT_EQ(NomesEm(destino).size(), 6);
}

TEST(Exporta, LeavesTheStoreAsItIs)
{
    const Escritorio escritorio;
    ASSERT_EQ(escritorio.Semeia(Opcoes("--cheques 10")).codigo, 0);
    const QByteArray antes = LeArquivo(escritorio.Loja());
    ASSERT_EQ(Exporta(escritorio).codigo, 0);
    EXPECT_EQ(LeArquivo(escritorio.Loja()), antes);
    EXPECT_EQ(NomesEm(escritorio.Caminho()), Opcoes("QX70.INI QX70.MDB saida"));
}

struct CasoRecusado {
    std::string nome;
    const char *sql; ///< what the store is like
    const char *opcoes;
    const char *dito;
};
void PrintTo(const CasoRecusado &c, std::ostream *os)
{
    *os << c.nome;
}

class ExportaRecusaTest : public testing::TestWithParam<CasoRecusado> {};

TEST_P(ExportaRecusaTest, TellsWhyAndLeavesNothing)
{
    const Escritorio escritorio;
    Executa(escritorio, GetParam().sql);
    const Execucao exporta = Exporta(escritorio, GetParam().opcoes);
    EXPECT_EQ(exporta.codigo, 1);
    EXPECT_TRUE(exporta.saida.isEmpty());
    EXPECT_THAT(exporta.erros.toStdString(), HasSubstr(GetParam().dito));
    EXPECT_EQ(NomesEm(escritorio.Caminho()), kSoALoja);
}

INSTANTIATE_TEST_SUITE_P(
    Lojas, ExportaRecusaTest,
    testing::Values(
        CasoRecusado{
            "CharacterOutsideTheCodePage", "INSERT INTO Cidade VALUES ('00001', 'Natal'), ('00007', 'Łódź')",
            "",
            "Tabela Cidade, Codigo \"00007\" (linha 2 da tabela), campo Nome: o caractere \"Ł\" (U+0141) "
            "não existe em Windows-1252, e nada foi exportado. Exporte com --codificacao utf-8."},
        CasoRecusado{"CharacterOutsideTheCodePageInTheLog",
                     "INSERT INTO Log(\"Index\", Favor) VALUES ('0000000003', 'a😀')", "--tabela Log",
                     "Tabela Log, Index \"0000000003\" (linha 1 da tabela), campo Favor: o caractere \"😀\""},
        CasoRecusado{
            "CharacterInARowOfAnOddKey", "INSERT INTO Cidade VALUES ('%1 %2', '☺')", "",
            "Tabela Cidade, Codigo \"%1 %2\" (linha 1 da tabela), campo Nome: o caractere \"☺\" (U+263A) "
            "não existe"},
        CasoRecusado{"Nul", "INSERT INTO Cidade VALUES ('00001', 'a' || char(0) || 'b')",
                     "--codificacao utf-8", "campo Nome: o valor tem um caractere nulo"},
        CasoRecusado{"NoTable", "DROP TABLE Log", "", "não tem as tabelas e os campos esperados"},
        CasoRecusado{"NoField", "ALTER TABLE Log DROP COLUMN Comentario2", "", "Comentario2"}),
    [](const auto &caso) { return caso.param.nome; });

TEST(Exporta, NeverWritesOverAFile)
{
    const Escritorio escritorio;
    ASSERT_TRUE(QDir(escritorio.Caminho()).mkdir(Q("saida")));
    EscreveArquivo(escritorio.Caminho(Q("saida/LOG.CSV")), "meu");
    const Execucao exporta = Exporta(escritorio);
    EXPECT_EQ(exporta.codigo, 1);
    EXPECT_THAT(exporta.erros.toStdString(), HasSubstr("/saida/LOG.CSV já existe e não foi tocado"));
    EXPECT_EQ(NomesEm(escritorio.Caminho(Q("saida"))), Opcoes("LOG.CSV"));
    EXPECT_EQ(Saida(escritorio, "LOG.CSV"), "meu");
    EXPECT_EQ(Exporta(escritorio, "--tabela Cidade").codigo, 0);
}

TEST(Exporta, RefusesADestinationThatIsAFile)
{
    const Escritorio escritorio;
    EscreveArquivo(escritorio.Caminho(Q("saida")), "meu");
    const Execucao exporta = Exporta(escritorio);
    EXPECT_EQ(exporta.codigo, 1);
    EXPECT_THAT(exporta.erros.toStdString(), HasSubstr("/saida não é uma pasta"));
    EXPECT_EQ(LeArquivo(escritorio.Caminho(Q("saida"))), "meu");
}

TEST(Exporta, TellsOfAMissingStoreAndLeavesNoFolder)
{
    const QTemporaryDir pasta;
    const Execucao exporta = Banco({Q("exporta"), pasta.path(), pasta.filePath(Q("um/dois"))});
    EXPECT_EQ(exporta.codigo, 1);
    EXPECT_THAT(exporta.erros.toStdString(), HasSubstr("Não existe o banco de dados"));
    EXPECT_TRUE(NomesEm(pasta.path()).isEmpty());
}

TEST(Exporta, TellsOfAFileThatIsNoStore)
{
    const QTemporaryDir pasta;
    EscreveArquivo(pasta.filePath(Q("QX70.MDB")), QByteArray("nada disto ").repeated(500));
    const Execucao exporta = Banco({Q("exporta"), pasta.path(), pasta.filePath(Q("saida"))});
    EXPECT_EQ(exporta.codigo, 1);
    EXPECT_THAT(exporta.erros.toStdString(), HasSubstr("não é um banco de dados"));
    EXPECT_EQ(NomesEm(pasta.path()), kSoALoja);
}

TEST(Exporta, TellsOfAStoreThatAnotherHolds)
{
    const Escritorio escritorio;
    SQLite::Database outro(escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE);
    outro.exec("BEGIN EXCLUSIVE");
    const Execucao exporta = Exporta(escritorio);
    EXPECT_EQ(exporta.codigo, 1);
    EXPECT_THAT(exporta.erros.toStdString(), HasSubstr("em uso por outro programa"));
    EXPECT_FALSE(NomesEm(escritorio.Caminho()).contains(Q("saida")));
}

TEST(Exporta, ReadsWhileAnotherPreparesAWrite)
{
    const Escritorio escritorio;
    SQLite::Database outro(escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE);
    outro.exec("BEGIN IMMEDIATE; INSERT INTO Cidade VALUES ('00001', 'Natal')");
    ASSERT_EQ(Exporta(escritorio, "--tabela Cidade").codigo, 0);
    EXPECT_EQ(Saida(escritorio, "Cidade.csv"), "Codigo;Nome\r\n");
}

TEST(Exporta, LeavesNothingOnAFullDisk)
{
    const Escritorio escritorio;
    ASSERT_EQ(escritorio.Semeia(Opcoes("--cheques 2000")).codigo, 0);
    const QString comando =
        Q("trap '' XFSZ; ulimit -f 64; exec \"$0\" exporta \"$1\" \"$1/saida\""); // blocks of 1024 bytes
    const Execucao exporta =
        ::Executa(Q("/bin/bash"), {Q("-c"), comando, CaminhoDoBanco(), escritorio.Caminho()});
    EXPECT_EQ(exporta.codigo, 1);
    EXPECT_THAT(exporta.erros.toStdString(), HasSubstr("O disco está cheio: Log.csv não foi gravado"));
    EXPECT_FALSE(NomesEm(escritorio.Caminho()).contains(Q("saida")));
}

// Adds a payee and a cheque in one go, again and again, waiting for its turn as long as the program does.
class Escrevente {
public:
    explicit Escrevente(const QString &loja)
        : m_fio([this, caminho = loja.toStdString()] { Escreve(caminho); })
    {
    }
    ~Escrevente()
    {
        m_basta = true;
        m_fio.join();
    }
    [[nodiscard]] int Feitas() const { return m_feitas; }
    [[nodiscard]] int Falhas() const { return m_falhas; }

private:
    void Escreve(const std::string &caminho)
    {
        constexpr int kEsperaMs = 250;
        SQLite::Database loja(caminho, SQLite::OPEN_READWRITE, kEsperaMs);
        loja.exec("PRAGMA synchronous=OFF");
        while (!m_basta) {
            try {
                loja.exec("BEGIN IMMEDIATE; INSERT INTO Favorecido VALUES ('0', 'Ana');"
                          "INSERT INTO Log(\"Index\") VALUES ('0'); COMMIT");
                ++m_feitas;
            } catch (const SQLite::Exception &) {
                ++m_falhas;
                loja.tryExec("ROLLBACK");
            }
        }
    }

    std::atomic<bool> m_basta{false};
    std::atomic<int> m_feitas{0};
    std::atomic<int> m_falhas{0};
    std::thread m_fio;
};

qsizetype LinhasDe(const Escritorio &escritorio, const char *nome)
{
    return LeArquivo(escritorio.Caminho(Q("saida/") + Q(nome))).count('\n');
}

TEST(Exporta, TakesOneStateOfASmallStoreWhileAnotherWritesWithoutPause)
{
    const Escritorio escritorio;
    int antes = 0, depois = 0;
    {
        const Escrevente escrevente(escritorio.Loja());
        while (escrevente.Feitas() == 0)
            std::this_thread::yield();
        antes = escrevente.Feitas();
        const Execucao exporta = Exporta(escritorio);
        depois = escrevente.Feitas();
        ASSERT_EQ(exporta.codigo, 0) << exporta.erros.toStdString();
        EXPECT_EQ(escrevente.Falhas(), 0);
    }
    EXPECT_GT(depois, antes);
    EXPECT_EQ(LinhasDe(escritorio, "Favorecido.csv"), LinhasDe(escritorio, "Log.csv"));
    EXPECT_GT(LinhasDe(escritorio, "Log.csv"), antes);
}

TEST(Exporta, KeepsNobodyWaitingWhileALongLogIsRead)
{
    const Escritorio escritorio;
    Executa(escritorio, "WITH n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i < 400000) INSERT INTO "
                        "Log(\"Index\", Favor, Comentario) SELECT i, 'Padaria ' || i, 'Nota ' || i FROM n");
    const Escrevente escrevente(escritorio.Loja());
    while (escrevente.Feitas() == 0)
        std::this_thread::yield();
    const int antes = escrevente.Feitas();
    const Execucao exporta = Exporta(escritorio);
    EXPECT_GT(escrevente.Feitas(), antes);
    EXPECT_EQ(escrevente.Falhas(), 0);
    // Either a quiet time was found, or it is told that there was none.
    ASSERT_THAT(exporta.codigo, AnyOf(0, 1));
    if (exporta.codigo == 0) {
        EXPECT_EQ(LinhasDe(escritorio, "Favorecido.csv") + 400000, LinhasDe(escritorio, "Log.csv"));
    } else {
        EXPECT_THAT(exporta.erros.toStdString(), HasSubstr("mudou 5 vezes enquanto era lido"));
        EXPECT_FALSE(NomesEm(escritorio.Caminho()).contains(Q("saida")));
    }
}

struct CasoChamada {
    std::string nome;
    std::vector<const char *> palavras; ///< "PASTA" stands for the folder of the store
    const char *dito;
};
void PrintTo(const CasoChamada &c, std::ostream *os)
{
    *os << c.nome;
}

class ExportaChamadaTest : public testing::TestWithParam<CasoChamada> {};

TEST_P(ExportaChamadaTest, IsRefusedWithTheReason)
{
    const Escritorio escritorio;
    QStringList argumentos{Q("exporta")};
    for (const char *palavra : GetParam().palavras)
        argumentos.append(qstrcmp(palavra, "PASTA") == 0 ? escritorio.Caminho() : Q(palavra));
    const Execucao exporta = Banco(argumentos);
    EXPECT_EQ(exporta.codigo, 2);
    EXPECT_THAT(exporta.erros.toStdString(), HasSubstr(GetParam().dito));
    EXPECT_EQ(NomesEm(escritorio.Caminho()), kSoALoja);
}

INSTANTIATE_TEST_SUITE_P(
    Chamadas, ExportaChamadaTest,
    testing::Values(
        CasoChamada{"NoFolder", {}, "pede a pasta do banco de dados"},
        CasoChamada{"NoDestination", {"PASTA"}, "pede a pasta do banco de dados e a pasta de destino"},
        CasoChamada{"TwoDestinations", {"PASTA", "a", "b"}, "e só isso"},
        CasoChamada{"EmptyName", {"PASTA", ""}, "nome vazio"},
        CasoChamada{
            "UnknownTable", {"PASTA", "a", "--tabela", "Banco"}, "--tabela pede uma destas: Bancos, "},
        CasoChamada{"TableWithoutName", {"PASTA", "a", "--tabela"}, "--tabela pede"},
        CasoChamada{"UnknownSeparator", {"PASTA", "a", "--separador", "|"}, "não \"|\""},
        CasoChamada{"UnknownEncoding", {"PASTA", "a", "--codificacao", "utf-16"}, "não \"utf-16\""},
        CasoChamada{
            "OptionOfAnotherCommand", {"PASTA", "a", "--formato"}, "não conhece a opção \"--formato\""}),
    [](const auto &caso) { return caso.param.nome; });

TEST(Ajuda, TellsOfCsvFiles)
{
    const Execucao ajuda = Banco({Q("exporta"), Q("--ajuda")});
    EXPECT_EQ(ajuda.codigo, 0);
    for (const char *palavra : {"exporta PASTA DESTINO", "importa PASTA ARQUIVO.csv...|PASTA_DE_CSV",
                                "--tabela NOME", "--separador S", "--codificacao C", "--formato"})
        EXPECT_THAT(ajuda.saida.toStdString(), HasSubstr(palavra));
}

} // namespace
