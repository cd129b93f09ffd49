// A file opened "as binary": its bytes are replaced from the first on.
#pragma once

#include <QByteArray>
#include <QString>

namespace plataforma {

/// What is put is written by Close, all of it or nothing: where the disk has no room for the whole text, an
/// old file stays as it was and a new one goes again. An old file that is longer keeps its tail. A file that
/// is not closed, because something failed on the way, is left the same way.
class BinaryFile {
public:
    /// Opens the file, or makes it.
    /// @throws RuntimeError 53 no such folder; 75 it cannot be written (rights), or is no file
    explicit BinaryFile(const QString &caminho);
    ~BinaryFile();
    BinaryFile(const BinaryFile &) = delete;
    BinaryFile &operator=(const BinaryFile &) = delete;

    /// The text goes behind what was put before, in Windows-1252. A new file takes much text piece by piece.
    /// @throws RuntimeError 61, 75 as Close
    void Put(const QString &texto);
    /// On disk when it returns. @throws RuntimeError 61 the disk is full; 75 it cannot be written
    void Close();

private:
    void Despeja();
    void Termina();
    void Desfaz() noexcept;

    QString m_caminho;
    QByteArray m_bytes;    ///< put and not written yet
    qint64 m_escritos = 0; ///< bytes that stand in the file already
    int m_fd = -1;
    bool m_novo = false;
    qint64 m_tamanhoAntigo = 0;
};

} // namespace plataforma
