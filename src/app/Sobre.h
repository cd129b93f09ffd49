// The About box, which is also the splash while the program starts.
#pragma once

#include "nucleo/Mensagens.h"
#include "plataforma/tela/Tela.h"

class QLabel;
class QPushButton;

namespace app {

class Sobre final : public plataforma::Tela {
    Q_OBJECT
public:
    /// @param abertura as splash: no button, takes no focus, and the caption asks to wait
    Sobre(const QString &tituloDeMain, bool abertura, nucleo::Mensagens &mensagens, QWidget *pai);

    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    void MontaControles(const QString &tituloDeMain, bool abertura);

    nucleo::Mensagens &m_mensagens;
    QLabel *m_label1 = nullptr;
    QPushButton *m_command = nullptr;
};

} // namespace app
