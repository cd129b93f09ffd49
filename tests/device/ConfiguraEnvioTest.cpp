// The buttons of the device's configuration: what is refused, what reaches the device and the settings, what
// is told, and where the focus is afterwards.
#include "ComConfigura.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QProgressBar>

using namespace teste;

namespace {

const char *const kEnviados = "Os dados foram enviados para a impressora.";
const char *const kSemPorta = "Erro de comunicação com a impressora.";

// --- what is refused ---

struct CasoRecusa {
    std::string nome;
    QMap<QString, QString> campos;
    QString botao;
    QString titulo;
    QString texto;
    std::string foco;
};
void PrintTo(const CasoRecusa &c, std::ostream *os)
{
    *os << c.nome;
}
class Recusado : public ComConfigura, public testing::WithParamInterface<CasoRecusa> {};
TEST_P(Recusado, IsToldAndTheFocusGoesToTheBox)
{
    AbreTela();
    for (auto campo = GetParam().campos.begin(); campo != GetParam().campos.end(); ++campo)
        DigitaNela(campo.key(), campo.value());
    const QString antes = m_escritorio.LeIni();
    Clica(GetParam().botao);
    EsperaRecusa(GetParam().texto, GetParam().titulo, GetParam().foco);
    EXPECT_EQ(m_escritorio.LeIni().toStdString(), antes.toStdString());
}
INSTANTIATE_TEST_SUITE_P(
    Botoes, Recusado,
    testing::Values(
        CasoRecusa{"CurrencyWithoutSingular",
                   {{"Text1(0)", ""}},
                   "Command3D1",
                   "Alteração da Moeda",
                   "O nome da moeda no singular não pode ser vazio.",
                   "Text1(0)"},
        CasoRecusa{"CurrencyWithoutPlural",
                   {{"Text1(1)", ""}},
                   "Command3D1",
                   "Alteração da Moeda",
                   "O nome da moeda no plural não pode ser vazio.",
                   "Text1(1)"},
        CasoRecusa{"PayeeWithoutCode",
                   {{"Text2(1)", "Ana"}},
                   "Command3D2",
                   "Cadastro de Favorecido",
                   "O código do favorecido não pode ser vazio.",
                   "Text2(0)"},
        CasoRecusa{"PayeeWhoseCodeIsNoNumber",
                   {{"Text2(1)", "Ana"}, {"Text2(0)", "AB"}},
                   "Command3D2",
                   "Cadastro de Favorecido",
                   "O código do favorecido não pode ser vazio.",
                   "Text2(0)"},
        CasoRecusa{"PayeeWithoutName",
                   {{"Text2(0)", "7"}},
                   "Command3D2",
                   "Cadastro de Favorecido",
                   "O nome do favorecido não pode ser vazio.",
                   "Text2(1)"},
        CasoRecusa{"RemovalWithoutCode",
                   {},
                   "Command3D4",
                   "Exclusão de Favorecidos",
                   "O código do favorecido não pode ser vazio ou a opção 'Todos' deve estar assinalada.",
                   "Text3"},
        CasoRecusa{"RemovalOfATypedStar",
                   {{"Text3", "*"}},
                   "Command3D4",
                   "Exclusão de Favorecidos",
                   "O código do favorecido não pode ser vazio ou a opção 'Todos' deve estar assinalada.",
                   "Text3"}),
    kNomeDoCaso);

// --- what is sent ---

struct CasoEnvio {
    std::string nome;
    QString botao;
    Qt::Key letra;
    QString operacao;
    QString titulo;
    QString erro;
};
void PrintTo(const CasoEnvio &c, std::ostream *os)
{
    *os << c.nome;
}
class Enviado : public ComConfigura, public testing::WithParamInterface<CasoEnvio> {
protected:
    void AbrePreenchida()
    {
        AbreTela();
        DigitaNela("Text1(0)", " Dólar ");
        DigitaNela("Text1(1)", "Dólares");
        DigitaNela("Text2(0)", "7");
        DigitaNela("Text2(1)", " São João ");
        DigitaNela("Text3", "9");
        VaiNelaPara("SSCommand1");
    }
    void EsperaCaixas(const std::vector<std::pair<QString, QMessageBox::Icon>> &esperadas)
    {
        ASSERT_EQ(m_caixas->Quantas(), esperadas.size());
        for (std::size_t i = 0; i < esperadas.size(); ++i) {
            const apoio::Caixa &caixa = m_caixas->Vistas()[i];
            EXPECT_EQ(caixa.texto, esperadas[i].first);
            EXPECT_EQ(caixa.icone, esperadas[i].second);
            EXPECT_EQ(caixa.titulo, GetParam().titulo);
            EXPECT_EQ(caixa.botoes, QMessageBox::Ok);
        }
        EXPECT_EQ(FocoNela(), GetParam().botao.toStdString());
    }
    const QStringList m_chamadas{R"(IniciaPorta("COM2"))", GetParam().operacao, "FechaPorta()"};
};
TEST_P(Enviado, ByClick)
{
    AbrePreenchida();
    Clica(GetParam().botao);
    EXPECT_EQ(m_gravadora.Chamadas(), m_chamadas);
    EsperaCaixas({{kEnviados, QMessageBox::Information}});
}
TEST_P(Enviado, ByEnterOnTheButton)
{
    AbrePreenchida();
    VaiNelaPara(GetParam().botao);
    TeclaNela(Qt::Key_Return);
    EXPECT_EQ(m_gravadora.Chamadas(), m_chamadas);
    EsperaCaixas({{kEnviados, QMessageBox::Information}});
}
TEST_P(Enviado, ByMnemonic)
{
    AbrePreenchida();
    TeclaNela(GetParam().letra, Qt::AltModifier);
    EXPECT_EQ(m_gravadora.Chamadas(), m_chamadas);
    EsperaCaixas({{kEnviados, QMessageBox::Information}});
}
// On purpose: the operation is attempted on the closed port.
TEST_P(Enviado, WithoutAPortTwoBoxesComeInARow)
{
    m_gravadora.Roteiro("resultado IniciaPorta 0\nresultado AlteraMoeda 7\nresultado IncluiFavorecido 7\n"
                        "resultado ExcluiFavorecido 7\n");
    AbrePreenchida();
    Clica(GetParam().botao);
    EXPECT_EQ(m_gravadora.Chamadas(), m_chamadas);
    EsperaCaixas({{kSemPorta, QMessageBox::Critical}, {GetParam().erro, QMessageBox::Critical}});
}
TEST_P(Enviado, ARefusalOfTheDeviceIsTold)
{
    m_gravadora.Roteiro("resultado AlteraMoeda 23\nresultado IncluiFavorecido 23\n"
                        "resultado ExcluiFavorecido 24\n");
    AbrePreenchida();
    Clica(GetParam().botao);
    EXPECT_EQ(m_gravadora.Chamadas(), m_chamadas);
    EsperaCaixas({{GetParam().erro, QMessageBox::Critical}});
}
// The port is closed behind the message, not before it.
TEST_P(Enviado, ThePortIsClosedOnceTheBoxWasAnswered)
{
    AbrePreenchida();
    QStringList durante;
    m_caixas->AoAbrir([&](QMessageBox &) { durante = m_gravadora.Chamadas(); });
    Clica(GetParam().botao);
    EXPECT_EQ(durante, m_chamadas.mid(0, 2));
}
TEST_P(Enviado, TheIndicatorStandsStill)
{
    AbrePreenchida();
    auto *gauge = apoio::Controle<QProgressBar>(Tela(), "Gauge1");
    gauge->setValue(7);
    Clica(GetParam().botao);
    ASSERT_EQ(m_gravadora.Chamadas().size(), 3);
    EXPECT_EQ(gauge->value(), 7);
}
INSTANTIATE_TEST_SUITE_P(
    Quadros, Enviado,
    testing::Values(CasoEnvio{"Currency", "Command3D1", Qt::Key_A, R"(AlteraMoeda("D\xA2lar","D\xA2lares"))",
                              "Alteração da Moeda", "Erro na alteração da moeda."},
                    CasoEnvio{"Payee", "Command3D2", Qt::Key_T, R"(IncluiFavorecido("07","S\xC6o Jo\xC6o"))",
                              "Cadastro de Favorecido", "Erro no cadastro do favorecido."},
                    CasoEnvio{"Removal", "Command3D4", Qt::Key_U, R"(ExcluiFavorecido("09"))",
                              "Exclusão de Favorecido", "Erro na exclusão do favorecido."}),
    kNomeDoCaso);

class EnvioDaConfigura : public ComConfigura {};

TEST_F(EnvioDaConfigura, TodosRemovesAll)
{
    AbreTela();
    Escolhe("Option3D2");
    Clica("Command3D4");
    EXPECT_EQ(m_gravadora.Chamadas().value(1), R"(ExcluiFavorecido("*"))");
    EXPECT_TRUE(Opcao("Option3D2")->isChecked());
    EXPECT_EQ(Campo("Text3"), "*");
}

TEST_F(EnvioDaConfigura, ANameOfSixtyKeysReachesTheDeviceWithFortyEight)
{
    AbreTela();
    DigitaNela("Text2(0)", "1");
    DigitaNela("Text2(1)", QString("ABCDEFGHIJ").repeated(6));
    Clica("Command3D2");
    EXPECT_EQ(m_gravadora.Chamadas().value(1),
              R"(IncluiFavorecido("01","ABCDEFGHIJABCDEFGHIJABCDEFGHIJABCDEFGHIJABCDEFGH"))");
}

TEST_F(EnvioDaConfigura, TheMnemonicLeavesTheBoxInUseFirst)
{
    AbreTela();
    DigitaNela("Text2(0)", "7");
    TeclaNela(Qt::Key_T, Qt::AltModifier);
    EXPECT_EQ(Campo("Text2(0)"), "07");
    EsperaRecusa("O nome do favorecido não pode ser vazio.", "Cadastro de Favorecido", "Text2(1)");
}

TEST_F(EnvioDaConfigura, TheRefusedBoxIsSelectedForTheNextKey)
{
    AbreTela();
    DigitaNela("Text1(0)", "");
    Clica("Command3D1");
    ASSERT_EQ(FocoNela(), "Text1(0)");
    AtivaTela("Configura"); // here nothing brings the window to the front behind a message box
    apoio::Digita(Configura(), "X");
    EXPECT_EQ(Campo("Text1(0)"), "X");
}

// --- the currency in the settings ---

TEST_F(EnvioDaConfigura, TheCurrencyIsStoredTrimmedSingularFirst)
{
    AbreTela();
    m_escritorio.GravaIni("[Sistema]\nport=COM2\n");
    DigitaNela("Text1(0)", " Dólar ");
    DigitaNela("Text1(1)", " Dólares ");
    Clica("Command3D1");
    EXPECT_EQ(m_escritorio.LeIni().toStdString(),
              QString("[Sistema]\r\nport=COM2\r\nm_sg=Dólar\r\nm_pl=Dólares\r\n").toStdString());
    Reabre();
    EXPECT_EQ(Campo("Text1(0)") + '|' + Campo("Text1(1)"), "Dólar|Dólares");
}

TEST_F(EnvioDaConfigura, TheCurrencyIsStoredThoughPortAndDeviceFail)
{
    m_gravadora.Roteiro("resultado IniciaPorta 0\nresultado AlteraMoeda 7\n");
    AbreTela();
    DigitaNela("Text1(0)", "Dólar");
    std::vector<std::string> durante;
    const auto anota = [&](QMessageBox &) { durante.push_back(Chave("m_sg") + '/' + Chave("m_pl")); };
    m_caixas->AoAbrir([&](QMessageBox &caixa) {
        anota(caixa);
        m_caixas->AoAbrir(anota);
    });
    Clica("Command3D1");
    EXPECT_EQ(durante, (std::vector<std::string>{"Real/Reais", "Dólar/Reais"}))
        << "not yet behind the port's failure, then behind the device's";
}

// An empty value would read the settings instead of writing them.
TEST_F(EnvioDaConfigura, BlanksAloneLeaveTheStoredSingular)
{
    AbreTela();
    DigitaNela("Text1(0)", "  ");
    DigitaNela("Text1(1)", "Mil");
    Clica("Command3D1");
    EXPECT_EQ(m_gravadora.Chamadas().value(1), R"(AlteraMoeda("","Mil"))") << "the device judges it";
    EXPECT_EQ(Chave("m_sg") + '/' + Chave("m_pl"), "Real/Mil");
}

TEST_F(EnvioDaConfigura, ANameOfSixtyCharactersComesBackWhole)
{
    const QString nome = QString("abcdefghij").repeated(6);
    AbreTela();
    DigitaNela("Text1(0)", nome);
    Clica("Command3D1");
    Reabre();
    EXPECT_EQ(Campo("Text1(0)"), nome.toStdString());
}

// --- the port ---

class PortaGravada : public ComConfigura, public testing::WithParamInterface<int> {};
TEST_P(PortaGravada, TakesEffectWhenTheScreenIsOpenedAgain)
{
    AbreTela();
    const QString nova = QString("COM%1").arg(GetParam() + 1);
    Escolhe(QString("Option3D3(%1)").arg(GetParam()));
    EXPECT_EQ(Chave("port"), "COM2") << "not before the button";
    Clica("Command3D7");
    EsperaCaixa("Porta serial configurada. Você deve reiniciar o aplicativo.", "Configuração da Porta Serial",
                QMessageBox::NoIcon);
    EXPECT_EQ(FocoNela(), "Command3D7");
    EXPECT_EQ(Chave("port"), nova.toStdString());
    EXPECT_EQ(Dados().PortaSerial, "COM2") << "on purpose: the one in memory stays";
    EXPECT_EQ(apoio::Controle<QLabel>(Tela(), "Label4")->text(), "COM2");
    EXPECT_EQ(m_gravadora.Chamadas(), QStringList());
    Reabre();
    EXPECT_EQ(Dados().PortaSerial, nova);
    EXPECT_EQ(apoio::Controle<QLabel>(Tela(), "Label4")->text(), nova);
    EXPECT_EQ(Ligadas(), std::to_string(GetParam()));
    Clica("Command3D1");
    EXPECT_EQ(m_gravadora.Chamadas().value(0), "IniciaPorta(\"" + nova + "\")");
}
INSTANTIATE_TEST_SUITE_P(Portas, PortaGravada, testing::Values(0, 1, 2, 3),
                         [](const auto &caso) { return "Com" + std::to_string(caso.param + 1); });

TEST_F(EnvioDaConfigura, ThePortByMnemonic)
{
    AbreTela();
    TeclaNela(Qt::Key_3, Qt::AltModifier);
    TeclaNela(Qt::Key_L, Qt::AltModifier);
    EXPECT_EQ(Chave("port"), "COM3");
    EXPECT_EQ(m_caixas->Quantas(), 1U);
}

TEST_F(EnvioDaConfigura, AnUnknownPortIsWrittenAsTheLastOne)
{
    Abre();
    m_escritorio.GravaIni("[Sistema]\nport=LPT1\nm_sg=Real\nm_pl=Reais\n");
    AbreConfigura();
    Clica("Command3D7");
    EXPECT_EQ(Chave("port"), "COM4");
}

TEST_F(EnvioDaConfigura, AFailedWriteOfThePortIsNotTold)
{
    AbreTela();
    ASSERT_TRUE(QFile::remove(m_escritorio.Arquivo("QX70.INI")));
    ASSERT_TRUE(QDir(m_escritorio.Pasta()).mkpath("QX70.INI/cheia"));
    Clica("Command3D7");
    EXPECT_EQ(m_caixas->Quantas(), 1U);
}

// --- the self-test ---

class AutoTesteTest : public ComConfigura {
protected:
    void EsperaPergunta(const apoio::Caixa &caixa)
    {
        EXPECT_EQ(caixa.texto, "Insira o papel na impressora.");
        EXPECT_EQ(caixa.titulo, "Auto-teste na impressora");
        EXPECT_EQ(caixa.icone, QMessageBox::NoIcon);
        EXPECT_EQ(caixa.botoes, QMessageBox::Ok | QMessageBox::Cancel);
        EXPECT_EQ(caixa.padrao, QMessageBox::Ok);
    }
    void EsperaFalha(const char *texto)
    {
        ASSERT_EQ(m_caixas->Quantas(), 2U);
        EsperaPergunta(m_caixas->Vistas()[0]);
        EXPECT_EQ(m_caixas->Ultima().texto, texto);
        EXPECT_EQ(m_caixas->Ultima().titulo, "QX70 MIRA - Document Printer");
        EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Critical);
    }
};

