// Rules of the device's configuration: codes, checks, settings, the self-test page, and one sending over the
// recording library.
#include "device/RegrasDaConfiguracao.h"

#include "ComGravadora.h"
#include "nucleo/Relogio.h"
#include "nucleo/Sistema.h"

#include <QRegularExpression>

using device::Envio;
using device::TextosDaConfiguracao;

namespace {

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };

// --- codes ---

struct CasoCodigo {
    std::string nome;
    const char *texto;
    const char *fica;
};
void PrintTo(const CasoCodigo &c, std::ostream *os)
{
    *os << '"' << c.texto << '"';
}
class CodigoAoSair : public testing::TestWithParam<CasoCodigo> {};

TEST_P(CodigoAoSair, IsANumberOfTwoDigitsOrEmpty)
{
    EXPECT_EQ(device::CodigoAoSair(GetParam().texto), GetParam().fica);
}

INSTANTIATE_TEST_SUITE_P(
    Textos, CodigoAoSair,
    testing::Values(CasoCodigo{"OneDigit", "7", "07"}, CasoCodigo{"Zero", "0", "00"},
                    CasoCodigo{"LeadingZero", "07", "07"}, CasoCodigo{"TwoDigits", "42", "42"},
                    CasoCodigo{"BlankBefore", " 5", "05"}, CasoCodigo{"Fraction", ",4", "00"},
                    CasoCodigo{"HalfGoesUp", ",5", "01"}, CasoCodigo{"MinusTakesAPlaceOfItsOwn", "-5", "-05"},
                    CasoCodigo{"Letters", "AB", ""}, CasoCodigo{"DigitAndLetter", "7A", ""},
                    CasoCodigo{"Empty", "", ""}, CasoCodigo{"Blank", " ", ""},
                    CasoCodigo{"StarIsNoNumber", "*", ""}),
    kNomeDoCaso);

// --- checks ---

struct CasoVerificacao {
    std::string nome;
    std::optional<device::Recusa> (*verifica)(const TextosDaConfiguracao &);
    TextosDaConfiguracao textos;
    const char *titulo; ///< null when it passes
    const char *texto;
    int campo;
};
void PrintTo(const CasoVerificacao &c, std::ostream *os)
{
    *os << c.nome;
}
class Verificacao : public testing::TestWithParam<CasoVerificacao> {};

TEST_P(Verificacao, RefusesTheFirstEmptyBox)
{
    const auto recusa = GetParam().verifica(GetParam().textos);
    ASSERT_EQ(recusa.has_value(), GetParam().titulo != nullptr);
    if (recusa) {
        EXPECT_EQ(recusa->titulo, GetParam().titulo);
        EXPECT_EQ(recusa->texto, GetParam().texto);
        EXPECT_EQ(recusa->campo, GetParam().campo);
    }
}

const char *const kMoeda = "Alteração da Moeda";
const char *const kCadastro = "Cadastro de Favorecido";
const char *const kSemSingular = "O nome da moeda no singular não pode ser vazio.";
const char *const kSemPlural = "O nome da moeda no plural não pode ser vazio.";
const char *const kSemCodigo = "O código do favorecido não pode ser vazio.";
const char *const kSemNome = "O nome do favorecido não pode ser vazio.";

INSTANTIATE_TEST_SUITE_P(
    Moeda, Verificacao,
    testing::Values(
        CasoVerificacao{"BothNames", device::VerificaMoeda, {{"a", "b"}, {}, {}}, nullptr, "", 0},
        CasoVerificacao{"NoSingular", device::VerificaMoeda, {{"", "b"}, {}, {}}, kMoeda, kSemSingular, 0},
        CasoVerificacao{"NoPlural", device::VerificaMoeda, {{"a", ""}, {}, {}}, kMoeda, kSemPlural, 1},
        CasoVerificacao{"Neither", device::VerificaMoeda, {{"", ""}, {}, {}}, kMoeda, kSemSingular, 0},
        CasoVerificacao{"BlanksAreTexts", device::VerificaMoeda, {{" ", " "}, {}, {}}, nullptr, "", 0},
        CasoVerificacao{"OtherBoxesDoNotCount",
                        device::VerificaMoeda,
                        {{"", "b"}, {"01", "Ana"}, "02"},
                        kMoeda,
                        kSemSingular,
                        0}),
    kNomeDoCaso);
