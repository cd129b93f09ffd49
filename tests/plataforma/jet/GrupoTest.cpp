// Writes that are stored together: who sees them when, what undoes them, and dynasets walked meanwhile.
#include "Loja.h"

using plataforma::Database;
using plataforma::Dynaset;
using namespace loja;

namespace {

class GrupoTest : public Loja {
protected:
    void SetUp() override { SemeiaLog(6); }
    /// Codes that another program reads in the file, in their order.
    [[nodiscard]] std::string NoArquivo() const
    {
        return Valor("select group_concat(Codigo + 0, ' ') from (select Codigo from Log order by Codigo)")
            .toStdString();
    }
    void Acrescenta(const Database &banco, const QString &codigo) const
    {
        const auto d = banco.OpenDynaset("Log");
        d->AddNew();
        d->SetField("Codigo", codigo);
        d->SetField("Banco", "001");
        d->Update();
    }
    [[nodiscard]] static std::string Codigos(const Database &banco, const QString &consulta = "Log")
    {
        QStringList codigos;
        for (const QString &codigo : Coluna(*banco.OpenDynaset(consulta), "Codigo"))
            codigos << QString::number(codigo.toInt());
        return codigos.join(' ').toStdString();
    }
};

TEST_F(GrupoTest, ItsWritesAreSeenTogether)
{
    const Database banco(Caminho());
    banco.BeginTrans();
    Acrescenta(banco, "00007");
    const auto d = banco.OpenDynaset("Log");
    d->Delete();
    EXPECT_EQ(Codigos(banco), "2 3 4 5 6 7") << "the group sees its own";
    EXPECT_EQ(NoArquivo(), "1 2 3 4 5 6") << "and nobody else does";
    banco.CommitTrans();
    EXPECT_EQ(NoArquivo(), "2 3 4 5 6 7");
}

TEST_F(GrupoTest, RollbackUndoesAllOfThem)
{
    const QString antes = Conteudo();
    const Database banco(Caminho());
    const auto d = banco.OpenDynaset("Log");
    EXPECT_EQ(d->Field("Favor"), "Favorecido 1");
    banco.BeginTrans();
    d->Edit();
    d->SetField("Favor", "outro");
    d->Update();
    EXPECT_EQ(d->Field("Favor"), "outro");
    Acrescenta(banco, "00007");
    d->MoveNext();
    d->Delete();
    banco.Rollback();
    EXPECT_EQ(Conteudo().toStdString(), antes.toStdString());
    EXPECT_EQ(Codigos(banco), "1 2 3 4 5 6");
    d->MoveFirst();
    EXPECT_EQ(d->Field("Favor"), "Favorecido 1");
}

TEST_F(GrupoTest, RowsInHandAreReadAgainAfterARollback)
{
    const Database banco(Caminho());
    const auto d = banco.OpenDynaset("Log");
    banco.BeginTrans();
    d->MoveNext();
    d->Edit();
    d->SetField("Favor", "outro");
    d->Update();
    d->MoveFirst();
    d->MoveNext();
    EXPECT_EQ(d->Field("Favor"), "outro");
    d->MoveNext();
    banco.Rollback();
    d->MovePrevious();
    EXPECT_EQ(d->Field("Codigo"), "00002");
    EXPECT_EQ(d->Field("Favor"), "Favorecido 2");
}

TEST_F(GrupoTest, RollbackWithoutOneDoesNothing)
{
    const Database banco(Caminho());
    Acrescenta(banco, "00007");
    banco.Rollback();
    EXPECT_EQ(NoArquivo(), "1 2 3 4 5 6 7");
}

TEST_F(GrupoTest, OneThatIsLeftIsUndone)
{
    {
        const Database banco(Caminho());
        banco.BeginTrans();
        Acrescenta(banco, "00007");
    }
    EXPECT_EQ(NoArquivo(), "1 2 3 4 5 6");
    Executa("begin exclusive; delete from Log; commit");
    EXPECT_EQ(Valor("select count(*) from Log"), "0") << "no lock is left either";
}

TEST_F(GrupoTest, AfterOneTheNextBegins)
{
    const Database banco(Caminho());
    for (const char *codigo : {"00007", "00008"}) {
        banco.BeginTrans();
        Acrescenta(banco, codigo);
        banco.CommitTrans();
    }
    EXPECT_EQ(NoArquivo(), "1 2 3 4 5 6 7 8");
    banco.BeginTrans();
    Acrescenta(banco, "00009");
    banco.Rollback();
    Acrescenta(banco, "00010");
    EXPECT_EQ(NoArquivo(), "1 2 3 4 5 6 7 8 10") << "a write outside is stored at once";
}

TEST_F(GrupoTest, OthersReadButDoNotWriteMeanwhile)
{
    const Database banco(Caminho());
    const OutroPrograma outro(Caminho());
    banco.BeginTrans();
    EXPECT_EQ(outro.Valor("select count(*) from Log"), "6");
    EXPECT_THROW(outro.Executa("delete from Log"), std::runtime_error) << "already before the first write";
    Acrescenta(banco, "00007");
    EXPECT_EQ(outro.Valor("select count(*) from Log"), "6");
    EXPECT_THROW(outro.Executa("delete from Log"), std::runtime_error);
    banco.CommitTrans();
    outro.Executa("delete from Log where Codigo = '00001'");
    EXPECT_EQ(NoArquivo(), "2 3 4 5 6 7");
}

TEST_F(GrupoTest, ALockOfAnotherProgramIsToldAtItsBeginning)
{
    const Database banco(Caminho());
    const OutroPrograma outro(Caminho());
    outro.Executa("begin immediate");
    EXPECT_EQ(NumeroDoErro([&] { banco.BeginTrans(); }), 3050);
    outro.Executa("commit");
    banco.BeginTrans();
    Acrescenta(banco, "00007");
    banco.CommitTrans();
    EXPECT_EQ(NoArquivo(), "1 2 3 4 5 6 7");
}

// A reader in the middle of its rows keeps the group from being stored: then nothing of it is.
TEST_F(GrupoTest, OneThatCannotBeStoredIsUndone)
{
    const Database banco(Caminho());
    const OutroPrograma outro(Caminho());
    banco.BeginTrans();
    Acrescenta(banco, "00007");
    outro.Executa("begin");
    EXPECT_EQ(outro.Valor("select count(*) from Log"), "6");
    EXPECT_EQ(NumeroDoErro([&] { banco.CommitTrans(); }), 3050);
    outro.Executa("commit");
    EXPECT_EQ(NoArquivo(), "1 2 3 4 5 6");
    Acrescenta(banco, "00008");
    EXPECT_EQ(NoArquivo(), "1 2 3 4 5 6 8");
}

struct CasoConsulta {
    std::string nome;
    const char *consulta;
};
void PrintTo(const CasoConsulta &caso, std::ostream *os)
{
    *os << caso.consulta;
}
class GrupoPercorrido : public Loja, public testing::WithParamInterface<CasoConsulta> {
protected:
    /// Deletes the rows of even codes, walking the set from its first row to its end.
    static int ApagaPares(Dynaset &d)
    {
        int apagadas = 0;
        for (d.MoveFirst(); !d.AtEnd(); d.MoveNext()) {
            if (d.Field("Codigo").toInt() % 2 == 0) {
                d.Delete();
                ++apagadas;
            }
        }
        return apagadas;
    }
};

TEST_P(GrupoPercorrido, DeletesExactlyTheRowsMeant)
{
    SemeiaLog(3000);
    const Database banco(Caminho());
    const auto d = banco.OpenDynaset(GetParam().consulta);
    banco.BeginTrans();
    EXPECT_EQ(ApagaPares(*d), 1500);
    EXPECT_EQ(d->RecordCount(), 1500);
    EXPECT_EQ(Valor("select count(*) from Log"), "3000");
    banco.CommitTrans();
    EXPECT_EQ(Valor("select count(*) || ' ' || sum(Codigo % 2) from Log"), "1500 1500");
    EXPECT_EQ(Coluna(*d, "Codigo").size(), 1500);
}

TEST_P(GrupoPercorrido, WalksThemAllAgainAfterARollback)
{
    SemeiaLog(3000);
    const Database banco(Caminho());
    const auto d = banco.OpenDynaset(GetParam().consulta);
    banco.BeginTrans();
    EXPECT_EQ(ApagaPares(*d), 1500);
    banco.Rollback();
    EXPECT_EQ(Coluna(*banco.OpenDynaset(GetParam().consulta), "Codigo").size(), 3000);
    EXPECT_EQ(Valor("select count(*) from Log"), "3000");
}

TEST_P(GrupoPercorrido, ChangesStayInTheSet)
{
    SemeiaLog(50);
    const Database banco(Caminho());
    const auto d = banco.OpenDynaset(GetParam().consulta);
    banco.BeginTrans();
    int linhas = 0;
    for (d->MoveFirst(); !d->AtEnd(); d->MoveNext(), ++linhas) {
        d->Edit();
        d->SetField("Local", "Olinda");
        d->Update();
        EXPECT_EQ(d->Field("Local"), "Olinda");
    }
    banco.CommitTrans();
    EXPECT_EQ(linhas, 50);
    EXPECT_EQ(Valor("select count(*) from Log where Local = 'Olinda'"), "50");
}

INSTANTIATE_TEST_SUITE_P(
    Consultas, GrupoPercorrido,
    testing::Values(CasoConsulta{"WholeTable", "Log"},
                    CasoConsulta{"OneField", "Select Codigo, Local From Log"},
                    CasoConsulta{"Conditional", "Select * From Log Where Banco='001'"},
                    CasoConsulta{"ConditionalOnTheFieldChanged", "Select * From Log Where Local='Recife'"},
                    CasoConsulta{"Ordered", "Select * From Log Order by Favor"},
                    CasoConsulta{"OrderedDownwards", "Select * From Log Order by Codigo Desc"}),
    NomeDoCaso);

} // namespace
