// Relato: the cheques of the log in one list, with their total and the details of the chosen one; the door to
// filter, reports, reprint, cancelling and deleting. Laid out in RelatoForma.cpp; what leaves it on paper and
// in files is in RelatoRelatorios.cpp.
#pragma once

#include "plataforma/tela/Arranjo.h"
#include "plataforma/tela/Tela.h"

#include <functional>
#include <QPointer>
#include <QString>
#include <vector>

class QGridLayout;
class QLabel;
class QLayout;
class QPushButton;
class QRadioButton;

namespace nucleo {
class Sistema;
}
namespace plataforma {
class Lista;
}

namespace reports {

class ExcluiRel;
class Filtro;
class Relatorio;
struct CamposDoFiltro;
struct Pedido;

/// What a reprint puts on the main screen.
struct Reimpressao {
    std::function<void(int indice, const QString &texto)> campo; ///< Text1, by number
    std::function<void(const QString &texto)> nomeDoBanco;       ///< Label1(6)
    std::function<void(bool inclui)> incluiNoRelatorio;          ///< CheckBox
    std::function<void(int indice, const QString &texto)> linha; ///< Text2(0) to Text2(2)
};

/// Works on the current set of `Log`, which is opened anew by the same query before each piece of work: the
/// main screen stays live, and a cheque printed there takes the set away. Where there is no store it says so
/// and sets `FechaTela`.
class Relato final : public plataforma::Tela {
    Q_OBJECT
public:
    Relato(nucleo::Sistema &sistema, Reimpressao main, QWidget *pai);
    ~Relato() override;

    /// Fills the list with the cheques that the filter asks for. @return false when there is no store: told
    /// @throws RuntimeError 3075 the engine refuses the query; the list is as it was then
    bool MontaFiltro(const CamposDoFiltro &campos);
    /// The same for the list without a filter; with empty texts, the whole log.
    bool MontaListaLog(const QString &banco = {}, const QString &dataIni = {}, const QString &dataFim = {},
                       const QString &valorIni = {}, const QString &valorFim = {});
    /// Fills the list and the total from the current set.
    void PreencheLista();
    /// Shows the record of that `Index` in the panel; one that is gone is told, and empties it.
    void MostraDetalheLog(const QString &indice);

    /// The steps of `ExcluiRel` on the store.
    [[nodiscard]] bool TemLinhaEscolhida() const;
    void CancelaEscolhido();
    void CancelaUltimo();
    void CancelaListados();

protected:
    void closeEvent(QCloseEvent *evento) override;

private:
    void MontaControles();
    QWidget *MontaLista();
    QWidget *MontaPainel();
    QWidget *MontaTotal();
    QWidget *MontaEnvio();
    QWidget *MontaRelatorioGeral();
    QLayout *MontaComandos();
    struct DetalheDoPainel {
        int indice;
        QString rotulo;
        int largura; ///< characters
    };
    QLabel *Detalhe(int indice, const QString &rotulo, int largura);
    void PoeDetalhes(QGridLayout *grade, const std::vector<DetalheDoPainel> &detalhes);
    QPushButton *Botao(const QString &nome, const QString &texto, std::function<void()> acao);
    void PosicionaTela();
    void Carrega();

    bool Consulta(const QString &consulta);
    [[nodiscard]] bool AbreBanco(int bancos);
    [[nodiscard]] bool AbreLog();
    void Escolhe();
    void LimpaPainel();
    void EsvaziaDetalhes(std::initializer_list<int> quais);
    [[nodiscard]] QString TextoDe(int indice) const;
    void DizQueSumiu(const QString &indice);
    void NoMesmoLugar(const std::function<void()> &enche);
    void AtualizaStatus();
    void MarcaListados();

    void Seleciona(int indice);
    void ListaCompleta();
    void Reimprime();
    [[nodiscard]] bool ConfirmaReimpressao();
    void EntregaAoMain(const QString &codigo, const QString &nomeDoBanco);
    void ExcluiCheque();
    template <class T> void AbreSobreEsta(QPointer<T> &tela);
    void AbreFiltro();
    void AbreExcluiRel();

    void EnviaLista();
    [[nodiscard]] Relatorio RelatorioDaLista(const Pedido &pedido) const;
    [[nodiscard]] QString PedeArquivo();
    void EnviaAoDispositivo(const Pedido &pedido);
    void EnviaAoArquivo(const Pedido &pedido);
    void EnviaAImpressora(const Pedido &pedido);
    void PercorrePaginas(const Pedido &pedido,
                         const std::function<void(const QString &pagina, bool ultima)> &envia);
    void CriaRelatorioGeral();
    [[nodiscard]] QString TextoDoRelatorioGeral();

    nucleo::Sistema &m_sistema;
    const Reimpressao m_main;
    QString m_consulta;       ///< of the set that the list shows
    QString m_indiceNoPainel; ///< `Index` of the record in the panel; empty where its bank is
    bool m_aberta = false;    ///< the store was there
    plataforma::Lista *m_list1 = nullptr;
    QLabel *m_label2 = nullptr;
    plataforma::Arranjo<QLabel> m_text1{QStringLiteral("Text1")};
    plataforma::Arranjo<QRadioButton> m_opCmd{QStringLiteral("OpCmd")};
    plataforma::Arranjo<QRadioButton> m_opCmd01{QStringLiteral("OpCmd01")};
    plataforma::Arranjo<QRadioButton> m_opCmd02{QStringLiteral("OpCmd02")};
    QPointer<Filtro> m_filtro;
    QPointer<ExcluiRel> m_excluiRel;
};

} // namespace reports
