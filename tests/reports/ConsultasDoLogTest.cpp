// Queries of the log: the text for each combination of fields, and the rows that the store gives for it.
#include "reports/ConsultasDoLog.h"
#include "plataforma/basico/RuntimeError.h"
#include "plataforma/jet/Database.h"
#include "plataforma/jet/Dynaset.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <map>
#include <QStringList>
#include <QTemporaryDir>
#include <sqlite3.h>
#include <vector>

using plataforma::Database;
using plataforma::RuntimeError;
using reports::CamposDoFiltro;
using reports::ConsultaDaLista;
using reports::ConsultaDoFiltro;

namespace {

/// The fields of the filter as bits of a combination.
enum Campo : unsigned {
    Banco = 1,
    DataIni = 2,
    DataFim = 4,
    ValorIni = 8,
    ValorFim = 16,
    Favor = 32,
    Local = 64,
    Comentario = 128
};
constexpr unsigned kCombinacoes = 256;
struct NoCampo {
    Campo campo;
    QString CamposDoFiltro::*lugar;
    const char *texto;
};
const std::array<NoCampo, 8> kCampos = {{
    {Banco, &CamposDoFiltro::banco, "001"},
    {DataIni, &CamposDoFiltro::dataIni, "10/02/99"},
    {DataFim, &CamposDoFiltro::dataFim, "20/02/99"},
    {ValorIni, &CamposDoFiltro::valorIni, "100,00"},
    {ValorFim, &CamposDoFiltro::valorFim, "1.000,00"},
    {Favor, &CamposDoFiltro::favor, "Padaria São João"},
    {Local, &CamposDoFiltro::local, "Mogi das Cruzes"},
    {Comentario, &CamposDoFiltro::comentario, "aluguel"},
}};

CamposDoFiltro CamposDe(unsigned combinacao)
{
    CamposDoFiltro campos;
    for (const NoCampo &c : kCampos)
        if (combinacao & c.campo)
            campos.*c.lugar = c.texto;
    return campos;
}

CamposDoFiltro Com(const std::map<Campo, QString> &textos)
{
    CamposDoFiltro campos;
    for (const NoCampo &c : kCampos)
        if (const auto texto = textos.find(c.campo); texto != textos.end())
            campos.*c.lugar = texto->second;
    return campos;
}

/// A term: what it begins with when one of the fields in `depoisDe` stands before it and when none does, and
/// its text.
struct Termo {
    Campo campo;
    unsigned depoisDe;
    const char *emenda;
    const char *comeca;
    const char *texto;
};
const std::array<Termo, 6> kTermos = {{
    {Banco, 0, "", "Where ", "(Banco='001')"},
    {Favor, Banco, "and ", "where ", "(Favor='Padaria São João')"},
    {Local, Banco, "and ", "where ", "(Local='Mogi das Cruzes')"},
    {DataIni, Banco | Favor | Local, " And ", " Where ",
     "(CVDate(Data) between CVDate('10/02/99') and CVDate('<ATE>'))"},
    {ValorIni, Banco | Favor | Local | DataIni, " And ", " Where ",
     "(CDBL(V_CH) between CDBL('100,00') and CDBL('<ATE>'))"},
    {Comentario, Banco, "and ", "where ",
     "(Comentario like '*aluguel*')or (Comentario1 like '*aluguel*')or (Comentario2 like '*aluguel*')"},
}};

QString ConsultaPelosTermos(unsigned combinacao)
{
    QString tudo = "Select * From Log ";
    for (const Termo &termo : kTermos)
        if (combinacao & termo.campo)
            tudo += QString(combinacao & termo.depoisDe ? termo.emenda : termo.comeca) + termo.texto;
    tudo.replace("CVDate('<ATE>')", combinacao & DataFim ? "CVDate('20/02/99')" : "CVDate('10/02/99')");
    return tudo.replace("CDBL('<ATE>')", combinacao & ValorFim ? "CDBL('1.000,00')" : "CDBL('100,00')");
}

/// A second "where" makes a query that no engine takes: without a bank only one of payee, city and comment
/// can stand, and a comment only alone.
bool TemDoisWhere(unsigned combinacao)
{
    if (combinacao & Banco)
        return false;
    const int pessoas = (combinacao & Favor ? 1 : 0) + (combinacao & Local ? 1 : 0);
    if (combinacao & Comentario)
        return pessoas > 0 || (combinacao & (DataIni | ValorIni)) != 0;
    return pessoas > 1;
}

std::string NomeDe(unsigned combinacao)
{
    static const std::array<const char *, 8> nomes = {"banco",    "dataIni", "dataFim", "valorIni",
                                                      "valorFim", "favor",   "local",   "comentario"};
    std::string nome = "fields:";
    for (std::size_t i = 0; i < nomes.size(); ++i)
        if (combinacao >> i & 1U)
            nome += std::string(" ") + nomes[i];
    return nome;
}

TEST(ConsultaDoFiltro, EachCombinationOfFieldsHasItsText)
{
    for (unsigned combinacao = 0; combinacao < kCombinacoes; ++combinacao)
        EXPECT_EQ(ConsultaDoFiltro(CamposDe(combinacao)).toStdString(),
                  ConsultaPelosTermos(combinacao).toStdString())
            << NomeDe(combinacao);
}

struct CasoConsulta {
    std::string nome;
    CamposDoFiltro campos;
    const char *consulta;
};
void PrintTo(const CasoConsulta &c, std::ostream *os)
{
    *os << c.consulta;
}
class ConsultaDoFiltroTest : public testing::TestWithParam<CasoConsulta> {};

TEST_P(ConsultaDoFiltroTest, HasTheTermsInTheirOrder)
{
    EXPECT_EQ(ConsultaDoFiltro(GetParam().campos).toStdString(), GetParam().consulta);
}

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };
INSTANTIATE_TEST_SUITE_P(
    Textos, ConsultaDoFiltroTest,
    testing::Values(
        CasoConsulta{"NoFieldKeepsTheTrailingBlank", {}, "Select * From Log "},
        CasoConsulta{"OnlyABank", Com({{Banco, "001"}}), "Select * From Log Where (Banco='001')"},
        CasoConsulta{"NoBlankBetweenBankAndPayee", Com({{Banco, "001"}, {Favor, "X"}}),
                     "Select * From Log Where (Banco='001')and (Favor='X')"},
        CasoConsulta{"NoBlankBetweenPayeeAndCity", Com({{Banco, "001"}, {Favor, "X"}, {Local, "Y"}}),
                     "Select * From Log Where (Banco='001')and (Favor='X')and (Local='Y')"},
        CasoConsulta{
            "TwoBlanksBeforeTheTermOfAnOnlyDate", Com({{DataIni, "01/02/99"}, {DataFim, "28/02/99"}}),
            "Select * From Log  Where (CVDate(Data) between CVDate('01/02/99') and CVDate('28/02/99'))"},
        CasoConsulta{
            "AFirstDateAloneIsARangeOfOneDay", Com({{DataIni, "01/02/99"}}),
            "Select * From Log  Where (CVDate(Data) between CVDate('01/02/99') and CVDate('01/02/99'))"},
        CasoConsulta{"AFirstValueAloneIsARangeOfOneValue", Com({{ValorIni, "10,50"}}),
                     "Select * From Log  Where (CDBL(V_CH) between CDBL('10,50') and CDBL('10,50'))"},
        CasoConsulta{"ALastDateAloneIsNoTerm", Com({{DataFim, "28/02/99"}}), "Select * From Log "},
        CasoConsulta{"ALastValueAloneIsNoTerm", Com({{ValorFim, "10,50"}}), "Select * From Log "},
        CasoConsulta{"DateAndValueAreJoined", Com({{DataIni, "01/02/99"}, {ValorIni, "1,00"}}),
                     "Select * From Log  Where (CVDate(Data) between CVDate('01/02/99') and "
                     "CVDate('01/02/99')) And (CDBL(V_CH) between CDBL('1,00') and CDBL('1,00'))"},
        CasoConsulta{"PayeeAndCityWithoutABankTakeTwoWheres", Com({{Favor, "X"}, {Local, "Y"}}),
                     "Select * From Log where (Favor='X')where (Local='Y')"},
        CasoConsulta{"APayeeBeforeADateIsJoinedByAnd", Com({{DataIni, "01/02/99"}, {Favor, "X"}}),
                     "Select * From Log where (Favor='X') And (CVDate(Data) between CVDate('01/02/99') and "
                     "CVDate('01/02/99'))"},
        CasoConsulta{"ACommentBehindADateWithoutABankTakesASecondWhere",
                     Com({{DataIni, "01/02/99"}, {Comentario, "Z"}}),
                     "Select * From Log  Where (CVDate(Data) between CVDate('01/02/99') and "
                     "CVDate('01/02/99'))where (Comentario like '*Z*')or (Comentario1 like '*Z*')or "
                     "(Comentario2 like '*Z*')"},
        CasoConsulta{"TheOrTermsOfACommentStandOutsideOfItsBrackets",
                     Com({{Banco, "001"}, {Comentario, "Z"}}),
                     "Select * From Log Where (Banco='001')and (Comentario like '*Z*')or (Comentario1 like "
                     "'*Z*')or (Comentario2 like '*Z*')"},
        CasoConsulta{"WhatIsTypedGoesInWithoutAnyQuoting",
                     Com({{Banco, "1'--"}, {Favor, "D'Ávila \"& Cia\"; x"}}),
                     "Select * From Log Where (Banco='1'--')and (Favor='D'Ávila \"& Cia\"; x')"},
        CasoConsulta{"ABlankIsNotEmpty", Com({{Local, " "}}), "Select * From Log where (Local=' ')"}),
    kNomeDoCaso);

