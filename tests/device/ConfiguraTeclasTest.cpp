// The boxes of the device's configuration under keys: limits, what leaving makes of a code, "Todos", and the
// walks.
#include "ComConfigura.h"
#include "Ordem.h"

using namespace teste;

namespace {

using TeclasDaConfigura = ComConfigura;

// --- limits ---

struct CasoLimite {
    std::string nome;
    QString campo;
    qsizetype limite; ///< 0 for none
};
void PrintTo(const CasoLimite &c, std::ostream *os)
{
    *os << c.campo.toStdString();
}
class Limite : public ComConfigura, public testing::WithParamInterface<CasoLimite> {
protected:
    void SetUp() override { AbreTela(); }
    [[nodiscard]] QLineEdit *CampoDoCaso()
    {
        return apoio::Controle<QLineEdit>(Configura(), GetParam().campo);
    }
    const QString m_sessenta = QString("123456789 ").repeated(6);
    const QString m_cabe = GetParam().limite ? m_sessenta.left(GetParam().limite) : m_sessenta;
};
TEST_P(Limite, HoldsForSixtyKeys)
{
    DigitaNela(GetParam().campo, m_sessenta);
    EXPECT_EQ(CampoDoCaso()->text(), m_cabe);
    EXPECT_EQ(m_caixas->Quantas(), 0U) << "it is cut without a word";
}
TEST_P(Limite, HoldsForWhatTheProgramPuts)
{
    CampoDoCaso()->setText(m_sessenta);
    EXPECT_EQ(CampoDoCaso()->text(), m_cabe);
}
TEST_P(Limite, KeepsTheFirstCharactersAndTheCaretWhenTypedInFront)
{
    DigitaNela(GetParam().campo, m_cabe);
    TeclaNela(Qt::Key_Home);
    apoio::Digita(Configura(), "9");
    EXPECT_EQ(CampoDoCaso()->text(),
              GetParam().limite ? ('9' + m_cabe).left(GetParam().limite) : '9' + m_cabe);
    EXPECT_EQ(CampoDoCaso()->cursorPosition(), 1);
}
INSTANTIATE_TEST_SUITE_P(Campos, Limite,
                         testing::Values(CasoLimite{"Singular", "Text1(0)", 0},
                                         CasoLimite{"Plural", "Text1(1)", 0},
                                         CasoLimite{"Code", "Text2(0)", 2},
                                         CasoLimite{"Name", "Text2(1)", 48},
                                         CasoLimite{"RemovedCode", "Text3", 2}),
                         kNomeDoCaso);

// --- leaving a code ---

struct CasoSaida {
    std::string nome;
    QString campo;
    QString digitado;
    std::string fica;
};
void PrintTo(const CasoSaida &c, std::ostream *os)
{
    *os << c.campo.toStdString() << " \"" << c.digitado.toStdString() << '"';
}
class CodigoDeixado : public ComConfigura, public testing::WithParamInterface<CasoSaida> {};
TEST_P(CodigoDeixado, IsTwoDigitsOrEmpty)
{
    AbreTela();
    DigitaNela(GetParam().campo, GetParam().digitado);
    TeclaNela(Qt::Key_Tab);
    EXPECT_EQ(apoio::Texto(Configura(), GetParam().campo).toStdString(), GetParam().fica);
    EXPECT_NE(FocoNela(), GetParam().campo.toStdString()) << "the focus goes on";
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
std::vector<CasoSaida> CasosDeSaida()
{
    std::vector<CasoSaida> casos;
    for (const auto &[nome, campo] : {std::pair("Payee", "Text2(0)"), std::pair("Removed", "Text3")}) {
        const std::string de = nome;
        casos.push_back({de + "OneDigit", campo, "7", "07"});
        casos.push_back({de + "TwoDigits", campo, "42", "42"});
        casos.push_back({de + "Letters", campo, "AB", ""});
        casos.push_back({de + "Empty", campo, "", ""});
        casos.push_back({de + "Star", campo, "*", ""});
        // The three characters that the number would take are cut by the limit.
        casos.push_back({de + "Minus", campo, "-5", "-0"});
    }
    return casos;
}
INSTANTIATE_TEST_SUITE_P(Codigos, CodigoDeixado, testing::ValuesIn(CasosDeSaida()), kNomeDoCaso);

TEST_F(TeclasDaConfigura, NamesAreLeftAsTheyAre)
{
    AbreTela();
    DigitaNela("Text1(0)", " AB ");
    DigitaNela("Text2(1)", " 7 ");
    Clica("Text2(0)");
    EXPECT_EQ(Campo("Text1(0)") + '|' + Campo("Text2(1)"), " AB | 7 ");
}

TEST_F(TeclasDaConfigura, ACodeIsLeftBeforeAnotherScreenNothingOfIt)
{
    AbreTela();
    DigitaNela("Text2(0)", "7");
    Ativa();
    EXPECT_EQ(Campo("Text2(0)"), "7") << "going to another window is no move";
}

// --- "Todos" ---

TEST_F(TeclasDaConfigura, TodosPutsAStarIntoTheBox)
{
    AbreTela();
    Escolhe("Option3D2");
    EXPECT_TRUE(Opcao("Option3D2")->isChecked());
    EXPECT_EQ(Campo("Text3"), "*");
    EXPECT_EQ(FocoNela(), "Option3D2");
    Escolhe("Option3D2");
    EXPECT_TRUE(Opcao("Option3D2")->isChecked()) << "a second click leaves it on";
    EXPECT_EQ(Campo("Text3"), "*");
    EXPECT_EQ(Ligadas(), "1") << "the ports are options of their own";
}

TEST_F(TeclasDaConfigura, TodosReplacesACodeThatStoodThere)
{
    AbreTela();
    DigitaNela("Text3", "7");
    TeclaNela(Qt::Key_Return);
    ASSERT_EQ(FocoNela(), "Option3D2");
    EXPECT_EQ(Campo("Text3"), "07");
    EXPECT_FALSE(Opcao("Option3D2")->isChecked()) << "passing by chooses nothing";
    TeclaNela(Qt::Key_Space);
    EXPECT_EQ(Campo("Text3"), "*");
}

TEST_F(TeclasDaConfigura, TheBoxSwitchesTodosOffAndKeepsTheStarSelected)
{
    AbreTela();
    Escolhe("Option3D2");
    Clica("Text3");
    EXPECT_FALSE(Opcao("Option3D2")->isChecked());
    EXPECT_EQ(Campo("Text3"), "*");
    EXPECT_EQ(apoio::Controle<QLineEdit>(Configura(), "Text3")->selectedText(), "*");
    apoio::Digita(Configura(), "5");
    EXPECT_EQ(Campo("Text3"), "5") << "the first key replaces it";
}

// A "*" is no number.
TEST_F(TeclasDaConfigura, LeavingTheBoxWithTheStarEmptiesIt)
{
    AbreTela();
    Escolhe("Option3D2");
    Clica("Text3");
    TeclaNela(Qt::Key_Tab);
    EXPECT_EQ(Campo("Text3"), "");
    EXPECT_FALSE(Opcao("Option3D2")->isChecked());
}

TEST_F(TeclasDaConfigura, TheStarStaysWhileTheBoxIsNotVisited)
{
    AbreTela();
    Escolhe("Option3D2");
    for (const char *nome : {"Command3D7", "Text1(0)", "Text2(0)", "Option3D2", "Command3D4"})
        VaiNelaPara(nome);
    EXPECT_EQ(Campo("Text3"), "*");
    EXPECT_TRUE(Opcao("Option3D2")->isChecked());
}

// --- arriving ---

class Chegada : public ComConfigura, public testing::WithParamInterface<const char *> {};
TEST_P(Chegada, SelectsTheWholeText)
{
    AbreTela();
    VaiNelaPara("SSCommand1");
    auto *campo = apoio::Controle<QLineEdit>(Configura(), GetParam());
    campo->setText("12");
    Clica(GetParam());
    EXPECT_EQ(campo->selectedText(), "12") << "by a click";
    VaiNelaPara("SSCommand1");
    campo->deselect();
    VaiNelaPara(GetParam());
    EXPECT_EQ(campo->selectedText(), "12") << "by a key";
}
INSTANTIATE_TEST_SUITE_P(Campos, Chegada,
                         testing::Values("Text1(0)", "Text1(1)", "Text2(0)", "Text2(1)", "Text3"),
                         [](const auto &caso) { return "Box" + std::to_string(caso.index); });

struct CasoVolta {
    std::string nome;
    QString outra, entrada; ///< the screen that comes in front, Main when its entry is empty
};
void PrintTo(const CasoVolta &c, std::ostream *os)
{
    *os << c.nome;
}
class VoltaDeOutraTela : public ComConfigura, public testing::WithParamInterface<CasoVolta> {};
TEST_P(VoltaDeOutraTela, ArrivesAtText3AndSwitchesTodosOff)
{
    AbreTela();
    DigitaNela("Text3", "7");
    if (GetParam().entrada.isEmpty())
        Ativa();
    else
        AbrePeloMenu(GetParam().entrada, GetParam().outra);
    EXPECT_EQ(Campo("Text3"), "7") << "going there is no leaving";
    Opcao("Option3D2")->setChecked(true);
    AtivaTela("Configura");
    EXPECT_EQ(FocoNela(), "Text3");
    EXPECT_FALSE(Opcao("Option3D2")->isChecked());
    EXPECT_EQ(apoio::Controle<QLineEdit>(Configura(), "Text3")->selectedText(), "7");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Telas, VoltaDeOutraTela,
                         testing::Values(CasoVolta{"Main", "", ""},
                                         CasoVolta{"ARegister", "Cidade", "Cidad"}),
                         kNomeDoCaso);

TEST_F(TeclasDaConfigura, ComingBackFromAMessageBoxIsNoArrival)
{
    AbreTela();
    DigitaNela("Text3", "7");
    Opcao("Option3D2")->setChecked(true);
    Dados().mensagens.MsgBox("x");
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    AtivaTela("Configura");
    ASSERT_EQ(FocoNela(), "Text3");
    EXPECT_TRUE(Opcao("Option3D2")->isChecked());
    EXPECT_EQ(apoio::Controle<QLineEdit>(Configura(), "Text3")->selectedText(), "");
}

// --- walks ---

struct CasoEnter {
    QString de;
    std::string para;
};
void PrintTo(const CasoEnter &c, std::ostream *os)
{
    *os << "from " << c.de.toStdString();
}
class EnterNaConfigura : public ComConfigura, public testing::WithParamInterface<CasoEnter> {};
TEST_P(EnterNaConfigura, GoesOnAsTabDoes)
{
    for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab}) {
        AbreTela();
        VaiNelaPara(GetParam().de);
        TeclaNela(tecla);
        EXPECT_EQ(FocoNela(), GetParam().para) << tecla;
        EXPECT_EQ(m_gravadora.Chamadas(), QStringList());
        EXPECT_EQ(m_caixas->Quantas(), 0U);
    }
}
INSTANTIATE_TEST_SUITE_P(Controles, EnterNaConfigura,
                         testing::Values(CasoEnter{"Text1(0)", "Text1(1)"},
                                         CasoEnter{"Text1(1)", "Command3D1"},
                                         CasoEnter{"Text2(0)", "Text2(1)"},
                                         CasoEnter{"Text2(1)", "Command3D2"}, CasoEnter{"Text3", "Option3D2"},
                                         CasoEnter{"Option3D2", "Command3D4"},
                                         CasoEnter{"Option3D3(1)", "Command3D7"}),
                         [](const auto &caso) { return "From" + std::to_string(caso.index); });

