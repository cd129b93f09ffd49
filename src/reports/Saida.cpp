// See Saida.h.
#include "reports/Saida.h"

#include "nucleo/Sistema.h"
#include "plataforma/tela/Formulario.h"
#include "reports/ImprimeListagem.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace reports {

using plataforma::kEspaco;
using plataforma::kMargem;

Saida::Saida(nucleo::Sistema &sistema, const QString &legenda, QWidget *pai)
    : Tela(QStringLiteral("Saida"), sistema.mensagens, pai), m_sistema(sistema)
{
    FicaAoLado(QStringLiteral("Saída"));
    setWindowModality(Qt::ApplicationModal);
    MontaControles(legenda);
    CentraNaTela();
    m_option1(0)->setFocus();
}

void Saida::MontaControles(const QString &legenda)
{
    m_option1.Poe(0, new QRadioButton(QStringLiteral("Nome")));
    m_option1.Poe(1, new QRadioButton(QStringLiteral("Código")));
    m_option2.Poe(0, new QRadioButton(QStringLiteral("QX70")));
    m_option2.Poe(1, new QRadioButton(QStringLiteral("Impressora Win")));
    for (const auto *opcoes : {&m_option1, &m_option2})
        for (const auto &[i, opcao] : *opcoes)
            Registra(opcao);
    m_option1(0)->setChecked(true);
    m_option2(0)->setChecked(true);
    m_label1 = new QLabel(legenda);
    m_label1->setObjectName(QStringLiteral("Label1"));
    m_label1->setTextFormat(Qt::PlainText);

    m_command1 = new QPushButton(QStringLiteral("Imprimir"));
    m_command1->setObjectName(QStringLiteral("Command1"));
    m_command2 = new QPushButton(QStringLiteral("Sair"));
    m_command2->setObjectName(QStringLiteral("Command2"));
    Registra(m_command1);
    Registra(m_command2);
    connect(m_command1, &QPushButton::clicked, this, [this] { Guarda([this] { Imprime(); }); });
    connect(m_command2, &QPushButton::clicked, this, &Saida::close);

    auto *quadros = new QHBoxLayout;
    quadros->setSpacing(kEspaco * 2);
    quadros->addWidget(plataforma::Quadro(QStringLiteral("Ordem"), {m_option1(0), m_option1(1)}), 1);
    quadros->addWidget(plataforma::Quadro(QStringLiteral("Saída"), {m_option2(0), m_option2(1)}), 1);
    auto *botoes = new QHBoxLayout;
    botoes->setSpacing(kEspaco);
    botoes->addStretch(1);
    botoes->addWidget(m_command1);
    botoes->addWidget(m_command2);
    auto *tudo = new QVBoxLayout(this);
    tudo->setContentsMargins(kMargem, kMargem, kMargem, kMargem);
    tudo->setSpacing(kMargem);
    tudo->addLayout(quadros, 1);
    tudo->addWidget(plataforma::Quadro(QStringLiteral("Quantidade"), {m_label1}));
    tudo->addLayout(botoes);
}

void Saida::Imprime()
{
    if (!m_option1(0)->isChecked() && !m_option1(1)->isChecked())
        return;
    const Ordem ordem = m_option1(0)->isChecked() ? Ordem::Nome : Ordem::Codigo;
    const int saida = m_option2(1)->isChecked() ? kNaImpressora : kNoDispositivo;
    if (m_sistema.NomeListagem == QLatin1String("Bancos"))
        ListaBancos(saida, ordem, m_sistema);
    else
        ListaCadastro(saida, ordem,
                      m_sistema.NomeListagem == QLatin1String("Cidade") ? Cadastrados::Cidade
                                                                        : Cadastrados::Favorecido,
                      m_sistema);
}

} // namespace reports
