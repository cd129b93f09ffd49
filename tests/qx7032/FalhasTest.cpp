// A number for each failure of the line and of the device, in bounded time.
#include "LinhaDeTeste.h"

#include "qx7032/Quadro.h"
#include "qx7032/resultados.h"

#include <chrono>
#include <functional>

#include <gmock/gmock.h>

using namespace std::chrono_literals;
using namespace std::string_literals;
using qx7032::CodificaResultado;

namespace {

using B = BibliotecaDeTeste;
using Relogio = std::chrono::steady_clock;
constexpr int kLonga = 20'000; // ms: a test that waited so long would show it
constexpr int kCurta = 60;

struct CasoFalha {
    std::string nome;
    Reacao reacao;
    int resultado;
    int resposta = kLonga;
    int impressao = kLonga;
};
void PrintTo(const CasoFalha &c, std::ostream *os)
{
    *os << c.resultado;
}
class FalhaTest : public LinhaDeTeste, public testing::WithParamInterface<CasoFalha> {};

TEST_P(FalhaTest, HasItsNumberInBoundedTime)
{
    const CasoFalha &caso = GetParam();
    DefineEsperas(caso.resposta, caso.impressao);
    Abre();
    dispositivo->Reage({caso.reacao});
    const auto inicio = Relogio::now();
    EXPECT_EQ(ImprimeUmCheque(), caso.resultado);
    EXPECT_LT(Relogio::now() - inicio, 10s);
    EXPECT_EQ(biblioteca.FechaPorta(), caso.resultado);
}

INSTANTIATE_TEST_SUITE_P(
    Linha, FalhaTest,
    testing::Values(
        CasoFalha{"SilenceIsNoAnswer", {""}, QX7032_SEM_RESPOSTA, kCurta},
        CasoFalha{"Rubbish", {"\x8a\x02zzz"}, QX7032_RESPOSTA_EMBARALHADA},
        CasoFalha{"RubbishBehindTheConfirmation", {"\x06\x8a"}, QX7032_RESPOSTA_EMBARALHADA},
        CasoFalha{"HalfAFrameForAnAnswer", {"\x02\x00\x02r"s}, QX7032_RESPOSTA_EMBARALHADA, kCurta},
        CasoFalha{"HangUpBeforeTheAnswer", {"", 0ms, true}, QX7032_LINHA_CAIU},
        CasoFalha{"HangUpBehindTheConfirmation", {"\x06", 0ms, true}, QX7032_LINHA_CAIU},
        CasoFalha{"HangUpInsideTheResult", {"\x06\x02\x00\x02r"s, 0ms, true}, QX7032_LINHA_CAIU},
        CasoFalha{"FrameRefusedAsDamaged", {"\x15"}, QX7032_QUADRO_DANIFICADO},
        CasoFalha{"TakenButNeverEnded", {"\x06"}, QX7032_SEM_CONCLUSAO, kLonga, kCurta},
        CasoFalha{"NoDocument", {"\x06" + CodificaResultado(0, 20)}, QX7032_SEM_DOCUMENTO},
        CasoFalha{"EndOfPaper", {"\x06" + CodificaResultado(0, 21)}, QX7032_FIM_DE_PAPEL},
        CasoFalha{"BankWithoutLayout", {"\x06" + CodificaResultado(0, 22)}, QX7032_BANCO_SEM_LEIAUTE},
        CasoFalha{"TextRefused", {"\x06" + CodificaResultado(0, 23)}, QX7032_TEXTO_RECUSADO},
        CasoFalha{"NoSuchPayee", {"\x06" + CodificaResultado(0, 24)}, QX7032_FAVORECIDO_INEXISTENTE},
        CasoFalha{"OtherFault", {"\x06" + CodificaResultado(0, 29)}, QX7032_OUTRA_FALHA},
        CasoFalha{"ANumberOfTheHostIsAnotherFault", {"\x06" + CodificaResultado(0, 7)}, QX7032_OUTRA_FALHA}),
    [](const auto &caso) { return caso.param.nome; });

TEST_F(LinhaDeTeste, ASlowAnswerWithinTheLimitIsGood)
{
    DefineEsperas(kLonga, kLonga);
    Abre();
    dispositivo->Reage({{"%", 120ms}});
    EXPECT_EQ(ImprimeUmCheque(), QX7032_SUCESSO);
}

TEST_F(LinhaDeTeste, ASlowAnswerOverTheLimitIsNoneAndDoesNotSpoilTheNextOrder)
{
    DefineEsperas(kCurta, kLonga);
    Abre();
    dispositivo->Reage({{""}, {"\x06" + CodificaResultado(0, 20) + "\x06" + CodificaResultado(1, 1)}});
    EXPECT_EQ(ImprimeUmCheque(), QX7032_SEM_RESPOSTA);
    EXPECT_EQ(ImprimeUmCheque(), QX7032_SUCESSO); // 20 was the answer to the first
}

TEST_F(LinhaDeTeste, WaitsForTheLimitBeforeGivingUp)
{
    DefineEsperas(150, 150);
    Abre();
    dispositivo->Reage({{""}});
    const auto inicio = Relogio::now();
    EXPECT_EQ(biblioteca.ZeraConfig(), QX7032_SEM_RESPOSTA);
    EXPECT_GE(Relogio::now() - inicio, 150ms);
}

struct CasoEspera {
    std::string nome;
    std::function<int(B &)> chama;
    bool movePapel;
};
void PrintTo(const CasoEspera &c, std::ostream *os)
{
    *os << c.nome;
}
class EsperaTest : public LinhaDeTeste, public testing::WithParamInterface<CasoEspera> {};

// With a short limit for paper and a long one for the rest, only orders that move paper give up at once.
TEST_P(EsperaTest, OrdersThatMovePaperHaveTheirOwnLimit)
{
    DefineEsperas(1'500, kCurta);
    Abre();
    dispositivo->Reage({{"\x06"}});
    const auto inicio = Relogio::now();
    EXPECT_EQ(GetParam().chama(biblioteca), QX7032_SEM_CONCLUSAO);
    EXPECT_EQ(Relogio::now() - inicio < 1s, GetParam().movePapel);
}

INSTANTIATE_TEST_SUITE_P(
    Ordens, EsperaTest,
    testing::Values(CasoEspera{"TravaDoc", [](B &b) { return b.TravaDoc(1); }, true},
                    CasoEspera{"FormataTX", [](B &b) { return b.FormataTX(Arg("a"), 3, 0, 0, 0, 0); }, true},
                    CasoEspera{"IncluiBanco", [](B &b) { return b.IncluiBanco(Arg("1"), Arg("1")); }, false},
                    CasoEspera{"CancelaRel", [](B &b) { return b.CancelaRel(Arg("*")); }, false}),
    [](const auto &caso) { return caso.param.nome; });

TEST_F(LinhaDeTeste, NothingIsEverSentTwice)
{
    DefineEsperas(kCurta, kCurta);
    Abre();
    dispositivo->Reage({{""}});
    EXPECT_EQ(ImprimeUmCheque(), QX7032_SEM_RESPOSTA);
    biblioteca.FechaPorta();
    EXPECT_EQ(dispositivo->Quadros().size(), 1U);
}

TEST_F(LinhaDeTeste, StaleBytesOfBeforeTheOrderAreForgotten)
{
    Abre();
    dispositivo->Envia("\x15\x15 rubbish of an earlier hour");
    EXPECT_EQ(biblioteca.ZeraConfig(), QX7032_SUCESSO);
}

TEST_F(LinhaDeTeste, StaleBytesOfBeforeTheOpeningAreForgotten)
{
    dispositivo->Envia("\x15\x15");
    Abre();
    EXPECT_EQ(biblioteca.ZeraConfig(), QX7032_SUCESSO);
}

TEST_F(LinhaDeTeste, AnOrderOnALineThatIsGoneSaysSo)
{
    Abre();
    dispositivo.reset();
    EXPECT_EQ(ImprimeUmCheque(), QX7032_LINHA_CAIU);
    EXPECT_EQ(biblioteca.KorvalenTX(Arg("linha\r\n")), QX7032_LINHA_CAIU);
    EXPECT_EQ(biblioteca.FechaPorta(), QX7032_LINHA_CAIU);
}

TEST_F(LinhaDeTeste, AHangUpWhileALongTextGoesOutIsNoticed)
{
    Abre();
    dispositivo->DesligaDepoisDe(1000);
    EXPECT_EQ(biblioteca.KorvalenTX(Arg(std::string(400'000, 'x'))), QX7032_LINHA_CAIU);
}

TEST_F(LinhaDeTeste, ALineThatTakesNoBytesHoldsNobodyUp)
{
    DefineEsperas(kCurta, kCurta);
    pasta.Grava("qx7032.conf", "velocidade=115200\n"); // the time of the line itself is allowed too
    Abre();
    dispositivo->ParaDeLer();
    const auto inicio = Relogio::now();
    EXPECT_EQ(biblioteca.KorvalenTX(Arg(std::string(50'000, 'x'))), QX7032_SEM_RESPOSTA);
    EXPECT_EQ(biblioteca.FechaPorta(), QX7032_SEM_RESPOSTA);
    EXPECT_LT(Relogio::now() - inicio, 15s);
}

TEST_F(LinhaDeTeste, FechaPortaTellsTheFirstFailureAndTheNextOpeningStartsClean)
{
    Abre();
    dispositivo->Reage({{"%"}, {"\x06" + CodificaResultado(1, 21)}, {"\x15"}});
    EXPECT_EQ(biblioteca.TravaDoc(1), QX7032_SUCESSO);
    EXPECT_EQ(biblioteca.TravaDoc(1), QX7032_FIM_DE_PAPEL);
    EXPECT_EQ(biblioteca.TravaDoc(0), QX7032_QUADRO_DANIFICADO);
    EXPECT_EQ(biblioteca.FechaPorta(), QX7032_FIM_DE_PAPEL);
    Abre();
    EXPECT_EQ(biblioteca.FechaPorta(), QX7032_SUCESSO);
}

TEST_F(LinhaDeTeste, AfterADamagedFrameTheLineIsLeftSilentForAWhile)
{
    Abre();
    dispositivo->Reage({{"\x15"}});
    EXPECT_EQ(biblioteca.ZeraConfig(), QX7032_QUADRO_DANIFICADO);
    const auto inicio = Relogio::now();
    EXPECT_EQ(biblioteca.ZeraConfig(), QX7032_SUCESSO);
    EXPECT_GE(Relogio::now() - inicio, 100ms);
}

struct CasoArgumento {
    std::string nome;
    std::function<int(B &)> chama;
};
void PrintTo(const CasoArgumento &c, std::ostream *os)
{
    *os << c.nome;
}
class ArgumentoTest : public LinhaDeTeste, public testing::WithParamInterface<CasoArgumento> {};

TEST_P(ArgumentoTest, IsRefusedWithNothingSent)
{
    Abre();
    EXPECT_EQ(GetParam().chama(biblioteca), QX7032_ARGUMENTO_INVALIDO);
    EXPECT_EQ(biblioteca.KorvalenTX(Arg("fim")), QX7032_SUCESSO);
    EXPECT_EQ(dispositivo->Recebido(3), "fim");
}

const std::string kLongo(32'768, 'x');
INSTANTIATE_TEST_SUITE_P(
    Argumentos, ArgumentoTest,
    testing::Values(
        CasoArgumento{"RawTextWithAFrameByte", [](B &b) { return b.KorvalenTX(Arg("a\x02z")); }},
        CasoArgumento{"CommandWithAFrameByte", [](B &b) { return b.ComandoTX(Arg("\x1b\x02"), 2); }},
        CasoArgumento{"CommandShorterThanTold", [](B &b) { return b.ComandoTX(Arg("abc"), 4); }},
        CasoArgumento{"CommandOfNegativeLength", [](B &b) { return b.ComandoTX(Arg("abc"), -1); }},
        CasoArgumento{"NullCommand", [](B &b) { return b.ComandoTX(nullptr, 0); }},
        CasoArgumento{"NullRawText", [](B &b) { return b.KorvalenTX(nullptr); }},
        CasoArgumento{"NullFreeText", [](B &b) { return b.FormataTX(nullptr, 3, 0, 0, 0, 0); }},
        CasoArgumento{"NullBankLayout", [](B &b) { return b.IncluiBanco(Arg("1"), nullptr); }},
        CasoArgumento{"NullPayee", [](B &b) { return b.ExcluiFavorecido(nullptr); }},
        CasoArgumento{"NullExtraField", [](B &b) { return b.ImprimeCampoX(1, 1, 1, nullptr); }},
        CasoArgumento{"LongExtraField", [](B &b) { return b.ImprimeCampoX(1, 1, 1, Arg(kLongo)); }},
        CasoArgumento{
            "NullInACheque",
            [](B &b) { return b.ImprimeCheque(Arg("1"), nullptr, Arg("3"), Arg("4"), Arg("5"), Arg("")); }},
        CasoArgumento{"NullInAChequeWithExtraFields",
                      [](B &b) {
                          b.ImprimeCampoX(1, 1, 1, Arg("a"));
                          return b.ImprimeCheque(Arg("1"), nullptr, Arg("3"), Arg("4"), Arg("5"), Arg(""));
                      }},
        CasoArgumento{"LongPayee", [](B &b) { return b.IncluiFavorecido(Arg("1"), Arg(kLongo)); }}),
    [](const auto &caso) { return caso.param.nome; });

} // namespace
