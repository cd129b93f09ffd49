// One copy per application folder: the lock, the hand-over between real processes, and what a dead or hung
// copy leaves behind.
#include "Auxiliar.h"
#include <csignal>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTimer>
#include <sys/stat.h>

using plataforma::MontaMensagem;

TEST_F(CopiaTeste, ASecondStartFindsTheFirst)
{
    QProcess &primeira = Inicia({"fica", App()});
    ASSERT_EQ(Linha(primeira), "primeira");
    QProcess &segunda = Inicia({"fica", App()});
    EXPECT_EQ(Linha(segunda), "segunda");
}

TEST_F(CopiaTeste, FieldsReachTheRunningCopyInOrder)
{
    QProcess &primeira = Inicia({"fica", App()});
    ASSERT_EQ(Linha(primeira), "primeira");
    QProcess &segunda = Inicia({"entrega", App(), "1=10,00", "2=José da Conceição & Cia", "0=001", "6="});
    EXPECT_EQ(Linha(segunda), "entregue");
    EXPECT_EQ(Linha(primeira), "recebido 1=10,00 2=José da Conceição & Cia 0=001 6=");
}

TEST_F(CopiaTeste, AHandOverWithoutFieldsComesThrough)
{
    QProcess &primeira = Inicia({"fica", App()});
    ASSERT_EQ(Linha(primeira), "primeira");
    QProcess &segunda = Inicia({"entrega", App()});
    EXPECT_EQ(Linha(segunda), "entregue");
    EXPECT_EQ(Linha(primeira), "recebido");
}

TEST_F(CopiaTeste, AnotherFolderIsAnotherInstallation)
{
    const QTemporaryDir outra;
    const CopiaUnica uma(App(), Lugares());
    const CopiaUnica duas(outra.path(), Lugares());
    EXPECT_TRUE(uma.Primeira());
    EXPECT_TRUE(duas.Primeira());
}

TEST_F(CopiaTeste, ALinkToTheFolderIsTheSameInstallation)
{
    const QString elo = m_usuario.filePath("elo");
    ASSERT_TRUE(QFile::link(App(), elo));
    const CopiaUnica uma(App() + "/.", Lugares());
    const CopiaUnica duas(elo, Lugares());
    EXPECT_TRUE(uma.Primeira());
    EXPECT_FALSE(duas.Primeira());
}

TEST_F(CopiaTeste, TheLockEndsWithItsOwner)
{
    auto uma = std::make_unique<CopiaUnica>(App(), Lugares());
    CopiaUnica duas(App(), Lugares());
    EXPECT_FALSE(duas.TentaDeNovo());
    uma.reset();
    EXPECT_FALSE(duas.Primeira());
    EXPECT_TRUE(duas.TentaDeNovo());
    EXPECT_TRUE(duas.Primeira());
    const CopiaUnica tres(App(), Lugares());
    EXPECT_FALSE(tres.Primeira());
}

TEST_F(CopiaTeste, AKilledCopyDoesNotStopTheNext)
{
    QProcess &morta = Inicia({"fica", App()});
    ASSERT_EQ(Linha(morta), "primeira");
    ASSERT_EQ(kill(static_cast<pid_t>(morta.processId()), SIGKILL), 0);
    ASSERT_TRUE(morta.waitForFinished());
    ASSERT_TRUE(QFile::exists(Socket())) << "the kill was to leave the dead socket behind";

    QProcess &nova = Inicia({"fica", App()});
    ASSERT_EQ(Linha(nova), "primeira");
    QProcess &segunda = Inicia({"entrega", App(), "3=Santos"});
    EXPECT_EQ(Linha(segunda), "entregue");
    EXPECT_EQ(Linha(nova), "recebido 3=Santos");
}

TEST_F(CopiaTeste, AHungCopyIsGivenUpAndItsFieldsStayUntouched)
{
    QProcess &primeira = Inicia({"fica", App()});
    ASSERT_EQ(Linha(primeira), "primeira");
    const CopiaUnica segunda(App(), Lugares());
    ASSERT_EQ(kill(static_cast<pid_t>(primeira.processId()), SIGSTOP), 0);
    QElapsedTimer relogio;
    relogio.start();
    EXPECT_FALSE(segunda.Entrega({{1, "10,00"}}, 300));
    EXPECT_GE(relogio.elapsed(), 300);
    EXPECT_LT(relogio.elapsed(), 3000);

    ASSERT_EQ(kill(static_cast<pid_t>(primeira.processId()), SIGCONT), 0);
    EXPECT_TRUE(segunda.Entrega({{1, "20,00"}}));
    EXPECT_EQ(Linha(primeira), "recebido 1=20,00") << "what was given up came to the screen";
}

TEST_F(CopiaTeste, WithoutARunningCopyNothingIsHandedOver)
{
    auto primeira = std::make_unique<CopiaUnica>(App(), Lugares());
    const CopiaUnica segunda(App(), Lugares());
    primeira.reset();
    EXPECT_FALSE(segunda.Entrega({{1, "10,00"}}, 100));
}

TEST_F(CopiaTeste, TheFirstCopyHandsNothingToItself)
{
    const CopiaUnica primeira(App(), Lugares());
    EXPECT_FALSE(primeira.Entrega({{1, "10,00"}}));
}

TEST_F(CopiaTeste, AHandOverWaitsForACopyThatIsStillStarting)
{
    CopiaUnica primeira(App(), Lugares());
    Cliente cliente(Socket());
    ASSERT_TRUE(cliente.Conectado());
    ASSERT_TRUE(cliente.Envia(MontaMensagem({{0, "001"}})));
    Campos recebidos;
    primeira.Atende([&](const Campos &campos) { recebidos = campos; });
    EXPECT_TRUE(RodaAte([&] { return cliente.Respostas() == "RF"; }));
    EXPECT_EQ(recebidos, (Campos{{0, "001"}}));
}

