// What holds for all three registers: the keys between search, list and boxes, and a store that is gone when
// a button looks for the code.
#include "ComCadastro.h"

#include <QFile>

using namespace teste;

namespace {

class TeclasDoCadastro : public ComCadastro, public testing::WithParamInterface<Registro> {
protected:
    TeclasDoCadastro() : ComCadastro(GetParam()) {}
};

TEST_P(TeclasDoCadastro, EnterAndDownInTheSearchGoToTheListAndChooseNothing)
{
    for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
        AbreCadastro();
        VaiA("Text2");
        TeclaNele(tecla);
        EXPECT_EQ(FocoDele(), "List1") << tecla;
        EXPECT_EQ(LinhaCorrente(), "");
        EXPECT_EQ(Estado(), kPronto);
        EXPECT_EQ(Caixas(1), "|");
    }
    TeclaNele(Qt::Key_Down);
    EXPECT_EQ(LinhaCorrente(), List1()->TextoDe(0).toStdString());
    EXPECT_EQ(Estado(), kSelecionado);
}

TEST_P(TeclasDoCadastro, EnterAndDownInTheSearchStayOverAnEmptyList)
{
    AbreCadastro();
    DigitaNela("Text2", "zzz");
    ASSERT_EQ(List1()->Quantas(), 0);
    for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
        TeclaNele(tecla);
        EXPECT_EQ(FocoDele(), "Text2") << tecla;
    }
    EXPECT_EQ(Caixa("Text2"), "zzz");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_P(TeclasDoCadastro, EnterInTheListGoesToTheName)
{
    for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Enter}) {
        AbreCadastro();
        ClicaNaLinha(1);
        const std::string nome = Caixa(1);
        TeclaNele(tecla);
        EXPECT_EQ(FocoDele(), "Text1(1)") << tecla;
        EXPECT_EQ(Selecionado("Text1(1)"), nome);
        EXPECT_EQ(Estado(), kSelecionado);
    }
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Telas, TeclasDoCadastro, testing::Values(kBancos, kCidade, kFavorec),
                         [](const auto &caso) { return caso.param.tela.toStdString(); });

// --- the store is gone at the look-up of the code ---

struct CasoSumiu {
    std::string nome;
    Registro registro;
    int botao;
    bool pergunta; ///< the device is asked for before that
};
void PrintTo(const CasoSumiu &c, std::ostream *os)
{
    *os << c.nome;
}
class BancoDeDadosSumiu : public ComCadastro, public testing::WithParamInterface<CasoSumiu> {
protected:
    BancoDeDadosSumiu() : ComCadastro(GetParam().registro) {}
    /// A click that the look-up would refuse: a code that is taken, or one that is not there.
    void PreparaRecusa()
    {
        AbreCadastro();
        ClicaNaLinha(1);
        QStringList textos;
        for (int i = 0; i <= Ultima(); ++i)
            textos << QString::fromStdString(Caixa(i));
        if (GetParam().botao == Incluir) {
            AbreNovo();
            for (int i = 0; i <= Ultima(); ++i)
                PoeNaCaixa(i, textos.at(i));
        } else {
            m_escritorio.Sql("DELETE FROM " + GetParam().registro.tabela + " WHERE rowid = 2");
        }
    }
    void TiraBanco()
    {
        ASSERT_TRUE(QFile::rename(m_escritorio.Arquivo("QX70.MDB"), m_escritorio.Arquivo("longe.MDB")));
    }
    void DevolveBanco()
    {
        ASSERT_FALSE(QFile::exists(m_escritorio.Arquivo("QX70.MDB"))) << "none is made";
        ASSERT_TRUE(QFile::rename(m_escritorio.Arquivo("longe.MDB"), m_escritorio.Arquivo("QX70.MDB")));
    }
    void ApertaSemAparelho()
    {
        if (GetParam().pergunta)
            m_caixas->Responde(QMessageBox::No);
        Aperta(GetParam().botao);
    }
    /// Boxes that came, but the question for the device.
    [[nodiscard]] std::vector<apoio::Caixa> Avisos()
    {
        std::vector<apoio::Caixa> avisos;
        for (const apoio::Caixa &caixa : m_caixas->Vistas())
            if (caixa.titulo != "Comando QX70")
                avisos.push_back(caixa);
        return avisos;
    }
    [[nodiscard]] int Ultima() const { return GetParam().registro.tela == "Bancos" ? 14 : 1; }

private:
    void AbreNovo()
    {
        Cadastro().close();
        Ativa();
        AbreDeNovo();
    }
};
TEST_P(BancoDeDadosSumiu, IsToldInOneBoxBeforeTheCodeIsLookedFor)
{
    PreparaRecusa();
    const std::string tabela = Tabela();
    const std::string caixas = Caixas(Ultima());
    const std::string estado = Estado();
    TiraBanco();
    ApertaSemAparelho();
    ASSERT_EQ(Avisos().size(), 1U) << Vistas();
    EXPECT_EQ(Avisos().front().texto, "O Banco de dados \"QX70.MDB\" nao foi encontrado!");
    EXPECT_EQ(Avisos().front().titulo, "Erro");
    EXPECT_EQ(Avisos().front().icone, QMessageBox::Warning);
    EXPECT_EQ(Avisos().front().botoes, QMessageBox::Ok);
    EXPECT_EQ(m_caixas->Quantas(), GetParam().pergunta ? 2U : 1U);
    EXPECT_EQ(Caixas(Ultima()), caixas);
    EXPECT_EQ(Estado(), estado);
    EXPECT_FALSE(Ampulheta());
    EXPECT_TRUE(EstaAberto());
    DevolveBanco();
    EXPECT_EQ(Tabela(), tabela);
}
TEST_P(BancoDeDadosSumiu, IsToldBehindAnEmptyBox)
{
    PreparaRecusa();
    PoeNaCaixa(1, "");
    TiraBanco();
    ApertaSemAparelho();
    ASSERT_EQ(Avisos().size(), 1U) << Vistas();
    EXPECT_EQ(Avisos().front().texto, "Campo Inválido...");
    EXPECT_EQ(FocoDele(), "Text1(1)");
    DevolveBanco();
}
TEST_P(BancoDeDadosSumiu, OnceItIsBackTheCodeIsToldAsEver)
{
    PreparaRecusa();
    TiraBanco();
    ApertaSemAparelho();
    DevolveBanco();
    ApertaSemAparelho();
    ASSERT_EQ(Avisos().size(), 2U) << Vistas();
    EXPECT_EQ(Avisos().back().texto,
              GetParam().botao == Incluir ? "Codigo ja cadastrado..." : "Codigo nao encontrado...");
}
INSTANTIATE_TEST_SUITE_P(Botoes, BancoDeDadosSumiu,
                         testing::Values(CasoSumiu{"BankInserted", kBancos, Incluir, true},
                                         CasoSumiu{"BankChanged", kBancos, Alterar, true},
                                         CasoSumiu{"BankRemoved", kBancos, Excluir, false},
                                         CasoSumiu{"CityInserted", kCidade, Incluir, false},
                                         CasoSumiu{"CityChanged", kCidade, Alterar, false},
                                         CasoSumiu{"CityRemoved", kCidade, Excluir, false},
                                         CasoSumiu{"PayeeInserted", kFavorec, Incluir, true},
                                         CasoSumiu{"PayeeChanged", kFavorec, Alterar, false},
                                         CasoSumiu{"PayeeRemoved", kFavorec, Excluir, true}),
                         kNomeDoCaso);

} // namespace
