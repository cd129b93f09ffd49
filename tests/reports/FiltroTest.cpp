// The screen that narrows the list: its fields, the queries it makes, and what happens to a refused one.
#include "ComRelato.h"
#include "Ordem.h"

#include <QAction>
#include <QFile>

using namespace teste;

namespace {

class FiltroTest : public ComRelato {
protected:
    void AbreFiltro()
    {
        AbreRelato();
        Reabre();
    }
    void Reabre()
    {
        Aperta("SSCommand6");
        AtivaTela("Filtro");
    }
    [[nodiscard]] QWidget &Filtro() { return Aberta("Filtro"); }
    [[nodiscard]] static QString Nome(int campo) { return QString("Text1(%1)").arg(campo); }
    [[nodiscard]] std::string Campo(int campo) { return apoio::Texto(Filtro(), Nome(campo)).toStdString(); }
    [[nodiscard]] std::string FocoDele() { return apoio::Foco(Filtro()).toStdString(); }
    [[nodiscard]] std::string NomeDoBancoNele()
    {
        return apoio::Controle<QLabel>(Filtro(), "Label2")->text().toStdString();
    }
    void VaiAoCampo(int campo) { apoio::ClicaEm(Filtro(), Nome(campo)); }
    void DigitaNo(int campo, const QString &texto)
    {
        VaiAoCampo(campo);
        ASSERT_EQ(FocoDele(), Nome(campo).toStdString());
        apoio::Digita(Filtro(), texto);
    }
    /// Sets the fields by keys, "" for one that is passed over, and accepts.
    void Filtra(const QStringList &textos)
    {
        for (int i = 0; i < textos.size(); ++i)
            if (!textos[i].isEmpty())
                DigitaNo(i, textos[i]);
        apoio::ClicaEm(Filtro(), "Command3D1(0)");
    }
    void EsperaErro(const char *texto, const char *titulo = "Erro")
    {
        EsperaCaixa(texto, titulo, QMessageBox::Warning);
    }
};

TEST_F(FiltroTest, HasItsCaptions)
{
    AbreFiltro();
    EXPECT_EQ(Filtro().windowTitle(), "Filtro");
    EXPECT_FALSE(Filtro().isModal());
    const char *const rotulos[] = {
        "Banco:", "Data..:", "Até..:", "Valor.:", "Até..:", "Favorecido:", "Cidade:", "Comentário:"};
    QStringList vistos;
    for (const auto *rotulo : Filtro().findChildren<QLabel *>())
        vistos << rotulo->text();
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(apoio::Controle<QLineEdit>(Filtro(), Nome(i))->accessibleName(), rotulos[i]);
        EXPECT_TRUE(vistos.contains(rotulos[i])) << rotulos[i];
    }
    EXPECT_EQ(apoio::Controle<QPushButton>(Filtro(), "Command3D1(0)")->text(), "C&onfirmar");
    EXPECT_EQ(apoio::Controle<QPushButton>(Filtro(), "Command3D1(1)")->text(), "&Cancelar");
    EXPECT_EQ(Filtro().findChildren<QPushButton *>().size(), 2);
    EXPECT_EQ(Filtro().findChildren<QLineEdit *>().size(), 8);
}

TEST_F(FiltroTest, OpensEmptyAtTheBank)
{
    AbreFiltro();
    EXPECT_EQ(FocoDele(), "Text1(0)");
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(Campo(i), "");
    EXPECT_EQ(NomeDoBancoNele(), "");
}

// --- fields ---

TEST_F(FiltroTest, EnteringAFieldEmptiesIt)
{
    AbreFiltro();
    DigitaNo(5, "Ana");
    VaiAoCampo(6);
    EXPECT_EQ(Campo(5), "Ana");
    VaiAoCampo(5);
    EXPECT_EQ(Campo(5), "");
}

TEST_F(FiltroTest, EnterGoesToTheNextField)
{
    AbreFiltro();
    std::string caminho;
    for (int i = 0; i < 6; ++i) {
        apoio::Tecla(Filtro(), Qt::Key_Return);
        caminho += FocoDele() + ' ';
    }
    EXPECT_EQ(caminho, "Text1(1) Text1(2) Text1(3) Text1(4) Text1(5) Text1(6) ");
}

TEST_F(FiltroTest, EnterInTheCityAccepts)
{
    AbreFiltro();
    DigitaNo(6, "Recife");
    apoio::Tecla(Filtro(), Qt::Key_Return);
    EXPECT_FALSE(EstaAberta("Filtro"));
    EXPECT_EQ(Listados(), "1");
}

