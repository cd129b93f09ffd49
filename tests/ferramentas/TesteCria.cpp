// qx70-banco cria: the tables of a new store, and that no store is ever written over.
#include "Apoio.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <QFile>
#include <QProcess>
#include <sys/stat.h>
#include <unistd.h>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

struct CasoTabela {
    std::string nome;
    const char *campos;
    const char *chave;
};
void PrintTo(const CasoTabela &c, std::ostream *os)
{
    *os << c.nome;
}

class TabelaTest : public testing::TestWithParam<CasoTabela> {
protected:
    Escritorio escritorio;
};

TEST_P(TabelaTest, HoldsItsFieldsAsTextInTheirOrder)
{
    std::string campos;
    for (const auto &linha : Linhas(escritorio.Loja(), "SELECT name, type, pk FROM pragma_table_info('" +
                                                           GetParam().nome + "') ORDER BY cid")) {
        campos += (campos.empty() ? "" : " ") + linha[0];
        EXPECT_EQ(linha[1], "TEXT") << linha[0];
        EXPECT_EQ(linha[2], "0") << linha[0];
    }
    EXPECT_EQ(campos, GetParam().campos);
}

TEST_P(TabelaTest, LooksUpItsKeyThroughAnIndex)
{
    const std::string plano =
        Linhas(escritorio.Loja(), "EXPLAIN QUERY PLAN SELECT * FROM " + GetParam().nome + " WHERE \"" +
                                      GetParam().chave + "\"='1'")[0][3];
    EXPECT_THAT(plano, HasSubstr("USING INDEX"));
}

TEST_P(TabelaTest, IsWalkedByRowid)
{
    EXPECT_TRUE(
        Linhas(escritorio.Loja(), "SELECT rowid FROM " + GetParam().nome + " ORDER BY rowid").empty());
}

INSTANTIATE_TEST_SUITE_P(
    Tabelas, TabelaTest,
    testing::Values(
        CasoTabela{"Bancos", "Codigo Nome L1 L2 L3 L4 L5 C1 C2 C3 C4 C5 C6 C7 C8", "Codigo"},
        CasoTabela{"Transferencia", "Codigo Nome L1 L2 L3 L4 L5 L6 L7 C1 C2 C3 C4 C5 C6 C7", "Codigo"},
        CasoTabela{"Favorecido", "Codigo Nome", "Codigo"}, CasoTabela{"Cidade", "Codigo Nome", "Codigo"},
        CasoTabela{
            "Log",
            "Index Codigo Banco V_CH Favor Local Data NRCH StCancel Comentario Comentario1 Comentario2",
            "Index"},
        CasoTabela{"Script", "Codigo Nome l1 l2 l3 l4 l5 l6 l7 l8 c1 c2 c3 c4 c5 c6 c7 c8 c9 c10 c11",
                   "Codigo"}),
    [](const auto &caso) { return caso.param.nome; });

TEST(Cria, MakesTheSixTablesAndNoOther)
{
    const Escritorio escritorio;
    std::vector<std::string> nomes;
    for (const auto &linha :
         Linhas(escritorio.Loja(), "SELECT name FROM sqlite_master WHERE type='table' ORDER BY 1"))
        nomes.push_back(linha[0]);
    EXPECT_THAT(nomes, ElementsAre("Bancos", "Cidade", "Favorecido", "Log", "Script", "Transferencia"));
}

TEST(Cria, LeavesNothingBesideTheStore)
{
    const Escritorio escritorio;
    EXPECT_EQ(NomesEm(escritorio.Caminho()), QStringList{QStringLiteral("QX70.MDB")});
}

TEST(Cria, MakesAFileThatThePlainShellReadsAndWrites)
{
    const Escritorio escritorio;
    const Execucao shell =
        Executa(QStringLiteral("sqlite3"),
                {escritorio.Loja(), QStringLiteral("insert into Cidade values('00001','Natal');"
                                                   "select * from Cidade;"
                                                   "pragma integrity_check;")});
    EXPECT_EQ(shell.codigo, 0) << shell.erros.toStdString();
    EXPECT_EQ(shell.saida, QStringLiteral("00001|Natal\nok\n"));
}

TEST(Cria, AllowsACodeTwiceSinceTheProgramJudgesThat)
{
    const Escritorio escritorio;
    const Execucao shell =
        Executa(QStringLiteral("sqlite3"),
                {escritorio.Loja(), QStringLiteral("insert into Log(\"Index\") values('1'),('1');"
                                                   "select count(*) from Log;")});
    EXPECT_EQ(shell.saida, QStringLiteral("2\n")) << shell.erros.toStdString();
}

TEST(Cria, MakesAFileThatFollowsTheUmaskOfTheUser)
{
    const mode_t antes = ::umask(027);
    const Escritorio escritorio;
    ::umask(antes);
    struct stat estado = {};
    ASSERT_EQ(::stat(escritorio.Loja().toLocal8Bit().constData(), &estado), 0);
    EXPECT_EQ(estado.st_mode & 0777U, 0640U);
}

TEST(Cria, MakesAStoreUnderTheNameGiven)
{
    const QTemporaryDir pasta;
    const QString loja = pasta.filePath(QStringLiteral("reserva da ação.mdb"));
    const Execucao cria = Banco({QStringLiteral("cria"), loja});
    EXPECT_EQ(cria.codigo, 0) << cria.erros.toStdString();
    EXPECT_EQ(cria.saida, QStringLiteral("Criado: %1\n").arg(loja));
    EXPECT_EQ(Valor(loja, "SELECT count(*) FROM Log"), "0");
}

