// See RelatoDeErro.h.
#include "nucleo/RelatoDeErro.h"

#include "plataforma/basico/RuntimeError.h"

namespace nucleo {

namespace {
const QString kFalhaDaImpressora = QStringLiteral("Ocorreu erro 482! Possiveis Causas:\n"
                                                  "- A impressora não foi encontrada!\n"
                                                  "- A impressora está desligada!\n"
                                                  "- Fim de papel ou papel enroscado!");
}

void RelataErro(int numero, Mensagens &mensagens)
{
    if (numero == 0 || numero == plataforma::ErrDialogCancelled)
        return;
    mensagens.MsgBox(numero == plataforma::ErrPrinter ? kFalhaDaImpressora
                                                      : QStringLiteral("Ocorreu erro %1!").arg(numero),
                     Botoes::Ok, Icone::Exclamacao);
}

void EnviaComRelato(const std::function<void()> &envio, Mensagens &mensagens)
{
    int numero = 0;
    try {
        envio();
    } catch (const plataforma::RuntimeError &falha) {
        numero = falha.number();
    }
    RelataErro(numero, mensagens);
}

} // namespace nucleo
