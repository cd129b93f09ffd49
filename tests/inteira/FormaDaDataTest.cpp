// The form of the year: told to the device at the start and by a click, and kept by it for the paper.
#include "Mesa.h"

#include <QRadioButton>

namespace inteira {

namespace {

struct CasoForma {
    std::string nome;
    QString digitos;
    QString opcao;
    QByteArray comando; ///< in hexadecimal
    QString ano;        ///< of 17/05/2024 on the paper
};

void PrintTo(const CasoForma &c, std::ostream *os)
{
    *os << c.digitos.toStdString();
}

const Cheque kCheque = {"1", "10", "Ana", "Olinda", "170524", "1", {}};

QStringList FolhaComAno(const QString &ano)
{
    return FolhaEsperada(kPosicoesPadrao, {"10,00", "dez reais", "Ana", "Olinda", "17", "Maio", ano, {}});
}

class FormaDaDataBase : public Mesa {
protected:
    FormaDaDataBase() { CadastraBanco("001", "Primeiro", kPosicoesPadrao); }
};

class FormaDaDataTest : public FormaDaDataBase, public testing::WithParamInterface<CasoForma> {
protected:
    void EsperaComando() { aparelho.EsperaLinha("comando ano " + GetParam().digitos); }
};

} // namespace

TEST_P(FormaDaDataTest, IsToldAtTheStart)
{
    PoeChave("Opcoes", "ConfiguraData", GetParam().digitos);
    Liga();
    Abre();
    EsperaComando();
    EXPECT_EQ(aparelho.Bytes().toHex(), GetParam().comando);
    EXPECT_TRUE(apoio::Controle<QRadioButton>(Tela(), GetParam().opcao)->isChecked());
    Digita(kCheque);
    Imprime();
    EXPECT_EQ(Folha(1), FolhaComAno(GetParam().ano));
}

TEST_P(FormaDaDataTest, AClickTellsItAndWritesTheKey)
{
    Liga();
    Abre();
    apoio::ClicaEm(Tela(), GetParam().opcao);
    EsperaComando();
    EXPECT_EQ(aparelho.Bytes().toHex(), GetParam().comando);
    EXPECT_EQ(escritorio.Chave("Opcoes", "ConfiguraData"), GetParam().digitos);
    TabAte("Text1(0)");
    Digita(kCheque);
    Imprime();
    EXPECT_EQ(Folha(1), FolhaComAno(GetParam().ano));
}

TEST_P(FormaDaDataTest, TheKeyIsWrittenThoughNoDeviceAnswers)
{
    Abre();
    apoio::ClicaEm(Tela(), GetParam().opcao);
    EXPECT_EQ(escritorio.Chave("Opcoes", "ConfiguraData"), GetParam().digitos);
    EXPECT_EQ(caixas.Quantas(), 0);
}

INSTANTIATE_TEST_SUITE_P(Formas, FormaDaDataTest,
                         testing::Values(CasoForma{"OneDigit", "1", "Option1", "1baf44310d", "4"},
                                         CasoForma{"TwoDigits", "2", "Option2", "1baf44320d", "24"},
                                         CasoForma{"FourDigits", "4", "Option3", "1baf44340d", "2024"}),
                         [](const auto &caso) { return caso.param.nome; });

class SemFormaDaDataTest : public FormaDaDataBase, public testing::WithParamInterface<const char *> {};

TEST_P(SemFormaDaDataTest, NothingIsToldAndNoOptionIsOn)
{
    if (*GetParam() != '\0')
        PoeChave("Opcoes", "ConfiguraData", GetParam());
    Liga();
    Abre();
    for (const char *opcao : {"Option1", "Option2", "Option3"})
        EXPECT_FALSE(apoio::Controle<QRadioButton>(Tela(), opcao)->isChecked()) << opcao;
    Digita(kCheque);
    Imprime();
    EXPECT_EQ(aparelho.Bytes().toHex(' '),
              QuadroDoCheque(0, {"001", "10,00", "Ana", "Olinda", "17/05/24", ""}).toHex(' '));
}

INSTANTIATE_TEST_SUITE_P(Valores, SemFormaDaDataTest, testing::Values("3", ""),
                         [](const auto &caso) { return *caso.param == '\0' ? "Missing" : "Three"; });

class TrocaDeFormaTest : public FormaDaDataBase {};

TEST_F(TrocaDeFormaTest, TheLastFormClickedHoldsForTheNextCheque)
{
    PoeChave("Opcoes", "ConfiguraData", "4");
    Liga();
    Abre();
    Digita(kCheque);
    Imprime();
    apoio::ClicaEm(Tela(), "Option1");
    TabAte("Text1(0)");
    Digita(kCheque);
    Imprime();
    ASSERT_EQ(aparelho.Documentos().size(), 2);
    EXPECT_EQ(Folha(1), FolhaComAno("2024"));
    EXPECT_EQ(Folha(2), FolhaComAno("4"));
}

} // namespace inteira
