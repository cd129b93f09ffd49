// Comparison of texts in Portuguese dictionary order, without regard to case, and reading of stored bytes.
#include "Ordem.h"

#include "plataforma/basico/Texto.h"
#include <algorithm>
#include <array>
#include <QList>
#include <QStringDecoder>

namespace plataforma::jet {

namespace {

struct Letra {
    char32_t base;   // the letter without accent, in lower case
    char32_t acento; // 0, or the whole letter in lower case when it has an accent
};

Letra Decompoe(char32_t ponto)
{
    const char32_t minuscula = QChar::toLower(ponto);
    char32_t base = minuscula;
    while (QChar::decompositionTag(base) == QChar::Canonical) {
        const QString partes = QChar::decomposition(base);
        base = partes.at(0).isHighSurrogate() ? partes.toUcs4().at(0) : partes.at(0).unicode();
    }
    return {base, base == minuscula ? 0 : minuscula};
}

Letra LetraDe(char32_t ponto)
{
    constexpr char32_t TAMANHO = 0x250;
    static const std::array<Letra, TAMANHO> tabela = [] {
        std::array<Letra, TAMANHO> t{};
        for (char32_t i = 0; i < TAMANHO; ++i)
            t[i] = Decompoe(i);
        return t;
    }();
    return ponto < TAMANHO ? tabela[ponto] : Decompoe(ponto);
}

// The character of a Windows-1252 byte.
char32_t PontoAnsi(unsigned char byte)
{
    static const std::array<char16_t, 256> tabela = [] {
        std::array<char16_t, 256> t{};
        for (std::size_t i = 0; i < t.size(); ++i)
            t[i] = FromAnsi(QByteArray(1, static_cast<char>(i))).at(0).unicode();
        return t;
    }();
    return tabela[byte];
}

struct Ponto {
    char32_t ponto = 0;
    std::size_t tamanho = 0; // in bytes; 0: the bytes are no UTF-8
};

// The character at the beginning of `bytes`, which is not empty.
Ponto LeUtf8(std::string_view bytes)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char inicio = byte(0);
    const std::size_t tamanho = inicio < 0xC2   ? 1
                                : inicio < 0xE0 ? 2
                                : inicio < 0xF0 ? 3
                                : inicio < 0xF5 ? 4
                                                : 1;
    char32_t ponto = tamanho == 1 ? inicio : inicio & (0xFFU >> (tamanho + 1));
    bool valido = inicio < 0x80 || (tamanho > 1 && bytes.size() >= tamanho);
    for (std::size_t i = 1; valido && i < tamanho; ++i) {
        valido = (byte(i) & 0xC0U) == 0x80;
        ponto = (ponto << 6) | (byte(i) & 0x3FU);
    }
    constexpr std::array<char32_t, 5> MENOR = {0, 0, 0x80, 0x800, 0x10000}; // no overlong forms
    valido = valido && ponto >= MENOR[tamanho] && ponto <= 0x10FFFF && (ponto < 0xD800 || ponto > 0xDFFF);
    return valido ? Ponto{ponto, tamanho} : Ponto{};
}

// Takes the next character off `bytes`, which is not empty.
char32_t ProximoPonto(std::string_view &bytes)
{
    const Ponto lido = LeUtf8(bytes);
    const char32_t ponto = lido.tamanho > 0 ? lido.ponto : PontoAnsi(static_cast<unsigned char>(bytes[0]));
    bytes.remove_prefix(std::max<std::size_t>(lido.tamanho, 1));
    return ponto;
}

constexpr unsigned char FORA_DO_ASCII = 0x80;

// Of each byte the small letter; one outside of ASCII stands for all of them.
constexpr std::array<unsigned char, 256> MINUSCULAS = [] {
    std::array<unsigned char, 256> t{};
    for (unsigned i = 0; i < t.size(); ++i)
        t[i] = static_cast<unsigned char>(i >= 0x80 ? FORA_DO_ASCII : i >= 'A' && i <= 'Z' ? i + 32 : i);
    return t;
}();

unsigned char Minuscula(char c)
{
    return MINUSCULAS[static_cast<unsigned char>(c)];
}

// Takes off both what is the same in ASCII. @return which is less when they part there, else 0
int PulaIguais(std::string_view &a, std::string_view &b)
{
    const std::size_t tamanho = std::min(a.size(), b.size());
    std::size_t i = 0;
    int resultado = 0;
    for (; i < tamanho; ++i) {
        const unsigned char x = Minuscula(a[i]);
        const unsigned char y = Minuscula(b[i]);
        if (x == y && x != FORA_DO_ASCII)
            continue;
        if (x != FORA_DO_ASCII && y != FORA_DO_ASCII)
            resultado = x < y ? -1 : 1;
        break;
    }
    a.remove_prefix(i);
    b.remove_prefix(i);
    return resultado;
}

int Sinal(char32_t a, char32_t b)
{
    return a < b ? -1 : a > b ? 1 : 0;
}

} // namespace

int ComparaPortugues(std::string_view a, std::string_view b)
{
    int acento = 0;
    for (;;) {
        if (const int resultado = PulaIguais(a, b); resultado != 0)
            return resultado;
        if (a.empty() || b.empty())
            break;
        const Letra x = LetraDe(ProximoPonto(a));
        const Letra y = LetraDe(ProximoPonto(b));
        if (x.base != y.base)
            return Sinal(x.base, y.base);
        if (acento == 0)
            acento = Sinal(x.acento, y.acento);
    }
    if (a.empty() != b.empty())
        return a.empty() ? -1 : 1;
    return acento;
}

std::optional<std::string_view> InicioGravado(std::string_view bytes, std::size_t n)
{
    const std::string_view inicio = bytes.substr(0, n);
    const auto ascii = [](char c) { return Minuscula(c) != FORA_DO_ASCII; };
    if (std::all_of(inicio.begin(), inicio.end(), ascii))
        return inicio; // the same characters whatever stands behind them
    if (bytes.substr(0, 3) == "\xEF\xBB\xBF")
        return std::nullopt; // a mark that is no character of the text
    std::size_t fim = bytes.size();
    std::size_t unidades = 0;
    for (std::size_t i = 0; i < bytes.size();) {
        const Ponto lido = LeUtf8(bytes.substr(i));
        if (lido.tamanho == 0 || (unidades + 1 == n && lido.ponto > 0xFFFF))
            return std::nullopt;
        if (unidades == n)
            fim = std::min(fim, i);
        unidades += lido.ponto > 0xFFFF ? 2 : 1;
        i += lido.tamanho;
    }
    return bytes.substr(0, fim);
}

QString TextoGravado(std::string_view bytes)
{
    if (bytes.empty())
        return QLatin1String("");
    const QByteArrayView vista(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QString texto = QString::fromUtf8(vista);
    if (!texto.contains(QChar::ReplacementCharacter))
        return texto;
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString estrito = utf8(vista);
    return utf8.hasError() ? FromAnsi(vista.toByteArray()) : estrito;
}

} // namespace plataforma::jet
