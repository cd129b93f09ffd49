// The memory's file, the layouts of a settings file, faults and command line.
#include <csignal>
#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <sys/resource.h>

#include "Apoio.h"
#include "Formatos.h"
#include "Memoria.h"
#include "Opcoes.h"

using namespace simulador;

namespace {

Memoria Cheia()
{
    Memoria memoria;
    memoria.bancos = {{"001", {QString::fromUtf8("São Exemplo"), LePosicoes(apoio::kPosicoes).value()}},
                      {"999", {"", LePosicoes("999,999,999,999,999,999,999,999,999,999,-5,0,999").value()}}};
    memoria.favorecidos = {{"01", QString::fromUtf8("João \"Zé\" da Silva")}, {"99", QString(48, 'x')}};
    memoria.moedaSingular = "Real";
    memoria.moedaPlural = "Reais";
    memoria.digitosDoAno = 2;
    memoria.relatorio = {
        {"001", "1.234,56", QString::fromUtf8("Conceição"), QString::fromUtf8("Maceió"), "01/02/26"},
        {"001", "2,00", ".", "", "03/02/26"}};
    return memoria;
}

void Grava(const QString &caminho, const QByteArray &bytes)
{
    QFile arquivo(caminho);
    ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
    arquivo.write(bytes);
}

QByteArray Le(const QString &caminho)
{
    QFile arquivo(caminho);
    return arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll() : QByteArray("(missing)");
}

class ArquivoDaMemoria : public testing::Test {
protected:
    [[nodiscard]] QString Caminho() const { return m_pasta.filePath("memoria.json"); }
    [[nodiscard]] QStringList Nomes() const
    {
        return QDir(m_pasta.path()).entryList(QDir::Files, QDir::Name);
    }
    QTemporaryDir m_pasta;
};

TEST_F(ArquivoDaMemoria, ComesBackAsItWas)
{
    ASSERT_EQ(GravaMemoria(Caminho(), Cheia()), QString());
    const MemoriaLida lida = LeMemoria(Caminho());
    EXPECT_EQ(lida.aviso, QString());
    EXPECT_TRUE(lida.memoria == Cheia());
    EXPECT_EQ(Nomes(), QStringList{"memoria.json"});
}

TEST_F(ArquivoDaMemoria, IsReadable)
{
    ASSERT_EQ(GravaMemoria(Caminho(), Cheia()), QString());
    const QByteArray texto = Le(Caminho());
    EXPECT_THAT(texto.toStdString(), testing::HasSubstr("01,05,07,10,13,92,17,09,11,50,31,40,65"));
    EXPECT_THAT(texto.toStdString(), testing::HasSubstr("São Exemplo"));
}

TEST_F(ArquivoDaMemoria, MissingIsAnEmptyMemoryWithoutNotice)
{
    const MemoriaLida lida = LeMemoria(Caminho());
    EXPECT_EQ(lida.aviso, QString());
    EXPECT_TRUE(lida.memoria == Memoria());
    EXPECT_EQ(lida.memoria.digitosDoAno, 4);
    EXPECT_EQ(lida.memoria.moedaPlural, "reais");
}

TEST_F(ArquivoDaMemoria, CannotBeWrittenOverAFolder)
{
    ASSERT_TRUE(QDir().mkpath(Caminho()));
    EXPECT_THAT(GravaMemoria(Caminho(), Cheia()).toStdString(), testing::HasSubstr("não pôde ser gravada"));
}

TEST_F(ArquivoDaMemoria, AFullDiskIsToldAndLeavesTheOldFileWhole)
{
    ASSERT_EQ(GravaMemoria(Caminho(), Cheia()), QString());
    const QByteArray antes = Le(Caminho());
    rlimit limite{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limite), 0);
    const rlimit cheio{100, limite.rlim_max};
    auto *const sinal = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &cheio), 0);
    const QString falha = GravaMemoria(Caminho(), Cheia());
    setrlimit(RLIMIT_FSIZE, &limite);
    std::signal(SIGXFSZ, sinal);
    EXPECT_THAT(falha.toStdString(), testing::HasSubstr("não pôde ser gravada"));
    EXPECT_EQ(Le(Caminho()).toStdString(), antes.toStdString());
}

