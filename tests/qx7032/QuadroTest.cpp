// Frames, argument lists, the device's decoder and the host's reader of answers.
#include "qx7032/Quadro.h"
#include "qx7032/Argumentos.h"
#include "qx7032/Decodificador.h"
#include "qx7032/Resposta.h"
#include "qx7032/resultados.h"

#include <fstream>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace qx7032 {

void PrintTo(const Evento &e, std::ostream *os)
{
    *os << "evento " << static_cast<int>(e.tipo) << " '" << e.texto << "' " << e.digitos << " quadro "
        << e.quadro.tipo << int{e.quadro.sequencia} << " '" << testing::PrintToString(e.quadro.carga) << "'";
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::string_literals;

Evento DoQuadro(const Quadro &quadro)
{
    Evento evento;
    evento.quadro = quadro;
    return evento;
}

Evento De(Evento::Tipo tipo, const std::string &texto = {}, int digitos = 0)
{
    Evento evento;
    evento.tipo = tipo;
    evento.texto = texto;
    evento.digitos = digitos;
    return evento;
}

TEST(CalculaCrc, GivesThePublishedCheckValue)
{
    EXPECT_EQ(CalculaCrc("123456789"), 0x29B1);
    EXPECT_EQ(CalculaCrc(""), 0xFFFF);
}

TEST(CodificaQuadro, LaysTheBytesInOrder)
{
    EXPECT_EQ(CodificaQuadro({'Z', 0x10, ""}), "\x02\x00\x00Z\x10\x77\x85\x03"s);
    EXPECT_EQ(CodificaResultado(7, 1), "\x02\x00\x02r\x07\x00\x01\x70\x3F\x03"s);
}

TEST(CodificaQuadro, RefusesAPayloadOverTheLimit)
{
    EXPECT_EQ(CodificaQuadro({'F', 0, std::string(kCargaMaxima, 'x')}).size(), kCargaMaxima + kMoldura);
    EXPECT_EQ(CodificaQuadro({'F', 0, std::string(kCargaMaxima + 1, 'x')}), "");
}

TEST(Argumentos, AreReadBackInOrder)
{
    EscritorDeArgumentos escritor;
    escritor.Texto("aé\0b"s).Numero(-2).Numero(300).Texto("");
    LeitorDeArgumentos leitor(escritor.Carga());
    EXPECT_EQ(leitor.Texto(), "aé\0b"s);
    EXPECT_EQ(leitor.Numero(), std::int16_t{-2});
    EXPECT_EQ(leitor.Numero(), std::int16_t{300});
    EXPECT_FALSE(leitor.Terminou());
    EXPECT_EQ(leitor.Texto(), "");
    EXPECT_TRUE(leitor.Terminou());
}

TEST(Argumentos, LayTextBehindItsLengthAndNumbersHighByteFirst)
{
    EXPECT_EQ(EscritorDeArgumentos().Texto("ab").Numero(0x0102).Carga(), "\x00\x02"
                                                                         "ab\x01\x02"s);
}

TEST(Argumentos, OnceCutGiveNothingMore)
{
    const std::string cortada = "\x00\x05"
                                "abcd"s;
    LeitorDeArgumentos leitor(cortada);
    EXPECT_FALSE(leitor.Texto().has_value());
    EXPECT_FALSE(leitor.Numero().has_value());
    EXPECT_FALSE(leitor.Terminou());
}

TEST(Argumentos, DoNotFitWhenTheFrameCannotHoldThem)
{
    EXPECT_TRUE(EscritorDeArgumentos().Texto(std::string(kCargaMaxima - 2, 'x')).Cabe());
    EXPECT_FALSE(EscritorDeArgumentos().Texto(std::string(kCargaMaxima - 1, 'x')).Cabe());
    EXPECT_FALSE(EscritorDeArgumentos().Texto(std::string(70000, 'x')).Cabe());
}

TEST(Decodificador, YieldsAFrameFedByteByByte)
{
    const Quadro quadro{'C', 255, "\x02\x03\x1b\x0d\x0a"s};
    Decodificador decodificador;
    std::vector<Evento> eventos;
    for (const char byte : CodificaQuadro(quadro))
        for (const Evento &evento : decodificador.Recebe({&byte, 1}, 10))
            eventos.push_back(evento);
    EXPECT_THAT(eventos, ElementsAre(DoQuadro(quadro)));
}

TEST(Decodificador, TellsFramesCommandsAndLinesApart)
{
    Decodificador decodificador;
    const std::string tudo = "\x1bI"s + "linha um\r\n" + CodificaQuadro({'T', 1, "\0\1"s}) +
                             "\x1b\xaf\x44\x32\x0d" + "\r\n" + "dois";
    EXPECT_THAT(decodificador.Recebe(tudo, 0),
                ElementsAre(De(Evento::Tipo::Inversao), De(Evento::Tipo::Linha, "linha um"),
                            DoQuadro({'T', 1, "\0\1"s}), De(Evento::Tipo::DigitosDoAno, "", 2),
                            De(Evento::Tipo::Linha, "")));
    EXPECT_EQ(decodificador.TomaTextoPendente(), "dois");
    EXPECT_EQ(decodificador.TomaTextoPendente(), "");
}

TEST(Decodificador, DeliversTextCutShortByAFrame)
{
    Decodificador decodificador;
    EXPECT_THAT(decodificador.Recebe("sem fim" + CodificaQuadro({'Z', 0, ""}), 0),
                ElementsAre(De(Evento::Tipo::LinhaInacabada, "sem fim"), DoQuadro({'Z', 0, ""})));
}

TEST(Decodificador, BoundsALineThatNeverEnds)
{
    Decodificador decodificador;
    EXPECT_THAT(decodificador.Recebe(std::string(kLinhaMaxima + 3, 'x'), 0),
                ElementsAre(De(Evento::Tipo::LinhaInacabada, std::string(kLinhaMaxima, 'x'))));
    EXPECT_EQ(decodificador.TomaTextoPendente(), "xxx");
}

struct CasoComando {
    std::string nome;
    std::string bytes;
    std::vector<Evento> eventos;
};
void PrintTo(const CasoComando &c, std::ostream *os)
{
    *os << testing::PrintToString(c.bytes);
}
class ComandoTest : public testing::TestWithParam<CasoComando> {};

TEST_P(ComandoTest, IsRecognised)
{
    Decodificador decodificador;
    EXPECT_EQ(decodificador.Recebe(GetParam().bytes, 0), GetParam().eventos);
}

constexpr auto kEstranho = Evento::Tipo::ComandoDesconhecido;
INSTANTIATE_TEST_SUITE_P(
    Comandos, ComandoTest,
    testing::Values(
        CasoComando{"OneDigit", "\x1b\xaf\x44\x31\x0d", {De(Evento::Tipo::DigitosDoAno, "", 1)}},
        CasoComando{"TwoDigits", "\x1b\xaf\x44\x32\x0d", {De(Evento::Tipo::DigitosDoAno, "", 2)}},
        CasoComando{"FourDigits", "\x1b\xaf\x44\x34\x0d", {De(Evento::Tipo::DigitosDoAno, "", 4)}},
        CasoComando{"ThreeDigitsAreNoCommand", "\x1b\xaf\x44\x33", {De(kEstranho, "\x1b\xaf\x44\x33")}},
        CasoComando{"NoReturnAtTheEnd", "\x1b\xaf\x44\x31\x0a", {De(kEstranho, "\x1b\xaf\x44\x31\x0a")}},
        CasoComando{"OtherLetter", "\x1bJ", {De(kEstranho, "\x1bJ")}},
        CasoComando{"EscapeTwice", "\x1b\x1bI", {De(kEstranho, "\x1b"), De(Evento::Tipo::Inversao)}},
        CasoComando{"FrameInsideACommand",
                    "\x1b\xaf" + CodificaQuadro({'Z', 3, ""}),
                    {De(kEstranho, "\x1b\xaf"), DoQuadro({'Z', 3, ""})}}),
    [](const auto &caso) { return caso.param.nome; });

TEST(Decodificador, RefusesEveryFrameWithOneByteChanged)
{
    const std::string inteiro = CodificaQuadro({'I', 9,
                                                "\0\2"
                                                "23"s});
    for (std::size_t i = 3; i < inteiro.size(); ++i) { // the length itself would only make it wait
        std::string danificado = inteiro;
        danificado[i] = static_cast<char>(danificado[i] ^ 0x41);
        Decodificador decodificador;
        EXPECT_THAT(decodificador.Recebe(danificado, 0), ElementsAre(De(Evento::Tipo::QuadroDanificado)))
            << i;
    }
}

TEST(Decodificador, AfterADamagedFrameTakesNothingBeforeTheSilence)
{
    std::string danificado = CodificaQuadro({'Z', 1, ""});
    danificado.back() = 'x';
    const std::string bom = CodificaQuadro({'Z', 2, ""});
    Decodificador decodificador;
    EXPECT_THAT(decodificador.Recebe(danificado, 1000), ElementsAre(De(Evento::Tipo::QuadroDanificado)));
    EXPECT_EQ(decodificador.Prazo(), 1100);
    EXPECT_THAT(decodificador.Recebe(bom, 1099), IsEmpty());
    EXPECT_THAT(decodificador.Recebe(bom, 1198), IsEmpty()); // the silence counts from the last byte
    EXPECT_THAT(decodificador.Recebe(bom, 1298), ElementsAre(DoQuadro({'Z', 2, ""})));
}

TEST(Decodificador, RefusesAnOverLongFrameAtItsLength)
{
    Decodificador decodificador;
    EXPECT_THAT(decodificador.Recebe("\x02\x80\x00"s, 0), ElementsAre(De(Evento::Tipo::QuadroDanificado)));
    EXPECT_THAT(decodificador.Recebe("the rest of it", 1), IsEmpty());
}

TEST(Decodificador, GivesAFrameUpAfterAGapOfOver500Milliseconds)
{
    const std::string bom = CodificaQuadro({'Z', 2, ""});
    Decodificador decodificador;
    EXPECT_THAT(decodificador.Recebe(bom.substr(0, 4), 0), IsEmpty());
    EXPECT_THAT(decodificador.Espera(500), IsEmpty());
    EXPECT_EQ(decodificador.Prazo(), 501);
    EXPECT_THAT(decodificador.Espera(501), ElementsAre(De(Evento::Tipo::QuadroDanificado)));
    EXPECT_EQ(decodificador.Prazo(), -1);
    EXPECT_THAT(decodificador.Recebe(bom, 502), ElementsAre(DoQuadro({'Z', 2, ""})));
}

TEST(Decodificador, FindsAGapWhenTheNextByteComes)
{
    const std::string bom = CodificaQuadro({'Z', 2, ""});
    Decodificador decodificador;
    EXPECT_THAT(decodificador.Recebe(bom.substr(0, 4), 0), IsEmpty());
    EXPECT_THAT(decodificador.Recebe(bom, 700),
                ElementsAre(De(Evento::Tipo::QuadroDanificado), DoQuadro({'Z', 2, ""})));
}

TEST(Decodificador, KeepsAFrameThatComesSlowlyButWithoutAGap)
{
    const Quadro quadro{'B', 4, "abc"};
    Decodificador decodificador;
    std::vector<Evento> eventos;
    std::int64_t agora = 0;
    for (const char byte : CodificaQuadro(quadro))
        eventos = decodificador.Recebe({&byte, 1}, agora += 500);
    EXPECT_THAT(eventos, ElementsAre(DoQuadro(quadro)));
}

TEST(Decodificador, GivesACommandUpAfterAGap)
{
    Decodificador decodificador;
    EXPECT_THAT(decodificador.Recebe("\x1b\xaf", 0), IsEmpty());
    EXPECT_THAT(decodificador.Recebe("a\r\n", 501),
                ElementsAre(De(kEstranho, "\x1b\xaf"), De(Evento::Tipo::Linha, "a")));
}

// What an answer comes to: a number when it ends by itself, or the number at the time-out, marked by a minus.
int Julga(std::string_view bytes)
{
    LeitorDeResposta leitor(5);
    for (const char byte : bytes)
        if (leitor.Recebe(byte) == LeitorDeResposta::Passo::Terminou)
            return leitor.Resultado();
    return -leitor.ResultadoNoPrazo();
}

std::string Quebrado(std::string bytes)
{
    bytes[bytes.size() - 2] = static_cast<char>(bytes[bytes.size() - 2] + 1);
    return bytes;
}

struct CasoResposta {
    std::string nome;
    std::string bytes;
    int resultado;
};
void PrintTo(const CasoResposta &c, std::ostream *os)
{
    *os << testing::PrintToString(c.bytes);
}
class RespostaTest : public testing::TestWithParam<CasoResposta> {};

TEST_P(RespostaTest, ComesToItsNumber)
{
    EXPECT_EQ(Julga(GetParam().bytes), GetParam().resultado);
}

INSTANTIATE_TEST_SUITE_P(
    Respostas, RespostaTest,
    testing::Values(CasoResposta{"SuccessIsOne", "\x06" + CodificaResultado(5, 1), 1},
                    CasoResposta{"NoDocument", "\x06" + CodificaResultado(5, 20), 20},
                    CasoResposta{"OtherFault", "\x06" + CodificaResultado(5, 29), 29},
                    CasoResposta{"ANumberOfTheHostBecomesOtherFault", "\x06" + CodificaResultado(5, 10), 29},
                    CasoResposta{"ZeroBecomesOtherFault", "\x06" + CodificaResultado(5, 0), 29},
                    CasoResposta{"ANegativeNumberBecomesOtherFault", "\x06" + CodificaResultado(5, -1), 29},
                    CasoResposta{"Nak", "\x15", 13}, CasoResposta{"Nothing", "", -10},
                    CasoResposta{"ConfirmedAndNothingMore", "\x06", -14},
                    CasoResposta{"ConfirmedAndCutResult", "\x06" + CodificaResultado(5, 1).substr(0, 6), -14},
                    CasoResposta{"CutResultWithoutConfirmation", CodificaResultado(4, 1).substr(0, 6), -11},
                    CasoResposta{"RubbishInsteadOfTheConfirmation", "z", 11},
                    CasoResposta{"RubbishInsteadOfTheResult", "\x06z", 11},
                    CasoResposta{"ConfirmedTwice", "\x06\x06", 11},
                    CasoResposta{"DamagedResult", "\x06" + Quebrado(CodificaResultado(5, 1)), 11},
                    CasoResposta{"ResultWithoutConfirmation", CodificaResultado(5, 1), 11},
                    CasoResposta{"FrameOfAnotherType", "\x06" + CodificaQuadro({'q', 5, "\0\1"s}), 11},
                    CasoResposta{"ResultOfThreeBytes", "\x06" + CodificaQuadro({'r', 5, "\0\1\0"s}), 11},
                    CasoResposta{"ResultOfNoBytes", "\x06" + CodificaQuadro({'r', 5, ""}), 11},
                    CasoResposta{"LateResultOfTheOrderBefore",
                                 CodificaResultado(4, 20) + "\x06" + CodificaResultado(5, 1), 1},
                    CasoResposta{"LateConfirmationAndResultOfTheOrderBefore",
                                 "\x06" + CodificaResultado(4, 1) + "\x06" + CodificaResultado(5, 21), 21},
                    CasoResposta{"OnlyTheOrderBeforeWasAnswered", "\x06" + CodificaResultado(4, 1), -10},
                    CasoResposta{"RefusedAfterALateResult", CodificaResultado(4, 1) + "\x15", 13}),
    [](const auto &caso) { return caso.param.nome; });

TEST(Qx7032Conselho, AdvisesOnEveryNumberAndOnNoOther)
{
    EXPECT_STREQ(Qx7032Conselho(QX7032_SEM_DOCUMENTO),
                 "Não há documento na impressora. Insira o documento e tente de novo.");
    EXPECT_STREQ(Qx7032Conselho(QX7032_SUCESSO), "Tudo certo.");
    for (const int numero : {-1, 8, 9, 15, 19, 25, 28, 31})
        EXPECT_EQ(Qx7032Conselho(numero), nullptr) << numero;
}

// The page that people read has every number, name and advice of the header, one a line of its table.
TEST(Qx7032Conselho, StandsInTheProtocolPageWordForWord)
{
    std::ostringstream pagina;
    pagina << std::ifstream(QX70_TEST_DATA "/../../../docs/protocolo.md").rdbuf();
    const auto linha = [](const char *nome, int numero, const char *conselho) {
        return "\n| " + std::to_string(numero) + " | `" + nome + "` | " + conselho + " |\n";
    };
#define EXIGE_LINHA(nome, numero, conselho)                                                                  \
    EXPECT_THAT(pagina.str(), testing::HasSubstr(linha(#nome, numero, conselho)));
    QX7032_TABELA_DE_RESULTADOS(EXIGE_LINHA)
#undef EXIGE_LINHA
}

} // namespace
} // namespace qx7032
