// qx70-banco semeia: what it writes. The forms are judged by patterns and by SQL of their own.
#include "Apoio.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QDate>
#include <QMap>
#include <QRegularExpression>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

constexpr int kCheques = 3000;
constexpr int kBancos = 120;

/// One seeded office for all tests of this file: none of them writes.
class SementesTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        s_escritorio = new Escritorio;
        s_semeia = s_escritorio->Semeia({QStringLiteral("--bancos"), QString::number(kBancos),
                                         QStringLiteral("--cidades"), QStringLiteral("200"),
                                         QStringLiteral("--favorecidos"), QStringLiteral("400"),
                                         QStringLiteral("--cheques"), QString::number(kCheques),
                                         QStringLiteral("--hoje"), QStringLiteral("29/02/04")});
    }
    static void TearDownTestSuite()
    {
        delete s_escritorio;
        s_escritorio = nullptr;
    }

    static int Conta(const std::string &consulta)
    {
        return std::stoi(Valor(s_escritorio->Loja(), "SELECT count(*) FROM " + consulta));
    }
    /// How many values of a field do not have the form.
    static int Deformados(const std::string &tabela, const std::string &campo, const char *forma)
    {
        const QRegularExpression padrao(QStringLiteral("\\A(?:%1)\\z").arg(QString::fromUtf8(forma)));
        int deformados = 0;
        for (const auto &linha : Linhas(s_escritorio->Loja(), "SELECT \"" + campo + "\" FROM " + tabela))
            deformados += padrao.match(QString::fromStdString(linha[0])).hasMatch() ? 0 : 1;
        return deformados;
    }

    static inline Escritorio *s_escritorio = nullptr;
    static inline Execucao s_semeia;
};

TEST_F(SementesTest, FillsAsManyRowsAsAskedAndSaysSo)
{
    EXPECT_EQ(s_semeia.codigo, 0) << s_semeia.erros.toStdString();
    EXPECT_THAT(s_semeia.saida.toStdString(),
                HasSubstr("bancos 120, cidades 200, favorecidos 400, cheques 3000."));
    EXPECT_EQ(Conta("Bancos"), kBancos);
    EXPECT_EQ(Conta("Cidade"), 200);
    EXPECT_EQ(Conta("Favorecido"), 400);
    EXPECT_EQ(Conta("Log"), kCheques);
    EXPECT_EQ(Conta("Transferencia"), 0);
    EXPECT_EQ(Conta("Script"), 0);
}

TEST_F(SementesTest, LeavesOnlyStoreAndSettingsInTheFolder)
{
    EXPECT_EQ(NomesEm(s_escritorio->Caminho()),
              (QStringList{QStringLiteral("QX70.INI"), QStringLiteral("QX70.MDB")}));
}

TEST_F(SementesTest, IsQuietOnShortWork)
{
    EXPECT_TRUE(s_semeia.erros.isEmpty()) << s_semeia.erros.toStdString();
}

struct CasoForma {
    std::string nome;
    const char *tabela;
    const char *campo;
    const char *forma;
};
void PrintTo(const CasoForma &c, std::ostream *os)
{
    *os << c.nome;
}

class FormaTest : public SementesTest, public testing::WithParamInterface<CasoForma> {};

TEST_P(FormaTest, HoldsInEveryRow)
{
    EXPECT_EQ(Deformados(GetParam().tabela, GetParam().campo, GetParam().forma), 0);
}

// An amount has no group separator, no zero at its end, and keeps its comma when it is whole.
INSTANTIATE_TEST_SUITE_P(Campos, FormaTest,
                         testing::Values(CasoForma{"LogIndex", "Log", "Index", "[0-9]{10}"},
                                         CasoForma{"LogCode", "Log", "Codigo", "[0-9]{5}"},
                                         CasoForma{"LogBank", "Log", "Banco", "[0-9]{3}"},
                                         CasoForma{"LogAmount", "Log", "V_CH",
                                                   "(?=.{1,16}\\z)(?:[1-9][0-9]*)?,(?:[0-9]?[1-9])?"},
                                         CasoForma{"LogPayee", "Log", "Favor", "\\S(?:.{0,45}\\S)?"},
                                         CasoForma{"LogCity", "Log", "Local", "\\S(?:.{0,18}\\S)?"},
                                         CasoForma{"LogDate", "Log", "Data", "[0-9]{2}/[0-9]{2}/[0-9]{2}"},
                                         CasoForma{"LogNumber", "Log", "NRCH", "[0-9]{1,12}| "},
                                         CasoForma{"LogState", "Log", "StCancel", "[ C]"},
                                         CasoForma{"LogComment", "Log", "Comentario", ".{0,80}"},
                                         CasoForma{"LogComment1", "Log", "Comentario1", ".{0,80}"},
                                         CasoForma{"LogComment2", "Log", "Comentario2", ".{0,80}"},
                                         CasoForma{"BankCode", "Bancos", "Codigo", "[0-9]{3}"},
                                         CasoForma{"BankName", "Bancos", "Nome", "\\S.{1,28}\\S"},
                                         CasoForma{"CityCode", "Cidade", "Codigo", "[0-9]{5}"},
                                         CasoForma{"CityName", "Cidade", "Nome", "\\S.{1,18}\\S"},
                                         CasoForma{"PayeeCode", "Favorecido", "Codigo", "[0-9]{5}"},
                                         CasoForma{"PayeeName", "Favorecido", "Nome", "\\S.{1,45}\\S"}),
                         [](const auto &caso) { return caso.param.nome; });

