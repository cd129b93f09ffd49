// MontaValor: the file Extenso.ret and the results.
#include "BibliotecaDeTeste.h"

#include "qx7032/resultados.h"

#include <filesystem>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

class MontaValorTest : public testing::Test {
protected:
    MontaValorTest() : m_biblioteca(m_pasta)
    {
        fs::create_directory(m_pasta.Caminho() / "aqui");
        fs::current_path(m_pasta.Caminho() / "aqui");
    }
    ~MontaValorTest() override { fs::current_path(m_antes); }

    int Monta(const std::string &valor) const { return Monta(valor, "real", "reais"); }
    int Monta(const std::string &valor, const std::string &singular, const std::string &plural) const
    {
        return m_biblioteca.MontaValor(Arg(valor), Arg(singular), Arg(plural));
    }
    static std::string Arquivo()
    {
        std::ostringstream conteudo;
        conteudo << std::ifstream("Extenso.ret", std::ios::binary).rdbuf();
        return conteudo.str();
    }
    static std::vector<std::string> Nomes()
    {
        std::vector<std::string> nomes;
        for (const auto &entrada : fs::directory_iterator("."))
            nomes.push_back(entrada.path().filename());
        return nomes;
    }

    Ambiente m_ambiente;
    fs::path m_antes = fs::current_path();
    PastaDeTeste m_pasta;
    BibliotecaDeTeste m_biblioteca;
};

TEST_F(MontaValorTest, WritesTheWordsInWindows1252WithOneClosingCharacter)
{
    EXPECT_EQ(Monta("3000000,03"), QX7032_VALOR_MONTADO);
    EXPECT_EQ(Arquivo(), "tr\xEAs milh\xF5"
                         "es de reais e tr\xEAs centavos.");
    EXPECT_THAT(Nomes(), testing::ElementsAre("Extenso.ret"));
}

TEST_F(MontaValorTest, ReplacesALongerFileWhole)
{
    EXPECT_EQ(Monta("777777,77"), QX7032_VALOR_MONTADO);
    EXPECT_EQ(Monta("1,00"), QX7032_VALOR_MONTADO);
    EXPECT_EQ(Arquivo(), "um real.");
}

TEST_F(MontaValorTest, NamesTheCurrencyAsPassed)
{
    EXPECT_EQ(Monta("2,00", "d\xF3lar", "d\xF3lares \x80"), QX7032_VALOR_MONTADO);
    EXPECT_EQ(Arquivo(), "dois d\xF3lares \x80.");
}

struct CasoValor {
    std::string nome;
    std::string valor;
    int resultado;
    std::string arquivo;
};
void PrintTo(const CasoValor &c, std::ostream *os)
{
    *os << c.valor;
}
class MontaValorTabela : public MontaValorTest, public testing::WithParamInterface<CasoValor> {};

TEST_P(MontaValorTabela, JudgesTheAmount)
{
    EXPECT_EQ(Monta(GetParam().valor), GetParam().resultado);
    EXPECT_EQ(Arquivo(), GetParam().arquivo);
}

INSTANTIATE_TEST_SUITE_P(
    Valores, MontaValorTabela,
    testing::Values(
        CasoValor{"Nothing", "0,00", 0, "zero reais."}, CasoValor{"OneCent", "0,01", 0, "um centavo."},
        CasoValor{"BlanksAround", " 12,30 ", 0, "doze reais e trinta centavos."},
        CasoValor{"ZerosInFront", "0012,30", 0, "doze reais e trinta centavos."},
        CasoValor{"HighestOfACheque", "999999999,99", 0,
                  "novecentos e noventa e nove milh\xF5"
                  "es novecentos e noventa e nove mil "
                  "novecentos e noventa e nove reais e noventa e nove centavos."},
        CasoValor{"OverTheRange", "1000000000000,00", 1, ""},
        CasoValor{"OverAnyNumber", "99999999999999999999,00", 1, ""}, CasoValor{"Empty", "", 1, ""},
        CasoValor{"CommaAlone", ",", 1, ""}, CasoValor{"NoWholePart", ",50", 1, ""},
        CasoValor{"NoCents", "12", 1, ""}, CasoValor{"OneDigitOfCents", "12,3", 1, ""},
        CasoValor{"ThreeDigitsOfCents", "12,345", 1, ""}, CasoValor{"GroupPoints", "1.234,56", 1, ""},
        CasoValor{"DecimalPoint", "12.30", 1, ""}, CasoValor{"Negative", "-5,00", 1, ""},
        CasoValor{"Letters", "abc,de", 1, ""}, CasoValor{"BlankInside", "1 2,00", 1, ""}),
    [](const auto &caso) { return caso.param.nome; });

