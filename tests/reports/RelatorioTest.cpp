// Pages of the report of the listed cheques, for each form and outlet.
#include "reports/Relatorio.h"
#include "Amostras.h"
#include "plataforma/basico/RuntimeError.h"

#include <gtest/gtest.h>

using namespace reports;

namespace {

/// List lines as the list shows them, made here by hand: 138 characters.
QString Linha(const QString &valor, bool cancelado = false, const QString &numero = "7",
              const QString &banco = "001")
{
    return (cancelado ? "C |" : "  |") + numero.rightJustified(12) + " | " + banco + " | " +
           valor.rightJustified(16) + " | 05/03/07 | " + QString("Padaria São João").leftJustified(74) +
           "0000000042";
}
QString Cancelada(const QString &valor)
{
    return Linha(valor, true);
}

Pedido Pede(Forma forma, Destino destino, int ajuste = 55)
{
    return {.forma = forma, .destino = destino, .hoje = "050307", .chequesPorPagina = ajuste};
}

std::vector<QString> Paginas(const Pedido &pedido, const QStringList &linhas)
{
    return amostras::Todas(Relatorio(pedido, linhas.size(),
                                     [&linhas](qint64 i) { return linhas.at(static_cast<qsizetype>(i)); }));
}
QStringList Iguais(int quantas, const QString &linha = Linha("1,00"))
{
    return QStringList(quantas, linha);
}

template <typename Acao> int NumeroDoErro(Acao acao)
{
    try {
        acao();
    } catch (const plataforma::RuntimeError &erro) {
        return erro.number();
    }
    return 0;
}

// ---- Whole pages ----------------------------------------------------------------------------------------

struct CasoAmostra {
    std::string nome;
    Pedido pedido;
    QString arquivo;
};
void PrintTo(const CasoAmostra &c, std::ostream *os)
{
    *os << c.arquivo.toStdString();
}
class PaginasDoRelatorioTest : public testing::TestWithParam<CasoAmostra> {};

TEST_P(PaginasDoRelatorioTest, AreThoseOfTheSample)
{
    const QStringList linhas = amostras::Linhas("linhas.txt");
    const auto esperadas = amostras::LePaginas(GetParam().arquivo);
    std::vector<int> quantos;
    for (const auto &[quantas, paginas] : esperadas) {
        SCOPED_TRACE(quantas);
        quantos.push_back(quantas);
        Relatorio relatorio(GetParam().pedido, quantas, [&linhas](qint64 i) {
            return linhas.at(static_cast<qsizetype>(i) % linhas.size());
        });
        amostras::ComparaPaginas(amostras::Todas(relatorio), paginas);
    }
    EXPECT_EQ(quantos, (std::vector<int>{0, 1, 12, 13, 14, 26, 27, 36, 37, 72, 73, 500}));
}

INSTANTIATE_TEST_SUITE_P(
    Amostras, PaginasDoRelatorioTest,
    testing::Values(
        CasoAmostra{"NormalOnTheDevice", Pede(Forma::Normal, Destino::Dispositivo), "normal-dispositivo.txt"},
        CasoAmostra{"NormalIntoTheFile", Pede(Forma::Normal, Destino::Arquivo), "normal-arquivo.txt"},
        CasoAmostra{"CompactOnTheDevice", Pede(Forma::Compacto, Destino::Dispositivo),
                    "compacto-dispositivo.txt"},
        CasoAmostra{"CompactIntoTheFile", Pede(Forma::Compacto, Destino::Arquivo), "compacto-arquivo.txt"},
        CasoAmostra{"NormalOnPaper", Pede(Forma::Normal, Destino::Impressora), "normal-impressora-55.txt"},
        CasoAmostra{"NormalOnPaperOfThree", Pede(Forma::Normal, Destino::Impressora, 3),
                    "normal-impressora-3.txt"},
        CasoAmostra{"NormalOnPaperOfOne", Pede(Forma::Normal, Destino::Impressora, 1),
                    "normal-impressora-1.txt"},
        CasoAmostra{"CompactOnPaper", Pede(Forma::Compacto, Destino::Impressora),
                    "compacto-impressora-55.txt"},
        CasoAmostra{"CompactOnPaperOfThree", Pede(Forma::Compacto, Destino::Impressora, 3),
                    "compacto-impressora-3.txt"},
        CasoAmostra{"CompactOnPaperOfOne", Pede(Forma::Compacto, Destino::Impressora, 1),
                    "compacto-impressora-1.txt"}),
    [](const auto &caso) { return caso.param.nome; });

// ---- Edges ----------------------------------------------------------------------------------------------

/// Amount behind a title in a page; empty when the title is not there.
QString Total(const QString &pagina, const QString &titulo)
{
    for (const QString &linha : pagina.split('\n'))
        if (const qsizetype lugar = linha.indexOf(titulo); lugar >= 0)
            return linha.mid(lugar + titulo.size()).remove('|').remove(':').trimmed();
    return {};
}

TEST(RelatorioNormal, ThirteenLinesAreAFullPageAndAnEmptyOneWithoutTotals)
{
    const auto paginas = Paginas(Pede(Forma::Normal, Destino::Dispositivo), Iguais(13));
    ASSERT_EQ(paginas.size(), 2U);
    EXPECT_TRUE(paginas[0].contains("Pag:01/01\n"));
    EXPECT_EQ(Total(paginas[0], "Total acumulado").toStdString(), "13,00");
    const QString margem(12, ' ');
    const QString regua = margem + QString(94, '-') + "\n";
    EXPECT_EQ(paginas[1].toStdString(),
              (regua + margem + "05/03/07               Relatorio de Cheques Impressos\n" + margem +
               "                    Pag:02/01\n" + regua + margem +
               "N. Cheque    | Bco | Valor            | Data     | Favorecido\n" + regua + regua)
                  .toStdString());
}

TEST(RelatorioNormal, FourteenLinesAreTwoPagesAndTheLastHasItsTotals)
{
    const auto paginas = Paginas(Pede(Forma::Normal, Destino::Arquivo), Iguais(14));
    ASSERT_EQ(paginas.size(), 2U);
    EXPECT_TRUE(paginas[0].contains("Pag:01/02\r\n"));
    EXPECT_TRUE(paginas[1].contains("Pag:02/02\r\n"));
    EXPECT_EQ(Total(paginas[1], "Total da página").toStdString(), "1,00");
    EXPECT_EQ(Total(paginas[1], "Total acumulado").toStdString(), "14,00");
}

TEST(RelatorioNormal, AListOfNoLinesHasPageOneOfNoneAndTotalsOfZero)
{
    const auto paginas = Paginas(Pede(Forma::Normal, Destino::Arquivo), {});
    ASSERT_EQ(paginas.size(), 1U);
    EXPECT_TRUE(paginas[0].contains("Pag:01/00\r\n"));
    EXPECT_EQ(Total(paginas[0], "Total acumulado").toStdString(), "0,00");
}

TEST(RelatorioNormal, ACancelledChequeIsMarkedInTheMargin)
{
    const auto paginas = Paginas(Pede(Forma::Normal, Destino::Arquivo), {Cancelada("2,00"), Linha("1,00")});
    EXPECT_TRUE(paginas[0].contains("\n   Cancelado           7 | 001 |             2,00 | 05/03/07 | "));
    EXPECT_TRUE(paginas[0].contains("\n                       7 | 001 |             1,00 | 05/03/07 | "));
}

TEST(RelatorioNormal, ALineShowsFortyThreeCharactersOfThePayee)
{
    QString linha = Linha("1,00");
    linha.replace(54, 74, QString(43, 'a') + QString(31, 'b'));
    const auto paginas = Paginas(Pede(Forma::Normal, Destino::Arquivo), {linha});
    EXPECT_TRUE(paginas[0].contains(" | " + QString(43, 'a') + "\r\n"));
}

// On paper the mark is a column of its own.
TEST(RelatorioNormalImpressora, ACancelledChequeHasAMarkAndNoWord)
{
    const auto paginas =
        Paginas(Pede(Forma::Normal, Destino::Impressora), {Cancelada("2,00"), Linha("1,00")});
    EXPECT_TRUE(paginas[0].contains("\r\n  C|           7 | 001 | "));
    EXPECT_TRUE(paginas[0].contains("\r\n   |           7 | 001 | "));
    EXPECT_FALSE(paginas[0].contains("Cancelado "));
}

TEST(Relatorio, TheValueKeepsItsThousandsPoints)
{
    const auto paginas = Paginas(Pede(Forma::Normal, Destino::Arquivo),
                                 {Linha("1.234.567,89"), Linha("9.999.999.999,99"), Linha("0,01")});
    EXPECT_EQ(Total(paginas[0], "Total da página").toStdString(), "10.001.234.567,89");
}

TEST(Relatorio, ManyCentsAddUpToWholeOnes)
{
    const auto paginas =
        Paginas(Pede(Forma::Compacto, Destino::Impressora, 5000), Iguais(10000, Linha("0,01")));
    ASSERT_EQ(paginas.size(), 2U);
    EXPECT_EQ(Total(paginas[0], "Total acumulado").toStdString(), "100,00");
}

TEST(Relatorio, ACancelledChequeAddsToTheCancelledOnesOnly)
{
    for (const Forma forma : {Forma::Normal, Forma::Compacto})
        for (const Destino destino : {Destino::Dispositivo, Destino::Arquivo, Destino::Impressora}) {
            const auto paginas =
                Paginas(Pede(forma, destino), {Linha("1,00"), Cancelada("2,00"), Linha("4,00")});
            ASSERT_EQ(paginas.size(), 1U);
            EXPECT_EQ(Total(paginas[0], "Total da página").toStdString(), "5,00");
            EXPECT_EQ(Total(paginas[0], "Total acumulado").toStdString(), "5,00");
            EXPECT_EQ(Total(paginas[0], "Total cancelados acumulados").toStdString(), "2,00");
        }
}

TEST(Relatorio, OnlyTheTotalOfThePageIsClearedBetweenPages)
{
    QStringList linhas;
    for (int i = 0; i < 8; ++i)
        linhas += i % 4 == 3 ? Cancelada("100,00") : Linha("1,00");
    const auto paginas = Paginas(Pede(Forma::Normal, Destino::Impressora, 3), linhas); // 3, 3 and 2 cheques
    ASSERT_EQ(paginas.size(), 3U);
    const std::array<std::array<const char *, 3>, 3> totais = {
        {{"3,00", "3,00", "0,00"}, {"2,00", "5,00", "100,00"}, {"1,00", "6,00", "200,00"}}};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(Total(paginas[i], "Total da página").toStdString(), totais[i][0]);
        EXPECT_EQ(Total(paginas[i], "Total acumulado").toStdString(), totais[i][1]);
        EXPECT_EQ(Total(paginas[i], "Total cancelados acumulados").toStdString(), totais[i][2]);
    }
}

