// The extra fields of the front at printing: places read from the settings, refusals, and what goes to the
// device.
#include "ComEntrada.h"

using namespace teste;

namespace {

class CamposExtras : public ComEntrada {
protected:
    void AbreCom(const QString &posicoes)
    {
        Ini("[FrenteInfo]\n" + posicoes);
        Abre();
        PreencheCheque();
    }
    void Imprime() { Clica("Opcoes(0)"); }
    [[nodiscard]] QStringList CamposEnviados() const
    {
        return m_gravadora.Chamadas().filter("ImprimeCampoX");
    }
    void EsperaRecusa(const QString &texto)
    {
        EsperaCaixa(texto, "Impressão do Cheque", QMessageBox::NoIcon);
        EXPECT_TRUE(m_gravadora.Chamadas().isEmpty());
        EXPECT_TRUE(Log().isEmpty());
    }
    const QString m_todas = "Campo00Lin=1\nCampo00Col=10\nCampo01Lin=2\nCampo01Col=20\n"
                            "Campo02Lin=3\nCampo02Col=30\n";
};

TEST_F(CamposExtras, FilledOnesGoOutBeforeTheQuestionAndThePort)
{
    AbreCom(m_todas);
    Poe("TxtCpo(0)", "um");
    Poe("TxtCpo(1)", "dois");
    Poe("TxtCpo(2)", "tres");
    const QStringList campos = {R"(ImprimeCampoX(1,1,10,"um"))", R"(ImprimeCampoX(2,2,20,"dois"))",
                                R"(ImprimeCampoX(3,3,30,"tres"))"};
    QStringList antes;
    m_caixas->AoAbrir([&](QMessageBox &) { antes = m_gravadora.Chamadas(); });
    Imprime();
    EXPECT_EQ(antes, campos);
    ASSERT_EQ(m_gravadora.Chamadas().size(), 6);
    EXPECT_EQ(m_gravadora.Chamadas()[3], R"(IniciaPorta("COM2"))");
    EXPECT_TRUE(m_gravadora.Chamadas()[4].startsWith("ImprimeCheque("));
    EXPECT_EQ(m_gravadora.Chamadas()[5], "FechaPorta()");
    EXPECT_EQ(Log().size(), 1);
}

TEST_F(CamposExtras, PlaceWithoutATextIsSkipped)
{
    AbreCom(m_todas);
    Poe("TxtCpo(1)", "dois");
    Imprime();
    EXPECT_EQ(CamposEnviados(), QStringList{R"(ImprimeCampoX(2,2,20,"dois"))"});
}

TEST_F(CamposExtras, PlaceOutOfRangeWithoutATextIsSkipped)
{
    AbreCom("Campo00Lin=21\nCampo00Col=500\n");
    Imprime();
    EXPECT_EQ(m_gravadora.Chamadas().size(), 3);
    EXPECT_EQ(Log().size(), 1);
}

TEST_F(CamposExtras, TextGoesOutAsItStands)
{
    AbreCom(m_todas);
    Poe("TxtCpo(0)", " São ");
    Imprime();
    EXPECT_EQ(CamposEnviados(), QStringList{R"(ImprimeCampoX(1,1,10," S\xE3o "))"});
}

TEST_F(CamposExtras, CharacterBelowTheDigitsBehindAPlaceIsDropped)
{
    AbreCom("Campo00Lin=5-\nCampo00Col=12.\n");
    Poe("TxtCpo(0)", "x");
    Imprime();
    EXPECT_EQ(CamposEnviados(), QStringList{R"(ImprimeCampoX(1,5,12,"x"))"});
}

TEST_F(CamposExtras, ResultOfTheLibraryIsNotTested)
{
    m_gravadora.Roteiro("resultado ImprimeCampoX 0\n");
    AbreCom(m_todas);
    Poe("TxtCpo(0)", "um");
    Poe("TxtCpo(1)", "dois");
    Imprime();
    EXPECT_EQ(m_gravadora.Chamadas().size(), 5);
    EXPECT_EQ(m_caixas->Quantas(), 1U);
    EXPECT_EQ(Log().size(), 1);
}

TEST_F(CamposExtras, CancelLeavesThemInTheLibrary)
{
    AbreCom(m_todas);
    Poe("TxtCpo(0)", "um");
    m_caixas->Responde(QMessageBox::Cancel);
    Imprime();
    EXPECT_EQ(m_gravadora.Chamadas(), QStringList{R"(ImprimeCampoX(1,1,10,"um"))"});
    EXPECT_TRUE(Log().isEmpty());
}

struct CasoRecusado {
    std::string nome;
    QString posicoes;
    std::array<QString, 3> textos;
    QString mensagem;
};
void PrintTo(const CasoRecusado &c, std::ostream *os)
{
    *os << c.nome;
}
class ExtrasRecusados : public CamposExtras, public testing::WithParamInterface<CasoRecusado> {};
TEST_P(ExtrasRecusados, AreToldAndNothingIsPrinted)
{
    AbreCom(GetParam().posicoes);
    for (int i = 0; i < 3; ++i)
        Poe(QString("TxtCpo(%1)").arg(i), GetParam().textos[static_cast<size_t>(i)]);
    Imprime();
    EsperaRecusa(GetParam().mensagem);
}
INSTANTIATE_TEST_SUITE_P(
    SemPosicao, ExtrasRecusados,
    testing::Values(CasoRecusado{"NoKeys",
                                 "",
                                 {"x", "", ""},
                                 "Valores de posicao nao cadastrados na impressao do campo1!\n"},
                    CasoRecusado{"NoColumn",
                                 "Campo01Lin=5\n",
                                 {"", "x", ""},
                                 "Valores de posicao nao cadastrados na impressao do campo2!\n"},
                    CasoRecusado{"NoLine",
                                 "Campo02Col=5\n",
                                 {"", "", "x"},
                                 "Valores de posicao nao cadastrados na impressao do campo3!\n"},
                    CasoRecusado{"KeyOfMinusTwo",
                                 "Campo00Lin=-2\nCampo00Col=5\n",
                                 {"x", "", ""},
                                 "Valores de posicao nao cadastrados na impressao do campo1!\n"},
                    CasoRecusado{"GoodFieldBeforeIsNotSentEither",
                                 "Campo00Lin=1\nCampo00Col=1\n",
                                 {"a", "b", ""},
                                 "Valores de posicao nao cadastrados na impressao do campo2!\n"}),
    kNomeDoCaso);
INSTANTIATE_TEST_SUITE_P(
    ForaDoLimite, ExtrasRecusados,
    testing::Values(CasoRecusado{"100CharactersAtColumn20",
                                 "Campo00Lin=1\nCampo00Col=20\n",
                                 {QString(100, 'x'), "", ""},
                                 "Valores de posicao incorretos na impressao do campo1!\n"
                                 "Linha =1 e Coluna = 20 + texto de tamanho 100!"},
                    CasoRecusado{"Line21",
                                 "Campo02Lin=21\nCampo02Col=7\n",
                                 {"", "", "abc"},
                                 "Valores de posicao incorretos na impressao do campo3!\n"
                                 "Linha =21 e Coluna = 7 + texto de tamanho 3!"}),
    kNomeDoCaso);

TEST_F(CamposExtras, HundredCharactersAtColumn19Pass)
{
    AbreCom("Campo00Lin=20\nCampo00Col=19\n");
    Poe("TxtCpo(0)", QString(100, 'x'));
    Imprime();
    EXPECT_EQ(CamposEnviados(), QStringList{"ImprimeCampoX(1,20,19,\"" + QString(100, 'x') + "\")"});
    EXPECT_EQ(Log().size(), 1);
}

} // namespace
