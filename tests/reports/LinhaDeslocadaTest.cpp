// Rows of other programs whose texts are too long or too short for their columns: the lines are shifted, and
// still the click, the deletion and the cancelling meet their own cheque.
#include "ComRelato.h"

using namespace teste;

namespace {

struct CasoLinha {
    std::string nome;
    QString banco, valor, favor;
    int tamanho; ///< of its line
};
void PrintTo(const CasoLinha &c, std::ostream *os)
{
    *os << c.nome;
}

class LinhaDeslocada : public ComRelato, public testing::WithParamInterface<CasoLinha> {
protected:
    LinhaDeslocada()
    {
        Grava(
            {kChave, GetParam().banco, GetParam().valor, GetParam().favor, "Natal", "05/03/03", "777", " "});
        // The cheque of the number that stands where the column of the key would be.
        const QString noLugar = LinhaEsperada().mid(128, 10).trimmed();
        if (!noLugar.isEmpty() && noLugar != kChave && noLugar != kCheques[0].index)
            Grava({noLugar, "001", "1,", "Outra", "Natal", "05/03/03", "888", " "});
    }
    static QString LinhaEsperada()
    {
        const CasoLinha &c = GetParam();
        return "  |         777 | " + c.banco + " | " + kMostrados.value(c.valor).rightJustified(16) +
               " | 05/03/03 | " + c.favor.leftJustified(74) + kChave;
    }
    /// Every row but that of the case, with what it had.
    [[nodiscard]] QList<QStringList> Outros()
    {
        return m_escritorio.Linhas("SELECT * FROM Log WHERE \"Index\" <> '" + kChave + "' ORDER BY rowid");
    }
    [[nodiscard]] QList<QStringList> StatusDele()
    {
        return m_escritorio.Linhas("SELECT trim(StCancel) FROM Log WHERE \"Index\" = '" + kChave + "'");
    }
    void EscolheCom(QList<QStringList> &outros)
    {
        outros = Outros();
        AbreRelato();
        ClicaNaLinha(4);
        ASSERT_EQ(m_caixas->Quantas(), 0U) << Vistas();
    }

    static inline const QString kChave = "0000000050";
    static inline const QMap<QString, QString> kMostrados = {{"9,", "9,00"},
                                                             {"12345678901234,5", "12.345.678.901.234,50"}};
};

TEST_P(LinhaDeslocada, StandsWholeAndEndsWithItsKey)
{
    AbreRelato();
    EXPECT_EQ(Lista().at(4).toStdString(), LinhaEsperada().toStdString());
    EXPECT_EQ(Lista().at(4).size(), GetParam().tamanho);
}

TEST_P(LinhaDeslocada, AClickShowsItsOwnCheque)
{
    AbreRelato();
    ClicaNaLinha(4);
    EXPECT_EQ(Rotulo(6), "777");
    EXPECT_EQ(Rotulo(2), GetParam().favor.toStdString());
    EXPECT_EQ(Rotulo(0), GetParam().banco.toStdString() + " - Inexistente");
    EXPECT_EQ(m_caixas->Quantas(), 0U) << Vistas();
}

TEST_P(LinhaDeslocada, DeletingTakesItAwayAndNoOther)
{
    QList<QStringList> outros;
    EscolheCom(outros);
    Responde(QMessageBox::Yes);
    Aperta("Elimina");
    EXPECT_EQ(StatusDele(), QList<QStringList>());
    EXPECT_EQ(Outros(), outros);
    EXPECT_EQ(m_caixas->Quantas(), 1U) << Vistas();
}

TEST_P(LinhaDeslocada, ChosenForCancellingItIsMarkedAndNoOther)
{
    QList<QStringList> outros;
    EscolheCom(outros);
    Aperta("SSCommand4");
    ApertaEm("ExcluiRel", "BtnCmd(0)");
    EXPECT_EQ(StatusDele(), QList<QStringList>{{"C"}});
    EXPECT_EQ(Outros(), outros);
    EXPECT_EQ(m_caixas->Quantas(), 0U) << Vistas();
}

INSTANTIATE_TEST_SUITE_P(
    Linhas, LinhaDeslocada,
    testing::Values(CasoLinha{"PayeeOf75", "999", "9,", QString(75, 'x'), 139},
                    CasoLinha{"PayeeOf84ThatEndsInAnotherKey", "999", "9,", QString(74, 'x') + "0000000001",
                              148},
                    CasoLinha{"PayeeOf200", "999", "9,", QString(200, 'x'), 264},
                    CasoLinha{"PayeeWithAKeyInside", "999", "9,",
                              QString(74, 'x') + "0000000049" + QString(30, 'y'), 178},
                    CasoLinha{"BankOfFour", "9999", "9,", "Ana", 139},
                    CasoLinha{"BankOfThirteen", "9999999999999", "9,", "Ana", 148},
                    CasoLinha{"BankOfTwo", "99", "9,", "Ana", 137},
                    CasoLinha{"BankOfOne", "9", "9,", "Ana", 136}, CasoLinha{"NoBank", "", "9,", "Ana", 135},
                    CasoLinha{"ValueWiderThanItsColumn", "999", "12345678901234,5", "Ana", 143}),
    kNomeDoCaso);

} // namespace
