// The files that an export leaves: made in a work folder, and given their names together at the end.
#pragma once

#include <optional>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <string>

namespace banco {

/// One file being written.
class SaidaCsv {
public:
    /// Begins the file anew. @throws RuntimeError 3051 when it cannot be made
    SaidaCsv(const QString &pasta, const QString &nome);
    ~SaidaCsv();
    SaidaCsv(const SaidaCsv &) = delete;
    SaidaCsv &operator=(const SaidaCsv &) = delete;

    /// What is to be written next; add to it, and write it from time to time.
    [[nodiscard]] std::string &Texto() { return m_texto; }
    /// @throws RuntimeError 3051 disk full or failing
    void Descarrega();
    /// Brings it to the disk and closes it. @throws RuntimeError 3051
    void Termina();

private:
    void Exige(bool bem) const;

    QString m_nome;
    std::string m_texto;
    int m_fd = -1;
};

/// The folder that takes the files, made when it is missing, and a work folder in it. Unless the files were
/// published, both are gone in the end as if they had never been.
class PastaDeSaida {
public:
    /// @throws RuntimeError 3051 when one of the files is there already or the folder cannot be written
    PastaDeSaida(const QString &pasta, const QStringList &nomes);
    ~PastaDeSaida();
    PastaDeSaida(const PastaDeSaida &) = delete;
    PastaDeSaida &operator=(const PastaDeSaida &) = delete;

    [[nodiscard]] QString Oficina() const { return m_oficina->path(); }
    /// All of them or none. @throws RuntimeError 3051 when one of the names is taken by now
    void Publica();

private:
    void CriaPastas();
    void DesfazPastas();

    QString m_pasta;
    QStringList m_nomes;
    QStringList m_criadas; ///< the outermost first
    std::optional<QTemporaryDir> m_oficina;
};

} // namespace banco
