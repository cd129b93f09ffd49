// What the registers of banks, cities and payees share: boxes, list, search, the four buttons and their
// click.
#pragma once

#include "plataforma/tela/Arranjo.h"
#include "plataforma/tela/Tela.h"

#include <functional>
#include <QString>
#include <vector>

class QLayout;
class QLineEdit;
class QPushButton;

namespace nucleo {
class Sistema;
}
namespace plataforma {
class Lista;
}

namespace registers {

/// Opens the screen `Saida` for the register in `NomeListagem`.
/// @param sobre the register, which stays under it
/// @param legenda its line "Total = ..."
using AbreSaida = std::function<void(QWidget *sobre, const QString &legenda)>;

/// Buttons `Command3D1`.
enum Comando : int { kIncluir = 0, kAlterar = 1, kExcluir = 2, kFechar = 3 };

/// A register opens its table in the store; where there is none it says so, sets `FechaTela`, and whoever
/// opened it takes it away.
class Cadastro : public plataforma::Tela {
    Q_OBJECT
public:
    ~Cadastro() override;

protected:
    struct Caixa {
        QString rotulo;
        QString campo;  ///< its field in the store
        int limite;     ///< characters
        QString padrao; ///< of a number box, such as "000"; empty for a text
    };
    /// What tells one register from another.
    struct Forma {
        QString nome, titulo;
        int tabela; ///< selector of its table
        std::vector<Caixa> caixas;
        QString rotuloDaBusca;
        QString controleDaImpressao, textoDaImpressao;
        QString nomeDaListagem;
        QString depoisDoTotal; ///< words behind the count in the caption of `Saida`
        QString selecione;     ///< said where a row should be current
        /// Whether an entry that is done with empties the boxes; the others keep their boxes and let the
        /// list's row go.
        bool esvaziaCaixas;
    };

    Cadastro(nucleo::Sistema &sistema, Forma forma, AbreSaida abreSaida, QWidget *pai);

    /// To be called at the end of the screen's own constructor: opens the store and fills the list.
    void Carrega();

    [[nodiscard]] nucleo::Sistema &Dados() { return m_sistema; }
    [[nodiscard]] QLineEdit *Text1(int indice) const { return m_text1(indice); }
    [[nodiscard]] QString Texto(int indice) const;
    [[nodiscard]] bool TodasCheias() const;
    [[nodiscard]] plataforma::Lista *List1() const { return m_list1; }
    [[nodiscard]] QLineEdit *Text2() const { return m_text2; }

    /// The search box under its label, and the list.
    QLayout *MontaLista();
    /// The button of the listing, and the four commands.
    QLayout *MontaComandos();
    /// Tab passes the boxes in this order, then search, list and commands; `antes` stands before the search.
    void OrdenaTab(const std::vector<int> &caixas, QWidget *antes = nullptr);

    void HabilitaBotoes(bool incluir, bool alterar, bool excluir, bool fechar);
    virtual void LimpaCampos();
    /// The device's part of a click, before anything else. @return false to end the click
    virtual bool EnviaAoDispositivo(int comando);
    /// Copies the chosen row of the list to the boxes. @return false when the store has it no more
    virtual bool MostraLinha(const QString &linha) = 0;
    /// What follows the writing of the store's row.
    virtual void Gravado() {}
    void closeEvent(QCloseEvent *evento) override;

    /// A box of this screen, title "Erro".
    void Avisa(const QString &texto);

private:
    void MontaCaixas();
    [[nodiscard]] int AbreTabela();
    void DizQueFalta();
    void DeixaCaixa(int indice);
    void EnterNaCaixa(int indice);
    void MostraTodas();
    void Procura();
    void Escolhe();
    void SoltaEscolha();
    void Clica(int comando);
    [[nodiscard]] bool Valida(int comando);
    [[nodiscard]] bool Executa(int comando);
    [[nodiscard]] bool Inclui();
    void AlteraOuExclui(int comando);
    void PoeNaLinha();
    void ImprimeLista();

    nucleo::Sistema &m_sistema;
    const Forma m_forma;
    const AbreSaida m_abreSaida;
    plataforma::Arranjo<QLineEdit> m_text1{QStringLiteral("Text1")};
    plataforma::Arranjo<QPushButton> m_command3D1{QStringLiteral("Command3D1")};
    QLineEdit *m_text2 = nullptr;
    QPushButton *m_imprime = nullptr;
    plataforma::Lista *m_list1 = nullptr;
};

} // namespace registers
