// Opening the store: files that are missing, locked, damaged or read-only, and files that other programs
// made.
#include "Loja.h"

#include "plataforma/jet/Comando.h"
#include <QFile>
#include <sys/stat.h>
#include <unistd.h>

using plataforma::Database;
using namespace loja;

namespace {

class DatabaseTest : public Loja {
protected:
    [[nodiscard]] int NumeroAoAbrir(const QString &caminho) const
    {
        return NumeroDoErro([&] { (void)Coluna(caminho, "Log", "Codigo"); });
    }
    void Escreve(const QByteArray &bytes) const
    {
        QFile arquivo(Caminho());
        ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
        ASSERT_EQ(arquivo.write(bytes), bytes.size());
    }
    [[nodiscard]] QByteArray Bytes() const
    {
        QFile arquivo(Caminho());
        return arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll() : QByteArray();
    }
};

// An administrator may write everything; for these tests the process gives that right up for a while.
class SemPrivilegio {
public:
    SemPrivilegio() : m_antes(geteuid())
    {
        if (m_antes == 0 && seteuid(65534) != 0)
            abort();
    }
    ~SemPrivilegio()
    {
        if (seteuid(m_antes) != 0)
            abort();
    }
    SemPrivilegio(const SemPrivilegio &) = delete;
    SemPrivilegio &operator=(const SemPrivilegio &) = delete;

private:
    uid_t m_antes;
};

} // namespace

TEST_F(DatabaseTest, AMissingFileIsNamedAndNotCreated)
{
    const QString caminho = m_pasta.filePath("OUTRO.MDB");
    try {
        Database banco(caminho);
        FAIL();
    } catch (const plataforma::RuntimeError &erro) {
        EXPECT_EQ(erro.number(), 3024);
        EXPECT_EQ(erro.text(), "O arquivo \"" + caminho + "\" não foi encontrado.");
    }
    EXPECT_FALSE(QFile::exists(caminho));
}

TEST_F(DatabaseTest, AFolderCannotBeOpened)
{
    EXPECT_EQ(NumeroAoAbrir(m_pasta.path()), 3051);
}

TEST_F(DatabaseTest, AnEmptyFileIsNoDatabaseAndStaysEmpty)
{
    Escreve({});
    EXPECT_EQ(NumeroAoAbrir(Caminho()), 3343);
    EXPECT_EQ(QFile(Caminho()).size(), 0);
}

TEST_F(DatabaseTest, AFileOfAnotherKindIsNoDatabase)
{
    Escreve(QByteArray("[Sistema]\r\nPorta=COM1\r\n").repeated(500));
    EXPECT_EQ(NumeroAoAbrir(Caminho()), 3343);
}

TEST_F(DatabaseTest, ATruncatedFileIsNoDatabase)
{
    SemeiaLog(2000);
    const QByteArray inteiro = Bytes();
    ASSERT_GT(inteiro.size(), 100000);
    for (const qsizetype tamanho : {50LL, 100LL, 4096LL, inteiro.size() / 2}) {
        Escreve(inteiro.left(tamanho));
        EXPECT_EQ(NumeroAoAbrir(Caminho()), 3343) << tamanho;
    }
}

TEST_F(DatabaseTest, ADamagedPageIsToldAndNothingCrashes)
{
    SemeiaLog(2000);
    QByteArray bytes = Bytes();
    bytes.replace(4096 * 10, 4096 * 4, QByteArray(4096 * 4, '\xA5'));
    Escreve(bytes);
    EXPECT_EQ(NumeroAoAbrir(Caminho()), 3343);
}

TEST_F(DatabaseTest, ALockOfAnotherProgramIsTold)
{
    SemeiaLog(1);
    const OutroPrograma outro(Caminho());
    outro.Executa("begin exclusive");
    EXPECT_EQ(NumeroDoErro([&] { Database banco(Caminho()); }), 3050);
    outro.Executa("rollback");
    EXPECT_EQ(NumeroAoAbrir(Caminho()), 0);
}

TEST_F(DatabaseTest, ALockThatComesLaterIsToldToo)
{
    SemeiaLog(1);
    const Database banco(Caminho());
    const auto d = banco.OpenDynaset("Log");
    const OutroPrograma outro(Caminho());
    outro.Executa("begin exclusive");
    EXPECT_EQ(NumeroDoErro([&] { (void)d->HasRows(); }), 3050);
    EXPECT_EQ(NumeroDoErro([&] { (void)banco.OpenDynaset("Select * From Log Order by Index")->HasRows(); }),
              3050);
    outro.Executa("rollback");
    EXPECT_TRUE(d->HasRows());
}

