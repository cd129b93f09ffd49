// The click on the buttons of the bank register: the question, the device, the new entry, closing and the
// checks, in their order.
#include "ComCadastro.h"

#include <QFile>

using namespace teste;

namespace {

using BancosCliqueTest = ComBancos;

// --- 1: the question and the device ---

TEST_F(BancosCliqueTest, TheQuestionHasItsTextTitleAndButtons)
{
    AbreCadastro();
    Preenche(kBancoNovo);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    const apoio::Caixa caixa = m_caixas->Ultima();
    EXPECT_EQ(caixa.texto, "Deseja Atualizar na Impressora?");
    EXPECT_EQ(caixa.titulo, "Comando QX70");
    EXPECT_EQ(caixa.icone, QMessageBox::NoIcon);
    EXPECT_EQ(caixa.botoes, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(caixa.padrao, QMessageBox::Yes);
}

TEST_F(BancosCliqueTest, NothingIsStoredOrSentWhileTheQuestionStands)
{
    AbreCadastro();
    Preenche(kBancoNovo);
    const std::string antes = Tabela();
    std::string durante;
    m_caixas->AoAbrir([&](QMessageBox &) { durante = Tabela() + ' ' + Chamadas(); });
    Aperta(Incluir);
    EXPECT_EQ(durante, antes + ' ');
}

TEST_F(BancosCliqueTest, YesSendsNumberAndThirteenPositions)
{
    AbreCadastro();
    Preenche(kBancoNovo);
    Responde(QMessageBox::Yes);
    Aperta(Incluir);
    EXPECT_EQ(Chamadas(), EnvioDoBanco(kBancoNovo));
    EXPECT_EQ(Vistas(), m_pergunta);
}

TEST_F(BancosCliqueTest, NoSendsNothing)
{
    AbreCadastro();
    Preenche(kBancoNovo);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_EQ(Chamadas(), "");
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '104'"), NaTabela(kBancoNovo));
}

TEST_F(BancosCliqueTest, EscAnswersNo)
{
    AbreCadastro();
    Preenche(kBancoNovo);
    m_caixas->AoAbrir([](QMessageBox &caixa) { QTest::keyClick(&caixa, Qt::Key_Escape); });
    Aperta(Incluir);
    EXPECT_EQ(Chamadas(), "");
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '104'"), NaTabela(kBancoNovo));
}

class UmaCaixaVazia : public ComBancosDe<int> {};
TEST_P(UmaCaixaVazia, IsToldWithoutTheQuestionAndTakesTheFocus)
{
    AbreCadastro();
    Preenche(kBancoNovo);
    PoeNaCaixa(GetParam(), "");
    Aperta(Incluir);
    EsperaCaixa("Campo Inválido...", "Erro", QMessageBox::Warning);
    EXPECT_EQ(FocoDele(), "Text1(" + std::to_string(GetParam()) + ')');
    EXPECT_EQ(Chamadas(), "");
    EXPECT_EQ(Linhas("SELECT Codigo FROM Bancos ORDER BY rowid"), "237|001|341");
    EXPECT_EQ(Formato("104"), QString());
    EXPECT_EQ(Estado(), kPronto);
    LinhaDoBanco como = kBancoNovo;
    como.at(static_cast<std::size_t>(GetParam())).clear();
    EXPECT_EQ(Caixas(), NasCaixas(como)) << "the others stay";
}
INSTANTIATE_TEST_SUITE_P(Caixas, UmaCaixaVazia, testing::Range(0, 15),
                         [](const auto &caso) { return "Text1_" + std::to_string(caso.param); });

TEST_F(BancosCliqueTest, TheFirstEmptyBoxIsTheOneTold)
{
    AbreCadastro();
    Preenche(kBancoNovo);
    for (const int i : {13, 4, 9})
        PoeNaCaixa(i, "");
    Aperta(Incluir);
    EXPECT_EQ(Vistas(), "[Erro] Campo Inválido...");
    EXPECT_EQ(FocoDele(), "Text1(4)");
}

TEST_F(BancosCliqueTest, OneBlankIsNotEmpty)
{
    AbreCadastro();
    Preenche(kBancoNovo);
    PoeNaCaixa(1, " ");
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_EQ(Vistas(), m_pergunta);
    EXPECT_EQ(Linhas("SELECT Nome FROM Bancos WHERE Codigo = '104'"), " ");
}

// The device may receive a bank that the store then refuses.
TEST_F(BancosCliqueTest, TheDeviceComesBeforeTheChecksOfTheStore)
{
    AbreCadastro();
    LinhaDoBanco repetido = kBancoNovo;
    repetido[0] = "237";
    Preenche(repetido);
    Responde(QMessageBox::Yes);
    Aperta(Incluir);
    EXPECT_EQ(Vistas(), m_pergunta + "|[Erro] Codigo ja cadastrado...");
    EXPECT_EQ(Chamadas(), EnvioDoBanco(repetido));
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '237'"), NaTabela(kBancoDois));
    EXPECT_EQ(Formato("237"), QString());
}

struct CasoRecusa {
    std::string nome;
    int caixa;
    QString texto;
};
void PrintTo(const CasoRecusa &c, std::ostream *os)
{
    *os << c.caixa << '=' << c.texto.toStdString();
}
class PosicaoRecusada : public ComBancosDe<CasoRecusa> {};
TEST_P(PosicaoRecusada, IsToldOnceAndStopsTheInsertion)
{
    AbreCadastro();
    LinhaDoBanco banco = kBancoNovo;
    banco.at(static_cast<std::size_t>(GetParam().caixa)) = GetParam().texto;
    Preenche(banco);
    Responde(QMessageBox::Yes);
    Aperta(Incluir);
    ASSERT_EQ(m_caixas->Quantas(), 2U);
    const apoio::Caixa caixa = m_caixas->Ultima();
    EXPECT_EQ(caixa.texto.toStdString(), "Algum erro relacionado a posição dos campos foi detectado.\n"
                                         "Verifique se os mesmos estão corretos.");
    EXPECT_EQ(caixa.titulo, "QX70 Printer Error");
    EXPECT_EQ(caixa.icone, QMessageBox::NoIcon);
    EXPECT_EQ(caixa.botoes, QMessageBox::Ok);
    EXPECT_EQ(Chamadas(), "IniciaPorta(\"COM2\")") << "on purpose: the port stays open";
    EXPECT_EQ(Linhas("SELECT Codigo FROM Bancos ORDER BY rowid"), "237|001|341");
    EXPECT_EQ(Formato("104"), QString());
    EXPECT_EQ(Caixas(), NasCaixas(banco));
    EXPECT_EQ(Estado(), kPronto);
}
TEST_P(PosicaoRecusada, IsKeptByTheStoreWhenTheDeviceIsNotAsked)
{
    AbreCadastro();
    LinhaDoBanco banco = kBancoNovo;
    banco.at(static_cast<std::size_t>(GetParam().caixa)) = GetParam().texto;
    Preenche(banco);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_EQ(Vistas(), m_pergunta);
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '104'"), NaTabela(banco));
}
INSTANTIATE_TEST_SUITE_P(
    Caixas, PosicaoRecusada,
    testing::Values(CasoRecusa{"LinesInNoOrder", 2, "008"}, CasoRecusa{"LastLineTooLow", 6, "018"},
                    CasoRecusa{"FirstLineZero", 2, "000"}, CasoRecusa{"ColumnOffTheForm", 7, "119"},
                    CasoRecusa{"DayBehindTheMonth", 12, "043"}, CasoRecusa{"YearOffTheForm", 14, "071"}),
    kNomeDoCaso);

TEST_F(BancosCliqueTest, TheNextOperationFindsThePortOpen)
{
    AbreCadastro();
    Preenche(kBancoNovo);
    PoeNaCaixa(6, "018");
    Aperta(Incluir);
    PoeNaCaixa(6, "016");
    Aperta(Incluir);
    EXPECT_EQ(Chamadas(), "IniciaPorta(\"COM2\") " + EnvioDoBanco(kBancoNovo));
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '104'"), NaTabela(kBancoNovo));
}

struct CasoIsento {
    std::string nome;
    QString codigo;
    bool passa;
};
void PrintTo(const CasoIsento &c, std::ostream *os)
{
    *os << c.codigo.toStdString();
}
class BancoIsento : public ComBancosDe<CasoIsento> {};
TEST_P(BancoIsento, From995OnAnyPositionsReachTheDevice)
{
    AbreCadastro();
    LinhaDoBanco banco;
    banco.fill("999");
    banco[0] = GetParam().codigo;
    Preenche(banco);
    Responde(QMessageBox::Yes);
    Aperta(Incluir);
    EXPECT_EQ(Chamadas(), GetParam().passa ? EnvioDoBanco(banco) : "IniciaPorta(\"COM2\")");
    EXPECT_EQ(m_caixas->Quantas(), GetParam().passa ? 1U : 2U);
    EXPECT_EQ(Linhas("SELECT Codigo FROM Bancos WHERE Codigo = '" + GetParam().codigo + '\''),
              GetParam().passa ? GetParam().codigo.toStdString() : "");
}
INSTANTIATE_TEST_SUITE_P(Codigos, BancoIsento,
                         testing::Values(CasoIsento{"Last", "994", false}, CasoIsento{"First", "995", true},
                                         CasoIsento{"Highest", "999", true}),
                         kNomeDoCaso);

struct CasoAparelho {
    std::string nome;
    QByteArray roteiro;
};
void PrintTo(const CasoAparelho &c, std::ostream *os)
{
    *os << c.nome;
}
class AparelhoQueFalha : public ComBancosDe<CasoAparelho> {};
TEST_P(AparelhoQueFalha, IsNotAskedAndTheBankIsKept)
{
    AbreCadastro();
    m_gravadora.Roteiro(GetParam().roteiro);
    Preenche(kBancoNovo);
    Responde(QMessageBox::Yes);
    Aperta(Incluir);
    EXPECT_EQ(Chamadas(), EnvioDoBanco(kBancoNovo)) << "every step is taken";
    EXPECT_EQ(Vistas(), m_pergunta);
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '104'"), NaTabela(kBancoNovo));
    EXPECT_FALSE(Formato("104").isEmpty());
    EXPECT_EQ(Caixas(), m_vazias);
}
INSTANTIATE_TEST_SUITE_P(Passos, AparelhoQueFalha,
                         testing::Values(CasoAparelho{"PortDoesNotOpen", "resultado IniciaPorta 0\n"},
                                         CasoAparelho{"BankIsRefused", "resultado IncluiBanco 10\n"},
                                         CasoAparelho{"NegativeAnswer", "resultado IncluiBanco -1\n"},
                                         CasoAparelho{"PortDoesNotClose", "resultado FechaPorta 0\n"}),
                         kNomeDoCaso);

TEST_F(BancosCliqueTest, WithoutALibraryTheBankIsKeptAllTheSame)
{
    AbreCadastro();
    ASSERT_TRUE(QFile::remove(m_escritorio.Arquivo("libqx7032.so")));
    Preenche(kBancoNovo);
    Responde(QMessageBox::Yes);
    Aperta(Incluir);
    EXPECT_EQ(Linhas("SELECT * FROM Bancos WHERE Codigo = '104'"), NaTabela(kBancoNovo));
    ASSERT_EQ(m_caixas->Quantas(), 2U) << "the question, and that there is no library";
    EXPECT_EQ(m_caixas->Vistas().front().titulo, "Comando QX70");
}

TEST_F(BancosCliqueTest, TheNameOfThePortThatTheLibraryLeavesIsKept)
{
    AbreCadastro();
    m_gravadora.Roteiro("reescreve IniciaPorta COM4\n");
    Preenche(kBancoNovo);
    Aperta(Incluir);
    EXPECT_EQ(Dados().PortaSerial, "COM4");
}

// --- 2: a new entry ---

TEST_F(BancosCliqueTest, IncluirWithABankChosenAsksAndThenOnlyClears)
{
    AbreCadastro();
    ClicaNaLinha(1);
    const std::string antes = Tabela();
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_EQ(Vistas(), m_pergunta);
    EXPECT_EQ(Caixas(), m_vazias);
    EXPECT_EQ(Estado(), kPronto);
    EXPECT_EQ(FocoDele(), "Text1(0)");
    EXPECT_EQ(Tabela(), antes);
    EXPECT_EQ(Chamadas(), "");
    EXPECT_EQ(Formato("001"), QString());
}

TEST_F(BancosCliqueTest, IncluirWithABankChosenAndYesSendsItToTheDevice)
{
    AbreCadastro();
    ClicaNaLinha(1);
    Responde(QMessageBox::Yes);
    Aperta(Incluir);
    EXPECT_EQ(Chamadas(), EnvioDoBanco(kBancoUm));
    EXPECT_EQ(Caixas(), m_vazias);
}

TEST_F(BancosCliqueTest, IncluirWithABankChosenThatIsRefusedStopsBeforeClearing)
{
    AbreCadastro();
    ClicaNaLinha(1);
    PoeNaCaixa(6, "018");
    Responde(QMessageBox::Yes);
    Aperta(Incluir);
    EXPECT_EQ(m_caixas->Ultima().titulo, "QX70 Printer Error");
    EXPECT_EQ(Caixa(0), "001");
    EXPECT_EQ(Estado(), kSelecionado);
}

TEST_F(BancosCliqueTest, IncluirWithABankChosenAndAnEmptyBoxClearsWithoutAWord)
{
    AbreCadastro();
    ClicaNaLinha(1);
    PoeNaCaixa(5, "");
    Aperta(Incluir);
    EXPECT_EQ(Vistas(), "");
    EXPECT_EQ(Caixas(), m_vazias);
    EXPECT_EQ(Estado(), kPronto);
    EXPECT_EQ(FocoDele(), "Text1(0)");
}

TEST_F(BancosCliqueTest, ANewEntryKeepsTheRowOfTheList)
{
    AbreCadastro();
    ClicaNaLinha(1);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_EQ(LinhaCorrente(), "001 - BANCO UM");
}

TEST_F(BancosCliqueTest, ANewEntryWithASearchListsAllAndKeepsNoRow)
{
    AbreCadastro();
    DigitaNela("Text2", "BANCO");
    ClicaNaLinha(1);
    Responde(QMessageBox::No);
    Aperta(Incluir);
    EXPECT_EQ(Caixa("Text2"), "");
    EXPECT_EQ(Lista(), m_lista);
    EXPECT_EQ(LinhaCorrente(), "");
}

// --- 3: closing ---

TEST_F(BancosCliqueTest, FecharAsksNothingWithABankChosen)
{
    AbreCadastro();
    ClicaNaLinha(1);
    Aperta(Fechar);
    EXPECT_FALSE(EstaAberto());
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_EQ(Chamadas(), "");
}

// --- 4: the checks ---

struct CasoCodigo {
    std::string nome;
    int botao;
    std::string texto;
    bool pergunta;
};
void PrintTo(const CasoCodigo &c, std::ostream *os)
{
    *os << c.nome;
}
class CodigoRecusado : public ComBancosDe<CasoCodigo> {};
TEST_P(CodigoRecusado, EndsTheClickAndLeavesAll)
{
    AbreCadastro();
    LinhaDoBanco banco = kBancoUm;
    if (GetParam().botao == Incluir) {
        banco[1] = "OUTRO NOME";
        Preenche(banco);
    } else {
        ClicaNaLinha(1);
        m_escritorio.Sql("DELETE FROM Bancos WHERE Codigo = '001'");
    }
    const std::string antes = Tabela();
    const std::string estado = Estado();
    if (GetParam().pergunta)
        Responde(QMessageBox::No);
    Aperta(GetParam().botao);
    EXPECT_EQ(Vistas(), (GetParam().pergunta ? m_pergunta + '|' : "") + "[Erro] " + GetParam().texto);
    EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Warning);
    EXPECT_EQ(m_caixas->Ultima().botoes, QMessageBox::Ok);
    EXPECT_EQ(Tabela(), antes);
    EXPECT_EQ(Caixas(), NasCaixas(banco));
    EXPECT_EQ(Estado(), estado);
    EXPECT_EQ(Formato("001"), QString());
    EXPECT_FALSE(Ampulheta());
}
INSTANTIATE_TEST_SUITE_P(
    Botoes, CodigoRecusado,
    testing::Values(CasoCodigo{"InsertedTwice", Incluir, "Codigo ja cadastrado...", true},
                    CasoCodigo{"ChangedButGone", Alterar, "Codigo nao encontrado...", true},
                    CasoCodigo{"RemovedButGone", Excluir, "Codigo nao encontrado...", false}),
    kNomeDoCaso);

class CaixaVaziaAoMudar : public ComBancosDe<int> {};
TEST_P(CaixaVaziaAoMudar, IsToldByChangeAndRemovalToo)
{
    for (const int botao : {Alterar, Excluir}) {
        AbreCadastro();
        ClicaNaLinha(1);
        PoeNaCaixa(GetParam(), "");
        const std::string antes = Tabela();
        Aperta(botao);
        EsperaCaixa("Campo Inválido...", "Erro", QMessageBox::Warning);
        EXPECT_EQ(FocoDele(), "Text1(" + std::to_string(GetParam()) + ')');
        EXPECT_EQ(Tabela(), antes);
        EXPECT_EQ(Estado(), kSelecionado);
        EXPECT_EQ(Chamadas(), "");
    }
}
INSTANTIATE_TEST_SUITE_P(Caixas, CaixaVaziaAoMudar, testing::Values(1, 2, 8, 14),
                         [](const auto &caso) { return "Text1_" + std::to_string(caso.param); });

} // namespace
