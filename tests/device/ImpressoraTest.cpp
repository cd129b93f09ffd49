// The 15 operations over a real library: what crosses, what comes back, and what happens without it.
#include "device/Impressora.h"

#include "ComGravadora.h"
#include <functional>

using device::Impressora;

namespace {

struct CasoOperacao {
    std::string nome;
    std::function<int(Impressora &)> chama;
    const char *gravado;
    int semBiblioteca; ///< answer while the library cannot be loaded
};

void PrintTo(const CasoOperacao &c, std::ostream *os)
{
    *os << c.gravado;
}

const device::TextosDoCheque kCheque{"001", "1.234,50", "José", "São Paulo", "01/02/99", ""};

std::vector<CasoOperacao> Operacoes()
{
    return {
        {"IniciaPorta",
         [](Impressora &i) {
             QString porta = "COM3";
             return i.IniciaPorta(porta);
         },
         R"(IniciaPorta("COM3"))", 0},
        {"FechaPorta", [](Impressora &i) { return i.FechaPorta(); }, "FechaPorta()", -1},
        {"TravaDoc", [](Impressora &i) { return i.TravaDoc(1); }, "TravaDoc(1)", -1},
        {"FormataTX", [](Impressora &i) { return i.FormataTX("a\nb", 2, 3, 4, 5, 6); },
         R"(FormataTX("a\x0Ab",2,3,4,5,6))", -1},
        {"KorvalenTX", [](Impressora &i) { return i.KorvalenTX("linha\r\n"); },
         R"(KorvalenTX("linha\x0D\x0A"))", -1},
        {"ComandoTX", [](Impressora &i) { return i.ComandoTX("\x1BX", 2); }, R"(ComandoTX("\x1BX",2))", -1},
        {"ImprimeCheque", [](Impressora &i) { return i.ImprimeCheque(kCheque); },
         R"(ImprimeCheque("001","1.234,50","Jos\xE9","S\xE3o Paulo","01/02/99",""))", -1},
        {"ImprimeCampoX", [](Impressora &i) { return i.ImprimeCampoX(3, 20, 119, "x"); },
         R"(ImprimeCampoX(3,20,119,"x"))", -1},
        {"IncluiBanco", [](Impressora &i) { return i.IncluiBanco("237", "001,004"); },
         R"(IncluiBanco("237","001,004"))", -1},
        {"IncluiFavorecido", [](Impressora &i) { return i.IncluiFavorecido("07", "Ana"); },
         R"(IncluiFavorecido("07","Ana"))", -1},
        {"ExcluiFavorecido", [](Impressora &i) { return i.ExcluiFavorecido("*"); },
         R"(ExcluiFavorecido("*"))", -1},
        {"CancelaRel", [](Impressora &i) { return i.CancelaRel("u"); }, R"(CancelaRel("u"))", -1},
        {"AlteraMoeda", [](Impressora &i) { return i.AlteraMoeda("Real", "Reais"); },
         R"(AlteraMoeda("Real","Reais"))", -1},
        {"ZeraConfig", [](Impressora &i) { return i.ZeraConfig(); }, "ZeraConfig()", -1},
        {"MontaValor", [](Impressora &i) { return i.MontaValor("12,00", "real", "reais"); },
         R"(MontaValor("12,00","real","reais"))", 2},
    };
}

class OperacaoTest : public teste::ComImpressora, public testing::WithParamInterface<CasoOperacao> {};
class OperacaoSemBibliotecaTest : public teste::ComGravadora,
                                  public testing::WithParamInterface<CasoOperacao> {};

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };

} // namespace

TEST_P(OperacaoTest, PassesItsArgumentsInOrder)
{
    GetParam().chama(m_impressora);
    EXPECT_EQ(m_gravacao.Chamadas(), QStringList({GetParam().gravado}));
}

TEST_P(OperacaoTest, AnswersTheNumberOfTheLibrary)
{
    m_gravacao.Roteiro(QByteArray("resultado ") + GetParam().nome.c_str() + " -321\n");
    EXPECT_EQ(GetParam().chama(m_impressora), -321);
}

