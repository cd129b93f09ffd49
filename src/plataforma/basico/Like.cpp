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

bool Aceita(const Peca &peca, QChar c)
{
    const char16_t letra = Dobra(c);
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

} // namespace

bool Like(const QString &texto, const QString &padrao)
{
    const std::vector<Peca> pecas = PecasDe(padrao);
    std::size_t p = 0;
    qsizetype t = 0;
    std::optional<std::size_t> volta; // the piece behind the last "*" met
    qsizetype voltaTexto = 0;         // where that "*" ends for now
    while (t < texto.size()) {
        if (p < pecas.size() && pecas[p].tipo == Peca::Varios) {
            volta = ++p;
            voltaTexto = t;
        } else if (p < pecas.size() && Aceita(pecas[p], texto[t])) {
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

} // namespace plataforma
