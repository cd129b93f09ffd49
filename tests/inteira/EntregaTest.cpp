// A second start hands its fields to the copy that runs, with real processes on both ends.
#include "Mesa.h"
#include "plataforma/ambiente/CopiaUnica.h"

#include <QProcess>

namespace inteira {

namespace {

constexpr int kLimite = 30000; // ms, for a process to end

/// The program itself, on the office folder of the environment.
class Programa {
public:
    explicit Programa(const QStringList &argumentos)
    {
        MorreComOTeste(processo);
        QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
        ambiente.insert("QT_QPA_PLATFORM", "offscreen");
        processo.setProcessEnvironment(ambiente);
        processo.start(QStringLiteral(QX70_BIN_DIR "/qx70"), argumentos);
    }
    ~Programa() { Mata(); }
    Programa(const Programa &) = delete;
    Programa &operator=(const Programa &) = delete;

    /// Waits for its end while this process goes on with its events. @return its exit code; -1 when it did
    /// not end by itself
    int Resultado()
    {
        const bool terminou =
            QTest::qWaitFor([this] { return processo.state() == QProcess::NotRunning; }, kLimite);
        return terminou && processo.exitStatus() == QProcess::NormalExit ? processo.exitCode() : -1;
    }
    /// SIGKILL to this very process.
    void Mata()
    {
        processo.kill();
        processo.waitForFinished(kLimite);
    }
    QProcess processo;
};

/// The screen of this test is the running copy.
class EntregaInteiraTest : public Mesa {
protected:
    EntregaInteiraTest() { CadastraBanco("237", "Segundo", kPosicoesPadrao); }

    void AbrePrimeira(const app::ArgumentosLinha &argumentos = {})
    {
        copia.emplace(escritorio.Pasta());
        ASSERT_TRUE(copia->Primeira());
        Abre(argumentos);
        copia->Atende([this](const plataforma::Campos &campos) { Tela().Recebe(campos); });
    }
    QStringList Text1() { return Campos().first(6); }
    std::optional<plataforma::CopiaUnica> copia;
};

const QString kTamanhoMaximo = QStringLiteral("Tamanho Máximo deste campo...");

} // namespace

TEST_F(EntregaInteiraTest, TheRunningCopyTakesTheFieldsAndTheOtherEnds)
{
    AbrePrimeira();
    EXPECT_EQ(Programa({"/V10,00", "/C123"}).Resultado(), 0);
    EXPECT_EQ(Text1(), (QStringList{"", "10,00", "", "", "", "123"}));
    EXPECT_EQ(caixas.Quantas(), 0);
}

TEST_F(EntregaInteiraTest, OnlyTheFieldsNamedChange)
{
    app::ArgumentosLinha argumentos;
    argumentos[2] = "Ana";
    argumentos[6] = "1";
    AbrePrimeira(argumentos);
    EXPECT_EQ(Programa({"/c 77 ", "/X12", "/B", "/LSão Paulo"}).Resultado(), 0);
    EXPECT_EQ(Text1(), (QStringList{"", "", "Ana", "São Paulo", "", "77"}));
}

TEST_F(EntregaInteiraTest, WithNoArgumentsTheOtherJustEnds)
{
    AbrePrimeira();
    EXPECT_EQ(Programa({}).Resultado(), 0);
    EXPECT_EQ(Text1(), QStringList(6, ""));
}

TEST_F(EntregaInteiraTest, AnOverlongPayeeIsToldInTheRunningCopyAndCut)
{
    AbrePrimeira();
    const QString sessenta = QStringLiteral("0123456789").repeated(6);
    EXPECT_EQ(Programa({"/F" + sessenta}).Resultado(), 0);
    EXPECT_EQ(Vistas(), (std::vector<Vista>{{"Erro", kTamanhoMaximo}}));
    EXPECT_EQ(caixas.Ultima().icone, QMessageBox::Warning);
    EXPECT_EQ(Text1(), (QStringList{"", "", sessenta.left(47), "", "", ""}));
}

TEST_F(EntregaInteiraTest, AnOverlongCityIsCutShorterThanItsLimit)
{
    AbrePrimeira();
    EXPECT_EQ(Programa({"/Labcdefghijklmnopqrstu"}).Resultado(), 0);
    EXPECT_EQ(Vistas(), (std::vector<Vista>{{"Erro", kTamanhoMaximo}}));
    EXPECT_EQ(Text1(), (QStringList{"", "", "", "abcdefghijklmno", "", ""}));
}

TEST_F(EntregaInteiraTest, WhatWasHandedOverIsPrintedByTheOperatorsEnters)
{
    Liga();
    AbrePrimeira();
    ASSERT_EQ(Programa({"/B237/V150,00/FJosé Silva/LOlinda/D010299/C000123"}).Resultado(), 0);
    EXPECT_EQ(Text1(), (QStringList{"237", "150,00", "José Silva", "Olinda", "010299", "000123"}));
    for (int campo = 0; campo < 6; ++campo)
        apoio::Tecla(Tela(), Qt::Key_Return);
    Imprime();
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(
        Folha(1),
        FolhaEsperada(
            kPosicoesPadrao,
            {"150,00", "cento e cinquenta reais", "José Silva", "Olinda", "01", "Fevereiro", "1999", {}}));
    EXPECT_EQ(Log(), (QList<QStringList>{{"0000000001", "00001", "237", "150,", "José Silva", "Olinda",
                                          "01/02/99", "000123", " ", "", "", ""}}));
}

/// The running copy is the program itself; the device hears it start.
class CopiaMortaTest : public Mesa {
protected:
    CopiaMortaTest()
    {
        PoeChave("Opcoes", "ConfiguraData", "2");
        Liga();
    }
    void EsperaInicio() { aparelho.EsperaLinha("comando ano 2"); }
};

TEST_F(CopiaMortaTest, AKilledCopyLeavesNothingThatStopsTheNextStart)
{
    Programa primeira({});
    EsperaInicio();
    EXPECT_EQ(Programa({"/V10,00"}).Resultado(), 0);
    EXPECT_EQ(primeira.processo.state(), QProcess::Running);
    primeira.Mata();
    EXPECT_EQ(primeira.processo.exitStatus(), QProcess::CrashExit);

    Programa segunda({"/V20,00"});
    EsperaInicio();
    EXPECT_EQ(Programa({"/V30,00"}).Resultado(), 0);
    EXPECT_EQ(segunda.processo.state(), QProcess::Running);
}

} // namespace inteira
