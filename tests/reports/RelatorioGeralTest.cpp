// The general text report: title, and the lines of each cheque.
#include "reports/RelatorioGeral.h"
#include "Amostras.h"
#include "plataforma/basico/Texto.h"

#include <gtest/gtest.h>

using namespace reports;

namespace {

const std::string kAsteriscos = std::string(56, '*') + "\r\n";

ChequeDoRelatorioGeral Usual()
{
    return {.banco = "001",
            .nrch = "000123",
            .vCh = "1234,5",
            .local = "Mogi das Cruzes",
            .data = "05/03/07",
            .favor = "Padaria São João",
            .comentarios = {}};
}
std::string Bloco(const ChequeDoRelatorioGeral &cheque, const std::optional<QString> &banco = "Banco do Sul")
{
    return BlocoDoRelatorioGeral(cheque, banco).toStdString();
}

class RelatorioGeralDaAmostraTest : public testing::TestWithParam<int> {};

TEST_P(RelatorioGeralDaAmostraTest, IsTheSampleByteByByte)
{
    std::map<QString, QString> bancos;
    for (const QStringList &banco : amostras::Tabela("bancos.tsv"))
        bancos[banco[0]] = banco[1];
    const auto cheques = amostras::Tabela("cheques.tsv");
    QString texto = TituloDoRelatorioGeral();
    for (std::size_t i = 0; i < static_cast<std::size_t>(GetParam()); ++i) {
        const QStringList &c = cheques.at(i);
        const auto banco = bancos.find(c[2]);
        texto += BlocoDoRelatorioGeral({c[2], c[1], c[3], c[7], c[4], c[5], {c[8], c[9], c[10]}},
                                       banco == bancos.end() ? std::nullopt : std::optional(banco->second));
    }
    EXPECT_EQ(plataforma::ToAnsi(texto).toStdString(),
              amostras::Le(QString("geral-%1.txt").arg(GetParam())).toStdString());
}

INSTANTIATE_TEST_SUITE_P(Cheques, RelatorioGeralDaAmostraTest, testing::Values(0, 1, 73),
                         [](const auto &caso) { return "Of" + std::to_string(caso.param); });

TEST(RelatorioGeral, AnEmptySetLeavesJustTheTitle)
{
    EXPECT_EQ(TituloDoRelatorioGeral().toStdString(), "Relatório Geral de Cheques Emitidos\r\n\r\n");
}

TEST(RelatorioGeral, AChequeWithoutCommentsHasFourLines)
{
    EXPECT_EQ(Bloco(Usual()), "   001 - Banco do Sul  CH. Nº: 000123\r\n"
                              "Valor: 1.234,50   Loc.: Mogi das Cruzes   Data: 05/03/07\r\n"
                              "Fav.: Padaria São João\r\n" +
                                  kAsteriscos);
}

TEST(RelatorioGeral, EachCommentThatIsNotEmptyHasItsLine)
{
    const std::string sem = Bloco(Usual());
    const std::string antes = sem.substr(0, sem.size() - kAsteriscos.size());
    ChequeDoRelatorioGeral cheque = Usual();
    cheque.comentarios = {"um", "", "três"};
    EXPECT_EQ(Bloco(cheque), antes + "um\r\ntrês\r\n" + kAsteriscos);
    cheque.comentarios = {"", "dois", QString()};
    EXPECT_EQ(Bloco(cheque), antes + "dois\r\n" + kAsteriscos);
    cheque.comentarios = {"um", "dois", "três"};
    EXPECT_EQ(Bloco(cheque), antes + "um\r\ndois\r\ntrês\r\n" + kAsteriscos);
    cheque.comentarios = {" ", "", ""}; // a blank is not empty
    EXPECT_EQ(Bloco(cheque), antes + " \r\n" + kAsteriscos);
}

TEST(RelatorioGeral, ABankThatIsInNoRegisterShowsItsCode)
{
    const std::string bloco = Bloco(Usual(), std::nullopt);
    EXPECT_EQ(bloco.substr(0, bloco.find('\r')), "   001 - Inexistente  CH. Nº: 000123");
}

TEST(RelatorioGeral, EmptyFieldsLeaveTheirWords)
{
    ChequeDoRelatorioGeral cheque;
    cheque.vCh = "1,";
    EXPECT_EQ(Bloco(cheque, ""),
              "    -   CH. Nº: \r\nValor: 1,00   Loc.:    Data: \r\nFav.: \r\n" + kAsteriscos);
}

struct CasoValor {
    std::string nome;
    QString vCh;
    std::string texto;
};
void PrintTo(const CasoValor &c, std::ostream *os)
{
    *os << c.texto;
}
class ValorDoRelatorioGeralTest : public testing::TestWithParam<CasoValor> {};

TEST_P(ValorDoRelatorioGeralTest, IsShownWithPointsAndTwoDecimals)
{
    ChequeDoRelatorioGeral cheque = Usual();
    cheque.vCh = GetParam().vCh;
    const std::string bloco = Bloco(cheque);
    const std::size_t valor = bloco.find("Valor: ") + 7;
    EXPECT_EQ(bloco.substr(valor, bloco.find("   Loc.: ") - valor), GetParam().texto);
}

INSTANTIATE_TEST_SUITE_P(Valores, ValorDoRelatorioGeralTest,
                         testing::Values(CasoValor{"OneCent", ",01", "0,01"}, CasoValor{"Half", ",5", "0,50"},
                                         CasoValor{"Hundreds", "999,9", "999,90"},
                                         CasoValor{"Thousand", "1000,", "1.000,00"},
                                         CasoValor{"Millions", "1234567,89", "1.234.567,89"},
                                         CasoValor{"AllDigits", "99999999999,99", "99.999.999.999,99"}),
                         [](const auto &caso) { return caso.param.nome; });

} // namespace
