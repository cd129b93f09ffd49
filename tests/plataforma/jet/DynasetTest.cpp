// Dynaset: moves, search, and what the current row is.
#include "Loja.h"

using plataforma::Database;
using plataforma::Dynaset;
using namespace loja;

namespace {

constexpr int LINHAS = 700; // more than are read ahead at one time

struct CasoConjunto {
    std::string nome;
    const char *consulta;
};
void PrintTo(const CasoConjunto &c, std::ostream *os)
{
    *os << c.consulta;
}

// The same claims hold for a whole table, for a query with a condition, and for one with an order.
class MovimentoTest : public Loja, public testing::WithParamInterface<CasoConjunto> {
protected:
    MovimentoTest() { SemeiaLog(LINHAS); }
    [[nodiscard]] std::unique_ptr<Dynaset> Abre() const
    {
        return Database(Caminho()).OpenDynaset(GetParam().consulta);
    }
    [[nodiscard]] static int Numero(const Dynaset &d) { return d.Field("Index").toInt(); }
};

class DynasetTest : public Loja {};

} // namespace

INSTANTIATE_TEST_SUITE_P(Conjuntos, MovimentoTest,
                         testing::Values(CasoConjunto{"WholeTable", "Log"},
                                         CasoConjunto{"WithCondition",
                                                      "Select * From Log Where (Banco='001')"},
                                         CasoConjunto{"WithOrder", "Select * From Log Order by Index"}),
                         NomeDoCaso);

TEST_P(MovimentoTest, OpeningStandsOnTheFirstRow)
{
    const auto d = Abre();
    EXPECT_EQ(Numero(*d), 1);
    EXPECT_TRUE(d->HasRows());
    EXPECT_FALSE(d->BOF());
    EXPECT_FALSE(d->AtEnd());
    EXPECT_FALSE(d->NoMatch());
}

TEST_P(MovimentoTest, WalksForwardsOverEveryRowOnce)
{
    const auto d = Abre();
    int esperado = 0;
    for (d->MoveFirst(); !d->AtEnd(); d->MoveNext())
        ASSERT_EQ(Numero(*d), ++esperado);
    EXPECT_EQ(esperado, LINHAS);
    EXPECT_EQ(d->RecordCount(), LINHAS);
}

TEST_P(MovimentoTest, WalksBackwardsOverEveryRowOnce)
{
    const auto d = Abre();
    int esperado = LINHAS;
    for (d->MoveLast(); !d->BOF(); d->MovePrevious())
        ASSERT_EQ(Numero(*d), esperado--);
    EXPECT_EQ(esperado, 0);
}

TEST_P(MovimentoTest, TurnsRoundAnywhere)
{
    const auto d = Abre();
    for (int i = 1; i < 300; ++i)
        d->MoveNext();
    EXPECT_EQ(Numero(*d), 300);
    for (int i = 0; i < 290; ++i)
        d->MovePrevious();
    EXPECT_EQ(Numero(*d), 10);
    d->MoveNext();
    EXPECT_EQ(Numero(*d), 11);
}

TEST_P(MovimentoTest, BehindTheLastRowThereIsNone)
{
    const auto d = Abre();
    d->MoveLast();
    EXPECT_EQ(Numero(*d), LINHAS);
    d->MoveNext();
    EXPECT_TRUE(d->AtEnd());
    EXPECT_FALSE(d->BOF());
    EXPECT_EQ(NumeroDoErro([&] { d->MoveNext(); }), 3021);
    EXPECT_EQ(NumeroDoErro([&] { (void)d->Field("Index"); }), 3021);
    EXPECT_EQ(NumeroDoErro([&] { d->Edit(); }), 3021);
    EXPECT_EQ(NumeroDoErro([&] { d->Delete(); }), 3021);
    d->MovePrevious();
    EXPECT_EQ(Numero(*d), LINHAS);
}

TEST_P(MovimentoTest, BeforeTheFirstRowThereIsNone)
{
    const auto d = Abre();
    d->MovePrevious();
    EXPECT_TRUE(d->BOF());
    EXPECT_FALSE(d->AtEnd());
    EXPECT_EQ(NumeroDoErro([&] { d->MovePrevious(); }), 3021);
    EXPECT_EQ(NumeroDoErro([&] { (void)d->Field("Index"); }), 3021);
    d->MoveNext();
    EXPECT_EQ(Numero(*d), 1);
}

