// The dialogue for the name of a text file, worked as the operator does.
#include "apoio/Caixas.h"
#include "apoio/Dialogos.h"
#include "plataforma/ambiente/SaveDialog.h"

#include <gtest/gtest.h>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>

namespace {

class ShowSaveTest : public testing::Test {
protected:
    ShowSaveTest()
    {
        // The toolkit keeps notes on its dialogues.
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_casa.path());
        QDir::setCurrent(m_pasta.path());
    }
    ~ShowSaveTest() override { QDir::setCurrent("/"); }

    [[nodiscard]] QString Arquivo(const QString &nome) const { return m_pasta.filePath(nome); }
    void Cria(const QString &nome) const
    {
        QFile arquivo(Arquivo(nome));
        ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
    }
    static void Digita(QFileDialog &dialogo, const QString &nome)
    {
        auto *campo = dialogo.findChild<QLineEdit *>("fileNameEdit");
        ASSERT_NE(campo, nullptr);
        campo->setText(nome);
        apoio::AperteNoDialogo(dialogo, QDialogButtonBox::Save);
    }
    QString Pede(const std::function<void(QFileDialog &)> &acao)
    {
        apoio::Dialogos<QFileDialog> dialogo(acao);
        const QString nome = plataforma::ShowSave(m_pasta.path());
        EXPECT_EQ(dialogo.Vistos(), 1);
        return nome;
    }
    QString PedeComNome(const QString &nome)
    {
        return Pede([&nome](QFileDialog &dialogo) { Digita(dialogo, nome); });
    }

    QTemporaryDir m_casa, m_pasta;
    apoio::Caixas m_caixas;
};

TEST_F(ShowSaveTest, OffersTextFilesFirstAndThenAll)
{
    QStringList filtros;
    Pede([&](QFileDialog &dialogo) {
        const auto *combo = dialogo.findChild<QComboBox *>("fileTypeCombo");
        ASSERT_NE(combo, nullptr);
        EXPECT_EQ(combo->currentIndex(), 0);
        for (int i = 0; i < combo->count(); ++i)
            filtros << combo->itemText(i);
    });
    EXPECT_EQ(filtros, (QStringList{"Arquivo Texto (*.txt)", "Todos os Arquivos (*.*)"}));
}

struct CasoNome {
    std::string caso;
    QString digitado, nome;
};
void PrintTo(const CasoNome &c, std::ostream *os)
{
    *os << c.digitado.toStdString();
}
class NomeTest : public ShowSaveTest, public testing::WithParamInterface<CasoNome> {};
TEST_P(NomeTest, IsWholeAndHasAnExtension)
{
    EXPECT_EQ(PedeComNome(GetParam().digitado), Arquivo(GetParam().nome));
    EXPECT_EQ(m_caixas.Quantas(), 0U);
    EXPECT_FALSE(QFile::exists(Arquivo(GetParam().nome))) << "asking makes no file";
}
INSTANTIATE_TEST_SUITE_P(ShowSave, NomeTest,
                         testing::Values(CasoNome{"Plain", "relacao", "relacao.txt"},
                                         CasoNome{"Text", "relacao.txt", "relacao.txt"},
                                         CasoNome{"AnotherExtension", "relacao.doc", "relacao.doc"},
                                         CasoNome{"AccentsAndBlanks", "relação de maio",
                                                  "relação de maio.txt"}),
                         [](const auto &caso) { return caso.param.caso; });

TEST_F(ShowSaveTest, CancellingGivesNoName)
{
    EXPECT_EQ(Pede([](QFileDialog &dialogo) { apoio::AperteNoDialogo(dialogo, QDialogButtonBox::Cancel); }),
              "");
}

TEST_F(ShowSaveTest, AFileThatExistsIsAskedForAndTaken)
{
    Cria("velho.txt");
    m_caixas.Responde(QMessageBox::Yes);
    EXPECT_EQ(PedeComNome("velho"), Arquivo("velho.txt"));
    ASSERT_EQ(m_caixas.Quantas(), 1U);
    EXPECT_TRUE(m_caixas.Ultima().texto.contains("velho.txt"));
}

TEST_F(ShowSaveTest, AFileThatExistsMayBeSpared)
{
    Cria("velho.txt");
    m_caixas.Responde(QMessageBox::No);
    bool aberto = false;
    const QString nome = Pede([&](QFileDialog &dialogo) {
        Digita(dialogo, "velho");
        aberto = dialogo.isVisible();
    });
    EXPECT_EQ(nome, "");
    EXPECT_TRUE(aberto) << "another name can be given";
    EXPECT_EQ(m_caixas.Quantas(), 1U);
}

TEST_F(ShowSaveTest, OpensInTheCurrentFolder)
{
    ASSERT_TRUE(QDir(m_pasta.path()).mkdir("atual"));
    QDir::setCurrent(Arquivo("atual"));
    EXPECT_EQ(PedeComNome("x"), Arquivo("atual/x.txt"));
}

TEST_F(ShowSaveTest, TheCurrentFolderIsTheProgramsAfterwards)
{
    ASSERT_TRUE(QDir(m_pasta.path()).mkdir("outra"));
    for (const bool aceita : {true, false}) {
        Pede([&](QFileDialog &dialogo) {
            QDir::setCurrent(Arquivo("outra")); // as a dialogue of the desktop may do
            if (aceita)
                Digita(dialogo, Arquivo("outra/x"));
        });
        EXPECT_EQ(QDir::currentPath(), m_pasta.path());
    }
}

} // namespace
