// The program killed at any moment while it writes: rows that were told as written are there, the store
// opens, and every setting is the old or the new one.
#include "Ajustes.h"
#include "Aparelho.h"
#include "apoio/Escritorio.h"

#include <chrono>
#include <csignal>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <random>
#include <sys/stat.h>
#include <thread>

namespace inteira {

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int kMortes = 8; // of each case
constexpr int kMortesDaDemonstracao = 3;
#else
constexpr int kMortes = 20;
constexpr int kMortesDaDemonstracao = 6;
#endif
const QString kFormato = QStringLiteral("[Formato]\n"
                                        "001=01,05,07,10,13,92,17,09,11,50,31,40,65    ; Primeiro\n");
constexpr int kCasosDeCheques = 5;
constexpr int kCasosDeAjustes = 5;
constexpr int kEntreDuasEscritas = 5000; // us, of the program's start, and some more
constexpr int kLimite = 60000;           // ms, for what a living program is to say

/// A program of the test that is killed at a moment of chance.
class Vitima {
public:
    Vitima(const QString &programa, const QStringList &argumentos, const QProcessEnvironment &ambiente)
    {
        MorreComOTeste(m_processo);
        m_processo.setProcessEnvironment(ambiente);
        m_processo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_processo.start(programa, argumentos);
        EXPECT_TRUE(m_processo.waitForStarted(kLimite));
    }
    ~Vitima() { m_processo.kill(); }
    Vitima(const Vitima &) = delete;
    Vitima &operator=(const Vitima &) = delete;

    /// The next line that it says; empty when it has ended.
    QByteArray Linha()
    {
        while (!m_processo.canReadLine() && m_processo.waitForReadyRead(kLimite)) {
        }
        return m_processo.canReadLine() ? m_processo.readLine().trimmed() : QByteArray();
    }
    /// @return whether it was running until now
    bool Mata()
    {
        const auto pid = static_cast<pid_t>(m_processo.processId());
        const bool morta = pid > 0 && kill(pid, SIGKILL) == 0 && m_processo.waitForFinished(kLimite);
        return morta && m_processo.exitStatus() == QProcess::CrashExit && m_processo.exitCode() == SIGKILL;
    }
    /// What it had said by its death.
    QList<QByteArray> Resto() { return m_processo.readAll().split('\n'); }

private:
    QProcess m_processo;
};

void Adormece(std::chrono::microseconds quanto)
{
    std::this_thread::sleep_for(quanto);
}

/// What a clerk told: the last number begun and the last one done.
struct Contas {
    int comecado = 0;
    int feito = 0;
    void Ouve(const QByteArray &linha)
    {
        const int numero = linha.mid(2).toInt();
        if (linha.startsWith('p'))
            comecado = numero;
        else if (linha.startsWith('w'))
            feito = numero;
    }
    [[nodiscard]] bool NoMeio() const { return comecado > feito; }
};

class MorteBase : public testing::Test {
protected:
    void SetUp() override
    {
        escritorio.CriaBanco();
        escritorio.Sql(
            "DELETE FROM Log; DELETE FROM Bancos;"
            "INSERT INTO Bancos VALUES ('001', 'Primeiro', '001', '005', '007', '010', '013', '092', "
            "'017', '009', '011', '050', '031', '040', '065')");
        ambiente.insert("QX70_HOME", escritorio.Pasta());
        ambiente.insert("XDG_RUNTIME_DIR", escritorio.Pasta());
        ambiente.insert("QT_QPA_PLATFORM", "offscreen");
        ambiente.insert("QX70_GRAVADORA_SAIDA", "/dev/null");
        ambiente.insert("QX70_GRAVADORA_ROTEIRO", "/dev/null");
    }
    void PoeBiblioteca(const QString &biblioteca) const
    {
        ASSERT_TRUE(QFile::copy(biblioteca, escritorio.Arquivo("libqx7032.so")));
    }
    int Sorteia(int ate) { return std::uniform_int_distribution(0, ate)(acaso); }

