// The three extra fields of the front: at their places on the paper, once, and kept by the library on a
// Cancel.
#include "Mesa.h"

namespace inteira {

namespace {

const Cheque kCheque = {"1", "10", "Ana", "Olinda", "010224", "1", {}};

QStringList FolhaCom(const QList<Posto> &extras)
{
    return FolhaEsperada(kPosicoesPadrao,
                         {"10,00", "dez reais", "Ana", "Olinda", "01", "Fevereiro", "2024", extras});
}

class CamposExtrasInteirosTest : public Mesa {
protected:
    CamposExtrasInteirosTest() { CadastraBanco("001", "Primeiro", kPosicoesPadrao); }

    /// Programs the place of a field, by index from 0.
    void Programa(int campo, const QString &linha, const QString &coluna)
    {
        PoeChave("FrenteInfo", QStringLiteral("Campo0%1Lin").arg(campo), linha);
        PoeChave("FrenteInfo", QStringLiteral("Campo0%1Col").arg(campo), coluna);
    }
    /// Types the three extra fields (an empty text clears one) and ends on the print button.
    void DigitaExtras(const QStringList &textos)
    {
        TabAte("TxtCpo(0)");
        for (const QString &texto : textos) {
            apoio::Tecla(Tela(), Qt::Key_F8);
            Preenche(texto);
            apoio::Tecla(Tela(), Qt::Key_Return);
        }
        ASSERT_EQ(apoio::Foco(Tela()), "Text1(6)");
        apoio::Tecla(Tela(), Qt::Key_Return);
    }
};

} // namespace

TEST_F(CamposExtrasInteirosTest, StandAtTheirPlacesAndGoWithTheirTexts)
{
    Programa(0, "2", "3");
    Programa(1, "20", "100");
    Programa(2, "12", "1");
    Liga();
    Abre();
    Digita(kCheque);
    DigitaExtras({"Bom para 10/03", "No 42", "AGENCIA CENTRO"});
    Imprime();
    Digita(kCheque);
    DigitaExtras({"", "No 43", ""});
    Imprime();
    Digita(kCheque);
    DigitaExtras({"", "", ""});
    Imprime();

    ASSERT_EQ(aparelho.Documentos().size(), 3);
    EXPECT_EQ(Folha(1), FolhaCom({{2, 3, "Bom para 10/03"}, {20, 100, "No 42"}, {12, 1, "AGENCIA CENTRO"}}));
    EXPECT_EQ(Folha(2), FolhaCom({{20, 100, "No 43"}}));
    EXPECT_EQ(Folha(3), FolhaCom({}));
    EXPECT_EQ(Log().size(), 3);
}

TEST_F(CamposExtrasInteirosTest, TheFramesGoBeforeTheChequesOwn)
{
    Programa(1, "2", "3");
    Liga();
    Abre();
    Digita(kCheque);
    DigitaExtras({"", "Ok", ""});
    Imprime();
    const QByteArray campo = QByteArray::fromHex("000200020003") + Argumento("Ok");
    EXPECT_EQ(aparelho.Bytes().toHex(' '),
              (Quadro('X', 0, campo) + QuadroDoCheque(1, {"001", "10,00", "Ana", "Olinda", "01/02/24", ""}))
                  .toHex(' '));
}

// On purpose: an extra field is no text for the device's code page; its accents come out as other signs.
TEST_F(CamposExtrasInteirosTest, GoOutAsTheyStandUnlikeThePayee)
{
    Programa(0, "2", "3");
    Liga();
    Abre();
    Digita(kCheque);
    DigitaExtras({"Não é", "", ""});
    Imprime();
    EXPECT_EQ(Folha(1), FolhaCom({{2, 3, "NÒo Ú"}}));
}

TEST_F(CamposExtrasInteirosTest, TheLongestOneThatTheRuleLetsPassComesOutWhole)
{
    Programa(0, "20", "19");
    Programa(1, "18", "1");
    Liga();
    Abre();
    const QString cem = QStringLiteral("0123456789").repeated(10);
    const QString centoEDezoito = cem + "ABCDEFGHIJKLMNOPQR";
    Digita(kCheque);
    DigitaExtras({cem, centoEDezoito, ""});
    Imprime();
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(Folha(1), FolhaCom({{20, 19, cem}, {18, 1, centoEDezoito}}));
}

TEST_F(CamposExtrasInteirosTest, OneColumnMoreIsRefusedBeforeTheQuestion)
{
    Programa(0, "20", "20");
    Liga();
    Abre();
    Digita(kCheque);
    DigitaExtras({QString(100, 'x'), "", ""});
    Imprime();
    EXPECT_EQ(Vistas(), (std::vector<Vista>{{"Impressão do Cheque",
                                             "Valores de posicao incorretos na impressao do campo1!\n"
                                             "Linha =20 e Coluna = 20 + texto de tamanho 100!"}}));
    EXPECT_EQ(aparelho.Bytes(), QByteArray());
    EXPECT_EQ(Log().size(), 0);
}

TEST_F(CamposExtrasInteirosTest, AFieldWithoutAPlaceIsRefusedBeforeTheQuestion)
{
    Programa(0, "2", "3");
    Liga();
    Abre();
    Digita(kCheque);
    DigitaExtras({"um", "dois", ""});
    Imprime();
    EXPECT_EQ(Vistas(),
              (std::vector<Vista>{
                  {"Impressão do Cheque", "Valores de posicao nao cadastrados na impressao do campo2!\n"}}));
    Digita(kCheque);
    DigitaExtras({"", "", ""});
    Imprime();
    EXPECT_EQ(Folha(1), FolhaCom({}));
}

// On purpose: Cancel at the question leaves the fields with the library, and the next cheque carries them.
TEST_F(CamposExtrasInteirosTest, CancelAtTheQuestionLeavesThemForTheNextCheque)
{
    Programa(0, "2", "3");
    Liga();
    Abre();
    Digita(kCheque);
    DigitaExtras({"Ficou", "", ""});
    caixas.Responde(QMessageBox::Cancel);
    Imprime();
    EXPECT_EQ(aparelho.Bytes(), QByteArray());
    for (int cheque = 0; cheque < 2; ++cheque) {
        Digita(kCheque);
        DigitaExtras({"", "", ""});
        Imprime();
    }
    ASSERT_EQ(aparelho.Documentos().size(), 2);
    EXPECT_EQ(Folha(1), FolhaCom({{2, 3, "Ficou"}}));
    EXPECT_EQ(Folha(2), FolhaCom({}));
}

TEST_F(CamposExtrasInteirosTest, ThoseOfAFailedChequeDoNotComeOutOnTheNext)
{
    Programa(0, "2", "3");
    Liga();
    Abre();
    Digita(kCheque);
    DigitaExtras({"Perdido", "", ""});
    aparelho.PoeFalha("fim-de-papel:1");
    Imprime();
    EXPECT_EQ(Vistas(), (std::vector{kInsira, FalhaNoCheque(21)}));
    Digita(kCheque);
    DigitaExtras({"", "", ""});
    Imprime();
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(Folha(1), FolhaCom({}));
}

} // namespace inteira
