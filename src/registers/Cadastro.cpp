// See Cadastro.h.
#include "registers/Cadastro.h"

#include "nucleo/Mensagens.h"
#include "nucleo/Sistema.h"
#include "plataforma/basico/Ocupado.h"
#include "plataforma/basico/RuntimeError.h"
#include "plataforma/basico/Teclas.h"
#include "plataforma/tela/CampoTexto.h"
#include "plataforma/tela/Formulario.h"
#include "plataforma/tela/Lista.h"
#include "registers/PreencheLista.h"
#include "registers/RegrasDoCadastro.h"

#include <algorithm>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace registers {

using namespace nucleo;
using plataforma::kEspaco;

namespace {

constexpr int kPrimeira = 0; // the box of the code

int Flag(int tabela, int aberta)
{
    return tabela == aberta ? 1 : 0;
}

} // namespace

Cadastro::Cadastro(Sistema &sistema, Forma forma, AbreSaida abreSaida, QWidget *pai)
    : Tela(forma.nome, sistema.mensagens, pai), m_sistema(sistema), m_forma(std::move(forma)),
      m_abreSaida(std::move(abreSaida))
{
    FicaAoLado(m_forma.titulo);
    MontaCaixas();
}

Cadastro::~Cadastro() = default;

// The form

void Cadastro::MontaCaixas()
{
    for (std::size_t n = 0; n < m_forma.caixas.size(); ++n) {
        const int i = static_cast<int>(n);
        auto *caixa = new QLineEdit(this);
        m_text1.Poe(i, caixa);
        caixa->setAccessibleName(m_forma.caixas[n].rotulo);
        plataforma::Regras regras;
        regras.chega = [caixa] { caixa->selectAll(); };
        regras.muda = [caixa, limite = m_forma.caixas[n].limite] { plataforma::CortaEm(caixa, limite); };
        regras.deixa = [this, i] {
            DeixaCaixa(i);
            return true;
        };
        regras.enter = [this, i] { EnterNaCaixa(i); };
        Registra(caixa, regras);
    }
}

QLayout *Cadastro::MontaLista()
{
    m_text2 = new QLineEdit;
    m_text2->setObjectName(QStringLiteral("Text2"));
    m_list1 = new plataforma::Lista;
    m_list1->setObjectName(QStringLiteral("List1"));
    m_list1->setAccessibleName(m_forma.titulo);

    plataforma::Regras daBusca;
    daBusca.chega = [this] { m_text2->selectAll(); };
    daBusca.muda = [this] { Procura(); };
    const auto desce = [this] {
        if (m_list1->Quantas() > 0)
            Caminha(m_list1);
    };
    daBusca.enter = desce;
    daBusca.tecla = [desce](int tecla) {
        if (tecla == plataforma::TeclaAbaixo)
            desce();
    };
    Registra(m_text2, daBusca);
    plataforma::Regras daLista;
    daLista.enter = [this] { Caminha(m_text1(kPrimeira + 1)); };
    Registra(m_list1, daLista);
    connect(m_list1, &plataforma::Lista::Clicada, this, [this] { Guarda([this] { Escolhe(); }); });

    auto *busca = new QHBoxLayout;
    busca->setSpacing(kEspaco);
    busca->addWidget(plataforma::Rotulo(m_forma.rotuloDaBusca, m_text2));
    busca->addWidget(m_text2, 1);
    auto *tudo = new QVBoxLayout;
    tudo->setSpacing(kEspaco);
    tudo->addLayout(busca);
    tudo->addWidget(m_list1, 1);
    return tudo;
}

QLayout *Cadastro::MontaComandos()
{
    m_imprime = new QPushButton(m_forma.textoDaImpressao);
    m_imprime->setObjectName(m_forma.controleDaImpressao);
    m_imprime->setEnabled(static_cast<bool>(m_abreSaida));
    Registra(m_imprime);
    connect(m_imprime, &QPushButton::clicked, this, [this] { Guarda([this] { ImprimeLista(); }); });
    const std::pair<int, QString> comandos[] = {{kIncluir, QStringLiteral("&Incluir")},
                                                {kAlterar, QStringLiteral("&Alterar")},
                                                {kExcluir, QStringLiteral("&Excluir")},
                                                {kFechar, QStringLiteral("Fecha&r")}};
    for (const auto &[i, texto] : comandos) {
        auto *botao = new QPushButton(texto);
        m_command3D1.Poe(i, botao);
        Registra(botao);
        connect(botao, &QPushButton::clicked, this, [this, i = i] { Guarda([this, i] { Clica(i); }); });
    }
    auto *linha = plataforma::LinhaDeBotoes(m_command3D1);
    linha->insertWidget(0, m_imprime);
    return linha;
}

