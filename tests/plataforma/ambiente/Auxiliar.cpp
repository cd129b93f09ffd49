// The shared parts of the tests of the single copy.
#include "Auxiliar.h"

#include <cerrno>
#include <cstring>
#include <QDeadlineTimer>
#include <QFile>
#include <QtTest/QTest>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {
constexpr int kLimiteMs = 10000;
}

bool RodaAte(const std::function<bool()> &feito)
{
    return QTest::qWaitFor(feito, kLimiteMs);
}

Cliente::Cliente(const QString &caminho) : m_fd(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    const QByteArray nome = QFile::encodeName(caminho);
    sockaddr_un endereco{};
    endereco.sun_family = AF_UNIX;
    std::memcpy(endereco.sun_path, nome.constData(), static_cast<size_t>(nome.size()));
    m_conectado = connect(m_fd, reinterpret_cast<const sockaddr *>(&endereco), sizeof endereco) == 0;
}

Cliente::~Cliente()
{
    Desliga();
}

void Cliente::Desliga()
{
    if (m_fd >= 0)
        close(m_fd);
    m_fd = -1;
}

bool Cliente::Envia(const QByteArray &bytes) const
{
    return send(m_fd, bytes.constData(), static_cast<size_t>(bytes.size()), MSG_NOSIGNAL | MSG_DONTWAIT) ==
           bytes.size();
}

QByteArray Cliente::Respostas()
{
    char bloco[16];
    ssize_t n = 0;
    while ((n = recv(m_fd, bloco, sizeof bloco, MSG_DONTWAIT)) > 0)
        m_respostas.append(bloco, n);
    m_fechado = m_fechado || n == 0 || errno == ECONNRESET;
    return m_respostas;
}

bool Cliente::Fechado()
{
    Respostas();
    return m_fechado;
}

QString CopiaTeste::Socket() const
{
    return plataforma::PastaDaInstalacao(App(), Lugares()) + u'/' + QLatin1String(plataforma::kNomeSocket);
}

QProcess &CopiaTeste::Inicia(const QStringList &argumentos)
{
    auto processo = std::make_unique<QProcess>();
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_usuario.path());
    processo->setProcessEnvironment(ambiente);
    processo->start(QStringLiteral(QX70_COPIA_AUXILIAR), argumentos);
    EXPECT_TRUE(processo->waitForStarted(kLimiteMs));
    m_processos.push_back(std::move(processo));
    return *m_processos.back();
}

QString CopiaTeste::Linha(QProcess &processo)
{
    const QDeadlineTimer prazo(kLimiteMs);
    while (!processo.canReadLine() && !prazo.hasExpired()) {
        if (!processo.waitForReadyRead(static_cast<int>(prazo.remainingTime())))
            break;
    }
    return QString::fromUtf8(processo.readLine()).trimmed();
}

void CopiaTeste::TearDown()
{
    for (const auto &processo : m_processos) {
        processo->closeWriteChannel();
        if (!processo->waitForFinished(kLimiteMs))
            processo->kill();
    }
}
