// See Filtro.h.
#include "reports/Filtro.h"

#include "nucleo/Mensagens.h"
#include "nucleo/Relogio.h"
#include "nucleo/Sistema.h"
#include "plataforma/tela/CampoTexto.h"
#include "plataforma/tela/Formulario.h"
#include "reports/ConsultasDoLog.h"
#include "reports/RegrasDoFiltro.h"
#include "reports/Relato.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace reports {

using namespace nucleo;
using plataforma::kEspaco;
using plataforma::kMargem;
using plataforma::LarguraPara;
using plataforma::Rotulo;

namespace {

constexpr int kAceitar = 0;
constexpr int kCancelar = 1;
constexpr int kLetrasDoNome = 24;
constexpr int kLetrasDoTexto = 48;
const QStringList kRotulos = {QStringLiteral("Banco:"),  QStringLiteral("Data..:"),
                              QStringLiteral("Até..:"),  QStringLiteral("Valor.:"),
                              QStringLiteral("Até..:"),  QStringLiteral("Favorecido:"),
                              QStringLiteral("Cidade:"), QStringLiteral("Comentário:")};

} // namespace

Filtro::Filtro(Sistema &sistema, Relato &relato)
    : Tela(QStringLiteral("Filtro"), sistema.mensagens, &relato), m_sistema(sistema), m_relato(relato)
{
    FicaAoLado(QStringLiteral("Filtro"));
    MontaControles();
    CentraNaTela();
    m_text1(FiltroBanco)->setFocus();
}

void Filtro::MontaControles()
{
    for (int i = 0; i < kCamposDoFiltro; ++i) {
        m_text1.Poe(i, new QLineEdit(this));
        LigaCampo(i);
    }
    auto *tudo = new QVBoxLayout(this);
    tudo->setContentsMargins(kMargem, kMargem, kMargem, kMargem);
    tudo->setSpacing(kMargem);
    tudo->addLayout(MontaCampos());
    tudo->addStretch(1);
    tudo->addLayout(MontaComandos());
}

QLayout *Filtro::MontaCampos()
{
    m_label2 = new QLabel;
    m_label2->setObjectName(QStringLiteral("Label2"));
    m_label2->setAccessibleName(QStringLiteral("Nome do Banco"));
    m_label2->setTextFormat(Qt::PlainText);
    m_label2->setMinimumWidth(
        m_label2->fontMetrics().horizontalAdvance(QString(kLetrasDoNome, QLatin1Char('n'))));
    m_text1(FiltroBanco)->setFixedWidth(LarguraPara(m_text1(FiltroBanco), 4));
    for (const int i : {FiltroDataIni, FiltroDataFim})
        m_text1(i)->setFixedWidth(LarguraPara(m_text1(i), 10));
    for (const int i : {FiltroValorIni, FiltroValorFim}) {
        m_text1(i)->setAlignment(Qt::AlignRight);
        m_text1(i)->setFixedWidth(LarguraPara(m_text1(i), 16));
    }
    for (const int i : {FiltroFavor, FiltroLocal, FiltroComentario})
        m_text1(i)->setMinimumWidth(LarguraPara(m_text1(i), kLetrasDoTexto));

    auto *grade = new QGridLayout;
    grade->setHorizontalSpacing(kEspaco);
    grade->setVerticalSpacing(kEspaco);
    const auto rotulo = [&](int i, int linha, int coluna) {
        grade->addWidget(Rotulo(kRotulos.at(i), m_text1(i)), linha, coluna);
    };
    rotulo(FiltroBanco, 0, 0);
    grade->addWidget(m_text1(FiltroBanco), 0, 1);
    grade->addWidget(m_label2, 0, 2, 1, 3);
    for (const auto &[ini, fim, linha] :
         {std::tuple{FiltroDataIni, FiltroDataFim, 1}, std::tuple{FiltroValorIni, FiltroValorFim, 2}}) {
        rotulo(ini, linha, 0);
        grade->addWidget(m_text1(ini), linha, 1, Qt::AlignLeft);
        rotulo(fim, linha, 2);
        grade->addWidget(m_text1(fim), linha, 3, Qt::AlignLeft);
    }
    for (const auto &[i, linha] :
         {std::pair{FiltroFavor, 3}, std::pair{FiltroLocal, 4}, std::pair{FiltroComentario, 5}}) {
        rotulo(i, linha, 0);
        grade->addWidget(m_text1(i), linha, 1, 1, 4);
    }
    grade->setColumnStretch(4, 1);
    return grade;
}

