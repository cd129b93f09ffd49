// The purge of copy files at a real start: which names go, from where, and what happens when one cannot.
#include "ComExpurgo.h"

using namespace teste;

namespace {

using CopiasAntigas = Expurgo;

TEST_F(CopiasAntigas, AreAskedForOnce)
{
    PoeCopias({"cop0101.03", "cop0112.02"});
    Abre();
    ASSERT_EQ(m_caixasDoInicio.size(), 1U);
    EsperaPergunta(m_caixasDoInicio[0], kPerguntaDasCopias.arg(30));
    EXPECT_EQ(Copias(), "");
}

TEST_F(CopiasAntigas, OfNoneNothingIsAsked)
{
    PoeCopias({"cop0102.03", "cop.txt"});
    Abre();
    EXPECT_EQ(CaixasDoInicio(), "");
    EXPECT_EQ(Copias(), "cop.txt cop0102.03");
}

TEST_F(CopiasAntigas, ANoLeavesThemAllAndComesAgain)
{
    PoeCopias({"cop0101.03", "cop0112.02"});
    AbreRespondendo({kNao});
    EXPECT_EQ(CaixasDoInicio(), "C");
    EXPECT_EQ(Copias(), "cop0101.03 cop0112.02");
    AbreRespondendo({kSim});
    EXPECT_EQ(CaixasDoInicio(), "C");
    EXPECT_EQ(Copias(), "");
}

TEST_F(CopiasAntigas, AreAskedForBehindTheCheques)
{
    PoeCheques({"01/01/03"});
    PoeCopias({"cop0101.03"});
    AbreRespondendo({kSim, kNao, kSim});
    EXPECT_EQ(CaixasDoInicio(), "QQC");
    EXPECT_EQ(Datas(), "01/01/03");
    EXPECT_EQ(Copias(), "");
}

TEST_F(CopiasAntigas, HaveAPeriodOfTheirOwn)
{
    Ini("[Opcoes]\nPeriodoRelExc=3650\nPeriodoCopExc=5\n");
    PoeCheques({"01/01/03"});
    PoeCopias({"cop2701.03", "cop2601.03"});
    Abre();
    EXPECT_EQ(CaixasDoInicio(5), "C");
    EXPECT_EQ(Copias(), "cop2701.03");
    EXPECT_EQ(Datas(), "01/01/03");
}

struct CasoCopia {
    std::string nome;
    QString arquivo;
    bool vai;
};
void PrintTo(const CasoCopia &c, std::ostream *os)
{
    *os << c.arquivo.toStdString();
}
class NomeDaCopia : public Expurgo, public testing::WithParamInterface<CasoCopia> {};
TEST_P(NomeDaCopia, DecidesWhetherItGoes)
{
    PoeCopias({GetParam().arquivo});
    AbreRespondendo({kSim});
    EXPECT_EQ(CaixasDoInicio(), GetParam().vai ? "C" : "");
    EXPECT_EQ(QFile::exists(m_escritorio.Arquivo(GetParam().arquivo)), !GetParam().vai);
}
INSTANTIATE_TEST_SUITE_P(
    Nomes, NomeDaCopia,
    testing::Values(CasoCopia{"Usual", "cop0102.99", true}, CasoCopia{"ThirtyDays", "cop0201.03", false},
                    CasoCopia{"ThirtyOneDays", "cop0101.03", true},
                    CasoCopia{"InTheFuture", "cop1506.03", false}, CasoCopia{"Capitals", "COP0102.99", true},
                    CasoCopia{"MixedCase", "Cop0102.99", true},
                    CasoCopia{"YearOfTwentyNineIsToCome", "cop0101.29", false},
                    CasoCopia{"YearOfThirtyIsLongGone", "cop0101.30", true},
                    CasoCopia{"OtherLength", "cop.txt", false},
                    CasoCopia{"OneCharacterLess", "cop102.99", false},
                    CasoCopia{"OneCharacterMore", "cop0102.999", false},
                    CasoCopia{"Month13", "cop0113.99", false}, CasoCopia{"DayThatIsNot", "cop3104.99", false},
                    CasoCopia{"TenLettersWithoutADate", "copias.txt", false},
                    CasoCopia{"OtherBeginning", "cap0102.99", false}),
    kNomeDoCaso);

TEST_F(CopiasAntigas, OnlyTheOldOnesGo)
{
    PoeCopias({"cop.txt", "cop0101.03", "cop0102.03", "cop0112.02", "cop0201.03", "copias.txt"});
    AbreRespondendo({kSim});
    EXPECT_EQ(Copias(), "cop.txt cop0102.03 cop0201.03 copias.txt");
}

TEST_F(CopiasAntigas, AFolderOfSuchANameIsLeftAlone)
{
    ASSERT_TRUE(QDir(m_escritorio.Pasta()).mkdir("cop0102.99"));
    Abre();
    EXPECT_EQ(CaixasDoInicio(), "");
    EXPECT_EQ(Copias(), "cop0102.99");
}

TEST_F(CopiasAntigas, FilesInFoldersOfTheOfficeAreLeftAlone)
{
    ASSERT_TRUE(QDir(m_escritorio.Pasta()).mkdir("velhas"));
    PoeArquivo(m_escritorio.Arquivo("velhas/cop0102.99"));
    Abre();
    EXPECT_EQ(CaixasDoInicio(), "");
    EXPECT_TRUE(QFile::exists(m_escritorio.Arquivo("velhas/cop0102.99")));
}

TEST_F(CopiasAntigas, AreThoseOfTheOfficeWhereverTheProgramWasStarted)
{
    const QTemporaryDir outra;
    PoeArquivo(outra.filePath("cop0102.99"));
    PoeCopias({"cop0102.99"});
    ASSERT_TRUE(QDir::setCurrent(outra.path()));
    AbreRespondendo({kSim});
    EXPECT_EQ(Copias(), "");
    EXPECT_TRUE(QFile::exists(outra.filePath("cop0102.99")));
    QDir::setCurrent(m_escritorio.Pasta());
}

TEST_F(CopiasAntigas, AreThoseOfTheOfficeAlsoWithoutAStore)
{
    ASSERT_TRUE(QFile::remove(m_escritorio.Arquivo("QX70.MDB")));
    const QTemporaryDir outra;
    PoeArquivo(outra.filePath("cop0102.99"));
    PoeCopias({"cop0102.99"});
    ASSERT_TRUE(QDir::setCurrent(outra.path()));
    AbreRespondendo({QMessageBox::Ok, kSim});
    EXPECT_EQ(Copias(), "");
    EXPECT_TRUE(QFile::exists(outra.filePath("cop0102.99")));
    QDir::setCurrent(m_escritorio.Pasta());
}

/// A copy that goes away, or cannot go, while the question stands.
class CopiaQueNaoVai : public Expurgo {
protected:
    void AbreMudando(const std::function<void()> &muda)
    {
        PoeCopias({"cop0101.03", "cop0112.02"});
        m_caixas->AoAbrir([muda](QMessageBox &) { muda(); });
        AbreRespondendo({kSim});
        ASSERT_EQ(m_caixasDoInicio.size(), 2U);
        EXPECT_EQ(m_caixasDoInicio[0].texto, kPerguntaDasCopias.arg(30));
    }
    void EsperaErro(int numero)
    {
        const QString texto = m_caixasDoInicio[1].texto;
        EXPECT_TRUE(texto.startsWith(QString("Ocorreu erro %1!\n").arg(numero))) << texto.toStdString();
        EXPECT_TRUE(texto.contains("cop0101.03")) << texto.toStdString();
        EXPECT_TRUE(Tela().isVisible());
    }
};

TEST_F(CopiaQueNaoVai, BecauseItIsGoneEndsThePurge)
{
    AbreMudando([this] { QFile::remove(m_escritorio.Arquivo("cop0101.03")); });
    EsperaErro(53);
    EXPECT_EQ(Copias(), "cop0112.02");
}

TEST_F(CopiaQueNaoVai, BecauseItCannotBeDeletedEndsThePurge)
{
    AbreMudando([this] {
        QFile::remove(m_escritorio.Arquivo("cop0101.03"));
        QDir(m_escritorio.Pasta()).mkpath("cop0101.03/cheia");
    });
    EsperaErro(75);
    EXPECT_EQ(Copias(), "cop0101.03 cop0112.02");
}

TEST_F(CopiaQueNaoVai, LeavesTheProgramUsable)
{
    AbreMudando([this] { QFile::remove(m_escritorio.Arquivo("cop0101.03")); });
    PreencheCheque();
    Clica("Opcoes(0)");
    EXPECT_EQ(m_gravadora.Chamadas().size(), 3);
    EXPECT_EQ(Log().size(), 1);
}

} // namespace
