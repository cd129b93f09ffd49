// Durability: a program killed while it writes loses at most the row that it was writing, and never the file.
#include "Loja.h"

#include <atomic>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using plataforma::Database;
using namespace loja;

namespace {

class MorteTest : public Loja {
protected:
    /// Lets a child process add rows, one message for each row stored, and kills it after `mensagens` of
    /// them.
    /// @return the number of the last row that the child had reported
    [[nodiscard]] int EscreveEMata(int mensagens, int voltas) const;
};

[[noreturn]] void EscreveSemFim(const QString &caminho, int saida)
{
    try {
        const auto d = Database(caminho).OpenDynaset("Log");
        for (;;) {
            int proximo = 1;
            if (d->HasRows()) {
                d->MoveLast();
                proximo = d->Field("Index").toInt() + 1;
            }
            d->AddNew();
            d->SetField("Index", QString("%1").arg(proximo, 10, 10, QChar('0')));
            d->SetField("Favor",
                        QString(3000, QChar('a' + proximo % 26))); // several pages a row now and then
            d->Update();
            if (write(saida, &proximo, sizeof proximo) != sizeof proximo)
                _exit(2);
        }
    } catch (const plataforma::RuntimeError &) {
        _exit(1);
    }
}

int MorteTest::EscreveEMata(int mensagens, int voltas) const
{
    int canal[2];
    if (pipe(canal) != 0)
        return -1;
    const pid_t filho = fork();
    if (filho == 0)
        EscreveSemFim(Caminho(), canal[1]);
    close(canal[1]);
    int ultimo = 0;
    for (int i = 0; i < mensagens && read(canal[0], &ultimo, sizeof ultimo) == sizeof ultimo; ++i) {
    }
    for (std::atomic<int> i = 0; i < voltas; ++i) { // into the next row, a little further each time
    }
    kill(filho, SIGKILL);
    while (read(canal[0], &ultimo, sizeof ultimo) == sizeof ultimo) {
    }
    close(canal[0]);
    int estado = 0;
    waitpid(filho, &estado, 0);
    return WIFSIGNALED(estado) ? ultimo : -1;
}

} // namespace

TEST_F(MorteTest, ThirtyKillsLoseNoRowThatWasReported)
{
    int linhas = 0;
    for (int vez = 0; vez < 30; ++vez) {
        const int ultimo = EscreveEMata(1 + vez % 4, vez * 40000);
        ASSERT_GT(ultimo, linhas);
        const Database banco(Caminho());
        const auto d = banco.OpenDynaset("Log");
        d->MoveLast();
        const int gravado = d->Field("Index").toInt();
        EXPECT_GE(gravado, ultimo);
        EXPECT_LE(gravado, ultimo + 1); // the row stored but not reported yet
        linhas = gravado;
        ASSERT_EQ(Valor("pragma integrity_check"), "ok");
        ASSERT_EQ(
            Valor(
                "select count(*) || ',' || count(distinct \"Index\") || ',' || sum(length(Favor)) from Log"),
            QString("%1,%1,%2").arg(linhas).arg(3000 * linhas));
    }
}
