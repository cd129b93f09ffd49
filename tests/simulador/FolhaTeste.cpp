// Bytes of free texts becoming lines of sheets.
#include <gmock/gmock.h>

#include "Apoio.h"
#include "Folha.h"

using namespace simulador;

namespace {

/// "text|text" of all lines of the sheets, sheets parted by "//".
QString Resumo(const std::vector<Documento> &folhas)
{
    QStringList partes;
    for (const Documento &folha : folhas) {
        QStringList linhas;
        for (const LinhaDeFolha &linha : folha.linhas)
            linhas << linha.texto;
        partes << linhas.join('|');
    }
    return partes.join("//");
}

struct CasoTexto {
    const char *nome;
    QByteArray bytes;
    int modo;
    QString linhas;
};
void PrintTo(const CasoTexto &c, std::ostream *os)
{
    *os << c.nome;
}
class FolhaTest : public testing::TestWithParam<CasoTexto> {};
TEST_P(FolhaTest, BreaksTheTextIntoLines)
{
    Folha folha;
    ASSERT_TRUE(folha.Acrescenta(GetParam().bytes, GetParam().modo, false));
    EXPECT_EQ(Resumo(folha.Tira()), GetParam().linhas);
}
INSTANTIATE_TEST_SUITE_P(
    Textos, FolhaTest,
    testing::Values(
        CasoTexto{"LineFeedsAlone", "um\ndois\n", 3, "um|dois"},
        CasoTexto{"CarriageReturnPrintsNothing", "um\r\ndois\r\n", 3, "um|dois"},
        CasoTexto{"LastLineWithoutEnd", "um\ndois", 3, "um|dois"},
        CasoTexto{"BlankLinesCount", "\n\num\n", 3, "||um"},
        CasoTexto{"BlanksAtTheEndGo", "  um  \n", 3, "  um"},
        CasoTexto{"FormFeedEndsTheSheet", "um\f\ndois\f", 3, "um//|dois"},
        CasoTexto{"FormFeedOnAnEmptySheet", "\f\fum\n", 3, "um"},
        CasoTexto{"InitialiseAtTheEnd", "um\n\r\n\x1B@", 3, "um|"},
        CasoTexto{"InitialiseEndsTheLineBegun", "um\x1B@dois", 3, "um|dois"},
        CasoTexto{"OtherEscapesAreSkipped", "a\x1BXb\n", 3, "ab"},
        CasoTexto{"ControlsPrintNothing", QByteArray("a\x00\x07\t\x7F b\n", 7), 3, "a b"},
        CasoTexto{"Exactly80Columns", QByteArray(80, 'x') + "\r\ny\n", 3, QString(80, 'x') + "|y"},
        CasoTexto{"Over80Columns", QByteArray(81, 'x') + "\n", 3, QString(80, 'x') + "|x"},
        CasoTexto{"Over96Columns", QByteArray(97, 'x') + "\n", 2, QString(96, 'x') + "|x"},
        CasoTexto{"Over136Columns", QByteArray(137, 'x') + "\n", 1, QString(136, 'x') + "|x"},
        CasoTexto{"FullLineThenBlankLine", QByteArray(80, 'x') + "\n\ny\n", 3, QString(80, 'x') + "||y"},
        CasoTexto{"NothingAtAll", "", 3, ""},
        CasoTexto{"AccentsOfTheDevice", "S\xC6o Jos\x82\n", 3, QString::fromUtf8("São José")}),
    [](const auto &caso) { return caso.param.nome; });

TEST(Folha, KnowsThreeModes)
{
    EXPECT_EQ(LarguraDoModo(1), 136);
    EXPECT_EQ(LarguraDoModo(2), 96);
    EXPECT_EQ(LarguraDoModo(3), 80);
    Folha folha;
    for (int modo : {0, 4, -1})
        EXPECT_FALSE(folha.Acrescenta("texto\n", modo, false));
    EXPECT_TRUE(folha.Tira().empty());
}

TEST(Folha, CopyLinesPrintInTheModeLastSet)
{
    Folha folha;
    folha.Acrescenta("", 2, false);
    folha.AcrescentaCru("a\r\n");
    folha.Acrescenta("", 3, false);
    folha.AcrescentaCru("b\r\n");
    const auto folhas = folha.Tira();
    EXPECT_EQ(folhas.at(0).linhas,
              (std::vector<LinhaDeFolha>{{"a", 96, false, false}, {"b", 80, false, false}}));
}

TEST(Folha, EmphasisHoldsForItsTextAlone)
{
    Folha folha;
    folha.Acrescenta("titulo\r\n", 2, true);
    folha.Acrescenta("linha\r\n", 2, false);
    const auto folhas = folha.Tira();
    EXPECT_EQ(folhas.at(0).linhas,
              (std::vector<LinhaDeFolha>{{"titulo", 96, true, false}, {"linha", 96, false, false}}));
}

TEST(Folha, AChangeOfPitchEndsTheLineBegun)
{
    Folha folha;
    folha.Acrescenta("a", 1, false);
    folha.Acrescenta("b\n", 3, false);
    const auto folhas = folha.Tira();
    EXPECT_EQ(folhas.at(0).linhas,
              (std::vector<LinhaDeFolha>{{"a", 136, false, false}, {"b", 80, false, false}}));
}

TEST(Folha, InvertedLinesKeepTheOrderReceived)
{
    Folha folha;
    folha.Inverte();
    folha.AcrescentaCru("fim\r\n\r\ncomeco\r\n");
    folha.Inverte();
    folha.AcrescentaCru("de pe\r\n");
    const auto folhas = folha.Tira();
    EXPECT_EQ(folhas.at(0).linhas, (std::vector<LinhaDeFolha>{{"fim", 80, false, true},
                                                              {"", 80, false, true},
                                                              {"comeco", 80, false, true},
                                                              {"de pe", 80, false, false}}));
}

TEST(Folha, InitialiseBringsBackModeEmphasisAndDirection)
{
    Folha folha;
    folha.Inverte();
    folha.Acrescenta("a\n\x1B@"
                     "b\n",
                     1, true);
    const auto folhas = folha.Tira();
    EXPECT_EQ(folhas.at(0).linhas,
              (std::vector<LinhaDeFolha>{{"a", 136, true, true}, {"b", 80, false, false}}));
}

TEST(Folha, TheModeOutlivesTheSheet)
{
    Folha folha;
    folha.Acrescenta("a\n", 1, false);
    folha.Tira();
    folha.AcrescentaCru("b\r\n");
    EXPECT_EQ(folha.Tira().at(0).linhas.at(0).largura, 136);
}

} // namespace