TEST_F(AutoTesteTest, SendsOnePageInModeThree)
{
    AbreTela();
    Clica("Command3D9");
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    EsperaPergunta(m_caixas->Ultima());
    const QStringList chamadas = m_gravadora.Chamadas();
    ASSERT_EQ(chamadas.size(), 5);
    EXPECT_EQ(chamadas.mid(0, 2), (QStringList{R"(IniciaPorta("COM2"))", "TravaDoc(1)"}));
    EXPECT_TRUE(chamadas[2].startsWith("FormataTX(\"" + QString(35, ' ') + R"(AUTO - TESTE\x0A\x0A)"));
    EXPECT_TRUE(chamadas[2].endsWith(
        QString(20, ' ') + R"(Comunica\x87\xC6o OK - Impressora instalada na COM2\x0A",3,0,0,0,0))"));
    EXPECT_EQ(chamadas.mid(3), (QStringList{"TravaDoc(0)", "FechaPorta()"}));
    EXPECT_EQ(FocoNela(), "Command3D9");
}

TEST_F(AutoTesteTest, RunsTheIndicator)
{
    AbreTela();
    apoio::Controle<QProgressBar>(Tela(), "Gauge1")->setValue(7);
    Clica("Command3D9");
    EXPECT_EQ(apoio::Controle<QProgressBar>(Tela(), "Gauge1")->value(), 100);
}

