// Writing of rows: what is stored, when it is refused, and that nobody is kept waiting by a dynaset.
#include "Loja.h"

#include <atomic>
#include <QFile>
#include <sqlite3.h>
#include <sys/resource.h>
#include <thread>

using plataforma::Database;
using plataforma::Dynaset;
using namespace loja;

namespace {

class EscritaTest : public Loja {
protected:
    [[nodiscard]] std::unique_ptr<Dynaset> Abre(const QString &consulta) const
    {
        return Database(Caminho()).OpenDynaset(consulta);
    }
};

} // namespace

TEST_F(EscritaTest, ANewRowHasTheFieldsSetAndNullInTheOthers)
{
    const auto d = Abre("Log");
    d->AddNew();
    EXPECT_TRUE(d->Field("Favor").isNull());
    d->SetField("INDEX", "0000000001");
    d->SetField("favor", "José d'Água; -- \"x\"");
    d->SetField("Local", "");
    d->SetField("Data", QString());
    EXPECT_EQ(d->Field("Index"), "0000000001");
    EXPECT_EQ(Valor("select count(*) from Log"), "0");
    d->Update();
    EXPECT_EQ(Valor("select \"Index\" || Favor || quote(Local) || quote(Data) || quote(Comentario) from Log"),
              QString("0000000001José d'Água; -- \"x\"''NULLNULL"));
}

TEST_F(EscritaTest, ANewRowWithoutFieldsIsARow)
{
    const auto d = Abre("Log");
    d->AddNew();
    d->Update();
    EXPECT_EQ(Valor("select count(*) from Log"), "1");
}

TEST_F(EscritaTest, AChangeTouchesOnlyTheFieldsSet)
{
    SemeiaLog(3);
    const auto d = Abre("Log");
    d->FindFirst("Codigo='00002'");
    d->Edit();
    d->SetField("StCancel", "C");
    EXPECT_EQ(d->Field("StCancel"), "C");
    EXPECT_EQ(d->Field("Local"), "Recife");
    Executa("update Log set Local = 'Natal'"); // by another program, between Edit and Update
    d->Update();
    EXPECT_EQ(d->Field("StCancel"), "C");
    EXPECT_EQ(d->Field("Local"), "Natal");
    EXPECT_EQ(Valor("select group_concat(Codigo || StCancel || Local) from Log"),
              "00001 Natal,00002CNatal,00003 Natal");
}

TEST_F(EscritaTest, EditTakesTheRowAsItIsNow)
{
    SemeiaLog(1);
    const auto d = Abre("Log");
    EXPECT_EQ(d->Field("Favor"), "Favorecido 1");
    Executa("update Log set Favor = 'novo'");
    d->Edit();
    EXPECT_EQ(d->Field("Favor"), "novo");
}

TEST_F(EscritaTest, AMoveForgetsWhatWasNotUpdated)
{
    SemeiaLog(2);
    const auto d = Abre("Log");
    d->Edit();
    d->SetField("Favor", "esquecido");
    d->MoveNext();
    EXPECT_EQ(NumeroDoErro([&] { d->Update(); }), 3020);
    d->AddNew();
    d->SetField("Favor", "esquecido");
    d->MoveFirst();
    EXPECT_EQ(NumeroDoErro([&] { d->Update(); }), 3020);
    EXPECT_EQ(Coluna(*d, "Favor").join(','), "Favorecido 1,Favorecido 2");
}

TEST_F(EscritaTest, OutsideOfAddNewAndEditNothingIsSet)
{
    SemeiaLog(1);
    const auto d = Abre("Log");
    EXPECT_EQ(NumeroDoErro([&] { d->SetField("Favor", "x"); }), 3020);
    EXPECT_EQ(NumeroDoErro([&] { d->Update(); }), 3020);
    d->Edit();
    EXPECT_EQ(NumeroDoErro([&] { d->SetField("Agencia", "x"); }), 3265);
    d->Update();
    EXPECT_EQ(NumeroDoErro([&] { d->Update(); }), 3020);
}

TEST_F(EscritaTest, ARowGoneBetweenEditAndUpdateIsToldAndNotMadeAnew)
{
    SemeiaLog(2);
    const auto d = Abre("Log");
    d->Edit();
    d->SetField("Favor", "x");
    Executa("delete from Log where Codigo = '00001'");
    EXPECT_EQ(NumeroDoErro([&] { d->Update(); }), 3021);
    EXPECT_EQ(Valor("select group_concat(Favor) from Log"), "Favorecido 2");
    d->MoveNext();
    EXPECT_EQ(d->Field("Codigo"), "00002");
}

