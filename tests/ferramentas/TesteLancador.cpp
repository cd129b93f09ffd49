// packaging/qx70, the launcher of the installed program, with the real qx70-banco and a stand-in for the
// program.
#include "Apoio.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using testing::HasSubstr;

namespace {

class LancadorTest : public testing::Test {
protected:
    LancadorTest()
    {
        QDir(m_raiz.path()).mkpath(QStringLiteral("bin"));
        QDir(m_raiz.path()).mkpath(QStringLiteral("lib/qx70"));
        QFile::copy(QStringLiteral(QX70_RAIZ "/packaging/qx70"), m_raiz.filePath(QStringLiteral("bin/qx70")));
        QFile::link(CaminhoDoBanco(), m_raiz.filePath(QStringLiteral("lib/qx70/qx70-banco")));
        EscreveArquivo(m_raiz.filePath(QStringLiteral("lib/qx70/kvlg01.bmp")), "BM");
        EscreveScript(m_raiz.filePath(QStringLiteral("lib/qx70/qx70")),
                      "printf '%s|' \"$QX70_HOME\" \"$@\"\n");
    }
    Execucao Lanca(const QStringList &argumentos = {}, const QString &pasta = {})
    {
        QProcessEnvironment ambiente;
        ambiente.insert(QStringLiteral("PATH"), QStringLiteral("/usr/bin:/bin"));
        ambiente.insert(QStringLiteral("HOME"), m_casa.path());
        if (!pasta.isEmpty())
            ambiente.insert(QStringLiteral("QX70_HOME"), pasta);
        return Executa(m_raiz.filePath(QStringLiteral("bin/qx70")), argumentos, ambiente);
    }

    QTemporaryDir m_raiz;
    QTemporaryDir m_casa;
};

TEST_F(LancadorTest, MakesTheFolderOfTheUserWithAnEmptyStore)
{
    const Execucao lanca = Lanca();
    ASSERT_EQ(lanca.codigo, 0) << lanca.erros.toStdString();
    const QString pasta = m_casa.filePath(QStringLiteral(".local/share/qx70"));
    EXPECT_EQ(lanca.saida, pasta + QLatin1Char('|'));
    EXPECT_EQ(NomesEm(pasta), (QStringList{QStringLiteral("QX70.MDB"), QStringLiteral("kvlg01.bmp")}));
    EXPECT_EQ(Valor(pasta + QStringLiteral("/QX70.MDB"), "SELECT count(*) FROM Log"), "0");
}

TEST_F(LancadorTest, HandsTheArgumentsOnAsTheyAre)
{
    const Execucao lanca =
        Lanca({QStringLiteral("/B001"), QStringLiteral("/FAna Dias"), QStringLiteral("/V1,5")});
    EXPECT_TRUE(lanca.saida.endsWith(QStringLiteral("|/B001|/FAna Dias|/V1,5|")))
        << lanca.saida.toStdString();
}

TEST_F(LancadorTest, TakesTheFolderThatIsNamed)
{
    const QString pasta = m_casa.filePath(QStringLiteral("minha sala"));
    EXPECT_EQ(Lanca({}, pasta).saida, pasta + QLatin1Char('|'));
    EXPECT_EQ(NomesEm(pasta), (QStringList{QStringLiteral("QX70.MDB"), QStringLiteral("kvlg01.bmp")}));
}

TEST_F(LancadorTest, MakesNoStoreInAFolderThatLostIts)
{
    const QString pasta = m_casa.filePath(QStringLiteral("sala"));
    QDir(m_casa.path()).mkdir(QStringLiteral("sala"));
    EXPECT_EQ(Lanca({}, pasta).codigo, 0);
    EXPECT_TRUE(NomesEm(pasta).isEmpty());
}

TEST_F(LancadorTest, TellsWhenTheFolderCannotBeMade)
{
    QFile::remove(m_raiz.filePath(QStringLiteral("lib/qx70/qx70-banco")));
    const QString pasta = m_casa.filePath(QStringLiteral("sala"));
    const Execucao lanca = Lanca({}, pasta);
    EXPECT_EQ(lanca.codigo, 1);
    EXPECT_THAT(lanca.erros.toStdString(), HasSubstr("não foi possível preparar a pasta"));
    EXPECT_TRUE(NomesEm(m_casa.path()).isEmpty());
}

} // namespace
