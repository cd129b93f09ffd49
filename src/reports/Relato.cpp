// See Relato.h. List, panel, reprint, cancelling and deleting.
#include "reports/Relato.h"

#include "nucleo/Mensagens.h"
#include "nucleo/Sistema.h"
#include "plataforma/basico/Texto.h"
#include "plataforma/tela/Lista.h"
#include "reports/ConsultasDoLog.h"
#include "reports/ExcluiRel.h"
#include "reports/Filtro.h"
#include "reports/LinhaDoLog.h"
#include "reports/LinhasDoLog.h"
#include "reports/MarcaCancelado.h"

#include <QCloseEvent>
#include <QLabel>
#include <QScrollBar>

namespace reports {

using namespace nucleo;
using plataforma::Dynaset;
using plataforma::Mid;
using plataforma::Trim;

namespace {

// Labels of the panel.
constexpr int kBanco = 0;
constexpr int kValor = 1;
constexpr int kFavorecido = 2;
constexpr int kCidade = 3;
constexpr int kData = 4;
constexpr int kTotal = 5;
constexpr int kNumero = 6;
constexpr int kStatus = 7;
constexpr int kComentario = 8;

// Branches of the selection that the buttons share.
constexpr int kReimprime = 0;
constexpr int kFiltra = 1;
constexpr int kCancela = 2;
constexpr int kFecha = 3;

constexpr int kDigitosDoBanco = 3;
constexpr int kColunaDoBanco = 19;  // of a list line
constexpr int kLinhasPorLote = 500; // rows marked together: each group costs one wait for the disk

QString TextoDoSumido(const QString &indice)
{
    return QStringLiteral("O cheque de Index %1 não está mais no banco de dados: outro programa o excluiu ou "
                          "alterou.")
        .arg(indice);
}

ChequeDoLog LeCheque(const Dynaset &log)
{
    const auto campo = [&log](const char *nome) { return log.Field(QLatin1String(nome)); };
    return {campo("STCancel"), campo("NRCH"),  campo("Banco"), campo("V_CH"),
            campo("DATA"),     campo("FAVOR"), campo("Index")};
}

RestoDoCheque LeResto(const Dynaset &log)
{
    const auto campo = [&log](const char *nome) { return log.Field(QLatin1String(nome)); };
    return {campo("LOCAL"), campo("Comentario"), campo("Comentario1"), campo("Comentario2")};
}

} // namespace

Relato::Relato(Sistema &sistema, Reimpressao main, QWidget *pai)
    : Tela(QStringLiteral("Relato"), sistema.mensagens, pai), m_sistema(sistema), m_main(std::move(main)),
      m_consulta(ConsultaDaLista({}, {}, {}, {}, {}))
{
    FicaAoLado(QStringLiteral("Relatório de Cheques Transmitidos"));
    MontaControles();
    PosicionaTela();
    Carrega();
}

Relato::~Relato() = default;

// Store and list

void Relato::Carrega()
{
    if (m_sistema.armazem.AbreBanco(0, 0, 0, 1, 0) == kSemBanco) {
        m_sistema.FechaTela = 1;
        m_sistema.mensagens.MsgBox(TextoBancoNaoEncontrado(m_sistema.ArquivoDados));
        return;
    }
    m_aberta = true;
    PreencheLista();
    m_list1->setFocus();
}

void Relato::closeEvent(QCloseEvent *evento)
{
    if (m_aberta)
        m_sistema.armazem.FechaBanco(0, 0, 0, 1);
    evento->accept();
}

// @return false when there is no store: told
bool Relato::AbreBanco(int bancos)
{
    if (m_sistema.armazem.AbreBanco(bancos, 0, 0, 0, 0) != kSemBanco)
        return true;
    m_sistema.mensagens.MsgBox(TextoBancoNaoEncontrado(m_sistema.ArquivoDados));
    return false;
}

bool Relato::AbreLog()
{
    if (!AbreBanco(0))
        return false;
    m_sistema.armazem.AbreConsulta(m_consulta, SelLog);
    return true;
}

// The query becomes the screen's own only once the list stands: a refused one leaves everything as it was.
bool Relato::Consulta(const QString &consulta)
{
    if (!AbreBanco(0))
        return false;
    m_sistema.armazem.AbreConsulta(consulta, SelLog);
    PreencheLista();
    m_consulta = consulta;
    return true;
}

bool Relato::MontaFiltro(const CamposDoFiltro &campos)
{
    return Consulta(ConsultaDoFiltro(campos));
}

bool Relato::MontaListaLog(const QString &banco, const QString &dataIni, const QString &dataFim,
                           const QString &valorIni, const QString &valorFim)
{
    return Consulta(ConsultaDaLista(banco, dataIni, dataFim, valorIni, valorFim));
}

void Relato::PreencheLista()
{
    QString aviso;
    {
        const Espera espera(m_sistema.ocupado);
        const auto linhas = std::make_shared<const LinhasDoLog>(m_sistema.armazem.Conjunto(SelLog));
        m_list1->Enche(linhas->Quantas(), [linhas](int i) { return linhas->Linha(i); });
        m_sistema.TotalCheques = linhas->Total();
        // On purpose: an empty set leaves the total that is shown as it was.
        if (linhas->TemRegistros())
            m_text1(kTotal)->setText(TextoDoTotal(m_sistema.TotalCheques));
        aviso = linhas->Aviso();
    }
    if (!aviso.isEmpty())
        m_sistema.mensagens.MsgBox(aviso, Botoes::Ok, Icone::Exclamacao);
}

// The panel

void Relato::Escolhe()
{
    const QString chave = ChaveDaLinha(m_list1->TextoCorrente());
    if (!chave.isEmpty())
        MostraDetalheLog(chave);
}

void Relato::MostraDetalheLog(const QString &indice)
{
    // Emptied first: whatever fails, it must not show another cheque than the list has chosen.
    LimpaPainel();
    if (!AbreBanco(0))
        return;
    Armazem &armazem = m_sistema.armazem;
    if (armazem.BuscaPorCodigo(indice, SelLog) == 0) {
        armazem.AbreConsulta(m_consulta, SelLog);
        DizQueSumiu(indice);
        return;
    }
    const ChequeDoLog cheque = LeCheque(armazem.Conjunto(SelLog));
    const RestoDoCheque resto = LeResto(armazem.Conjunto(SelLog));
    armazem.AbreConsulta(m_consulta, SelLog); // the look-up has put its one row in the place of the set
    // An empty code would ask for all banks.
    const QString nome =
        cheque.banco.isEmpty() ? QStringLiteral("Inexistente") : armazem.NomeBancoPorCodigo(cheque.banco);
    armazem.FechaBanco(1, 0, 0, 0);
    const auto textos = DetalheDoLog(cheque, resto, nome);
    for (const auto &[i, rotulo] : m_text1)
        if (i != kTotal) {
            rotulo->setText(textos.at(static_cast<std::size_t>(i)));
            rotulo->setToolTip(rotulo->text()); // where it is longer than its place
        }
    m_indiceNoPainel = indice;
    m_sistema.ComentarioLinha1 = TextoDe(kComentario);
    m_sistema.ComentarioLinha2 = TextoDe(kComentario + 1);
    m_sistema.ComentarioLinha3 = TextoDe(kComentario + 2);
}

QString Relato::TextoDe(int indice) const
{
    return m_text1(indice)->text();
}

void Relato::EsvaziaDetalhes(std::initializer_list<int> quais)
{
    for (const int i : quais) {
        m_text1(i)->clear();
        m_text1(i)->setToolTip({});
    }
    if (TextoDe(kBanco).isEmpty())
        m_indiceNoPainel.clear();
}

void Relato::LimpaPainel()
{
    EsvaziaDetalhes({kBanco, kValor, kFavorecido, kCidade, kData, kNumero, kStatus, kComentario,
                     kComentario + 1, kComentario + 2});
}

void Relato::DizQueSumiu(const QString &indice)
{
    m_sistema.mensagens.MsgBox(TextoDoSumido(indice) +
                                   QStringLiteral("\nUse \"Lista Completa\" para ler a lista de novo."),
                               Botoes::Ok, Icone::Exclamacao);
}

// A list that is filled again shows the same stretch as before.
void Relato::NoMesmoLugar(const std::function<void()> &enche)
{
    const int topo = m_list1->verticalScrollBar()->value();
    enche();
    m_list1->verticalScrollBar()->setValue(topo);
}

// What was cancelled while it stood in the panel must be asked about before it is printed again.
void Relato::AtualizaStatus()
{
    Armazem &armazem = m_sistema.armazem;
    if (m_indiceNoPainel.isEmpty())
        return;
    if (armazem.BuscaPorCodigo(m_indiceNoPainel, SelLog) == 1)
        m_text1(kStatus)->setText(
            LeCheque(armazem.Conjunto(SelLog)).stCancel == kCancelado ? kCancelado : QStringLiteral(" "));
    armazem.AbreConsulta(m_consulta, SelLog);
}

// The buttons

void Relato::Seleciona(int indice)
{
    switch (indice) {
    case kReimprime:
        return Reimprime();
    case kFiltra:
        return AbreFiltro();
    case kCancela:
        return AbreExcluiRel();
    default:
        close();
    }
}

void Relato::ListaCompleta()
{
    if (!MontaListaLog())
        return;
    // On purpose not the number, the status and the comments.
    EsvaziaDetalhes({kBanco, kValor, kFavorecido, kCidade, kData});
}

void Relato::Reimprime()
{
    if (TextoDe(kBanco).isEmpty())
        return;
    const QString linha = m_list1->TextoCorrente();
    const QString codigo = Trim(linha.isEmpty() ? Mid(TextoDe(kBanco), 1, kDigitosDoBanco)
                                                : Mid(linha, kColunaDoBanco, kDigitosDoBanco));
    if (!AbreBanco(0))
        return;
    Armazem &armazem = m_sistema.armazem;
    const bool achado = !codigo.isEmpty() && armazem.BuscaPorCodigo(codigo, SelBancos) == 1;
    const QString nome = achado ? armazem.Conjunto(SelBancos).Field(QStringLiteral("Nome")) : QString();
    armazem.FechaBanco(1, 0, 0, 0);
    if (!ConfirmaReimpressao())
        return;
    if (!achado) {
        m_sistema.mensagens.MsgBox(QStringLiteral("Banco inexistente, não é possível re-imprimir!"),
                                   Botoes::Ok, Icone::Nenhum, kErro);
        return;
    }
    EntregaAoMain(codigo, nome);
    close();
}

bool Relato::ConfirmaReimpressao()
{
    if (TextoDe(kStatus) != kCancelado)
        return true;
    return m_sistema.mensagens.MsgBox(QStringLiteral("O cheque atual possui status de cancelado!\n"
                                                     "Confirma reimpressao?"),
                                      Botoes::OkCancelar) == Resposta::Ok;
}

void Relato::EntregaAoMain(const QString &codigo, const QString &nomeDoBanco)
{
    m_main.campo(kBanco, codigo);
    m_main.nomeDoBanco(nomeDoBanco);
    for (const int i : {kValor, kFavorecido, kCidade, kData, kNumero})
        m_main.campo(i, TextoDe(i));
    // So that the new print makes no second row.
    m_main.incluiNoRelatorio(false);
    // A cheque printed on the main screen meanwhile has put its own lines there.
    m_sistema.ComentarioLinha1 = TextoDe(kComentario);
    m_sistema.ComentarioLinha2 = TextoDe(kComentario + 1);
    m_sistema.ComentarioLinha3 = TextoDe(kComentario + 2);
    m_main.linha(0, m_sistema.ComentarioLinha1);
    m_main.linha(1, m_sistema.ComentarioLinha2);
    m_main.linha(2, m_sistema.ComentarioLinha3);
}

void Relato::ExcluiCheque()
{
    const QString linha = m_list1->TextoCorrente();
    if (linha.isEmpty())
        return;
    if (m_sistema.mensagens.MsgBox(QStringLiteral("Este Cheque Será Eliminado Da Base de Dados de seu "
                                                  "computador!Tem Certeza que deseja Eliminá-lo?"),
                                   Botoes::SimNao, Icone::Pergunta,
                                   QStringLiteral("Atenção")) != Resposta::Sim ||
        !AbreLog())
        return;
    // The last characters, not those from 129 on: in a line that an over-long field has shifted these would
    // be the number of another cheque.
    const QString chave = ChaveDaLinha(linha);
    Dynaset &log = m_sistema.armazem.Conjunto(SelLog);
    if (VaiParaOCheque(log, chave))
        log.Delete();
    else
        m_sistema.mensagens.MsgBox(TextoDoSumido(chave), Botoes::Ok, Icone::Exclamacao);
    NoMesmoLugar([this] { MontaListaLog(); });
    LimpaPainel();
}

// The store's part of ExcluiRel

bool Relato::TemLinhaEscolhida() const
{
    return m_list1->Corrente() >= 0;
}

void Relato::CancelaEscolhido()
{
    const QString chave = ChaveDaLinha(m_list1->TextoCorrente());
    if (!AbreLog())
        return;
    MarcaCancelado(m_sistema.armazem.Conjunto(SelLog), chave, kCancelado, m_sistema.mensagens);
    NoMesmoLugar([this] { MontaListaLog(); });
    EsvaziaDetalhes({kBanco, kValor, kFavorecido, kCidade, kData, kNumero});
}

// The last row of the whole log, also when the list is filtered.
void Relato::CancelaUltimo()
{
    if (!AbreBanco(0))
        return;
    Armazem &armazem = m_sistema.armazem;
    armazem.AbreConsulta(QStringLiteral("Log"), SelLog);
    Dynaset &log = armazem.Conjunto(SelLog);
    log.MoveLast();
    const QString chave = log.AtEnd() ? QString() : Trim(log.Field(QStringLiteral("Index")));
    MarcaCancelado(log, chave, kCancelado, m_sistema.mensagens);
    armazem.AbreConsulta(m_consulta, SelLog);
    NoMesmoLugar([this] { PreencheLista(); });
    AtualizaStatus();
}

void Relato::CancelaListados()
{
    if (!AbreLog())
        return;
    const auto mostra = [this] {
        m_sistema.armazem.AbreConsulta(m_consulta, SelLog);
        NoMesmoLugar([this] { PreencheLista(); });
        AtualizaStatus();
    };
    try {
        MarcaListados();
    } catch (const std::exception &) {
        mostra(); // the groups that were stored before it failed
        throw;
    }
    mostra();
}

// The lines stand in the order of the set: the row of the next one is nearly always the next.
void Relato::MarcaListados()
{
    const Espera espera(m_sistema.ocupado);
    Dynaset &log = m_sistema.armazem.Conjunto(SelLog);
    Armazem::Lote lote(m_sistema.armazem);
    log.MoveFirst();
    const int quantas = m_list1->Quantas();
    for (int i = 0; i < quantas; ++i) {
        m_sistema.ocupado.Andamento(QStringLiteral("Cancelando cheques..."), i, quantas);
        const QString chave = ChaveDaLinha(m_list1->TextoDe(i));
        const bool achado = VaiParaOCheque(log, chave);
        // No group stays open while a message box stands: others could not write.
        if (!achado)
            lote.Fecha();
        MarcaCancelado(log, chave, kCancelado, m_sistema.mensagens);
        if (!achado) {
            lote.Abre();
            continue;
        }
        log.MoveNext();
        if (i % kLinhasPorLote == kLinhasPorLote - 1) {
            lote.Fecha();
            lote.Abre();
        }
    }
    lote.Fecha();
}

// The screens over this one

template <class T> void Relato::AbreSobreEsta(QPointer<T> &tela)
{
    if (!tela || !tela->isVisible()) {
        delete tela; // one that was closed and is about to go
        tela = new T(m_sistema, *this);
    }
    tela->show();
    tela->raise();
    tela->activateWindow();
}

void Relato::AbreFiltro()
{
    AbreSobreEsta(m_filtro);
}

void Relato::AbreExcluiRel()
{
    AbreSobreEsta(m_excluiRel);
}

} // namespace reports
