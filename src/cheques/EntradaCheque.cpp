// See EntradaCheque.h. What happens in the fields; the form is laid out in EntradaChequeForma.cpp, and what
// goes to the device is in EntradaChequeImpressao.cpp.
#include "cheques/EntradaCheque.h"

#include "cheques/PosicoesExtras.h"
#include "cheques/Verso.h"
#include "device/Fluxos.h"
#include "nucleo/Mensagens.h"
#include "nucleo/Relogio.h"
#include "nucleo/Sistema.h"
#include "plataforma/basico/Teclas.h"
#include "plataforma/tela/Tela.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace cheques {

using namespace nucleo;

namespace {

constexpr int kNomeDoBanco = 6; // Label1

} // namespace

EntradaCheque::EntradaCheque(Sistema &sistema, plataforma::Tela &tela, Aberturas aberturas)
    : QWidget(&tela), m_sistema(sistema), m_tela(tela), m_aberturas(std::move(aberturas))
{
    MontaControles();
    LigaCampos();
    LigaExtrasELinhas();
    LigaFuncoes();
}

void EntradaCheque::LigaCampos()
{
    for (const int i : kCamposDoCheque) {
        plataforma::Regras regras;
        regras.antes = [this] { m_sistema.ValidaCampos = 1; };
        regras.chega = [this, i] { ChegaNoCampo(i); };
        regras.deixa = [this, i] { return DeixaCampo(i); };
        regras.muda = [this, i] { MudaCampo(i); };
        regras.enter = [this, i] { EnterNoCampo(i); };
        regras.tecla = [this, i](int tecla) { TeclaNoCampo(i, tecla); };
        m_tela.Registra(m_text1(i), regras);
    }
}

void EntradaCheque::LigaExtrasELinhas()
{
    for (int i = 0; i < kCamposExtras; ++i) {
        plataforma::Regras regras;
        regras.chega = [this] { m_aberturas.dica(kDicaDosExtras); };
        regras.deixa = [this] {
            m_aberturas.dica(kDicaDosCampos);
            return true;
        };
        regras.enter = [this, i] {
            m_tela.Caminha(i + 1 < kCamposExtras ? m_txtCpo(i + 1) : m_text1(CampoNumero));
        };
        regras.tecla = [this, i](int tecla) { TeclaNoExtra(i, tecla); };
        m_tela.Registra(m_txtCpo(i), regras);
    }
    for (int i = 0; i < kLinhasDoVerso; ++i) {
        plataforma::Regras regras;
        regras.antes = [this] { m_sistema.ValidaCampos = 0; };
        regras.chega = [this, i] { m_text2(i)->selectAll(); };
        regras.clique = [this] { m_sistema.ValidaCampos = 0; };
        regras.muda = [this, i] { MudaLinha(i); };
        regras.enter = [this, i] {
            m_tela.Caminha(i + 1 < kLinhasDoVerso ? static_cast<QWidget *>(m_text2(i + 1)) : m_opcoes(0));
        };
        regras.tecla = [this, i](int tecla) { TeclaNaLinha(i, tecla); };
        m_tela.Registra(m_text2(i), regras);
    }
}

void EntradaCheque::LigaFuncoes()
{
    for (const auto &[indice, botao] : m_opcoes) {
        plataforma::Regras regras;
        if (indice == 3 || indice == 4)
            regras.antes = [this] { m_sistema.ValidaCampos = 0; };
        m_tela.Registra(botao, regras);
    }
    const auto liga = [this](int indice, std::function<void()> acao) {
        m_opcoes(indice)->setEnabled(static_cast<bool>(acao));
        connect(m_opcoes(indice), &QPushButton::clicked, this, [this, acao] { m_tela.Guarda(acao); });
    };
    liga(0, [this] { ImprimeCheque(); });
    liga(1, [this] { ImprimeVerso(); });
    liga(2, m_aberturas.relatorio);
    liga(3, [this] {
        LimpaCheque();
        m_tela.MoveFoco(m_text1(CampoBanco));
    });
    liga(4, [this] {
        LimpaVerso();
        m_tela.MoveFoco(m_text2(0));
    });
    liga(5, m_aberturas.prazo);
    liga(6, m_aberturas.copia ? std::function<void()>([this] { AbreCopia(); }) : nullptr);
    liga(7, m_aberturas.transferencia);

    m_tela.Registra(m_checkBox);
    for (const auto &[opcao, digitos] :
         {std::pair{m_option1, 1}, std::pair{m_option2, 2}, std::pair{m_option3, 4}}) {
        m_tela.Registra(opcao);
        connect(opcao, &QRadioButton::clicked, this,
                [this, d = digitos] { m_tela.Guarda([this, d] { EscolheFormaDaData(d); }); });
    }
}

