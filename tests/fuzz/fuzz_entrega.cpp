// Any bytes into the reader of hand-overs: no crash, a verdict that stays, and fields within their limits.
#include "plataforma/ambiente/Mensagem.h"
#include <cstdlib>

using plataforma::EstadoMensagem;
using plataforma::LeMensagem;

static void Exige(bool verdade)
{
    if (!verdade)
        std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *dados, std::size_t tamanho)
{
    const QByteArray bytes(reinterpret_cast<const char *>(dados), static_cast<qsizetype>(tamanho));
    const plataforma::Leitura leitura = LeMensagem(bytes);
    if (leitura.estado != EstadoMensagem::Completa) {
        Exige(leitura.campos.isEmpty());
        return 0;
    }
    Exige(leitura.campos.size() <= plataforma::kMaxCampos);
    for (const auto &[indice, texto] : leitura.campos)
        Exige(indice >= 0 && indice <= plataforma::kMaxIndiceCampo &&
              texto.size() <= plataforma::kMaxTextoCampo);
    Exige(LeMensagem(plataforma::MontaMensagem(leitura.campos)).campos == leitura.campos);
    Exige(LeMensagem(bytes + '\0').estado == EstadoMensagem::Invalida);
    Exige(LeMensagem(bytes.chopped(1)).estado == EstadoMensagem::Incompleta);
    return 0;
}
