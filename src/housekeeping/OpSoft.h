// OpSoft: the software's options: the two periods of the purge, cheques a page, two switches.
#pragma once

#include "plataforma/tela/Arranjo.h"
#include "plataforma/tela/Tela.h"

class QCheckBox;
class QGridLayout;
class QLayout;
class QLineEdit;
class QPushButton;
class QScrollBar;

namespace nucleo {
class Sistema;
}

namespace housekeeping {

struct OpcoesNaTela;

class OpSoft final : public plataforma::Tela {
    Q_OBJECT
public:
    OpSoft(nucleo::Sistema &sistema, QWidget *pai);

private:
    void MontaControles();
    QWidget *MontaPrazos();
    void MontaPrazo(QGridLayout *grade, int i);
    QLayout *MontaComandos();
    void LigaPrazo(int i);
    void MostraOpcoes();
    void DeixaPrazo(int i);
    void BarraMudou(int i, int valor);
    void Confirma();
    [[nodiscard]] OpcoesNaTela NaTela() const;

    nucleo::Sistema &m_sistema;
    plataforma::Arranjo<QLineEdit> m_text01{QStringLiteral("Text01")};
    plataforma::Arranjo<QScrollBar> m_vScroll01{QStringLiteral("VScroll01")};
    plataforma::Arranjo<QPushButton> m_btnCmd{QStringLiteral("BtnCmd")};
    QCheckBox *m_checkImpInv = nullptr;
    QCheckBox *m_checkUsarNum = nullptr;
};

} // namespace housekeeping
