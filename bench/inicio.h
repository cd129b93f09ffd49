// Starts a program on an X server and measures until its window stands, or until the start is done.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <xcb/xcb.h>

namespace bancada {

struct Medida {
    double segundos = 0;
    long picoKb = 0; ///< peak memory a moment after the window is on the screen
};

enum class Ate {
    Mapeada, ///< the window is on the screen
    Fechada  ///< asked to close as soon as it stands, it has done its start, closed and ended
};

struct FechaX {
    void operator()(xcb_connection_t *x) const { xcb_disconnect(x); }
};
using ConexaoX = std::unique_ptr<xcb_connection_t, FechaX>;

/// Runs a measurement with a display, one of our own when there is none. @return the program's exit code
int Executa(const std::function<void()> &medicao);
/// Starts a program, waits for its window of that title, ends the program.
/// @throws std::runtime_error when the window does not come
Medida Mede(const std::string &programa, const char *titulo, const char *argumento = nullptr,
            Ate ate = Ate::Mapeada);

} // namespace bancada