TEST_F(FiltroTest, EnterInTheCommentLooksForAFieldThatDoesNotExistOnPurpose)
{
    AbreFiltro();
    DigitaNo(7, "nota");
    apoio::Tecla(Filtro(), Qt::Key_Return);
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    EXPECT_TRUE(m_caixas->Ultima().texto.startsWith("Ocorreu erro 9!"));
    EXPECT_TRUE(EstaAberta("Filtro"));
    EXPECT_EQ(FocoDele(), "Text1(7)");
    EXPECT_EQ(Campo(7), "nota");
    EXPECT_EQ(Listados(), "1 2 3 4");
}

struct CasoLimite {
    std::string nome;
    int campo;
    QString digitado;
    std::string fica;
    std::size_t caixas;
};
void PrintTo(const CasoLimite &c, std::ostream *os)
{
    *os << c.nome;
}
class LimiteDoFiltro : public FiltroTest, public testing::WithParamInterface<CasoLimite> {};
TEST_P(LimiteDoFiltro, CutsWhatIsTooLong)
{
    AbreFiltro();
    DigitaNo(GetParam().campo, GetParam().digitado);
    EXPECT_EQ(Campo(GetParam().campo), GetParam().fica);
    ASSERT_EQ(m_caixas->Quantas(), GetParam().caixas);
    if (GetParam().caixas > 0)
        EsperaErro("Tamanho Máximo deste campo...");
    EXPECT_EQ(FocoDele(), Nome(GetParam().campo).toStdString());
}
INSTANTIATE_TEST_SUITE_P(
    Campos, LimiteDoFiltro,
    testing::Values(CasoLimite{"BankOfThree", 0, "237", "237", 0},
                    CasoLimite{"BankOfFour", 0, "2371", "237", 1},
                    CasoLimite{"DateOfEight", 1, "01020304", "01020304", 0},
                    CasoLimite{"DateOfNine", 1, "010203045", "01020304", 1},
                    CasoLimite{"LastDateOfNine", 2, "010203045", "01020304", 1},
                    CasoLimite{"ValueHasNone", 3, "12345678901234567890", "12345678901234567890", 0},
                    CasoLimite{"PayeeHasNone", 5, QString(100, 'a'), std::string(100, 'a'), 0},
                    CasoLimite{"CityHasNone", 6, QString(100, 'a'), std::string(100, 'a'), 0},
                    CasoLimite{"CommentHasNone", 7, QString(100, 'a'), std::string(100, 'a'), 0}),
    kNomeDoCaso);

TEST_F(FiltroTest, ABankIsLookedUpWhenItIsLeft)
{
    AbreFiltro();
    DigitaNo(0, "1");
    apoio::Tecla(Filtro(), Qt::Key_Tab);
    EXPECT_EQ(Campo(0), "001");
    EXPECT_EQ(NomeDoBancoNele(), "BANCO UM");
    EXPECT_EQ(FocoDele(), "Text1(1)");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
    VaiAoCampo(0);
    VaiAoCampo(5);
    EXPECT_EQ(NomeDoBancoNele(), "") << "no bank, no name";
}

TEST_F(FiltroTest, ABankThatIsNotRegisteredKeepsTheFocus)
{
    AbreFiltro();
    DigitaNo(0, "9");
    apoio::Tecla(Filtro(), Qt::Key_Return);
    EsperaErro("Banco Inválido...");
    EXPECT_EQ(FocoDele(), "Text1(0)");
    EXPECT_EQ(Campo(0), "009");
}

TEST_F(FiltroTest, LettersAreNoBankToLookUp)
{
    AbreFiltro();
    DigitaNo(0, "abc");
    apoio::Tecla(Filtro(), Qt::Key_Tab);
    EXPECT_EQ(FocoDele(), "Text1(1)");
    EXPECT_EQ(Campo(0), "abc");
    EXPECT_EQ(m_caixas->Quantas(), 0U);
}

