// The query dialect: texts of the screens on a small store, comparison, functions, Like, and what is refused.
#include "Loja.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

using plataforma::Database;
using namespace loja;

namespace {

class LojaCheia : public Loja {
protected:
    LojaCheia()
    {
        Executa(
            "insert into Bancos (Codigo, Nome) values ('002', 'Banco do Litoral'), ('001', 'BANCO ÁGUA'), "
            "('104', 'Caixa'), ('237', 'banco do sul'), ('00a', 'letra'), ('00A', 'Letra')");
        Executa(
            "insert into Log (\"Index\", Codigo, Banco, V_CH, Favor, Local, Data, Comentario, Comentario1, "
            "Comentario2) values "
            "('0000000001', '00001', '001', '100,',    'X',        'Recife', '01/02/99', 'aluguel', '', ''), "
            "('0000000002', '00002', '001', '150,5',   'x',        'Olinda', '15/02/99', '', 'aluguel', ''), "
            "('0000000003', '00003', '237', '1234,56', 'Y',        'recife', '01/03/99', '', '', 'ALUGUEL "
            "pago'), "
            "('0000000004', '00004', '237', 'lixo',    'X',        'Natal',  '  /11/02', 'luz', '', ''), "
            "('0000000005', '00005', '001', ',5',      'D''Ávila', NULL,     '31/12/29', NULL, NULL, NULL)");
    }
    [[nodiscard]] QString Codigos(const QString &consulta) const
    {
        return Coluna(Caminho(), consulta, "Codigo").join(' ');
    }
};

struct CasoConsulta {
    std::string nome;
    const char *consulta;
    const char *codigos; // field Codigo of the rows, in order
};
void PrintTo(const CasoConsulta &c, std::ostream *os)
{
    *os << c.consulta;
}

class ConsultaTest : public LojaCheia, public testing::WithParamInterface<CasoConsulta> {};

} // namespace

TEST_P(ConsultaTest, FindsTheRows)
{
    EXPECT_EQ(Codigos(GetParam().consulta), GetParam().codigos);
}

INSTANTIATE_TEST_SUITE_P(
    BuscaPorCodigo, ConsultaTest,
    testing::Values(CasoConsulta{"WholeTable", "Select * From Bancos", "002 001 104 237 00a 00A"},
                    CasoConsulta{"BareName", "Bancos", "002 001 104 237 00a 00A"},
                    CasoConsulta{"NameInAnyCase", " bAnCoS ", "002 001 104 237 00a 00A"},
                    CasoConsulta{"ByCode", "Select * From Bancos Where (Codigo='104')", "104"},
                    CasoConsulta{"ByCodeNoRow", "Select * From Bancos Where (Codigo='999')", ""},
                    CasoConsulta{"ByCodeWithLetter", "Select * From Bancos Where (Codigo='00A')", "00a 00A"},
                    CasoConsulta{"ByCodeIsNotByPrefix", "Select * From Bancos Where (Codigo='00')", ""},
                    CasoConsulta{"ByIndexWhichIsAReservedWord",
                                 "Select * From Log Where (Index='0000000003')", "00003"}),
    NomeDoCaso);

INSTANTIATE_TEST_SUITE_P(
    FiltraRegistros, ConsultaTest,
    testing::Values(CasoConsulta{"ByStartOfCode",
                                 "Select * From Bancos Where (Left(Codigo,2)='00') Order by Codigo",
                                 "001 002 00a 00A"},
                    CasoConsulta{"ByStartOfName",
                                 "Select * From Bancos Where (Left(Nome,5)='bAnCo') Order by Nome",
                                 "001 002 237"},
                    CasoConsulta{"ByStartWithAccent",
                                 "Select * From Bancos Where (Left(Nome,7)='banco á') Order by Nome", "001"},
                    CasoConsulta{"AccentIsNoBareLetter",
                                 "Select * From Bancos Where (Left(Nome,7)='banco a') Order by Nome", ""},
                    CasoConsulta{"LogByBank", "Select * From Log Where (Left(Banco,1)='2') Order by Banco",
                                 "00003 00004"}),
    NomeDoCaso);

