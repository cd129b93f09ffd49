// The device's answers: operations, held documents, extra fields, the slot.
#include <gmock/gmock.h>

#include <QFile>

#include "DispositivoApoio.h"
#include "qx7032/resultados.h"

using namespace simulador;
using apoio::Comando;
using apoio::DispositivoTest;
using apoio::kAck;
using apoio::kNak;
using apoio::Linha;
using apoio::Ordem;
using qx7032::Evento;

namespace {

TEST_F(DispositivoTest, PrintsAChequeAndAnswersWithItsSequence)
{
    const Reacao reacao = Faz(Cheque(77));
    EXPECT_EQ(reacao.imediata, kAck);
    EXPECT_EQ(reacao.final, QByteArray::fromStdString(qx7032::CodificaResultado(77, 1)));
    EXPECT_TRUE(reacao.tomouDocumento);
    ASSERT_EQ(reacao.documentos.size(), 1U);
    const Documento &documento = reacao.documentos[0];
    EXPECT_EQ(documento.formulario.banco, "001");
    EXPECT_EQ(documento.formulario.nomeDoBanco, "BANCO EXEMPLO");
    EXPECT_EQ(apoio::LinhaDe(documento, 10), QString::fromUtf8("          João"));
    EXPECT_EQ(m_dispositivo.MemoriaAtual().relatorio,
              (QList<ChequeEnviado>{{"001", "1.234,56", QString::fromUtf8("João"),
                                     QString::fromUtf8("São Paulo"), "05/03/26"}}));
}

TEST_F(DispositivoTest, TheSixthTextPrintsNothing)
{
    const auto documento = Faz(Ordem('C', {"001", "1,00", "F", "C", "05/03/26", "1,00"})).documentos.at(0);
    EXPECT_TRUE(documento == Faz(Ordem('C', {"001", "1,00", "F", "C", "05/03/26", ""})).documentos.at(0));
}

struct CasoResultado {
    const char *nome;
    Evento evento;
    int resultado;
};
void PrintTo(const CasoResultado &c, std::ostream *os)
{
    *os << c.nome;
}
class OperacoesTest : public DispositivoTest, public testing::WithParamInterface<CasoResultado> {};
TEST_P(OperacoesTest, AnswerTheirResult)
{
    ASSERT_EQ(Resultado(Ordem('I', {"23", "Maria"})), 1);
    const Reacao reacao = Faz(GetParam().evento);
    EXPECT_EQ(reacao.imediata, kAck);
    EXPECT_EQ(reacao.resultado, GetParam().resultado);
    EXPECT_EQ(reacao.aviso.isEmpty(), GetParam().resultado == 1);
}
INSTANTIATE_TEST_SUITE_P(
    Resultados, OperacoesTest,
    testing::Values(
        CasoResultado{"BankWithoutLayout", Ordem('C', {"237", "1,00", "F", "C", "05/03/26", ""}), 22},
        CasoResultado{"BankNoNumber", Ordem('C', {"abc", "1,00", "F", "C", "05/03/26", ""}), 22},
        CasoResultado{"AmountUnreadable", Ordem('C', {"001", "x", "F", "C", "05/03/26", ""}), 23},
        CasoResultado{"DateUnreadable", Ordem('C', {"001", "1,00", "F", "C", "31/02/26", ""}), 23},
        CasoResultado{"FiveTexts", Ordem('C', {"001", "1,00", "F", "C", "05/03/26"}), 23},
        CasoResultado{"SevenTexts", Ordem('C', {"001", "1,00", "F", "C", "05/03/26", "", ""}), 23},
        CasoResultado{"BankIncluded", Ordem('B', {"237", apoio::kPosicoes}), 1},
        CasoResultado{"BankWithAllAt999",
                      Ordem('B', {"995", "999,999,999,999,999,999,999,999,999,999,999,999,999"}), 1},
        CasoResultado{"BankWithTwelveNumbers", Ordem('B', {"237", "1,2,3,4,5,6,7,8,9,10,11,12"}), 23},
        CasoResultado{"BankWithGarbage", Ordem('B', {"237", "lixo"}), 23},
        CasoResultado{"BankWithoutCode", Ordem('B', {"", apoio::kPosicoes}), 23},
        CasoResultado{"BankCodeOfFourDigits", Ordem('B', {"1234", apoio::kPosicoes}), 23},
        CasoResultado{"PayeeIncluded", Ordem('I', {"07", std::string(48, 'x')}), 1},
        CasoResultado{"PayeeOf49Characters", Ordem('I', {"07", std::string(49, 'x')}), 23},
        CasoResultado{"PayeeWithOneDigit", Ordem('I', {"7", "Maria"}), 23},
        CasoResultado{"PayeeWithoutName", Ordem('I', {"07", " "}), 23},
        CasoResultado{"PayeeRemoved", Ordem('E', {"23"}), 1},
        CasoResultado{"PayeeUnknown", Ordem('E', {"24"}), 24},
        CasoResultado{"PayeesAllRemoved", Ordem('E', {"*"}), 1},
        CasoResultado{"PayeeCodeEmpty", Ordem('E', {""}), 24},
        CasoResultado{"ReportCleared", Ordem('R', {"*"}), 1},
        CasoResultado{"ReportLastU", Ordem('R', {"U"}), 1},
        CasoResultado{"ReportLastLowerU", Ordem('R', {"u"}), 1},
        CasoResultado{"ReportOther", Ordem('R', {"x"}), 23},
        CasoResultado{"CurrencyChanged", Ordem('M', {"Peso", "Pesos"}), 1},
        CasoResultado{"CurrencyEmpty", Ordem('M', {"", "Pesos"}), 23},
        CasoResultado{"CurrencyTooLong", Ordem('M', {"Peso", std::string(41, 'x')}), 23},
        CasoResultado{"ConfigurationCleared", Ordem('Z', {}), 1},
        CasoResultado{"ClearWithAnArgument", Ordem('Z', {1}), 23},
        CasoResultado{"HoldWithTwo", Ordem('T', {2}), 23},
        CasoResultado{"HoldWithoutNumber", Ordem('T', {}), 23},
        CasoResultado{"ReleaseWithNothingHeld", Ordem('T', {0}), 1},
        CasoResultado{"ModeUnknown", Ordem('F', {"x", 4, 0, 0, 0, 0}), 23},
        CasoResultado{"FreeTextWithoutNumbers", Ordem('F', {"x"}), 23},
        CasoResultado{"ExtraFieldZero", Ordem('X', {0, 1, 1, "x"}), 23},
        CasoResultado{"ExtraFieldTooLong", Ordem('X', {1, 1, 1, std::string(121, 'x')}), 23},
        CasoResultado{"OrderUnknown", Ordem('Q', {}), 29}),
    [](const auto &caso) { return caso.param.nome; });

TEST_F(DispositivoTest, BankIsKeptUnderThreeDigits)
{
    EXPECT_TRUE(Faz(Ordem('B', {"7", apoio::kPosicoes})).memoriaMudou);
    EXPECT_EQ(m_dispositivo.MemoriaAtual().bancos.keys(), (QStringList{"001", "007"}));
    EXPECT_EQ(Resultado(Cheque(0, "007")), 1);
}

TEST_F(DispositivoTest, ANewLayoutKeepsTheBanksName)
{
    Faz(Ordem('B', {"001", "02,06,08,11,14,92,17,09,11,50,31,40,65"}));
    EXPECT_EQ(m_dispositivo.MemoriaAtual().bancos["001"].nome, "BANCO EXEMPLO");
    EXPECT_EQ(m_dispositivo.MemoriaAtual().bancos["001"].posicoes.linhas[0], 2);
}

TEST_F(DispositivoTest, PayeesAreKeptReplacedAndRemoved)
{
    Faz(Ordem('I', {"23", "Jo\xC6o"}));
    Faz(Ordem('I', {"07", "Maria"}));
    Faz(Ordem('I', {"07", "Ana"}));
    EXPECT_EQ(m_dispositivo.MemoriaAtual().favorecidos,
              (QMap<QString, QString>{{"07", "Ana"}, {"23", QString::fromUtf8("João")}}));
    Faz(Ordem('E', {"07"}));
    EXPECT_EQ(m_dispositivo.MemoriaAtual().favorecidos.keys(), QStringList{"23"});
    Faz(Ordem('E', {"*"}));
    EXPECT_TRUE(m_dispositivo.MemoriaAtual().favorecidos.isEmpty());
}

TEST_F(DispositivoTest, CancelTakesTheLastOrAllOfTheReport)
{
    for (const char *valor : {"1,00", "2,00", "3,00", "4,00"})
        Faz(Ordem('C', {"001", valor, "F", "C", "05/03/26", ""}));
    Faz(Ordem('R', {"U"}));
    Faz(Ordem('R', {"u"}));
    ASSERT_EQ(m_dispositivo.MemoriaAtual().relatorio.size(), 2);
    EXPECT_EQ(m_dispositivo.MemoriaAtual().relatorio.last().valor, "2,00");
    Faz(Ordem('R', {"*"}));
    EXPECT_TRUE(m_dispositivo.MemoriaAtual().relatorio.isEmpty());
}

TEST_F(DispositivoTest, CurrencyNamesPrintInTheWords)
{
    Faz(Ordem('M', {"cruzado", "cruzados"}));
    EXPECT_TRUE(apoio::LinhaDe(Faz(Cheque()).documentos.at(0), 5).contains("quatro cruzados e"));
}

TEST_F(DispositivoTest, ClearingTheConfigurationLeavesTheReport)
{
    Faz(Cheque());
    Faz(Ordem('I', {"23", "Maria"}));
    Faz(Ordem('M', {"a", "b"}));
    Faz(Comando(Evento::Tipo::DigitosDoAno, 1));
    Faz(Ordem('Z', {}));
    Memoria esperada;
    esperada.relatorio = m_dispositivo.MemoriaAtual().relatorio;
    EXPECT_EQ(esperada.relatorio.size(), 1);
    EXPECT_TRUE(m_dispositivo.MemoriaAtual() == esperada);
}

TEST_F(DispositivoTest, YearCommandIsToldAndKept)
{
    for (int digitos : {1, 2, 4}) {
        const Reacao reacao = Faz(Comando(Evento::Tipo::DigitosDoAno, digitos));
        EXPECT_EQ(reacao.imediata + reacao.final, QByteArray());
        EXPECT_EQ(reacao.comandoAno, digitos);
        EXPECT_TRUE(reacao.memoriaMudou);
        EXPECT_EQ(m_dispositivo.MemoriaAtual().digitosDoAno, digitos);
    }
}

TEST_F(DispositivoTest, DamagedFrameIsAnsweredAndNothingDone)
{
    const Reacao reacao = Faz(Comando(Evento::Tipo::QuadroDanificado));
    EXPECT_EQ(reacao.imediata, kNak);
    EXPECT_EQ(reacao.final, QByteArray());
    EXPECT_FALSE(reacao.memoriaMudou);
}

// --- accents ---

TEST_F(DispositivoTest, AllSixtyOneAccentsReachThePaper)
{
    const QString sinais = QString::fromUtf8("ÀÁÂÃÄÇÈÉÊËÌÍÎÏÑÒÓÔÕÖÙÚÛÜÝàáâãäçèéêëìíîïñòóôõöùúûüýÿ¹²³£¢¬§ªº°");
    const std::string bytes =
        "\xB7\xB5\xB6\xC7\x8E\x80\xD4\x90\xD2\xD3\xDE\xD6\xD7\xD8\xA5\xE3\xE0\xE2\xE5\x99\xEB\xE9\xEA\x9A\xED"
        "\x85\xA0\x83\xC6\x84\x87\x8A\x82\x88\x89\x8D\xA1\x8C\x8B\xA4\x95\xA2\x93\xE4\x94\x97\xA3\x96\x81\xEC"
        "\x98"
        "\xFB\xFD\xFC\x9C\xBD\xAA\xF5\xA6\xA7\xF8";
    ASSERT_EQ(sinais.size(), 61);
    ASSERT_EQ(bytes.size(), 61U);
    const Reacao cheque = Faz(Ordem('C', {"001", "1,00", bytes, "C", "05/03/26", ""}));
    EXPECT_EQ(apoio::LinhaDe(cheque.documentos.at(0), 10), QString(10, ' ') + sinais);
    EXPECT_EQ(apoio::LinhaDe(Faz(Texto(bytes)).documentos.at(0), 1), sinais);
    Faz(Trava(1));
    Faz(Linha(bytes));
    EXPECT_EQ(apoio::LinhaDe(Faz(Trava(0)).documentos.at(0), 1), sinais);
}

TEST_F(DispositivoTest, AccentsAgreeWithIndependentSoftware)
{
    QFile amostra(QStringLiteral(QX70_TEST_DATA "/cp850.tsv"));
    ASSERT_TRUE(amostra.open(QIODevice::ReadOnly));
    const QStringList linhas = QString::fromUtf8(amostra.readAll()).split('\n', Qt::SkipEmptyParts).mid(1);
    ASSERT_GT(linhas.size(), 20);
    for (const QString &linha : linhas) {
        const QStringList colunas = linha.split('\t');
        const std::string byte(1, static_cast<char>(colunas.at(3).toInt(nullptr, 16)));
        EXPECT_EQ(apoio::LinhaDe(Faz(Texto(byte)).documentos.at(0), 1), colunas.at(0).mid(1, 1));
    }
}

// --- held documents ---

TEST_F(DispositivoTest, HoldKeepsEverythingOnOneSheet)
{
    EXPECT_EQ(Resultado(Trava(1)), 1);
    EXPECT_TRUE(m_dispositivo.Travado());
    EXPECT_TRUE(Faz(Texto("titulo\r\n", 2, 1)).documentos.empty());
    EXPECT_TRUE(Faz(Linha("copia")).documentos.empty());
    const Reacao reacao = Faz(Trava(0));
    EXPECT_FALSE(m_dispositivo.Travado());
    ASSERT_EQ(reacao.documentos.size(), 1U);
    EXPECT_EQ(reacao.documentos[0].linhas,
              (std::vector<LinhaDeFolha>{{"titulo", 96, true, false}, {"copia", 96, false, false}}))
        << "the emphasis is that of the free text, the pitch stays";
}

TEST_F(DispositivoTest, EmptyHoldGivesNoDocument)
{
    Faz(Trava(1));
    Faz(Texto("", 3));
    EXPECT_TRUE(Faz(Trava(0)).documentos.empty());
}

TEST_F(DispositivoTest, NextHoldBringsTheFirstSheetOut)
{
    Faz(Trava(1));
    Faz(Texto("primeira\n"));
    const Reacao reacao = Faz(Trava(1));
    ASSERT_EQ(reacao.documentos.size(), 1U);
    EXPECT_EQ(apoio::LinhaDe(reacao.documentos[0], 1), "primeira");
    EXPECT_TRUE(m_dispositivo.Travado());
}

TEST_F(DispositivoTest, ChequeBringsTheHeldSheetOutFirst)
{
    Faz(Trava(1));
    Faz(Texto("folha\n"));
    const Reacao reacao = Faz(Cheque());
    ASSERT_EQ(reacao.documentos.size(), 2U);
    EXPECT_EQ(reacao.documentos[0].tipo, Documento::Tipo::Folha);
    EXPECT_EQ(reacao.documentos[1].tipo, Documento::Tipo::Cheque);
    EXPECT_FALSE(m_dispositivo.Travado());
}

TEST_F(DispositivoTest, SwitchingOffBringsTheHeldSheetOut)
{
    Faz(Trava(1));
    Faz(Texto("folha\n"));
    EXPECT_EQ(m_dispositivo.Encerra().size(), 1U);
    EXPECT_TRUE(m_dispositivo.Encerra().empty());
}

TEST_F(DispositivoTest, FreeTextOutsideAHoldIsADocumentOfItsOwn)
{
    EXPECT_EQ(Faz(Texto("a\n")).documentos.size(), 1U);
    EXPECT_EQ(Faz(Texto("b")).documentos.size(), 1U);
}

TEST_F(DispositivoTest, CopyLinesOutsideAHoldPrintNothing)
{
    const Reacao reacao = Faz(Linha("perdida"));
    EXPECT_THAT(reacao.aviso.toStdString(), testing::HasSubstr("perdida"));
    Faz(Trava(1));
    EXPECT_TRUE(Faz(Trava(0)).documentos.empty());
}

TEST_F(DispositivoTest, InversionTurnsTheCopyLinesBetween)
{
    Faz(Trava(1));
    Faz(Comando(Evento::Tipo::Inversao));
    Faz(Linha("dois"));
    Faz(Linha("um"));
    Faz(Comando(Evento::Tipo::Inversao));
    Faz(Linha("fim"));
    EXPECT_EQ(Faz(Trava(0)).documentos.at(0).linhas,
              (std::vector<LinhaDeFolha>{
                  {"dois", 80, false, true}, {"um", 80, false, true}, {"fim", 80, false, false}}));
}

TEST_F(DispositivoTest, InitialiseOnTheLineWorksAsInAText)
{
    Faz(Trava(1));
    Faz(Texto("", 1));
    Evento evento = Comando(Evento::Tipo::ComandoDesconhecido);
    evento.texto = "\x1B@";
    Faz(evento);
    Faz(Linha("a"));
    EXPECT_EQ(Faz(Trava(0)).documentos.at(0).linhas.at(0).largura, 80);
}

// --- extra fields ---

TEST_F(DispositivoTest, ExtraFieldsPrintOnTheNextChequeAlone)
{
    EXPECT_EQ(Resultado(Ordem('X', {1, 3, 7, "Ref. 1"}, 254)), 1);
    EXPECT_EQ(Resultado(Ordem('X', {2, 16, 5, "Ref. 2"}, 255)), 1);
    const auto primeiro = Faz(Cheque(0)).documentos.at(0); // the sequence goes round
    EXPECT_EQ(apoio::LinhaDe(primeiro, 3), "      Ref. 1");
    EXPECT_EQ(apoio::LinhaDe(primeiro, 16), "    Ref. 2");
    const auto segundo = Faz(Cheque(1)).documentos.at(0);
    EXPECT_EQ(apoio::LinhaDe(segundo, 3), QString());
}

TEST_F(DispositivoTest, AFieldSentTwicePrintsTheSecondText)
{
    Faz(Ordem('X', {1, 3, 7, "velho"}, 0));
    Faz(Ordem('X', {1, 16, 7, "novo"}, 1));
    const auto documento = Faz(Cheque(2)).documentos.at(0);
    EXPECT_EQ(apoio::LinhaDe(documento, 3), QString());
    EXPECT_EQ(apoio::LinhaDe(documento, 16), "      novo");
}

struct CasoPerdido {
    const char *nome;
    std::vector<Evento> entre; // between the field and the cheque of sequence 5
};
void PrintTo(const CasoPerdido &c, std::ostream *os)
{
    *os << c.nome;
}
class ExtrasPerdidosTest : public DispositivoTest, public testing::WithParamInterface<CasoPerdido> {};
TEST_P(ExtrasPerdidosTest, DoNotPrintOnAnotherCheque)
{
    ASSERT_EQ(Resultado(Ordem('X', {1, 3, 7, "Ref. 1"}, 1)), 1);
    for (const Evento &evento : GetParam().entre)
        Faz(evento);
    const Reacao reacao = Faz(DispositivoTest::Cheque(5));
    ASSERT_EQ(reacao.resultado, 1);
    EXPECT_EQ(apoio::LinhaDe(reacao.documentos.at(0), 3), QString());
}
INSTANTIATE_TEST_SUITE_P(
    Casos, ExtrasPerdidosTest,
    testing::Values(CasoPerdido{"ChequeLost", {}},
                    CasoPerdido{"SecondFieldRefused",
                                {Ordem('X', {0, 1, 1, "x"}, 2), Comando(Evento::Tipo::Inversao)}},
                    CasoPerdido{"DamagedFrame", {Comando(Evento::Tipo::QuadroDanificado)}},
                    CasoPerdido{"AnotherOrder", {Ordem('R', {"*"}, 2)}},
                    CasoPerdido{"ChequeRefused", {Ordem('C', {"999", "1,00", "F", "C", "05/03/26", ""}, 2)}}),
    [](const auto &caso) { return caso.param.nome; });

// --- the slot ---

TEST_F(DispositivoTest, WithoutADocumentNothingPrints)
{
    m_haDocumento = false;
    for (const Evento &evento : {Cheque(), Texto("x\n"), Trava(1)}) {
        EXPECT_TRUE(m_dispositivo.PedeDocumento(evento));
        const Reacao reacao = Faz(evento);
        EXPECT_EQ(reacao.resultado, 20);
        EXPECT_TRUE(reacao.documentos.empty());
        EXPECT_FALSE(reacao.tomouDocumento);
    }
    EXPECT_EQ(Resultado(Texto("x\n")), 20) << "the hold has no paper";
    EXPECT_EQ(Resultado(Trava(0)), 1);
    EXPECT_EQ(m_dispositivo.MemoriaAtual().relatorio.size(), 0);
}

TEST_F(DispositivoTest, AHeldDocumentServesWhateverTheSlotHas)
{
    EXPECT_EQ(Resultado(Trava(1)), 1);
    m_haDocumento = false;
    EXPECT_EQ(Resultado(Texto("x\n")), 1);
    EXPECT_EQ(Resultado(Cheque()), 20) << "a cheque is another document";
}

TEST_F(DispositivoTest, OnlyPrintingNeedsADocument)
{
    for (const Evento &evento :
         {Trava(0), Ordem('B', {"001", apoio::kPosicoes}), Ordem('X', {1, 1, 1, "x"}), Linha("x")})
        EXPECT_FALSE(m_dispositivo.PedeDocumento(evento));
    Faz(Trava(1));
    m_haDocumento = true;
    EXPECT_FALSE(m_dispositivo.PedeDocumento(Texto("x\n")));
    PoeFalha("nak");
    EXPECT_FALSE(m_dispositivo.PedeDocumento(Cheque()));
}

} // namespace
