// The flows over the device: order of the calls, indicator, messages, and the exits that leave the port open.
#include "device/Fluxos.h"

#include "ComGravadora.h"
#include "device/Comandos.h"

namespace {

using nucleo::Botoes;
using nucleo::Icone;

const device::TextosDoBanco kBanco{"237", " Nome", "001", "005", "007", "010", "013", "092",
                                   "017", "009",   "011", "050", "031", "040", "065"};
const char *const kTituloUsual = "QX70 MIRA - Document Printer";

struct CasoSeletor {
    std::string nome;
    int seletor;
    const char *operacao; ///< what is called between opening and closing, null for nothing
    bool comIndicador;
};

void PrintTo(const CasoSeletor &c, std::ostream *os)
{
    *os << c.seletor;
}

class FluxosTest : public teste::ComImpressora {
protected:
    int Comanda(int seletor)
    {
        return device::ComandoImpressora(seletor, m_textos, m_porta, m_impressora, m_mensagens);
    }
    device::TextosDoComando m_textos{kBanco, "00123", " São João "};
};

class ComandoImpressoraTest : public FluxosTest, public testing::WithParamInterface<CasoSeletor> {};

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };

} // namespace

TEST_P(ComandoImpressoraTest, CallsItsOperationOnAnOpenPort)
{
    EXPECT_EQ(Comanda(GetParam().seletor), 1);
    QStringList esperadas{R"(IniciaPorta("COM2"))"};
    if (GetParam().operacao)
        esperadas.append(GetParam().operacao);
    esperadas.append("FechaPorta()");
    EXPECT_EQ(m_gravacao.Chamadas(), esperadas);
    const std::vector<qsizetype> umaVezAntesDaPorta{0};
    EXPECT_EQ(m_indicador.chamadasAntes,
              GetParam().comIndicador ? umaVezAntesDaPorta : std::vector<qsizetype>());
    EXPECT_TRUE(m_mensagens.caixas.empty());
}

