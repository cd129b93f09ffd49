// The controls of the entry as they are found by name, read aloud and walked: names, captions, menu, Tab.
#include "ComEntrada.h"
#include "Ordem.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QRadioButton>

using namespace teste;

namespace {

class Controles : public ComEntrada {
protected:
    void SetUp() override { Abre(); }
    [[nodiscard]] std::string Rotulo(const QString &nome)
    {
        return apoio::Controle<QLabel>(Tela(), nome)->text().toStdString();
    }
    [[nodiscard]] bool TemRotulo(const QString &texto)
    {
        const QList<QLabel *> rotulos = Tela().findChildren<QLabel *>();
        return std::any_of(rotulos.begin(), rotulos.end(),
                           [&](const QLabel *rotulo) { return rotulo->text() == texto; });
    }
};

TEST_F(Controles, WindowHasItsNameAndCaption)
{
    EXPECT_EQ(Tela().objectName(), "Main");
    EXPECT_EQ(Tela().windowTitle(), "QX70 - Mira Document Printer");
}

TEST_F(Controles, ArraysHaveTheirIndicesAndNoOther)
{
    const std::vector<std::pair<QString, QList<int>>> arranjos = {{"Text1", {0, 1, 2, 3, 4, 6}},
                                                                  {"TxtCpo", {0, 1, 2}},
                                                                  {"Text2", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
                                                                  {"Opcoes", {0, 1, 2, 3, 4, 5, 6, 7}}};
    for (const auto &[nome, indices] : arranjos) {
        for (int i = 0; i < 20; ++i) {
            EXPECT_EQ(Tela().findChildren<QWidget *>(QString("%1(%2)").arg(nome).arg(i)).size(),
                      indices.contains(i) ? 1 : 0)
                << nome.toStdString() << i;
        }
    }
}

TEST_F(Controles, FunctionsHaveTheirCaptions)
{
    const std::array<const char *, 8> textos = {"Imprime C&heque", "Imprime &Verso",      "&Relatório",
                                                "Limpa Cheq&ue",   "Limpa Ver&so",        "Cheque a Pra&zo",
                                                "Imprime Có&pia",  "Cheque Transferência"};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(apoio::Controle<QPushButton>(Tela(), QString("Opcoes(%1)").arg(i))->text(),
                  textos[static_cast<size_t>(i)]);
}

TEST_F(Controles, LinesHaveTheirLabels)
{
    const std::array<const char *, 10> textos = {
        "Cmd1:", "Cmd2:", "Cmd3:", "Vrs4:", "Vrs5:", "Vrs6:", "Vrs7:", "Vrs8:", "Vrs9:", "Vrs10:"};
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(Rotulo(QString("Label1(%1)").arg(i + 7)), textos[static_cast<size_t>(i)]);
}

TEST_F(Controles, LabelsAreShown)
{
    for (const char *texto : {"Banco:", "Valor:", "Cidade:", "Data:", "Nº Cheque:"})
        EXPECT_TRUE(TemRotulo(texto)) << texto;
}

TEST_F(Controles, HeadingsAreShown)
{
    for (const char *texto : {"Nome do Banco", "Funções"}) {
        const QList<QGroupBox *> grupos = Tela().findChildren<QGroupBox *>();
        const bool grupo = std::any_of(grupos.begin(), grupos.end(),
                                       [&](const QGroupBox *caixa) { return caixa->title() == texto; });
        EXPECT_TRUE(grupo || TemRotulo(texto)) << texto;
    }
    EXPECT_EQ(apoio::Controle<QGroupBox>(Tela(), "Frame1")->title(), "Formato de Data");
}

TEST_F(Controles, OptionsHaveTheirCaptions)
{
    EXPECT_EQ(apoio::Controle<QRadioButton>(Tela(), "Option1")->text(), "1 Digito 199_");
    EXPECT_EQ(apoio::Controle<QRadioButton>(Tela(), "Option2")->text(), "2 Digitos 20__");
    EXPECT_EQ(apoio::Controle<QRadioButton>(Tela(), "Option3")->text(), "4 Digitos ____");
    EXPECT_EQ(apoio::Controle<QCheckBox>(Tela(), "CheckBox")->text(), "Incluir no relatório");
}

TEST_F(Controles, FieldsAreReadAloudByTheirLabels)
{
    const std::vector<std::pair<QString, QString>> nomes = {{"Text1(0)", "Banco:"},
                                                            {"Text1(1)", "Valor:"},
                                                            {"Text1(3)", "Cidade:"},
                                                            {"Text1(4)", "Data:"},
                                                            {"Text1(6)", "Nº Cheque:"}};
    for (const auto &[controle, nome] : nomes)
        EXPECT_EQ(apoio::Controle<QWidget>(Tela(), controle)->accessibleName(), nome)
            << controle.toStdString();
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(
            apoio::Controle<QWidget>(Tela(), QString("Text2(%1)").arg(i))->accessibleName().toStdString(),
            Rotulo(QString("Label1(%1)").arg(i + 7)));
    }
}

TEST_F(Controles, EveryTextBoxHasANameOfItsOwn)
{
    QStringList nomes;
    for (const auto *campo : Tela().findChildren<QLineEdit *>()) {
        EXPECT_FALSE(campo->accessibleName().isEmpty()) << campo->objectName().toStdString();
        EXPECT_FALSE(nomes.contains(campo->accessibleName())) << campo->accessibleName().toStdString();
        nomes << campo->accessibleName();
    }
    EXPECT_EQ(nomes.size(), 19);
}

TEST_F(Controles, FunctionsOfScreensThatAreNotThereAreDisabled)
{
    const QList<int> ligadas = {0, 1, 2, 3, 4};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(apoio::Controle<QPushButton>(Tela(), QString("Opcoes(%1)").arg(i))->isEnabled(),
                  ligadas.contains(i))
            << "Opcoes(" << i << ")";
}

struct CasoMenu {
    QString nome;
    QString texto;
    bool ligada;
};
void PrintTo(const CasoMenu &c, std::ostream *os)
{
    *os << c.nome.toStdString();
}
class Menu : public ComEntradaDe<CasoMenu> {};
TEST_P(Menu, EntryHasItsCaptionAndIsOnWhenItsScreenIsThere)
{
    Abre();
    const auto *entrada = Tela().findChild<QAction *>(GetParam().nome);
    ASSERT_NE(entrada, nullptr);
    EXPECT_EQ(entrada->text(), GetParam().texto);
    EXPECT_EQ(entrada->isEnabled(), GetParam().ligada);
}
INSTANTIATE_TEST_SUITE_P(
    Entradas, Menu,
    testing::Values(CasoMenu{"Conf_Qx70", "C&onfigurações", true},
                    CasoMenu{"MOpSoft", "Opções do Sof&tware", true}, CasoMenu{"Sair", "&Sair", true},
                    CasoMenu{"subChequeNormal", "Para Impressão de Cheque &Normal", true},
                    CasoMenu{"subChequeTransferencia", "Para Impressão de Cheque &Transferência", false},
                    CasoMenu{"Favor", "&Favorecidos", true}, CasoMenu{"Cidad", "&Cidades", true},
                    CasoMenu{"CpoX", "Campo &Extra", true}, CasoMenu{"Layout", "&Layout de Cópia", false},
                    CasoMenu{"Imp_Cheque", "&Cheque", true},
                    CasoMenu{"Imp_ChequeTransf", "Cheque &Transferência", false},
                    CasoMenu{"ch_pr", "Cheques a &Prazo", false},
                    CasoMenu{"CopiaCheque", "Cópia do C&heque", false},
                    CasoMenu{"Verso", "&Verso do Cheque", true}, CasoMenu{"Relat", "&Relatório", true},
                    CasoMenu{"Can_Rel", "Cance&la Relatório", true},
                    CasoMenu{"Topicos", "Aj&uda do Sofware QX-70 Mira", true},
                    CasoMenu{"Sobre_T", "&Sobre o Software QX-70 Mira", true}),
    [](const auto &caso) { return caso.param.nome.toStdString(); });

TEST_F(Controles, EveryMnemonicIsItsOwn)
{
    QStringList textos;
    for (const auto *botao : Tela().findChildren<QAbstractButton *>())
        textos << botao->text();
    for (const auto *menu : apoio::Controle<QMenuBar>(Tela(), {})->actions())
        textos << menu->text();
    QStringList teclas;
    for (const QString &texto : textos) {
        const QString tecla = QKeySequence::mnemonic(texto).toString();
        EXPECT_TRUE(tecla.isEmpty() || !teclas.contains(tecla))
            << texto.toStdString() << " has " << tecla.toStdString();
        teclas << tecla;
    }
    EXPECT_TRUE(teclas.contains("Alt+H") && teclas.contains("Alt+V") && teclas.contains("Alt+U") &&
                teclas.contains("Alt+S"));
}

TEST_F(Controles, TabWalksInReadingOrder)
{
    PreencheCheque();
    VaiPara("Text1(0)");
    const QStringList volta = VoltaDoTab(Tela());
    EXPECT_EQ(volta, APartirDe(OrdemDeLeitura(Tela()), "Text1(0)"))
        << "Tab: " << volta.join(' ').toStdString()
        << "\nread: " << OrdemDeLeitura(Tela()).join(' ').toStdString();
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

// The three forms of the date are one stop; the arrows walk among them.
TEST_F(Controles, TabReachesEveryControl)
{
    PreencheCheque();
    VaiPara("Text1(0)");
    const QStringList volta = VoltaDoTab(Tela());
    QStringList esperados = {"CheckBox",  "Opcoes(0)", "Opcoes(1)", "Opcoes(2)",
                             "Opcoes(3)", "Opcoes(4)", "Option1"};
    for (const auto *campo : Tela().findChildren<QLineEdit *>())
        esperados << campo->objectName();
    EXPECT_EQ(QSet<QString>(volta.begin(), volta.end()), QSet<QString>(esperados.begin(), esperados.end()))
        << volta.join(' ').toStdString();
}

} // namespace
