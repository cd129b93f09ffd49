// Order of texts: Portuguese dictionary, without regard to case.
#include "plataforma/jet/Ordem.h"
#include "Loja.h"

using namespace loja;
using plataforma::jet::ComparaPortugues;
using plataforma::jet::InicioGravado;
using plataforma::jet::TextoGravado;

namespace {

struct CasoOrdem {
    std::string nome;
    std::string_view a;
    std::string_view b;
    int sinal; // of the comparison of a with b
};
void PrintTo(const CasoOrdem &c, std::ostream *os)
{
    *os << c.a << " : " << c.b;
}

class ComparaPortuguesTest : public testing::TestWithParam<CasoOrdem> {};

int SinalDe(int n)
{
    return n < 0 ? -1 : n > 0 ? 1 : 0;
}

} // namespace

TEST_P(ComparaPortuguesTest, JudgesBothWaysRound)
{
    const CasoOrdem &caso = GetParam();
    EXPECT_EQ(SinalDe(ComparaPortugues(caso.a, caso.b)), caso.sinal);
    EXPECT_EQ(SinalDe(ComparaPortugues(caso.b, caso.a)), -caso.sinal);
}

using namespace std::string_view_literals;
INSTANTIATE_TEST_SUITE_P(Textos, ComparaPortuguesTest,
                         testing::Values(CasoOrdem{"CaseIsTheSame", "Banco", "bANCO", 0},
                                         CasoOrdem{"CaseOfAccentedLettersIsTheSame", "ÁGUA", "água", 0},
                                         CasoOrdem{"AccentComesAfterItsLetter", "a", "á", -1},
                                         CasoOrdem{"AccentComesBeforeTheNextLetter", "á", "b", -1},
                                         CasoOrdem{"CedillaBetweenCAndD", "ç", "d", -1},
                                         CasoOrdem{"CedillaAfterC", "c", "Ç", -1},
                                         CasoOrdem{"LettersDecideBeforeAccents", "ágil", "agua", -1},
                                         CasoOrdem{"AccentDecidesBetweenEqualLetters", "agua", "água", -1},
                                         CasoOrdem{"FirstAccentDecides", "pelá", "péla", -1},
                                         CasoOrdem{"ShorterComesFirst", "São", "São Paulo", -1},
                                         CasoOrdem{"ShorterComesFirstWhateverItsAccent", "á", "ab", -1},
                                         CasoOrdem{"EmptyComesFirst", "", " ", -1},
                                         CasoOrdem{"BlankBeforeDigitBeforeLetter", " ", "0", -1},
                                         CasoOrdem{"DigitBeforeLetter", "9", "a", -1},
                                         CasoOrdem{"TildeIsAnotherLetter", "São", "Sao", 1},
                                         CasoOrdem{"ZeroByteCounts", "a\0a"sv, "a\0b"sv, -1},
                                         CasoOrdem{"BareAnsiByteIsItsLetter", "S\xE3o", "são", 0},
                                         CasoOrdem{"CutSequenceIsItsAnsiLetter", "\xC3", "\xC3\xA3", 0},
                                         CasoOrdem{"AsciiBehindAnAccent", "São Paulo", "são PEDRO", -1},
                                         CasoOrdem{"AccentAgainstPunctuation", "a-", "aé", -1},
                                         CasoOrdem{"AnsiByteAgainstUtf8", "JOS\xC9 b", "josé a", 1},
                                         CasoOrdem{"OverlongFormIsNoLetter", "\xC1\xA1", "a", 1}),
                         [](const auto &caso) { return caso.param.nome; });

TEST(TextoGravado, ReadsUtf8)
{
    EXPECT_EQ(TextoGravado("S\xC3\xA3o"), QString("São"));
}
TEST(TextoGravado, ReadsWindows1252WhereItIsNotUtf8)
{
    EXPECT_EQ(TextoGravado("S\xE3o \x80"), QString("São €"));
}
TEST(TextoGravado, KeepsAReplacementCharacterThatIsStored)
{
    EXPECT_EQ(TextoGravado("\xEF\xBF\xBD\xC3\xA3"), QString("\uFFFDã"));
}
TEST(TextoGravado, AnEmptyTextIsNotNull)
{
    EXPECT_FALSE(TextoGravado({}).isNull());
}

