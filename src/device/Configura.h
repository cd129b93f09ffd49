// Configura: what is set on the device itself: the currency's names, payees, the port, and the self-test.
#pragma once

#include "device/RegrasDaConfiguracao.h"
#include "plataforma/tela/Arranjo.h"
#include "plataforma/tela/Tela.h"

class QGridLayout;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace device {

class Configura final : public plataforma::Tela {
    Q_OBJECT
public:
    /// Reads the settings, the port into `PortaSerial` as well; what is missing there is written.
    Configura(nucleo::Sistema &sistema, QWidget *pai);

private:
    void MontaControles();
    QWidget *MontaMoeda();
    QWidget *MontaInclusao();
    QWidget *MontaExclusao();
    QWidget *MontaPorta();
    QLayout *MontaComandos();
    QGridLayout *MontaQuadro(const QString &titulo);
    void PoeCampo(QGridLayout *grade, int linha, const QString &rotulo, QLineEdit *campo, int caracteres);
    QPushButton *PoeBotao(const QString &nome, const QString &texto, void (Configura::*acao)());
    void RegistraCampo(QLineEdit *campo, plataforma::Regras regras = {});
    void RegistraOpcao(QRadioButton *opcao);

    void MostraConfiguracao();
    void LigaTodos();
    void AtualizaMoeda();
    void IncluiFavorecido();
    void ExcluiFavorecido();
    void AtualizaPorta();
    void AutoTeste();
    void EnviaConfiguracao(Envio envio);
    void Recusado(const Recusa &recusa, QWidget *campo);
    [[nodiscard]] TextosDaConfiguracao NaTela() const;

    nucleo::Sistema &m_sistema;
    plataforma::Arranjo<QLineEdit> m_text1{QStringLiteral("Text1")};
    plataforma::Arranjo<QLineEdit> m_text2{QStringLiteral("Text2")};
    plataforma::Arranjo<QRadioButton> m_option3D3{QStringLiteral("Option3D3")};
    QLineEdit *m_text3 = nullptr;
    QRadioButton *m_option3D2 = nullptr;
};

} // namespace device