INSTANTIATE_TEST_SUITE_P(
    Inclusao, Verificacao,
    testing::Values(
        CasoVerificacao{"CodeAndName", device::VerificaInclusao, {{}, {"01", "Ana"}, {}}, nullptr, "", 0},
        CasoVerificacao{"NoCode", device::VerificaInclusao, {{}, {"", "Ana"}, {}}, kCadastro, kSemCodigo, 0},
        CasoVerificacao{"NoName", device::VerificaInclusao, {{}, {"01", ""}, {}}, kCadastro, kSemNome, 1},
        CasoVerificacao{"NoPayee", device::VerificaInclusao, {{}, {"", ""}, {}}, kCadastro, kSemCodigo, 0},
        CasoVerificacao{"BlankName", device::VerificaInclusao, {{}, {"01", " "}, {}}, nullptr, "", 0}),
    kNomeDoCaso);

struct CasoExclusao {
    std::string nome;
    const char *codigo;
    bool todos;
    bool passa;
};
void PrintTo(const CasoExclusao &c, std::ostream *os)
{
    *os << '"' << c.codigo << "\" " << c.todos;
}
class VerificaExclusao : public testing::TestWithParam<CasoExclusao> {};

// On purpose: the check only looks at emptiness, so that "*" removes all with the option off.
TEST_P(VerificaExclusao, LooksOnlyAtEmptiness)
{
    const auto recusa = device::VerificaExclusao({{}, {}, GetParam().codigo}, GetParam().todos);
    ASSERT_EQ(!recusa.has_value(), GetParam().passa);
    if (recusa) {
        EXPECT_EQ(recusa->titulo, "Exclusão de Favorecidos");
        EXPECT_EQ(recusa->texto, "O código do favorecido não pode ser vazio ou a opção 'Todos' deve estar "
                                 "assinalada.");
    }
}

INSTANTIATE_TEST_SUITE_P(Codigos, VerificaExclusao,
                         testing::Values(CasoExclusao{"EmptyAndOff", "", false, false},
                                         CasoExclusao{"EmptyAndOn", "", true, true},
                                         CasoExclusao{"CodeAndOff", "07", false, true},
                                         CasoExclusao{"StarAndOff", "*", false, true},
                                         CasoExclusao{"StarAndOn", "*", true, true}),
                         kNomeDoCaso);

// --- port ---

struct CasoPorta {
    std::string nome;
    const char *porta;
    int opcao;
};
void PrintTo(const CasoPorta &c, std::ostream *os)
{
    *os << '"' << c.porta << '"';
}
class OpcaoDaPorta : public testing::TestWithParam<CasoPorta> {};

TEST_P(OpcaoDaPorta, IsTheLastOneForAnyOtherName)
{
    EXPECT_EQ(device::OpcaoDaPorta(GetParam().porta), GetParam().opcao);
}

INSTANTIATE_TEST_SUITE_P(Portas, OpcaoDaPorta,
                         testing::Values(CasoPorta{"First", "COM1", 0}, CasoPorta{"Second", "COM2", 1},
                                         CasoPorta{"Third", "COM3", 2}, CasoPorta{"Fourth", "COM4", 3},
                                         CasoPorta{"Fifth", "COM5", 3}, CasoPorta{"SmallLetters", "com1", 3},
                                         CasoPorta{"None", "", 3}),
                         kNomeDoCaso);

TEST(PortaDaOpcao, NamesTheFourPorts)
{
    QStringList portas;
    for (int i = 0; i < 4; ++i)
        portas << device::PortaDaOpcao(i);
    EXPECT_EQ(portas.join(' '), "COM1 COM2 COM3 COM4");
}

// --- settings ---

/// Today's date is of no concern here.
class SemRelogio final : public nucleo::Relogio {
public:
    [[nodiscard]] QDate Hoje() const override { return {}; }
};

