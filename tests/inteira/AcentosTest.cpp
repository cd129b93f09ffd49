// Every accented character of the device: one byte of code page 850 on the line, the same character on the
// paper.
#include "Mesa.h"

#include <QFile>

namespace inteira {

namespace {

constexpr int kLetras = 61;
constexpr int kFavorecido = 47;
constexpr int kCidade = 20;

struct Letra {
    QString letra;
    char byte;
};

/// Rows of dados/cp850.tsv: the character between quotation marks, its byte in code page 850.
std::vector<Letra> LeLetras()
{
    std::vector<Letra> letras;
    QFile arquivo(QStringLiteral(QX70_TEST_DATA "/cp850.tsv"));
    if (!arquivo.open(QIODevice::ReadOnly))
        return letras;
    arquivo.readLine();
    while (!arquivo.atEnd()) {
        const QStringList campos = QString::fromUtf8(arquivo.readLine()).trimmed().split('\t');
        letras.push_back({campos.at(0).mid(1, 1), static_cast<char>(campos.at(1).toInt(nullptr, 16))});
    }
    return letras;
}

/// Some characters in a row, and the bytes that they must become.
struct Trecho {
    QString texto;
    QByteArray bytes;
};

/// `quantas` letters of the table from `primeira` on, going round, between two plain ones.
Trecho TrechoDe(const std::vector<Letra> &letras, int primeira, int quantas)
{
    Trecho trecho;
    for (int i = 0; i < quantas; ++i) {
        const Letra &letra = letras.at(static_cast<std::size_t>((primeira + i) % kLetras));
        trecho.texto += letra.letra;
        trecho.bytes += letra.byte;
    }
    return {'<' + trecho.texto + '>', '<' + trecho.bytes + '>'};
}

class AcentosInteirosTest : public Mesa {
protected:
    AcentosInteirosTest()
    {
        CadastraBanco("001", "Primeiro", kPosicoesPadrao);
        Liga();
        Abre();
    }
    /// Types the cheque, payee and city filled from the table, and prints it.
    void ImprimeTrechos(const Trecho &favorecido, const Trecho &cidade)
    {
        Digita({"1", "10", favorecido.texto, cidade.texto, "010224", "1", {}});
        Imprime();
    }
    /// The nth document and the frame of that cheque carry them.
    void Confere(int n, int sequencia, const Trecho &favorecido, const Trecho &cidade)
    {
        EXPECT_EQ(Folha(n),
                  FolhaEsperada(
                      kPosicoesPadrao,
                      {"10,00", "dez reais", favorecido.texto, cidade.texto, "01", "Fevereiro", "2024", {}}));
        const QByteArray quadro =
            QuadroDoCheque(sequencia, {"001", "10,00", favorecido.bytes, cidade.bytes, "01/02/24", ""});
        EXPECT_EQ(aparelho.Bytes().right(quadro.size()).toHex(' '), quadro.toHex(' '));
        EXPECT_EQ(Log().last().mid(4, 2), (QStringList{favorecido.texto, cidade.texto}));
    }
    const std::vector<Letra> letras = LeLetras();
};

} // namespace

TEST_F(AcentosInteirosTest, TheTableHasEveryCharacterOfTheDevice)
{
    ASSERT_EQ(letras.size(), kLetras);
}

TEST_F(AcentosInteirosTest, AllArriveAndStandRightAgainAndAgain)
{
    ASSERT_EQ(letras.size(), kLetras);
    // Four cheques a round: both payee and city go through the whole table.
    int n = 0;
    for (int rodada = 0; rodada < 2; ++rodada) {
        for (const int primeira : {0, 16, 32, 48}) {
            const Trecho favorecido = TrechoDe(letras, primeira, kFavorecido - 2);
            const Trecho cidade = TrechoDe(letras, primeira + kFavorecido - 2, kCidade - 2);
            ImprimeTrechos(favorecido, cidade);
            ASSERT_EQ(aparelho.Documentos().size(), n + 1);
            Confere(n + 1, n, favorecido, cidade);
            ++n;
        }
    }
}

TEST_F(AcentosInteirosTest, TheyStandRightAfterAFailedJobToo)
{
    ASSERT_EQ(letras.size(), kLetras);
    const Trecho favorecido = TrechoDe(letras, 0, kFavorecido - 2);
    const Trecho cidade = TrechoDe(letras, 45, kCidade - 2);
    aparelho.PoeFalha("nak:1");
    ImprimeTrechos(favorecido, cidade);
    EXPECT_EQ(Vistas(), (std::vector{kInsira, FalhaNoCheque(13)}));
    EXPECT_EQ(aparelho.Documentos().size(), 0);
    ImprimeTrechos(favorecido, cidade);
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    Confere(1, 1, favorecido, cidade);
    EXPECT_EQ(Log().size(), 1);
}

} // namespace inteira
