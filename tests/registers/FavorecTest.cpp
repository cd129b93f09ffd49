// What the payee register has of its own: the payees that the device keeps.
#include "ComCadastro.h"

#include <QFile>

using namespace teste;

namespace {

class FavorecTest : public ComCodigoENome {
protected:
    FavorecTest() : ComCodigoENome(kFavorec) {}
    void Responde(QMessageBox::StandardButton botao) { m_caixas->Responde(botao); }
    const std::string m_inclui = "[Comando QX70] Deseja Incluir na Impressora?";
    const std::string m_exclui = "[Comando QX70] Deseja Excluir na Impressora?";
    static std::string NaLinha(const std::string &operacao)
    {
        return "IniciaPorta(\"COM2\") " + operacao + " FechaPorta()";
    }
};

// --- Incluir ---

TEST_F(FavorecTest, BothQuestionsHaveTheirTitleAndButtons)
{
    AbreCadastro();
    Preenche("00900", "Zoé");
    Aperta(Incluir);
    ClicaNaLinha(0);
    Aperta(Excluir);
    ASSERT_EQ(Vistas(), m_inclui + '|' + m_exclui);
    for (const apoio::Caixa &caixa : m_caixas->Vistas()) {
        EXPECT_EQ(caixa.icone, QMessageBox::NoIcon);
        EXPECT_EQ(caixa.botoes, QMessageBox::Yes | QMessageBox::No);
        EXPECT_EQ(caixa.padrao, QMessageBox::Yes);
    }
}

struct CasoEnvio {
    std::string nome;
    QString codigo;
    QString favorecido;
    std::string operacao;
};
void PrintTo(const CasoEnvio &c, std::ostream *os)
{
    *os << c.codigo.toStdString();
}
class EnvioDoFavorecido : public FavorecTest, public testing::WithParamInterface<CasoEnvio> {};
TEST_P(EnvioDoFavorecido, HasTheLastTwoDigitsAndTheNameAsTheDeviceWritesIt)
{
    AbreCadastro();
    Preenche(GetParam().codigo, GetParam().favorecido);
    Responde(QMessageBox::Yes);
    Aperta(Incluir);
    EXPECT_EQ(Chamadas(), NaLinha(GetParam().operacao));
    EXPECT_EQ(Linhas("SELECT Nome FROM Favorecido WHERE Codigo = '" + GetParam().codigo + '\''),
              GetParam().favorecido.toStdString())
        << "the store keeps it as it was typed";
}
INSTANTIATE_TEST_SUITE_P(
    Favorecidos, EnvioDoFavorecido,
    testing::Values(
        CasoEnvio{"Plain", "00023", "Maria", "IncluiFavorecido(\"23\",\"Maria\")"},
        CasoEnvio{"FirstThreeDigitsAreLeftOut", "98765", "Maria", "IncluiFavorecido(\"65\",\"Maria\")"},
        CasoEnvio{"Accents", "00001", "José Ação", "IncluiFavorecido(\"01\",\"Jos\\x82 A\\x87\\xC6o\")"},
        CasoEnvio{"BlanksAround", "00002", "  Ana Lúcia ",
                  "IncluiFavorecido(\"02\",\"Ana L\\xA3"
                  "cia\")"},
        CasoEnvio{"Quotes", "00003", "D'Ávila \"X\"", "IncluiFavorecido(\"03\",\"D'\\xB5vila \\\"X\\\"\")"}),
    kNomeDoCaso);

TEST_F(FavorecTest, PayeeOneHundredTwentyThreeIsTwentyThreeOnTheDevice)
{
    m_escritorio.Sql("DELETE FROM Favorecido");
    AbreCadastro();
    Preenche("00123", "Ana");
    Responde(QMessageBox::Yes);
    Aperta(Incluir);
    EXPECT_EQ(Chamadas(), NaLinha("IncluiFavorecido(\"23\",\"Ana\")"));
}

TEST_F(FavorecTest, NoSendsNothingAndStores)
{
    AbreCadastro();
    Preenche("00900", "Zoé");
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_EQ(Chamadas(), "");
    EXPECT_EQ(Linhas("SELECT Nome FROM Favorecido WHERE Codigo = '00900'"), "Zoé");
}

TEST_F(FavorecTest, TheDeviceComesBeforeTheChecks)
{
    AbreCadastro();
    const std::string antes = Tabela();
    Preenche("00007", "Outra");
    Responde(QMessageBox::Yes);
    Aperta(Incluir);
    EXPECT_EQ(Vistas(), m_inclui + "|[Erro] Codigo ja cadastrado...");
    EXPECT_EQ(Chamadas(), NaLinha("IncluiFavorecido(\"07\",\"Outra\")"));
    EXPECT_EQ(Tabela(), antes);
}

TEST_F(FavorecTest, TheQuestionComesBeforeTheNewEntry)
{
    AbreCadastro();
    ClicaNaLinha(0);
    const std::string antes = Tabela();
    Responde(QMessageBox::Yes);
    Aperta(Incluir);
    EXPECT_EQ(Vistas(), m_inclui);
    EXPECT_EQ(Chamadas(), NaLinha("IncluiFavorecido(\"23\",\"Jos\\x82 Lu\\xA1s\")"));
    EXPECT_EQ(Estado(), kPronto);
    EXPECT_EQ(FocoDele(), "Text1(0)");
    EXPECT_EQ(Caixas(), "00123|José Luís");
    EXPECT_EQ(Tabela(), antes);
}

TEST_F(FavorecTest, IncluirWithAnEmptyBoxDoesNotAsk)
{
    AbreCadastro();
    Preenche("00900", "");
    Aperta(Incluir);
    Preenche("", "Zoé");
    Aperta(Incluir);
    EXPECT_EQ(Vistas(), "[Erro] Campo Inválido...|[Erro] Campo Inválido...");
    EXPECT_EQ(Chamadas(), "");
}

// --- Excluir ---

TEST_F(FavorecTest, ExcluirWithYesRemovesItFromTheDeviceToo)
{
    AbreCadastro();
    ClicaNaLinha(0);
    Responde(QMessageBox::Yes);
    Aperta(Excluir);
    EXPECT_EQ(Vistas(), m_exclui);
    EXPECT_EQ(Chamadas(), NaLinha("ExcluiFavorecido(\"23\")"));
    EXPECT_EQ(Tabela(), "00007,Ana|00045,Bento");
}

TEST_F(FavorecTest, ExcluirWithNoRemovesItFromTheStoreAlone)
{
    AbreCadastro();
    ClicaNaLinha(0);
    Responde(QMessageBox::No);
    Aperta(Excluir);
    EXPECT_EQ(Chamadas(), "");
    EXPECT_EQ(Tabela(), "00007,Ana|00045,Bento");
}

TEST_F(FavorecTest, ExcluirAsksAlsoWhenTheNameIsEmpty)
{
    AbreCadastro();
    ClicaNaLinha(0);
    PoeNaCaixa(1, "");
    const std::string antes = Tabela();
    Responde(QMessageBox::Yes);
    Aperta(Excluir);
    EXPECT_EQ(Vistas(), m_exclui + "|[Erro] Campo Inválido...");
    EXPECT_EQ(Chamadas(), NaLinha("ExcluiFavorecido(\"23\")"));
    EXPECT_EQ(Tabela(), antes);
}

TEST_F(FavorecTest, ExcluirWithNoCurrentRowHasAskedTheDeviceByThen)
{
    AbreCadastro();
    ClicaNaLinha(0);
    ClicaNaLinha(0, Qt::ControlModifier);
    const std::string antes = Tabela();
    Responde(QMessageBox::Yes);
    Aperta(Excluir);
    EXPECT_EQ(Vistas(), m_exclui + "|[Erro] Selecione um favorecido...");
    EXPECT_EQ(Chamadas(), NaLinha("ExcluiFavorecido(\"23\")"));
    EXPECT_EQ(Tabela(), antes);
}

// --- Alterar and the rest ---

TEST_F(FavorecTest, AlterarSendsNothing)
{
    AbreCadastro();
    ClicaNaLinha(0);
    PoeNaCaixa(1, "José");
    Aperta(Alterar);
    EXPECT_EQ(Vistas(), "");
    EXPECT_EQ(Chamadas(), "");
    EXPECT_EQ(Tabela(), "00123,José|00007,Ana|00045,Bento");
}

TEST_F(FavorecTest, ANameOf48CharactersIsCutTo47AsItIsTyped)
{
    AbreCadastro();
    const QString nome = "Cooperativa dos Produtores de Leite do Vale Sul";
    ASSERT_EQ(nome.size(), 47);
    DigitaNela("Text1(1)", nome + "x");
    EXPECT_EQ(Caixa(1), nome.toStdString());
}

struct CasoAparelho {
    std::string nome;
    QByteArray roteiro;
};
void PrintTo(const CasoAparelho &c, std::ostream *os)
{
    *os << c.nome;
}
class AparelhoQueFalhaAoFavorecido : public FavorecTest, public testing::WithParamInterface<CasoAparelho> {};
TEST_P(AparelhoQueFalhaAoFavorecido, DoesNotHoldTheInsertionUp)
{
    AbreCadastro();
    m_gravadora.Roteiro(GetParam().roteiro);
    Preenche("00900", "Zoé");
    Responde(QMessageBox::Yes);
    Aperta(Incluir);
    EXPECT_EQ(Vistas(), m_inclui);
    EXPECT_EQ(Chamadas(), NaLinha("IncluiFavorecido(\"00\",\"Zo\\x82\")"));
    EXPECT_EQ(Tabela(), "00123,José Luís|00007,Ana|00045,Bento|00900,Zoé");
}
TEST_P(AparelhoQueFalhaAoFavorecido, DoesNotHoldTheRemovalUp)
{
    AbreCadastro();
    m_gravadora.Roteiro(GetParam().roteiro);
    ClicaNaLinha(1);
    Responde(QMessageBox::Yes);
    Aperta(Excluir);
    EXPECT_EQ(Vistas(), m_exclui);
    EXPECT_EQ(Chamadas(), NaLinha("ExcluiFavorecido(\"07\")"));
    EXPECT_EQ(Tabela(), "00123,José Luís|00045,Bento");
}
INSTANTIATE_TEST_SUITE_P(
    Passos, AparelhoQueFalhaAoFavorecido,
    testing::Values(CasoAparelho{"PortDoesNotOpen", "resultado IniciaPorta 0\n"},
                    CasoAparelho{"OperationsAreRefused",
                                 "resultado IncluiFavorecido 23\nresultado ExcluiFavorecido 24\n"},
                    CasoAparelho{"PortDoesNotClose", "resultado FechaPorta 12\n"}),
    kNomeDoCaso);

TEST_F(FavorecTest, WithoutALibraryTheRowIsRemovedAllTheSame)
{
    AbreCadastro();
    ASSERT_TRUE(QFile::remove(m_escritorio.Arquivo("libqx7032.so")));
    ClicaNaLinha(1);
    Responde(QMessageBox::Yes);
    Aperta(Excluir);
    EXPECT_EQ(Tabela(), "00123,José Luís|00045,Bento");
}

} // namespace
