// Writing the files of a document.
#include "Arquivos.h"

#include <algorithm>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

#include "Papel.h"

namespace simulador {

Arquivos::Arquivos(const QString &pasta, bool figuras)
    : m_pasta(QDir::cleanPath(QFileInfo(pasta).absoluteFilePath())), m_figuras(figuras)
{
    if (!QDir().mkpath(m_pasta) || !QFileInfo(m_pasta).isWritable()) {
        m_falha =
            QStringLiteral("A pasta %1 não pode ser usada para os documentos. Escolha outra.").arg(m_pasta);
        return;
    }
    static const QRegularExpression forma(QStringLiteral("\\A([0-9]{6,9})-(cheque|folha)\\."));
    for (const QString &nome : QDir(m_pasta).entryList(QDir::Files | QDir::System)) {
        const QRegularExpressionMatch achado = forma.match(nome);
        if (achado.hasMatch())
            m_proximo = std::max(m_proximo, achado.captured(1).toInt() + 1);
    }
}

static bool GravaBytes(const QString &caminho, const QByteArray &bytes, QString &falha)
{
    QSaveFile arquivo(caminho);
    // Unbuffered, since what a buffer held back would fail inside commit, which puts the file in place all
    // the same.
    if (arquivo.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && arquivo.write(bytes) == bytes.size() &&
        arquivo.commit())
        return true;
    falha = QStringLiteral("O documento %1 não pôde ser gravado: %2.").arg(caminho, arquivo.errorString());
    return false;
}

Arquivos::Gravado Arquivos::Grava(const Documento &documento)
{
    const QString nome =
        QStringLiteral("%1-%2").arg(m_proximo++, 6, 10, QLatin1Char('0')).arg(NomeDoTipo(documento));
    Gravado gravado{QDir(m_pasta).filePath(nome), {}};
    GravaBytes(gravado.base + ".txt", Grade(documento).toUtf8(), gravado.falha);
    GravaBytes(gravado.base + ".json", Detalhe(documento), gravado.falha);
    if (m_figuras) {
        GravaBytes(gravado.base + ".png", PngDe(documento), gravado.falha);
        GravaBytes(gravado.base + ".pdf", PdfDe(documento), gravado.falha);
    }
    return gravado;
}

} // namespace simulador
