// Text rules, counted from 1.
#pragma once

#include <memory>
#include <optional>
#include <QByteArray>
#include <QString>
#include <string_view>

namespace plataforma {

/// First `n` characters; all of them when there are fewer. @throws RuntimeError 5 when n is negative
QString Left(const QString &texto, qsizetype n);
/// Last `n` characters; all of them when there are fewer. @throws RuntimeError 5 when n is negative
QString Right(const QString &texto, qsizetype n);
/// `n` characters from position `p` (from 1); empty behind the end.
/// @throws RuntimeError 5 when p < 1 or n < 0
QString Mid(const QString &texto, qsizetype p, qsizetype n);
/// All characters from position `p` (from 1) on. @throws RuntimeError 5 when p < 1
QString Mid(const QString &texto, qsizetype p);
inline qsizetype Len(const QString &texto)
{
    return texto.size();
}
/// Blanks (U+0020 only) cut on both sides, on the left, on the right.
QString Trim(const QString &texto);
QString LTrim(const QString &texto);
QString RTrim(const QString &texto);
/// The characters "0" to "9" of a text; all others vanish.
QString OnlyDigits(const QString &texto);
/// `n` blanks. @throws RuntimeError 5 when n is negative
QString Space(qsizetype n);
/// Small letters of Windows-1252 made capital where the capital is in the code page too; the rest stays.
QString UCase(const QString &texto);
/// Whether the whole text fits the pattern, without regard to case: "*" any characters, "?" one character,
/// "#" one digit, "[a-c]" one of the list, "[!a-c]" one not of the list. A "[" that is never closed stands
/// for itself, the empty list "[]" for nothing.
bool Like(const QString &texto, const QString &padrao);

/// A pattern of Like that is read once and tried on many texts.
class PadraoLike {
public:
    explicit PadraoLike(const QString &padrao);
    ~PadraoLike();
    PadraoLike(const PadraoLike &) = delete;
    PadraoLike &operator=(const PadraoLike &) = delete;

    [[nodiscard]] bool Aceita(const QString &texto) const;
    /// The same for bytes of a text in any code page that has ASCII in its lower half, without reading more
    /// of them than it takes; none where a byte of the upper half must be known.
    [[nodiscard]] std::optional<bool> AceitaBytes(std::string_view bytes) const;

private:
    struct Pecas;
    std::unique_ptr<const Pecas> m_pecas;
};

/// Windows-1252 bytes of a text, one a character. The five bytes that the code page leaves open
/// (81 8D 8F 90 9D) stand for the control characters of the same number. Any other character becomes '?'.
QByteArray ToAnsi(const QString &texto);
/// The text of Windows-1252 bytes; the reverse of ToAnsi for each of the 256 bytes.
QString FromAnsi(const QByteArray &bytes);

} // namespace plataforma
