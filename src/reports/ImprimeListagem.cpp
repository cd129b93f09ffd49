// See ImprimeListagem.h.
#include "reports/ImprimeListagem.h"

#include "nucleo/RelatoDeErro.h"
#include "nucleo/Sistema.h"
#include "plataforma/ambiente/Printer.h"
#include "reports/NoDispositivo.h"

namespace reports {

using namespace nucleo;

namespace {

// A set of its own: the register behind the screen goes on with the row that it has chosen.
plataforma::Rows LeRegistros(const PedidoDeListagem &pedido, Ordem ordem, const Sistema &sistema)
{
    const Espera espera(sistema.ocupado);
    const plataforma::Database banco(sistema.armazem.Caminho());
    return banco.OpenDynaset(ConsultaDaListagem(pedido.tabela, ordem))
        ->GetRows({QStringLiteral("Codigo"), QStringLiteral("Nome")});
}

PedidoDeDocumento Pergunta(const PedidoDeListagem &pedido)
{
    return {QStringLiteral("Insira o Documento."), TituloDaPergunta(pedido.tabela)};
}

void Imprime(plataforma::Printer &impressora, Listagem &listagem, Sistema &sistema)
{
    const Espera espera(sistema.ocupado);
    while (const auto pagina = listagem.ProximaPagina()) {
        impressora.Print(*pagina);
        if (!listagem.Terminou())
            impressora.NewPage();
    }
    impressora.EndDoc();
}

void Lista(const PedidoDeListagem &pedido, Ordem ordem, Sistema &sistema)
{
    plataforma::Printer impressora(TituloDaPergunta(pedido.tabela));
    if (pedido.naImpressora)
        impressora.ShowPrinter();
    else if (!PedeDocumento(Pergunta(pedido), sistema.mensagens))
        return;
    const plataforma::Rows linhas = LeRegistros(pedido, ordem, sistema);
    Listagem listagem(pedido, linhas.Count(), [&linhas](qint64 i) {
        return RegistroListado{linhas.Text(i, 0), linhas.Text(i, 1)};
    });
    if (pedido.naImpressora)
        Imprime(impressora, listagem, sistema);
    else
        EnviaPaginas(listagem, Pergunta(pedido), sistema);
}

} // namespace

void ListaCadastro(int saida, Ordem ordem, Cadastrados tabela, Sistema &sistema)
{
    const PedidoDeListagem pedido{tabela, saida == kNaImpressora, sistema.DataHoje};
    EnviaComRelato([&] { Lista(pedido, ordem, sistema); }, sistema.mensagens);
}

void ListaBancos(int saida, Ordem ordem, Sistema &sistema, Cadastrados tabela)
{
    ListaCadastro(saida, ordem, tabela, sistema);
}

} // namespace reports
