// RemoveAcentos: Windows characters against the device's bytes.
#include "device/Acentos.h"

#include "plataforma/basico/Texto.h"
#include <gtest/gtest.h>
#include <QFile>
#include <QStringList>
#include <vector>

using device::CodigoDispositivo;
using device::RemoveAcentos;
using plataforma::ToAnsi;

namespace {

const QString kLetras = QStringLiteral("ÀÁÂÃÄÇÈÉÊËÌÍÎÏÑÒÓÔÕÖÙÚÛÜÝàáâãäçèéêëìíîïñòóôõöùúûüýÿ¹²³£¢¬§ªº°");
/// The letters above as another program writes them in code page 850.
const QByteArray kEmCp850 =
    QByteArray::fromHex("B7B5B6C78E80D490D2D3DED6D7D8A5E3E0E2E599EBE9EA9AED85A083C684878A828889"
                        "8DA18C8BA495A293E49497A39681EC98FBFDFC9CBDAAF5A6A7F8");

struct CasoLetra {
    std::string nome;
    QString letra;
    int byte;
};

void PrintTo(const CasoLetra &c, std::ostream *os)
{
    *os << c.letra.toStdString();
}

std::string NomeDaLetra(QChar letra)
{
    return QStringLiteral("U%1").arg(letra.unicode(), 4, 16, QLatin1Char('0')).toUpper().toStdString();
}

/// Rows of dados/cp850.tsv: character, code point, its Windows byte, the byte that the device gets.
std::vector<CasoLetra> LinhasDoArquivo()
{
    std::vector<CasoLetra> casos;
    QFile arquivo(QStringLiteral(QX70_TEST_DATA "/cp850.tsv"));
    if (!arquivo.open(QIODevice::ReadOnly))
        return casos;
    arquivo.readLine();
    while (!arquivo.atEnd()) {
        const QStringList campos = QString::fromUtf8(arquivo.readLine()).trimmed().split('\t');
        const QString letra = campos.at(0).mid(1, 1);
        casos.push_back({NomeDaLetra(letra.at(0)), letra, campos.at(3).toInt(nullptr, 16)});
    }
    return casos;
}

std::vector<CasoLetra> TodasAsLetras()
{
    std::vector<CasoLetra> casos;
    for (qsizetype i = 0; i < kLetras.size(); ++i)
        casos.push_back(
            {NomeDaLetra(kLetras.at(i)), kLetras.mid(i, 1), static_cast<unsigned char>(kEmCp850.at(i))});
    return casos;
}

class LetraTest : public testing::TestWithParam<CasoLetra> {};

const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };

} // namespace

TEST_P(LetraTest, GoesToTheDeviceInItsCodePage)
{
    const CasoLetra &caso = GetParam();
    EXPECT_EQ(CodigoDispositivo(caso.letra.at(0)), caso.byte);
    EXPECT_EQ(ToAnsi(RemoveAcentos(caso.letra)), QByteArray(1, static_cast<char>(caso.byte)));
}

INSTANTIATE_TEST_SUITE_P(Arquivo, LetraTest, testing::ValuesIn(LinhasDoArquivo()), kNomeDoCaso);
INSTANTIATE_TEST_SUITE_P(Tabela, LetraTest, testing::ValuesIn(TodasAsLetras()), kNomeDoCaso);

TEST(CodigoDispositivo, IsMinusOneForEveryOtherWindowsCharacter)
{
    int comCodigo = 0;
    for (int byte = 0; byte < 256; ++byte) {
        const QChar letra = plataforma::FromAnsi(QByteArray(1, static_cast<char>(byte))).at(0);
        if (CodigoDispositivo(letra) == -1)
            EXPECT_FALSE(kLetras.contains(letra)) << byte;
        else
            ++comCodigo;
    }
    EXPECT_EQ(comCodigo, 61);
}

TEST(CodigoDispositivo, TellsCapitalsFromSmallLetters)
{
    EXPECT_EQ(CodigoDispositivo(u'Ã'), 0xC7);
    EXPECT_EQ(CodigoDispositivo(u'ã'), 0xC6);
}

TEST(RemoveAcentos, TurnsATextCharacterByCharacter)
{
    EXPECT_EQ(ToAnsi(RemoveAcentos("São João")), QByteArray("S\xC6o Jo\xC6o"));
}

TEST(RemoveAcentos, LeavesRingStrokeAndLigatureUnchanged)
{
    EXPECT_EQ(RemoveAcentos("ÆØÅæøå"), "ÆØÅæøå");
    EXPECT_EQ(ToAnsi(RemoveAcentos("ÆØÅ")), QByteArray("\xC6\xD8\xC5"));
}

TEST(RemoveAcentos, LeavesPlainTextAndControlCharacters)
{
    EXPECT_EQ(RemoveAcentos("R$ 1.234,50 (a)\r\n\x1B"), "R$ 1.234,50 (a)\r\n\x1B");
    EXPECT_EQ(RemoveAcentos(""), "");
}

TEST(RemoveAcentos, KeepsTheLength)
{
    EXPECT_EQ(RemoveAcentos(kLetras).size(), kLetras.size());
}

TEST(RemoveAcentos, RunTwiceSpoils22Characters)
{
    const QString uma = RemoveAcentos(kLetras);
    const QString duas = RemoveAcentos(uma);
    int mudaram = 0;
    for (qsizetype i = 0; i < uma.size(); ++i)
        mudaram += uma.at(i) != duas.at(i) ? 1 : 0;
    EXPECT_EQ(mudaram, 22);
}
