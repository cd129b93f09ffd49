// Like: a text against a pattern with wildcards.
#include "plataforma/basico/Texto.h"
#include "Tabela.h"

#include <gtest/gtest.h>

using namespace plataforma;

namespace {

TEST(Like, AgreesWithTheTable)
{
    for (const QStringList &linha : tabela::Le("like.tsv", 3)) {
        EXPECT_EQ(Like(linha[0], linha[1]), linha[2] == "yes") << tabela::Mostra(linha);
    }
}

struct CasoLike {
    std::string nome;
    QString texto;
    QString padrao;
    bool casa;
};
void PrintTo(const CasoLike &caso, std::ostream *os)
{
    *os << caso.texto.toStdString() << " Like " << caso.padrao.toStdString();
}
class LikeTest : public testing::TestWithParam<CasoLike> {};

TEST_P(LikeTest, Matches)
{
    EXPECT_EQ(Like(GetParam().texto, GetParam().padrao), GetParam().casa);
}

INSTANTIATE_TEST_SUITE_P(
    Texto, LikeTest,
    testing::Values(
        CasoLike{"SameText", "Banco", "Banco", true}, CasoLike{"CaseDoesNotCount", "banco", "BANCO", true},
        CasoLike{"AccentedCaseDoesNotCount", u"ÁGUA"_qs, u"água"_qs, true},
        CasoLike{"AccentCounts", u"água"_qs, "agua", false},
        CasoLike{"EmptyPatternTakesTheEmptyText", "", "", true},
        CasoLike{"EmptyPatternTakesNothingElse", "a", "", false},
        CasoLike{"WholeTextMustFit", "Banco", "Ban", false},
        CasoLike{"StarInTheMiddle", "Banco do Litoral", "ba*ral", true},
        CasoLike{"StarTakesNothingToo", "Banco", "Ban*co", true},
        CasoLike{"StarGivesBackWhatItTook", "abcabcabd", "*abd", true},
        CasoLike{"TwoStars", "aXbXc", "a*b*c", true}, CasoLike{"TwoStarsInOrder", "acb", "a*b*c", false},
        CasoLike{"QuestionMarkIsOne", "001", "0?1", true},
        CasoLike{"QuestionMarkIsNotNone", "01", "0?1", false},
        CasoLike{"NumberSignIsADigit", "A7", "A#", true}, CasoLike{"NumberSignIsNoLetter", "AB", "A#", false},
        CasoLike{"NumberSignIsNoOtherDigit", u"A\u0663"_qs, "A#", false},
        CasoLike{"ListTakesOne", "Bela", "[abc]ela", true},
        CasoLike{"ListRefusesOthers", "Dela", "[abc]ela", false},
        CasoLike{"RangeInAnyCase", "M5", "[a-z]5", true}, CasoLike{"RangeEnds", "n5", "[a-m]5", false},
        CasoLike{"RangeFromItsFirst", "a", "[a-m]", true}, CasoLike{"RangeToItsLast", "m", "[a-m]", true},
        CasoLike{"NegatedListRefuses", "Bela", "[!abc]ela", false},
        CasoLike{"NegatedListTakesOthers", "Dela", "[!abc]ela", true},
        CasoLike{"NegatedListTakesACharacter", "ela", "[!abc]ela", false},
        CasoLike{"ListOfAStar", "a*b", "a[*]b", true}, CasoLike{"ListOfAStarIsNoStar", "axb", "a[*]b", false},
        CasoLike{"ListOfANumberSign", "n#1", "n[#]1", true},
        CasoLike{"ListOfAnOpenBracket", "a[b", "a[[]b", true},
        CasoLike{"HyphenAtTheEndOfAList", "-", "[ab-]", true},
        CasoLike{"HyphenAtTheStartOfAList", "-", "[-ab]", true},
        CasoLike{"ExclamationAloneInAList", "!", "[!]", true},
        CasoLike{"RangeBackwardsTakesNone", "b", "[c-a]", false},
        CasoLike{"EmptyListIsNothing", "ab", "a[]b", true},
        CasoLike{"OpenBracketNeverClosed", "a[b", "a[B", true},
        CasoLike{"OpenBracketNeverClosedIsNoList", "ab", "a[b", false},
        CasoLike{"CloseBracketAlone", "a]", "a]", true},
        CasoLike{"UnderscoreIsNoWildcard", "AxB", "A_B", false},
        CasoLike{"PercentIsNoWildcard", "Axx", "A%", false},
        CasoLike{"QuestionMarkTakesALineBreak", "a\nb", "a?b", true}),
    [](const auto &caso) { return caso.param.nome; });

// A byte of the upper half may stand for a part of a character, or for one of a code page.
TEST_P(LikeTest, MatchesTheBytesOrCannotTell)
{
    const QByteArray bytes = GetParam().texto.toUtf8();
    const bool ascii = GetParam().texto.toLatin1() == bytes;
    const std::optional<bool> casa =
        PadraoLike(GetParam().padrao)
            .AceitaBytes({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    EXPECT_TRUE(casa.has_value() || !ascii);
    EXPECT_EQ(casa.value_or(GetParam().casa), GetParam().casa);
}

struct CasoBytes {
    std::string nome;
    const char *bytes;
    const char *padrao;
    std::optional<bool> casa;
};
void PrintTo(const CasoBytes &caso, std::ostream *os)
{
    *os << caso.bytes << " Like " << caso.padrao;
}
class AceitaBytesTest : public testing::TestWithParam<CasoBytes> {};

TEST_P(AceitaBytesTest, ReadsNoMoreThanItMust)
{
    EXPECT_EQ(PadraoLike(GetParam().padrao).AceitaBytes(GetParam().bytes), GetParam().casa);
}

INSTANTIATE_TEST_SUITE_P(
    Bytes, AceitaBytesTest,
    testing::Values(CasoBytes{"BeginningBeforeTheAccent", "Joa\xC3\xA3o", "jo*", true},
                    CasoBytes{"OtherBeginningBeforeTheAccent", "Joa\xC3\xA3o", "jx*", false},
                    CasoBytes{"BeginningUpToTheAccent", "Jo\xE3o", "jo*", true},
                    CasoBytes{"AccentIsPartOfTheBeginning", "Jo\xE3o", "joa*", std::nullopt},
                    CasoBytes{"AnyCharacterMayBeTwoBytes", "\xC3\xA3", "?", std::nullopt},
                    CasoBytes{"EndBehindTheAccent", "Jo\xE3o", "*o", std::nullopt},
                    CasoBytes{"StarAloneTakesAnything", "\xE3", "*", true},
                    CasoBytes{"EmptyPatternTakesNoAccent", "\xE3", "", std::nullopt}),
    [](const auto &caso) { return caso.param.nome; });

TEST(PadraoLike, IsTriedOnManyTexts)
{
    const PadraoLike padrao("b[ae]*a");
    EXPECT_TRUE(padrao.Aceita("Bela Vista"));
    EXPECT_FALSE(padrao.Aceita("Bela Vistas"));
    EXPECT_TRUE(padrao.Aceita("baa"));
}

TEST(Like, ManyStarsEndSoon)
{
    const QString texto(20000, QLatin1Char('a'));
    EXPECT_FALSE(Like(texto, QStringLiteral("*a*a*a*a*a*a*a*a*a*b")));
}

} // namespace
