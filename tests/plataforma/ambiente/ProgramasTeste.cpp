// Starting of other programs: where they are sought, and the failures.
#include "Auxiliar.h"
#include "plataforma/ambiente/Programas.h"
#include "plataforma/basico/RuntimeError.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace plataforma;

namespace {

/// Two folders: the program's, and one that alone is the PATH.
class IniciaProgramaTeste : public testing::Test {
protected:
    void SetUp() override { qputenv("PATH", QFile::encodeName(m_path.path())); }
    void TearDown() override { qputenv("PATH", m_antes); }

    /// A script that leaves its mark and its current folder in a file.
    void Cria(const QTemporaryDir &pasta, const QString &nome, const QByteArray &marca,
              bool executavel = true)
    {
        QFile arquivo(pasta.filePath(nome));
        ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
        const QByteArray pronto = QFile::encodeName(Saida());
        arquivo.write("#!/bin/sh\necho \"" + marca + " $PWD\" > '" + pronto + ".novo'\n/bin/mv '" + pronto +
                      ".novo' '" + pronto + "'\n");
        arquivo.close();
        const QFile::Permissions direitos = QFile::ReadOwner | QFile::WriteOwner;
        ASSERT_TRUE(arquivo.setPermissions(executavel ? direitos | QFile::ExeOwner : direitos));
    }
    [[nodiscard]] QString Saida() const { return m_saida.filePath("pronto"); }
    QString EsperaSaida()
    {
        EXPECT_TRUE(RodaAte([&] { return QFile::exists(Saida()); }));
        QFile arquivo(Saida());
        return arquivo.open(QIODevice::ReadOnly) ? QString::fromUtf8(arquivo.readAll()).trimmed() : QString();
    }
    int Falha(const QString &nome)
    {
        try {
            IniciaPrograma(nome, m_pasta.path());
        } catch (const RuntimeError &falha) {
            EXPECT_TRUE(falha.text().contains(nome)) << falha.text().toStdString();
            return falha.number();
        }
        return 0;
    }

    QTemporaryDir m_pasta;
    QTemporaryDir m_path;
    QTemporaryDir m_saida;

private:
    QByteArray m_antes = qgetenv("PATH");
};

} // namespace

TEST_F(IniciaProgramaTeste, StartsTheOneInTheFolderBeforeTheOneInThePath)
{
    Cria(m_pasta, "PROG.EXE", "pasta");
    Cria(m_path, "PROG.EXE", "path");
    IniciaPrograma("PROG.EXE", m_pasta.path());
    EXPECT_EQ(EsperaSaida(), "pasta " + m_pasta.path());
}

TEST_F(IniciaProgramaTeste, StartsTheOneInThePathInTheProgramsFolder)
{
    Cria(m_path, "PROG.EXE", "path");
    IniciaPrograma("PROG.EXE", m_pasta.path());
    EXPECT_EQ(EsperaSaida(), "path " + m_pasta.path());
}

TEST_F(IniciaProgramaTeste, AMissingProgramIsFileNotFound)
{
    EXPECT_EQ(Falha("PROG.EXE"), ErrFileNotFound);
}

TEST_F(IniciaProgramaTeste, TheNameCountsLetterByLetter)
{
    Cria(m_pasta, "prog.exe", "pasta");
    EXPECT_EQ(Falha("PROG.EXE"), ErrFileNotFound);
}

TEST_F(IniciaProgramaTeste, AFileThatMayNotBeRunIsNoProgram)
{
    Cria(m_pasta, "PROG.EXE", "pasta", false);
    EXPECT_EQ(Falha("PROG.EXE"), ErrFileNotFound);
}

TEST_F(IniciaProgramaTeste, AFolderOfThatNameIsNoProgram)
{
    ASSERT_TRUE(QDir(m_pasta.path()).mkdir("PROG.EXE"));
    EXPECT_EQ(Falha("PROG.EXE"), ErrFileNotFound);
}

TEST_F(IniciaProgramaTeste, ANameIsNoPath)
{
    Cria(m_pasta, "PROG.EXE", "pasta");
    EXPECT_EQ(Falha("./PROG.EXE"), ErrFileNotFound);
    EXPECT_EQ(Falha(""), ErrFileNotFound);
}

TEST_F(IniciaProgramaTeste, AProgramOfAnotherMachineIsToldApart)
{
    QFile arquivo(m_pasta.filePath("PROG.EXE"));
    ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
    arquivo.write(QByteArray("\x7f"
                             "ELF rubbish\0",
                             13));
    arquivo.close();
    ASSERT_TRUE(arquivo.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_EQ(Falha("PROG.EXE"), ErrInvalidCall);
}
