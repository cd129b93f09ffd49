// The amount in words: what MontaValor gets, and what is made of its answer and its file.
#include "device/Extenso.h"

#include "ComGravadora.h"
#include "plataforma/basico/RuntimeError.h"
#include <QDir>

namespace {

class ValorPorExtensoTest : public teste::ComImpressora {
protected:
    void SetUp() override
    {
        ComImpressora::SetUp();
        ASSERT_TRUE(QDir::setCurrent(m_corrente.path()));
    }
    void TearDown() override { QDir::setCurrent(m_antes); }

    QString Extenso(const QString &valor)
    {
        return device::ValorPorExtenso(valor, m_impressora, m_mensagens);
    }
    void DeixaExtensoAntigo() const
    {
        QFile arquivo(m_corrente.filePath("Extenso.ret"));
        ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
        ASSERT_GT(arquivo.write("valor de outro cheque"), 0);
    }
    QTemporaryDir m_corrente;
    QString m_antes = QDir::currentPath();
};

struct CasoValor {
    std::string nome;
    const char *valor;
    const char *passado;
};

void PrintTo(const CasoValor &c, std::ostream *os)
{
    *os << '"' << c.valor << '"';
}

class ValorPassadoTest : public ValorPorExtensoTest, public testing::WithParamInterface<CasoValor> {};

} // namespace

TEST_P(ValorPassadoTest, ReachesTheLibraryWithTwoDecimalsAlwaysInReais)
{
    m_gravacao.Roteiro("resultado MontaValor 1\n");
    Extenso(GetParam().valor);
    EXPECT_EQ(m_gravacao.Chamadas(),
              QStringList({QString("MontaValor(\"%1\",\"real\",\"reais\")").arg(GetParam().passado)}));
}

INSTANTIATE_TEST_SUITE_P(Valores, ValorPassadoTest,
                         testing::Values(CasoValor{"GroupsAreDropped", "1.234,50", "1234,50"},
                                         CasoValor{"BlanksAreCut", "  7 ", "7,00"},
                                         CasoValor{"ZeroBeforeTheComma", "0,5", "0,50"},
                                         CasoValor{"TextThatIsNoNumberGoesAsItStands", "abc", "abc"}),
                         [](const auto &caso) { return caso.param.nome; });

TEST_F(ValorPorExtensoTest, IsTheTrimmedTextOfTheFile)
{
    m_gravacao.Roteiro("extenso   tr\xEAs reais e um centavo  \n");
    EXPECT_EQ(Extenso("3,01"), "três reais e um centavo");
    EXPECT_TRUE(m_mensagens.caixas.empty());
}

TEST_F(ValorPorExtensoTest, OnlyBlanksAreTrimmed)
{
    m_gravacao.Roteiro("extenso dez reais\r\n");
    EXPECT_EQ(Extenso("10"), "dez reais\r");
}

TEST_F(ValorPorExtensoTest, AnyAnswerButOneAndTwoIsSuccess)
{
    m_gravacao.Roteiro("extenso um real\nresultado MontaValor 3 -1\n");
    EXPECT_EQ(Extenso("1"), "um real");
    EXPECT_EQ(Extenso("1"), "um real");
}

TEST_F(ValorPorExtensoTest, RefusedAmountIsToldAndGivesNoWords)
{
    DeixaExtensoAntigo();
    m_gravacao.Roteiro("resultado MontaValor 1\n");
    EXPECT_EQ(Extenso("1"), "");
    ASSERT_EQ(m_mensagens.caixas.size(), 1U);
    EXPECT_EQ(m_mensagens.caixas[0].texto, "ERRO NOS VALORES PASSADOS");
    EXPECT_EQ(m_mensagens.caixas[0].titulo, "QX70 MIRA - Document Printer");
    EXPECT_EQ(m_mensagens.caixas[0].icone, nucleo::Icone::Nenhum);
}

TEST_F(ValorPorExtensoTest, FileThatTheLibraryCannotOpenIsToldAndGivesNoWords)
{
    DeixaExtensoAntigo();
    m_gravacao.Roteiro("resultado MontaValor 2\n");
    EXPECT_EQ(Extenso("1"), "");
    ASSERT_EQ(m_mensagens.caixas.size(), 1U);
    EXPECT_EQ(m_mensagens.caixas[0].texto, "Nao foi Possível Abrir o Arquivo");
    EXPECT_EQ(m_mensagens.caixas[0].titulo, "QX70 MIRA - Document Printer");
    EXPECT_EQ(m_mensagens.caixas[0].icone, nucleo::Icone::Nenhum);
}

TEST_F(ValorPorExtensoTest, FileMissingAfterAGoodAnswerIsFailure53)
{
    try {
        Extenso("1");
        FAIL() << "no failure";
    } catch (const plataforma::RuntimeError &erro) {
        EXPECT_EQ(erro.number(), 53);
        EXPECT_TRUE(erro.text().contains("Extenso.ret"));
    }
    EXPECT_TRUE(m_mensagens.caixas.empty());
}

TEST_F(ValorPorExtensoTest, WordsOfAnEarlierAmountAreNotReadWithoutTheLibrary)
{
    DeixaExtensoAntigo();
    ASSERT_TRUE(QFile::remove(m_pastaApp.filePath("libqx7032.so")));
    EXPECT_EQ(Extenso("1"), "");
    ASSERT_EQ(m_mensagens.caixas.size(), 2U);
    EXPECT_TRUE(m_mensagens.caixas[0].texto.contains("libqx7032.so"));
    EXPECT_EQ(m_mensagens.caixas[1].texto, "Nao foi Possível Abrir o Arquivo");
}
