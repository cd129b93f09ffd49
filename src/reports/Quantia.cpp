// See Quantia.h.
#include "reports/Quantia.h"

#include "plataforma/basico/Formato.h"
#include "plataforma/basico/Numero.h"

#include <array>
#include <cmath>
#include <optional>

namespace reports {

namespace {

// With these, an amount in cents has 15 digits at most: each such number and its text stand for one another.
constexpr int kMaisInteiros = 13;
constexpr double kAbaixoDe = 1e12;

bool EAlgarismo(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

/// Whole cents of the usual text: blanks, "-", digits with points among them, a comma with up to two digits.
/// Nothing for any other text, be it a number or not.
std::optional<qint64> CentavosDe(QStringView texto)
{
    const QChar *c = texto.begin();
    const QChar *const fim = texto.end();
    while (c != fim && *c == QLatin1Char(' '))
        ++c;
    const bool menos = c != fim && *c == QLatin1Char('-');
    c += menos ? 1 : 0;
    qint64 centavos = 0;
    int inteiros = 0;
    for (; c != fim && (EAlgarismo(*c) || (inteiros > 0 && *c == QLatin1Char('.'))); ++c) {
        if (*c == QLatin1Char('.'))
            continue;
        centavos = centavos * 10 + c->unicode() - u'0';
        if (++inteiros > kMaisInteiros)
            return std::nullopt;
    }
    c += c != fim && *c == QLatin1Char(',') ? 1 : 0;
    int decimais = 0;
    for (; c != fim && decimais < 2 && EAlgarismo(*c); ++c, ++decimais)
        centavos = centavos * 10 + c->unicode() - u'0';
    if (c != fim || inteiros + decimais == 0)
        return std::nullopt;
    for (; decimais < 2; ++decimais)
        centavos *= 10;
    return menos ? -centavos : centavos;
}

QString TextoDosCentavos(qint64 centavos)
{
    std::array<QChar, 24> texto;
    QChar *c = texto.end();
    qint64 resto = std::abs(centavos);
    for (int casa = 0; resto > 0 || casa < 3; ++casa, resto /= 10) {
        if (casa == 2)
            *--c = QLatin1Char(',');
        else if (casa > 2 && (casa - 2) % 3 == 0)
            *--c = QLatin1Char('.');
        *--c = QChar(static_cast<char16_t>(u'0' + resto % 10));
    }
    if (centavos < 0)
        *--c = QLatin1Char('-');
    return QString(c, texto.end() - c);
}

} // namespace

bool EQuantia(QStringView texto)
{
    return CentavosDe(texto) || plataforma::IsNumeric(texto.toString());
}

double LeQuantia(QStringView texto)
{
    if (const auto centavos = CentavosDe(texto))
        return static_cast<double>(*centavos) / 100.0;
    return plataforma::CDbl(texto.toString());
}

QString EscreveQuantia(double valor)
{
    // Farther than a quarter from a whole cent, the rounding is Format's own matter.
    if (std::abs(valor) < kAbaixoDe) {
        const double centavos = std::nearbyint(valor * 100.0);
        if (std::abs(valor * 100.0 - centavos) < 0.25)
            return TextoDosCentavos(static_cast<qint64>(centavos));
    }
    return plataforma::Format(valor, QStringLiteral("#,###,###,##0.00"));
}

} // namespace reports
