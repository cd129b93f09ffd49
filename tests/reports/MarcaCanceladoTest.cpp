// A cheque of the log marked or deleted by its key.
#include "reports/MarcaCancelado.h"
#include "ComRelato.h"
#include "plataforma/jet/Dynaset.h"

using namespace teste;

namespace {

class MarcaCanceladoTest : public ComRelato {
protected:
    bool MarcaCancelado(const QString &chave, const QString &estado)
    {
        if (!m_aplicacao)
            Abre();
        nucleo::Armazem &armazem = Dados().armazem;
        armazem.AbreBanco(0, 0, 0, 1, 0);
        armazem.AbreConsulta("Log", nucleo::SelLog);
        const bool achado =
            reports::MarcaCancelado(armazem.Conjunto(nucleo::SelLog), chave, estado, Dados().mensagens);
        armazem.FechaBanco(0, 0, 0, 1);
        return achado;
    }
};

struct CasoEstado {
    std::string nome;
    QString estado;
    std::string fica; ///< the log, by its numbers and their status
};
void PrintTo(const CasoEstado &c, std::ostream *os)
{
    *os << '"' << c.estado.toStdString() << '"';
}
class EstadoMarcado : public MarcaCanceladoTest, public testing::WithParamInterface<CasoEstado> {};
TEST_P(EstadoMarcado, MarksWithTheLetterAndDeletesWithAnyOther)
{
    EXPECT_TRUE(MarcaCancelado("0000000002", GetParam().estado));
    EXPECT_EQ(Status(), GetParam().fica);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_TRUE(OutroEscreve());
}
INSTANTIATE_TEST_SUITE_P(
    Estados, EstadoMarcado,
    testing::Values(CasoEstado{"Capital", "C", "1: 2:C 3:C 4:"}, CasoEstado{"Small", "c", "1: 2:C 3:C 4:"},
                    CasoEstado{"Another", "X", "1: 3:C 4:"}, CasoEstado{"Empty", "", "1: 3:C 4:"},
                    CasoEstado{"Blank", " ", "1: 3:C 4:"}, CasoEstado{"BlankInFront", " C", "1: 3:C 4:"},
                    CasoEstado{"Two", "CC", "1: 3:C 4:"}),
    kNomeDoCaso);

TEST_F(MarcaCanceladoTest, StoresTheCapitalLetterAndLeavesTheOtherFields)
{
    Abre();
    QList<QStringList> antes = Log();
    MarcaCancelado("0000000002", "c");
    antes[1][8] = "C";
    EXPECT_EQ(Log(), antes);
}

TEST_F(MarcaCanceladoTest, OneMarkedAlreadyStaysMarked)
{
    EXPECT_TRUE(MarcaCancelado("0000000003", "C"));
    EXPECT_EQ(Status(), "1: 2: 3:C 4:");
}

struct CasoChave {
    std::string nome;
    QString chave, estado;
};
void PrintTo(const CasoChave &c, std::ostream *os)
{
    *os << '"' << c.chave.toStdString() << '"';
}
class ChaveQueFalta : public MarcaCanceladoTest, public testing::WithParamInterface<CasoChave> {};
TEST_P(ChaveQueFalta, IsToldAndNothingChanges)
{
    EXPECT_FALSE(MarcaCancelado(GetParam().chave, GetParam().estado));
    EsperaCaixa("Cheque nao registrado!", QString::fromStdString(kTitulo), QMessageBox::NoIcon);
    EXPECT_EQ(Status(), "1: 2: 3:C 4:");
    EXPECT_TRUE(MarcaCancelado("0000000001", "C")) << "the next one is found";
}
INSTANTIATE_TEST_SUITE_P(Chaves, ChaveQueFalta,
                         testing::Values(CasoChave{"ToMark", "0000000009", "C"},
                                         CasoChave{"ToDelete", "0000000009", "X"},
                                         CasoChave{"WithoutItsZeros", "2", "X"},
                                         CasoChave{"PartOfAKey", "000000000", "X"},
                                         CasoChave{"Empty", "", "C"}),
                         kNomeDoCaso);

TEST_F(MarcaCanceladoTest, OfAnEmptyLogNoneIsRegistered)
{
    m_escritorio.Sql("DELETE FROM Log");
    EXPECT_FALSE(MarcaCancelado("0000000001", "C"));
    EsperaCaixa("Cheque nao registrado!", QString::fromStdString(kTitulo), QMessageBox::NoIcon);
}

} // namespace
