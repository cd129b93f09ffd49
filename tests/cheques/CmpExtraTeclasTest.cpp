// Typing into the screen of the extra fields' places, and the ways that open it.
#include "ComCmpExtra.h"

#include <QClipboard>

using namespace teste;

namespace {

using CmpExtraTest = ComCmpExtra;

// --- typing ---

struct CasoDigitado {
    std::string nome;
    int lado;
    QString teclas;
    std::string fica;
};
void PrintTo(const CasoDigitado &c, std::ostream *os)
{
    *os << c.teclas.toStdString();
}
class Digitado : public ComCmpExtra, public testing::WithParamInterface<CasoDigitado> {};
TEST_P(Digitado, KeepsTheDigitsOnly)
{
    AbreCom("");
    DigitaNaPosicao(GetParam().lado, GetParam().teclas);
    EXPECT_EQ(apoio::Texto(Extra(), QString("PosText(%1)").arg(GetParam().lado)).toStdString(),
              GetParam().fica);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Teclas, Digitado,
                         testing::Values(CasoDigitado{"LetterInAColumn", 1, "1a2", "12"},
                                         CasoDigitado{"LetterInALine", 0, "a1b2c", "12"},
                                         CasoDigitado{"OnlyLetters", 0, "abc", ""},
                                         CasoDigitado{"SignAndComma", 1, "-1,2.3", "123"},
                                         CasoDigitado{"Blank", 1, " 7 ", "7"},
                                         CasoDigitado{"LetterBehindThreeDigits", 1, "123x", "123"},
                                         CasoDigitado{"LetterBehindTwoDigits", 0, "12x", "12"},
                                         CasoDigitado{"OtherDigitsThanOurs", 1, "1²3", "13"}),
                         kNomeDoCaso);

TEST_F(CmpExtraTest, TheCaretStaysWhereALetterVanished)
{
    AbreCom("");
    DigitaNaPosicao(1, "12");
    apoio::Tecla(Extra(), Qt::Key_Left);
    apoio::Digita(Extra(), "x");
    EXPECT_EQ(Posicao(), ",12");
    apoio::Digita(Extra(), "3");
    EXPECT_EQ(Posicao(), ",132");
}

TEST_F(CmpExtraTest, APastedTextLeavesItsDigits)
{
    AbreCom("");
    QGuiApplication::clipboard()->setText("col. 45");
    DigitaNaPosicao(1, "");
    apoio::Tecla(Extra(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Posicao(), ",45");
}

struct CasoCorte {
    std::string nome;
    int lado;
    QString cheio;
    std::string fica;  ///< behind one digit more at the end
    std::string antes; ///< behind a 9 typed before it
};
void PrintTo(const CasoCorte &c, std::ostream *os)
{
    *os << c.nome;
}
class Cortado : public ComCmpExtra, public testing::WithParamInterface<CasoCorte> {
protected:
    [[nodiscard]] QString Caixa() const { return QString("PosText(%1)").arg(GetParam().lado); }
};
TEST_P(Cortado, OneDigitTooManyIsToldAndCut)
{
    AbreCom("");
    DigitaNaPosicao(GetParam().lado, GetParam().cheio);
    ASSERT_EQ(m_caixas->Quantas(), 0U);
    apoio::Digita(Extra(), "9");
    EsperaCaixaDeErro("Tamanho Máximo deste campo...");
    EXPECT_EQ(apoio::Texto(Extra(), Caixa()).toStdString(), GetParam().fica);
    EXPECT_EQ(apoio::Foco(Extra()), Caixa());
}
TEST_P(Cortado, TheFirstDigitsStay)
{
    AbreCom("");
    DigitaNaPosicao(GetParam().lado, GetParam().cheio);
    apoio::Tecla(Extra(), Qt::Key_Home);
    apoio::Digita(Extra(), "9");
    EsperaCaixaDeErro("Tamanho Máximo deste campo...");
    EXPECT_EQ(apoio::Texto(Extra(), Caixa()).toStdString(), GetParam().antes);
}
INSTANTIATE_TEST_SUITE_P(Caixas, Cortado,
                         testing::Values(CasoCorte{"Line", 0, "12", "12", "91"},
                                         CasoCorte{"Column", 1, "123", "123", "912"}),
                         kNomeDoCaso);

// --- the ways to it ---

TEST_F(CmpExtraTest, F3InEachExtraFieldOpensIt)
{
    Abre();
    for (int i = 0; i < 3; ++i) {
        VaiPara(QString("TxtCpo(%1)").arg(i));
        Tecla(Qt::Key_F3);
        AtivaExtra();
        apoio::ClicaEm(Extra(), "BtnCmd(2)");
        ASSERT_EQ(Abertas().size(), 0);
        Ativa();
        EXPECT_EQ(Foco(), QString("TxtCpo(%1)").arg(i).toStdString());
    }
}

TEST_F(CmpExtraTest, F3InOtherFieldsDoesNot)
{
    Abre();
    PreencheCheque();
    for (const char *campo : {"Text1(6)", "Text2(0)", "Text2(9)"}) {
        VaiPara(campo);
        Tecla(Qt::Key_F3);
        EXPECT_EQ(Abertas().size(), 0) << campo;
    }
}

class FalhaQueAbre : public ComCmpExtra {
protected:
    void Imprime()
    {
        Clica("Opcoes(0)");
        if (m_caixas->Quantas() > 0)
            m_ultima = m_caixas->Ultima().texto.toStdString();
    }
    std::string m_ultima;
};

TEST_F(FalhaQueAbre, AFieldWithoutAPlaceThenProgrammedThenPrinted)
{
    Abre();
    PreencheCheque();
    Poe("TxtCpo(1)", "dois");
    Imprime();
    EXPECT_EQ(m_ultima, "Valores de posicao nao cadastrados na impressao do campo2!\n");
    EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
    EXPECT_TRUE(Log().isEmpty());
    AtivaExtra();
    Escolhe(1);
    Programa("15", "25");
    apoio::Tecla(Extra(), Qt::Key_Escape);
    Ativa();
    Imprime();
    EXPECT_EQ(m_ultima, "Insira o Documento.");
    ASSERT_EQ(m_gravadora.Chamadas().size(), 4);
    EXPECT_EQ(m_gravadora.Chamadas().first(), R"(ImprimeCampoX(2,15,25,"dois"))");
    EXPECT_EQ(Log().size(), 1);
    EXPECT_EQ(Abertas().size(), 0);
}

TEST_F(FalhaQueAbre, AFieldOutOfRange)
{
    Ini("[FrenteInfo]\nCampo00Lin=21\nCampo00Col=7\n");
    Abre();
    PreencheCheque();
    Poe("TxtCpo(0)", "abc");
    Imprime();
    EXPECT_EQ(m_ultima, "Valores de posicao incorretos na impressao do campo1!\n"
                        "Linha =21 e Coluna = 7 + texto de tamanho 3!");
    EXPECT_EQ(Abertas().size(), 1);
    EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
}

TEST_F(FalhaQueAbre, TheScreenMayStayOpenWhileItIsPrinted)
{
    Abre();
    PreencheCheque();
    Poe("TxtCpo(0)", "um");
    Imprime();
    AtivaExtra();
    Programa("1", "2");
    Ativa();
    Imprime();
    EXPECT_EQ(m_gravadora.Chamadas().value(0), R"(ImprimeCampoX(1,1,2,"um"))");
    EXPECT_EQ(Abertas().size(), 1);
}

TEST_F(FalhaQueAbre, ARefusedCheckOfTheFieldsDoesNot)
{
    Abre();
    PreencheCheque();
    Poe("Text1(3)", "");
    Poe("TxtCpo(0)", "um");
    Imprime();
    EXPECT_EQ(m_ultima, "A cidade não pode ser vazia");
    EXPECT_EQ(Abertas().size(), 0);
}

} // namespace