TEST_F(DatabaseTest, AFileThatCannotBeReadCannotBeOpened)
{
    ASSERT_EQ(chmod(QFile::encodeName(m_pasta.path()).constData(), 0755), 0);
    ASSERT_EQ(chmod(QFile::encodeName(Caminho()).constData(), 0), 0);
    const SemPrivilegio semPrivilegio;
    EXPECT_EQ(NumeroAoAbrir(Caminho()), 3051);
}

TEST_F(DatabaseTest, AReadOnlyFileIsReadAndNotWritten)
{
    SemeiaLog(2);
    ASSERT_EQ(chmod(QFile::encodeName(m_pasta.path()).constData(), 0755), 0);
    ASSERT_EQ(chmod(QFile::encodeName(Caminho()).constData(), 0444), 0);
    const SemPrivilegio semPrivilegio;
    const auto d = Database(Caminho()).OpenDynaset("Log");
    EXPECT_EQ(Coluna(*d, "Codigo").join(' '), "00001 00002");
    d->MoveFirst();
    EXPECT_EQ(NumeroDoErro([&] { d->Delete(); }), 3051);
    d->AddNew();
    EXPECT_EQ(NumeroDoErro([&] { d->Update(); }), 3051);
    d->MoveFirst();
    d->Edit();
    d->SetField("Favor", "outro");
    EXPECT_EQ(NumeroDoErro([&] { d->Update(); }), 3051);
    EXPECT_EQ(d->RecordCount(), 2);
}

TEST_F(DatabaseTest, TheJournalKindOfTheFileStays)
{
    SemeiaLog(1);
    const auto acrescenta = [this] {
        const auto d = Database(Caminho()).OpenDynaset("Log");
        d->AddNew();
        d->SetField("Codigo", "99999");
        d->Update();
    };
    acrescenta();
    EXPECT_EQ(Valor("pragma journal_mode"), "delete");
    Executa("pragma journal_mode = wal");
    acrescenta();
    EXPECT_EQ(Valor("pragma journal_mode"), "wal");
    EXPECT_EQ(Valor("select count(*) from Log where Codigo = '99999'"), "2");
}

TEST_F(DatabaseTest, TheDynasetOutlivesTheDatabase)
{
    SemeiaLog(3);
    auto banco = std::make_unique<Database>(Caminho());
    const auto d = banco->OpenDynaset("Log");
    banco.reset();
    EXPECT_EQ(Coluna(*d, "Codigo").join(' '), "00001 00002 00003");
}

namespace {

struct CasoArquivo {
    std::string nome;
    const char *tabela; // how another program made "Log"
};
void PrintTo(const CasoArquivo &c, std::ostream *os)
{
    *os << c.tabela;
}

class ArquivoAlheioTest : public DatabaseTest, public testing::WithParamInterface<CasoArquivo> {
protected:
    ArquivoAlheioTest() { Executa(QString("drop table Log;") + GetParam().tabela); }
};

} // namespace

TEST_P(ArquivoAlheioTest, IsReadSearchedAndWritten)
{
    const Database banco(Caminho());
    const auto d = banco.OpenDynaset("Log");
    for (const char *codigo : {"0000000001", "0000000002", "0000000003"}) {
        d->AddNew();
        d->SetField("index", codigo);
        d->SetField("FAVOR", "x");
        d->Update();
    }
    d->MoveLast();
    EXPECT_EQ(d->Field("Index"), "0000000003");
    d->FindFirst("Index='0000000002'");
    ASSERT_FALSE(d->NoMatch());
    d->Edit();
    d->SetField("Favor", "José");
    d->Update();
    EXPECT_EQ(Coluna(*d, "Favor").join(' '), QString("x José x"));
    EXPECT_EQ(Coluna(Caminho(), "Select * From Log Where (Favor='JOSÉ')", "Index").join(' '), "0000000002");
    EXPECT_EQ(Coluna(Caminho(), "Select * From Log Order by Favor desc, Index", "Index").join(' '),
              "0000000001 0000000003 0000000002");
    d->FindFirst("Index='0000000001'");
    d->Delete();
    EXPECT_EQ(Valor("select group_concat(\"Index\") from Log"), "0000000002,0000000003");
}

