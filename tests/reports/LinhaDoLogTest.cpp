// A cheque of the log as a line of the list and as the texts of the detail panel.
#include "reports/LinhaDoLog.h"
#include "Amostras.h"
#include "plataforma/basico/RuntimeError.h"

#include <gtest/gtest.h>

using namespace reports;

namespace {

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };

/// A usual cheque.
ChequeDoLog Usual()
{
    return {.stCancel = " ",
            .nrch = "000123",
            .banco = "001",
            .vCh = "1234,5",
            .data = "05/03/07",
            .favor = "Padaria São João",
            .index = "0000000042"};
}
ChequeDoLog Com(QString ChequeDoLog::*campo, const QString &texto)
{
    ChequeDoLog cheque = Usual();
    cheque.*campo = texto;
    return cheque;
}

template <typename Acao> int NumeroDoErro(Acao acao)
{
    try {
        acao();
    } catch (const plataforma::RuntimeError &erro) {
        return erro.number();
    }
    return 0;
}

TEST(LinhaDoLog, EachChequeOfTheSampleHasItsLine)
{
    const auto cheques = amostras::Tabela("cheques.tsv");
    const QStringList linhas = amostras::Linhas("linhas.txt");
    ASSERT_EQ(static_cast<qsizetype>(cheques.size()), linhas.size());
    ASSERT_EQ(linhas.size(), 73);
    for (std::size_t i = 0; i < cheques.size(); ++i) {
        const QStringList &c = cheques[i];
        const QString linha = LinhaDoLog({c[0], c[1], c[2], c[3], c[4], c[5], c[6]});
        EXPECT_EQ(linha.toStdString(), linhas[static_cast<qsizetype>(i)].toStdString()) << "cheque " << i + 1;
        EXPECT_EQ(linha.size(), 138);
    }
}

TEST(LinhaDoLog, HasItsColumnsBetweenBars)
{
    EXPECT_EQ(LinhaDoLog(Usual()).toStdString(),
              "  |      000123 | 001 |         1.234,50 | 05/03/07 | Padaria São João" +
                  std::string(58, ' ') + "0000000042");
}

/// Characters of the line, counted from 1.
struct CasoColuna {
    std::string nome;
    QString ChequeDoLog::*campo;
    QString texto;
    int de, ate;
    QString mostra;
};
void PrintTo(const CasoColuna &c, std::ostream *os)
{
    *os << '"' << c.texto.toStdString() << '"';
}
class LinhaDoLogTest : public testing::TestWithParam<CasoColuna> {};

TEST_P(LinhaDoLogTest, ShowsTheFieldInItsColumn)
{
    const CasoColuna &c = GetParam();
    const QString linha = LinhaDoLog(Com(c.campo, c.texto));
    EXPECT_EQ(linha.mid(c.de - 1, c.ate - c.de + 1).toStdString(), c.mostra.toStdString());
    EXPECT_EQ(linha.size(), 138);
}

QString Brancos(int quantos)
{
    return QString(quantos, ' ');
}

