// Comparison of texts in Portuguese dictionary order, without regard to case, and reading of stored bytes.
#include "Ordem.h"

#include "plataforma/basico/Texto.h"
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

// Takes the next character off `bytes`, which is not empty.
char32_t ProximoPonto(std::string_view &bytes)
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
    if (!valido) {
        const char ansi = bytes[0];
        bytes.remove_prefix(1);
        return FromAnsi(QByteArray(1, ansi)).at(0).unicode();
    }
    bytes.remove_prefix(tamanho);
    return ponto;
}

bool EAscii(char c)
{
    return static_cast<unsigned char>(c) < 0x80;
}

char Minuscula(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

int Sinal(char32_t a, char32_t b)
{
    return a < b ? -1 : a > b ? 1 : 0;
}

} // namespace

int ComparaPortugues(std::string_view a, std::string_view b)
{
    int acento = 0;
    while (!a.empty() && !b.empty()) {
        if (EAscii(a[0]) && EAscii(b[0])) {
            const char x = Minuscula(a[0]);
            const char y = Minuscula(b[0]);
            if (x != y)
                return x < y ? -1 : 1;
            a.remove_prefix(1);
            b.remove_prefix(1);
            continue;
        }
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
