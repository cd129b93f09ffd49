// GetRows: all rows of a set at one go, for each kind of set, and what it leaves as it was.
#include "Loja.h"

using plataforma::Database;
using plataforma::Dynaset;
using plataforma::Rows;
using namespace loja;

namespace {

QString Mostra(const QString &valor)
{
    return valor.isNull() ? "<NULL>" : valor;
}

/// Each row as its values with "|" between them.
QStringList Linhas(const Rows &linhas, int colunas = 1)
{
    QStringList todas;
    for (qsizetype i = 0; i < linhas.Count(); ++i) {
        QString linha = Mostra(linhas.Text(i, 0));
        for (int j = 1; j < colunas; ++j)
            linha += '|' + Mostra(linhas.Text(i, j));
        todas.append(linha);
    }
    return todas;
}

class GetRowsTest : public Loja {
protected:
    GetRowsTest()
    {
        Executa("insert into Favorecido values ('00003', 'zeca'), ('00001', 'Bruno'), ('00002', 'ana'), "
                "('00005', 'Álvaro'), ('00004', 'BIA')");
    }
    [[nodiscard]] std::unique_ptr<Dynaset> Abre(const QString &consulta) const
    {
        return Database(Caminho()).OpenDynaset(consulta);
    }
    [[nodiscard]] static QStringList Nomes(const Dynaset &d) { return Linhas(d.GetRows({"Nome"})); }
};

struct CasoLinhas {
    std::string nome;
    const char *consulta;
    QStringList nomes;
};
void PrintTo(const CasoLinhas &c, std::ostream *os)
{
    *os << c.consulta;
}

class LinhasDoConjuntoTest : public GetRowsTest, public testing::WithParamInterface<CasoLinhas> {};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Conjuntos, LinhasDoConjuntoTest,
    testing::Values(
        CasoLinhas{"WholeTable", "Favorecido", {"zeca", "Bruno", "ana", "Álvaro", "BIA"}},
        CasoLinhas{
            "WithCondition", "Select * From Favorecido Where Codigo<'00004'", {"zeca", "Bruno", "ana"}},
        CasoLinhas{
            "WithOrder", "Select * From Favorecido Order by Nome", {"Álvaro", "ana", "BIA", "Bruno", "zeca"}},
        CasoLinhas{"FallingOrder",
                   "Select * From Favorecido Order by Codigo Desc",
                   {"Álvaro", "BIA", "zeca", "ana", "Bruno"}},
        CasoLinhas{"ConditionAndOrder",
                   "Select * From Favorecido Where (Left(Nome,1)='B') Order by Nome",
                   {"BIA", "Bruno"}},
        CasoLinhas{"FewFields", "Select Nome From Favorecido Where Nome Like 'a*'", {"ana"}},
        CasoLinhas{
            "OtherName", "Select Codigo As Nome From Favorecido Where Codigo>'00003'", {"00005", "00004"}},
        CasoLinhas{"NoneMeetsTheCondition", "Select * From Favorecido Where Codigo='9'", {}},
        CasoLinhas{
            "NoneMeetsTheConditionInOrder", "Select * From Favorecido Where Codigo='9' Order by Nome", {}},
        CasoLinhas{"EmptyTable", "Cidade", {}}),
    NomeDoCaso);

TEST_P(LinhasDoConjuntoTest, ComeInTheOrderOfTheSet)
{
    EXPECT_EQ(Nomes(*Abre(GetParam().consulta)), GetParam().nomes);
}

TEST_P(LinhasDoConjuntoTest, AreThoseThatTheMovesMeet)
{
    const auto d = Abre(GetParam().consulta);
    EXPECT_EQ(Coluna(*d, "Nome"), GetParam().nomes);
    EXPECT_EQ(Nomes(*d), GetParam().nomes);
    EXPECT_EQ(d->RecordCount(), GetParam().nomes.size());
}

