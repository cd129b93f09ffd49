// See Configura.h.
#include "device/Configura.h"

#include "device/Fluxos.h"
#include "nucleo/Mensagens.h"
#include "nucleo/Sistema.h"
#include "plataforma/tela/CampoTexto.h"
#include "plataforma/tela/Formulario.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace device {

using nucleo::Botoes;
using nucleo::Icone;
using plataforma::kEspaco;
using plataforma::kMargem;
using plataforma::LarguraPara;
using plataforma::Rotulo;

namespace {

constexpr int kVisiveisDaMoeda = 24;
constexpr int kVisiveisDoCodigo = 4;
constexpr int kModoDoAutoTeste = 3;
// Columns of each box: labels, fields, what is left over, button.
constexpr int kColunaDoCampo = 1;
constexpr int kColunaVaga = 2;
constexpr int kColunaDoBotao = 3;
const QString kRotuloMaisLargo = QStringLiteral("Moeda Singular:");

// What Tab reaches next.
QWidget *Seguinte(QWidget *controle)
{
    QWidget *seguinte = controle->nextInFocusChain();
    while (seguinte != controle && (seguinte->focusPolicy() & Qt::TabFocus) == 0)
        seguinte = seguinte->nextInFocusChain();
    return seguinte;
}

// The rules of a box that holds a payee's code.
plataforma::Regras RegrasDoCodigo(QLineEdit *campo)
{
    plataforma::Regras regras;
    regras.muda = [campo] { plataforma::CortaEm(campo, kTamanhoDoCodigo); };
    regras.deixa = [campo] {
        campo->setText(CodigoAoSair(campo->text()));
        return true;
    };
    return regras;
}

} // namespace

Configura::Configura(nucleo::Sistema &sistema, QWidget *pai)
    : Tela(QStringLiteral("Configura"), sistema.mensagens, pai), m_sistema(sistema)
{
    FicaAoLado(QStringLiteral("Configurações"));
    MontaControles();
    CentraNaTela();
    MostraConfiguracao();
}

// Controls

void Configura::MontaControles()
{
    auto *tudo = new QVBoxLayout(this);
    tudo->setContentsMargins(kMargem, kMargem, kMargem, kMargem);
    tudo->setSpacing(kMargem);
    for (QWidget *quadro : {MontaMoeda(), MontaInclusao(), MontaExclusao(), MontaPorta()})
        tudo->addWidget(quadro);
    tudo->addStretch(1);
    tudo->addLayout(MontaComandos());
}

QGridLayout *Configura::MontaQuadro(const QString &titulo)
{
    auto *quadro = new QGroupBox(titulo, this);
    auto *grade = new QGridLayout(quadro);
    grade->setHorizontalSpacing(kEspaco);
    grade->setVerticalSpacing(kEspaco);
    // One edge for the fields of all boxes.
    grade->setColumnMinimumWidth(0, fontMetrics().horizontalAdvance(kRotuloMaisLargo));
    grade->setColumnStretch(kColunaVaga, 1);
    return grade;
}

QWidget *Configura::MontaMoeda()
{
    QGridLayout *grade = MontaQuadro(QStringLiteral("Cadastro de Moeda na Impressora"));
    m_text1.Poe(0, new QLineEdit);
    m_text1.Poe(1, new QLineEdit);
    PoeCampo(grade, 0, kRotuloMaisLargo, m_text1(0), kVisiveisDaMoeda);
    PoeCampo(grade, 1, QStringLiteral("Moeda Plural:"), m_text1(1), kVisiveisDaMoeda);
    for (const auto &[indice, campo] : m_text1)
        RegistraCampo(campo);
    grade->addWidget(
        PoeBotao(QStringLiteral("Command3D1"), QStringLiteral("&Atualizar"), &Configura::AtualizaMoeda), 1,
        kColunaDoBotao);
    return grade->parentWidget();
}

