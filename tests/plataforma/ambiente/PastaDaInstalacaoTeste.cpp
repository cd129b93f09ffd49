// Where the lock of an installation lies, and which folders are refused for it.
#include "Mostra.h"
#include "plataforma/ambiente/CopiaUnica.h"
#include <functional>
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <sys/stat.h>
#include <unistd.h>

using namespace plataforma;

namespace {

constexpr uid_t kOutroUsuario = 65534;

QByteArray Nome(const QString &caminho)
{
    return QFile::encodeName(caminho);
}

/// A shared place, in which the user's part is made by each case.
struct CasoPasta {
    std::string nome;
    std::function<void(const QString &pasta)> prepara; ///< lays something at the place of the user's folder
    bool aceita;
};
void PrintTo(const CasoPasta &caso, std::ostream *os)
{
    *os << (caso.aceita ? "accepted" : "refused");
}
class PastaTemporariaTeste : public testing::TestWithParam<CasoPasta> {};

void CriaComModo(const QString &pasta, mode_t modo)
{
    ASSERT_EQ(mkdir(Nome(pasta).constData(), 0700), 0);
    ASSERT_EQ(chmod(Nome(pasta).constData(), modo), 0);
}

} // namespace

TEST_P(PastaTemporariaTeste, IsUsedOnlyWhenItIsTheUsersOwnAndClosed)
{
    const QTemporaryDir comum;
    const QString doUsuario = comum.filePath(QStringLiteral("qx70-%1").arg(geteuid()));
    GetParam().prepara(doUsuario);
    const QString pasta = PastaDaInstalacao("/", {{}, comum.path()});
    EXPECT_EQ(!pasta.isEmpty(), GetParam().aceita);
    if (GetParam().aceita) {
        EXPECT_TRUE(pasta.startsWith(doUsuario + '/'));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Pastas, PastaTemporariaTeste,
    testing::Values(
        CasoPasta{"NotThereYet", [](const QString &) {}, true},
        CasoPasta{"ThereFromBefore", [](const QString &p) { CriaComModo(p, 0700); }, true},
        CasoPasta{"OpenToOthers", [](const QString &p) { CriaComModo(p, 0755); }, false},
        CasoPasta{"OpenToTheGroup", [](const QString &p) { CriaComModo(p, 0710); }, false},
        CasoPasta{"AFile", [](const QString &p) { ASSERT_TRUE(QFile(p).open(QIODevice::WriteOnly)); }, false},
        CasoPasta{"ALinkToAFolder",
                  [](const QString &p) {
                      CriaComModo(p + "-alvo", 0700);
                      ASSERT_TRUE(QFile::link(p + "-alvo", p));
                  },
                  false}),
    [](const auto &caso) { return caso.param.nome; });

TEST(PastaDaInstalacao, RefusesAFolderLaidThereByAnotherUser)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "needs the right to give a folder away";
    const QTemporaryDir comum;
    const QString doUsuario = comum.filePath("qx70-0");
    CriaComModo(doUsuario, 0700);
    ASSERT_EQ(chown(Nome(doUsuario).constData(), kOutroUsuario, kOutroUsuario), 0);
    EXPECT_EQ(PastaDaInstalacao("/", {{}, comum.path()}), "");
}

TEST(PastaDaInstalacao, TakesTheFirstPlaceThatIsTheUsersOwn)
{
    const QTemporaryDir comum;
    const QString aberta = comum.filePath("aberta");
    const QString boa = comum.filePath("boa");
    CriaComModo(aberta, 0777);
    CriaComModo(boa, 0700);
    const LugaresDeTrava lugares{{"", "relativa", comum.filePath("falta"), aberta, boa}, comum.path()};
    EXPECT_TRUE(PastaDaInstalacao("/", lugares).startsWith(boa + "/qx70/"));
}

TEST(PastaDaInstalacao, PassesOverAPlaceTooDeepForASocketsName)
{
    const QTemporaryDir comum;
    const QString funda = comum.filePath(QString(80, u'f'));
    CriaComModo(funda, 0700);
    EXPECT_TRUE(PastaDaInstalacao("/", {{funda}, comum.path()}).startsWith(comum.path() + "/qx70-"));
}

TEST(PastaDaInstalacao, HangsOnTheFolderAndNotOnTheWayItIsWritten)
{
    const QTemporaryDir comum;
    const QTemporaryDir app;
    const LugaresDeTrava lugares{{comum.path()}, comum.path()};
    const QString pasta = PastaDaInstalacao(app.path(), lugares);
    EXPECT_EQ(PastaDaInstalacao(app.path() + "/../" + QDir(app.path()).dirName() + '/', lugares), pasta);
    EXPECT_NE(PastaDaInstalacao(comum.path(), lugares), pasta);
    EXPECT_NE(PastaDaInstalacao(app.path() + "/nova", lugares), pasta);
}

TEST(LugaresDoSistema, AsksTheDesktopFirst)
{
    const QByteArray antes = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", "/um/lugar");
    const LugaresDeTrava lugares = LugaresDoSistema();
    qputenv("XDG_RUNTIME_DIR", antes);
    EXPECT_EQ(lugares.doUsuario.value(0), "/um/lugar");
    EXPECT_EQ(lugares.doUsuario.value(1), QStringLiteral("/run/user/%1").arg(geteuid()));
    EXPECT_EQ(lugares.temporaria, "/tmp");
}
