// Pesquisa: the popup in which the operator looks a bank, a payee or a city up.
#pragma once

#include "plataforma/tela/Arranjo.h"
#include "plataforma/tela/Tela.h"

#include <functional>

class QLineEdit;
class QPushButton;

namespace nucleo {
class Sistema;
}
namespace plataforma {
class Lista;
}

namespace registers {

/// Looks in the table that `TipoPesquisa` names when it opens, and leaves the choice in `TextoPesquisa`: the
/// code of a bank, the name of a payee or a city, nothing when none was chosen. Where there is no store it
/// says so and sets `FechaTela`.
class Pesquisa final : public plataforma::Tela {
    Q_OBJECT
public:
    /// @param cadastra opens the register of a type (0 payees, 1 cities, 2 banks)
    Pesquisa(nucleo::Sistema &sistema, std::function<void(int tipo)> cadastra, QWidget *pai);

    [[nodiscard]] int Tipo() const { return m_tipo; }

Q_SIGNALS:
    /// `TextoPesquisa` has its final value.
    void Fechou();

protected:
    void closeEvent(QCloseEvent *evento) override;

private:
    void MontaControles();
    void Carrega();
    void ChegaNaBusca();
    void Procura();
    void DesceParaALista();
    void Escolhe();
    void Cadastra();
    [[nodiscard]] int Flag(int tabela) const;
    [[nodiscard]] QString Escolhido(const QString &linha);

    nucleo::Sistema &m_sistema;
    const std::function<void(int)> m_cadastra;
    const int m_tipo;
    QLineEdit *m_text1 = nullptr;
    plataforma::Lista *m_list1 = nullptr;
    plataforma::Arranjo<QPushButton> m_command3D1{QStringLiteral("Command3D1")};
};

} // namespace registers
