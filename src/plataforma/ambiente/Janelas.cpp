// Windows by title over libxcb; the connection lives as long as one call.
#include "plataforma/ambiente/Janelas.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <QCoreApplication>
#include <QGuiApplication>
#include <vector>
#include <xcb/xcb.h>
#include <xcb/xcb_ewmh.h>

namespace plataforma {
namespace {

struct Libera {
    void operator()(void *memoria) const { std::free(memoria); }
};
template <typename T> using Resposta = std::unique_ptr<T, Libera>;

constexpr std::uint32_t kMaxPalavrasTitulo = 1024; // 32-bit units asked of a title: 4096 bytes
constexpr std::uint32_t kEstadoIcone = 3;          // IconicState in the property WM_STATE

/// Whether the program itself is shown on a desktop; one without a screen looks at nobody's windows.
bool TemDesktop()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return false;
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr)
        return true;
    const QString plataforma = QGuiApplication::platformName();
    return plataforma == u"xcb" || plataforma.startsWith(u"wayland"); // X programs live beside Wayland ones
}

/// An open display with the names of the window manager's properties.
class Display {
public:
    Display()
    {
        if (!TemDesktop())
            return;
        m_conexao = xcb_connect(nullptr, nullptr);
        if (xcb_connection_has_error(m_conexao) == 0)
            m_pronto =
                xcb_ewmh_init_atoms_replies(&m_ewmh, xcb_ewmh_init_atoms(m_conexao, &m_ewmh), nullptr) != 0;
        if (m_pronto)
            m_wmState = Atomo("WM_STATE");
    }
    ~Display()
    {
        if (m_pronto)
            xcb_ewmh_connection_wipe(&m_ewmh);
        if (m_conexao != nullptr)
            xcb_disconnect(m_conexao);
    }
    Display(const Display &) = delete;
    Display &operator=(const Display &) = delete;

    /// The managed windows of all screens, oldest first.
    [[nodiscard]] std::vector<xcb_window_t> Janelas()
    {
        std::vector<xcb_window_t> janelas;
        for (int tela = 0; m_pronto && tela < m_ewmh.nb_screens; ++tela) {
            xcb_ewmh_get_windows_reply_t lista;
            if (xcb_ewmh_get_client_list_reply(&m_ewmh, xcb_ewmh_get_client_list(&m_ewmh, tela), &lista,
                                               nullptr) == 0)
                continue;
            janelas.insert(janelas.end(), lista.windows, lista.windows + lista.windows_len);
            xcb_ewmh_get_windows_reply_wipe(&lista);
        }
        return janelas;
    }

    /// The title of a window; empty when it has none or is gone.
    [[nodiscard]] QString Titulo(xcb_window_t janela)
    {
        if (const auto nome =
                Propriedade(janela, m_ewmh._NET_WM_NAME, m_ewmh.UTF8_STRING, kMaxPalavrasTitulo))
            return QString::fromUtf8(*nome);
        const auto antigo =
            Propriedade(janela, XCB_ATOM_WM_NAME, XCB_GET_PROPERTY_TYPE_ANY, kMaxPalavrasTitulo);
        return antigo ? QString::fromLatin1(*antigo) : QString();
    }

    /// Asks the window manager to restore and to activate a window.
    bool Ativa(xcb_window_t janela)
    {
        if (Minimizada(janela))
            xcb_map_window(m_conexao, janela);
        const int tela = TelaDaJanela(janela);
        if (tela < 0)
            return false;
        // A request in the name of the operator (a pager's): the window manager then never merely flashes the
        // window.
        xcb_ewmh_request_change_active_window(&m_ewmh, tela, janela, XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER,
                                              XCB_CURRENT_TIME, XCB_WINDOW_NONE);
        // The round trip makes sure that the requests have been carried out before the display is closed.
        Resposta<xcb_get_input_focus_reply_t> fim(
            xcb_get_input_focus_reply(m_conexao, xcb_get_input_focus(m_conexao), nullptr));
        return fim != nullptr;
    }

private:
    xcb_atom_t Atomo(const char *nome)
    {
        const auto tamanho = static_cast<std::uint16_t>(qstrlen(nome));
        Resposta<xcb_intern_atom_reply_t> r(
            xcb_intern_atom_reply(m_conexao, xcb_intern_atom(m_conexao, 0, tamanho, nome), nullptr));
        return r ? r->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    }

    std::optional<QByteArray> Propriedade(xcb_window_t janela, xcb_atom_t nome, xcb_atom_t tipo,
                                          std::uint32_t palavras)
    {
        Resposta<xcb_get_property_reply_t> r(xcb_get_property_reply(
            m_conexao, xcb_get_property(m_conexao, 0, janela, nome, tipo, 0, palavras), nullptr));
        if (!r || xcb_get_property_value_length(r.get()) == 0)
            return std::nullopt;
        return QByteArray(static_cast<const char *>(xcb_get_property_value(r.get())),
                          xcb_get_property_value_length(r.get()));
    }

    bool Minimizada(xcb_window_t janela)
    {
        const auto estado = Propriedade(janela, m_wmState, m_wmState, 2);
        std::uint32_t valor = 0;
        if (estado && estado->size() >= static_cast<qsizetype>(sizeof valor))
            std::memcpy(&valor, estado->constData(),
                        sizeof valor); // in this machine's byte order, as the server gives it
        return valor == kEstadoIcone;
    }

    int TelaDaJanela(xcb_window_t janela)
    {
        Resposta<xcb_get_geometry_reply_t> r(
            xcb_get_geometry_reply(m_conexao, xcb_get_geometry(m_conexao, janela), nullptr));
        for (int tela = 0; r && tela < m_ewmh.nb_screens; ++tela) {
            if (m_ewmh.screens[tela]->root == r->root)
                return tela;
        }
        return -1;
    }

    xcb_connection_t *m_conexao = nullptr;
    xcb_ewmh_connection_t m_ewmh{};
    xcb_atom_t m_wmState = XCB_ATOM_NONE;
    bool m_pronto = false;
};

} // namespace

QStringList TitulosDasJanelas()
{
    QStringList titulos;
    Display display;
    for (const xcb_window_t janela : display.Janelas()) {
        if (const QString titulo = display.Titulo(janela); !titulo.isEmpty())
            titulos.append(titulo);
    }
    return titulos;
}

void PercorreJanelas(const std::function<void(const QString &titulo)> &visita)
{
    Display display;
    for (const xcb_window_t janela : display.Janelas()) {
        if (const QString titulo = display.Titulo(janela); !titulo.isEmpty())
            visita(titulo);
        QCoreApplication::processEvents();
    }
}

bool AtivaJanela(const QString &titulo)
{
    if (titulo.isEmpty())
        return false;
    Display display;
    for (const xcb_window_t janela : display.Janelas()) {
        if (display.Titulo(janela) == titulo)
            return display.Ativa(janela);
    }
    return false;
}

} // namespace plataforma