INSTANTIATE_TEST_SUITE_P(
    PesquisaRegistros, ConsultaTest,
    testing::Values(
        CasoConsulta{"LikeCode", "Select * From Bancos Where Codigo Like ('00*') Order by Codigo",
                     "001 002 00a 00A"},
        CasoConsulta{"LikeName", "Select * From Bancos Where Nome Like ('ban*') Order by Nome",
                     "001 002 237"},
        CasoConsulta{"LikeFromTheLeftOnly", "Select * From Bancos Where Nome Like ('litoral*') Order by Nome",
                     ""},
        CasoConsulta{"PercentIsNoWildcard", "Select * From Bancos Where Nome Like ('%*') Order by Nome", ""},
        CasoConsulta{"UnderscoreIsNoWildcard", "Select * From Bancos Where Codigo Like ('_0*') Order by Nome",
                     ""},
        CasoConsulta{"HashIsADigit", "Select * From Bancos Where Codigo Like ('00#') Order by Codigo",
                     "001 002"},
        CasoConsulta{"QuestionMarkIsACharacter",
                     "Select * From Bancos Where Codigo Like '?0?' Order by Codigo", "001 002 00a 00A 104"},
        CasoConsulta{"ListOfCharacters", "Select * From Bancos Where Codigo Like '[12]*' Order by Codigo",
                     "104 237"},
        CasoConsulta{"ListExcluded", "Select * From Bancos Where Codigo Not Like '[!12]*' Order by Codigo",
                     "104 237"}),
    NomeDoCaso);

INSTANTIATE_TEST_SUITE_P(
    MontaFiltro, ConsultaTest,
    testing::Values(
        CasoConsulta{"OnlyABank", "Select * From Log Where (Banco='001')", "00001 00002 00005"},
        CasoConsulta{"BankAndPayeeRunTogether", "Select * From Log Where (Banco='001')and (Favor='X')",
                     "00001 00002"},
        CasoConsulta{"BankPayeeAndCity",
                     "Select * From Log Where (Banco='001')and (Favor='X')and (Local='olinda')", "00002"},
        CasoConsulta{"OnlyACity", "Select * From Log where (Local='RECIFE')", "00001 00003"},
        CasoConsulta{
            "OnlyADateWithTwoBlanks",
            "Select * From Log  Where (CVDate(Data) between CVDate('01/02/99') and CVDate('15/02/99'))",
            "00001 00002"},
        CasoConsulta{
            "OneDay",
            "Select * From Log  Where (CVDate(Data) between CVDate('01/03/99') and CVDate('01/03/99'))",
            "00003"},
        CasoConsulta{
            "YearOfThePast",
            "Select * From Log  Where (CVDate(Data) between CVDate('01/01/2029') and CVDate('31/12/29'))",
            "00005"},
        CasoConsulta{
            "DateThatCannotBeReadFindsNothing",
            "Select * From Log  Where (CVDate(Data) between CVDate('99/99/99') and CVDate('31/12/29'))", ""},
        CasoConsulta{"OnlyAValue",
                     "Select * From Log  Where (CDBL(V_CH) between CDBL('100,00') and CDBL('150,50'))",
                     "00001 00002"},
        CasoConsulta{"ValueWithGroups",
                     "Select * From Log  Where (CDBL(V_CH) between CDBL('1.234,56') and CDBL('1.234,56'))",
                     "00003"},
        CasoConsulta{"PayeeThenDate",
                     "Select * From Log where (Favor='x') And (CVDate(Data) between CVDate('01/02/99') and "
                     "CVDate('01/02/99'))",
                     "00001"},
        CasoConsulta{"BankDateAndValue",
                     "Select * From Log Where (Banco='001') And (CVDate(Data) between CVDate('01/01/99') and "
                     "CVDate('31/12/99')) And (CDBL(V_CH) between CDBL('120') and CDBL('200'))",
                     "00002"},
        CasoConsulta{"OnlyAComment",
                     "Select * From Log where (Comentario like '*alug*')or (Comentario1 like '*alug*')or "
                     "(Comentario2 like '*alug*')",
                     "00001 00002 00003"},
        // On purpose: "or" binds to the whole query, so the comments of other banks come too.
        CasoConsulta{"CommentOfOtherBanksComesToo",
                     "Select * From Log Where (Banco='237')and (Comentario like '*alug*')or (Comentario1 "
                     "like '*alug*')or (Comentario2 like '*alug*')",
                     "00002 00003"}),
    NomeDoCaso);

