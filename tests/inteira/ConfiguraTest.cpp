// The device's configuration from the screen into the device: currency, payees, port, and the self-test page.
#include "Mesa.h"

#include <QAction>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace inteira {

namespace {

const QString kEnviados = QStringLiteral("Os dados foram enviados para a impressora.");
const QString kSemPorta = QStringLiteral("Erro de comunicação com a impressora.");
const QString kMoeda = QStringLiteral("Alteração da Moeda");
const QString kCadastro = QStringLiteral("Cadastro de Favorecido");
const QString kExclusao = QStringLiteral("Exclusão de Favorecido");
const Vista kPapel{QStringLiteral("Auto-teste na impressora"),
                   QStringLiteral("Insira o papel na impressora.")};

class ConfiguraInteiraTest : public Mesa {
protected:
    ConfiguraInteiraTest()
    {
        PoeChave("Sistema", "m_sg", "Real");
        PoeChave("Sistema", "m_pl", "Reais");
    }
    ~ConfiguraInteiraTest() override { qunsetenv("QX7032_COM3"); }

    /// The program with its configuration open; the device is on unless a test leaves it off.
    void AbreConfigura()
    {
        Abre();
        AbreDeNovo();
    }
    void AbreDeNovo()
    {
        Tela().findChild<QAction *>("Conf_Qx70")->trigger();
        Ativa(Configura());
    }
    QWidget &Configura()
    {
        for (auto *tela : Tela().findChildren<QWidget *>("Configura"))
            if (tela->isVisible())
                return *tela;
        throw std::runtime_error("the screen is not open");
    }
    static void Ativa(QWidget &tela)
    {
        tela.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([&tela] { return QApplication::activeWindow() == &tela; }));
    }
    /// Tab until the control has the focus.
    void Vai(const QString &nome)
    {
        Ativa(Configura()); // here nothing brings the window to the front behind a message box
        for (int i = 0; i < 20 && apoio::Foco(Configura()) != nome; ++i)
            apoio::Tecla(Configura(), Qt::Key_Tab);
        ASSERT_EQ(apoio::Foco(Configura()), nome);
    }
    void Escreve(const QString &campo, const QString &texto)
    {
        Vai(campo);
        apoio::Digita(Configura(), texto);
    }
    void Aperta(const QString &botao)
    {
        Vai(botao);
        apoio::Tecla(Configura(), Qt::Key_Return);
    }
    void IncluiFavorecido(const QString &codigo, const QString &nome)
    {
        Escreve("Text2(0)", codigo);
        Escreve("Text2(1)", nome);
        Aperta("Command3D2");
    }
    /// A part of the device's memory as it lies on its disk.
    [[nodiscard]] std::string Memoria(const char *parte) const
    {
        QFile arquivo(aparelho.PastaDosDocumentos() + "/memoria.json");
        if (!arquivo.open(QIODevice::ReadOnly))
            return "no memory";
        const QJsonObject objeto = QJsonDocument::fromJson(arquivo.readAll()).object()[parte].toObject();
        QStringList linhas;
        for (const QString &chave : objeto.keys())
            linhas << chave + '=' + objeto[chave].toString();
        return linhas.join('|').toStdString();
    }
    /// What was told since the last time.
    std::vector<Vista> Novas()
    {
        const std::vector<Vista> todas = Vistas();
        std::vector<Vista> novas(todas.begin() + m_vistas, todas.end());
        m_vistas = static_cast<std::ptrdiff_t>(todas.size());
        return novas;
    }
    void EsperaEnvio(const QString &titulo) { EXPECT_EQ(Novas(), (std::vector<Vista>{{titulo, kEnviados}})); }

private:
    std::ptrdiff_t m_vistas = 0;
};

TEST_F(ConfiguraInteiraTest, TheSelfTestPageNamesThePort)
{
    Liga();
    AbreConfigura();
    Aperta("Command3D9");
    EXPECT_EQ(Novas(), std::vector{kPapel});
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_TRUE(aparelho.Documentos()[0].endsWith("-folha.txt"));
    const QStringList folha = Folha(1);
    ASSERT_EQ(folha.size(), 16);
    EXPECT_EQ(folha[0], QString(35, ' ') + "AUTO - TESTE");
    EXPECT_EQ(folha[2], QString(27, ' ') + "Impressora de Cheques - QX70 Mira");
    EXPECT_EQ(folha[15], QString(20, ' ') + "Comunicação OK - Impressora instalada na COM2");
    QList<int> vazias;
    for (int i = 0; i < folha.size(); ++i)
        if (folha[i].isEmpty())
            vazias << i;
    EXPECT_EQ(vazias, (QList<int>{1, 3, 4, 7, 8, 13, 14})) << "no line was broken at the paper's edge";
}

