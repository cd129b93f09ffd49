// See OpSoft.h.
#include "housekeeping/OpSoft.h"

#include "housekeeping/RegrasDasOpcoes.h"
#include "nucleo/Sistema.h"
#include "plataforma/tela/CampoTexto.h"
#include "plataforma/tela/Formulario.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace housekeeping {

using plataforma::kEspaco;
using plataforma::kMargem;
using plataforma::LarguraPara;
using plataforma::Rotulo;

namespace {

constexpr int kAlgarismosVisiveis = 6;
constexpr int kLinhasPorPrazo = 3; // box, text under it, gap
constexpr int kConfirmar = 0;
constexpr int kCancelar = 1;
constexpr int kMenorDaTerceiraBarra = 10;

// What stands before and behind each box, and under it.
struct Frase {
    QString antes, depois, embaixo;
};
const std::array<Frase, kPrazosDasOpcoes> kFrases = {{
    {QStringLiteral("Excluir cheques com mais de"), QStringLiteral("dia(s), a partir"),
     QStringLiteral("da data de apresentação.")},
    {QStringLiteral("Excluir arquivos de cópia com mais de"), QStringLiteral("dias(s)."), QString()},
    {QStringLiteral("Enviar"), QStringLiteral("cheques por página no relatório."),
     QStringLiteral("(para impressora padrão do win)")},
}};

} // namespace

OpSoft::OpSoft(nucleo::Sistema &sistema, QWidget *pai)
    : Tela(QStringLiteral("OpSoft"), sistema.mensagens, pai), m_sistema(sistema)
{
    FicaAoLado(QStringLiteral("Opçoes do Software"));
    MontaControles();
    MostraOpcoes();
    CentraNaTela();
}

void OpSoft::MontaControles()
{
    auto *tudo = new QVBoxLayout(this);
    tudo->setContentsMargins(kMargem, kMargem, kMargem, kMargem);
    tudo->setSpacing(kMargem);
    tudo->addWidget(MontaPrazos());
    m_checkImpInv = new QCheckBox(QStringLiteral("Usar impressão invertida para cópias!"));
    m_checkImpInv->setObjectName(QStringLiteral("CheckImpInv"));
    m_checkUsarNum = new QCheckBox(QStringLiteral("&Solicitar número de cheque para impressão."));
    m_checkUsarNum->setObjectName(QStringLiteral("CheckUsarNum"));
    for (QCheckBox *caixa : {m_checkImpInv, m_checkUsarNum}) {
        tudo->addWidget(caixa);
        plataforma::Regras regras;
        regras.enter = [this] { Confirma(); };
        Registra(caixa, regras);
    }
    tudo->addStretch(1);
    tudo->addLayout(MontaComandos());
}

QWidget *OpSoft::MontaPrazos()
{
    auto *prazos = new QWidget;
    auto *grade = new QGridLayout(prazos);
    grade->setContentsMargins(0, 0, 0, 0);
    grade->setHorizontalSpacing(kEspaco);
    grade->setVerticalSpacing(0);
    for (int i = 0; i < kPrazosDasOpcoes; ++i) {
        MontaPrazo(grade, i);
        LigaPrazo(i);
    }
    grade->setColumnStretch(3, 1);
    return prazos;
}

void OpSoft::MontaPrazo(QGridLayout *grade, int i)
{
    const Frase &frase = kFrases.at(static_cast<std::size_t>(i));
    auto *campo = new QLineEdit;
    m_text01.Poe(i, campo);
    campo->setAlignment(Qt::AlignRight);
    campo->setFixedWidth(LarguraPara(campo, kAlgarismosVisiveis));
    auto *barra = new QScrollBar(Qt::Vertical);
    m_vScroll01.Poe(i, barra);
    barra->setAccessibleName(frase.antes);
    barra->setFocusPolicy(Qt::WheelFocus);
    barra->setRange(i == 2 ? kMenorDaTerceiraBarra : kMenorOpcao, kMaiorOpcao);
    barra->setFixedHeight(campo->sizeHint().height() + kEspaco);

    auto *valor = new QHBoxLayout;
    valor->setSpacing(2);
    valor->addWidget(campo);
    valor->addWidget(barra);
    const int linha = i * kLinhasPorPrazo;
    grade->addWidget(Rotulo(frase.antes, campo), linha, 0);
    grade->addLayout(valor, linha, 1);
    grade->addWidget(new QLabel(frase.depois), linha, 2);
    if (!frase.embaixo.isEmpty())
        grade->addWidget(new QLabel(frase.embaixo), linha + 1, 2);
    if (i + 1 < kPrazosDasOpcoes)
        grade->setRowMinimumHeight(linha + 2, kEspaco);
}

