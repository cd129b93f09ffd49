// See Main.h.
#include "app/Main.h"

#include "app/ajuda/Ajuda.h"
#include "app/Configurador.h"
#include "app/Sobre.h"
#include "cheques/CmpExtra.h"
#include "cheques/EntradaCheque.h"
#include "device/Configura.h"
#include "housekeeping/Expurgo.h"
#include "housekeeping/OpSoft.h"
#include "nucleo/Instalacao.h"
#include "nucleo/Mensagens.h"
#include "nucleo/Sistema.h"
#include "plataforma/basico/Dir.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/Texto.h"
#include "registers/Bancos.h"
#include "registers/Cidade.h"
#include "registers/Favorec.h"
#include "registers/Pesquisa.h"
#include "reports/CanRel.h"
#include "reports/Relato.h"
#include "reports/Saida.h"

#include <QAction>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMenuBar>
#include <QPixmap>
#include <QProgressBar>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

namespace app {

using namespace nucleo;

namespace {

const QString kTitulo = QStringLiteral("QX70 - Mira Document Printer");
const QString kSistemaIni = QStringLiteral("Sistema");
constexpr int kPrimeiroIntervalo = 2500; // ms
constexpr int kIntervalo = 10000;        // ms
// A screen under 9601 twips, at 15 twips a point of 96 to the inch.
constexpr int kTwips = 9601;
constexpr int kTwipsPorPonto = 15;
constexpr int kLarguraDoIndicador = 160;
constexpr QSize kTamanhoDaFigura(208, 72);

} // namespace

Main::Main(Sistema &sistema) : Tela(QStringLiteral("Main"), sistema.mensagens), m_sistema(sistema)
{
    setWindowTitle(kTitulo);
    MontaMenu();
    MontaControles();
    m_timer1 = new QTimer(this);
    m_timer1->setObjectName(QStringLiteral("Timer1"));
    m_timer1->setInterval(kPrimeiroIntervalo);
    connect(m_timer1, &QTimer::timeout, this, [this] { Guarda([this] { Timer1(); }); });
}

Main::~Main() = default;

void Main::MontaControles()
{
    cheques::Aberturas aberturas;
    aberturas.pesquisa = [this](QWidget *campo) { AbrePesquisa(campo); };
    aberturas.camposExtras = [this] { AbreAoLado(m_cmpExtra); };
    aberturas.relatorio = [this] { AbreRelato(); };
    aberturas.dica = [this](const QString &texto) { m_panel3D2->setText(texto); };
    m_entrada = new cheques::EntradaCheque(m_sistema, *this, aberturas);
    m_image1 = new QLabel;
    m_image1->setObjectName(QStringLiteral("Image1"));
    m_image1->setAlignment(Qt::AlignCenter);
    m_image1->setMinimumSize(kTamanhoDaFigura);
    QSizePolicy lugar = m_image1->sizePolicy();
    lugar.setRetainSizeWhenHidden(true);
    m_image1->setSizePolicy(lugar);
    m_entrada->PoeNoPeDasFuncoes(m_image1);
    auto *caixa = new QVBoxLayout(this);
    caixa->setContentsMargins(0, 0, 0, 0);
    caixa->setSpacing(0);
    caixa->setMenuBar(m_menu);
    caixa->addWidget(m_entrada, 1);
    caixa->addWidget(MontaRodape());
}

QWidget *Main::MontaRodape()
{
    auto *rodape = new QWidget;
    auto *caixa = new QHBoxLayout(rodape);
    caixa->setContentsMargins(8, 0, 8, 8);
    caixa->setSpacing(8);
    m_panel3D2 = new QLabel(cheques::kDicaDosCampos);
    m_panel3D2->setObjectName(QStringLiteral("Panel3D2"));
    m_panel3D2->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    m_panel3D2->setMargin(4);
    caixa->addWidget(m_panel3D2, 1);
    auto *label3 = new QLabel(QStringLiteral("Impressora:"));
    label3->setObjectName(QStringLiteral("Label3"));
    m_label4 = new QLabel;
    m_label4->setObjectName(QStringLiteral("Label4"));
    m_gauge1 = new QProgressBar;
    m_gauge1->setObjectName(QStringLiteral("Gauge1"));
    m_gauge1->setAccessibleName(label3->text());
    m_gauge1->setRange(0, 100);
    m_gauge1->setTextVisible(false);
    m_gauge1->setFixedWidth(kLarguraDoIndicador);
    caixa->addWidget(label3);
    caixa->addWidget(m_label4);
    caixa->addWidget(m_gauge1);
    return rodape;
}

QAction *Main::Entra(QMenu *menu, const QString &nome, const QString &texto, std::function<void()> acao)
{
    QAction *entrada = menu->addAction(texto);
    entrada->setObjectName(nome);
    entrada->setEnabled(static_cast<bool>(acao));
    if (acao)
        connect(entrada, &QAction::triggered, this, [this, acao] { Guarda(acao); });
    return entrada;
}

void Main::MontaMenu()
{
    m_menu = new QMenuBar(this);
    QMenu *arquivo = m_menu->addMenu(QStringLiteral("&Arquivo"));
    arquivo->menuAction()->setObjectName(QStringLiteral("arq"));
    Entra(arquivo, QStringLiteral("Conf_Qx70"), QStringLiteral("C&onfigurações"),
          [this] { AbreConfigura(); });
    Entra(arquivo, QStringLiteral("MOpSoft"), QStringLiteral("Opções do Sof&tware"),
          [this] { AbreAoLado(m_opSoft); });
    Entra(arquivo, QStringLiteral("Sair"), QStringLiteral("&Sair"), [this] { close(); });

    QMenu *cadastro = m_menu->addMenu(QStringLiteral("&Cadastro"));
    QMenu *bancos = cadastro->addMenu(QStringLiteral("&Bancos"));
    bancos->menuAction()->setObjectName(QStringLiteral("Bank"));
    Entra(bancos, QStringLiteral("subChequeNormal"), QStringLiteral("Para Impressão de Cheque &Normal"),
          [this] { AbreCadastro(m_bancos); });
    Entra(bancos, QStringLiteral("subChequeTransferencia"),
          QStringLiteral("Para Impressão de Cheque &Transferência"));
    Entra(cadastro, QStringLiteral("Favor"), QStringLiteral("&Favorecidos"),
          [this] { AbreCadastro(m_favorec); });
    Entra(cadastro, QStringLiteral("Cidad"), QStringLiteral("&Cidades"), [this] { AbreCadastro(m_cidade); });
    Entra(cadastro, QStringLiteral("CpoX"), QStringLiteral("Campo &Extra"),
          [this] { AbreAoLado(m_cmpExtra); });
    Entra(cadastro, QStringLiteral("Layout"), QStringLiteral("&Layout de Cópia"));

    QMenu *impressao = m_menu->addMenu(QStringLiteral("&Impressão"));
    Entra(impressao, QStringLiteral("Imp_Cheque"), QStringLiteral("&Cheque"),
          [this] { m_entrada->ImprimeCheque(); });
    Entra(impressao, QStringLiteral("Imp_ChequeTransf"), QStringLiteral("Cheque &Transferência"));
    Entra(impressao, QStringLiteral("ch_pr"), QStringLiteral("Cheques a &Prazo"));
    Entra(impressao, QStringLiteral("CopiaCheque"), QStringLiteral("Cópia do C&heque"));
    Entra(impressao, QStringLiteral("Verso"), QStringLiteral("&Verso do Cheque"),
          [this] { m_entrada->ImprimeVerso(); });
    Entra(impressao, QStringLiteral("Relat"), QStringLiteral("&Relatório"), [this] { AbreRelato(); });
    Entra(impressao, QStringLiteral("Can_Rel"), QStringLiteral("Cance&la Relatório"),
          [this] { AbreAoLado(m_canRel); });

    QMenu *ajuda = m_menu->addMenu(QStringLiteral("Aju&da"));
    Entra(ajuda, QStringLiteral("Topicos"), QStringLiteral("Aj&uda do Sofware QX-70 Mira"),
          [this] { MostraAjuda(QStringLiteral("Conteudo")); });
    Entra(ajuda, QStringLiteral("Sobre_T"), QStringLiteral("&Sobre o Software QX-70 Mira"),
          [this] { AbreSobre(); });
}

// Start

void Main::IniciaAplicacao(ArgumentosLinha argumentos)
{
    PosicionaJanela();
    m_sistema.JanelaConfigurador = QStringLiteral("0");
    m_logoAlternado = 1;
    m_entrada->MarcaInclusao(CarregaInRel(m_sistema.ini));
    CarregaOpcoes();
    m_sistema.ValidaCampos = 1;
    m_sistema.TextoPesquisa.clear();
    m_entrada->LimpaCheque();
    m_entrada->LimpaVerso();
    show();
    m_estadoAbertura = 1;
    m_sobre = new Sobre(windowTitle(), true, m_sistema.mensagens, this);
    m_sobre->show();
    Guarda([this] {
        m_entrada->SelecionaFormaDaData(OpcaoNumerica(m_sistema.ini, QStringLiteral("ConfiguraData"), 0));
    });
    m_sistema.FechaTela = 0;
    CarregaOpcao(m_sistema, kNumCObrig);
    CarregaOpcao(m_sistema, kNumChkPgRel);
    TransfereArgumentos(argumentos);
    // The office's own periods cannot be known then: nothing is offered for deletion.
    if (!AvisaFalhaDaInstalacao(m_sistema)) {
        Guarda([this] { housekeeping::ExcluiChequesAntigos(m_sistema); });
        Guarda([this] { housekeeping::ExcluiCopiasAntigas(m_sistema); });
    }
    // Only now: a tick during a question of the start would take the splash from under it.
    m_timer1->start();
}

void Main::PosicionaJanela()
{
    CentraNaTela();
    const QScreen *tela = QGuiApplication::primaryScreen();
    if (tela && tela->geometry().width() * kTwipsPorPonto < kTwips)
        move(tela->availableGeometry().topLeft());
}

void Main::CarregaOpcoes()
{
    const QX_INI &ini = m_sistema.ini;
    // Read, as ever, with nothing done to the value.
    static_cast<void>(ini.GravaIni(kOpcoes, QStringLiteral("UsaData")));
    m_sistema.PortaSerial = CarregaPorta(ini);
    m_label4->setText(m_sistema.PortaSerial);
    for (const Opcao &opcao : {kPeriodoRelExc, kPeriodoCopExc, kUsarImpInv})
        CarregaOpcao(m_sistema, opcao);
    m_sistema.DataHoje = DataDeHoje(m_sistema.relogio);
    m_sistema.MesAnoHoje = plataforma::Mid(m_sistema.DataHoje, 3, 4);
}

void Main::TransfereArgumentos(const ArgumentosLinha &argumentos)
{
    for (int i = 0; i <= 6; ++i) {
        const QString &valor = argumentos[static_cast<std::size_t>(i)];
        if (!valor.isEmpty())
            m_entrada->PoeCampo(i, valor);
    }
}

void Main::Recebe(const plataforma::Campos &campos)
{
    if (isMinimized())
        showNormal();
    raise();
    activateWindow();
    for (const auto &[indice, texto] : campos)
        Guarda([&, i = indice, &valor = texto] { m_entrada->PoeCampo(i, valor); });
}

// Timer, logos and first run

void Main::Timer1()
{
    m_image1->hide();
    const bool acabouAbertura = m_estadoAbertura > 1;
    if (acabouAbertura) {
        m_estadoAbertura = 0;
        m_timer1->setInterval(kIntervalo);
        if (m_sobre)
            m_sobre->close();
        Guarda([this] { ConfiguraInicial(); });
    }
    if (m_estadoAbertura == 1)
        m_estadoAbertura = 2;
    if (m_logoAlternado != 0) {
        m_logoAlternado = 0;
        MostraLogo(QStringLiteral("QX50A.bmp"), QStringLiteral("QX50a.bmp"));
    } else {
        m_logoAlternado = 1;
        MostraLogo(QStringLiteral("kvlg01.bmp"), QStringLiteral("kvlg01.bmp"));
    }
    m_image1->show();
}

// On purpose: the name must stand on disk in exactly this case, though it is sought in any.
void Main::MostraLogo(const QString &nomeNoDisco, const QString &procurado)
{
    const QString achado = plataforma::FirstFile(m_sistema.CaminhoApp + QLatin1Char('/') + procurado);
    if (achado != nomeNoDisco)
        return;
    const QPixmap figura(m_sistema.CaminhoApp + QLatin1Char('/') + achado);
    if (!figura.isNull())
        m_image1->setPixmap(figura);
}

void Main::ConfiguraInicial()
{
    const QString secao = QStringLiteral("Config");
    const QString chave = QStringLiteral("FirstTime");
    if (plataforma::Val(m_sistema.ini.GravaIni(secao, chave)) != 1)
        return;
    const Resposta resposta = m_sistema.mensagens.MsgBox(
        QStringLiteral("Para o correto funcionamento entre a impressora e o aplicativo,\n"
                       "verifique o cabo de conexão e pressione <ok> para acertar a configuração!"),
        Botoes::OkCancelar);
    if (resposta != Resposta::Ok)
        return;
    m_sistema.mensagens.MsgBox(
        QStringLiteral("Obs.: Caso altere a porta de comunicação, favor reiniciar aplicativo!"), Botoes::Ok,
        Icone::Nenhum, QStringLiteral("Configuração da QX-70"));
    AbreConfigurador(m_sistema);
    m_sistema.ini.GravaIni(secao, chave, kVazio);
}

// A screen opens beside the main one, which stays live; one that is open comes to the front.
template <class T> void Main::AbreAoLado(QPointer<T> &tela)
{
    Abre(tela, [this] { return new T(m_sistema, this); });
}

template <class T> void Main::AbreCadastro(QPointer<T> &tela)
{
    Abre(tela, [this] {
        return new T(
            m_sistema, [this](QWidget *sobre, const QString &legenda) { AbreSaida(sobre, legenda); }, this);
    });
}

template <class T, class F> void Main::Abre(QPointer<T> &tela, F cria)
{
    if (!tela || !tela->isVisible()) {
        delete tela; // one that was closed and is about to go
        tela = cria();
        // It found no store, and has said so.
        if (std::exchange(m_sistema.FechaTela, std::int16_t{0}) != 0) {
            delete tela;
            return;
        }
    }
    tela->show();
    tela->raise();
    tela->activateWindow();
}

void Main::AbrePesquisa(QWidget *campo)
{
    // One that stands open for another field shows another table.
    if (m_pesquisa && m_pesquisa->Tipo() != m_sistema.TipoPesquisa)
        m_pesquisa->close();
    Abre(m_pesquisa, [this, campo] {
        auto *pesquisa = new registers::Pesquisa(
            m_sistema, [this](int tipo) { AbreCadastroDoTipo(tipo); }, this);
        // The choice must not land in a field that was clicked meanwhile.
        connect(pesquisa, &registers::Pesquisa::Fechou, this, [this, campo] { MoveFoco(campo); });
        return pesquisa;
    });
}

void Main::AbreCadastroDoTipo(int tipo)
{
    if (tipo == SelFavorecido)
        AbreCadastro(m_favorec);
    else if (tipo == SelCidade)
        AbreCadastro(m_cidade);
    else
        AbreCadastro(m_bancos);
}

void Main::AbreRelato()
{
    reports::Reimpressao reimpressao;
    reimpressao.campo = [this](int indice, const QString &texto) { m_entrada->PoeCampo(indice, texto); };
    reimpressao.nomeDoBanco = [this](const QString &nome) { m_entrada->PoeNomeDoBanco(nome); };
    reimpressao.incluiNoRelatorio = [this](bool inclui) { m_entrada->MarcaInclusao(inclui); };
    reimpressao.linha = [this](int indice, const QString &texto) { m_entrada->PoeLinha(indice, texto); };
    Abre(m_relato, [&] { return new reports::Relato(m_sistema, reimpressao, this); });
}

void Main::AbreSaida(QWidget *sobre, const QString &legenda)
{
    Abre(m_saida, [&] { return new reports::Saida(m_sistema, legenda, sobre); });
}

void Main::AbreConfigura()
{
    AbreAoLado(m_configura);
    // The screen has taken the port from the settings: the one shown is the one in use.
    m_label4->setText(m_sistema.PortaSerial);
}

void Main::MostraAjuda(const QString &topico)
{
    app::MostraAjuda(topico, this);
}

void Main::AbreSobre()
{
    // While the program starts, the box stands already, as the splash; the timer takes it away.
    if (m_estadoAbertura != 0)
        return;
    Abre(m_sobre, [this] { return new Sobre(windowTitle(), false, m_sistema.mensagens, this); });
}

// Gauge

void Main::Valor(int porCento)
{
    m_gauge1->setValue(porCento);
}

void Main::Cor(std::uint32_t bgr)
{
    QPalette paleta = m_gauge1->palette();
    paleta.setColor(QPalette::Highlight,
                    QColor(static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF),
                           static_cast<int>((bgr >> 16) & 0xFF)));
    m_gauge1->setPalette(paleta);
}

// Exit

void Main::GravaInRel()
{
    m_sistema.ini.GravaIni(kSistemaIni, QStringLiteral("InRel"),
                           m_entrada->IncluiNoRelatorio() ? QStringLiteral("1") : QStringLiteral("0"));
}

void Main::closeEvent(QCloseEvent *evento)
{
    GravaInRel();
    evento->accept();
    Q_EMIT Encerrou();
}

} // namespace app