TEST(ConsultaDaLista, EachCombinationOfFieldsHasItsText)
{
    for (unsigned combinacao = 0; combinacao <= (Banco | DataIni | DataFim | ValorIni | ValorFim);
         ++combinacao) {
        const CamposDoFiltro c = CamposDe(combinacao);
        // With these five fields the two queries differ only in the blank behind the table's name.
        QString esperada = ConsultaPelosTermos(combinacao);
        esperada.replace(QLatin1String("From Log "), QLatin1String("From Log"));
        if (combinacao & Banco)
            esperada.replace(QLatin1String("LogWhere"), QLatin1String("Log Where"));
        EXPECT_EQ(ConsultaDaLista(c.banco, c.dataIni, c.dataFim, c.valorIni, c.valorFim).toStdString(),
                  esperada.toStdString())
            << NomeDe(combinacao);
    }
}

struct CasoLista {
    std::string nome;
    std::array<const char *, 5> campos;
    const char *consulta;
};
void PrintTo(const CasoLista &c, std::ostream *os)
{
    *os << c.consulta;
}
class ConsultaDaListaTest : public testing::TestWithParam<CasoLista> {};

TEST_P(ConsultaDaListaTest, HasTheTermsInTheirOrder)
{
    const auto &c = GetParam().campos;
    EXPECT_EQ(ConsultaDaLista(c[0], c[1], c[2], c[3], c[4]).toStdString(), GetParam().consulta);
}

