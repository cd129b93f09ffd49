// What the city register has of its own: it never speaks to the device.
#include "ComCadastro.h"

using namespace teste;

namespace {

class CidadeTest : public ComCodigoENome {
protected:
    CidadeTest() : ComCodigoENome(kCidade) {}
};

TEST_F(CidadeTest, NeitherAsksForTheDeviceNorSpeaksToIt)
{
    AbreCadastro();
    Preenche("00900", "Olinda");
    Aperta(Incluir);
    ClicaNaLinha(3);
    PoeNaCaixa(1, "Caruaru");
    Aperta(Alterar);
    ClicaNaLinha(3);
    Aperta(Excluir);
    EXPECT_EQ(Vistas(), "");
    EXPECT_EQ(Chamadas(), "");
    EXPECT_EQ(Tabela(), "00020,São Paulo|00003,Recife|00100,Açu");
}

TEST_F(CidadeTest, ACodeOfTwoDigitsGetsThreeZeros)
{
    AbreCadastro();
    DigitaNela("Text1(0)", "42");
    TeclaNele(Qt::Key_Tab);
    EXPECT_EQ(Caixa(0), "00042");
}

TEST_F(CidadeTest, ANameOf21CharactersIsCutTo20AsItIsTyped)
{
    AbreCadastro();
    DigitaNela("Text1(1)", "São José do Rio Preto");
    EXPECT_EQ(Caixa(1), "São José do Rio Pret");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

} // namespace
