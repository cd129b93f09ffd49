// Any bytes, in any pieces and at any times, into the device's decoder, the argument lists and the host's
// reader of answers: nothing crashes, nothing grows without bound, and what is whole is encoded back to
// itself.
#include "qx7032/Argumentos.h"
#include "qx7032/Decodificador.h"
#include "qx7032/Resposta.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void Exige(bool condicao)
{
    if (!condicao)
        std::abort();
}

void LeTudo(const qx7032::Quadro &quadro)
{
    qx7032::LeitorDeArgumentos textos(quadro.carga);
    while (textos.Texto())
        continue;
    qx7032::LeitorDeArgumentos numeros(quadro.carga);
    while (numeros.Numero())
        continue;
    qx7032::LeitorDeQuadro leitor;
    auto estado = qx7032::LeitorDeQuadro::Estado::Aguarda;
    for (const char byte : qx7032::CodificaQuadro(quadro))
        estado = leitor.Recebe(byte);
    Exige(estado == qx7032::LeitorDeQuadro::Estado::Inteiro && leitor.Lido() == quadro);
}

// Each piece begins with its length and the time since the one before, in steps of 4 ms.
void Decodifica(std::string_view dados)
{
    qx7032::Decodificador decodificador;
    std::int64_t agora = 0;
    while (dados.size() >= 2) {
        const auto tamanho = static_cast<unsigned char>(dados[0]);
        agora += static_cast<unsigned char>(dados[1]) * 4;
        dados.remove_prefix(2);
        const std::string_view pedaco = dados.substr(0, tamanho);
        for (const qx7032::Evento &evento : decodificador.Recebe(pedaco, agora)) {
            Exige(evento.texto.size() <= qx7032::kLinhaMaxima);
            if (evento.tipo == qx7032::Evento::Tipo::Quadro)
                LeTudo(evento.quadro);
        }
        Exige(decodificador.Prazo() <= agora + qx7032::kLacunaMaxima + 1);
        dados.remove_prefix(pedaco.size());
    }
    static_cast<void>(decodificador.Espera(agora + 10'000));
    Exige(decodificador.Prazo() == -1);
}

void Responde(std::string_view dados)
{
    qx7032::LeitorDeResposta leitor(0);
    for (const char byte : dados)
        if (leitor.Recebe(byte) == qx7032::LeitorDeResposta::Passo::Terminou) {
            const int numero = leitor.Resultado();
            Exige(numero == 1 || numero == 11 || numero == 13 || (numero >= 20 && numero <= 29));
            return;
        }
    const int numero = leitor.ResultadoNoPrazo();
    Exige(numero == 10 || numero == 11 || numero == 14);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *dados, std::size_t tamanho)
{
    const std::string_view bytes(reinterpret_cast<const char *>(dados), tamanho);
    Decodifica(bytes);
    Responde(bytes);
    return 0;
}