TEST_F(EscritaTest, AFieldOfTheQueryIsWrittenUnderItsOtherName)
{
    SemeiaLog(1);
    const auto d = Abre("Select Favor As Quem From Log");
    d->Edit();
    d->SetField("Quem", "eu");
    d->Update();
    EXPECT_EQ(d->Field("quem") + Valor("select Favor from Log"), "eueu");
}

TEST_F(EscritaTest, ARepeatedKeyIsRefusedAndTheNewRowCanBeCorrected)
{
    Executa("create unique index unico on Bancos (Codigo); insert into Bancos (Codigo) values ('001')");
    const auto d = Abre("Bancos");
    d->AddNew();
    d->SetField("Codigo", "001");
    EXPECT_EQ(NumeroDoErro([&] { d->Update(); }), 3022);
    d->SetField("Codigo", "002");
    d->Update();
    EXPECT_EQ(Coluna(*d, "Codigo").join(','), "001,002");
}

TEST_F(EscritaTest, AValueOfTheWrongKindIsRefused)
{
    Executa("create table Num (id INTEGER PRIMARY KEY, Nome TEXT)");
    const auto d = Abre("Num");
    d->AddNew();
    d->SetField("id", "abc");
    EXPECT_EQ(NumeroDoErro([&] { d->Update(); }), 13);
    EXPECT_EQ(Valor("select count(*) from Num"), "0");
}

TEST_F(EscritaTest, AChangedKeyIsFollowed)
{
    Executa("create table Chaves (Codigo TEXT PRIMARY KEY, Nome TEXT) without rowid;"
            "insert into Chaves values ('1', 'um'), ('2', 'dois'), ('3', 'tres')");
    for (const char *consulta : {"Chaves", "Select * From Chaves Order by Nome desc"}) {
        const auto d = Abre(consulta);
        d->FindFirst("Nome='um'");
        d->Edit();
        d->SetField("Codigo", "25");
        d->Update();
        d->Edit();
        d->SetField("Codigo", d->Field("Codigo") + "0");
        d->Update();
        EXPECT_EQ(Valor("select group_concat(Codigo) from Chaves"), "2,250,3");
        d->Edit();
        d->SetField("Codigo", "1");
        d->Update();
    }
}

TEST_F(EscritaTest, ALockIsToldNothingIsWrittenAndUpdateCanBeTriedAgain)
{
    SemeiaLog(1);
    const auto d = Abre("Log");
    EXPECT_EQ(d->Field("Codigo"), "00001");
    d->AddNew();
    d->SetField("Codigo", "00002");
    const OutroPrograma outro(Caminho());
    outro.Executa("begin immediate");
    EXPECT_EQ(NumeroDoErro([&] { d->Update(); }), 3050);
    outro.Executa("commit");
    EXPECT_EQ(outro.Valor("select count(*) from Log"), "1");
    d->Update();
    EXPECT_EQ(outro.Valor("select count(*) from Log"), "2");
}

// A check of the file or a report reads for a moment: the row is not given up for it.
TEST_F(EscritaTest, AReaderThatEndsInTimeIsWaitedFor)
{
    SemeiaLog(1);
    const auto d = Abre("Log");
    d->AddNew();
    d->SetField("Codigo", "00002");
    const OutroPrograma leitor(Caminho());
    leitor.Executa("begin");
    EXPECT_EQ(leitor.Valor("select count(*) from Log"), "1");
    std::atomic<bool> acabou = false;
    std::thread terceiro([&] {
        const OutroPrograma sonda(Caminho());
        sqlite3_busy_timeout(sonda.Motor(), 0);
        // Once nobody else may begin to write, ours has begun and waits for the reader alone.
        while (!acabou &&
               sqlite3_exec(sonda.Motor(), "begin immediate", nullptr, nullptr, nullptr) == SQLITE_OK)
            sonda.Executa("rollback");
        leitor.Executa("rollback");
    });
    EXPECT_EQ(NumeroDoErro([&] { d->Update(); }), 0);
    acabou = true;
    terceiro.join();
    EXPECT_EQ(Valor("select count(*) from Log"), "2");
}

