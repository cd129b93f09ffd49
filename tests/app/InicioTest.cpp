// The start of the main screen: settings into the shared variables, the fields, and the order of its steps.
#include "ComMain.h"

#include "cheques/EntradaCheque.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QRadioButton>

using namespace apoio;
using app::ArgumentosLinha;

namespace {

using InicioTest = teste::ComMain;

// --- settings into the shared variables ---

struct CasoChave {
    std::string nome;
    const char *secao;
    const char *chave;
    const char *valor; ///< null: the key is missing
    QString esperado;
    QString depois; ///< what the file holds behind the start; null: no such key
};
void PrintTo(const CasoChave &caso, std::ostream *os)
{
    *os << caso.nome;
}
class ChaveNoInicioTest : public teste::ComMain, public testing::WithParamInterface<CasoChave> {
protected:
    QString Variavel(const QString &chave)
    {
        const nucleo::Sistema &dados = Dados();
        if (chave == "InRel")
            return Controle<QCheckBox>(Tela(), "CheckBox")->isChecked() ? "ticked" : "not ticked";
        if (chave == "port")
            return dados.PortaSerial;
        if (chave == "PeriodoRelExc")
            return QString::number(dados.PeriodoRelExc);
        if (chave == "PeriodoCopExc")
            return QString::number(dados.PeriodoCopExc);
        if (chave == "UsarImpInv")
            return QString::number(dados.UsarImpInv);
        if (chave == "NumCObrig")
            return QString::number(dados.NumCObrig);
        if (chave == "NumChkPgRel")
            return QString::number(dados.NumChkPgRel);
        ADD_FAILURE() << "no variable for " << chave.toStdString();
        return {};
    }
};

TEST_P(ChaveNoInicioTest, FeedsItsVariable)
{
    const CasoChave &caso = GetParam();
    if (caso.valor)
        m_escritorio.GravaIni(
            QString("[%1]\n%2=%3\n").arg(caso.secao, caso.chave, QString::fromLatin1(caso.valor)));
    Inicia();
    EXPECT_EQ(Variavel(caso.chave), caso.esperado);
    EXPECT_EQ(m_escritorio.Chave(caso.secao, caso.chave), caso.depois);
    EXPECT_EQ(m_escritorio.Chave(caso.secao, caso.chave).isNull(), caso.depois.isNull());
}

INSTANTIATE_TEST_SUITE_P(
    InRel, ChaveNoInicioTest,
    testing::Values(CasoChave{"ZeroLeavesItUnticked", "Sistema", "InRel", "0", "not ticked", "0"},
                    CasoChave{"OneTicks", "Sistema", "InRel", "1", "ticked", "1"},
                    CasoChave{"MissingTicksAndIsWritten", "Sistema", "InRel", nullptr, "ticked", "1"},
                    CasoChave{"EmptyReadsAsZero", "Sistema", "InRel", "", "not ticked", ""},
                    CasoChave{"WordReadsAsZero", "Sistema", "InRel", "sim", "not ticked", "sim"},
                    CasoChave{"AnyOtherNumberBecomesOne", "Sistema", "InRel", "7", "ticked", "1"},
                    CasoChave{"NegativeBecomesOne", "Sistema", "InRel", "-1", "ticked", "1"}),
    [](const auto &caso) { return caso.param.nome; });

INSTANTIATE_TEST_SUITE_P(
    Porta, ChaveNoInicioTest,
    testing::Values(CasoChave{"Given", "Sistema", "port", "COM4", "COM4", "COM4"},
                    CasoChave{"OnlyFourCharactersCount", "Sistema", "port", "COM3: 9600", "COM3",
                              "COM3: 9600"},
                    CasoChave{"MissingIsSecondPortAndWritten", "Sistema", "port", nullptr, "COM2", "COM2"},
                    CasoChave{"NegativeNumberIsSecondPort", "Sistema", "port", "-7", "COM2", "COM2"},
                    CasoChave{"EmptyStaysEmpty", "Sistema", "port", "", "", ""}),
    [](const auto &caso) { return caso.param.nome; });

INSTANTIATE_TEST_SUITE_P(
    Opcoes, ChaveNoInicioTest,
    testing::Values(CasoChave{"ChequesAgeMissing", "Opcoes", "PeriodoRelExc", nullptr, "30", {}},
                    CasoChave{"ChequesAgeGiven", "Opcoes", "PeriodoRelExc", "45", "45", "45"},
                    CasoChave{"ChequesAgeEmpty", "Opcoes", "PeriodoRelExc", "", "0", ""},
                    CasoChave{"ChequesAgeLeadingDigits", "Opcoes", "PeriodoRelExc", "12 dias", "12",
                              "12 dias"},
                    CasoChave{"CopiesAgeMissing", "Opcoes", "PeriodoCopExc", nullptr, "30", {}},
                    CasoChave{"CopiesAgeGiven", "Opcoes", "PeriodoCopExc", "7", "7", "7"},
                    CasoChave{"InvertedPrintingMissing", "Opcoes", "UsarImpInv", nullptr, "1", {}},
                    CasoChave{"InvertedPrintingOff", "Opcoes", "UsarImpInv", "0", "0", "0"},
                    CasoChave{"CompulsoryNumberMissing", "Opcoes", "NumCObrig", nullptr, "1", {}},
                    CasoChave{"CompulsoryNumberOff", "Opcoes", "NumCObrig", "0", "0", "0"},
                    CasoChave{"CompulsoryNumberEmpty", "Opcoes", "NumCObrig", "", "0", ""},
                    CasoChave{"ChequesAPageMissing", "Opcoes", "NumChkPgRel", nullptr, "55", {}},
                    CasoChave{"ChequesAPageGiven", "Opcoes", "NumChkPgRel", "20", "20", "20"}),
    [](const auto &caso) { return caso.param.nome; });

TEST_F(InicioTest, MissingSettingsFileIsMadeWithTheTwoKeysOnly)
{
    Inicia();
    const QStringList linhas = m_escritorio.LeIni().split("\r\n", Qt::SkipEmptyParts);
    ASSERT_EQ(linhas.value(0), "[Sistema]");
    EXPECT_EQ(QStringList(linhas.mid(1)).replaceInStrings(" ", "").join('|'), "InRel=1|port=COM2");
    EXPECT_EQ(QDir(m_escritorio.Pasta()).entryList({"qx70.ini"}, QDir::Files).size(), 1);
    EXPECT_EQ(m_caixas.Quantas(), 0U);
}

TEST_F(InicioTest, StartWritesNothingIntoACompleteSettingsFile)
{
    const QString completo = "; do escritorio\n[Sistema]\nInRel=0\nport=COM1\n[Opcoes]\nUsaData=5\n"
                             "ConfiguraData=3\n[Outra]\nx=y\n";
    m_escritorio.GravaIni(completo);
    Inicia();
    EXPECT_EQ(m_escritorio.LeIni(), QString(completo).replace("\n", "\r\n"));
}

TEST_F(InicioTest, SettingsFileOfRubbishStartsWithTheDefaults)
{
    PoeArquivo("QX70.INI", QByteArray("\0\xff[[=]\r=\n\r[Sistema\r\nport=COM4\x01\n", 31));
    Inicia();
    EXPECT_TRUE(Tela().isVisible());
    EXPECT_EQ(Dados().PortaSerial, "COM2");
    EXPECT_EQ(Dados().NumChkPgRel, 55);
    EXPECT_TRUE(Controle<QCheckBox>(Tela(), "CheckBox")->isChecked());
}

TEST_F(InicioTest, SettingsThatCannotBeReadAreToldOnceAndNothingIsPurged)
{
    ASSERT_TRUE(QDir(m_escritorio.Pasta()).mkdir("QX70.INI"));
    m_escritorio.Sql("INSERT INTO Log (\"Index\", Codigo, Data) VALUES ('0000000001', '00001', '01/01/98')");
    PoeArquivo("cop0101.98", "x");
    Inicia();
    ASSERT_EQ(m_caixas.Quantas(), 1U) << "the office's own periods are not known";
    EXPECT_TRUE(m_caixas.Vistas()[0].texto.contains("QX70.INI"));
    EXPECT_EQ(m_escritorio.Linhas("SELECT * FROM Log").size(), 1);
    EXPECT_TRUE(QFile::exists(m_escritorio.Arquivo("cop0101.98")));
    EXPECT_TRUE(Tela().isVisible());
    EXPECT_EQ(Dados().PortaSerial, "COM2");
    EXPECT_TRUE(Controle<QCheckBox>(Tela(), "CheckBox")->isChecked());
}

// --- shared variables ---

struct CasoHoje {
    std::string nome;
    QDate dia;
    const char *hoje;
    const char *mesAno;
};
void PrintTo(const CasoHoje &caso, std::ostream *os)
{
    *os << caso.nome;
}
class HojeTest : public teste::ComMain, public testing::WithParamInterface<CasoHoje> {};
TEST_P(HojeTest, IsKeptInSixDigits)
{
    m_relogio.Acerta(GetParam().dia);
    Inicia();
    EXPECT_EQ(Dados().DataHoje, GetParam().hoje);
    EXPECT_EQ(Dados().MesAnoHoje, GetParam().mesAno);
}
INSTANTIATE_TEST_SUITE_P(Dias, HojeTest,
                         testing::Values(CasoHoje{"OneDigitDay", QDate(1999, 3, 5), "050399", "0399"},
                                         CasoHoje{"LastDayOfYear", QDate(2000, 12, 31), "311200", "1200"},
                                         CasoHoje{"LeapDay", QDate(2024, 2, 29), "290224", "0224"}),
                         [](const auto &caso) { return caso.param.nome; });

TEST_F(InicioTest, SharedVariablesAreSetAnew)
{
    Monta();
    Dados().JanelaConfigurador = "QX70CFG";
    Dados().ValidaCampos = 0;
    Dados().TextoPesquisa = "999";
    Dados().FechaTela = 1;
    Tela().IniciaAplicacao({});
    EXPECT_EQ(Dados().JanelaConfigurador, "0");
    EXPECT_EQ(Dados().ArquivoDados, "QX70.MDB");
    EXPECT_EQ(Dados().ValidaCampos, 1);
    EXPECT_EQ(Dados().TextoPesquisa, "");
    EXPECT_EQ(Dados().FechaTela, 0);
    EXPECT_EQ(Texto(Tela(), "Text1(0)"), "") << "a text of an old search must not arrive in the first field";
}

// --- fields ---

const QString kFrente = "[FrenteInfo]\nNumBanco=341\nValor=10\nFavorecido=Jos\u00e9\nCidade=Santos\n"
                        "Campo00=um\nCampo01=dois\nCampo02=tr\u00eas\n"
                        "[Verso]\nLinha00=primeira\nLinha03= \nLinha09=\u00faltima\n";

TEST_F(InicioTest, FieldsTakeWhatWasSavedWithoutBeingChecked)
{
    m_escritorio.GravaIni(kFrente);
    m_escritorio.Sql("INSERT INTO Bancos (Codigo, Nome) VALUES ('341', 'Banco de Prova')");
    Inicia();
    QStringList frente;
    for (const char *nome : {"Text1(0)", "Text1(1)", "Text1(2)", "Text1(3)", "Text1(4)", "Text1(6)",
                             "TxtCpo(0)", "TxtCpo(1)", "TxtCpo(2)"})
        frente << Texto(Tela(), nome);
    EXPECT_EQ(frente.join('|'), QString("341|10|Jos\u00e9|Santos|||um|dois|tr\u00eas"));
    EXPECT_EQ(Controle<QLabel>(Tela(), "Label1(6)")->text(), "") << "no field was left";
    QStringList verso;
    for (int i = 0; i < 10; ++i)
        verso << Texto(Tela(), QString("Text2(%1)").arg(i));
    EXPECT_EQ(verso.join('|'), QString("primeira||| ||||||\u00faltima"));
}

TEST_F(InicioTest, SavedTextTooLongIsCutBeforeTheScreenIsShown)
{
    m_escritorio.GravaIni("[FrenteInfo]\nNumBanco=12345\n");
    Monta();
    bool mostrada = true;
    m_caixas.AoAbrir([&](QMessageBox &) { mostrada = Tela().isVisible(); });
    Tela().IniciaAplicacao({});
    EXPECT_EQ(Texto(Tela(), "Text1(0)"), "123");
    EXPECT_EQ(m_caixas.Quantas(), 1U);
    EXPECT_EQ(m_caixas.Ultima().texto, QString::fromUtf8("Tamanho Máximo deste campo..."));
    EXPECT_FALSE(mostrada) << "the fields are reset before the screen is shown";
}

// --- arguments ---

struct CasoArgumento {
    std::string nome;
    std::size_t indice;
    const char *campo;
    QString valor;
};
void PrintTo(const CasoArgumento &caso, std::ostream *os)
{
    *os << caso.nome;
}
class ArgumentoTest : public teste::ComMain, public testing::WithParamInterface<CasoArgumento> {};
TEST_P(ArgumentoTest, ReachesItsFieldOverTheSavedText)
{
    m_escritorio.GravaIni(kFrente);
    ArgumentosLinha argumentos;
    argumentos[GetParam().indice] = GetParam().valor;
    Inicia(argumentos);
    EXPECT_EQ(Texto(Tela(), GetParam().campo), GetParam().valor);
    EXPECT_EQ(m_caixas.Quantas(), 0U);
}
INSTANTIATE_TEST_SUITE_P(Campos, ArgumentoTest,
                         testing::Values(CasoArgumento{"Bank", 0, "Text1(0)", "1"},
                                         CasoArgumento{"Value", 1, "Text1(1)", "150,00"},
                                         CasoArgumento{"Payee", 2, "Text1(2)", "Maria \u00c7"},
                                         CasoArgumento{"City", 3, "Text1(3)", "Recife"},
                                         CasoArgumento{"DateAsItStands", 4, "Text1(4)", "010299"},
                                         CasoArgumento{"Number", 6, "Text1(6)", "000123"}),
                         [](const auto &caso) { return caso.param.nome; });

TEST_F(InicioTest, EmptyArgumentsLeaveTheSavedTexts)
{
    m_escritorio.GravaIni(kFrente);
    Inicia({"", "", "", "", "010299"});
    EXPECT_EQ(Texto(Tela(), "Text1(0)"), "341");
    EXPECT_EQ(Texto(Tela(), "Text1(3)"), "Santos");
}

TEST_F(InicioTest, ArgumentsOfFieldsThatAreNotThereAreIgnored)
{
    ArgumentosLinha argumentos;
    argumentos[5] = "cinco";
    argumentos[7] = "sete";
    Inicia(argumentos);
    for (const auto *campo : Tela().findChildren<QLineEdit *>())
        EXPECT_EQ(campo->text(), "") << campo->objectName().toStdString();
}

TEST_F(InicioTest, ArgumentTooLongMeetsTheChangeRule)
{
    Inicia({"", "", "", "Sao Jose do Vale do Rio Preto"});
    EXPECT_EQ(Texto(Tela(), "Text1(3)"), "Sao Jose do Val");
    EXPECT_EQ(m_caixas.Quantas(), 1U);
    EXPECT_EQ(m_caixas.Ultima().titulo, "Erro");
}

TEST_F(InicioTest, ArgumentsAreForgottenOnceTheyStandInTheFields)
{
    m_escritorio.GravaIni(kFrente);
    Inicia({"237", "99,00"});
    Tela().Entrada().LimpaCheque();
    EXPECT_EQ(Texto(Tela(), "Text1(0)"), "341");
    EXPECT_EQ(Texto(Tela(), "Text1(1)"), "10");
}

// --- date form ---

struct CasoForma {
    std::string nome;
    const char *valor; ///< null: no key
    const char *opcao; ///< the option selected; empty: none
    const char *comando;
    const char *depois;
};
void PrintTo(const CasoForma &caso, std::ostream *os)
{
    *os << caso.nome;
}
class FormaDaDataTest : public teste::ComMain, public testing::WithParamInterface<CasoForma> {};
TEST_P(FormaDaDataTest, IsSelectedAndTheDeviceTold)
{
    const CasoForma &caso = GetParam();
    m_escritorio.GravaIni(caso.valor
                              ? QString("[Sistema]\nport=COM3\n[Opcoes]\nConfiguraData=%1\n").arg(caso.valor)
                              : QString("[Sistema]\nport=COM3\n"));
    Inicia();
    QStringList marcadas;
    for (const char *nome : {"Option1", "Option2", "Option3"}) {
        if (Controle<QRadioButton>(Tela(), nome)->isChecked())
            marcadas << nome;
    }
    EXPECT_EQ(marcadas.join('|'), caso.opcao);
    const QStringList esperadas =
        *caso.comando ? QStringList{"IniciaPorta(\"COM3\")", caso.comando, "FechaPorta()"} : QStringList{};
    EXPECT_EQ(Chamadas().join('|'), esperadas.join('|'));
    EXPECT_EQ(m_escritorio.Chave("Opcoes", "ConfiguraData"), QString(caso.depois));
}
INSTANTIATE_TEST_SUITE_P(
    Formas, FormaDaDataTest,
    testing::Values(CasoForma{"OneDigit", "1", "Option1", R"(ComandoTX("\x1B\xAFD1\x0D",5))", "1"},
                    CasoForma{"TwoDigits", "2", "Option2", R"(ComandoTX("\x1B\xAFD2\x0D",5))", "2"},
                    CasoForma{"FourDigits", "4", "Option3", R"(ComandoTX("\x1B\xAFD4\x0D",5))", "4"},
                    CasoForma{"NumberInOtherWordsIsWrittenAsTheClickDoes", "04", "Option3",
                              R"(ComandoTX("\x1B\xAFD4\x0D",5))", "4"},
                    CasoForma{"ThreeSelectsNone", "3", "", "", "3"},
                    CasoForma{"EmptySelectsNone", "", "", "", ""},
                    CasoForma{"MissingSelectsNone", nullptr, "", "", ""}),
    [](const auto &caso) { return caso.param.nome; });

TEST_F(InicioTest, PortThatDoesNotOpenIsNoFailureOfTheStart)
{
    m_escritorio.GravaIni("[Opcoes]\nConfiguraData=2\n");
    PoeArquivo("roteiro.txt", "resultado IniciaPorta 0\nresultado ComandoTX 10\n");
    Inicia();
    EXPECT_EQ(Chamadas().size(), 3);
    EXPECT_EQ(m_caixas.Quantas(), 0U);
    EXPECT_TRUE(Controle<QRadioButton>(Tela(), "Option2")->isChecked());
}

// --- order ---

// The box about the faulty library stands while the date form is set: what is done by then, and what is not.
TEST_F(InicioTest, DateFormComesBehindTheScreenAndBeforeTheRest)
{
    m_escritorio.GravaIni(kFrente + "[Opcoes]\nConfiguraData=2\nNumCObrig=0\nNumChkPgRel=20\n"
                                    "PeriodoRelExc=90\nPeriodoCopExc=80\nUsarImpInv=0\n"
                                    "[Sistema]\nInRel=0\nport=COM1\n");
    PoeBiblioteca(GRAVADORA_INCOMPLETA);
    QFile::remove(m_escritorio.Arquivo("QX70.MDB"));
    Monta();
    Dados().FechaTela = 1;
    QStringList visto;
    m_caixas.AoAbrir([&](QMessageBox &) {
        const nucleo::Sistema &d = Dados();
        visto << (Tela().isVisible() ? "shown" : "hidden") << Texto(Tela(), "Text1(0)")
              << Texto(Tela(), "Text2(0)") << d.DataHoje << d.PortaSerial << QString::number(d.PeriodoRelExc)
              << QString::number(d.PeriodoCopExc) << QString::number(d.UsarImpInv)
              << QString::number(d.NumCObrig) << QString::number(d.NumChkPgRel)
              << QString::number(d.FechaTela);
    });
    Tela().IniciaAplicacao({"237"});
    EXPECT_EQ(visto.join('|'), "shown|341|primeira|050399|COM1|90|80|0|1|55|1");
    ASSERT_EQ(m_caixas.Quantas(), 2U);
    EXPECT_EQ(m_caixas.Ultima().texto, "O Banco de dados \"QX70.MDB\" nao foi encontrado!");
    EXPECT_EQ(Dados().NumCObrig, 0);
    EXPECT_EQ(Dados().NumChkPgRel, 20);
    EXPECT_EQ(Dados().FechaTela, 0);
}

TEST_F(InicioTest, MissingStoreIsToldAtTheVeryEndAndTheScreenStaysUsable)
{
    m_escritorio.GravaIni(kFrente + "[Opcoes]\nConfiguraData=1\nNumChkPgRel=20\n");
    QFile::remove(m_escritorio.Arquivo("QX70.MDB"));
    Monta();
    QStringList visto;
    m_caixas.AoAbrir([&](QMessageBox &) {
        visto << QString::number(Chamadas().size()) << Texto(Tela(), "Text1(0)") << Texto(Tela(), "Text1(1)")
              << QString::number(Dados().NumChkPgRel);
    });
    Tela().IniciaAplicacao({"237"});
    EXPECT_EQ(visto.join('|'), "3|237|10|20");
    ASSERT_EQ(m_caixas.Quantas(), 1U);
    EXPECT_EQ(m_caixas.Ultima().texto, "O Banco de dados \"QX70.MDB\" nao foi encontrado!");
    Ativa();
    ClicaEm(Tela(), "Text1(2)");
    Digita(Tela(), "Ana");
    EXPECT_EQ(Texto(Tela(), "Text1(2)"), "Ana");
    EXPECT_FALSE(QFile::exists(m_escritorio.Arquivo("QX70.MDB"))) << "no empty store is made";
}

TEST_F(InicioTest, FocusStartsInTheBankField)
{
    Inicia();
    Ativa();
    EXPECT_EQ(Foco(Tela()), "Text1(0)");
}

} // namespace
