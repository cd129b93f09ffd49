// See FilaDeImpressao.h.
#include "apoio/FilaDeImpressao.h"

#include <csignal>
#include <cstring>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace apoio {

namespace {

constexpr int kLimiteMs = 30000;
constexpr double kMargem = 12; // points around the sheet, as the queue's description says

const char kCups[] = "/usr/sbin/cupsd";
const char kAuxiliar[] = "/usr/lib/cups/daemon/cups-exec";

// One for the whole process: the printing library reads the name of its server once.
const QTemporaryDir &PastaDoElo()
{
    static const QTemporaryDir pasta;
    return pasta;
}

// The document stands under its last name only when it is whole.
const QString kSaida = QStringLiteral("#!/bin/sh\n"
                                      "[ $# -eq 0 ] && exit 0\n"
                                      "cd '%1/saida' || exit 1\n"
                                      "if [ $# -ge 6 ]; then cat \"$6\"; else cat; fi >$1.parte &&\n"
                                      "mv $1.parte $1.pdf\n");

const QString kArquivos = QStringLiteral("ServerRoot %1/raiz\nServerBin %1/bin\nRequestRoot %1/fila\n"
                                         "TempDir %1/fila/tmp\nCacheDir %1/cache\nStateDir %1/estado\n"
                                         "AccessLog %1/acessos\nErrorLog %1/erros\nPageLog %1/paginas\n"
                                         "SystemGroup root\nUser lp\nGroup lp\n");
const QString kServidor =
    QStringLiteral("Listen %1\nBrowsing Off\nWebInterface No\nDefaultAuthType None\n"
                   "<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
                   "<Policy default>\n<Limit All>\nOrder deny,allow\n</Limit>\n</Policy>\n");

void Exige(bool condicao, const QString &falha)
{
    if (!condicao)
        throw std::runtime_error(falha.toStdString());
}

// The socket stands in its folder a moment before anybody listens.
bool Escuta()
{
    sockaddr_un endereco{};
    endereco.sun_family = AF_UNIX;
    const QByteArray caminho = QFile::encodeName(FilaDeImpressao::Elo());
    Exige(caminho.size() < static_cast<qsizetype>(sizeof endereco.sun_path),
          "the temporary folder is too deep");
    std::memcpy(endereco.sun_path, caminho.constData(), static_cast<std::size_t>(caminho.size()));
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool atende = connect(fd, reinterpret_cast<const sockaddr *>(&endereco), sizeof endereco) == 0;
    close(fd);
    return atende;
}

} // namespace

