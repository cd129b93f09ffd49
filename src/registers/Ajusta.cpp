// See Ajusta.h.
#include "registers/Ajusta.h"

#include "device/Posicoes.h"
#include "nucleo/Sistema.h"
#include "plataforma/tela/Formulario.h"
#include "registers/CaixasDoBanco.h"
#include "registers/CampoNoCheque.h"
#include "registers/CoresDoAjuste.h"
#include "registers/FolhaDoCheque.h"

#include <algorithm>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace registers {

using plataforma::kEspaco;
using plataforma::kMargem;

namespace {

constexpr int kOk = 0;
constexpr int kCancelar = 1;
constexpr double kParteDoVisor = 0.94; // of the display that the window takes at most

const QString kDica = QStringLiteral(" Setas = Movimenta Campo | Tab ou Click = Seleciona Campo");
const std::array<QString, kCamposDoAjuste> kLegendas = {
    QStringLiteral("Valor Numérico:"), QStringLiteral("Valor Extenso1:"),
    QStringLiteral("Valor Extenso2:"), QStringLiteral("Favorecido......:"),
    QStringLiteral("Cidade....:"),     QStringLiteral("Dia.........:"),
    QStringLiteral("Mes..:"),          QStringLiteral("Ano..:")};

void PoeCor(QLabel *celula, bool realcada)
{
    QPalette cores = celula->palette();
    cores.setColor(QPalette::Window, realcada ? kCorRealcada : kCorDeRepouso);
    cores.setColor(QPalette::WindowText, kCorDoTexto);
    celula->setPalette(cores);
    QFont fonte = celula->font();
    fonte.setBold(realcada);
    celula->setFont(fonte);
}

} // namespace

Ajusta::Ajusta(nucleo::Sistema &sistema, CaixasDoBanco &caixas, QWidget *pai)
    : Tela(QStringLiteral("Ajusta"), sistema.mensagens, pai), m_sistema(sistema), m_caixas(caixas),
      m_lugares(ColocaCampos(sistema.AjusteL, sistema.AjusteC))
{
    FicaAoLado(QStringLiteral("Ajuste Gráfico / Cheque"));
    MontaControles();
    MostraCampos();
    MostraLeitura();
    CentraNaTela();
    m_text1(AjusteValor)->setFocus();
}

// What the display leaves no room for is taken from the picture, which keeps its shape.
QSize Ajusta::sizeHint() const
{
    QSize tamanho = Tela::sizeHint();
    const QScreen *visor = screen();
    if (!visor)
        return tamanho;
    const QSize maior = visor->availableSize() * kParteDoVisor;
    const QSize menor = minimumSizeHint();
    const int aMais = tamanho.width() - std::max(maior.width(), menor.width());
    if (aMais > 0)
        tamanho -= QSize(aMais, m_folha->AlturaPara(aMais));
    return tamanho.boundedTo(maior).expandedTo(menor);
}

void Ajusta::MontaControles()
{
    m_folha = new FolhaDoCheque(m_caixas.Caixa(kCaixaDoCodigo), m_caixas.Caixa(kCaixaDoNome));
    m_folha->setObjectName(QStringLiteral("Folha"));
    MontaCampos();
    auto *meio = new QHBoxLayout;
    meio->setSpacing(kMargem);
    meio->addWidget(m_folha, 1);
    meio->addLayout(MontaLeitura());
    auto *tudo = new QVBoxLayout(this);
    tudo->setContentsMargins(kMargem, kMargem, kMargem, kMargem);
    tudo->setSpacing(kMargem);
    tudo->addWidget(MontaCabecalho());
    tudo->addLayout(meio, 1);
    tudo->addLayout(MontaRodape());
    PoeOrdemDoTab();
}

