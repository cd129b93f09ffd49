// The window on a simulator inside the test: slot, faults, lists.
#include <gmock/gmock.h>

#include <memory>
#include <QTemporaryDir>
#include <QtTest/QTest>

#include "Hospede.h"
#include "Janela.h"
#include "Simulador.h"

using apoio::Hospede;
using apoio::kPaciencia;
using namespace simulador;

namespace {

class JanelaTest : public testing::Test {
protected:
    JanelaTest()
    {
        m_opcoes.saida = m_pasta.filePath("saida");
        m_opcoes.memoria = m_pasta.filePath("memoria.json");
        m_opcoes.janela = true;
        m_opcoes.figuras = false;
        m_opcoes.esperaDocumentoMs = 150;
    }
    void Abre()
    {
        m_simulador = std::make_unique<Simulador>(m_opcoes);
        m_janela = std::make_unique<Janela>(*m_simulador);
        m_janela->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_janela.get())); // keys reach it
        ASSERT_EQ(m_simulador->Inicia(), QString());
        m_hospede = std::make_unique<Hospede>(m_simulador->NomeDaPorta());
    }
    template <typename T> T *Controle(const char *nome) { return m_janela->findChild<T *>(nome); }
    void Envia(char tipo, std::vector<apoio::Argumento> argumentos)
    {
        m_hospede->Envia(qx7032::CodificaQuadro(apoio::Quadro(tipo, std::move(argumentos), m_sequencia++)));
    }
    void EnviaCheque() { Envia('C', {"001", "1,00", "Maria", "C", "05/03/26", ""}); }
    /// Runs the simulator until it has answered with this result.
    bool Responde(int resultado)
    {
        std::string esperado = "\x06" + qx7032::CodificaResultado(static_cast<std::uint8_t>(m_sequencia - 1),
                                                                  static_cast<std::int16_t>(resultado));
        return QTest::qWaitFor(
            [&] {
                m_recebido += m_hospede->Le(100, 0);
                return m_recebido == esperado;
            },
            kPaciencia);
    }
    bool Espera(const QString &fenda)
    {
        return QTest::qWaitFor([&] { return Controle<QLabel>("Fenda")->text() == fenda; }, kPaciencia);
    }
    void IncluiBanco()
    {
        Envia('B', {"001", apoio::kPosicoes});
        ASSERT_TRUE(Responde(1));
        m_recebido.clear();
    }

    QTemporaryDir m_pasta;
    Opcoes m_opcoes;
    std::unique_ptr<Simulador> m_simulador;
    std::unique_ptr<Janela> m_janela;
    std::unique_ptr<Hospede> m_hospede;
    std::string m_recebido;
    int m_sequencia = 0;
};

TEST_F(JanelaTest, AnEmptySlotRefusesTheChequeAfterItsWait)
{
    Abre();
    IncluiBanco();
    EXPECT_EQ(Controle<QLabel>("Fenda")->text(), "Fenda vazia");
    EnviaCheque();
    EXPECT_TRUE(Espera("Insira o documento!"));
    EXPECT_TRUE(Responde(20));
    EXPECT_TRUE(Espera("Fenda vazia"));
    EXPECT_EQ(Controle<QListWidget>("Documentos")->count(), 0);
}

TEST_F(JanelaTest, ADocumentInsertedBeforehandIsUsedOnce)
{
    Abre();
    IncluiBanco();
    QTest::keyClick(m_janela.get(), Qt::Key_F2);
    EXPECT_EQ(Controle<QLabel>("Fenda")->text(), "Documento na fenda");
    EXPECT_FALSE(Controle<QPushButton>("Insere")->isEnabled());
    EnviaCheque();
    EXPECT_TRUE(Responde(1));
    EXPECT_TRUE(Espera("Fenda vazia"));
    ASSERT_EQ(Controle<QListWidget>("Documentos")->count(), 1);
    EXPECT_EQ(Controle<QListWidget>("Documentos")->item(0)->text(), "000001-cheque   #1,00#  Maria");
}

TEST_F(JanelaTest, ADocumentInsertedWhileTheChequeWaitsPrintsIt)
{
    m_opcoes.esperaDocumentoMs = kPaciencia;
    Abre();
    IncluiBanco();
    EnviaCheque();
    ASSERT_TRUE(Espera("Insira o documento!"));
    QTest::mouseClick(Controle<QPushButton>("Insere"), Qt::LeftButton);
    EXPECT_TRUE(Responde(1));
}

TEST_F(JanelaTest, AutomaticInsertionNeedsNoOperator)
{
    m_opcoes.esperaDocumentoMs = kPaciencia;
    Abre();
    IncluiBanco();
    EnviaCheque();
    ASSERT_TRUE(Espera("Insira o documento!"));
    QTest::keyClick(Controle<QCheckBox>("Automatica"), Qt::Key_Space);
    EXPECT_TRUE(Responde(1));
    m_recebido.clear();
    EnviaCheque();
    EXPECT_TRUE(Responde(1));
    EXPECT_EQ(Controle<QLabel>("Fenda")->text(), QString::fromUtf8("Sempre há documento"));
}

TEST_F(JanelaTest, AHeldSheetTakesOneDocument)
{
    Abre();
    QTest::keyClick(m_janela.get(), Qt::Key_F2);
    Envia('T', {1});
    EXPECT_TRUE(Responde(1));
    EXPECT_TRUE(Espera("Fenda vazia"));
    m_recebido.clear();
    Envia('F', {"x\n", 3, 0, 0, 0, 0});
    EXPECT_TRUE(Responde(1)) << "the held document serves";
}

TEST_F(JanelaTest, TheChosenFaultIsInForce)
{
    m_opcoes.automatico = true;
    Abre();
    IncluiBanco();
    auto *falha = Controle<QComboBox>("Falha");
    falha->setFocus();
    QTest::keyClick(falha, Qt::Key_Down);
    QTest::keyClick(falha, Qt::Key_Down);
    EXPECT_EQ(m_simulador->Aparelho().FalhaAtual(), (Falha{TipoDeFalha::FimDePapel, 0}));
    EnviaCheque();
    EXPECT_TRUE(Responde(21));
}

TEST_F(JanelaTest, TheMemoryIsListed)
{
    m_opcoes.automatico = true;
    Abre();
    IncluiBanco();
    Envia('I', {"23", "Jo\xC6o"});
    EXPECT_TRUE(Responde(1));
    m_recebido.clear();
    EnviaCheque();
    EXPECT_TRUE(Responde(1));
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return Controle<QTableWidget>("Relatorio")->rowCount() == 1; }, kPaciencia));
    EXPECT_EQ(Controle<QTableWidget>("Bancos")->item(0, 2)->text(), apoio::kPosicoes);
    EXPECT_EQ(Controle<QTableWidget>("Favorecidos")->item(0, 1)->text(), QString::fromUtf8("João"));
    EXPECT_EQ(Controle<QTableWidget>("Relatorio")->item(0, 5)->text(), "Maria");
    EXPECT_TRUE(Controle<QLabel>("Porta")->text().contains(m_simulador->NomeDaPorta()));
}

TEST_F(JanelaTest, ClosingTheWindowEndsTheSimulator)
{
    Abre();
    bool terminou = false;
    QObject::connect(m_simulador.get(), &Simulador::Terminou, [&terminou] { terminou = true; });
    m_janela->close();
    EXPECT_TRUE(terminou);
}

} // namespace