QWidget *Configura::MontaInclusao()
{
    QGridLayout *grade = MontaQuadro(QStringLiteral("Cadastro de Favorecidos na Impressora"));
    m_text2.Poe(0, new QLineEdit);
    m_text2.Poe(1, new QLineEdit);
    PoeCampo(grade, 0, QStringLiteral("Codigo:"), m_text2(0), kVisiveisDoCodigo);
    PoeCampo(grade, 1, QStringLiteral("Favorecido:"), m_text2(1), kTamanhoDoNome);
    RegistraCampo(m_text2(0), RegrasDoCodigo(m_text2(0)));
    plataforma::Regras doNome;
    doNome.muda = [this] { plataforma::CortaEm(m_text2(1), kTamanhoDoNome); };
    RegistraCampo(m_text2(1), doNome);
    grade->addWidget(
        PoeBotao(QStringLiteral("Command3D2"), QStringLiteral("A&tualizar"), &Configura::IncluiFavorecido), 1,
        kColunaDoBotao);
    return grade->parentWidget();
}

QWidget *Configura::MontaExclusao()
{
    QGridLayout *grade = MontaQuadro(QStringLiteral("Exclusão de Favorecidos da Impressora"));
    m_text3 = new QLineEdit;
    m_text3->setObjectName(QStringLiteral("Text3"));
    m_option3D2 = new QRadioButton(QStringLiteral("Todos"));
    m_option3D2->setObjectName(QStringLiteral("Option3D2"));
    PoeCampo(grade, 0, QStringLiteral("Codigo:"), m_text3, kVisiveisDoCodigo);
    grade->addWidget(m_option3D2, 0, kColunaVaga, Qt::AlignLeft);
    RegistraCampo(m_text3, RegrasDoCodigo(m_text3));
    RegistraOpcao(m_option3D2);
    connect(m_option3D2, &QRadioButton::clicked, this, [this] { Guarda([this] { LigaTodos(); }); });
    grade->addWidget(
        PoeBotao(QStringLiteral("Command3D4"), QStringLiteral("At&ualizar"), &Configura::ExcluiFavorecido), 0,
        kColunaDoBotao);
    return grade->parentWidget();
}

QWidget *Configura::MontaPorta()
{
    QGridLayout *grade = MontaQuadro(QStringLiteral("Porta Serial"));
    auto *opcoes = new QHBoxLayout;
    opcoes->setSpacing(kMargem * 2);
    for (int i = 0; i < kPortas; ++i) {
        m_option3D3.Poe(i, new QRadioButton(QStringLiteral("COM&%1").arg(i + 1)));
        opcoes->addWidget(m_option3D3(i));
        RegistraOpcao(m_option3D3(i));
    }
    grade->addLayout(opcoes, 0, 0, 1, kColunaVaga);
    grade->addWidget(
        PoeBotao(QStringLiteral("Command3D7"), QStringLiteral("Atua&lizar"), &Configura::AtualizaPorta), 0,
        kColunaDoBotao);
    return grade->parentWidget();
}

// Outside the box of the port: the self-test goes to the port in use, not to the one that is being chosen.
QLayout *Configura::MontaComandos()
{
    auto *linha = new QHBoxLayout;
    linha->setSpacing(kEspaco);
    linha->addStretch(1);
    linha->addWidget(
        PoeBotao(QStringLiteral("Command3D9"), QStringLiteral("Aut&o-Teste"), &Configura::AutoTeste));
    auto *sair = new QPushButton(QStringLiteral("Sai&r"));
    sair->setObjectName(QStringLiteral("SSCommand1"));
    Registra(sair);
    connect(sair, &QPushButton::clicked, this, &Configura::close);
    linha->addWidget(sair);
    return linha;
}

void Configura::PoeCampo(QGridLayout *grade, int linha, const QString &rotulo, QLineEdit *campo,
                         int caracteres)
{
    campo->setFixedWidth(LarguraPara(campo, caracteres));
    grade->addWidget(Rotulo(rotulo, campo), linha, 0);
    grade->addWidget(campo, linha, kColunaDoCampo, Qt::AlignLeft);
}

QPushButton *Configura::PoeBotao(const QString &nome, const QString &texto, void (Configura::*acao)())
{
    auto *botao = new QPushButton(texto);
    botao->setObjectName(nome);
    Registra(botao);
    connect(botao, &QPushButton::clicked, this, [this, acao] { Guarda([this, acao] { (this->*acao)(); }); });
    return botao;
}

