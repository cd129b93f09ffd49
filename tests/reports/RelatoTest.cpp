// The list of the cheques: what it shows, its total, the panel of the chosen one, and its closing.
#include "ComRelato.h"
#include "Ordem.h"

#include <QAction>
#include <QFile>
#include <QGroupBox>
#include <QImage>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>

using namespace teste;

namespace {

using RelatoTest = ComRelato;

// --- what it shows ---

TEST_F(RelatoTest, HasItsNameCaptionAndPlace)
{
    AbreRelato();
    EXPECT_EQ(Relato().objectName(), "Relato");
    EXPECT_EQ(Relato().windowTitle(), "Relatório de Cheques Transmitidos");
    EXPECT_TRUE(Relato().isWindow());
    EXPECT_FALSE(Relato().isModal());
    const QRect area = Relato().screen()->availableGeometry();
    const QPoint meio = Relato().geometry().center();
    // One that is wider than the display begins at its edge.
    const int esquerda = std::max(area.left(), area.center().x() - Relato().width() / 2);
    EXPECT_LE(std::abs(Relato().geometry().left() - esquerda), 2);
    EXPECT_LE(std::abs(meio.y() - (area.center().y() - 20)), 2) << "300 units above the middle";
}

TEST_F(RelatoTest, ControlsHaveTheirCaptions)
{
    AbreRelato();
    const std::vector<std::pair<const char *, const char *>> textos = {{"OpCmd(1)", "Normal"},
                                                                       {"OpCmd01(1)", "Compacto"},
                                                                       {"OpCmd(0)", "QX70"},
                                                                       {"OpCmd01(0)", "Arquivo"},
                                                                       {"OpCmd02(0)", "Impressora do Win"},
                                                                       {"SSCommand1", "Enviar Lista"},
                                                                       {"SSCommand2", "Fechar"},
                                                                       {"SSCommand3", "Re-Imprimir"},
                                                                       {"SSCommand4", "Cancelar Cheque"},
                                                                       {"SSCommand5", "Lista Completa"},
                                                                       {"SSCommand6", "Filtro"},
                                                                       {"Elimina", "Excluir Cheque"},
                                                                       {"criar", "Criar Agora"}};
    for (const auto &[nome, texto] : textos) {
        const auto *botao = apoio::Controle<QAbstractButton>(Relato(), nome);
        EXPECT_EQ(botao->text(), texto) << nome;
        EXPECT_TRUE(botao->isEnabled()) << nome;
    }
    EXPECT_EQ(Relato().findChildren<QAbstractButton *>().size(), static_cast<qsizetype>(textos.size()));
    QStringList rotulos;
    for (const auto *quadro : Relato().findChildren<QGroupBox *>())
        rotulos << quadro->title();
    for (const auto *rotulo : Relato().findChildren<QLabel *>())
        rotulos << rotulo->text();
    for (const char *texto : {"Total em cheques", "Criar relatório Geral", "Compatível com \nWord e Excel"})
        EXPECT_TRUE(rotulos.contains(texto)) << texto;
    EXPECT_TRUE(apoio::Controle<QLabel>(Relato(), "Label2")
                    ->text()
                    .startsWith("Status    Nº Cheque |  Bco  |  Valor"));
}

TEST_F(RelatoTest, OpensWithNormalOnTheDevice)
{
    AbreRelato();
    QStringList ligadas;
    for (const auto *opcao : Relato().findChildren<QRadioButton *>())
        if (opcao->isChecked())
            ligadas << opcao->text();
    EXPECT_EQ(ligadas.join(' '), "Normal QX70");
}

TEST_F(RelatoTest, FormAndOutputAreChosenApart)
{
    AbreRelato();
    for (const char *forma : {"OpCmd01(1)", "OpCmd(1)"}) {
        for (const char *saida : {"OpCmd01(0)", "OpCmd02(0)", "OpCmd(0)"}) {
            Marca("Relato", forma);
            Marca("Relato", saida);
            int ligadas = 0;
            for (const auto *opcao : Relato().findChildren<QRadioButton *>())
                ligadas += opcao->isChecked() ? 1 : 0;
            EXPECT_EQ(ligadas, 2) << forma << ' ' << saida;
            EXPECT_TRUE(apoio::Controle<QRadioButton>(Relato(), forma)->isChecked());
        }
    }
}

TEST_F(RelatoTest, ListsEveryChequeInTheOrderOfTheTable)
{
    AbreRelato();
    EXPECT_EQ(Lista(), kLinhas);
    EXPECT_EQ(List1()->Corrente(), -1) << "none is chosen yet";
    EXPECT_EQ(Painel(), m_painelVazio);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(RelatoTest, ACancelledChequeIsListedButNotTotalled)
{
    AbreRelato();
    EXPECT_EQ(Total(), "2.235,25");
    EXPECT_DOUBLE_EQ(Dados().TotalCheques, 2235.25);
}

TEST_F(RelatoTest, AnEmptyLogShowsNothingAndNoTotal)
{
    m_escritorio.Sql("DELETE FROM Log");
    AbreRelato();
    EXPECT_EQ(List1()->Quantas(), 0);
    EXPECT_EQ(Total(), "");
    EXPECT_EQ(Dados().TotalCheques, 0);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(RelatoTest, NamesOfAnyCharactersStandWhole)
{
    m_escritorio.Sql("UPDATE Log SET Favor = 'ÀÉÍõç ñ ß ÿ' WHERE rowid = 1;"
                     "UPDATE Log SET Favor = 'Zażółć 日本 🖨' WHERE rowid = 2;"
                     "UPDATE Log SET Favor = CAST(x'4A6F736520434F4E4345C7C34F' AS TEXT) WHERE rowid = 3;"
                     "UPDATE Log SET Favor = CAST(x'C3A9C3' AS TEXT) WHERE rowid = 4");
    AbreRelato();
    const QStringList nomes = {"ÀÉÍõç ñ ß ÿ", "Zażółć 日本 🖨", "Jose CONCEÇÃO", "Ã©Ã"};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(Lista().at(i).mid(54).chopped(10).trimmed(), nomes[i]);
}

struct CasoValor {
    std::string nome;
    QString gravado;
    std::string total;
};
void PrintTo(const CasoValor &c, std::ostream *os)
{
    *os << c.gravado.toStdString();
}
using ValorTotalizado = ComRelatoDe<CasoValor>;
TEST_P(ValorTotalizado, AsItIsStored)
{
    m_escritorio.Sql("DELETE FROM Log");
    Grava({"0000000001", "001", GetParam().gravado, "Ana", "", "01/02/03", "1", " "});
    Grava({"0000000002", "001", ",01", "Ana", "", "01/02/03", "1", " "});
    AbreRelato();
    EXPECT_EQ(Total(), GetParam().total);
    EXPECT_EQ(List1()->Quantas(), 2);
}
INSTANTIATE_TEST_SUITE_P(
    Valores, ValorTotalizado,
    testing::Values(CasoValor{"WholeWithItsComma", "1000,", "1.000,01"},
                    CasoValor{"NoWholePart", ",99", "1,00"}, CasoValor{"OneDecimal", "1234,5", "1.234,51"},
                    CasoValor{"OfAnotherProgramWithPoints", "1.234,50", "1.234,51"},
                    CasoValor{"Negative", "-2,5", "-2,49"}, CasoValor{"BlanksAround", " 7,00 ", "7,01"},
                    CasoValor{"FifteenDigits", "1234567890123,45", "1.234.567.890.123,46"},
                    CasoValor{"ZerosInFront", "000000000000000000012,5", "12,51"}),
    kNomeDoCaso);

// --- rows that cannot be read ---

TEST_F(RelatoTest, AValueThatIsNoNumberIsNamedAndTheRestIsShown)
{
    Grava({"0000000005", "001", "abc", "Ana", "", "01/02/03", "1", " "});
    Grava({"0000000006", "001", "", "Ana", "", "01/02/03", "1", " "});
    Grava({"0000000007", "001", "1,", "Ana", "", "01/02/03", "1", " "});
    AbreRelato();
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    const QString texto = m_caixas->Ultima().texto;
    EXPECT_TRUE(texto.contains("0000000005: \"abc\"")) << texto.toStdString();
    EXPECT_TRUE(texto.contains("0000000006: \"\"")) << texto.toStdString();
    EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Warning);
    EXPECT_EQ(Listados(), "1 2 3 4 7");
    EXPECT_EQ(Total(), "2.236,25");
    ClicaNaLinha(4);
    EXPECT_EQ(Rotulo(1), "1,00") << "the row under the click, not the one left out";
}

TEST_F(RelatoTest, ADateThatIsNoDateIsNamedAndShownAsStored)
{
    Grava({"0000000005", "001", "1,", "Ana", "", "31/02/03", "1", " "});
    AbreRelato();
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    EXPECT_TRUE(m_caixas->Ultima().texto.contains("0000000005: \"31/02/03\""));
    EXPECT_EQ(Listados(), "1 2 3 4 5");
    EXPECT_EQ(Lista().last().mid(43, 8), "31/02/03");
    EXPECT_EQ(Total(), "2.236,25");
}

struct CasoData {
    std::string nome;
    QString data;
    bool ruim;
};
void PrintTo(const CasoData &c, std::ostream *os)
{
    *os << c.data.toStdString();
}
using DataGravada = ComRelatoDe<CasoData>;
TEST_P(DataGravada, IsNamedWhenItCannotBeRead)
{
    m_escritorio.Sql("DELETE FROM Log");
    Grava({"0000000001", "001", "1,", "Ana", "", GetParam().data, "1", " "});
    AbreRelato();
    EXPECT_EQ(m_caixas->Quantas(), GetParam().ruim ? 1U : 0U);
    EXPECT_EQ(List1()->Quantas(), 1);
}
INSTANTIATE_TEST_SUITE_P(
    Datas, DataGravada,
    testing::Values(CasoData{"Usual", "28/12/03", false}, CasoData{"LastOfMonth", "31/12/03", false},
                    CasoData{"LeapDay", "29/02/04", false}, CasoData{"NoLeapDay", "29/02/03", true},
                    CasoData{"Month13", "01/13/03", true}, CasoData{"DayZero", "00/12/03", true},
                    CasoData{"Empty", "", false}, CasoData{"FourDigits", "01/12/2003", false},
                    CasoData{"Letters", "ab/cd/ef", true}),
    kNomeDoCaso);

TEST_F(RelatoTest, ManyUnreadableRowsMakeNoEndlessMessage)
{
    for (int i = 5; i < 35; ++i)
        Grava({QString("%1").arg(i, 10, 10, QChar('0')), "001", "x", "Ana", "", "01/02/03", "1", " "});
    AbreRelato();
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    const QString texto = m_caixas->Ultima().texto;
    EXPECT_TRUE(texto.contains("0000000014")) << texto.toStdString();
    EXPECT_FALSE(texto.contains("0000000015")) << texto.toStdString();
    EXPECT_TRUE(texto.contains("mais 20")) << texto.toStdString();
}

// --- the panel ---

TEST_F(RelatoTest, AClickShowsTheCheque)
{
    AbreRelato();
    ClicaNaLinha(0);
    EXPECT_EQ(Painel(), "001 - BANCO UM|1.234,50|Ana Lima|Recife|01/02/03|000123| |nota 1||");
    ClicaNaLinha(1);
    EXPECT_EQ(Painel(), "237 - BANCO DOIS|1.000,00|José Luís|São Paulo|15/02/03| | |a|b|c");
    ClicaNaLinha(2);
    EXPECT_EQ(Painel(), "001 - BANCO UM|50,25|Ana Lima|Olinda|20/02/03|000125|C|||");
    EXPECT_EQ(Total(), "2.235,25") << "the total is of the list";
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(RelatoTest, ABankThatIsNotRegisteredIsInexistente)
{
    AbreRelato();
    ClicaNaLinha(3);
    EXPECT_EQ(Rotulo(0), "341 - Inexistente");
}

TEST_F(RelatoTest, AChequeWithoutABankHasNoBanksName)
{
    Grava({"0000000005", "", "1,", "Ana", "", "01/02/03", "1", " "});
    AbreRelato();
    ClicaNaLinha(4);
    EXPECT_EQ(Rotulo(0), " - Inexistente");
}

TEST_F(RelatoTest, FieldsThatAreMissingShowABlank)
{
    m_escritorio.Sql("INSERT INTO Log (\"Index\", Banco, V_CH) VALUES ('0000000005', '001', '2,')");
    AbreRelato();
    ClicaNaLinha(4);
    EXPECT_EQ(Painel(), "001 - BANCO UM|2,00|| | | | |||");
    EXPECT_EQ(Lista().at(4),
              "  |             | 001 |             2,00 |          | " + QString(74, ' ') + "0000000005");
}

TEST_F(RelatoTest, TheCommentsGoToTheSharedLines)
{
    AbreRelato();
    ClicaNaLinha(1);
    EXPECT_EQ(Dados().ComentarioLinha1, "a");
    EXPECT_EQ(Dados().ComentarioLinha2, "b");
    EXPECT_EQ(Dados().ComentarioLinha3, "c");
    ClicaNaLinha(3);
    EXPECT_EQ(Dados().ComentarioLinha1 + Dados().ComentarioLinha2 + Dados().ComentarioLinha3, "");
}

TEST_F(RelatoTest, ArrowsChooseAsAClickDoes)
{
    AbreRelato();
    ASSERT_EQ(apoio::Foco(Relato()), "List1") << "the list has the focus from the beginning";
    apoio::Tecla(Relato(), Qt::Key_Down);
    EXPECT_EQ(Rotulo(6), "000123");
    apoio::Tecla(Relato(), Qt::Key_End);
    EXPECT_EQ(Rotulo(6), "000126");
}

TEST_F(RelatoTest, ARowThatIsGoneBeforeTheClickIsToldAndThePanelEmptied)
{
    AbreRelato();
    ClicaNaLinha(0);
    m_escritorio.Sql("DELETE FROM Log WHERE rowid = 2");
    ClicaNaLinha(1);
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    EXPECT_TRUE(m_caixas->Ultima().texto.contains("0000000002"));
    EXPECT_EQ(Painel(), m_painelVazio);
    EXPECT_EQ(Total(), "2.235,25");
    ClicaNaLinha(3);
    EXPECT_EQ(Rotulo(6), "000126") << "the others are still there";
    EXPECT_EQ(m_caixas->Quantas(), 1U);
}

TEST_F(RelatoTest, AClickShowsTheRowAsItIsNow)
{
    AbreRelato();
    m_escritorio.Sql("UPDATE Log SET StCancel = 'C', Favor = 'Outro' WHERE rowid = 1");
    ClicaNaLinha(0);
    EXPECT_EQ(Rotulo(7), "C");
    EXPECT_EQ(Rotulo(2), "Outro");
}

TEST_F(RelatoTest, AValueThatBecameUnreadableEmptiesThePanel)
{
    AbreRelato();
    ClicaNaLinha(0);
    m_escritorio.Sql("UPDATE Log SET V_CH = 'x' WHERE rowid = 2");
    ClicaNaLinha(1);
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    EXPECT_TRUE(m_caixas->Ultima().texto.startsWith("Ocorreu erro 13!"));
    EXPECT_EQ(Painel(), m_painelVazio) << "no other cheque than the chosen one";
}

TEST_F(RelatoTest, AnApostropheInABankDoesNoHarm)
{
    Grava({"0000000005", "0'1", "1,", "D'Ávila", "Pau d'Alho", "01/02/03", "1", " "});
    AbreRelato();
    ASSERT_EQ(Listados(), "1 2 3 4 5");
    ClicaNaLinha(4);
    ClicaNaLinha(0);
    EXPECT_EQ(Rotulo(2), "Ana Lima");
}

// --- the whole list again ---

TEST_F(RelatoTest, ListaCompletaReadsTheLogAnew)
{
    AbreRelato();
    Grava({"0000000005", "001", "10,", "Ana", "", "01/02/03", "1", " "});
    Aperta("SSCommand5");
    EXPECT_EQ(Listados(), "1 2 3 4 5");
    EXPECT_EQ(Total(), "2.245,25");
    EXPECT_EQ(List1()->Corrente(), -1);
}

TEST_F(RelatoTest, ListaCompletaLeavesNumberStatusAndCommentsOnPurpose)
{
    AbreRelato();
    ClicaNaLinha(1);
    Aperta("SSCommand5");
    EXPECT_EQ(Painel(), "||||| | |a|b|c");
}

TEST_F(RelatoTest, AnEmptiedLogKeepsTheTotalThatWasShown)
{
    AbreRelato();
    m_escritorio.Sql("DELETE FROM Log");
    Aperta("SSCommand5");
    EXPECT_EQ(List1()->Quantas(), 0);
    EXPECT_EQ(Total(), "2.235,25");
    EXPECT_EQ(Dados().TotalCheques, 0) << "the shared one is 0";
}

// --- the store ---

TEST_F(RelatoTest, WithoutAStoreItIsToldAndNoScreenComes)
{
    Abre();
    ASSERT_TRUE(QFile::rename(m_escritorio.Arquivo("QX70.MDB"), m_escritorio.Arquivo("longe.MDB")));
    for (const char *entrada : {"Relat", "Opcoes(2)"}) {
        if (auto *acao = Tela().findChild<QAction *>(entrada))
            acao->trigger();
        else
            Clica(entrada);
        Descarta();
        EXPECT_EQ(m_caixas->Ultima().texto, "O Banco de dados \"QX70.MDB\" nao foi encontrado!") << entrada;
        EXPECT_EQ(m_caixas->Ultima().titulo.toStdString(), kTitulo);
        EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::NoIcon);
        EXPECT_FALSE(EstaAberta("Relato"));
        EXPECT_EQ(Dados().FechaTela, 0);
    }
    EXPECT_EQ(m_caixas->Quantas(), 2U);
}

TEST_F(RelatoTest, AStoreThatGoesAwayIsToldAtTheNextAction)
{
    AbreRelato();
    ASSERT_TRUE(QFile::rename(m_escritorio.Arquivo("QX70.MDB"), m_escritorio.Arquivo("longe.MDB")));
    ClicaNaLinha(0);
    EXPECT_EQ(m_caixas->Ultima().texto, "O Banco de dados \"QX70.MDB\" nao foi encontrado!");
    EXPECT_EQ(Painel(), m_painelVazio);
    EXPECT_EQ(Lista(), kLinhas) << "the list is a copy";
}

TEST_F(RelatoTest, NoReadingCursorStaysOpen)
{
    AbreRelato();
    EXPECT_TRUE(OutroEscreve());
    ClicaNaLinha(0);
    EXPECT_TRUE(OutroEscreve());
    Aperta("SSCommand5");
    EXPECT_TRUE(OutroEscreve());
}

TEST_F(RelatoTest, AChequePrintedOnMainMeanwhileTakesNothingFromIt)
{
    AbreRelato();
    ClicaNaLinha(1);
    Ativa();
    PreencheCheque();
    Clica("Opcoes(0)");
    ASSERT_EQ(Log().size(), 5);
    ClicaNaLinha(0);
    EXPECT_EQ(Rotulo(6), "000123");
    EXPECT_EQ(Listados(), "1 2 3 4") << "until it is read again";
    Aperta("SSCommand5");
    EXPECT_EQ(Listados(), "1 2 3 4 5");
}

// --- opening and closing ---

TEST_F(RelatoTest, TheButtonOpensItToo)
{
    Abre();
    Clica("Opcoes(2)");
    EXPECT_TRUE(EstaAberta("Relato"));
    EXPECT_EQ(Lista(), kLinhas);
}

TEST_F(RelatoTest, ASecondOpeningRaisesTheOneThatIsOpen)
{
    AbreRelato();
    ClicaNaLinha(0);
    QWidget *primeira = &Relato();
    Ativa();
    Tela().findChild<QAction *>("Relat")->trigger();
    ASSERT_EQ(Abertas("Relato").size(), 1);
    EXPECT_EQ(&Relato(), primeira);
    EXPECT_EQ(Rotulo(6), "000123");
}

struct CasoFecha {
    std::string nome;
    bool esc;
};
void PrintTo(const CasoFecha &c, std::ostream *os)
{
    *os << c.nome;
}
using RelatoFechado = ComRelatoDe<CasoFecha>;
TEST_P(RelatoFechado, GivesTheSetBackAndOpensAfresh)
{
    AbreRelato();
    ClicaNaLinha(0);
    if (GetParam().esc)
        apoio::Tecla(Relato(), Qt::Key_Escape);
    else
        Aperta("SSCommand2");
    EXPECT_FALSE(EstaAberta("Relato"));
    Descarta();
    EXPECT_FALSE(Dados().armazem.Aberto(nucleo::SelLog));
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    AbrePeloMenu("Relat", "Relato");
    EXPECT_EQ(Painel(), m_painelVazio);
    EXPECT_EQ(Lista(), kLinhas);
}
INSTANTIATE_TEST_SUITE_P(Modos, RelatoFechado,
                         testing::Values(CasoFecha{"ByItsButton", false}, CasoFecha{"ByEsc", true}),
                         kNomeDoCaso);

// --- keyboard and layout ---

TEST_F(RelatoTest, TabWalksInReadingOrder)
{
    AbreRelato();
    const QStringList volta = VoltaDoTab(Relato());
    EXPECT_EQ(volta.join(' ').toStdString(),
              "List1 OpCmd(1) OpCmd(0) SSCommand1 criar SSCommand3 SSCommand4 Elimina SSCommand6 SSCommand5 "
              "SSCommand2");
    QStringList lida = OrdemDeLeitura(Relato());
    // A group of options is one stop: the one that is on.
    for (const char *outra : {"OpCmd01(1)", "OpCmd01(0)", "OpCmd02(0)"})
        lida.removeAll(outra);
    EXPECT_EQ(volta, lida);
}

// Dark dots of a picture in one column of characters, by their distance from its left edge.
QSet<int> Pontos(const QImage &figura, int esquerda, int largura)
{
    QSet<int> pontos;
    for (int x = std::max(esquerda, 0); x < std::min(esquerda + largura, figura.width()); ++x)
        for (int y = 0; y < figura.height(); ++y)
            if (qGray(figura.pixel(x, y)) < 128)
                pontos.insert(x - esquerda);
    return pontos;
}

TEST_F(RelatoTest, TitlesStandExactlyOverTheColumns)
{
    AbreRelato();
    QWidget *rotulo = apoio::Controle<QLabel>(Relato(), "Label2");
    EXPECT_EQ(rotulo->font(), List1()->font());
    const QFontMetrics medida(List1()->font());
    ASSERT_EQ(medida.horizontalAdvance("iiii"), medida.horizontalAdvance("WWWW")) << "fixed pitch";
    for (const int sobra : {0, 37}) {
        List1()->horizontalScrollBar()->setValue(sobra);
        ASSERT_EQ(List1()->horizontalScrollBar()->value(), sobra);
        const QImage titulos = rotulo->grab().toImage();
        const QImage lista =
            List1()->grab().toImage().copy(0, List1()->frameWidth(), rotulo->width(),
                                           List1()->visualRect(List1()->model()->index(0, 0)).height());
        ASSERT_EQ(titulos.width(), lista.width());
        // The margin in front of a row's text, then the bar in the middle of its place.
        const int margem =
            List1()->frameWidth() + List1()->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
        const int miolo = medida.horizontalAdvance('0') - 2;
        for (const int coluna : {17, 23, 42, 53}) {
            const int esquerda = margem + medida.horizontalAdvance(QString(coluna - 1, '0')) + 1 - sobra;
            const QSet<int> acima = Pontos(titulos, esquerda, miolo);
            EXPECT_FALSE(acima.isEmpty()) << coluna;
            EXPECT_EQ(acima, Pontos(lista, esquerda, miolo)) << coluna << " moved by " << sobra;
        }
    }
}

TEST_F(RelatoTest, FitsASmallDisplay)
{
    AbreRelato();
    const QSize menor = Relato().minimumSizeHint();
    EXPECT_LE(menor.width(), 1024 - 16);
    EXPECT_LE(menor.height(), 768 - 80) << "frame of the window and bar of the desktop";
    EXPECT_LE(menor.height(), 500) << "and half of a display of 1080 lines";
}

TEST_F(RelatoTest, ALongTextChangesNoWidth)
{
    const int antes = [this] {
        AbreRelato();
        return Relato().minimumSizeHint().width();
    }();
    m_escritorio.Sql("UPDATE Log SET Favor = '" + QString(47, 'W') + "', Comentario = '" + QString(80, 'W') +
                     "' WHERE rowid = 1");
    ClicaNaLinha(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(Relato().minimumSizeHint().width(), antes);
    EXPECT_EQ(Rotulo(2), std::string(47, 'W'));
}

} // namespace