/// Notes the settings as they stand before each call of the library.
class OcupadoQueLe final : public nucleo::Ocupado {
public:
    explicit OcupadoQueLe(QString arquivo) : m_arquivo(std::move(arquivo)) {}
    void Comeca() override
    {
        QFile arquivo(m_arquivo);
        antes << (arquivo.open(QIODevice::ReadOnly) ? plataforma::FromAnsi(arquivo.readAll()) : QString());
    }
    void Termina() override {}
    QStringList antes;

private:
    QString m_arquivo;
};

class ComConfiguracao : public teste::ComImpressora {
protected:
    void Ini(const QString &linhas) const
    {
        QFile arquivo(m_caminho);
        ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
        ASSERT_EQ(arquivo.write(plataforma::ToAnsi(linhas)), linhas.size());
    }
    [[nodiscard]] QString LeIni() const
    {
        QFile arquivo(m_caminho);
        return arquivo.open(QIODevice::ReadOnly) ? plataforma::FromAnsi(arquivo.readAll()) : QString();
    }
    QString m_caminho = m_pastaApp.filePath("QX70.INI");
    OcupadoQueLe m_le{m_caminho};
    SemRelogio m_relogio;
    device::Impressora m_queLe{m_pastas, m_mensagens, m_indicador, m_le};
    nucleo::Sistema m_sistema{m_pastaApp.path(), m_mensagens, m_le, m_relogio, m_queLe};
};

struct CasoMoeda {
    std::string nome;
    const char *antes;
    const char *singular; ///< what the boxes show
    const char *plural;
    const char *depois;
};
void PrintTo(const CasoMoeda &c, std::ostream *os)
{
    *os << c.nome;
}
class CarregaMoeda : public ComConfiguracao, public testing::WithParamInterface<CasoMoeda> {};

TEST_P(CarregaMoeda, ShowsTheNamesAndWritesTheMissingOnes)
{
    Ini(GetParam().antes);
    const auto moeda = device::CarregaMoeda(m_sistema.ini);
    EXPECT_EQ(moeda[0], GetParam().singular);
    EXPECT_EQ(moeda[1], GetParam().plural);
    EXPECT_EQ(LeIni(), GetParam().depois);
}

// On purpose: a missing plural puts its word into the box of the singular.
INSTANTIATE_TEST_SUITE_P(
    Chaves, CarregaMoeda,
    testing::Values(CasoMoeda{"Both", "[Sistema]\r\nm_sg=Dólar\r\nm_pl=Dólares\r\n", "Dólar", "Dólares",
                              "[Sistema]\r\nm_sg=Dólar\r\nm_pl=Dólares\r\n"},
                    CasoMoeda{"FirstRun", "", "Reais", "", "[Sistema]\r\nm_sg=Real\r\nm_pl=Reais\r\n"},
                    CasoMoeda{"NoPluralCoversTheSingular", "[Sistema]\r\nm_sg=X\r\n", "Reais", "",
                              "[Sistema]\r\nm_sg=X\r\nm_pl=Reais\r\n"},
                    CasoMoeda{"NoSingular", "[Sistema]\r\nm_pl=Y\r\n", "Real", "Y",
                              "[Sistema]\r\nm_pl=Y\r\nm_sg=Real\r\n"},
                    CasoMoeda{"EmptyKeysAreThere", "[Sistema]\r\nm_sg=\r\nm_pl=\r\n", "", "",
                              "[Sistema]\r\nm_sg=\r\nm_pl=\r\n"}),
    kNomeDoCaso);

// --- one sending ---

struct CasoEnvio {
    std::string nome;
    Envio envio;
    TextosDaConfiguracao textos;
    const char *operacao; ///< as the library gets it
    const char *titulo;
    const char *erro;
};
void PrintTo(const CasoEnvio &c, std::ostream *os)
{
    *os << c.nome;
}