struct CasoCampo {
    std::string nome;
    int campo;
    QString digitado;
    std::string fica;
    const char *aviso; ///< none: the focus moves on
    const char *titulo;
};
void PrintTo(const CasoCampo &c, std::ostream *os)
{
    *os << c.nome;
}
class CampoDeixado : public FiltroTest, public testing::WithParamInterface<CasoCampo> {};
TEST_P(CampoDeixado, IsShownInItsPatternOrRefused)
{
    AbreFiltro();
    DigitaNo(GetParam().campo, GetParam().digitado);
    apoio::Tecla(Filtro(), Qt::Key_Return);
    EXPECT_EQ(Campo(GetParam().campo), GetParam().fica);
    const int espera = GetParam().campo + (GetParam().aviso ? 0 : 1);
    EXPECT_EQ(FocoDele(), Nome(espera).toStdString());
    if (GetParam().aviso)
        EsperaErro(GetParam().aviso, GetParam().titulo);
    else
        EXPECT_EQ(m_caixas->Quantas(), 0U);
}
constexpr const char *kIncompleta = "Voce deve entrar com (ddmmaa) diamesano...";
constexpr const char *kInvalida = "Data Inválida...";
constexpr const char *kSemValor = "O valor especificado não é um valor válido!";
INSTANTIATE_TEST_SUITE_P(
    Campos, CampoDeixado,
    testing::Values(CasoCampo{"EmptyDate", 1, "", "", nullptr, nullptr},
                    CasoCampo{"WholeDate", 1, "150203", "15/02/03", nullptr, nullptr},
                    CasoCampo{"DayOfThisMonth", 1, "7", "07/02/03", nullptr, nullptr},
                    CasoCampo{"TwoDigitsOfThisMonth", 2, "28", "28/02/03", nullptr, nullptr},
                    CasoCampo{"DayThatThisMonthHasNot", 2, "31", "31", kInvalida, kTitulo.c_str()},
                    CasoCampo{"TooShort", 1, "0102", "0102", kIncompleta, "Erro"},
                    CasoCampo{"WithBars", 1, "01/02/03", "01/02/03", kIncompleta, "Erro"},
                    CasoCampo{"NoDayOfTheCalendar", 1, "300203", "300203", kInvalida, kTitulo.c_str()},
                    CasoCampo{"EmptyValue", 3, "", "", nullptr, nullptr},
                    CasoCampo{"Value", 3, "1234,5", "1.234,50", nullptr, nullptr},
                    CasoCampo{"LastValue", 4, "100", "100,00", nullptr, nullptr},
                    CasoCampo{"NoValue", 3, "abc", "abc", kSemValor, "Erro"},
                    CasoCampo{"NoLastValue", 4, "1,2,3", "1,2,3", kSemValor, "Erro"}),
    kNomeDoCaso);

// --- what it finds ---

struct CasoFiltro {
    std::string nome;
    QStringList textos; ///< by field
    std::string listados;
    std::string total;
};
void PrintTo(const CasoFiltro &c, std::ostream *os)
{
    *os << c.textos.join('|').toStdString();
}
class ListaFiltrada : public FiltroTest, public testing::WithParamInterface<CasoFiltro> {};
TEST_P(ListaFiltrada, ShowsWhatWasAskedFor)
{
    AbreFiltro();
    Filtra(GetParam().textos);
    EXPECT_FALSE(EstaAberta("Filtro"));
    EXPECT_EQ(Listados(), GetParam().listados);
    EXPECT_EQ(Total(), GetParam().total);
    EXPECT_EQ(m_caixas->Quantas(), 0U) << Vistas();
}
INSTANTIATE_TEST_SUITE_P(
    Campos, ListaFiltrada,
    testing::Values(CasoFiltro{"Nothing", {}, "1 2 3 4", "2.235,25"},
                    CasoFiltro{"Bank", {"1"}, "1 3", "1.234,50"},
                    CasoFiltro{"BankAndPayee", {"1", "", "", "", "", "Ana Lima"}, "1 3", "1.234,50"},
                    CasoFiltro{"Payee", {"", "", "", "", "", "José Luís"}, "2", "1.000,00"},
                    CasoFiltro{"PayeeInSmallLetters", {"", "", "", "", "", "josé luís"}, "2", "1.000,00"},
                    CasoFiltro{"City", {"", "", "", "", "", "", "Açu"}, "4", "0,75"},
                    CasoFiltro{"OneDay", {"", "150203"}, "2", "1.000,00"},
                    CasoFiltro{"Days", {"", "150203", "010303"}, "2 3 4", "1.000,75"},
                    // On purpose: without the first of a pair the last one is not looked at.
                    CasoFiltro{"LastDateAlone", {"", "", "150203"}, "1 2 3 4", "2.235,25"},
                    CasoFiltro{"LastValueAlone", {"", "", "", "", "100"}, "1 2 3 4", "2.235,25"},
                    CasoFiltro{"BankAndLastDate", {"1", "", "150203"}, "1 3", "1.234,50"},
                    CasoFiltro{"OneValue", {"", "", "", "1234,50"}, "1", "1.234,50"},
                    CasoFiltro{"SmallValues", {"", "", "", "0,75", "999,99"}, "3 4", "0,75"},
                    CasoFiltro{"BankAndDays", {"1", "010203", "280203"}, "1 3", "1.234,50"},
                    CasoFiltro{"Comment", {"", "", "", "", "", "", "", "nota"}, "1", "1.234,50"},
                    CasoFiltro{"ThirdComment", {"", "", "", "", "", "", "", "c"}, "2", "1.000,00"},
                    // On purpose: the other comments count whatever the bank is.
                    CasoFiltro{"CommentOfAnotherBank", {"1", "", "", "", "", "", "", "b"}, "2", "1.000,00"}),
    kNomeDoCaso);