TEST_F(SementesTest, NumbersTheChequesOneByOneInRowOrder)
{
    EXPECT_EQ(Conta("Log WHERE \"Index\" <> printf('%010d', rowid)"), 0);
    EXPECT_EQ(Conta("Log WHERE Codigo <> substr(\"Index\", 6)"), 0);
    EXPECT_EQ(Valor(s_escritorio->Loja(), "SELECT min(rowid) || ' ' || max(rowid) FROM Log"), "1 3000");
}

TEST_F(SementesTest, CodesTheRegistersFromOneOn)
{
    EXPECT_EQ(Conta("Bancos WHERE Codigo <> printf('%03d', rowid)"), 0);
    EXPECT_EQ(Conta("Cidade WHERE Codigo <> printf('%05d', rowid)"), 0);
    EXPECT_EQ(Conta("Favorecido WHERE Codigo <> printf('%05d', rowid)"), 0);
}

TEST_F(SementesTest, WritesChequesOnWhatTheRegistersHold)
{
    EXPECT_EQ(Conta("Log WHERE Banco NOT IN (SELECT Codigo FROM Bancos)"), 0);
    EXPECT_EQ(Conta("Log WHERE Local NOT IN (SELECT Nome FROM Cidade)"), 0);
    EXPECT_EQ(Conta("Log WHERE Favor <> '.' AND Favor NOT IN (SELECT Nome FROM Favorecido)"), 0);
    EXPECT_EQ(Conta("(SELECT DISTINCT Banco FROM Log)"), kBancos);
}

TEST_F(SementesTest, MixesWhatAnOfficeMeets)
{
    const int cancelados = Conta("Log WHERE StCancel='C'");
    EXPECT_GT(cancelados, 0);
    EXPECT_LT(cancelados, kCheques / 20);
    EXPECT_GT(Conta("Log WHERE V_CH LIKE '%,'"), kCheques / 10);
    EXPECT_GT(Conta("Log WHERE V_CH LIKE '%,_'"), 0);
    EXPECT_GT(Conta("Log WHERE V_CH LIKE '%,__'"), kCheques / 10);
    EXPECT_GT(Conta("Log WHERE NRCH=' '"), 0);
    EXPECT_GT(Conta("Log WHERE Favor='.'"), 0);
    EXPECT_GT(Conta("Log WHERE Comentario <> ''"), kCheques / 10);
    EXPECT_GT(Conta("Favorecido WHERE Nome LIKE '%''%'"), 0);
}

TEST_F(SementesTest, WritesNoAmountOfZero)
{
    EXPECT_EQ(Conta("Log WHERE V_CH = ','"), 0);
}

TEST_F(SementesTest, LeavesTheCommentsOfASeriesChequeUnset)
{
    EXPECT_GT(Conta("Log WHERE Comentario IS NULL"), 0);
    EXPECT_GT(Conta("Log WHERE Comentario IS NOT NULL"), 0);
    EXPECT_EQ(
        Conta("Log WHERE (Comentario IS NULL) + (Comentario1 IS NULL) + (Comentario2 IS NULL) IN (1, 2)"), 0);
}

TEST_F(SementesTest, DatesTheChequesInOrderUpToToday)
{
    QDate anterior;
    for (const auto &linha : Linhas(s_escritorio->Loja(), "SELECT Data FROM Log ORDER BY rowid")) {
        const QString texto = QString::fromStdString(linha[0]);
        const QDate data(2000 + texto.mid(6).toInt(), texto.mid(3, 2).toInt(), texto.left(2).toInt());
        ASSERT_TRUE(data.isValid()) << linha[0];
        ASSERT_TRUE(!anterior.isValid() || anterior <= data) << linha[0];
        anterior = data;
    }
    EXPECT_EQ(anterior, QDate(2004, 2, 29));
    EXPECT_GT(Conta("(SELECT DISTINCT Data FROM Log)"), 100);
}

