// The numbers of the log in the order of its rows: repeats, gaps and numbers that go back.
#include "Sequencia.h"

#include <algorithm>
#include <tuple>

namespace banco {

bool Sequencia::Junta(qint64 numero, qint64 posicao)
{
    const bool volta = !m_trechos.empty() && numero < m_ultimo;
    m_ultimo = numero;
    if (!m_trechos.empty()) {
        Trecho &atual = m_trechos.back();
        if (numero == atual.Ultimo() + 1 && posicao == atual.posicao + atual.quantos) {
            ++atual.quantos;
            return volta;
        }
    }
    m_trechos.push_back({numero, posicao, 1});
    return volta;
}

void Sequencia::Percorre(const Repetido &repetido, const Falta &falta) const
{
    std::vector<Trecho> trechos = m_trechos;
    std::sort(trechos.begin(), trechos.end(), [](const Trecho &a, const Trecho &b) {
        return std::tie(a.primeiro, a.posicao) < std::tie(b.primeiro, b.posicao);
    });
    // The run that reaches farthest so far. It begins no later than the next one, so that every number up to
    // its end is in it.
    const Trecho *alcance = nullptr;
    for (const Trecho &trecho : trechos) {
        if (alcance && trecho.primeiro > alcance->Ultimo() + 1)
            falta(alcance->Ultimo() + 1, trecho.primeiro - 1, alcance->PosicaoDe(alcance->Ultimo()));
        const qint64 fim = alcance ? std::min(trecho.Ultimo(), alcance->Ultimo()) : trecho.primeiro - 1;
        for (qint64 numero = trecho.primeiro; numero <= fim; ++numero)
            repetido(numero, alcance->PosicaoDe(numero), trecho.PosicaoDe(numero));
        if (!alcance || trecho.Ultimo() > alcance->Ultimo())
            alcance = &trecho;
    }
}

} // namespace banco