INSTANTIATE_TEST_SUITE_P(
    Formas, ArquivoAlheioTest,
    testing::Values(
        CasoArquivo{"WithoutKey", "create table Log (\"Index\" TEXT, Favor TEXT)"},
        CasoArquivo{"TextKey", "create table LOG (\"INDEX\" TEXT PRIMARY KEY, FAVOR TEXT)"},
        CasoArquivo{"KeyNumberOfItsOwn",
                    "create table Log (id INTEGER PRIMARY KEY AUTOINCREMENT, \"Index\" TEXT, Favor TEXT)"},
        CasoArquivo{"WithoutRowNumbers",
                    "create table Log (\"Index\" TEXT PRIMARY KEY, Favor TEXT) without rowid"},
        CasoArquivo{"WithoutRowNumbersKeyOfTwo",
                    "create table Log (Favor TEXT DEFAULT 'f', Lote INTEGER DEFAULT 7, \"Index\" TEXT, "
                    "PRIMARY KEY (Lote, \"Index\")) without rowid"},
        CasoArquivo{
            "WidthsAndDefaults",
            "create table Log (\"Index\" VARCHAR(10) NOT NULL DEFAULT '', Favor CHAR(47) DEFAULT '?')"},
        CasoArquivo{"NoTypes", "create table Log (\"Index\", Favor)"},
        CasoArquivo{
            "Indexed",
            "create table Log (\"Index\" TEXT, Favor TEXT); create unique index i on Log (\"Index\"); "
            "create index f on Log (Favor collate nocase)"},
        CasoArquivo{"CaseInsensitiveColumns",
                    "create table Log (\"Index\" TEXT COLLATE NOCASE, Favor TEXT COLLATE NOCASE)"},
        CasoArquivo{"TrimmedColumns",
                    "create table Log (\"Index\" TEXT COLLATE RTRIM, Favor TEXT COLLATE RTRIM)"},
        CasoArquivo{"ColumnNamedRowid", "create table Log (rowid TEXT, \"Index\" TEXT, Favor TEXT)"},
        CasoArquivo{"ComputedColumn", "create table Log (\"Index\" TEXT, Favor TEXT, F TEXT GENERATED ALWAYS "
                                      "AS (upper(Favor)) STORED)"},
        CasoArquivo{"Trigger", "create table Log (\"Index\" TEXT, Favor TEXT); create table Notas (t TEXT); "
                               "create trigger g after "
                               "insert on Log begin insert into Notas values (new.\"Index\"); end"}),
    NomeDoCaso);

TEST_F(DatabaseTest, ValuesOfAnyTypeAreReadAsText)
{
    Executa("create table Tipos (Codigo, V)");
    Executa("insert into Tipos values (1, 12), (2, 1.5), (3, NULL), (4, ''), (5, x'53E36F'), (6, x''), "
            "(7, cast(x'53E36F' as text)), (8, 'São'), (9, char(97, 0, 98))");
    QString zero("a?b");
    zero[1] = QChar(0);
    EXPECT_EQ(Coluna(Caminho(), "Tipos", "V"),
              QStringList({"12", "1.5", "<NULL>", "", "São", "", "São", "São", zero}));
}

TEST_F(DatabaseTest, ANullIsANullTextAndAnEmptyTextIsNot)
{
    Executa("insert into Cidade values (NULL, ''), (x'', 'b')");
    const auto d = Database(Caminho()).OpenDynaset("Cidade");
    EXPECT_TRUE(d->Field("Codigo").isNull());
    EXPECT_FALSE(d->Field("Nome").isNull());
    d->MoveNext();
    EXPECT_FALSE(d->Field("Codigo").isNull());
}

TEST_F(DatabaseTest, AnyValuesPassThroughTheFunctions)
{
    Executa("insert into Cidade values (1, x'00FF'), (2, cast(x'C3' as text)), (3, NULL), (4, 1e300), (5, "
            "-9223372036854775808), "
            "(6, zeroblob(100000))");
    for (const char *condicao :
         {"Left(Nome,1)='x'", "Mid(Nome,2)='x'", "Mid(Nome,2,3)='x'", "Right(Nome,2)='x'", "Trim(Nome)='x'",
          "Nome like '*x?#[a-z]'", "CVDate(Nome)=1", "CDbl(Nome)=1", "Val(Nome)=1", "Nome='x'",
          "Nome between 'y' and 'x'"}) {
        EXPECT_EQ(Coluna(Caminho(), QString("Select * From Cidade Where ") + condicao, "Codigo"),
                  QStringList())
            << condicao;
    }
    EXPECT_EQ(Coluna(Caminho(), "Select * From Cidade Where Left(Nome,1)='-'", "Codigo").join(' '), "5");
}

