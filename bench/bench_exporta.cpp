// Exporting a log of 1,000,000 rows, against the sqlite3 shell writing the same table as CSV, turn by turn;
// both as whole programs, ours with its files brought to the disk. And bringing the file into an empty store.
// Usage: bench_exporta [rows] [turns]
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <vector>

namespace {

const QString kBanco = QStringLiteral(QX70_BIN_DIR "/qx70-banco");

// @return seconds
double Cronometra(const QString &programa, const QStringList &argumentos)
{
    QProcess processo;
    processo.setStandardOutputFile(QProcess::nullDevice());
    processo.setStandardErrorFile(QProcess::nullDevice());
    const auto inicio = std::chrono::steady_clock::now();
    processo.start(programa, argumentos);
    if (!processo.waitForFinished(600'000) || processo.exitCode() != 0) {
        std::fprintf(stderr, "%s failed\n", qPrintable(programa));
        std::exit(1);
    }
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - inicio).count();
}

double ComShell(const QDir &pasta)
{
    return Cronometra(QStringLiteral("sqlite3"),
                      {pasta.filePath("QX70.MDB"), "-cmd", ".mode csv", "-cmd", ".headers on", "-cmd",
                       ".output " + pasta.filePath("shell.csv"), "select * from Log"});
}

double ComBanco(const QDir &pasta)
{
    const double segundos =
        Cronometra(kBanco, {"exporta", pasta.path(), pasta.filePath("saida"), "--tabela", "Log"});
    QFile::remove(pasta.filePath("Log.csv"));
    QFile::rename(pasta.filePath("saida/Log.csv"), pasta.filePath("Log.csv"));
    return segundos;
}

double Importa(const QDir &pasta)
{
    const QTemporaryDir nova;
    Cronometra(kBanco, {"cria", nova.path()});
    return Cronometra(kBanco, {"importa", nova.path(), pasta.filePath("Log.csv")});
}

double Mediana(std::vector<double> valores)
{
    std::sort(valores.begin(), valores.end());
    return valores[valores.size() / 2];
}

} // namespace

int main(int quantos, char **argumentos)
{
    const int linhas = quantos > 1 ? std::atoi(argumentos[1]) : 1'000'000;
    const int voltas = quantos > 2 ? std::atoi(argumentos[2]) : 7;
    if (QStandardPaths::findExecutable("sqlite3").isEmpty()) {
        std::fprintf(stderr, "the sqlite3 shell is not installed\n");
        return 1;
    }
    const QTemporaryDir temporaria;
    const QDir pasta(temporaria.path());
    Cronometra(kBanco, {"cria", pasta.path()});
    Cronometra(kBanco, {"semeia", pasta.path(), "--cheques", QString::number(linhas)});
    std::vector<double> nossos, doShell, volta;
    for (int i = 0; i < voltas; ++i) {
        nossos.push_back(ComBanco(pasta));
        doShell.push_back(ComShell(pasta));
        if (i < 3)
            volta.push_back(Importa(pasta));
    }
    std::printf("exporting %d rows: %.2f s, sqlite3 shell %.2f s, ratio %.2f\n", linhas, Mediana(nossos),
                Mediana(doShell), Mediana(nossos) / Mediana(doShell));
    std::printf("importing them: %.2f s\n", Mediana(volta));
    return 0;
}
