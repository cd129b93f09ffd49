// The reader of amounts in words; see LeitorDeExtenso.h.
#include "LeitorDeExtenso.h"

#include <map>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace {

using Palavras = std::map<std::string, int>;

const Palavras kUnidades = {{"um", 1},   {"dois", 2}, {"três", 3}, {"quatro", 4}, {"cinco", 5},
                            {"seis", 6}, {"sete", 7}, {"oito", 8}, {"nove", 9}};
const Palavras kDezADezenove = {{"dez", 10},      {"onze", 11},    {"doze", 12},      {"treze", 13},
                                {"quatorze", 14}, {"quinze", 15},  {"dezesseis", 16}, {"dezessete", 17},
                                {"dezoito", 18},  {"dezenove", 19}};
const Palavras kDezenas = {{"vinte", 20},    {"trinta", 30},  {"quarenta", 40}, {"cinquenta", 50},
                           {"sessenta", 60}, {"setenta", 70}, {"oitenta", 80},  {"noventa", 90}};
const Palavras kCentenas = {{"cento", 100},        {"duzentos", 200},   {"trezentos", 300},
                            {"quatrocentos", 400}, {"quinhentos", 500}, {"seiscentos", 600},
                            {"setecentos", 700},   {"oitocentos", 800}, {"novecentos", 900}};