INSTANTIATE_TEST_SUITE_P(
    Textos, ConsultaDaListaTest,
    testing::Values(
        CasoLista{"WholeListHasNoTrailingBlank", {"", "", "", "", ""}, "Select * From Log"},
        CasoLista{"OnlyABank", {"001", "", "", "", ""}, "Select * From Log Where (Banco='001')"},
        CasoLista{"OnlyADateHasOneBlankBeforeItsTerm",
                  {"", "01/02/99", "", "", ""},
                  "Select * From Log Where (CVDate(Data) between CVDate('01/02/99') and CVDate('01/02/99'))"},
        CasoLista{"BankDatesAndValues",
                  {"001", "01/02/99", "28/02/99", "1,00", "2.000,00"},
                  "Select * From Log Where (Banco='001') And (CVDate(Data) between CVDate('01/02/99') and "
                  "CVDate('28/02/99')) And (CDBL(V_CH) between CDBL('1,00') and CDBL('2.000,00'))"},
        CasoLista{"LastOnesAloneAreNoTerms", {"", "", "28/02/99", "", "9,00"}, "Select * From Log"}),
    kNomeDoCaso);

// ---- Over a store ---------------------------------------------------------------------------------------

/// A stored cheque, kept as plain numbers beside its texts.
struct Guardado {
    QString banco;
    int dia = 0;          ///< of February 1999; 0: no date
    qint64 centavos = -1; ///< -1: no number
    QString favor, local;
    std::array<bool, 3> aluguel{}; ///< the word stands in this comment
    std::array<QString, 3> comentarios;
};