TEST_F(SementesTest, NamesNoBankTwice)
{
    EXPECT_EQ(Conta("(SELECT DISTINCT lower(Nome) FROM Bancos)"), kBancos);
}

TEST_F(SementesTest, NamesNoCityTwice)
{
    EXPECT_EQ(Conta("(SELECT DISTINCT Nome FROM Cidade)"), 200);
}

TEST_F(SementesTest, GivesTheNewcomerThreeKnownBanks)
{
    std::vector<std::string> nomes;
    for (const auto &linha : Linhas(s_escritorio->Loja(), "SELECT Codigo || ' ' || Nome FROM Bancos LIMIT 3"))
        nomes.push_back(linha[0]);
    EXPECT_THAT(nomes, ElementsAre("001 Banco Serra Azul", "002 BANCO DO LITORAL", "003 Banco Vale Verde"));
}

TEST_F(SementesTest, GivesEveryBankALayoutOfItsOwn)
{
    EXPECT_EQ(Conta("(SELECT DISTINCT L1,L2,L3,L4,L5,C1,C2,C3,C4,C5,C6,C7,C8 FROM Bancos)"), kBancos);
    for (const char *campo : {"L1", "L2", "L3", "L4", "L5", "C1", "C2", "C3", "C4", "C5", "C6", "C7", "C8"})
        EXPECT_EQ(Deformados("Bancos", campo, "[0-9]{3}"), 0) << campo;
}

TEST_F(SementesTest, KeepsEveryLayoutWithinThePositionRule)
{
    EXPECT_EQ(Conta("Bancos WHERE NOT (L1 < L2 AND L2 < L3 AND L3 < L4 AND L4 < L5 AND C6 < C7 AND C7 < C8)"),
              0);
    EXPECT_EQ(
        Conta("Bancos WHERE NOT (L1+0 BETWEEN 1 AND 5 AND L2+0 BETWEEN 4 AND 9 AND L3+0 BETWEEN 6 AND 12 "
              "AND L4+0 BETWEEN 8 AND 15 AND L5+0 BETWEEN 10 AND 17)"),
        0);
    EXPECT_EQ(Conta("Bancos WHERE max(C1+0, C2+0, C3+0, C4+0, C5+0) > 118"), 0);
    EXPECT_EQ(Conta("Bancos WHERE C6+C5 > 114 OR C7+C5 > 116 OR C8+C5 > 118"), 0);
}

TEST_F(SementesTest, LeavesRoomForTheCityAndTheMonthOnTheForm)
{
    EXPECT_EQ(Conta("Bancos WHERE C6+0 <= 20 OR C8-C7 < 10 OR C5+C8+3 > 120"), 0);
}

/// The keys of a section, read with nothing of the program: lines end in CR LF, the text is Windows-1252.
QMap<QString, QByteArray> ChavesDe(const QByteArray &ini, const QByteArray &secao)
{
    QMap<QString, QByteArray> chaves;
    bool dentro = false;
    for (QByteArray linha : ini.split('\n')) {
        if (linha.endsWith('\r'))
            linha.chop(1);
        if (linha.startsWith('['))
            dentro = linha == '[' + secao + ']';
        else if (dentro && linha.contains('='))
            chaves.insert(QString::fromLatin1(linha.left(linha.indexOf('='))),
                          linha.mid(linha.indexOf('=') + 1));
    }
    return chaves;
}

TEST_F(SementesTest, WritesTheSameLayoutsIntoTheSettings)
{
    const auto chaves = ChavesDe(LeArquivo(s_escritorio->Ini()), "Formato");
    EXPECT_EQ(chaves.size(), kBancos);
    for (const auto &banco : Linhas(s_escritorio->Loja(), "SELECT * FROM Bancos")) {
        std::string esperado;
        for (std::size_t i = 2; i < banco.size(); ++i)
            esperado += (i == 2 ? "" : ",") + (banco[i][0] == '0' ? banco[i].substr(1) : banco[i]);
        // The names hold Latin letters only, which Latin-1 and Windows-1252 write alike.
        const QByteArray nome = QString::fromStdString(banco[1]).left(20).toLatin1();
        EXPECT_EQ(chaves[QString::fromStdString(banco[0])].toStdString(),
                  esperado + "    ; " + nome.toStdString());
    }
}

TEST_F(SementesTest, EndsEverySettingsLineInCrLf)
{
    const QByteArray ini = LeArquivo(s_escritorio->Ini());
    EXPECT_EQ(ini.count('\n'), kBancos + 1);
    EXPECT_EQ(ini.count("\r\n"), kBancos + 1);
    EXPECT_TRUE(ini.contains('\xe9')) << "no accent in Windows-1252";
    EXPECT_FALSE(ini.contains('\xc3')) << "UTF-8";
}

} // namespace