TEST_F(GetRowsTest, TheFieldsStandInTheOrderAskedForAndMayComeTwice)
{
    const auto d = Abre("Select * From Favorecido Where Codigo='00002'");
    EXPECT_EQ(Linhas(d->GetRows({"nome", "CODIGO", "Nome"}), 3), QStringList{"ana|00002|ana"});
    EXPECT_EQ(d->GetRows({}).Count(), 0);
}

TEST_F(GetRowsTest, TheCurrentRowStays)
{
    for (const char *consulta : {"Favorecido", "Select * From Favorecido Order by Nome"}) {
        const auto d = Abre(consulta);
        d->FindFirst("Nome='Bruno'");
        EXPECT_EQ(Nomes(*d).size(), 5);
        EXPECT_EQ(d->Field("Nome"), "Bruno");
        d->MoveLast();
        d->MoveNext();
        EXPECT_EQ(Nomes(*d).size(), 5);
        EXPECT_TRUE(d->AtEnd());
    }
}

TEST_F(GetRowsTest, ASetJustOpenedStillStandsOnItsFirstRow)
{
    const auto d = Abre("Select * From Favorecido Order by Nome");
    EXPECT_EQ(Nomes(*d).size(), 5);
    EXPECT_EQ(d->Field("Nome"), "Álvaro");
    d->MoveNext();
    EXPECT_EQ(d->Field("Nome"), "ana");
}

TEST_F(GetRowsTest, NullIsNoEmptyText)
{
    Executa("insert into Cidade values (NULL, ''), ('', NULL), ('x', x'')");
    const Rows linhas = Abre("Cidade")->GetRows({"Codigo", "Nome"});
    EXPECT_EQ(Linhas(linhas, 2), (QStringList{"<NULL>|", "|<NULL>", "x|"}));
    EXPECT_FALSE(linhas.Text(2, 1).isNull());
}

TEST_F(GetRowsTest, BytesThatAreNotUtf8AreWindows1252)
{
    Executa("insert into Cidade values ('1', cast(x'53C36F' as text)), ('2', 'São'), "
            "('3', cast(x'80' as text)), ('4', 17)");
    EXPECT_EQ(Nomes(*Abre("Cidade")), (QStringList{"SÃo", "São", "€", "17"}));
}

TEST_F(GetRowsTest, ATextKeepsItsZeroBytes)
{
    Executa("insert into Cidade values ('1', cast(x'410042' as text)), ('2', 'b')");
    const Rows linhas = Abre("Cidade")->GetRows({"Nome"});
    EXPECT_EQ(linhas.Text(0, 0), QString::fromUtf16(u"A\0B", 3));
    EXPECT_EQ(linhas.Text(1, 0), "b");
}

TEST_F(GetRowsTest, ATextOfAnyLengthIsWhole)
{
    const QList<int> tamanhos = {0, 1, 252, 253, 254, 255, 256, 4095, 4096, 100000};
    for (const int tamanho : tamanhos)
        Executa("insert into Cidade values ('" + QString(tamanho, 'a') + "', '" + QString(tamanho / 2, 'b') +
                "')");
    const Rows linhas = Abre("Cidade")->GetRows({"Codigo", "Nome"});
    ASSERT_EQ(linhas.Count(), tamanhos.size());
    for (int i = 0; i < tamanhos.size(); ++i) {
        EXPECT_EQ(linhas.Text(i, 0) == QString(tamanhos[i], 'a'), true) << tamanhos[i];
        EXPECT_EQ(linhas.Text(i, 1) == QString(tamanhos[i] / 2, 'b'), true) << tamanhos[i];
    }
}

