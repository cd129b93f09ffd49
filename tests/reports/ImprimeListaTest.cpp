// The report of the list on the system printer, read back from the sheets of a printing system.
#include "apoio/Dialogos.h"
#include "apoio/FilaDeImpressao.h"
#include "ComRelato.h"

#include <QGuiApplication>
#include <QPrintDialog>

using namespace teste;

namespace {

const char *const kCompacto = "OpCmd01(1)";
const char *const kImpressora = "OpCmd02(0)";

class NaImpressoraTest : public ComRelato {
protected:
    void Imprime(QDialogButtonBox::StandardButton resposta)
    {
        apoio::Dialogos<QPrintDialog> dialogo(
            [resposta](QPrintDialog &aberto) { apoio::AperteNoDialogo(aberto, resposta); });
        Aperta("SSCommand1");
        EXPECT_EQ(dialogo.Vistos(), 1);
    }
    void EsperaOs4Motivos()
    {
        EsperaCaixa("Ocorreu erro 482! Possiveis Causas:\n- A impressora não foi encontrada!\n"
                    "- A impressora está desligada!\n- Fim de papel ou papel enroscado!",
                    QString::fromStdString(kTitulo), QMessageBox::Warning);
        EXPECT_EQ(Chamadas(), "");
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        ClicaNaLinha(1);
        EXPECT_EQ(Rotulo(2), "José Luís") << "the screen goes on";
    }
    apoio::FilaDeImpressao m_fila;
};

// What the sheets must show, told by its columns.

QString Totais(const QString &margem, const QStringList &titulos, const QStringList &totais)
{
    QStringList linhas;
    for (int i = 0; i < 3; ++i)
        linhas << margem + titulos[i] + totais[i].rightJustified(17);
    return linhas.join('\n');
}
/// Head, rows and rule of a sheet, then its totals; blanks at the ends of lines are not to be seen on paper.
std::string Folha(const QString &margem, int traco, const QString &titulo, const QString &pagina,
                  const QString &colunas, const QStringList &linhas, const QString &totais)
{
    const QString rule = margem + QString(traco, '-');
    QStringList folha = {
        rule, margem + "01/02/03" + titulo + "Relatorio de Cheques Impressos", pagina, rule, margem + colunas,
        rule};
    for (const QString &linha : linhas)
        folha << linha;
    folha << rule;
    if (!totais.isEmpty())
        folha << totais.split('\n');
    for (QString &linha : folha)
        while (linha.endsWith(' '))
            linha.chop(1);
    return folha.join('\n').toStdString();
}
std::string Junta(const QStringList &folha)
{
    QStringList linhas = folha;
    for (QString &linha : linhas)
        while (linha.endsWith(' '))
            linha.chop(1);
    return linhas.join('\n').toStdString();
}

TEST_F(NaImpressoraTest, EveryLineOfTheNormalFormStandsOnItsSheet)
{
    m_fila.Liga();
    AbreRelato();
    Dados().NumChkPgRel = 3;
    Marca("Relato", kImpressora);
    Imprime(QDialogButtonBox::Ok);
    EXPECT_EQ(m_caixas->Quantas(), 0U) << Vistas();
    EXPECT_EQ(Chamadas(), "");
    const QList<QStringList> folhas = apoio::FolhasDoPdf(m_fila.Documento(1));
    ASSERT_EQ(folhas.size(), 2);
    const QString margem(2, ' ');
    const QString titulo(26, ' ');
    const QString colunas = "  N. Cheque    | Bco | Valor            | Data     | Favorecido";
    EXPECT_EQ(Junta(folhas[0]),
              Folha(margem, 100, titulo, titulo + "Pag:01/02", colunas,
                    {"   |      000123 | 001 |         1.234,50 | 01/02/03 | Ana Lima",
                     "   |             | 237 |         1.000,00 | 15/02/03 | José Luís",
                     "  C|      000125 | 001 |            50,25 | 20/02/03 | Ana Lima"},
                    Totais(margem,
                           {"Total da página             :", "Total acumulado             :",
                            "Total cancelados acumulados :"},
                           {"2.234,50", "2.234,50", "50,25"})));
    // On purpose: the titles of the last page's totals are a blank shorter.
    EXPECT_EQ(Junta(folhas[1]), Folha(margem, 100, titulo, titulo + "Pag:02/02", colunas,
                                      {"   |      000126 | 341 |             0,75 | 01/03/03 | Bento & Cia"},
                                      Totais(margem,
                                             {"Total da página            :", "Total acumulado            :",
                                              "Total cancelados acumulados:"},
                                             {"0,75", "2.235,25", "50,25"})));
}

TEST_F(NaImpressoraTest, EveryLineOfTheCompactFormStandsOnItsSheet)
{
    Grava({"0000000005", "001", "3,", "Ana", "", "01/02/03", "999999999999", " "});
    m_fila.Liga();
    AbreRelato();
    Dados().NumChkPgRel = 1; // two cheques side by side
    Marca("Relato", kCompacto);
    Marca("Relato", kImpressora);
    Imprime(QDialogButtonBox::Ok);
    EXPECT_EQ(m_caixas->Quantas(), 0U) << Vistas();
    const QList<QStringList> folhas = apoio::FolhasDoPdf(m_fila.Documento(1));
    ASSERT_EQ(folhas.size(), 3);
    const QString margem(14, ' ');
    const QString titulo(13, ' ');
    const QString pagina = QString(12, ' ') + "Pag:0%1/03";
    const QString colunas = " |N. Cheque  |Bco| Valor           | |N. Cheque  |Bco| Valor           |";
    // On purpose: "acumalados", and the eleven characters that leave out the last digit of the number.
    const QStringList cheia = {
        "Total da página            :", "Total acumulado            :", "Total cancelados acumalados:"};
    EXPECT_EQ(Junta(folhas[0]),
              Folha(margem, 72, titulo, pagina.arg(1), colunas,
                    {margem + " |      00012|001|         1.234,50| |           |237|         1.000,00|"},
                    Totais(margem, cheia, {"2.234,50", "2.234,50", "0,00"})));
    EXPECT_EQ(Junta(folhas[1]),
              Folha(margem, 72, titulo, pagina.arg(2), colunas,
                    {margem + "C|      00012|001|            50,25| |      00012|341|             0,75|"},
                    Totais(margem, cheia, {"0,75", "2.235,25", "50,25"})));
    EXPECT_EQ(Junta(folhas[2]), Folha(margem, 72, titulo, pagina.arg(3), colunas,
                                      {margem + " |99999999999|001|             3,00|"},
                                      Totais(margem,
                                             {"Total da página            :", "Total acumulado            :",
                                              "Total cancelados acumulados:"},
                                             {"3,00", "2.238,25", "50,25"})));
}

TEST_F(NaImpressoraTest, AFullLastSheetIsFollowedByOneWithoutCheques)
{
    m_fila.Liga();
    GravaIguais(4);
    AbreRelato();
    Dados().NumChkPgRel = 2;
    Marca("Relato", kImpressora);
    Imprime(QDialogButtonBox::Ok);
    const QList<QStringList> folhas = apoio::FolhasDoPdf(m_fila.Documento(1));
    ASSERT_EQ(folhas.size(), 3);
    EXPECT_EQ(Junta(folhas[2]),
              Folha("  ", 100, QString(26, ' '), QString(26, ' ') + "Pag:03/02",
                    "  N. Cheque    | Bco | Valor            | Data     | Favorecido", {}, {}));
}

TEST_F(NaImpressoraTest, ACancelledDialogueSaysNothing)
{
    m_fila.Liga();
    AbreRelato();
    Marca("Relato", kImpressora);
    Imprime(QDialogButtonBox::Cancel);
    EXPECT_EQ(m_caixas->Quantas(), 0U) << Vistas();
    EXPECT_EQ(m_fila.Documentos(), 0);
}

class PaginaSemCheques : public NaImpressoraTest, public testing::WithParamInterface<int> {};
TEST_P(PaginaSemCheques, IsADivisionByZero)
{
    m_fila.Liga();
    AbreRelato();
    Dados().NumChkPgRel = static_cast<std::int16_t>(GetParam());
    Marca("Relato", kImpressora);
    Imprime(QDialogButtonBox::Ok);
    EsperaCaixa("Ocorreu erro 11!", QString::fromStdString(kTitulo), QMessageBox::Warning);
    EXPECT_EQ(m_fila.Documentos(), 0);
}
INSTANTIATE_TEST_SUITE_P(Tamanhos, PaginaSemCheques, testing::Values(0, -1, -32768), [](const auto &caso) {
    return caso.param == 0 ? "Zero" : "Minus" + std::to_string(-caso.param);
});

TEST_F(NaImpressoraTest, WithoutAPrintingSystemTheFourCausesAreTold)
{
    AbreRelato(); // it is off
    Marca("Relato", kImpressora);
    Aperta("SSCommand1");
    EsperaOs4Motivos();
}

struct CasoFila {
    std::string nome;
    apoio::Fila fila;
};
void PrintTo(const CasoFila &c, std::ostream *os)
{
    *os << c.nome;
}
class FilaQueNaoImprime : public NaImpressoraTest, public testing::WithParamInterface<CasoFila> {};
TEST_P(FilaQueNaoImprime, HasTheFourCausesTold)
{
    apoio::FilaDeImpressao fila({GetParam().fila});
    fila.Liga();
    AbreRelato();
    Marca("Relato", kImpressora);
    Imprime(QDialogButtonBox::Ok);
    EsperaOs4Motivos();
    EXPECT_EQ(fila.Documentos(), 0);
}
INSTANTIATE_TEST_SUITE_P(Filas, FilaQueNaoImprime,
                         testing::Values(CasoFila{"Disabled", {"Papel", true, true}},
                                         CasoFila{"RefusesDocuments", {"Papel", true, false, true}}),
                         kNomeDoCaso);

} // namespace
