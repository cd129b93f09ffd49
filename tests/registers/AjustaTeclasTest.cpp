// The adjustment screen: keys and the mouse move the selected field, and nothing is typed into it.
#include "ComAjusta.h"

using namespace teste;

namespace {

class AjustaTeclas : public ComAjusta {
protected:
    void SetUp() override { AbreGrande(kColunas); }
    void AbreGrande(const QString &colunas)
    {
        AbreCom(kLinhas, colunas);
        m_tela->resize(1400, 800);
        QCoreApplication::processEvents();
        m_escala = (Campo(3)->x() - Campo(4)->x()) / (-39.0 * 68);
    }
    /// Line and column of a field, as the read-out tells them.
    std::string Lugar(int campo)
    {
        const auto celulas = registers::CelulasDe(campo);
        return (Celula(celulas.linha)->text() + ' ' + Celula(celulas.coluna)->text()).toStdString();
    }
    /// Takes hold of a field and drags it so many columns and lines, in ten stages; it is held still then.
    void Arrasta(int campo, double colunas, double linhas)
    {
        QLineEdit *caixa = Campo(campo);
        const QPointF caminho(colunas * 68 * m_escala, linhas * 188 * m_escala);
        const QPoint pega = caixa->rect().center();
        const QPoint inicio = caixa->mapToGlobal(pega);
        QTest::mousePress(caixa, Qt::LeftButton, {}, pega);
        for (int i = 1; i <= 10; ++i)
            QTest::mouseMove(caixa, caixa->mapFromGlobal(inicio + (caminho * i / 10).toPoint()));
    }
    /// Takes hold of a field and drags it, column by column, to each of these distances in turn.
    void ArrastaPor(int campo, const std::vector<int> &paradas)
    {
        QLineEdit *caixa = Campo(campo);
        const QPoint pega = caixa->rect().center();
        const QPoint inicio = caixa->mapToGlobal(pega);
        QTest::mousePress(caixa, Qt::LeftButton, {}, pega);
        int colunas = 0;
        for (const int parada : paradas) {
            while (colunas != parada) {
                colunas += colunas < parada ? 1 : -1;
                const QPointF caminho(colunas * 68 * m_escala, 0);
                QTest::mouseMove(caixa, caixa->mapFromGlobal(inicio + caminho.toPoint()));
            }
        }
    }
    void Solta(int campo) { QTest::mouseRelease(Campo(campo), Qt::LeftButton); }