constexpr std::array<int, 5> kDias = {0, 9, 10, 20, 21};
constexpr std::array<qint64, 5> kCentavos = {-1, 9999, 10000, 100000, 100001};
/// By number: no comment at all, another text in all, the word in one of the three (with other letters around
/// it and in capitals).
const std::array<std::array<QString, 3>, 5> kComentarios = {{{QString(), QString(), QString()},
                                                             {"luz", "alugue", "água"},
                                                             {"aluguel", "", ""},
                                                             {"", "Paga o ALUGUEL de março", ""},
                                                             {"x", "y", "subAluguel"}}};

std::vector<Guardado> Guardados()
{
    std::vector<Guardado> todos;
    for (int i = 0; i < 5 * 5 * 5 * 8; ++i) {
        Guardado g;
        g.dia = kDias[static_cast<std::size_t>(i % 5)];
        g.centavos = kCentavos[static_cast<std::size_t>(i / 5 % 5)];
        const auto nota = static_cast<std::size_t>(i / 25 % 5);
        g.comentarios = kComentarios[nota];
        if (nota >= 2)
            g.aluguel[nota - 2] = true;
        g.banco = i / 125 % 2 ? "001" : "237";
        g.favor = i / 250 % 2 ? "Padaria São João" : "Padaria Sao João";
        g.local = i / 500 % 2 ? "Mogi das Cruzes" : "Mogi das Cruze";
        todos.push_back(g);
    }
    todos.back().favor = "PADARIA SÃO JOÃO"; // the same payee
    return todos;
}

QString EmTexto(qint64 centavos)
{
    return centavos < 0 ? "?" : QString("%1,%2").arg(centavos / 100).arg(centavos % 100, 2, 10, QChar('0'));
}

/// Whether a row meets the fields of a combination. The last two comments bind to the whole.
bool Atende(const Guardado &g, unsigned combinacao)
{
    bool serve = true;
    if (combinacao & Banco)
        serve = serve && g.banco == "001";
    if (combinacao & DataIni)
        serve = serve && g.dia >= 10 && g.dia <= (combinacao & DataFim ? 20 : 10);
    if (combinacao & ValorIni)
        serve = serve && g.centavos >= 10000 && g.centavos <= (combinacao & ValorFim ? 100000 : 10000);
    if (combinacao & Favor)
        serve = serve && g.favor.toUpper() == "PADARIA SÃO JOÃO";
    if (combinacao & Local)
        serve = serve && g.local == "Mogi das Cruzes";
    if (combinacao & Comentario)
        return (serve && g.aluguel[0]) || g.aluguel[1] || g.aluguel[2];
    return serve;
}

class LogGuardadoTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(sqlite3_open(Caminho().toUtf8().constData(), &m_db), SQLITE_OK);
        Executa("create table Log (\"Index\" TEXT, Codigo TEXT, Banco TEXT, V_CH TEXT, Favor TEXT, Local "
                "TEXT, Data TEXT, NRCH TEXT, StCancel TEXT, Comentario TEXT, Comentario1 TEXT, Comentario2 "
                "TEXT); begin");
        for (std::size_t i = 0; i < m_guardados.size(); ++i)
            Guarda(i, m_guardados[i]);
        Executa("commit");
        sqlite3_close(m_db);
    }
    [[nodiscard]] QString Caminho() const { return m_pasta.filePath("QX70.MDB"); }
    /// The rows' numbers, ascending.
    [[nodiscard]] std::vector<std::size_t> Linhas(const QString &consulta) const
    {
        const auto conjunto = Database(Caminho()).OpenDynaset(consulta);
        std::vector<std::size_t> linhas;
        for (conjunto->MoveFirst(); !conjunto->AtEnd(); conjunto->MoveNext())
            linhas.push_back(conjunto->Field("Index").toUInt());
        std::sort(linhas.begin(), linhas.end());
        return linhas;
    }
    [[nodiscard]] int NumeroDaRecusa(const QString &consulta) const
    {
        try {
            (void)Linhas(consulta);
        } catch (const RuntimeError &erro) {
            return erro.number();
        }
        return 0;
    }
    [[nodiscard]] std::vector<std::size_t> LinhasQueAtendem(unsigned combinacao) const
    {
        std::vector<std::size_t> linhas;
        for (std::size_t i = 0; i < m_guardados.size(); ++i)
            if (Atende(m_guardados[i], combinacao))
                linhas.push_back(i);
        return linhas;
    }

    const std::vector<Guardado> m_guardados = Guardados();

