// ./run in a copy of the tree, with the real qx70-banco and stand-ins for the build and the other programs.
#include "Apoio.h"

#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using testing::HasSubstr;
using testing::StartsWith;

namespace {

constexpr char kSimulador[] = "echo \"$*\" >\"$DIARIO.simulador\"\n"
                              "echo $$ >\"$DIARIO.pid\"\n"
                              "echo 'pronto /dev/pts/9'\n"
                              "exec sleep 100\n";
// Does what the real one leaves behind: a picture and a row.
constexpr char kDemonstracao[] =
    "echo \"$QX70_HOME $QX7032_COM2 $QT_QPA_PLATFORM\" >\"$DIARIO.demonstracao\"\n"
    "touch -d '2004-01-01' \"$QX70_HOME/documentos/000009-cheque.png\"\n"
    "touch \"$QX70_HOME/documentos/000002-cheque.png\"\n"
    "sqlite3 \"$QX70_HOME/QX70.MDB\" \"insert into Log(\\\"Index\\\",V_CH) "
    "values('0000000001','1234,5')\"\n";
constexpr char kQx70[] = "echo \"$QX70_HOME $QX7032_COM2\" >\"$DIARIO.qx70\"\n";

class RunTest : public testing::Test {
protected:
    RunTest()
    {
        QDir(m_raiz.path()).mkpath(QStringLiteral("ferramentas"));
        QDir(m_raiz.path()).mkpath(QStringLiteral("build/release/bin"));
        QDir(m_raiz.path()).mkpath(QStringLiteral("falsos"));
        QFile::copy(QStringLiteral(QX70_RAIZ "/run"), Caminho("run"));
        QFile::link(CaminhoDoBanco(), Caminho("build/release/bin/qx70-banco"));
        for (const char *logo : {"build/release/bin/kvlg01.bmp", "build/release/bin/QX50A.bmp"})
            EscreveArquivo(Caminho(logo), "BM");
        EscreveScript(Caminho("ferramentas/instala"), "echo \"$*\" >>\"$DIARIO.instala\"\n");
        EscreveScript(Caminho("falsos/cmake"), "echo \"$*\" >>\"$DIARIO.cmake\"\n");
        Programa("qx70-simulador", kSimulador);
        Programa("qx70-demonstracao", kDemonstracao);
        Programa("qx70", kQx70);
    }
    ~RunTest() override
    {
        if (SimuladorVive())
            ::kill(PidDoSimulador(), SIGKILL);
    }
    void Programa(const char *nome, const QByteArray &texto)
    {
        EscreveScript(Caminho("build/release/bin/") + QLatin1String(nome), texto);
    }
    Execucao Run(const QStringList &argumentos = {}, const QString &tela = {})
    {
        QProcessEnvironment ambiente;
        ambiente.insert(QStringLiteral("PATH"), Caminho("falsos") + QStringLiteral(":/usr/bin:/bin"));
        ambiente.insert(QStringLiteral("DIARIO"), Caminho("diario"));
        if (!tela.isEmpty())
            ambiente.insert(QStringLiteral("DISPLAY"), tela);
        return Executa(Caminho("run"), argumentos, ambiente, m_fora.path());
    }
    QString Caminho(const char *nome) const { return m_raiz.filePath(QLatin1String(nome)); }
    std::string Diario(const char *quem) const
    {
        const QString arquivo = Caminho("diario.") + QLatin1String(quem);
        return QFileInfo::exists(arquivo) ? LeArquivo(arquivo).toStdString() : std::string("<nada>");
    }
    pid_t PidDoSimulador() const { return QString::fromStdString(Diario("pid")).toInt(); }
    bool SimuladorVive() const { return PidDoSimulador() > 1 && ::kill(PidDoSimulador(), 0) == 0; }

