// What holds for all three registers: a store that is missing or goes, other programs that write meanwhile,
// and what the registers leave behind.
#include "ComCadastro.h"

#include <QAction>
#include <QFile>

using namespace teste;

namespace {

class Cadastros : public ComCadastro, public testing::WithParamInterface<Registro> {
protected:
    Cadastros() : ComCadastro(GetParam()) {}
    void TiraBanco() { ASSERT_TRUE(QFile::rename(Banco(), m_escritorio.Arquivo("longe.MDB"))); }
    void DevolveBanco() { ASSERT_TRUE(QFile::rename(m_escritorio.Arquivo("longe.MDB"), Banco())); }
    /// Chooses the menu entry; the screen may not come.
    void Escolhe()
    {
        auto *entrada = Tela().findChild<QAction *>(GetParam().entrada);
        ASSERT_NE(entrada, nullptr);
        entrada->trigger();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// The last box tells that there is no store; the device was asked for before, where there is one.
    void EsperaQueFalte()
    {
        EXPECT_EQ(m_caixas->Quantas(), GetParam().tela == "Cidade" ? 1U : 2U) << Vistas();
        EXPECT_EQ(m_caixas->Ultima().texto, "O Banco de dados \"QX70.MDB\" nao foi encontrado!");
        EXPECT_EQ(m_caixas->Ultima().titulo, "Erro");
        EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Warning);
        EXPECT_EQ(m_caixas->Ultima().botoes, QMessageBox::Ok);
    }
    /// Fills every box with what the store does not have.
    void Preenche()
    {
        for (int i = 0; i < 15 && Cadastro().findChild<QLineEdit *>(QString("Text1(%1)").arg(i)); ++i)
            PoeNaCaixa(i, i == 1                        ? QString("NOVO")
                          : GetParam().tela == "Bancos" ? kBancoNovo.at(static_cast<std::size_t>(i))
                                                        : QString("00900"));
    }
    /// Answers No to whatever the device is asked for.
    void ApertaSemAparelho(int botao)
    {
        for (int i = 0; i < 2; ++i)
            m_caixas->Responde(QMessageBox::No);
        Aperta(botao);
        m_caixas = std::make_unique<apoio::Caixas>();
    }
    void MuitasLinhas()
    {
        m_escritorio.Sql("WITH n(i) AS (SELECT 1000 UNION ALL SELECT i + 1 FROM n WHERE i < 4000) "
                         "INSERT INTO " +
                         GetParam().tabela + " (Codigo, Nome) SELECT CAST(i AS TEXT), 'Nome ' || i FROM n");
    }

private:
    [[nodiscard]] QString Banco() const { return m_escritorio.Arquivo("QX70.MDB"); }
};

// --- the store is missing ---

TEST_P(Cadastros, WithoutAStoreItIsToldAndTheScreenGoes)
{
    Abre();
    TiraBanco();
    Escolhe();
    EsperaCaixa("O Banco de dados \"QX70.MDB\" nao foi encontrado!", "Erro", QMessageBox::Warning);
    EXPECT_FALSE(EstaAberto());
    EXPECT_EQ(Dados().FechaTela, 0);
    EXPECT_FALSE(QFile::exists(m_escritorio.Arquivo("QX70.MDB"))) << "none is made";
}

TEST_P(Cadastros, WithoutAStoreMainGoesOnAndTheNextTryFindsIt)
{
    Abre();
    TiraBanco();
    Escolhe();
    Ativa();
    DigitaEm("Text1(2)", "Ana");
    EXPECT_EQ(Texto("Text1(2)"), "Ana");
    DevolveBanco();
    AbreDeNovo();
    EXPECT_EQ(List1()->Quantas(), 3);
    EXPECT_EQ(m_caixas->Quantas(), 1U);
}

TEST_P(Cadastros, WithoutItsTableItIsToldAsAMissingStore)
{
    Abre();
    m_escritorio.Sql("DROP TABLE " + GetParam().tabela);
    Escolhe();
    EsperaCaixa("O Banco de dados \"QX70.MDB\" nao foi encontrado!", "Erro", QMessageBox::Warning);
    EXPECT_FALSE(EstaAberto());
}

TEST_P(Cadastros, AnotherTableMayBeMissing)
{
    m_escritorio.Sql("DROP TABLE Transferencia; DROP TABLE Script");
    AbreCadastro();
    EXPECT_EQ(List1()->Quantas(), 3);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

// --- the store goes while the register is open ---

TEST_P(Cadastros, AStoreThatIsMovedAwayTakesNoWriteAndIsTold)
{
    AbreCadastro();
    Preenche();
    const std::string boxes = Caixas(1);
    TiraBanco();
    m_caixas->Responde(GetParam().tela == "Cidade" ? QMessageBox::Ok : QMessageBox::No);
    Aperta(Incluir);
    EsperaQueFalte();
    EXPECT_EQ(Caixas(1), boxes);
    EXPECT_FALSE(QFile::exists(m_escritorio.Arquivo("QX70.MDB")));
    DevolveBanco();
    EXPECT_EQ(Linhas("SELECT count(*) FROM " + GetParam().tabela), "3");
    EXPECT_FALSE(Ampulheta());
}

TEST_P(Cadastros, ATableThatGoesEmptiesTheSearchInSilenceAndIsToldAtTheNextClick)
{
    AbreCadastro();
    m_escritorio.Sql("DROP TABLE " + GetParam().tabela);
    DigitaNela("Text2", "x");
    EXPECT_EQ(List1()->Quantas(), 0);
    EXPECT_EQ(m_caixas->Quantas(), 0U) << "a box would come at each key";
    Preenche();
    m_caixas->Responde(GetParam().tela == "Cidade" ? QMessageBox::Ok : QMessageBox::No);
    Aperta(Incluir);
    EsperaQueFalte();
    EXPECT_FALSE(Ampulheta());
    TeclaNele(Qt::Key_Escape);
    EXPECT_FALSE(EstaAberto()) << "it can be closed";
}

TEST_P(Cadastros, AStoreHeldByAnotherProgramIsToldAndTheBoxesStay)
{
    AbreCadastro();
    Preenche();
    const std::string boxes = Caixas(1);
    m_caixas->Responde(GetParam().tela == "Cidade" ? QMessageBox::Ok : QMessageBox::No);
    {
        const Trava trava(m_escritorio.Arquivo("QX70.MDB"));
        Aperta(Incluir);
    }
    EXPECT_EQ(m_caixas->Quantas(), GetParam().tela == "Cidade" ? 1U : 2U) << Vistas();
    EXPECT_TRUE(m_caixas->Ultima().texto.startsWith("Ocorreu erro 3050!\n")) << Vistas();
    EXPECT_EQ(m_caixas->Ultima().titulo, "QX70 MIRA - Document Printer");
    EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Warning);
    EXPECT_EQ(Caixas(1), boxes);
    EXPECT_EQ(Linhas("SELECT count(*) FROM " + GetParam().tabela), "3");
    EXPECT_FALSE(Ampulheta());
}

// --- others write meanwhile ---

TEST_P(Cadastros, AnotherProgramCanWriteWhileItIsOpen)
{
    MuitasLinhas();
    AbreCadastro();
    ASSERT_EQ(List1()->Quantas(), 3004);
    EXPECT_TRUE(OutroEscreve()) << "just opened";
    ClicaNaLinha(1);
    EXPECT_TRUE(OutroEscreve()) << "a row chosen";
    ClicaNaLinha(2000);
    EXPECT_TRUE(OutroEscreve()) << "a row far down chosen";
    DigitaNela("Text2", "N");
    ASSERT_EQ(List1()->Quantas(), 3001);
    EXPECT_TRUE(OutroEscreve()) << "searched";
    DigitaNela("Text2", "'");
    EXPECT_TRUE(OutroEscreve()) << "searched for a quote";
}

TEST_P(Cadastros, AnotherProgramCanWriteAfterEachClick)
{
    AbreCadastro();
    Preenche();
    PoeNaCaixa(0, GetParam().tela == "Bancos" ? "001" : GetParam().tela == "Cidade" ? "00003" : "00007");
    ApertaSemAparelho(Incluir);
    EXPECT_TRUE(OutroEscreve()) << "a code refused, its row current";
    Preenche();
    ApertaSemAparelho(Incluir);
    EXPECT_TRUE(OutroEscreve()) << "inserted";
    ClicaNaLinha(3);
    PoeNaCaixa(1, "OUTRO");
    ApertaSemAparelho(Alterar);
    EXPECT_TRUE(OutroEscreve()) << "changed";
    ClicaNaLinha(3);
    ApertaSemAparelho(Excluir);
    EXPECT_TRUE(OutroEscreve()) << "removed";
    EXPECT_EQ(Linhas("SELECT count(*) FROM " + GetParam().tabela), "3");
}

TEST_P(Cadastros, ARowOfAnotherProgramIsSeenAfterTheNextOperation)
{
    AbreCadastro();
    m_escritorio.Sql("INSERT INTO " + GetParam().tabela + " (Codigo, Nome) VALUES ('777', 'DE FORA')");
    EXPECT_EQ(List1()->Quantas(), 3);
    DigitaNela("Text2", "777");
    EXPECT_EQ(Lista(), "777 - DE FORA");
}

// --- the three stand side by side ---

TEST_P(Cadastros, ClosingItLeavesTheOthersTheirTables)
{
    Abre();
    for (const Registro &registro : {kBancos, kCidade, kFavorec})
        AbrePeloMenu(registro.entrada, registro.tela);
    Cadastro().close();
    EXPECT_FALSE(EstaAberto());
    for (const Registro &registro : {kBancos, kCidade, kFavorec}) {
        if (registro.tela == GetParam().tela)
            continue;
        QWidget &outro = Aberta(registro.tela);
        AtivaTela(registro.tela);
        apoio::Controle<QLineEdit>(outro, "Text2")->setText("zzz");
        EXPECT_EQ(apoio::Controle<plataforma::Lista>(outro, "List1")->Quantas(), 0);
        apoio::Controle<QLineEdit>(outro, "Text2")->clear();
        EXPECT_EQ(apoio::Controle<plataforma::Lista>(outro, "List1")->Quantas(), 3);
    }
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_P(Cadastros, WritesOnlyToItsOwnTable)
{
    AbreCadastro();
    const auto outras = [this] {
        std::string todas;
        for (const char *tabela : {"Bancos", "Cidade", "Favorecido", "Transferencia", "Script", "Log"})
            if (tabela != GetParam().tabela)
                todas += Linhas(QString("SELECT * FROM %1 ORDER BY rowid").arg(tabela)) + '\n';
        return todas;
    };
    const std::string antes = outras();
    Preenche();
    ApertaSemAparelho(Incluir);
    ClicaNaLinha(0);
    ApertaSemAparelho(Excluir);
    EXPECT_EQ(outras(), antes);
    EXPECT_EQ(Linhas("SELECT count(*) FROM " + GetParam().tabela), "3");
}

INSTANTIATE_TEST_SUITE_P(Telas, Cadastros, testing::Values(kBancos, kCidade, kFavorec),
                         [](const auto &caso) { return caso.param.tela.toStdString(); });

} // namespace