QLayout *Filtro::MontaComandos()
{
    m_command3D1.Poe(kAceitar, new QPushButton(QStringLiteral("C&onfirmar"), this));
    m_command3D1.Poe(kCancelar, new QPushButton(QStringLiteral("&Cancelar"), this));
    Registra(m_command3D1(kAceitar));
    plataforma::Regras doCancelar;
    doCancelar.desiste = true; // also with a wrong date in the field
    Registra(m_command3D1(kCancelar), doCancelar);
    connect(m_command3D1(kAceitar), &QPushButton::clicked, this, [this] { Guarda([this] { Aceita(); }); });
    connect(m_command3D1(kCancelar), &QPushButton::clicked, this, &Filtro::close);
    return LinhaDeBotoes(m_command3D1);
}

void Filtro::LigaCampo(int indice)
{
    plataforma::Regras regras;
    regras.chega = [this, indice] {
        m_text1(indice)->clear();
        m_text1(indice)->selectAll();
    };
    regras.muda = [this, indice] { MudaCampo(indice); };
    regras.deixa = [this, indice] { return DeixaCampo(indice); };
    regras.enter = [this, indice] { EnterNoCampo(indice); };
    Registra(m_text1(indice), regras);
}

void Filtro::Avisa(const AvisoDoFiltro &aviso)
{
    m_sistema.mensagens.MsgBox(aviso.texto, Botoes::Ok, Icone::Exclamacao,
                               aviso.titulo.isEmpty() ? kTituloPadrao : aviso.titulo);
}

void Filtro::MudaCampo(int indice)
{
    if (const auto cortado = CortaCampoDoFiltro(indice, m_text1(indice)->text())) {
        m_text1(indice)->setText(*cortado);
        Avisa(kCampoCheio);
    }
}

bool Filtro::DeixaCampo(int indice)
{
    switch (indice) {
    case FiltroBanco:
        return DeixaBanco();
    case FiltroDataIni:
    case FiltroDataFim:
    case FiltroValorIni:
    case FiltroValorFim:
        return DeixaDataOuValor(indice);
    default:
        return true;
    }
}

bool Filtro::DeixaBanco()
{
    m_label2->clear();
    const auto codigo = BancoDoFiltroAoSair(m_text1(FiltroBanco)->text());
    if (!codigo)
        return true;
    m_text1(FiltroBanco)->setText(*codigo);
    Armazem &armazem = m_sistema.armazem;
    if (armazem.AbreBanco(1, 0, 0, 0, 0) == kSemBanco)
        return true; // told when the filter is accepted
    const bool achado = armazem.BuscaPorCodigo(*codigo, SelBancos) == 1;
    if (achado)
        m_label2->setText(armazem.Conjunto(SelBancos).Field(QStringLiteral("Nome")));
    armazem.FechaBanco(1, 0, 0, 0);
    if (!achado)
        Avisa(kBancoInvalido);
    return achado;
}

bool Filtro::DeixaDataOuValor(int indice)
{
    const QString texto = m_text1(indice)->text();
    const bool eData = indice == FiltroDataIni || indice == FiltroDataFim;
    const CampoAoSair saida =
        eData ? DataDoFiltroAoSair(texto, m_sistema.relogio.Hoje()) : ValorDoFiltroAoSair(texto);
    m_text1(indice)->setText(saida.texto);
    if (saida.aviso)
        Avisa(*saida.aviso);
    return !saida.FicaNoCampo();
}

void Filtro::EnterNoCampo(int indice)
{
    const int proximo = ProximoCampoDoFiltro(indice);
    if (proximo != kAceitaOFiltro)
        Caminha(m_text1(proximo)); // on purpose also from the last one, to a box that is not there
    else if (Caminha(m_command3D1(kAceitar)))
        m_command3D1(kAceitar)->click();
}

CamposDoFiltro Filtro::Campos() const
{
    const auto texto = [this](int indice) { return m_text1(indice)->text(); };
    CamposDoFiltro campos;
    campos.banco = texto(FiltroBanco);
    campos.dataIni = texto(FiltroDataIni);
    campos.dataFim = texto(FiltroDataFim);
    campos.valorIni = texto(FiltroValorIni);
    campos.valorFim = texto(FiltroValorFim);
    campos.favor = texto(FiltroFavor);
    campos.local = texto(FiltroLocal);
    campos.comentario = texto(FiltroComentario);
    return campos;
}

void Filtro::Aceita()
{
    if (m_relato.MontaFiltro(Campos()))
        close();
}

} // namespace reports
