// Where the main window stands on screens of several sizes; each start is a process on a screen of its own.
#include "apoio/Caixas.h"
#include "apoio/Escritorio.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <QFile>
#include <QProcess>
#include <QRect>

namespace {

constexpr int kMoldura = 8; ///< points by which the frame may put it off the middle

struct CasoTela {
    std::string nome;
    int largura; ///< pixels; a pixel is 15 twips, so 640 are 9600
    int altura;
    bool centrada;
};
void PrintTo(const CasoTela &caso, std::ostream *os)
{
    *os << caso.nome;
}

class PosicaoDaJanelaTest : public testing::TestWithParam<CasoTela> {
protected:
    QRect Janela() const
    {
        m_escritorio.CriaBanco();
        QFile tela(m_escritorio.Arquivo("tela.json"));
        EXPECT_TRUE(tela.open(QIODevice::WriteOnly));
        tela.write(QString(R"({"screens":[{"name":"t","x":0,"y":0,"width":%1,"height":%2,"logicalDpi":96,
                               "dpr":1}]})")
                       .arg(GetParam().largura)
                       .arg(GetParam().altura)
                       .toUtf8());
        tela.close();
        QProcess processo;
        auto ambiente = QProcessEnvironment::systemEnvironment();
        ambiente.insert("QT_QPA_PLATFORM", "offscreen:configfile=" + tela.fileName());
        processo.setProcessEnvironment(ambiente);
        processo.start(QX70_POSICAO_DA_JANELA, {m_escritorio.Pasta()});
        EXPECT_TRUE(processo.waitForFinished(60000)) << processo.errorString().toStdString();
        EXPECT_EQ(processo.exitCode(), 0);
        const QStringList numeros =
            QString::fromLatin1(processo.readAllStandardOutput()).trimmed().split(' ');
        EXPECT_EQ(numeros.size(), 4);
        return {numeros.value(0).toInt(), numeros.value(1).toInt(), numeros.value(2).toInt(),
                numeros.value(3).toInt()};
    }
    apoio::Escritorio m_escritorio;
};

TEST_P(PosicaoDaJanelaTest, FollowsTheScreen)
{
    const QRect janela = Janela();
    ASSERT_GT(janela.width(), 0);
    if (!GetParam().centrada) {
        EXPECT_EQ(janela.topLeft(), QPoint(0, 0));
        return;
    }
    const auto desvio = [](int tela, int inicio, int tamanho) {
        return std::abs(inicio - (tela - inicio - tamanho));
    };
    EXPECT_LE(desvio(GetParam().largura, janela.x(), janela.width()), kMoldura)
        << janela.x() << "+" << janela.width();
    EXPECT_LE(desvio(GetParam().altura, janela.y(), janela.height()), kMoldura)
        << janela.y() << "+" << janela.height();
}

INSTANTIATE_TEST_SUITE_P(Telas, PosicaoDaJanelaTest,
                         testing::Values(CasoTela{"SmallOneTopLeft", 640, 480, false},
                                         CasoTela{"LeastThatIsNotSmallCentred", 641, 480, true},
                                         CasoTela{"UsualOneCentred", 1024, 768, true},
                                         CasoTela{"WideOneCentred", 1920, 1080, true}),
                         [](const auto &caso) { return caso.param.nome; });

} // namespace
