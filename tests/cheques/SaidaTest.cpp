// What leaving a field of the cheque does: bank, value, date, and fields that are discarded.
#include "ComEntrada.h"

#include <QFile>
#include <QLabel>

using namespace teste;

namespace {

class SaidaDoBanco : public ComEntrada {
protected:
    void EsperaInexistente()
    {
        EsperaCaixa("Banco Inexistente...", "Erro", QMessageBox::Warning);
        EXPECT_EQ(Texto("Text1(0)"), "");
        EXPECT_EQ(Foco(), "Text1(0)");
        EXPECT_TRUE(Dados().armazem.Aberto(nucleo::SelBancos));
    }
};

TEST_F(SaidaDoBanco, FillsToThreeDigitsAndShowsTheName)
{
    Abre();
    DigitaEm("Text1(0)", "1");
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(Texto("Text1(0)"), "001");
    EXPECT_EQ(NomeDoBanco(), "BANCO UM");
    EXPECT_EQ(Foco(), "Text1(1)");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(SaidaDoBanco, ClosesTheStoreBehindAFoundBank)
{
    Abre();
    DigitaEm("Text1(0)", "237");
    Tecla(Qt::Key_Tab);
    ASSERT_EQ(NomeDoBanco(), "BANCO DOIS");
    EXPECT_FALSE(Dados().armazem.Aberto(nucleo::SelBancos));
}

TEST_F(SaidaDoBanco, LettersAreEmptiedWithoutAWord)
{
    Abre();
    DigitaEm("Text1(0)", "abc");
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(Texto("Text1(0)"), "");
    EXPECT_EQ(Foco(), "Text1(1)");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(SaidaDoBanco, ZeroIsEmptiedWithoutAWord)
{
    Abre();
    DigitaEm("Text1(0)", "000");
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(Texto("Text1(0)"), "");
    EXPECT_EQ(Foco(), "Text1(1)");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(SaidaDoBanco, EmptyIsLeftWithoutAWord)
{
    Abre();
    VaiPara("Text1(0)");
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Foco(), "Text1(1)");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(SaidaDoBanco, UnknownBankByTabIsToldAndLeavesTheStoreOpen)
{
    Abre();
    DigitaEm("Text1(0)", "9");
    Tecla(Qt::Key_Tab);
    EsperaInexistente();
}

TEST_F(SaidaDoBanco, UnknownBankByEnterIsToldAndLeavesTheStoreOpen)
{
    Abre();
    DigitaEm("Text1(0)", "999");
    Tecla(Qt::Key_Return);
    EsperaInexistente();
}

TEST_F(SaidaDoBanco, UnknownBankByAClickElsewhereIsToldAndKeepsTheFocus)
{
    Abre();
    DigitaEm("Text1(0)", "999");
    Clica("TxtCpo(1)");
    EsperaInexistente();
}

TEST_F(SaidaDoBanco, KnownBankAfterAnUnknownOneIsFound)
{
    Abre();
    DigitaEm("Text1(0)", "999");
    Tecla(Qt::Key_Tab);
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    Ativa();
    DigitaEm("Text1(0)", "237");
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(NomeDoBanco(), "BANCO DOIS");
    EXPECT_EQ(Foco(), "Text1(1)");
    EXPECT_FALSE(Dados().armazem.Aberto(nucleo::SelBancos));
}

TEST_F(SaidaDoBanco, UnknownBankLeavesTheNameThatWasShown)
{
    Abre();
    Poe("Text1(1)", "1,00");
    DigitaEm("Text1(0)", "237");
    Tecla(Qt::Key_Tab);
    DigitaEm("Text1(0)", "999");
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(NomeDoBanco(), "BANCO DOIS");
}

TEST_F(SaidaDoBanco, NumberBeyondThreeDigitsMeetsTheLengthRule)
{
    Abre();
    DigitaEm("Text1(0)", "1e3");
    Tecla(Qt::Key_Tab);
    ASSERT_EQ(m_caixas->Quantas(), 2U);
    EXPECT_EQ(m_caixas->Vistas()[0].texto, "Tamanho Máximo deste campo...");
    EXPECT_EQ(m_caixas->Vistas()[1].texto, "Banco Inexistente...");
}

TEST_F(SaidaDoBanco, MissingStoreSkipsTheLookup)
{
    ASSERT_TRUE(QFile::remove(m_escritorio.Arquivo("QX70.MDB")));
    Abre();
    DigitaEm("Text1(0)", "1");
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(Texto("Text1(0)"), "001");
    EXPECT_EQ(NomeDoBanco(), "");
    EXPECT_EQ(Foco(), "Text1(1)");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

struct CasoDigitado {
    std::string nome;
    QString digitado;
    std::string mostra; ///< empty: refused
};
void PrintTo(const CasoDigitado &c, std::ostream *os)
{
    *os << '"' << c.digitado.toStdString() << '"';
}

class SaidaDoValor : public ComEntradaDe<CasoDigitado> {};
TEST_P(SaidaDoValor, ShowsAnAmount)
{
    Abre();
    DigitaEm("Text1(1)", GetParam().digitado);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(Texto("Text1(1)"), GetParam().mostra);
    EXPECT_EQ(Foco(), "Text1(2)");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Valores, SaidaDoValor,
                         testing::Values(CasoDigitado{"OneDecimal", "1.234,5", "1.234,50"},
                                         CasoDigitado{"Whole", "1000", "1.000,00"},
                                         CasoDigitado{"Zero", "0", "0,00"},
                                         CasoDigitado{"PointIsSkipped", "1234.50", "123.450,00"}),
                         kNomeDoCaso);

struct CasoRecusa {
    std::string nome;
    QString digitado;
    Qt::Key tecla; ///< Key_unknown: a click elsewhere
};
void PrintTo(const CasoRecusa &c, std::ostream *os)
{
    *os << '"' << c.digitado.toStdString() << '"';
}

class ValorQueNaoSai : public ComEntradaDe<CasoRecusa> {};
TEST_P(ValorQueNaoSai, IsEmptiedAndKeepsTheFocusWithoutAWord)
{
    Abre();
    DigitaEm("Text1(1)", GetParam().digitado);
    if (GetParam().tecla == Qt::Key_unknown)
        Clica("Text1(3)");
    else
        Tecla(GetParam().tecla);
    EXPECT_EQ(Texto("Text1(1)"), "");
    EXPECT_EQ(Foco(), "Text1(1)");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Valores, ValorQueNaoSai,
                         testing::Values(CasoRecusa{"EmptyByTab", "", Qt::Key_Tab},
                                         CasoRecusa{"EmptyByBacktab", "", Qt::Key_Backtab},
                                         CasoRecusa{"EmptyByEnter", "", Qt::Key_Return},
                                         CasoRecusa{"EmptyByClick", "", Qt::Key_unknown},
                                         CasoRecusa{"LettersByTab", "abc", Qt::Key_Tab},
                                         CasoRecusa{"LettersByEnter", "12a", Qt::Key_Return},
                                         CasoRecusa{"CommaByClick", ",", Qt::Key_unknown}),
                         kNomeDoCaso);

class SaidaDaData : public ComEntradaDe<CasoDigitado> {
protected:
    void Sai(Qt::Key tecla)
    {
        Abre();
        DigitaEm("Text1(4)", GetParam().digitado);
        Tecla(tecla);
    }
};
TEST_P(SaidaDaData, ShowsADay)
{
    Sai(Qt::Key_Tab);
    EXPECT_EQ(Texto("Text1(4)"), GetParam().mostra);
    EXPECT_NE(Foco(), "Text1(4)");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
TEST_P(SaidaDaData, GoesByEnterToTheNumber)
{
    Sai(Qt::Key_Return);
    EXPECT_EQ(Texto("Text1(4)"), GetParam().mostra);
    EXPECT_EQ(Foco(), "Text1(6)");
}
// On purpose: ten characters give the century for the year, six with bars show them twice.
INSTANTIATE_TEST_SUITE_P(Datas, SaidaDaData,
                         testing::Values(CasoDigitado{"SixDigits", "010299", "01/02/99"},
                                         CasoDigitado{"EightCharacters", "01/02/99", "01/02/99"},
                                         CasoDigitado{"ShortPartsAndLongYear", "1/2/2003", "01/02/03"},
                                         CasoDigitado{"TenCharactersGiveYear20", "01/02/2003", "01/02/20"},
                                         CasoDigitado{"SixCharactersWithBars", "1/2/99", "1//2//99"},
                                         CasoDigitado{"LeapDayOfYearZero", "290200", "29/02/00"}),
                         kNomeDoCaso);

class DataInvalida : public ComEntradaDe<CasoRecusa> {};
TEST_P(DataInvalida, IsToldEmptiedAndKeepsTheFocus)
{
    Abre();
    DigitaEm("Text1(4)", GetParam().digitado);
    if (GetParam().tecla == Qt::Key_unknown)
        Clica("TxtCpo(0)");
    else
        Tecla(GetParam().tecla);
    EsperaCaixa("Data Inválida.", "QX70 MIRA - Document Printer", QMessageBox::Warning);
    EXPECT_EQ(Texto("Text1(4)"), "");
    EXPECT_EQ(Foco(), "Text1(4)");
}
INSTANTIATE_TEST_SUITE_P(Datas, DataInvalida,
                         testing::Values(CasoRecusa{"LeapDayOfACommonYearByTab", "290299", Qt::Key_Tab},
                                         CasoRecusa{"April31ByEnter", "310499", Qt::Key_Return},
                                         CasoRecusa{"DayZeroByClick", "001299", Qt::Key_unknown},
                                         CasoRecusa{"Month13ByTab", "01/13/99", Qt::Key_Tab},
                                         CasoRecusa{"LettersByTab", "abc", Qt::Key_Tab}),
                         kNomeDoCaso);

class DataVazia : public ComEntrada {
protected:
    void EsperaHoje()
    {
        EXPECT_EQ(Texto("Text1(4)"), "01/02/03");
        EXPECT_EQ(Foco(), "Text1(6)");
        EXPECT_EQ(Dados().ValidaCampos, 1);
        EXPECT_EQ(m_caixas->Quantas(), 0U);
    }
};

TEST_F(DataVazia, TakesTodayByTab)
{
    Abre();
    VaiPara("Text1(4)");
    Tecla(Qt::Key_Tab);
    EsperaHoje();
}

TEST_F(DataVazia, TakesTodayByEnter)
{
    Abre();
    VaiPara("Text1(4)");
    Tecla(Qt::Key_Return);
    EsperaHoje();
}

TEST_F(DataVazia, TakesTodayAndGoesToTheNumberWhereverTheClickWent)
{
    Abre();
    Poe("Text1(6)", "123");
    VaiPara("Text1(4)");
    Clica("Text1(2)");
    EsperaHoje();
    EXPECT_EQ(Selecao("Text1(6)"), "123");
}

// The move to the number takes the place of the click, so that nothing is printed before the date is seen.
TEST_F(DataVazia, ClickOnPrintingFillsTheDateAndPrintsNothing)
{
    Abre();
    PreencheCheque();
    Poe("Text1(4)", "");
    VaiPara("Text1(4)");
    Clica("Opcoes(0)");
    EsperaHoje();
    EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
}

class SaidaSemRegra : public ComEntradaDe<QString> {};
TEST_P(SaidaSemRegra, KeepsTheText)
{
    Abre();
    DigitaEm(GetParam(), "x y");
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(Texto(GetParam()), "x y");
    EXPECT_NE(Foco(), GetParam().toStdString());
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Text1, SaidaSemRegra, testing::Values("Text1(2)", "Text1(3)"),
                         [](const auto &caso) { return caso.param.mid(6, 1).toStdString(); });

struct CasoDescarte {
    std::string nome;
    QString campo;
    QString destino;
};
void PrintTo(const CasoDescarte &c, std::ostream *os)
{
    *os << c.campo.toStdString() << " to " << c.destino.toStdString();
}

// On purpose: these moves discard the field that is left, with no check of it.
class Descarte : public ComEntradaDe<CasoDescarte> {};
TEST_P(Descarte, EmptiesTheFieldAndChecksNothing)
{
    Abre();
    DigitaEm(GetParam().campo, "999");
    Clica(GetParam().destino);
    EXPECT_EQ(Texto(GetParam().campo), "");
    EXPECT_EQ(NomeDoBanco(), "");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Cliques, Descarte,
                         testing::Values(CasoDescarte{"BankByALine", "Text1(0)", "Text2(0)"},
                                         CasoDescarte{"ValueByALine", "Text1(1)", "Text2(9)"},
                                         CasoDescarte{"PayeeByALine", "Text1(2)", "Text2(4)"},
                                         CasoDescarte{"CityByALine", "Text1(3)", "Text2(0)"},
                                         CasoDescarte{"DateByALine", "Text1(4)", "Text2(0)"},
                                         CasoDescarte{"NumberByALine", "Text1(6)", "Text2(0)"},
                                         CasoDescarte{"BankByClearingTheBack", "Text1(0)", "Opcoes(4)"},
                                         CasoDescarte{"CityByClearingTheBack", "Text1(3)", "Opcoes(4)"},
                                         CasoDescarte{"DateByClearingTheBack", "Text1(4)", "Opcoes(4)"},
                                         CasoDescarte{"DateByClearingTheCheque", "Text1(4)", "Opcoes(3)"}),
                         kNomeDoCaso);

class Saida : public ComEntrada {};

TEST_F(Saida, ClickIntoALineTakesTheFocusThere)
{
    Abre();
    DigitaEm("Text1(3)", "Santos");
    Clica("Text2(0)");
    EXPECT_EQ(Foco(), "Text2(0)");
}

TEST_F(Saida, DiscardingTurnsValidationOnAgain)
{
    Abre();
    DigitaEm("Text1(3)", "Santos");
    Dados().ValidaCampos = 0;
    Clica("TxtCpo(0)");
    EXPECT_EQ(Texto("Text1(3)"), "");
    EXPECT_EQ(Dados().ValidaCampos, 1);
}

TEST_F(Saida, ClickIntoAnExtraFieldValidates)
{
    Abre();
    DigitaEm("Text1(0)", "1");
    Clica("TxtCpo(0)");
    EXPECT_EQ(Texto("Text1(0)"), "001");
    EXPECT_EQ(NomeDoBanco(), "BANCO UM");
    EXPECT_EQ(Foco(), "TxtCpo(0)");
}

TEST_F(Saida, AnotherWindowIsNoLeaving)
{
    Abre();
    DigitaEm("Text1(4)", "999999");
    QWidget outra;
    outra.show();
    outra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&outra));
    EXPECT_EQ(Texto("Text1(4)"), "999999");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

} // namespace
