// A store that is missing, locked, protected, damaged or not what it should be: what is told at the start, on
// leaving the bank's field and behind a printed cheque, and that the next one works once the store is whole.
#include "ComMain.h"
#include "Disco.h"

#include <functional>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <sqlite3.h>
#include <sys/stat.h>

using namespace apoio;

namespace {

using Avisos = QStringList;

const QString kNaoAchado = QStringLiteral("O Banco de dados \"QX70.MDB\" nao foi encontrado!");
// Kept: two boxes for one lock, the first one empty.
const Avisos kTrava{QString(), QStringLiteral("Instale uma linha semelhante a \n\"SHARE.EXE /L:500\" no seu "
                                              "arquivo autoexec.bat!")};

/// Undoes a fault when it goes.
using Falta = std::shared_ptr<void>;

Falta Desfaz(std::function<void()> acao)
{
    return {nullptr, [acao = std::move(acao)](void *) { acao(); }};
}

QByteArray Le(const QString &caminho)
{
    QFile arquivo(caminho);
    return arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll() : QByteArray();
}

void Poe(const QString &caminho, const QByteArray &bytes)
{
    QFile arquivo(caminho);
    if (!arquivo.open(QIODevice::WriteOnly) || arquivo.write(bytes) != bytes.size())
        throw std::runtime_error("cannot write " + caminho.toStdString());
}

QString BancoDe(const QString &pasta)
{
    return pasta + QStringLiteral("/QX70.MDB");
}

/// The store steps aside, and something else may come in its place.
Falta PoeDeLado(const QString &pasta, const std::function<void(const QString &)> &noLugar = {})
{
    const QString banco = BancoDe(pasta);
    const QString guardado = pasta + QStringLiteral("/guardado");
    if (!QFile::rename(banco, guardado))
        throw std::runtime_error("the store does not step aside");
    if (noLugar)
        noLugar(banco);
    return Desfaz([=] {
        if (!QFile::remove(banco))
            QDir().rmdir(banco);
        QFile::rename(guardado, banco);
    });
}

std::function<Falta(const QString &)> NoLugar(const QByteArray &bytes)
{
    return [bytes](const QString &pasta) {
        return PoeDeLado(pasta, [&](const QString &banco) { Poe(banco, bytes); });
    };
}

/// Another program's connection, with a statement that stands until the fault goes.
Falta Segura(const QString &pasta, const char *comando)
{
    sqlite3 *outro = nullptr;
    if (sqlite3_open(BancoDe(pasta).toUtf8().constData(), &outro) != SQLITE_OK ||
        sqlite3_exec(outro, comando, nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error("the lock was not got");
    return Desfaz([outro] { sqlite3_close(outro); });
}

/// The tables are changed in a copy, so that the store itself comes back untouched.
std::function<Falta(const QString &)> SemParte(const char *comando)
{
    return [comando](const QString &pasta) {
        const QByteArray bytes = Le(BancoDe(pasta));
        Falta falta = PoeDeLado(pasta, [&](const QString &banco) { Poe(banco, bytes); });
        Segura(pasta, comando);
        return falta;
    };
}

struct CasoFalta {
    std::string nome;
    std::function<Falta(const QString &pasta)> comete;
    Avisos noInicio;
    Avisos noBanco;
    bool achaBanco;  ///< the bank's name comes all the same
    QString naLinha; ///< what is told behind the printed cheque, or its beginning
    bool grava;      ///< the row is written all the same
    bool monta = false;
};
void PrintTo(const CasoFalta &caso, std::ostream *os)
{
    *os << caso.nome;
}

Falta SemDireito(const QString &pasta, const QString &alvo, mode_t direitos)
{
    return std::make_shared<teste::ComDireitos>(pasta, alvo, direitos);
}

const QString kErro = QStringLiteral("Ocorreu erro %1!\n");
const QString kProtegido = kErro.arg(3051) + QStringLiteral("O banco de dados \"%1\" não pode ser gravado: ");
const QString kEmUso =
    kErro.arg(3050) + QStringLiteral("O banco de dados \"%1\" está em uso por outro programa. ");

const std::vector<CasoFalta> kCasos = {
    {"Missing", [](const QString &p) { return PoeDeLado(p); }, {kNaoAchado}, {}, false, {}, false},
    {"AFolderInItsPlace",
     [](const QString &p) { return PoeDeLado(p, [](const QString &banco) { QDir().mkdir(banco); }); },
     {kNaoAchado},
     {},
     false,
     {},
     false},
    {"APipeInItsPlace",
     [](const QString &p) {
         return PoeDeLado(p,
                          [](const QString &banco) { mkfifo(QFile::encodeName(banco).constData(), 0600); });
     },
     {kNaoAchado},
     {},
     false,
     {},
     false},
    {"FileWithoutTheRightToWrite",
     [](const QString &p) { return SemDireito(p, BancoDe(p), 0444); },
     {},
     {},
     true,
     kProtegido,
     false},
    {"FolderWithoutTheRightToWrite",
     [](const QString &p) { return SemDireito(p, p, 0555); },
     {},
     {},
     true,
     kProtegido,
     false},
    {"FileWithoutTheRightToRead",
     [](const QString &p) { return SemDireito(p, BancoDe(p), 0000); },
     {kNaoAchado},
     {},
     false,
     {},
     false},
    {"DiskThatIsReadOnly",
     [](const QString &p) { return Falta(std::make_shared<teste::SoLeitura>(p)); },
     {},
     {},
     true,
     kProtegido,
     false,
     true},
    {"LockedByAnotherProgram", [](const QString &p) { return Segura(p, "begin exclusive"); },
     kTrava + Avisos{kNaoAchado}, kTrava, false, "SHARE", false},
    {"BeingWrittenByAnotherProgram",
     [](const QString &p) { return Segura(p, "begin immediate"); },
     {},
     {},
     true,
     kEmUso,
     false},
    {"Garbage",
     NoLugar(QByteArray("isto não é um banco de dados\r\n").repeated(200)),
     {kNaoAchado},
     {},
     false,
     {},
     false},
    {"Empty", NoLugar({}), {kNaoAchado}, {}, false, {}, false},
    {"CutShort",
     [](const QString &p) {
         const QByteArray bytes = Le(BancoDe(p));
         return NoLugar(bytes.first(bytes.size() / 2))(p);
     },
     {kNaoAchado},
     {},
     false,
     {},
     false},
    {"CutInItsFirstPage",
     [](const QString &p) { return NoLugar(Le(BancoDe(p)).first(700))(p); },
     {kNaoAchado},
     {},
     false,
     {},
     false},
    {"TableBancosMissing", SemParte("drop table Bancos"), {}, {}, false, {}, true},
    {"TableLogMissing", SemParte("drop table Log"), {kNaoAchado}, {}, true, {}, false},
    {"FieldNomeMissing",
     SemParte("alter table Bancos rename column Nome to Outro"),
     {},
     {kErro.arg(3265) + "O campo \"Nome\" não existe em \"Bancos\"."},
     false,
     {},
     true},
    {"FieldComentarioMissing",
     SemParte("alter table Log rename column Comentario to Outro"),
     {},
     {},
     true,
     kErro.arg(3265) + "O campo \"Comentario\" não existe em \"Log\".",
     false},
    {"FieldDataMissing",
     SemParte("alter table Log rename column Data to Outro"),
     {kErro.arg(3075) +
      "Erro de sintaxe na consulta: o campo \"Data\" não existe em \"Log\". Consulta: Select "
      "Data From Log"},
     {},
     true,
     kErro.arg(3265) + "O campo \"Data\" não existe em \"Log\".",
     false},
};

class FaltasDoBanco : public teste::ComMain, public testing::WithParamInterface<CasoFalta> {
protected:
    void SetUp() override
    {
        if (GetParam().monta && !teste::TemMontagensProprias())
            GTEST_SKIP() << "mounts are refused here";
        ComMain::SetUp();
        // The calls of the library are written outside the folder of the fault, by whatever user.
        ASSERT_EQ(chmod(QFile::encodeName(m_fora.path()).constData(), 0777), 0);
        qputenv("QX70_GRAVADORA_SAIDA", QFile::encodeName(m_fora.filePath("chamadas.txt")));
        m_escritorio.Sql("DELETE FROM Bancos; DELETE FROM Log;"
                         "INSERT INTO Bancos (Codigo, Nome) VALUES ('001', 'BANCO UM');"
                         "INSERT INTO Log (\"Index\", Codigo, Data, NRCH) VALUES "
                         "('0000000007', '00007', '01/03/99', '7')");
        m_escritorio.GravaIni("[Sistema]\nInRel=1\nport=COM2\n");
    }
    void TearDown() override
    {
        m_falta.reset();
        Termina();
    }
    void Comete() { m_falta = GetParam().comete(m_escritorio.Pasta()); }
    void Conserta() { m_falta.reset(); }

    /// The texts of the boxes since the last call.
    Avisos Vistos()
    {
        Avisos textos;
        for (; m_lidas < m_caixas.Quantas(); ++m_lidas)
            textos << m_caixas.Vistas()[m_lidas].texto;
        return textos;
    }
    [[nodiscard]] QStringList Cheques() const
    {
        QStringList numeros;
        for (const QStringList &linha : m_escritorio.Linhas("SELECT \"Index\", NRCH FROM Log ORDER BY rowid"))
            numeros << linha.join('/');
        return numeros;
    }
    /// How many cheques the device was sent.
    [[nodiscard]] qsizetype Enviados() const
    {
        return QString::fromLatin1(Le(m_fora.filePath("chamadas.txt"))).count("ImprimeCheque(");
    }
    void DigitaBanco(const QString &numero)
    {
        ClicaEm(Tela(), "Text1(0)");
        Tecla(Tela(), Qt::Key_F8);
        Digita(Tela(), numero);
        Tecla(Tela(), Qt::Key_Return);
    }
    /// Fills a cheque without a move between the fields that have a leave rule.
    void Preenche(const QString &numero)
    {
        ClicaEm(Tela(), "TxtCpo(0)");
        const QStringList textos{"001", "10,00", "José", "Olinda", "05/03/99"};
        for (int i = 0; i < textos.size(); ++i)
            Controle<QLineEdit>(Tela(), QString("Text1(%1)").arg(i))->setText(textos[i]);
        Controle<QLineEdit>(Tela(), "Text1(6)")->setText(numero);
    }
    void Imprime()
    {
        Ativa();
        ClicaEm(Tela(), "Opcoes(0)");
    }
    [[nodiscard]] QString NomeDoBanco() { return Controle<QLabel>(Tela(), "Label1(6)")->text(); }

    QTemporaryDir m_fora;
    Falta m_falta;

private:
    std::size_t m_lidas = 0;
};

TEST_P(FaltasDoBanco, AtTheStart)
{
    const QByteArray antes = Le(m_escritorio.Arquivo("QX70.MDB"));
    Comete();
    Inicia();
    EXPECT_EQ(Vistos(), GetParam().noInicio);
    TerminaAbertura();
    ClicaEm(Tela(), "Text1(2)");
    Digita(Tela(), "Ana");
    EXPECT_EQ(Texto(Tela(), "Text1(2)"), "Ana") << "the screen is usable";
    Conserta();
    EXPECT_EQ(Le(m_escritorio.Arquivo("QX70.MDB")), antes);
    DigitaBanco("1");
    EXPECT_EQ(NomeDoBanco(), "BANCO UM");
    EXPECT_EQ(Vistos(), Avisos());
}

TEST_P(FaltasDoBanco, OnLeavingTheBank)
{
    Inicia();
    TerminaAbertura();
    ASSERT_EQ(Vistos(), Avisos());
    const QByteArray antes = Le(m_escritorio.Arquivo("QX70.MDB"));
    Comete();
    DigitaBanco("1");
    EXPECT_EQ(Vistos(), GetParam().noBanco);
    EXPECT_EQ(Texto(Tela(), "Text1(0)"), "001") << "the number stays as it stands";
    EXPECT_EQ(NomeDoBanco(), GetParam().achaBanco ? "BANCO UM" : "");
    EXPECT_EQ(Foco(Tela()), "Text1(1)");
    Conserta();
    EXPECT_EQ(Le(m_escritorio.Arquivo("QX70.MDB")), antes);
    Ativa();
    Digita(Tela(), "10"); // an empty value would not let go
    DigitaBanco("1");
    EXPECT_EQ(NomeDoBanco(), "BANCO UM");
    EXPECT_EQ(Vistos(), Avisos());
}

TEST_P(FaltasDoBanco, BehindAPrintedCheque)
{
    Inicia();
    TerminaAbertura();
    Preenche("8");
    Comete();
    Imprime();
    Avisos avisos = Vistos();
    ASSERT_FALSE(avisos.isEmpty());
    EXPECT_EQ(avisos.takeFirst(), "Insira o Documento.");
    // Kept: a store that does not open behind a good print is told of only when it is locked.
    if (GetParam().naLinha == "SHARE") {
        EXPECT_EQ(avisos, kTrava);
    } else if (GetParam().naLinha.isEmpty()) {
        EXPECT_EQ(avisos, Avisos());
    } else {
        ASSERT_EQ(avisos.size(), 1);
        EXPECT_TRUE(
            avisos[0].startsWith(QString(GetParam().naLinha).replace("%1", m_escritorio.Arquivo("QX70.MDB"))))
            << avisos[0].toStdString();
    }
    EXPECT_EQ(Enviados(), 1);
    EXPECT_EQ(Texto(Tela(), "Text1(6)"), "8") << "the fields stay";
    EXPECT_EQ(Foco(Tela()), "Text1(0)") << "another Enter must not print again";
    if (GetParam().grava) {
        EXPECT_EQ(Cheques(), (QStringList{"0000000007/7", "0000000008/8"}));
    }
    Conserta(); // with the store as it was before
    EXPECT_EQ(Cheques(), QStringList{"0000000007/7"});
    Imprime();
    EXPECT_EQ(Vistos(), Avisos{"Insira o Documento."});
    EXPECT_EQ(Cheques(), (QStringList{"0000000007/7", "0000000008/8"}));
}

INSTANTIATE_TEST_SUITE_P(Faltas, FaltasDoBanco, testing::ValuesIn(kCasos),
                         [](const auto &caso) { return caso.param.nome; });

// Rows that the purge of the start wants to delete, in a store that does not let it.

std::vector<CasoFalta> QueNaoGravam()
{
    std::vector<CasoFalta> casos;
    for (const CasoFalta &caso : kCasos)
        if (caso.naLinha == kProtegido || caso.naLinha == kEmUso)
            casos.push_back(caso);
    return casos;
}

class FaltasDoExpurgo : public FaltasDoBanco {};

TEST_P(FaltasDoExpurgo, IsToldOnceAndNoRowIsLost)
{
    m_escritorio.Sql(
        "INSERT INTO Log (\"Index\", Codigo, Data, NRCH) VALUES ('0000000008', '00008', '01/01/98', '8')");
    const QStringList todos{"0000000007/7", "0000000008/8"};
    Comete();
    Inicia();
    Avisos avisos = Vistos();
    ASSERT_EQ(avisos.size(), 3) << "the question twice, and one failure";
    EXPECT_EQ(avisos[0], avisos[1]);
    EXPECT_TRUE(
        avisos[2].startsWith(QString(GetParam().naLinha).replace("%1", m_escritorio.Arquivo("QX70.MDB"))))
        << avisos[2].toStdString();
    Conserta();
    EXPECT_EQ(Cheques(), todos);
    TerminaAbertura();
    ClicaEm(Tela(), "Text1(2)");
    DigitaBanco("1");
    EXPECT_EQ(NomeDoBanco(), "BANCO UM") << "the screen is usable";
    Inicia();
    EXPECT_EQ(Vistos().size(), 2);
    EXPECT_EQ(Cheques(), QStringList{"0000000007/7"}) << "the next start deletes it";
}

INSTANTIATE_TEST_SUITE_P(Faltas, FaltasDoExpurgo, testing::ValuesIn(QueNaoGravam()),
                         [](const auto &caso) { return caso.param.nome; });

} // namespace
