// The simulator at work: line, device, slot, files and time put together. The window and the commands only
// steer it.
#pragma once

#include <deque>
#include <QElapsedTimer>
#include <QFile>
#include <QObject>
#include <QTimer>

#include "Arquivos.h"
#include "Dispositivo.h"
#include "Opcoes.h"
#include "Porta.h"
#include "qx7032/Decodificador.h"

namespace simulador {

class Simulador final : public QObject {
    Q_OBJECT
public:
    enum class Fenda { Automatica, Vazia, Esperando, Cheia };

    explicit Simulador(const Opcoes &opcoes, QObject *pai = nullptr);

    /// Reads memory and layouts and opens the port. @returns the failure in Portuguese, or nothing
    QString Inicia();
    /// Held sheets come out, the memory is saved and the port closed; Terminou follows. A second call does
    /// nothing.
    void Encerra();

    void InsereDocumento();
    /// With `automatica` the slot always has a document.
    void PoeFendaAutomatica(bool automatica);
    void PoeFalha(const Falha &falha);
    /// One line of the commands. @returns what is wrong with it in Portuguese, or nothing
    QString Obedece(const QString &linha);

    [[nodiscard]] Fenda EstadoDaFenda() const;
    [[nodiscard]] const Dispositivo &Aparelho() const { return m_dispositivo; }
    [[nodiscard]] const Opcoes &OpcoesDaPartida() const { return m_opcoes; }
    [[nodiscard]] QString NomeDaPorta() const { return m_porta.Nome(); }

Q_SIGNALS:
    void Linha(const QString &linha); ///< for a program to read: "pronto /dev/pts/3"
    void Aviso(const QString &aviso); ///< for a person to read
    void SaiuDocumento(const simulador::Documento &documento, const QString &base);
    void MudouEstado(); ///< slot, fault, memory or port
    void Terminou();

private:
    QString CarregaFormatos();
    QString AbreRegistroDeBytes();
    void RecebeBytes(const QByteArray &bytes);
    void Enfileira(const std::vector<qx7032::Evento> &eventos);
    void Processa();
    void EsperaDocumento();
    void TrataPrimeiro(bool acusado);
    void Conta(const Reacao &reacao);
    void Conclui(const Reacao &reacao);
    void ReabrePorta();
    void Solta(const std::vector<Documento> &documentos);
    void SalvaMemoria();
    [[nodiscard]] bool HaDocumento() const;

    Opcoes m_opcoes;
    Arquivos m_arquivos;
    Dispositivo m_dispositivo;
    Porta m_porta;
    qx7032::Decodificador m_decodificador;
    QElapsedTimer m_relogio;
    QTimer m_prazo; // of the decoder
    QTimer m_esperaDaFenda;
    std::deque<qx7032::Evento> m_fila;
    bool m_ocupado = false;   // an event is being carried out; the others wait
    bool m_esperando = false; // for a document in the slot
    bool m_fendaAutomatica = true;
    bool m_naFenda = false;
    bool m_encerrado = false;
    int m_saidos = 0;
    QFile m_bytes;
};

} // namespace simulador
