// Listings of the registers: queries, words, and pages for the device and for the system printer.
#include "reports/Listagem.h"
#include "Amostras.h"

#include <gtest/gtest.h>

using namespace reports;

namespace {

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };

struct CasoConsulta {
    std::string nome;
    Cadastrados tabela;
    Ordem ordem;
    const char *consulta;
};
void PrintTo(const CasoConsulta &c, std::ostream *os)
{
    *os << c.consulta;
}
class ConsultaDaListagemTest : public testing::TestWithParam<CasoConsulta> {};

TEST_P(ConsultaDaListagemTest, IsTheTableInItsOrder)
{
    EXPECT_EQ(ConsultaDaListagem(GetParam().tabela, GetParam().ordem).toStdString(), GetParam().consulta);
}

INSTANTIATE_TEST_SUITE_P(
    Tabelas, ConsultaDaListagemTest,
    testing::Values(
        CasoConsulta{"CitiesByCode", Cadastrados::Cidade, Ordem::Codigo,
                     "Select * FROM Cidade ORDER BY Codigo"},
        CasoConsulta{"CitiesByName", Cadastrados::Cidade, Ordem::Nome, "Select * FROM Cidade ORDER BY Nome"},
        CasoConsulta{"PayeesByCode", Cadastrados::Favorecido, Ordem::Codigo,
                     "Select * FROM Favorecido ORDER BY Codigo"},
        CasoConsulta{"PayeesByName", Cadastrados::Favorecido, Ordem::Nome,
                     "Select * FROM Favorecido ORDER BY Nome"},
        CasoConsulta{"BanksByCode", Cadastrados::Bancos, Ordem::Codigo,
                     "Select * FROM Bancos ORDER BY Codigo"},
        CasoConsulta{"BanksByName", Cadastrados::Bancos, Ordem::Nome, "Select * FROM Bancos ORDER BY Nome"},
        CasoConsulta{"TransferBanksByCode", Cadastrados::Transferencia, Ordem::Codigo,
                     "Select * FROM Transferencia ORDER BY Codigo"},
        CasoConsulta{"TransferBanksByName", Cadastrados::Transferencia, Ordem::Nome,
                     "Select * FROM Transferencia ORDER BY Nome"}),
    kNomeDoCaso);

TEST(TituloDaPergunta, BanksHaveTheirOwn)
{
    EXPECT_EQ(TituloDaPergunta(Cadastrados::Cidade).toStdString(), "Impressão de Relatório");
    EXPECT_EQ(TituloDaPergunta(Cadastrados::Favorecido).toStdString(), "Impressão de Relatório");
    EXPECT_EQ(TituloDaPergunta(Cadastrados::Bancos).toStdString(), "Impressão");
    EXPECT_EQ(TituloDaPergunta(Cadastrados::Transferencia).toStdString(), "Impressão");
}

PedidoDeListagem Pede(Cadastrados tabela, bool naImpressora)
{
    return {.tabela = tabela, .naImpressora = naImpressora, .hoje = "050307"};
}
std::vector<QString> Paginas(const PedidoDeListagem &pedido, int quantos)
{
    return amostras::Todas(Listagem(pedido, quantos, [](qint64 i) {
        return RegistroListado{QString("%1").arg(i + 1, 5, 10, QChar('0')), QString("Nome %1").arg(i + 1)};
    }));
}

struct CasoAmostra {
    std::string nome;
    Cadastrados tabela;
    bool naImpressora;
    QString arquivo;
    int tamanho; ///< entries on a page
};
void PrintTo(const CasoAmostra &c, std::ostream *os)
{
    *os << c.arquivo.toStdString();
}
class PaginasDaListagemTest : public testing::TestWithParam<CasoAmostra> {};

TEST_P(PaginasDaListagemTest, AreThoseOfTheSample)
{
    const CasoAmostra &c = GetParam();
    const auto registros = amostras::Tabela("registros.tsv");
    const auto esperadas = amostras::LePaginas(c.arquivo);
    std::vector<int> quantos;
    for (const auto &[quantas, paginas] : esperadas) {
        SCOPED_TRACE(quantas);
        quantos.push_back(quantas);
        Listagem listagem(Pede(c.tabela, c.naImpressora), quantas, [&registros](qint64 i) {
            const QStringList &registro = registros.at(static_cast<std::size_t>(i));
            return RegistroListado{registro[0], registro[1]};
        });
        amostras::ComparaPaginas(amostras::Todas(listagem), paginas);
    }
    EXPECT_EQ(quantos, (std::vector<int>{0, 1, 2, c.tamanho - 1, c.tamanho, c.tamanho + 1, 2 * c.tamanho}));
}

