// Ajusta: places the fields of a bank's layout on the picture of a cheque.
#pragma once

#include "plataforma/tela/Arranjo.h"
#include "plataforma/tela/Tela.h"
#include "registers/RegrasDoAjuste.h"

class QGridLayout;
class QLabel;
class QLayout;
class QPushButton;

namespace nucleo {
class Sistema;
}

namespace registers {

class CaixasDoBanco;
class CampoNoCheque;
class FolhaDoCheque;

class Ajusta final : public plataforma::Tela {
    Q_OBJECT
public:
    /// Reads the adjustment buffer. `caixas` must outlive it; OK writes to them.
    Ajusta(nucleo::Sistema &sistema, CaixasDoBanco &caixas, QWidget *pai);

    [[nodiscard]] QSize sizeHint() const override;

private:
    void MontaControles();
    QWidget *MontaCabecalho();
    QLayout *MontaLeitura();
    void MontaCelula(QGridLayout *grade, int indice, int linha, int coluna, const QString &nome);
    QLayout *MontaRodape();
    void MontaCampos();
    void PoeOrdemDoTab();
    void Seleciona(int campo, bool selecionado);
    void Tecla(int campo, int tecla);
    void Arrasta(int campo, QPoint pixels);
    void MostraCampos();
    void MostraLeitura();
    [[nodiscard]] LeituraDoAjuste NaTela() const;
    void Confirma();

    nucleo::Sistema &m_sistema;
    CaixasDoBanco &m_caixas;
    LugaresDoAjuste m_lugares;
    Lugar m_ondePegou; ///< place of the dragged field when the mouse took hold of it
    FolhaDoCheque *m_folha = nullptr;
    plataforma::Arranjo<CampoNoCheque> m_text1{QStringLiteral("Text1")};
    plataforma::Arranjo<QLabel> m_label2{QStringLiteral("Label2")};
    plataforma::Arranjo<QPushButton> m_command3D1{QStringLiteral("Command3D1")};
};

} // namespace registers
