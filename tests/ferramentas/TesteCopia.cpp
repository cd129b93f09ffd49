// qx70-banco copia: a whole copy or none, of a store at rest and of one that is being written.
#include "Apoio.h"
#include "Escritor.h"

#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <SQLiteCpp/SQLiteCpp.h>
#include <sys/mount.h>
#include <sys/resource.h>

using testing::HasSubstr;

namespace {

const QStringList kOsDois{QStringLiteral("QX70.INI"), QStringLiteral("QX70.MDB")};

Execucao Copia(const QString &pasta, const QString &destino)
{
    return Banco({QStringLiteral("copia"), pasta, destino});
}

/// An office with registers and cheques, and an empty folder for the copy.
class CopiaTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(m_escritorio.Semeia({"--cheques", "500"}).codigo, 0);
        m_antes = LeArquivo(m_escritorio.Loja());
        m_ini = LeArquivo(m_escritorio.Ini());
    }
    [[nodiscard]] QString Destino(const QString &nome = {}) const
    {
        return nome.isEmpty() ? m_destino.path() : m_destino.filePath(nome);
    }
    [[nodiscard]] Execucao CopiaTudo() const { return Copia(m_escritorio.Caminho(), Destino()); }
    void OriginalIntacto() const
    {
        EXPECT_EQ(LeArquivo(m_escritorio.Loja()), m_antes);
        EXPECT_EQ(LeArquivo(m_escritorio.Ini()), m_ini);
        EXPECT_EQ(NomesEm(m_escritorio.Caminho()), kOsDois);
    }
    void CopiaInteira(const QString &pasta) const
    {
        EXPECT_EQ(NomesEm(pasta), kOsDois);
        EXPECT_EQ(LeArquivo(QDir(pasta).filePath(QStringLiteral("QX70.INI"))), m_ini);
        const Execucao confere = Banco({QStringLiteral("confere"), pasta});
        EXPECT_EQ(confere.codigo, 0) << confere.saida.toStdString();
        const QString loja = QDir(pasta).filePath(QStringLiteral("QX70.MDB"));
        for (const char *tabela : {"Bancos", "Transferencia", "Favorecido", "Cidade", "Log", "Script"}) {
            const std::string consulta = "SELECT * FROM " + std::string(tabela) + " ORDER BY rowid";
            EXPECT_EQ(Linhas(loja, consulta), Linhas(m_escritorio.Loja(), consulta)) << tabela;
        }
    }

    Escritorio m_escritorio;
    QTemporaryDir m_destino;
    QByteArray m_antes;
    QByteArray m_ini;
};

TEST_F(CopiaTest, PutsBothFilesIntoAFolder)
{
    const Execucao copia = CopiaTudo();
    EXPECT_EQ(copia.codigo, 0) << copia.erros.toStdString();
    EXPECT_EQ(copia.saida.toStdString(), "Copiado: " + Destino("QX70.MDB").toStdString() +
                                             "\nCopiado: " + Destino("QX70.INI").toStdString() + "\n");
    EXPECT_TRUE(copia.erros.isEmpty());
    CopiaInteira(Destino());
    OriginalIntacto();
}

TEST_F(CopiaTest, MakesTheFolderWhenItIsNotThere)
{
    for (const char *nome : {"nova", "outra/"}) {
        const Execucao copia = Copia(m_escritorio.Caminho(), Destino(nome));
        EXPECT_EQ(copia.codigo, 0) << copia.erros.toStdString();
        CopiaInteira(Destino(nome));
    }
    OriginalIntacto();
}

TEST_F(CopiaTest, GoesIntoAFolderOfTheOfficeToo)
{
    EXPECT_EQ(Copia(m_escritorio.Caminho(), m_escritorio.Caminho(QStringLiteral("cópia"))).codigo, 0);
    CopiaInteira(m_escritorio.Caminho(QStringLiteral("cópia")));
}

TEST_F(CopiaTest, LeavesOtherFilesAlone)
{
    EscreveArquivo(Destino("cop0102.99"), "velha");
    EscreveArquivo(m_escritorio.Caminho("cop0203.04"), "cheque");
    ASSERT_EQ(CopiaTudo().codigo, 0);
    EXPECT_EQ(NomesEm(Destino()),
              QStringList{"QX70.INI"} + QStringList{"QX70.MDB"} + QStringList{"cop0102.99"});
    EXPECT_EQ(LeArquivo(Destino("cop0102.99")), "velha");
}

