// See Aparelho.h.
#include "Aparelho.h"

#include <csignal>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <stdexcept>
#include <sys/prctl.h>

namespace inteira {

namespace {
constexpr int kLimite = 30000; // ms, for whatever the device is to say or do
}

void MorreComOTeste(QProcess &processo)
{
    processo.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

Aparelho::Aparelho(const QString &pasta) : m_pasta(pasta)
{
    MorreComOTeste(m_processo);
}

Aparelho::~Aparelho()
{
    if (m_processo.state() == QProcess::NotRunning)
        return;
    m_processo.terminate();
    if (!m_processo.waitForFinished(kLimite))
        m_processo.kill();
}

void Aparelho::Liga(const QStringList &opcoes)
{
    const QStringList argumentos{QStringLiteral("--saida"),       PastaDosDocumentos(),
                                 QStringLiteral("--elo"),         Elo(),
                                 QStringLiteral("--formatos"),    m_pasta + QStringLiteral("/QX70.INI"),
                                 QStringLiteral("--bytes"),       m_pasta + QStringLiteral("/bytes"),
                                 QStringLiteral("--sem-figuras"), QStringLiteral("--comandos")};
    m_processo.start(QStringLiteral(QX70_BIN_DIR "/qx70-simulador"), argumentos + opcoes);
    EsperaLinha(QStringLiteral("pronto "));
}

QString Aparelho::EsperaLinha(const QString &inicio)
{
    for (const QDeadlineTimer prazo(kLimite);;) {
        while (m_processo.canReadLine()) {
            const QString linha = QString::fromUtf8(m_processo.readLine()).trimmed();
            if (linha.startsWith(inicio))
                return linha;
        }
        if (!m_processo.waitForReadyRead(static_cast<int>(prazo.remainingTime())))
            throw std::runtime_error(("the device never said \"" + inicio +
                                      "\": " + QString::fromUtf8(m_processo.readAllStandardError()))
                                         .toStdString());
    }
}

void Aparelho::PoeFalha(const QString &falha)
{
    m_processo.write("falha " + falha.toUtf8() + '\n');
    EsperaLinha(QStringLiteral("falha ") + falha);
}

QStringList Aparelho::Documentos() const
{
    const QDir pasta(PastaDosDocumentos());
    QStringList documentos;
    for (const QString &nome : pasta.entryList({QStringLiteral("*.txt")}, QDir::Files, QDir::Name))
        documentos << pasta.filePath(nome);
    return documentos;
}

QByteArray Aparelho::Bytes() const
{
    QFile arquivo(m_pasta + QStringLiteral("/bytes"));
    return arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll() : QByteArray();
}

} // namespace inteira
