// Text rules counted from 1, and the Windows-1252 code page.
#include "plataforma/basico/Texto.h"
#include "plataforma/basico/RuntimeError.h"

#include <functional>
#include <gtest/gtest.h>
#include <set>

using namespace plataforma;

namespace {

struct CasoRecorte {
    std::string nome;
    std::function<QString()> chamada;
    QString sai;
};
void PrintTo(const CasoRecorte &caso, std::ostream *os)
{
    *os << caso.nome;
}
class RecorteTest : public testing::TestWithParam<CasoRecorte> {};

TEST_P(RecorteTest, GivesThePart)
{
    EXPECT_EQ(GetParam().chamada().toStdString(), GetParam().sai.toStdString());
}

INSTANTIATE_TEST_SUITE_P(
    Texto, RecorteTest,
    testing::Values(CasoRecorte{"LeftOfALongerText", [] { return Left("Cheque", 3); }, "Che"},
                    CasoRecorte{"LeftOfNothing", [] { return Left("Cheque", 0); }, ""},
                    CasoRecorte{"LeftBeyondTheEnd", [] { return Left("Che", 9); }, "Che"},
                    CasoRecorte{"RightOfALongerText", [] { return Right("Cheque", 3); }, "que"},
                    CasoRecorte{"RightOfNothing", [] { return Right("Cheque", 0); }, ""},
                    CasoRecorte{"RightBeyondTheEnd", [] { return Right("que", 9); }, "que"},
                    CasoRecorte{"MidCountsFromOne", [] { return Mid("010299", 3, 2); }, "02"},
                    CasoRecorte{"MidCutShortByTheEnd", [] { return Mid("010299", 5, 4); }, "99"},
                    CasoRecorte{"MidBehindTheEnd", [] { return Mid("0102", 5, 4); }, ""},
                    CasoRecorte{"MidOfNothing", [] { return Mid("0102", 2, 0); }, ""},
                    CasoRecorte{"MidToTheEnd", [] { return Mid("010299", 5); }, "99"},
                    CasoRecorte{"MidFarBehindTheEnd", [] { return Mid("010299", 70); }, ""},
                    CasoRecorte{"TrimOnBothSides", [] { return Trim("  a b  "); }, "a b"},
                    CasoRecorte{"TrimLeavesOtherBlanks", [] { return Trim(u" \t\u00A0a\r\n "_qs); },
                                u"\t\u00A0a\r\n"_qs},
                    CasoRecorte{"TrimOfBlanksOnly", [] { return Trim("    "); }, ""},
                    CasoRecorte{"LTrimLeavesTheRight", [] { return LTrim("  a  "); }, "a  "},
                    CasoRecorte{"RTrimLeavesTheLeft", [] { return RTrim("  a  "); }, "  a"},
                    CasoRecorte{"OnlyDigitsOfAMixedText", [] { return OnlyDigits("1a2 -3,4.5"); }, "12345"},
                    CasoRecorte{"OnlyDigitsOfDigits", [] { return OnlyDigits("0123456789"); }, "0123456789"},
                    CasoRecorte{"OnlyDigitsOfNone", [] { return OnlyDigits("abc /:"); }, ""},
                    CasoRecorte{"OnlyDigitsOfNothing", [] { return OnlyDigits(""); }, ""},
                    CasoRecorte{"OnlyDigitsOfOurOwnKind", [] { return OnlyDigits(u"1²٣３4"_qs); }, "14"},
                    CasoRecorte{"SpaceOfThree", [] { return Space(3); }, "   "},
                    CasoRecorte{"SpaceOfNothing", [] { return Space(0); }, ""}),
    [](const auto &caso) { return caso.param.nome; });

class RecusaTest : public testing::TestWithParam<CasoRecorte> {};

TEST_P(RecusaTest, IsABadArgument)
{
    try {
        GetParam().chamada();
        FAIL() << "nothing was thrown";
    } catch (const RuntimeError &erro) {
        EXPECT_EQ(erro.number(), ErrInvalidCall);
        EXPECT_TRUE(erro.text().contains(GetParam().sai)) << erro.what();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texto, RecusaTest,
    testing::Values(CasoRecorte{"LeftOfLess", [] { return Left("a", -1); }, "Left: -1"},
                    CasoRecorte{"RightOfLess", [] { return Right("a", -2); }, "Right: -2"},
                    CasoRecorte{"MidFromZero", [] { return Mid("a", 0, 1); }, "Mid: 0"},
                    CasoRecorte{"MidOfLess", [] { return Mid("a", 1, -1); }, "Mid: -1"},
                    CasoRecorte{"MidToTheEndFromZero", [] { return Mid("a", 0); }, "Mid: 0"},
                    CasoRecorte{"SpaceOfLess", [] { return Space(-1); }, "Space: -1"}),
    [](const auto &caso) { return caso.param.nome; });

TEST(Ansi, EveryByteComesBack)
{
    QByteArray todos;
    for (int byte = 0; byte < 256; ++byte) {
        todos.append(static_cast<char>(byte));
    }
    const QString texto = FromAnsi(todos);
    EXPECT_EQ(texto.size(), 256);
    EXPECT_EQ(std::set<QChar>(texto.begin(), texto.end()).size(), 256U);
    EXPECT_EQ(ToAnsi(texto), todos);
}

TEST(Ansi, TakesItsOwnSigns)
{
    EXPECT_EQ(ToAnsi(u"€ƒŠŒŽ–—™šœžŸ çã"_qs).toHex(), QByteArray("80838a8c8e9697999a9c9e9f20e7e3"));
}

TEST(Ansi, TheFiveOpenBytesAreControlCharacters)
{
    EXPECT_EQ(FromAnsi("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D"_qs);
}

TEST(Ansi, AnyOtherCharacterBecomesAQuestionMark)
{
    // U+0080 is a control character, not the euro sign; a character of two units leaves the length as Len
    // counts.
    EXPECT_EQ(ToAnsi(u"a\u0080\u0394\u2212\U0001F4B0b"_qs), QByteArray("a?????b"));
}

TEST(UCase, CapitalsOfTheCodePage)
{
    EXPECT_EQ(UCase(u"são joão, ção àâéêíóôõúü ñøþ šœžÿ"_qs).toStdString(),
              u"SÃO JOÃO, ÇÃO ÀÂÉÊÍÓÔÕÚÜ ÑØÞ ŠŒŽŸ"_qs.toStdString());
}

TEST(UCase, LeavesWhatHasNoCapitalThere)
{
    const QString texto = u"ABC 123 ß÷×µƒªº λя"_qs;
    EXPECT_EQ(UCase(texto).toStdString(), texto.toStdString());
}

} // namespace
