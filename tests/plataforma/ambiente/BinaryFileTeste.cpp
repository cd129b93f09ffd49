// Files opened as binary: bytes, tails, and what is left behind when they cannot be written.
#include "apoio/Caixas.h"
#include "Disco.h"
#include "plataforma/ambiente/BinaryFile.h"
#include "plataforma/basico/RuntimeError.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <sys/stat.h>
#include <unistd.h>

using plataforma::BinaryFile;

namespace {

class BinaryFileTest : public testing::Test {
protected:
    [[nodiscard]] QString Arquivo(const QString &nome = "relatorio.txt") const
    {
        return m_pasta.filePath(nome);
    }
    void Grava(const QByteArray &bytes) const
    {
        QFile arquivo(Arquivo());
        ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly) && arquivo.write(bytes) == bytes.size());
    }
    [[nodiscard]] QByteArray Le() const
    {
        QFile arquivo(Arquivo());
        EXPECT_TRUE(arquivo.open(QIODevice::ReadOnly));
        return arquivo.readAll();
    }
    static int Escreve(const QString &caminho, const QString &texto, int vezes = 1)
    {
        try {
            BinaryFile arquivo(caminho);
            for (int i = 0; i < vezes; ++i)
                arquivo.Put(texto);
            arquivo.Close();
        } catch (const plataforma::RuntimeError &falha) {
            EXPECT_TRUE(falha.text().contains(caminho)) << falha.text().toStdString();
            return falha.number();
        }
        return 0;
    }

    QTemporaryDir m_pasta;
};

TEST_F(BinaryFileTest, TextsStandBehindEachOtherInWindows1252)
{
    BinaryFile arquivo(Arquivo());
    arquivo.Put("Relatório\r\n");
    arquivo.Put("5 \u20ac \u2713\r\n");
    arquivo.Close();
    EXPECT_EQ(Le(), QByteArray("Relat\xF3rio\r\n5 \x80 ?\r\n"));
}

TEST_F(BinaryFileTest, ALongerOldFileKeepsItsTail)
{
    Grava("0123456789");
    EXPECT_EQ(Escreve(Arquivo(), "abc"), 0);
    EXPECT_EQ(Le(), "abc3456789");
}

TEST_F(BinaryFileTest, AShorterOldFileGrows)
{
    Grava("01");
    EXPECT_EQ(Escreve(Arquivo(), "abc"), 0);
    EXPECT_EQ(Le(), "abc");
}

TEST_F(BinaryFileTest, AnEmptyTextMakesAnEmptyFile)
{
    EXPECT_EQ(Escreve(Arquivo(), ""), 0);
    EXPECT_EQ(Le(), "");
}

TEST_F(BinaryFileTest, WhatIsNotClosedLeavesNoNewFile)
{
    {
        BinaryFile arquivo(Arquivo());
        arquivo.Put("metade");
    }
    EXPECT_FALSE(QFile::exists(Arquivo()));
}

TEST_F(BinaryFileTest, WhatIsNotClosedLeavesAnOldFileAsItWas)
{
    Grava("antigo");
    {
        BinaryFile arquivo(Arquivo());
        arquivo.Put("metade de um texto maior");
    }
    EXPECT_EQ(Le(), "antigo");
}

TEST_F(BinaryFileTest, AFullDiskIs61AndLeavesNoNewFile)
{
    if (!teste::TemMontagensProprias())
        GTEST_SKIP() << "no mounts of its own here";
    teste::Disco disco(m_pasta.path(), 1);
    disco.Enche(2);
    EXPECT_EQ(Escreve(Arquivo(), QString(3 * 4096, 'x')), 61);
    EXPECT_FALSE(QFile::exists(Arquivo()));
    disco.Libera();
    EXPECT_EQ(Escreve(Arquivo(), QString(3 * 4096, 'x')), 0);
    EXPECT_EQ(Le().size(), 3 * 4096);
}

TEST_F(BinaryFileTest, AFullDiskIs61AndLeavesAnOldFileAsItWas)
{
    if (!teste::TemMontagensProprias())
        GTEST_SKIP() << "no mounts of its own here";
    teste::Disco disco(m_pasta.path(), 1);
    Grava("antigo");
    disco.Enche(2);
    EXPECT_EQ(Escreve(Arquivo(), QString(5 * 4096, 'x')), 61);
    EXPECT_EQ(Le(), "antigo");
}

