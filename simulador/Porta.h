// The device's end of the serial line: the master of a pseudo-terminal, with a fixed name for its other end.
#pragma once

#include <memory>
#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QSocketNotifier>
#include <QString>
#include <QTimer>

namespace simulador {

inline constexpr int kBytesPorSegundo = 960; ///< 9600 baud, ten bits a byte

class Porta final : public QObject {
    Q_OBJECT
public:
    explicit Porta(QObject *pai = nullptr);
    ~Porta() override;
    Porta(const Porta &) = delete;
    Porta &operator=(const Porta &) = delete;

    /// Opens a new pseudo-terminal and leads the link to it. One open before is closed behind it, so that its
    /// name is not used again at once. @returns the failure in Portuguese, or nothing
    QString Abre();
    /// Hangs up, and takes the link away.
    void Fecha();
    /// The path of a symbolic link to the port, for Abre. An old link there is replaced; anything else is
    /// not.
    void PoeElo(const QString &elo) { m_elo = elo; }
    /// Keeps to the speed of the real line, both ways.
    void PoeVelocidadeReal(bool real) { m_velocidadeReal = real; }
    [[nodiscard]] const QString &Nome() const { return m_nome; } ///< "/dev/pts/N"

    /// Sends behind what is still to be sent.
    void Envia(const QByteArray &bytes);
    /// Waits until the host has read all, at most `ms` milliseconds.
    void Esvazia(int ms);

Q_SIGNALS:
    void Chegaram(const QByteArray &bytes);

private:
    void Le();
    void Escreve();
    void ReparaExclusividade();
    void ContaTempo();
    [[nodiscard]] std::size_t Cota(double credito) const;
    QString LigaElo();
    void TiraElo();
    void Larga(int &mestre, int &escravo);

    int m_mestre = -1;
    int m_escravo = -1; // kept open, so that the host's closing is no hang-up here
    QString m_nome;
    QString m_elo;
    QByteArray m_saida;
    bool m_velocidadeReal = false;
    QTimer m_passo;            // of the real speed, and of a full line
    QElapsedTimer m_relogio;   ///< since the last look at the line, at real speed
    double m_creditoDeLer = 0; ///< bytes that may be read by now
    double m_creditoDeEscrever = 0;
    QTimer m_exclusividade;
    std::unique_ptr<QSocketNotifier> m_aviso;
};

} // namespace simulador
