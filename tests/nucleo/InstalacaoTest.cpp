// What is told about the folder and the settings file of the program.
#include "nucleo/Instalacao.h"

#include <functional>
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <sys/stat.h>

using nucleo::FalhaDaInstalacao;

namespace {

void Cria(const QString &caminho)
{
    ASSERT_TRUE(QFile(caminho).open(QIODevice::WriteOnly));
}

struct Caso {
    std::string nome;
    std::function<void(const QString &pasta)> poe; ///< makes the folder and what is in it
    QString falha;                                 ///< the first line; %1 is the folder
};
void PrintTo(const Caso &caso, std::ostream *os)
{
    *os << '"' << caso.falha.toStdString() << '"';
}

class FalhaDaInstalacaoTest : public testing::TestWithParam<Caso> {};

TEST_P(FalhaDaInstalacaoTest, NamesWhatFailedAndSaysWhatFollows)
{
    const QTemporaryDir base;
    const QString pasta = base.filePath("escritorio %1");
    GetParam().poe(pasta);
    const QStringList linhas = FalhaDaInstalacao(pasta, pasta + "/QX70.INI").split('\n');
    EXPECT_EQ(linhas[0].toStdString(), QString(GetParam().falha).replace("%1", pasta).toStdString());
    EXPECT_EQ(linhas.size(), GetParam().falha.isEmpty() ? 1 : 3);
    if (!GetParam().falha.isEmpty()) {
        EXPECT_TRUE(linhas[1].startsWith("Os valores iniciais serão usados e nada será gravado"));
    }
}

const auto kPasta = [](const QString &pasta) { ASSERT_TRUE(QDir().mkdir(pasta)); };

INSTANTIATE_TEST_SUITE_P(
    Pastas, FalhaDaInstalacaoTest,
    testing::Values(Caso{"FolderWithoutSettings", kPasta, ""},
                    Caso{"FolderWithSettings",
                         [](const QString &p) {
                             kPasta(p);
                             Cria(p + "/QX70.INI");
                         },
                         ""},
                    Caso{"LinkToAFolder",
                         [](const QString &p) {
                             kPasta(p + " alvo");
                             ASSERT_TRUE(QFile::link(p + " alvo", p));
                         },
                         ""},
                    Caso{"LinkToSettings",
                         [](const QString &p) {
                             kPasta(p);
                             Cria(p + "/outro.ini");
                             ASSERT_TRUE(QFile::link(p + "/outro.ini", p + "/QX70.INI"));
                         },
                         ""},
                    Caso{"FolderMissing", [](const QString &) {}, "A pasta \"%1\" não foi encontrada."},
                    Caso{"FileInPlaceOfTheFolder", Cria, "O caminho \"%1\" não é uma pasta."},
                    Caso{"FolderInPlaceOfTheSettings",
                         [](const QString &p) { ASSERT_TRUE(QDir().mkpath(p + "/QX70.INI")); },
                         "O caminho \"%1/QX70.INI\" não é um arquivo de configuração."},
                    Caso{"PipeInPlaceOfTheSettings",
                         [](const QString &p) {
                             kPasta(p);
                             ASSERT_EQ(mkfifo(QFile::encodeName(p + "/QX70.INI").constData(), 0600), 0);
                         },
                         "O caminho \"%1/QX70.INI\" não é um arquivo de configuração."},
                    Caso{"LinkThatLeadsNowhere",
                         [](const QString &p) {
                             kPasta(p);
                             ASSERT_TRUE(QFile::link(p + "/falta.ini", p + "/QX70.INI"));
                         },
                         "O arquivo de configuração \"%1/QX70.INI\" não pôde ser lido."},
                    Caso{"LinkToItself",
                         [](const QString &p) {
                             kPasta(p);
                             ASSERT_TRUE(QFile::link("QX70.INI", p + "/QX70.INI"));
                         },
                         "O arquivo de configuração \"%1/QX70.INI\" não pôde ser lido."}),
    [](const auto &caso) { return caso.param.nome; });

} // namespace
