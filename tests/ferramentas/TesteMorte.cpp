// qx70-banco killed at any moment while it writes: what was there stays, and what was begun is there whole or
// not at all.
#include "Apoio.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <QDir>
#include <QFile>
#include <random>
#include <spawn.h>
#include <SQLiteCpp/SQLiteCpp.h>
#include <stdexcept>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using testing::AnyOf;

namespace {

using Tempo = std::chrono::nanoseconds;

#ifdef __SANITIZE_ADDRESS__
constexpr int kPorCento = 10; // each start is dear
#else
constexpr int kPorCento = 100;
#endif

constexpr int kCheques =
    20'000; // more than the engine keeps in memory, so that it writes long before the end

const QString kLoja = QStringLiteral("QX70.MDB");
const QString kIni = QStringLiteral("QX70.INI");

/// A run of qx70-banco that can be killed. Only this very process is, before it is reaped.
class Filho {
public:
    explicit Filho(const QStringList &argumentos)
    {
        QList<QByteArray> palavras{CaminhoDoBanco().toUtf8()};
        for (const QString &argumento : argumentos)
            palavras.append(argumento.toUtf8());
        std::vector<char *> ponteiros;
        for (QByteArray &palavra : palavras)
            ponteiros.push_back(palavra.data());
        ponteiros.push_back(nullptr);
        posix_spawn_file_actions_t calado;
        posix_spawn_file_actions_init(&calado);
        for (const int saida : {STDOUT_FILENO, STDERR_FILENO})
            posix_spawn_file_actions_addopen(&calado, saida, "/dev/null", O_WRONLY, 0);
        const int erro = posix_spawn(&m_pid, ponteiros[0], &calado, nullptr, ponteiros.data(), environ);
        posix_spawn_file_actions_destroy(&calado);
        if (erro != 0)
            throw std::runtime_error("qx70-banco does not start");
    }
    /// Waits for the end, but not longer than that, and kills it then. @return whether it was killed while it
    /// ran
    bool MataDepoisDe(Tempo prazo)
    {
        const int fim = static_cast<int>(::syscall(SYS_pidfd_open, m_pid, 0));
        pollfd espera{fim, POLLIN, 0};
        const timespec tempo{static_cast<time_t>(prazo.count() / 1'000'000'000),
                             static_cast<long>(prazo.count() % 1'000'000'000)};
        ::ppoll(&espera, 1, &tempo, nullptr);
        ::kill(m_pid, SIGKILL);
        int estado = 0;
        ::waitpid(m_pid, &estado, 0);
        ::close(fim);
        return WIFSIGNALED(estado);
    }

private:
    pid_t m_pid = 0;
};

/// The folders of one kill: `base` is what the command starts from, `pasta` is made anew from it each time.
class Mesa {
public:
    [[nodiscard]] QString Base(const QString &nome = {}) const { return QDir(m_base.path()).filePath(nome); }
    [[nodiscard]] QString Pasta(const QString &nome = {}) const
    {
        return QDir(m_mesa.filePath("pasta")).filePath(nome);
    }
    [[nodiscard]] QString Copia(const QString &nome = {}) const
    {
        return QDir(m_mesa.filePath("copia")).filePath(nome);
    }
    void Arruma() const
    {
        for (const QString &pasta : {Pasta(), Copia()})
            QDir(pasta).removeRecursively();
        QDir().mkpath(Pasta());
        for (const QString &nome : NomesEm(Base()))
            if (!QFile::copy(Base(nome), Pasta(nome)))
                throw std::runtime_error("the table cannot be laid");
    }

private:
    QTemporaryDir m_base;
    QTemporaryDir m_mesa;
};

void Exige(const QStringList &argumentos)
{
    if (Banco(argumentos).codigo != 0)
        throw std::runtime_error("qx70-banco " + argumentos[0].toStdString() + " failed");
}

std::string Contagem(const QString &loja, const char *tabela)
{
    return Valor(loja, "SELECT count(*) FROM " + std::string(tabela));
}

/// What confere says of a folder: 0 when nothing is wrong. It takes back what was cut off half way.
int Confere(const QString &pasta)
{
    const Execucao confere = Banco({QStringLiteral("confere"), pasta});
    EXPECT_EQ(confere.codigo, 0) << confere.saida.toStdString() << confere.erros.toStdString();
    return confere.codigo;
}

/// One command that is killed: how its folder looks before, how it is called, and what must hold afterwards.
struct Comando {
    std::string nome;
    int mortes;
    std::function<void(const Mesa &)> prepara; ///< fills Base()
    std::function<QStringList(const Mesa &)> chamada;
    std::function<void(const Mesa &)> julga;
};
void PrintTo(const Comando &c, std::ostream *os)
{
    *os << c.nome;
}

class MorteTest : public testing::TestWithParam<Comando> {
protected:
    // The longest of some runs that nobody disturbs.
    Tempo Duracao()
    {
        Tempo maior{};
        for (int i = 0; i < 3; ++i) {
            m_mesa.Arruma();
            const auto inicio = std::chrono::steady_clock::now();
            EXPECT_FALSE(Filho(GetParam().chamada(m_mesa)).MataDepoisDe(std::chrono::seconds(60)));
            maior = std::max<Tempo>(maior, std::chrono::steady_clock::now() - inicio);
        }
        return maior;
    }
    Mesa m_mesa;
};

TEST_P(MorteTest, LeavesTheWholeOrNothing)
{
    const Comando &comando = GetParam();
    comando.prepara(m_mesa);
    const Tempo duracao = Duracao();
    comando.julga(m_mesa);
    std::mt19937_64 acaso(20040315);
    const int mortes = comando.mortes * kPorCento / 100;
    int correndo = 0;
    for (int i = 0; i < mortes && !HasFailure(); ++i) {
        m_mesa.Arruma();
        const Tempo prazo(acaso() % static_cast<std::uint64_t>(duracao.count()));
        correndo += Filho(comando.chamada(m_mesa)).MataDepoisDe(prazo) ? 1 : 0;
        SCOPED_TRACE("killed after " + std::to_string(prazo.count()) + " of " +
                     std::to_string(duracao.count()) + " ns");
        comando.julga(m_mesa);
    }
    RecordProperty("mortes", mortes);
    RecordProperty("correndo", correndo);
    EXPECT_GE(correndo, std::max(1, mortes / 4)) << "too few were killed while they ran";
}

void PreparaRegistros(const Mesa &mesa)
{
    Exige({QStringLiteral("cria"), mesa.Base()});
    Exige(
        {QStringLiteral("semeia"), mesa.Base(), "--bancos", "20", "--cidades", "30", "--favorecidos", "40"});
}

QStringList ChamaSemeia(const Mesa &mesa)
{
    return {"semeia", mesa.Pasta(),    "--bancos", "0",         "--cidades",
            "0",      "--favorecidos", "0",        "--cheques", QString::number(kCheques)};
}

void JulgaSemeia(const Mesa &mesa)
{
    ASSERT_EQ(Confere(mesa.Pasta()), 0);
    EXPECT_THAT(Contagem(mesa.Pasta(kLoja), "Log"), AnyOf("0", std::to_string(kCheques)));
    for (const char *tabela : {"Bancos", "Cidade", "Favorecido"}) {
        const std::string consulta = "SELECT * FROM " + std::string(tabela) + " ORDER BY rowid";
        EXPECT_EQ(Linhas(mesa.Pasta(kLoja), consulta), Linhas(mesa.Base(kLoja), consulta));
    }
    EXPECT_EQ(LeArquivo(mesa.Pasta(kIni)), LeArquivo(mesa.Base(kIni)));
}

// The cheques lie beside the store as a file, from an office of the same registers.
void PreparaImportacao(const Mesa &mesa)
{
    PreparaRegistros(mesa);
    const QTemporaryDir antiga;
    Exige({QStringLiteral("cria"), antiga.path()});
    Exige({QStringLiteral("semeia"), antiga.path(), "--cheques", QString::number(kCheques)});
    Exige({QStringLiteral("exporta"), antiga.path(), mesa.Base(), "--tabela", "Log"});
}

void JulgaCria(const Mesa &mesa)
{
    if (!QFile::exists(mesa.Pasta(kLoja)))
        return;
    ASSERT_EQ(Confere(mesa.Pasta()), 0);
    EXPECT_EQ(Valor(mesa.Pasta(kLoja), "SELECT count(*) FROM sqlite_master"), "12");
}

void PreparaCheques(const Mesa &mesa)
{
    Exige({QStringLiteral("cria"), mesa.Base()});
    Exige({QStringLiteral("semeia"), mesa.Base(), "--cheques", QString::number(kCheques)});
}

// The store is named last, so that it stands for the whole copy.
void JulgaCopia(const Mesa &mesa)
{
    EXPECT_EQ(LeArquivo(mesa.Pasta(kLoja)), LeArquivo(mesa.Base(kLoja)));
    EXPECT_EQ(LeArquivo(mesa.Pasta(kIni)), LeArquivo(mesa.Base(kIni)));
    if (QFile::exists(mesa.Copia(kIni))) {
        EXPECT_EQ(LeArquivo(mesa.Copia(kIni)), LeArquivo(mesa.Base(kIni)));
    }
    if (!QFile::exists(mesa.Copia(kLoja)))
        return;
    EXPECT_TRUE(QFile::exists(mesa.Copia(kIni)));
    ASSERT_EQ(Confere(mesa.Copia()), 0);
    EXPECT_EQ(Contagem(mesa.Copia(kLoja), "Log"), std::to_string(kCheques));
}

// A store that was cut off half way through a change of every cheque: the files of one that is just changing,
// copied.
void PreparaMetade(const Mesa &mesa)
{
    const QTemporaryDir oficina;
    Exige({QStringLiteral("cria"), oficina.path()});
    Exige({QStringLiteral("semeia"), oficina.path(), "--cheques", QString::number(kCheques)});
    SQLite::Database loja(oficina.filePath(kLoja).toStdString(), SQLite::OPEN_READWRITE);
    loja.exec("PRAGMA cache_size=5; BEGIN; UPDATE Log SET StCancel='meio'");
    for (const QString &nome : {kLoja, kLoja + "-journal", kIni})
        if (!QFile::copy(oficina.filePath(nome), mesa.Base(nome)))
            throw std::runtime_error("no store that was cut off");
}

void JulgaConfere(const Mesa &mesa)
{
    ASSERT_EQ(Confere(mesa.Pasta()), 0);
    EXPECT_EQ(Valor(mesa.Pasta(kLoja), "SELECT count(*) FROM Log WHERE StCancel IN (' ', 'C')"),
              std::to_string(kCheques));
    EXPECT_EQ(NomesEm(mesa.Pasta()), (QStringList{kIni, kLoja}));
}

INSTANTIATE_TEST_SUITE_P(
    Comandos, MorteTest,
    testing::Values(Comando{"semeia", 90, PreparaRegistros, ChamaSemeia, JulgaSemeia},
                    Comando{"importa", 30, PreparaImportacao,
                            [](const Mesa &mesa) {
                                return QStringList{"importa", mesa.Pasta(), mesa.Pasta("Log.csv")};
                            },
                            JulgaSemeia},
                    Comando{"cria", 60, [](const Mesa &) {},
                            [](const Mesa &mesa) {
                                return QStringList{"cria", mesa.Pasta()};
                            },
                            JulgaCria},
                    Comando{"copia", 60, PreparaCheques,
                            [](const Mesa &mesa) {
                                return QStringList{"copia", mesa.Pasta(), mesa.Copia()};
                            },
                            JulgaCopia},
                    Comando{"confere", 30, PreparaMetade,
                            [](const Mesa &mesa) {
                                return QStringList{"confere", mesa.Pasta()};
                            },
                            JulgaConfere}),
    [](const auto &caso) { return caso.param.nome; });

} // namespace