    /// Lets a clerk work from number `primeiro` on and kills it somewhere between the beginning and the end
    /// of one of its first works.
    Contas EscreveEMata(const QString &trabalho, int primeiro)
    {
        Vitima escrivao(QStringLiteral(ESCRIVAO), {trabalho, QString::number(primeiro)}, ambiente);
        Contas contas;
        QElapsedTimer demora;
        std::chrono::microseconds umTrabalho{0};
        const int alvo = primeiro + 1 + Sorteia(3);
        while (contas.comecado < alvo) {
            const QByteArray linha = escrivao.Linha();
            if (linha.isEmpty())
                break;
            contas.Ouve(linha);
            if (contas.NoMeio())
                demora.start();
            else
                umTrabalho = std::chrono::microseconds(demora.nsecsElapsed() / 1000);
        }
        Adormece(std::chrono::microseconds(Sorteia(static_cast<int>(umTrabalho.count()))));
        EXPECT_TRUE(escrivao.Mata()) << "it had ended by itself";
        for (const QByteArray &linha : escrivao.Resto())
            contas.Ouve(linha);
        EXPECT_GE(contas.feito, primeiro) << "it had not begun to write";
        return contas;
    }
    /// A store that is whole, to the engine alone and to the office's own tool.
    void ConfereBanco() const
    {
        ASSERT_EQ(escritorio.Linhas("PRAGMA integrity_check"), (QList<QStringList>{{"ok"}}));
        QProcess confere;
        confere.start(QStringLiteral(QX70_BIN_DIR "/qx70-banco"), {"confere", escritorio.Pasta()});
        ASSERT_TRUE(confere.waitForFinished(kLimite));
        ASSERT_EQ(confere.exitCode(), 0)
            << confere.readAllStandardOutput().toStdString() << confere.readAllStandardError().toStdString();
    }