    QTemporaryDir m_raiz;
    QTemporaryDir m_fora; ///< where the call is made
};

TEST_F(RunTest, PreparesAnOfficeInTheCheckout)
{
    const Execucao run = Run();
    ASSERT_EQ(run.codigo, 0) << run.erros.toStdString();
    const QByteArray ini = LeArquivo(Caminho("escritorio/QX70.INI"));
    EXPECT_TRUE(ini.startsWith("[Sistema]\r\nport=COM2\r\n[Opcoes]\r\nConfiguraData=2\r\n[Formato]\r\n001="))
        << ini.toStdString();
    const QString loja = Caminho("escritorio/QX70.MDB");
    EXPECT_EQ(Valor(loja, "SELECT count(*) FROM Bancos"), "4");
    EXPECT_EQ(Valor(loja, "SELECT count(*) FROM Cidade"), "8");
    EXPECT_EQ(Valor(loja, "SELECT count(*) FROM Favorecido"), "8");
    EXPECT_EQ(LeArquivo(Caminho("escritorio/kvlg01.bmp")), "BM");
    EXPECT_EQ(LeArquivo(Caminho("escritorio/QX50A.bmp")), "BM");
    EXPECT_EQ(NomesEm(m_raiz.path()).filter(QStringLiteral("novo")), QStringList{});
    EXPECT_TRUE(NomesEm(m_fora.path()).isEmpty());
}

TEST_F(RunTest, PrintsUnattendedWithoutADisplayAndTellsWhere)
{
    const Execucao run = Run();
    ASSERT_EQ(run.codigo, 0) << run.erros.toStdString();
    const std::string escritorio = Caminho("escritorio").toStdString();
    EXPECT_EQ(Diario("demonstracao"), escritorio + " " + escritorio + "/COM2 offscreen\n");
    EXPECT_EQ(Diario("qx70"), "<nada>");
    EXPECT_THAT(run.saida.toStdString(), HasSubstr(escritorio + "/documentos/000002-cheque.png\n"));
    EXPECT_TRUE(run.saida.endsWith(QStringLiteral("\n0000000001|||1234,5||||||||\n")))
        << run.saida.toStdString();
}

TEST_F(RunTest, OpensTheProgramOnADisplay)
{
    const Execucao run = Run({}, QStringLiteral(":77"));
    ASSERT_EQ(run.codigo, 0) << run.erros.toStdString();
    const std::string escritorio = Caminho("escritorio").toStdString();
    EXPECT_EQ(Diario("qx70"), escritorio + " " + escritorio + "/COM2\n");
    EXPECT_EQ(Diario("demonstracao"), "<nada>");
    EXPECT_THAT(Diario("simulador"), HasSubstr(" --janela --automatico\n"));
}

TEST_F(RunTest, GivesTheSimulatorTheOffice)
{
    ASSERT_EQ(Run().codigo, 0);
    const std::string escritorio = Caminho("escritorio").toStdString();
    EXPECT_EQ(Diario("simulador"), "--saida " + escritorio + "/documentos --elo " + escritorio +
                                       "/COM2 --formatos " + escritorio + "/QX70.INI\n");
}

TEST_F(RunTest, BuildsTheProgramsAndNoTest)
{
    ASSERT_EQ(Run({}, QStringLiteral(":77")).codigo, 0);
    EXPECT_EQ(Diario("instala"), "run\n");
    EXPECT_THAT(Diario("cmake"), StartsWith("--preset release\n--build --preset release --parallel "));
    EXPECT_THAT(Diario("cmake"), HasSubstr("--target qx70 qx7032 qx70-simulador qx70-banco\n"));
}

TEST_F(RunTest, EndsTheSimulatorAfterwards)
{
    ASSERT_EQ(Run().codigo, 0);
    ASSERT_GT(PidDoSimulador(), 1);
    EXPECT_FALSE(SimuladorVive());
}

TEST_F(RunTest, LeavesAnExistingOfficeAsItIs)
{
    ASSERT_EQ(Run().codigo, 0);
    const QByteArray ini = LeArquivo(Caminho("escritorio/QX70.INI"));
    EscreveArquivo(Caminho("escritorio/QX70.INI"), ini + "[Minha]\r\na=1\r\n");
    ASSERT_EQ(Run().codigo, 0);
    EXPECT_EQ(LeArquivo(Caminho("escritorio/QX70.INI")), ini + "[Minha]\r\na=1\r\n");
    EXPECT_EQ(Valor(Caminho("escritorio/QX70.MDB"), "SELECT count(*) FROM Log"), "2");
}

TEST_F(RunTest, TakesAFolderSeenFromTheCaller)
{
    ASSERT_EQ(Run({QStringLiteral("minha sala")}).codigo, 0);
    EXPECT_TRUE(QFileInfo::exists(m_fora.filePath(QStringLiteral("minha sala/QX70.MDB"))));
    EXPECT_FALSE(QFileInfo::exists(Caminho("escritorio")));
}

TEST_F(RunTest, RefusesAFileInThePlaceOfTheOffice)
{
    EscreveArquivo(Caminho("escritorio"), "x");
    const Execucao run = Run();
    EXPECT_EQ(run.codigo, 1);
    EXPECT_THAT(run.erros.toStdString(), HasSubstr("não é uma pasta"));
    EXPECT_EQ(LeArquivo(Caminho("escritorio")), "x");
}

TEST_F(RunTest, MakesNoStoreInAFolderThatHasNone)
{
    QDir(m_raiz.path()).mkdir(QStringLiteral("escritorio"));
    const Execucao run = Run();
    EXPECT_EQ(run.codigo, 1);
    EXPECT_THAT(run.erros.toStdString(), HasSubstr("não foi possível ler"));
    EXPECT_FALSE(QFileInfo::exists(Caminho("escritorio/QX70.MDB")));
    EXPECT_FALSE(SimuladorVive());
}

TEST_F(RunTest, LeavesNoHalfOfficeWhenItCannotBePrepared)
{
    QFile::remove(Caminho("build/release/bin/qx70-banco"));
    Programa("qx70-banco", "exit 1\n");
    const Execucao run = Run();
    EXPECT_EQ(run.codigo, 1);
    EXPECT_THAT(run.erros.toStdString(), HasSubstr("não foi possível preparar"));
    EXPECT_EQ(NomesEm(m_raiz.path()).filter(QStringLiteral("escritorio")), QStringList{});
}

TEST_F(RunTest, FailsWhenTheSimulatorEndsAtOnce)
{
    Programa("qx70-simulador", "exit 3\n");
    const Execucao run = Run();
    EXPECT_EQ(run.codigo, 1);
    EXPECT_THAT(run.erros.toStdString(), HasSubstr("terminou antes de ficar pronto"));
    EXPECT_EQ(Diario("demonstracao"), "<nada>");
}

TEST_F(RunTest, FailsWhenTheDemonstrationFailsAndEndsTheSimulator)
{
    Programa("qx70-demonstracao", "exit 1\n");
    const Execucao run = Run();
    EXPECT_EQ(run.codigo, 1);
    EXPECT_THAT(run.erros.toStdString(), HasSubstr("a demonstração falhou"));
    EXPECT_FALSE(SimuladorVive());
}

TEST_F(RunTest, FailsWhenTheDemonstrationLeavesNoRow)
{
    Programa("qx70-demonstracao", "exit 0\n");
    const Execucao run = Run();
    EXPECT_EQ(run.codigo, 1);
    EXPECT_THAT(run.erros.toStdString(), HasSubstr("não registrou nenhum cheque"));
}

TEST_F(RunTest, EndsWithTheCodeOfTheProgram)
{
    Programa("qx70", "exit 4\n");
    EXPECT_EQ(Run({}, QStringLiteral(":77")).codigo, 4);
    EXPECT_FALSE(SimuladorVive());
}

TEST_F(RunTest, FailsWhenTheBuildFails)
{
    EscreveScript(Caminho("falsos/cmake"), "exit 1\n");
    EXPECT_EQ(Run().codigo, 1);
    EXPECT_FALSE(QFileInfo::exists(Caminho("escritorio")));
}

TEST_F(RunTest, RefusesTwoFolders)
{
    EXPECT_EQ(Run({QStringLiteral("a"), QStringLiteral("b")}).codigo, 2);
    EXPECT_EQ(Diario("cmake"), "<nada>");
}

} // namespace
