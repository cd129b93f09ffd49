// qx70-banco confere on a store of 1,000,000 cheques against the engine's own integrity check of the same
// file. Both are whole processes, turn by turn: this program calls itself for the bare check. Usage:
// bench_confere [rows] [turns]
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <sqlite3.h>
#include <vector>

namespace {

const QString kPrograma = QStringLiteral(QX70_BIN_DIR "/qx70-banco");

// The bare check, as a process of its own: the file opened in the same way, and nothing else.
int SoIntegridade(const char *arquivo)
{
    sqlite3 *motor = nullptr;
    sqlite3_stmt *comando = nullptr;
    const bool certo =
        sqlite3_open_v2(arquivo, &motor, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr) == SQLITE_OK &&
        sqlite3_prepare_v2(motor, "PRAGMA integrity_check", -1, &comando, nullptr) == SQLITE_OK &&
        sqlite3_step(comando) == SQLITE_ROW &&
        qstrcmp(reinterpret_cast<const char *>(sqlite3_column_text(comando, 0)), "ok") == 0;
    sqlite3_finalize(comando);
    sqlite3_close(motor);
    return certo ? 0 : 1;
}

// @return seconds of a whole run
double Roda(const QString &programa, const QStringList &argumentos)
{
    QProcess processo;
    processo.setStandardOutputFile(QProcess::nullDevice());
    processo.setStandardErrorFile(QProcess::nullDevice());
    const auto inicio = std::chrono::steady_clock::now();
    processo.start(programa, argumentos);
    processo.waitForFinished(-1);
    const double segundos = std::chrono::duration<double>(std::chrono::steady_clock::now() - inicio).count();
    if (processo.exitStatus() != QProcess::NormalExit || processo.exitCode() != 0) {
        std::fprintf(stderr, "%s failed\n", qUtf8Printable(programa));
        std::exit(1);
    }
    return segundos;
}

double Mediana(std::vector<double> valores)
{
    std::sort(valores.begin(), valores.end());
    return valores[valores.size() / 2];
}

} // namespace

int main(int quantos, char **argumentos)
{
    if (quantos == 3 && qstrcmp(argumentos[1], "--integridade") == 0)
        return SoIntegridade(argumentos[2]);
    const QCoreApplication aplicacao(quantos, argumentos);
    const int linhas = quantos > 1 ? std::atoi(argumentos[1]) : 1000000;
    const int voltas = quantos > 2 ? std::atoi(argumentos[2]) : 11;
    const QTemporaryDir pasta;
    Roda(kPrograma, {"cria", pasta.path()});
    Roda(kPrograma, {"semeia", pasta.path(), "--cheques", QString::number(linhas)});
    const QString loja = pasta.filePath("QX70.MDB");
    std::vector<double> confere, integridade, razoes;
    for (int i = 0; i < voltas; ++i) {
        integridade.push_back(Roda(QCoreApplication::applicationFilePath(), {"--integridade", loja}));
        confere.push_back(Roda(kPrograma, {"confere", pasta.path()}));
        razoes.push_back(confere.back() / integridade.back());
    }
    std::printf("checking %d rows: confere %.0f ms, integrity check alone %.0f ms, ratio of medians %.2f, "
                "median of the "
                "ratios %.2f, worst %.2f\n",
                linhas, Mediana(confere) * 1e3, Mediana(integridade) * 1e3,
                Mediana(confere) / Mediana(integridade), Mediana(razoes),
                *std::max_element(razoes.begin(), razoes.end()));
    return 0;
}
