// A file that cannot take a report, the list's or the general one: what is told, what stays as it was, and
// that it can be tried again.
#include "ComEnvio.h"
#include "Disco.h"

#include <QGuiApplication>

using namespace teste;

namespace {

/// A button that writes a file, and what it says when it has.
struct CasoEnvio {
    std::string nome;
    const char *botao;
    bool lista;
};
void PrintTo(const CasoEnvio &c, std::ostream *os)
{
    *os << c.nome;
}

class ArquivoRecusado : public ComEnvio, public testing::WithParamInterface<CasoEnvio> {
protected:
    void AbreParaEnviar()
    {
        AbreRelato();
        if (GetParam().lista)
            Marca("Relato", "OpCmd01(0)");
    }
    void Salva(const QString &nome, const std::function<void()> &aoAceitar = {})
    {
        SalvaEm(GetParam().botao, nome, aoAceitar);
    }
    void EsperaFalha(int numero)
    {
        EsperaCaixa(QString("Ocorreu erro %1!").arg(numero), QString::fromStdString(kTitulo),
                    QMessageBox::Warning);
    }
    /// Nothing of the failure is left: the list stands, nobody waits, and others can write.
    void EsperaATelaUsavel()
    {
        EXPECT_TRUE(EstaAberta("Relato"));
        EXPECT_TRUE(Relato().isEnabled());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_TRUE(OutroEscreve());
        ClicaNaLinha(1);
        EXPECT_EQ(Rotulo(0).substr(0, 3), List1()->TextoDe(1).mid(18, 3).toStdString());
    }
    /// Writes it once more, which succeeds.
    void SalvaDeNovo(const QString &nome)
    {
        const std::size_t antes = m_caixas->Quantas();
        Salva(nome);
        EXPECT_EQ(m_caixas->Quantas(), antes + (GetParam().lista ? 0 : 1)) << Vistas();
    }
    static QByteArray Bytes(const QString &nome)
    {
        QFile arquivo(nome);
        return arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll() : QByteArray("no file");
    }
};

TEST_P(ArquivoRecusado, AFolderInItsPlaceIsToldByItsNumberAlone)
{
    AbreParaEnviar();
    // The dialogue takes no folder: it comes into being once the name is given.
    Salva(Destino(), [this] { QDir(m_casa.path()).mkdir("relatório.txt"); });
    EsperaFalha(75);
    EsperaATelaUsavel();
    ASSERT_TRUE(QDir(m_casa.path()).rmdir("relatório.txt"));
    SalvaDeNovo(Destino());
    EXPECT_TRUE(QFile::exists(Destino()));
}

TEST_P(ArquivoRecusado, AFolderThatGoesAwayIsToldByItsNumberAlone)
{
    ASSERT_TRUE(QDir(m_casa.path()).mkdir("pasta"));
    AbreParaEnviar();
    Salva(m_casa.filePath("pasta/relatório.txt"), [this] { QDir(m_casa.path()).rmdir("pasta"); });
    EsperaFalha(53);
    EsperaATelaUsavel();
}

// --- a full disk ---

class DiscoCheio : public ArquivoRecusado {
protected:
    void SetUp() override
    {
        if (!TemMontagensProprias())
            GTEST_SKIP() << "mounts are refused here";
        ASSERT_TRUE(QDir(m_casa.path()).mkdir("disco"));
        m_disco = std::make_unique<Disco>(m_casa.filePath("disco"), 1);
        GravaIguais(200); // several pages of the disk
    }
    [[nodiscard]] QString NoDisco() const { return m_casa.filePath("disco/relatório.txt"); }