TEST_P(MovimentoTest, FindFirstGoesToTheRowAndOnFromThere)
{
    const auto d = Abre();
    d->FindFirst("Index='0000000300'");
    EXPECT_FALSE(d->NoMatch());
    EXPECT_EQ(Numero(*d), 300);
    d->MoveNext();
    EXPECT_EQ(Numero(*d), 301);
    d->MovePrevious();
    d->MovePrevious();
    EXPECT_EQ(Numero(*d), 299);
}

TEST_P(MovimentoTest, FindFirstTakesTheFirstOfSeveralFromTheStart)
{
    const auto d = Abre();
    d->MoveLast();
    d->FindFirst("Right(Index,1)='7'");
    EXPECT_EQ(Numero(*d), 7);
}

TEST_P(MovimentoTest, AMissLeavesTheCurrentRow)
{
    const auto d = Abre();
    d->FindFirst("Codigo ='00005'");
    d->FindFirst("Codigo ='x'");
    EXPECT_TRUE(d->NoMatch());
    EXPECT_EQ(Numero(*d), 5);
    d->FindFirst("Codigo ='00006'");
    EXPECT_FALSE(d->NoMatch());
}

TEST_P(MovimentoTest, AMissBehindTheLastRowLeavesNoRow)
{
    const auto d = Abre();
    d->MoveLast();
    d->MoveNext();
    d->FindFirst("Codigo =''");
    EXPECT_TRUE(d->NoMatch());
    EXPECT_TRUE(d->AtEnd());
    EXPECT_EQ(NumeroDoErro([&] { d->Delete(); }), 3021);
    EXPECT_EQ(Valor("select count(*) from Log"), QString::number(LINHAS));
}

TEST_P(MovimentoTest, DeletingWhileWalkingMeetsEveryRow)
{
    const auto d = Abre();
    int vistas = 0;
    for (d->MoveFirst(); !d->AtEnd(); d->MoveNext()) {
        ++vistas;
        if (Numero(*d) % 20 == 0)
            d->Delete();
    }
    EXPECT_EQ(vistas, LINHAS);
    EXPECT_EQ(d->RecordCount(), LINHAS - LINHAS / 20);
    EXPECT_EQ(Coluna(*d, "Index").size(), LINHAS - LINHAS / 20);
    EXPECT_EQ(Valor("select count(*) from Log where Codigo like '%20'"), "0");
}

TEST_P(MovimentoTest, RowsThatAnotherProgramDeletesArePassedOver)
{
    const auto d = Abre();
    EXPECT_EQ(Numero(*d), 1);
    Executa("delete from Log where Codigo between '00002' and '00600'");
    d->MoveNext();
    EXPECT_EQ(Numero(*d), 601);
    d->MovePrevious();
    EXPECT_EQ(Numero(*d), 1);
    d->FindFirst("Codigo='00002'");
    EXPECT_TRUE(d->NoMatch());
}

TEST_P(MovimentoTest, TheLastRowMayBeDeletedByAnotherProgram)
{
    const auto d = Abre();
    d->MoveLast();
    Executa("delete from Log where Codigo > '00650'");
    EXPECT_EQ(NumeroDoErro([&] { d->Edit(); }), 3021);
    EXPECT_EQ(NumeroDoErro([&] { (void)d->Field("Index"); }), 3021);
    EXPECT_EQ(NumeroDoErro([&] { d->Delete(); }), 3021);
    d->MoveNext();
    EXPECT_TRUE(d->AtEnd());
    d->MoveLast();
    EXPECT_EQ(Numero(*d), 650);
}

