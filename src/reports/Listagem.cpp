// See Listagem.h. All listings share all steps; the tables hold what differs.
#include "reports/Listagem.h"

#include "plataforma/basico/Formato.h"

#include <array>
#include <QStringBuilder>
#include <utility>

namespace reports {

/// What a listing has of its own on one of its outputs.
struct FeitioDaListagem {
    int tamanho; ///< entries on a page
    QStringView titulo;
    std::array<QStringView, 2> colunas; ///< heads of the columns; the second one may be missing

    [[nodiscard]] int Colunas() const { return colunas[1].isEmpty() ? 1 : 2; }
};

/// What an output has of its own; widths in characters.
struct FolhaDaListagem {
    int margem; ///< before each line of the head
    int traco;  ///< hyphens of a rule
    int recuo;  ///< blanks before a row; the first ones stand behind the head, whether a row follows or not
};

namespace {

constexpr FolhaDaListagem kDispositivo = {12, 107, 7};
constexpr FolhaDaListagem kImpressora = {0, 76, 0};

struct Listado {
    QStringView tabela;
    FeitioDaListagem dispositivo, impressora;
    QStringView tituloDaPergunta;
};

constexpr FeitioDaListagem kBancosNoDispositivo = {36,
                                                   u"Relatório de Bancos",
                                                   {u"Nº Banco  |Banco                                     ",
                                                    u"||Nº Banco  |Banco                                  "}};
constexpr FeitioDaListagem kBancosNaImpressora = {
    50, u"Relatório de Bancos", {u"Nº Banco  |Banco                                     ", {}}};

// In the order of Cadastrados. On purpose: cities in the plural on the device only.
constexpr std::array<Listado, 4> kListados = {{
    {u"Cidade",
     {36,
      u"Relatório de Cidades",
      {u"NºCidade  |Cidade                                    ",
       u"||NºCidade  |Cidade                                 "}},
     {50, u"Relatório de Cidade", {u"NºCidade  |Cidade                                    ", {}}},
     u"Impressão de Relatório"},
    {u"Favorecido",
     {16, u"Relatório de Favorecidos", {u"NºFavorec.   |Favorecido", {}}},
     {50, u"Relatório de Favorecidos", {u"NºFavorec.|Favorecido", {}}},
     u"Impressão de Relatório"},
    {u"Bancos", kBancosNoDispositivo, kBancosNaImpressora, u"Impressão"},
    {u"Transferencia", kBancosNoDispositivo, kBancosNaImpressora, u"Impressão"},
}};

const Listado &ListadoDe(Cadastrados tabela)
{
    return kListados.at(static_cast<std::size_t>(tabela));
}

const FolhaDaListagem &FolhaDe(const PedidoDeListagem &pedido)
{
    return pedido.naImpressora ? kImpressora : kDispositivo;
}

QString Brancos(int n)
{
    return {n, QLatin1Char(' ')};
}

QString Numero(qint64 n)
{
    return QString::number(n).rightJustified(2, QLatin1Char('0'));
}

} // namespace

QString ConsultaDaListagem(Cadastrados tabela, Ordem ordem)
{
    return QStringLiteral("Select * FROM ") % ListadoDe(tabela).tabela %
           (ordem == Ordem::Nome ? QStringLiteral(" ORDER BY Nome") : QStringLiteral(" ORDER BY Codigo"));
}

QString TituloDaPergunta(Cadastrados tabela)
{
    return ListadoDe(tabela).tituloDaPergunta.toString();
}

Listagem::Listagem(const PedidoDeListagem &pedido, qint64 quantos,
                   std::function<RegistroListado(qint64)> registro)
    : m_feitio(pedido.naImpressora ? ListadoDe(pedido.tabela).impressora
                                   : ListadoDe(pedido.tabela).dispositivo),
      m_folha(FolhaDe(pedido)),
      m_fimLinha(pedido.naImpressora ? QStringLiteral("\r\n") : QStringLiteral("\n")),
      m_hoje(plataforma::Format(pedido.hoje, QStringLiteral("@@/@@/@@"))), m_quantos(quantos),
      m_registro(std::move(registro))
{
}

std::optional<QString> Listagem::ProximaPagina()
{
    if (m_terminou)
        return std::nullopt;
    QString texto = Cabecalho();
    ++m_pagina;
    int naPagina = 0;
    while (m_proximo < m_quantos && naPagina < m_feitio.tamanho) {
        const int coluna = naPagina % m_feitio.Colunas();
        if (coluna == 0 && naPagina > 0)
            texto += Brancos(m_folha.recuo);
        texto += Celula(m_registro(m_proximo++), coluna);
        ++naPagina;
        if (naPagina % m_feitio.Colunas() == 0)
            texto += m_fimLinha;
    }
    if (naPagina % m_feitio.Colunas() != 0)
        texto += m_fimLinha;
    // A full page is followed by another one, be it an empty one.
    m_terminou = naPagina < m_feitio.tamanho;
    return texto;
}

QString Listagem::Cabecalho() const
{
    const QString margem = Brancos(m_folha.margem);
    const QString traco = margem % QString(m_folha.traco, QLatin1Char('-')) % m_fimLinha;
    const qint64 paginas = m_quantos / m_feitio.tamanho + (m_quantos % m_feitio.tamanho != 0 ? 1 : 0);
    return traco % margem % m_hoje % Brancos(15) % m_feitio.titulo % m_fimLinha % margem % Brancos(24) %
           QStringLiteral("Pag:") % Numero(m_pagina) % QLatin1Char('/') % Numero(paginas) % m_fimLinha %
           traco % margem % m_feitio.colunas[0] % m_feitio.colunas[1] % m_fimLinha % Brancos(m_folha.recuo);
}

QString Listagem::Celula(const RegistroListado &registro, int coluna) const
{
    // The head of a column has what the cells have: "||" before the second, "|" behind the code, and widths.
    const QStringView titulo = m_feitio.colunas.at(static_cast<std::size_t>(coluna));
    const QStringView divisa = coluna == 0 ? QStringView() : QStringView(u"||");
    const qsizetype barra = titulo.indexOf(QLatin1Char('|'), divisa.size());
    return divisa % registro.codigo.leftJustified(barra - divisa.size()) % QLatin1Char('|') %
           registro.nome.leftJustified(titulo.size() - barra - 1);
}

} // namespace reports