FilaDeImpressao::FilaDeImpressao(const QList<Fila> &filas)
{
    qputenv("CUPS_SERVER", QFile::encodeName(Elo()));
    // A printer that whoever runs the test has chosen for himself does not count.
    qputenv("HOME", QFile::encodeName(PastaDoElo().path()));
    for (const char *variavel : {"PRINTER", "LPDEST"})
        qunsetenv(variavel);
    for (const char *nome : {"raiz/ppd", "fila/tmp", "cache", "estado", "saida", "bin/backend", "bin/daemon"})
        Exige(QDir(m_pasta.path()).mkpath(nome), "no folder for the printing system");
    Exige(QFile::exists(kCups), "the package cups-daemon is missing");
    QFile::link(kAuxiliar, m_pasta.filePath("bin/daemon/cups-exec"));
    Escreve("bin/backend/papel", kSaida.arg(m_pasta.path()));
    // To be run by the daemon's own user only.
    QFile::setPermissions(m_pasta.filePath("bin/backend/papel"),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EscreveConfiguracao(filas);
}

FilaDeImpressao::~FilaDeImpressao()
{
    Desliga();
}

QString FilaDeImpressao::Elo()
{
    return PastaDoElo().filePath("cups");
}

void FilaDeImpressao::Escreve(const QString &nome, const QString &conteudo) const
{
    QFile arquivo(m_pasta.filePath(nome));
    const QByteArray bytes = conteudo.toUtf8();
    Exige(arquivo.open(QIODevice::WriteOnly) && arquivo.write(bytes) == bytes.size(), "no file " + nome);
}

void FilaDeImpressao::EscreveConfiguracao(const QList<Fila> &filas) const
{
    Escreve("raiz/cups-files.conf", kArquivos.arg(m_pasta.path()));
    Escreve("raiz/cupsd.conf", kServidor.arg(Elo()));
    QString todas;
    for (const Fila &fila : filas) {
        todas += QStringLiteral(
                     "<%1 %2>\nInfo %2\nDeviceURI papel:/x\nState %3\nAccepting %4\nShared No\n</Printer>\n")
                     .arg(fila.padrao ? "DefaultPrinter" : "Printer", fila.nome,
                          fila.parada ? "Stopped" : "Idle", fila.recusa ? "No" : "Yes");
        // A printer for sheets of A4 that takes PDF as it is.
        Exige(QFile::copy(QX70_APOIO_DADOS "/papel.ppd", m_pasta.filePath("raiz/ppd/" + fila.nome + ".ppd")),
              "no description of the queue");
    }
    Escreve("raiz/printers.conf", todas);
}

void FilaDeImpressao::Liga()
{
    m_cups.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    m_cups.setProcessChannelMode(QProcess::MergedChannels);
    m_cups.start(kCups, {"-f", "-c", m_pasta.filePath("raiz/cupsd.conf"), "-s",
                         m_pasta.filePath("raiz/cups-files.conf")});
    const bool atende =
        m_cups.waitForStarted(kLimiteMs) &&
        QTest::qWaitFor([this] { return m_cups.state() != QProcess::Running || Escuta(); }, kLimiteMs);
    Exige(atende && m_cups.state() == QProcess::Running,
          "no printing system: " + QString::fromUtf8(m_cups.readAll()));
}

void FilaDeImpressao::Desliga()
{
    if (m_cups.state() != QProcess::NotRunning) {
        m_cups.terminate();
        if (!m_cups.waitForFinished(kLimiteMs)) {
            m_cups.kill();
            m_cups.waitForFinished(kLimiteMs);
        }
    }
    QFile::remove(Elo());
}

QString FilaDeImpressao::Documento(int n) const
{
    const QString pdf = m_pasta.filePath(QStringLiteral("saida/%1.pdf").arg(n));
    Exige(QTest::qWaitFor([&pdf] { return QFileInfo::exists(pdf); }, kLimiteMs),
          QStringLiteral("document %1 did not come out").arg(n));
    return pdf;
}

int FilaDeImpressao::Documentos() const
{
    return static_cast<int>(QDir(m_pasta.filePath("saida")).entryList({"*.pdf"}).size());
}

QString SaidaDe(const QString &programa, const QStringList &argumentos)
{
    QProcess processo;
    processo.start(programa, argumentos);
    Exige(processo.waitForStarted(kLimiteMs), programa + " is missing");
    const bool terminou =
        processo.waitForFinished(kLimiteMs) && processo.exitStatus() == QProcess::NormalExit;
    Exige(terminou && processo.exitCode() == 0,
          programa + ": " + QString::fromUtf8(processo.readAllStandardError()));
    return QString::fromUtf8(processo.readAllStandardOutput());
}

QList<QStringList> FolhasDoPdf(const QString &pdf, double tamanho)
{
    const double passo = tamanho * kPasso;
    const QString texto = SaidaDe("pdftotext", {"-fixed", QString::number(passo), pdf, "-"});
    QList<QStringList> folhas;
    for (const QString &folha : texto.split('\f')) {
        QStringList linhas;
        for (const QString &linha : folha.split('\n'))
            linhas << linha.mid(static_cast<int>(kMargem / passo));
        while (!linhas.isEmpty() && linhas.last().isEmpty())
            linhas.removeLast();
        folhas << linhas;
    }
    if (!folhas.isEmpty() && folhas.last().isEmpty())
        folhas.removeLast(); // behind the last sheet's form feed
    return folhas;
}

} // namespace apoio