struct CasoExistente {
    std::string nome;
    const char *arquivo;
    const char *argumento; ///< behind the folder
};
void PrintTo(const CasoExistente &c, std::ostream *os)
{
    *os << c.nome;
}

class ExistenteTest : public testing::TestWithParam<CasoExistente> {};

TEST_P(ExistenteTest, IsRefusedAndStaysAsItIs)
{
    const QTemporaryDir pasta;
    const QString arquivo = pasta.filePath(QString::fromUtf8(GetParam().arquivo));
    EscreveArquivo(arquivo, "guardado");
    const Execucao cria =
        Banco({QStringLiteral("cria"), pasta.path() + QString::fromUtf8(GetParam().argumento)});
    EXPECT_EQ(cria.codigo, 1);
    EXPECT_THAT(cria.erros.toStdString(), HasSubstr("já existe"));
    EXPECT_EQ(LeArquivo(arquivo), "guardado");
    EXPECT_EQ(NomesEm(pasta.path()).size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Arquivos, ExistenteTest,
                         testing::Values(CasoExistente{"FileInTheFolder", "QX70.MDB", ""},
                                         CasoExistente{"FileInSmallLetters", "qx70.mdb", ""},
                                         CasoExistente{"FileByItsName", "outro.MDB", "/outro.MDB"},
                                         CasoExistente{"FileByItsNameInOtherLetters", "Outro.MDB",
                                                       "/OUTRO.mdb"}),
                         [](const auto &caso) { return caso.param.nome; });

TEST(Cria, RefusesALinkThatLeadsNowhere)
{
    const QTemporaryDir pasta;
    const QString elo = pasta.filePath(QStringLiteral("QX70.MDB"));
    ASSERT_TRUE(QFile::link(pasta.filePath(QStringLiteral("longe")), elo));
    EXPECT_EQ(Banco({QStringLiteral("cria"), pasta.path()}).codigo, 1);
    EXPECT_EQ(NomesEm(pasta.path()), QStringList{QStringLiteral("QX70.MDB")});
}

TEST(Cria, LetsOneOfManyAtOnceWin)
{
    const QTemporaryDir pasta;
    std::vector<std::unique_ptr<QProcess>> processos;
    for (int i = 0; i < 8; ++i) {
        processos.push_back(std::make_unique<QProcess>());
        processos.back()->start(CaminhoDoBanco(), {QStringLiteral("cria"), pasta.path()});
    }
    int feitos = 0;
    int recusados = 0;
    for (const auto &processo : processos) {
        ASSERT_TRUE(processo->waitForFinished(60'000));
        feitos += processo->exitCode() == 0 ? 1 : 0;
        recusados += processo->exitCode() == 1 ? 1 : 0;
    }
    EXPECT_EQ(feitos, 1);
    EXPECT_EQ(recusados, 7);
    EXPECT_EQ(NomesEm(pasta.path()), QStringList{QStringLiteral("QX70.MDB")});
    EXPECT_EQ(Valor(pasta.filePath(QStringLiteral("QX70.MDB")), "PRAGMA integrity_check"), "ok");
}

TEST(Cria, TellsOfAMissingFolder)
{
    const QTemporaryDir pasta;
    const Execucao cria = Banco({QStringLiteral("cria"), pasta.filePath(QStringLiteral("falta"))});
    EXPECT_EQ(cria.codigo, 1);
    EXPECT_THAT(cria.erros.toStdString(), HasSubstr("/falta não existe"));
    EXPECT_TRUE(NomesEm(pasta.path()).isEmpty());
}

TEST(Cria, TellsOfAFileInThePlaceOfTheFolder)
{
    const QTemporaryDir pasta;
    EscreveArquivo(pasta.filePath(QStringLiteral("nota")), "x");
    const Execucao cria = Banco({QStringLiteral("cria"), pasta.filePath(QStringLiteral("nota/QX70.MDB"))});
    EXPECT_EQ(cria.codigo, 1);
    EXPECT_THAT(cria.erros.toStdString(), HasSubstr("não é uma pasta"));
}

// Root writes everywhere, so that the program runs as another user then, from a place that this one can
// reach.
TEST(Cria, TellsOfAFolderThatCannotBeWritten)
{
    const QTemporaryDir raiz;
    const QString programa = raiz.filePath(QStringLiteral("qx70-banco"));
    ASSERT_TRUE(QFile::copy(CaminhoDoBanco(), programa));
    const QByteArray pasta = raiz.filePath(QStringLiteral("fechada")).toLocal8Bit();
    ASSERT_EQ(::mkdir(pasta.constData(), 0555), 0);
    ASSERT_EQ(::chmod(programa.toLocal8Bit().constData(), 0755), 0);
    ASSERT_EQ(::chmod(raiz.path().toLocal8Bit().constData(), 0755), 0);

    QProcess processo;
    if (::geteuid() == 0)
        processo.setChildProcessModifier([] {
            if (::setgid(65534) != 0 || ::setuid(65534) != 0)
                ::_exit(99);
        });
    processo.start(programa, {QStringLiteral("cria"), QString::fromLocal8Bit(pasta)});
    ASSERT_TRUE(processo.waitForFinished(60'000));
    EXPECT_EQ(processo.exitCode(), 1);
    EXPECT_THAT(processo.readAllStandardError().toStdString(), HasSubstr("fechada não pode ser gravada"));
    EXPECT_TRUE(NomesEm(QString::fromLocal8Bit(pasta)).isEmpty());
}

} // namespace