TEST_F(AutoTesteTest, CancelSendsNothing)
{
    AbreTela();
    m_caixas->Responde(QMessageBox::Cancel);
    TeclaNela(Qt::Key_O, Qt::AltModifier);
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    EsperaPergunta(m_caixas->Ultima());
    EXPECT_EQ(m_gravadora.Chamadas(), QStringList());
}

TEST_F(AutoTesteTest, NamesThePortInUseAndNotTheOneChosen)
{
    AbreTela();
    Escolhe("Option3D3(3)");
    Clica("Command3D7");
    Clica("Command3D9");
    EXPECT_TRUE(m_gravadora.Chamadas().value(2).contains(" instalada na COM2"));
    m_gravadora.Esquece();
    Reabre();
    Clica("Command3D9");
    EXPECT_EQ(m_gravadora.Chamadas().value(0), R"(IniciaPorta("COM4"))");
    EXPECT_TRUE(m_gravadora.Chamadas().value(2).contains(" instalada na COM4"));
}

TEST_F(AutoTesteTest, WithoutAPortOnlyThatIsTold)
{
    m_gravadora.Roteiro("resultado IniciaPorta 0\n");
    AbreTela();
    Clica("Command3D9");
    EXPECT_EQ(m_gravadora.Chamadas(), QStringList{R"(IniciaPorta("COM2"))"});
    EsperaFalha("Erro de comunicação com a impressora.");
}

TEST_F(AutoTesteTest, ARefusedPageIsToldAndLeavesThePortOpen)
{
    m_gravadora.Roteiro("resultado FormataTX 21\n");
    AbreTela();
    Clica("Command3D9");
    EXPECT_EQ(m_gravadora.Chamadas().size(), 3) << "on purpose: nothing behind the refused text";
    EsperaFalha("Erro ao enviar as informações para a impressora.");
}

} // namespace