INSTANTIATE_TEST_SUITE_P(Registros, ConsultaTest,
                         testing::Values(CasoConsulta{"ListingByCode", "Select * FROM Bancos ORDER BY Codigo",
                                                      "001 002 00a 00A 104 237"},
                                         CasoConsulta{"ListingByName", "Select * FROM Bancos ORDER BY Nome",
                                                      "001 002 237 104 00a 00A"}),
                         NomeDoCaso);

INSTANTIATE_TEST_SUITE_P(
    Linguagem, ConsultaTest,
    testing::Values(
        CasoConsulta{"DoubleQuotes", "Select * From Log Where Favor=\"D'Ávila\"", "00005"},
        CasoConsulta{"DoubledQuote", "Select * From Log Where Favor='d''ávila'", "00005"},
        CasoConsulta{"Brackets", "Select * From [Log] Where [Index]='0000000001'", "00001"},
        CasoConsulta{"NameWithTable", "Select Log.* From Log Where Log.[Index]='0000000001'", "00001"},
        CasoConsulta{"NameWithAlias", "Select l.Codigo From Log As l Where l.Index='0000000001'", "00001"},
        CasoConsulta{"ListOfFields", "Select Codigo, Index From Log Where Banco='237'", "00003 00004"},
        CasoConsulta{"FieldRenamed", "Select Index As Codigo From Log Where Banco='237'",
                     "0000000003 0000000004"},
        CasoConsulta{"TextOnTheLeft", "Select * From Log Where '237'=Banco", "00003 00004"},
        CasoConsulta{"Unequal", "Select * From Log Where Favor<>'X'", "00003 00005"},
        CasoConsulta{"LessWithoutRegardToCase", "Select * From Log Where Favor<'y' Order by Index",
                     "00001 00002 00004 00005"},
        CasoConsulta{"AtLeast", "Select * From Log Where Codigo>='00004'", "00004 00005"},
        CasoConsulta{"AtMost", "Select * From Log Where Codigo<='00002'", "00001 00002"},
        CasoConsulta{"Greater", "Select * From Log Where Codigo>'00004'", "00005"},
        CasoConsulta{"BetweenTextsWithoutRegardToCase", "Select * From Log Where Favor between 'w' and 'X'",
                     "00001 00002 00004"},
        CasoConsulta{"InWithoutRegardToCase", "Select * From Log Where Favor In ('y', 'D''ÁVILA')",
                     "00003 00005"},
        CasoConsulta{"NotIn", "Select * From Log Where Favor Not In ('x')", "00003 00005"},
        CasoConsulta{"NotBetween", "Select * From Log Where Codigo Not Between '00002' And '00004'",
                     "00001 00005"},
        CasoConsulta{"Not", "Select * From Log Where Not (Banco='001' Or Favor='Y')", "00004"},
        CasoConsulta{"AndBindsCloserThanOr",
                     "Select * From Log Where Banco='237' Or Banco='001' And Favor='X'",
                     "00001 00002 00003 00004"},
        CasoConsulta{"IsNull", "Select * From Log Where Local Is Null", "00005"},
        CasoConsulta{"IsNotNull", "Select * From Log Where Comentario Is Not Null And Banco='001'",
                     "00001 00002"},
        CasoConsulta{"NullIsNeitherEqualNorUnequal", "Select * From Log Where Local='' Or Local<>''",
                     "00001 00002 00003 00004"},
        CasoConsulta{"Right", "Select * From Log Where Right(Index,1)='4'", "00004"},
        CasoConsulta{"Mid", "Select * From Log Where Mid(Data,4,2)='02'", "00001 00002"},
        CasoConsulta{"Len", "Select * From Log Where Len(V_CH)>5", "00003"},
        CasoConsulta{"Trim", "Select * From Log Where Left(Trim(Data),1)='/'", "00004"},
        CasoConsulta{"Val", "Select * From Log Where Val(Index)=2", "00002"},
        CasoConsulta{"NegativeNumber", "Select * From Log Where CDbl(V_CH)>-1 And CDbl(V_CH)<1", "00005"},
        CasoConsulta{"OnlyTheFirstStatement", "Select * From Log Where Banco='237'; this is not looked at '",
                     "00003 00004"}),
    NomeDoCaso);

namespace {

struct CasoRecusa {
    std::string nome;
    const char *consulta;
    int numero;
};
void PrintTo(const CasoRecusa &c, std::ostream *os)
{
    *os << c.consulta;
}

class RecusaTest : public LojaCheia, public testing::WithParamInterface<CasoRecusa> {};

} // namespace

