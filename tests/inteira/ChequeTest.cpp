// A normal cheque from the keys to the paper, the line and the log, for many layouts.
#include "Mesa.h"

#include "device/Posicoes.h"

#include <QLabel>

namespace inteira {

namespace {

/// A layout, a cheque typed on it, and what must come of it.
struct CasoCheque {
    std::string nome;
    Posicoes posicoes;
    Cheque teclas;
    QString digitosDoAno; ///< ConfiguraData; empty: never set
    ChequeNoPapel papel;
    QList<QByteArray> naLinha; ///< the six texts as bytes
    QStringList log;           ///< the row, from Banco on
};

void PrintTo(const CasoCheque &c, std::ostream *os)
{
    *os << c.nome;
}

const std::vector<CasoCheque> kCasos = {
    {"TheRegistersOwnDefaults",
     kPosicoesPadrao,
     {"1", "1234,5", "Padaria São João Ltda", "São Paulo", "030524", "000123", {"Nota 77", "", "Maio"}},
     "",
     {"1.234,50",
      "mil duzentos e trinta e quatro reais e cinquenta centavos",
      "Padaria São João Ltda",
      "São Paulo",
      "03",
      "Maio",
      "2024",
      {}},
     {"001", "1.234,50", "Padaria S\xC6o Jo\xC6o Ltda", "S\xC6o Paulo", "03/05/24", ""},
     {"001", "1234,5", "Padaria São João Ltda", "São Paulo", "03/05/24", "000123", " ", "Nota 77", "",
      "Maio"}},
    {"TheSmallestLinesAndColumns",
     {1, 4, 6, 8, 10, 1, 1, 1, 1, 1, 22, 26, 40},
     {"237", "0,01", "Maria", "Rio", "290200", "1", {}},
     "",
     {"0,01", "um centavo", "Maria", "Rio", "29", "Fevereiro", "2000", {}},
     {"237", "0,01", "Maria", "Rio", "29/02/00", ""},
     {"237", ",01", "Maria", "Rio", "29/02/00", "1", " ", "", "", ""}},
    {"TheLargestLinesAndTheLongestTexts",
     {5, 9, 12, 15, 17, 105, 60, 1, 72, 60, 21, 25, 55},
     {"341",
      "999999999,99",
      "Associação Beneficente Nossa Senhora da Penha 1",
      "São José Rio Preto 1",
      "311299",
      "123456789012",
      {}},
     "4",
     {"999.999.999,99",
      "novecentos e noventa e nove milhões novecentos e noventa e nove mil novecentos e noventa e nove reais "
      "e "
      "noventa e nove centavos",
      "Associação Beneficente Nossa Senhora da Penha 1",
      "São José Rio Preto 1",
      "31",
      "Dezembro",
      "1999",
      {}},
     {"341", "999.999.999,99", "Associa\x87\xC6o Beneficente Nossa Senhora da Penha 1",
      "S\xC6o Jos\x82 Rio Preto 1", "31/12/99", ""},
     {"341", "999999999,99", "Associação Beneficente Nossa Senhora da Penha 1", "São José Rio Preto 1",
      "31/12/99", "123456789012", " ", "", "", ""}},
    {"TheYearAtTheLastColumnOfTheRule",
     {3, 6, 9, 12, 15, 100, 30, 30, 30, 1, 90, 105, 117},
     {"33", "1000", "José", "Içara", "010330", "77", {}},
     "2",
     {"1.000,00", "mil reais", "José", "Içara", "01", "Março", "30", {}},
     {"033", "1.000,00", "Jos\x82",
      "I\x87"
      "ara",
      "01/03/30", ""},
     {"033", "1000,", "José", "Içara", "01/03/30", "77", " ", "", "", ""}},
    {"TextsAtTheLastColumns",
     {2, 5, 7, 9, 11, 115, 118, 1, 116, 80, 5, 10, 38},
     {"104", "2,00", "Silva", "Ur", "100424", "5", {}},
     "1",
     {"2,00", "dois reais", "Silva", "Ur", "10", "Abril", "4", {}},
     {"104", "2,00", "Silva", "Ur", "10/04/24", ""},
     {"104", "2,", "Silva", "Ur", "10/04/24", "5", " ", "", "", ""}},
    {"CityDayMonthAndYearOneBlankApart",
     {1, 5, 8, 11, 14, 50, 12, 12, 12, 10, 21, 24, 34},
     {"399", "1000001", "Clínica Santé", "Bento Gonçalves - RS", "070925", "42", {}},
     "",
     {"1.000.001,00",
      "um milhão e um reais",
      "Clínica Santé",
      "Bento Gonçalves - RS",
      "07",
      "Setembro",
      "2025",
      {}},
     {"399", "1.000.001,00", "Cl\xA1nica Sant\x82",
      "Bento Gon\x87"
      "alves - RS",
      "07/09/25", ""},
     {"399", "1000001,", "Clínica Santé", "Bento Gonçalves - RS", "07/09/25", "42", " ", "", "", ""}},
    {"TheWordsGoOnIntoTheSecondLine",
     {2, 4, 6, 8, 10, 90, 80, 100, 5, 5, 30, 35, 50},
     {"422", "21,21", "", "Niterói", "", "9", {"só isto"}},
     "",
     {"21,21", "vinte e um reais e vinte e um centavos", ".", "Niterói", "17", "Maio", "2024", {}},
     {"422", "21,21", ".", "Niter\xA2i", "17/05/24", ""},
     {"422", "21,21", ".", "Niterói", "17/05/24", "9", " ", "só isto", "", ""}},
};

class ChequeInteiroTest : public Mesa, public testing::WithParamInterface<CasoCheque> {};

} // namespace

TEST_P(ChequeInteiroTest, ComesOutWhereTheThirteenNumbersSay)
{
    const CasoCheque &caso = GetParam();
    const QString codigo = caso.naLinha.front();
    CadastraBanco(codigo, "Banco da Praça", caso.posicoes);
    CadastraBanco("998", "Outro Banco", {4, 8, 10, 13, 16, 50, 40, 40, 40, 2, 60, 70, 90});
    PoeChave("Opcoes", "ConfiguraData", caso.digitosDoAno.isEmpty() ? "3" : caso.digitosDoAno);
    Liga();
    Abre();
    Digita(caso.teclas);
    EXPECT_EQ(apoio::Controle<QLabel>(Tela(), "Label1(6)")->text(), "Banco da Praça");
    Imprime();

    EXPECT_EQ(Vistas(), std::vector{kInsira});
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(Folha(1), FolhaEsperada(caso.posicoes, caso.papel));
    const QByteArray forma = caso.digitosDoAno.isEmpty() ? QByteArray()
                                                         : "\x1B\xAF"
                                                           "D" +
                                                               caso.digitosDoAno.toLatin1() + '\r';
    EXPECT_EQ(aparelho.Bytes().toHex(' '), (forma + QuadroDoCheque(0, caso.naLinha)).toHex(' '));
    EXPECT_EQ(Log(), (QList<QStringList>{QStringList{"0000000001", "00001"} + caso.log}));
    EXPECT_EQ(apoio::Foco(Tela()), "Text1(0)");
}

TEST_P(ChequeInteiroTest, TheLayoutOfTheCaseObeysThePositionRule)
{
    device::TextosDoBanco textos;
    textos[0] = GetParam().naLinha.front();
    for (std::size_t i = 0; i < GetParam().posicoes.size(); ++i)
        textos[i + 2] = QStringLiteral("%1").arg(GetParam().posicoes[i], 3, 10, QLatin1Char('0'));
    EXPECT_TRUE(device::VerificaPosicoes(textos));
}

INSTANTIATE_TEST_SUITE_P(Leiautes, ChequeInteiroTest, testing::ValuesIn(kCasos),
                         [](const auto &caso) { return caso.param.nome; });

class VariosChequesTest : public Mesa {};

TEST_F(VariosChequesTest, EachChequeOfOneRunHasItsPaperItsFrameAndItsRow)
{
    CadastraBanco("001", "Primeiro", kPosicoesPadrao);
    const Posicoes outro = {3, 7, 9, 11, 13, 80, 20, 20, 20, 20, 25, 30, 50};
    CadastraBanco("237", "Segundo", outro);
    Liga();
    Abre();
    Digita({"1", "10", "Ana", "Olinda", "010224", "1", {}});
    Imprime();
    Digita({"237", "20,5", "Rui", "Natal", "020224", "2", {}});
    Imprime();

    ASSERT_EQ(aparelho.Documentos().size(), 2);
    EXPECT_EQ(Folha(1),
              FolhaEsperada(kPosicoesPadrao,
                            {"10,00", "dez reais", "Ana", "Olinda", "01", "Fevereiro", "2024", {}}));
    EXPECT_EQ(
        Folha(2),
        FolhaEsperada(
            outro,
            {"20,50", "vinte reais e cinquenta centavos", "Rui", "Natal", "02", "Fevereiro", "2024", {}}));
    EXPECT_EQ(aparelho.Bytes(), QuadroDoCheque(0, {"001", "10,00", "Ana", "Olinda", "01/02/24", ""}) +
                                    QuadroDoCheque(1, {"237", "20,50", "Rui", "Natal", "02/02/24", ""}));
    EXPECT_EQ(Log(),
              (QList<QStringList>{
                  {"0000000001", "00001", "001", "10,", "Ana", "Olinda", "01/02/24", "1", " ", "", "", ""},
                  {"0000000002", "00002", "237", "20,5", "Rui", "Natal", "02/02/24", "2", " ", "", "", ""}}));
}

TEST_F(VariosChequesTest, WithoutTheTickTheChequeComesOutAndTheLogStays)
{
    CadastraBanco("001", "Primeiro", kPosicoesPadrao);
    PoeChave("Sistema", "InRel", "0");
    Liga();
    Abre();
    Digita({"1", "10", "Ana", "Olinda", "010224", "1", {}});
    Imprime();
    EXPECT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(Log().size(), 0);
}

TEST_F(VariosChequesTest, CancelAtTheQuestionSendsNothingAndLogsNothing)
{
    CadastraBanco("001", "Primeiro", kPosicoesPadrao);
    Liga();
    Abre();
    Digita({"1", "10", "Ana", "Olinda", "010224", "1", {}});
    caixas.Responde(QMessageBox::Cancel);
    Imprime();
    EXPECT_EQ(Vistas(), std::vector{kInsira});
    Digita({"1", "11", "Ana", "Olinda", "010224", "2", {}});
    Imprime();
    EXPECT_EQ(aparelho.Bytes(), QuadroDoCheque(0, {"001", "11,00", "Ana", "Olinda", "01/02/24", ""}));
    EXPECT_EQ(Log().size(), 1);
}

} // namespace inteira
