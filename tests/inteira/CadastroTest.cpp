// The registers and the device: what is kept by Yes reaches its memory, and the cheques come out by it.
#include "Mesa.h"

#include "plataforma/tela/Lista.h"

#include <QAction>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace inteira {

namespace {

constexpr Posicoes kOutras = {3, 7, 9, 12, 15, 60, 30, 20, 40, 25, 35, 45, 70};
const Cheque kCheque{"1", "1234,5", "Maria", "Recife", "030524", "7", {}};
const ChequeNoPapel kNoPapel{"1.234,50", "mil duzentos e trinta e quatro reais e cinquenta centavos",
                             "Maria",    "Recife",
                             "03",       "Maio",
                             "2024",     {}};
const Vista kPerguntaDoBanco{"Comando QX70", "Deseja Atualizar na Impressora?"};

class CadastroInteiroTest : public Mesa {
protected:
    /// Opens a register by its menu entry.
    QWidget &AbreCadastro(const QString &entrada, const QString &nome)
    {
        auto *acao = Tela().findChild<QAction *>(entrada);
        auto *tela = acao ? (acao->trigger(), Tela().findChild<QWidget *>(nome)) : nullptr;
        if (!tela)
            throw std::runtime_error("no screen " + nome.toStdString());
        Ativa(*tela);
        return *tela;
    }
    static void Ativa(QWidget &tela)
    {
        tela.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([&tela] { return QApplication::activeWindow() == &tela; }));
    }
    /// Types into one box after the other, from that one on, each left by Enter. What stands in a box is
    /// selected on arrival, so that keys replace it; a click in the box that has the focus would undo that.
    static void Preenche(QWidget &tela, const QString &primeira, const QStringList &textos)
    {
        if (apoio::Foco(tela) != primeira)
            apoio::ClicaEm(tela, primeira);
        for (const QString &texto : textos) {
            apoio::Digita(tela, texto);
            apoio::Tecla(tela, Qt::Key_Return);
        }
    }
    static QStringList Numeros(const Posicoes &posicoes)
    {
        // The boxes have all lines before all columns, as the layout has.
        QStringList numeros;
        for (const int numero : posicoes)
            numeros << QString::number(numero);
        return numeros;
    }
    void Aperta(QWidget &tela, int botao)
    {
        Ativa(tela);
        apoio::ClicaEm(tela, QString("Command3D1(%1)").arg(botao));
    }
    void EscolheLinha(QWidget &tela, int linha)
    {
        Ativa(tela);
        auto *lista = apoio::Controle<plataforma::Lista>(tela, "List1");
        const QModelIndex onde = lista->model()->index(linha, 0);
        QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualRect(onde).center());
    }
    void Fecha(QWidget &tela)
    {
        tela.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Ativa(Tela());
        apoio::ClicaEm(Tela(), "Text1(0)");
    }
    /// A part of the device's memory.
    [[nodiscard]] QJsonObject Memoria(const QString &parte) const
    {
        QFile arquivo(aparelho.PastaDosDocumentos() + "/memoria.json");
        return arquivo.open(QIODevice::ReadOnly)
                   ? QJsonDocument::fromJson(arquivo.readAll()).object().value(parte).toObject()
                   : QJsonObject();
    }
    /// The thirteen numbers that the device has for a bank, "1,5,7"; empty for one it does not have.
    [[nodiscard]] std::string NaMemoria(const QString &banco) const
    {
        QStringList numeros;
        const QString posicoes = Memoria("bancos").value(banco).toObject().value("posicoes").toString();
        for (const QString &numero : posicoes.split(',', Qt::SkipEmptyParts))
            numeros << QString::number(numero.trimmed().toInt());
        return numeros.join(',').toStdString();
    }
    void ImprimeUm()
    {
        Digita(kCheque);
        Imprime();
    }
};

} // namespace

