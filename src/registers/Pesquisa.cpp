// See Pesquisa.h.
#include "registers/Pesquisa.h"

#include "nucleo/Mensagens.h"
#include "nucleo/Sistema.h"
#include "plataforma/basico/RuntimeError.h"
#include "plataforma/basico/Teclas.h"
#include "plataforma/tela/Formulario.h"
#include "plataforma/tela/Lista.h"
#include "registers/PreencheLista.h"
#include "registers/RegrasDaPesquisa.h"
#include "registers/RegrasDoCadastro.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace registers {

using namespace nucleo;
using plataforma::kEspaco;
using plataforma::kMargem;

namespace {

constexpr int kFechaComEscolha = 0;
constexpr int kCancelar = 1;
constexpr int kCadastrar = 2;
constexpr int kLetrasVisiveis = 48;
constexpr int kAlturaDaLista = 260; // pixels

} // namespace

Pesquisa::Pesquisa(Sistema &sistema, std::function<void(int)> cadastra, QWidget *pai)
    : Tela(QStringLiteral("Pesquisa"), sistema.mensagens, pai), m_sistema(sistema),
      m_cadastra(std::move(cadastra)), m_tipo(sistema.TipoPesquisa)
{
    FicaAoLado(QStringLiteral("Pesquisa"));
    MontaControles();
    CentraNaTela();
    Carrega();
}

void Pesquisa::MontaControles()
{
    m_text1 = new QLineEdit;
    m_text1->setObjectName(QStringLiteral("Text1"));
    m_text1->setMinimumWidth(plataforma::LarguraPara(m_text1, kLetrasVisiveis));
    m_list1 = new plataforma::Lista;
    m_list1->setObjectName(QStringLiteral("List1"));
    m_list1->setAccessibleName(QStringLiteral("Pesquisa"));
    m_list1->setMinimumHeight(kAlturaDaLista);
    m_command3D1.Poe(kFechaComEscolha, new QPushButton(QStringLiteral("Fecha&r")));
    m_command3D1.Poe(kCancelar, new QPushButton(QStringLiteral("&Cancelar")));
    m_command3D1.Poe(kCadastrar, new QPushButton(QStringLiteral("Ca&dastrar")));

    auto *busca = new QHBoxLayout;
    busca->setSpacing(kEspaco);
    busca->addWidget(plataforma::Rotulo(QStringLiteral("Procurar:"), m_text1));
    busca->addWidget(m_text1, 1);
    auto *tudo = new QVBoxLayout(this);
    tudo->setContentsMargins(kMargem, kMargem, kMargem, kMargem);
    tudo->setSpacing(kMargem);
    tudo->addLayout(busca);
    tudo->addWidget(m_list1, 1);
    tudo->addLayout(plataforma::LinhaDeBotoes(m_command3D1));

    plataforma::Regras daBusca;
    daBusca.chega = [this] { ChegaNaBusca(); };
    daBusca.muda = [this] { Procura(); };
    daBusca.enter = [this] { DesceParaALista(); };
    daBusca.tecla = [this](int tecla) {
        if (tecla == plataforma::TeclaAbaixo)
            DesceParaALista();
    };
    Registra(m_text1, daBusca);
    plataforma::Regras daLista;
    daLista.enter = [this] { Escolhe(); };
    Registra(m_list1, daLista);
    connect(m_list1, &plataforma::Lista::ClicadaDuasVezes, this, [this] { Guarda([this] { Escolhe(); }); });
    for (const auto &[i, botao] : m_command3D1)
        Registra(botao);
    connect(m_command3D1(kFechaComEscolha), &QPushButton::clicked, this,
            [this] { Guarda([this] { Escolhe(); }); });
    connect(m_command3D1(kCancelar), &QPushButton::clicked, this, &Pesquisa::close);
    connect(m_command3D1(kCadastrar), &QPushButton::clicked, this,
            [this] { Guarda([this] { Cadastra(); }); });
}

int Pesquisa::Flag(int tabela) const
{
    return m_tipo == tabela ? 1 : 0;
}

void Pesquisa::Carrega()
{
    m_sistema.TextoPesquisa.clear();
    if (m_sistema.armazem.AbreBanco(Flag(SelBancos), Flag(SelFavorecido), Flag(SelCidade), Flag(SelLog), 0) ==
        kSemBanco) {
        m_sistema.FechaTela = 1;
        m_sistema.mensagens.MsgBox(TextoBancoNaoEncontrado(m_sistema.ArquivoDados), Botoes::Ok,
                                   Icone::Exclamacao, kErro);
        return;
    }
    if (TemRegistros(m_tipo))
        PreencheLista(*m_list1, m_sistema.armazem, m_tipo);
    m_text1->setFocus();
}

void Pesquisa::closeEvent(QCloseEvent *evento)
{
    m_sistema.armazem.FechaBanco(Flag(SelBancos), Flag(SelFavorecido), Flag(SelCidade), Flag(SelLog));
    evento->accept();
    Q_EMIT Fechou();
}

void Pesquisa::ChegaNaBusca()
{
    if (m_list1->Quantas() > 0)
        return;
    const Resposta resposta = m_sistema.mensagens.MsgBox(
        QStringLiteral("Nao existe registro para pesquisar!!!\nDeseja cadastrar algum dado?"),
        Botoes::OkCancelar);
    if (resposta == Resposta::Ok)
        Cadastra();
    else
        close();
}

// What was typed can make a query that the engine refuses; a message box would come at each key.
void Pesquisa::Procura()
{
    if (!TemRegistros(m_tipo))
        return;
    try {
        m_sistema.armazem.PesquisaRegistros(m_text1->text(), m_tipo);
        PreencheLista(*m_list1, m_sistema.armazem, m_tipo);
    } catch (const plataforma::RuntimeError &) {
        m_list1->Esvazia();
    }
}

// By keys alone: what was sought, Enter, and the first row stands ready for a second Enter.
void Pesquisa::DesceParaALista()
{
    if (m_list1->Quantas() == 0)
        return;
    if (m_list1->Corrente() < 0)
        m_list1->PoeCorrente(0);
    Caminha(m_list1);
}

QString Pesquisa::Escolhido(const QString &linha)
{
    const QString codigo = CodigoDaEscolha(linha, m_tipo);
    if (codigo.isEmpty() || m_tipo == SelBancos || m_tipo == SelLog)
        return codigo;
    if (m_tipo == SelFavorecido)
        return m_sistema.armazem.NomeFavorecidoPorCodigo(codigo);
    // Not by NomeCidadePorCodigo, which does not test for a miss.
    return m_sistema.armazem.BuscaPorCodigo(codigo, SelCidade) == 1
               ? m_sistema.armazem.Conjunto(SelCidade).Field(kCampoNome)
               : QString();
}

void Pesquisa::Escolhe()
{
    // Also when the look-up fails: a choice that cannot be made is none.
    const QString linha = m_list1->TextoCorrente();
    Guarda([&] { m_sistema.TextoPesquisa = Escolhido(linha); });
    close();
}

void Pesquisa::Cadastra()
{
    // The popup first: whichever screen comes up last keeps the keyboard.
    close();
    if (TemRegistros(m_tipo))
        m_cadastra(m_tipo);
}

} // namespace registers
