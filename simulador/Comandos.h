// Commands read from the standard input, line by line.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>

namespace simulador {

class Comandos final : public QObject {
    Q_OBJECT
public:
    /// @param fd a descriptor to read; its end only ends the commands
    explicit Comandos(int fd, QObject *pai = nullptr);

Q_SIGNALS:
    void Linha(const QString &linha);

private:
    void Le();
    QSocketNotifier m_aviso;
    QByteArray m_resto;
};

/// Tells SIGTERM and SIGINT inside the event loop. Make one only.
class Sinais final : public QObject {
    Q_OBJECT
public:
    explicit Sinais(QObject *pai = nullptr);
    ~Sinais() override;
    Sinais(const Sinais &) = delete;
    Sinais &operator=(const Sinais &) = delete;

Q_SIGNALS:
    void Chegou();
};

} // namespace simulador