TEST_F(FiltroTest, ThatFindsNothingEmptiesTheListAndKeepsTheTotal)
{
    AbreFiltro();
    Filtra({"", "", "", "", "", "Ninguém"});
    EXPECT_EQ(List1()->Quantas(), 0);
    EXPECT_EQ(Total(), "2.235,25");
    EXPECT_EQ(Dados().TotalCheques, 0);
    EXPECT_FALSE(EstaAberta("Filtro"));
}

struct CasoRecusado {
    std::string nome;
    QStringList textos;
};
void PrintTo(const CasoRecusado &c, std::ostream *os)
{
    *os << c.nome;
}
class FiltroRecusado : public FiltroTest, public testing::WithParamInterface<CasoRecusado> {};
TEST_P(FiltroRecusado, IsToldAndEverythingStays)
{
    AbreRelato();
    Reabre();
    Filtra({"1"});
    ASSERT_EQ(Listados(), "1 3");
    Descarta();
    Reabre();
    Filtra(GetParam().textos);
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    EXPECT_TRUE(m_caixas->Ultima().texto.startsWith("Ocorreu erro 3075!")) << Vistas();
    EXPECT_EQ(m_caixas->Ultima().icone, QMessageBox::Warning);
    ASSERT_TRUE(EstaAberta("Filtro"));
    for (int i = 5; i < GetParam().textos.size(); ++i)
        EXPECT_EQ(Campo(i), GetParam().textos[i].toStdString()) << "as typed";
    EXPECT_EQ(Listados(), "1 3");
    EXPECT_EQ(Total(), "1.234,50");
    ClicaNaLinha(1);
    EXPECT_EQ(Rotulo(6), "000125");
    Aperta("Elimina");
    EXPECT_EQ(Status(), "1: 2: 4:") << "the set is that of the list";
}
INSTANTIATE_TEST_SUITE_P(
    Consultas, FiltroRecusado,
    testing::Values(CasoRecusado{"PayeeAndCity", {"", "", "", "", "", "Ana Lima", "Recife"}},
                    CasoRecusado{"DateAndComment", {"", "150203", "", "", "", "", "", "a"}},
                    CasoRecusado{"Apostrophe", {"", "", "", "", "", "D'Avila"}}),
    kNomeDoCaso);

TEST_F(FiltroTest, WhatIsTypedChangesNoData)
{
    AbreFiltro();
    Filtra({"", "", "", "", "", "x'); DELETE FROM Log; --"});
    EXPECT_EQ(Status(), "1: 2: 3:C 4:");
}

TEST_F(FiltroTest, TheListStaysFilteredUntilTheWholeIsAskedFor)
{
    AbreFiltro();
    Filtra({"237"});
    Descarta();
    ClicaNaLinha(0);
    EXPECT_EQ(Rotulo(2), "José Luís");
    EXPECT_EQ(Listados(), "2");
    Aperta("SSCommand5");
    EXPECT_EQ(Listados(), "1 2 3 4");
}

TEST_F(FiltroTest, WithoutAStoreItIsToldAndStaysOpen)
{
    AbreFiltro();
    ASSERT_TRUE(QFile::rename(m_escritorio.Arquivo("QX70.MDB"), m_escritorio.Arquivo("longe.MDB")));
    Filtra({"1"});
    EXPECT_EQ(Vistas(), '[' + kTitulo + "] O Banco de dados \"QX70.MDB\" nao foi encontrado!");
    EXPECT_TRUE(EstaAberta("Filtro"));
    EXPECT_EQ(Lista(), kLinhas);
}

// --- closing, keyboard ---