TEST_F(CadastroInteiroTest, ABankInsertedWithYesReachesTheDeviceAndPrints)
{
    Liga();
    Abre();
    QWidget &bancos = AbreCadastro("subChequeNormal", "Bancos");
    Preenche(bancos, "Text1(0)", QStringList{"1", "Primeiro"} + Numeros(kOutras));
    ASSERT_EQ(apoio::Foco(bancos), "Command3D1(0)");
    apoio::Tecla(bancos, Qt::Key_Return);
    ASSERT_EQ(Vistas(), std::vector{kPerguntaDoBanco});
    EXPECT_EQ(NaMemoria("001"), Numeros(kOutras).join(',').toStdString());
    Fecha(bancos);
    ImprimeUm();
    EXPECT_EQ(Vistas(), (std::vector{kPerguntaDoBanco, kInsira}));
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(Folha(1), FolhaEsperada(kOutras, kNoPapel));
    EXPECT_EQ(Log().size(), 1);
}

TEST_F(CadastroInteiroTest, ABankInsertedWithNoIsUnknownToTheDevice)
{
    Liga();
    Abre();
    QWidget &bancos = AbreCadastro("subChequeNormal", "Bancos");
    Preenche(bancos, "Text1(0)", QStringList{"1", "Primeiro"} + Numeros(kOutras));
    caixas.Responde(QMessageBox::No);
    Aperta(bancos, 0);
    EXPECT_EQ(aparelho.Bytes(), QByteArray());
    Fecha(bancos);
    ImprimeUm();
    EXPECT_EQ(Vistas(), (std::vector{kPerguntaDoBanco, kInsira, FalhaNoCheque(22)}));
    EXPECT_EQ(aparelho.Documentos().size(), 0);
}

TEST_F(CadastroInteiroTest, ABankChangedWithYesPrintsInItsNewPlaces)
{
    CadastraBanco("001", "Primeiro", kPosicoesPadrao);
    Liga();
    Abre();
    ImprimeUm();
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(Folha(1), FolhaEsperada(kPosicoesPadrao, kNoPapel));
    QWidget &bancos = AbreCadastro("subChequeNormal", "Bancos");
    EscolheLinha(bancos, 0);
    Preenche(bancos, "Text1(2)", Numeros(kOutras));
    Aperta(bancos, 1);
    EXPECT_EQ(NaMemoria("001"), Numeros(kOutras).join(',').toStdString());
    EXPECT_EQ(escritorio.Chave("Formato", "001"), "03,07,09,12,15,60,30,20,40,25,35,45,70    ; Primeiro");
    Fecha(bancos);
    ImprimeUm();
    ASSERT_EQ(aparelho.Documentos().size(), 2);
    EXPECT_EQ(Folha(2), FolhaEsperada(kOutras, kNoPapel));
}

// Amount two lines down and three columns left, payee one line down, city and date one line down and a column
// right.
TEST_F(CadastroInteiroTest, ABankMovedOnThePicturePrintsInItsNewPlaces)
{
    constexpr Posicoes kMovidas = {3, 5, 7, 11, 14, 89, 17, 9, 11, 51, 30, 39, 64};
    CadastraBanco("001", "Primeiro", kPosicoesPadrao);
    Liga();
    Abre();
    QWidget &bancos = AbreCadastro("subChequeNormal", "Bancos");
    EscolheLinha(bancos, 0);
    apoio::ClicaEm(bancos, "Command3D2");
    auto *ajuste = bancos.findChild<QWidget *>("Ajusta");
    ASSERT_NE(ajuste, nullptr);
    Ativa(*ajuste);
    const std::vector<std::pair<int, QList<Qt::Key>>> passos = {
        {0, {Qt::Key_Down, Qt::Key_Down, Qt::Key_Left, Qt::Key_Left, Qt::Key_Left}},
        {3, {Qt::Key_Down}},
        {4, {Qt::Key_Down, Qt::Key_Right}}};
    for (const auto &[campo, teclas] : passos) {
        apoio::ClicaEm(*ajuste, QString("Text1(%1)").arg(campo));
        for (const Qt::Key tecla : teclas)
            apoio::Tecla(*ajuste, tecla);
    }
    apoio::ClicaEm(*ajuste, "Command3D1(0)");
    ASSERT_FALSE(ajuste->isVisible());
    Aperta(bancos, 1);
    EXPECT_EQ(NaMemoria("001"), Numeros(kMovidas).join(',').toStdString());
    EXPECT_EQ(escritorio.Chave("Formato", "001"), "03,05,07,11,14,89,17,09,11,51,30,39,64    ; Primeiro");
    Fecha(bancos);
    ImprimeUm();
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(Folha(1), FolhaEsperada(kMovidas, kNoPapel));
}