struct CasoDanificada {
    const char *nome;
    QByteArray bytes;
};
void PrintTo(const CasoDanificada &c, std::ostream *os)
{
    *os << c.nome;
}
class MemoriaDanificadaTest : public testing::TestWithParam<CasoDanificada> {};
TEST_P(MemoriaDanificadaTest, IsToldAndSetAside)
{
    QTemporaryDir pasta;
    const QString caminho = pasta.filePath("memoria.json");
    Grava(caminho, GetParam().bytes);
    Grava(caminho + ".danificada", "an older one");
    const MemoriaLida lida = LeMemoria(caminho);
    EXPECT_TRUE(lida.memoria == Memoria());
    EXPECT_THAT(lida.aviso.toStdString(), testing::HasSubstr("danificada2"));
    EXPECT_EQ(Le(caminho), "(missing)");
    EXPECT_EQ(Le(caminho + ".danificada"), "an older one");
    EXPECT_EQ(Le(caminho + ".danificada2"), GetParam().bytes);
}
/// The good file with one part of its text replaced.
QByteArray Estragada(const char *parte, const char *por)
{
    QByteArray bytes = EscreveMemoria(Cheia());
    EXPECT_TRUE(bytes.contains(parte));
    return bytes.replace(parte, por);
}
INSTANTIATE_TEST_SUITE_P(
    Arquivos, MemoriaDanificadaTest,
    testing::Values(
        CasoDanificada{"Empty", ""}, CasoDanificada{"Cut", EscreveMemoria(Cheia()).left(200)},
        CasoDanificada{"Binary", QByteArray(300, '\xFF')}, CasoDanificada{"AnotherKindOfFile", "[]"},
        CasoDanificada{"NoParts", "{}"}, CasoDanificada{"PositionsMissing", Estragada(",65\"", "\"")},
        CasoDanificada{"PositionsNoText", Estragada("\"01,05,07,10,13,92,17,09,11,50,31,40,65\"", "7")},
        CasoDanificada{"YearForm3", Estragada("\"digitosDoAno\": 2", "\"digitosDoAno\": 3")},
        CasoDanificada{"BankCodeNoNumber", Estragada("\"999\"", "\"abc\"")},
        CasoDanificada{"PayeeNoText", Estragada("\"99\": \"", "\"99\": 4, \"98\": \"")},
        CasoDanificada{"ReportNoList", Estragada("\"relatorio\": [", "\"relatorio\": 1, \"outro\": [")},
        CasoDanificada{"AmountInTheReportNoText", Estragada("\"2,00\"", "2")},
        CasoDanificada{"CurrencyEmpty", Estragada("\"Reais\"", "\"\"")}),
    [](const auto &caso) { return caso.param.nome; });

TEST(AnotaCheque, KeepsTheNewestThousand)
{
    Memoria memoria;
    for (int i = 1; i <= 1001; ++i)
        AnotaCheque(memoria, {"001", QString::number(i), "", "", ""});
    EXPECT_EQ(memoria.relatorio.size(), 1000);
    EXPECT_EQ(memoria.relatorio.first().valor, "2");
    EXPECT_EQ(memoria.relatorio.last().valor, "1001");
}

TEST(CodigoDe, TakesDigitsOnly)
{
    EXPECT_EQ(CodigoDe("7", 2), "07");
    EXPECT_EQ(CodigoDe(" 237 ", 3), "237");
    EXPECT_EQ(CodigoDe("1234", 3), QString());
    EXPECT_EQ(CodigoDe("a1", 3), QString());
    EXPECT_EQ(CodigoDe("", 3), QString());
}

// --- layouts of a settings file ---

TEST(LeFormatos, TakesTheLayoutsAndNames)
{
    const FormatosLidos lidos =
        LeFormatos("[Sistema]\r\nport=COM2\r\n001=1,2,3\r\n"
                   "[FORMATO]\r\n; 777=comment\r\n"
                   "001=01,05,07,10,13,92,17,09,11,50,31,40,65    ; BANCO S\xC3O JO\xC3O\r\n"
                   "33 = 02,06,08,11,14,118,20,05,08,40,25,33,055\r\n"
                   "001=09,05,07,10,13,92,17,09,11,50,31,40,65    ; SECOND\r\n"
                   "\r\n[Outra]\r\n555=01,05,07,10,13,92,17,09,11,50,31,40,65\r\n"
                   "[Formato]\r\n556=01,05,07,10,13,92,17,09,11,50,31,40,65\r\n");
    EXPECT_EQ(lidos.avisos, QStringList());
    EXPECT_EQ(lidos.bancos.keys(), (QStringList{"001", "033"}));
    EXPECT_EQ(lidos.bancos["001"].nome, QString::fromUtf8("BANCO SÃO JOÃO"));
    EXPECT_EQ(EscrevePosicoes(lidos.bancos["001"].posicoes), apoio::kPosicoes);
    EXPECT_EQ(lidos.bancos["033"].nome, QString());
    EXPECT_EQ(EscrevePosicoes(lidos.bancos["033"].posicoes), "02,06,08,11,14,118,20,05,08,40,25,33,55");
}

