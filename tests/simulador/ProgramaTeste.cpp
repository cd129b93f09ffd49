// The real program on its pseudo-terminal, spoken to in frames.
#include <gmock/gmock.h>

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <sys/ioctl.h>

#include "Falha.h"
#include "Hospede.h"

using apoio::Hospede;
using apoio::kPaciencia;
using namespace simulador;

namespace {

class ProgramaTest : public testing::Test {
protected:
    ProgramaTest() { Formatos("001=" + QByteArray(apoio::kPosicoes) + "    ; BANCO EXEMPLO\r\n"); }
    ~ProgramaTest() override
    {
        if (m_programa.state() != QProcess::NotRunning) {
            m_programa.kill();
            m_programa.waitForFinished(kPaciencia);
        }
    }
    void Formatos(const QByteArray &chaves)
    {
        QFile arquivo(m_pasta.filePath("QX70.INI"));
        ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
        arquivo.write("[Formato]\r\n" + chaves);
    }
    [[nodiscard]] QString Elo() const { return m_pasta.filePath("COM2"); }
    [[nodiscard]] QString Saida(const QString &nome) const { return m_pasta.filePath("saida/" + nome); }

    /// Starts the program and waits until it is ready.
    void Comeca(const QStringList &opcoes = {"--sem-figuras"})
    {
        m_programa.setProgram(QX70_BIN_DIR "/qx70-simulador");
        m_programa.setArguments(QStringList{"--saida", m_pasta.filePath("saida"), "--elo", Elo(),
                                            "--formatos", m_pasta.filePath("QX70.INI")} +
                                opcoes);
        m_programa.start();
        m_pronto = LeLinha();
        if (!m_pronto.startsWith("pronto /dev/pts/"))
            throw std::runtime_error("not ready: " + m_programa.readAllStandardError().toStdString());
    }
    /// The next line of the program's output.
    QString LeLinha()
    {
        while (!m_programa.canReadLine() && m_programa.waitForReadyRead(kPaciencia)) {
        }
        return QString::fromUtf8(m_programa.readLine()).trimmed();
    }
    int Espera()
    {
        m_programa.waitForFinished(kPaciencia);
        return m_programa.exitStatus() == QProcess::NormalExit ? m_programa.exitCode() : -1;
    }
    int Termina()
    {
        m_programa.terminate();
        return Espera();
    }
    QString Texto(const QString &nome)
    {
        QFile arquivo(Saida(nome));
        return arquivo.open(QIODevice::ReadOnly) ? QString::fromUtf8(arquivo.readAll())
                                                 : QString("(missing)");
    }

