// ferramentas/instala, run with stand-ins for dpkg-query, apt-get, sudo and id.
#include "Apoio.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QFile>
#include <QFileInfo>

using testing::HasSubstr;
using testing::Not;

namespace {

class InstalaTest : public testing::Test {
protected:
    InstalaTest()
    {
        // Only what stands in this folder can be called.
        for (const char *nome : {"bash", "env"})
            QFile::link(QStringLiteral("/usr/bin/") + QLatin1String(nome),
                        m_pasta.filePath(QLatin1String(nome)));
        Poe("dpkg-query", "[[ \" $FALTAM \" == *\" ${@: -1} \"* ]] && exit 1\necho -n installed\n");
        Poe("apt-get", "echo \"$QUEM apt-get $*\" >>\"$DIARIO\"\nexit ${APT:-0}\n");
        Poe("id", "echo \"$QUEM_SOU\"\n");
        Poe("sudo", "QUEM=sudo exec \"$@\"\n");
    }
    void Poe(const char *nome, const QByteArray &texto)
    {
        EscreveScript(m_pasta.filePath(QLatin1String(nome)), texto);
    }
    void Tira(const char *nome) { QFile::remove(m_pasta.filePath(QLatin1String(nome))); }

    Execucao Instala(const QStringList &argumentos, const QByteArray &faltam, const QByteArray &quemSou = "0",
                     const QMap<QString, QString> &mais = {})
    {
        QProcessEnvironment ambiente;
        ambiente.insert(QStringLiteral("PATH"), m_pasta.path());
        ambiente.insert(QStringLiteral("DIARIO"), Diario());
        ambiente.insert(QStringLiteral("FALTAM"), QString::fromUtf8(faltam));
        ambiente.insert(QStringLiteral("QUEM"), QStringLiteral("direto"));
        ambiente.insert(QStringLiteral("QUEM_SOU"), QString::fromUtf8(quemSou));
        for (auto item = mais.begin(); item != mais.end(); ++item)
            ambiente.insert(item.key(), item.value());
        return Executa(QStringLiteral(QX70_RAIZ "/ferramentas/instala"), argumentos, ambiente);
    }
    QString Diario() const { return m_pasta.filePath(QStringLiteral("diario")); }
    std::string Chamadas() const
    {
        return QFileInfo::exists(Diario()) ? LeArquivo(Diario()).toStdString() : std::string();
    }

    QTemporaryDir m_pasta;
};

TEST_F(InstalaTest, AsksNothingOfAptWhenNothingIsMissing)
{
    const Execucao instala = Instala({QStringLiteral("ci")}, "");
    EXPECT_EQ(instala.codigo, 0) << instala.erros.toStdString();
    EXPECT_EQ(Chamadas(), "");
    EXPECT_TRUE(instala.saida.isEmpty());
}

TEST_F(InstalaTest, InstallsOnlyWhatIsMissing)
{
    const Execucao instala = Instala({QStringLiteral("test")}, "cmake xvfb");
    EXPECT_EQ(instala.codigo, 0) << instala.erros.toStdString();
    EXPECT_EQ(Chamadas(), "direto apt-get -q update\n"
                          "direto apt-get -q -y --no-install-recommends install cmake xvfb\n");
}

TEST_F(InstalaTest, GoesThroughSudoForAnotherUser)
{
    EXPECT_EQ(Instala({}, "cmake", "1000").codigo, 0);
    EXPECT_EQ(Chamadas(),
              "sudo apt-get -q update\nsudo apt-get -q -y --no-install-recommends install cmake\n");
}

TEST_F(InstalaTest, NeedsNoSudoWhenNothingIsMissing)
{
    Tira("sudo");
    EXPECT_EQ(Instala({}, "", "1000").codigo, 0);
}

TEST_F(InstalaTest, TellsWhatIsMissingWhereThereIsNoSudo)
{
    Tira("sudo");
    const Execucao instala = Instala({}, "cmake sqlite3", "1000");
    EXPECT_EQ(instala.codigo, 1);
    EXPECT_THAT(instala.erros.toStdString(), HasSubstr("cmake sqlite3"));
    EXPECT_EQ(Chamadas(), "");
}

TEST_F(InstalaTest, FailsWhenAptFails)
{
    EXPECT_NE(Instala({}, "cmake", "0", {{QStringLiteral("APT"), QStringLiteral("100")}}).codigo, 0);
}

TEST_F(InstalaTest, TellsOfAMachineWithoutDpkg)
{
    Tira("dpkg-query");
    const Execucao instala = Instala({}, "");
    EXPECT_EQ(instala.codigo, 1);
    EXPECT_THAT(instala.erros.toStdString(), HasSubstr("Debian 12"));
}

TEST_F(InstalaTest, RefusesAnUnknownUse)
{
    EXPECT_EQ(Instala({QStringLiteral("tudo")}, "cmake").codigo, 2);
    EXPECT_EQ(Chamadas(), "");
}

struct CasoUso {
    std::string nome;
    const char *uso;
    const char *pacote;
    bool pedido;
    QMap<QString, QString> ambiente = {};
};
void PrintTo(const CasoUso &c, std::ostream *os)
{
    *os << c.nome;
}

class UsoTest : public InstalaTest, public testing::WithParamInterface<CasoUso> {};

TEST_P(UsoTest, AsksForThePackageOrNot)
{
    EXPECT_EQ(
        Instala({QString::fromUtf8(GetParam().uso)}, GetParam().pacote, "0", GetParam().ambiente).codigo, 0);
    const auto pedido = HasSubstr(std::string("install ") + GetParam().pacote + "\n");
    if (GetParam().pedido)
        EXPECT_THAT(Chamadas(), pedido);
    else
        EXPECT_THAT(Chamadas(), Not(pedido));
}

const QMap<QString, QString> kSoWayland{{QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("wayland-0")}};
const QMap<QString, QString> kWaylandEX{{QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("wayland-0")},
                                        {QStringLiteral("DISPLAY"), QStringLiteral(":0")}};

INSTANTIATE_TEST_SUITE_P(Usos, UsoTest,
                         testing::Values(CasoUso{"RunBuilds", "run", "g++", true},
                                         CasoUso{"RunReadsTheLog", "run", "sqlite3", true},
                                         CasoUso{"RunTestsNothing", "run", "xvfb", false},
                                         CasoUso{"RunChecksNothing", "run", "clang", false},
                                         CasoUso{"RunOnWaylandAlone", "run", "qt6-wayland", true, kSoWayland},
                                         CasoUso{"RunOnBoth", "run", "qt6-wayland", false, kWaylandEX},
                                         CasoUso{"TestNeedsAServer", "test", "xvfb", true},
                                         CasoUso{"TestNeedsNoClang", "test", "clang", false},
                                         CasoUso{"CheckFormats", "ci", "clang-format-14", true},
                                         CasoUso{"CheckFuzzes", "ci", "libclang-rt-14-dev", true},
                                         CasoUso{"CheckTests", "ci", "xvfb", true}),
                         [](const auto &caso) { return caso.param.nome; });

} // namespace
