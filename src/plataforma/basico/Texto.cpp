// Text rules counted from 1, and the Windows-1252 code page.
#include "plataforma/basico/Texto.h"

#include "plataforma/basico/RuntimeError.h"

#include <algorithm>
#include <array>

namespace plataforma {

namespace {

/// Characters of the bytes 80 to 9F. The bytes that the code page leaves open keep their own number.
constexpr std::array<char16_t, 32> Pagina80a9F = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char ByteDe(char16_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
        return static_cast<char>(c);
    }
    const auto achado = std::find(Pagina80a9F.begin(), Pagina80a9F.end(), c);
    return achado == Pagina80a9F.end() ? '?' : static_cast<char>(0x80 + (achado - Pagina80a9F.begin()));
}

char16_t CaractereDe(unsigned char byte)
{
    return byte >= 0x80 && byte <= 0x9F ? Pagina80a9F[byte - 0x80U] : byte;
}

char16_t Maiuscula(char16_t c)
{
    const bool latina = c >= 0xE0 && c <= 0xFE && c != 0xF7; // F7 is the division sign
    if ((c >= 'a' && c <= 'z') || latina) {
        return static_cast<char16_t>(c - 0x20);
    }
    switch (c) {
    case 0x00FF: // ÿ
        return 0x0178;
    case 0x0161: // š
    case 0x0153: // œ
    case 0x017E: // ž
        return static_cast<char16_t>(c - 1);
    default:
        return c;
    }
}

void ExigeContagem(bool aceita, const QString &rotina, qsizetype numero)
{
    if (!aceita) {
        throw RuntimeError(ErrInvalidCall,
                           QStringLiteral("Argumento inválido em %1: %2.").arg(rotina).arg(numero));
    }
}

constexpr QLatin1Char Branco(' ');

} // namespace

QString Left(const QString &texto, qsizetype n)
{
    ExigeContagem(n >= 0, QStringLiteral("Left"), n);
    return texto.left(n);
}

QString Right(const QString &texto, qsizetype n)
{
    ExigeContagem(n >= 0, QStringLiteral("Right"), n);
    return texto.right(n);
}

QString Mid(const QString &texto, qsizetype p, qsizetype n)
{
    ExigeContagem(p >= 1, QStringLiteral("Mid"), p);
    ExigeContagem(n >= 0, QStringLiteral("Mid"), n);
    return texto.mid(p - 1, n);
}

QString Mid(const QString &texto, qsizetype p)
{
    ExigeContagem(p >= 1, QStringLiteral("Mid"), p);
    return texto.mid(p - 1);
}

QString Trim(const QString &texto)
{
    return RTrim(LTrim(texto));
}

QString LTrim(const QString &texto)
{
    qsizetype inicio = 0;
    while (inicio < texto.size() && texto[inicio] == Branco) {
        ++inicio;
    }
    return texto.mid(inicio);
}

QString RTrim(const QString &texto)
{
    qsizetype fim = texto.size();
    while (fim > 0 && texto[fim - 1] == Branco) {
        --fim;
    }
    return texto.left(fim);
}

QString OnlyDigits(const QString &texto)
{
    QString digitos;
    std::copy_if(texto.begin(), texto.end(), std::back_inserter(digitos),
                 [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
    return digitos;
}

QString Space(qsizetype n)
{
    ExigeContagem(n >= 0, QStringLiteral("Space"), n);
    return QString(n, Branco);
}

QString UCase(const QString &texto)
{
    QString maiusculas = texto;
    for (QChar &c : maiusculas) {
        c = QChar(Maiuscula(c.unicode()));
    }
    return maiusculas;
}

QByteArray ToAnsi(const QString &texto)
{
    // Nearly every text has only characters that are their own bytes; looked at without a jump in the loop,
    // many in one step.
    unsigned todos = 0;
    unsigned noMeio = 0;
    for (const QChar c : texto) {
        todos |= c.unicode();
        noMeio |= static_cast<unsigned>((c.unicode() & 0xFFE0U) == 0x80U);
    }
    if (todos <= 0xFF && noMeio == 0)
        return texto.toLatin1();
    QByteArray bytes;
    bytes.reserve(texto.size());
    for (const QChar c : texto) {
        bytes.append(ByteDe(c.unicode()));
    }
    return bytes;
}

QString FromAnsi(const QByteArray &bytes)
{
    QString texto;
    texto.reserve(bytes.size());
    for (const char byte : bytes) {
        texto.append(QChar(CaractereDe(static_cast<unsigned char>(byte))));
    }
    return texto;
}

} // namespace plataforma
