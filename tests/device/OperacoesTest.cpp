// Loading of the Device Library: where it is looked for, when, and what each failure says.
#include "device/Operacoes.h"

#include "ComGravadora.h"
#include <dlfcn.h>
#include <QCoreApplication>

using Causa = device::FalhaDaBiblioteca::Causa;

namespace {

class BibliotecaTest : public teste::ComGravadora {
protected:
    bool NaMemoria(const QTemporaryDir &pasta)
    {
        const QByteArray nome = QFile::encodeName(pasta.filePath(device::kArquivoDaBiblioteca));
        void *alca = dlopen(nome.constData(), RTLD_NOW | RTLD_NOLOAD);
        if (alca)
            dlclose(alca);
        return alca != nullptr;
    }
    device::Biblioteca m_biblioteca{m_pastas};
};

} // namespace

TEST_F(BibliotecaTest, IsNotLoadedBeforeItIsAskedFor)
{
    PoeBiblioteca(m_pastaApp);
    const device::Impressora impressora(m_pastas, m_mensagens, m_indicador, m_ocupado);
    EXPECT_FALSE(NaMemoria(m_pastaApp));
    ASSERT_NE(m_biblioteca.Carrega(), nullptr);
    EXPECT_TRUE(NaMemoria(m_pastaApp));
}

TEST_F(BibliotecaTest, IsGivenBackWithItsOwner)
{
    PoeBiblioteca(m_pastaApp);
    {
        device::Biblioteca outra(m_pastas);
        ASSERT_NE(outra.Carrega(), nullptr);
    }
    EXPECT_FALSE(NaMemoria(m_pastaApp));
}

TEST_F(BibliotecaTest, ApplicationFolderComesBeforeTheExecutables)
{
    PoeBiblioteca(m_pastaApp);
    PoeBiblioteca(m_pastaExe);
    ASSERT_NE(m_biblioteca.Carrega(), nullptr);
    EXPECT_TRUE(NaMemoria(m_pastaApp));
    EXPECT_FALSE(NaMemoria(m_pastaExe));
}

TEST_F(BibliotecaTest, IsTakenFromBesideTheExecutableWhenTheApplicationFolderHasNone)
{
    PoeBiblioteca(m_pastaExe);
    ASSERT_NE(m_biblioteca.Carrega(), nullptr);
    EXPECT_TRUE(NaMemoria(m_pastaExe));
}

TEST_F(BibliotecaTest, MissingFileIsNamedWithTheFoldersLookedIn)
{
    EXPECT_EQ(m_biblioteca.Carrega(), nullptr);
    ASSERT_TRUE(m_biblioteca.Falha());
    EXPECT_EQ(m_biblioteca.Falha()->causa, Causa::ArquivoAusente);
    EXPECT_TRUE(m_biblioteca.Falha()->texto.startsWith("O arquivo libqx7032.so não foi encontrado.\n"));
    EXPECT_TRUE(m_biblioteca.Falha()->texto.contains(m_pastaApp.path() + "\n" + m_pastaExe.path() + "\n"));
}

TEST_F(BibliotecaTest, FileThatIsNoLibraryIsNamed)
{
    PoeArquivo(m_pastaApp, "isto não é uma biblioteca");
    EXPECT_EQ(m_biblioteca.Carrega(), nullptr);
    ASSERT_TRUE(m_biblioteca.Falha());
    EXPECT_EQ(m_biblioteca.Falha()->causa, Causa::ArquivoInvalido);
    EXPECT_TRUE(m_biblioteca.Falha()->texto.startsWith("O arquivo " + m_pastaApp.filePath("libqx7032.so") +
                                                       " não pôde ser carregado:\n"));
}

TEST_F(BibliotecaTest, BadFileInTheApplicationFolderIsNotPassedOver)
{
    PoeArquivo(m_pastaApp, "");
    PoeBiblioteca(m_pastaExe);
    EXPECT_EQ(m_biblioteca.Carrega(), nullptr);
    EXPECT_EQ(m_biblioteca.Falha()->causa, Causa::ArquivoInvalido);
}

TEST_F(BibliotecaTest, MissingOperationIsNamedAndTheLibraryGivenBack)
{
    PoeBiblioteca(m_pastaApp, GRAVADORA_INCOMPLETA);
    EXPECT_EQ(m_biblioteca.Carrega(), nullptr);
    ASSERT_TRUE(m_biblioteca.Falha());
    EXPECT_EQ(m_biblioteca.Falha()->causa, Causa::OperacaoAusente);
    EXPECT_TRUE(m_biblioteca.Falha()->texto.contains("operação:\nAlteraMoeda\n"));
    EXPECT_TRUE(m_biblioteca.Falha()->texto.contains(m_pastaApp.filePath("libqx7032.so")));
    EXPECT_FALSE(NaMemoria(m_pastaApp));
}

TEST_F(BibliotecaTest, FileThatComesLaterIsFound)
{
    ASSERT_EQ(m_biblioteca.Carrega(), nullptr);
    PoeBiblioteca(m_pastaApp);
    EXPECT_NE(m_biblioteca.Carrega(), nullptr);
    EXPECT_FALSE(m_biblioteca.Falha());
}

TEST_F(BibliotecaTest, LoadedLibraryStaysWhenItsFileGoes)
{
    PoeBiblioteca(m_pastaApp);
    const device::Operacoes *operacoes = m_biblioteca.Carrega();
    ASSERT_TRUE(QFile::remove(m_pastaApp.filePath("libqx7032.so")));
    EXPECT_EQ(m_biblioteca.Carrega(), operacoes);
    EXPECT_EQ(operacoes->FechaPorta(), 1);
}

TEST(PastasDaBiblioteca, AreTheApplicationFolderThenTheExecutables)
{
    const QString exe = QCoreApplication::applicationDirPath();
    EXPECT_EQ(device::PastasDaBiblioteca("/escritorio"), QStringList({"/escritorio", exe}));
    EXPECT_EQ(device::PastasDaBiblioteca(exe), QStringList({exe}));
}
