// The registers on a store or a folder that may be read and not written.
#include "ComCadastro.h"
#include "Disco.h"

using namespace teste;

namespace {

struct CasoDireito {
    Registro registro;
    bool pasta; ///< the folder may not be written; else the store itself
};
void PrintTo(const CasoDireito &c, std::ostream *os)
{
    *os << c.registro.tela.toStdString();
}
class SemDireito : public ComCadastro, public testing::WithParamInterface<CasoDireito> {
protected:
    SemDireito() : ComCadastro(GetParam().registro) {}
    void SetUp() override { AbreCadastro(); }
    /// Presses a button while nothing may be written.
    void ApertaSemDireito(int botao)
    {
        for (int i = 0; i < 2; ++i)
            m_caixas->Responde(GetParam().registro.tela == "Cidade" ? QMessageBox::Ok : QMessageBox::No);
        AtivaEle();
        const QString alvo = GetParam().pasta ? m_escritorio.Pasta() : m_escritorio.Arquivo("QX70.MDB");
        const ComDireitos direitos(m_escritorio.Pasta(), alvo, GetParam().pasta ? 0555 : 0444);
        Aperta(botao);
    }
    void EsperaRecusa(const std::string &tabela, const std::string &boxes)
    {
        EXPECT_TRUE(m_caixas->Ultima().texto.startsWith("Ocorreu erro 3051!\n")) << Vistas();
        EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Warning);
        EXPECT_EQ(Tabela(), tabela);
        EXPECT_EQ(Caixas(1), boxes);
        EXPECT_FALSE(m_escritorio.LeIni().contains("[Formato]"));
        EXPECT_FALSE(Ampulheta());
    }
    const std::string m_antes = Tabela();
};

TEST_P(SemDireito, AnInsertionIsToldAndTheBoxesStay)
{
    for (int i = 0; i < 15 && Cadastro().findChild<QLineEdit *>(QString("Text1(%1)").arg(i)); ++i)
        PoeNaCaixa(i, i == 1 ? "NOVO" : "900");
    ApertaSemDireito(Incluir);
    EsperaRecusa(m_antes, (GetParam().registro.tela == "Bancos" ? "900" : Caixa(0)) + "|NOVO");
}

TEST_P(SemDireito, AChangeIsToldAndTheBoxesStay)
{
    ClicaNaLinha(0);
    PoeNaCaixa(1, "NOVO");
    const std::string codigo = Caixa(0);
    ApertaSemDireito(Alterar);
    EsperaRecusa(m_antes, codigo + "|NOVO");
}

TEST_P(SemDireito, ARemovalIsToldAndTheRowStays)
{
    ClicaNaLinha(0);
    const std::string boxes = Caixas(1);
    ApertaSemDireito(Excluir);
    EsperaRecusa(m_antes, boxes);
}

TEST_P(SemDireito, OnceItMayBeWrittenTheSameClickStores)
{
    ClicaNaLinha(0);
    PoeNaCaixa(1, "NOVO");
    ApertaSemDireito(Alterar);
    ASSERT_EQ(Tabela(), m_antes);
    m_caixas = std::make_unique<apoio::Caixas>();
    m_caixas->Responde(GetParam().registro.tela == "Bancos" ? QMessageBox::No : QMessageBox::Ok);
    Aperta(Alterar);
    EXPECT_EQ(Linhas("SELECT Nome FROM " + GetParam().registro.tabela + " WHERE rowid = 1"), "NOVO");
}

INSTANTIATE_TEST_SUITE_P(Faltas, SemDireito,
                         testing::Values(CasoDireito{kBancos, true}, CasoDireito{kBancos, false},
                                         CasoDireito{kCidade, true}, CasoDireito{kCidade, false},
                                         CasoDireito{kFavorec, true}, CasoDireito{kFavorec, false}),
                         [](const auto &caso) {
                             return caso.param.registro.tela.toStdString() +
                                    (caso.param.pasta ? "FolderReadOnly" : "StoreReadOnly");
                         });

} // namespace
