// ExcluiRel: asks which cheques are to be cancelled, in the store and in what the device still holds.
#pragma once

#include "plataforma/tela/Arranjo.h"
#include "plataforma/tela/Tela.h"

class QCheckBox;
class QPushButton;
class QRadioButton;
class QWidget;

namespace nucleo {
class Sistema;
}

namespace reports {

class Relato;

class ExcluiRel final : public plataforma::Tela {
    Q_OBJECT
public:
    ExcluiRel(nucleo::Sistema &sistema, Relato &relato);

private:
    void MontaControles();
    void Confirma();
    [[nodiscard]] bool NoBanco() const;
    [[nodiscard]] bool NaImpressora() const;
    void CancelaNaImpressora(const QString &alvo);

    nucleo::Sistema &m_sistema;
    Relato &m_relato;
    plataforma::Arranjo<QRadioButton> m_radioBox01{QStringLiteral("RadioBox01")};
    plataforma::Arranjo<QCheckBox> m_checkBox01{QStringLiteral("CheckBox01")};
    plataforma::Arranjo<QPushButton> m_btnCmd{QStringLiteral("BtnCmd")};
};

} // namespace reports