// A reader keeps the writer from ending its transaction: the row must not stay half written.
TEST_F(EscritaTest, AReaderInTheMiddleOfItsRowsKeepsTheWriteOut)
{
    SemeiaLog(2);
    const auto d = Abre("Log");
    const OutroPrograma outro(Caminho());
    outro.Executa("begin");
    EXPECT_EQ(outro.Valor("select count(*) from Log"), "2");
    EXPECT_EQ(NumeroDoErro([&] { d->Delete(); }), 3050);
    d->Edit();
    d->SetField("Favor", "mudou");
    EXPECT_EQ(NumeroDoErro([&] { d->Update(); }), 3050);
    d->AddNew();
    EXPECT_EQ(NumeroDoErro([&] { d->Update(); }), 3050);
    outro.Executa("commit");
    EXPECT_EQ(outro.Valor("select group_concat(Favor) from Log"), "Favorecido 1,Favorecido 2");
    d->MoveFirst();
    d->Delete();
    EXPECT_EQ(outro.Valor("select group_concat(Favor) from Log"), "Favorecido 2");
}

TEST_F(EscritaTest, ADynasetInUseLocksNobodyOut)
{
    SemeiaLog(600);
    for (const char *consulta :
         {"Log", "Select * From Log Where Banco='001'", "Select * From Log Order by Favor"}) {
        const auto d = Abre(consulta);
        for (int i = 0; i < 20; ++i)
            d->MoveNext();
        d->FindFirst("Codigo='00400'");
        d->MovePrevious();
        (void)d->RecordCount();
        Executa("begin exclusive; update Log set Local = 'Olinda'; commit"); // fails at once on any lock
        d->Edit();
        d->SetField("Favor", "f");
        Executa("begin exclusive; update Log set Local = 'Recife'; commit");
        d->Update();
        Executa("begin exclusive; update Log set Local = 'Olinda'; commit");
    }
    EXPECT_EQ(Valor("select group_concat(distinct Local) from Log"), "Olinda");
}

TEST_F(EscritaTest, AFullDiskIsToldAndTheFileStaysWhole)
{
    SemeiaLog(50);
    const auto d = Abre("Log");
    rlimit antes{};
    getrlimit(RLIMIT_FSIZE, &antes);
    rlimit pouco = antes;
    pouco.rlim_cur = static_cast<rlim_t>(QFile(Caminho()).size()); // the file may not grow
    const auto sinal = signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &pouco);
    d->AddNew();
    d->SetField("Favor", QString(200000, 'x'));
    const int numero = NumeroDoErro([&] { d->Update(); });
    setrlimit(RLIMIT_FSIZE, &antes);
    (void)signal(SIGXFSZ, sinal);
    EXPECT_EQ(numero, 3051);
    EXPECT_EQ(Valor("pragma integrity_check"), "ok");
    EXPECT_EQ(Valor("select count(*) from Log"), "50");
    d->Update();
    EXPECT_EQ(Valor("select count(*) from Log"), "51");
}

TEST_F(EscritaTest, AVeryLongTextComesBackWhole)
{
    const QString longo = QString("ção ").repeated(200000);
    const auto d = Abre("Cidade");
    d->AddNew();
    d->SetField("Nome", longo);
    d->Update();
    d->MoveLast();
    EXPECT_TRUE(d->Field("Nome") == longo);
}

TEST_F(EscritaTest, ManyLargeRowsAreReadInPiecesAndNoneIsLost)
{
    Executa("with recursive n(i) as (select 1 union all select i + 1 from n where i < 40) "
            "insert into Cidade select i, replace(hex(zeroblob(100000)), '0', 'x') || i from n");
    EXPECT_EQ(Coluna(*Abre("Cidade"), "Codigo").size(), 40);
    EXPECT_EQ(Coluna(*Abre("Select * From Cidade Order by Nome"), "Codigo").size(), 40);
    const auto d = Abre("Cidade");
    int linhas = 0;
    for (d->MoveLast(); !d->BOF(); d->MovePrevious())
        EXPECT_EQ(d->Field("Codigo").toInt(), 40 - linhas++);
    EXPECT_EQ(linhas, 40);
}

TEST_F(EscritaTest, TheFileStaysReadableByAnyEngineTool)
{
    const auto d = Abre("Log");
    d->AddNew();
    d->SetField("Index", "0000000001");
    d->Update();
    EXPECT_EQ(Valor("pragma integrity_check"), "ok");
    EXPECT_EQ(Valor("select count(*) from sqlite_master where sql like '%PORTUGUES%'"), "0");
    EXPECT_EQ(Valor("select typeof(\"Index\") from Log order by \"Index\""), "text");
    EXPECT_FALSE(QFile::exists(Caminho() + "-journal"));
}
