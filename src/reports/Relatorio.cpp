// See Relatorio.h. The four forms share all steps; kFeitios holds what differs.
#include "reports/Relatorio.h"

#include "plataforma/basico/Formato.h"
#include "plataforma/basico/RuntimeError.h"
#include "reports/LinhaDoLog.h"
#include "reports/Quantia.h"

#include <array>
#include <QStringBuilder>
#include <utility>

namespace reports {

using plataforma::Format;

namespace {

struct TitulosDosTotais {
    QStringView pagina, acumulado, cancelados;
};

} // namespace

/// What a form has of its own; widths and margins in characters.
struct Feitio {
    int tamanho;           ///< cheques on a page; 0 for `chequesPorPagina` in each column
    int colunas;           ///< cheques on a row; with several, the short form of a line
    int margem;            ///< of head, rules and totals
    int traco;             ///< hyphens of a rule
    int tracoDaPagina;     ///< the same, of the one that closes a full page
    int antesDoTitulo;     ///< blanks between date and title
    int antesDoNumero;     ///< blanks before "Pag:", the margin included
    int recuo;             ///< blanks at the beginning of a row
    int recuoAdiantado;    ///< blanks behind the head and each full row, whether a row follows or not
    QStringView valido;    ///< stands before a cheque
    QStringView cancelado; ///< stands before a cancelled one
    QStringView colunasDaFolha;
    TitulosDosTotais naPagina; ///< of a full page
    TitulosDosTotais noFim;
};

namespace {

constexpr qsizetype kLarguraDoTotal = 17;

// On purpose: the word "acumalados" of full pages, and the titles of the totals of the system printer's
// normal form being a blank shorter on the last page.
constexpr Feitio kNormal = {.tamanho = 13,
                            .colunas = 1,
                            .margem = 12,
                            .traco = 94,
                            .tracoDaPagina = 94,
                            .antesDoTitulo = 15,
                            .antesDoNumero = 12 + 20,
                            .recuo = 0,
                            .recuoAdiantado = 0,
                            .valido = u"            ",
                            .cancelado = u"   Cancelado",
                            .colunasDaFolha =
                                u"N. Cheque    | Bco | Valor            | Data     | Favorecido",
                            .naPagina = {u"Total da página              |", u"Total acumulado              |",
                                         u"Total cancelados acumulados  |"},
                            .noFim = {u"Total da página              |", u"Total acumulado              |",
                                      u"Total cancelados acumulados  |"}};
constexpr Feitio kCompacto = {.tamanho = 36,
                              .colunas = 3,
                              .margem = 8,
                              .traco = 107,
                              .tracoDaPagina = 108,
                              .antesDoTitulo = 15,
                              .antesDoNumero = 8 + 24,
                              .recuo = 0,
                              .recuoAdiantado = 7,
                              .valido = u" |",
                              .cancelado = u"C|",
                              .colunasDaFolha = u"N. Cheque   |Bco| Valor          |   N. Cheque   |Bco| "
                                                u"Valor           |   N. Cheque   |Bco| Valor         |",
                              .naPagina = {u"Total da página              |",
                                           u"Total acumulado              |",
                                           u"Total cancelados acumalados  |"},
                              .noFim = {u"Total da página              |", u"Total acumulado              |",
                                        u"Total cancelados acumulados  |"}};
constexpr Feitio kNormalImpressora = {
    .tamanho = 0,
    .colunas = 1,
    .margem = 2,
    .traco = 100,
    .tracoDaPagina = 100,
    .antesDoTitulo = 26,
    .antesDoNumero = 26,
    .recuo = 2,
    .recuoAdiantado = 0,
    .valido = u" |",
    .cancelado = u"C|",
    .colunasDaFolha = u"  N. Cheque    | Bco | Valor            | Data     | Favorecido",
    .naPagina = {u"Total da página             :", u"Total acumulado             :",
                 u"Total cancelados acumulados :"},
    .noFim = {u"Total da página            :", u"Total acumulado            :",
              u"Total cancelados acumulados:"}};
constexpr Feitio kCompactoImpressora = {
    .tamanho = 0,
    .colunas = 2,
    .margem = 14,
    .traco = 72,
    .tracoDaPagina = 72,
    .antesDoTitulo = 13,
    .antesDoNumero = 12,
    .recuo = 14,
    .recuoAdiantado = 0,
    .valido = u" |",
    .cancelado = u"C|",
    .colunasDaFolha = u" |N. Cheque  |Bco| Valor           | |N. Cheque  |Bco| Valor           |",
    .naPagina = {u"Total da página            :", u"Total acumulado            :",
                 u"Total cancelados acumalados:"},
    .noFim = {u"Total da página            :", u"Total acumulado            :",
              u"Total cancelados acumulados:"}};

const Feitio &FeitioDe(const Pedido &pedido)
{
    if (pedido.destino == Destino::Impressora)
        return pedido.forma == Forma::Normal ? kNormalImpressora : kCompactoImpressora;
    return pedido.forma == Forma::Normal ? kNormal : kCompacto;
}

int TamanhoDaPagina(const Pedido &pedido, const Feitio &feitio)
{
    const int tamanho = feitio.tamanho > 0 ? feitio.tamanho : pedido.chequesPorPagina * feitio.colunas;
    // One below 0, which only another program can have written, would never fill a page.
    if (tamanho <= 0)
        throw plataforma::RuntimeError(
            plataforma::ErrDivisionByZero,
            QStringLiteral("O relatório está com %1 cheques por página.").arg(pedido.chequesPorPagina));
    return tamanho;
}

QString Numero(qint64 n)
{
    return QString::number(n).rightJustified(2, QLatin1Char('0'));
}

QString Brancos(int n)
{
    return {n, QLatin1Char(' ')};
}

} // namespace

Relatorio::Relatorio(const Pedido &pedido, qint64 quantas, std::function<QString(qint64)> linha)
    : m_feitio(FeitioDe(pedido)), m_tamanho(TamanhoDaPagina(pedido, m_feitio)),
      m_fimLinha(pedido.destino == Destino::Dispositivo ? QStringLiteral("\n") : QStringLiteral("\r\n")),
      m_quantas(quantas), m_linha(std::move(linha))
{
    MontaCabecalho(pedido.hoje);
}

std::optional<QString> Relatorio::ProximaPagina()
{
    if (m_terminou)
        return std::nullopt;
    m_naPagina = 0;
    m_texto.clear();
    m_texto.reserve(m_tamanhoDoTexto);
    m_texto += m_ateAPagina % Numero(m_pagina++) % m_depoisDaPagina;
    while (m_proxima < m_quantas) {
        PoeCheque(m_linha(m_proxima++));
        if (m_naPagina == m_tamanho) {
            m_texto += Traco(m_feitio.tracoDaPagina);
            PoeTotais(false);
            m_tamanhoDoTexto = m_texto.size();
            return std::exchange(m_texto, {});
        }
    }
    if (m_naPagina % m_feitio.colunas != 0)
        m_texto += m_fimLinha;
    m_texto += Traco(m_feitio.traco);
    // Behind a full page the totals stand there, and this one ends with its rule.
    if (m_naPagina > 0 || m_quantas == 0)
        PoeTotais(true);
    m_terminou = true;
    return std::exchange(m_texto, {});
}

QString Relatorio::Traco(int hifens) const
{
    return Brancos(m_feitio.margem) % QString(hifens, QLatin1Char('-')) % m_fimLinha;
}

void Relatorio::MontaCabecalho(const QString &hoje)
{
    const qint64 paginas = m_quantas / m_tamanho + (m_quantas % m_tamanho != 0 ? 1 : 0);
    const QString margem = Brancos(m_feitio.margem);
    const QString traco = Traco(m_feitio.traco);
    m_ateAPagina = traco % margem % Format(hoje, QStringLiteral("@@/@@/@@")) %
                   Brancos(m_feitio.antesDoTitulo) % u"Relatorio de Cheques Impressos" % m_fimLinha %
                   Brancos(m_feitio.antesDoNumero) % u"Pag:";
    m_depoisDaPagina = u"/" % Numero(paginas) % m_fimLinha % traco % margem % m_feitio.colunasDaFolha %
                       m_fimLinha % traco % Brancos(m_feitio.recuoAdiantado);
}

void Relatorio::PoeCheque(const QString &linha)
{
    const bool cancelado = LinhaCancelada(linha);
    (cancelado ? m_totalCancelados : m_totalPagina) += ValorDaLinha(linha);
    if (m_naPagina % m_feitio.colunas == 0)
        m_texto += Brancos(m_feitio.recuo);
    m_texto += cancelado ? m_feitio.cancelado : m_feitio.valido;
    const QStringView campos(linha);
    if (m_feitio.colunas == 1) {
        m_texto += campos.mid(3, 94);
    } else {
        // On purpose: the eleven characters leave out the last digit of a number of twelve.
        for (const QStringView campo : {campos.mid(3, 11), campos.mid(18, 3), campos.mid(23, 17)}) {
            m_texto += campo;
            m_texto += QLatin1Char('|');
        }
    }
    ++m_naPagina;
    if (m_naPagina % m_feitio.colunas == 0) {
        m_texto += m_fimLinha;
        m_texto += Brancos(m_feitio.recuoAdiantado);
    }
}

void Relatorio::PoeTotais(bool noFim)
{
    m_totalAcumulado += m_totalPagina;
    const TitulosDosTotais &titulos = noFim ? m_feitio.noFim : m_feitio.naPagina;
    const std::array<std::pair<QStringView, double>, 3> totais = {{{titulos.pagina, m_totalPagina},
                                                                   {titulos.acumulado, m_totalAcumulado},
                                                                   {titulos.cancelados, m_totalCancelados}}};
    for (const auto &[titulo, total] : totais)
        m_texto += Brancos(m_feitio.margem) % titulo %
                   EscreveQuantia(total).rightJustified(kLarguraDoTotal, QLatin1Char(' ')) % m_fimLinha;
    m_totalPagina = 0;
}

} // namespace reports
