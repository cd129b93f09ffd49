// Files by name: Dir, the names that match a pattern, and Kill, which deletes one.
#pragma once

#include <QString>
#include <QStringList>

namespace plataforma {

/// A walk over the files of one folder, as they stood when it began. The pattern is a path whose last part
/// may hold "*" and "?"; "*.*" takes names without a point too; both "\" and "/" part folders. Names match
/// without regard to case and come as they stand on disk, without the folder, in name order. Folders are
/// passed over. A missing folder has no files.
class Dir {
public:
    explicit Dir(const QString &padrao);
    /// The next name, empty when there is none left.
    QString Next();

private:
    QStringList m_nomes;
    qsizetype m_proximo = 0;
};

/// The first file name that matches, empty when there is none.
QString FirstFile(const QString &padrao);

/// Deletes a file; a bare name is sought in the current directory.
/// @throws RuntimeError 53 there is no such file; 75 it cannot be deleted
void Kill(const QString &nome);

} // namespace plataforma
