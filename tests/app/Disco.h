// Disks and rights as an office meets them: a disk of a few megabytes, one that is read only, a user who is
// not the administrator. Mounts are seen by this process and its children only and go with it.
#pragma once

#include <cstdint>
#include <QString>
#include <sys/types.h>

namespace teste {

/// Gives this process mounts of its own. @return whether the system allows it; when not, skip the test
bool TemMontagensProprias();

/// A small disk of its own over a folder, while it lives.
class Disco {
public:
    /// The test ends when the disk is refused; ask TemMontagensProprias first.
    Disco(const QString &pasta, int megabytes);
    ~Disco();
    Disco(const Disco &) = delete;
    Disco &operator=(const Disco &) = delete;

    /// Fills the disk to the last byte but some pages of 4096 bytes.
    void Enche(int paginasLivres = 0);
    /// Gives the space back.
    void Libera();

private:
    [[nodiscard]] QString Lastro() const { return m_pasta + QStringLiteral("/lastro"); }
    QString m_pasta;
};

/// The folder or file cannot be written through any path, whoever asks, while it lives.
class SoLeitura {
public:
    explicit SoLeitura(const QString &caminho);
    ~SoLeitura();
    SoLeitura(const SoLeitura &) = delete;
    SoLeitura &operator=(const SoLeitura &) = delete;

private:
    QByteArray m_caminho;
};

/// While it lives the process is an ordinary user, to whom the folder and all in it belong, and something in
/// it has other rights. The administrator would be stopped by no right of a file.
class ComDireitos {
public:
    ComDireitos(const QString &pasta, const QString &alvo, mode_t direitos);
    ~ComDireitos();
    ComDireitos(const ComDireitos &) = delete;
    ComDireitos &operator=(const ComDireitos &) = delete;

private:
    QByteArray m_alvo;
    mode_t m_antes = 0;
    bool m_eraAdministrador;
    std::uint32_t m_poderes = 0;
};

} // namespace teste