private:
    void Executa(const QString &sql) const
    {
        ASSERT_EQ(sqlite3_exec(m_db, sql.toUtf8().constData(), nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(m_db);
    }
    void Guarda(std::size_t i, const Guardado &g) const
    {
        QStringList textos = {QString("%1").arg(i, 10, 10, QChar('0')),
                              g.banco,
                              EmTexto(g.centavos),
                              g.favor,
                              g.local,
                              g.dia ? QString("%1/02/99").arg(g.dia, 2, 10, QChar('0')) : QString("hoje")};
        for (const QString &comentario : g.comentarios)
            textos += comentario;
        for (QString &texto : textos)
            texto = texto.isNull() ? "null" : "'" + texto + "'";
        Executa("insert into Log (\"Index\", Banco, V_CH, Favor, Local, Data, Comentario, Comentario1, "
                "Comentario2) values (" +
                textos.join(",") + ")");
    }

    QTemporaryDir m_pasta;
    sqlite3 *m_db = nullptr;
};

TEST_F(LogGuardadoTest, EachCombinationThatIsAQueryGivesItsRowsAndTheOthersAreRefused)
{
    int recusadas = 0;
    for (unsigned combinacao = 0; combinacao < kCombinacoes; ++combinacao) {
        SCOPED_TRACE(NomeDe(combinacao));
        const QString consulta = ConsultaDoFiltro(CamposDe(combinacao));
        if (TemDoisWhere(combinacao)) {
            ++recusadas;
            EXPECT_EQ(NumeroDaRecusa(consulta), plataforma::ErrQuery) << consulta.toStdString();
            continue;
        }
        ASSERT_EQ(NumeroDaRecusa(consulta), 0) << consulta.toStdString();
        EXPECT_FALSE(LinhasQueAtendem(combinacao).empty()); // the rows show something of each combination
        EXPECT_EQ(Linhas(consulta), LinhasQueAtendem(combinacao)) << consulta.toStdString();
    }
    // Without a bank: payee and city, 16; with a comment 64, but for the 4 where at most last ones stand.
    EXPECT_EQ(recusadas, 76);
}

TEST_F(LogGuardadoTest, TheListsQueryGivesItsRows)
{
    for (unsigned combinacao = 0; combinacao <= (Banco | DataIni | DataFim | ValorIni | ValorFim);
         ++combinacao) {
        const CamposDoFiltro c = CamposDe(combinacao);
        EXPECT_EQ(Linhas(ConsultaDaLista(c.banco, c.dataIni, c.dataFim, c.valorIni, c.valorFim)),
                  LinhasQueAtendem(combinacao))
            << NomeDe(combinacao);
    }
}

TEST_F(LogGuardadoTest, ATextInTheSecondOrThirdCommentComesBackWhateverTheOtherFieldsSay)
{
    CamposDoFiltro campos = CamposDe(Banco | DataIni | ValorIni | Favor | Local | Comentario);
    campos.banco = "888"; // no cheque of it
    const std::vector<std::size_t> linhas = Linhas(ConsultaDoFiltro(campos));
    EXPECT_EQ(linhas.size(), 400U);
    for (const std::size_t i : linhas)
        EXPECT_TRUE(m_guardados[i].aluguel[1] || m_guardados[i].aluguel[2]) << "row " << i;
}

TEST_F(LogGuardadoTest, AFilterThatFindsNothingGivesNoRowAndNoFailure)
{
    EXPECT_TRUE(Linhas(ConsultaDoFiltro(Com({{Banco, "888"}}))).empty());
}

TEST_F(LogGuardadoTest, RangesTurnedRoundFindNothing)
{
    EXPECT_TRUE(Linhas(ConsultaDoFiltro(Com({{DataIni, "20/02/99"}, {DataFim, "10/02/99"}}))).empty());
    EXPECT_TRUE(Linhas(ConsultaDoFiltro(Com({{ValorIni, "1.000,00"}, {ValorFim, "100,00"}}))).empty());
}

TEST_F(LogGuardadoTest, AnApostropheInAFieldIsRefusedByTheQuery)
{
    EXPECT_EQ(NumeroDaRecusa(ConsultaDoFiltro(Com({{Favor, "D'Ávila"}}))), plataforma::ErrQuery);
}

} // namespace
