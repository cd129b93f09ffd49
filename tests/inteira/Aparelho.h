// The simulated device as a process of its own, steered by its commands and watched by its lines.
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

namespace inteira {

/// The program at the other end of the line. It never outlives the test.
class Aparelho {
public:
    /// @param pasta the office folder; the device's files go into it
    explicit Aparelho(const QString &pasta);
    ~Aparelho();
    Aparelho(const Aparelho &) = delete;
    Aparelho &operator=(const Aparelho &) = delete;

    /// Starts the device with the layouts of the office's settings file and waits until its port is there.
    void Liga(const QStringList &opcoes);
    /// Waits for a line that begins so, dropping those before it; the test ends when none comes in time.
    QString EsperaLinha(const QString &inicio);
    /// Puts a fault in force: "silencio:1" for the next document only.
    void PoeFalha(const QString &falha);

    /// The link to the device's port.
    [[nodiscard]] QString Elo() const { return m_pasta + QStringLiteral("/porta-qx70"); }
    /// The documents that came out so far as text files, in their order.
    [[nodiscard]] QStringList Documentos() const;
    [[nodiscard]] QString PastaDosDocumentos() const { return m_pasta + QStringLiteral("/documentos"); }
    /// Every byte that arrived so far.
    [[nodiscard]] QByteArray Bytes() const;

private:
    QString m_pasta;
    QProcess m_processo;
};

/// Makes the process end with the test, however the test ends.
void MorreComOTeste(QProcess &processo);

} // namespace inteira
