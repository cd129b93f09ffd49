// The screen that asks where a listing goes, as the registers open it.
#include "ComCadastro.h"
#include "Ordem.h"

#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

using namespace teste;

namespace {

struct CasoSaida {
    Registro registro;
    QString nomeDaListagem;
    QString tres, um; ///< the caption line over three rows, and over one
};
void PrintTo(const CasoSaida &c, std::ostream *os)
{
    *os << c.registro.tela.toStdString();
}
class SaidaDaLista : public ComCadastro, public testing::WithParamInterface<CasoSaida> {
protected:
    SaidaDaLista() : ComCadastro(GetParam().registro) {}
    void Imprime(const std::function<void(QWidget &)> &nela)
    {
        NaTelaModal(
            "Saida", [this] { Aperta(GetParam().registro.impressao); }, nela);
    }
    [[nodiscard]] static QRadioButton *OpcaoDe(QWidget &saida, const QString &texto)
    {
        for (auto *opcao : saida.findChildren<QRadioButton *>())
            if (opcao->text() == texto)
                return opcao;
        throw std::runtime_error("no option " + texto.toStdString());
    }
};

TEST_P(SaidaDaLista, TellsHowManyThereAre)
{
    AbreCadastro();
    QString legenda;
    Imprime([&](QWidget &saida) { legenda = apoio::Controle<QLabel>(saida, "Label1")->text(); });
    EXPECT_EQ(legenda, GetParam().tres);
    EXPECT_EQ(Dados().NomeListagem, GetParam().nomeDaListagem);
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

TEST_P(SaidaDaLista, CountsTheTableAndNotTheSearch)
{
    AbreCadastro();
    DigitaNela("Text2", "zzz");
    ASSERT_EQ(List1()->Quantas(), 0);
    QString legenda;
    Imprime([&](QWidget &saida) { legenda = apoio::Controle<QLabel>(saida, "Label1")->text(); });
    EXPECT_EQ(legenda, GetParam().tres);
}

TEST_P(SaidaDaLista, CountsWhatIsInTheStoreByThen)
{
    AbreCadastro();
    m_escritorio.Sql("DELETE FROM " + GetParam().registro.tabela + " WHERE rowid > 1");
    QString legenda;
    Imprime([&](QWidget &saida) { legenda = apoio::Controle<QLabel>(saida, "Label1")->text(); });
    EXPECT_EQ(legenda, GetParam().um);
}

TEST_P(SaidaDaLista, IsModalAndSairClosesIt)
{
    AbreCadastro();
    bool modal = false;
    bool aberta = true;
    Imprime([&](QWidget &saida) {
        modal = saida.isModal();
        apoio::ClicaEm(saida, "Command2");
        aberta = saida.isVisible();
    });
    EXPECT_TRUE(modal);
    EXPECT_FALSE(aberta);
    EXPECT_TRUE(EstaAberto()) << "the register stands behind it";
}

TEST_P(SaidaDaLista, EscClosesIt)
{
    AbreCadastro();
    bool aberta = true;
    Imprime([&](QWidget &saida) {
        QTest::keyClick(saida.focusWidget() ? saida.focusWidget() : &saida, Qt::Key_Escape);
        aberta = saida.isVisible();
    });
    EXPECT_FALSE(aberta);
}

TEST_P(SaidaDaLista, HasItsFramesOptionsAndButtons)
{
    AbreCadastro();
    Imprime([&](QWidget &saida) {
        EXPECT_EQ(saida.objectName(), "Saida");
        QStringList molduras;
        for (const auto *moldura : saida.findChildren<QGroupBox *>())
            molduras << moldura->title();
        molduras.sort();
        EXPECT_EQ(molduras.join('|').toStdString(), "Ordem|Quantidade|Saída");
        EXPECT_EQ(apoio::Controle<QRadioButton>(saida, "Option1(0)")->text(), "Nome");
        EXPECT_EQ(apoio::Controle<QRadioButton>(saida, "Option1(1)")->text(), "Código");
        EXPECT_TRUE(OpcaoDe(saida, "QX70")->isEnabled());
        EXPECT_TRUE(OpcaoDe(saida, "Impressora Win")->isEnabled());
        EXPECT_EQ(saida.findChildren<QRadioButton *>().size(), 4);
        EXPECT_EQ(apoio::Controle<QPushButton>(saida, "Command1")->text(), "Imprimir");
        EXPECT_EQ(apoio::Controle<QPushButton>(saida, "Command2")->text(), "Sair");
        EXPECT_TRUE(apoio::Controle<QPushButton>(saida, "Command1")->isEnabled());
    });
}

TEST_P(SaidaDaLista, OrderAndOutputAreChosenApart)
{
    AbreCadastro();
    Imprime([&](QWidget &saida) {
        const auto escolhe = [](QRadioButton *opcao) {
            QTest::mouseClick(opcao, Qt::LeftButton, {}, QPoint(8, opcao->height() / 2));
        };
        auto *nome = apoio::Controle<QRadioButton>(saida, "Option1(0)");
        auto *codigo = apoio::Controle<QRadioButton>(saida, "Option1(1)");
        for (auto *ordem : {nome, codigo}) {
            for (const char *texto : {"QX70", "Impressora Win"}) {
                auto *destino = OpcaoDe(saida, texto);
                escolhe(ordem);
                escolhe(destino);
                EXPECT_TRUE(ordem->isChecked() && destino->isChecked()) << texto;
                EXPECT_NE(nome->isChecked(), codigo->isChecked());
            }
        }
    });
}

TEST_P(SaidaDaLista, TabWalksInReadingOrder)
{
    AbreCadastro();
    Imprime([&](QWidget &saida) {
        ASSERT_NE(saida.focusWidget(), nullptr);
        const QString primeiro = saida.focusWidget()->objectName();
        const QStringList volta = VoltaDoTab(saida);
        QStringList lida = APartirDe(OrdemDeLeitura(saida), primeiro);
        // A group of options is one stop: the one that is on, or the first.
        for (const auto *opcao : saida.findChildren<QRadioButton *>())
            if (!volta.contains(opcao->objectName()))
                lida.removeAll(opcao->objectName());
        EXPECT_EQ(volta.join(' '), lida.join(' '));
        EXPECT_TRUE(volta.contains("Command2"));
        EXPECT_GE(volta.size(), 3);
    });
}

TEST_P(SaidaDaLista, WithoutRowsThereIsNothingToPrint)
{
    m_escritorio.Sql("DELETE FROM " + GetParam().registro.tabela);
    AbreCadastro();
    Aperta(GetParam().registro.impressao);
    EsperaCaixa("Não Existe Lançamentos a Serem Impressos", "Erro", QMessageBox::Warning);
    QCoreApplication::processEvents();
    EXPECT_TRUE(Abertas("Saida").isEmpty());
    EXPECT_EQ(Dados().NomeListagem, GetParam().nomeDaListagem);
    EXPECT_TRUE(EstaAberto());
}

TEST_P(SaidaDaLista, TheRegisterWorksOnBehindIt)
{
    AbreCadastro();
    DigitaNela("Text2", "0");
    Imprime([](QWidget &) {});
    EXPECT_TRUE(Dados().armazem.Aberto(GetParam().registro.seletor));
    DigitaNela("Text2", "");
    ASSERT_EQ(List1()->Quantas(), 3);
    ClicaNaLinha(1);
    EXPECT_EQ(Estado(), kSelecionado);
    EXPECT_FALSE(Caixa(1).empty());
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    EXPECT_TRUE(OutroEscreve());
}

TEST_P(SaidaDaLista, KeepsBoxesButtonsAndRow)
{
    AbreCadastro();
    ClicaNaLinha(1);
    PoeNaCaixa(1, "digitado");
    const std::string linha = LinhaCorrente();
    Imprime([](QWidget &) {});
    EXPECT_EQ(Caixa(1), "digitado");
    EXPECT_EQ(Estado(), kSelecionado);
    EXPECT_EQ(LinhaCorrente(), linha);
}

// The row that was found for the boxes must not be another one when the count was taken in between.
TEST_P(SaidaDaLista, AChangeBehindItGoesToTheChosenRow)
{
    AbreCadastro();
    ClicaNaLinha(1);
    Imprime([](QWidget &) {});
    PoeNaCaixa(1, "NOVO NOME");
    m_caixas->Responde(QMessageBox::No);
    Aperta(Alterar);
    EXPECT_EQ(Linhas("SELECT rowid FROM " + GetParam().registro.tabela + " WHERE Nome = 'NOVO NOME'"), "2");
}

TEST_P(SaidaDaLista, WithoutAStoreItIsToldAndNoScreenComes)
{
    AbreCadastro();
    ASSERT_TRUE(QFile::rename(m_escritorio.Arquivo("QX70.MDB"), m_escritorio.Arquivo("longe.MDB")));
    Aperta(GetParam().registro.impressao);
    EsperaCaixa("O Banco de dados \"QX70.MDB\" nao foi encontrado!", "Erro", QMessageBox::Warning);
    QCoreApplication::processEvents();
    EXPECT_TRUE(Abertas("Saida").isEmpty());
    EXPECT_TRUE(EstaAberto());
}

INSTANTIATE_TEST_SUITE_P(Cadastros, SaidaDaLista,
                         testing::Values(CasoSaida{kBancos, "Bancos", "Total = 3 Bancos Cadastrados",
                                                   "Total = 1 Bancos Cadastrados"},
                                         CasoSaida{kCidade, "Cidade", "Total = 3 Cidades Cadastradas",
                                                   "Total = 1 Cidades Cadastradas"},
                                         CasoSaida{kFavorec, "Favorecido", "Total = 3 Favorecidos ",
                                                   "Total = 1 Favorecidos "}),
                         [](const auto &caso) { return caso.param.registro.tela.toStdString(); });

} // namespace