TEST_F(CopiaTest, FindsFilesInOtherLettersAndGivesThemTheirNames)
{
    ASSERT_TRUE(QFile::rename(m_escritorio.Loja(), m_escritorio.Caminho("qx70.mdb")));
    ASSERT_TRUE(QFile::rename(m_escritorio.Ini(), m_escritorio.Caminho("QX70.ini")));
    ASSERT_EQ(CopiaTudo().codigo, 0);
    EXPECT_EQ(NomesEm(Destino()), kOsDois);
    EXPECT_EQ(LeArquivo(Destino("QX70.INI")), m_ini);
}

TEST_F(CopiaTest, TellsOfMissingSettingsAndCopiesTheStore)
{
    ASSERT_TRUE(QFile::remove(m_escritorio.Ini()));
    const Execucao copia = CopiaTudo();
    EXPECT_EQ(copia.codigo, 0);
    EXPECT_THAT(copia.erros.toStdString(), HasSubstr("não tem o arquivo QX70.INI"));
    EXPECT_EQ(NomesEm(Destino()), QStringList{"QX70.MDB"});
}

TEST_F(CopiaTest, KeepsWhatTheSettingsHoldByteForByte)
{
    m_ini += QByteArray("; S\xE3o\n\0[Sem fim", 16);
    EscreveArquivo(m_escritorio.Ini(), m_ini);
    ASSERT_EQ(CopiaTudo().codigo, 0);
    EXPECT_EQ(LeArquivo(Destino("QX70.INI")), m_ini);
}

// What is refused; then nothing is in the other folder that was not there.

struct CasoOcupado {
    std::string nome;
    const char *arquivo; ///< in the folder of the copy
};
void PrintTo(const CasoOcupado &c, std::ostream *os)
{
    *os << c.arquivo;
}
class CopiaOcupadaTest : public CopiaTest, public testing::WithParamInterface<CasoOcupado> {};

TEST_P(CopiaOcupadaTest, IsRefusedAndTheFileStays)
{
    const QString arquivo = Destino(GetParam().arquivo);
    EscreveArquivo(arquivo, "de antes");
    const Execucao copia = CopiaTudo();
    EXPECT_EQ(copia.codigo, 1);
    EXPECT_TRUE(copia.saida.isEmpty());
    EXPECT_THAT(copia.erros.toStdString(), HasSubstr(arquivo.toStdString() + " já existe e não foi tocado"));
    EXPECT_EQ(LeArquivo(arquivo), "de antes");
    EXPECT_EQ(NomesEm(Destino()), QStringList{GetParam().arquivo});
}

INSTANTIATE_TEST_SUITE_P(Arquivos, CopiaOcupadaTest,
                         testing::Values(CasoOcupado{"Store", "QX70.MDB"},
                                         CasoOcupado{"Settings", "QX70.INI"},
                                         CasoOcupado{"StoreInOtherLetters", "qx70.mdb"},
                                         CasoOcupado{"SettingsInOtherLetters", "QX70.ini"}),
                         [](const auto &caso) { return caso.param.nome; });

// A new store beside the journal of another one would be overwritten with the other one's pages when it is
// opened.
TEST_F(CopiaTest, NeverGoesBesideTheJournalOfAnotherStore)
{
    for (const char *nome : {"QX70.MDB-journal", "QX70.MDB-wal"}) {
        EscreveArquivo(Destino(nome), "resto");
        for (const Execucao &execucao : {CopiaTudo(), Banco({QStringLiteral("cria"), Destino()})}) {
            EXPECT_EQ(execucao.codigo, 1);
            EXPECT_THAT(execucao.erros.toStdString(),
                        HasSubstr(Destino(nome).toStdString() + " é o resto de uma gravação"));
        }
        EXPECT_EQ(LeArquivo(Destino(nome)), "resto");
        EXPECT_EQ(NomesEm(Destino()), QStringList{nome});
        ASSERT_TRUE(QFile::remove(Destino(nome)));
    }
}

TEST_F(CopiaTest, NeverGoesThroughALinkThatLeadsNowhere)
{
    ASSERT_TRUE(QFile::link(Destino("longe"), Destino("QX70.MDB")));
    EXPECT_EQ(CopiaTudo().codigo, 1);
    EXPECT_FALSE(QFile::exists(Destino("longe")));
    EXPECT_EQ(NomesEm(Destino()), QStringList{"QX70.MDB"});
}

TEST_F(CopiaTest, NeverGoesOntoItself)
{
    ASSERT_TRUE(QFile::link(m_escritorio.Caminho(), Destino("atalho")));
    for (const QString &destino :
         {m_escritorio.Caminho(), m_escritorio.Caminho() + "/.", Destino("atalho")}) {
        const Execucao copia = Copia(m_escritorio.Caminho(), destino);
        EXPECT_EQ(copia.codigo, 1);
        EXPECT_THAT(copia.erros.toStdString(), HasSubstr("é a própria pasta do banco de dados"));
    }
    OriginalIntacto();
}

