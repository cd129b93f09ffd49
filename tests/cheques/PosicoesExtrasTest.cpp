// Rules of the places of the extra fields: keys, what is read of them, what the boxes may hold and save.
#include "cheques/PosicoesExtras.h"
#include "nucleo/QX_INI.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>
#include <string>

using namespace cheques;

namespace {

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };

struct CasoChave {
    std::string nome;
    int campo;
    int lado;
    std::string chave;
};
void PrintTo(const CasoChave &c, std::ostream *os)
{
    *os << c.chave;
}
class ChaveDaPosicaoTest : public testing::TestWithParam<CasoChave> {};

TEST_P(ChaveDaPosicaoTest, NamesFieldAndSide)
{
    EXPECT_EQ(ChaveDaPosicao(GetParam().campo, GetParam().lado).toStdString(), GetParam().chave);
}

INSTANTIATE_TEST_SUITE_P(Chaves, ChaveDaPosicaoTest,
                         testing::Values(CasoChave{"FirstLine", 0, LadoLinha, "Campo00Lin"},
                                         CasoChave{"FirstColumn", 0, LadoColuna, "Campo00Col"},
                                         CasoChave{"SecondLine", 1, LadoLinha, "Campo01Lin"},
                                         CasoChave{"SecondColumn", 1, LadoColuna, "Campo01Col"},
                                         CasoChave{"ThirdLine", 2, LadoLinha, "Campo02Lin"},
                                         CasoChave{"ThirdColumn", 2, LadoColuna, "Campo02Col"}),
                         kNomeDoCaso);

struct CasoLida {
    std::string nome;
    QString chaves;
    int campo;
    int linha;
    int coluna;
};
void PrintTo(const CasoLida &c, std::ostream *os)
{
    *os << c.nome;
}
class LePosicaoExtraTest : public testing::TestWithParam<CasoLida> {};

TEST_P(LePosicaoExtraTest, TakesTheTwoNumbersOfTheField)
{
    const QTemporaryDir pasta;
    QFile arquivo(pasta.filePath("QX70.INI"));
    ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
    arquivo.write(("[FrenteInfo]\r\n" + GetParam().chaves).toLatin1());
    arquivo.close();
    const PosicaoExtra lida = LePosicaoExtra(nucleo::QX_INI(arquivo.fileName()), GetParam().campo);
    EXPECT_EQ(lida.linha, GetParam().linha);
    EXPECT_EQ(lida.coluna, GetParam().coluna);
}

INSTANTIATE_TEST_SUITE_P(
    Campos, LePosicaoExtraTest,
    testing::Values(CasoLida{"NeverProgrammed", "", 0, 0, 0},
                    CasoLida{"Both", "Campo00Lin=5\r\nCampo00Col=12\r\n", 0, 5, 12},
                    CasoLida{"ThirdField", "Campo02Lin=20\r\nCampo02Col=120\r\n", 2, 20, 120},
                    CasoLida{"KeysOfAnotherField", "Campo01Lin=5\r\nCampo01Col=12\r\n", 0, 0, 0},
                    CasoLida{"MissingLineCountsAsZero", "Campo00Col=12\r\n", 0, 0, 12},
                    CasoLida{"MissingColumnCountsAsZero", "Campo00Lin=5\r\n", 0, 5, 0},
                    CasoLida{"MinusTwoCountsAsZero", "Campo00Lin=-2\r\nCampo00Col=-2\r\n", 0, 0, 0},
                    CasoLida{"CharacterBelowTheDigitsIsDropped", "Campo01Lin=5-\r\nCampo01Col=12.\r\n", 1, 5,
                             12},
                    CasoLida{"BlankBehindIsDropped", "Campo01Lin=5 \r\nCampo01Col=12 \r\n", 1, 5, 12},
                    CasoLida{"EmptyValueIsZero", "Campo00Lin=\r\nCampo00Col=7\r\n", 0, 0, 7}),
    kNomeDoCaso);