// On purpose: the misspelled word stands at the end of a full page of the compact forms, and nowhere else.
TEST(RelatorioCompacto, AcumaladosStandsAtTheEndOfAFullPageOnly)
{
    for (const Destino destino : {Destino::Dispositivo, Destino::Arquivo, Destino::Impressora}) {
        const auto paginas = Paginas(Pede(Forma::Compacto, destino, 18), Iguais(37));
        ASSERT_EQ(paginas.size(), 2U);
        EXPECT_TRUE(paginas[0].contains("Total cancelados acumalados"));
        EXPECT_FALSE(paginas[0].contains("acumulados"));
        EXPECT_TRUE(paginas[1].contains("Total cancelados acumulados"));
        EXPECT_FALSE(paginas[1].contains("acumalados"));
        for (const QString &pagina : Paginas(Pede(Forma::Normal, destino, 13), Iguais(14)))
            EXPECT_FALSE(pagina.contains("acumalados"));
    }
}

// On purpose: the compact cell cuts the number by position, and the last of its twelve characters is lost.
TEST(RelatorioCompacto, ACellShowsElevenCharactersOfTheNumber)
{
    const auto paginas = Paginas(Pede(Forma::Compacto, Destino::Arquivo),
                                 {Linha("1,00", false, "123456789012"), Cancelada("2,00")});
    EXPECT_TRUE(paginas[0].contains("\r\n        |12345678901|001|             1,00|C|           |001| "
                                    "            2,00|\r\n        ---"))
        << paginas[0].toStdString();
}

