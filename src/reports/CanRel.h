// CanRel: cancels the cheques that the device holds for its own report, and nothing in the store.
#pragma once

#include "plataforma/tela/Arranjo.h"
#include "plataforma/tela/Tela.h"

class QPushButton;

namespace nucleo {
class Sistema;
}

namespace reports {

class CanRel final : public plataforma::Tela {
    Q_OBJECT
public:
    CanRel(nucleo::Sistema &sistema, QWidget *pai);

private:
    void MontaControles();
    void Cancela(int botao);

    nucleo::Sistema &m_sistema;
    plataforma::Arranjo<QPushButton> m_command3D1{QStringLiteral("Command3D1")};
};

} // namespace reports