TEST_F(GetRowsTest, BytesAreAsTheyAreStored)
{
    Executa("insert into Cidade values (NULL, 'São'), ('', cast(x'53C36F' as text))");
    const Rows linhas = Abre("Cidade")->GetRows({"Codigo", "Nome"});
    EXPECT_EQ(linhas.Bytes(0, 0).data(), nullptr);
    EXPECT_NE(linhas.Bytes(1, 0).data(), nullptr);
    EXPECT_EQ(linhas.Bytes(0, 1), "São");
    EXPECT_EQ(linhas.Bytes(1, 1), "S\xC3o");
    EXPECT_EQ(NumeroDoErro([&] { (void)linhas.Bytes(2, 0); }), 9);
    std::string todos;
    linhas.EachOf(0, [&](int coluna, std::string_view bytes) {
        todos += std::to_string(coluna) + (bytes.data() ? ":" : "-") + std::string(bytes) + ' ';
    });
    EXPECT_EQ(todos, "0- 1:São ");
    EXPECT_EQ(NumeroDoErro([&] { linhas.EachOf(2, [](int, std::string_view) {}); }), 9);
}

TEST_F(GetRowsTest, OutsideOfTheRowsThereIsNoText)
{
    const Rows linhas = Abre("Favorecido")->GetRows({"Codigo", "Nome"});
    EXPECT_EQ(NumeroDoErro([&] { (void)linhas.Text(5, 0); }), 9);
    EXPECT_EQ(NumeroDoErro([&] { (void)linhas.Text(-1, 0); }), 9);
    EXPECT_EQ(NumeroDoErro([&] { (void)linhas.Text(0, 2); }), 9);
    EXPECT_EQ(NumeroDoErro([&] { (void)linhas.Text(0, -1); }), 9);
    EXPECT_EQ(NumeroDoErro([&] { (void)Rows().Text(0, 0); }), 9);
    EXPECT_EQ(linhas.Text(4, 1), "BIA");
}

TEST_F(GetRowsTest, AFieldThatTheSetDoesNotHaveIsRefused)
{
    const auto d = Abre("Select Nome From Favorecido");
    EXPECT_EQ(NumeroDoErro([&] { (void)d->GetRows({"Nome", "Valor"}); }), 3265);
    EXPECT_EQ(NumeroDoErro([&] { (void)d->GetRows({"Codigo"}); }), 3265);
    EXPECT_EQ(d->Field("Nome"), "zeca");
}

TEST_F(GetRowsTest, AClosedSetIsRefused)
{
    const auto d = Abre("Favorecido");
    d->Close();
    EXPECT_EQ(NumeroDoErro([&] { (void)d->GetRows({"Nome"}); }), 3420);
}

TEST_F(GetRowsTest, ARowBegunCountsOnceItIsStored)
{
    const auto d = Abre("Favorecido");
    d->AddNew();
    d->SetField("Nome", "novo");
    EXPECT_EQ(Nomes(*d).size(), 5);
    d->Update();
    EXPECT_EQ(Nomes(*d), (QStringList{"zeca", "Bruno", "ana", "Álvaro", "BIA", "novo"}));
    d->Edit();
    d->SetField("Nome", "outro");
    EXPECT_EQ(Nomes(*d)[0], "zeca");
    d->Update();
    EXPECT_EQ(Nomes(*d)[0], "outro");
}

TEST_F(GetRowsTest, RowsWrittenThroughTheSetStayWhereTheyWere)
{
    const auto d = Abre("Select * From Favorecido Where (Left(Nome,1)='B') Order by Nome");
    d->FindFirst("Nome='Bruno'");
    d->Edit();
    d->SetField("Nome", "Abel"); // meets the condition no more, and would stand first
    d->Update();
    d->AddNew();
    d->SetField("Nome", "Xavier");
    d->Update();
    EXPECT_EQ(Nomes(*d), (QStringList{"BIA", "Abel", "Xavier"}));
    EXPECT_EQ(Nomes(*d), Coluna(*d, "Nome"));
}

TEST_F(GetRowsTest, ReadingBeforeTheWriteFixesTheSetToo)
{
    const auto d = Abre("Select * From Favorecido Order by Nome");
    EXPECT_EQ(Nomes(*d)[0], "Álvaro");
    d->MoveLast();
    d->Edit();
    d->SetField("Nome", "aaa");
    d->Update();
    EXPECT_EQ(Nomes(*d), (QStringList{"Álvaro", "ana", "BIA", "Bruno", "aaa"}));
}

