// Amount in words: libnumbertext spells the numbers below a thousand, the grammar around them is here.
#include "qx7032/Extenso.h"

#include <array>
#include <cstdlib>
#include <exception>
#include <memory>
#include <string_view>

#include <dlfcn.h>
#include <Numbertext.hxx>

namespace qx7032 {

namespace {

constexpr const char *kIdioma = "pt_BR";

// Words of 0 to 999; filled once, because spelling a number by rules is slow.
std::array<std::string, 1000> g_ateMil;
bool g_carregado = false;

struct Ordem {
    std::int64_t unidade;
    const char *singular;
    const char *plural;
};
// On purpose "mil" has no number before it when there is one of it: see PoeOrdem.
constexpr std::array<Ordem, 4> kOrdens = {{{1'000'000'000, "bilhão", "bilhões"},
                                           {1'000'000, "milhão", "milhões"},
                                           {1'000, "mil", "mil"},
                                           {1, "", ""}}};

void AjuntaPalavra(std::string &frase, std::string_view palavra)
{
    if (!frase.empty() && !palavra.empty())
        frase += ' ';
    frase += palavra;
}

// The words of one order of a number: "dois milhões", "mil", "cento e um".
std::string PalavrasDaOrdem(int grupo, const Ordem &ordem)
{
    std::string palavras;
    if (ordem.unidade != 1'000 || grupo != 1) // never "um mil"
        palavras = g_ateMil[static_cast<std::size_t>(grupo)];
    AjuntaPalavra(palavras, grupo == 1 ? ordem.singular : ordem.plural);
    return palavras;
}

// "e" stands before the last order when that is below 100 or whole hundreds, and nowhere else between orders.
std::string PalavrasDoNumero(std::int64_t numero)
{
    if (numero == 0)
        return g_ateMil[0];
    std::string frase;
    for (const Ordem &ordem : kOrdens) {
        const int grupo = static_cast<int>(numero / ordem.unidade % 1000);
        if (grupo == 0)
            continue;
        const bool ultimo = numero % ordem.unidade == 0;
        if (ultimo && !frase.empty() && (grupo < 100 || grupo % 100 == 0))
            frase += " e";
        AjuntaPalavra(frase, PalavrasDaOrdem(grupo, ordem));
    }
    return frase;
}

std::string PalavrasDosInteiros(std::int64_t inteiros, const std::string &singular, const std::string &plural)
{
    std::string frase = PalavrasDoNumero(inteiros);
    if (inteiros != 0 && inteiros % 1'000'000 == 0)
        frase += " de"; // "um milhão de reais"
    AjuntaPalavra(frase, inteiros == 1 ? singular : plural);
    return frase;
}

std::string PalavrasDosCentavos(std::int64_t centavos)
{
    return PalavrasDoNumero(centavos) + (centavos == 1 ? " centavo" : " centavos");
}

// Some languages of the data answer an unknown number with nothing: that counts as a failure.
bool CarregaDe(const std::string &pasta)
{
    Numbertext numeros;
    numeros.set_prefix(pasta);
    if (!numeros.load(kIdioma))
        return false;
    for (std::size_t i = 0; i < g_ateMil.size(); ++i) {
        std::string palavras = std::to_string(i);
        if (!numeros.numbertext(palavras, kIdioma) || palavras.empty())
            return false;
        g_ateMil[i] = palavras;
    }
    return true;
}

std::string PastaDestaBiblioteca()
{
    Dl_info dados{};
    if (dladdr(reinterpret_cast<const void *>(&CarregaNumeros), &dados) == 0 || dados.dli_fname == nullptr)
        return {};
    const std::string_view caminho = dados.dli_fname;
    const std::size_t barra = caminho.rfind('/');
    return barra == std::string_view::npos ? std::string() : std::string(caminho.substr(0, barra + 1));
}

} // namespace

std::vector<std::string> PastasDosNumeros()
{
    if (const char *pasta = std::getenv("QX7032_NUMEROS"); pasta != nullptr && *pasta != '\0')
        return {std::string(pasta) + "/"};
    const std::string nossa = PastaDestaBiblioteca();
    return {"/usr/share/libnumbertext/", "/usr/local/share/libnumbertext/", nossa + "libnumbertext/",
            nossa + "../share/libnumbertext/"};
}

bool CarregaNumeros()
{
    if (g_carregado)
        return true;
    for (const std::string &pasta : PastasDosNumeros()) {
        try {
            g_carregado = CarregaDe(pasta);
        } catch (const std::exception &) {
            g_carregado = false; // damaged data: the next folder may be good
        }
        if (g_carregado)
            return true;
    }
    return false;
}

std::string PorExtenso(std::int64_t centavos, const std::string &singular, const std::string &plural)
{
    if (centavos < 0 || centavos > kCentavosMaximos || !CarregaNumeros())
        return {};
    const std::int64_t inteiros = centavos / 100;
    const std::int64_t resto = centavos % 100;
    if (inteiros == 0 && resto != 0)
        return PalavrasDosCentavos(resto); // no "zero reais e"
    std::string frase = PalavrasDosInteiros(inteiros, singular, plural);
    if (resto != 0)
        frase += " e " + PalavrasDosCentavos(resto);
    return frase;
}

} // namespace qx7032