TEST_F(CopiaTeste, ASenderThatHasGivenUpChangesNothing)
{
    CopiaUnica primeira(App(), Lugares());
    Cliente desistente(Socket());
    ASSERT_TRUE(desistente.Envia(MontaMensagem({{1, "10,00"}})));
    desistente.Desliga();
    Cliente paciente(Socket());
    ASSERT_TRUE(paciente.Envia(MontaMensagem({{1, "20,00"}})));
    QList<Campos> recebidos;
    primeira.Atende([&](const Campos &campos) { recebidos.append(campos); });
    EXPECT_TRUE(RodaAte([&] { return paciente.Respostas() == "RF"; }));
    EXPECT_EQ(recebidos, (QList<Campos>{{{1, "20,00"}}}));
}

TEST_F(CopiaTeste, BehindAMessageBoxTheFieldsAreConfirmedAndTheNextOnesWait)
{
    CopiaUnica primeira(App(), Lugares());
    Cliente um(Socket());
    Cliente dois(Socket());
    QList<Campos> recebidos;
    QByteArray respostasDuranteACaixa;
    bool outroDuranteACaixa = false;
    primeira.Atende([&](const Campos &campos) {
        recebidos.append(campos);
        if (recebidos.size() > 1)
            return;
        // Inside, the event loop runs as behind a box, long enough for the other to have been read.
        ASSERT_TRUE(dois.Envia(MontaMensagem({{1, "20,00"}})));
        Cliente intruso(Socket());
        intruso.Envia("rubbish");
        EXPECT_TRUE(RodaAte([&] { return intruso.Fechado(); }));
        respostasDuranteACaixa = um.Respostas();
        outroDuranteACaixa = recebidos.size() > 1 || !dois.Respostas().isEmpty();
    });
    ASSERT_TRUE(um.Envia(MontaMensagem({{1, "10,00"}})));
    EXPECT_TRUE(RodaAte([&] { return dois.Respostas() == "RF"; }));
    EXPECT_EQ(respostasDuranteACaixa, "R");
    EXPECT_FALSE(outroDuranteACaixa);
    EXPECT_EQ(um.Respostas(), "RF");
    EXPECT_EQ(recebidos, (QList<Campos>{{{1, "10,00"}}, {{1, "20,00"}}}));
}

TEST_F(CopiaTeste, TheProgramMayEndInsideAHandOver)
{
    auto primeira = std::make_unique<CopiaUnica>(App(), Lugares());
    int vezes = 0;
    primeira->Atende([&](const Campos &) {
        ++vezes;
        primeira.reset();
        QEventLoop().processEvents();
    });
    Cliente cliente(Socket());
    ASSERT_TRUE(cliente.Envia(MontaMensagem({})));
    EXPECT_TRUE(RodaAte([&] { return cliente.Fechado(); }));
    EXPECT_EQ(vezes, 1);
    EXPECT_EQ(cliente.Respostas(), "R");
    EXPECT_FALSE(QFile::exists(Socket()));
    EXPECT_TRUE(CopiaUnica(App(), Lugares()).Primeira());
}

TEST_F(CopiaTeste, TheProgramMayEndBehindAMessageBox)
{
    auto primeira = std::make_unique<CopiaUnica>(App(), Lugares());
    bool passou = false;
    primeira->Atende([&](const Campos &) {
        QEventLoop caixa;
        QMetaObject::invokeMethod(
            &caixa, [&] { primeira.reset(); }, Qt::QueuedConnection);
        QMetaObject::invokeMethod(
            &caixa, [&] { QTimer::singleShot(0, &caixa, &QEventLoop::quit); }, Qt::QueuedConnection);
        caixa.exec();
        passou = true;
    });
    Cliente cliente(Socket());
    ASSERT_TRUE(cliente.Envia(MontaMensagem({})));
    EXPECT_TRUE(RodaAte([&] { return passou; }));
    EXPECT_EQ(cliente.Respostas(), "R");
    EXPECT_TRUE(cliente.Fechado());
}

TEST_F(CopiaTeste, OnlyTheUserMayReachTheSocket)
{
    const CopiaUnica primeira(App(), Lugares());
    struct stat socket {};
    struct stat pasta {};
    ASSERT_EQ(stat(QFile::encodeName(Socket()).constData(), &socket), 0);
    ASSERT_EQ(stat(QFile::encodeName(plataforma::PastaDaInstalacao(App(), Lugares())).constData(), &pasta),
              0);
    EXPECT_EQ(socket.st_mode & 0777, 0600);
    EXPECT_EQ(pasta.st_mode & 0777, 0700);
}

TEST_F(CopiaTeste, WithoutAFolderForTheLockTheProgramStartsAllTheSame)
{
    const plataforma::LugaresDeTrava nenhum{{}, m_usuario.filePath("nao-existe")};
    CopiaUnica copia(App(), nenhum);
    EXPECT_TRUE(copia.Primeira());
    EXPECT_TRUE(copia.TentaDeNovo());
    copia.Atende([](const Campos &) {});
}

TEST_F(CopiaTeste, AStartedProgramDoesNotInheritTheLock)
{
    auto primeira = std::make_unique<CopiaUnica>(App(), Lugares());
    QProcess filho;
    filho.start("cat", QStringList());
    ASSERT_TRUE(filho.waitForStarted());
    primeira.reset();
    EXPECT_TRUE(CopiaUnica(App(), Lugares()).Primeira());
    filho.closeWriteChannel();
    EXPECT_TRUE(filho.waitForFinished());
}
