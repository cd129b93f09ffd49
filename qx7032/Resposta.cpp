// The answer to an order; see Resposta.h.
#include "qx7032/Resposta.h"

#include "qx7032/Argumentos.h"
#include "qx7032/resultados.h"

#include <optional>

namespace qx7032 {

namespace {

// The number in a result frame; nothing when the frame is none. Numbers that no device reports become
// "another fault", since those of the host's own causes would mislead.
std::optional<int> NumeroDe(const Quadro &quadro)
{
    LeitorDeArgumentos argumentos(quadro.carga);
    const auto numero = argumentos.Numero();
    if (quadro.tipo != kTipoResultado || !numero || !argumentos.Terminou())
        return std::nullopt;
    const bool doDispositivo =
        *numero == QX7032_SUCESSO || (*numero >= QX7032_SEM_DOCUMENTO && *numero <= QX7032_OUTRA_FALHA);
    return doDispositivo ? *numero : int{QX7032_OUTRA_FALHA};
}

} // namespace

LeitorDeResposta::Passo LeitorDeResposta::Recebe(char byte)
{
    if (!m_leitor.Dentro() && !m_confirmado && byte == kNaoRecebido)
        return Termina(QX7032_QUADRO_DANIFICADO);
    if (!m_leitor.Dentro() && !m_confirmado && byte == kRecebido) {
        m_confirmado = true;
        return Passo::Confirmou;
    }
    switch (m_leitor.Recebe(byte)) {
    case LeitorDeQuadro::Estado::Dentro:
        return Passo::Nada;
    case LeitorDeQuadro::Estado::Inteiro:
        return JulgaQuadro();
    case LeitorDeQuadro::Estado::Aguarda:
    case LeitorDeQuadro::Estado::Danificado:
        break;
    }
    return Termina(QX7032_RESPOSTA_EMBARALHADA);
}

LeitorDeResposta::Passo LeitorDeResposta::JulgaQuadro()
{
    const auto numero = NumeroDe(m_leitor.Lido());
    const bool nosso = m_leitor.Lido().sequencia == m_sequencia;
    if (!numero || (nosso && !m_confirmado))
        return Termina(QX7032_RESPOSTA_EMBARALHADA);
    if (nosso)
        return Termina(*numero);
    // The device answers in order: whatever confirmed before this result was meant for that earlier order.
    m_confirmado = false;
    return Passo::Atrasada;
}

int LeitorDeResposta::ResultadoNoPrazo() const
{
    if (m_confirmado)
        return QX7032_SEM_CONCLUSAO;
    return m_leitor.Dentro() ? QX7032_RESPOSTA_EMBARALHADA : QX7032_SEM_RESPOSTA;
}

LeitorDeResposta::Passo LeitorDeResposta::Termina(int resultado)
{
    m_resultado = resultado;
    return Passo::Terminou;
}

} // namespace qx7032
