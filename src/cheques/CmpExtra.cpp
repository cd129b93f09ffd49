// See CmpExtra.h.
#include "cheques/CmpExtra.h"

#include "nucleo/Mensagens.h"
#include "nucleo/Sistema.h"
#include "plataforma/basico/Numero.h"
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

namespace cheques {

using plataforma::kEspaco;
using plataforma::kMargem;
using plataforma::LarguraPara;
using plataforma::Rotulo;

namespace {

constexpr int kAlgarismosVisiveis = 6;
// The gap at 1 is as old as the screen.
constexpr int kSalvar = 0;
constexpr int kFechar = 2;

} // namespace

CmpExtra::CmpExtra(nucleo::Sistema &sistema, QWidget *pai)
    : Tela(QStringLiteral("CmpExtra"), sistema.mensagens, pai), m_sistema(sistema)
{
    FicaAoLado(QStringLiteral("Programa Campo"));
    MontaControles();
    CentraNaTela();
    for (int n = 0; n < kCamposExtras; ++n)
        m_posicoes.at(static_cast<std::size_t>(n)) = LePosicaoExtra(m_sistema.ini, n);
}

void CmpExtra::MontaControles()
{
    auto *quadros = new QHBoxLayout;
    quadros->setSpacing(kEspaco * 2);
    quadros->addWidget(MontaNumero());
    quadros->addWidget(MontaPosicao(), 1);
    auto *tudo = new QVBoxLayout(this);
    tudo->setContentsMargins(kMargem, kMargem, kMargem, kMargem);
    tudo->setSpacing(kMargem);
    tudo->addLayout(quadros, 1);
    tudo->addLayout(MontaComandos());
}

QWidget *CmpExtra::MontaNumero()
{
    auto *quadro = new QGroupBox(QStringLiteral("Número"), this);
    auto *caixa = new QVBoxLayout(quadro);
    caixa->setSpacing(kEspaco);
    for (int n = 0; n < kCamposExtras; ++n) {
        auto *opcao = new QRadioButton(QStringLiteral("Campo %1").arg(n + 1));
        m_cmdNumCampo.Poe(n, opcao);
        caixa->addWidget(opcao);
        Registra(opcao);
        connect(opcao, &QRadioButton::clicked, this, [this, n] { Guarda([this, n] { MostraCampo(n); }); });
    }
    caixa->addStretch(1);
    return quadro;
}

QWidget *CmpExtra::MontaPosicao()
{
    auto *quadro = new QGroupBox(QStringLiteral("Posição:"), this);
    auto *grade = new QGridLayout(quadro);
    grade->setHorizontalSpacing(kEspaco);
    grade->setVerticalSpacing(kEspaco);
    for (const int lado : {LadoLinha, LadoColuna}) {
        auto *campo = new QLineEdit;
        m_posText.Poe(lado, campo);
        campo->setAlignment(Qt::AlignRight);
        campo->setFixedWidth(LarguraPara(campo, kAlgarismosVisiveis));
        grade->addWidget(
            Rotulo(lado == LadoLinha ? QStringLiteral("Linha:") : QStringLiteral("Coluna:"), campo), lado, 0);
        grade->addWidget(campo, lado, 1);
        plataforma::Regras regras;
        regras.chega = [campo] { campo->selectAll(); };
        regras.muda = [this, lado] { MudaPosicao(lado); };
        regras.enter = [this, lado] {
            Caminha(lado == LadoLinha ? static_cast<QWidget *>(m_posText(LadoColuna)) : m_btnCmd(kSalvar));
        };
        Registra(campo, regras);
    }
    grade->setColumnStretch(2, 1);
    grade->setRowStretch(2, 1);
    return quadro;
}

QLayout *CmpExtra::MontaComandos()
{
    m_btnCmd.Poe(kSalvar, new QPushButton(QStringLiteral("Salvar"), this));
    m_btnCmd.Poe(kFechar, new QPushButton(QStringLiteral("Fechar"), this));
    for (const auto &[indice, botao] : m_btnCmd)
        Registra(botao);
    connect(m_btnCmd(kSalvar), &QPushButton::clicked, this, [this] { Guarda([this] { Salva(); }); });
    connect(m_btnCmd(kFechar), &QPushButton::clicked, this, &CmpExtra::close);
    return LinhaDeBotoes(m_btnCmd);
}

void CmpExtra::MostraCampo(int n)
{
    const auto textos = TextosDaPosicao(m_posicoes.at(static_cast<std::size_t>(n)));
    for (const int lado : {LadoLinha, LadoColuna})
        m_posText(lado)->setText(textos.at(static_cast<std::size_t>(lado)));
}

void CmpExtra::MudaPosicao(int lado)
{
    QLineEdit *campo = m_posText(lado);
    plataforma::DeixaSoDigitos(campo);
    if (const auto cortada = CortaPosicao(lado, campo->text())) {
        campo->setText(*cortada);
        m_sistema.mensagens.MsgBox(nucleo::kTamanhoMaximo, nucleo::Botoes::Ok, nucleo::Icone::Exclamacao,
                                   nucleo::kErro);
    }
}

int CmpExtra::CampoSelecionado()
{
    for (const auto &[n, opcao] : m_cmdNumCampo)
        if (opcao->isChecked())
            return n;
    // Without its click rule, which would empty the boxes that are being saved.
    m_cmdNumCampo(0)->setChecked(true);
    return 0;
}

void CmpExtra::Salva()
{
    const QString linha = m_posText(LadoLinha)->text();
    const QString coluna = m_posText(LadoColuna)->text();
    if (!PosicaoAceita(linha, coluna)) {
        m_sistema.mensagens.MsgBox(QStringLiteral("Campo incorreto"), nucleo::Botoes::Ok,
                                   nucleo::Icone::Exclamacao, nucleo::kErro);
        return;
    }
    const int n = CampoSelecionado();
    PosicaoExtra &posicao = m_posicoes.at(static_cast<std::size_t>(n));
    posicao.linha = static_cast<std::int16_t>(plataforma::Val(linha));
    m_sistema.ini.GravaIni(kFrenteInfo, ChaveDaPosicao(n, LadoLinha), linha);
    posicao.coluna = static_cast<std::int16_t>(plataforma::Val(coluna));
    m_sistema.ini.GravaIni(kFrenteInfo, ChaveDaPosicao(n, LadoColuna), coluna);
}

} // namespace cheques