TEST(RelatorioCompacto, ColumnsAlignUnderTheHead)
{
    const auto paginas = Paginas(Pede(Forma::Compacto, Destino::Dispositivo), Iguais(7));
    const QStringList linhas = paginas[0].split('\n');
    const QString primeira = linhas.at(6);
    EXPECT_EQ(primeira.size(), 7 + 3 * 36);
    EXPECT_EQ(primeira.left(9).toStdString(), "        |");
    EXPECT_EQ(linhas.at(7), primeira);
    EXPECT_EQ(linhas.at(8), primeira.left(7 + 36));
    EXPECT_EQ(linhas.at(0).size(), primeira.size()); // the rule
}

TEST(RelatorioCompactoImpressora, EachRowOfTwoBeginsAtTheMargin)
{
    const auto paginas = Paginas(Pede(Forma::Compacto, Destino::Impressora), Iguais(3));
    const QStringList linhas = paginas[0].split("\r\n");
    EXPECT_EQ(linhas.at(6).size(), 14 + 2 * 36);
    EXPECT_EQ(linhas.at(6).left(16).toStdString(), std::string(15, ' ') + "|");
    EXPECT_EQ(linhas.at(7), linhas.at(6).left(14 + 36));
    EXPECT_EQ(linhas.at(8), QString(14, ' ') + QString(72, '-'));
}

