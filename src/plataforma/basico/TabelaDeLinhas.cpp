// See TabelaDeLinhas.h.
#include "plataforma/basico/TabelaDeLinhas.h"

#include <algorithm>

namespace plataforma {

namespace {
const QString kQuebra = QStringLiteral("\r\n");
}

TabelaDeLinhas::TabelaDeLinhas(const QString &texto)
{
    m_texto = texto;
    m_texto.replace(kQuebra, QStringLiteral("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    m_texto.replace(QLatin1Char('\n'), kQuebra);
    m_inicios << 0;
    for (qsizetype p = m_texto.indexOf(kQuebra); p >= 0; p = m_texto.indexOf(kQuebra, p + 2))
        m_inicios << p + 2;
}

qsizetype TabelaDeLinhas::LineFromChar(qsizetype posicao) const
{
    const auto depois = std::upper_bound(m_inicios.begin(), m_inicios.end(), std::max<qsizetype>(posicao, 0));
    return std::distance(m_inicios.begin(), depois) - 1;
}

qsizetype TabelaDeLinhas::LineIndex(qsizetype linha) const
{
    return linha >= 0 && linha < m_inicios.size() ? m_inicios[linha] : -1;
}

qsizetype TabelaDeLinhas::LineLength(qsizetype posicao) const
{
    const qsizetype linha = LineFromChar(posicao);
    const qsizetype fim = linha + 1 < m_inicios.size() ? m_inicios[linha + 1] - 2 : m_texto.size();
    return fim - m_inicios[linha];
}

qsizetype TabelaDeLinhas::DaCaixa(qsizetype posicao) const
{
    qsizetype linha = 0;
    while (linha + 1 < m_inicios.size() && m_inicios[linha + 1] - (linha + 1) <= posicao)
        ++linha;
    return posicao + linha;
}

} // namespace plataforma