    double m_escala = 0; ///< pixels a unit, from two fields far apart
};

// --- keys ---

struct CasoSeta {
    std::string nome;
    Qt::Key tecla;
    std::string lugar;
};
void PrintTo(const CasoSeta &c, std::ostream *os)
{
    *os << c.nome;
}
class SetaPremida : public AjustaTeclas, public testing::WithParamInterface<CasoSeta> {};
TEST_P(SetaPremida, MovesTheFieldByOne)
{
    Seleciona(1);
    const QPoint antes = Campo(1)->pos();
    Tecla(GetParam().tecla);
    EXPECT_EQ(Lugar(1), GetParam().lugar);
    EXPECT_NE(Campo(1)->pos(), antes);
    EXPECT_EQ(Foco(), "Text1(1)");
}
TEST_P(SetaPremida, ShiftAndKeypadMakeNoDifference)
{
    Seleciona(1);
    Tecla(GetParam().tecla, 1, Qt::ShiftModifier);
    EXPECT_EQ(Lugar(1), GetParam().lugar);
    Seleciona(3);
    Tecla(GetParam().tecla, 1, Qt::KeypadModifier);
    EXPECT_NE(Lugar(3), "010 011");
}
TEST_P(SetaPremida, CtrlAndAltMakeNoDifference)
{
    for (const Qt::KeyboardModifiers mais :
         {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::KeyboardModifiers(Qt::AltModifier),
          Qt::ControlModifier | Qt::ShiftModifier}) {
        AbreGrande(kColunas);
        Seleciona(1);
        Tecla(GetParam().tecla, 1, mais);
        EXPECT_EQ(Lugar(1), GetParam().lugar) << mais;
        EXPECT_EQ(Foco(), "Text1(1)");
    }
}
INSTANTIATE_TEST_SUITE_P(Setas, SetaPremida,
                         testing::Values(CasoSeta{"Left", Qt::Key_Left, "005 016"},
                                         CasoSeta{"Right", Qt::Key_Right, "005 018"},
                                         CasoSeta{"Up", Qt::Key_Up, "004 017"},
                                         CasoSeta{"Down", Qt::Key_Down, "006 017"}),
                         kNomeDoCaso);

TEST_F(AjustaTeclas, AKeyHeldDownGoesOn)
{
    Seleciona(2);
    for (int i = 0; i < 7; ++i) {
        QKeyEvent repetida(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, QString(), i > 0);
        QCoreApplication::sendEvent(Campo(2), &repetida);
    }
    EXPECT_EQ(Lugar(2), "007 016");
}

TEST_F(AjustaTeclas, AtALimitNothingChanges)
{
    const QRect antes = Campo(0)->geometry();
    Tecla(Qt::Key_Up, 3);
    EXPECT_EQ(Lugar(0), "001 092");
    EXPECT_EQ(Campo(0)->geometry(), antes);
}

TEST_F(AjustaTeclas, TheFirstWordsStopAtLines4And9WhateverTheOthersDo)
{
    Seleciona(1);
    Tecla(Qt::Key_Up, 10);
    EXPECT_EQ(Lugar(1), "004 017");
    Tecla(Qt::Key_Down, 10);
    EXPECT_EQ(Lugar(1), "009 017");
    EXPECT_EQ(Lugar(2), "007 009");
}

TEST_F(AjustaTeclas, TheDateFollowsTheCityUpAndDown)
{
    Seleciona(4);
    Tecla(Qt::Key_Down, 2);
    EXPECT_EQ(Lugar(7), "015 115");
    EXPECT_EQ(Campo(7)->y(), Campo(4)->y());
    Seleciona(7);
    Tecla(Qt::Key_Up);
    Tecla(Qt::Key_Down);
    EXPECT_EQ(Lugar(4), "015 050");
    EXPECT_EQ(Campo(7)->y(), Campo(4)->y());
}

TEST_F(AjustaTeclas, AWordsLinePastColumn76AndBackIsDrawnNarrowerOnPurpose)
{
    Seleciona(1);
    Tecla(Qt::Key_Right, 53);
    const QRect antes = Campo(1)->geometry();
    Tecla(Qt::Key_Right, 10);
    Tecla(Qt::Key_Left, 10);
    EXPECT_EQ(Lugar(1), "005 070");
    EXPECT_EQ(Campo(1)->pos(), antes.topLeft());
    EXPECT_NEAR(antes.width() - Campo(1)->width(), 140 * m_escala, 1.5);
}

TEST_F(AjustaTeclas, NothingIsTypedIntoAField)
{
    Seleciona(3);
    const QString antes = Campo(3)->text();
    apoio::Digita(*m_tela, "abc 1");
    for (const Qt::Key tecla :
         {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Home, Qt::Key_End, Qt::Key_F3, Qt::Key_Return})
        Tecla(tecla);
    Tecla(Qt::Key_V, 1, Qt::ControlModifier);
    EXPECT_EQ(Campo(3)->text(), antes);
    EXPECT_EQ(Lugar(3), "010 011");
    EXPECT_EQ(Foco(), "Text1(3)");
    EXPECT_TRUE(Aberta());
}

TEST_F(AjustaTeclas, EnterOnOkConfirms)
{
    apoio::Controle<QPushButton>(*m_tela, "Command3D1(0)")->setFocus();
    Tecla(Qt::Key_Return);
    EXPECT_FALSE(Aberta());
    EXPECT_EQ(m_caixas.escritas, 13);
}

TEST_F(AjustaTeclas, ArrowsOnAButtonMoveNoField)
{
    const std::string antes = Leitura();
    apoio::Controle<QPushButton>(*m_tela, "Command3D1(0)")->setFocus();
    Tecla(Qt::Key_Right);
    Tecla(Qt::Key_Down);
    EXPECT_EQ(Leitura(), antes);
}

// --- mouse ---

TEST_F(AjustaTeclas, AClickSelectsAndMovesNothing)
{
    const std::string antes = Leitura();
    Clica("Text1(6)");
    EXPECT_EQ(Foco(), "Text1(6)");
    EXPECT_EQ(Realcadas(), "4 11");
    EXPECT_EQ(Leitura(), antes);
    Tecla(Qt::Key_Right);
    EXPECT_EQ(Lugar(6), "013 091");
}

TEST_F(AjustaTeclas, DraggingSelectsAndMovesByWholeSteps)
{
    Arrasta(1, 12, 2);
    EXPECT_EQ(Foco(), "Text1(1)");
    EXPECT_EQ(Realcadas(), "1 6");
    EXPECT_EQ(Lugar(1), "007 029");
    Solta(1);
    Arrasta(1, -7, -1);
    EXPECT_EQ(Lugar(1), "006 022");
}

struct CasoArrasto {
    std::string nome;
    int campo;
    int colunas, linhas;
    std::string lugar;
};
void PrintTo(const CasoArrasto &c, std::ostream *os)
{
    *os << c.nome;
}
class Arrastado : public AjustaTeclas, public testing::WithParamInterface<CasoArrasto> {};
TEST_P(Arrastado, ReachesWhatKeysReach)
{
    Arrasta(GetParam().campo, GetParam().colunas, GetParam().linhas);
    EXPECT_EQ(Lugar(GetParam().campo), GetParam().lugar);
}
INSTANTIATE_TEST_SUITE_P(Limites, Arrastado,
                         testing::Values(CasoArrasto{"AmountBelow", 0, 0, 15, "005 092"},
                                         CasoArrasto{"AmountRight", 0, 60, 0, "001 120"},
                                         CasoArrasto{"PayeeLeftAndAbove", 3, -30, -9, "008 001"},
                                         CasoArrasto{"CityWithItsDate", 4, -10, 2, "015 040"},
                                         CasoArrasto{"DayOnlySideways", 5, -10, -5, "013 071"}),
                         kNomeDoCaso);

TEST_F(AjustaTeclas, BackFromBeyondALimitTheFieldComesAlongAgain)
{
    Arrasta(0, 60, 15);
    ASSERT_EQ(Lugar(0), "005 120");
    Solta(0);
    Arrasta(0, -20, -2);
    EXPECT_EQ(Lugar(0), "003 100");
}

struct CasoIdaEVolta {
    std::string nome;
    int campo;
    int de;
    std::vector<int> paradas; ///< columns where it turns, and where it ends
};
void PrintTo(const CasoIdaEVolta &c, std::ostream *os)
{
    *os << c.nome;
}
class IdaEVolta : public AjustaTeclas, public testing::WithParamInterface<CasoIdaEVolta> {
protected:
    /// The usual columns with both words lines in another one.
    [[nodiscard]] static QString Colunas(int coluna)
    {
        return QString("092 %1 %1 011 050 031 040 065").arg(coluna, 3, 10, QLatin1Char('0'));
    }
};
TEST_P(IdaEVolta, WithinOneDragLeavesTheWidthOfTheStraightWay)
{
    const auto &[nome, campo, de, paradas] = GetParam();
    AbreGrande(Colunas(de));
    std::vector<int> distancias;
    for (const int parada : paradas)
        distancias.push_back(parada - de);
    ArrastaPor(campo, distancias);
    const std::string lugar = Lugar(campo);
    const QRect arrastado = Campo(campo)->geometry();
    Solta(campo);

    AbreGrande(Colunas(de));
    Seleciona(campo);
    Tecla(paradas.back() > de ? Qt::Key_Right : Qt::Key_Left, std::abs(paradas.back() - de));
    EXPECT_EQ(lugar, Lugar(campo));
    EXPECT_EQ(arrastado, Campo(campo)->geometry());
}
INSTANTIATE_TEST_SUITE_P(Colunas, IdaEVolta,
                         testing::Values(CasoIdaEVolta{"OverThemAndBackTo74", 1, 70, {80, 74}},
                                         CasoIdaEVolta{"OverThemAndBackTo75", 1, 70, {80, 75}},
                                         CasoIdaEVolta{"OverThemAndBackTo76", 1, 70, {80, 76}},
                                         CasoIdaEVolta{"OverThemAndBackTo77", 1, 70, {80, 77}},
                                         CasoIdaEVolta{"ManyTimes", 1, 70, {77, 74, 77, 74, 78, 75}},
                                         CasoIdaEVolta{"BackToWhereItWasTaken", 1, 70, {80, 70}},
                                         CasoIdaEVolta{"FromTheRight", 1, 80, {70, 77}},
                                         CasoIdaEVolta{"FromTheRightTo75", 1, 80, {70, 79, 75}},
                                         CasoIdaEVolta{"SecondWords", 2, 70, {80, 76}},
                                         CasoIdaEVolta{"SecondWordsFromTheRight", 2, 80, {70, 77}}),
                         kNomeDoCaso);

TEST_F(AjustaTeclas, AReleasedFieldStays)
{
    Arrasta(2, 5, 1);
    Solta(2);
    const std::string antes = Leitura();
    // With a button down: a bare move does not reach it at all.
    QTest::mousePress(Campo(2), Qt::RightButton);
    QTest::mouseMove(Campo(2), Campo(2)->rect().center() + QPoint(200, 100));
    EXPECT_EQ(Leitura(), antes);
}

TEST_F(AjustaTeclas, TheRightButtonDragsNothing)
{
    const std::string antes = Leitura();
    QTest::mousePress(Campo(2), Qt::RightButton);
    QTest::mouseMove(Campo(2), Campo(2)->rect().center() + QPoint(200, 100));
    EXPECT_EQ(Leitura(), antes);
}

TEST_F(AjustaTeclas, WhatWasDraggedGoesBackWithOk)
{
    Arrasta(3, 4, 1);
    Solta(3);
    Ok();
    EXPECT_EQ(m_caixas.Numeros(), "001 005 007 011 013 092 017 009 015 050 031 040 065");
    EXPECT_FALSE(Aberta());
}

} // namespace
