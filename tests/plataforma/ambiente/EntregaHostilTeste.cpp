// The hand-over against strange peers: rubbish, silence, floods, other users and false listeners.
#include "Auxiliar.h"
#include "plataforma/ambiente/Porta.h"
#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using plataforma::MontaMensagem;

namespace {

constexpr uid_t kOutroUsuario = 65534;

struct CasoBytes {
    std::string nome;
    QByteArray bytes;
};
void PrintTo(const CasoBytes &caso, std::ostream *os)
{
    *os << caso.bytes.left(20).toHex(' ').toStdString() << " (" << caso.bytes.size() << " bytes)";
}

QByteArray Repetido(char byte, int vezes)
{
    return QByteArray(vezes, byte);
}

class BytesEstranhosTeste : public CopiaTeste, public testing::WithParamInterface<CasoBytes> {};

} // namespace

TEST_P(BytesEstranhosTeste, DropThePeerAndTouchNothing)
{
    CopiaUnica primeira(App(), Lugares());
    QList<Campos> recebidos;
    primeira.Atende([&](const Campos &campos) { recebidos.append(campos); });
    Cliente estranho(Socket());
    estranho.Envia(GetParam().bytes);
    EXPECT_TRUE(RodaAte([&] { return estranho.Fechado(); }));
    EXPECT_EQ(estranho.Respostas(), "");
    EXPECT_TRUE(recebidos.isEmpty());

    Cliente bom(Socket());
    ASSERT_TRUE(bom.Envia(MontaMensagem({{0, "001"}})));
    EXPECT_TRUE(RodaAte([&] { return bom.Respostas() == "RF"; })) << "the running copy no longer listens";
}

INSTANTIATE_TEST_SUITE_P(
    Bytes, BytesEstranhosTeste,
    testing::Values(CasoBytes{"ATextOfAnotherProtocol", "GET / HTTP/1.0\r\n\r\n"},
                    CasoBytes{"Zeros", Repetido(0, 64)},
                    CasoBytes{"AnotherVersion", QByteArray("QX7H\x02\0\0\0\x01\0", 10)},
                    CasoBytes{"AnEnormousLength", QByteArray("QX7H\x01\xff\xff\xff\xff", 9)},
                    CasoBytes{"MoreThanAnyMessage", "QX7H\x01" + Repetido('\xff', 300000)},
                    CasoBytes{"TwoMessagesInOne", MontaMensagem({{1, "1"}}) + MontaMensagem({{1, "2"}})},
                    CasoBytes{"AMessageWithoutEnd", MontaMensagem({{1, "1"}}) + Repetido('1', 100000)},
                    CasoBytes{"HalfAMessageAndSilence", MontaMensagem({{1, "10,00"}}).chopped(2)},
                    CasoBytes{"NothingAtAll", ""}),
    [](const auto &caso) { return caso.param.nome; });

TEST_F(CopiaTeste, ASilentPeerHoldsNobodyUp)
{
    CopiaUnica primeira(App(), Lugares());
    int vezes = 0;
    primeira.Atende([&](const Campos &) { ++vezes; });
    Cliente calado(Socket());
    Cliente bom(Socket());
    ASSERT_TRUE(bom.Envia(MontaMensagem({})));
    EXPECT_TRUE(RodaAte([&] { return bom.Respostas() == "RF"; }));
    EXPECT_FALSE(calado.Fechado());
    EXPECT_EQ(vezes, 1);
}

TEST_F(CopiaTeste, AFullHouseOfSilentPeersEmptiesItself)
{
    CopiaUnica primeira(App(), Lugares());
    primeira.Atende([](const Campos &) {});
    std::vector<std::unique_ptr<Cliente>> calados;
    for (int i = 0; i < plataforma::kMaxConexoes; ++i) {
        calados.push_back(std::make_unique<Cliente>(Socket()));
        ASSERT_TRUE(calados.back()->Conectado());
    }
    Cliente bom(Socket());
    ASSERT_TRUE(bom.Envia(MontaMensagem({})));
    EXPECT_TRUE(RodaAte([&] { return bom.Respostas() == "RF"; }));
    EXPECT_TRUE(calados.front()->Fechado());
}

TEST_F(CopiaTeste, SeveralPeersAtOnceAreAllServed)
{
    CopiaUnica primeira(App(), Lugares());
    QStringList valores;
    primeira.Atende([&](const Campos &campos) { valores.append(campos.value(0).second); });
    std::vector<std::unique_ptr<Cliente>> clientes;
    for (int i = 0; i < 10; ++i) {
        clientes.push_back(std::make_unique<Cliente>(Socket()));
        ASSERT_TRUE(clientes.back()->Envia(MontaMensagem({{1, QString::number(i)}})));
    }
    EXPECT_TRUE(RodaAte([&] {
        return std::all_of(clientes.begin(), clientes.end(), [](auto &c) { return c->Respostas() == "RF"; });
    }));
    valores.sort();
    EXPECT_EQ(valores.join(u' '), "0 1 2 3 4 5 6 7 8 9");
}

TEST_F(CopiaTeste, AMessageInSinglePiecesIsOneMessage)
{
    CopiaUnica primeira(App(), Lugares());
    Campos recebidos;
    primeira.Atende([&](const Campos &campos) { recebidos = campos; });
    Cliente lento(Socket());
    for (const char byte : MontaMensagem({{2, "João"}})) {
        ASSERT_TRUE(lento.Envia(QByteArray(1, byte)));
        QCoreApplication::processEvents();
    }
    EXPECT_TRUE(RodaAte([&] { return lento.Respostas() == "RF"; }));
    EXPECT_EQ(recebidos, (Campos{{2, "João"}}));
}

