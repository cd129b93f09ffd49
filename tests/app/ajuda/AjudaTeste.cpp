// The help window under real keys: topics, index, way back, search, closing, and the look that follows the
// theme.
#include "app/ajuda/Ajuda.h"
#include "app/ajuda/Topicos.h"
#include <cmath>
#include <gtest/gtest.h>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSet>
#include <QTextBlock>
#include <QTextBrowser>
#include <QtTest/QTest>

using app::Ajuda;
using app::MostraAjuda;

namespace {

class AjudaTeste : public testing::Test {
protected:
    void SetUp() override
    {
        m_ajuda.Mostra("Conteudo");
        QApplication::setActiveWindow(&m_ajuda);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_ajuda));
    }

    template <typename T> T *Controle(const char *nome)
    {
        return m_ajuda.findChild<T *>(QString::fromLatin1(nome));
    }
    QTextBrowser *Pagina() { return Controle<QTextBrowser>("Pagina"); }
    std::string Topico() { return Pagina()->source().fileName().section('.', 0, 0).toStdString(); }
    static std::string Foco()
    {
        return QApplication::focusWidget() == nullptr
                   ? ""
                   : QApplication::focusWidget()->objectName().toStdString();
    }
    static void Tecla(Qt::Key tecla, Qt::KeyboardModifiers com = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), tecla, com);
    }
    static void Digita(const char *texto) { QTest::keyClicks(QApplication::focusWidget(), texto); }
    std::string Achado() { return Pagina()->textCursor().selectedText().toStdString(); }

    Ajuda m_ajuda;
};

struct CasoTopico {
    std::string nome;
    const char *palavra;
    const char *pagina;
};
void PrintTo(const CasoTopico &caso, std::ostream *os)
{
    *os << '"' << caso.palavra << '"';
}
class TopicoTeste : public testing::TestWithParam<CasoTopico> {};

} // namespace

TEST_P(TopicoTeste, LeadsToItsPageAndTheIndexFollows)
{
    Ajuda ajuda;
    ajuda.Mostra("Verso");
    ajuda.Mostra(GetParam().palavra);
    EXPECT_EQ(ajuda.findChild<QTextBrowser *>()->source().fileName().toStdString(),
              std::string(GetParam().pagina) + ".html");
    const int linha = ajuda.findChild<QListWidget *>()->currentRow();
    EXPECT_EQ(app::Topicos().value(linha).palavra.toStdString(), GetParam().pagina);
}

INSTANTIATE_TEST_SUITE_P(Palavras, TopicoTeste,
                         testing::Values(CasoTopico{"TheContents", "Conteudo", "Conteudo"},
                                         CasoTopico{"AnotherPage", "CamposExtras", "CamposExtras"},
                                         CasoTopico{"WithoutRegardToCase", "IMPRESSAO", "Impressao"},
                                         CasoTopico{"AnUnknownWord", "Nada", "Conteudo"},
                                         CasoTopico{"NoWord", "", "Conteudo"},
                                         CasoTopico{"APathIsNoWord", "../ajuda", "Conteudo"}),
                         [](const auto &caso) { return caso.param.nome; });

TEST(MostraAjuda, UsesOneWindowAgainAndAgain)
{
    QWidget pai;
    MostraAjuda("Cheque", &pai);
    auto *primeira = pai.findChild<Ajuda *>();
    ASSERT_NE(primeira, nullptr);
    EXPECT_TRUE(primeira->isWindow());
    EXPECT_EQ(primeira->windowTitle().toStdString(), "Ajuda - QX70 MIRA");
    primeira->close();
    MostraAjuda("Verso", &pai);
    EXPECT_EQ(pai.findChildren<Ajuda *>().size(), 1);
    EXPECT_TRUE(primeira->isVisible());
    EXPECT_EQ(primeira->findChild<QTextBrowser *>()->source().fileName().toStdString(), "Verso.html");
}

TEST_F(AjudaTeste, EscapeCloses)
{
    Tecla(Qt::Key_Escape);
    EXPECT_FALSE(m_ajuda.isVisible());
}

TEST_F(AjudaTeste, TheIndexTurnsPagesByTheArrows)
{
    Controle<QListWidget>("Indice")->setFocus();
    Tecla(Qt::Key_Down);
    EXPECT_EQ(Topico(), "PrimeirosPassos");
    Tecla(Qt::Key_End);
    EXPECT_EQ(Topico(), "Problemas");
    EXPECT_EQ(Foco(), "Indice");
}

TEST_F(AjudaTeste, LinksAreFollowedFromTheKeyboard)
{
    EXPECT_EQ(Foco(), "Pagina");
    Tecla(Qt::Key_Tab);
    Tecla(Qt::Key_Tab);
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Topico(), "Teclas");
    EXPECT_EQ(app::Topicos().value(Controle<QListWidget>("Indice")->currentRow()).palavra.toStdString(),
              "Teclas");
}

TEST_F(AjudaTeste, TheWayLeadsBackAndForward)
{
    m_ajuda.Mostra("Verso");
    Tecla(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Topico(), "Conteudo");
    EXPECT_FALSE(Controle<QPushButton>("Voltar")->isEnabled());
    Tecla(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Topico(), "Verso");
    EXPECT_FALSE(Controle<QPushButton>("Avancar")->isEnabled());
    QTest::mouseClick(Controle<QPushButton>("Voltar"), Qt::LeftButton);
    EXPECT_EQ(Topico(), "Conteudo");
}