    apoio::Escritorio escritorio;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    std::mt19937 acaso{20240201};
};

// Cheques

class MorteNoLogTest : public MorteBase, public testing::WithParamInterface<int> {};

TEST_P(MorteNoLogTest, EveryRowToldAsWrittenIsThereAndTheStoreIsWhole)
{
    acaso.seed(static_cast<unsigned>(1000 + GetParam()));
    PoeBiblioteca(GRAVADORA);
    escritorio.GravaIni("[Sistema]\nInRel=1\nport=COM2\n" + kFormato);
    QStringList esperados;
    int noMeio = 0;
    int numero = 1;
    for (int morte = 0; morte < kMortes; ++morte) {
        const Contas contas = EscreveEMata("cheques", numero);
        ASSERT_FALSE(HasFailure());
        noMeio += contas.NoMeio() ? 1 : 0;
        for (; numero <= contas.feito; ++numero)
            esperados << QString::number(numero);
        ConfereBanco();
        ASSERT_FALSE(HasFatalFailure());
        QStringList gravados;
        for (const QStringList &linha : escritorio.Linhas("SELECT NRCH FROM Log ORDER BY rowid"))
            gravados << linha.join('|');
        // The one that it was at may be there or not.
        if (contas.NoMeio() && gravados.size() == esperados.size() + 1)
            esperados << QString::number(contas.comecado);
        ASSERT_EQ(gravados, esperados) << "after kill " << morte + 1;
        ASSERT_EQ(escritorio.Linhas("SELECT \"Index\" FROM Log GROUP BY 1 HAVING count(*) > 1").size(), 0);
        numero = contas.comecado + 1;
    }
    EXPECT_GE(noMeio, kMortes / 3) << "hardly a kill met a cheque on its way";
    RecordProperty("killed_inside_a_cheque", noMeio);
}

INSTANTIATE_TEST_SUITE_P(Sementes, MorteNoLogTest, testing::Range(1, kCasosDeCheques + 1),
                         [](const auto &caso) { return "Seed" + std::to_string(caso.param); });

// The purge of the start

constexpr int kVelhas = 8000;
constexpr int kNovas = 50;
constexpr int kGrupo = 500; // rows that the purge deletes together

class MorteNoExpurgoTest : public MorteBase {
protected:
    /// Old rows first, then rows of the clerk's today.
    void EncheLog() const
    {
        escritorio.Sql(
            QStringLiteral(
                "DELETE FROM Log; "
                "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
                "INSERT INTO Log SELECT substr('000000000' || i, -10), substr('0000' || i, -5), '001', "
                "'10,', 'Fulano de Tal', 'Olinda', iif(i <= %2, '01/01/23', '01/02/24'), i, ' ', '', "
                "'', '' FROM n")
                .arg(kVelhas + kNovas)
                .arg(kVelhas));
    }
    /// How many of the old rows are there; they are the last ones, and all new ones are there.
    int VelhasQueRestam() const
    {
        const QList<QStringList> linhas = escritorio.Linhas("SELECT NRCH FROM Log ORDER BY rowid");
        const int restam = static_cast<int>(linhas.size()) - kNovas;
        for (int i = 0; i < linhas.size(); ++i)
            EXPECT_EQ(linhas[i][0].toInt(), kVelhas - restam + 1 + i);
        return restam;
    }
    /// The clerk lets the purge run, for `quanto` or to its end.
    std::chrono::microseconds Expurga(std::optional<std::chrono::microseconds> quanto)
    {
        Vitima escrivao(QStringLiteral(ESCRIVAO), {"expurgo", "1"}, ambiente);
        EXPECT_EQ(escrivao.Linha(), "p 1");
        QElapsedTimer demora;
        demora.start();
        if (quanto) {
            Adormece(*quanto);
            escrivao.Mata();
        } else {
            EXPECT_EQ(escrivao.Linha(), "w 1");
        }
        return std::chrono::microseconds(demora.nsecsElapsed() / 1000);
    }
};

TEST_F(MorteNoExpurgoTest, OldRowsGoInWholeGroupsAndNoOtherRowIsLost)
{
    PoeBiblioteca(GRAVADORA);
    escritorio.GravaIni("[Sistema]\nInRel=1\nport=COM2\n" + kFormato);
    EncheLog();
    const auto inteiro = static_cast<int>(Expurga({}).count());
    ASSERT_EQ(VelhasQueRestam(), 0);
    int noMeio = 0;
    for (int morte = 0; morte < kMortes; ++morte) {
        EncheLog();
        Expurga(std::chrono::microseconds(Sorteia(inteiro)));
        ConfereBanco();
        const int restam = VelhasQueRestam();
        ASSERT_FALSE(HasFailure()) << "after kill " << morte + 1;
        EXPECT_EQ(restam % kGrupo, 0);
        noMeio += restam > 0 && restam < kVelhas ? 1 : 0;
    }
    EXPECT_GE(noMeio, kMortes / 5) << "hardly a kill met the purge at work";
    RecordProperty("killed_inside_the_purge", noMeio);
    EncheLog();
    Expurga({});
    EXPECT_EQ(VelhasQueRestam(), 0) << "the next start deletes the rest";
}

// Settings

/// A settings file with notes and things that the program knows nothing of.
class Ini {
public:
    Ini()
    {
        for (int n = 1; n <= kAjustes; ++n)
            m_valores[Nome(AjusteDe(n))] = n == kAjustes ? QStringLiteral("2") : QStringLiteral("inicial");
    }
    void Poe(const Ajuste &ajuste) { m_valores[Nome(ajuste)] = ajuste.valor; }
    [[nodiscard]] QString Texto() const
    {
        QString texto =
            QStringLiteral("; ajustes do escritório, não apague\n[Sistema]\nInRel=1\nport=COM2\n"
                           "  ; nota recuada\n\n[Outro]\nde outro programa = 1 \nlinha sem sinal\n") +
            kFormato;
        for (const char *secao : {"FrenteInfo", "Verso", "Opcoes"}) {
            texto += '[' + QLatin1String(secao) + "]\n; antes das chaves\n";
            for (const auto &[nome, valor] : m_valores)
                if (nome.startsWith(QLatin1String(secao) + '/'))
                    texto += nome.section('/', 1) + '=' + valor + '\n';
            texto += QStringLiteral("; depois das chaves\n");
        }
        return texto;
    }

private:
    static QString Nome(const Ajuste &ajuste) { return ajuste.secao + '/' + ajuste.chave; }
    std::map<QString, QString> m_valores;
};

QString ComFins(QString texto)
{
    return texto.replace("\n", "\r\n");
}

class MorteNoIniTest : public MorteBase, public testing::WithParamInterface<int> {};

TEST_P(MorteNoIniTest, EveryKeyIsTheOldOrTheNewOneAndAllElseStays)
{
    acaso.seed(static_cast<unsigned>(2000 + GetParam()));
    PoeBiblioteca(GRAVADORA);
    Ini ini;
    escritorio.GravaIni(ini.Texto());
    int noMeio = 0;
    int numero = 1;
    for (int morte = 0; morte < kMortes; ++morte) {
        const Contas contas = EscreveEMata("ajustes", numero);
        ASSERT_FALSE(HasFailure());
        noMeio += contas.NoMeio() ? 1 : 0;
        for (; numero <= contas.feito; ++numero)
            ini.Poe(AjusteDe(numero));
        const QString achado = escritorio.LeIni();
        if (contas.NoMeio() && achado != ComFins(ini.Texto()))
            ini.Poe(AjusteDe(contas.comecado));
        ASSERT_EQ(achado, ComFins(ini.Texto())) << "after kill " << morte + 1;
        numero = contas.comecado + 1;
    }
    EXPECT_GE(noMeio, kMortes / 3) << "hardly a kill met a setting on its way";
    RecordProperty("killed_inside_a_setting", noMeio);
    ConfereBanco();
}

INSTANTIATE_TEST_SUITE_P(Sementes, MorteNoIniTest, testing::Range(1, kCasosDeAjustes + 1),
                         [](const auto &caso) { return "Seed" + std::to_string(caso.param); });

// The program itself

class MorteDoProgramaTest : public MorteBase {
protected:
    /// Runs the real program until its two missing settings are there. @return how long that took
    std::chrono::microseconds MedeInicio()
    {
        PoeIniSemChaves();
        QElapsedTimer demora;
        demora.start();
        Vitima programa(QStringLiteral(QX70_BIN_DIR "/qx70"), {}, ambiente);
        while (escritorio.Chave("Sistema", "port").isNull() && !demora.hasExpired(kLimite))
            Adormece(std::chrono::milliseconds(1));
        const std::chrono::microseconds levou(demora.nsecsElapsed() / 1000);
        EXPECT_TRUE(programa.Mata());
        return levou;
    }
    /// The settings file as the folder knows it; a write changes at least one of the two.
    [[nodiscard]] std::pair<ino_t, off_t> Ficha() const
    {
        struct stat dados {};
        stat(QFile::encodeName(escritorio.Arquivo("QX70.INI")).constData(), &dados);
        return {dados.st_ino, dados.st_size};
    }
    [[nodiscard]] bool EsperaMudar(const std::pair<ino_t, off_t> &antes) const
    {
        const QDeadlineTimer prazo(kLimite);
        while (Ficha() == antes && !prazo.hasExpired())
            std::this_thread::yield();
        return Ficha() != antes;
    }
    /// Waits until the device has got a byte more.
    static void EsperaByte(const Aparelho &aparelho, qsizetype antes)
    {
        for (const QDeadlineTimer prazo(kLimite); aparelho.Bytes().size() == antes && !prazo.hasExpired();)
            std::this_thread::yield();
    }
    /// Prints one cheque with nobody disturbing. @return how long it took from the device's first byte on
    std::chrono::microseconds Imprime(const QString &programa, const Aparelho &aparelho) const
    {
        const auto antes = aparelho.Bytes().size();
        QProcess processo;
        MorreComOTeste(processo);
        processo.setProcessEnvironment(ambiente);
        processo.start(programa, QStringList());
        EsperaByte(aparelho, antes);
        QElapsedTimer demora;
        demora.start();
        EXPECT_TRUE(processo.waitForFinished(kLimite));
        EXPECT_EQ(processo.exitCode(), 0) << processo.readAllStandardOutput().toStdString();
        return std::chrono::microseconds(demora.nsecsElapsed() / 1000);
    }
    void PoeIniSemChaves() const { escritorio.GravaIni(kAntes + kDepois); }

