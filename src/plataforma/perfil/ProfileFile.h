// A settings file of sections and keys, read and written as the Windows profile functions do.
#pragma once

#include <optional>
#include <QList>
#include <QString>
#include <utility>

namespace plataforma {

/// Nothing is cached: each read goes to the file. Text is Windows-1252 with CR LF; a file with LF is read
/// too, and one that begins with the mark of UTF-8 is read and written as such. Names of sections and keys
/// match without regard to case and to blanks around; the first of two equal ones wins. ";" opens a comment
/// at the start of a line only.
class ProfileFile {
public:
    explicit ProfileFile(QString caminho);

    /// The value of a key, at most `tamanho` - 1 characters of it; `padrao`, cut likewise, when file, section
    /// or key is missing. Blanks around key, "=" and value are cut, but a value of nothing but blanks that
    /// was stored on purpose (one blank behind "=") comes back as one blank. One pair of quotes or
    /// apostrophes around a value is stripped.
    [[nodiscard]] QString GetPrivateProfileString(const QString &secao, const QString &chave,
                                                  const QString &padrao, int tamanho) const;
    /// The keys of a section and their values, in the order of the file: each name that
    /// GetPrivateProfileString finds, with the whole value that it gives. Empty when file or section is
    /// missing; none when the file cannot be read.
    [[nodiscard]] std::optional<QList<std::pair<QString, QString>>>
    GetPrivateProfileSection(const QString &secao) const;
    /// Writes one key, creating file, section and key as needed; comments, order, empty lines and unknown
    /// keys stay, and a key keeps its old spelling. The file is replaced atomically. Line breaks inside the
    /// arguments become blanks and a NUL ends them, so that one value cannot forge another key; the value is
    /// stored as it is, but read as told above. @return whether it was written: not when a name is empty or
    /// could not be read back (a key with "=" or beginning with ";" or "[", a section with "]"), nor when the
    /// file cannot be read or replaced; never throws
    bool WritePrivateProfileString(const QString &secao, const QString &chave, const QString &valor) const;

    /// Whether reads go to the file itself: there is none yet, or it is a file that opens. When not, each
    /// read gives the default and each write is refused, so that nothing in its place is lost.
    [[nodiscard]] bool CanBeRead() const;

    [[nodiscard]] const QString &Caminho() const { return m_caminho; }

private:
    QString m_caminho;
};

} // namespace plataforma
