// Like: a text against a pattern with wildcards, without regard to case.
#include "plataforma/basico/Texto.h"

#include <optional>
#include <QStringView>
#include <vector>

namespace plataforma {

namespace {

struct Faixa {
    char16_t de;
    char16_t ate;
};

/// One place of a pattern and what it takes.
struct Peca {
    enum Tipo { Letra, Qualquer, Digito, Lista, Varios } tipo = Letra;
    char16_t letra = 0;
    bool negada = false;
    std::vector<Faixa> faixas;
};

char16_t Dobra(QChar c)
{
    return c.toCaseFolded().unicode();
}

std::vector<Faixa> FaixasDe(QStringView lista)
{
    std::vector<Faixa> faixas;
    for (qsizetype i = 0; i < lista.size(); ++i) {
        const bool faixa = i + 2 < lista.size() && lista[i + 1] == QLatin1Char('-');
        faixas.push_back({Dobra(lista[i]), Dobra(lista[faixa ? i + 2 : i])});
        i += faixa ? 2 : 0;
    }
    return faixas;
}

/// The list that opens at `i`, and `i` moved to its "]"; none when it is never closed.
std::optional<Peca> LeLista(QStringView padrao, qsizetype &i)
{
    const qsizetype fim = padrao.indexOf(QLatin1Char(']'), i + 1);
    if (fim < 0) {
        return std::nullopt;
    }
    QStringView lista = padrao.sliced(i + 1, fim - i - 1);
    Peca peca;
    peca.tipo = Peca::Lista;
    peca.negada = lista.size() > 1 && lista.startsWith(QLatin1Char('!'));
    peca.faixas = FaixasDe(peca.negada ? lista.sliced(1) : lista);
    i = fim;
    return peca;
}

Peca LePeca(QStringView padrao, qsizetype &i)
{
    Peca peca;
    switch (padrao[i].unicode()) {
    case '*':
        peca.tipo = Peca::Varios;
        return peca;
    case '?':
        peca.tipo = Peca::Qualquer;
        return peca;
    case '#':
        peca.tipo = Peca::Digito;
        return peca;
    case '[':
        if (auto lista = LeLista(padrao, i)) {
            return *lista;
        }
        break;
    default:
        break;
    }
    peca.letra = Dobra(padrao[i]);
    return peca;
}

std::vector<Peca> PecasDe(QStringView padrao)
{
    std::vector<Peca> pecas;
    for (qsizetype i = 0; i < padrao.size(); ++i) {
        Peca peca = LePeca(padrao, i);
        const bool nada = peca.tipo == Peca::Lista && peca.faixas.empty();
        if (!nada) {
            pecas.push_back(std::move(peca));
        }
    }
    return pecas;
}

bool Aceita(const Peca &peca, char16_t letra)
{
    bool naLista = false;
    switch (peca.tipo) {
    case Peca::Letra:
        return letra == peca.letra;
    case Peca::Digito:
        return letra >= '0' && letra <= '9';
    case Peca::Lista:
        for (const Faixa &faixa : peca.faixas) {
            naLista = naLista || (letra >= faixa.de && letra <= faixa.ate);
        }
        return naLista != peca.negada;
    case Peca::Qualquer:
    case Peca::Varios:
        break;
    }
    return true;
}

/// Walks a text of `tamanho` characters along the pattern. `letra` gives the folded character of a place, or
/// none where it cannot tell; the result is none where it hangs on such a place.
template <class Letra>
std::optional<bool> Percorre(const std::vector<Peca> &pecas, std::size_t tamanho, Letra letra)
{
    std::size_t p = 0;
    std::size_t t = 0;
    std::optional<std::size_t> volta; // the piece behind the last "*" met
    std::size_t voltaTexto = 0;       // where that "*" ends for now
    while (t < tamanho) {
        if (p < pecas.size() && pecas[p].tipo == Peca::Varios) {
            if (++p == pecas.size()) {
                return true; // whatever is left
            }
            volta = p;
            voltaTexto = t;
            continue;
        }
        const std::optional<char16_t> c = letra(t);
        if (!c) {
            return std::nullopt;
        }
        if (p < pecas.size() && Aceita(pecas[p], *c)) {
            ++p;
            ++t;
        } else if (volta) {
            p = *volta;
            t = ++voltaTexto;
        } else {
            return false;
        }
    }
    while (p < pecas.size() && pecas[p].tipo == Peca::Varios) {
        ++p;
    }
    return p == pecas.size();
}

} // namespace

struct PadraoLike::Pecas : std::vector<Peca> {};

PadraoLike::PadraoLike(const QString &padrao) : m_pecas(std::make_unique<Pecas>(Pecas{PecasDe(padrao)})) {}

PadraoLike::~PadraoLike() = default;

bool PadraoLike::Aceita(const QString &texto) const
{
    const auto letra = [&](std::size_t t) { return std::optional(Dobra(texto[static_cast<qsizetype>(t)])); };
    return *Percorre(*m_pecas, static_cast<std::size_t>(texto.size()), letra);
}

std::optional<bool> PadraoLike::AceitaBytes(std::string_view bytes) const
{
    const auto letra = [&](std::size_t t) -> std::optional<char16_t> {
        const auto c = static_cast<unsigned char>(bytes[t]);
        if (c >= 0x80) {
            return std::nullopt;
        }
        return static_cast<char16_t>(c >= 'A' && c <= 'Z' ? c + 0x20 : c);
    };
    return Percorre(*m_pecas, bytes.size(), letra);
}

bool Like(const QString &texto, const QString &padrao)
{
    return PadraoLike(padrao).Aceita(texto);
}

} // namespace plataforma