namespace {

struct CasoInicio {
    std::string nome;
    std::string_view bytes;
    bool utf8; // whether every beginning is a stretch of the bytes
};
void PrintTo(const CasoInicio &c, std::ostream *os)
{
    *os << c.bytes;
}

class InicioGravadoTest : public testing::TestWithParam<CasoInicio> {};

} // namespace

TEST_P(InicioGravadoTest, IsTheBeginningOfTheText)
{
    const QString texto = TextoGravado(GetParam().bytes);
    for (qsizetype n = 0; n <= texto.size() + 2; ++n) {
        const auto inicio = InicioGravado(GetParam().bytes, static_cast<std::size_t>(n));
        if (inicio)
            EXPECT_EQ(*inicio, texto.left(n).toUtf8().toStdString()) << n;
        else
            EXPECT_FALSE(GetParam().utf8) << n;
    }
}

INSTANTIATE_TEST_SUITE_P(Textos, InicioGravadoTest,
                         testing::Values(CasoInicio{"Empty", "", true}, CasoInicio{"Ascii", "Banco", true},
                                         CasoInicio{"ZeroByte", "a\0b"sv, true},
                                         CasoInicio{"Accents", "São João ção", true},
                                         CasoInicio{"AccentFirst", "Álvaro", true},
                                         CasoInicio{"Euro", "a€b", true},
                                         CasoInicio{"TwoUnitsInTheMiddle", "a\xF0\x9F\x98\x80z", false},
                                         CasoInicio{"Windows1252", "Jos\xE9 e \x80", false},
                                         CasoInicio{"Windows1252BehindAccents", "S\xC3\xA3o Jos\xE9", false},
                                         CasoInicio{"CutAtTheEnd", "S\xC3\xA3o\xC3", false},
                                         CasoInicio{"OverlongForm", "\xC1\xA1 a", false},
                                         CasoInicio{"HalfOfAPair", "\xED\xA0\x80z", false},
                                         CasoInicio{"ByteOrderMark", "\xEF\xBB\xBFS\xC3\xA3o", false},
                                         CasoInicio{"ReplacementCharacter", "\xEF\xBF\xBD\xC3\xA3", true}),
                         [](const auto &caso) { return caso.param.nome; });

// Half of a character of two units is no text of its own: it must be made to know what stands for it.
TEST(InicioGravado, DoesNotCutACharacterOfTwoUnits)
{
    const std::string_view texto = "a\xF0\x9F\x98\x80z";
    EXPECT_EQ(InicioGravado(texto, 1), "a");
    EXPECT_EQ(InicioGravado(texto, 2), std::nullopt);
    EXPECT_EQ(InicioGravado(texto, 3), texto.substr(0, 5));
    EXPECT_EQ(InicioGravado(texto, 4), texto);
}

namespace {
class OrderByTest : public Loja {
protected:
    OrderByTest()
    {
        Executa("insert into Cidade values ('1', 'Belém'), ('2', 'árvore'), ('3', 'Agua'), ('4', 'água'), "
                "('5', 'AZUL'), ('6', NULL), ('7', 'açude'), ('8', 'acude'), ('9', 'agua')");
    }
};
} // namespace

TEST_F(OrderByTest, SortsByNameAndEqualNamesAsStored)
{
    EXPECT_EQ(Coluna(Caminho(), "Select * FROM Cidade ORDER BY Nome", "Codigo").join(' '),
              "6 8 7 3 9 4 2 5 1");
}

TEST_F(OrderByTest, SortsDownwards)
{
    EXPECT_EQ(Coluna(Caminho(), "Select * From Cidade Order by nome desc, codigo", "Codigo").join(' '),
              "1 5 2 4 3 9 7 8 6");
}

TEST_F(OrderByTest, SortsByAFunction)
{
    Executa("delete from Cidade; insert into Cidade values ('1', '10,5'), ('2', '9,75'), ('3', 'x')");
    EXPECT_EQ(Coluna(Caminho(), "Select * From Cidade Order by CDbl(Nome)", "Codigo").join(' '), "3 2 1");
}
