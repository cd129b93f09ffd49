// See ExcluiRel.h.
#include "reports/ExcluiRel.h"

#include "device/Fluxos.h"
#include "nucleo/Mensagens.h"
#include "nucleo/Sistema.h"
#include "plataforma/tela/Formulario.h"
#include "reports/Relato.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace reports {

using namespace nucleo;
using plataforma::kEspaco;
using plataforma::kMargem;

namespace {

// RadioBox01
constexpr int kUltimo = 0;
constexpr int kTodos = 1;
constexpr int kSelecionado = 2;
// CheckBox01
constexpr int kImpressora = 0;
constexpr int kBanco = 1;
// BtnCmd
constexpr int kConfirmar = 0;
constexpr int kCancelar = 1;

} // namespace

ExcluiRel::ExcluiRel(Sistema &sistema, Relato &relato)
    : Tela(QStringLiteral("ExcluiRel"), sistema.mensagens, &relato), m_sistema(sistema), m_relato(relato)
{
    FicaAoLado(QStringLiteral("Opções de Cancelamento"));
    MontaControles();
    CentraNaTela();
    m_radioBox01(kSelecionado)->setFocus();
}

void ExcluiRel::MontaControles()
{
    m_radioBox01.Poe(kUltimo, new QRadioButton(QStringLiteral("Último enviado")));
    m_radioBox01.Poe(kSelecionado, new QRadioButton(QStringLiteral("Cheque selecionado")));
    m_radioBox01.Poe(kTodos, new QRadioButton(QStringLiteral("Todos")));
    m_checkBox01.Poe(kBanco, new QCheckBox(QStringLiteral("Banco de Dados")));
    m_checkBox01.Poe(kImpressora, new QCheckBox(QStringLiteral("Impressora")));
    m_btnCmd.Poe(kConfirmar, new QPushButton(QStringLiteral("Confirmar"), this));
    m_btnCmd.Poe(kCancelar, new QPushButton(QStringLiteral("Cancelar"), this));
    for (const auto &[i, opcao] : m_radioBox01)
        Registra(opcao);
    for (const auto &[i, caixa] : m_checkBox01)
        Registra(caixa);
    for (const auto &[i, botao] : m_btnCmd)
        Registra(botao);
    m_radioBox01(kSelecionado)->setChecked(true);
    m_checkBox01(kBanco)->setChecked(true);
    connect(m_btnCmd(kConfirmar), &QPushButton::clicked, this, [this] { Guarda([this] { Confirma(); }); });
    connect(m_btnCmd(kCancelar), &QPushButton::clicked, this, &ExcluiRel::close);

    auto *quadros = new QHBoxLayout;
    quadros->setSpacing(kEspaco * 2);
    quadros->addWidget(
        plataforma::Quadro(QStringLiteral("Cheques"),
                           {m_radioBox01(kUltimo), m_radioBox01(kSelecionado), m_radioBox01(kTodos)}),
        1);
    quadros->addWidget(
        plataforma::Quadro(QStringLiteral("Cancelar em"), {m_checkBox01(kBanco), m_checkBox01(kImpressora)}),
        1);
    auto *tudo = new QVBoxLayout(this);
    tudo->setContentsMargins(kMargem, kMargem, kMargem, kMargem);
    tudo->setSpacing(kMargem);
    tudo->addLayout(quadros, 1);
    tudo->addLayout(LinhaDeBotoes(m_btnCmd));
}

bool ExcluiRel::NoBanco() const
{
    return m_checkBox01(kBanco)->isChecked();
}

bool ExcluiRel::NaImpressora() const
{
    return m_checkBox01(kImpressora)->isChecked();
}

// What the device answers is not looked at.
void ExcluiRel::CancelaNaImpressora(const QString &alvo)
{
    const Espera espera(m_sistema.ocupado);
    device::CancelaNoDispositivo(alvo, m_sistema.PortaSerial, m_sistema.impressora);
}

void ExcluiRel::Confirma()
{
    // The device knows no chosen cheque: the printer alone does nothing with it.
    if (m_radioBox01(kSelecionado)->isChecked() && NoBanco()) {
        if (!m_relato.TemLinhaEscolhida()) {
            m_sistema.mensagens.MsgBox(QStringLiteral("Selecione um cheque na lista."), Botoes::Ok,
                                       Icone::Exclamacao);
            return;
        }
        m_relato.CancelaEscolhido();
    }
    if (m_radioBox01(kUltimo)->isChecked()) {
        if (NaImpressora())
            CancelaNaImpressora(QStringLiteral("u"));
        if (NoBanco())
            m_relato.CancelaUltimo();
    }
    if (m_radioBox01(kTodos)->isChecked()) {
        if (NaImpressora())
            CancelaNaImpressora(QStringLiteral("*"));
        if (NoBanco())
            m_relato.CancelaListados();
    }
    close();
}

} // namespace reports
