// Drawings: each text is where its place is, and the pictures are sound files.
#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "Apoio.h"
#include "Arquivos.h"
#include "DesenhoDoCheque.h"
#include "Papel.h"

using namespace simulador;

namespace {

Documento Cheque(const std::vector<TextoPosto> &textos)
{
    Documento cheque;
    cheque.tipo = Documento::Tipo::Cheque;
    cheque.formulario = {"001", "", LugaresDe(LePosicoes(apoio::kPosicoes).value()), "20"};
    cheque.textos = textos;
    return cheque;
}

Documento Folha(const std::vector<LinhaDeFolha> &linhas)
{
    Documento folha;
    folha.linhas = linhas;
    return folha;
}

QImage Figura(const Documento &documento)
{
    return QImage::fromData(PngDe(documento), "PNG");
}

/// How many pixels of a region two pictures show differently.
int Diferencas(const QImage &a, const QImage &b, const QRect &regiao)
{
    int diferencas = 0;
    for (int y = regiao.top(); y <= regiao.bottom(); ++y) {
        for (int x = regiao.left(); x <= regiao.right(); ++x)
            diferencas += a.pixel(x, y) != b.pixel(x, y);
    }
    return diferencas;
}

struct CasoLugar {
    const char *nome;
    Lugar lugar;
};
void PrintTo(const CasoLugar &c, std::ostream *os)
{
    *os << "line " << c.lugar.linha << ", column " << c.lugar.coluna;
}
class DesenhoTest : public testing::TestWithParam<CasoLugar> {};
TEST_P(DesenhoTest, PrintsIntoItsCellsAndNowhereElse)
{
    const QImage vazio = Figura(Cheque({}));
    const QImage escrito = Figura(Cheque({{Campo::Extra, GetParam().lugar, "M"}}));
    const QRect celula = CelulaDe(GetParam().lugar).toAlignedRect();
    const int dentro = Diferencas(vazio, escrito, celula);
    EXPECT_GT(dentro, 40);
    EXPECT_EQ(Diferencas(vazio, escrito, vazio.rect()),
              Diferencas(vazio, escrito, celula.adjusted(-2, 0, 2, 0)));
}
INSTANTIATE_TEST_SUITE_P(Lugares, DesenhoTest,
                         testing::Values(CasoLugar{"FirstCell", {1, 1}}, CasoLugar{"LastCell", {20, 120}},
                                         CasoLugar{"FirstLineLastColumn", {1, 120}},
                                         CasoLugar{"Middle", {10, 60}}),
                         [](const auto &caso) { return caso.param.nome; });

TEST(Desenho, EveryAccentHasItsOwnShape)
{
    const QString sinais = QString::fromUtf8("aáâãàäcçeéêioóôõuúüAÁÂÃÀCÇEÉÊOÓÔÕUÚÜ");
    std::set<QByteArray> formas;
    for (const QChar sinal : sinais)
        formas.insert(PngDe(Folha({{QString(sinal), 80, false, false}})));
    EXPECT_EQ(formas.size(), static_cast<std::size_t>(sinais.size()));
}

TEST(Desenho, AnInvertedLineIsTheUprightOneTurnedRound)
{
    std::vector<LinhaDeFolha> dePe(16, {"", 80, false, false});
    std::vector<LinhaDeFolha> invertida = dePe;
    dePe.at(7).texto = "Texto";
    invertida.at(8) = {"Texto", 80, false, true};
    const QRect papel(40, 40, 1184, 544); // inside the paper's edge
    const QImage turned = Figura(Folha(dePe)).mirrored(true, true).copy(papel);
    const QImage inverted = Figura(Folha(invertida)).copy(papel);
    const QImage blank = Figura(Folha(std::vector<LinhaDeFolha>(16, {"", 80, false, false}))).copy(papel);
    ASSERT_GT(Diferencas(inverted, blank, blank.rect()), 200);
    // Smoothing of the dots differs a little between the two ways of turning.
    EXPECT_LT(Diferencas(turned.scaled(296, 136, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                             .convertToFormat(QImage::Format_Mono),
                         inverted.scaled(296, 136, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                             .convertToFormat(QImage::Format_Mono),
                         QRect(0, 0, 296, 136)),
              Diferencas(inverted, blank, blank.rect()) / 4);
}

TEST(Desenho, EmphasisIsHeavier)
{
    const QImage vazia = Figura(Folha({{"", 80, false, false}}));
    const QImage leve = Figura(Folha({{"TITULO", 80, false, false}}));
    const QImage forte = Figura(Folha({{"TITULO", 80, true, false}}));
    EXPECT_GT(Diferencas(vazia, forte, vazia.rect()), Diferencas(vazia, leve, vazia.rect()) * 11 / 10);
}

TEST(Desenho, AChequeIsAtLeast1240By560Pixels)
{
    const QImage figura = Figura(Cheque({}));
    EXPECT_GE(figura.width(), 1240);
    EXPECT_GE(figura.height(), 560);
}

TEST(Desenho, ALongSheetGrowsWithItsLines)
{
    EXPECT_EQ(Figura(Folha(std::vector<LinhaDeFolha>(17, {"x", 80, false, false}))).height() -
                  Figura(Folha(std::vector<LinhaDeFolha>(16, {"x", 80, false, false}))).height(),
              30);
}

TEST(Pdf, IsAOnePageFile)
{
    const QByteArray pdf = PdfDe(Cheque({{Campo::Extra, {3, 3}, "x"}}));
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_TRUE(pdf.trimmed().endsWith("%%EOF"));
    EXPECT_THAT(pdf.toStdString(), testing::HasSubstr("/Count 1"));
}

// --- files ---

TEST(Arquivos, NumbersGoOnFromTheFolder)
{
    QTemporaryDir pasta;
    for (const char *nome :
         {"000041-cheque.txt", "000007-folha.txt", "000099-outra.txt", "x000500-cheque.txt"}) {
        QFile arquivo(pasta.filePath(nome));
        ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
    }
    Arquivos arquivos(pasta.path(), false);
    ASSERT_EQ(arquivos.Falha(), QString());
    EXPECT_EQ(arquivos.Grava(Cheque({})).base, pasta.filePath("000042-cheque"));
    EXPECT_EQ(arquivos.Grava(Folha({{"x", 80, false, false}})).base, pasta.filePath("000043-folha"));
}

TEST(Arquivos, WritesFourFiles)
{
    QTemporaryDir pasta;
    Arquivos arquivos(pasta.filePath("nova/funda"), true);
    const auto gravado =
        arquivos.Grava(Folha({{QString::fromUtf8("São"), 96, true, false}, {"b", 80, false, true}}));
    ASSERT_EQ(gravado.falha, QString());
    QFile texto(gravado.base + ".txt");
    ASSERT_TRUE(texto.open(QIODevice::ReadOnly));
    EXPECT_EQ(texto.readAll(), "São\nb\n");
    EXPECT_FALSE(QImage(gravado.base + ".png").isNull());
    EXPECT_TRUE(QFile::exists(gravado.base + ".pdf"));
    QFile detalhe(gravado.base + ".json");
    ASSERT_TRUE(detalhe.open(QIODevice::ReadOnly));
    const QJsonObject objeto = QJsonDocument::fromJson(detalhe.readAll()).object();
    EXPECT_EQ(objeto["tipo"].toString(), "folha");
    EXPECT_EQ(objeto["linhas"][0]["texto"].toString(), QString::fromUtf8("São"));
    EXPECT_EQ(objeto["linhas"][0]["largura"].toInt(), 96);
    EXPECT_TRUE(objeto["linhas"][0]["enfase"].toBool());
    EXPECT_TRUE(objeto["linhas"][1]["invertida"].toBool());
}

TEST(Arquivos, DetailOfAChequeNamesItsFields)
{
    const QJsonObject objeto =
        QJsonDocument::fromJson(
            Detalhe(Cheque({{Campo::Valor, {1, 92}, "#1,00#"}, {Campo::Extra, {3, 4}, "x"}})))
            .object();
    EXPECT_EQ(objeto["tipo"].toString(), "cheque");
    EXPECT_EQ(objeto["banco"].toString(), "001");
    EXPECT_EQ(objeto["prefixoDoAno"].toString(), "20");
    EXPECT_EQ(objeto["textos"][0]["campo"].toString(), "valor");
    EXPECT_EQ(objeto["textos"][0]["coluna"].toInt(), 92);
    EXPECT_EQ(objeto["textos"][1]["campo"].toString(), "extra");
    EXPECT_EQ(objeto["textos"][1]["linha"].toInt(), 3);
}

TEST(Arquivos, AFolderThatCannotBeMadeIsTold)
{
    QTemporaryDir pasta;
    QFile arquivo(pasta.filePath("arquivo"));
    ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
    EXPECT_THAT(Arquivos(pasta.filePath("arquivo/pasta"), false).Falha().toStdString(),
                testing::HasSubstr("não pode ser usada"));
}

TEST(Arquivos, AFileThatCannotBeWrittenIsTold)
{
    QTemporaryDir pasta;
    Arquivos arquivos(pasta.path(), false);
    ASSERT_TRUE(QDir(pasta.path()).mkdir("000001-cheque.txt"));
    EXPECT_THAT(arquivos.Grava(Cheque({})).falha.toStdString(), testing::HasSubstr("000001-cheque.txt"));
}

} // namespace