TEST_P(ComandoImpressoraTest, GoesOnAndAnswersOneWhateverTheDeviceAnswers)
{
    m_gravacao.Roteiro("resultado IniciaPorta 0\nresultado IncluiBanco 9\nresultado IncluiFavorecido 9\n"
                       "resultado ExcluiFavorecido 9\nresultado CancelaRel 9\nresultado ZeraConfig 9\n"
                       "resultado FechaPorta 9\n");
    EXPECT_EQ(Comanda(GetParam().seletor), 1);
    EXPECT_EQ(m_gravacao.Chamadas().size(), GetParam().operacao ? 3 : 2);
    EXPECT_TRUE(m_mensagens.caixas.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Seletores, ComandoImpressoraTest,
    testing::Values(
        CasoSeletor{"BankGoesInWithThirteenPositions", 0,
                    R"(IncluiBanco("237","001,005,007,010,013,092,017,009,011,050,031,040,065"))", true},
        CasoSeletor{"PayeeGoesInByItsLastTwoDigits", 1, R"(IncluiFavorecido("23","S\xC6o Jo\xC6o"))", true},
        CasoSeletor{"PayeeGoesOutByItsLastTwoDigits", 2, R"(ExcluiFavorecido("23"))", true},
        CasoSeletor{"WholeReportIsCancelled", 3, R"(CancelaRel("*"))", true},
        CasoSeletor{"LastOfTheReportIsCancelledWithACapital", 4, R"(CancelaRel("U"))", true},
        CasoSeletor{"FiveOnlyOpensAndCloses", 5, nullptr, true},
        CasoSeletor{"ConfigurationIsCleared", 6, "ZeraConfig()", true},
        CasoSeletor{"SevenHasNoIndicator", 7, nullptr, false},
        CasoSeletor{"EightHasNoIndicator", 8, nullptr, false}),
    kNomeDoCaso);

TEST_F(FluxosTest, BankTextsGoOutUntrimmed)
{
    m_textos.banco = {"995", "x", " 1", "2 ", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", " "};
    Comanda(0);
    EXPECT_EQ(m_gravacao.Chamadas().value(1), R"(IncluiBanco("995"," 1,2 ,3,4,5,6,7,8,9,10,11,12, "))");
}

TEST_F(FluxosTest, Bank995WithAllPositionsAt999ReachesTheDevice)
{
    m_textos.banco.fill("999");
    m_textos.banco[0] = "995";
    EXPECT_EQ(Comanda(0), 1);
    EXPECT_EQ(m_gravacao.Chamadas().value(1),
              R"(IncluiBanco("995","999,999,999,999,999,999,999,999,999,999,999,999,999"))");
    EXPECT_TRUE(m_mensagens.caixas.empty());
}

TEST_F(FluxosTest, RefusedBankIsToldOnceEvenWhenSeveralRulesFail)
{
    m_textos.banco.fill("999");
    m_textos.banco[0] = "994";
    m_textos.banco[6] = "018";
    EXPECT_EQ(Comanda(0), 0);
    ASSERT_EQ(m_mensagens.caixas.size(), 1U);
    EXPECT_EQ(m_mensagens.caixas[0].texto, "Algum erro relacionado a posição dos campos foi detectado.\n"
                                           "Verifique se os mesmos estão corretos.");
    EXPECT_EQ(m_mensagens.caixas[0].titulo, "QX70 Printer Error");
    EXPECT_EQ(m_mensagens.caixas[0].icone, Icone::Nenhum);
    EXPECT_EQ(m_mensagens.caixas[0].botoes, Botoes::Ok);
}

// On purpose: nothing closes the port, and the next opening finds it so.
TEST_F(FluxosTest, RefusedBankLeavesThePortOpenAndTheIndicatorRed)
{
    m_textos.banco[6] = "018";
    Comanda(0);
    EXPECT_EQ(m_gravacao.Chamadas(), QStringList({R"(IniciaPorta("COM2"))"}));
    EXPECT_EQ(m_mensagens.caixas.at(0).chamadasAntes, 1);
    EXPECT_EQ(m_indicador.cor, 0x0000FFU);
    Comanda(3);
    EXPECT_EQ(m_gravacao.Chamadas(), QStringList({R"(IniciaPorta("COM2"))", R"(IniciaPorta("COM2"))",
                                                  R"(CancelaRel("*"))", "FechaPorta()"}));
}

TEST_F(FluxosTest, ShortPayeeCodeGoesOutEmpty)
{
    m_textos.codigoDoFavorecido = "123";
    Comanda(2);
    EXPECT_EQ(m_gravacao.Chamadas().value(1), R"(ExcluiFavorecido(""))");
}

TEST_F(FluxosTest, PortNameThatTheLibraryRewroteIsKept)
{
    m_gravacao.Roteiro("reescreve IniciaPorta COM1\n");
    Comanda(3);
    EXPECT_EQ(m_porta, "COM1");
}

TEST_F(FluxosTest, EnviaFormatadoSendsTheWholeTextAtOnce)
{
    device::EnviaFormatado("São\n", 3, m_porta, m_impressora, m_mensagens);
    EXPECT_EQ(m_gravacao.Chamadas(),
              QStringList({R"(IniciaPorta("COM2"))", "TravaDoc(1)", R"(FormataTX("S\xC6o\x0A",3,0,0,0,0))",
                           "TravaDoc(0)", "FechaPorta()"}));
    EXPECT_TRUE(m_mensagens.caixas.empty());
    EXPECT_EQ(m_indicador.chamadasAntes, std::vector<qsizetype>({0}));
}

TEST_F(FluxosTest, EnviaFormatadoPassesItsMode)
{
    device::EnviaFormatado("a", 2, m_porta, m_impressora, m_mensagens);
    EXPECT_EQ(m_gravacao.Chamadas().value(2), R"(FormataTX("a",2,0,0,0,0))");
}

TEST_F(FluxosTest, EnviaFormatadoStopsAtAPortThatAnswersZero)
{
    m_gravacao.Roteiro("resultado IniciaPorta 0\n");
    device::EnviaFormatado("a", 3, m_porta, m_impressora, m_mensagens);
    EXPECT_EQ(m_gravacao.Chamadas(), QStringList({R"(IniciaPorta("COM2"))"}));
    ASSERT_EQ(m_mensagens.caixas.size(), 1U);
    EXPECT_EQ(m_mensagens.caixas[0].texto, "Erro de comunicação com a impressora.");
    EXPECT_EQ(m_mensagens.caixas[0].icone, Icone::Pare);
    EXPECT_EQ(m_mensagens.caixas[0].titulo, kTituloUsual);
    EXPECT_EQ(m_indicador.cor, 0x0000FFU);
}

TEST_F(FluxosTest, EnviaFormatadoTakesAnyPortAnswerButZeroForOpen)
{
    m_gravacao.Roteiro("resultado IniciaPorta 5\n");
    device::EnviaFormatado("a", 3, m_porta, m_impressora, m_mensagens);
    EXPECT_EQ(m_gravacao.Chamadas().size(), 5);
    EXPECT_TRUE(m_mensagens.caixas.empty());
}

// On purpose: the document stays held and the port open, and the next opening finds it so.
TEST_F(FluxosTest, EnviaFormatadoRefusedByTheDeviceLeavesPortOpenAndDocumentHeld)
{
    m_gravacao.Roteiro("resultado FormataTX 2 1\n");
    device::EnviaFormatado("a", 3, m_porta, m_impressora, m_mensagens);
    const QStringList ateAFalha{R"(IniciaPorta("COM2"))", "TravaDoc(1)", R"(FormataTX("a",3,0,0,0,0))"};
    EXPECT_EQ(m_gravacao.Chamadas(), ateAFalha);
    ASSERT_EQ(m_mensagens.caixas.size(), 1U);
    EXPECT_EQ(m_mensagens.caixas[0].texto, "Erro ao enviar as informações para a impressora.");
    EXPECT_EQ(m_mensagens.caixas[0].icone, Icone::Pare);
    EXPECT_EQ(m_mensagens.caixas[0].titulo, kTituloUsual);
    device::EnviaFormatado("a", 3, m_porta, m_impressora, m_mensagens);
    EXPECT_EQ(m_gravacao.Chamadas(), ateAFalha + ateAFalha + QStringList({"TravaDoc(0)", "FechaPorta()"}));
}

TEST_F(FluxosTest, MessagesComeWhileTheScreenIsNotBlocked)
{
    m_gravacao.Roteiro("resultado FormataTX 0\n");
    device::EnviaFormatado("a", 3, m_porta, m_impressora, m_mensagens);
    EXPECT_EQ(m_mensagens.caixas.at(0).chamadasAntes, 3);
    EXPECT_FALSE(m_mensagens.caixas.at(0).bloqueada);
}

namespace {

struct CasoDigitos {
    std::string nome;
    int digitos;
    const char *comando;
};

void PrintTo(const CasoDigitos &c, std::ostream *os)
{
    *os << c.digitos;
}

class EnviaDigitosDoAnoTest : public FluxosTest, public testing::WithParamInterface<CasoDigitos> {};

} // namespace

TEST_P(EnviaDigitosDoAnoTest, SendsFiveBytesWithoutIndicator)
{
    m_gravacao.Roteiro("resultado IniciaPorta 0\n");
    device::EnviaDigitosDoAno(GetParam().digitos, m_porta, m_impressora);
    EXPECT_EQ(m_gravacao.Chamadas(),
              QStringList({R"(IniciaPorta("COM2"))", GetParam().comando, "FechaPorta()"}));
    EXPECT_TRUE(m_indicador.valores.empty());
    EXPECT_TRUE(m_mensagens.caixas.empty());
}

INSTANTIATE_TEST_SUITE_P(Digitos, EnviaDigitosDoAnoTest,
                         testing::Values(CasoDigitos{"One", 1, R"(ComandoTX("\x1B\xAFD1\x0D",5))"},
                                         CasoDigitos{"Two", 2, R"(ComandoTX("\x1B\xAFD2\x0D",5))"},
                                         CasoDigitos{"Four", 4, R"(ComandoTX("\x1B\xAFD4\x0D",5))"}),
                         kNomeDoCaso);

TEST_F(FluxosTest, OtherYearDigitsSendNothing)
{
    device::EnviaDigitosDoAno(3, m_porta, m_impressora);
    EXPECT_TRUE(m_gravacao.Chamadas().isEmpty());
}

TEST(Comandos, MarksAndEndsAreTheBytesOfTheDevice)
{
    EXPECT_EQ(plataforma::ToAnsi(device::kMarcaDeCopiaInvertida), QByteArray::fromHex("1B49"));
    EXPECT_EQ(plataforma::ToAnsi(device::kFimDaPaginaDeTransferencia), QByteArray::fromHex("0D0A1B40"));
    EXPECT_EQ(plataforma::ToAnsi(device::kFimDeLinha), QByteArray::fromHex("0D0A"));
}

namespace {

const device::TextosDoCheque kCheque{"001", "10,00", "A", "B", "01/02/99", ""};
const char *const kChequeGravado = R"(ImprimeCheque("001","10,00","A","B","01/02/99",""))";

} // namespace

TEST_F(FluxosTest, NormalChequeGoesOnWhenThePortFailsAndItsOwnResultDecides)
{
    m_gravacao.Roteiro("resultado IniciaPorta 0\nresultado ImprimeCheque 5\n");
    EXPECT_EQ(device::EnviaChequeNormal(kCheque, m_porta, m_impressora), 5);
    EXPECT_EQ(m_gravacao.Chamadas(), QStringList({R"(IniciaPorta("COM2"))", kChequeGravado, "FechaPorta()"}));
    EXPECT_EQ(m_indicador.chamadasAntes, std::vector<qsizetype>({0}));
}

TEST_F(FluxosTest, SeriesChequeHasNoIndicator)
{
    EXPECT_EQ(device::EnviaChequeDaSerie(kCheque, m_porta, m_impressora), 1);
    EXPECT_EQ(m_gravacao.Chamadas(), QStringList({R"(IniciaPorta("COM2"))", kChequeGravado, "FechaPorta()"}));
    EXPECT_TRUE(m_indicador.valores.empty());
}

TEST_F(FluxosTest, SeriesChequeAnswersTheNumberOfTheDevice)
{
    m_gravacao.Roteiro("resultado ImprimeCheque 1 5\n");
    device::EnviaChequeDaSerie(kCheque, m_porta, m_impressora);
    EXPECT_EQ(device::EnviaChequeDaSerie(kCheque, m_porta, m_impressora), 5);
}

TEST_F(FluxosTest, SeriesChequeIsNotSentNorThePortClosedOnAnyPortAnswerButOne)
{
    m_gravacao.Roteiro("resultado IniciaPorta 2\n");
    EXPECT_EQ(device::EnviaChequeDaSerie(kCheque, m_porta, m_impressora), std::nullopt);
    EXPECT_EQ(m_gravacao.Chamadas(), QStringList({R"(IniciaPorta("COM2"))"}));
}

TEST_F(FluxosTest, CancelFromTheLogPassesASmallLetterAndHasNoIndicator)
{
    device::CancelaNoDispositivo("u", m_porta, m_impressora);
    EXPECT_EQ(m_gravacao.Chamadas(),
              QStringList({R"(IniciaPorta("COM2"))", R"(CancelaRel("u"))", "FechaPorta()"}));
    EXPECT_TRUE(m_indicador.valores.empty());
}
