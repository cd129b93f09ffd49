// Main: the shell and the frame of the entry of a normal cheque; menu, timer, logos, gauge, start and exit.
#pragma once

#include "app/LinhaComando.h"
#include "nucleo/Indicador.h"
#include "plataforma/ambiente/Mensagem.h"
#include "plataforma/tela/Tela.h"

#include <cstdint>
#include <functional>
#include <QPointer>

class QAction;
class QLabel;
class QMenu;
class QMenuBar;
class QProgressBar;
class QTimer;

namespace cheques {
class CmpExtra;
class EntradaCheque;
} // namespace cheques
namespace device {
class Configura;
}
namespace housekeeping {
class OpSoft;
}
namespace nucleo {
class Sistema;
}
namespace registers {
class Bancos;
class Cidade;
class Favorec;
class Pesquisa;
} // namespace registers
namespace reports {
class CanRel;
class Relato;
class Saida;
} // namespace reports

namespace app {

class Sobre;

class Main final : public plataforma::Tela, public nucleo::Indicador {
    Q_OBJECT
public:
    explicit Main(nucleo::Sistema &sistema);
    ~Main() override;

    /// The settings part of the start, in its fixed order; shows the screen on the way.
    void IniciaAplicacao(ArgumentosLinha argumentos);
    /// A hand-over from a second copy: comes to the front, and the fields take the texts under the Change
    /// rule.
    void Recebe(const plataforma::Campos &campos);

    void Valor(int porCento) override;
    void Cor(std::uint32_t bgr) override;

    [[nodiscard]] cheques::EntradaCheque &Entrada() { return *m_entrada; }

Q_SIGNALS:
    /// Everything that is kept has been written: the process may end at once.
    void Encerrou();

protected:
    void closeEvent(QCloseEvent *evento) override;

private:
    void MontaControles();
    void MontaMenu();
    QAction *Entra(QMenu *menu, const QString &nome, const QString &texto, std::function<void()> acao = {});
    QWidget *MontaRodape();
    void PosicionaJanela();
    void CarregaOpcoes();
    void TransfereArgumentos(const ArgumentosLinha &argumentos);
    void Timer1();
    void MostraLogo(const QString &nomeNoDisco, const QString &procurado);
    void ConfiguraInicial();
    template <class T> void AbreAoLado(QPointer<T> &tela);
    template <class T> void AbreCadastro(QPointer<T> &tela);
    template <class T, class F> void Abre(QPointer<T> &tela, F cria);
    void AbreConfigura();
    void AbrePesquisa(QWidget *campo);
    void AbreCadastroDoTipo(int tipo);
    void AbreRelato();
    void AbreSaida(QWidget *sobre, const QString &legenda);
    void MostraAjuda(const QString &topico);
    void AbreSobre();
    void GravaInRel();

    nucleo::Sistema &m_sistema;
    cheques::EntradaCheque *m_entrada = nullptr;
    QMenuBar *m_menu = nullptr;
    QLabel *m_panel3D2 = nullptr;
    QLabel *m_label4 = nullptr;
    QLabel *m_image1 = nullptr;
    QProgressBar *m_gauge1 = nullptr;
    QTimer *m_timer1 = nullptr;
    QPointer<registers::Bancos> m_bancos;
    QPointer<registers::Favorec> m_favorec;
    QPointer<registers::Cidade> m_cidade;
    QPointer<registers::Pesquisa> m_pesquisa;
    QPointer<reports::CanRel> m_canRel;
    QPointer<reports::Relato> m_relato;
    QPointer<reports::Saida> m_saida;
    QPointer<cheques::CmpExtra> m_cmpExtra;
    QPointer<device::Configura> m_configura;
    QPointer<housekeeping::OpSoft> m_opSoft;
    QPointer<Sobre> m_sobre; ///< the one box: splash first, About later
    std::int16_t m_logoAlternado = 1;
    std::int16_t m_estadoAbertura = 1; ///< 1 at start, 2 after the first tick, 0 from the second on
};

} // namespace app
