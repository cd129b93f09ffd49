// Start to the main window on the screen, and peak memory by then, of qx70 against an empty window: turn by
// turn on one X server (Xvfb when no DISPLAY is set). Usage: bench_inicio [office folder] [turns]
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>
#include <xcb/xcb.h>

namespace {

using Relogio = std::chrono::steady_clock;

constexpr int kEsperaMs = 20000;
constexpr int kAssentaMs = 300; // after the window is mapped, for the peak of its first painting

struct Medida {
    double segundos = 0;
    long picoKb = 0;
};

struct FechaX {
    void operator()(xcb_connection_t *x) const { xcb_disconnect(x); }
};
using ConexaoX = std::unique_ptr<xcb_connection_t, FechaX>;

long PicoDe(pid_t processo)
{
    std::ifstream estado("/proc/" + std::to_string(processo) + "/status");
    for (std::string linha; std::getline(estado, linha);)
        if (linha.rfind("VmHWM:", 0) == 0)
            return std::atol(linha.c_str() + 6);
    return 0;
}

std::string Propriedade(xcb_connection_t *x, xcb_window_t janela, xcb_atom_t nome)
{
    xcb_get_property_reply_t *resposta = xcb_get_property_reply(
        x, xcb_get_property(x, 0, janela, nome, XCB_GET_PROPERTY_TYPE_ANY, 0, 64), nullptr);
    if (!resposta)
        return {};
    std::string valor(static_cast<const char *>(xcb_get_property_value(resposta)),
                      static_cast<std::size_t>(xcb_get_property_value_length(resposta)));
    std::free(resposta);
    return valor;
}

std::string TituloDe(xcb_connection_t *x, xcb_window_t janela)
{
    const char nome[] = "_NET_WM_NAME";
    xcb_intern_atom_reply_t *atomo =
        xcb_intern_atom_reply(x, xcb_intern_atom(x, 0, sizeof nome - 1, nome), nullptr);
    const std::string titulo = atomo ? Propriedade(x, janela, atomo->atom) : std::string();
    std::free(atomo);
    return titulo.empty() ? Propriedade(x, janela, XCB_ATOM_WM_NAME) : titulo;
}

pid_t Inicia(const std::string &programa, const char *argumento)
{
    const pid_t filho = fork();
    if (filho == 0) {
        execl(programa.c_str(), programa.c_str(), argumento, static_cast<char *>(nullptr));
        _exit(127);
    }
    return filho;
}

// Waits until a window of that title is mapped on the root.
bool EsperaJanela(xcb_connection_t *x, const char *titulo)
{
    const auto fim = Relogio::now() + std::chrono::milliseconds(kEsperaMs);
    while (Relogio::now() < fim) {
        while (xcb_generic_event_t *evento = xcb_poll_for_event(x)) {
            const bool mapeada = (evento->response_type & 0x7F) == XCB_MAP_NOTIFY;
            const xcb_window_t janela = reinterpret_cast<xcb_map_notify_event_t *>(evento)->window;
            std::free(evento);
            if (mapeada && TituloDe(x, janela) == titulo)
                return true;
        }
        pollfd espera{xcb_get_file_descriptor(x), POLLIN, 0};
        poll(&espera, 1, 50);
    }
    return false;
}

Medida Mede(const std::string &programa, const char *titulo, const char *argumento = nullptr)
{
    const ConexaoX x(xcb_connect(nullptr, nullptr));
    const xcb_screen_t *tela = xcb_setup_roots_iterator(xcb_get_setup(x.get())).data;
    const std::uint32_t mascara = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(x.get(), tela->root, XCB_CW_EVENT_MASK, &mascara);
    free(xcb_get_input_focus_reply(x.get(), xcb_get_input_focus(x.get()), nullptr));
    Medida medida;
    const auto inicio = Relogio::now();
    const pid_t filho = Inicia(programa, argumento);
    const bool apareceu = EsperaJanela(x.get(), titulo);
    medida.segundos = std::chrono::duration<double>(Relogio::now() - inicio).count();
    usleep(kAssentaMs * 1000);
    medida.picoKb = PicoDe(filho);
    kill(filho, SIGKILL);
    waitpid(filho, nullptr, 0);
    if (!apareceu)
        throw std::runtime_error(programa + ": no window \"" + titulo + '"');
    return medida;
}

template <class F> double Mediana(std::vector<Medida> medidas, F valor)
{
    std::sort(medidas.begin(), medidas.end(),
              [&](const Medida &a, const Medida &b) { return valor(a) < valor(b); });
    return valor(medidas[medidas.size() / 2]);
}

// A display of our own when there is none. @return its process, 0 when one was there
pid_t PreparaTela()
{
    if (std::getenv("DISPLAY"))
        return 0;
    int canos[2];
    if (pipe(canos) != 0)
        std::exit(1);
    const std::string descritor = std::to_string(canos[1]);
    const pid_t xvfb = fork();
    if (xvfb == 0) {
        execlp("Xvfb", "Xvfb", "-displayfd", descritor.c_str(), "-screen", "0", "1280x1024x24",
               static_cast<char *>(nullptr));
        _exit(127);
    }
    close(canos[1]);
    char numero[16] = ":";
    const ssize_t lidos = read(canos[0], numero + 1, sizeof numero - 2);
    if (lidos <= 0)
        std::exit(1);
    numero[std::strcspn(numero, "\n")] = '\0';
    setenv("DISPLAY", numero, 1);
    return xvfb;
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
    const pid_t xvfb = PreparaTela();
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    int resultado = 0;
    try {
        Compara(voltas);
    } catch (const std::exception &falha) {
        std::fprintf(stderr, "%s\n", falha.what());
        resultado = 1;
    }
    if (xvfb > 0) {
        kill(xvfb, SIGTERM);
        waitpid(xvfb, nullptr, 0);
    }
    return resultado;
}
