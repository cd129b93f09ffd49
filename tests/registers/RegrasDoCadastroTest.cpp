// Rules of the registers and of the search popup on plain texts.
#include "registers/RegrasDoCadastro.h"
#include "registers/RegrasDaPesquisa.h"

#include <gtest/gtest.h>

namespace {

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };

struct CasoLinha {
    std::string nome;
    QString linha;
    int tamanho;
    std::string codigo, nomeNaLinha;
};
void PrintTo(const CasoLinha &c, std::ostream *os)
{
    *os << '"' << c.linha.toStdString() << "\" " << c.tamanho;
}
class PartesDaLinha : public testing::TestWithParam<CasoLinha> {};
TEST_P(PartesDaLinha, AreTheFirstFiveCharactersAndThoseFromTheNinthOn)
{
    const registers::CodigoENome partes = registers::PartesDaLinha(GetParam().linha, GetParam().tamanho);
    EXPECT_EQ(partes.codigo.toStdString(), GetParam().codigo);
    EXPECT_EQ(partes.nome.toStdString(), GetParam().nomeNaLinha);
}
const QString kVinte = "Ção José do Rio Pret";
const QString kSetentaEQuatro = QString("abcdefghij").repeated(7) + "ÁÉÍÓ";
INSTANTIATE_TEST_SUITE_P(
    Linhas, PartesDaLinha,
    testing::Values(CasoLinha{"City", "00003 - Recife", 20, "00003", "Recife"},
                    CasoLinha{"Payee", "00123 - José Luís", 74, "00123", "José Luís"},
                    CasoLinha{"CityOfTwenty", "00003 - " + kVinte, 20, "00003", kVinte.toStdString()},
                    CasoLinha{"CityOfTwentyOneIsCut", "00003 - " + kVinte + "o", 20, "00003",
                              kVinte.toStdString()},
                    CasoLinha{"PayeeOfSeventyFour", "00123 - " + kSetentaEQuatro, 74, "00123",
                              kSetentaEQuatro.toStdString()},
                    CasoLinha{"PayeeOfSeventyFiveIsCut", "00123 - " + kSetentaEQuatro + "x", 74, "00123",
                              kSetentaEQuatro.toStdString()},
                    CasoLinha{"NoName", "00003 - ", 20, "00003", ""},
                    CasoLinha{"ANameWithADash", "00003 - A - B", 20, "00003", "A - B"},
                    CasoLinha{"ABlankBeforeTheName", "00003 -  A", 20, "00003", " A"},
                    CasoLinha{"AShortCode", "7 - Olinda", 20, "7 - O", "da"},
                    CasoLinha{"ALongCode", "123456 - Olinda", 20, "12345", " Olinda"},
                    CasoLinha{"Nothing", "", 20, "", ""}),
    kNomeDoCaso);

struct CasoLegenda {
    std::string nome;
    qint64 linhas;
    QString palavras;
    std::string legenda;
};
void PrintTo(const CasoLegenda &c, std::ostream *os)
{
    *os << c.linhas << c.palavras.toStdString();
}
class LegendaDoTotal : public testing::TestWithParam<CasoLegenda> {};
TEST_P(LegendaDoTotal, HasTheCountBetweenItsWords)
{
    EXPECT_EQ(registers::LegendaDoTotal(GetParam().linhas, GetParam().palavras).toStdString(),
              GetParam().legenda);
}
INSTANTIATE_TEST_SUITE_P(
    Totais, LegendaDoTotal,
    testing::Values(CasoLegenda{"One", 1, " Bancos Cadastrados", "Total = 1 Bancos Cadastrados"},
                    CasoLegenda{"Many", 1234567, " Cidades Cadastradas",
                                "Total = 1234567 Cidades Cadastradas"},
                    CasoLegenda{"ABlankBehind", 12, " Favorecidos ", "Total = 12 Favorecidos "}),
    kNomeDoCaso);

// --- the popup ---

struct CasoTipo {
    std::string nome;
    int tipo;
    bool tem;
    std::string codigo; ///< of the row "12345 - Ana"
};
void PrintTo(const CasoTipo &c, std::ostream *os)
{
    *os << c.tipo;
}
class TipoDaPesquisa : public testing::TestWithParam<CasoTipo> {};
TEST_P(TipoDaPesquisa, TellsWhetherThereAreRows)
{
    EXPECT_EQ(registers::TemRegistros(GetParam().tipo), GetParam().tem);
}
TEST_P(TipoDaPesquisa, TellsHowLongTheCodeOfARowIs)
{
    EXPECT_EQ(registers::CodigoDaEscolha("12345 - Ana", GetParam().tipo).toStdString(), GetParam().codigo);
    EXPECT_EQ(registers::CodigoDaEscolha("12", GetParam().tipo), "12");
    EXPECT_EQ(registers::CodigoDaEscolha("", GetParam().tipo), "");
}
INSTANTIATE_TEST_SUITE_P(Tipos, TipoDaPesquisa,
                         testing::Values(CasoTipo{"Payees", 0, true, "12345"},
                                         CasoTipo{"Cities", 1, true, "12345"},
                                         CasoTipo{"Banks", 2, true, "123"}, CasoTipo{"Log", 3, false, "123"}),
                         kNomeDoCaso);

} // namespace
