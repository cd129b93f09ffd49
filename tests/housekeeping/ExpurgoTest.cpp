// The purge of cheques at a real start, over a real store: what is asked, what goes, what stays, and every
// way it can end.
#include "ComExpurgo.h"

#include <QDir>
#include <QFile>
#include <QTimer>

using namespace teste;

namespace {

using ChequesAntigos = Expurgo;

TEST_F(ChequesAntigos, AnEmptyLogAsksNothing)
{
    Abre();
    EXPECT_EQ(CaixasDoInicio(), "");
}

TEST_F(ChequesAntigos, AreAskedForTwiceInTheSameWords)
{
    PoeCheques({"01/01/03"});
    Abre();
    ASSERT_EQ(m_caixasDoInicio.size(), 2U);
    for (const apoio::Caixa &caixa : m_caixasDoInicio)
        EsperaPergunta(caixa, kPerguntaDosCheques.arg(30));
}

struct CasoIdade {
    std::string nome;
    QString data;
    bool vai;
};
void PrintTo(const CasoIdade &c, std::ostream *os)
{
    *os << '"' << c.data.toStdString() << '"';
}
class IdadeDoCheque : public Expurgo, public testing::WithParamInterface<CasoIdade> {};
TEST_P(IdadeDoCheque, DecidesWhetherItGoes)
{
    PoeCheques({"01/02/03", GetParam().data, "31/01/03"});
    AbreRespondendo({kSim, kSim});
    EXPECT_EQ(CaixasDoInicio(), GetParam().vai ? "QQ" : "");
    EXPECT_EQ(Datas(), GetParam().vai ? "01/02/03 31/01/03"
                                      : "01/02/03 " + GetParam().data.toStdString() + " 31/01/03");
}
INSTANTIATE_TEST_SUITE_P(Datas, IdadeDoCheque,
                         testing::Values(CasoIdade{"TwentyNineDays", "03/01/03", false},
                                         CasoIdade{"ThirtyDays", "02/01/03", false},
                                         CasoIdade{"ThirtyOneDays", "01/01/03", true},
                                         CasoIdade{"YearsAgo", "15/06/97", true},
                                         CasoIdade{"InTheFuture", "15/06/03", false},
                                         CasoIdade{"YearOfTwentyNineIsToCome", "01/01/29", false},
                                         CasoIdade{"YearOfThirtyIsLongGone", "01/01/30", true},
                                         CasoIdade{"FourDigitsOfTheYear", "01/01/2003", true},
                                         CasoIdade{"ShortOne", "1/1/03", true}),
                         kNomeDoCaso);

struct CasoResposta {
    std::string nome;
    QMessageBox::StandardButton primeira;
    QMessageBox::StandardButton segunda;
    bool exclui;
};
void PrintTo(const CasoResposta &c, std::ostream *os)
{
    *os << c.nome;
}
class RespostaDosCheques : public Expurgo, public testing::WithParamInterface<CasoResposta> {};
// On purpose: asked twice, and only the second answer counts.
TEST_P(RespostaDosCheques, OnlyTheSecondCounts)
{
    PoeCheques({"01/02/03", "01/01/03", "01/02/03", "01/01/02", "01/01/01"});
    AbreRespondendo({GetParam().primeira, GetParam().segunda});
    EXPECT_EQ(CaixasDoInicio(), "QQ") << "a Yes covers the rest, a No ends the walk";
    EXPECT_EQ(Datas(),
              GetParam().exclui ? "01/02/03 01/02/03" : "01/02/03 01/01/03 01/02/03 01/01/02 01/01/01");
}
INSTANTIATE_TEST_SUITE_P(Respostas, RespostaDosCheques,
                         testing::Values(CasoResposta{"YesYes", kSim, kSim, true},
                                         CasoResposta{"NoYes", kNao, kSim, true},
                                         CasoResposta{"YesNo", kSim, kNao, false},
                                         CasoResposta{"NoNo", kNao, kNao, false}),
                         kNomeDoCaso);

TEST_F(ChequesAntigos, EscIsANo)
{
    PoeCheques({"01/01/03"});
    m_caixas->Responde(kSim);
    m_caixas->AoAbrir([this](QMessageBox &) {
        m_caixas->AoAbrir([](QMessageBox &caixa) { QTest::keyClick(&caixa, Qt::Key_Escape); });
    });
    Abre();
    EXPECT_EQ(CaixasDoInicio(), "QQ");
    EXPECT_EQ(Datas(), "01/01/03");
}

TEST_F(ChequesAntigos, AfterANoTheQuestionComesAtTheNextStart)
{
    PoeCheques({"01/01/03", "01/01/02"});
    AbreRespondendo({kSim, kNao});
    ASSERT_EQ(Datas(), "01/01/03 01/01/02");
    AbreRespondendo({kSim, kSim});
    EXPECT_EQ(CaixasDoInicio(), "QQ");
    EXPECT_EQ(Datas(), "");
    Abre();
    EXPECT_EQ(CaixasDoInicio(), "") << "nothing old is left";
}

TEST_F(ChequesAntigos, RowsWithoutADateArePassedOver)
{
    PoeCheques({"", QString(), "01/01/03", QString(), "", "01/02/03"});
    AbreRespondendo({kSim, kSim});
    EXPECT_EQ(Datas(), " NULL NULL  01/02/03");
}

TEST_F(ChequesAntigos, CancelledOnesGoLikeTheOthers)
{
    PoeCheque("01/01/03", "C");
    PoeCheque("02/01/03", "C");
    PoeCheque("01/01/03");
    AbreRespondendo({kSim, kSim});
    EXPECT_EQ(Datas(), "02/01/03");
}

TEST_F(ChequesAntigos, ThePeriodIsTheOneOfTheSettings)
{
    Ini("[Opcoes]\nPeriodoRelExc=5\n");
    PoeCheques({"27/01/03", "26/01/03"});
    AbreRespondendo({kSim, kSim});
    EXPECT_EQ(CaixasDoInicio(5), "QQ");
    EXPECT_EQ(Datas(), "27/01/03");
}

TEST_F(ChequesAntigos, TheAgeIsThatOfTheDateAndNotOfTheIndex)
{
    PoeCheques({"01/02/03", "02/02/03", "01/01/03"});
    AbreRespondendo({kSim, kSim});
    EXPECT_EQ(Datas(), "01/02/03 02/02/03");
}

TEST_F(ChequesAntigos, RowsOfAnyNumberGoAndExactlyThose)
{
    m_escritorio.Sql(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
        "INSERT INTO Log (\"Index\", Codigo, Data) SELECT printf('%010d', i), printf('%05d', i % 100000), "
        "CASE WHEN i % 5 IN (1, 3) THEN '01/01/03' WHEN i % 5 = 0 THEN NULL ELSE '02/01/03' END FROM n");
    ASSERT_EQ(m_escritorio.Linhas("SELECT count(*) FROM Log WHERE Data = '01/01/03'")[0][0], "1200");
    AbreRespondendo({kSim, kSim});
    EXPECT_EQ(CaixasDoInicio(), "QQ");
    EXPECT_EQ(m_escritorio.Linhas("SELECT count(*), sum(\"Index\" % 5 IN (0, 2, 4)) FROM Log")[0],
              (QStringList{"1800", "1800"}));
    EXPECT_EQ(m_escritorio.Linhas("PRAGMA integrity_check")[0][0], "ok");
}

// The rows go in groups of 500: the group in which one is refused stays whole, those before it are gone.
TEST_F(ChequesAntigos, ARowRefusedInTheSecondGroupKeepsThatGroupAndTheRest)
{
    m_escritorio.Sql("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1200) "
                     "INSERT INTO Log (\"Index\", Codigo, Data) SELECT printf('%010d', i), "
                     "printf('%05d', i), '01/01/03' FROM n;"
                     "CREATE TRIGGER segura BEFORE DELETE ON Log WHEN old.\"Index\" = '0000000750' "
                     "BEGIN SELECT RAISE(ABORT, 'esta linha fica'); END");
    PoeCopias({"cop0101.03"});
    AbreRespondendo({kSim, kSim, QMessageBox::Ok, kSim});
    EXPECT_EQ(m_escritorio.Linhas("SELECT count(*), min(\"Index\"), max(\"Index\") FROM Log")[0],
              (QStringList{"700", "0000000501", "0000001200"}));
    ASSERT_EQ(m_caixasDoInicio.size(), 4U);
    const apoio::Caixa caixa = m_caixasDoInicio[2];
    EXPECT_TRUE(caixa.texto.startsWith("Ocorreu erro ")) << caixa.texto.toStdString();
    EXPECT_TRUE(caixa.texto.contains("A linha foi recusada pelas regras do banco de dados"))
        << caixa.texto.toStdString();
    EXPECT_TRUE(caixa.texto.contains("esta linha fica")) << caixa.texto.toStdString();
    EXPECT_EQ(caixa.titulo, "QX70 MIRA - Document Printer");
    EXPECT_EQ(caixa.icone, QMessageBox::Warning);
    EXPECT_EQ(m_caixasDoInicio[3].texto, kPerguntaDasCopias.arg(30)) << "the start goes on";
    EXPECT_EQ(Copias(), "");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(Foco(), "Text1(0)");
    m_escritorio.Sql("DROP TRIGGER segura");
    AbreRespondendo({kSim, kSim});
    EXPECT_EQ(Datas(), "") << "the next start offers them again";
}

TEST_F(ChequesAntigos, OtherProgramsReachTheStoreAfterwards)
{
    PoeCheques({"01/01/03", "01/02/03"});
    AbreRespondendo({kSim, kSim});
    m_escritorio.Sql("BEGIN EXCLUSIVE; UPDATE Log SET Local = 'x'; COMMIT");
    EXPECT_EQ(m_escritorio.Linhas("SELECT Local FROM Log")[0][0], "x");
}

TEST_F(ChequesAntigos, TheWaitCursorIsGoneAtTheEnd)
{
    PoeCheques({"01/01/03"});
    AbreRespondendo({kSim, kSim});
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

// What others write while the questions stand counts: the rows are judged again once nobody else can write.
TEST_F(ChequesAntigos, ADateCorrectedDuringTheQuestionsIsRespected)
{
    PoeCheques({"01/01/03", "01/01/03", "02/01/03"});
    m_caixas->Responde(kSim);
    m_caixas->Responde(kSim);
    m_caixas->AoAbrir(
        [this](QMessageBox &) { m_escritorio.Sql("UPDATE Log SET Data = '31/01/03' WHERE rowid = 2"); });
    Abre();
    EXPECT_EQ(Datas(), "31/01/03 02/01/03");
}

TEST_F(ChequesAntigos, TheRowAskedForMayBeGoneBeforeTheAnswer)
{
    PoeCheques({"01/01/03", "01/02/03", "01/01/03"});
    m_caixas->Responde(kSim);
    m_caixas->Responde(kSim);
    m_caixas->AoAbrir([this](QMessageBox &) { m_escritorio.Sql("DELETE FROM Log WHERE rowid = 1"); });
    Abre();
    EXPECT_EQ(Datas(), "01/02/03");
    EXPECT_EQ(CaixasDoInicio(), "QQ");
}

TEST_F(ChequesAntigos, ARowThatTookTheNumberOfAnOldOneStays)
{
    PoeCheques({"01/01/03", "01/01/03"});
    m_caixas->Responde(kSim);
    m_caixas->Responde(kSim);
    m_caixas->AoAbrir([this](QMessageBox &) {
        m_escritorio.Sql("DELETE FROM Log WHERE rowid = 2");
        m_escritorio.Sql(
            "INSERT INTO Log (\"Index\", Codigo, Data) VALUES ('0000000003', '00003', '01/02/03')");
    });
    Abre();
    EXPECT_EQ(Datas(), "01/02/03");
}

// The check of the entry lets such a date through, and the log holds it.
TEST_F(ChequesAntigos, ADateWithTwoBarsTogetherEndsThePurgeAtEveryStart)
{
    PoeCheques({"1//2//99", "01/01/03"});
    Abre();
    ASSERT_EQ(m_caixasDoInicio.size(), 1U);
    EXPECT_EQ(
        m_caixasDoInicio[0].texto.toStdString(),
        "Ocorreu erro 13!\nO cheque de Index 0000000001 tem a data \"1//2//99\", que não pode ser lida. "
        "A exclusão de cheques antigos parou nele.");
    EXPECT_EQ(m_caixasDoInicio[0].titulo, "QX70 MIRA - Document Printer");
    EXPECT_EQ(m_caixasDoInicio[0].icone, QMessageBox::Warning);
    EXPECT_EQ(Datas(), "1//2//99 01/01/03");
}

// The logos and the splash would change under a question otherwise.
TEST_F(ChequesAntigos, TheTimerRestsWhileTheQuestionsStand)
{
    PoeCheques({"01/01/03"});
    bool parado = false;
    m_caixas->AoAbrir([&](QMessageBox &) { parado = !Tela().findChild<QTimer *>("Timer1")->isActive(); });
    AbreRespondendo({kNao, kNao});
    EXPECT_TRUE(parado);
    EXPECT_TRUE(Tela().findChild<QTimer *>("Timer1")->isActive());
}

// The periods of the office cannot be known then.
TEST_F(ChequesAntigos, NothingIsOfferedWhenTheSettingsCannotBeRead)
{
    PoeCheques({"01/01/03"});
    PoeCopias({"cop0101.03"});
    ASSERT_TRUE(QFile::remove(m_escritorio.Arquivo("QX70.INI")));
    ASSERT_TRUE(QDir(m_escritorio.Pasta()).mkdir("QX70.INI"));
    AbreRespondendo({kSim, kSim, kSim});
    ASSERT_EQ(m_caixasDoInicio.size(), 1U) << "only that the settings cannot be used";
    EXPECT_EQ(Datas(), "01/01/03");
    EXPECT_EQ(Copias(), "cop0101.03");
}

struct CasoIlegivel {
    std::string nome;
    QString data;
};
void PrintTo(const CasoIlegivel &c, std::ostream *os)
{
    *os << '"' << c.data.toStdString() << '"';
}
class DataIlegivel : public Expurgo, public testing::WithParamInterface<CasoIlegivel> {};
TEST_P(DataIlegivel, EndsThePurgeOfChequesWithItsRowTold)
{
    PoeCheques({"01/01/03", "01/02/03", GetParam().data, "01/01/03"});
    PoeCopias({"cop0101.03"});
    AbreRespondendo({kSim, kSim});
    ASSERT_EQ(m_caixasDoInicio.size(), 4U);
    const apoio::Caixa caixa = m_caixasDoInicio[2];
    EXPECT_TRUE(caixa.texto.startsWith("Ocorreu erro 13!\n")) << caixa.texto.toStdString();
    EXPECT_TRUE(caixa.texto.contains("0000000003")) << caixa.texto.toStdString();
    EXPECT_TRUE(caixa.texto.contains('"' + GetParam().data + '"')) << caixa.texto.toStdString();
    EXPECT_EQ(caixa.botoes, QMessageBox::Ok);
    EXPECT_EQ(Datas(), "01/02/03 " + GetParam().data.toStdString() + " 01/01/03")
        << "rows deleted before stay deleted, those behind are not reached";
    EXPECT_EQ(m_caixasDoInicio[3].texto, kPerguntaDasCopias.arg(30)) << "the copies are purged all the same";
    EXPECT_EQ(Copias(), "");
}
TEST_P(DataIlegivel, IsToldAlsoWhenNothingIsOld)
{
    PoeCheques({"01/02/03", GetParam().data, "01/01/03"});
    Abre();
    ASSERT_EQ(m_caixasDoInicio.size(), 1U);
    EXPECT_TRUE(m_caixasDoInicio[0].texto.startsWith("Ocorreu erro 13!\n"));
    EXPECT_TRUE(m_caixasDoInicio[0].texto.contains("0000000002"));
    EXPECT_EQ(Datas(), "01/02/03 " + GetParam().data.toStdString() + " 01/01/03");
}
INSTANTIATE_TEST_SUITE_P(Datas, DataIlegivel,
                         testing::Values(CasoIlegivel{"DayThatIsNot", "31/04/02"},
                                         CasoIlegivel{"Month13", "01/13/02"}, CasoIlegivel{"Words", "ontem"},
                                         CasoIlegivel{"WithoutBars", "010103"}),
                         kNomeDoCaso);

// Not empty, so it is read as a date like any other text.
TEST_F(ChequesAntigos, ADateOfOneBlankCannotBeRead)
{
    PoeCheques({" "});
    Abre();
    ASSERT_EQ(m_caixasDoInicio.size(), 1U);
    EXPECT_TRUE(m_caixasDoInicio[0].texto.startsWith("Ocorreu erro 13!\n"));
    EXPECT_TRUE(m_caixasDoInicio[0].texto.contains("0000000001"));
}

TEST_F(ChequesAntigos, AfterANoAnUnreadableDateBehindIsNotReached)
{
    PoeCheques({"01/01/03", "ontem"});
    AbreRespondendo({kSim, kNao});
    EXPECT_EQ(CaixasDoInicio(), "QQ");
}

TEST_F(ChequesAntigos, TheProgramGoesOnBehindAnUnreadableDate)
{
    PoeCheques({"ontem"});
    Abre();
    DigitaEm("Text1(0)", "1");
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Texto("Text1(0)"), "001");
    EXPECT_EQ(NomeDoBanco(), "BANCO UM");
}

TEST_F(ChequesAntigos, AMissingStoreIsToldAndTheCopiesArePurged)
{
    ASSERT_TRUE(QFile::remove(m_escritorio.Arquivo("QX70.MDB")));
    PoeCopias({"cop0101.03", "cop0201.03"});
    AbreRespondendo({QMessageBox::Ok, kSim});
    ASSERT_EQ(m_caixasDoInicio.size(), 2U);
    const apoio::Caixa caixa = m_caixasDoInicio[0];
    EXPECT_EQ(caixa.texto, "O Banco de dados \"QX70.MDB\" nao foi encontrado!");
    EXPECT_EQ(caixa.titulo, "QX70 MIRA - Document Printer");
    EXPECT_EQ(caixa.icone, QMessageBox::NoIcon);
    EXPECT_EQ(caixa.botoes, QMessageBox::Ok);
    EXPECT_EQ(m_caixasDoInicio[1].texto, kPerguntaDasCopias.arg(30));
    EXPECT_EQ(Copias(), "cop0201.03");
    EXPECT_FALSE(QFile::exists(m_escritorio.Arquivo("QX70.MDB")));
}

TEST_F(ChequesAntigos, AStoreWithoutALogIsToldAsMissing)
{
    m_escritorio.Sql("DROP TABLE Log");
    Abre();
    EXPECT_EQ(CaixasDoInicio(), "O Banco de dados \"QX70.MDB\" nao foi encontrado!");
}

} // namespace
