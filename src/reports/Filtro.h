// Filtro: asks which cheques the list of Relato is to show.
#pragma once

#include "plataforma/tela/Arranjo.h"
#include "plataforma/tela/Tela.h"

class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;

namespace nucleo {
class Sistema;
}

namespace reports {

class Relato;
struct AvisoDoFiltro;
struct CamposDoFiltro;

/// Stays open when the engine refuses the query.
class Filtro final : public plataforma::Tela {
    Q_OBJECT
public:
    Filtro(nucleo::Sistema &sistema, Relato &relato);

private:
    void MontaControles();
    QLayout *MontaCampos();
    QLayout *MontaComandos();
    void LigaCampo(int indice);
    void MudaCampo(int indice);
    bool DeixaCampo(int indice);
    bool DeixaBanco();
    bool DeixaDataOuValor(int indice);
    void EnterNoCampo(int indice);
    void Aceita();
    void Avisa(const AvisoDoFiltro &aviso);
    [[nodiscard]] CamposDoFiltro Campos() const;

    nucleo::Sistema &m_sistema;
    Relato &m_relato;
    plataforma::Arranjo<QLineEdit> m_text1{QStringLiteral("Text1")};
    plataforma::Arranjo<QPushButton> m_command3D1{QStringLiteral("Command3D1")};
    QLabel *m_label2 = nullptr;
};

} // namespace reports
