// See CanRel.h.
#include "reports/CanRel.h"

#include "device/Fluxos.h"
#include "nucleo/Sistema.h"
#include "plataforma/tela/Formulario.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace reports {

using plataforma::kEspaco;
using plataforma::kMargem;

namespace {

constexpr int kTodos = 0;
constexpr int kUltimo = 1;
constexpr int kSai = 2;

} // namespace

CanRel::CanRel(nucleo::Sistema &sistema, QWidget *pai)
    : Tela(QStringLiteral("CanRel"), sistema.mensagens, pai), m_sistema(sistema)
{
    FicaAoLado(QStringLiteral("Cancela Relatório"));
    MontaControles();
    CentraNaTela();
    // A stray Enter must cancel nothing.
    m_command3D1(kSai)->setFocus();
}

void CanRel::MontaControles()
{
    m_command3D1.Poe(kTodos, new QPushButton(QStringLiteral("Todos"), this));
    m_command3D1.Poe(kUltimo, new QPushButton(QStringLiteral("Ultimo"), this));
    m_command3D1.Poe(kSai, new QPushButton(QStringLiteral("Cancela"), this));
    for (const auto &[i, botao] : m_command3D1) {
        Registra(botao);
        connect(botao, &QPushButton::clicked, this, [this, i = i] { Guarda([this, i] { Cancela(i); }); });
    }
    auto *pergunta =
        new QLabel(QStringLiteral("Quais cheques devem ser cancelados no relatório da impressora?"));
    pergunta->setTextFormat(Qt::PlainText);
    auto *tudo = new QVBoxLayout(this);
    tudo->setContentsMargins(kMargem, kMargem, kMargem, kMargem);
    tudo->setSpacing(kMargem);
    tudo->addWidget(pergunta);
    tudo->addStretch(1);
    tudo->addLayout(LinhaDeBotoes(m_command3D1));
}

void CanRel::Cancela(int botao)
{
    if (botao != kSai) {
        const nucleo::Espera espera(m_sistema.ocupado);
        device::ComandoImpressora(botao == kTodos ? device::kCancelaTudo : device::kCancelaUltimo, {},
                                  m_sistema.PortaSerial, m_sistema.impressora, m_sistema.mensagens);
    }
    close();
}

} // namespace reports
