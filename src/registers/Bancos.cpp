// See Bancos.h.
#include "registers/Bancos.h"

#include "device/Fluxos.h"
#include "nucleo/Mensagens.h"
#include "nucleo/Sistema.h"
#include "plataforma/basico/Texto.h"
#include "plataforma/tela/Formulario.h"
#include "plataforma/tela/Lista.h"
#include "registers/Ajusta.h"
#include "registers/RegrasDoCadastro.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace registers {

using namespace nucleo;
using plataforma::kEspaco;
using plataforma::kMargem;
using plataforma::LarguraPara;
using plataforma::Rotulo;

namespace {

constexpr int kAlgarismosVisiveis = 4;
constexpr int kLetrasDoNome = 30;
constexpr int kLetrasDaLista = 36;

// Labels by box, as the operator reads them; the date's three boxes share one.
QString RotuloDaCaixa(int indice)
{
    const QString rotulos[] = {QStringLiteral("Codigo:"),          QStringLiteral("Nome:"),
                               QStringLiteral("Valor Numérico:"),  QStringLiteral("Valor Extenso 1:"),
                               QStringLiteral("Valor Extenso 2:"), QStringLiteral("Nome Favorecido:"),
                               QStringLiteral("Cidade:")};
    if (indice >= kCaixaDoDia)
        return QStringLiteral("Dia/Mês/Ano:");
    return rotulos[indice < kPrimeiraColuna ? indice : indice - kPrimeiraColuna + kPrimeiraLinha];
}

} // namespace

Cadastro::Forma Bancos::FormaDosBancos()
{
    Forma forma{QStringLiteral("Bancos"),
                QStringLiteral("Cadastro de Bancos"),
                SelBancos,
                {},
                QStringLiteral("Pesquisar por:"),
                QStringLiteral("SSCommand1"),
                QStringLiteral("Imprimir Lista"),
                QStringLiteral("Bancos"),
                QStringLiteral(" Bancos Cadastrados"),
                QStringLiteral("Selecione um banco..."),
                true};
    for (int i = 0; i < kCaixasDoBanco; ++i)
        forma.caixas.push_back({RotuloDaCaixa(i), CampoDaCaixa(i), LimiteDaCaixa(i),
                                i == kCaixaDoNome ? QString() : kTresDigitos});
    return forma;
}

Bancos::Bancos(Sistema &sistema, AbreSaida abreSaida, QWidget *pai)
    : Cadastro(sistema, FormaDosBancos(), std::move(abreSaida), pai)
{
    MontaControles();
    // Its OK would write over what is typed now.
    for (int i = 0; i < kCaixasDoBanco; ++i)
        connect(Text1(i), &QLineEdit::textEdited, this, [this] { FechaAjuste(); });
    Carrega();
}

Bancos::~Bancos() = default;

// The form

void Bancos::MontaControles()
{
    auto *lado = new QHBoxLayout;
    lado->setSpacing(kEspaco * 2);
    lado->addLayout(MontaDados());
    lado->addLayout(MontaLista(), 1);
    List1()->setMinimumWidth(LarguraPara(Text2(), kLetrasDaLista));
    auto *tudo = new QVBoxLayout(this);
    tudo->setContentsMargins(kMargem, kMargem, kMargem, kMargem);
    tudo->setSpacing(kMargem);
    tudo->addLayout(lado, 1);
    tudo->addLayout(MontaComandos());
    OrdenaTab({0, 1, 2, 7, 3, 8, 4, 9, 5, 10, 6, 11, 12, 13, 14}, m_command3D2);
}

QLayout *Bancos::MontaDados()
{
    auto *nome = new QHBoxLayout;
    nome->setSpacing(kEspaco);
    nome->addWidget(Rotulo(RotuloDaCaixa(kCaixaDoCodigo), Text1(kCaixaDoCodigo)));
    nome->addWidget(Text1(kCaixaDoCodigo));
    nome->addSpacing(kEspaco);
    nome->addWidget(Rotulo(RotuloDaCaixa(kCaixaDoNome), Text1(kCaixaDoNome)));
    nome->addWidget(Text1(kCaixaDoNome), 1);
    Text1(kCaixaDoCodigo)->setFixedWidth(LarguraPara(Text1(kCaixaDoCodigo), kAlgarismosVisiveis));
    Text1(kCaixaDoNome)->setMinimumWidth(LarguraPara(Text1(kCaixaDoNome), kLetrasDoNome));

    auto *blocos = new QHBoxLayout;
    blocos->setSpacing(kEspaco * 2);
    blocos->addWidget(MontaBloco({RotuloDaCaixa(2), RotuloDaCaixa(3), RotuloDaCaixa(4)}, 2, 7));
    blocos->addWidget(MontaBloco({RotuloDaCaixa(5), RotuloDaCaixa(6)}, 5, 10));

    m_command3D2 = new QPushButton(QStringLiteral("Ajuste Gráfico"));
    m_command3D2->setObjectName(QStringLiteral("Command3D2"));
    Registra(m_command3D2);
    connect(m_command3D2, &QPushButton::clicked, this, [this] { Guarda([this] { AbreAjuste(); }); });
    auto *daData = new QHBoxLayout;
    daData->setSpacing(kEspaco * 2);
    daData->addWidget(MontaData());
    daData->addStretch(1);
    daData->addWidget(m_command3D2, 0, Qt::AlignBottom);

    auto *dados = new QVBoxLayout;
    dados->setSpacing(kMargem);
    dados->addLayout(nome);
    dados->addLayout(blocos);
    dados->addLayout(daData);
    dados->addStretch(1);
    return dados;
}

