// Pages of a report on their way into the device, one document each.
#pragma once

#include "device/Fluxos.h"
#include "nucleo/Mensagens.h"
#include "nucleo/Sistema.h"
#include "plataforma/basico/Ocupado.h"

namespace reports {

/// The question for a document.
struct PedidoDeDocumento {
    QString texto, titulo;
};

/// @return whether the operator put it in
inline bool PedeDocumento(const PedidoDeDocumento &pedido, nucleo::Mensagens &mensagens)
{
    return mensagens.MsgBox(pedido.texto, nucleo::Botoes::OkCancelar, nucleo::Icone::Nenhum, pedido.titulo) ==
           nucleo::Resposta::Ok;
}

/// Sends the pages of a Relatorio or a Listagem, with the question between two of them, where Cancel ends it.
/// A key pressed while a page goes out answers nothing.
template <class Gerador>
void EnviaPaginas(Gerador &gerador, const PedidoDeDocumento &entrePaginas, nucleo::Sistema &sistema)
{
    constexpr int kModoDoTexto = 1;
    while (const auto pagina = gerador.ProximaPagina()) {
        {
            const plataforma::Espera espera(sistema.ocupado);
            device::EnviaFormatado(*pagina, kModoDoTexto, sistema.PortaSerial, sistema.impressora,
                                   sistema.mensagens);
        }
        if (!gerador.Terminou() && !PedeDocumento(entrePaginas, sistema.mensagens))
            return;
    }
}

} // namespace reports