QLayout *OpSoft::MontaComandos()
{
    m_btnCmd.Poe(kConfirmar, new QPushButton(QStringLiteral("C&onfirmar"), this));
    m_btnCmd.Poe(kCancelar, new QPushButton(QStringLiteral("&Cancelar"), this));
    for (const auto &[indice, botao] : m_btnCmd)
        Registra(botao);
    connect(m_btnCmd(kConfirmar), &QPushButton::clicked, this, [this] { Guarda([this] { Confirma(); }); });
    connect(m_btnCmd(kCancelar), &QPushButton::clicked, this, &OpSoft::close);
    return LinhaDeBotoes(m_btnCmd);
}

void OpSoft::LigaPrazo(int i)
{
    plataforma::Regras doCampo;
    doCampo.chega = [this, i] { m_text01(i)->selectAll(); };
    doCampo.muda = [this, i] { plataforma::DeixaSoDigitos(m_text01(i)); };
    doCampo.deixa = [this, i] {
        DeixaPrazo(i);
        return true;
    };
    doCampo.enter = [this] { Confirma(); };
    Registra(m_text01(i), doCampo);

    plataforma::Regras daBarra;
    daBarra.chega = [this, i] { m_vScroll01(i)->setValue(OpcaoAoSair(m_text01(i)->text())); };
    daBarra.enter = [this] { Confirma(); };
    Registra(m_vScroll01(i), daBarra);
    connect(m_vScroll01(i), &QScrollBar::valueChanged, this, [this, i](int valor) { BarraMudou(i, valor); });
}

void OpSoft::MostraOpcoes()
{
    const OpcoesNaTela emMemoria = OpcoesEmMemoria(m_sistema);
    m_checkImpInv->setChecked(emMemoria.impressaoInvertida);
    m_checkUsarNum->setChecked(emMemoria.numeroObrigatorio);
    for (int i = 0; i < kPrazosDasOpcoes; ++i) {
        const QString &texto = emMemoria.textos.at(static_cast<std::size_t>(i));
        // Without the change rule: a stored number out of bounds shows as it is stored.
        const QSignalBlocker semRegra(m_text01(i));
        m_text01(i)->setText(texto);
        m_vScroll01(i)->setValue(texto.toInt());
    }
}

// On purpose: each box goes down to 1, though the third bar stops at 10.
void OpSoft::DeixaPrazo(int i)
{
    const int valor = OpcaoAoSair(m_text01(i)->text());
    m_text01(i)->setText(QString::number(valor));
    m_vScroll01(i)->setValue(valor);
}

// Only while the bar has the focus: a box that is left moves its bar, and keeps a number below the bar's
// floor.
void OpSoft::BarraMudou(int i, int valor)
{
    if (Atual() == m_vScroll01(i))
        m_text01(i)->setText(QString::number(valor));
}

OpcoesNaTela OpSoft::NaTela() const
{
    OpcoesNaTela tela;
    for (int i = 0; i < kPrazosDasOpcoes; ++i)
        tela.textos.at(static_cast<std::size_t>(i)) = m_text01(i)->text();
    tela.impressaoInvertida = m_checkImpInv->isChecked();
    tela.numeroObrigatorio = m_checkUsarNum->isChecked();
    return tela;
}

// Enter confirms from anywhere, and the box in use is left first, as with the button.
void OpSoft::Confirma()
{
    Caminha(m_btnCmd(kConfirmar));
    const OpcoesNaTela tela = NaTela();
    for (const auto &[chave, valor] : ChavesAGravar(tela, m_sistema))
        m_sistema.ini.GravaIni(nucleo::kOpcoes, chave, valor);
    TomaOpcoes(tela, m_sistema);
    close();
}

} // namespace housekeeping