TEST_P(RecusaTest, RaisesItsNumberAndChangesNothing)
{
    const QString antes = Conteudo();
    const Database banco(Caminho());
    EXPECT_EQ(NumeroDoErro([&] { (void)Coluna(*banco.OpenDynaset(GetParam().consulta), "Codigo"); }),
              GetParam().numero);
    EXPECT_EQ(Conteudo(), antes);
}

INSTANTIATE_TEST_SUITE_P(
    Sintaxe, RecusaTest,
    testing::Values(CasoRecusa{"TwoWheres", "Select * From Log where (Favor='X')where (Local='Y')", 3075},
                    CasoRecusa{"SecondWhereBehindADate",
                               "Select * From Log  Where (CVDate(Data) between CVDate('01/02/99') and "
                               "CVDate('01/02/99'))where (Comentario like '*x*')",
                               3075},
                    CasoRecusa{"Empty", "", 3075}, CasoRecusa{"Blanks", "   ", 3075},
                    CasoRecusa{"OnlyASemicolon", ";", 3075},
                    CasoRecusa{"NoSuchTable", "Select * From Cheques", 3078},
                    CasoRecusa{"NoSuchBareTable", "Cheques", 3078},
                    CasoRecusa{"EngineTable", "sqlite_master", 3078},
                    CasoRecusa{"NoSuchFieldInCondition", "Select * From Log Where Agencia='1'", 3075},
                    CasoRecusa{"NoSuchFieldInOrder", "Select * From Log Order by Agencia", 3075},
                    CasoRecusa{"NoSuchFieldInList", "Select Agencia From Log", 3075},
                    CasoRecusa{"FieldOfAnotherTable", "Select * From Log Where Bancos.Codigo='1'", 3075},
                    CasoRecusa{"OpenQuote", "Select * From Log Where (Favor='D'Ávila')", 3075},
                    CasoRecusa{"OpenBracket", "Select * From Log Where [Index='1'", 3075},
                    CasoRecusa{"OpenParenthesis", "Select * From Log Where (Favor='X'", 3075},
                    CasoRecusa{"ClosedTwice", "Select * From Log Where (Favor='X'))", 3075},
                    CasoRecusa{"NoCondition", "Select * From Log Where", 3075},
                    CasoRecusa{"ValueAsCondition", "Select * From Log Where Favor", 3075},
                    CasoRecusa{"ConditionAsValue", "Select * From Log Where (Favor='X')='Y'", 3075},
                    CasoRecusa{"NumberWithText", "Select * From Log Where CDbl(V_CH)='100'", 3075},
                    CasoRecusa{"UnknownFunction", "Select * From Log Where Upper(Favor)='X'", 3075},
                    CasoRecusa{"TooManyArguments", "Select * From Log Where Left(Favor,1,2)='X'", 3075},
                    CasoRecusa{"TooFewArguments", "Select * From Log Where Left(Favor)='X'", 3075},
                    CasoRecusa{"NegativeLength", "Select * From Log Where Left(Favor,-1)='X'", 3075},
                    CasoRecusa{"UnknownSign", "Select * From Log Where Favor!='X'", 3075},
                    CasoRecusa{"EngineParameter", "Select * From Log Where Favor=?1", 3075},
                    CasoRecusa{"OrderWithoutBy", "Select * From Log Order Index", 3075},
                    CasoRecusa{"TwoTables", "Select * From Log, Bancos", 3075},
                    CasoRecusa{"ReservedWordAsTable", "Select * From Where", 3075}),
    NomeDoCaso);

