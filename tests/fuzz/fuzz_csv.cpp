// Fuzz: any bytes as a file to be brought in. Reading ends, in whatever pieces the bytes come; what was read
// and written again reads the same; a row that the rules accept is accepted again as it is then.
#include "Codificacao.h"
#include "Csv.h"
#include "Esquema.h"
#include "Regras.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <string>
#include <vector>

namespace {

using namespace banco;

void Exige(bool verdade)
{
    if (!verdade)
        std::abort();
}

LeitorCsv::Fonte FonteDe(const std::string &bytes, std::size_t aosPoucos)
{
    return [&bytes, aosPoucos, dados = std::size_t{0}](char *para, std::size_t quantos) mutable {
        const std::size_t n = std::min({quantos, aosPoucos, bytes.size() - dados});
        bytes.copy(para, n, dados);
        dados += n;
        return n;
    };
}

struct Registro {
    std::int64_t linha;
    ErroCsv erro;
    Linha campos; ///< their bytes as the file has them

    bool operator==(const Registro &outro) const
    {
        const auto iguais = [](const Campo &a, const Campo &b) {
            return a.nulo == b.nulo && a.texto == b.texto;
        };
        return linha == outro.linha && erro == outro.erro &&
               std::equal(campos.begin(), campos.end(), outro.campos.begin(), outro.campos.end(), iguais);
    }
};

std::vector<Registro> Le(const std::string &bytes, char separador, std::size_t aosPoucos)
{
    LeitorCsv leitor(FonteDe(bytes, aosPoucos), separador);
    std::vector<Registro> registros;
    for (RegistroCsv lido; leitor.Le(lido);) {
        Exige(registros.empty() || lido.linha > registros.back().linha);
        registros.push_back({lido.linha, lido.erro, {}});
        for (const CampoCsv &campo : lido.campos) {
            if (lido.erro == ErroCsv::Nenhum)
                registros.back().campos.push_back(
                    {std::string(campo.texto), campo.texto.empty() && !campo.entreAspas});
        }
    }
    return registros;
}

// The fields in UTF-8. @return whether all of them are of the encoding
bool Decodifica(Linha &linha, Codificacao codificacao)
{
    for (Campo &campo : linha) {
        std::string texto;
        if (codificacao == Codificacao::Utf8 ? AchaForaDeUtf8(campo.texto) != std::string_view::npos
                                             : PoeEmUtf8(texto, campo.texto) != std::string_view::npos)
            return false;
        if (codificacao == Codificacao::Windows1252)
            campo.texto = texto;
    }
    return true;
}

void ProvaEscrita(const Linha &linha, char separador, Codificacao codificacao)
{
    const EscritorCsv escritor(separador, codificacao);
    std::string escrito;
    for (const Campo &campo : linha) {
        if (!campo.nulo)
            Exige(escritor.Poe(escrito, campo.texto) == EscritorCsv::Falha::Nenhuma);
        escrito += &campo == &linha.back() ? "\r\n" : std::string(1, separador);
    }
    // One field without a value is an empty line, which no table of ours could mean.
    if (linha.size() == 1 && linha.front().nulo)
        return;
    std::vector<Registro> relido = Le(escrito, separador, escrito.size());
    Exige(relido.size() == 1 && Decodifica(relido.front().campos, codificacao));
    Exige(relido.front() == Registro{1, ErroCsv::Nenhum, linha});
}

void ProvaRegras(Linha linha, const Tabela &tabela)
{
    linha.resize(tabela.campos.size());
    RegrasDaTabela regras(tabela);
    if (!regras.Aplica(linha).isEmpty())
        return;
    const std::int64_t completados = regras.Completados();
    const Linha antes = linha;
    Exige(regras.Aplica(linha).isEmpty() && regras.Completados() == completados);
    Exige(Registro{0, ErroCsv::Nenhum, antes} == Registro{0, ErroCsv::Nenhum, linha});
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *dados, std::size_t tamanho)
{
    FuzzedDataProvider fonte(dados, tamanho);
    const char separador = fonte.PickValueInArray({';', ',', '\t'});
    const Tabela &tabela = Tabelas()[fonte.ConsumeIntegralInRange<std::size_t>(0, Tabelas().size() - 1)];
    const auto aosPoucos = fonte.ConsumeIntegralInRange<std::size_t>(1, 9);
    const std::string bytes = fonte.ConsumeRemainingBytesAsString();
    Detector detector;
    for (std::size_t i = 0; i < bytes.size(); i += aosPoucos)
        detector.Ve(std::string_view(bytes).substr(i, aosPoucos));
    const Codificacao codificacao = detector.Resultado();
    Exige(codificacao == Codificacao::Windows1252 || AchaForaDeUtf8(bytes) == std::string_view::npos ||
          bytes.starts_with(kMarcaUtf8));
    std::vector<Registro> registros = Le(bytes, separador, bytes.size() + 1);
    Exige(registros == Le(bytes, separador, aosPoucos));
    for (Registro &registro : registros) {
        if (registro.erro != ErroCsv::Nenhum || !Decodifica(registro.campos, codificacao))
            continue;
        ProvaEscrita(registro.campos, separador, codificacao);
        ProvaRegras(registro.campos, tabela);
    }
    return 0;
}