void Cadastro::OrdenaTab(const std::vector<int> &caixas, QWidget *antes)
{
    std::vector<QWidget *> ordem;
    std::transform(caixas.begin(), caixas.end(), std::back_inserter(ordem),
                   [this](int i) { return m_text1(i); });
    if (antes)
        ordem.push_back(antes);
    ordem.insert(ordem.end(), {m_text2, m_list1, m_imprime});
    for (const auto &[i, botao] : m_command3D1)
        ordem.push_back(botao);
    for (std::size_t i = 1; i < ordem.size(); ++i)
        setTabOrder(ordem[i - 1], ordem[i]);
}

void Cadastro::Carrega()
{
    // The code of a chosen row cannot be changed, but must be read.
    QPalette legivel = m_text1(kPrimeira)->palette();
    legivel.setColor(QPalette::Disabled, QPalette::Text, legivel.color(QPalette::Active, QPalette::Text));
    m_text1(kPrimeira)->setPalette(legivel);
    CentraNaTela();
    HabilitaBotoes(true, false, false, true);
    if (AbreTabela() == kSemBanco) {
        m_sistema.FechaTela = 1;
        DizQueFalta();
        return;
    }
    LimpaCampos();
    PreencheLista(*m_list1, m_sistema.armazem, m_forma.tabela);
    m_text1(kPrimeira)->setFocus();
}

void Cadastro::closeEvent(QCloseEvent *evento)
{
    m_sistema.armazem.FechaBanco(Flag(m_forma.tabela, SelBancos), Flag(m_forma.tabela, SelFavorecido),
                                 Flag(m_forma.tabela, SelCidade), 0);
    evento->accept();
}

// The store

// Opened anew before each click that writes or counts: a file that was moved away must not take a row with
// it.
int Cadastro::AbreTabela()
{
    return m_sistema.armazem.AbreBanco(Flag(m_forma.tabela, SelBancos), Flag(m_forma.tabela, SelFavorecido),
                                       Flag(m_forma.tabela, SelCidade), 0, 0);
}

void Cadastro::DizQueFalta()
{
    Avisa(TextoBancoNaoEncontrado(m_sistema.ArquivoDados));
}

void Cadastro::Avisa(const QString &texto)
{
    m_sistema.mensagens.MsgBox(texto, Botoes::Ok, Icone::Exclamacao, kErro);
}

void Cadastro::MostraTodas()
{
    m_sistema.armazem.BuscaPorCodigo(QString(), m_forma.tabela);
    PreencheLista(*m_list1, m_sistema.armazem, m_forma.tabela);
}

// Boxes and list

QString Cadastro::Texto(int indice) const
{
    return m_text1(indice)->text();
}

bool Cadastro::TodasCheias() const
{
    return std::all_of(m_text1.begin(), m_text1.end(),
                       [](const auto &caixa) { return !caixa.second->text().isEmpty(); });
}

void Cadastro::DeixaCaixa(int indice)
{
    const QString &padrao = m_forma.caixas.at(static_cast<std::size_t>(indice)).padrao;
    if (!padrao.isEmpty())
        m_text1(indice)->setText(NumeroAoSair(Texto(indice), padrao));
}

void Cadastro::EnterNaCaixa(int indice)
{
    if (m_text1.Tem(indice + 1))
        Caminha(m_text1(indice + 1));
    else
        Caminha(m_command3D1(kIncluir)->isEnabled() ? m_command3D1(kIncluir) : m_command3D1(kAlterar));
}

// What was typed can make a query that the engine refuses; a message box would come at each key.
void Cadastro::Procura()
{
    try {
        m_sistema.armazem.FiltraRegistros(m_text2->text(), m_forma.tabela);
        PreencheLista(*m_list1, m_sistema.armazem, m_forma.tabela);
    } catch (const plataforma::RuntimeError &) {
        m_list1->Esvazia();
    }
}

void Cadastro::HabilitaBotoes(bool incluir, bool alterar, bool excluir, bool fechar)
{
    m_command3D1(kIncluir)->setEnabled(incluir);
    m_command3D1(kAlterar)->setEnabled(alterar);
    m_command3D1(kExcluir)->setEnabled(excluir);
    m_command3D1(kFechar)->setEnabled(fechar);
    m_text1(kPrimeira)->setEnabled(!alterar && !excluir);
}

