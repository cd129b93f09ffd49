// Start to its end, closed at once, with 100,000 rows for the purge to look through against an empty log:
// turn by turn on one X server (Xvfb when no DISPLAY is set). Usage: bench_expurgo [rows] [turns]
#include "inicio.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <unistd.h>
#include <vector>

namespace {

using namespace bancada;

void Comanda(const std::string &comando)
{
    if (std::system(comando.c_str()) != 0)
        throw std::runtime_error(comando);
}

// An office whose period is so long that the purge looks at every row and asks nothing.
void FazEscritorio(const std::string &pasta, const std::string &cheques)
{
    const std::string banco = std::string(QX70_BIN_DIR) + "/qx70-banco";
    Comanda("mkdir -p " + pasta);
    Comanda("printf '[Sistema]\\r\\nport=COM2\\r\\n[Opcoes]\\r\\nPeriodoRelExc=32000\\r\\n' > " + pasta +
            "/QX70.INI");
    Comanda(banco + " cria " + pasta + " > /dev/null");
    Comanda(banco + " semeia " + pasta + " --cheques " + cheques + " > /dev/null 2>&1");
}

double Inicio(const std::string &pasta)
{
    setenv("QX70_HOME", pasta.c_str(), 1);
    return Mede(std::string(QX70_BIN_DIR) + "/qx70", "QX70 - Mira Document Printer", nullptr, Ate::Fechada)
        .segundos;
}

double Mediana(std::vector<double> valores)
{
    std::sort(valores.begin(), valores.end());
    return valores[valores.size() / 2];
}

void Compara(const std::string &linhas, int voltas)
{
    // A server whose last client goes starts afresh; this one stays for the whole run.
    const ConexaoX mantida(xcb_connect(nullptr, nullptr));
    char modelo[] = "/tmp/qx70-bancada-XXXXXX";
    if (!mkdtemp(modelo))
        throw std::runtime_error("no temporary folder");
    const std::string pasta = modelo;
    FazEscritorio(pasta + "/vazio", "0");
    FazEscritorio(pasta + "/cheio", linhas);
    std::vector<double> vazio, cheio;
    for (int i = 0; i <= voltas; ++i) {
        const double a = Inicio(pasta + "/vazio");
        const double b = Inicio(pasta + "/cheio");
        if (i == 0)
            continue; // warm-up
        vazio.push_back(a);
        cheio.push_back(b);
    }
    Comanda("rm -r " + pasta);
    std::printf("start and close: empty log %.3f s, %s rows %.3f s, ratio %.2f\n", Mediana(vazio),
                linhas.c_str(), Mediana(cheio), Mediana(cheio) / Mediana(vazio));
}

} // namespace

int main(int quantos, char **argumentos)
{
    const std::string linhas = quantos > 1 ? argumentos[1] : "100000";
    const int voltas = quantos > 2 ? std::atoi(argumentos[2]) : 15;
    return Executa([&] { Compara(linhas, voltas); });
}