// The fields

void EntradaCheque::MudaCampo(int indice)
{
    if (const auto cortado = CortaCampo(indice, m_text1(indice)->text())) {
        m_text1(indice)->setText(*cortado);
        m_sistema.mensagens.MsgBox(kTamanhoMaximo, Botoes::Ok, Icone::Exclamacao, kErro);
    }
}

void EntradaCheque::MudaLinha(int indice)
{
    if (const auto cortada = CortaLinha(m_text2(indice)->text())) {
        m_text2(indice)->setText(*cortada);
        m_sistema.mensagens.MsgBox(kTamanhoMaximo, Botoes::Ok, Icone::Exclamacao, kErro);
    }
}

void EntradaCheque::ChegaNoCampo(int indice)
{
    if (!m_sistema.TextoPesquisa.isEmpty()) {
        const QString escolhido = std::exchange(m_sistema.TextoPesquisa, QString());
        m_text1(indice)->setText(escolhido);
    }
    m_text1(indice)->selectAll();
}

bool EntradaCheque::DeixaCampo(int indice)
{
    if (m_sistema.ValidaCampos == 0) {
        m_text1(indice)->clear();
        m_sistema.ValidaCampos = 1;
        return true;
    }
    switch (indice) {
    case CampoBanco:
        return DeixaBanco();
    case CampoValor:
        return DeixaValor();
    case CampoData:
        return DeixaData();
    default:
        return true;
    }
}

bool EntradaCheque::DeixaBanco()
{
    QLineEdit *campo = m_text1(CampoBanco);
    const QString banco = BancoAoSair(campo->text());
    campo->setText(banco);
    if (banco.isEmpty() || m_sistema.armazem.AbreBanco(1, 0, 0, 0, 0) == kSemBanco)
        return true;
    if (m_sistema.armazem.BuscaPorCodigo(campo->text(), SelBancos) == 1) {
        m_label1(kNomeDoBanco)->setText(m_sistema.armazem.Conjunto(SelBancos).Field(QStringLiteral("Nome")));
        m_sistema.armazem.FechaBanco(1, 0, 0, 0);
        return true;
    }
    // On purpose: the store stays open on this path.
    campo->clear();
    m_sistema.mensagens.MsgBox(QStringLiteral("Banco Inexistente..."), Botoes::Ok, Icone::Exclamacao, kErro);
    return false;
}

bool EntradaCheque::DeixaValor()
{
    QLineEdit *campo = m_text1(CampoValor);
    const auto valor = ValorAoSair(campo->text());
    campo->setText(valor.value_or(QString()));
    return valor.has_value();
}

bool EntradaCheque::DeixaData()
{
    QLineEdit *campo = m_text1(CampoData);
    const DataAoSair saida = DataDoChequeAoSair(campo->text(), m_sistema.relogio.Hoje());
    if (saida.hoje)
        m_tela.MoveFoco(m_text1(CampoNumero));
    campo->setText(saida.texto);
    if (saida.valida)
        return true;
    m_sistema.mensagens.MsgBox(QStringLiteral("Data Inválida."), Botoes::Ok, Icone::Exclamacao);
    campo->clear();
    return false;
}

void EntradaCheque::EnterNoCampo(int indice)
{
    if (indice == CampoCidade && m_text1(indice)->text().isEmpty()) {
        m_text1(indice)->clear();
        return;
    }
    const int proximo = ProximoCampo(indice);
    m_tela.Caminha(proximo == kVaiParaImprimir ? static_cast<QWidget *>(m_opcoes(0)) : m_text1(proximo));
}

void EntradaCheque::TeclaNoCampo(int indice, int tecla)
{
    const QString texto = m_text1(indice)->text();
    const QString chave = ChaveDoCampo(indice);
    if (tecla == plataforma::TeclaF8) {
        m_text1(indice)->clear();
    } else if (tecla == plataforma::TeclaF4 && !chave.isEmpty()) {
        m_sistema.ini.GravaIni(kFrenteInfo, chave, texto.isEmpty() ? QStringLiteral(" ") : texto);
    } else if (tecla == plataforma::TeclaF3 && m_aberturas.pesquisa) {
        const std::map<int, int> tipos = {
            {CampoBanco, SelBancos}, {CampoFavorecido, SelFavorecido}, {CampoCidade, SelCidade}};
        if (const auto tipo = tipos.find(indice); tipo != tipos.end()) {
            m_sistema.TipoPesquisa = static_cast<std::int16_t>(tipo->second);
            m_aberturas.pesquisa(m_text1(indice));
        }
    }
}