INSTANTIATE_TEST_SUITE_P(
    Colunas, LinhaDoLogTest,
    testing::Values(
        CasoColuna{"Cancelled", &ChequeDoLog::stCancel, "C", 1, 3, "C |"},
        CasoColuna{"NotCancelled", &ChequeDoLog::stCancel, " ", 1, 3, "  |"},
        CasoColuna{"StatusEmpty", &ChequeDoLog::stCancel, "", 1, 3, "  |"},
        CasoColuna{"StatusNull", &ChequeDoLog::stCancel, QString(), 1, 3, "  |"},
        CasoColuna{"AnotherStatus", &ChequeDoLog::stCancel, "X", 1, 3, "  |"},
        CasoColuna{"NumberToTheRight", &ChequeDoLog::nrch, "77", 4, 15, "          77"},
        CasoColuna{"NumberOfTwelve", &ChequeDoLog::nrch, "123456789012", 4, 15, "123456789012"},
        CasoColuna{"NumberWithZerosInFront", &ChequeDoLog::nrch, "000001", 4, 15, "      000001"},
        CasoColuna{"NumberOfLetters", &ChequeDoLog::nrch, "AB-7", 4, 15, "        AB-7"},
        CasoColuna{"NumberEmpty", &ChequeDoLog::nrch, "", 4, 15, Brancos(12)},
        CasoColuna{"NumberNull", &ChequeDoLog::nrch, QString(), 4, 15, Brancos(12)},
        CasoColuna{"NumberOfOneBlank", &ChequeDoLog::nrch, " ", 4, 15, Brancos(12)},
        CasoColuna{"FirstSeparator", &ChequeDoLog::nrch, "1", 16, 18, " | "},
        CasoColuna{"BankAsStored", &ChequeDoLog::banco, "07A", 19, 21, "07A"},
        CasoColuna{"SecondSeparator", &ChequeDoLog::banco, "999", 22, 24, " | "},
        CasoColuna{"ValueWhole", &ChequeDoLog::vCh, "10,", 25, 40, "           10,00"},
        CasoColuna{"ValueBelowOne", &ChequeDoLog::vCh, ",5", 25, 40, "            0,50"},
        CasoColuna{"ValueOfOneCent", &ChequeDoLog::vCh, ",01", 25, 40, "            0,01"},
        CasoColuna{"ValueWithAThousand", &ChequeDoLog::vCh, "1000,", 25, 40, "        1.000,00"},
        CasoColuna{"ValueWithAMillion", &ChequeDoLog::vCh, "1000000,1", 25, 40, "    1.000.000,10"},
        CasoColuna{"ValueThatFillsItsColumn", &ChequeDoLog::vCh, "9999999999,99", 25, 40, "9.999.999.999,99"},
        CasoColuna{"ValueWrittenWithPoints", &ChequeDoLog::vCh, "1.234,56", 25, 40, "        1.234,56"},
        CasoColuna{"ValueOfThreeDecimals", &ChequeDoLog::vCh, "2,675", 25, 40, "            2,68"},
        CasoColuna{"ValueRoundedAwayFromZero", &ChequeDoLog::vCh, "1,005", 25, 40, "            1,01"},
        CasoColuna{"ValueZero", &ChequeDoLog::vCh, "0", 25, 40, "            0,00"},
        CasoColuna{"ThirdSeparator", &ChequeDoLog::vCh, "1,", 41, 43, " | "},
        CasoColuna{"Date", &ChequeDoLog::data, "31/12/99", 44, 51, "31/12/99"},
        CasoColuna{"DateShortToTheLeft", &ChequeDoLog::data, "1/2/99", 44, 51, "1/2/99  "},
        CasoColuna{"DateEmpty", &ChequeDoLog::data, "", 44, 51, Brancos(8)},
        CasoColuna{"DateNull", &ChequeDoLog::data, QString(), 44, 51, Brancos(8)},
        CasoColuna{"DateThatIsNoneAsStored", &ChequeDoLog::data, "31/02/99", 44, 51, "31/02/99"},
        CasoColuna{"FourthSeparator", &ChequeDoLog::data, "", 52, 54, " | "},
        CasoColuna{"PayeeToTheLeft", &ChequeDoLog::favor, "M", 55, 128, "M" + Brancos(73)},
        CasoColuna{"PayeeOf47", &ChequeDoLog::favor, QString(47, QChar(u'Ç')), 55, 128,
                   QString(47, QChar(u'Ç')) + Brancos(27)},
        CasoColuna{"PayeeOf74", &ChequeDoLog::favor, QString(74, 'x'), 55, 128, QString(74, 'x')},
        CasoColuna{"PayeeOfDigitsToTheLeft", &ChequeDoLog::favor, "007", 55, 128, "007" + Brancos(71)},
        CasoColuna{"PayeeWithABar", &ChequeDoLog::favor, "A | B", 55, 128, "A | B" + Brancos(69)},
        CasoColuna{"PayeeWithPatternSigns", &ChequeDoLog::favor, "@!#&<>\\", 55, 128,
                   "@!#&<>\\" + Brancos(67)},
        CasoColuna{"PayeeEmpty", &ChequeDoLog::favor, "", 55, 128, Brancos(74)},
        CasoColuna{"PayeeNull", &ChequeDoLog::favor, QString(), 55, 128, Brancos(74)},
        CasoColuna{"Index", &ChequeDoLog::index, "0000000001", 129, 138, "0000000001"},
        CasoColuna{"IndexShortToTheRight", &ChequeDoLog::index, "17", 129, 138, "        17"},
        CasoColuna{"IndexEmpty", &ChequeDoLog::index, "", 129, 138, Brancos(10)},
        CasoColuna{"IndexNull", &ChequeDoLog::index, QString(), 129, 138, Brancos(10)}),
    kNomeDoCaso);