    std::unique_ptr<Disco> m_disco;
};

TEST_P(DiscoCheio, IsToldAndLeavesNoFile)
{
    AbreParaEnviar();
    m_disco->Enche(1);
    Salva(NoDisco());
    EsperaFalha(61);
    EXPECT_FALSE(QFile::exists(NoDisco()));
    EsperaATelaUsavel();
    m_disco->Libera();
    SalvaDeNovo(NoDisco());
    EXPECT_GT(Bytes(NoDisco()).size(), 5 * 4096);
    EXPECT_EQ(Bytes(NoDisco()).count("Ana"), 200) << "whole";
}

TEST_P(DiscoCheio, LeavesAnOldFileAsItWas)
{
    const QByteArray antigo = QByteArray("antigo ").repeated(100);
    QFile arquivo(NoDisco());
    ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly) && arquivo.write(antigo) == antigo.size());
    arquivo.close();
    AbreParaEnviar();
    m_disco->Enche(1);
    Responde(QMessageBox::Yes);
    Salva(NoDisco());
    ASSERT_EQ(m_caixas->Quantas(), 2U) << Vistas();
    EXPECT_EQ(m_caixas->Ultima().texto, "Ocorreu erro 61!");
    EXPECT_EQ(Bytes(NoDisco()), antigo);
    EsperaATelaUsavel();
}

// --- the program's own files ---

TEST_P(ArquivoRecusado, AFileOfTheProgramsOwnIsRefusedByItsName)
{
    AbreParaEnviar();
    for (const char *nome : {"QX70.INI", "QX70.MDB"}) {
        SCOPED_TRACE(nome);
        const QByteArray antes = Bytes(m_escritorio.Arquivo(nome));
        const std::size_t caixas = m_caixas->Quantas();
        Responde(QMessageBox::Yes); // to the dialogue's own question
        Salva(m_escritorio.Arquivo(nome));
        ASSERT_EQ(m_caixas->Quantas(), caixas + 2) << Vistas();
        const apoio::Caixa caixa = m_caixas->Ultima();
        EXPECT_EQ(caixa.texto, QString(nome) + " é um arquivo do próprio programa. Escolha outro nome.");
        EXPECT_EQ(caixa.titulo.toStdString(), kTitulo);
        EXPECT_EQ(caixa.icone, QMessageBox::Warning);
        EXPECT_EQ(caixa.botoes, QMessageBox::Ok);
        EXPECT_EQ(Bytes(m_escritorio.Arquivo(nome)), antes);
    }
    EsperaATelaUsavel();
    SalvaDeNovo(Destino());
    EXPECT_TRUE(Bytes(Destino()).contains("Ana Lima"));
}

struct Atalho {
    const char *de, *para; ///< of the office folder, or none: the folder itself
    const char *nome;
};
TEST_P(ArquivoRecusado, AFileOfTheProgramsOwnIsKnownByAnotherWayToo)
{
    AbreParaEnviar();
    for (const Atalho &atalho :
         {Atalho{"atalho.txt", "QX70.MDB", "atalho.txt"}, Atalho{"pasta", "", "pasta/QX70.MDB"},
          Atalho{"ini.txt", "QX70.INI", "ini.txt"}}) {
        SCOPED_TRACE(atalho.nome);
        ASSERT_TRUE(QFile::link(m_escritorio.Arquivo(atalho.para), m_casa.filePath(atalho.de)));
        const QByteArray antes = Bytes(m_casa.filePath(atalho.nome));
        Responde(QMessageBox::Yes);
        Salva(m_casa.filePath(atalho.nome));
        EXPECT_TRUE(m_caixas->Ultima().texto.contains("é um arquivo do próprio programa")) << Vistas();
        EXPECT_EQ(Bytes(m_casa.filePath(atalho.nome)), antes);
    }
}

const auto kEnvios =
    testing::Values(CasoEnvio{"OfTheList", "SSCommand1", true}, CasoEnvio{"General", "criar", false});
INSTANTIATE_TEST_SUITE_P(Relatorios, ArquivoRecusado, kEnvios, kNomeDoCaso);
INSTANTIATE_TEST_SUITE_P(Relatorios, DiscoCheio, kEnvios, kNomeDoCaso);

} // namespace
