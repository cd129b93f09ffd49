// Adding one row to the log, the whole way of the program (open, next number, add, close), on a store of
// 1,000,000 rows against one of 10, turn by turn. Usage: bench_log [rows] [turns]
#include "cheques/RegrasDaImpressao.h"
#include "nucleo/Armazem.h"
#include "nucleo/Mensagens.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <QProcess>
#include <QTemporaryDir>
#include <vector>

namespace {

class SemMensagens final : public nucleo::Mensagens {
public:
    nucleo::Resposta MsgBox(const QString &texto, nucleo::Botoes, nucleo::Icone, const QString &) override
    {
        std::fprintf(stderr, "%s\n", texto.toUtf8().constData());
        return nucleo::Resposta::Ok;
    }
};

bool Prepara(const QString &pasta, int cheques)
{
    const QString programa = QStringLiteral(QX70_BIN_DIR "/qx70-banco");
    return QProcess::execute(programa, {"cria", pasta}) == 0 &&
           QProcess::execute(programa, {"semeia", pasta, "--bancos", "5", "--cidades", "5", "--favorecidos",
                                        "5", "--cheques", QString::number(cheques)}) == 0;
}

// One row, as the screen adds it. @return seconds
double Grava(nucleo::Armazem &armazem, const cheques::TextosDoCheque &cheque)
{
    const auto inicio = std::chrono::steady_clock::now();
    if (armazem.AbreBanco(0, 0, 0, 1, 0) == nucleo::kSemBanco)
        std::exit(1);
    plataforma::Dynaset &log = armazem.Conjunto(nucleo::SelLog);
    const QString index = nucleo::ProximoIndex(log);
    log.AddNew();
    for (const auto &[campo, valor] : cheques::MontaLinhaDoLog(cheque, index))
        log.SetField(campo, valor);
    log.Update();
    armazem.FechaBanco(0, 0, 0, 1);
    const double segundos = std::chrono::duration<double>(std::chrono::steady_clock::now() - inicio).count();
    benchmark::DoNotOptimize(index.data());
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
    const int linhas = quantos > 1 ? std::atoi(argumentos[1]) : 1000000;
    const int voltas = quantos > 2 ? std::atoi(argumentos[2]) : 200;
    const QTemporaryDir grande, pequena;
    if (!Prepara(grande.path(), linhas) || !Prepara(pequena.path(), 10))
        return 1;
    SemMensagens mensagens;
    nucleo::Armazem comMuitas(grande.path(), "QX70.MDB", mensagens);
    nucleo::Armazem comPoucas(pequena.path(), "QX70.MDB", mensagens);
    cheques::TextosDoCheque cheque{"001", "1.234,56", "Padaria", "Campinas", "21/11/26", "000123", {}};
    std::vector<double> muitas, poucas;
    for (int i = 0; i < voltas; ++i) {
        muitas.push_back(Grava(comMuitas, cheque));
        poucas.push_back(Grava(comPoucas, cheque));
    }
    std::printf("adding a row: %d rows %.3f ms, 10 rows %.3f ms, ratio %.2f\n", linhas, Mediana(muitas) * 1e3,
                Mediana(poucas) * 1e3, Mediana(muitas) / Mediana(poucas));
    return 0;
}