INSTANTIATE_TEST_SUITE_P(
    Injecao, RecusaTest,
    testing::Values(
        CasoRecusa{"DropBehindTheQuote", "Select * From Log Where (Favor=''; drop table Log; --')", 3075},
        CasoRecusa{"UnionSelect", "Select * From Bancos Where (Codigo='' union select * from Log --')", 3075},
        CasoRecusa{"UnionAfterTheParenthesis",
                   "Select * From Bancos Where (Codigo='') union select * from Log --')", 3075},
        CasoRecusa{"SubQuery", "Select * From Bancos Where (Codigo=(select Codigo from Log))", 3075},
        CasoRecusa{"EngineTableByName", "Select * From sqlite_master", 3078},
        CasoRecusa{"EngineFunctionAsTable", "Select * From pragma_table_info('Log')", 3078},
        CasoRecusa{"LoadExtension", "Select * From Log Where load_extension('x')='1'", 3075},
        CasoRecusa{"ReadFile", "Select * From Log Where readfile('/etc/passwd')='1'", 3075},
        CasoRecusa{"OwnFunctionUnderItsInnerName", "Select * From Log Where qx_left(Favor,1)='X'", 3075},
        CasoRecusa{"Drop", "drop table Log", 3075}, CasoRecusa{"Delete", "delete from Log", 3075},
        CasoRecusa{"Update", "update Log set Favor=''", 3075},
        CasoRecusa{"Insert", "insert into Log default values", 3075},
        CasoRecusa{"Pragma", "pragma writable_schema = 1", 3075},
        CasoRecusa{"Attach", "attach 'outro.db' as outro", 3075},
        CasoRecusa{"Vacuum", "vacuum into 'copia.db'", 3075},
        CasoRecusa{"With", "with x as (select 1) select * from x", 3075},
        CasoRecusa{"QuoteInBrackets", "Select * From [Log\"; drop table Log; --]", 3078},
        CasoRecusa{"FieldNameWithQuote", "Select [Codigo\" from Log; --] From Log", 3075}),
    NomeDoCaso);

TEST_F(LojaCheia, AStatementBehindTheFirstIsNeverRun)
{
    const QString antes = Conteudo();
    EXPECT_EQ(Codigos("Select * From Bancos Where (Codigo='104'); drop table Log; --')"), "104");
    EXPECT_EQ(Conteudo(), antes);
}

TEST_F(LojaCheia, ATextMayHoldAnything)
{
    Executa("insert into Favorecido values ('1', '; drop table Log -- % _ [x] \"')");
    EXPECT_EQ(Codigos("Select * From Favorecido Where Nome='; drop table Log -- % _ [x] \"'"), "1");
}

TEST_F(LojaCheia, AZeroCharacterInATextIsRefused)
{
    QString consulta("Select * From Log Where Favor='a?b'");
    consulta[consulta.indexOf('?')] = QChar(0);
    EXPECT_EQ(NumeroDoErro([&] { (void)Database(Caminho()).OpenDynaset(consulta); }), 3075);
}

TEST_F(LojaCheia, BracketsWithoutEndAreRefusedBeforeTheStackEnds)
{
    const QString fundo =
        "Select * From Log Where " + QString(30000, '(') + "Favor='X'" + QString(30000, ')');
    EXPECT_EQ(NumeroDoErro([&] { (void)Database(Caminho()).OpenDynaset(fundo); }), 3075);
    EXPECT_EQ(Codigos("Select * From Log Where " + QString(50, '(') + "Favor='Y'" + QString(50, ')')),
              "00003");
}

TEST_F(LojaCheia, ALongChainOfConditionsIsAnsweredOrRefused)
{
    QString consulta = "Select * From Log Where Favor='Y'";
    for (int i = 0; i < 50; ++i)
        consulta += " or Favor='Y'";
    EXPECT_EQ(Codigos(consulta), "00003");
    for (int i = 0; i < 3000; ++i)
        consulta += " or Favor='Y'";
    EXPECT_EQ(NumeroDoErro([&] { (void)Database(Caminho()).OpenDynaset(consulta); }), 3075);
}

TEST_F(LojaCheia, AColumnWithASqlNameIsOnlyAName)
{
    Executa("create table Estranha (\"select\" TEXT, \"a\"\"b\" TEXT, \"com espaço\" TEXT, rowid TEXT, ação "
            "TEXT)");
    Executa("insert into Estranha values ('s', 'q', 'e', 'r', 'ç')");
    const QString consulta =
        "Select [select], [a\"b], rowid, AÇÃO From Estranha Where [com espaço]='E' and rowid='R'";
    const auto d = Database(Caminho()).OpenDynaset(consulta);
    EXPECT_EQ(d->Field("select") + d->Field("a\"b") + d->Field("rowid") + d->Field("ação"), QString("sqrç"));
    EXPECT_EQ(d->FieldNames().join('|'), QString("select|a\"b|rowid|ação"));
}

