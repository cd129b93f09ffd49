// The longest texts in the tightest layouts: nothing leaves the form, and what is money is whole.
#include "Mesa.h"

namespace inteira {

namespace {

const QString kFavorecido47 = QStringLiteral("Cooperativa dos Produtores de Leite do Vale Sul");
const QString kCidade20 = QStringLiteral("Vila Velha do Sul-ES");
const QString kPalavras =
    QStringLiteral("quatrocentos e cinquenta e quatro milhões quatrocentos e cinquenta e quatro mil "
                   "quatrocentos e cinquenta e quatro reais e cinquenta e quatro centavos");

struct CasoExtremo {
    std::string nome;
    Posicoes posicoes;
};

void PrintTo(const CasoExtremo &c, std::ostream *os)
{
    *os << c.nome;
}

class ExtremosTest : public Mesa, public testing::WithParamInterface<CasoExtremo> {};

/// The words of two lines, without their filling, one blank between any two.
QString PalavrasNoPapel(const QString &linha1, const QString &linha2)
{
    QString linhas = linha1 + ' ' + linha2;
    return linhas.remove('*').simplified();
}

class AlemDoLimiteTest : public Mesa {
protected:
    void ImprimeEMostraFalha(const Posicoes &posicoes, const Cheque &cheque, int numero)
    {
        CadastraBanco("001", "Primeiro", posicoes);
        Liga();
        Abre();
        Digita(cheque);
        Imprime();
        EXPECT_EQ(Vistas(), (std::vector{kInsira, FalhaNoCheque(numero)}));
        EXPECT_EQ(aparelho.Documentos().size(), 0);
        EXPECT_EQ(Log().size(), 0);
    }
};

} // namespace

TEST_P(ExtremosTest, EveryTextIsWholeAndOnItsLine)
{
    const Posicoes &p = GetParam().posicoes;
    ASSERT_EQ(kFavorecido47.size(), 47);
    ASSERT_EQ(kCidade20.size(), 20);
    CadastraBanco("001", "Primeiro", p);
    Liga();
    Abre();
    Digita({"1", "454454454,54", kFavorecido47, kCidade20, "300924", "123456789012", {}});
    Imprime();
    EXPECT_EQ(Vistas(), std::vector{kInsira});
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    QStringList folha = Folha(1);

    ASSERT_EQ(folha.size(), kLinhas);
    for (const QString &linha : folha)
        EXPECT_EQ(linha.size(), kColunas);
    EXPECT_EQ(folha[p[L1] - 1].simplified(), "#454.454.454,54#");
    EXPECT_EQ(PalavrasNoPapel(folha[p[L2] - 1], folha[p[L3] - 1]), kPalavras);
    for (const Posicao linha : {L2, L3}) {
        const QString &palavras = folha[p[linha] - 1];
        EXPECT_EQ(palavras.mid(kUltimaColunaDoExtenso).trimmed(), QString());
        EXPECT_NE(palavras[kUltimaColunaDoExtenso - 1], ' ') << "not filled to the end";
    }
    EXPECT_EQ(folha[p[L4] - 1].simplified(), kFavorecido47);
    EXPECT_EQ(folha[p[L5] - 1].simplified(), kCidade20 + " 30 Setembro 2024");
    for (const Posicao linha : {L1, L2, L3, L4, L5})
        folha[p[linha] - 1].clear();
    EXPECT_EQ(folha.join(QString()).trimmed(), QString());
    EXPECT_EQ(Log().size(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Leiautes, ExtremosTest,
    testing::Values(CasoExtremo{"AllAtTheLastColumns", {5, 9, 12, 15, 17, 118, 118, 118, 118, 113, 1, 3, 5}},
                    CasoExtremo{"AllAtTheFirstColumns", {1, 4, 6, 8, 10, 1, 1, 1, 1, 1, 22, 25, 40}},
                    CasoExtremo{"TheDateAtTheEdge", {2, 5, 8, 11, 14, 118, 100, 100, 100, 53, 61, 63, 65}},
                    CasoExtremo{"TheDateInsideTheCity", {2, 5, 8, 11, 14, 60, 118, 1, 74, 60, 5, 9, 13}},
                    CasoExtremo{"NoRoomForTheWordsButTheLeft",
                                {1, 4, 6, 8, 10, 105, 117, 117, 60, 90, 1, 2, 3}}),
    [](const auto &caso) { return caso.param.nome; });

TEST_F(AlemDoLimiteTest, TextsThatCannotStandSideBySideAreRefusedWhole)
{
    ImprimeEMostraFalha({1, 4, 6, 8, 10, 1, 1, 1, 1, 1, 1, 2, 3},
                        {"1", "10", kFavorecido47, kCidade20, "300924", "1", {}}, 23);
}

TEST_F(AlemDoLimiteTest, AnAmountThatTheDeviceCannotWriteIsRefused)
{
    ImprimeEMostraFalha(kPosicoesPadrao, {"1", "1000000000,00", "Ana", "Olinda", "300924", "1", {}}, 23);
}

} // namespace inteira
