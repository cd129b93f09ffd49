// The device under each of its faults.
#include <gmock/gmock.h>

#include "DispositivoApoio.h"

using apoio::DispositivoTest;
using apoio::kAck;
using apoio::kNak;
using apoio::Ordem;
using namespace simulador;

namespace {

struct CasoDeFalha {
    const char *nome;
    const char *falha;
    QByteArray imediata;
    int resultado; // 0: none told
    int documentos;
    bool lenta, queda;
};
void PrintTo(const CasoDeFalha &c, std::ostream *os)
{
    *os << c.falha;
}
class FalhasTest : public DispositivoTest, public testing::WithParamInterface<CasoDeFalha> {};
const QByteArray kLixo("\x7F\x55\xAA#?!\xFE\xFE\x00\x55", 10);

TEST_P(FalhasTest, StrikeTheChequeThenPass)
{
    PoeFalha((std::string(GetParam().falha) + ":1").c_str());
    const Reacao reacao = Faz(Cheque());
    EXPECT_EQ(reacao.imediata, GetParam().imediata);
    EXPECT_EQ(reacao.resultado, GetParam().resultado);
    EXPECT_EQ(reacao.final.size(), GetParam().queda ? 5 : GetParam().resultado == 0 ? 0 : 10);
    EXPECT_EQ(reacao.documentos.size(), static_cast<std::size_t>(GetParam().documentos));
    EXPECT_EQ(m_dispositivo.MemoriaAtual().relatorio.size(), GetParam().documentos) << "printed is reported";
    EXPECT_EQ(reacao.lenta, GetParam().lenta);
    EXPECT_EQ(reacao.queda, GetParam().queda);
    EXPECT_EQ(Faz(Cheque()).resultado, 1) << "used up by one document";
}

TEST_P(FalhasTest, StayUntilChanged)
{
    PoeFalha(GetParam().falha);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(Faz(Cheque()).imediata, GetParam().imediata);
    PoeFalha("nenhuma");
    EXPECT_EQ(Faz(Cheque()).resultado, 1);
}

TEST_P(FalhasTest, StrikeAHeldSheetThenPass)
{
    PoeFalha((std::string(GetParam().falha) + ":1").c_str());
    Faz(Trava(1));
    if (!GetParam().queda) {
        EXPECT_EQ(Faz(Texto("x\n")).resultado, GetParam().resultado);
    }
    Faz(Trava(0));
    EXPECT_EQ(m_dispositivo.FalhaAtual(), Falha{});
    Faz(Trava(1));
    EXPECT_EQ(Faz(Texto("x\n")).resultado, 1);
    EXPECT_EQ(Faz(Trava(0)).documentos.size(), 1U);
}

TEST_P(FalhasTest, StrikeTheFirstSheetWhenItIsNeverReleased)
{
    PoeFalha((std::string(GetParam().falha) + ":1").c_str());
    Faz(Trava(1));
    Faz(Texto("x\n"));
    EXPECT_EQ(Faz(Trava(1)).resultado, 1);
    EXPECT_EQ(Faz(Texto("y\n")).resultado, 1);
    EXPECT_EQ(apoio::LinhaDe(Faz(Trava(0)).documentos.at(0), 1), "y");
}

INSTANTIATE_TEST_SUITE_P(
    Falhas, FalhasTest,
    testing::Values(CasoDeFalha{"NoDocument", "sem-documento", kAck, 20, 0, false, false},
                    CasoDeFalha{"EndOfPaper", "fim-de-papel", kAck, 21, 0, false, false},
                    CasoDeFalha{"Silence", "silencio", "", 0, 0, false, false},
                    CasoDeFalha{"Rubbish", "lixo", kLixo, 0, 0, false, false},
                    CasoDeFalha{"HangUp", "queda", kAck, 0, 1, false, true},
                    CasoDeFalha{"Slow", "lenta", kAck, 1, 1, true, false},
                    CasoDeFalha{"PrintsAndFails", "imprime-e-erra", kAck, 29, 1, false, false},
                    CasoDeFalha{"NoEnd", "sem-fim", kAck, 0, 1, false, false},
                    CasoDeFalha{"Damaged", "nak", kNak, 0, 0, false, false}),
    [](const auto &caso) { return caso.param.nome; });

TEST_F(DispositivoTest, FaultsOfTheLineStrikeEveryOrder)
{
    for (const char *falha : {"silencio", "lixo", "nak"}) {
        PoeFalha(falha);
        const Reacao reacao = Faz(Ordem('I', {"23", "Maria"}));
        EXPECT_FALSE(reacao.memoriaMudou);
        EXPECT_TRUE(m_dispositivo.MemoriaAtual().favorecidos.isEmpty()) << falha;
        EXPECT_EQ(reacao.final, QByteArray());
    }
}

TEST_F(DispositivoTest, FaultsOfThePaperLeaveOtherOrdersAlone)
{
    for (const char *falha : {"sem-documento", "fim-de-papel", "imprime-e-erra"}) {
        PoeFalha(falha);
        EXPECT_EQ(Resultado(Ordem('I', {"23", "Maria"})), 1) << falha;
    }
}

TEST_F(DispositivoTest, HangUpBringsTheHeldSheetOut)
{
    Faz(Trava(1));
    PoeFalha("queda:1");
    const Reacao reacao = Faz(Texto("x\n"));
    EXPECT_TRUE(reacao.queda);
    EXPECT_EQ(reacao.documentos.size(), 1U);
    EXPECT_FALSE(m_dispositivo.Travado());
    EXPECT_EQ(m_dispositivo.FalhaAtual(), Falha{});
}

} // namespace