TEST_F(CadastroInteiroTest, ABankChangedWithNoPrintsInItsOldPlaces)
{
    CadastraBanco("001", "Primeiro", kPosicoesPadrao);
    Liga();
    Abre();
    QWidget &bancos = AbreCadastro("subChequeNormal", "Bancos");
    EscolheLinha(bancos, 0);
    Preenche(bancos, "Text1(2)", Numeros(kOutras));
    caixas.Responde(QMessageBox::No);
    Aperta(bancos, 1);
    Fecha(bancos);
    ImprimeUm();
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(Folha(1), FolhaEsperada(kPosicoesPadrao, kNoPapel));
}

TEST_F(CadastroInteiroTest, ARemovedBankStaysInTheDevice)
{
    CadastraBanco("001", "Primeiro", kPosicoesPadrao);
    Liga();
    Abre();
    QWidget &bancos = AbreCadastro("subChequeNormal", "Bancos");
    EscolheLinha(bancos, 0);
    Aperta(bancos, 2);
    EXPECT_EQ(escritorio.Linhas("SELECT * FROM Bancos").size(), 0);
    EXPECT_EQ(aparelho.Bytes(), QByteArray());
    EXPECT_TRUE(Vistas().empty());
    EXPECT_FALSE(escritorio.Chave("Formato", "001").isEmpty());
}

TEST_F(CadastroInteiroTest, ARefusedBankLeavesThePortOpenAndTheNextChequePrints)
{
    CadastraBanco("001", "Primeiro", kPosicoesPadrao);
    Liga();
    Abre();
    QWidget &bancos = AbreCadastro("subChequeNormal", "Bancos");
    EscolheLinha(bancos, 0);
    Preenche(bancos, "Text1(6)", {"18"});
    Aperta(bancos, 1);
    ASSERT_EQ(Vistas().size(), 2U);
    EXPECT_EQ(Vistas()[1].first, "QX70 Printer Error");
    EXPECT_EQ(aparelho.Bytes(), QByteArray());
    Fecha(bancos);
    ImprimeUm();
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(Folha(1), FolhaEsperada(kPosicoesPadrao, kNoPapel));
}

TEST_F(CadastroInteiroTest, ADeviceThatIsOffHoldsNoBankUp)
{
    Abre(); // nothing is at the other end of the line
    QWidget &bancos = AbreCadastro("subChequeNormal", "Bancos");
    Preenche(bancos, "Text1(0)", QStringList{"1", "Primeiro"} + Numeros(kOutras));
    Aperta(bancos, 0);
    EXPECT_EQ(Vistas(), std::vector{kPerguntaDoBanco});
    EXPECT_EQ(escritorio.Linhas("SELECT Codigo FROM Bancos"), QList<QStringList>{{"001"}});
    EXPECT_EQ(escritorio.Chave("Formato", "001"), "03,07,09,12,15,60,30,20,40,25,35,45,70    ; Primeiro");
}

TEST_F(CadastroInteiroTest, ASilentDeviceIsWaitedForAndTheBankIsKept)
{
    PoeEsperas(300, 300);
    Liga();
    aparelho.PoeFalha("silencio");
    Abre();
    QWidget &bancos = AbreCadastro("subChequeNormal", "Bancos");
    Preenche(bancos, "Text1(0)", QStringList{"1", "Primeiro"} + Numeros(kOutras));
    Aperta(bancos, 0);
    EXPECT_EQ(Vistas(), std::vector{kPerguntaDoBanco});
    EXPECT_EQ(escritorio.Linhas("SELECT Codigo FROM Bancos"), QList<QStringList>{{"001"}});
    EXPECT_EQ(NaMemoria("001"), "");
}

// --- payees ---

