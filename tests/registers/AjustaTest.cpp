// The adjustment screen: what it shows, where the fields lie on the picture, and what OK and Cancelar do.
#include "ComAjusta.h"

#include <QScreen>

using namespace teste;

namespace {

using AjustaTest = ComAjusta;

// --- what it shows ---

TEST_F(AjustaTest, HasItsNameTitleAndHeading)
{
    Abre();
    EXPECT_EQ(m_tela->objectName(), "Ajusta");
    EXPECT_EQ(m_tela->windowTitle(), "Ajuste Gráfico / Cheque");
    EXPECT_TRUE(m_tela->isWindow());
    EXPECT_FALSE(m_tela->isModal());
    EXPECT_EQ(apoio::Controle<QLabel>(*m_tela, "Cabecalho")->text(), "001 - BANCO EXEMPLO");
    EXPECT_EQ(apoio::Controle<QLabel>(*m_tela, "LinhaDeEstado")->text(),
              " Setas = Movimenta Campo | Tab ou Click = Seleciona Campo");
    EXPECT_EQ(apoio::Controle<QPushButton>(*m_tela, "Command3D1(0)")->text(), "&OK");
    EXPECT_EQ(apoio::Controle<QPushButton>(*m_tela, "Command3D1(1)")->text(), "&Cancelar");
}

TEST_F(AjustaTest, ReadOutHasItsCaptionsAndHeadings)
{
    Abre();
    QStringList textos;
    for (const auto *rotulo : m_tela->findChildren<QLabel *>())
        if (rotulo->objectName().isEmpty())
            textos << rotulo->text();
    EXPECT_EQ(textos.join('|'), "Lin / Col|Valor Numérico:|Valor Extenso1:|Valor Extenso2:|Favorecido......:|"
                                "Cidade....:|Col|Dia.........:|Mes..:|Ano..:");
}

TEST_F(AjustaTest, CaptionsStandBesideTheirCells)
{
    Abre();
    const std::map<QString, int> celulas = {
        {"Valor Numérico:", 5}, {"Cidade....:", 9}, {"Dia.........:", 10}, {"Mes..:", 11}, {"Ano..:", 12}};
    for (const auto *rotulo : m_tela->findChildren<QLabel *>()) {
        const auto achada = celulas.find(rotulo->text());
        if (achada == celulas.end())
            continue;
        EXPECT_EQ(rotulo->geometry().center().y(), Celula(achada->second)->geometry().center().y())
            << achada->first.toStdString();
    }
    for (int linha = 0; linha < 5; ++linha) {
        EXPECT_EQ(Celula(linha)->y(), Celula(linha + 5)->y());
        EXPECT_LT(Celula(linha)->geometry().right(), Celula(linha + 5)->x());
    }
}

TEST_F(AjustaTest, OpensOnTheBuffer)
{
    Abre();
    EXPECT_EQ(Leitura(), "001 005 007 010 013 092 017 009 011 050 081 090 115");
    EXPECT_EQ(Campo(0)->text(), "    #9.999,99#");
    EXPECT_EQ(Campo(1)->text(), "Nove Mil, Novecentos e Noventa e Nove Reais");
    EXPECT_EQ(Campo(6)->text(), "Junho");
    EXPECT_EQ(m_caixas.escritas, 0);
}

TEST_F(AjustaTest, LettersInTheBufferCountAsZero)
{
    AbreCom("abc 005 007 010 x", "092 ? 009 011 050 031 z 065");
    EXPECT_EQ(Leitura(), "-000 005 007 010 -000 092 -000 009 011 050 081 050 115");
}

TEST_F(AjustaTest, OpensInTheMiddleAndFitsASmallDisplay)
{
    Abre();
    const QPoint meio = m_tela->screen()->availableGeometry().center();
    EXPECT_LE((m_tela->geometry().center() - meio).manhattanLength(), 4);
    EXPECT_LE(m_tela->minimumSizeHint().width(), 1000);
    EXPECT_LE(m_tela->minimumSizeHint().height(), 700);
}

// --- the selected field ---

struct CasoRealce {
    std::string nome;
    int campo;
    std::string celulas;
};
void PrintTo(const CasoRealce &c, std::ostream *os)
{
    *os << c.nome;
}
class Realce : public ComAjusta, public testing::WithParamInterface<CasoRealce> {};
TEST_P(Realce, LightsTheCellsOfTheFieldWithTheFocus)
{
    Abre();
    Seleciona(GetParam().campo == 0 ? 1 : 0);
    Seleciona(GetParam().campo);
    EXPECT_EQ(Realcadas(), GetParam().celulas);
    apoio::Controle<QPushButton>(*m_tela, "Command3D1(1)")->setFocus();
    EXPECT_EQ(Realcadas(), "");
}
INSTANTIATE_TEST_SUITE_P(Campos, Realce,
                         testing::Values(CasoRealce{"Amount", 0, "0 5"}, CasoRealce{"FirstWords", 1, "1 6"},
                                         CasoRealce{"SecondWords", 2, "2 7"}, CasoRealce{"Payee", 3, "3 8"},
                                         CasoRealce{"City", 4, "4 9"}, CasoRealce{"Day", 5, "4 10"},
                                         CasoRealce{"Month", 6, "4 11"}, CasoRealce{"Year", 7, "4 12"}),
                         kNomeDoCaso);

TEST_F(AjustaTest, OpensInTheAmount)
{
    Abre();
    EXPECT_EQ(Foco(), "Text1(0)");
    EXPECT_EQ(Realcadas(), "0 5");
}

TEST_F(AjustaTest, FromOneDatePartToTheNextTheLineStaysLit)
{
    Abre();
    Seleciona(5);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(Foco(), "Text1(6)");
    EXPECT_EQ(Realcadas(), "4 11");
}

TEST_F(AjustaTest, TabWalksTheFieldsAndThenTheButtons)
{
    Abre();
    std::string volta;
    for (int i = 0; i < 10; ++i) {
        volta += Foco() + ' ';
        Tecla(Qt::Key_Tab);
    }
    EXPECT_EQ(volta, "Text1(0) Text1(1) Text1(2) Text1(3) Text1(4) Text1(5) Text1(6) Text1(7) Command3D1(0) "
                     "Command3D1(1) ");
    EXPECT_EQ(Foco(), "Text1(0)");
}

TEST_F(AjustaTest, ReadOutIsBlackOnItsColoursInADarkTheme)
{
    const QPalette clara = QApplication::palette();
    QPalette escura(QColor(53, 53, 53), QColor(42, 42, 42));
    escura.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(escura);
    Abre();
    EXPECT_EQ(Realcadas(), "0 5");
    for (int i = 0; i < 13; ++i)
        EXPECT_EQ(Celula(i)->palette().color(QPalette::WindowText), QColor(Qt::black)) << i;
    QApplication::setPalette(clara);
}

// Dark pixels of the field's upper edge: thicker when it is selected.
int TracoDeCima(QWidget *campo)
{
    const QImage figura = campo->grab().toImage();
    int escuros = 0;
    for (int y = 0; y < 4; ++y)
        escuros += figura.pixelColor(figura.width() / 2, y).lightness() < 100;
    return escuros;
}

TEST_F(AjustaTest, TheSelectedFieldHasAFrameOfItsOwn)
{
    Abre();
    Seleciona(3);
    EXPECT_EQ(TracoDeCima(Campo(3)), 2);
    EXPECT_EQ(TracoDeCima(Campo(4)), 0);
    Seleciona(4);
    EXPECT_EQ(TracoDeCima(Campo(3)), 0);
    EXPECT_EQ(TracoDeCima(Campo(4)), 2);
}

// --- the picture ---

struct CasoTamanho {
    std::string nome;
    QSize janela;
};
void PrintTo(const CasoTamanho &c, std::ostream *os)
{
    *os << c.nome;
}
class Tamanho : public ComAjusta, public testing::WithParamInterface<CasoTamanho> {
protected:
    /// Pixels a unit, from two fields far apart.
    double Escala() { return (Campo(0)->x() - Campo(2)->x()) / (83.0 * 68); }
};
TEST_P(Tamanho, FieldsLieOnTheGridAndKeepTheirNumbers)
{
    Abre();
    m_tela->resize(GetParam().janela);
    QCoreApplication::processEvents();
    const double escala = Escala();
    EXPECT_GT(escala * 68, 5);
    EXPECT_NEAR(Campo(3)->x() - Campo(2)->x(), 2 * 68 * escala, 1.5);
    EXPECT_NEAR(Campo(5)->x() - Campo(4)->x(), (31 * 68 - 69) * escala, 1.5);
    EXPECT_NEAR(Campo(4)->y() - Campo(0)->y(), 12 * 188 * escala, 1.5);
    EXPECT_NEAR(Campo(1)->width() - Campo(0)->width(), (43 - 14) * 68 * escala, 1.5);
    for (int i = 5; i < 8; ++i)
        EXPECT_EQ(Campo(i)->y(), Campo(4)->y());
    for (int i = 0; i < 8; ++i)
        EXPECT_TRUE(Campo(i)->parentWidget()->rect().contains(Campo(i)->geometry())) << i;
    EXPECT_EQ(Leitura(), "001 005 007 010 013 092 017 009 011 050 081 090 115");
}
INSTANTIATE_TEST_SUITE_P(Janelas, Tamanho,
                         testing::Values(CasoTamanho{"Small", {1000, 560}}, CasoTamanho{"Large", {1400, 700}},
                                         CasoTamanho{"Tall", {1400, 1200}}, CasoTamanho{"Wide", {2400, 900}}),
                         kNomeDoCaso);

TEST_F(AjustaTest, ThePictureGrowsWithTheWindow)
{
    Abre();
    m_tela->resize(1000, 600);
    QCoreApplication::processEvents();
    const int largura = Campo(1)->width();
    const int letra = Campo(1)->fontMetrics().height();
    m_tela->resize(2000, 1200);
    QCoreApplication::processEvents();
    EXPECT_GT(Campo(1)->width(), largura * 1.8);
    EXPECT_GT(Campo(1)->fontMetrics().height(), letra * 1.8);
    EXPECT_LT(Campo(1)->fontMetrics().height(), Campo(1)->height());
}

TEST_F(AjustaTest, AFieldWithNoWidthLeftCanStillBeSeen)
{
    Abre();
    Seleciona(1);
    Tecla(Qt::Key_Right, 103);
    EXPECT_EQ(Celula(6)->text(), "120");
    EXPECT_GE(Campo(1)->width(), 10);
}

TEST_F(AjustaTest, AFieldFarOutsideThePaperComesBackByKeys)
{
    AbreCom("001 005 007 010 013", "999999 017 009 011 050 031 040 065");
    EXPECT_EQ(Celula(5)->text(), "999999");
    Tecla(Qt::Key_Left);
    EXPECT_EQ(Celula(5)->text(), "999998");
}

// --- OK and Cancelar ---

const char *const kUsual = "001 005 007 010 013 092 017 009 011 050 031 040 065";
const char *const kMensagem = "Algum erro relacionado a posição dos campos foi detectado.\n"
                              "Verifique se os mesmos estão corretos, ou pressione a tecla Cancelar.";

TEST_F(AjustaTest, OkReturnsTheNumbersThatCameAndCloses)
{
    Abre();
    Ok();
    EXPECT_EQ(m_caixas.Numeros(), kUsual);
    EXPECT_FALSE(Aberta());
    EXPECT_EQ(m_respostas.Quantas(), 0U);
}

TEST_F(AjustaTest, OkReturnsWhatWasMoved)
{
    Abre();
    Tecla(Qt::Key_Down, 2);
    Seleciona(4);
    Tecla(Qt::Key_Left, 5);
    Tecla(Qt::Key_Down);
    Ok();
    EXPECT_EQ(m_caixas.Numeros(), "003 005 007 010 014 092 017 009 011 045 036 045 070");
    EXPECT_FALSE(Aberta());
}

TEST_F(AjustaTest, ARefusedOrderIsToldAfterTheNumbersWereCopiedOnPurpose)
{
    AbreCom("005 005 007 010 013", kColunas);
    std::string naCaixa;
    m_respostas.AoAbrir([&](QMessageBox &) { naCaixa = m_caixas.Numeros(); });
    Ok();
    ASSERT_EQ(m_respostas.Quantas(), 1U);
    EXPECT_EQ(m_respostas.Ultima().texto, kMensagem);
    EXPECT_EQ(m_respostas.Ultima().titulo, "Ajuste Gráfico Incorreto");
    EXPECT_EQ(m_respostas.Ultima().icone, QMessageBox::Warning);
    EXPECT_EQ(m_respostas.Ultima().botoes, QMessageBox::Ok);
    EXPECT_EQ(naCaixa, "005 005 007 010 013 092 017 009 011 050 031 040 065");
    EXPECT_TRUE(Aberta());
    Clica("Command3D1(1)");
    EXPECT_FALSE(Aberta());
    EXPECT_EQ(m_caixas.Numeros(), naCaixa) << "Cancelar takes nothing back";
}

TEST_F(AjustaTest, ALayoutThatWasRefusedCanBeMended)
{
    AbreCom("005 005 007 010 013", kColunas);
    Ok();
    Seleciona(0);
    Tecla(Qt::Key_Up);
    Ok();
    EXPECT_EQ(m_respostas.Quantas(), 1U);
    EXPECT_FALSE(Aberta());
    EXPECT_EQ(m_caixas.Numeros(), "004 005 007 010 013 092 017 009 011 050 031 040 065");
}

struct CasoCodigo {
    std::string nome;
    QString codigo;
    bool fecha;
};
void PrintTo(const CasoCodigo &c, std::ostream *os)
{
    *os << c.codigo.toStdString();
}
class Codigo : public ComAjusta, public testing::WithParamInterface<CasoCodigo> {};
TEST_P(Codigo, From995OnTheOrderIsNotAsked)
{
    Abre(GetParam().codigo);
    Seleciona(5);
    Tecla(Qt::Key_Left, 34);
    EXPECT_EQ(Celula(10)->text(), "047");
    Ok();
    EXPECT_EQ(m_caixas.Numeros(), "001 005 007 010 013 092 017 009 011 050 -003 040 065");
    EXPECT_EQ(Aberta(), !GetParam().fecha);
    EXPECT_EQ(m_respostas.Quantas(), GetParam().fecha ? 0U : 1U);
}
INSTANTIATE_TEST_SUITE_P(Codigos, Codigo,
                         testing::Values(CasoCodigo{"Last", "994", false}, CasoCodigo{"First", "995", true},
                                         CasoCodigo{"Highest", "999", true}),
                         kNomeDoCaso);

struct CasoFecha {
    std::string nome;
    std::function<void(QWidget &)> fecha;
};
void PrintTo(const CasoFecha &c, std::ostream *os)
{
    *os << c.nome;
}
class Fechada : public ComAjusta, public testing::WithParamInterface<CasoFecha> {};
TEST_P(Fechada, WritesNothing)
{
    Abre();
    Tecla(Qt::Key_Down);
    ASSERT_EQ(Celula(0)->text(), "002");
    GetParam().fecha(*m_tela);
    EXPECT_FALSE(Aberta());
    EXPECT_EQ(m_caixas.escritas, 0);
    EXPECT_EQ(m_respostas.Quantas(), 0U);
    EXPECT_EQ(m_sistema.AjusteL[0], "001");
}
INSTANTIATE_TEST_SUITE_P(
    Modos, Fechada,
    testing::Values(CasoFecha{"ByItsButton", [](QWidget &tela) { apoio::ClicaEm(tela, "Command3D1(1)"); }},
                    CasoFecha{"ByEscInAField", [](QWidget &tela) { apoio::Tecla(tela, Qt::Key_Escape); }},
                    CasoFecha{"ByEscOnAButton",
                              [](QWidget &tela) {
                                  apoio::Controle<QPushButton>(tela, "Command3D1(0)")->setFocus();
                                  apoio::Tecla(tela, Qt::Key_Escape);
                              }},
                    CasoFecha{"ByItsMnemonic",
                              [](QWidget &tela) { QTest::keyClick(&tela, Qt::Key_C, Qt::AltModifier); }},
                    CasoFecha{"ByTheWindow", [](QWidget &tela) { tela.close(); }}),
    kNomeDoCaso);

TEST_F(AjustaTest, OpeningAgainReadsTheBufferAgain)
{
    Abre();
    Tecla(Qt::Key_Escape);
    AbreCom("002 006 008 011 014", kColunas);
    EXPECT_EQ(Leitura(), "002 006 008 011 014 092 017 009 011 050 081 090 115");
}

} // namespace
