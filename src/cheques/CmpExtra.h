// CmpExtra: programs where the three extra fields of the front are printed.
#pragma once

#include "cheques/PosicoesExtras.h"
#include "plataforma/tela/Arranjo.h"
#include "plataforma/tela/Tela.h"

#include <array>

class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace nucleo {
class Sistema;
}

namespace cheques {

class CmpExtra final : public plataforma::Tela {
    Q_OBJECT
public:
    CmpExtra(nucleo::Sistema &sistema, QWidget *pai);

private:
    void MontaControles();
    QWidget *MontaNumero();
    QWidget *MontaPosicao();
    QLayout *MontaComandos();
    void MostraCampo(int n);
    void MudaPosicao(int lado);
    void Salva();
    /// Index of the option that is on; with none on, switches the first one on and answers 0.
    int CampoSelecionado();

    nucleo::Sistema &m_sistema;
    std::array<PosicaoExtra, kCamposExtras> m_posicoes;
    plataforma::Arranjo<QRadioButton> m_cmdNumCampo{QStringLiteral("CmdNumCampo")};
    plataforma::Arranjo<QLineEdit> m_posText{QStringLiteral("PosText")};
    plataforma::Arranjo<QPushButton> m_btnCmd{QStringLiteral("BtnCmd")};
};

} // namespace cheques