QWidget *Ajusta::MontaCabecalho()
{
    auto *cabecalho =
        new QLabel(m_caixas.Caixa(kCaixaDoCodigo) + QStringLiteral(" - ") + m_caixas.Caixa(kCaixaDoNome));
    cabecalho->setObjectName(QStringLiteral("Cabecalho"));
    cabecalho->setTextFormat(Qt::PlainText);
    cabecalho->setAlignment(Qt::AlignCenter);
    QFont fonte = cabecalho->font();
    constexpr double kMaior = 1.25;
    fonte.setPointSizeF(QFontInfo(fonte).pointSizeF() * kMaior);
    fonte.setBold(true);
    cabecalho->setFont(fonte);
    return cabecalho;
}

void Ajusta::MontaCampos()
{
    for (int campo = 0; campo < kCamposDoAjuste; ++campo) {
        auto *caixa = new CampoNoCheque(AmostraDoCampo(campo), m_folha);
        m_text1.Poe(campo, caixa);
        plataforma::Regras regras;
        regras.chega = [this, campo] { Seleciona(campo, true); };
        regras.deixa = [this, campo] {
            Seleciona(campo, false);
            return true;
        };
        Registra(caixa, regras);
        connect(caixa, &CampoNoCheque::Pressionada, this,
                [this, campo](int tecla) { Guarda([this, campo, tecla] { Tecla(campo, tecla); }); });
        connect(caixa, &CampoNoCheque::Pega, this,
                [this, campo] { m_ondePegou = m_lugares.at(static_cast<std::size_t>(campo)); });
        connect(caixa, &CampoNoCheque::Arrastada, this,
                [this, campo](QPoint pixels) { Guarda([this, campo, pixels] { Arrasta(campo, pixels); }); });
    }
}

// Two blocks: line and column of the fields, and the columns of the date, which stands on the city's line.
QLayout *Ajusta::MontaLeitura()
{
    constexpr int kColunaDasLinhas = 1;
    constexpr int kColunaDasColunas = 2;
    auto *grade = new QGridLayout;
    grade->setHorizontalSpacing(kEspaco);
    grade->setVerticalSpacing(kEspaco);
    int linha = 1;
    grade->addWidget(new QLabel(QStringLiteral("Lin / Col")), linha++, kColunaDasLinhas, 1, 2,
                     Qt::AlignCenter);
    for (int campo = 0; campo < kCamposDoAjuste; ++campo) {
        const QString &legenda = kLegendas.at(static_cast<std::size_t>(campo));
        const CelulasDoCampo celulas = CelulasDe(campo);
        if (campo == AjusteDia) {
            grade->setRowMinimumHeight(linha++, kEspaco);
            grade->addWidget(new QLabel(QStringLiteral("Col")), linha++, kColunaDasColunas, Qt::AlignCenter);
        }
        grade->addWidget(plataforma::Rotulo(legenda, m_text1(campo)), linha, 0);
        if (campo <= AjusteCidade)
            MontaCelula(grade, celulas.linha, linha, kColunaDasLinhas, legenda + QStringLiteral(" Lin"));
        MontaCelula(grade, celulas.coluna, linha++, kColunaDasColunas, legenda + QStringLiteral(" Col"));
    }
    grade->setRowStretch(0, 1);
    grade->setRowStretch(linha, 1);
    return grade;
}

void Ajusta::MontaCelula(QGridLayout *grade, int indice, int linha, int coluna, const QString &nome)
{
    constexpr int kFolga = 12; // pixels of frame and air
    auto *celula = new QLabel;
    m_label2.Poe(indice, celula);
    celula->setAccessibleName(nome);
    celula->setTextFormat(Qt::PlainText);
    celula->setAlignment(Qt::AlignCenter);
    celula->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    celula->setAutoFillBackground(true);
    celula->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    celula->setMinimumWidth(celula->fontMetrics().horizontalAdvance(QStringLiteral("-000")) + kFolga);
    PoeCor(celula, false);
    grade->addWidget(celula, linha, coluna);
}

