// Rules of the options screen: what leaving a box makes of its text, and what confirming writes and takes.
#include "housekeeping/RegrasDasOpcoes.h"
#include "ComGravadora.h"
#include "nucleo/Relogio.h"
#include "nucleo/Sistema.h"

#include <functional>
#include <string>

using namespace housekeeping;

namespace {

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };

struct CasoSaida {
    std::string nome;
    QString texto;
    int valor;
};
void PrintTo(const CasoSaida &c, std::ostream *os)
{
    *os << '"' << c.texto.toStdString() << '"';
}
class OpcaoAoSairTest : public testing::TestWithParam<CasoSaida> {};

TEST_P(OpcaoAoSairTest, IsItsNumberBetween1And3650)
{
    EXPECT_EQ(OpcaoAoSair(GetParam().texto), GetParam().valor);
}

INSTANTIATE_TEST_SUITE_P(
    Textos, OpcaoAoSairTest,
    testing::Values(CasoSaida{"Usual", "30", 30}, CasoSaida{"Empty", "", 1}, CasoSaida{"Zero", "0", 1},
                    CasoSaida{"Lowest", "1", 1}, CasoSaida{"Highest", "3650", 3650},
                    CasoSaida{"OneTooMany", "3651", 3650}, CasoSaida{"FourNines", "9999", 3650},
                    CasoSaida{"FarTooMany", QString(40, '9'), 3650},
                    CasoSaida{"BelowTheFloorOfTheThirdBar", "5", 5}, CasoSaida{"LeadingZeros", "0045", 45}),
    kNomeDoCaso);

class RelogioDaRegra final : public nucleo::Relogio {
public:
    [[nodiscard]] QDate Hoje() const override { return {2003, 2, 1}; }
};

class ComSistema : public teste::ComImpressora {
protected:
    RelogioDaRegra m_relogio;
    nucleo::Sistema m_sistema{m_pastaApp.path(), m_mensagens, m_ocupado, m_relogio, m_impressora};
};

using Muda = std::function<void(OpcoesNaTela &)>;

/// What confirming does after a change of the screen; in memory stand 30, 40, 55, both boxes on.
struct CasoConfirma {
    std::string nome;
    Muda muda;
    std::string gravadas; ///< keys in their order
    std::string memoria;  ///< PeriodoRelExc PeriodoCopExc NumChkPgRel UsarImpInv NumCObrig
};
void PrintTo(const CasoConfirma &c, std::ostream *os)
{
    *os << c.nome;
}
class ConfirmaTest : public ComSistema, public testing::WithParamInterface<CasoConfirma> {
protected:
    void SetUp() override
    {
        ComSistema::SetUp();
        m_sistema.PeriodoRelExc = 30;
        m_sistema.PeriodoCopExc = 40;
        m_sistema.NumChkPgRel = 55;
        m_sistema.UsarImpInv = 1;
        m_sistema.NumCObrig = 1;
        GetParam().muda(m_tela);
    }
    OpcoesNaTela m_tela{{"30", "40", "55"}, true, true};
};

TEST_P(ConfirmaTest, WritesABoxThatDiffersAndBothSwitchesAlways)
{
    std::string gravadas;
    for (const auto &[chave, valor] : ChavesAGravar(m_tela, m_sistema))
        gravadas += chave.toStdString() + '=' + valor.toStdString() + ' ';
    EXPECT_EQ(gravadas, GetParam().gravadas);
}

TEST_P(ConfirmaTest, TakesTheNumbersIntoMemory)
{
    TomaOpcoes(m_tela, m_sistema);
    std::string memoria;
    for (const int valor : {m_sistema.PeriodoRelExc, m_sistema.PeriodoCopExc, m_sistema.NumChkPgRel,
                            m_sistema.UsarImpInv, m_sistema.NumCObrig})
        memoria += std::to_string(valor) + ' ';
    EXPECT_EQ(memoria, GetParam().memoria);
}

INSTANTIATE_TEST_SUITE_P(
    Mudancas, ConfirmaTest,
    testing::Values(
        CasoConfirma{"Nothing", [](OpcoesNaTela &) {}, "UsarImpInv=1 NumCObrig=1 ", "30 40 55 1 1 "},
        CasoConfirma{"Cheques", [](OpcoesNaTela &naTela) { naTela.textos[0] = "31"; },
                     "PeriodoRelExc=31 UsarImpInv=1 NumCObrig=1 ", "31 40 55 1 1 "},
        CasoConfirma{"Copies", [](OpcoesNaTela &naTela) { naTela.textos[1] = "3650"; },
                     "PeriodoCopExc=3650 UsarImpInv=1 NumCObrig=1 ", "30 3650 55 1 1 "},
        CasoConfirma{"ChequesAPage", [](OpcoesNaTela &naTela) { naTela.textos[2] = "5"; },
                     "UsarImpInv=1 NumCObrig=1 NumChkPgRel=5 ", "30 40 5 1 1 "},
        CasoConfirma{"InvertedPrintingOff", [](OpcoesNaTela &naTela) { naTela.impressaoInvertida = false; },
                     "UsarImpInv=0 NumCObrig=1 ", "30 40 55 0 1 "},
        CasoConfirma{"NumberNotCompulsory", [](OpcoesNaTela &naTela) { naTela.numeroObrigatorio = false; },
                     "UsarImpInv=1 NumCObrig=0 ", "30 40 55 1 0 "},
        CasoConfirma{"AllInTheirOrder",
                     [](OpcoesNaTela &naTela) {
                         naTela = {{"1", "2", "10"}, false, false};
                     },
                     "PeriodoRelExc=1 PeriodoCopExc=2 UsarImpInv=0 NumCObrig=0 NumChkPgRel=10 ",
                     "1 2 10 0 0 "}),
    kNomeDoCaso);

class OpcoesEmMemoriaTest : public ComSistema {};

TEST_F(OpcoesEmMemoriaTest, AreTheVariablesAsTheyStand)
{
    m_sistema.PeriodoRelExc = 0;
    m_sistema.PeriodoCopExc = 5000;
    m_sistema.NumChkPgRel = 7;
    m_sistema.UsarImpInv = 0;
    m_sistema.NumCObrig = 1;
    const OpcoesNaTela tela = OpcoesEmMemoria(m_sistema);
    EXPECT_EQ(tela.textos[0], "0");
    EXPECT_EQ(tela.textos[1], "5000");
    EXPECT_EQ(tela.textos[2], "7");
    EXPECT_FALSE(tela.impressaoInvertida);
    EXPECT_TRUE(tela.numeroObrigatorio);
}

TEST_F(OpcoesEmMemoriaTest, WhatIsShownOutOfBoundsAndNotTouchedIsNotWritten)
{
    m_sistema.PeriodoCopExc = 5000;
    std::string gravadas;
    for (const auto &[chave, valor] : ChavesAGravar(OpcoesEmMemoria(m_sistema), m_sistema))
        gravadas += chave.toStdString() + ' ';
    EXPECT_EQ(gravadas, "UsarImpInv NumCObrig ");
}

} // namespace