TEST_F(CadastroInteiroTest, PayeeOneHundredTwentyThreeIsTwentyThreeInTheDevice)
{
    Liga();
    Abre();
    QWidget &favorec = AbreCadastro("Favor", "Favorec");
    Preenche(favorec, "Text1(0)", {"123", "João Conceição & Irmãos"});
    Aperta(favorec, 0);
    EXPECT_EQ(Vistas(), (std::vector<Vista>{{"Comando QX70", "Deseja Incluir na Impressora?"}}));
    EXPECT_EQ(Memoria("favorecidos"), (QJsonObject{{"23", "João Conceição & Irmãos"}}));
    EXPECT_EQ(escritorio.Linhas("SELECT Codigo, Nome FROM Favorecido"),
              (QList<QStringList>{{"00123", "João Conceição & Irmãos"}}));
    EscolheLinha(favorec, 0);
    Aperta(favorec, 2);
    EXPECT_EQ(Vistas().back(), (Vista{"Comando QX70", "Deseja Excluir na Impressora?"}));
    EXPECT_EQ(Memoria("favorecidos"), QJsonObject());
    EXPECT_EQ(escritorio.Linhas("SELECT * FROM Favorecido").size(), 0);
}

TEST_F(CadastroInteiroTest, EveryAccentOfAPayeeReachesTheDevice)
{
    Liga();
    Abre();
    QWidget &favorec = AbreCadastro("Favor", "Favorec");
    const QString nome = "ÀÁÂÃÄÇÈÉÊËÌÍÎÏÑÒÓÔÕÖÙÚÛÜÝàáâãäçèéêëìíîïñòóôõöùúûü";
    Preenche(favorec, "Text1(0)", {"1", nome.left(47)});
    Aperta(favorec, 0);
    EXPECT_EQ(Memoria("favorecidos").value("01").toString().toStdString(), nome.left(47).toStdString());
}

TEST_F(CadastroInteiroTest, APayeeThatTheDeviceDoesNotHaveIsRemovedFromTheStore)
{
    Liga();
    escritorio.Sql("INSERT INTO Favorecido VALUES ('00045', 'Bento')");
    Abre();
    QWidget &favorec = AbreCadastro("Favor", "Favorec");
    EscolheLinha(favorec, 0);
    Aperta(favorec, 2);
    EXPECT_EQ(Vistas(), (std::vector<Vista>{{"Comando QX70", "Deseja Excluir na Impressora?"}}));
    EXPECT_EQ(escritorio.Linhas("SELECT * FROM Favorecido").size(), 0);
}

TEST_F(CadastroInteiroTest, ATwoDigitTwinTakesThePlaceOfTheOther)
{
    Liga();
    Abre();
    QWidget &favorec = AbreCadastro("Favor", "Favorec");
    for (const char *codigo : {"123", "223"}) {
        Preenche(favorec, "Text1(0)", {codigo, "Favorecido " + QString(codigo)});
        Aperta(favorec, 0);
        Ativa(favorec);
    }
    EXPECT_EQ(Memoria("favorecidos"), (QJsonObject{{"23", "Favorecido 223"}}));
    EXPECT_EQ(escritorio.Linhas("SELECT * FROM Favorecido").size(), 2);
}

TEST_F(CadastroInteiroTest, APayeeAndACityFoundByF3ComeOutOnThePaper)
{
    CadastraBanco("001", "Primeiro", kPosicoesPadrao);
    escritorio.Sql(
        "INSERT INTO Favorecido VALUES ('00123', 'José Ação'); INSERT INTO Cidade VALUES ('00001', "
        "'São Luís')");
    Liga();
    Abre();
    Digita({"1", "1234,5", "x", "y", "030524", "7", {}});
    for (const char *campo : {"Text1(2)", "Text1(3)"}) {
        apoio::ClicaEm(Tela(), campo);
        apoio::Tecla(Tela(), Qt::Key_F3);
        auto *pesquisa = Tela().findChild<QWidget *>("Pesquisa");
        ASSERT_NE(pesquisa, nullptr);
        EscolheLinha(*pesquisa, 0);
        Aperta(*pesquisa, 0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Ativa(Tela());
    }
    TabAte("Opcoes(0)");
    Imprime();
    ChequeNoPapel papel = kNoPapel;
    papel.favorecido = "José Ação";
    papel.cidade = "São Luís";
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(Folha(1), FolhaEsperada(kPosicoesPadrao, papel));
}

} // namespace inteira