TEST_P(OperacaoTest, BlocksTheScreenWhileTheLibraryWorks)
{
    GetParam().chama(m_impressora);
    EXPECT_EQ(m_ocupado.passos, std::vector<std::string>({"comeca em 0", "termina em 1"}));
}

INSTANTIATE_TEST_SUITE_P(Operacoes, OperacaoTest, testing::ValuesIn(Operacoes()), kNomeDoCaso);

TEST_P(OperacaoSemBibliotecaTest, FailsWithItsNumberAndTellsWhy)
{
    Impressora impressora(m_pastas, m_mensagens, m_indicador, m_ocupado);
    EXPECT_EQ(GetParam().chama(impressora), GetParam().semBiblioteca);
    ASSERT_EQ(m_mensagens.caixas.size(), 1U);
    EXPECT_TRUE(m_mensagens.caixas[0].texto.contains("libqx7032.so"));
    EXPECT_TRUE(m_mensagens.caixas[0].texto.contains(m_pastaApp.path()));
    EXPECT_TRUE(m_mensagens.caixas[0].texto.contains(m_pastaExe.path()));
    EXPECT_EQ(m_mensagens.caixas[0].titulo, "QX70 MIRA - Document Printer");
    EXPECT_EQ(m_mensagens.caixas[0].icone, nucleo::Icone::Pare);
    EXPECT_EQ(m_mensagens.caixas[0].botoes, nucleo::Botoes::Ok);
    EXPECT_FALSE(m_mensagens.caixas[0].bloqueada);
    EXPECT_TRUE(m_ocupado.passos.empty());
}

INSTANTIATE_TEST_SUITE_P(Operacoes, OperacaoSemBibliotecaTest, testing::ValuesIn(Operacoes()), kNomeDoCaso);

namespace {

class ImpressoraTest : public teste::ComImpressora {};
class ImpressoraSemBibliotecaTest : public teste::ComGravadora {
protected:
    Impressora m_impressora{m_pastas, m_mensagens, m_indicador, m_ocupado};
    QString m_porta = "COM2";
};

} // namespace

TEST_F(ImpressoraSemBibliotecaTest, IsToldOnlyOnce)
{
    m_impressora.FechaPorta();
    m_impressora.IniciaPorta(m_porta);
    m_impressora.FechaPorta();
    EXPECT_EQ(m_mensagens.caixas.size(), 1U);
}

TEST_F(ImpressoraSemBibliotecaTest, IsNotToldBeforeTheFirstUse)
{
    m_impressora.SinalizaPorta(1);
    EXPECT_TRUE(m_mensagens.caixas.empty());
}

TEST_F(ImpressoraSemBibliotecaTest, WorksOnceTheFileIsThere)
{
    ASSERT_EQ(m_impressora.IniciaPorta(m_porta), 0);
    PoeBiblioteca(m_pastaExe);
    EXPECT_EQ(m_impressora.IniciaPorta(m_porta), 1);
    EXPECT_EQ(m_gravacao.Chamadas(), QStringList({R"(IniciaPorta("COM2"))"}));
}

TEST_F(ImpressoraSemBibliotecaTest, LeavesThePortNameAlone)
{
    m_porta = QStringLiteral("COM\u03A9");
    m_impressora.IniciaPorta(m_porta);
    EXPECT_EQ(m_porta, QStringLiteral("COM\u03A9"));
}

TEST_F(ImpressoraTest, PortNameTakesWhatTheLibraryLeftInTheBuffer)
{
    m_gravacao.Roteiro("reescreve IniciaPorta COM4\n");
    m_impressora.IniciaPorta(m_porta);
    EXPECT_EQ(m_porta, "COM4");
    m_impressora.IniciaPorta(m_porta);
    EXPECT_EQ(m_gravacao.Chamadas(), QStringList({R"(IniciaPorta("COM2"))", R"(IniciaPorta("COM4"))"}));
}

TEST_F(ImpressoraTest, PortNameComesBackThroughTheWindowsCharacterSet)
{
    m_gravacao.Roteiro("reescreve IniciaPorta \x80\xC7\n");
    m_impressora.IniciaPorta(m_porta);
    EXPECT_EQ(m_porta, QStringLiteral("\u20AC\u00C7"));
}

