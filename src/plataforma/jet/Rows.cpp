// Rows copied out of a set at one go: some of its fields, kept compactly.
#include "Rows.h"

#include "Ordem.h"
#include "plataforma/basico/RuntimeError.h"

#include <algorithm>

namespace plataforma {

// In large steps, and in place where the machine can: the rows of a whole log come in one after the other.
void Rows::Cresce(qsizetype tamanho)
{
    constexpr qsizetype kPrimeiro = 4096;
    m_bytes.resize(std::max(kPrimeiro, 2 * m_bytes.size()) + tamanho);
}

void Rows::LancaFora(qsizetype linha, int coluna)
{
    throw RuntimeError(ErrSubscript,
                       QString("Não há linha %1, coluna %2, entre as lidas.").arg(linha).arg(coluna));
}

QString Rows::Text(qsizetype linha, int coluna) const
{
    const std::string_view bytes = Bytes(linha, coluna);
    return bytes.data() ? jet::TextoGravado(bytes) : QString();
}

} // namespace plataforma