struct CasoSai {
    std::string nome;
    bool esc;
};
void PrintTo(const CasoSai &c, std::ostream *os)
{
    *os << c.nome;
}
class FiltroFechado : public FiltroTest, public testing::WithParamInterface<CasoSai> {};
TEST_P(FiltroFechado, LeavesTheListAsItIs)
{
    AbreFiltro();
    DigitaNo(5, "Ana Lima");
    if (GetParam().esc)
        apoio::Tecla(Filtro(), Qt::Key_Escape);
    else
        apoio::ClicaEm(Filtro(), "Command3D1(1)");
    EXPECT_FALSE(EstaAberta("Filtro"));
    EXPECT_EQ(Listados(), "1 2 3 4");
}
INSTANTIATE_TEST_SUITE_P(Modos, FiltroFechado,
                         testing::Values(CasoSai{"ByItsButton", false}, CasoSai{"ByEsc", true}), kNomeDoCaso);

struct CasoErrado {
    std::string nome;
    int campo;
    QString digitado;
};
void PrintTo(const CasoErrado &c, std::ostream *os)
{
    *os << c.nome;
}
class CampoErrado : public FiltroTest, public testing::WithParamInterface<CasoErrado> {
protected:
    void AbreComErro()
    {
        AbreFiltro();
        DigitaNo(GetParam().campo, GetParam().digitado);
    }
    void EsperaFechadoEmSilencio()
    {
        EXPECT_FALSE(EstaAberta("Filtro"));
        EXPECT_EQ(m_caixas->Quantas(), 0U) << Vistas();
        EXPECT_EQ(Listados(), "1 2 3 4");
    }
};
TEST_P(CampoErrado, IsGivenUpByTheMnemonicOfCancelar)
{
    AbreComErro();
    QTest::keyClick(Filtro().focusWidget(), Qt::Key_C, Qt::AltModifier);
    EsperaFechadoEmSilencio();
}
TEST_P(CampoErrado, IsGivenUpByAClickOnCancelar)
{
    AbreComErro();
    apoio::ClicaEm(Filtro(), "Command3D1(1)");
    EsperaFechadoEmSilencio();
}
TEST_P(CampoErrado, IsGivenUpByEsc)
{
    AbreComErro();
    apoio::Tecla(Filtro(), Qt::Key_Escape);
    EsperaFechadoEmSilencio();
}
TEST_P(CampoErrado, HoldsConfirmar)
{
    AbreComErro();
    QTest::keyClick(Filtro().focusWidget(), Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(EstaAberta("Filtro"));
    EXPECT_EQ(m_caixas->Quantas(), 1U) << Vistas();
    EXPECT_EQ(FocoDele(), Nome(GetParam().campo).toStdString());
}
INSTANTIATE_TEST_SUITE_P(Campos, CampoErrado,
                         testing::Values(CasoErrado{"Bank", 0, "9"}, CasoErrado{"FirstDate", 1, "300203"},
                                         CasoErrado{"LastDate", 2, "0102"},
                                         CasoErrado{"FirstValue", 3, "abc"},
                                         CasoErrado{"LastValue", 4, "1,2,3"}),
                         kNomeDoCaso);

TEST_F(FiltroTest, ASecondPressRaisesTheOneThatIsOpen)
{
    AbreFiltro();
    const QWidget *primeiro = &Filtro();
    DigitaNo(5, "Ana");
    VaiAoCampo(6);
    Aperta("SSCommand6");
    ASSERT_EQ(Abertas("Filtro").size(), 1);
    EXPECT_EQ(&Filtro(), primeiro);
    EXPECT_TRUE(QTest::qWaitFor([primeiro] { return QApplication::activeWindow() == primeiro; }));
    EXPECT_EQ(Campo(5), "Ana") << "as it was left";
}

TEST_F(FiltroTest, ClosingTheListTakesItAway)
{
    AbreFiltro();
    Aperta("SSCommand2");
    Descarta();
    EXPECT_FALSE(EstaAberta("Relato"));
    EXPECT_TRUE(Tela().findChildren<QWidget *>("Filtro").isEmpty());
}

TEST_F(FiltroTest, ItsMnemonicAcceptsAfterTheFieldIsLeft)
{
    AbreFiltro();
    DigitaNo(0, "1");
    QTest::keyClick(Filtro().focusWidget(), Qt::Key_O, Qt::AltModifier);
    EXPECT_FALSE(EstaAberta("Filtro"));
    EXPECT_EQ(Listados(), "1 3") << "001, not 1";
}

TEST_F(FiltroTest, TabWalksInReadingOrder)
{
    AbreFiltro();
    const QStringList volta = VoltaDoTab(Filtro());
    EXPECT_EQ(volta, OrdemDeLeitura(Filtro()));
    EXPECT_EQ(volta.size(), 10);
}

} // namespace
