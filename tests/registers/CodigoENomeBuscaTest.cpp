// Cities and payees under a search: an operation lists every row again, and what was sought stays in its box.
#include "ComCadastro.h"

using namespace teste;

namespace {

struct CasoOperacao {
    std::string nome;
    Registro registro;
    int botao;
};
void PrintTo(const CasoOperacao &c, std::ostream *os)
{
    *os << c.nome;
}
class OperacaoComBusca : public ComCodigoENome, public testing::WithParamInterface<CasoOperacao> {
protected:
    OperacaoComBusca() : ComCodigoENome(GetParam().registro) {}
    [[nodiscard]] bool ECidade() const { return GetParam().registro.tela == "Cidade"; }
    /// The rows that the search "00" leaves out of the list come back with the others.
    [[nodiscard]] std::string Esperada() const
    {
        switch (GetParam().botao) {
        case Incluir:
            return "90000 - Fora|00003 - Um|00020 - Dois|00900 - Nova";
        case Alterar:
            return "90000 - Fora|00003 - Nova|00020 - Dois";
        default:
            return "90000 - Fora|00020 - Dois";
        }
    }
};
TEST_P(OperacaoComBusca, ListsAllRowsAndKeepsWhatWasSought)
{
    m_escritorio.Sql("DELETE FROM " + GetParam().registro.tabela + "; INSERT INTO " +
                     GetParam().registro.tabela +
                     " VALUES ('90000', 'Fora'), ('00003', 'Um'), ('00020', 'Dois')");
    AbreCadastro();
    DigitaNela("Text2", "00");
    ASSERT_EQ(Lista(), "00003 - Um|00020 - Dois");
    if (GetParam().botao == Incluir) {
        Preenche("00900", "Nova");
    } else {
        ClicaNaLinha(0);
        PoeNaCaixa(1, "Nova");
    }
    if (!ECidade() && GetParam().botao != Alterar)
        m_caixas->Responde(QMessageBox::No);
    Aperta(GetParam().botao);
    EXPECT_EQ(Lista(), Esperada());
    EXPECT_EQ(Caixa("Text2"), "00");
    EXPECT_EQ(LinhaCorrente(), "");
    EXPECT_EQ(Estado(), kPronto);
    DigitaNela("Text2", "9");
    EXPECT_EQ(Lista(), "90000 - Fora") << "the search goes on";
}
INSTANTIATE_TEST_SUITE_P(Botoes, OperacaoComBusca,
                         testing::Values(CasoOperacao{"CityInserted", kCidade, Incluir},
                                         CasoOperacao{"CityChanged", kCidade, Alterar},
                                         CasoOperacao{"CityRemoved", kCidade, Excluir},
                                         CasoOperacao{"PayeeInserted", kFavorec, Incluir},
                                         CasoOperacao{"PayeeChanged", kFavorec, Alterar},
                                         CasoOperacao{"PayeeRemoved", kFavorec, Excluir}),
                         kNomeDoCaso);

} // namespace