INSTANTIATE_TEST_SUITE_P(
    Amostras, PaginasDaListagemTest,
    testing::Values(
        CasoAmostra{"CitiesOnTheDevice", Cadastrados::Cidade, false, "lista-cidade-dispositivo.txt", 36},
        CasoAmostra{"CitiesOnPaper", Cadastrados::Cidade, true, "lista-cidade-impressora.txt", 50},
        CasoAmostra{"PayeesOnTheDevice", Cadastrados::Favorecido, false, "lista-favorecido-dispositivo.txt",
                    16},
        CasoAmostra{"PayeesOnPaper", Cadastrados::Favorecido, true, "lista-favorecido-impressora.txt", 50},
        CasoAmostra{"BanksOnTheDevice", Cadastrados::Bancos, false, "lista-bancos-dispositivo.txt", 36},
        CasoAmostra{"BanksOnPaper", Cadastrados::Bancos, true, "lista-bancos-impressora.txt", 50},
        CasoAmostra{"TransferBanksOnTheDevice", Cadastrados::Transferencia, false,
                    "lista-bancos-dispositivo.txt", 36},
        CasoAmostra{"TransferBanksOnPaper", Cadastrados::Transferencia, true, "lista-bancos-impressora.txt",
                    50}),
    kNomeDoCaso);

// ---- Edges ----------------------------------------------------------------------------------------------

struct CasoCabeca {
    std::string nome;
    Cadastrados tabela;
    bool naImpressora;
    const char *titulo;
    const char *colunas;
};
void PrintTo(const CasoCabeca &c, std::ostream *os)
{
    *os << c.titulo;
}
class CabecaDaListagemTest : public testing::TestWithParam<CasoCabeca> {};

