// A disk that is full: the row or the setting that does not fit is not half there, what was there stays, and
// after space is made the next one is written.
#include "ComMain.h"
#include "Disco.h"

#include <QDir>
#include <QFile>
#include <QPushButton>

using namespace apoio;

namespace {

constexpr int kMegabytes = 32;
constexpr int kPaginas = 12; // of free space, from none to more than a row takes

class DiscoCheio : public teste::ComMain, public testing::WithParamInterface<int> {
protected:
    void SetUp() override
    {
        if (!teste::TemMontagensProprias())
            GTEST_SKIP() << "mounts are refused here";
        m_disco = std::make_unique<teste::Disco>(m_escritorio.Pasta(), kMegabytes);
        ComMain::SetUp();
        qputenv("QX70_GRAVADORA_SAIDA", QFile::encodeName(m_fora.filePath("chamadas.txt")));
        m_escritorio.Sql("DELETE FROM Bancos; INSERT INTO Bancos (Codigo, Nome) VALUES ('001', 'BANCO UM');"
                         "DELETE FROM Log; INSERT INTO Log (\"Index\", Codigo, Data, NRCH) VALUES "
                         "('0000000007', '00007', '01/03/99', '7')");
        m_escritorio.GravaIni(kIni);
        Inicia();
        TerminaAbertura();
    }
    void TearDown() override
    {
        Termina();
        QDir::setCurrent("/");
        m_disco.reset();
    }
    void Imprime(const QString &numero)
    {
        Ativa();
        ClicaEm(Tela(), "TxtCpo(0)");
        const QStringList textos{"001", "10,00", "José", "Olinda", "05/03/99"};
        for (int i = 0; i < textos.size(); ++i)
            Controle<QLineEdit>(Tela(), QString("Text1(%1)").arg(i))->setText(textos[i]);
        Controle<QLineEdit>(Tela(), "Text1(6)")->setText(numero);
        for (int i = 0; i < 3; ++i) // as much as a row can hold
            Controle<QLineEdit>(Tela(), QString("Text2(%1)").arg(i))->setText(QString(80, 'c'));
        ClicaEm(Tela(), "Opcoes(0)");
    }
    [[nodiscard]] QStringList Cheques() const
    {
        QStringList numeros;
        for (const QStringList &linha : m_escritorio.Linhas("SELECT \"Index\", NRCH FROM Log ORDER BY rowid"))
            numeros << linha.join('/');
        return numeros;
    }
    /// The only box since the question for the document.
    QString Aviso(std::size_t antes)
    {
        EXPECT_EQ(m_caixas.Quantas(), antes + 2) << "not one message";
        return m_caixas.Ultima().texto;
    }