QLayout *Ajusta::MontaRodape()
{
    auto *dica = new QLabel(kDica);
    dica->setObjectName(QStringLiteral("LinhaDeEstado"));
    dica->setTextFormat(Qt::PlainText);
    dica->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    m_command3D1.Poe(kOk, new QPushButton(QStringLiteral("&OK"), this));
    m_command3D1.Poe(kCancelar, new QPushButton(QStringLiteral("&Cancelar"), this));
    for (const auto &[indice, botao] : m_command3D1)
        Registra(botao);
    connect(m_command3D1(kOk), &QPushButton::clicked, this, [this] { Guarda([this] { Confirma(); }); });
    connect(m_command3D1(kCancelar), &QPushButton::clicked, this, &Ajusta::close);
    auto *rodape = new QHBoxLayout;
    rodape->setSpacing(kMargem);
    rodape->addWidget(dica, 1);
    rodape->addLayout(LinhaDeBotoes(m_command3D1));
    return rodape;
}

void Ajusta::PoeOrdemDoTab()
{
    QWidget *anterior = nullptr;
    const auto poe = [&](QWidget *controle) {
        if (anterior)
            setTabOrder(anterior, controle);
        anterior = controle;
    };
    for (const auto &[campo, caixa] : m_text1)
        poe(caixa);
    for (const auto &[indice, botao] : m_command3D1)
        poe(botao);
}

void Ajusta::Seleciona(int campo, bool selecionado)
{
    const CelulasDoCampo celulas = CelulasDe(campo);
    PoeCor(m_label2(celulas.linha), selecionado);
    PoeCor(m_label2(celulas.coluna), selecionado);
    m_text1(campo)->Realca(selecionado);
    m_folha->Marca(selecionado ? m_text1(campo) : nullptr);
    if (selecionado)
        m_text1(campo)->raise();
}

void Ajusta::Tecla(int campo, int tecla)
{
    const bool mostra = AplicaTecla(m_lugares, campo, tecla);
    MostraCampos();
    if (mostra)
        MostraLeitura();
}

void Ajusta::Arrasta(int campo, QPoint pixels)
{
    const QPointF unidades = QPointF(pixels) / m_folha->Escala();
    // From where it was taken, so that going to and fro under way leaves no trace in its width.
    m_lugares.at(static_cast<std::size_t>(campo)) = m_ondePegou;
    LevaCampo(m_lugares, campo, m_ondePegou.esquerda + unidades.x(), m_ondePegou.topo + unidades.y());
    MostraCampos();
    MostraLeitura();
}

void Ajusta::MostraCampos()
{
    for (const auto &[campo, caixa] : m_text1)
        m_folha->Coloca(caixa, m_lugares.at(static_cast<std::size_t>(campo)),
                        campo >= AjusteDia ? kRecuoDaData : 0);
}

void Ajusta::MostraLeitura()
{
    const LeituraDoAjuste leitura = LeCampos(m_lugares);
    for (const auto &[indice, celula] : m_label2)
        celula->setText(leitura.at(static_cast<std::size_t>(indice)));
}

LeituraDoAjuste Ajusta::NaTela() const
{
    LeituraDoAjuste leitura;
    for (const auto &[indice, celula] : m_label2)
        leitura.at(static_cast<std::size_t>(indice)) = celula->text();
    return leitura;
}

// On purpose: the numbers go to the register before they are tested, and stay there when the test fails.
void Ajusta::Confirma()
{
    DevolveAsCaixas(NaTela(), m_caixas);
    if (device::IsentoDasPosicoes(m_caixas.Caixa(kCaixaDoCodigo)) || CamposEmOrdem(m_lugares)) {
        close();
        return;
    }
    m_sistema.mensagens.MsgBox(kErroDoAjuste, nucleo::Botoes::Ok, nucleo::Icone::Exclamacao,
                               kTituloDeErroDoAjuste);
}

} // namespace registers
