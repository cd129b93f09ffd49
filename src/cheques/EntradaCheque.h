// The entry form of a normal cheque, the body of Main: fields, extra fields, ten lines, functions, printing.
#pragma once

#include "cheques/RegrasDaEntrada.h"
#include "cheques/RegrasDaImpressao.h"
#include "plataforma/tela/Arranjo.h"

#include <functional>
#include <QWidget>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

namespace nucleo {
class Sistema;
}
namespace plataforma {
class Tela;
}

namespace cheques {

/// The screens that the entry opens. One that is not set leaves its button disabled.
struct Aberturas {
    /// For `TipoPesquisa`; when it closes, the focus goes back to the field.
    std::function<void(QWidget *campo)> pesquisa;
    std::function<void()> camposExtras;        ///< CmpExtra
    std::function<void()> relatorio;           ///< Relato
    std::function<void()> prazo;               ///< ChePrz
    std::function<void()> copia;               ///< CmpCopia, after the check of the fields
    std::function<void()> transferencia;       ///< ChequeTransf
    std::function<void(const QString &)> dica; ///< shows a text in the hint strip
};

inline const QString kDicaDosCampos =
    QStringLiteral("F3 - Pesquisa  |  F8 - Limpa Campo  |  F4 - Grava Linha");
inline const QString kDicaDosExtras =
    QStringLiteral("F3 - Programa Campo  |  F8 - Limpa Campo  |  F4 - Grava Linha");

class EntradaCheque final : public QWidget {
    Q_OBJECT
public:
    EntradaCheque(nucleo::Sistema &sistema, plataforma::Tela &tela, Aberturas aberturas);

    void LimpaCheque();
    void CarregaFrente();
    void LimpaVerso();
    /// The check before any use of the cheque: on a failure tells it and moves the focus. @return 1 passed, 0
    /// not
    int VerificaCampos();
    /// `Opcoes(0)` and the menu entry of the same name.
    void ImprimeCheque();
    /// `Opcoes(1)` and the menu entry `Verso`.
    void ImprimeVerso();
    /// The entry check, then the copy screen.
    void AbreCopia();
    /// Sets `Text1(indice)` as a program does; the Change rule applies. Indices without a field are ignored.
    void PoeCampo(int indice, const QString &texto);
    /// The name under "Nome do Banco", of a bank that was looked up elsewhere.
    void PoeNomeDoBanco(const QString &nome);
    /// Sets `Text2(indice)` in the same way.
    void PoeLinha(int indice, const QString &texto);
    /// Selects the date form of a stored `ConfiguraData`; the click rule runs. Any number but 1, 2 and 4:
    /// none.
    void SelecionaFormaDaData(int digitos);

    /// Puts a picture at the foot of the column of functions.
    void PoeNoPeDasFuncoes(QWidget *figura);
    [[nodiscard]] bool IncluiNoRelatorio() const;
    void MarcaInclusao(bool marca);
    [[nodiscard]] TextosDoCheque Textos() const;

private:
    void MontaControles();
    QWidget *MontaDadosDoCheque();
    QWidget *MontaExtras();
    QWidget *MontaLinhas();
    QWidget *MontaFuncoes();
    QWidget *MontaFormaDaData();
    void LigaCampos();
    void LigaExtrasELinhas();
    void LigaFuncoes();

    void MudaCampo(int indice);
    void MudaLinha(int indice);
    void ChegaNoCampo(int indice);
    bool DeixaCampo(int indice);
    bool DeixaBanco();
    bool DeixaValor();
    bool DeixaData();
    void EnterNoCampo(int indice);
    void TeclaNoCampo(int indice, int tecla);
    void TeclaNoExtra(int indice, int tecla);
    void TeclaNaLinha(int indice, int tecla);
    void EscolheFormaDaData(int digitos);

    void ImprimeCamposExtras(int &resultado);
    [[nodiscard]] std::array<CampoExtra, kCamposExtras> LeCamposExtras() const;
    void ImprimeChequeNormal(int ok, int &resultado);
    void GravaLog(const TextosDoCheque &cheque);
    void EnviaVerso();
    void MarcaRotuloDaLinha(int i, bool emUso);

    nucleo::Sistema &m_sistema;
    plataforma::Tela &m_tela;
    Aberturas m_aberturas;

    plataforma::Arranjo<QLineEdit> m_text1{QStringLiteral("Text1")};
    plataforma::Arranjo<QLineEdit> m_txtCpo{QStringLiteral("TxtCpo")};
    plataforma::Arranjo<QLineEdit> m_text2{QStringLiteral("Text2")};
    plataforma::Arranjo<QLabel> m_label1{QStringLiteral("Label1")};
    plataforma::Arranjo<QPushButton> m_opcoes{QStringLiteral("Opcoes")};
    QVBoxLayout *m_colunaDasFuncoes = nullptr;
    QCheckBox *m_checkBox = nullptr;
    QRadioButton *m_option1 = nullptr;
    QRadioButton *m_option2 = nullptr;
    QRadioButton *m_option3 = nullptr;
};

} // namespace cheques