void Configura::RegistraCampo(QLineEdit *campo, plataforma::Regras regras)
{
    regras.chega = [this, campo] {
        campo->selectAll();
        // On purpose: the "*" stays in the box until something is typed over it.
        if (campo == m_text3)
            m_option3D2->setChecked(false);
    };
    regras.enter = [this, campo] { Caminha(Seguinte(campo)); };
    Registra(campo, regras);
}

void Configura::RegistraOpcao(QRadioButton *opcao)
{
    plataforma::Regras regras;
    regras.enter = [this, opcao] { Caminha(Seguinte(opcao)); };
    Registra(opcao, regras);
}

// Rules

void Configura::MostraConfiguracao()
{
    // So a new port takes effect here, without a restart.
    m_sistema.PortaSerial = nucleo::CarregaPorta(m_sistema.ini);
    m_option3D3(OpcaoDaPorta(m_sistema.PortaSerial))->setChecked(true);
    // One stop for Tab: the option that is on.
    for (const auto &[indice, opcao] : m_option3D3)
        opcao->setFocusPolicy(opcao->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
    const auto moeda = CarregaMoeda(m_sistema.ini);
    m_text1(0)->setText(moeda[0]);
    m_text1(1)->setText(moeda[1]);
}

void Configura::LigaTodos()
{
    // Alone in its box, the option would go off with a second click.
    m_option3D2->setChecked(true);
    m_text3->setText(kTodosOsFavorecidos);
}

TextosDaConfiguracao Configura::NaTela() const
{
    return {
        {m_text1(0)->text(), m_text1(1)->text()}, {m_text2(0)->text(), m_text2(1)->text()}, m_text3->text()};
}

void Configura::Recusado(const Recusa &recusa, QWidget *campo)
{
    m_sistema.mensagens.MsgBox(recusa.texto, Botoes::Ok, Icone::Exclamacao, recusa.titulo);
    MoveFoco(campo);
}

void Configura::EnviaConfiguracao(Envio envio)
{
    device::EnviaConfiguracao(envio, NaTela(), m_sistema);
}

void Configura::AtualizaMoeda()
{
    if (const auto recusa = VerificaMoeda(NaTela()))
        Recusado(*recusa, m_text1(recusa->campo));
    else
        EnviaConfiguracao(Envio::Moeda);
}

void Configura::IncluiFavorecido()
{
    if (const auto recusa = VerificaInclusao(NaTela()))
        Recusado(*recusa, m_text2(recusa->campo));
    else
        EnviaConfiguracao(Envio::Inclusao);
}

void Configura::ExcluiFavorecido()
{
    if (const auto recusa = VerificaExclusao(NaTela(), m_option3D2->isChecked()))
        Recusado(*recusa, m_text3);
    else
        EnviaConfiguracao(Envio::Exclusao);
}

// On purpose: the port in memory stays the old one, until this screen is opened again.
void Configura::AtualizaPorta()
{
    int opcao = 0;
    while (opcao < kPortas - 1 && !m_option3D3(opcao)->isChecked())
        ++opcao;
    GravaPorta(m_sistema.ini, PortaDaOpcao(opcao));
    m_sistema.mensagens.MsgBox(QStringLiteral("Porta serial configurada. Você deve reiniciar o aplicativo."),
                               Botoes::Ok, Icone::Nenhum, QStringLiteral("Configuração da Porta Serial"));
}

void Configura::AutoTeste()
{
    const auto resposta =
        m_sistema.mensagens.MsgBox(QStringLiteral("Insira o papel na impressora."), Botoes::OkCancelar,
                                   Icone::Nenhum, QStringLiteral("Auto-teste na impressora"));
    if (resposta == nucleo::Resposta::Ok)
        EnviaFormatado(TextoDoAutoTeste(m_sistema.PortaSerial), kModoDoAutoTeste, m_sistema.PortaSerial,
                       m_sistema.impressora, m_sistema.mensagens);
}

} // namespace device
