// The screen that cancels what the device holds for its own report.
#include "ComRelato.h"
#include "Ordem.h"

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QScreen>

using namespace teste;

namespace {

class CanRelTest : public ComRelato {
protected:
    void AbreCanRel()
    {
        Abre();
        AbrePeloMenu("Can_Rel", "CanRel");
    }
    [[nodiscard]] QWidget &CanRel() { return Aberta("CanRel"); }
    [[nodiscard]] QString Legenda(int botao)
    {
        return apoio::Controle<QPushButton>(CanRel(), QString("Command3D1(%1)").arg(botao))->text();
    }
};

TEST_F(CanRelTest, HasItsNameCaptionAndButtons)
{
    AbreCanRel();
    EXPECT_EQ(CanRel().windowTitle(), "Cancela Relatório");
    EXPECT_FALSE(CanRel().isModal());
    EXPECT_EQ(Legenda(0) + '|' + Legenda(1) + '|' + Legenda(2), "Todos|Ultimo|Cancela");
    EXPECT_EQ(CanRel().findChildren<QPushButton *>().size(), 3);
    const QPoint meio = CanRel().screen()->availableGeometry().center();
    EXPECT_LE((CanRel().geometry().center() - meio).manhattanLength(), 4) << "in the middle";
}

TEST_F(CanRelTest, OpensFromTheLastEntryOfThePrinting)
{
    Abre();
    const QMenu *impressao = nullptr;
    for (const QAction *menu : Tela().findChild<QMenuBar *>()->actions())
        if (menu->text() == "&Impressão")
            impressao = menu->menu();
    ASSERT_NE(impressao, nullptr);
    ASSERT_FALSE(impressao->actions().isEmpty());
    EXPECT_EQ(impressao->actions().last()->objectName(), "Can_Rel");
    EXPECT_EQ(impressao->actions().last()->text(), "Cance&la Relatório");
}

struct CasoBotao {
    std::string nome;
    QString botao;
    std::string chamadas;
};
void PrintTo(const CasoBotao &c, std::ostream *os)
{
    *os << c.nome;
}
class BotaoDoCanRel : public CanRelTest, public testing::WithParamInterface<CasoBotao> {};
TEST_P(BotaoDoCanRel, TellsTheDeviceAndCloses)
{
    AbreCanRel();
    apoio::ClicaEm(CanRel(), GetParam().botao);
    EXPECT_EQ(Chamadas(), GetParam().chamadas);
    EXPECT_FALSE(EstaAberta("CanRel"));
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(Status(), "1: 2: 3:C 4:") << "the store is not touched";
}
INSTANTIATE_TEST_SUITE_P(Botoes, BotaoDoCanRel,
                         testing::Values(CasoBotao{"All", "Command3D1(0)",
                                                   R"(IniciaPorta("COM2") CancelaRel("*") FechaPorta())"},
                                         CasoBotao{"TheLastWithACapitalU", "Command3D1(1)",
                                                   R"(IniciaPorta("COM2") CancelaRel("U") FechaPorta())"},
                                         CasoBotao{"None", "Command3D1(2)", ""}),
                         kNomeDoCaso);

TEST_F(CanRelTest, AnAnswerOfTheDeviceIsNotLookedAt)
{
    m_gravadora.Roteiro("resultado IniciaPorta 0\nresultado CancelaRel 7\n");
    AbreCanRel();
    apoio::ClicaEm(CanRel(), "Command3D1(0)");
    EXPECT_EQ(Chamadas(), R"(IniciaPorta("COM2") CancelaRel("*") FechaPorta())");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_FALSE(EstaAberta("CanRel"));
}

TEST_F(CanRelTest, TheGaugeOfMainRuns)
{
    AbreCanRel();
    auto *indicador = apoio::Controle<QProgressBar>(Tela(), "Gauge1");
    indicador->setValue(0);
    apoio::ClicaEm(CanRel(), "Command3D1(2)");
    EXPECT_EQ(indicador->value(), 0);
    Descarta();
    AbrePeloMenu("Can_Rel", "CanRel");
    apoio::ClicaEm(CanRel(), "Command3D1(1)");
    EXPECT_EQ(indicador->value(), 100);
}

TEST_F(CanRelTest, NeedsNoStore)
{
    AbreCanRel();
    ASSERT_TRUE(QFile::rename(m_escritorio.Arquivo("QX70.MDB"), m_escritorio.Arquivo("longe.MDB")));
    apoio::ClicaEm(CanRel(), "Command3D1(1)");
    EXPECT_EQ(Chamadas(), R"(IniciaPorta("COM2") CancelaRel("U") FechaPorta())");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_F(CanRelTest, EscTellsTheDeviceNothing)
{
    AbreCanRel();
    apoio::Tecla(CanRel(), Qt::Key_Escape);
    EXPECT_FALSE(EstaAberta("CanRel"));
    EXPECT_EQ(Chamadas(), "");
}

TEST_F(CanRelTest, AStrayEnterCancelsNothing)
{
    AbreCanRel();
    EXPECT_EQ(apoio::Foco(CanRel()), "Command3D1(2)");
    apoio::Tecla(CanRel(), Qt::Key_Return);
    EXPECT_EQ(Chamadas(), "");
    EXPECT_FALSE(EstaAberta("CanRel"));
}

TEST_F(CanRelTest, EnterPressesTheButtonWithTheFocus)
{
    AbreCanRel();
    for (const char *botao : {"Command3D1(0)", "Command3D1(1)"}) {
        apoio::Tecla(CanRel(), Qt::Key_Tab);
        ASSERT_EQ(apoio::Foco(CanRel()), botao);
    }
    apoio::Tecla(CanRel(), Qt::Key_Return);
    EXPECT_EQ(Chamadas(), R"(IniciaPorta("COM2") CancelaRel("U") FechaPorta())");
}

TEST_F(CanRelTest, TabWalksInReadingOrder)
{
    AbreCanRel();
    EXPECT_EQ(VoltaDoTab(CanRel()), APartirDe(OrdemDeLeitura(CanRel()), "Command3D1(2)"));
}

} // namespace