class EnviaConfiguracao : public ComConfiguracao, public testing::WithParamInterface<CasoEnvio> {
protected:
    EnviaConfiguracao()
    {
        Ini("[Sistema]\r\nport=COM3\r\n");
        m_sistema.PortaSerial = "COM3";
    }
    void Envia() { device::EnviaConfiguracao(GetParam().envio, GetParam().textos, m_sistema); }
    void EsperaCaixa(std::size_t qual, const QString &texto, nucleo::Icone icone, qsizetype chamadasAntes)
    {
        ASSERT_GT(m_mensagens.caixas.size(), qual);
        const teste::Caixa &caixa = m_mensagens.caixas[qual];
        EXPECT_EQ(caixa.texto, texto);
        EXPECT_EQ(caixa.titulo, GetParam().titulo);
        EXPECT_EQ(caixa.icone, icone);
        EXPECT_EQ(caixa.botoes, nucleo::Botoes::Ok);
        EXPECT_EQ(caixa.chamadasAntes, chamadasAntes);
    }
    const QStringList m_chamadas{R"(IniciaPorta("COM3"))", GetParam().operacao, "FechaPorta()"};
};

TEST_P(EnviaConfiguracao, SendsOneOperationAndTellsItBeforeThePortIsClosed)
{
    Envia();
    EXPECT_EQ(m_gravacao.Chamadas(), m_chamadas);
    ASSERT_EQ(m_mensagens.caixas.size(), 1U);
    EsperaCaixa(0, "Os dados foram enviados para a impressora.", nucleo::Icone::Informacao, 2);
    EXPECT_TRUE(m_indicador.valores.empty());
}

// On purpose: two boxes in a row, and the operation is attempted all the same.
TEST_P(EnviaConfiguracao, GoesOnWhenThePortDoesNotOpen)
{
    m_gravacao.Roteiro("resultado IniciaPorta 0\nresultado IncluiFavorecido 7\nresultado ExcluiFavorecido 7\n"
                       "resultado AlteraMoeda 7\n");
    Envia();
    EXPECT_EQ(m_gravacao.Chamadas(), m_chamadas);
    ASSERT_EQ(m_mensagens.caixas.size(), 2U);
    EsperaCaixa(0, "Erro de comunicação com a impressora.", nucleo::Icone::Pare, 1);
    EsperaCaixa(1, GetParam().erro, nucleo::Icone::Pare, 2);
}

TEST_P(EnviaConfiguracao, AnswerOfTheOperationDecidesThoughThePortFailed)
{
    m_gravacao.Roteiro("resultado IniciaPorta 0\n");
    Envia();
    ASSERT_EQ(m_mensagens.caixas.size(), 2U);
    EsperaCaixa(1, "Os dados foram enviados para a impressora.", nucleo::Icone::Informacao, 2);
}

TEST_P(EnviaConfiguracao, OnlyZeroIsAPortThatDidNotOpen)
{
    m_gravacao.Roteiro("resultado IniciaPorta 5\n");
    Envia();
    EXPECT_EQ(m_mensagens.caixas.size(), 1U);
}

TEST_P(EnviaConfiguracao, AnyAnswerButOneIsAFailure)
{
    for (const char *resultado : {"0", "2", "24", "-1"}) {
        m_mensagens.caixas.clear();
        m_gravacao.Roteiro(QByteArray("resultado IncluiFavorecido ") + resultado +
                           "\nresultado ExcluiFavorecido " + resultado + "\nresultado AlteraMoeda " +
                           resultado + "\n");
        Envia();
        ASSERT_EQ(m_mensagens.caixas.size(), 1U) << resultado;
        EXPECT_EQ(m_mensagens.caixas[0].texto, GetParam().erro) << resultado;
        EXPECT_EQ(m_mensagens.caixas[0].icone, nucleo::Icone::Pare) << resultado;
        EXPECT_EQ(m_gravacao.Chamadas().last(), "FechaPorta()");
    }
}

TEST_P(EnviaConfiguracao, KeepsWhatTheLibraryMakesOfThePort)
{
    m_gravacao.Roteiro("reescreve IniciaPorta COM9\n");
    Envia();
    EXPECT_EQ(m_sistema.PortaSerial, "COM9");
}