TEST_F(DatabaseTest, AFileInWideCharactersIsReadAndWritten)
{
    const QString caminho = m_pasta.filePath("LARGO.MDB");
    OutroPrograma(caminho).Executa(
        "pragma encoding = 'UTF-16le'; create table Cidade (Codigo TEXT, Nome TEXT); "
        "insert into Cidade values ('00001', 'São Luís')");
    const auto d = Database(caminho).OpenDynaset("Cidade");
    EXPECT_EQ(d->Field("Nome"), QString("São Luís"));
    d->FindFirst("Nome='SÃO LUÍS' and Left(Nome,3)='são'");
    EXPECT_FALSE(d->NoMatch());
    d->Edit();
    d->SetField("Nome", "Belém");
    d->Update();
    EXPECT_EQ(OutroPrograma(caminho).Valor("select Nome from Cidade"), QString("Belém"));
}

TEST_F(DatabaseTest, ATableThatAnotherProgramDropsIsAFailureAndNoMore)
{
    SemeiaLog(600);
    const Database banco(Caminho());
    const auto d = banco.OpenDynaset("Log");
    EXPECT_EQ(d->Field("Codigo"), "00001");
    Executa("drop table Log");
    EXPECT_EQ(NumeroDoErro([&] { d->MoveNext(); }), 3075);
    EXPECT_EQ(NumeroDoErro([&] { d->Delete(); }), 3075);
    EXPECT_EQ(NumeroDoErro([&] { (void)banco.OpenDynaset("Log"); }), 3078);
}

namespace {

struct CasoGuarda {
    std::string nome;
    const char *sql;
    bool aceita;
};
void PrintTo(const CasoGuarda &c, std::ostream *os)
{
    *os << c.sql;
}

// The engine refuses by itself what does more than read, whatever the dialect might let through.
class GuardaTest : public Loja, public testing::WithParamInterface<CasoGuarda> {};

} // namespace

TEST_P(GuardaTest, LetsOnlyReadingThrough)
{
    SemeiaLog(1);
    Executa("create index PorCodigo on Log (Codigo)");
    const QString antes = Conteudo();
    plataforma::jet::Conexao conexao(Caminho());
    const int numero = NumeroDoErro([&] { plataforma::jet::Comando(conexao, GetParam().sql).Passo(); });
    EXPECT_EQ(numero, GetParam().aceita ? 0 : 3075);
    EXPECT_EQ(Conteudo(), antes);
}

INSTANTIATE_TEST_SUITE_P(
    Comandos, GuardaTest,
    testing::Values(CasoGuarda{"Select", "select Favor from Log", true},
                    CasoGuarda{"FunctionOfTheDialect", "select qx_left(Favor, 2) from Log", true},
                    CasoGuarda{"Insert", "insert into Log (Favor) values ('x')", false},
                    CasoGuarda{"Update", "update Log set Favor = 'x'", false},
                    CasoGuarda{"Delete", "delete from Log", false},
                    CasoGuarda{"Drop", "drop table Log", false},
                    CasoGuarda{"Create", "create table Outra (a)", false},
                    CasoGuarda{"CreateTemporary", "create temp table Outra (a)", false},
                    CasoGuarda{"Pragma", "pragma user_version = 7", false},
                    CasoGuarda{"PragmaThatReads", "pragma table_info(Log)", false},
                    CasoGuarda{"Attach", "attach ':memory:' as outro", false},
                    CasoGuarda{"Vacuum", "vacuum", false}, CasoGuarda{"Reindex", "reindex", false},
                    CasoGuarda{"LoadExtension", "select load_extension('x')", false}),
    NomeDoCaso);

TEST_F(DatabaseTest, AViewIsNoTable)
{
    Executa("drop table Log; create view Log as select * from Cidade");
    EXPECT_EQ(NumeroAoAbrir(Caminho()), 3078);
}

TEST_F(DatabaseTest, ATableWithoutAnyKeyIsRefused)
{
    Executa("create table Sem (rowid TEXT, _rowid_ TEXT, oid TEXT)");
    EXPECT_EQ(NumeroDoErro([&] { (void)Database(Caminho()).OpenDynaset("Sem"); }), 3051);
}