// On purpose: the bank stands as stored, so that what follows a shorter one moves to the left.
TEST(LinhaDoLog, ABankThatIsTooShortMovesWhatFollows)
{
    const QString linha = LinhaDoLog(Com(&ChequeDoLog::banco, "1"));
    EXPECT_EQ(linha.size(), 136);
    EXPECT_EQ(linha.left(40).toStdString(), "  |      000123 | 1 |         1.234,50 |");
    EXPECT_EQ(ChaveDaLinha(linha), "0000000042");
}

TEST(LinhaDoLog, AValueTooLargeForItsColumnIsShownWhole)
{
    const QString linha = LinhaDoLog(Com(&ChequeDoLog::vCh, "12345678901,23"));
    EXPECT_EQ(linha.size(), 139);
    EXPECT_EQ(linha.mid(21, 22).toStdString(), " | 12.345.678.901,23 |");
    EXPECT_EQ(ChaveDaLinha(linha), "0000000042");
}

struct CasoSemValor {
    std::string nome;
    QString vCh;
};
void PrintTo(const CasoSemValor &c, std::ostream *os)
{
    *os << '"' << c.vCh.toStdString() << '"';
}
class LinhaSemValorTest : public testing::TestWithParam<CasoSemValor> {};
TEST_P(LinhaSemValorTest, AValueThatIsNoNumberIsAFailure)
{
    const ChequeDoLog cheque = Com(&ChequeDoLog::vCh, GetParam().vCh);
    EXPECT_EQ(NumeroDoErro([&] { LinhaDoLog(cheque); }), plataforma::ErrTypeMismatch);
    EXPECT_EQ(NumeroDoErro([&] { DetalheDoLog(cheque, {}, "X"); }), plataforma::ErrTypeMismatch);
}
INSTANTIATE_TEST_SUITE_P(Textos, LinhaSemValorTest,
                         testing::Values(CasoSemValor{"Empty", ""}, CasoSemValor{"Null", QString()},
                                         CasoSemValor{"Blank", " "}, CasoSemValor{"Letters", "abc"},
                                         CasoSemValor{"TwoCommas", "1,2,3"},
                                         CasoSemValor{"LettersBehindIt", "12x"}),
                         kNomeDoCaso);

struct CasoData {
    std::string nome;
    QString data;
    bool ilegivel;
};
void PrintTo(const CasoData &c, std::ostream *os)
{
    *os << '"' << c.data.toStdString() << '"';
}
class DataIlegivelTest : public testing::TestWithParam<CasoData> {};
TEST_P(DataIlegivelTest, IsADateOfNoCalendar)
{
    EXPECT_EQ(DataIlegivel(Com(&ChequeDoLog::data, GetParam().data)), GetParam().ilegivel);
}
INSTANTIATE_TEST_SUITE_P(Datas, DataIlegivelTest,
                         testing::Values(CasoData{"Usual", "28/02/99", false},
                                         CasoData{"LeapDay", "29/02/00", false},
                                         CasoData{"NoLeapDay", "29/02/99", true},
                                         CasoData{"Month13", "01/13/99", true},
                                         CasoData{"Words", "amanhã", true}, CasoData{"Empty", "", false},
                                         CasoData{"Null", QString(), false}),
                         kNomeDoCaso);

TEST(LinhaCancelada, LooksAtTheFirstCharacterAlone)
{
    EXPECT_TRUE(LinhaCancelada(LinhaDoLog(Com(&ChequeDoLog::stCancel, "C"))));
    EXPECT_FALSE(LinhaCancelada(LinhaDoLog(Com(&ChequeDoLog::favor, "C"))));
    EXPECT_FALSE(LinhaCancelada(LinhaDoLog(Com(&ChequeDoLog::nrch, "CCCCCCCCCCCC"))));
    EXPECT_FALSE(LinhaCancelada(""));
}

