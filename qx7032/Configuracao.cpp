// Ports and time-outs as configured; see Configuracao.h.
#include "qx7032/Configuracao.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>
#include <cstdlib>
#include <fstream>
#include <map>
#include <string_view>

#include <unistd.h>

namespace qx7032 {

namespace {

using Chaves = std::map<std::string, std::string>;

constexpr std::array<std::string_view, 4> kPortas = {"COM1", "COM2", "COM3", "COM4"};
constexpr unsigned kEsperaMaxima = 600'000; // ms; whatever is configured, an operation ends

std::string Apara(std::string_view texto)
{
    constexpr std::string_view brancos = " \t\r\n";
    const std::size_t inicio = texto.find_first_not_of(brancos);
    if (inicio == std::string_view::npos)
        return {};
    return std::string(texto.substr(inicio, texto.find_last_not_of(brancos) - inicio + 1));
}

std::string Maiusculas(std::string texto)
{
    for (char &c : texto)
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    return texto;
}

// Lines key=value, "#" begins a comment line; the first of equal keys counts, in whatever case.
Chaves LeArquivo(const std::string &caminho)
{
    Chaves chaves;
    std::ifstream arquivo(caminho);
    for (std::string linha; std::getline(arquivo, linha);) {
        const std::string limpa = Apara(linha);
        const std::size_t igual = limpa.find('=');
        if (limpa.empty() || limpa.front() == '#' || igual == std::string::npos)
            continue;
        chaves.try_emplace(Maiusculas(Apara(limpa.substr(0, igual))), Apara(limpa.substr(igual + 1)));
    }
    return chaves;
}

// An empty variable counts as none.
std::optional<std::string> Procura(const Chaves &chaves, const std::string &chave)
{
    if (const char *valor = std::getenv(("QX7032_" + chave).c_str()); valor != nullptr && *valor != '\0')
        return std::string(valor);
    const auto achada = chaves.find(chave);
    return achada == chaves.end() ? std::nullopt : std::optional(achada->second);
}

std::optional<unsigned> Numero(const std::string &texto)
{
    unsigned numero = 0;
    const char *fim = texto.data() + texto.size();
    const auto lido = std::from_chars(texto.data(), fim, numero);
    return lido.ec == std::errc() && lido.ptr == fim ? std::optional(numero) : std::nullopt;
}

// A time-out that cannot be read, or is none, leaves the default.
void LeEspera(const Chaves &chaves, const std::string &chave, std::chrono::milliseconds &espera)
{
    const auto texto = Procura(chaves, chave);
    const auto numero = texto ? Numero(*texto) : std::nullopt;
    if (numero && *numero > 0)
        espera = std::chrono::milliseconds(std::min(*numero, kEsperaMaxima));
}

} // namespace

std::string NormalizaPorta(const std::string &nome)
{
    return Maiusculas(Apara(nome));
}

std::string PastaDoPrograma()
{
    if (const char *casa = std::getenv("QX70_HOME"); casa != nullptr && *casa != '\0')
        return casa;
    std::array<char, PATH_MAX> caminho{};
    const ssize_t tamanho = readlink("/proc/self/exe", caminho.data(), caminho.size());
    const std::string_view exe(caminho.data(), tamanho > 0 ? static_cast<std::size_t>(tamanho) : 0);
    const std::size_t barra = exe.rfind('/');
    return barra == std::string_view::npos ? "." : std::string(exe.substr(0, barra));
}

std::optional<Configuracao> LeConfiguracao(const std::string &porta, const std::string &pasta)
{
    const auto *conhecida = std::find(kPortas.begin(), kPortas.end(), porta);
    if (conhecida == kPortas.end())
        return std::nullopt;
    const Chaves chaves = LeArquivo(pasta + "/qx7032.conf");
    Configuracao configuracao;
    configuracao.dispositivo =
        Procura(chaves, porta).value_or("/dev/ttyS" + std::to_string(conhecida - kPortas.begin()));
    if (configuracao.dispositivo.empty())
        return std::nullopt;
    if (const auto velocidade = Procura(chaves, "VELOCIDADE"))
        configuracao.velocidade = Numero(*velocidade).value_or(0);
    LeEspera(chaves, "ESPERA_RESPOSTA_MS", configuracao.resposta);
    LeEspera(chaves, "ESPERA_IMPRESSAO_MS", configuracao.impressao);
    return configuracao;
}

} // namespace qx7032
