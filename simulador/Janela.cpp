// Building the window and keeping it true to the simulator.
#include "Janela.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollArea>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

namespace simulador {

namespace {

constexpr int kGuardados = 200; // documents and messages that the lists keep

QTableWidget *Tabela(const QString &nome, const QStringList &titulos)
{
    auto *tabela = new QTableWidget(0, static_cast<int>(titulos.size()));
    tabela->setObjectName(nome);
    tabela->setAccessibleName(nome);
    tabela->setHorizontalHeaderLabels(titulos);
    tabela->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabela->setSelectionBehavior(QAbstractItemView::SelectRows);
    tabela->setTabKeyNavigation(false);
    tabela->verticalHeader()->hide();
    tabela->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tabela->horizontalHeader()->setStretchLastSection(true);
    return tabela;
}

void Preenche(QTableWidget &tabela, const QList<QStringList> &linhas)
{
    tabela.setRowCount(static_cast<int>(linhas.size()));
    for (int linha = 0; linha < linhas.size(); ++linha) {
        for (int coluna = 0; coluna < linhas[linha].size(); ++coluna)
            tabela.setItem(linha, coluna, new QTableWidgetItem(linhas[linha][coluna]));
    }
}

QString ResumoDe(const Documento &documento)
{
    if (documento.tipo == Documento::Tipo::Folha) {
        for (const LinhaDeFolha &linha : documento.linhas) {
            if (!linha.texto.trimmed().isEmpty())
                return linha.texto.simplified().left(40);
        }
        return QStringLiteral("(em branco)");
    }
    QStringList partes;
    for (const TextoPosto &posto : documento.textos) {
        if (posto.campo == Campo::Valor || posto.campo == Campo::Favorecido)
            partes << posto.texto;
    }
    return partes.join(QStringLiteral("  "));
}

} // namespace

Janela::Janela(Simulador &simulador, QWidget *pai) : QMainWindow(pai), m_simulador(simulador)
{
    setObjectName("Simulador");
    setWindowTitle("Simulador QX-70");
    MontaControles();
    LigaEventos();
    MostraEstado();
    resize(1180, 720);
}

void Janela::MontaControles()
{
    m_vista = new VistaDoDocumento;
    auto *topo = new QHBoxLayout;
    topo->addWidget(MontaFenda(), 1);
    topo->addWidget(MontaFalhas(), 1);
    auto *divisor = new QSplitter(Qt::Vertical);
    auto *rolagem = new QScrollArea;
    rolagem->setObjectName("Rolagem");
    rolagem->setWidgetResizable(true);
    rolagem->setFrameShape(QFrame::NoFrame);
    rolagem->setWidget(m_vista);
    divisor->addWidget(rolagem);
    divisor->addWidget(MontaMemoria());
    divisor->setStretchFactor(0, 3);
    divisor->setStretchFactor(1, 1);
    divisor->setChildrenCollapsible(false);
    auto *centro = new QWidget;
    auto *coluna = new QVBoxLayout(centro);
    coluna->addLayout(topo);
    coluna->addWidget(divisor, 1);
    setCentralWidget(centro);
    m_porta = new QLabel;
    m_porta->setObjectName("Porta");
    m_porta->setTextInteractionFlags(Qt::TextSelectableByMouse);
    statusBar()->addWidget(m_porta, 1);
}

QWidget *Janela::MontaFenda()
{
    auto *grupo = new QGroupBox("Fenda do documento");
    m_fenda = new QLabel;
    m_fenda->setObjectName("Fenda");
    m_fenda->setAutoFillBackground(true);
    m_fenda->setMargin(6);
    m_fenda->setAlignment(Qt::AlignCenter);
    m_insere = new QPushButton("&Inserir documento (F2)");
    m_insere->setObjectName("Insere");
    m_insere->setAccessibleName("Inserir documento");
    m_automatica = new QCheckBox("Inserir &automaticamente");
    m_automatica->setObjectName("Automatica");
    m_automatica->setAccessibleName("Inserir automaticamente");
    m_automatica->setChecked(m_simulador.EstadoDaFenda() == Simulador::Fenda::Automatica);
    auto *linha = new QHBoxLayout(grupo);
    linha->addWidget(m_fenda, 1);
    linha->addWidget(m_insere);
    linha->addWidget(m_automatica);
    return grupo;
}

QWidget *Janela::MontaFalhas()
{
    auto *grupo = new QGroupBox("Falha a simular");
    m_falha = new QComboBox;
    m_falha->setObjectName("Falha");
    for (const NomeDeFalha &nome : NomesDeFalhas())
        m_falha->addItem(nome.rotulo);
    auto *rotuloDaFalha = new QLabel("&Falha:");
    rotuloDaFalha->setBuddy(m_falha);
    m_falha->setAccessibleName("Falha");
    m_quantos = new QSpinBox;
    m_quantos->setObjectName("Quantos");
    m_quantos->setRange(0, 9999);
    m_quantos->setSpecialValueText("até mudar");
    m_quantos->setAccessibleName("Por documentos");
    auto *rotuloDosQuantos = new QLabel("&Documentos:");
    rotuloDosQuantos->setBuddy(m_quantos);
    auto *linha = new QHBoxLayout(grupo);
    linha->addWidget(rotuloDaFalha);
    linha->addWidget(m_falha, 1);
    linha->addWidget(rotuloDosQuantos);
    linha->addWidget(m_quantos);
    return grupo;
}

QWidget *Janela::MontaMemoria()
{
    m_lista = new QListWidget;
    m_lista->setObjectName("Documentos");
    m_mensagens = new QListWidget;
    m_mensagens->setObjectName("Mensagens");
    m_bancos = Tabela("Bancos", {"Banco", "Nome", "Linhas e colunas"});
    m_favorecidos = Tabela("Favorecidos", {"Código", "Nome"});
    m_relatorio = Tabela("Relatorio", {"Nº", "Banco", "Valor", "Data", "Cidade", "Favorecido"});
    m_geral = new QLabel;
    m_geral->setObjectName("Geral");
    m_geral->setMargin(12);
    m_geral->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_abas = new QTabWidget;
    m_abas->addTab(m_lista, "D&ocumentos");
    m_abas->addTab(m_bancos, "&Bancos");
    m_abas->addTab(m_favorecidos, "Fa&vorecidos");
    m_abas->addTab(m_relatorio, "&Relatório");
    m_abas->addTab(m_geral, "&Configuração");
    m_abas->addTab(m_mensagens, "&Mensagens");
    return m_abas;
}

void Janela::LigaEventos()
{
    connect(&m_simulador, &Simulador::SaiuDocumento, this, &Janela::AcrescentaDocumento);
    connect(&m_simulador, &Simulador::MudouEstado, this, &Janela::MostraEstado);
    connect(&m_simulador, &Simulador::Aviso, this, &Janela::AcrescentaMensagem);
    connect(&m_simulador, &Simulador::Linha, this, &Janela::AcrescentaMensagem);
    connect(m_insere, &QPushButton::clicked, &m_simulador, &Simulador::InsereDocumento);
    connect(new QShortcut(Qt::Key_F2, this), &QShortcut::activated, m_insere, &QPushButton::click);
    connect(m_automatica, &QCheckBox::toggled, &m_simulador, &Simulador::PoeFendaAutomatica);
    connect(m_falha, &QComboBox::activated, this, &Janela::EscolheFalha);
    connect(m_quantos, &QSpinBox::editingFinished, this, &Janela::EscolheFalha);
    connect(m_lista, &QListWidget::currentRowChanged, this, [this](int linha) {
        if (linha >= 0)
            m_vista->Mostra(m_documentos.at(static_cast<std::size_t>(linha)));
    });
}

void Janela::AcrescentaDocumento(const Documento &documento, const QString &base)
{
    if (m_documentos.size() >= kGuardados) {
        delete m_lista->takeItem(0);
        m_documentos.erase(m_documentos.begin());
    }
    m_documentos.push_back(documento);
    m_lista->addItem(QStringLiteral("%1   %2").arg(QFileInfo(base).fileName(), ResumoDe(documento)));
    m_lista->setCurrentRow(m_lista->count() - 1);
}

void Janela::AcrescentaMensagem(const QString &mensagem)
{
    if (m_mensagens->count() >= kGuardados)
        delete m_mensagens->takeItem(0);
    m_mensagens->addItem(mensagem);
    m_mensagens->scrollToBottom();
}

void Janela::MostraEstado()
{
    MostraFenda();
    MostraFalha();
    MostraMemoria();
    const Opcoes &opcoes = m_simulador.OpcoesDaPartida();
    QString porta = QStringLiteral("Porta %1").arg(m_simulador.NomeDaPorta());
    if (!opcoes.elo.isEmpty())
        porta += QStringLiteral("   Elo %1").arg(opcoes.elo);
    porta += opcoes.velocidade ? QStringLiteral("   9600 bps, velocidade real (960 bytes/s)")
                               : QStringLiteral("   9600 bps, sem espera");
    m_porta->setText(porta);
}

void Janela::MostraFenda()
{
    using Fenda = Simulador::Fenda;
    const Fenda fenda = m_simulador.EstadoDaFenda();
    const bool espera = fenda == Fenda::Esperando;
    m_fenda->setText(espera                       ? QStringLiteral("Insira o documento!")
                     : fenda == Fenda::Cheia      ? QStringLiteral("Documento na fenda")
                     : fenda == Fenda::Automatica ? QStringLiteral("Sempre há documento")
                                                  : QStringLiteral("Fenda vazia"));
    m_fenda->setBackgroundRole(espera ? QPalette::Highlight : QPalette::Window);
    m_fenda->setForegroundRole(espera ? QPalette::HighlightedText : QPalette::WindowText);
    m_insere->setEnabled(fenda == Fenda::Vazia || espera);
    if (espera) {
        QApplication::alert(this);
        m_insere->setFocus();
    }
}

void Janela::MostraFalha()
{
    const Falha &falha = m_simulador.Aparelho().FalhaAtual();
    m_falha->setCurrentIndex(static_cast<int>(falha.tipo));
    if (!m_quantos->hasFocus())
        m_quantos->setValue(falha.documentos);
}

void Janela::EscolheFalha()
{
    const auto tipo = static_cast<TipoDeFalha>(m_falha->currentIndex());
    const Falha falha{tipo, tipo == TipoDeFalha::Nenhuma ? 0 : m_quantos->value()};
    if (falha != m_simulador.Aparelho().FalhaAtual())
        m_simulador.PoeFalha(falha);
}

void Janela::MostraMemoria()
{
    const Memoria &memoria = m_simulador.Aparelho().MemoriaAtual();
    m_geral->setText(QStringLiteral("Moeda: %1, %2\nDígitos do ano: %3\nDocumento preso: %4")
                         .arg(memoria.moedaSingular, memoria.moedaPlural)
                         .arg(memoria.digitosDoAno)
                         .arg(m_simulador.Aparelho().Travado() ? "sim" : "não"));
    if (memoria == m_mostrada)
        return;
    m_mostrada = memoria;
    QList<QStringList> bancos;
    for (auto i = memoria.bancos.begin(); i != memoria.bancos.end(); ++i)
        bancos << QStringList{i.key(), i->nome, EscrevePosicoes(i->posicoes)};
    Preenche(*m_bancos, bancos);
    QList<QStringList> favorecidos;
    for (auto i = memoria.favorecidos.begin(); i != memoria.favorecidos.end(); ++i)
        favorecidos << QStringList{i.key(), i.value()};
    Preenche(*m_favorecidos, favorecidos);
    QList<QStringList> cheques;
    for (const ChequeEnviado &cheque : memoria.relatorio)
        cheques << QStringList{QString::number(cheques.size() + 1),
                               cheque.banco,
                               cheque.valor,
                               cheque.data,
                               cheque.cidade,
                               cheque.favorecido};
    Preenche(*m_relatorio, cheques);
}

void Janela::closeEvent(QCloseEvent *evento)
{
    evento->accept();
    m_simulador.Encerra();
}

} // namespace simulador
