// qx70-banco: calls that are wrong in themselves, and the help.
#include "Apoio.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;

namespace {

struct CasoChamada {
    std::string nome;
    std::vector<const char *> palavras; ///< "PASTA" stands for the folder of the store
    const char *dito;
};
void PrintTo(const CasoChamada &c, std::ostream *os)
{
    *os << c.nome;
}

class ChamadaTest : public testing::TestWithParam<CasoChamada> {};

TEST_P(ChamadaTest, IsRefusedWithTheReasonAndChangesNothing)
{
    const Escritorio escritorio;
    const QByteArray antes = LeArquivo(escritorio.Loja());
    QStringList argumentos;
    for (const char *palavra : GetParam().palavras)
        argumentos.append(qstrcmp(palavra, "PASTA") == 0 ? escritorio.Caminho() : QString::fromUtf8(palavra));
    const Execucao execucao = Banco(argumentos);
    EXPECT_EQ(execucao.codigo, 2);
    EXPECT_TRUE(execucao.saida.isEmpty());
    EXPECT_THAT(execucao.erros.toStdString(), HasSubstr(GetParam().dito));
    EXPECT_THAT(execucao.erros.toStdString(), HasSubstr("--ajuda"));
    EXPECT_EQ(LeArquivo(escritorio.Loja()), antes);
    EXPECT_EQ(NomesEm(escritorio.Caminho()), QStringList{QStringLiteral("QX70.MDB")});
}

INSTANTIATE_TEST_SUITE_P(
    Chamadas, ChamadaTest,
    testing::Values(
        CasoChamada{"NoCommand", {}, "Falta o comando"},
        CasoChamada{"UnknownCommand", {"apaga", "PASTA"}, "Não existe o comando \"apaga\""},
        CasoChamada{"CommandInOtherLetters", {"CRIA", "PASTA"}, "Não existe o comando \"CRIA\""},
        CasoChamada{"CreateWithoutPlace", {"cria"}, "pede uma pasta"},
        CasoChamada{"CreateInTwoPlaces", {"cria", "a.MDB", "b.MDB"}, "pede uma pasta"},
        CasoChamada{"CreateWithAnOption", {"cria", "--forca"}, "pede uma pasta"},
        CasoChamada{"CreateInAnEmptyName", {"cria", ""}, "pede uma pasta"},
        CasoChamada{"SeedWithoutFolder", {"semeia", "--bancos", "1"}, "pede a pasta"},
        CasoChamada{"SeedInTwoFolders", {"semeia", "PASTA", "outra"}, "\"outra\" sobra"},
        CasoChamada{"UnknownOption", {"semeia", "PASTA", "--contas", "1"}, "\"--contas\""},
        CasoChamada{
            "OptionWithoutValue", {"semeia", "PASTA", "--bancos"}, "--bancos pede um número de 0 a 999"},
        CasoChamada{"NegativeCount", {"semeia", "PASTA", "--cheques", "-1"}, "não \"-1\""},
        CasoChamada{"CountThatIsNoNumber", {"semeia", "PASTA", "--cheques", "dez"}, "não \"dez\""},
        CasoChamada{"CountWithABlank", {"semeia", "PASTA", "--cheques", " 1"}, "não \" 1\""},
        CasoChamada{"MoreBanksThanCodes", {"semeia", "PASTA", "--bancos", "1000"}, "de 0 a 999"},
        CasoChamada{"MoreCitiesThanCodes", {"semeia", "PASTA", "--cidades", "100000"}, "de 0 a 99999"},
        CasoChamada{"MorePayeesThanCodes", {"semeia", "PASTA", "--favorecidos", "100000"}, "de 0 a 99999"},
        CasoChamada{
            "MoreChequesThanAllowed", {"semeia", "PASTA", "--cheques", "10000001"}, "de 0 a 10000000"},
        CasoChamada{"CountBeyondEveryNumber",
                    {"semeia", "PASTA", "--cheques", "99999999999999999999"},
                    "de 0 a 10000000"},
        CasoChamada{"SeedBeyond32Bits", {"semeia", "PASTA", "--semente", "4294967296"}, "--semente pede"},
        CasoChamada{
            "DateThatDoesNotExist", {"semeia", "PASTA", "--hoje", "31/02/04"}, "--hoje pede uma data"},
        CasoChamada{
            "DateOfFourDigitYear", {"semeia", "PASTA", "--hoje", "01/02/2004"}, "--hoje pede uma data"},
        CasoChamada{"DateOfOneDigitDay", {"semeia", "PASTA", "--hoje", "1/2/04"}, "--hoje pede uma data"},
        CasoChamada{
            "DateWithALineBreak", {"semeia", "PASTA", "--hoje", "01/02/04\n"}, "--hoje pede uma data"},
        CasoChamada{"DateMonthFirst", {"semeia", "PASTA", "--hoje", "02/13/04"}, "--hoje pede uma data"}),
    [](const auto &caso) { return caso.param.nome; });

TEST(Ajuda, TellsCommandsOptionsAndExitCodes)
{
    const Execucao ajuda = Banco({QStringLiteral("--ajuda")});
    EXPECT_EQ(ajuda.codigo, 0);
    EXPECT_TRUE(ajuda.erros.isEmpty());
    for (const char *palavra :
         {"cria PASTA", "semeia PASTA", "--bancos N", "--cidades N", "--favorecidos N", "--cheques N",
          "--semente S", "--hoje dd/mm/aa", "0 feito", "1 recusado", "2 chamada errada"})
        EXPECT_THAT(ajuda.saida.toStdString(), HasSubstr(palavra));
}

TEST(Ajuda, IsGivenBehindACommandTooAndNothingIsDone)
{
    const QTemporaryDir pasta;
    const Execucao ajuda = Banco({QStringLiteral("cria"), pasta.path(), QStringLiteral("--ajuda")});
    EXPECT_EQ(ajuda.codigo, 0);
    EXPECT_THAT(ajuda.saida.toStdString(), HasSubstr("Uso: qx70-banco"));
    EXPECT_TRUE(NomesEm(pasta.path()).isEmpty());
}

} // namespace