TEST_F(ConfiguraInteiraTest, AnotherPortIsNamedOnceTheScreenWasOpenedAgain)
{
    qputenv("QX7032_COM3", aparelho.Elo().toUtf8());
    Liga();
    AbreConfigura();
    apoio::Tecla(Configura(), Qt::Key_3, Qt::AltModifier);
    Aperta("Command3D7");
    EXPECT_EQ(Novas(), (std::vector<Vista>{{"Configuração da Porta Serial",
                                            "Porta serial configurada. Você deve reiniciar o aplicativo."}}));
    Aperta("SSCommand1");
    AbreDeNovo();
    Aperta("Command3D9");
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_TRUE(Folha(1).last().endsWith(" instalada na COM3")) << Folha(1).last().toStdString();
}

TEST_F(ConfiguraInteiraTest, TheCurrencyReachesMemoryAndPaper)
{
    CadastraBanco("001", "Primeiro", kPosicoesPadrao);
    Liga();
    AbreConfigura();
    Escreve("Text1(0)", "Dólar");
    Escreve("Text1(1)", "Dólares");
    Aperta("Command3D1");
    EsperaEnvio(kMoeda);
    EXPECT_EQ(Memoria("moeda"), "plural=Dólares|singular=Dólar");
    Aperta("SSCommand1");
    Ativa(Tela());
    TabAte("Text1(0)");
    Digita({"1", "10", "Ana", "Olinda", "010224", "1", {}});
    TabAte("Opcoes(0)");
    Imprime();
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_TRUE(Folha(1).join('\n').toLower().contains("dez dólares*")) << Folha(1).join('\n').toStdString();
}

TEST_F(ConfiguraInteiraTest, PayeesComeAndGo)
{
    Liga();
    AbreConfigura();
    IncluiFavorecido("7", "José da Conceição");
    EsperaEnvio(kCadastro);
    IncluiFavorecido("12", QString("ABCDEFGHIJ").repeated(6));
    EsperaEnvio(kCadastro);
    EXPECT_EQ(Memoria("favorecidos"),
              "07=José da Conceição|12=ABCDEFGHIJABCDEFGHIJABCDEFGHIJABCDEFGHIJABCDEFGH");
    Escreve("Text3", "7");
    Aperta("Command3D4");
    EsperaEnvio(kExclusao);
    EXPECT_EQ(Memoria("favorecidos"), "12=ABCDEFGHIJABCDEFGHIJABCDEFGHIJABCDEFGHIJABCDEFGH");
    Aperta("Command3D4");
    EXPECT_EQ(Novas(), (std::vector<Vista>{{kExclusao, "Erro na exclusão do favorecido."}}))
        << "the device has it no more";
}

TEST_F(ConfiguraInteiraTest, TodosRemovesAllPayees)
{
    Liga();
    AbreConfigura();
    for (const char *codigo : {"1", "2", "3"})
        IncluiFavorecido(codigo, "Ana");
    ASSERT_EQ(Memoria("favorecidos"), "01=Ana|02=Ana|03=Ana");
    Novas();
    Vai("Option3D2");
    apoio::Tecla(Configura(), Qt::Key_Space);
    Aperta("Command3D4");
    EsperaEnvio(kExclusao);
    EXPECT_EQ(Memoria("favorecidos"), "");
}

TEST_F(ConfiguraInteiraTest, ACurrencyOfBlanksIsRefusedByTheDeviceAndNotStored)
{
    Liga();
    AbreConfigura();
    Escreve("Text1(0)", " ");
    Aperta("Command3D1");
    EXPECT_EQ(Novas(), (std::vector<Vista>{{kMoeda, "Erro na alteração da moeda."}}));
    EXPECT_EQ(escritorio.Chave("Sistema", "m_sg"), "Real");
}

TEST_F(ConfiguraInteiraTest, ADeviceThatIsOffIsToldTwiceAndTheCurrencyIsStored)
{
    AbreConfigura();
    Escreve("Text1(0)", "Coroa");
    Aperta("Command3D1");
    EXPECT_EQ(Novas(), (std::vector<Vista>{{kMoeda, kSemPorta}, {kMoeda, "Erro na alteração da moeda."}}));
    EXPECT_EQ(escritorio.Chave("Sistema", "m_sg"), "Coroa");
    Liga();
    Aperta("Command3D1");
    EsperaEnvio(kMoeda);
    EXPECT_EQ(Memoria("moeda"), "plural=Reais|singular=Coroa");
}

TEST_F(ConfiguraInteiraTest, ADeviceThatIsOffPrintsNoSelfTest)
{
    AbreConfigura();
    Aperta("Command3D9");
    EXPECT_EQ(Novas(), (std::vector<Vista>{kPapel, {"QX70 MIRA - Document Printer", kSemPorta}}));
}

TEST_F(ConfiguraInteiraTest, ARefusedSelfTestIsToldAndTheNextOneComesOut)
{
    Liga();
    AbreConfigura();
    aparelho.PoeFalha("fim-de-papel");
    Aperta("Command3D9");
    EXPECT_EQ(Novas(), (std::vector<Vista>{kPapel,
                                           {"QX70 MIRA - Document Printer",
                                            "Erro ao enviar as informações para a impressora."}}));
    aparelho.PoeFalha("nenhuma");
    Aperta("Command3D9");
    EXPECT_EQ(Novas(), std::vector{kPapel});
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(Folha(1).size(), 16);
}

} // namespace

} // namespace inteira