void Cadastro::Escolhe()
{
    HabilitaBotoes(true, true, true, true);
    try {
        if (MostraLinha(m_list1->TextoCorrente()))
            return;
    } catch (const plataforma::RuntimeError &) {
        SoltaEscolha();
        throw;
    }
    // Another program has taken the row away meanwhile.
    SoltaEscolha();
    Avisa(QStringLiteral("Codigo nao encontrado..."));
    Procura();
}

// Boxes of one row beside another that is current in the list would be changed or deleted in its place.
void Cadastro::SoltaEscolha()
{
    for (const auto &[i, caixa] : m_text1)
        caixa->clear();
    m_list1->PoeCorrente(-1);
    HabilitaBotoes(true, false, false, true);
}

void Cadastro::LimpaCampos()
{
    if (!m_forma.esvaziaCaixas)
        return;
    for (const auto &[i, caixa] : m_text1)
        caixa->clear();
    m_text2->clear();
}

// The four buttons

bool Cadastro::EnviaAoDispositivo(int)
{
    return true;
}

void Cadastro::Clica(int comando)
{
    // On purpose before the checks: the device may get what the store then refuses.
    if (!EnviaAoDispositivo(comando))
        return;
    if (comando == kIncluir && m_command3D1(kAlterar)->isEnabled()) {
        HabilitaBotoes(true, false, false, true);
        LimpaCampos();
        MoveFoco(m_text1(kPrimeira));
        return;
    }
    if (comando == kFechar) {
        close();
        return;
    }
    if (!Valida(comando))
        return;
    {
        const plataforma::Espera espera(m_sistema.ocupado);
        if (Executa(comando))
            MostraTodas();
    }
    // Behind the wait, which lets no screen close.
    LimpaCampos();
    MoveFoco(m_text1(kPrimeira));
}

bool Cadastro::Valida(int comando)
{
    for (const auto &[i, caixa] : m_text1) {
        if (!caixa->text().isEmpty())
            continue;
        Avisa(QStringLiteral("Campo Inválido..."));
        MoveFoco(caixa);
        return false;
    }
    if (AbreTabela() == kSemBanco) {
        DizQueFalta();
        return false;
    }
    const bool achado = m_sistema.armazem.BuscaPorCodigo(Texto(kPrimeira), m_forma.tabela) == 1;
    if (achado != (comando == kIncluir))
        return true;
    Avisa(achado ? QStringLiteral("Codigo ja cadastrado...") : QStringLiteral("Codigo nao encontrado..."));
    if (m_text1(kPrimeira)->isEnabled())
        MoveFoco(m_text1(kPrimeira));
    return false;
}

// @return whether the list is to be filled again
bool Cadastro::Executa(int comando)
{
    if (comando == kIncluir)
        return Inclui();
    AlteraOuExclui(comando);
    return true;
}

bool Cadastro::Inclui()
{
    // On purpose: a row that is still current in the list keeps the new one out of the store.
    if (!m_list1->TextoCorrente().isEmpty()) {
        if (!m_forma.esvaziaCaixas)
            m_list1->PoeCorrente(-1);
        return false;
    }
    HabilitaBotoes(true, false, false, true);
    m_sistema.armazem.Conjunto(m_forma.tabela).AddNew();
    PoeNaLinha();
    return true;
}

void Cadastro::AlteraOuExclui(int comando)
{
    plataforma::Dynaset &conjunto = m_sistema.armazem.Conjunto(m_forma.tabela);
    if (m_list1->TextoCorrente().isEmpty()) {
        Avisa(m_forma.selecione);
    } else if (comando == kAlterar) {
        conjunto.Edit();
        PoeNaLinha();
    } else {
        conjunto.Delete();
    }
    if (!m_forma.esvaziaCaixas)
        m_list1->PoeCorrente(-1);
    HabilitaBotoes(true, false, false, true);
}

void Cadastro::PoeNaLinha()
{
    plataforma::Dynaset &conjunto = m_sistema.armazem.Conjunto(m_forma.tabela);
    for (const auto &[i, caixa] : m_text1)
        conjunto.SetField(m_forma.caixas.at(static_cast<std::size_t>(i)).campo, caixa->text());
    conjunto.Update();
    Gravado();
}

// The listing

void Cadastro::ImprimeLista()
{
    m_sistema.NomeListagem = m_forma.nomeDaListagem;
    if (AbreTabela() == kSemBanco) {
        DizQueFalta();
        return;
    }
    const auto linhas = m_sistema.armazem.Conjunto(m_forma.tabela).RecordCount();
    if (linhas == 0)
        Avisa(QStringLiteral("Não Existe Lançamentos a Serem Impressos"));
    else
        m_abreSaida(this, LegendaDoTotal(linhas, m_forma.depoisDoTotal));
}

} // namespace registers