// Rows of a label, a line box and a column box.
QWidget *Bancos::MontaBloco(const QStringList &rotulos, int primeiraLinha, int primeiraColuna)
{
    auto *quadro = new QGroupBox(QStringLiteral("Linha / Coluna"));
    auto *grade = new QGridLayout(quadro);
    grade->setHorizontalSpacing(kEspaco);
    grade->setVerticalSpacing(kEspaco);
    for (int linha = 0; linha < rotulos.size(); ++linha) {
        grade->addWidget(Rotulo(rotulos.at(linha), Text1(primeiraLinha + linha)), linha, 0);
        PoeNumero(grade, primeiraLinha + linha, linha, 1);
        PoeNumero(grade, primeiraColuna + linha, linha, 2);
        Text1(primeiraLinha + linha)->setAccessibleName(rotulos.at(linha) + QStringLiteral(" Linha"));
        Text1(primeiraColuna + linha)->setAccessibleName(rotulos.at(linha) + QStringLiteral(" Coluna"));
    }
    grade->setRowStretch(static_cast<int>(rotulos.size()), 1);
    grade->setColumnStretch(0, 1);
    return quadro;
}

QWidget *Bancos::MontaData()
{
    auto *quadro = new QGroupBox(QStringLiteral("Colunas"));
    auto *grade = new QGridLayout(quadro);
    grade->setHorizontalSpacing(kEspaco);
    grade->addWidget(Rotulo(RotuloDaCaixa(kCaixaDoDia), Text1(kCaixaDoDia)), 0, 0);
    const QString partes[] = {QStringLiteral(" Dia"), QStringLiteral(" Mês"), QStringLiteral(" Ano")};
    for (int parte = 0; parte < 3; ++parte) {
        PoeNumero(grade, kCaixaDoDia + parte, 0, parte + 1);
        Text1(kCaixaDoDia + parte)->setAccessibleName(RotuloDaCaixa(kCaixaDoDia) + partes[parte]);
    }
    return quadro;
}

void Bancos::PoeNumero(QGridLayout *grade, int indice, int linha, int coluna)
{
    QLineEdit *caixa = Text1(indice);
    caixa->setAlignment(Qt::AlignRight);
    caixa->setFixedWidth(LarguraPara(caixa, kAlgarismosVisiveis));
    grade->addWidget(caixa, linha, coluna);
}

// Boxes

TextosDoBanco Bancos::Textos() const
{
    TextosDoBanco textos;
    for (int i = 0; i < kCaixasDoBanco; ++i)
        textos.at(static_cast<std::size_t>(i)) = Texto(i);
    return textos;
}

void Bancos::PoeCaixa(int indice, const QString &texto)
{
    Text1(indice)->setText(texto);
}

void Bancos::LimpaCampos()
{
    FechaAjuste();
    Cadastro::LimpaCampos();
}

bool Bancos::MostraLinha(const QString &linha)
{
    FechaAjuste();
    const QString codigo = plataforma::Left(linha, LimiteDaCaixa(kCaixaDoCodigo));
    if (codigo.isEmpty())
        return true;
    if (Dados().armazem.BuscaPorCodigo(codigo, SelBancos) != 1)
        return false;
    const plataforma::Dynaset &banco = Dados().armazem.Conjunto(SelBancos);
    for (int i = 0; i < kCaixasDoBanco; ++i)
        PoeCaixa(i, banco.Field(CampoDaCaixa(i)));
    return true;
}

// Device and settings file

bool Bancos::EnviaAoDispositivo(int comando)
{
    if ((comando != kIncluir && comando != kAlterar) || !TodasCheias())
        return true;
    if (Dados().mensagens.MsgBox(QStringLiteral("Deseja Atualizar na Impressora?"), Botoes::SimNao,
                                 Icone::Nenhum, kComando) != Resposta::Sim)
        return true;
    device::TextosDoComando textos;
    textos.banco = Textos();
    return device::ComandoImpressora(device::kIncluiBanco, textos, Dados().PortaSerial, Dados().impressora,
                                     Dados().mensagens) != 0;
}

void Bancos::Gravado()
{
    const QString resultado = Dados().ini.GravaIni(kFormato, Texto(kCaixaDoCodigo), TextoDoFormato(Textos()));
    if (FormatoFalhou(resultado))
        Avisa(QStringLiteral("Problemas na alteracao do arquivo QX70.INI"));
}

// The graphic adjustment

void Bancos::AbreAjuste()
{
    if (Texto(kCaixaDoCodigo).isEmpty() || Texto(kCaixaDoNome).isEmpty())
        return;
    if (m_ajusta && m_ajusta->isVisible()) {
        m_ajusta->raise();
        m_ajusta->activateWindow();
        return;
    }
    const TextosDoBanco prontos = PreparaAjuste(Textos());
    for (int i = kPrimeiraLinha; i < kCaixasDoBanco; ++i)
        PoeCaixa(i, prontos.at(static_cast<std::size_t>(i)));
    for (int i = kPrimeiraLinha; i < kPrimeiraColuna; ++i)
        Dados().AjusteL.at(static_cast<std::size_t>(i - kPrimeiraLinha)) = Texto(i);
    for (int i = kPrimeiraColuna; i < kCaixasDoBanco; ++i)
        Dados().AjusteC.at(static_cast<std::size_t>(i - kPrimeiraColuna)) = Texto(i);
    delete m_ajusta; // one that was closed and is about to go
    m_ajusta = new Ajusta(Dados(), *this, this);
    m_ajusta->show();
    m_ajusta->raise();
    m_ajusta->activateWindow();
}

void Bancos::FechaAjuste()
{
    if (m_ajusta)
        m_ajusta->close();
}

void Bancos::closeEvent(QCloseEvent *evento)
{
    FechaAjuste();
    Cadastro::closeEvent(evento);
}

} // namespace registers