/// Runs `acao` in a process of another user. @return its exit code, -1 when it did not end by itself
static int ComoOutroUsuario(const std::function<int()> &acao)
{
    const pid_t filho = fork();
    if (filho == 0)
        _exit(setresuid(kOutroUsuario, kOutroUsuario, kOutroUsuario) == 0 ? acao() : 99);
    int fim = 0;
    waitpid(filho, &fim, 0);
    return WIFEXITED(fim) ? WEXITSTATUS(fim) : -1;
}

TEST_F(CopiaTeste, AnotherUserCannotEvenConnect)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "needs the right to become another user";
    const CopiaUnica primeira(App(), Lugares());
    const QString socket = Socket();
    EXPECT_EQ(ComoOutroUsuario([&] { return Cliente(socket).Conectado() ? 1 : 0; }), 0);
}

TEST_F(CopiaTeste, AnotherUserIsSentAwayEvenWithOpenFolders)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "needs the right to become another user";
    CopiaUnica primeira(App(), Lugares());
    const QString socket = Socket();
    for (QString caminho = socket; caminho.startsWith(m_usuario.path()); caminho = QFileInfo(caminho).path())
        ASSERT_EQ(chmod(QFile::encodeName(caminho).constData(), 0777), 0);
    int vezes = 0;
    primeira.Atende([&](const Campos &) { ++vezes; });
    ASSERT_EQ(seteuid(kOutroUsuario), 0);
    Cliente intruso(socket); // the system notes who connects
    ASSERT_EQ(seteuid(0), 0);
    ASSERT_TRUE(intruso.Conectado());
    intruso.Envia(MontaMensagem({{1, "999,00"}}));
    EXPECT_TRUE(RodaAte([&] { return intruso.Fechado(); }));
    EXPECT_EQ(intruso.Respostas(), "");
    EXPECT_EQ(vezes, 0);
}

namespace {

/// Holds the lock and listens like a running copy, but says only what it is told.
class OuvinteFalso {
public:
    OuvinteFalso(const QString &pasta, const QByteArray &resposta, uid_t usuario = geteuid())
    {
        const QByteArray nome = QFile::encodeName(pasta);
        m_trava = open(nome.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        flock(m_trava, LOCK_EX | LOCK_NB);
        m_escuta = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_un endereco{};
        endereco.sun_family = AF_UNIX;
        const QByteArray caminho = nome + '/' + plataforma::kNomeSocket;
        std::memcpy(endereco.sun_path, caminho.constData(), static_cast<size_t>(caminho.size()));
        bind(m_escuta, reinterpret_cast<const sockaddr *>(&endereco), sizeof endereco);
        const uid_t eu = geteuid();
        [[maybe_unused]] int feito = seteuid(usuario); // the system notes who listens
        listen(m_escuta, 1);
        feito = seteuid(eu);
        m_fio = std::thread([this, resposta] { Atende(resposta); });
    }
    ~OuvinteFalso()
    {
        shutdown(m_escuta, SHUT_RDWR); // wakes the thread if nobody came
        m_fio.join();
        close(m_conexao);
        close(m_escuta);
        close(m_trava);
    }
    OuvinteFalso(const OuvinteFalso &) = delete;
    OuvinteFalso &operator=(const OuvinteFalso &) = delete;

    /// Bytes that came over the one connection; to be asked once the sender has ended.
    QByteArray Recebido()
    {
        m_fio.join();
        m_fio = std::thread([] {});
        QByteArray recebido;
        char bloco[256];
        ssize_t n = 0;
        while ((n = recv(m_conexao, bloco, sizeof bloco, MSG_DONTWAIT)) > 0)
            recebido.append(bloco, n);
        return recebido;
    }

private:
    void Atende(const QByteArray &resposta)
    {
        m_conexao = accept4(m_escuta, nullptr, nullptr, SOCK_CLOEXEC);
        if (m_conexao < 0)
            return;
        send(m_conexao, resposta.constData(), static_cast<size_t>(resposta.size()), MSG_NOSIGNAL);
        if (resposta.isEmpty())
            shutdown(m_conexao, SHUT_WR);
    }

    int m_trava = -1;
    int m_escuta = -1;
    int m_conexao = -1;
    std::thread m_fio;
};

} // namespace

TEST_F(CopiaTeste, FieldsTakenButNotYetSetCountAsHandedOver)
{
    OuvinteFalso ocupado(plataforma::PastaDaInstalacao(App(), Lugares()), "R");
    const CopiaUnica segunda(App(), Lugares());
    ASSERT_FALSE(segunda.Primeira());
    EXPECT_TRUE(segunda.Entrega({{1, "10,00"}}, 200));
    EXPECT_EQ(ocupado.Recebido(), MontaMensagem({{1, "10,00"}}));
}

TEST_F(CopiaTeste, AnEndBeforeTheAnswerIsARefusal)
{
    OuvinteFalso recusa(plataforma::PastaDaInstalacao(App(), Lugares()), "");
    const CopiaUnica segunda(App(), Lugares());
    EXPECT_FALSE(segunda.Entrega({{1, "10,00"}}));
}

TEST_F(CopiaTeste, AListenerOfAnotherUserGetsNoField)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "needs the right to become another user";
    OuvinteFalso impostor(plataforma::PastaDaInstalacao(App(), Lugares()), "RF", kOutroUsuario);
    const CopiaUnica segunda(App(), Lugares());
    EXPECT_FALSE(segunda.Entrega({{2, "Favorecido"}}, 500));
    EXPECT_EQ(impostor.Recebido(), "");
}