// On purpose: columns are cut out of a line by position, so that a wider value loses its last digit.
TEST(Relatorio, AValueWiderThanItsColumnIsReadWithoutItsLastDigit)
{
    const auto paginas = Paginas(Pede(Forma::Normal, Destino::Arquivo), {Linha("12.345.678.901,29")});
    EXPECT_EQ(Total(paginas[0], "Total da página").toStdString(), "12.345.678.901,20");
}

TEST(Relatorio, LineEndsAreLfOnTheDeviceAndCrLfElsewhere)
{
    for (const Forma forma : {Forma::Normal, Forma::Compacto}) {
        for (const QString &pagina : Paginas(Pede(forma, Destino::Dispositivo), Iguais(40)))
            EXPECT_FALSE(pagina.contains('\r'));
        for (const Destino destino : {Destino::Arquivo, Destino::Impressora})
            for (const QString &pagina : Paginas(Pede(forma, destino), Iguais(40)))
                EXPECT_EQ(pagina.count('\n'), pagina.count("\r\n"));
    }
}

TEST(Relatorio, PagesBeyondNinetyNineAreCountedWhole)
{
    const auto paginas = Paginas(Pede(Forma::Normal, Destino::Arquivo), Iguais(13 * 100 + 1));
    ASSERT_EQ(paginas.size(), 101U);
    EXPECT_TRUE(paginas[8].contains("Pag:09/101\r\n"));
    EXPECT_TRUE(paginas[100].contains("Pag:101/101\r\n"));
}

TEST(Relatorio, APageOfNoChequeIsADivisionByZeroOnPaper)
{
    for (const Forma forma : {Forma::Normal, Forma::Compacto})
        for (const int quantas : {0, 1})
            for (const int ajuste : {0, -1, -32768}) // a setting that another program may have written
                EXPECT_EQ(
                    NumeroDoErro([&] { Paginas(Pede(forma, Destino::Impressora, ajuste), Iguais(quantas)); }),
                    plataforma::ErrDivisionByZero)
                    << ajuste;
}

TEST(Relatorio, DeviceAndFileDoNotHeedThePagesOfThePaper)
{
    for (const Forma forma : {Forma::Normal, Forma::Compacto})
        for (const Destino destino : {Destino::Dispositivo, Destino::Arquivo})
            EXPECT_EQ(Paginas(Pede(forma, destino, 0), Iguais(40)),
                      Paginas(Pede(forma, destino, 55), Iguais(40)));
}

TEST(Relatorio, AsksForEachLineOnceAndInOrder)
{
    std::vector<qint64> pedidas;
    Relatorio relatorio(Pede(Forma::Compacto, Destino::Dispositivo), 73, [&pedidas](qint64 i) {
        pedidas.push_back(i);
        return Linha("1,00");
    });
    EXPECT_EQ(amostras::Todas(relatorio).size(), 3U);
    ASSERT_EQ(pedidas.size(), 73U);
    for (std::size_t i = 0; i < pedidas.size(); ++i)
        EXPECT_EQ(pedidas[i], static_cast<qint64>(i));
}

TEST(Relatorio, EndsOnceItsLastPageIsGiven)
{
    for (const int quantas : {0, 1, 13, 14}) {
        Relatorio relatorio(Pede(Forma::Normal, Destino::Dispositivo), quantas,
                            [](qint64) { return Linha("1,00"); });
        for (int pagina = 0; pagina <= quantas / 13; ++pagina) {
            EXPECT_FALSE(relatorio.Terminou());
            EXPECT_TRUE(relatorio.ProximaPagina().has_value());
        }
        EXPECT_TRUE(relatorio.Terminou());
        EXPECT_FALSE(relatorio.ProximaPagina().has_value());
    }
}

TEST(Relatorio, ALineWithoutANumberIsAFailure)
{
    const QString linha = Linha("?");
    EXPECT_EQ(NumeroDoErro([&] { Paginas(Pede(Forma::Normal, Destino::Arquivo), {linha}); }),
              plataforma::ErrTypeMismatch);
}

} // namespace
