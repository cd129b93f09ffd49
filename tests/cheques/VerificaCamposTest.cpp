// The check before any use of the cheque, as the print button runs it: message, focus, and nothing printed.
#include "ComEntrada.h"

using namespace teste;

namespace {

struct CasoFalha {
    std::string nome;
    std::array<QString, 5> textos; ///< bank, value, city, date, number
    QString mensagem;              ///< empty: silent
    std::string foco;
};
void PrintTo(const CasoFalha &c, std::ostream *os)
{
    *os << c.nome;
}

class VerificaCampos : public ComEntradaDe<CasoFalha> {
protected:
    void SetUp() override
    {
        Abre();
        PreencheCheque();
        const std::array<QString, 5> nomes = {"Text1(0)", "Text1(1)", "Text1(3)", "Text1(4)", "Text1(6)"};
        for (size_t i = 0; i < nomes.size(); ++i)
            Poe(nomes[i], GetParam().textos[i]);
    }
    void EsperaRecusa()
    {
        if (GetParam().mensagem.isEmpty())
            EXPECT_EQ(m_caixas->Quantas(), 0U);
        else
            EsperaCaixa(GetParam().mensagem, "QX70 MIRA - Document Printer", QMessageBox::Warning);
        EXPECT_EQ(Foco(), GetParam().foco);
        EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
        EXPECT_TRUE(Log().isEmpty());
    }
};

TEST_P(VerificaCampos, StopsThePrintingByClick)
{
    Clica("Opcoes(0)");
    EsperaRecusa();
}

TEST_P(VerificaCampos, StopsThePrintingByEnter)
{
    VaiPara("Text2(9)");
    Tecla(Qt::Key_Return);
    ASSERT_EQ(Foco(), "Opcoes(0)");
    Tecla(Qt::Key_Return);
    EsperaRecusa();
}

TEST_P(VerificaCampos, AnswersZero)
{
    EXPECT_EQ(Entrada().VerificaCampos(), 0);
    EsperaRecusa();
}

TEST_P(VerificaCampos, KeepsTheTexts)
{
    Clica("Opcoes(0)");
    EXPECT_EQ(Texto("Text1(0)"), GetParam().textos[0].toStdString());
    EXPECT_EQ(Texto("Text1(1)"), GetParam().textos[1].toStdString());
    EXPECT_EQ(Texto("Text1(3)"), GetParam().textos[2].toStdString());
    EXPECT_EQ(Texto("Text1(4)"), GetParam().textos[3].toStdString());
}

// Each row has every later fault as well, so that the order shows.
// On purpose: a bank number of 0 or less is told as a fault of the value, and takes the focus there.
INSTANTIATE_TEST_SUITE_P(
    Ordem, VerificaCampos,
    testing::Values(
        CasoFalha{"BankEmpty", {"", "0,00", "", "", ""}, "O número do banco não pode ser vazio", "Text1(0)"},
        CasoFalha{
            "ValueZero", {"0", "0,00", "", "", ""}, "O valor não pode ser igual a zero (0,00).", "Text1(1)"},
        CasoFalha{"ValueEmpty", {"0", "", "", "", ""}, "O valor não pode ser vazio", "Text1(1)"},
        CasoFalha{"BankZeroIsToldAsTheValue", {"0", "1,00", "", "", ""}, "Valor inválido", "Text1(1)"},
        CasoFalha{"CityEmpty", {"237", "1,00", "", "", ""}, "A cidade não pode ser vazia", "Text1(3)"},
        CasoFalha{"DateEmpty", {"237", "1,00", "x", "", ""}, "A data não pode ser vazia", "Text1(4)"},
        CasoFalha{"DateWrongIsSilent", {"237", "1,00", "x", "31/04/99", ""}, "", "Text1(4)"},
        CasoFalha{"NumberEmptyIsSilent", {"237", "1,00", "x", "01/02/03", ""}, "", "Text1(6)"}),
    kNomeDoCaso);

class VerificaCamposPassa : public ComEntrada {};

TEST_F(VerificaCamposPassa, AnswersOneWithoutMovingTheFocus)
{
    Abre();
    PreencheCheque();
    EXPECT_EQ(Entrada().VerificaCampos(), 1);
    EXPECT_EQ(Foco(), "TxtCpo(0)");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(VerificaCamposPassa, PayeeMayStayEmpty)
{
    Abre();
    PreencheCheque();
    Poe("Text1(2)", "");
    EXPECT_EQ(Entrada().VerificaCampos(), 1);
}

TEST_F(VerificaCamposPassa, NumberMayStayEmptyWhenItIsNotCompulsory)
{
    Ini("[Opcoes]\nNumCObrig=0\n");
    Abre();
    PreencheCheque();
    Poe("Text1(6)", "");
    EXPECT_EQ(Entrada().VerificaCampos(), 1);
}

TEST_F(VerificaCamposPassa, DateKeepsItsBars)
{
    Abre();
    PreencheCheque();
    Poe("Text1(4)", "01/02/2003");
    EXPECT_EQ(Entrada().VerificaCampos(), 1);
    EXPECT_EQ(Texto("Text1(4)"), "01/02/2003");
}

class VerificaCamposFoco : public ComEntrada {};

TEST_F(VerificaCamposFoco, RefusedFieldIsWhollySelected)
{
    Abre();
    PreencheCheque();
    Poe("Text1(1)", "0,00");
    Clica("Opcoes(0)");
    EXPECT_EQ(Selecao("Text1(1)"), "0,00");
    EXPECT_EQ(Dados().ValidaCampos, 1);
}

TEST_F(VerificaCamposFoco, FieldAfterTheRefusalIsValidatedAgain)
{
    Abre();
    PreencheCheque();
    Poe("Text1(4)", "");
    Clica("Opcoes(0)");
    ASSERT_EQ(Foco(), "Text1(4)");
    Ativa();
    apoio::Digita(Tela(), "020203");
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Texto("Text1(4)"), "02/02/03");
    EXPECT_EQ(Foco(), "Text1(6)");
}

} // namespace
