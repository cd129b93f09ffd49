// What can go wrong on the way to the paper: the number that is told, what stays, and that the next cheque
// works.
#include "Mesa.h"

#include <fcntl.h>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <sys/file.h>
#include <unistd.h>

namespace inteira {

namespace {

const Cheque kCheque = {"1", "10", "José", "Olinda", "010224", "1", {}};
const ChequeNoPapel kPapel = {"10,00", "dez reais", "José", "Olinda", "01", "Fevereiro", "2024", {}};
const QStringList kLinhaDoLog = {"0000000001", "00001", "001", "10,", "José", "Olinda",
                                 "01/02/24",   "1",     " ",   "",    "",     ""};

class FalhasBase : public Mesa {
protected:
    FalhasBase() { CadastraBanco("001", "Primeiro", kPosicoesPadrao); }

    /// Presses the print button; the failure is told, and neither log nor fields change.
    void ImprimeComFalha(const std::vector<Vista> &avisos)
    {
        const QStringList antes = Campos();
        Imprime();
        std::vector<Vista> vistas{kInsira};
        vistas.insert(vistas.end(), avisos.begin(), avisos.end());
        EXPECT_EQ(Vistas(), vistas);
        EXPECT_EQ(Log().size(), 0);
        EXPECT_EQ(Campos(), antes);
        EXPECT_EQ(apoio::Foco(Tela()), "Text1(0)");
    }
    /// The same cheque again: it comes out as document `n` and is logged, the only row.
    void ImprimeDeNovo(int n)
    {
        PoeEsperas(20000, 20000);
        const std::size_t caixasAntes = caixas.Quantas();
        TabAte("Opcoes(0)");
        Imprime();
        EXPECT_EQ(caixas.Quantas(), caixasAntes + 1) << "more than the question for the document";
        ASSERT_EQ(aparelho.Documentos().size(), n);
        EXPECT_EQ(Folha(n), FolhaEsperada(kPosicoesPadrao, kPapel));
        EXPECT_EQ(Log(), (QList<QStringList>{kLinhaDoLog}));
    }
};

struct CasoFalha {
    std::string nome;
    QString falha;
    int numero;
    int saiu;       ///< documents that came out all the same
    int resposta;   ///< ms that the library waits for the device to take the order
    int impressao;  ///< ms that it waits for the result
    QString depois; ///< line of the device to wait for before the next cheque
};

void PrintTo(const CasoFalha &c, std::ostream *os)
{
    *os << c.falha.toStdString() << " gives " << c.numero;
}

class FalhasDoAparelhoTest : public FalhasBase, public testing::WithParamInterface<CasoFalha> {};

constexpr int kDemora = 1500; // ms, of the late answer

} // namespace

TEST_P(FalhasDoAparelhoTest, IsToldByItsNumberAndTheNextChequeWorks)
{
    const CasoFalha &caso = GetParam();
    Liga({"--demora", QString::number(kDemora)});
    Abre();
    Digita(kCheque);
    aparelho.PoeFalha(caso.falha + ":1");
    PoeEsperas(caso.resposta, caso.impressao);
    ImprimeComFalha({FalhaNoCheque(caso.numero)});
    EXPECT_EQ(aparelho.Documentos().size(), caso.saiu);
    EXPECT_EQ(caixas.Ultima().icone, QMessageBox::Warning);
    if (!caso.depois.isEmpty())
        aparelho.EsperaLinha(caso.depois);
    ImprimeDeNovo(caso.saiu + 1);
}

INSTANTIATE_TEST_SUITE_P(Chaves, FalhasDoAparelhoTest,
                         testing::Values(CasoFalha{"NoDocument", "sem-documento", 20, 0, 20000, 20000, ""},
                                         CasoFalha{"EndOfPaper", "fim-de-papel", 21, 0, 20000, 20000, ""},
                                         CasoFalha{"Silence", "silencio", 10, 0, 500, 20000, ""},
                                         CasoFalha{"Rubbish", "lixo", 11, 0, 2000, 20000, ""},
                                         CasoFalha{"HangUp", "queda", 12, 1, 20000, 20000, "porta nova "},
                                         CasoFalha{"TooSlow", "lenta", 14, 1, 20000, 300, ""},
                                         CasoFalha{"NoEnd", "sem-fim", 14, 1, 20000, 300, ""},
                                         CasoFalha{"PrintsAndFails", "imprime-e-erra", 29, 1, 20000, 20000,
                                                   ""},
                                         CasoFalha{"DamagedFrame", "nak", 13, 0, 20000, 20000, ""}),
                         [](const auto &caso) { return caso.param.nome; });

class FalhasTest : public FalhasBase {};

TEST_F(FalhasTest, ASlowDeviceWithinTheLimitIsNoFailure)
{
    Liga({"--demora", QString::number(kDemora)});
    Abre();
    Digita(kCheque);
    aparelho.PoeFalha("lenta:1");
    QElapsedTimer relogioDaEspera;
    relogioDaEspera.start();
    Imprime();
    EXPECT_GE(relogioDaEspera.elapsed(), kDemora);
    EXPECT_EQ(Vistas(), std::vector{kInsira});
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(Folha(1), FolhaEsperada(kPosicoesPadrao, kPapel));
    EXPECT_EQ(Log(), (QList<QStringList>{kLinhaDoLog}));
}

TEST_F(FalhasTest, ABankThatTheDeviceLacksIsTold)
{
    Liga();
    escritorio.Sql("INSERT INTO Bancos (Codigo, Nome) VALUES ('002', 'Segundo')");
    Abre();
    Digita({"2", "10", "José", "Olinda", "010224", "1", {}});
    ImprimeComFalha({FalhaNoCheque(22)});
    EXPECT_EQ(aparelho.Documentos().size(), 0);
    Digita(kCheque);
    ImprimeDeNovo(1);
}

TEST_F(FalhasTest, AMissingPortIsTold)
{
    Abre();
    Digita(kCheque);
    ImprimeComFalha({FalhaNoCheque(3)});
    Liga();
    ImprimeDeNovo(1);
}

TEST_F(FalhasTest, APortThatAnotherProgramHoldsIsTold)
{
    Liga();
    Abre();
    Digita(kCheque);
    const int outro = open(QFile::encodeName(aparelho.Elo()).constData(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    ASSERT_GE(outro, 0);
    ASSERT_EQ(flock(outro, LOCK_EX | LOCK_NB), 0);
    ImprimeComFalha({FalhaNoCheque(4)});
    close(outro);
    EXPECT_EQ(aparelho.Bytes(), QByteArray());
    ImprimeDeNovo(1);
}

TEST_F(FalhasTest, AMissingLibraryIsTold)
{
    ASSERT_TRUE(QFile::remove(escritorio.Arquivo("libqx7032.so")));
    Liga();
    Abre();
    Digita(kCheque);
    const QString texto = "O arquivo libqx7032.so não foi encontrado.\nProcurado em:\n" + escritorio.Pasta() +
                          '\n' + QCoreApplication::applicationDirPath() +
                          "\nAté lá nada é enviado à impressora. Copie o arquivo certo e tente de novo.";
    ImprimeComFalha({{"QX70 MIRA - Document Printer", texto},
                     {"Impressão do Cheque (-001)", "Problemas com a impressao do cheque"}});
    PoeBiblioteca();
    ImprimeDeNovo(1);
}

} // namespace inteira