    const QString kAntes = "; do escritório\n[Sistema]\nm_sg=Real\n";
    const QString kDepois = "\n; fim\n[FrenteInfo]\nCidade=Olinda\n" + kFormato;
};

TEST_F(MorteDoProgramaTest, KilledInItsStartLeavesTheSettingsWhole)
{
    const auto inicio = MedeInicio();
    ASSERT_FALSE(HasFailure());
    const QStringList inteiros{ComFins(kAntes + kDepois), ComFins(kAntes + "InRel=1\n" + kDepois),
                               ComFins(kAntes + "InRel=1\nport=COM2\n" + kDepois)};
    int comecados = 0;
    for (int morte = 0; morte < kMortes; ++morte) {
        PoeIniSemChaves();
        const auto antes = Ficha();
        Vitima programa(QStringLiteral(QX70_BIN_DIR "/qx70"), {}, ambiente);
        // Every other one between the first write and a little behind the second.
        if (morte % 2 == 0) {
            Adormece(std::chrono::microseconds(Sorteia(static_cast<int>(inicio.count()))));
        } else {
            ASSERT_TRUE(EsperaMudar(antes));
            Adormece(std::chrono::microseconds(Sorteia(kEntreDuasEscritas)));
        }
        ASSERT_TRUE(programa.Mata()) << "it had ended by itself";
        const auto qual = inteiros.indexOf(escritorio.LeIni());
        ASSERT_GE(qual, 0) << escritorio.LeIni().toStdString();
        comecados += qual > 0 ? 1 : 0;
    }
    RecordProperty("killed_behind_a_write", comecados);
    EXPECT_GE(comecados, kMortes / 2) << "hardly a start came as far as writing";
    ConfereBanco();
    // A start that is let live finds its lock free and its settings usable.
    MedeInicio();
    EXPECT_EQ(escritorio.LeIni(), inteiros.last());
}

// The real library prints on the simulated device meanwhile.
TEST_F(MorteDoProgramaTest, KilledWhilePrintingTheNextChequeStillComesOut)
{
    Aparelho aparelho(escritorio.Pasta());
    PoeBiblioteca(QStringLiteral(QX70_BIN_DIR "/libqx7032.so"));
    escritorio.GravaIni("[Sistema]\nInRel=1\nport=COM2\n" + kFormato);
    ambiente.insert("QX7032_COM2", aparelho.Elo());
    aparelho.Liga({});
    const QString programa = QStringLiteral(QX70_BIN_DIR "/qx70-demonstracao");
    const auto umCheque = static_cast<int>(Imprime(programa, aparelho).count());
    ASSERT_FALSE(HasFailure());
    int linhas = 1;
    int mortes = 0;
    for (int morte = 0; morte < kMortesDaDemonstracao; ++morte) {
        {
            const auto antes = aparelho.Bytes().size();
            Vitima demonstracao(programa, {}, ambiente);
            EsperaByte(aparelho, antes);
            Adormece(std::chrono::microseconds(Sorteia(umCheque / 3)));
            mortes += demonstracao.Mata() ? 1 : 0;
        }
        ConfereBanco();
        ASSERT_FALSE(HasFatalFailure());
        const auto agora = static_cast<int>(escritorio.Linhas("SELECT NRCH FROM Log").size());
        EXPECT_GE(agora, linhas);
        EXPECT_LE(agora, linhas + 1);
        Imprime(programa, aparelho);
        ASSERT_FALSE(HasFailure()) << "after kill " << morte + 1;
        linhas = agora + 1;
        EXPECT_EQ(escritorio.Linhas("SELECT NRCH FROM Log").size(), linhas);
    }
    EXPECT_GE(mortes, kMortesDaDemonstracao / 3) << "too many had ended by themselves";
    EXPECT_GE(aparelho.Documentos().size(), kMortesDaDemonstracao + 1);
}

} // namespace

} // namespace inteira