void EntradaCheque::TeclaNoExtra(int indice, int tecla)
{
    const QString texto = m_txtCpo(indice)->text();
    if (tecla == plataforma::TeclaF8)
        m_txtCpo(indice)->clear();
    else if (tecla == plataforma::TeclaF4)
        m_sistema.ini.GravaIni(kFrenteInfo, ChaveDoExtra(indice),
                               texto.isEmpty() ? QStringLiteral(" ") : texto);
    else if (tecla == plataforma::TeclaF3 && m_aberturas.camposExtras)
        m_aberturas.camposExtras();
}

void EntradaCheque::TeclaNaLinha(int indice, int tecla)
{
    const QString texto = m_text2(indice)->text();
    if (tecla == plataforma::TeclaF8)
        m_text2(indice)->clear();
    else if (tecla == plataforma::TeclaF4)
        GravaVerso(m_sistema.ini, indice, texto);
}

// The command goes first, the setting second, whatever the device answered.
void EntradaCheque::EscolheFormaDaData(int digitos)
{
    {
        const Espera espera(m_sistema.ocupado);
        device::EnviaDigitosDoAno(digitos, m_sistema.PortaSerial, m_sistema.impressora);
    }
    m_sistema.ini.GravaIni(kOpcoes, QStringLiteral("ConfiguraData"), QString::number(digitos));
}

// What others call

void EntradaCheque::LimpaCheque()
{
    for (const int i : kCamposDoCheque)
        m_text1(i)->clear();
    m_label1(kNomeDoBanco)->clear();
    CarregaFrente();
}

void EntradaCheque::CarregaFrente()
{
    const auto carrega = [this](QLineEdit *campo, const QString &chave) {
        const QString lido = m_sistema.ini.GravaIni(kFrenteInfo, chave);
        if (lido != kAusente)
            campo->setText(lido);
    };
    for (const int i : {CampoBanco, CampoValor, CampoFavorecido, CampoCidade})
        carrega(m_text1(i), ChaveDoCampo(i));
    for (int i = 0; i < kCamposExtras; ++i)
        carrega(m_txtCpo(i), ChaveDoExtra(i));
}

void EntradaCheque::LimpaVerso()
{
    for (int i = 0; i < kLinhasDoVerso; ++i)
        m_text2(i)->setText(LeVerso(m_sistema.ini, i));
}

void EntradaCheque::PoeCampo(int indice, const QString &texto)
{
    if (m_text1.Tem(indice))
        m_text1(indice)->setText(texto);
}

void EntradaCheque::PoeNomeDoBanco(const QString &nome)
{
    m_label1(kNomeDoBanco)->setText(nome);
}

void EntradaCheque::PoeLinha(int indice, const QString &texto)
{
    m_text2(indice)->setText(texto);
}

void EntradaCheque::SelecionaFormaDaData(int digitos)
{
    for (const auto &[opcao, d] : {std::pair{m_option1, 1}, std::pair{m_option2, 2}, std::pair{m_option3, 4}})
        if (d == digitos)
            opcao->click();
}

bool EntradaCheque::IncluiNoRelatorio() const
{
    return m_checkBox->isChecked();
}

void EntradaCheque::MarcaInclusao(bool marca)
{
    m_checkBox->setChecked(marca);
}

TextosDoCheque EntradaCheque::Textos() const
{
    TextosDoCheque cheque;
    cheque.banco = m_text1(CampoBanco)->text();
    cheque.valor = m_text1(CampoValor)->text();
    cheque.favorecido = m_text1(CampoFavorecido)->text();
    cheque.cidade = m_text1(CampoCidade)->text();
    cheque.data = m_text1(CampoData)->text();
    cheque.numero = m_text1(CampoNumero)->text();
    for (int i = 0; i < kLinhasDoVerso; ++i)
        cheque.linhas[static_cast<std::size_t>(i)] = m_text2(i)->text();
    return cheque;
}

int EntradaCheque::VerificaCampos()
{
    const auto recusa = VerificaCamposDoCheque(Textos(), m_sistema.NumCObrig == 1);
    if (!recusa)
        return 1;
    if (!recusa->texto.isEmpty())
        m_sistema.mensagens.MsgBox(recusa->texto, Botoes::Ok, Icone::Exclamacao);
    m_tela.MoveFoco(m_text1(recusa->campo));
    return 0;
}

void EntradaCheque::AbreCopia()
{
    if (VerificaCampos() == 1 && m_aberturas.copia)
        m_aberturas.copia();
}

} // namespace cheques
