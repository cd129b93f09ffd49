// Message boxes on the screen, and the wait state while a call blocks it.
#pragma once

#include "plataforma/basico/Mensagens.h"
#include "plataforma/basico/Ocupado.h"

#include <QObject>

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
    void Comeca() override;
    void Termina() override;
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    int m_nivel = 0;
};

} // namespace plataforma