TEST_F(TeclasDaConfigura, EnterLeavesTheCode)
{
    AbreTela();
    DigitaNela("Text2(0)", "7");
    TeclaNela(Qt::Key_Return);
    EXPECT_EQ(Campo("Text2(0)"), "07");
}

TEST_F(TeclasDaConfigura, TabWalksInReadingOrder)
{
    AbreTela();
    VaiNelaPara("Text1(0)");
    const QStringList volta = VoltaDoTab(Configura());
    EXPECT_EQ(volta.join(' '), "Text1(0) Text1(1) Command3D1 Text2(0) Text2(1) Command3D2 Text3 Option3D2 "
                               "Command3D4 Option3D3(1) Command3D7 Command3D9 SSCommand1")
        << "the four ports are one stop; the arrows walk among them";
    EXPECT_EQ(volta, APartirDe(OrdemDeLeitura(Configura()), "Text1(0)"))
        << "read: " << OrdemDeLeitura(Configura()).join(' ').toStdString();
}

TEST_F(TeclasDaConfigura, AnArrowChoosesTheNextPort)
{
    AbreTela();
    VaiNelaPara("Option3D3(1)");
    TeclaNela(Qt::Key_Right);
    EXPECT_EQ(Ligadas(), "2");
    EXPECT_EQ(FocoNela(), "Option3D3(2)");
    EXPECT_EQ(Chave("port"), "COM2") << "nothing is written before the button";
}

class LetraDaPorta : public ComConfigura, public testing::WithParamInterface<int> {};
TEST_P(LetraDaPorta, ChoosesIt)
{
    AbreTela();
    TeclaNela(static_cast<Qt::Key>(Qt::Key_1 + GetParam()), Qt::AltModifier);
    EXPECT_EQ(Ligadas(), std::to_string(GetParam()));
    EXPECT_EQ(FocoNela(), "Option3D3(" + std::to_string(GetParam()) + ')');
}
INSTANTIATE_TEST_SUITE_P(Portas, LetraDaPorta, testing::Values(0, 1, 2, 3),
                         [](const auto &caso) { return "Com" + std::to_string(caso.param + 1); });

} // namespace
