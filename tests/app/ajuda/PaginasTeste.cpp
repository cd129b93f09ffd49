// The pages of the help: all there, all reachable, and free of colours of their own.
#include "app/ajuda/Ajuda.h"
#include "app/ajuda/Topicos.h"
#include <gtest/gtest.h>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTextBlock>
#include <QTextBrowser>

using app::Ajuda;
using app::Topicos;

namespace {

/// The source text of a page; the pages are in the program once a help window has been made.
QString Fonte(const QString &palavra)
{
    const Ajuda ligaPaginas;
    QFile arquivo(":/ajuda/paginas/" + palavra + ".html");
    return arquivo.open(QIODevice::ReadOnly) ? QString::fromUtf8(arquivo.readAll()) : QString();
}

QStringList Elos(const QString &fonte)
{
    QStringList elos;
    static const QRegularExpression elo("href=\"([^\"]*)\"");
    for (auto achados = elo.globalMatch(fonte); achados.hasNext();)
        elos.append(achados.next().captured(1));
    return elos;
}

QStringList Palavras()
{
    QStringList palavras;
    for (const app::Topico &topico : Topicos())
        palavras.append(topico.palavra);
    return palavras;
}

class PaginaTeste : public testing::TestWithParam<std::string> {
protected:
    [[nodiscard]] static QString Palavra() { return QString::fromStdString(GetParam()); }
};

std::vector<std::string> TodasAsPalavras()
{
    std::vector<std::string> palavras;
    for (const QString &palavra : Palavras())
        palavras.push_back(palavra.toStdString());
    return palavras;
}

} // namespace

TEST_P(PaginaTeste, HasATitleAndSomethingToSay)
{
    Ajuda ajuda;
    ajuda.Mostra(Palavra());
    const auto *pagina = ajuda.findChild<QTextBrowser *>("Pagina");
    EXPECT_FALSE(pagina->documentTitle().isEmpty());
    EXPECT_EQ(pagina->document()->firstBlock().text(), pagina->documentTitle());
    EXPECT_GT(pagina->toPlainText().size(), 500);
}

TEST_P(PaginaTeste, LeadsOnlyToPagesThatExist)
{
    for (const QString &elo : Elos(Fonte(Palavra())))
        EXPECT_TRUE(elo.endsWith(".html") && Palavras().contains(elo.chopped(5))) << elo.toStdString();
}

TEST_P(PaginaTeste, HasNoColourAndNoTypeSizeOfItsOwn)
{
    static const QRegularExpression proprio("color|#[0-9a-f]{3,6}\\b|font|style=|&nbsp;&nbsp;",
                                            QRegularExpression::CaseInsensitiveOption);
    EXPECT_FALSE(Fonte(Palavra()).isEmpty());
    EXPECT_EQ(proprio.match(Fonte(Palavra())).captured(0).toStdString(), "");
}

INSTANTIATE_TEST_SUITE_P(Paginas, PaginaTeste, testing::ValuesIn(TodasAsPalavras()),
                         [](const auto &caso) { return caso.param; });

TEST(Paginas, AllAreReachedFromTheContents)
{
    QSet<QString> vistas{"Conteudo"};
    QStringList porVer{"Conteudo"};
    while (!porVer.isEmpty()) {
        for (const QString &elo : Elos(Fonte(porVer.takeFirst()))) {
            if (!vistas.contains(elo.chopped(5))) {
                vistas.insert(elo.chopped(5));
                porVer.append(elo.chopped(5));
            }
        }
    }
    const QStringList palavras = Palavras();
    EXPECT_EQ(vistas, QSet<QString>(palavras.begin(), palavras.end()));
}

namespace {
struct CasoNumero {
    const char *numero;
    const char *conselho; ///< a word that the advice cannot do without
};
void PrintTo(const CasoNumero &caso, std::ostream *os)
{
    *os << caso.numero;
}
class NumeroDaImpressoraTeste : public testing::TestWithParam<CasoNumero> {};
} // namespace

TEST_P(NumeroDaImpressoraTeste, IsInTheTableWithItsAdvice)
{
    const QRegularExpression linha(QString("<tr><td>%1</td>(.*)</tr>").arg(GetParam().numero));
    const QString achada = linha.match(Fonte("Impressao")).captured(1);
    EXPECT_TRUE(achada.contains(GetParam().conselho)) << achada.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Numeros, NumeroDaImpressoraTeste,
                         testing::Values(CasoNumero{"002", "qx7032.conf"}, CasoNumero{"003", "cabo"},
                                         CasoNumero{"004", "outro programa"}, CasoNumero{"005", "dialout"},
                                         CasoNumero{"006", "velocidade"}, CasoNumero{"007", "reinicie"},
                                         CasoNumero{"010", "ligada"}, CasoNumero{"011", "papel"},
                                         CasoNumero{"012", "papel"}, CasoNumero{"013", "de novo"},
                                         CasoNumero{"014", "papel"}, CasoNumero{"020", "documento"},
                                         CasoNumero{"021", "papel"}, CasoNumero{"022", "Envie"},
                                         CasoNumero{"023", "posições"}, CasoNumero{"024", "favorecido"},
                                         CasoNumero{"029", "papel"}, CasoNumero{"030", "campos"}),
                         [](const auto &caso) { return std::string("N") + caso.param.numero; });

/// A text without the signs of its markup and without blanks, so that only its words count.
static QString SoPalavras(QString texto)
{
    static const QRegularExpression elo("\\]\\(#[^)]*\\)");
    static const QRegularExpression sinais("[\\s*`|>\\[\\]\u00a0]");
    return texto.remove(elo).remove(sinais);
}

TEST_P(PaginaTeste, StandsWordForWordInTheManual)
{
    QFile manual(QX70_MANUAL);
    ASSERT_TRUE(manual.open(QIODevice::ReadOnly));
    const QString palavras = SoPalavras(QString::fromUtf8(manual.readAll()));
    Ajuda ajuda;
    ajuda.Mostra(Palavra());
    const QTextDocument *documento = ajuda.findChild<QTextBrowser *>("Pagina")->document();
    for (QTextBlock bloco = documento->begin(); bloco.isValid(); bloco = bloco.next())
        EXPECT_TRUE(palavras.contains(SoPalavras(bloco.text()))) << bloco.text().toStdString();
}
