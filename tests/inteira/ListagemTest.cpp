// The listing of a register on the device: a document a page, as long as the operator puts one in.
#include "Mesa.h"

#include <QAction>

namespace inteira {

namespace {

const Vista kPergunta{QStringLiteral("Impressão de Relatório"), QStringLiteral("Insira o Documento.")};

class ListagemInteiraTest : public Mesa {
protected:
    /// Forty payees are three pages of the device: sixteen, sixteen and eight.
    ListagemInteiraTest()
    {
        QStringList linhas;
        for (int i = 1; i <= 40; ++i)
            linhas << QString("('%1', '%2')").arg(Codigo(i), Nome(i));
        escritorio.Sql("DELETE FROM Favorecido; INSERT INTO Favorecido VALUES " + linhas.join(','));
    }
    static QString Codigo(int i) { return QString("%1").arg(i, 5, 10, QChar('0')); }
    static QString Nome(int i) { return QString("Conceição Irmãos & Cia %1 Ltda.").arg(i); }

    /// Saida, opened from the register of payees.
    QWidget &AbreSaida()
    {
        Abre();
        Tela().findChild<QAction *>("Favor")->trigger();
        QWidget &favorec = NaFrente("Favorec");
        apoio::ClicaEm(favorec, "Imprimirfav");
        return NaFrente("Saida");
    }
    QWidget &NaFrente(const QString &nome)
    {
        for (QWidget *tela : QApplication::topLevelWidgets())
            if (tela->objectName() == nome && tela->isVisible()) {
                tela->activateWindow();
                EXPECT_TRUE(QTest::qWaitFor([tela] { return QApplication::activeWindow() == tela; }));
                return *tela;
            }
        throw std::runtime_error("no screen " + nome.toStdString());
    }
    static void Imprime(QWidget &saida)
    {
        auto *codigo = apoio::Controle<QWidget>(saida, "Option1(1)");
        QTest::mouseClick(codigo, Qt::LeftButton, {}, QPoint(8, codigo->height() / 2));
        apoio::ClicaEm(saida, "Command1");
    }
    /// The page holds its head and just these payees, one a line.
    void EsperaPagina(int n, int primeiro, int ultimo)
    {
        const QStringList folha = Folha(n);
        ASSERT_EQ(folha.size(), 5 + ultimo - primeiro + 1) << folha.join('\n').toStdString();
        EXPECT_EQ(folha[0], QString(12, ' ') + QString(107, '-'));
        EXPECT_EQ(folha[1], QString(12, ' ') + "17/05/24" + QString(15, ' ') + "Relatório de Favorecidos");
        EXPECT_EQ(folha[2], QString(36, ' ') + QString("Pag:0%1/03").arg(n));
        for (int i = primeiro; i <= ultimo; ++i) {
            const QString linha = folha[5 + i - primeiro];
            EXPECT_TRUE(linha.trimmed().startsWith(Codigo(i))) << linha.toStdString();
            EXPECT_TRUE(linha.trimmed().endsWith('|' + Nome(i))) << linha.toStdString();
        }
    }
};

TEST_F(ListagemInteiraTest, ThreePagesComeOutOnThreeDocuments)
{
    Liga();
    QWidget &saida = AbreSaida();
    Imprime(saida);
    EXPECT_EQ(Vistas(), std::vector<Vista>(3, kPergunta));
    ASSERT_EQ(aparelho.Documentos().size(), 3);
    EsperaPagina(1, 1, 16);
    EsperaPagina(2, 17, 32);
    EsperaPagina(3, 33, 40);
    EXPECT_TRUE(saida.isVisible());
}

TEST_F(ListagemInteiraTest, CancellingBetweenPagesEndsIt)
{
    Liga();
    for (const auto resposta : {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Cancel})
        caixas.Responde(resposta);
    QWidget &saida = AbreSaida();
    Imprime(saida);
    EXPECT_EQ(Vistas(), std::vector<Vista>(3, kPergunta));
    ASSERT_EQ(aparelho.Documentos().size(), 2);
    EsperaPagina(2, 17, 32);
    EXPECT_TRUE(saida.isVisible());
}

TEST_F(ListagemInteiraTest, AnotherListingCanFollow)
{
    Liga();
    caixas.Responde(QMessageBox::Ok);
    caixas.Responde(QMessageBox::Cancel);
    QWidget &saida = AbreSaida();
    Imprime(saida);
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    saida.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&saida] { return QApplication::activeWindow() == &saida; }));
    Imprime(saida);
    EXPECT_EQ(aparelho.Documentos().size(), 4);
}

} // namespace

} // namespace inteira