TEST_F(LojaCheia, APatternOutOfAFieldIsReadForEachRow)
{
    Executa(
        "insert into Cidade values ('b*', 'Belo'), ('r*', 'Belo'), ('?e*', 'Recife'), ('[a-c]*', 'Natal'), "
        "('*', NULL), (NULL, 'x')");
    EXPECT_EQ(Codigos("Select * From Cidade Where Nome Like Codigo Order by Codigo"), "?e* b*");
}

TEST_F(LojaCheia, PatternsOfOneQueryAreNotMixedUp)
{
    EXPECT_EQ(Codigos("Select * From Bancos Where Nome Like 'ban*' And Nome Like '*sul' Or Codigo Like '1*'"),
              "104 237");
}

namespace {

// 'José da' and 'JOSÉ di' in Windows-1252, 'josé de' in UTF-8.
class LojaDeDoisCodigos : public LojaCheia {
protected:
    LojaDeDoisCodigos()
    {
        Executa(
            "insert into Cidade values ('1', cast(x'4A6F73E9206461' as text)), ('2', 'josé de'), "
            "('3', cast(x'4A4F53C9206469' as text)), ('4', 'jose da'), ('5', x''), ('6', NULL), ('7', '')");
    }
};

} // namespace

TEST_F(LojaDeDoisCodigos, LeftCountsCharactersInEither)
{
    EXPECT_EQ(Codigos("Select * From Cidade Where (Left(Nome,4)='josé') Order by Nome"), "1 2 3");
    EXPECT_EQ(Codigos("Select * From Cidade Where (Left(Nome,6)='josé d') Order by Codigo"), "1 2 3");
    EXPECT_EQ(Codigos("Select * From Cidade Where (Left(Nome,7)='JOSÉ DE')"), "2");
    EXPECT_EQ(Codigos("Select * From Cidade Where (Left(Nome,3)='jos') Order by Codigo"), "1 2 3 4");
}

TEST_F(LojaDeDoisCodigos, LeftOfNothingIsEmptyAndOfNullIsNull)
{
    EXPECT_EQ(Codigos("Select * From Cidade Where (Left(Nome,2)='') Order by Codigo"), "5 7");
    EXPECT_EQ(Codigos("Select * From Cidade Where (Left(Nome,0)='') Order by Codigo"), "1 2 3 4 5 7");
    EXPECT_EQ(Codigos("Select * From Cidade Where Left(Nome,2) Is Null"), "6");
}

TEST_F(LojaDeDoisCodigos, LikeReadsEither)
{
    EXPECT_EQ(Codigos("Select * From Cidade Where Nome Like ('josé*') Order by Codigo"), "1 2 3");
    EXPECT_EQ(Codigos("Select * From Cidade Where Nome Like ('jos*') Order by Codigo"), "1 2 3 4");
    EXPECT_EQ(Codigos("Select * From Cidade Where Nome Like 'jos? d?' Order by Codigo"), "1 2 3 4");
    EXPECT_EQ(Codigos("Select * From Cidade Where Nome Like '*a' Order by Codigo"), "1 4");
    EXPECT_EQ(Codigos("Select * From Cidade Where Nome Like '' Order by Codigo"), "5 7");
}

// Answers of independent software, one row a case.
TEST_F(LojaCheia, LikeGivesTheAnswersOfOtherSoftware)
{
    QFile arquivo(QX70_TEST_DATA "/like.tsv");
    ASSERT_TRUE(arquivo.open(QIODevice::ReadOnly));
    arquivo.readLine();
    const auto texto = [](const QByteArray &json) {
        return QJsonDocument::fromJson('[' + json + ']').array().at(0).toString();
    };
    int linhas = 0;
    while (!arquivo.atEnd()) {
        const QList<QByteArray> partes = arquivo.readLine().trimmed().split('\t');
        ASSERT_EQ(partes.size(), 3);
        const auto cidade = Database(Caminho()).OpenDynaset("Cidade");
        cidade->AddNew();
        cidade->SetField("Codigo", QString::number(++linhas));
        cidade->SetField("Nome", texto(partes[0]));
        cidade->Update();
        cidade->FindFirst(QString("Codigo='%1' and Nome like '%2'").arg(linhas).arg(texto(partes[1])));
        EXPECT_EQ(cidade->NoMatch(), partes[2] == "no")
            << partes[0].toStdString() << ' ' << partes[1].toStdString();
    }
    EXPECT_GE(linhas, 15);
}
