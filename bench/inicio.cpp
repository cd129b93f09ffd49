// See inicio.h.
#include "inicio.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <poll.h>
#include <stdexcept>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bancada {

namespace {

using Relogio = std::chrono::steady_clock;

constexpr int kEsperaMs = 20000;
constexpr int kAssentaMs = 300; // after the window is mapped, for the peak of its first painting

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

xcb_atom_t Atomo(xcb_connection_t *x, const char *nome)
{
    xcb_intern_atom_reply_t *resposta = xcb_intern_atom_reply(
        x, xcb_intern_atom(x, 0, static_cast<std::uint16_t>(std::strlen(nome)), nome), nullptr);
    const xcb_atom_t atomo = resposta ? resposta->atom : xcb_atom_t{XCB_ATOM_NONE};
    std::free(resposta);
    return atomo;
}

std::string TituloDe(xcb_connection_t *x, xcb_window_t janela)
{
    const std::string titulo = Propriedade(x, janela, Atomo(x, "_NET_WM_NAME"));
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

// The next event that fits, 0 when none comes in time.
template <class F> xcb_window_t EsperaEvento(xcb_connection_t *x, F serve)
{
    const auto fim = Relogio::now() + std::chrono::milliseconds(kEsperaMs);
    while (Relogio::now() < fim) {
        while (xcb_generic_event_t *evento = xcb_poll_for_event(x)) {
            const xcb_window_t janela = serve(evento);
            std::free(evento);
            if (janela != 0)
                return janela;
        }
        pollfd espera{xcb_get_file_descriptor(x), POLLIN, 0};
        poll(&espera, 1, 50);
    }
    return 0;
}

// Waits until a window of that title is mapped on the root.
xcb_window_t EsperaJanela(xcb_connection_t *x, const char *titulo)
{
    return EsperaEvento(x, [&](xcb_generic_event_t *evento) -> xcb_window_t {
        if ((evento->response_type & 0x7F) != XCB_MAP_NOTIFY)
            return 0;
        const xcb_window_t janela = reinterpret_cast<xcb_map_notify_event_t *>(evento)->window;
        return TituloDe(x, janela) == titulo ? janela : 0;
    });
}

// Asks the window to close, as window managers do: the program obeys once its event loop runs. @return
// whether it has ended in time
bool EsperaFim(xcb_connection_t *x, xcb_window_t janela, pid_t filho)
{
    xcb_client_message_event_t fecha{};
    fecha.response_type = XCB_CLIENT_MESSAGE;
    fecha.format = 32;
    fecha.window = janela;
    fecha.type = Atomo(x, "WM_PROTOCOLS");
    fecha.data.data32[0] = Atomo(x, "WM_DELETE_WINDOW");
    xcb_send_event(x, 0, janela, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char *>(&fecha));
    xcb_flush(x);
    const int processo = static_cast<int>(syscall(SYS_pidfd_open, filho, 0));
    pollfd espera{processo, POLLIN, 0};
    const bool acabou = poll(&espera, 1, kEsperaMs) == 1;
    close(processo);
    return acabou;
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

} // namespace

Medida Mede(const std::string &programa, const char *titulo, const char *argumento, Ate ate)
{
    const ConexaoX x(xcb_connect(nullptr, nullptr));
    const xcb_screen_t *tela = xcb_setup_roots_iterator(xcb_get_setup(x.get())).data;
    const std::uint32_t mascara = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(x.get(), tela->root, XCB_CW_EVENT_MASK, &mascara);
    free(xcb_get_input_focus_reply(x.get(), xcb_get_input_focus(x.get()), nullptr));
    Medida medida;
    const auto inicio = Relogio::now();
    const pid_t filho = Inicia(programa, argumento);
    const xcb_window_t janela = EsperaJanela(x.get(), titulo);
    const bool apareceu = janela != 0 && (ate == Ate::Mapeada || EsperaFim(x.get(), janela, filho));
    medida.segundos = std::chrono::duration<double>(Relogio::now() - inicio).count();
    if (ate == Ate::Mapeada)
        usleep(kAssentaMs * 1000);
    medida.picoKb = PicoDe(filho);
    kill(filho, SIGKILL);
    waitpid(filho, nullptr, 0);
    if (!apareceu)
        throw std::runtime_error(programa + ": no window \"" + titulo + '"');
    return medida;
}

int Executa(const std::function<void()> &medicao)
{
    const pid_t xvfb = PreparaTela();
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    int resultado = 0;
    try {
        medicao();
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

} // namespace bancada
