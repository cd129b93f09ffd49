// Placing the texts of a cheque on the form.
#include "Leiaute.h"

#include <algorithm>
#include <QStringList>

#include "Palavras.h"

namespace simulador {

namespace {

using Postos = std::vector<TextoPosto>;

/// Which cells of the form a text already covers.
class Ocupacao {
public:
    /// Covers the cells of the text; false, and nothing covered, when one is taken already.
    bool Ocupa(Lugar lugar, qsizetype tamanho)
    {
        for (int c = lugar.coluna; c < lugar.coluna + tamanho; ++c) {
            if (Ocupada(lugar.linha, c))
                return false;
        }
        for (int c = lugar.coluna; c < lugar.coluna + tamanho; ++c)
            Celula(lugar.linha, c) = true;
        return true;
    }
    [[nodiscard]] bool Ocupada(int linha, int coluna) const
    {
        return m_celulas.at(static_cast<std::size_t>((linha - 1) * kColunas + coluna - 1));
    }

private:
    bool &Celula(int linha, int coluna)
    {
        return m_celulas.at(static_cast<std::size_t>((linha - 1) * kColunas + coluna - 1));
    }
    std::array<bool, static_cast<std::size_t>(kLinhas) * kColunas> m_celulas{};
};

/// The words that fit into `sala` columns are taken from the front of `palavras`.
QString TiraQueCabem(QStringList &palavras, int sala)
{
    QString linha;
    while (!palavras.isEmpty()) {
        const QString maior =
            linha.isEmpty() ? palavras.first() : linha + QLatin1Char(' ') + palavras.first();
        if (maior.size() > sala)
            break;
        linha = maior;
        palavras.removeFirst();
    }
    return linha;
}

/// The column that keeps a text of `tamanho` on the form when `coluna` would carry it over the edge.
int ColunaNaFolha(int coluna, qsizetype tamanho)
{
    return std::min(coluna, kColunas + 1 - static_cast<int>(tamanho));
}

/// Moves texts of one line left until each ends on the form and at least one blank before the next one.
bool AfastaNaLinha(std::vector<TextoPosto *> &postos)
{
    std::stable_sort(postos.begin(), postos.end(), [](const TextoPosto *a, const TextoPosto *b) {
        return a->lugar.coluna < b->lugar.coluna;
    });
    int limite = kColunas + 1; // the first column behind the text's room
    for (auto posto = postos.rbegin(); posto != postos.rend(); ++posto) {
        int &coluna = (*posto)->lugar.coluna;
        coluna = std::min(coluna, limite - static_cast<int>((*posto)->texto.size()));
        if (coluna < 1)
            return false;
        limite = coluna - 1;
    }
    return true;
}

bool AfastaTodos(Postos &postos)
{
    for (int linha = 1; linha <= kLinhas; ++linha) {
        std::vector<TextoPosto *> daLinha;
        for (TextoPosto &posto : postos) {
            if (posto.lugar.linha == linha && !posto.texto.isEmpty())
                daLinha.push_back(&posto);
        }
        if (!AfastaNaLinha(daLinha))
            return false;
    }
    return true;
}

/// The stars of a words line: they fill the free cells from the end of the words, or from `inicio`, up to
/// kFimDoExtenso.
QString ComEnchimento(const QString &palavras, Lugar lugar, const Ocupacao &ocupacao)
{
    QString linha = palavras;
    for (int c = lugar.coluna + static_cast<int>(palavras.size()); c <= kFimDoExtenso; ++c)
        linha += QLatin1Char(ocupacao.Ocupada(lugar.linha, c) ? ' ' : '*');
    return linha;
}

bool Imprimivel(const QString &texto)
{
    return std::all_of(texto.begin(), texto.end(),
                       [](QChar c) { return c >= QLatin1Char(' ') && c != QChar(0x7F); });
}

/// Amount, payee, city and date at the bank's places.
Postos TextosFixos(const TextosDoCheque &textos, const EstadoDoLeiaute &estado, std::int64_t centavos,
                   QDate data)
{
    const auto lugares = LugaresDe(estado.posicoes);
    const auto posto = [&lugares](Campo campo, const QString &texto) {
        return TextoPosto{campo, lugares.at(static_cast<std::size_t>(campo)), texto};
    };
    return {posto(Campo::Valor, ValorImpresso(centavos)),
            posto(Campo::Favorecido, textos.favorecido),
            posto(Campo::Cidade, textos.cidade),
            posto(Campo::Dia, QStringLiteral("%1").arg(data.day(), 2, 10, QLatin1Char('0'))),
            posto(Campo::Mes, NomeDoMes(data.month())),
            posto(Campo::Ano, AnoImpresso(data.year(), estado.digitosDoAno))};
}

Formulario FormularioDe(const TextosDoCheque &textos, const EstadoDoLeiaute &estado)
{
    return {textos.banco, estado.nomeDoBanco, LugaresDe(estado.posicoes), PrefixoDoAno(estado.digitosDoAno)};
}

/// Adds the words and their filling, and the extra fields, around what stands already. Says what is in the
/// way, if anything.
std::optional<Recusa> AcrescentaRestantes(Postos &postos, const LinhasDoExtenso &extenso,
                                          const EstadoDoLeiaute &estado)
{
    Ocupacao ocupacao;
    for (const TextoPosto &posto : postos)
        ocupacao.Ocupa(posto.lugar, posto.texto.size());
    const auto lugares = LugaresDe(estado.posicoes);
    const Lugar lugar1{lugares.at(1).linha, extenso.coluna1};
    const Lugar lugar2{lugares.at(2).linha, extenso.coluna2};
    if (lugar1.linha == lugar2.linha || !ocupacao.Ocupa(lugar1, extenso.palavras1.size()) ||
        !ocupacao.Ocupa(lugar2, extenso.palavras2.size()))
        return Recusa{"O valor por extenso ficaria sobre outro campo."};
    for (const CampoExtra &extra : estado.extras) {
        const Lugar lugar{std::clamp(extra.lugar.linha, 1, kLinhas),
                          ColunaNaFolha(std::clamp(extra.lugar.coluna, 1, kColunas), extra.texto.size())};
        if (!ocupacao.Ocupa(lugar, extra.texto.size()))
            return Recusa{"Um campo extra ficaria sobre outro campo."};
        postos.push_back({Campo::Extra, lugar, extra.texto});
    }
    postos.push_back({Campo::Extenso1, lugar1, ComEnchimento(extenso.palavras1, lugar1, ocupacao)});
    postos.push_back({Campo::Extenso2, lugar2, ComEnchimento(extenso.palavras2, lugar2, ocupacao)});
    return std::nullopt;
}

/// What cannot be printed at all, whatever the layout.
std::optional<Recusa> RecusaDosTextos(const TextosDoCheque &textos, const EstadoDoLeiaute &estado)
{
    QStringList livres = {textos.favorecido, textos.cidade};
    for (const CampoExtra &extra : estado.extras)
        livres << extra.texto;
    for (const QString &livre : livres) {
        if (!Imprimivel(livre))
            return Recusa{"Um texto tem caracteres que não se imprimem."};
        if (livre.size() > kColunas)
            return Recusa{"Um texto não cabe na largura do cheque."};
    }
    return std::nullopt;
}

} // namespace

std::optional<LinhasDoExtenso> RepartePalavras(const QString &palavras, int coluna1, int coluna2)
{
    LinhasDoExtenso linhas{std::min(coluna1, kFimDoExtenso), std::min(coluna2, kFimDoExtenso), {}, {}};
    while (true) {
        QStringList restantes = palavras.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        linhas.palavras1 = TiraQueCabem(restantes, kFimDoExtenso + 1 - linhas.coluna1);
        linhas.palavras2 = restantes.join(QLatin1Char(' '));
        const int falta = static_cast<int>(linhas.palavras2.size()) - (kFimDoExtenso + 1 - linhas.coluna2);
        if (falta <= 0)
            return linhas;
        if (linhas.coluna2 > 1)
            linhas.coluna2 = std::max(1, linhas.coluna2 - falta);
        else if (linhas.coluna1 > 1)
            --linhas.coluna1;
        else
            return std::nullopt;
    }
}

std::variant<Documento, Recusa> MontaCheque(const TextosDoCheque &textos, const EstadoDoLeiaute &estado)
{
    const auto centavos = CentavosDe(textos.valor);
    if (!centavos)
        return Recusa{QStringLiteral("O valor \"%1\" não pode ser lido.").arg(textos.valor)};
    const auto data = DataDe(textos.data);
    if (!data)
        return Recusa{QStringLiteral("A data \"%1\" não pode ser lida.").arg(textos.data)};
    if (const auto recusa = RecusaDosTextos(textos, estado))
        return *recusa;
    const auto palavras = PalavrasDe(*centavos, estado.moedaSingular, estado.moedaPlural);
    if (!palavras)
        return Recusa{"O valor não pode ser escrito por extenso."};
    const auto lugares = LugaresDe(estado.posicoes);
    const auto extenso = RepartePalavras(*palavras, lugares.at(1).coluna, lugares.at(2).coluna);
    if (!extenso)
        return Recusa{"O valor por extenso não cabe em duas linhas."};

    Documento documento{Documento::Tipo::Cheque, FormularioDe(textos, estado), {}, {}};
    documento.textos = TextosFixos(textos, estado, *centavos, *data);
    if (!AfastaTodos(documento.textos))
        return Recusa{"Os campos de uma linha não cabem lado a lado."};
    if (const auto recusa = AcrescentaRestantes(documento.textos, *extenso, estado))
        return *recusa;
    std::erase_if(documento.textos, [](const TextoPosto &posto) { return posto.texto.isEmpty(); });
    return documento;
}

} // namespace simulador
