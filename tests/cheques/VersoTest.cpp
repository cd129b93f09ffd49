// Rules of the back of the cheque: its keys in the settings, and the text and mode that are sent.
#include "cheques/Verso.h"
#include "nucleo/QX_INI.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>
#include <string>
#include <utility>
#include <vector>

using namespace cheques;

namespace {

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };
const QString kRecuo(15, ' ');

using Linhas = std::array<QString, kLinhasDoVerso>;

Linhas So(const std::vector<std::pair<int, QString>> &filled)
{
    Linhas linhas;
    for (const auto &[i, texto] : filled)
        linhas.at(static_cast<std::size_t>(i)) = texto;
    return linhas;
}

Linhas Todas(const QString &texto)
{
    Linhas linhas;
    linhas.fill(texto);
    return linhas;
}

struct CasoVerso {
    std::string nome;
    Linhas linhas;
    QString texto;
    int modo;
    int tomadas; ///< lines that were added before the end
};
void PrintTo(const CasoVerso &c, std::ostream *os)
{
    *os << c.nome;
}
class TextoDoVersoTest : public testing::TestWithParam<CasoVerso> {};

TEST_P(TextoDoVersoTest, HoldsTheLinesUpToTheLastFilledOne)
{
    TextoDoVerso verso;
    int tomadas = 0;
    while (tomadas < kLinhasDoVerso && PoeLinhaDoVerso(GetParam().linhas, tomadas, verso))
        ++tomadas;
    EXPECT_EQ(verso.texto.toStdString(), GetParam().texto.toStdString());
    EXPECT_EQ(verso.modo, GetParam().modo);
    EXPECT_EQ(tomadas, GetParam().tomadas);
}

INSTANTIATE_TEST_SUITE_P(
    Linhas, TextoDoVersoTest,
    testing::Values(CasoVerso{"AllEmptySendNothing", {}, "", 3, 0},
                    CasoVerso{"FirstOnly", So({{0, "um"}}), kRecuo + "um\n", 3, 1},
                    CasoVerso{"OnlyLineFive", So({{5, "cinco"}}), "\n\n\n\n\n" + kRecuo + "cinco\n", 3, 6},
                    CasoVerso{"LastOnly", So({{9, "fim"}}), QString(9, '\n') + kRecuo + "fim\n", 3, 10},
                    CasoVerso{"GapBetweenTwo", So({{1, "a"}, {4, "b"}}),
                              "\n" + kRecuo + "a\n\n\n" + kRecuo + "b\n", 3, 5},
                    CasoVerso{"AllTen", Todas("x"), (kRecuo + "x\n").repeated(10), 3, 10},
                    CasoVerso{"OneBlankIsNotEmpty", So({{0, " "}}), QString(16, ' ') + "\n", 3, 1},
                    CasoVerso{"OneBlankAtTheEndIsSent", So({{0, "a"}, {3, " "}}),
                              kRecuo + "a\n\n\n" + QString(16, ' ') + "\n", 3, 4},
                    CasoVerso{"BlanksAroundALineStay", So({{0, "  a "}}), kRecuo + "  a \n", 3, 1},
                    CasoVerso{"AccentsAreLeftToTheSending", So({{0, "ação"}}), kRecuo + "ação\n", 3, 1}),
    kNomeDoCaso);

INSTANTIATE_TEST_SUITE_P(
    Modo, TextoDoVersoTest,
    testing::Values(
        CasoVerso{"SixtyFiveCharacters", So({{0, QString(65, 'x')}}), kRecuo + QString(65, 'x') + '\n', 3, 1},
        CasoVerso{"SixtySixCharacters", So({{0, QString(66, 'x')}}), kRecuo + QString(66, 'x') + '\n', 2, 1},
        CasoVerso{"EightyCharactersAreNotCut", So({{0, QString(80, 'x')}}), kRecuo + QString(80, 'x') + '\n',
                  2, 1},
        CasoVerso{"ShortLineBehindALongOneKeepsIt", So({{0, QString(66, 'x')}, {1, "a"}, {2, "b"}}),
                  kRecuo + QString(66, 'x') + '\n' + kRecuo + "a\n" + kRecuo + "b\n", 2, 3},
        CasoVerso{"LongLineAtTheEndIsEnough", So({{0, "a"}, {9, QString(66, 'x')}}),
                  kRecuo + "a\n" + QString(8, '\n') + kRecuo + QString(66, 'x') + '\n', 2, 10}),
    kNomeDoCaso);