TEST_P(CabecaDaListagemTest, AnEmptyTableHasOneHeadAndNoRows)
{
    const CasoCabeca &c = GetParam();
    const auto paginas = Paginas(Pede(c.tabela, c.naImpressora), 0);
    ASSERT_EQ(paginas.size(), 1U);
    const QString fim = c.naImpressora ? "\r\n" : "\n";
    const QStringList linhas = paginas[0].split(fim);
    ASSERT_GE(linhas.size(), 5);
    const QString margem = c.naImpressora ? QString() : QString(12, ' ');
    const QString regua = margem + QString(c.naImpressora ? 76 : 107, '-');
    EXPECT_EQ(linhas[0].toStdString(), regua.toStdString());
    EXPECT_EQ(linhas[1].toStdString(), (margem + "05/03/07" + QString(15, ' ') + c.titulo).toStdString());
    EXPECT_EQ(linhas[2].toStdString(), (margem + QString(24, ' ') + "Pag:01/00").toStdString());
    EXPECT_EQ(linhas[3].toStdString(), regua.toStdString());
    EXPECT_EQ(linhas[4].toStdString(), (margem + c.colunas).toStdString());
    EXPECT_TRUE(linhas.mid(5).join("").trimmed().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Cabecas, CabecaDaListagemTest,
    testing::Values(CasoCabeca{"CitiesOnTheDevice", Cadastrados::Cidade, false, "Relatório de Cidades",
                               "NºCidade  |Cidade                                    "
                               "||NºCidade  |Cidade                                 "},
                    CasoCabeca{"CitiesOnPaperAreOneCity", Cadastrados::Cidade, true, "Relatório de Cidade",
                               "NºCidade  |Cidade                                    "},
                    CasoCabeca{"PayeesOnTheDevice", Cadastrados::Favorecido, false,
                               "Relatório de Favorecidos", "NºFavorec.   |Favorecido"},
                    CasoCabeca{"PayeesOnPaper", Cadastrados::Favorecido, true, "Relatório de Favorecidos",
                               "NºFavorec.|Favorecido"},
                    CasoCabeca{"BanksOnTheDevice", Cadastrados::Bancos, false, "Relatório de Bancos",
                               "Nº Banco  |Banco                                     "
                               "||Nº Banco  |Banco                                  "},
                    CasoCabeca{"BanksOnPaper", Cadastrados::Bancos, true, "Relatório de Bancos",
                               "Nº Banco  |Banco                                     "},
                    CasoCabeca{"TransferBanksOnTheDevice", Cadastrados::Transferencia, false,
                               "Relatório de Bancos",
                               "Nº Banco  |Banco                                     "
                               "||Nº Banco  |Banco                                  "}),
    kNomeDoCaso);

TEST(Listagem, ACellIsTheCodeABarAndTheName)
{
    const auto linhas = Paginas(Pede(Cadastrados::Cidade, false), 3)[0].split('\n');
    const QString primeira = linhas.at(5).trimmed();
    EXPECT_EQ(primeira.toStdString(), "00001     |Nome 1                                    "
                                      "||00002     |Nome 2");
    EXPECT_EQ(linhas.at(6).trimmed().toStdString(), "00003     |Nome 3");
}

TEST(Listagem, PayeesStandOneBelowTheOther)
{
    const auto linhas = Paginas(Pede(Cadastrados::Favorecido, false), 2)[0].split('\n');
    EXPECT_EQ(linhas.at(5).trimmed().toStdString(), "00001        |Nome 1");
    EXPECT_EQ(linhas.at(6).trimmed().toStdString(), "00002        |Nome 2");
}

TEST(Listagem, OnPaperEachRegisterStandsInOneColumn)
{
    for (const Cadastrados tabela : {Cadastrados::Cidade, Cadastrados::Favorecido, Cadastrados::Bancos}) {
        const auto linhas = Paginas(Pede(tabela, true), 2)[0].split("\r\n");
        EXPECT_EQ(linhas.at(5).trimmed().toStdString(), "00001     |Nome 1");
        EXPECT_EQ(linhas.at(6).trimmed().toStdString(), "00002     |Nome 2");
    }
}

TEST(Listagem, ANameLongerThanItsColumnIsNotCut)
{
    const QString longo(60, 'N');
    const auto paginas = amostras::Todas(Listagem(Pede(Cadastrados::Cidade, false), 2, [&longo](qint64) {
        return RegistroListado{"00001", longo};
    }));
    EXPECT_TRUE(paginas[0].contains("00001     |" + longo + "||00001     |" + longo));
}

TEST(Listagem, AFullPageIsFollowedByTheHeadOfAnEmptyOne)
{
    const auto paginas = Paginas(Pede(Cadastrados::Favorecido, false), 16);
    ASSERT_EQ(paginas.size(), 2U);
    EXPECT_TRUE(paginas[0].contains("Pag:01/01\n"));
    EXPECT_TRUE(paginas[0].contains("|Nome 16"));
    EXPECT_TRUE(paginas[1].contains("Pag:02/01\n"));
    EXPECT_FALSE(paginas[1].contains("|Nome "));
}

TEST(Listagem, PagesAreCountedOneByOne)
{
    const auto paginas = Paginas(Pede(Cadastrados::Bancos, true), 101);
    ASSERT_EQ(paginas.size(), 3U);
    EXPECT_TRUE(paginas[0].contains("Pag:01/03\r\n"));
    EXPECT_TRUE(paginas[1].contains("Pag:02/03\r\n"));
    EXPECT_TRUE(paginas[2].contains("Pag:03/03\r\n"));
}

TEST(Listagem, AsksForEachRowOnceAndInOrderAndEndsBehindTheLastPage)
{
    std::vector<qint64> pedidos;
    Listagem listagem(Pede(Cadastrados::Cidade, false), 37, [&pedidos](qint64 i) {
        pedidos.push_back(i);
        return RegistroListado{"1", "X"};
    });
    EXPECT_TRUE(listagem.ProximaPagina().has_value());
    EXPECT_FALSE(listagem.Terminou());
    EXPECT_TRUE(listagem.ProximaPagina().has_value());
    EXPECT_TRUE(listagem.Terminou());
    EXPECT_FALSE(listagem.ProximaPagina().has_value());
    ASSERT_EQ(pedidos.size(), 37U);
    for (std::size_t i = 0; i < pedidos.size(); ++i)
        EXPECT_EQ(pedidos[i], static_cast<qint64>(i));
}

} // namespace
