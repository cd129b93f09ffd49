// Start to the main window on the screen, and peak memory by then, of qx70 against an empty window: turn by
// turn on one X server (Xvfb when no DISPLAY is set). Usage: bench_inicio [office folder] [turns]
#include "inicio.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <vector>

namespace {

using namespace bancada;

template <class F> double Mediana(std::vector<Medida> medidas, F valor)
{
    std::sort(medidas.begin(), medidas.end(),
              [&](const Medida &a, const Medida &b) { return valor(a) < valor(b); });
    return valor(medidas[medidas.size() / 2]);
}

void Conta(const char *medida, const std::vector<Medida> &programa, const std::vector<Medida> &outra)
{
    const auto tempo = [](const Medida &m) { return m.segundos; };
    const auto pico = [](const Medida &m) { return static_cast<double>(m.picoKb); };
    std::printf("start:  qx70 %.3f s, %s %.3f s, ratio %.2f\n", Mediana(programa, tempo), medida,
                Mediana(outra, tempo), Mediana(programa, tempo) / Mediana(outra, tempo));
    std::printf("memory: qx70 %.1f MB, %s %.1f MB, ratio %.2f\n", Mediana(programa, pico) / 1024, medida,
                Mediana(outra, pico) / 1024, Mediana(programa, pico) / Mediana(outra, pico));
}

void Compara(int voltas)
{
    // A server whose last client goes starts afresh; this one stays for the whole run.
    const ConexaoX mantida(xcb_connect(nullptr, nullptr));
    const std::string pasta = QX70_BIN_DIR;
    std::vector<Medida> programa, vazia, texto;
    for (int i = 0; i <= voltas; ++i) {
        const Medida a = Mede(pasta + "/qx70", "QX70 - Mira Document Printer");
        const Medida b = Mede(pasta + "/janela-vazia", "Janela vazia");
        const Medida c = Mede(pasta + "/janela-vazia", "Janela vazia", "texto");
        if (i == 0)
            continue; // warm-up
        programa.push_back(a);
        vazia.push_back(b);
        texto.push_back(c);
    }
    Conta("an empty window", programa, vazia);
    Conta("a window with one word", programa, texto);
}

} // namespace

int main(int quantos, char **argumentos)
{
    if (quantos > 1)
        setenv("QX70_HOME", argumentos[1], 1);
    const int voltas = quantos > 2 ? std::atoi(argumentos[2]) : 15;
    return Executa([&] { Compara(voltas); });
}