TEST(PoeLinhaDoVerso, AnEndAddsNothingToWhatIsThere)
{
    TextoDoVerso verso{"antes\n", 2};
    EXPECT_FALSE(PoeLinhaDoVerso(So({{0, "a"}}), 1, verso));
    EXPECT_EQ(verso.texto, "antes\n");
    EXPECT_EQ(verso.modo, 2);
}

class ComIni : public testing::Test {
protected:
    void Poe(const QString &conteudo) const
    {
        QFile arquivo(m_caminho);
        ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
        const QByteArray bytes = conteudo.toLatin1();
        ASSERT_EQ(arquivo.write(bytes), bytes.size());
    }
    [[nodiscard]] std::string Conteudo() const
    {
        QFile arquivo(m_caminho);
        return arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll().toStdString() : "no file";
    }
    QTemporaryDir m_pasta;
    const QString m_caminho = m_pasta.filePath("QX70.INI");
    const nucleo::QX_INI m_ini{m_caminho};
};

struct CasoLinha {
    std::string nome;
    QString arquivo;
    int linha;
    std::string lida;
};
void PrintTo(const CasoLinha &c, std::ostream *os)
{
    *os << c.nome;
}
class LeVersoTest : public ComIni, public testing::WithParamInterface<CasoLinha> {};

TEST_P(LeVersoTest, GivesTheStoredLine)
{
    Poe(GetParam().arquivo);
    EXPECT_EQ(LeVerso(m_ini, GetParam().linha).toStdString(), GetParam().lida);
}

INSTANTIATE_TEST_SUITE_P(
    Linhas, LeVersoTest,
    testing::Values(CasoLinha{"MissingKeyIsEmpty", "[Verso]\r\nLinha00=um\r\n", 1, ""},
                    CasoLinha{"MissingSectionIsEmpty", "[Outra]\r\nLinha00=um\r\n", 0, ""},
                    CasoLinha{"First", "[Verso]\r\nLinha00=um\r\nLinha09=dez\r\n", 0, "um"},
                    CasoLinha{"Last", "[Verso]\r\nLinha00=um\r\nLinha09=dez\r\n", 9, "dez"},
                    CasoLinha{"OneBlankComesAsOneBlank", "[Verso]\r\nLinha03= \r\n", 3, " "},
                    CasoLinha{"EmptyValueIsEmpty", "[Verso]\r\nLinha03=\r\n", 3, ""},
                    CasoLinha{"Accents", "[Verso]\r\nLinha04=Ação à vista\r\n", 4, "Ação à vista"},
                    CasoLinha{"EightyCharacters", "[Verso]\r\nLinha05=" + QString(80, 'x') + "\r\n", 5,
                              std::string(80, 'x')},
                    CasoLinha{"MinusTwoReadsAsMissing", "[Verso]\r\nLinha06=-2abc\r\n", 6, ""}),
    kNomeDoCaso);

struct CasoGravada {
    std::string nome;
    int linha;
    QString texto;
    std::string arquivo;
};
void PrintTo(const CasoGravada &c, std::ostream *os)
{
    *os << c.nome;
}
class GravaVersoTest : public ComIni, public testing::WithParamInterface<CasoGravada> {};

TEST_P(GravaVersoTest, WritesTheKeyOfTheLineAlone)
{
    Poe("[Verso]\r\nLinha01=fica\r\n");
    GravaVerso(m_ini, GetParam().linha, GetParam().texto);
    EXPECT_EQ(Conteudo(), GetParam().arquivo);
}

INSTANTIATE_TEST_SUITE_P(
    Linhas, GravaVersoTest,
    testing::Values(CasoGravada{"First", 0, "um", "[Verso]\r\nLinha01=fica\r\nLinha00=um\r\n"},
                    CasoGravada{"Last", 9, "dez", "[Verso]\r\nLinha01=fica\r\nLinha09=dez\r\n"},
                    CasoGravada{"AnotherText", 1, "novo", "[Verso]\r\nLinha01=novo\r\n"},
                    CasoGravada{"EmptyTextIsOneBlank", 1, "", "[Verso]\r\nLinha01= \r\n"},
                    CasoGravada{"AccentsAreOfTheSystemsCodePage", 1, "ção",
                                "[Verso]\r\nLinha01=\xE7\xE3o\r\n"}),
    kNomeDoCaso);

TEST_F(ComIni, ALineThatWasEmptiedAndSavedComesBackAsOneBlank)
{
    GravaVerso(m_ini, 7, "");
    EXPECT_EQ(LeVerso(m_ini, 7), " ");
}

} // namespace