    static const QString kIni;
    QTemporaryDir m_fora;
    std::unique_ptr<teste::Disco> m_disco;
};

const QString DiscoCheio::kIni =
    QStringLiteral("; do escritório\n[Sistema]\nInRel=1\nport=COM2\n[Outra]\nx=y\n"
                   "[FrenteInfo]\nCidade=Olinda\n") +
    QStringLiteral("; uma nota comprida\n").repeated(600); // several pages

TEST_F(DiscoCheio, RowThatDoesNotFitIsToldAndTheNextChequeIsWritten)
{
    m_disco->Enche();
    const std::size_t antes = m_caixas.Quantas();
    Imprime("8");
    EXPECT_EQ(
        Aviso(antes),
        QString("Ocorreu erro 3051!\nO disco está cheio: não foi possível gravar no banco de dados \"%1\". "
                "Libere espaço e tente de novo.")
            .arg(m_escritorio.Arquivo("QX70.MDB")));
    EXPECT_EQ(Texto(Tela(), "Text1(6)"), "8");
    EXPECT_EQ(Foco(Tela()), "Text1(0)");
    EXPECT_EQ(Cheques(), QStringList{"0000000007/7"});
    m_disco->Libera();
    Imprime("9");
    EXPECT_EQ(Cheques(), (QStringList{"0000000007/7", "0000000008/9"}));
    EXPECT_EQ(m_escritorio.Linhas("pragma integrity_check")[0][0], "ok");
}

// Somewhere in these steps the journal fits and the row does not.
TEST_F(DiscoCheio, ARowIsToldOrWrittenWhateverLittleSpaceIsLeft)
{
    int recusadas = 0;
    for (int livres = 0; livres <= kPaginas; ++livres) {
        QStringList esperados = Cheques();
        m_disco->Enche(livres);
        const std::size_t antes = m_caixas.Quantas();
        const QString numero = QString::number(100 + livres);
        Imprime(numero);
        m_disco->Libera();
        ASSERT_GE(m_caixas.Quantas(), antes + 1);
        const bool falhou = m_caixas.Quantas() > antes + 1;
        recusadas += falhou ? 1 : 0;
        if (falhou) {
            EXPECT_TRUE(Aviso(antes).startsWith("Ocorreu erro 3051!\nO disco está cheio: "))
                << m_caixas.Ultima().texto.toStdString();
        } else {
            esperados << QString("%1/%2").arg(8 + livres - recusadas, 10, 10, QChar('0')).arg(numero);
        }
        ASSERT_EQ(Cheques(), esperados) << livres << " pages left";
        ASSERT_EQ(m_escritorio.Linhas("pragma integrity_check")[0][0], "ok") << livres << " pages left";
    }
    EXPECT_GE(recusadas, 1);
    EXPECT_LE(recusadas, kPaginas);
}

TEST_F(DiscoCheio, PurgeThatFindsNoSpaceIsToldAndLosesNoRow)
{
    Termina();
    constexpr int kVelhas = 1200;
    m_escritorio.Sql("WITH RECURSIVE n(i) AS (SELECT 8 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                     QString::number(kVelhas + 7) +
                     ") INSERT INTO Log (\"Index\", Codigo, Data, NRCH, Favor) "
                     "SELECT printf('%010d', i), '1', '01/01/98', i, printf('%047d', i) FROM n");
    const QString conta = "SELECT count(*), sum(NRCH = '7') FROM Log";
    m_disco->Enche(1);
    const std::size_t antes = m_caixas.Quantas();
    Inicia();
    ASSERT_EQ(m_caixas.Quantas(), antes + 3) << "the question twice, and one failure";
    EXPECT_TRUE(m_caixas.Ultima().texto.startsWith("Ocorreu erro 3051!\nO disco está cheio: "))
        << m_caixas.Ultima().texto.toStdString();
    m_disco->Libera();
    EXPECT_EQ(m_escritorio.Linhas(conta), (QList<QStringList>{{QString::number(kVelhas + 1), "1"}}));
    EXPECT_EQ(m_escritorio.Linhas("pragma integrity_check")[0][0], "ok");
    TerminaAbertura();
    Imprime("9");
    EXPECT_EQ(m_escritorio.Linhas("SELECT count(*) FROM Log WHERE NRCH = '9' AND Data = '05/03/99'")[0][0],
              "1");
    Termina();
    Inicia();
    EXPECT_EQ(m_escritorio.Linhas(conta), (QList<QStringList>{{"2", "1"}})) << "the next start deletes them";
}

// Kept: a setting that cannot be written is passed over in silence.
TEST_F(DiscoCheio, SmallSettingsFileStaysWholeToo)
{
    m_escritorio.GravaIni("[FrenteInfo]\nCidade=Olinda\n");
    ClicaEm(Tela(), "Text1(3)");
    Digita(Tela(), "Recife");
    m_disco->Enche();
    Tecla(Tela(), Qt::Key_F4);
    EXPECT_EQ(m_escritorio.LeIni(), "[FrenteInfo]\r\nCidade=Olinda\r\n");
    m_disco->Libera();
    Tecla(Tela(), Qt::Key_F4);
    EXPECT_EQ(m_escritorio.LeIni(), "[FrenteInfo]\r\nCidade=Recife\r\n");
}

TEST_F(DiscoCheio, SettingThatDoesNotFitLeavesTheOldFileWholeInSilence)
{
    const QString inteiro = m_escritorio.LeIni();
    ClicaEm(Tela(), "Text1(3)");
    Tecla(Tela(), Qt::Key_F8);
    Digita(Tela(), "Recife");
    for (const int livres : {0, 1, 2}) {
        m_disco->Enche(livres);
        const std::size_t antes = m_caixas.Quantas();
        Tecla(Tela(), Qt::Key_F4);
        EXPECT_EQ(m_caixas.Quantas(), antes);
        EXPECT_EQ(m_escritorio.LeIni(), inteiro) << livres << " pages left";
        m_disco->Libera();
    }
    Tecla(Tela(), Qt::Key_F4);
    EXPECT_EQ(m_escritorio.LeIni(), QString(inteiro).replace("Cidade=Olinda", "Cidade=Recife"));
    EXPECT_EQ(QDir(m_escritorio.Pasta()).entryList({"QX70.INI*"}, QDir::Files | QDir::Hidden).size(), 1)
        << "nothing half written lies about";
}

} // namespace
