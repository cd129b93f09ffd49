// See Favorec.h.
#include "registers/Favorec.h"

#include "device/Fluxos.h"
#include "nucleo/Mensagens.h"
#include "nucleo/Sistema.h"
#include "registers/RegrasDoCadastro.h"

namespace registers {

using namespace nucleo;

Favorec::Favorec(Sistema &sistema, AbreSaida abreSaida, QWidget *pai)
    : CadastroDeNomes(sistema,
                      {QStringLiteral("Favorec"), QStringLiteral("Cadastro de Favorecidos"), SelFavorecido,
                       QStringLiteral("Nome:"), 47, 74, QStringLiteral("Imprimirfav"),
                       QStringLiteral("Imprimir"), QStringLiteral("Favorecido"),
                       QStringLiteral(" Favorecidos "), QStringLiteral("Selecione um favorecido...")},
                      std::move(abreSaida), pai)
{
}

// On purpose: whatever the device answers, the store's part of the click goes on.
bool Favorec::EnviaAoDispositivo(int comando)
{
    if (comando == kIncluir && TodasCheias())
        Pergunta(QStringLiteral("Deseja Incluir na Impressora?"), device::kIncluiFavorecido);
    else if (comando == kExcluir && !Texto(0).isEmpty())
        Pergunta(QStringLiteral("Deseja Excluir na Impressora?"), device::kExcluiFavorecido);
    return true;
}

void Favorec::Pergunta(const QString &texto, int seletor)
{
    if (Dados().mensagens.MsgBox(texto, Botoes::SimNao, Icone::Nenhum, kComando) != Resposta::Sim)
        return;
    device::TextosDoComando textos;
    textos.codigoDoFavorecido = Texto(0);
    textos.nomeDoFavorecido = Texto(1);
    device::ComandoImpressora(seletor, textos, Dados().PortaSerial, Dados().impressora, Dados().mensagens);
}

} // namespace registers