// More text than a new file is given at once.
constexpr int kPedacos = 1500; // of 1000 characters

TEST_F(BinaryFileTest, MuchTextInManyPiecesIsWhole)
{
    for (const bool novo : {true, false}) {
        if (!novo)
            Grava(QByteArray(kPedacos * 1000 + 5, 'v'));
        BinaryFile arquivo(Arquivo());
        QByteArray tudo;
        for (int i = 0; i < kPedacos; ++i) {
            arquivo.Put(QString("%1").arg(i, 1000));
            tudo += QByteArray::number(i).rightJustified(1000);
        }
        arquivo.Close();
        EXPECT_EQ(Le() == tudo + QByteArray(novo ? 0 : 5, 'v'), true) << (novo ? "new" : "old");
    }
}

TEST_F(BinaryFileTest, MuchTextThatIsNotClosedLeavesWhatWasThere)
{
    const auto escreve = [this] {
        BinaryFile arquivo(Arquivo());
        for (int i = 0; i < kPedacos; ++i)
            arquivo.Put(QString(1000, 'x'));
    };
    escreve();
    EXPECT_FALSE(QFile::exists(Arquivo()));
    Grava("antigo");
    escreve();
    EXPECT_EQ(Le(), "antigo");
}

TEST_F(BinaryFileTest, AFullDiskInTheMiddleOfMuchTextIs61AndLeavesWhatWasThere)
{
    if (!teste::TemMontagensProprias())
        GTEST_SKIP() << "no mounts of its own here";
    teste::Disco disco(m_pasta.path(), 1);
    EXPECT_EQ(Escreve(Arquivo(), QString(1000, 'x'), kPedacos), 61);
    EXPECT_FALSE(QFile::exists(Arquivo()));
    Grava("antigo");
    EXPECT_EQ(Escreve(Arquivo(), QString(1000, 'x'), kPedacos), 61);
    EXPECT_EQ(Le(), "antigo");
    EXPECT_EQ(Escreve(Arquivo(), QString(1000, 'x'), 500), 0) << "all of the disk is free again";
}

TEST_F(BinaryFileTest, AFolderWithoutRightsIs75)
{
    ASSERT_TRUE(QDir(m_pasta.path()).mkdir("fechada"));
    const teste::ComDireitos direitos(m_pasta.path(), Arquivo("fechada"), 0500);
    EXPECT_EQ(Escreve(Arquivo("fechada/novo.txt"), "x"), 75);
    EXPECT_FALSE(QFile::exists(Arquivo("fechada/novo.txt")));
}

TEST_F(BinaryFileTest, AFileWithoutRightsIs75AndStaysAsItWas)
{
    Grava("antigo");
    const teste::ComDireitos direitos(m_pasta.path(), Arquivo(), 0400);
    EXPECT_EQ(Escreve(Arquivo(), "novo"), 75);
    EXPECT_EQ(Le(), "antigo");
}

TEST_F(BinaryFileTest, AFolderThatIsNotThereIs53)
{
    EXPECT_EQ(Escreve(Arquivo("longe/novo.txt"), "x"), 53);
}

TEST_F(BinaryFileTest, AFolderInItsPlaceIs75)
{
    ASSERT_TRUE(QDir(m_pasta.path()).mkdir("pasta"));
    EXPECT_EQ(Escreve(Arquivo("pasta"), "x"), 75);
    EXPECT_TRUE(QFileInfo(Arquivo("pasta")).isDir());
}

TEST_F(BinaryFileTest, APipeInItsPlaceIs75AndIsNotWaitedFor)
{
    const QByteArray cano = QFile::encodeName(Arquivo("cano"));
    ASSERT_EQ(mkfifo(cano.constData(), 0600), 0);
    EXPECT_EQ(Escreve(Arquivo("cano"), "x"), 75);
    const int leitor = open(cano.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); // now the other end is open
    ASSERT_GE(leitor, 0);
    EXPECT_EQ(Escreve(Arquivo("cano"), "x"), 75);
    close(leitor);
    EXPECT_TRUE(QFile::exists(Arquivo("cano")));
}

} // namespace
