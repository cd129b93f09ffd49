// The functions beside the fields: clearing cheque and back, and the form of the date.
#include "ComEntrada.h"

#include <QProgressBar>
#include <QRadioButton>

using namespace teste;

namespace {

class LimpaCheque : public ComEntrada {
protected:
    void AbrePreenchido(const QString &salvos = {})
    {
        Ini(salvos);
        Abre();
        DigitaEm("Text1(0)", "237");
        Tecla(Qt::Key_Return);
        ASSERT_EQ(NomeDoBanco(), "BANCO DOIS");
        apoio::Digita(Tela(), "1");
        PreencheCheque();
    }
};

TEST_F(LimpaCheque, EmptiesTheFieldsAndTheNameAndGoesToTheBank)
{
    AbrePreenchido();
    Clica("Opcoes(3)");
    for (const char *nome : {"Text1(0)", "Text1(1)", "Text1(2)", "Text1(3)", "Text1(4)", "Text1(6)"})
        EXPECT_EQ(Texto(nome), "") << nome;
    EXPECT_EQ(NomeDoBanco(), "");
    EXPECT_EQ(Foco(), "Text1(0)");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(LimpaCheque, ByMnemonic)
{
    AbrePreenchido();
    Tecla(Qt::Key_U, Qt::AltModifier);
    EXPECT_EQ(Texto("Text1(6)"), "");
    EXPECT_EQ(Foco(), "Text1(0)");
}

TEST_F(LimpaCheque, BringsTheSavedFieldsBack)
{
    AbrePreenchido("[FrenteInfo]\nNumBanco=001\nValor=9,00\nFavorecido=Ana\nCidade= \nCampo01=extra\n");
    Clica("Opcoes(3)");
    EXPECT_EQ(Texto("Text1(0)"), "001");
    EXPECT_EQ(Texto("Text1(1)"), "9,00");
    EXPECT_EQ(Texto("Text1(2)"), "Ana");
    EXPECT_EQ(Texto("Text1(3)"), " ");
    EXPECT_EQ(Texto("Text1(4)"), "");
    EXPECT_EQ(Texto("TxtCpo(1)"), "extra");
    EXPECT_EQ(NomeDoBanco(), "");
}

TEST_F(LimpaCheque, BringsBackWhatF4SavedSinceTheStart)
{
    AbrePreenchido();
    VaiPara("Text1(2)");
    Tecla(Qt::Key_F4);
    Tecla(Qt::Key_U, Qt::AltModifier);
    EXPECT_EQ(Texto("Text1(2)"), "José Luís");
}

TEST_F(LimpaCheque, ExtraFieldWithoutASavedTextStays)
{
    AbrePreenchido("[FrenteInfo]\nCampo01=-2abc\nCampo02=\n");
    Poe("TxtCpo(0)", "a");
    Poe("TxtCpo(1)", "b");
    Poe("TxtCpo(2)", "c");
    Clica("Opcoes(3)");
    EXPECT_EQ(Texto("TxtCpo(0)"), "a");
    EXPECT_EQ(Texto("TxtCpo(1)"), "b") << "a value that begins with -2 reads as missing";
    EXPECT_EQ(Texto("TxtCpo(2)"), "") << "a key without a value is not missing";
}

TEST_F(LimpaCheque, LeavesTheLines)
{
    AbrePreenchido();
    Poe("Text2(0)", "linha");
    Clica("Opcoes(3)");
    EXPECT_EQ(Texto("Text2(0)"), "linha");
}

class LimpaVerso : public ComEntrada {
protected:
    void AbreEscrito()
    {
        Ini("[Verso]\nLinha00=salva\nLinha03= \nLinha09=última\n");
        Abre();
        for (int i = 0; i < 10; ++i)
            Poe(QString("Text2(%1)").arg(i), "nova");
        Poe("Text1(2)", "Ana");
        VaiPara("TxtCpo(0)");
    }
    void EsperaSalvas()
    {
        const std::vector<std::string> salvas = {"salva", "", "", " ", "", "", "", "", "", "última"};
        for (int i = 0; i < 10; ++i)
            EXPECT_EQ(Texto(QString("Text2(%1)").arg(i)), salvas[static_cast<size_t>(i)]) << i;
        EXPECT_EQ(Foco(), "Text2(0)");
        EXPECT_EQ(Texto("Text1(2)"), "Ana");
    }
};

TEST_F(LimpaVerso, BringsTheSavedLinesBackAndGoesToTheFirst)
{
    AbreEscrito();
    Clica("Opcoes(4)");
    EsperaSalvas();
}

TEST_F(LimpaVerso, ByMnemonic)
{
    AbreEscrito();
    Tecla(Qt::Key_S, Qt::AltModifier);
    EsperaSalvas();
}

TEST_F(LimpaVerso, ByEnterOnTheButton)
{
    AbreEscrito();
    apoio::Controle<QPushButton>(Tela(), "Opcoes(4)")->setFocus();
    Tecla(Qt::Key_Return);
    EsperaSalvas();
}

// On purpose: the move to this button discards the field that is left.
TEST_F(LimpaVerso, MnemonicInACityDiscardsTheCity)
{
    AbreEscrito();
    DigitaEm("Text1(3)", "Santos");
    Tecla(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Texto("Text1(3)"), "");
    EsperaSalvas();
}

class Mnemonico : public ComEntrada {};

TEST_F(Mnemonico, PrintsNothingWhenTheFieldRefusesToBeLeft)
{
    Abre();
    PreencheCheque();
    DigitaEm("Text1(4)", "310499");
    Tecla(Qt::Key_H, Qt::AltModifier);
    EsperaCaixa("Data Inválida.", "QX70 MIRA - Document Printer", QMessageBox::Warning);
    EXPECT_EQ(Foco(), "Text1(4)");
    EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
}

TEST_F(Mnemonico, LeavesTheFieldBeforePrinting)
{
    Abre();
    PreencheCheque();
    DigitaEm("Text1(1)", "10");
    Tecla(Qt::Key_H, Qt::AltModifier);
    EXPECT_EQ(Texto("Text1(1)"), "10,00");
    ASSERT_EQ(m_gravadora.Chamadas().size(), 3);
    EXPECT_TRUE(m_gravadora.Chamadas()[1].startsWith(R"(ImprimeCheque("237","10,00",)"));
}

struct CasoForma {
    std::string nome;
    QString controle;
    QString digitos;
};
void PrintTo(const CasoForma &c, std::ostream *os)
{
    *os << c.controle.toStdString();
}
class FormaDaData : public ComEntradaDe<CasoForma> {
protected:
    [[nodiscard]] QStringList Comando() const
    {
        return {"IniciaPorta(\"COM2\")", "ComandoTX(\"\\x1B\\xAFD" + GetParam().digitos + "\\x0D\",5)",
                "FechaPorta()"};
    }
    void EsperaSomente(const QString &ligada)
    {
        for (const char *nome : {"Option1", "Option2", "Option3"})
            EXPECT_EQ(apoio::Controle<QRadioButton>(Tela(), nome)->isChecked(), ligada == nome) << nome;
    }
};
TEST_P(FormaDaData, ClickSendsTheCommandAndKeepsTheDigits)
{
    Abre();
    Clica(GetParam().controle);
    EsperaSomente(GetParam().controle);
    EXPECT_EQ(m_gravadora.Chamadas(), Comando());
    EXPECT_EQ(m_escritorio.Chave("Opcoes", "ConfiguraData"), GetParam().digitos);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
TEST_P(FormaDaData, BlankOnTheKeyboardIsAClick)
{
    Abre();
    apoio::Controle<QRadioButton>(Tela(), GetParam().controle)->setFocus();
    Tecla(Qt::Key_Space);
    EXPECT_EQ(m_gravadora.Chamadas(), Comando());
    EXPECT_EQ(m_escritorio.Chave("Opcoes", "ConfiguraData"), GetParam().digitos);
}
TEST_P(FormaDaData, SavedOneIsSelectedAndSentAtTheStart)
{
    Ini("[Opcoes]\nConfiguraData=" + GetParam().digitos + "\n");
    Abre();
    EsperaSomente(GetParam().controle);
    EXPECT_EQ(m_chamadasDoInicio, Comando());
}
TEST_P(FormaDaData, IsKeptWhateverTheDeviceAnswers)
{
    m_gravadora.Roteiro("resultado IniciaPorta 0\nresultado ComandoTX 0\nresultado FechaPorta 0\n");
    Abre();
    Clica(GetParam().controle);
    EXPECT_EQ(m_gravadora.Chamadas(), Comando());
    EXPECT_EQ(m_escritorio.Chave("Opcoes", "ConfiguraData"), GetParam().digitos);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Formas, FormaDaData,
                         testing::Values(CasoForma{"OneDigit", "Option1", "1"},
                                         CasoForma{"TwoDigits", "Option2", "2"},
                                         CasoForma{"FourDigits", "Option3", "4"}),
                         kNomeDoCaso);

struct CasoChave {
    std::string nome;
    QString ini;
};
void PrintTo(const CasoChave &c, std::ostream *os)
{
    *os << c.nome;
}
class FormaDesconhecida : public ComEntradaDe<CasoChave> {};
TEST_P(FormaDesconhecida, SelectsNoneAndSendsNothing)
{
    Ini(GetParam().ini);
    Abre();
    for (const char *nome : {"Option1", "Option2", "Option3"})
        EXPECT_FALSE(apoio::Controle<QRadioButton>(Tela(), nome)->isChecked()) << nome;
    EXPECT_TRUE(m_chamadasDoInicio.isEmpty());
}
INSTANTIATE_TEST_SUITE_P(Chaves, FormaDesconhecida,
                         testing::Values(CasoChave{"Missing", ""},
                                         CasoChave{"Three", "[Opcoes]\nConfiguraData=3\n"},
                                         CasoChave{"Empty", "[Opcoes]\nConfiguraData=\n"}),
                         kNomeDoCaso);

class FormasDaData : public ComEntrada {};

TEST_F(FormasDaData, SecondChoiceReplacesTheFirst)
{
    Abre();
    Clica("Option1");
    Clica("Option3");
    EXPECT_EQ(m_gravadora.Chamadas().filter("ComandoTX"),
              QStringList({R"(ComandoTX("\x1B\xAFD1\x0D",5))", R"(ComandoTX("\x1B\xAFD4\x0D",5))"}));
    EXPECT_EQ(m_escritorio.Chave("Opcoes", "ConfiguraData"), "4");
}

TEST_F(FormasDaData, GaugeStandsStill)
{
    Abre();
    auto *gauge = apoio::Controle<QProgressBar>(Tela(), "Gauge1");
    gauge->setValue(7);
    Clica("Option2");
    ASSERT_EQ(m_gravadora.Chamadas().size(), 3);
    EXPECT_EQ(gauge->value(), 7);
}

TEST_F(FormasDaData, ArrowChoosesTheNextOne)
{
    Abre();
    Clica("Option1");
    Tecla(Qt::Key_Down);
    EXPECT_EQ(Foco(), "Option2");
    EXPECT_EQ(m_gravadora.Chamadas().filter("ComandoTX").last(), R"(ComandoTX("\x1B\xAFD2\x0D",5))");
    EXPECT_EQ(m_escritorio.Chave("Opcoes", "ConfiguraData"), "2");
}

TEST_F(FormasDaData, ClickOnTheChosenOneSendsItAgain)
{
    Ini("[Opcoes]\nConfiguraData=2\n");
    Abre();
    Clica("Option2");
    EXPECT_EQ(m_gravadora.Chamadas().filter("ComandoTX"), QStringList{R"(ComandoTX("\x1B\xAFD2\x0D",5))"});
}

} // namespace
