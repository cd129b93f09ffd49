// The fields of Main as the operator types: the length rule, and what arriving at a field does.
#include "ComEntrada.h"

using namespace teste;

namespace {

const char *const kTamanhoMaximo = "Tamanho Máximo deste campo...";

struct CasoTamanho {
    std::string nome;
    QString controle;
    int tamanho;
    int resta;
    bool avisa;
};
void PrintTo(const CasoTamanho &c, std::ostream *os)
{
    *os << c.controle.toStdString() << " with " << c.tamanho << " characters";
}

class TextoPosto : public ComEntradaDe<CasoTamanho> {};
TEST_P(TextoPosto, IsCutWithAMessageAboveTheLimit)
{
    Abre();
    Poe(GetParam().controle, QString(GetParam().tamanho, '7'));
    EXPECT_EQ(Texto(GetParam().controle), std::string(static_cast<size_t>(GetParam().resta), '7'));
    if (GetParam().avisa)
        EsperaCaixa(kTamanhoMaximo, "Erro", QMessageBox::Warning);
    else
        EXPECT_EQ(m_caixas->Quantas(), 0U) << m_caixas->Ultima().texto.toStdString();
}
// On purpose: a city above 20 characters is cut to 15.
INSTANTIATE_TEST_SUITE_P(Campos, TextoPosto,
                         testing::Values(CasoTamanho{"Bank3", "Text1(0)", 3, 3, false},
                                         CasoTamanho{"Bank4", "Text1(0)", 4, 3, true},
                                         CasoTamanho{"Value16", "Text1(1)", 16, 16, false},
                                         CasoTamanho{"Value17", "Text1(1)", 17, 16, true},
                                         CasoTamanho{"Payee47", "Text1(2)", 47, 47, false},
                                         CasoTamanho{"Payee48", "Text1(2)", 48, 47, true},
                                         CasoTamanho{"City20", "Text1(3)", 20, 20, false},
                                         CasoTamanho{"City21IsCutTo15", "Text1(3)", 21, 15, true},
                                         CasoTamanho{"Date60", "Text1(4)", 60, 60, false},
                                         CasoTamanho{"Number12", "Text1(6)", 12, 12, false},
                                         CasoTamanho{"Number13", "Text1(6)", 13, 12, true},
                                         CasoTamanho{"Extra200", "TxtCpo(1)", 200, 200, false},
                                         CasoTamanho{"FirstLine80", "Text2(0)", 80, 80, false},
                                         CasoTamanho{"FirstLine81", "Text2(0)", 81, 80, true},
                                         CasoTamanho{"LastLine200", "Text2(9)", 200, 80, true}),
                         kNomeDoCaso);

class TextoDigitado : public ComEntradaDe<CasoTamanho> {};
// On purpose: the bank has no limit on the keyboard, so that typing reaches its rule.
TEST_P(TextoDigitado, StopsAtTheLimitOfTheKeyboardOrMeetsTheRule)
{
    Abre();
    DigitaEm(GetParam().controle, QString(GetParam().tamanho, '7'));
    EXPECT_EQ(Texto(GetParam().controle), std::string(static_cast<size_t>(GetParam().resta), '7'));
    if (GetParam().avisa)
        EsperaCaixa(kTamanhoMaximo, "Erro", QMessageBox::Warning);
    else
        EXPECT_EQ(m_caixas->Quantas(), 0U) << m_caixas->Ultima().texto.toStdString();
}
INSTANTIATE_TEST_SUITE_P(Campos, TextoDigitado,
                         testing::Values(CasoTamanho{"BankReachesItsRule", "Text1(0)", 4, 3, true},
                                         CasoTamanho{"Value", "Text1(1)", 17, 16, false},
                                         CasoTamanho{"Payee", "Text1(2)", 48, 47, false},
                                         CasoTamanho{"City", "Text1(3)", 21, 20, false},
                                         CasoTamanho{"DateHasNone", "Text1(4)", 40, 40, false},
                                         CasoTamanho{"Number", "Text1(6)", 13, 12, false},
                                         CasoTamanho{"ExtraHasNone", "TxtCpo(0)", 130, 130, false},
                                         CasoTamanho{"LineReachesItsRule", "Text2(3)", 81, 80, true}),
                         kNomeDoCaso);

class Tamanhos : public ComEntrada {};

TEST_F(Tamanhos, SavedBankThatIsTooLongIsCutAtTheStart)
{
    Ini("[FrenteInfo]\nNumBanco=2375\n");
    Abre();
    EXPECT_EQ(Texto("Text1(0)"), "237");
    ASSERT_EQ(m_caixasDoInicio.size(), 1U);
    EXPECT_EQ(m_caixasDoInicio[0].texto, kTamanhoMaximo);
    EXPECT_EQ(m_caixasDoInicio[0].titulo, "Erro");
}

TEST_F(Tamanhos, SavedLineThatIsTooLongIsCutAtTheStart)
{
    Ini("[Verso]\nLinha04=" + QString(81, 'x') + "\n");
    Abre();
    EXPECT_EQ(Texto("Text2(4)"), std::string(80, 'x'));
    EXPECT_FALSE(m_caixasDoInicio.empty());
}

TEST_F(Tamanhos, CommandLineMeetsTheRule)
{
    app::ArgumentosLinha argumentos;
    argumentos[3] = QString(21, 'c');
    Abre(argumentos);
    EXPECT_EQ(Texto("Text1(3)"), std::string(15, 'c'));
    ASSERT_EQ(m_caixasDoInicio.size(), 1U);
    EXPECT_EQ(m_caixasDoInicio[0].texto, kTamanhoMaximo);
}

TEST_F(Tamanhos, HandOverMeetsTheRule)
{
    Abre();
    Tela().Recebe({{6, QString(13, '9')}});
    EXPECT_EQ(Texto("Text1(6)"), std::string(12, '9'));
    EsperaCaixa(kTamanhoMaximo, "Erro", QMessageBox::Warning);
}

TEST_F(Tamanhos, ProgramTextsAreNotValidated)
{
    Ini("[FrenteInfo]\nNumBanco=1\nValor=abc\n");
    app::ArgumentosLinha argumentos;
    argumentos[4] = "999999";
    Abre(argumentos);
    EXPECT_EQ(Texto("Text1(0)"), "1");
    EXPECT_EQ(NomeDoBanco(), "");
    EXPECT_EQ(Texto("Text1(1)"), "abc");
    EXPECT_EQ(Texto("Text1(4)"), "999999");
    EXPECT_TRUE(m_caixasDoInicio.empty());
}

const std::vector<QString> kText1 = {"Text1(0)", "Text1(1)", "Text1(2)", "Text1(3)", "Text1(4)", "Text1(6)"};

std::string NomeDoControle(const testing::TestParamInfo<QString> &caso)
{
    QString nome = caso.param;
    return nome.remove('(').remove(')').toStdString();
}

class Chegada : public ComEntradaDe<QString> {};

TEST_P(Chegada, TakesTheTextOfTheSearch)
{
    Abre();
    VaiPara("TxtCpo(0)");
    Poe(GetParam(), "99");
    Dados().TextoPesquisa = "042";
    VaiPara(GetParam());
    EXPECT_EQ(Texto(GetParam()), "042");
    EXPECT_EQ(Dados().TextoPesquisa, "");
    EXPECT_EQ(Selecao(GetParam()), "042");
}

TEST_P(Chegada, WithoutASearchKeepsTheText)
{
    Abre();
    VaiPara("TxtCpo(0)");
    Poe(GetParam(), "150");
    VaiPara(GetParam());
    EXPECT_EQ(Texto(GetParam()), "150");
}

TEST_P(Chegada, TurnsValidationOn)
{
    Abre();
    VaiPara("TxtCpo(0)");
    Dados().ValidaCampos = 0;
    VaiPara(GetParam());
    EXPECT_EQ(Dados().ValidaCampos, 1);
}

TEST_P(Chegada, SelectsTheWholeText)
{
    Abre();
    VaiPara("TxtCpo(0)");
    Poe(GetParam(), "150");
    VaiPara(GetParam());
    EXPECT_EQ(Selecao(GetParam()), "150");
}
INSTANTIATE_TEST_SUITE_P(Text1, Chegada, testing::ValuesIn(kText1), NomeDoControle);

class ChegadaNaLinha : public ComEntradaDe<QString> {};

TEST_P(ChegadaNaLinha, TurnsValidationOffAndSelectsTheWholeText)
{
    Abre();
    VaiPara("TxtCpo(0)");
    Poe(GetParam(), "linha escrita");
    VaiPara(GetParam());
    EXPECT_EQ(Dados().ValidaCampos, 0);
    EXPECT_EQ(Selecao(GetParam()), "linha escrita");
}

TEST_P(ChegadaNaLinha, ClickWhereTheFocusIsTurnsValidationOffAgain)
{
    Abre();
    VaiPara(GetParam());
    Dados().ValidaCampos = 1;
    Clica(GetParam());
    EXPECT_EQ(Dados().ValidaCampos, 0);
}
INSTANTIATE_TEST_SUITE_P(Text2, ChegadaNaLinha, testing::Values("Text2(0)", "Text2(2)", "Text2(9)"),
                         NomeDoControle);

class ChegadaSemRegra : public ComEntradaDe<QString> {};
TEST_P(ChegadaSemRegra, LeavesValidationAsItIs)
{
    Abre();
    for (const std::int16_t antes : {std::int16_t{0}, std::int16_t{1}}) {
        VaiPara("Text1(2)");
        VaiPara("CheckBox");
        Dados().ValidaCampos = antes;
        apoio::Controle<QWidget>(Tela(), GetParam())->setFocus();
        ASSERT_EQ(Foco(), GetParam().toStdString());
        EXPECT_EQ(Dados().ValidaCampos, antes);
    }
}
INSTANTIATE_TEST_SUITE_P(Controles, ChegadaSemRegra,
                         testing::Values("TxtCpo(0)", "TxtCpo(1)", "TxtCpo(2)", "Opcoes(0)"), NomeDoControle);

class ChegadaNaLimpeza : public ComEntradaDe<QString> {};
TEST_P(ChegadaNaLimpeza, TurnsValidationOff)
{
    Abre();
    VaiPara("TxtCpo(0)");
    ASSERT_EQ(Dados().ValidaCampos, 1);
    apoio::Controle<QWidget>(Tela(), GetParam())->setFocus();
    ASSERT_EQ(Foco(), GetParam().toStdString());
    EXPECT_EQ(Dados().ValidaCampos, 0);
}
INSTANTIATE_TEST_SUITE_P(Opcoes, ChegadaNaLimpeza, testing::Values("Opcoes(3)", "Opcoes(4)"), NomeDoControle);

class Inicio : public ComEntrada {};

TEST_F(Inicio, ValidationIsOn)
{
    Abre();
    EXPECT_EQ(Dados().ValidaCampos, 1);
}

TEST_F(Inicio, SavedFieldsComeIn)
{
    Ini("[FrenteInfo]\nNumBanco=237\nValor=1,00\nFavorecido=José\nCidade=São João\nCampo00=a\nCampo01=b\n"
        "Campo02= \n[Verso]\nLinha00=um\nLinha09=dez\n");
    Abre();
    EXPECT_EQ(Texto("Text1(0)"), "237");
    EXPECT_EQ(Texto("Text1(1)"), "1,00");
    EXPECT_EQ(Texto("Text1(2)"), "José");
    EXPECT_EQ(Texto("Text1(3)"), "São João");
    EXPECT_EQ(Texto("Text1(4)"), "");
    EXPECT_EQ(Texto("Text1(6)"), "");
    EXPECT_EQ(Texto("TxtCpo(0)"), "a");
    EXPECT_EQ(Texto("TxtCpo(1)"), "b");
    EXPECT_EQ(Texto("TxtCpo(2)"), " ");
    EXPECT_EQ(Texto("Text2(0)"), "um");
    EXPECT_EQ(Texto("Text2(1)"), "");
    EXPECT_EQ(Texto("Text2(9)"), "dez");
}

TEST_F(Inicio, ValueIsRightAligned)
{
    Abre();
    EXPECT_TRUE(apoio::Controle<QLineEdit>(Tela(), "Text1(1)")->alignment() & Qt::AlignRight);
}

} // namespace
