// Keys of the entry: the walk of Enter, the function keys, and the hint strip.
#include "ComEntrada.h"

using namespace teste;

namespace {

struct CasoEnter {
    std::string nome;
    QString de;
    QString digitado;
    std::string para;
};
void PrintTo(const CasoEnter &c, std::ostream *os)
{
    *os << "from " << c.de.toStdString();
}

class Enter : public ComEntradaDe<CasoEnter> {
protected:
    void Anda(Qt::Key tecla)
    {
        Abre();
        DigitaEm(GetParam().de, GetParam().digitado);
        Tecla(tecla);
        EXPECT_EQ(Foco(), GetParam().para);
        EXPECT_EQ(m_caixas->Quantas(), 0U);
        EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
    }
};
TEST_P(Enter, WalksTheFields)
{
    Anda(Qt::Key_Return);
}
TEST_P(Enter, OfTheKeypadWalksAsWell)
{
    Anda(Qt::Key_Enter);
}

INSTANTIATE_TEST_SUITE_P(Text1, Enter,
                         testing::Values(CasoEnter{"Bank", "Text1(0)", "237", "Text1(1)"},
                                         CasoEnter{"BankEmpty", "Text1(0)", "", "Text1(1)"},
                                         CasoEnter{"Value", "Text1(1)", "10", "Text1(2)"},
                                         CasoEnter{"Payee", "Text1(2)", "x", "Text1(3)"},
                                         CasoEnter{"PayeeEmpty", "Text1(2)", "", "Text1(3)"},
                                         CasoEnter{"City", "Text1(3)", "x", "Text1(4)"},
                                         CasoEnter{"CityEmptyStays", "Text1(3)", "", "Text1(3)"},
                                         CasoEnter{"Date", "Text1(4)", "010203", "Text1(6)"},
                                         CasoEnter{"DateEmpty", "Text1(4)", "", "Text1(6)"},
                                         CasoEnter{"Number", "Text1(6)", "1", "Opcoes(0)"},
                                         CasoEnter{"NumberEmpty", "Text1(6)", "", "Opcoes(0)"}),
                         kNomeDoCaso);

INSTANTIATE_TEST_SUITE_P(TxtCpo, Enter,
                         testing::Values(CasoEnter{"First", "TxtCpo(0)", "", "TxtCpo(1)"},
                                         CasoEnter{"Second", "TxtCpo(1)", "x", "TxtCpo(2)"},
                                         CasoEnter{"ThirdGoesToTheNumber", "TxtCpo(2)", "", "Text1(6)"}),
                         kNomeDoCaso);

std::vector<CasoEnter> CasosDasLinhas()
{
    std::vector<CasoEnter> casos;
    for (int i = 0; i < 10; ++i) {
        const std::string para = i < 9 ? "Text2(" + std::to_string(i + 1) + ")" : "Opcoes(0)";
        casos.push_back({"Line" + std::to_string(i), QString("Text2(%1)").arg(i), i % 2 ? "x" : "", para});
    }
    return casos;
}
INSTANTIATE_TEST_SUITE_P(Text2, Enter, testing::ValuesIn(CasosDasLinhas()), kNomeDoCaso);

// Every field of the front and the lines, with the key under which F4 saves it; a null key: none.
struct CasoTecla {
    QString controle;
    QString secao;
    QString chave;
};
void PrintTo(const CasoTecla &c, std::ostream *os)
{
    *os << c.controle.toStdString();
}
const auto kNomeDoControle = [](const auto &caso) {
    QString nome = caso.param.controle;
    return nome.remove('(').remove(')').toStdString();
};

std::vector<CasoTecla> CasosSalvos()
{
    std::vector<CasoTecla> casos = {
        {"Text1(0)", "FrenteInfo", "NumBanco"},   {"Text1(1)", "FrenteInfo", "Valor"},
        {"Text1(2)", "FrenteInfo", "Favorecido"}, {"Text1(3)", "FrenteInfo", "Cidade"},
        {"TxtCpo(0)", "FrenteInfo", "Campo00"},   {"TxtCpo(1)", "FrenteInfo", "Campo01"},
        {"TxtCpo(2)", "FrenteInfo", "Campo02"}};
    for (int i = 0; i < 10; ++i)
        casos.push_back({QString("Text2(%1)").arg(i), "Verso", QString("Linha0%1").arg(i)});
    return casos;
}
const std::vector<CasoTecla> kSemChave = {{"Text1(4)", {}, {}}, {"Text1(6)", {}, {}}};

class F8 : public ComEntradaDe<CasoTecla> {};
TEST_P(F8, EmptiesTheFieldAndStaysThere)
{
    Abre();
    DigitaEm(GetParam().controle, "12");
    Tecla(Qt::Key_F8);
    EXPECT_EQ(Texto(GetParam().controle), "");
    EXPECT_EQ(Foco(), GetParam().controle.toStdString());
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Campos, F8, testing::ValuesIn(CasosSalvos()), kNomeDoControle);
INSTANTIATE_TEST_SUITE_P(SemChave, F8, testing::ValuesIn(kSemChave), kNomeDoControle);

class F4 : public ComEntradaDe<CasoTecla> {};
TEST_P(F4, SavesTheTextUnderItsKey)
{
    Abre();
    VaiPara(GetParam().controle);
    Poe(GetParam().controle, "çã3");
    Tecla(Qt::Key_F4);
    EXPECT_EQ(m_escritorio.Chave(GetParam().secao, GetParam().chave).toStdString(), "çã3");
    EXPECT_EQ(Texto(GetParam().controle), "çã3");
    EXPECT_EQ(Foco(), GetParam().controle.toStdString());
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
TEST_P(F4, SavesAnEmptyFieldAsOneBlank)
{
    Ini("[" + GetParam().secao + "]\n" + GetParam().chave + "=12\n");
    Abre();
    ASSERT_EQ(Texto(GetParam().controle), "12");
    VaiPara(GetParam().controle);
    Tecla(Qt::Key_F8);
    Tecla(Qt::Key_F4);
    EXPECT_EQ(m_escritorio.Chave(GetParam().secao, GetParam().chave).toStdString(), " ");
}
INSTANTIATE_TEST_SUITE_P(Campos, F4, testing::ValuesIn(CasosSalvos()), kNomeDoControle);

// The settings file keeps the blanks around a value, but gives it without them.
struct CasoBrancos {
    std::string nome;
    QString digitada;
    std::string volta;
};
void PrintTo(const CasoBrancos &c, std::ostream *os)
{
    *os << '"' << c.digitada.toStdString() << '"';
}
class LinhaComBrancos : public ComEntradaDe<CasoBrancos> {};
TEST_P(LinhaComBrancos, ComesBackWithoutThemAtTheNextStart)
{
    Abre();
    DigitaEm("Text2(4)", GetParam().digitada);
    Tecla(Qt::Key_F4);
    EXPECT_EQ(Texto("Text2(4)"), GetParam().digitada.toStdString()) << "the screen keeps what was typed";
    EXPECT_EQ(m_escritorio.Chave("Verso", "Linha04"), GetParam().digitada);
    Abre();
    EXPECT_EQ(Texto("Text2(4)"), GetParam().volta);
}
INSTANTIATE_TEST_SUITE_P(Brancos, LinhaComBrancos,
                         testing::Values(CasoBrancos{"OnBothSides", "  um dois ", "um dois"},
                                         CasoBrancos{"Before", "   um", "um"},
                                         CasoBrancos{"Behind", "um   ", "um"},
                                         CasoBrancos{"InsideTheyStay", "um   dois", "um   dois"},
                                         CasoBrancos{"NothingElseIsOneBlank", "    ", " "}),
                         kNomeDoCaso);

class F4SemChave : public ComEntradaDe<CasoTecla> {};
TEST_P(F4SemChave, LeavesTheSettingsAsTheyAre)
{
    Abre();
    DigitaEm(GetParam().controle, "010203");
    const QString antes = m_escritorio.LeIni();
    Tecla(Qt::Key_F4);
    EXPECT_EQ(m_escritorio.LeIni().toStdString(), antes.toStdString());
    EXPECT_EQ(Texto(GetParam().controle), "010203");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(SemChave, F4SemChave, testing::ValuesIn(kSemChave), kNomeDoControle);

class DicaDoRodape : public ComEntrada {
protected:
    const std::string m_dosCampos = "F3 - Pesquisa  |  F8 - Limpa Campo  |  F4 - Grava Linha";
    const std::string m_dosExtras = "F3 - Programa Campo  |  F8 - Limpa Campo  |  F4 - Grava Linha";
};

TEST_F(DicaDoRodape, TellsTheKeysOfTheFields)
{
    Abre();
    EXPECT_EQ(Dica(), m_dosCampos);
}

TEST_F(DicaDoRodape, TellsTheKeysOfTheExtraFieldsWhileThere)
{
    Abre();
    VaiPara("TxtCpo(0)");
    EXPECT_EQ(Dica(), m_dosExtras);
    VaiPara("TxtCpo(2)");
    EXPECT_EQ(Dica(), m_dosExtras);
    VaiPara("Text1(2)");
    EXPECT_EQ(Dica(), m_dosCampos);
    VaiPara("TxtCpo(1)");
    EXPECT_EQ(Dica(), m_dosExtras);
    Tecla(Qt::Key_Return);
    Tecla(Qt::Key_Return);
    ASSERT_EQ(Foco(), "Text1(6)");
    EXPECT_EQ(Dica(), m_dosCampos);
}

} // namespace