const std::map<std::string, std::int64_t> kUmSo = {{"milhão", 1'000'000}, {"bilhão", 1'000'000'000}};
const std::map<std::string, std::int64_t> kVarios = {{"milhões", 1'000'000}, {"bilhões", 1'000'000'000}};

class Leitor {
public:
    explicit Leitor(const std::string &frase)
    {
        if (frase.empty() || frase.front() == ' ' || frase.back() == ' ' ||
            frase.find("  ") != std::string::npos)
            throw std::runtime_error("blanks out of place");
        std::istringstream entrada(frase);
        for (std::string palavra; entrada >> palavra;)
            m_palavras.push_back(palavra);
    }

    [[nodiscard]] bool Fim() const { return m_posicao == m_palavras.size(); }
    [[nodiscard]] std::string Proxima(std::size_t adiante = 0) const
    {
        return m_posicao + adiante < m_palavras.size() ? m_palavras[m_posicao + adiante] : std::string();
    }
    bool Toma(const std::string &palavra)
    {
        if (Proxima() != palavra || palavra.empty())
            return false;
        ++m_posicao;
        return true;
    }
    void Exige(const std::string &palavra)
    {
        if (!Toma(palavra))
            throw std::runtime_error("\"" + palavra + "\" is missing before \"" + Proxima() + "\"");
    }

    // A whole number; "zero" alone is 0.
    std::int64_t Numero()
    {
        if (Toma("zero"))
            return 0;
        std::int64_t total = 0;
        std::int64_t ordemAnterior = 0;
        for (bool primeira = true;; primeira = false) {
            const bool comE = !primeira && Toma("e");
            const std::optional<int> grupo = Grupo();
            if (!grupo && Proxima() != "mil") {
                if (comE)
                    throw std::runtime_error("no number behind \"e\" at \"" + Proxima() + "\"");
                break;
            }
            const std::int64_t ordem = Ordem(grupo);
            if (!primeira)
                ConfereE(comE, grupo.value_or(1));
            if (!primeira && ordem >= ordemAnterior)
                throw std::runtime_error("orders do not go down");
            total += grupo.value_or(1) * ordem;
            ordemAnterior = ordem;
            if (ordem == 1 || !HaMaisNumero())
                break;
        }
        if (total == 0)
            throw std::runtime_error("no number at \"" + Proxima() + "\"");
        return total;
    }

private:
    static std::optional<int> Acha(const Palavras &palavras, const std::string &palavra)
    {
        const auto achada = palavras.find(palavra);
        return achada == palavras.end() ? std::nullopt : std::optional(achada->second);
    }

    std::optional<int> TomaDe(const Palavras &palavras)
    {
        const auto valor = Acha(palavras, Proxima());
        if (valor)
            ++m_posicao;
        return valor;
    }

    static bool ComecaNumero(const std::string &palavra)
    {
        return palavra == "cem" || palavra == "mil" || Acha(kUnidades, palavra) ||
               Acha(kDezADezenove, palavra) || Acha(kDezenas, palavra) || Acha(kCentenas, palavra);
    }

    // Does the number go on, directly or behind an "e"?
    [[nodiscard]] bool HaMaisNumero() const
    {
        return ComecaNumero(Proxima()) || (Proxima() == "e" && ComecaNumero(Proxima(1)));
    }

    // 1 to 999, "e" standing between hundreds, tens and units.
    std::optional<int> Grupo()
    {
        if (Toma("cem"))
            return 100;
        const auto centena = TomaDe(kCentenas);
        if (!centena)
            return AteNoventaENove();
        const bool segue =
            Proxima() == "e" &&
            (Acha(kUnidades, Proxima(1)) || Acha(kDezADezenove, Proxima(1)) || Acha(kDezenas, Proxima(1)));
        if (!segue) {
            if (*centena == 100)
                throw std::runtime_error("\"cento\" stands alone");
            return centena;
        }
        Exige("e");
        return *centena + AteNoventaENove().value();
    }

    std::optional<int> AteNoventaENove()
    {
        if (const auto dez = TomaDe(kDezADezenove))
            return dez;
        const auto dezena = TomaDe(kDezenas);
        if (!dezena)
            return TomaDe(kUnidades);
        if (Proxima() != "e" || !Acha(kUnidades, Proxima(1)))
            return dezena;
        Exige("e");
        return *dezena + TomaDe(kUnidades).value();
    }

    // The order named behind a group; "mil" has no group when there is one of it.
    std::int64_t Ordem(std::optional<int> grupo)
    {
        const std::string palavra = Proxima();
        if (Toma("mil")) {
            if (grupo == 1)
                throw std::runtime_error("\"um mil\"");
            return 1000;
        }
        const auto um = kUmSo.find(palavra);
        const auto varios = kVarios.find(palavra);
        if (um == kUmSo.end() && varios == kVarios.end())
            return 1;
        if ((um != kUmSo.end()) != (grupo == 1))
            throw std::runtime_error("number and \"" + palavra + "\" do not agree");
        ++m_posicao;
        return um != kUmSo.end() ? um->second : varios->second;
    }

    // "e" must join the last part when that is below 100 or whole hundreds, and no other part.
    void ConfereE(bool comE, int grupo)
    {
        const bool ultima = !HaMaisNumero();
        if (comE != (ultima && (grupo < 100 || grupo % 100 == 0)))
            throw std::runtime_error(comE ? "an \"e\" too many before \"" + Proxima() + "\""
                                          : "an \"e\" is missing before \"" + Proxima() + "\"");
    }

    std::vector<std::string> m_palavras;
    std::size_t m_posicao = 0;
};

std::int64_t Centavos(Leitor &leitor, std::int64_t numero)
{
    if (numero < 1 || numero > 99)
        throw std::runtime_error("cents out of range");
    leitor.Exige(numero == 1 ? "centavo" : "centavos");
    if (!leitor.Fim())
        throw std::runtime_error("words behind the cents");
    return numero;
}

std::int64_t Valor(Leitor &leitor, const std::string &singular, const std::string &plural)
{
    const std::int64_t numero = leitor.Numero();
    if (leitor.Proxima() == "centavo" || leitor.Proxima() == "centavos")
        return Centavos(leitor, numero);
    if (numero > 0 && numero % 1'000'000 == 0)
        leitor.Exige("de");
    leitor.Exige(numero == 1 ? singular : plural);
    if (leitor.Fim())
        return numero * 100;
    if (numero == 0)
        throw std::runtime_error("zero before cents");
    leitor.Exige("e");
    return numero * 100 + Centavos(leitor, leitor.Numero());
}

} // namespace

ExtensoLido LeExtenso(const std::string &frase, const std::string &singular, const std::string &plural)
{
    try {
        Leitor leitor(frase);
        return {Valor(leitor, singular, plural), ""};
    } catch (const std::runtime_error &falha) {
        return {-1, falha.what()};
    }
}
