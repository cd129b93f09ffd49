// The running copy's end of the hand-over: a local socket that other starts of the same user may talk to.
#pragma once

#include "plataforma/ambiente/Mensagem.h"
#include <functional>
#include <list>
#include <memory>
#include <QByteArray>
#include <QObject>

class QSocketNotifier;
class QTimer;

namespace plataforma {

inline constexpr char kRespostaRecebida = 'R'; ///< the running copy has the fields and begins to set them
inline constexpr char kRespostaFeita = 'F';    ///< they are set
inline constexpr int kPrazoConexaoMs = 2000;   ///< for a whole message; then the peer is dropped
inline constexpr int kMaxConexoes = 16;        ///< open at once; more wait in the system's queue

class PortaDeEntrega final : public QObject {
public:
    /// Opens the socket at `caminho`, in the place of a dead one. The caller holds the lock of the folder.
    /// Null when the system refuses.
    static std::unique_ptr<PortaDeEntrega> Abre(const QString &caminho);
    ~PortaDeEntrega() override;

    /// Begins to accept, in the event loop. Each whole message goes to `recebe`, one at a time.
    void Atende(std::function<void(const Campos &)> recebe);
    /// Ends: the socket goes and no callback comes any more. An object whose callback is running has to be
    /// given to deleteLater() instead of being deleted.
    void Fecha();
    [[nodiscard]] bool Aplicando() const { return m_aplicando; }

private:
    struct Conexao;
    PortaDeEntrega(int escuta, QString caminho);
    void Aceita();
    void Acolhe(int fd);
    void Recebe(const std::shared_ptr<Conexao> &conexao);
    void Larga(const std::shared_ptr<Conexao> &conexao);
    void AplicaProxima();

    int m_escuta;
    QString m_caminho;
    QSocketNotifier *m_avisoDeEscuta = nullptr;
    QTimer *m_novaTentativa = nullptr;
    std::function<void(const Campos &)> m_recebe;
    std::list<std::shared_ptr<Conexao>> m_conexoes;
    bool m_aplicando = false;
};

} // namespace plataforma
