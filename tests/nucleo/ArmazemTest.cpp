// The store routines: open and close, lookups, the next Index, what is told when the store cannot be opened.
#include "nucleo/Armazem.h"
#include "apoio/Escritorio.h"
#include "nucleo/Mensagens.h"
#include "plataforma/basico/RuntimeError.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <sqlite3.h>
#include <vector>

using namespace nucleo;
using apoio::Escritorio;

namespace {

struct Vista {
    QString texto, titulo;
    Icone icone;
};
class Anota final : public Mensagens {
public:
    Resposta MsgBox(const QString &texto, Botoes, Icone icone, const QString &titulo) override
    {
        caixas.push_back({texto, titulo, icone});
        return Resposta::Ok;
    }
    std::vector<Vista> caixas;
};

class ArmazemTest : public testing::Test {
protected:
    void SetUp() override
    {
        m_escritorio.CriaBanco();
        m_escritorio.Sql("insert into Bancos(Codigo, Nome) values ('001','Banco Um'), ('341','Banco Sul');"
                         "insert into Favorecido(Codigo, Nome) values ('00001','Padaria');"
                         "insert into Cidade(Codigo, Nome) values ('00001','Campinas');");
    }
    void PoeNoLog(const QString &index, const QString &codigo)
    {
        m_escritorio.Sql(QString("insert into Log(\"Index\", Codigo) values ('%1','%2')").arg(index, codigo));
    }
    QString Proximo()
    {
        EXPECT_NE(m_armazem.AbreBanco(0, 0, 0, 1, 0), kSemBanco);
        return ProximoIndex(m_armazem.Conjunto(SelLog));
    }
    Escritorio m_escritorio;
    Anota m_mensagens;
    Armazem m_armazem{m_escritorio.Pasta(), "QX70.MDB", m_mensagens};
};

struct CasoAbre {
    std::string nome;
    std::array<int, 5> marcas;
    std::vector<int> abertas;
};
void PrintTo(const CasoAbre &caso, std::ostream *os)
{
    *os << caso.nome;
}
class AbreBancoTest : public ArmazemTest, public testing::WithParamInterface<CasoAbre> {};
TEST_P(AbreBancoTest, OpensTheTablesFlaggedAndNoOther)
{
    const auto &m = GetParam().marcas;
    EXPECT_NE(m_armazem.AbreBanco(m[0], m[1], m[2], m[3], m[4]), kSemBanco);
    for (const int tabela : {SelFavorecido, SelCidade, SelBancos, SelLog, SelTransferencia}) {
        const bool pedida = std::count(GetParam().abertas.begin(), GetParam().abertas.end(), tabela) > 0;
        EXPECT_EQ(m_armazem.Aberto(tabela), pedida) << "selector " << tabela;
    }
}
INSTANTIATE_TEST_SUITE_P(Marcas, AbreBancoTest,
                         testing::Values(CasoAbre{"Banks", {1, 0, 0, 0, 0}, {SelBancos}},
                                         CasoAbre{"Payees", {0, 1, 0, 0, 0}, {SelFavorecido}},
                                         CasoAbre{"Cities", {0, 0, 1, 0, 0}, {SelCidade}},
                                         CasoAbre{"Log", {0, 0, 0, 1, 0}, {SelLog}},
                                         CasoAbre{"Transfer", {0, 0, 0, 0, 1}, {SelTransferencia}},
                                         CasoAbre{"OnlyOneCounts", {2, -1, 0, 1, 0}, {SelLog}},
                                         CasoAbre{"None", {0, 0, 0, 0, 0}, {}}),
                         [](const auto &caso) { return caso.param.nome; });

TEST_F(ArmazemTest, OpeningGoesToTheApplicationFolder)
{
    QDir::setCurrent("/");
    m_armazem.AbreBanco(0, 0, 0, 0, 0);
    EXPECT_EQ(QDir::current().canonicalPath(), QDir(m_escritorio.Pasta()).canonicalPath());
}

TEST_F(ArmazemTest, CloseTakesTheFlaggedAndLeavesTheTransferBanks)
{
    m_armazem.AbreBanco(1, 1, 1, 1, 1);
    m_armazem.FechaBanco(1, 0, 1, 1);
    EXPECT_FALSE(m_armazem.Aberto(SelBancos));
    EXPECT_TRUE(m_armazem.Aberto(SelFavorecido));
    EXPECT_FALSE(m_armazem.Aberto(SelCidade));
    EXPECT_FALSE(m_armazem.Aberto(SelLog));
    EXPECT_TRUE(m_armazem.Aberto(SelTransferencia));
    m_armazem.FechaBanco(1, 1, 1, 1); // closing what is closed passes in silence
    EXPECT_TRUE(m_mensagens.caixas.empty());
}

TEST_F(ArmazemTest, MissingStoreAnswersMinusTwoInSilence)
{
    QFile::remove(m_escritorio.Arquivo("QX70.MDB"));
    EXPECT_EQ(m_armazem.AbreBanco(1, 0, 0, 0, 0), -2);
    EXPECT_TRUE(m_mensagens.caixas.empty());
    EXPECT_FALSE(QFile::exists(m_escritorio.Arquivo("QX70.MDB"))) << "opening never makes a store";
}

TEST_F(ArmazemTest, FileThatIsNoStoreAnswersMinusTwoInSilence)
{
    QFile arquivo(m_escritorio.Arquivo("QX70.MDB"));
    ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
    arquivo.write(QByteArray(4096, 'x'));
    arquivo.close();
    EXPECT_EQ(m_armazem.AbreBanco(1, 0, 0, 0, 0), -2);
    EXPECT_TRUE(m_mensagens.caixas.empty());
}

TEST_F(ArmazemTest, TableMissingAnswersMinusTwo)
{
    m_escritorio.Sql("drop table Log");
    EXPECT_EQ(m_armazem.AbreBanco(0, 0, 0, 1, 0), -2);
    EXPECT_NE(m_armazem.AbreBanco(1, 0, 0, 0, 0), -2);
}

TEST_F(ArmazemTest, LockedStoreIsToldByAnEmptyBoxAndTheAdvice)
{
    sqlite3 *outro = nullptr;
    ASSERT_EQ(sqlite3_open(m_escritorio.Arquivo("QX70.MDB").toUtf8().constData(), &outro), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(outro, "begin exclusive", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_EQ(m_armazem.AbreBanco(1, 0, 0, 0, 0), -2);
    sqlite3_close(outro);
    ASSERT_EQ(m_mensagens.caixas.size(), 2U);
    EXPECT_EQ(m_mensagens.caixas[0].texto, QString());
    EXPECT_EQ(m_mensagens.caixas[1].titulo, "Programa \"share.exe\" nao instalado!");
    EXPECT_EQ(m_mensagens.caixas[1].texto,
              "Instale uma linha semelhante a \n\"SHARE.EXE /L:500\" no seu arquivo autoexec.bat!");
}

struct CasoConsulta {
    std::string nome;
    QString (*consulta)(const QString &, int);
    QString texto;
    int tabela;
    QString esperada;
};
void PrintTo(const CasoConsulta &caso, std::ostream *os)
{
    *os << caso.nome;
}
class ConsultaTest : public testing::TestWithParam<CasoConsulta> {};
TEST_P(ConsultaTest, IsTheTextGiven)
{
    EXPECT_EQ(GetParam().consulta(GetParam().texto, GetParam().tabela), GetParam().esperada);
}
INSTANTIATE_TEST_SUITE_P(PorCodigo, ConsultaTest,
                         testing::Values(CasoConsulta{"Payee", ConsultaPorCodigo, "00001", 0,
                                                      "Select * From Favorecido Where (Codigo='00001')"},
                                         CasoConsulta{"NineIsThePayeesToo", ConsultaPorCodigo, "001", 9,
                                                      "Select * From Favorecido Where (Codigo='001')"},
                                         CasoConsulta{"City", ConsultaPorCodigo, "00001", 1,
                                                      "Select * From Cidade Where (Codigo='00001')"},
                                         CasoConsulta{"Bank", ConsultaPorCodigo, "341", 2,
                                                      "Select * From Bancos Where (Codigo='341')"},
                                         CasoConsulta{"Log", ConsultaPorCodigo, "0000000001", 3,
                                                      "Select * From Log Where (Index='0000000001')"},
                                         CasoConsulta{"Transfer", ConsultaPorCodigo, "341", 4,
                                                      "Select * From Transferencia Where (Codigo='341')"},
                                         CasoConsulta{"EmptyKeyIsTheWholeTable", ConsultaPorCodigo, "", 2,
                                                      "Select * From Bancos"}),
                         [](const auto &caso) { return caso.param.nome; });
INSTANTIATE_TEST_SUITE_P(
    Filtra, ConsultaTest,
    testing::Values(CasoConsulta{"NumberGoesAgainstTheCode", ConsultaDoFiltro, "12", 2,
                                 "Select * From Bancos Where (Left(Codigo,2)='12') Order by Codigo"},
                    CasoConsulta{"TextGoesAgainstTheName", ConsultaDoFiltro, "BA", 2,
                                 "Select * From Bancos Where (Left(Nome,2)='BA') Order by Nome"},
                    CasoConsulta{"DigitsAndLettersAreAName", ConsultaDoFiltro, "12A", 0,
                                 "Select * From Favorecido Where (Left(Nome,3)='12A') Order by Nome"},
                    CasoConsulta{"Cities", ConsultaDoFiltro, "C", 1,
                                 "Select * From Cidade Where (Left(Nome,1)='C') Order by Nome"},
                    CasoConsulta{"Transfer", ConsultaDoFiltro, "3", 4,
                                 "Select * From Transferencia Where (Left(Codigo,1)='3') Order by Codigo"},
                    CasoConsulta{"Script", ConsultaDoFiltro, "3", 9,
                                 "Select * From Script Where (Left(Codigo,1)='3') Order by Codigo"},
                    CasoConsulta{"LogByBank", ConsultaDoFiltro, "34", 3,
                                 "Select * From Log Where (Left(Banco,2)='34') Order by Banco"},
                    CasoConsulta{"QuoteGoesUnchanged", ConsultaDoFiltro, "D'", 1,
                                 "Select * From Cidade Where (Left(Nome,2)='D'') Order by Nome"},
                    CasoConsulta{"EmptyAddsNothing", ConsultaDoFiltro, "", 1, "Select * From Cidade"}),
    [](const auto &caso) { return caso.param.nome; });
INSTANTIATE_TEST_SUITE_P(
    Pesquisa, ConsultaTest,
    testing::Values(CasoConsulta{"Number", ConsultaDaPesquisa, "12", 2,
                                 "Select * From Bancos Where Codigo Like ('12*') Order by Codigo"},
                    CasoConsulta{"Text", ConsultaDaPesquisa, "Pad", 0,
                                 "Select * From Favorecido Where Nome Like ('Pad*') Order by Nome"},
                    CasoConsulta{"Empty", ConsultaDaPesquisa, "", 1, "Select * From Cidade"}),
    [](const auto &caso) { return caso.param.nome; });

TEST_F(ArmazemTest, LookupReplacesTheCurrentSetOfTheTable)
{
    m_armazem.AbreBanco(1, 0, 0, 0, 0);
    EXPECT_EQ(m_armazem.BuscaPorCodigo("341", SelBancos), 1);
    EXPECT_EQ(m_armazem.Conjunto(SelBancos).Field("Nome"), "Banco Sul");
    EXPECT_EQ(m_armazem.BuscaPorCodigo("999", SelBancos), 0);
    EXPECT_FALSE(m_armazem.Conjunto(SelBancos).HasRows());
}

// On purpose: 9, the copy layouts elsewhere, means the payees here.
TEST_F(ArmazemTest, SelectorNineReplacesTheSetOfThePayees)
{
    m_armazem.AbreBanco(0, 1, 0, 0, 0);
    EXPECT_EQ(m_armazem.BuscaPorCodigo("00009", 9), 0);
    EXPECT_FALSE(m_armazem.Conjunto(SelFavorecido).HasRows());
    EXPECT_FALSE(m_armazem.Aberto(SelScript));
}

TEST_F(ArmazemTest, SearchesReplaceTheCurrentSet)
{
    m_armazem.AbreBanco(1, 0, 0, 0, 0);
    m_armazem.FiltraRegistros("Banco S", SelBancos);
    EXPECT_EQ(m_armazem.Conjunto(SelBancos).RecordCount(), 1);
    EXPECT_EQ(m_armazem.Conjunto(SelBancos).Field("Codigo"), "341");
    m_armazem.PesquisaRegistros("0", SelBancos);
    EXPECT_EQ(m_armazem.Conjunto(SelBancos).RecordCount(), 1);
    EXPECT_EQ(m_armazem.Conjunto(SelBancos).Field("Codigo"), "001");
    EXPECT_THROW(m_armazem.FiltraRegistros("D'", SelBancos), plataforma::RuntimeError);
}

TEST_F(ArmazemTest, EmptyKeyFindsAsSoonAsTheLogHasARow)
{
    m_armazem.AbreBanco(0, 0, 0, 1, 0);
    EXPECT_EQ(m_armazem.BuscaPorCodigo("", SelLog), 0);
    PoeNoLog("0000000001", "00001");
    EXPECT_EQ(m_armazem.BuscaPorCodigo("", SelLog), 1);
    EXPECT_EQ(m_armazem.BuscaPorCodigo("0000000001", SelLog), 1);
    EXPECT_EQ(m_armazem.BuscaPorCodigo("0000000002", SelLog), 0);
}

TEST_F(ArmazemTest, NamesByCode)
{
    m_armazem.AbreBanco(1, 1, 1, 0, 0);
    EXPECT_EQ(m_armazem.NomeBancoPorCodigo("001"), "Banco Um");
    EXPECT_EQ(m_armazem.NomeBancoPorCodigo("777"), "Inexistente");
    EXPECT_EQ(m_armazem.NomeFavorecidoPorCodigo("00001"), "Padaria");
    EXPECT_EQ(m_armazem.NomeFavorecidoPorCodigo("00009"), "");
    EXPECT_EQ(m_armazem.NomeCidadePorCodigo("00001"), "Campinas");
}

TEST_F(ArmazemTest, CityWithoutARowIsNotTestedFor)
{
    m_armazem.AbreBanco(0, 0, 1, 0, 0);
    try {
        m_armazem.NomeCidadePorCodigo("00009");
        FAIL() << "a miss must fail";
    } catch (const plataforma::RuntimeError &falha) {
        EXPECT_EQ(falha.number(), 3021);
    }
}

TEST_F(ArmazemTest, LookupWithoutAnOpenStoreIsAFailure)
{
    EXPECT_THROW(m_armazem.BuscaPorCodigo("001", SelBancos), plataforma::RuntimeError);
}

TEST_F(ArmazemTest, FirstIndexOfAnEmptyLog)
{
    EXPECT_EQ(Proximo(), "0000000001");
}

TEST_F(ArmazemTest, NextIndexIsTheLastRowsPlusOne)
{
    PoeNoLog("0000000007", "00007");
    PoeNoLog("0000000041", "00041");
    EXPECT_EQ(Proximo(), "0000000042");
}

TEST_F(ArmazemTest, LastRowIsTakenForTheHighestWhateverItHolds)
{
    PoeNoLog("0000000041", "00041");
    PoeNoLog("0000000007", "00007");
    EXPECT_EQ(Proximo(), "0000000008");
}

TEST_F(ArmazemTest, FirstRowWithoutACodeStartsAgain)
{
    PoeNoLog("0000000041", "");
    PoeNoLog("0000000042", "00042");
    EXPECT_EQ(Proximo(), "0000000001");
}

TEST_F(ArmazemTest, IndexGoesOnPastAHundredThousand)
{
    PoeNoLog("0000099999", "99999");
    EXPECT_EQ(Proximo(), "0000100000");
}

TEST(TextoBancoNaoEncontrado, NamesTheFileInQuotes)
{
    EXPECT_EQ(TextoBancoNaoEncontrado("QX70.MDB"), "O Banco de dados \"QX70.MDB\" nao foi encontrado!");
}

} // namespace