TEST_P(EnviaConfiguracao, WithoutTheLibraryThatIsToldOnceAndThenBothFailures)
{
    ASSERT_TRUE(QFile::remove(m_pastaApp.filePath(device::kArquivoDaBiblioteca)));
    Envia();
    ASSERT_EQ(m_mensagens.caixas.size(), 3U);
    EXPECT_TRUE(m_mensagens.caixas[0].texto.contains("libqx7032.so"));
    EsperaCaixa(1, "Erro de comunicação com a impressora.", nucleo::Icone::Pare, 0);
    EsperaCaixa(2, GetParam().erro, nucleo::Icone::Pare, 0);
}

const TextosDaConfiguracao kTextos{{" Cruzeiro ", "Cruzeiros"}, {"07", " São João "}, "42"};
const QString kNome48 = QString("0123456789").repeated(5).left(48);

INSTANTIATE_TEST_SUITE_P(
    Envios, EnviaConfiguracao,
    testing::Values(CasoEnvio{"Payee", Envio::Inclusao, kTextos, R"(IncluiFavorecido("07","S\xC6o Jo\xC6o"))",
                              "Cadastro de Favorecido", "Erro no cadastro do favorecido."},
                    CasoEnvio{"NameIsCutBeforeItIsTrimmed",
                              Envio::Inclusao,
                              {{}, {"07", ' ' + kNome48 + "ABC"}, {}},
                              R"(IncluiFavorecido("07","01234567890123456789012345678901234567890123456"))",
                              "Cadastro de Favorecido",
                              "Erro no cadastro do favorecido."},
                    CasoEnvio{"Removal", Envio::Exclusao, kTextos, R"(ExcluiFavorecido("42"))",
                              "Exclusão de Favorecido", "Erro na exclusão do favorecido."},
                    CasoEnvio{"RemovalOfAll",
                              Envio::Exclusao,
                              {{}, {}, "*"},
                              R"(ExcluiFavorecido("*"))",
                              "Exclusão de Favorecido",
                              "Erro na exclusão do favorecido."},
                    CasoEnvio{"RemovalAsTheBoxStands",
                              Envio::Exclusao,
                              {{}, {}, " 7"},
                              R"(ExcluiFavorecido(" 7"))",
                              "Exclusão de Favorecido",
                              "Erro na exclusão do favorecido."},
                    CasoEnvio{"Currency", Envio::Moeda, kTextos, R"(AlteraMoeda("Cruzeiro","Cruzeiros"))",
                              "Alteração da Moeda", "Erro na alteração da moeda."},
                    CasoEnvio{"CurrencyWithAccents",
                              Envio::Moeda,
                              {{"Dólar", "Dólares"}, {}, {}},
                              R"(AlteraMoeda("D\xA2lar","D\xA2lares"))",
                              "Alteração da Moeda",
                              "Erro na alteração da moeda."}),
    kNomeDoCaso);

class EnviaMoeda : public ComConfiguracao {
protected:
    void Envia(const QString &singular, const QString &plural)
    {
        device::EnviaConfiguracao(Envio::Moeda, {{singular, plural}, {"07", "Ana"}, "*"}, m_sistema);
    }
};

TEST_F(EnviaMoeda, WritesTheSettingsBehindThePortAndBeforeTheDevice)
{
    Ini("[Sistema]\r\nport=COM2\r\n");
    Envia(" Dólar ", "Dólares");
    const QString depois = "[Sistema]\r\nport=COM2\r\nm_sg=Dólar\r\nm_pl=Dólares\r\n";
    ASSERT_EQ(m_le.antes.size(), 3) << "port, currency, port";
    EXPECT_EQ(m_le.antes[0], "[Sistema]\r\nport=COM2\r\n");
    EXPECT_EQ(m_le.antes[1], depois) << "the singular first: new keys stand in the order of their writing";
    EXPECT_EQ(LeIni(), depois);
}

