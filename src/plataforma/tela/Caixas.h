// Message boxes on the screen, and the wait state while a call blocks it.
#pragma once

#include "plataforma/basico/Mensagens.h"
#include "plataforma/basico/Ocupado.h"

#include <memory>
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QWidget>

class QProgressDialog;

namespace plataforma {

/// Real message boxes over the active window, in plain text; the first button is the default one.
class Caixas final : public Mensagens {
public:
    Resposta MsgBox(const QString &texto, Botoes botoes, Icone icone, const QString &titulo) override;
};

/// Wait cursor and painted button before a blocking call; keys and clicks made during it are thrown away.
class OcupadoDaTela final : public QObject, public Ocupado {
    Q_OBJECT
public:
    OcupadoDaTela();
    ~OcupadoDaTela() override;
    void Comeca() override;
    void Termina() override;
    /// From the second second of the work on, a bar over the active window.
    void Andamento(const QString &oQue, qint64 feitos, qint64 total) override;
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    void MostraBarra(const QString &oQue);

    int m_nivel = 0;
    QPointer<QWidget> m_modalAntes; ///< stood already when the work began
    std::unique_ptr<QProgressDialog> m_barra;
    QElapsedTimer m_desdeOComeco;
    QElapsedTimer m_desdeAPintura;
};

} // namespace plataforma