TEST(LeFormatos, TellsTheLinesThatAreNoLayout)
{
    const FormatosLidos lidos =
        LeFormatos("[Formato]\n001=1,2,3 ; SHORT\nabc=01,05,07,10,13,92,17,09,11,50,31,40,65\nnoise\n");
    EXPECT_TRUE(lidos.bancos.isEmpty());
    ASSERT_EQ(lidos.avisos.size(), 2);
    EXPECT_THAT(lidos.avisos.at(0).toStdString(), testing::HasSubstr("001=1,2,3 ; SHORT"));
}

TEST(LeFormatos, SurvivesGarbage)
{
    QByteArray lixo;
    for (int i = 0; i < 2000; ++i)
        lixo += static_cast<char>(i * 37);
    EXPECT_TRUE(LeFormatos(lixo).bancos.isEmpty());
    EXPECT_TRUE(LeFormatos({}).bancos.isEmpty());
}

// --- faults ---

struct CasoFalha {
    const char *nome;
    const char *texto;
    std::optional<Falha> falha;
};
void PrintTo(const CasoFalha &c, std::ostream *os)
{
    *os << c.texto;
}
class LeFalhaTest : public testing::TestWithParam<CasoFalha> {};
TEST_P(LeFalhaTest, ReadsNameAndCount)
{
    const auto falha = LeFalha(GetParam().texto);
    EXPECT_TRUE(falha == GetParam().falha);
    if (falha) {
        EXPECT_EQ(EscreveFalha(*falha), GetParam().texto);
    }
}
INSTANTIATE_TEST_SUITE_P(
    Falhas, LeFalhaTest,
    testing::Values(CasoFalha{"None", "nenhuma", Falha{}},
                    CasoFalha{"NoDocument", "sem-documento", Falha{TipoDeFalha::SemDocumento, 0}},
                    CasoFalha{"EndOfPaperTwice", "fim-de-papel:2", Falha{TipoDeFalha::FimDePapel, 2}},
                    CasoFalha{"Silence", "silencio", Falha{TipoDeFalha::Silencio, 0}},
                    CasoFalha{"Rubbish", "lixo:1", Falha{TipoDeFalha::Lixo, 1}},
                    CasoFalha{"HangUp", "queda:1", Falha{TipoDeFalha::Queda, 1}},
                    CasoFalha{"Slow", "lenta", Falha{TipoDeFalha::Lenta, 0}},
                    CasoFalha{"PrintsAndFails", "imprime-e-erra", Falha{TipoDeFalha::ImprimeEErra, 0}},
                    CasoFalha{"NoEnd", "sem-fim:3", Falha{TipoDeFalha::SemFim, 3}},
                    CasoFalha{"Damaged", "nak:9999", Falha{TipoDeFalha::Nak, 9999}},
                    CasoFalha{"UnknownName", "fumaca", std::nullopt},
                    CasoFalha{"CountZero", "nak:0", std::nullopt},
                    CasoFalha{"CountNoNumber", "nak:x", std::nullopt},
                    CasoFalha{"CountOfNone", "nenhuma:1", std::nullopt},
                    CasoFalha{"Empty", "", std::nullopt}),
    [](const auto &caso) { return caso.param.nome; });

TEST(NomesDeFalhas, StandInTheOrderOfTheirKinds)
{
    const auto &nomes = NomesDeFalhas();
    ASSERT_EQ(nomes.size(), 10U);
    for (std::size_t i = 0; i < nomes.size(); ++i)
        EXPECT_EQ(static_cast<std::size_t>(nomes[i].tipo), i);
}