TEST_P(MovimentoTest, ARowIsCurrentOnlyUntilItIsDeleted)
{
    const auto d = Abre();
    d->FindFirst("Codigo='00003'");
    d->Delete();
    EXPECT_EQ(NumeroDoErro([&] { (void)d->Field("Index"); }), 3021);
    EXPECT_EQ(NumeroDoErro([&] { d->Delete(); }), 3021);
    EXPECT_FALSE(d->AtEnd());
    d->MovePrevious();
    EXPECT_EQ(Numero(*d), 2);
    d->MoveNext();
    EXPECT_EQ(Numero(*d), 4);
}

TEST_P(MovimentoTest, ANewRowStandsAtTheEndAndTheCurrentOneStays)
{
    const auto d = Abre();
    d->FindFirst("Codigo='00300'");
    d->AddNew();
    d->SetField("Index", "0000000000"); // neither meets the condition nor is the highest of the order
    d->Update();
    EXPECT_EQ(Numero(*d), 300);
    EXPECT_EQ(d->RecordCount(), LINHAS + 1);
    d->MoveNext();
    EXPECT_EQ(Numero(*d), 301);
    d->MoveLast();
    EXPECT_EQ(Numero(*d), 0);
    d->MovePrevious();
    EXPECT_EQ(Numero(*d), LINHAS);
}

TEST_P(MovimentoTest, AChangedRowKeepsItsPlaceThoughItNoLongerMatches)
{
    const auto d = Abre();
    d->FindFirst("Codigo='00300'");
    d->Edit();
    d->SetField("Banco", "999");
    d->SetField("Index", "0000099999");
    d->Update();
    EXPECT_EQ(Numero(*d), 99999);
    d->MoveNext();
    EXPECT_EQ(Numero(*d), 301);
    d->MovePrevious();
    EXPECT_EQ(Numero(*d), 99999);
    d->MovePrevious();
    EXPECT_EQ(Numero(*d), 299);
    EXPECT_EQ(d->RecordCount(), LINHAS);
    const QStringList todos = Coluna(*d, "Index");
    EXPECT_EQ(todos.size(), LINHAS);
    EXPECT_EQ(todos.indexOf("0000099999"), 299);
    d->FindFirst("Banco='999'");
    EXPECT_FALSE(d->NoMatch());
}

TEST_P(MovimentoTest, ARowNumberUsedAgainIsOneRowOfTheSet)
{
    const auto d = Abre();
    d->MoveLast();
    d->Delete();
    d->AddNew(); // gets the row number of the one deleted
    d->SetField("Index", "0000012345");
    d->Update();
    const QStringList todos = Coluna(*d, "Index");
    EXPECT_EQ(todos.size(), LINHAS);
    EXPECT_EQ(todos.constLast(), "0000012345");
    EXPECT_EQ(d->RecordCount(), LINHAS);
}

TEST_P(MovimentoTest, TheLastRowsMayAllBeDeleted)
{
    const auto d = Abre();
    for (d->MoveLast(); !d->BOF(); d->MovePrevious()) {
        if (Numero(*d) > 3)
            continue;
        d->Delete();
    }
    Executa("delete from Log");
    EXPECT_TRUE(d->HasRows()); // it had when it was opened
    d->MoveFirst();
    EXPECT_TRUE(d->BOF());
    EXPECT_TRUE(d->AtEnd());
}

TEST_P(MovimentoTest, AnotherDynasetOfTheConnectionShowsItsChanges)
{
    const Database banco(Caminho());
    const auto um = banco.OpenDynaset(GetParam().consulta);
    const auto outro = banco.OpenDynaset("Log");
    EXPECT_EQ(um->Field("Favor"), "Favorecido 1");
    outro->Edit();
    outro->SetField("Favor", "mudou");
    outro->Update();
    EXPECT_EQ(um->Field("Favor"), "mudou");
    outro->Delete();
    EXPECT_EQ(NumeroDoErro([&] { (void)um->Field("Favor"); }), 3021);
    um->MoveNext();
    EXPECT_EQ(Numero(*um), 2);
}