    QTemporaryDir m_pasta;
    QProcess m_programa;
    QString m_pronto;
};

TEST_F(ProgramaTest, PrintsAChequeOverTheLine)
{
    Comeca({});
    Hospede hospede(Elo());
    EXPECT_EQ(hospede.Cheque(), 1);
    EXPECT_EQ(LeLinha(), "documento " + Saida("000001-cheque"));
    const QStringList linhas = Texto("000001-cheque.txt").split('\n');
    ASSERT_EQ(linhas.size(), 21);
    EXPECT_EQ(linhas.at(0).mid(91, 10), "#1.234,56#");
    EXPECT_EQ(linhas.at(9).mid(10, 4), QString::fromUtf8("João"));
    for (const char *fim : {".png", ".pdf", ".json"})
        EXPECT_TRUE(QFile::exists(Saida("000001-cheque") + fim)) << fim;
    EXPECT_EQ(Termina(), 0);
    EXPECT_FALSE(QFileInfo(Elo()).isSymLink()) << "its link is gone";
    EXPECT_TRUE(Texto("memoria.json").contains("BANCO EXEMPLO"));
}

TEST_F(ProgramaTest, RemembersBetweenRuns)
{
    Comeca();
    {
        Hospede hospede(Elo());
        EXPECT_EQ(hospede.Ordena('B', {"237", "02,06,08,11,14,85,20,05,08,40,25,33,55"}), 1);
        hospede.Envia("\x1B\xAF"
                      "D2\r");
        EXPECT_EQ(LeLinha(), "comando ano 2");
    }
    EXPECT_EQ(Termina(), 0);
    Comeca();
    Hospede hospede(Elo());
    EXPECT_EQ(hospede.Ordena('C', {"237", "1,00", "F", "C", "05/03/26", ""}), 1);
    EXPECT_EQ(Texto("000001-cheque.txt").split('\n').at(13).mid(94, 4), "26  ");
}

TEST_F(ProgramaTest, HoldsASheetUntilItEnds)
{
    Comeca();
    Hospede hospede(Elo());
    EXPECT_EQ(hospede.Ordena('T', {1}), 1);
    EXPECT_EQ(hospede.Ordena('F', {"", 3, 0, 0, 0, 0}), 1);
    hospede.Envia("\x1BI"
                  "fim\r\n\r\ncomeco\r\n\x1BI");
    // The line keeps its order: with the answer to the next order the lines are in.
    EXPECT_EQ(hospede.Ordena('I', {"01", "Maria"}), 1);
    EXPECT_EQ(Termina(), 0);
    EXPECT_EQ(LeLinha(), "documento " + Saida("000001-folha"));
    EXPECT_EQ(Texto("000001-folha.txt"), "fim\n\ncomeco\n");
    EXPECT_EQ(Texto("000001-folha.json").count("\"invertida\": true"), 3);
}

TEST_F(ProgramaTest, TellsRefusals)
{
    Comeca({"--sem-figuras", "--falha", "fim-de-papel:1"});
    Hospede hospede(Elo());
    EXPECT_EQ(hospede.Cheque(), 21);
    EXPECT_EQ(LeLinha(), "recusado 21");
    EXPECT_EQ(hospede.Cheque(), 1);
}

TEST_F(ProgramaTest, HangsUpAndComesBackOnANewPort)
{
    Comeca({"--sem-figuras", "--falha", "queda:1"});
    {
        Hospede hospede(Elo());
        hospede.Envia(qx7032::CodificaQuadro(apoio::Quadro('C', {"001", "1,00", "F", "C", "05/03/26", ""})));
        EXPECT_EQ(hospede.Le(11).size(), 6U) << "the acknowledgement and half of the answer";
        EXPECT_TRUE(hospede.Caiu());
    }
    EXPECT_EQ(LeLinha(), "documento " + Saida("000001-cheque"));
    const QString nova = LeLinha();
    ASSERT_TRUE(nova.startsWith("porta nova /dev/pts/")) << nova.toStdString();
    EXPECT_NE(nova.mid(11), m_pronto.mid(7));
    EXPECT_EQ(QFile::symLinkTarget(Elo()), nova.mid(11));
    Hospede hospede(Elo());
    EXPECT_EQ(hospede.Cheque(), 1);
}

TEST_F(ProgramaTest, DamagedFrameIsAnsweredAndTheNextOneTaken)
{
    Comeca();
    Hospede hospede(Elo());
    std::string quadro = qx7032::CodificaQuadro(apoio::Quadro('R', {"*"}));
    quadro[6] = static_cast<char>(quadro[6] ^ 1);
    hospede.Envia(quadro);
    EXPECT_EQ(hospede.Le(1), "\x15");
    // The device asks for a silence: until it has had it, orders are part of the damage.
    QElapsedTimer relogio;
    relogio.start();
    while (relogio.elapsed() < 150)
        hospede.Le(1, 150 - static_cast<int>(relogio.elapsed()));
    EXPECT_EQ(hospede.Ordena('R', {"*"}), 1);
}

TEST_F(ProgramaTest, AFrameThatStopsIsAnsweredAsDamaged)
{
    Comeca();
    Hospede hospede(Elo());
    hospede.Envia(qx7032::CodificaQuadro(apoio::Quadro('R', {"*"})).substr(0, 5));
    EXPECT_EQ(hospede.Le(1), "\x15");
}

TEST_F(ProgramaTest, ObeysCommands)
{
    Comeca({"--sem-figuras", "--comandos"});
    m_programa.write("falha imprime-e-erra:1\n");
    EXPECT_EQ(LeLinha(), "falha imprime-e-erra:1");
    Hospede hospede(Elo());
    EXPECT_EQ(hospede.Cheque(), 29);
    EXPECT_EQ(LeLinha(), "documento " + Saida("000001-cheque"));
    EXPECT_EQ(LeLinha(), "recusado 29");
    m_programa.write("disparate\nfalha sem-documento\nfalha nenhuma\n");
    EXPECT_EQ(LeLinha(), "falha sem-documento");
    EXPECT_EQ(LeLinha(), "falha nenhuma");
    EXPECT_EQ(hospede.Cheque(), 1);
    m_programa.write("sair\n");
    EXPECT_EQ(Espera(), 0);
    EXPECT_THAT(m_programa.readAllStandardError().toStdString(),
                testing::HasSubstr("O comando \"disparate\" não existe"));
}

TEST_F(ProgramaTest, EndsAfterSoManyDocumentsWithTheLastAnswerRead)
{
    Comeca({"--sem-figuras", "--documentos", "2"});
    Hospede hospede(Elo());
    EXPECT_EQ(hospede.Cheque("1,00"), 1);
    EXPECT_EQ(hospede.Cheque("2,00"), 1);
    EXPECT_EQ(Espera(), 0);
    EXPECT_TRUE(QFile::exists(Saida("000002-cheque.txt")));
}

TEST_F(ProgramaTest, WaitsAtTheEndForTheHostToReadTheAnswer)
{
    Comeca({"--sem-figuras", "--documentos", "1"});
    Hospede hospede(Elo());
    hospede.Envia(qx7032::CodificaQuadro(apoio::Quadro('C', {"001", "1,00", "F", "C", "05/03/26", ""})));
    EXPECT_FALSE(m_programa.waitForFinished(300)) << "the answer is not read yet";
    EXPECT_EQ(hospede.Le(11), "\x06" + qx7032::CodificaResultado(0, 1));
    EXPECT_EQ(Espera(), 0);
}

TEST_F(ProgramaTest, KeepsEveryByteReceived)
{
    const QString registro = m_pasta.filePath("bytes.bin");
    Comeca({"--sem-figuras", "--bytes", registro});
    Hospede hospede(Elo());
    hospede.Envia("\x1B\xAF"
                  "D4\r");
    EXPECT_EQ(LeLinha(), "comando ano 4");
    EXPECT_EQ(hospede.Cheque(), 1);
    QFile arquivo(registro);
    ASSERT_TRUE(arquivo.open(QIODevice::ReadOnly));
    EXPECT_EQ(arquivo.readAll(),
              "\x1B\xAF"
              "D4\r" +
                  QByteArray::fromStdString(qx7032::CodificaQuadro(
                      apoio::Quadro('C', {"001", "1.234,56", "Jo\xC6o", "S\xC6o Paulo", "05/03/26", ""}))));
}

TEST_F(ProgramaTest, AtRealSpeedAPageTakesItsTime)
{
    Comeca({"--sem-figuras", "--velocidade"});
    Hospede hospede(Elo());
    QElapsedTimer relogio;
    relogio.start();
    EXPECT_EQ(hospede.Ordena('F', {std::string(960, 'x'), 3, 0, 0, 0, 0}), 1);
    EXPECT_GE(relogio.elapsed(), 900); // 960 bytes are one second, less the first step
}

TEST_F(ProgramaTest, ASlowAnswerComesBehindTheAcknowledgement)
{
    Comeca({"--sem-figuras", "--falha", "lenta:1", "--demora", "300"});
    Hospede hospede(Elo());
    hospede.Envia(qx7032::CodificaQuadro(apoio::Quadro('C', {"001", "1,00", "F", "C", "05/03/26", ""})));
    EXPECT_EQ(hospede.Le(1), "\x06");
    QElapsedTimer relogio;
    relogio.start();
    EXPECT_EQ(hospede.Le(10), qx7032::CodificaResultado(0, 1));
    EXPECT_GE(relogio.elapsed(), 200);
}

TEST_F(ProgramaTest, ReplacesAStaleLinkButNoFile)
{
    ASSERT_EQ(symlink("/dev/pts/ninguem", QFile::encodeName(Elo()).constData()), 0);
    Comeca();
    EXPECT_EQ(QFile::symLinkTarget(Elo()), m_pronto.mid(7));
    EXPECT_EQ(Termina(), 0);
    QFile arquivo(Elo());
    ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
    arquivo.write("importante");
    arquivo.close();
    m_programa.start();
    EXPECT_EQ(Espera(), 1);
    EXPECT_THAT(m_programa.readAllStandardError().toStdString(), testing::HasSubstr("não é um elo"));
    EXPECT_EQ(QFileInfo(Elo()).size(), 10);
}

TEST_F(ProgramaTest, LeavesALinkThatIsNoLongerItsOwn)
{
    Comeca();
    ASSERT_TRUE(QFile::remove(Elo()));
    ASSERT_EQ(symlink("/dev/null", QFile::encodeName(Elo()).constData()), 0);
    EXPECT_EQ(Termina(), 0);
    EXPECT_EQ(QFile::symLinkTarget(Elo()), "/dev/null");
}

TEST_F(ProgramaTest, ADamagedMemoryIsToldAndTheProgramStarts)
{
    ASSERT_TRUE(QDir().mkpath(m_pasta.filePath("saida")));
    QFile memoria(Saida("memoria.json"));
    ASSERT_TRUE(memoria.open(QIODevice::WriteOnly));
    memoria.write("{ \"bancos\": ");
    memoria.close();
    Comeca();
    EXPECT_EQ(Termina(), 0);
    EXPECT_THAT(m_programa.readAllStandardError().toStdString(), testing::HasSubstr("danificada"));
    EXPECT_EQ(Texto("memoria.json.danificada"), "{ \"bancos\": ");
}

TEST_F(ProgramaTest, AKilledHostLeavesThePortUsable)
{
    Comeca();
    {
        Hospede hospede(Elo());
        ASSERT_EQ(ioctl(hospede.Descritor(), TIOCEXCL), 0); // and no TIOCNXCL
    }
    int exclusiva = 1;
    const int fd = open(QFile::encodeName(m_pronto.mid(7)).constData(), O_RDWR | O_NOCTTY);
    QElapsedTimer relogio;
    relogio.start();
    // Opening an exclusive port is refused to everyone but root, who may look at the mark instead.
    while (fd >= 0 && exclusiva != 0 && relogio.elapsed() < kPaciencia)
        ioctl(fd, TIOCGEXCL, &exclusiva);
    if (fd >= 0) {
        close(fd);
        EXPECT_EQ(exclusiva, 0);
    }
}

TEST_F(ProgramaTest, WrongOptionsEndItWithTheReason)
{
    m_programa.start(QX70_BIN_DIR "/qx70-simulador", {"--saida", m_pasta.path(), "--falha", "fogo"});
    EXPECT_EQ(Espera(), 2);
    EXPECT_THAT(m_programa.readAllStandardError().toStdString(), testing::HasSubstr("\"fogo\" não serve"));
}

TEST_F(ProgramaTest, HelpNeedsNothing)
{
    m_programa.start(QX70_BIN_DIR "/qx70-simulador", {"--ajuda"});
    EXPECT_EQ(Espera(), 0);
    EXPECT_THAT(m_programa.readAllStandardOutput().toStdString(), testing::HasSubstr("--espera-documento"));
}

} // namespace
