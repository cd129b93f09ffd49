// What the program says: results on the standard output, complaints and progress on the standard error.
#include "Console.h"

#include "Comandos.h"

#include <cstdio>
#include <unistd.h>
#include <utility>

namespace banco {

void Diz(const QString &linha)
{
    std::printf("%s\n", qUtf8Printable(linha));
}

void Reclama(const QString &linha)
{
    std::fprintf(stderr, "qx70-banco: %s\n", qUtf8Printable(linha));
}

int ReclamaDaChamada(const QString &motivo)
{
    Reclama(motivo);
    Reclama(QStringLiteral("Veja como se usa com \"qx70-banco --ajuda\"."));
    return kMalChamado;
}

QString ContaDeLinhas(const QString &oQue, qint64 linhas)
{
    const QString nome = linhas == 1 ? QStringLiteral("linha") : QStringLiteral("linhas");
    return QStringLiteral("%1: %2 %3").arg(oQue, QString::number(linhas), nome);
}

Progresso::Progresso(QString oQue, qint64 total)
    : m_oQue(std::move(oQue)), m_total(total), m_terminal(::isatty(STDERR_FILENO) == 1)
{
}

Progresso::~Progresso()
{
    if (m_escrito && m_terminal)
        std::fputs("\n", stderr);
}

void Progresso::Mostra(qint64 feitos)
{
    const qint64 porCento = m_total > 0 ? feitos * 100 / m_total : 100;
    if (porCento == m_ultimo)
        return;
    m_ultimo = porCento;
    if (m_terminal)
        MostraNoTerminal(porCento);
    else if (m_total >= kPassosLongo && porCento % 10 == 0)
        std::fprintf(stderr, "%s: %lld %%\n", qUtf8Printable(m_oQue), static_cast<long long>(porCento));
}

void Progresso::MostraNoTerminal(qint64 porCento)
{
    if (std::chrono::steady_clock::now() - m_inicio < std::chrono::seconds(1))
        return;
    std::fprintf(stderr, "\r%s: %3lld %%", qUtf8Printable(m_oQue), static_cast<long long>(porCento));
    m_escrito = true;
}

} // namespace banco