TEST(Falha, IsUsedUpByItsDocuments)
{
    Falha falha{TipoDeFalha::Nak, 2};
    falha.Gasta();
    EXPECT_EQ(falha, (Falha{TipoDeFalha::Nak, 1}));
    falha.Gasta();
    EXPECT_EQ(falha, Falha{});
    Falha semFim{TipoDeFalha::Lixo, 0};
    semFim.Gasta();
    EXPECT_EQ(semFim, (Falha{TipoDeFalha::Lixo, 0}));
}

// --- command line ---

TEST(LeOpcoes, ReadsEveryOption)
{
    const auto lido = LeOpcoes({"--saida",
                                "docs",
                                "--memoria=m.json",
                                "--elo",
                                "COM2",
                                "--formatos",
                                "QX70.INI",
                                "--janela",
                                "--automatico",
                                "--velocidade",
                                "--falha",
                                "nak:2",
                                "--demora",
                                "70",
                                "--bytes",
                                "b.bin",
                                "--comandos",
                                "--documentos",
                                "3",
                                "--sem-figuras",
                                "--espera-documento",
                                "900"});
    ASSERT_TRUE(std::holds_alternative<Opcoes>(lido));
    const auto &opcoes = std::get<Opcoes>(lido);
    EXPECT_EQ(opcoes.saida, "docs");
    EXPECT_EQ(opcoes.memoria, "m.json");
    EXPECT_EQ(opcoes.elo, "COM2");
    EXPECT_EQ(opcoes.formatos, "QX70.INI");
    EXPECT_EQ(opcoes.bytes, "b.bin");
    EXPECT_TRUE(opcoes.janela && opcoes.automatico && opcoes.velocidade && opcoes.comandos &&
                !opcoes.figuras);
    EXPECT_EQ(opcoes.falha, (Falha{TipoDeFalha::Nak, 2}));
    EXPECT_EQ(opcoes.demoraMs, 70);
    EXPECT_EQ(opcoes.esperaDocumentoMs, 900);
    EXPECT_EQ(opcoes.documentos, 3);
}

TEST(LeOpcoes, KeepsTheMemoryInTheFolderOfTheDocuments)
{
    const auto opcoes = std::get<Opcoes>(LeOpcoes({"--saida", "docs"}));
    EXPECT_EQ(opcoes.memoria, "docs/memoria.json");
    EXPECT_FALSE(opcoes.janela || opcoes.automatico || opcoes.velocidade || opcoes.comandos);
    EXPECT_TRUE(opcoes.figuras);
}

TEST(LeOpcoes, HelpNamesEveryFault)
{
    const auto lido = LeOpcoes({"--saida", "x", "--ajuda"});
    ASSERT_TRUE(std::holds_alternative<SoTexto>(lido));
    for (const NomeDeFalha &nome : NomesDeFalhas())
        EXPECT_TRUE(std::get<SoTexto>(lido).texto.contains(nome.nome)) << nome.nome.toStdString();
}

struct CasoOpcoes {
    const char *nome;
    QStringList argumentos;
    const char *motivo;
};
void PrintTo(const CasoOpcoes &c, std::ostream *os)
{
    *os << c.argumentos.join(' ').toStdString();
}
class OpcoesErradasTest : public testing::TestWithParam<CasoOpcoes> {};
TEST_P(OpcoesErradasTest, AreTold)
{
    const auto lido = LeOpcoes(GetParam().argumentos);
    ASSERT_TRUE(std::holds_alternative<OpcaoErrada>(lido));
    EXPECT_EQ(std::get<OpcaoErrada>(lido).motivo, QString::fromUtf8(GetParam().motivo));
}
INSTANTIATE_TEST_SUITE_P(
    Opcoes, OpcoesErradasTest,
    testing::Values(
        CasoOpcoes{"NoFolder", {}, "Falta a opção --saida PASTA."},
        CasoOpcoes{"UnknownOption", {"--porta", "x"}, "A opção --porta não existe."},
        CasoOpcoes{"ValueMissing", {"--saida"}, "Falta o valor da opção --saida."},
        CasoOpcoes{"UnknownFault",
                   {"--saida", "x", "--falha", "fogo"},
                   "O valor \"fogo\" não serve para a opção --falha."},
        CasoOpcoes{"NoNumber", {"--documentos", "um"}, "O valor \"um\" não serve para a opção --documentos."},
        CasoOpcoes{"ValueOfASwitch", {"--janela=sim"}, "A opção --janela não existe."}),
    [](const auto &caso) { return caso.param.nome; });

} // namespace
