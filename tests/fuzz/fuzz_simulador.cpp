// Any bytes on the line: the decoder, the device and the documents that come of it stay sound and bounded.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "Dispositivo.h"
#include "qx7032/Argumentos.h"

using namespace simulador;

namespace {

/// A document that leaves its paper ends the run.
void Confere(const Documento &documento)
{
    const QString grade = Grade(documento);
    if (documento.tipo == Documento::Tipo::Cheque && grade.size() != 20 * 121)
        std::abort();
    for (const TextoPosto &posto : documento.textos) {
        if (posto.lugar.coluna < 1 || posto.lugar.linha < 1 || posto.lugar.linha > 20 ||
            posto.lugar.coluna + posto.texto.size() - 1 > 120)
            std::abort();
    }
    for (const LinhaDeFolha &linha : documento.linhas) {
        if (linha.texto.size() > linha.largura)
            std::abort();
    }
}

void Entrega(Dispositivo &dispositivo, const qx7032::Evento &evento)
{
    const Reacao reacao = dispositivo.Recebe(evento, dispositivo.PedeDocumento(evento));
    for (const Documento &documento : reacao.documentos)
        Confere(documento);
}

/// The bytes as they come on the line, in pieces; a piece that begins with FF is preceded by a long silence.
void PelaLinha(Dispositivo &dispositivo, std::string_view dados)
{
    qx7032::Decodificador decodificador;
    std::int64_t agora = 0;
    while (!dados.empty()) {
        const auto primeiro = static_cast<unsigned char>(dados.front());
        const std::string_view pedaco = dados.substr(0, primeiro % 64 + 1);
        dados.remove_prefix(pedaco.size());
        agora += primeiro == 0xFF ? 1000 : 1;
        for (const qx7032::Evento &evento : decodificador.Recebe(pedaco, agora))
            Entrega(dispositivo, evento);
    }
}

/// One order a line: its type, then the arguments between bars. "#" and a byte is a number, anything else a
/// text.
qx7032::Evento OrdemDe(std::string_view linha, std::uint8_t sequencia)
{
    qx7032::EscritorDeArgumentos argumentos;
    for (std::size_t barra = linha.find('|'); barra != std::string_view::npos; barra = linha.find('|')) {
        linha.remove_prefix(barra + 1);
        const std::string_view argumento = linha.substr(0, linha.find('|'));
        if (argumento.size() == 2 && argumento[0] == '#')
            argumentos.Numero(argumento[1]);
        else
            argumentos.Texto(argumento);
    }
    qx7032::Evento evento;
    evento.quadro.carga = argumentos.Carga();
    evento.quadro.sequencia = sequencia;
    return evento;
}

void PorOrdens(Dispositivo &dispositivo, std::string_view dados)
{
    std::uint8_t sequencia = 0;
    while (!dados.empty()) {
        const std::string_view linha = dados.substr(0, dados.find('\n'));
        dados.remove_prefix(std::min(dados.size(), linha.size() + 1));
        if (linha.empty())
            continue;
        qx7032::Evento evento = OrdemDe(linha, sequencia++);
        evento.quadro.tipo = linha.front();
        Entrega(dispositivo, evento);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *dados, std::size_t tamanho)
{
    if (tamanho < 2)
        return 0;
    Dispositivo dispositivo;
    dispositivo.PoeBanco("001", {"", LePosicoes("01,05,07,10,13,92,17,09,11,50,31,40,65").value()});
    dispositivo.PoeFalha({static_cast<TipoDeFalha>(dados[0] % 10), dados[1] % 3});
    const std::string_view bytes(reinterpret_cast<const char *>(dados) + 2, tamanho - 2);
    if (dados[1] < 0x80)
        PelaLinha(dispositivo, bytes);
    else
        PorOrdens(dispositivo, bytes);
    for (const Documento &documento : dispositivo.Encerra())
        Confere(documento);
    if (InterpretaMemoria(EscreveMemoria(dispositivo.MemoriaAtual())) != dispositivo.MemoriaAtual())
        std::abort();
    return 0;
}