TEST_F(GetRowsTest, RowsDeletedThroughTheSetAreGone)
{
    for (const char *consulta : {"Select * From Favorecido Order by Nome",
                                 "Select * From Favorecido Where Codigo<>'9'", "Favorecido"}) {
        const auto d = Abre(consulta);
        const QStringList antes = Nomes(*d);
        d->MoveNext();
        const QString segundo = d->Field("Nome");
        d->Delete();
        EXPECT_EQ(Nomes(*d), antes.mid(0, 1) + antes.mid(2)) << consulta;
        EXPECT_FALSE(Nomes(*d).contains(segundo));
    }
}

TEST_F(GetRowsTest, ANewRowThatTakesTheNumberOfADeletedOneComesOnce)
{
    const auto d = Abre("Select * From Favorecido Order by Codigo");
    d->FindFirst("Nome='BIA'"); // the last one stored
    d->Delete();
    d->AddNew();
    d->SetField("Nome", "nova");
    d->Update();
    EXPECT_EQ(Nomes(*d), (QStringList{"Bruno", "ana", "zeca", "Álvaro", "nova"}));
}

TEST_F(GetRowsTest, RowsThatOthersDeleteFromAListedSetArePassedOver)
{
    const auto d = Abre("Select * From Favorecido Order by Nome");
    d->MoveFirst();
    Executa("delete from Favorecido where Nome='BIA'");
    Executa("update Favorecido set Nome='Zulmira' where Nome='ana'");
    EXPECT_EQ(Nomes(*d), (QStringList{"Álvaro", "Zulmira", "Bruno", "zeca"}));
}

TEST_F(GetRowsTest, TheRowsReadAreACopy)
{
    const auto d = Abre("Select * From Favorecido Order by Nome");
    const Rows linhas = d->GetRows({"Nome"});
    Executa("delete from Favorecido"); // nothing of ours stands in the way of another program
    d->Close();
    EXPECT_EQ(Linhas(linhas), (QStringList{"Álvaro", "ana", "BIA", "Bruno", "zeca"}));
    EXPECT_EQ(Valor("select count(*) from Favorecido"), "0");
}

TEST_F(GetRowsTest, ATableWithoutRowNumbersReadsAlike)
{
    Executa("create table Par (A TEXT, B TEXT, Nome TEXT, primary key (A, B)) without rowid");
    Executa("insert into Par values ('2', 'x', 'c'), ('1', 'y', 'b'), ('1', 'x', 'd')");
    EXPECT_EQ(Nomes(*Abre("Par")), (QStringList{"d", "b", "c"}));
    const auto d = Abre("Select * From Par Order by Nome");
    EXPECT_EQ(Nomes(*d), (QStringList{"b", "c", "d"}));
    d->MoveLast();
    d->Delete();
    EXPECT_EQ(Nomes(*d), (QStringList{"b", "c"}));
}

TEST_F(GetRowsTest, ALockedStoreIsTold)
{
    const auto d = Abre("Select * From Favorecido Order by Nome");
    const OutroPrograma outro(Caminho());
    outro.Executa("begin exclusive");
    EXPECT_EQ(NumeroDoErro([&] { (void)d->GetRows({"Nome"}); }), 3050);
    outro.Executa("rollback");
    EXPECT_EQ(Nomes(*d).size(), 5);
    outro.Executa("begin exclusive");
    EXPECT_EQ(NumeroDoErro([&] { (void)d->GetRows({"Nome"}); }), 3050);
}

TEST_F(GetRowsTest, ReadsInsideOfAGroupOfWrites)
{
    const Database banco(Caminho());
    const auto d = banco.OpenDynaset("Select * From Favorecido Order by Nome");
    banco.BeginTrans();
    d->AddNew();
    d->SetField("Nome", "novo");
    d->Update();
    EXPECT_EQ(Nomes(*d).last(), "novo");
    banco.Rollback();
    EXPECT_EQ(Nomes(*d).size(), 5);
}