struct CasoMostrada {
    std::string nome;
    PosicaoExtra posicao;
    std::string linha;
    std::string coluna;
};
void PrintTo(const CasoMostrada &c, std::ostream *os)
{
    *os << c.posicao.linha << ", " << c.posicao.coluna;
}
class TextosDaPosicaoTest : public testing::TestWithParam<CasoMostrada> {};

TEST_P(TextosDaPosicaoTest, ShowBothNumbersOrNeither)
{
    const auto textos = TextosDaPosicao(GetParam().posicao);
    EXPECT_EQ(textos[LadoLinha].toStdString(), GetParam().linha);
    EXPECT_EQ(textos[LadoColuna].toStdString(), GetParam().coluna);
}

INSTANTIATE_TEST_SUITE_P(Posicoes, TextosDaPosicaoTest,
                         testing::Values(CasoMostrada{"Both", {5, 12}, "5", "12"},
                                         CasoMostrada{"Largest", {20, 120}, "20", "120"},
                                         CasoMostrada{"NeverProgrammed", {0, 0}, "", ""},
                                         CasoMostrada{"LineZero", {0, 12}, "", ""},
                                         CasoMostrada{"ColumnZero", {5, 0}, "", ""}),
                         kNomeDoCaso);

struct CasoCorte {
    std::string nome;
    int lado;
    QString texto;
    const char *fica; ///< null: not over-long
};
void PrintTo(const CasoCorte &c, std::ostream *os)
{
    *os << '"' << c.texto.toStdString() << '"';
}
class CortaPosicaoTest : public testing::TestWithParam<CasoCorte> {};

TEST_P(CortaPosicaoTest, LeavesTwoDigitsOfALineAndThreeOfAColumn)
{
    const auto fica = CortaPosicao(GetParam().lado, GetParam().texto);
    ASSERT_EQ(fica.has_value(), GetParam().fica != nullptr);
    if (fica) {
        EXPECT_EQ(fica->toStdString(), GetParam().fica);
    }
}

INSTANTIATE_TEST_SUITE_P(Textos, CortaPosicaoTest,
                         testing::Values(CasoCorte{"LineEmpty", LadoLinha, "", nullptr},
                                         CasoCorte{"LineOfTwo", LadoLinha, "12", nullptr},
                                         CasoCorte{"LineOfThree", LadoLinha, "123", "12"},
                                         CasoCorte{"LineOfSix", LadoLinha, "987654", "98"},
                                         CasoCorte{"ColumnOfThree", LadoColuna, "123", nullptr},
                                         CasoCorte{"ColumnOfFour", LadoColuna, "1234", "123"}),
                         kNomeDoCaso);

struct CasoAceita {
    std::string nome;
    QString linha;
    QString coluna;
    bool aceita;
};
void PrintTo(const CasoAceita &c, std::ostream *os)
{
    *os << '"' << c.linha.toStdString() << "\", \"" << c.coluna.toStdString() << '"';
}
class PosicaoAceitaTest : public testing::TestWithParam<CasoAceita> {};

TEST_P(PosicaoAceitaTest, WantsBothAndUpToLine20AndColumn120)
{
    EXPECT_EQ(PosicaoAceita(GetParam().linha, GetParam().coluna), GetParam().aceita);
}

INSTANTIATE_TEST_SUITE_P(
    Textos, PosicaoAceitaTest,
    testing::Values(CasoAceita{"Usual", "5", "12", true}, CasoAceita{"Line20Column120", "20", "120", true},
                    CasoAceita{"Line21", "21", "1", false}, CasoAceita{"Column121", "1", "121", false},
                    CasoAceita{"LineEmpty", "", "12", false}, CasoAceita{"ColumnEmpty", "5", "", false},
                    CasoAceita{"BothEmpty", "", "", false}, CasoAceita{"BothZero", "0", "0", true},
                    CasoAceita{"LeadingZeros", "05", "012", true}),
    kNomeDoCaso);

} // namespace
