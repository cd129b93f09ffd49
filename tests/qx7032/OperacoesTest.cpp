// The bytes that each operation puts on the line.
#include "LinhaDeTeste.h"

#include "qx7032/resultados.h"

#include <functional>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::string_literals;

namespace {

struct CasoOperacao {
    std::string nome;
    std::function<int(BibliotecaDeTeste &)> chama;
    const char *hexadecimal; // of the frame, its check sum reckoned by other software
};
void PrintTo(const CasoOperacao &c, std::ostream *os)
{
    *os << c.hexadecimal;
}
class OperacaoTest : public LinhaDeTeste, public testing::WithParamInterface<CasoOperacao> {};

TEST_P(OperacaoTest, SendsItsFrameAndAnswersOne)
{
    Abre();
    EXPECT_EQ(GetParam().chama(biblioteca), QX7032_SUCESSO);
    EXPECT_THAT(QuadrosEmHexadecimal(), ElementsAre(GetParam().hexadecimal));
    EXPECT_EQ(biblioteca.FechaPorta(), QX7032_SUCESSO);
}

using B = BibliotecaDeTeste;
INSTANTIATE_TEST_SUITE_P(
    Operacoes, OperacaoTest,
    testing::Values(
        CasoOperacao{"TravaDocHolds", [](B &b) { return b.TravaDoc(1); }, "02000254000001e57803"},
        CasoOperacao{"TravaDocReleases", [](B &b) { return b.TravaDoc(0); }, "02000254000000f55903"},
        CasoOperacao{"FormataTX", [](B &b) { return b.FormataTX(Arg("abc\r\n"), 2, 0, 0, 1, 0); },
                     "020011460000056162630d0a00020000000000010000639603"},
        CasoOperacao{"FormataTXWithNoText", [](B &b) { return b.FormataTX(Arg(""), 3, 0, 0, 0, 0); },
                     "02000c4600000000030000000000000000db6103"},
        CasoOperacao{"ImprimeCheque",
                     [](B &b) {
                         return b.ImprimeCheque(Arg("237"), Arg("1.234,56"), Arg("Fulano"), Arg("S\xC6o"),
                                                Arg("010299"), Arg(""));
                     },
                     "020026430000033233370008312e3233342c3536000646756c616e6f000353c66f000630313032393900"
                     "00e15d03"},
        CasoOperacao{"IncluiBanco", [](B &b) { return b.IncluiBanco(Arg("001"), Arg("01,05")); },
                     "02000c42000003303031000530312c3035ae9a03"},
        CasoOperacao{"IncluiFavorecido", [](B &b) { return b.IncluiFavorecido(Arg("23"), Arg("Jo\xC6o")); },
                     "02000a49000002323300044a6fc66f7aa903"},
        CasoOperacao{"ExcluiFavorecidoAll", [](B &b) { return b.ExcluiFavorecido(Arg("*")); },
                     "020003450000012abb0803"},
        CasoOperacao{"CancelaRelWithCapitalU", [](B &b) { return b.CancelaRel(Arg("U")); },
                     "020003520000015557fe03"},
        CasoOperacao{"CancelaRelWithSmallU", [](B &b) { return b.CancelaRel(Arg("u")); },
                     "0200035200000175739c03"},
        CasoOperacao{"AlteraMoeda", [](B &b) { return b.AlteraMoeda(Arg("real"), Arg("reais")); },
                     "02000d4d0000047265616c000572656169737a8803"},
        CasoOperacao{"ZeraConfig", [](B &b) { return b.ZeraConfig(); }, "0200005a0065b403"}),
    [](const auto &caso) { return caso.param.nome; });

struct CasoBruto {
    std::string nome;
    std::function<int(BibliotecaDeTeste &)> chama;
    std::string bytes;
};
void PrintTo(const CasoBruto &c, std::ostream *os)
{
    *os << c.bytes.size() << " bytes"; // the text itself may be very long
}
class BrutoTest : public LinhaDeTeste, public testing::WithParamInterface<CasoBruto> {};

TEST_P(BrutoTest, GoesOutByteForByteAndWaitsForNoAnswer)
{
    Abre();
    EXPECT_EQ(GetParam().chama(biblioteca), QX7032_SUCESSO);
    EXPECT_EQ(biblioteca.FechaPorta(), QX7032_SUCESSO);
    EXPECT_EQ(dispositivo->Recebido(GetParam().bytes.size()), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(
    Textos, BrutoTest,
    testing::Values(
        CasoBruto{"YearOfOneDigit", [](B &b) { return b.ComandoTX(Arg("\x1b\xaf\x44\x31\x0d"), 5); },
                  "\x1b\xaf\x44\x31\x0d"},
        CasoBruto{"YearOfTwoDigits", [](B &b) { return b.ComandoTX(Arg("\x1b\xaf\x44\x32\x0d"), 5); },
                  "\x1b\xaf\x44\x32\x0d"},
        CasoBruto{"YearOfFourDigits", [](B &b) { return b.ComandoTX(Arg("\x1b\xaf\x44\x34\x0d"), 5); },
                  "\x1b\xaf\x44\x34\x0d"},
        CasoBruto{"InvertedPrinting", [](B &b) { return b.KorvalenTX(Arg("\x1bI")); }, "\x1bI"},
        CasoBruto{"CopyLine", [](B &b) { return b.KorvalenTX(Arg("C\xE0PIA\r\n")); }, "C\xE0PIA\r\n"},
        CasoBruto{"EveryByteButNulAndTwo",
                  [](B &b) { return b.KorvalenTX(Arg("\x01\x03\x06\x11\x13\x15\x1a\x7f\x80\xff")); },
                  "\x01\x03\x06\x11\x13\x15\x1a\x7f\x80\xff"},
        CasoBruto{"OnlyTheLengthTold", [](B &b) { return b.ComandoTX(Arg("abcdef"), 3); }, "abc"},
        CasoBruto{"ALongText", [](B &b) { return b.KorvalenTX(Arg(std::string(60'000, 'x'))); },
                  std::string(60'000, 'x')}),
    [](const auto &caso) { return caso.param.nome; });

TEST_F(LinhaDeTeste, FramesAreCountedAndTheCountGoesRound)
{
    Abre();
    for (int i = 0; i < 258; ++i)
        ASSERT_EQ(biblioteca.ZeraConfig(), QX7032_SUCESSO) << i;
    const auto quadros = dispositivo->Quadros();
    ASSERT_EQ(quadros.size(), 258U);
    EXPECT_EQ(quadros[1][4], '\x01');
    EXPECT_EQ(quadros[255][4], '\xff');
    EXPECT_EQ(quadros[256][4], '\x00');
}

TEST_F(LinhaDeTeste, LongFreeTextGoesInPiecesCutBetweenLines)
{
    std::string texto;
    while (texto.size() < 40'000)
        texto += "uma linha da listagem\r\n";
    Abre();
    EXPECT_EQ(biblioteca.FormataTX(Arg(texto), 3, 0, 0, 0, 0), QX7032_SUCESSO);
    std::string recebido;
    const auto quadros = dispositivo->Quadros();
    ASSERT_EQ(quadros.size(), 2U);
    for (const std::string &quadro : quadros) {
        const std::string parte = quadro.substr(7, quadro.size() - 8 - 2 - 10);
        EXPECT_EQ(parte.substr(parte.size() - 2), "\r\n");
        EXPECT_EQ(EmHexadecimal(quadro.substr(7 + parte.size(), 10)), "00030000000000000000");
        recebido += parte;
    }
    EXPECT_EQ(recebido, texto);
}

TEST_F(LinhaDeTeste, LongFreeTextWithoutLinesIsCutAtTheLimit)
{
    const std::string texto(32'756, 'x'); // one byte more than a frame takes
    Abre();
    EXPECT_EQ(biblioteca.FormataTX(Arg(texto), 3, 0, 0, 0, 0), QX7032_SUCESSO);
    const auto quadros = dispositivo->Quadros();
    ASSERT_EQ(quadros.size(), 2U);
    EXPECT_EQ(quadros[0].size(), 32'767U + 8U);
    EXPECT_EQ(quadros[1].size(), 1U + 12U + 8U);
}

TEST_F(LinhaDeTeste, LongFreeTextStopsAtThePieceThatFails)
{
    Abre();
    dispositivo->Reage({{"\x15"}});
    EXPECT_EQ(biblioteca.FormataTX(Arg(std::string(40'000, 'x')), 3, 0, 0, 0, 0), QX7032_QUADRO_DANIFICADO);
    EXPECT_EQ(dispositivo->Quadros().size(), 1U);
}

TEST_F(LinhaDeTeste, ExtraFieldsGoBeforeTheNextChequeAndThenAreForgotten)
{
    EXPECT_EQ(biblioteca.ImprimeCampoX(1, 2, 30, Arg("um")), QX7032_SUCESSO); // with the port closed
    EXPECT_EQ(biblioteca.ImprimeCampoX(3, -1, 120, Arg("")), QX7032_SUCESSO);
    Abre();
    EXPECT_THAT(QuadrosEmHexadecimal(), IsEmpty());
    EXPECT_EQ(ImprimeUmCheque(), QX7032_SUCESSO);
    EXPECT_THAT(QuadrosEmHexadecimal(),
                ElementsAre("02000a580000010002001e0002756dbdbb03", "02000858010003ffff00780000c6a803",
                            "0200124302000131000132000133000134000135000136b66c03"));
    EXPECT_EQ(ImprimeUmCheque(), QX7032_SUCESSO);
    ASSERT_EQ(dispositivo->Quadros().size(), 4U);
    EXPECT_EQ(dispositivo->Quadros()[3][3], 'C');
}

TEST_F(LinhaDeTeste, AnExtraFieldGivenTwiceGoesOnce)
{
    biblioteca.ImprimeCampoX(1, 9, 9, Arg("cancelado"));
    biblioteca.ImprimeCampoX(1, 2, 30, Arg("abc"));
    Abre();
    EXPECT_EQ(ImprimeUmCheque(), QX7032_SUCESSO);
    ASSERT_EQ(dispositivo->Quadros().size(), 2U);
    EXPECT_EQ(QuadrosEmHexadecimal()[0], "02000b580000010002001e000361626313fb03");
}

TEST_F(LinhaDeTeste, AnExtraFieldRefusedKeepsTheChequeFromBeingSent)
{
    biblioteca.ImprimeCampoX(1, 2, 30, Arg("abc"));
    biblioteca.ImprimeCampoX(2, 3, 30, Arg("def"));
    Abre();
    dispositivo->Reage({{"\x15"}});
    EXPECT_EQ(ImprimeUmCheque(), QX7032_QUADRO_DANIFICADO);
    ASSERT_EQ(dispositivo->Quadros().size(), 1U);
    EXPECT_EQ(ImprimeUmCheque(), QX7032_SUCESSO);
    ASSERT_EQ(dispositivo->Quadros().size(), 2U); // the fields are forgotten
    EXPECT_EQ(dispositivo->Quadros()[1][3], 'C');
}

TEST_F(LinhaDeTeste, ExtraFieldsAreForgottenWithAChequeThatFoundThePortClosed)
{
    biblioteca.ImprimeCampoX(1, 2, 30, Arg("abc"));
    EXPECT_EQ(ImprimeUmCheque(), QX7032_PORTA_FECHADA);
    Abre();
    EXPECT_EQ(ImprimeUmCheque(), QX7032_SUCESSO);
    ASSERT_EQ(dispositivo->Quadros().size(), 1U);
    EXPECT_EQ(dispositivo->Quadros()[0][3], 'C');
}

} // namespace