TEST_F(CopiaTest, NeedsAFolderAndOneAboveIt)
{
    EscreveArquivo(Destino("arquivo"), "x");
    const Execucao sobreArquivo = Copia(m_escritorio.Caminho(), Destino("arquivo"));
    EXPECT_EQ(sobreArquivo.codigo, 1);
    EXPECT_THAT(sobreArquivo.erros.toStdString(), HasSubstr("arquivo não é uma pasta"));
    const Execucao semPai = Copia(m_escritorio.Caminho(), Destino("falta/nova"));
    EXPECT_EQ(semPai.codigo, 1);
    EXPECT_THAT(semPai.erros.toStdString(), HasSubstr("/falta não existe"));
    EXPECT_EQ(NomesEm(Destino()), QStringList{"arquivo"});
}

TEST_F(CopiaTest, LeavesNoFolderWhereThereIsNothingToCopy)
{
    const QTemporaryDir vazia;
    const Execucao copia = Copia(vazia.path(), Destino("nova"));
    EXPECT_EQ(copia.codigo, 1);
    EXPECT_THAT(copia.erros.toStdString(), HasSubstr("Não existe o banco de dados"));
    EXPECT_TRUE(NomesEm(Destino()).isEmpty());
}

struct CasoDanificado {
    std::string nome;
    QByteArray (*estraga)(QByteArray);
};
void PrintTo(const CasoDanificado &c, std::ostream *os)
{
    *os << c.nome;
}
class CopiaDanificadaTest : public CopiaTest, public testing::WithParamInterface<CasoDanificado> {};

TEST_P(CopiaDanificadaTest, IsNotMade)
{
    const QByteArray estragada = GetParam().estraga(m_antes);
    EscreveArquivo(m_escritorio.Loja(), estragada);
    const Execucao copia = Copia(m_escritorio.Caminho(), Destino("nova"));
    EXPECT_EQ(copia.codigo, 1);
    EXPECT_THAT(copia.erros.toStdString(), HasSubstr("danificado"));
    EXPECT_TRUE(NomesEm(Destino()).isEmpty());
    EXPECT_EQ(LeArquivo(m_escritorio.Loja()), estragada);
}

INSTANTIATE_TEST_SUITE_P(
    Lojas, CopiaDanificadaTest,
    testing::Values(CasoDanificado{"OfAnotherKind",
                                   [](QByteArray) { return QByteArray("nada ").repeated(1000); }},
                    CasoDanificado{"Truncated", [](QByteArray b) { return b.left(b.size() / 2); }},
                    CasoDanificado{"PageOfRubbish",
                                   [](QByteArray b) {
                                       return b.replace(b.size() / 2 / 4096 * 4096, 4096,
                                                        QByteArray(4096, '\x55'));
                                   }}),
    [](const auto &caso) { return caso.param.nome; });

TEST_F(CopiaTest, IsRefusedWhileAnotherProgramHoldsTheStore)
{
    SQLite::Database outro(m_escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE);
    outro.exec("BEGIN EXCLUSIVE");
    const Execucao copia = Copia(m_escritorio.Caminho(), Destino("nova"));
    EXPECT_EQ(copia.codigo, 1);
    EXPECT_THAT(copia.erros.toStdString(), HasSubstr("em uso por outro programa"));
    EXPECT_TRUE(NomesEm(Destino()).isEmpty());
}

TEST_F(CopiaTest, HasTheStoreBeforeAWriteThatIsNotFinished)
{
    SQLite::Database outro(m_escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE);
    outro.exec("BEGIN IMMEDIATE; DELETE FROM Log");
    EXPECT_EQ(CopiaTudo().codigo, 0);
    EXPECT_EQ(Valor(Destino("QX70.MDB"), "SELECT count(*) FROM Log"), "500");
}

TEST_F(CopiaTest, HasTheRowsThatAnotherProgramKeepsBesideTheStore)
{
    SQLite::Database outro(m_escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE);
    outro.exec("PRAGMA journal_mode=WAL; DELETE FROM Log WHERE rowid>300");
    EXPECT_EQ(CopiaTudo().codigo, 0);
    EXPECT_EQ(NomesEm(Destino()), kOsDois);
    EXPECT_EQ(Valor(Destino("QX70.MDB"), "SELECT count(*) FROM Log"), "300");
}

struct CasoChamada {
    std::string nome;
    QStringList palavras;
};
void PrintTo(const CasoChamada &c, std::ostream *os)
{
    *os << c.nome;
}
class ChamadaDeCopiaTest : public testing::TestWithParam<CasoChamada> {};

