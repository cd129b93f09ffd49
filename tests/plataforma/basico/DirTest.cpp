// Dir: the names of the files that match a pattern. Kill: a file that goes.
#include "plataforma/basico/Dir.h"
#include "plataforma/basico/RuntimeError.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace plataforma;

namespace {

class DirTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_pasta.isValid());
        for (const char *nome : {"copB.txt", "COP0101.99", "cop0102.99", "cop0102.00", "copia", "cheque.bmp",
                                 "QX50a.bmp", ".coposto", "ção.txt"}) {
            Cria(QString::fromUtf8(nome));
        }
        ASSERT_TRUE(QDir(m_pasta.path()).mkdir("cop9999.99"));
    }
    void Cria(const QString &nome)
    {
        QFile arquivo(m_pasta.filePath(nome));
        ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
    }
    /// All names, one blank between.
    std::string Nomes(const QString &padrao, const QString &barra = "/")
    {
        Dir dir(m_pasta.path() + barra + padrao);
        QStringList nomes;
        for (QString nome = dir.Next(); !nome.isEmpty(); nome = dir.Next()) {
            nomes += nome;
        }
        EXPECT_TRUE(dir.Next().isEmpty());
        return nomes.join(" ").toStdString();
    }
    QTemporaryDir m_pasta;
};

TEST_F(DirTest, GivesTheNamesInOrderWithoutFolders)
{
    EXPECT_EQ(Nomes("cop*.99"), "COP0101.99 cop0102.99");
}

TEST_F(DirTest, StarPointStarTakesNamesWithoutAPoint)
{
    EXPECT_EQ(Nomes("cop*.*"), "COP0101.99 cop0102.00 cop0102.99 copB.txt copia");
}

TEST_F(DirTest, QuestionMarkIsOneCharacter)
{
    EXPECT_EQ(Nomes("cop????.99"), "COP0101.99 cop0102.99");
    EXPECT_EQ(Nomes("cop???.99"), "");
}

TEST_F(DirTest, NamesComeAsTheyStandOnDisk)
{
    EXPECT_EQ(Nomes("QX50A.BMP"), "QX50a.bmp");
    EXPECT_EQ(Nomes(u"ÇÃO.*"_qs), u"ção.txt"_qs.toStdString());
}

TEST_F(DirTest, BackslashesPartFolders)
{
    EXPECT_EQ(Nomes("cheque.bmp", "\\"), "cheque.bmp");
}

TEST_F(DirTest, BracketsAreNoWildcards)
{
    Cria("cop[1].txt");
    EXPECT_EQ(Nomes("cop[1].txt"), "cop[1].txt");
    EXPECT_EQ(Nomes("[c]heque.bmp"), "");
}

TEST_F(DirTest, HiddenNamesAreNamesToo)
{
    EXPECT_EQ(Nomes("*coposto"), ".coposto");
}

TEST_F(DirTest, NothingOfAMissingFolderOrWithoutAName)
{
    EXPECT_EQ(Nomes("nada/*.*"), "");
    EXPECT_EQ(Nomes(""), "");
    EXPECT_TRUE(FirstFile("").isEmpty());
}

TEST_F(DirTest, AWalkGoesOnWhileItsFilesAreRemoved)
{
    Dir dir(m_pasta.filePath("cop*.99"));
    int vezes = 0;
    for (QString nome = dir.Next(); !nome.isEmpty(); nome = dir.Next(), ++vezes) {
        EXPECT_TRUE(QFile::remove(m_pasta.filePath(nome)));
    }
    EXPECT_EQ(vezes, 2);
    EXPECT_EQ(Nomes("cop*.99"), "");
}

TEST_F(DirTest, FirstFileIsTheFirstName)
{
    EXPECT_EQ(FirstFile(m_pasta.filePath("*.bmp")), "cheque.bmp");
    EXPECT_TRUE(FirstFile(m_pasta.filePath("*.wav")).isEmpty());
}

class KillTest : public DirTest {
protected:
    KillTest() : m_pastaAntes(QDir::currentPath()) {}
    ~KillTest() override { QDir::setCurrent(m_pastaAntes); }
    void EsperaFalha(const QString &nome, int numero)
    {
        try {
            Kill(nome);
            FAIL() << "nothing was thrown";
        } catch (const RuntimeError &erro) {
            EXPECT_EQ(erro.number(), numero);
            EXPECT_TRUE(erro.text().contains(nome)) << erro.what();
        }
    }

private:
    QString m_pastaAntes;
};

TEST_F(KillTest, DeletesTheFileAndNoOther)
{
    Kill(m_pasta.filePath("cop0102.99"));
    EXPECT_EQ(Nomes("cop*.*"), "COP0101.99 cop0102.00 copB.txt copia");
}

TEST_F(KillTest, ABareNameIsSoughtInTheCurrentDirectory)
{
    const QTemporaryDir outra;
    ASSERT_TRUE(QFile::copy(m_pasta.filePath("copia"), outra.filePath("copia")));
    ASSERT_TRUE(QDir::setCurrent(outra.path()));
    Kill("copia");
    EXPECT_FALSE(QFile::exists(outra.filePath("copia")));
    EXPECT_TRUE(QFile::exists(m_pasta.filePath("copia")));
}

TEST_F(KillTest, AMissingFileIsNamed)
{
    EsperaFalha(m_pasta.filePath("nada.99"), ErrFileNotFound);
}

TEST_F(KillTest, AFolderIsNotDeleted)
{
    EsperaFalha(m_pasta.filePath("cop9999.99"), ErrFileAccess);
    EXPECT_TRUE(QFile::exists(m_pasta.filePath("cop9999.99")));
}

TEST_F(KillTest, PatternsAreNames)
{
    EsperaFalha(m_pasta.filePath("cop*.99"), ErrFileNotFound);
    EXPECT_EQ(Nomes("cop*.99"), "COP0101.99 cop0102.99");
}

} // namespace