TEST(ChaveDaLinha, IsTheLastTenCharactersWithoutBlanks)
{
    EXPECT_EQ(ChaveDaLinha(LinhaDoLog(Usual())), "0000000042");
    EXPECT_EQ(ChaveDaLinha(LinhaDoLog(Com(&ChequeDoLog::index, "17"))), "17");
    EXPECT_EQ(ChaveDaLinha(LinhaDoLog(Com(&ChequeDoLog::index, ""))), "");
    EXPECT_EQ(ChaveDaLinha(LinhaDoLog(Com(&ChequeDoLog::favor, QString(74, '9')))), "0000000042");
    EXPECT_EQ(ChaveDaLinha(""), "");
}

TEST(TitulosDaLista, BeginWithStatusNumberBankAndValueAndStandOverDateAndPayee)
{
    EXPECT_TRUE(kTitulosDaLista.startsWith("Status    Nº Cheque |  Bco  |  Valor"));
    EXPECT_EQ(kTitulosDaLista.mid(43, 4), "Data");
    EXPECT_EQ(kTitulosDaLista.mid(54, 10), "Favorecido");
}

// ---- Detail panel ---------------------------------------------------------------------------------------

TEST(DetalheDoLog, ShowsEachFieldInItsLabel)
{
    const auto textos = DetalheDoLog(Usual(), {"Mogi das Cruzes", "um", "dois", "três"}, "Banco do Sul");
    const std::array<QString, 11> esperados = {"001 - Banco do Sul",
                                               "1.234,50",
                                               "Padaria São João",
                                               "Mogi das Cruzes",
                                               "05/03/07",
                                               "",
                                               "000123",
                                               " ",
                                               "um",
                                               "dois",
                                               "três"};
    for (std::size_t i = 0; i < esperados.size(); ++i)
        EXPECT_EQ(textos[i].toStdString(), esperados[i].toStdString()) << "Text1(" << i << ")";
}

TEST(DetalheDoLog, EmptyFieldsAreABlankOrNothing)
{
    ChequeDoLog cheque;
    cheque.vCh = "1,";
    const auto textos = DetalheDoLog(cheque, {}, "");
    const std::array<QString, 11> esperados = {" - ", "1,00", "", " ", " ", "", " ", " ", "", "", ""};
    for (std::size_t i = 0; i < esperados.size(); ++i)
        EXPECT_EQ(textos[i].toStdString(), esperados[i].toStdString()) << "Text1(" << i << ")";
}

TEST(DetalheDoLog, ACancelledChequeShowsItsMark)
{
    EXPECT_EQ(DetalheDoLog(Com(&ChequeDoLog::stCancel, "C"), {}, "X")[7], "C");
}

struct CasoValor {
    std::string nome;
    QString vCh;
    const char *texto;
};
void PrintTo(const CasoValor &c, std::ostream *os)
{
    *os << c.vCh.toStdString();
}
class TextoDoValorTest : public testing::TestWithParam<CasoValor> {};
TEST_P(TextoDoValorTest, HasPointsAndTwoDecimals)
{
    EXPECT_EQ(TextoDoValor(GetParam().vCh).toStdString(), GetParam().texto);
}
INSTANTIATE_TEST_SUITE_P(Valores, TextoDoValorTest,
                         testing::Values(CasoValor{"OneCent", ",01", "0,01"},
                                         CasoValor{"Whole", "7,", "7,00"},
                                         CasoValor{"OneDecimal", "999,9", "999,90"},
                                         CasoValor{"Thousand", "1000,", "1.000,00"},
                                         CasoValor{"RoundsUpIntoTheThousands", "999,995", "1.000,00"},
                                         CasoValor{"AllDigits", "99999999999,99", "99.999.999.999,99"}),
                         kNomeDoCaso);

TEST(TextoDoTotal, HasPointsAndTwoDecimals)
{
    EXPECT_EQ(TextoDoTotal(0).toStdString(), "0,00");
    EXPECT_EQ(TextoDoTotal(0.1 + 0.2).toStdString(), "0,30");
    EXPECT_EQ(TextoDoTotal(1234567.8).toStdString(), "1.234.567,80");
    EXPECT_EQ(TextoDoTotal(999999999999.25).toStdString(), "999.999.999.999,25");
    EXPECT_EQ(TextoDoTotal(9999999999999.5).toStdString(), "9.999.999.999.999,50");
}

} // namespace