TEST_F(AjudaTeste, SearchFindsAsOneTypesAndGoesRoundTheEnd)
{
    m_ajuda.Mostra("Verso");
    Tecla(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(Foco(), "TextoProcurado");
    Digita("VRS10");
    EXPECT_EQ(Achado(), "Vrs10");
    const int primeiro = Pagina()->textCursor().position();
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Pagina()->textCursor().position(), primeiro) << "the page has it once";
    EXPECT_EQ(Foco(), "TextoProcurado");
}

TEST_F(AjudaTeste, SearchGoesOnAndBack)
{
    m_ajuda.Mostra("Verso");
    Tecla(Qt::Key_F, Qt::ControlModifier);
    Digita("linha");
    const int primeiro = Pagina()->textCursor().position();
    Tecla(Qt::Key_F3);
    const int segundo = Pagina()->textCursor().position();
    EXPECT_GT(segundo, primeiro);
    Tecla(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Pagina()->textCursor().position(), primeiro);
    Tecla(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_GT(Pagina()->textCursor().position(), segundo) << "backward from the first goes to the last";
}

TEST_F(AjudaTeste, AMissingTextIsToldAndThePlaceKept)
{
    Tecla(Qt::Key_F, Qt::ControlModifier);
    Digita("porta");
    const int onde = Pagina()->textCursor().selectionStart();
    Digita("xyz");
    EXPECT_EQ(Controle<QLabel>("Resultado")->text().toStdString(), "Não encontrado.");
    EXPECT_EQ(Pagina()->textCursor().position(), onde);
    for (int i = 0; i < 3; ++i)
        Tecla(Qt::Key_Backspace);
    EXPECT_EQ(Controle<QLabel>("Resultado")->text().toStdString(), "");
    EXPECT_EQ(Achado(), "porta");
}

TEST_F(AjudaTeste, EscapeClosesTheSearchFirst)
{
    Tecla(Qt::Key_F, Qt::ControlModifier);
    Tecla(Qt::Key_Escape);
    EXPECT_TRUE(m_ajuda.isVisible());
    EXPECT_FALSE(Controle<QWidget>("Procura")->isVisible());
    EXPECT_EQ(Foco(), "Pagina");
    Tecla(Qt::Key_Escape);
    EXPECT_FALSE(m_ajuda.isVisible());
}

TEST_F(AjudaTeste, TabGoesInReadingOrder)
{
    m_ajuda.Mostra("Verso"); // so that all buttons but one are enabled
    Tecla(Qt::Key_F, Qt::ControlModifier);
    QStringList caminho;
    for (int i = 0; i < 40 && !caminho.endsWith("TextoProcurado"); ++i) {
        Tecla(Qt::Key_Tab);
        const QString agora = QString::fromStdString(Foco());
        if (caminho.isEmpty() || caminho.last() != agora) // inside the page Tab goes from link to link
            caminho.append(agora);
    }
    EXPECT_EQ(caminho.join(' ').toStdString(),
              "Proxima Anterior Voltar Procurar Fechar Indice Pagina TextoProcurado");
}

TEST_F(AjudaTeste, MnemonicsAreAllDifferent)
{
    QSet<QChar> letras;
    for (const QPushButton *botao : m_ajuda.findChildren<QPushButton *>()) {
        const QChar letra = botao->text().at(botao->text().indexOf('&') + 1).toLower();
        EXPECT_TRUE(botao->text().contains('&') && !letras.contains(letra)) << botao->text().toStdString();
        letras.insert(letra);
    }
    EXPECT_EQ(letras.size(), 6);
}

/// Brightness of a colour by the usual weights, and the ratio of two; counted here apart from the window's
/// own.
static double Brilho(const QColor &cor)
{
    double soma = 0;
    const double pesos[] = {0.2126, 0.7152, 0.0722};
    const double partes[] = {cor.redF(), cor.greenF(), cor.blueF()};
    for (int i = 0; i < 3; ++i)
        soma += pesos[i] * std::pow((partes[i] + 0.055) / 1.055, 2.4);
    return soma;
}

TEST_F(AjudaTeste, LinksCanBeReadInADarkTheme)
{
    QPalette escura;
    escura.setColor(QPalette::Base, QColor(30, 30, 30));
    escura.setColor(QPalette::Text, QColor(230, 230, 230));
    escura.setColor(QPalette::Link, QColor(0, 0, 255)); // what a theme without a colour of its own leaves
    m_ajuda.setPalette(escura);
    QColor elo;
    const QTextDocument *documento = Pagina()->document();
    for (QTextBlock bloco = documento->begin(); bloco.isValid(); bloco = bloco.next()) {
        for (auto i = bloco.begin(); !i.atEnd(); ++i) {
            if (i.fragment().charFormat().isAnchor())
                elo = i.fragment().charFormat().foreground().color();
        }
    }
    ASSERT_TRUE(elo.isValid());
    EXPECT_GE((Brilho(elo) + 0.05) / (Brilho(QColor(30, 30, 30)) + 0.05), 4.4);
    EXPECT_EQ(Topico(), "Conteudo");
}

TEST_F(AjudaTeste, PagesFollowTheTypeSize)
{
    const auto altura = [this] { return Pagina()->document()->size().height(); };
    const double antes = altura();
    QFont grande = m_ajuda.font();
    grande.setPointSizeF(grande.pointSizeF() * 2);
    m_ajuda.setFont(grande);
    QApplication::processEvents();
    EXPECT_GT(altura(), 1.8 * antes);
}
