// Laziness: what a dynaset does costs the same on few rows and on many, counted in steps of the engine.
#include "Loja.h"

using plataforma::Database;
using plataforma::Dynaset;
using namespace loja;

namespace {

long g_passos = 0;

int ContaPasso(void *)
{
    ++g_passos;
    return 0;
}

// Every connection opened in the test counts its steps.
int ContaNaConexao(sqlite3 *db, char **, const sqlite3_api_routines *)
{
    sqlite3_progress_handler(db, 1, ContaPasso, nullptr);
    return SQLITE_OK;
}

using Acao = void (*)(const Database &);

struct CasoPreguica {
    std::string nome;
    Acao acao;
};
void PrintTo(const CasoPreguica &c, std::ostream *os)
{
    *os << c.nome;
}

class PreguicaTest : public Loja, public testing::WithParamInterface<CasoPreguica> {
protected:
    PreguicaTest() { sqlite3_auto_extension(reinterpret_cast<void (*)()>(ContaNaConexao)); }
    ~PreguicaTest() override { sqlite3_reset_auto_extension(); }

    [[nodiscard]] long Passos(int linhas) const
    {
        Executa("delete from Log");
        SemeiaLog(linhas);
        Executa("create index if not exists PorIndice on Log (\"Index\"); create index if not exists "
                "PorCodigo on Log (Codigo)");
        const Database banco(Caminho());
        g_passos = 0;
        GetParam().acao(banco);
        return g_passos;
    }
};

void AcrescentaLinha(Dynaset &d)
{
    d.AddNew();
    d.SetField("Codigo", "99999");
    d.Update();
}

} // namespace

TEST_P(PreguicaTest, CostsTheSameOnTwentyThousandRows)
{
    const long poucas = Passos(10);
    const long muitas = Passos(20000);
    EXPECT_GT(poucas, 10);
    EXPECT_LT(muitas, 2 * poucas + 100);
}

INSTANTIATE_TEST_SUITE_P(
    Acoes, PreguicaTest,
    testing::Values(
        CasoPreguica{"OpenAndFirstRow",
                     [](const Database &b) { (void)b.OpenDynaset("Log")->Field("Codigo"); }},
        CasoPreguica{"HasRows",
                     [](const Database &b) { (void)b.OpenDynaset("Select * From Log")->HasRows(); }},
        CasoPreguica{"LastRow", [](const Database &b) { b.OpenDynaset("Log")->MoveLast(); }},
        CasoPreguica{"NextRow", [](const Database &b) { b.OpenDynaset("Log")->MoveNext(); }},
        CasoPreguica{"RowBeforeTheLast",
                     [](const Database &b) {
                         const auto d = b.OpenDynaset("Log");
                         d->MoveLast();
                         d->MovePrevious();
                     }},
        CasoPreguica{"NewRow", [](const Database &b) { AcrescentaLinha(*b.OpenDynaset("Log")); }},
        CasoPreguica{"NewRowBehindTheLast",
                     [](const Database &b) {
                         const auto d = b.OpenDynaset("Log");
                         d->MoveLast();
                         AcrescentaLinha(*d);
                         d->MoveLast();
                     }},
        CasoPreguica{"ChangeOfTheFirstRow",
                     [](const Database &b) {
                         const auto d = b.OpenDynaset("Log");
                         d->Edit();
                         d->SetField("StCancel", "C");
                         d->Update();
                     }},
        CasoPreguica{"DeleteOfTheLastRow",
                     [](const Database &b) {
                         const auto d = b.OpenDynaset("Log");
                         d->MoveLast();
                         d->Delete();
                     }},
        CasoPreguica{"LookupWithoutRowThroughTheIndexOfTheFile",
                     [](const Database &b) {
                         (void)b.OpenDynaset("Select * From Log Where (Index='9999999999')")->HasRows();
                     }},
        CasoPreguica{"FindFirstWithoutRowThroughTheIndexOfTheFile",
                     [](const Database &b) { b.OpenDynaset("Log")->FindFirst("Index='9999999999'"); }},
        CasoPreguica{"ChangeAfterALookup",
                     [](const Database &b) {
                         const auto d = b.OpenDynaset("Select * From Log Where (Codigo='00007')");
                         d->Edit();
                         d->SetField("StCancel", "C");
                         d->Update();
                     }},
        CasoPreguica{"OpenWithAnOrder",
                     [](const Database &b) { (void)b.OpenDynaset("Select * From Log Order by Favor"); }}),
    NomeDoCaso);