TEST_P(ChamadaDeCopiaTest, IsRefused)
{
    const Execucao copia = Banco(QStringList{QStringLiteral("copia")} + GetParam().palavras);
    EXPECT_EQ(copia.codigo, 2);
    EXPECT_THAT(copia.erros.toStdString(),
                HasSubstr("\"copia\" pede a pasta do banco de dados e a da cópia"));
}

INSTANTIATE_TEST_SUITE_P(Chamadas, ChamadaDeCopiaTest,
                         testing::Values(CasoChamada{"Nothing", {}}, CasoChamada{"OneFolder", {"uma"}},
                                         CasoChamada{"ThreeFolders", {"uma", "duas", "tres"}},
                                         CasoChamada{"EmptyName", {"uma", ""}},
                                         CasoChamada{"AnOption", {"uma", "--forca"}}),
                         [](const auto &caso) { return caso.param.nome; });

// A store that is being written.

TEST(CopiaEmUso, HasEveryRowThatWasThereWhenItBegan)
{
    constexpr int kCheques = 60'000;
    const Escritorio escritorio;
    ASSERT_EQ(escritorio.Semeia({"--cheques", QString::number(kCheques)}).codigo, 0);
    const QTemporaryDir destino;
    const Escritor escritor(escritorio.Loja());
    for (int vez = 0; vez < 3; ++vez) {
        const QString pasta = destino.filePath(QString::number(vez));
        const int antes = escritor.Escritas();
        const Execucao copia = Copia(escritorio.Caminho(), pasta);
        const int depois = escritor.Escritas();
        ASSERT_EQ(copia.codigo, 0) << copia.erros.toStdString();
        EXPECT_GT(depois, antes) << "nothing was written meanwhile";
        const int linhas = std::stoi(Valor(pasta + "/QX70.MDB", "SELECT count(*) FROM Log"));
        EXPECT_GE(linhas, kCheques + antes);
        EXPECT_LE(linhas, kCheques + depois + 1);
        const Execucao confere = Banco({QStringLiteral("confere"), pasta});
        EXPECT_EQ(confere.codigo, 0) << confere.saida.toStdString();
        EXPECT_THAT(confere.saida.toStdString(), HasSubstr("Nada de errado."));
    }
    EXPECT_FALSE(escritor.Falhou());
}

// No room for the copy.

/// A disk of one megabyte; none where the machine does not let a test mount one.
class DiscoPequeno {
public:
    DiscoPequeno()
        : m_montado(::mount("tmpfs", m_pasta.path().toUtf8().constData(), "tmpfs", 0, "size=1m") == 0)
    {
    }
    ~DiscoPequeno()
    {
        if (m_montado)
            ::umount2(m_pasta.path().toUtf8().constData(), MNT_DETACH);
    }
    DiscoPequeno(const DiscoPequeno &) = delete;
    DiscoPequeno &operator=(const DiscoPequeno &) = delete;
    [[nodiscard]] bool Montado() const { return m_montado; }
    [[nodiscard]] QString Pasta() const { return m_pasta.path(); }

private:
    QTemporaryDir m_pasta;
    bool m_montado;
};

class CopiaSemEspaco : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(m_escritorio.Semeia({"--cheques", "12000"}).codigo, 0); }
    Escritorio m_escritorio;
};

TEST_F(CopiaSemEspaco, TellsOfAFullDiskAndLeavesNothing)
{
    const DiscoPequeno disco;
    if (!disco.Montado())
        GTEST_SKIP() << "this machine lets no test mount a disk";
    for (const QString &pasta : {disco.Pasta(), disco.Pasta() + "/nova"}) {
        const Execucao copia = Copia(m_escritorio.Caminho(), pasta);
        EXPECT_EQ(copia.codigo, 1);
        EXPECT_THAT(copia.erros.toStdString(),
                    HasSubstr("O disco da pasta " + pasta.toStdString() + " está cheio"));
        EXPECT_TRUE(NomesEm(disco.Pasta()).isEmpty());
    }
}

TEST_F(CopiaSemEspaco, LeavesNothingWhereFilesMayNotGrow)
{
    const QTemporaryDir destino;
    QProcess copia;
    copia.setChildProcessModifier([] {
        const rlimit limite{1024 * 1024, 1024 * 1024};
        ::setrlimit(RLIMIT_FSIZE, &limite);
        std::signal(SIGXFSZ, SIG_IGN);
    });
    copia.start(CaminhoDoBanco(),
                {QStringLiteral("copia"), m_escritorio.Caminho(), destino.filePath("nova")});
    ASSERT_TRUE(copia.waitForFinished(60'000));
    EXPECT_EQ(copia.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(copia.exitCode(), 1);
    EXPECT_THAT(copia.readAllStandardError().toStdString(), HasSubstr("A cópia não foi feita"));
    EXPECT_TRUE(NomesEm(destino.path()).isEmpty());
}

} // namespace
