// See Dir.h.
#include "plataforma/basico/Dir.h"

#include "plataforma/basico/RuntimeError.h"

#include <algorithm>
#include <QDir>
#include <QFile>
#include <QStringView>

namespace plataforma {

namespace {

/// Whether a name fits a pattern of "*" and "?", without regard to case.
bool Casa(QStringView nome, QStringView padrao)
{
    qsizetype n = 0;
    qsizetype p = 0;
    qsizetype volta = -1; // behind the last "*" met
    qsizetype voltaNome = 0;
    while (n < nome.size()) {
        const QChar sinal = p < padrao.size() ? padrao[p] : QChar();
        if (p < padrao.size() && sinal == QLatin1Char('*')) {
            volta = ++p;
            voltaNome = n;
        } else if (p < padrao.size() &&
                   (sinal == QLatin1Char('?') || sinal.toCaseFolded() == nome[n].toCaseFolded())) {
            ++p;
            ++n;
        } else if (volta >= 0) {
            p = volta;
            n = ++voltaNome;
        } else {
            return false;
        }
    }
    return padrao.sliced(p).count(QLatin1Char('*')) == padrao.size() - p;
}

/// As Windows does, "*.*" takes a name without a point too.
bool NomeCasa(const QString &nome, const QString &padrao)
{
    return Casa(nome, padrao) || (padrao.endsWith(QLatin1String(".*")) && !nome.contains(QLatin1Char('.')) &&
                                  Casa(nome, QStringView(padrao).chopped(2)));
}

bool VemAntes(const QString &a, const QString &b)
{
    const int ordem = a.compare(b, Qt::CaseInsensitive);
    return ordem != 0 ? ordem < 0 : a < b;
}

} // namespace

Dir::Dir(const QString &padrao)
{
    const QString caminho = QString(padrao).replace(QLatin1Char('\\'), QLatin1Char('/'));
    const qsizetype corte = caminho.lastIndexOf(QLatin1Char('/')) + 1;
    const QString nome = caminho.mid(corte);
    if (nome.isEmpty()) {
        return;
    }
    const QDir pasta(corte == 0 ? QStringLiteral(".") : caminho.left(corte));
    const QStringList nomes = pasta.entryList(QDir::Files | QDir::Hidden, QDir::Unsorted);
    std::copy_if(nomes.begin(), nomes.end(), std::back_inserter(m_nomes),
                 [&nome](const QString &candidato) { return NomeCasa(candidato, nome); });
    std::sort(m_nomes.begin(), m_nomes.end(), VemAntes);
}

QString Dir::Next()
{
    return m_proximo < m_nomes.size() ? m_nomes[m_proximo++] : QString();
}

QString FirstFile(const QString &padrao)
{
    return Dir(padrao).Next();
}

void Kill(const QString &nome)
{
    QFile arquivo(nome);
    if (arquivo.remove())
        return;
    if (!arquivo.exists())
        throw RuntimeError(ErrFileNotFound, QStringLiteral("O arquivo \"%1\" não foi encontrado.").arg(nome));
    throw RuntimeError(
        ErrFileAccess,
        QStringLiteral("O arquivo \"%1\" não pôde ser excluído: %2.").arg(nome, arquivo.errorString()));
}

} // namespace plataforma