TEST_F(EnviaMoeda, SettingsChangeThoughPortAndDeviceFail)
{
    Ini("[Sistema]\r\nm_sg=a\r\nm_pl=b\r\n");
    m_gravacao.Roteiro("resultado IniciaPorta 0\nresultado AlteraMoeda 0\n");
    Envia("c", "d");
    EXPECT_EQ(LeIni(), "[Sistema]\r\nm_sg=c\r\nm_pl=d\r\n");
}

// An empty name would make the write a read; what is stored stays, and the device judges the empty name.
TEST_F(EnviaMoeda, ANameOfBlanksIsSentEmptyAndNotStored)
{
    Ini("[Sistema]\r\nm_sg=a\r\nm_pl=b\r\n");
    Envia("   ", "d");
    EXPECT_EQ(m_gravacao.Chamadas().value(1), R"(AlteraMoeda("","d"))");
    EXPECT_EQ(LeIni(), "[Sistema]\r\nm_sg=a\r\nm_pl=d\r\n");
}

class EnviaFavorecido : public ComConfiguracao, public testing::WithParamInterface<Envio> {};

TEST_P(EnviaFavorecido, LeavesTheSettings)
{
    Ini("[Sistema]\r\nm_sg=a\r\nm_pl=b\r\n");
    device::EnviaConfiguracao(GetParam(), {{"c", "d"}, {"07", "Ana"}, "*"}, m_sistema);
    EXPECT_EQ(LeIni(), "[Sistema]\r\nm_sg=a\r\nm_pl=b\r\n");
}

INSTANTIATE_TEST_SUITE_P(Envios, EnviaFavorecido, testing::Values(Envio::Inclusao, Envio::Exclusao),
                         [](const auto &caso) {
                             return caso.param == Envio::Inclusao ? "Inclusion" : "Removal";
                         });

// --- self-test page ---

struct CasoLinha {
    std::string nome;
    int linha; ///< on the page, from 1
    int recuo;
    const char *conteudo; ///< empty for one of the maker's
};
void PrintTo(const CasoLinha &c, std::ostream *os)
{
    *os << "line " << c.linha;
}
class LinhaDoAutoTeste : public testing::TestWithParam<CasoLinha> {};

TEST_P(LinhaDoAutoTeste, StandsBehindItsBlanks)
{
    const QString linha = device::TextoDoAutoTeste("COM3").split('\n').value(GetParam().linha - 1);
    const QString conteudo = linha.mid(GetParam().recuo);
    EXPECT_EQ(linha.left(GetParam().recuo), QString(GetParam().recuo, ' '));
    EXPECT_FALSE(conteudo.isEmpty() || conteudo.startsWith(' ') || conteudo.endsWith(' '))
        << linha.toStdString();
    if (*GetParam().conteudo != '\0') {
        EXPECT_EQ(conteudo, GetParam().conteudo);
    }
    EXPECT_LE(linha.size(), 80) << "the device goes on in the next line otherwise";
}

INSTANTIATE_TEST_SUITE_P(
    Linhas, LinhaDoAutoTeste,
    testing::Values(CasoLinha{"Title", 1, 35, "AUTO - TESTE"},
                    CasoLinha{"Device", 3, 27, "Impressora de Cheques - QX70 Mira"},
                    CasoLinha{"Company", 6, 35, ""}, CasoLinha{"Country", 7, 31, ""},
                    CasoLinha{"Street", 10, 27, ""}, CasoLinha{"City", 11, 20, ""},
                    CasoLinha{"Telephone", 12, 24, ""}, CasoLinha{"TaxNumber", 13, 28, ""},
                    CasoLinha{"Port", 16, 20, "Comunicação OK - Impressora instalada na COM3"}),
    kNomeDoCaso);

TEST(TextoDoAutoTeste, HasItsLineFeedsAndNoCarriageReturn)
{
    static const QRegularExpression conteudo("[^\n]+");
    const QString pagina = device::TextoDoAutoTeste("COM1");
    EXPECT_FALSE(pagina.contains('\r'));
    EXPECT_EQ(QString(pagina).replace(conteudo, "x"), "x\n\nx\n\n\nx\nx\n\n\nx\nx\nx\nx\n\n\nx\n");
}

} // namespace
