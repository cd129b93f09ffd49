// A handful of rows read at one time and kept as the engine gave them.
#include "Bloco.h"

#include "Comando.h"
#include "Ordem.h"
#include <algorithm>

namespace plataforma::jet {

void Bloco::Esvazia(qsizetype colunas)
{
    m_colunas = colunas;
    m_bytes.clear();
    m_celulas.clear();
    m_lugares.clear();
}

void Bloco::Junta(const Comando &comando, int primeiraColuna, const Lugar &lugar)
{
    for (int i = 0; i < m_colunas; ++i) {
        const std::string_view bytes = comando.Bytes(primeiraColuna + i);
        m_celulas.push_back({m_bytes.size(), bytes.size(), bytes.data() == nullptr});
        m_bytes.append(bytes);
    }
    m_lugares.push_back(lugar);
}

void Bloco::Inverte()
{
    std::reverse(m_lugares.begin(), m_lugares.end());
    for (qsizetype a = 0, b = Linhas() - 1; a < b; ++a, --b) {
        const auto inicio = m_celulas.begin();
        std::swap_ranges(inicio + a * m_colunas, inicio + (a + 1) * m_colunas, inicio + b * m_colunas);
    }
}

void Bloco::Troca(qsizetype linha, const Bloco &outro, const Lugar &lugar)
{
    const std::size_t inicio = m_bytes.size();
    m_bytes.append(outro.m_bytes);
    for (qsizetype i = 0; i < m_colunas; ++i) {
        Celula celula = outro.m_celulas[outro.IndiceDe(0, i)];
        celula.inicio += inicio;
        m_celulas[IndiceDe(linha, i)] = celula;
    }
    m_lugares[static_cast<std::size_t>(linha)] = lugar;
}

QString Bloco::Texto(qsizetype linha, qsizetype coluna) const
{
    const Celula &celula = m_celulas[IndiceDe(linha, coluna)];
    return celula.nula ? QString()
                       : TextoGravado(std::string_view(m_bytes).substr(celula.inicio, celula.tamanho));
}

} // namespace plataforma::jet