TEST_F(MontaValorTest, RefusesNullsAndNamelessCurrencies)
{
    EXPECT_EQ(m_biblioteca.MontaValor(nullptr, Arg("real"), Arg("reais")), QX7032_VALOR_INVALIDO);
    EXPECT_EQ(m_biblioteca.MontaValor(Arg("1,00"), nullptr, Arg("reais")), QX7032_VALOR_INVALIDO);
    EXPECT_EQ(m_biblioteca.MontaValor(Arg("1,00"), Arg("real"), nullptr), QX7032_VALOR_INVALIDO);
    EXPECT_EQ(Monta("1,00", "", "reais"), QX7032_VALOR_INVALIDO);
    EXPECT_EQ(Monta("1,00", "real", ""), QX7032_VALOR_INVALIDO);
    EXPECT_THAT(Nomes(), testing::IsEmpty());
}

TEST_F(MontaValorTest, ARefusedAmountLeavesTheFileOfBefore)
{
    EXPECT_EQ(Monta("1,00"), QX7032_VALOR_MONTADO);
    EXPECT_EQ(Monta("?"), QX7032_VALOR_INVALIDO);
    EXPECT_EQ(Arquivo(), "um real.");
}

TEST_F(MontaValorTest, AFolderInTheFilesPlaceIsAFileThatCannotBeOpened)
{
    fs::create_directory("Extenso.ret");
    EXPECT_EQ(Monta("1,00"), QX7032_ARQUIVO_NAO_ABRIU);
    EXPECT_THAT(Nomes(), testing::ElementsAre("Extenso.ret")); // and nothing provisional stays behind
}

TEST_F(MontaValorTest, AFolderThatIsGoneIsAFileThatCannotBeOpened)
{
    fs::remove(m_pasta.Caminho() / "aqui");
    EXPECT_EQ(Monta("1,00"), QX7032_ARQUIVO_NAO_ABRIU);
}

TEST_F(MontaValorTest, MissingNumberDataIsAFileThatCannotBeOpenedUntilItIsThere)
{
    m_ambiente.Define("QX7032_NUMEROS", m_pasta.Caminho() / "dados");
    EXPECT_EQ(Monta("1,00"), QX7032_ARQUIVO_NAO_ABRIU);
    m_ambiente.Define("QX7032_NUMEROS", "");
    EXPECT_EQ(Monta("1,00"), QX7032_VALOR_MONTADO);
}

TEST_F(MontaValorTest, DamagedNumberDataIsAFileThatCannotBeOpened)
{
    fs::create_directory(m_pasta.Caminho() / "dados");
    m_pasta.Grava("dados/pt_BR.sor", "1(( um\n");
    m_ambiente.Define("QX7032_NUMEROS", m_pasta.Caminho() / "dados");
    EXPECT_EQ(Monta("1,00"), QX7032_ARQUIVO_NAO_ABRIU);
    EXPECT_THAT(Nomes(), testing::IsEmpty());
}

TEST_F(MontaValorTest, NeedsNoPort)
{
    EXPECT_EQ(m_biblioteca.TravaDoc(1), QX7032_PORTA_FECHADA);
    EXPECT_EQ(Monta("1,00"), QX7032_VALOR_MONTADO);
}

} // namespace
