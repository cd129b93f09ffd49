// Saida: asks where a register's listing goes, and in which order.
#pragma once

#include "plataforma/tela/Arranjo.h"
#include "plataforma/tela/Tela.h"

class QLabel;
class QPushButton;
class QRadioButton;

namespace nucleo {
class Sistema;
}

namespace reports {

/// Stands before every other screen until it is closed.
class Saida final : public plataforma::Tela {
    Q_OBJECT
public:
    /// @param legenda line of the register that `NomeListagem` names, "Total = ..."
    Saida(nucleo::Sistema &sistema, const QString &legenda, QWidget *pai);

private:
    void MontaControles(const QString &legenda);
    void Imprime(); // Command1: the listing that NomeListagem names; the screen stays

    nucleo::Sistema &m_sistema;
    plataforma::Arranjo<QRadioButton> m_option1{QStringLiteral("Option1")};
    plataforma::Arranjo<QRadioButton> m_option2{QStringLiteral("Option2")};
    QLabel *m_label1 = nullptr;
    QPushButton *m_command1 = nullptr;
    QPushButton *m_command2 = nullptr;
};

} // namespace reports