TEST_F(DynasetTest, AnEmptySetIsBeforeAndBehindAtOnce)
{
    for (const char *consulta :
         {"Log", "Select * From Log Where Banco='1'", "Select * From Log Order by Index"}) {
        const auto d = Database(Caminho()).OpenDynaset(consulta);
        EXPECT_TRUE(d->BOF());
        EXPECT_TRUE(d->AtEnd());
        EXPECT_FALSE(d->HasRows());
        EXPECT_EQ(d->RecordCount(), 0);
        d->MoveFirst();
        d->MoveLast();
        d->FindFirst("Codigo=''");
        EXPECT_TRUE(d->NoMatch());
        EXPECT_EQ(NumeroDoErro([&] { d->MoveNext(); }), 3021);
        EXPECT_EQ(NumeroDoErro([&] { d->MovePrevious(); }), 3021);
        EXPECT_EQ(NumeroDoErro([&] { (void)d->Field("Index"); }), 3021);
        EXPECT_EQ(NumeroDoErro([&] { d->Edit(); }), 3021);
        EXPECT_EQ(NumeroDoErro([&] { d->Delete(); }), 3021);
    }
}

TEST_F(DynasetTest, TheFirstRowAddedToAnEmptySetBecomesTheCurrentOne)
{
    for (const char *consulta :
         {"Log", "Select * From Log Where Banco='1'", "Select * From Log Order by Index"}) {
        Executa("delete from Log");
        const auto d = Database(Caminho()).OpenDynaset(consulta);
        EXPECT_FALSE(d->HasRows());
        d->AddNew();
        d->SetField("Codigo", "00001");
        d->Update();
        EXPECT_TRUE(d->HasRows());
        EXPECT_FALSE(d->AtEnd());
        EXPECT_EQ(d->Field("Codigo"), "00001");
    }
}

TEST_F(DynasetTest, FieldNamesStandAsInTheFile)
{
    EXPECT_EQ(Database(Caminho()).OpenDynaset("favorecido")->FieldNames(), QStringList({"Codigo", "Nome"}));
    EXPECT_EQ(Database(Caminho()).OpenDynaset("Select nome, codigo From Favorecido")->FieldNames(),
              QStringList({"Nome", "Codigo"}));
}

TEST_F(DynasetTest, FieldsAreFoundWithoutRegardToCase)
{
    SemeiaLog(1);
    const auto d = Database(Caminho()).OpenDynaset("Log");
    EXPECT_EQ(d->Field("STCANCEL"), " ");
    EXPECT_EQ(d->Field("dAtA"), "01/02/99");
    EXPECT_EQ(NumeroDoErro([&] { (void)d->Field("Agencia"); }), 3265);
    EXPECT_EQ(NumeroDoErro([&] { (void)d->Field(""); }), 3265);
}

TEST_F(DynasetTest, ACriterionIsReadLikeACondition)
{
    Executa("insert into Script (Codigo, Nome) values ('001', 'Padrão'), ('002', 'Cópia D''Oro')");
    const auto d = Database(Caminho()).OpenDynaset("Script");
    d->FindFirst("Nome ='PADRÃO'");
    EXPECT_EQ(d->Field("Codigo"), "001");
    d->FindFirst("Nome =\"cópia d'oro\"");
    EXPECT_EQ(d->Field("Codigo"), "002");
    for (const char *criterio :
         {"", "Codigo", "Codigo ='D'Oro'", "Codigo='1'; drop table Script", "Agencia='1'",
          "Codigo='1' order by Nome", "1=1) or (1=1", "Codigo=(select 1)"}) {
        EXPECT_EQ(NumeroDoErro([&] { d->FindFirst(criterio); }), 3075) << criterio;
        EXPECT_EQ(d->Field("Codigo"), "002");
    }
}

TEST_F(DynasetTest, AfterCloseEveryCallIsRefused)
{
    SemeiaLog(1);
    const auto d = Database(Caminho()).OpenDynaset("Log");
    d->Close();
    EXPECT_EQ(NumeroDoErro([&] { (void)d->AtEnd(); }), 3420);
    EXPECT_EQ(NumeroDoErro([&] { (void)d->Field("Index"); }), 3420);
    EXPECT_EQ(NumeroDoErro([&] { d->MoveFirst(); }), 3420);
    EXPECT_EQ(NumeroDoErro([&] { d->AddNew(); }), 3420);
    EXPECT_EQ(NumeroDoErro([&] { d->Close(); }), 3420);
}