TEST_F(ImpressoraTest, PortNameStaysWhenTheLibraryLeavesTheBufferAlone)
{
    m_impressora.IniciaPorta(m_porta);
    EXPECT_EQ(m_porta, "COM2");
}

TEST_F(ImpressoraTest, LibraryMayWrite256BytesBehindATextOfFourBytes)
{
    const QByteArray longo(259, 'x');
    m_gravacao.Roteiro("reescreve IniciaPorta " + longo + "\n");
    m_impressora.IniciaPorta(m_porta);
    EXPECT_EQ(m_porta, QString::fromLatin1(longo));
}

TEST_F(ImpressoraTest, RewrittenBufferOfAnotherOperationLeavesTheTextOfTheCaller)
{
    m_gravacao.Roteiro("reescreve FormataTX yyy\n");
    const QString texto = "abc";
    m_impressora.FormataTX(texto, 3, 0, 0, 0, 0);
    EXPECT_EQ(texto, "abc");
}

TEST_F(ImpressoraTest, TextCrossesAsWindows1252WithAQuestionMarkForTheRest)
{
    m_impressora.KorvalenTX(QStringLiteral("\u20ACç\u03A9\u0081"));
    EXPECT_EQ(m_gravacao.Chamadas(), QStringList({R"(KorvalenTX("\x80\xE7?\x81"))"}));
}

TEST_F(ImpressoraTest, EmbeddedNulEndsTheText)
{
    m_impressora.KorvalenTX(QStringLiteral("ab\0cd"));
    EXPECT_EQ(m_gravacao.Chamadas(), QStringList({R"(KorvalenTX("ab"))"}));
}

TEST_F(ImpressoraTest, LongTextCrossesWhole)
{
    const QString texto(5000, 'z');
    m_impressora.FormataTX(texto, 2, 0, 0, 0, 0);
    EXPECT_EQ(m_gravacao.Chamadas(), QStringList({"FormataTX(\"" + texto + "\",2,0,0,0,0)"}));
}

TEST_F(ImpressoraTest, NumberOutsideSixteenBitsCrossesAsTheNearest)
{
    m_impressora.ImprimeCampoX(1, 70000, -70000, "x");
    EXPECT_EQ(m_gravacao.Chamadas(), QStringList({R"(ImprimeCampoX(1,32767,-32768,"x"))"}));
}

TEST_F(ImpressoraTest, SinalizaPortaWithZeroDoesNothing)
{
    m_impressora.SinalizaPorta(0);
    EXPECT_TRUE(m_indicador.valores.empty());
    EXPECT_TRUE(m_indicador.trocas.empty());
}

TEST_F(ImpressoraTest, SinalizaPortaRunsFromZeroToHundredByTwos)
{
    m_impressora.SinalizaPorta(1);
    ASSERT_EQ(m_indicador.valores.size(), 51U);
    for (int i = 0; i <= 50; ++i)
        EXPECT_EQ(m_indicador.valores[static_cast<size_t>(i)], 2 * i);
}

TEST_F(ImpressoraTest, SinalizaPortaTurnsYellowAbove60AndRedAbove80)
{
    using Troca = teste::IndicadorGravado::Troca;
    m_impressora.SinalizaPorta(-1);
    std::vector<Troca> esperadas{{-1, 0x00FF00}};
    for (const int i : {62, 64, 66, 68, 70, 72, 74, 76, 78})
        esperadas.push_back({i, 0x00FFFF});
    for (const int i : {82, 84, 86, 88, 90, 92, 94, 96, 98, 100})
        esperadas.push_back({i, 0x0000FF});
    EXPECT_TRUE(m_indicador.trocas == esperadas);
}

TEST_F(ImpressoraTest, SinalizaPortaEndsRedAndZeroDoesNotTurnItBack)
{
    m_impressora.SinalizaPorta(1);
    m_impressora.SinalizaPorta(0);
    EXPECT_EQ(m_indicador.cor, 0x0000FFU);
    EXPECT_EQ(m_indicador.valores.back(), 100);
    EXPECT_TRUE(m_gravacao.Chamadas().isEmpty());
}
