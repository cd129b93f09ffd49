// The test's own display.
#include "Desktop.h"

#include <cstdlib>
#include <cstring>

namespace {
constexpr int kLimiteMs = 20000;
}

void DesktopTeste::SetUp()
{
    m_displayAntes = qgetenv("DISPLAY");
    m_servidor.start(QStringLiteral("Xvfb"),
                     {"-displayfd", "1", "-screen", "0", "320x240x24", "-nolisten", "tcp"});
    ASSERT_TRUE(m_servidor.waitForStarted(kLimiteMs)) << "Xvfb is missing";
    while (!m_servidor.canReadLine())
        ASSERT_TRUE(m_servidor.waitForReadyRead(kLimiteMs));
    qputenv("DISPLAY", ":" + m_servidor.readLine().trimmed());

    m_conexao = xcb_connect(nullptr, nullptr);
    ASSERT_EQ(xcb_connection_has_error(m_conexao), 0);
    ASSERT_TRUE(xcb_ewmh_init_atoms_replies(&m_ewmh, xcb_ewmh_init_atoms(m_conexao, &m_ewmh), nullptr));
    m_raiz = m_ewmh.screens[0]->root;
    auto *atomo = xcb_intern_atom_reply(m_conexao, xcb_intern_atom(m_conexao, 0, 8, "WM_STATE"), nullptr);
    m_wmState = atomo->atom;
    std::free(atomo);
    const std::uint32_t mascara = XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_conexao, m_raiz, XCB_CW_EVENT_MASK, &mascara);
    Sincroniza();
}

void DesktopTeste::TearDown()
{
    if (m_conexao != nullptr) {
        xcb_ewmh_connection_wipe(&m_ewmh);
        xcb_disconnect(m_conexao);
    }
    m_servidor.terminate();
    if (!m_servidor.waitForFinished(kLimiteMs))
        m_servidor.kill();
    if (m_displayAntes.isEmpty())
        qunsetenv("DISPLAY");
    else
        qputenv("DISPLAY", m_displayAntes);
}

void DesktopTeste::Sincroniza()
{
    std::free(xcb_get_input_focus_reply(m_conexao, xcb_get_input_focus(m_conexao), nullptr));
}

xcb_window_t DesktopTeste::Cria(const char *novo, const char *antigo, bool minimizada)
{
    const xcb_window_t janela = xcb_generate_id(m_conexao);
    xcb_create_window(m_conexao, XCB_COPY_FROM_PARENT, janela, m_raiz, 0, 0, 10, 10, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    if (novo != nullptr)
        xcb_ewmh_set_wm_name(&m_ewmh, janela, static_cast<std::uint32_t>(std::strlen(novo)), novo);
    if (antigo != nullptr)
        xcb_change_property(m_conexao, XCB_PROP_MODE_REPLACE, janela, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                            static_cast<std::uint32_t>(std::strlen(antigo)), antigo);
    const std::uint32_t estado[2] = {minimizada ? 3U : 1U, XCB_NONE};
    xcb_change_property(m_conexao, XCB_PROP_MODE_REPLACE, janela, m_wmState, m_wmState, 32, 2, estado);
    Sincroniza();
    return janela;
}

void DesktopTeste::Lista(const std::vector<xcb_window_t> &janelas)
{
    std::vector<xcb_window_t> copia = janelas;
    xcb_ewmh_set_client_list(&m_ewmh, 0, static_cast<std::uint32_t>(copia.size()), copia.data());
    Sincroniza();
}

void DesktopTeste::Destroi(xcb_window_t janela)
{
    xcb_destroy_window(m_conexao, janela);
    Sincroniza();
}

DesktopTeste::Pedidos DesktopTeste::Recebidos()
{
    Pedidos pedidos;
    Sincroniza();
    while (auto *evento = xcb_poll_for_event(m_conexao)) {
        const int tipo = evento->response_type & 0x7f;
        if (tipo == XCB_MAP_REQUEST)
            pedidos.restaurar.push_back(reinterpret_cast<xcb_map_request_event_t *>(evento)->window);
        const auto *mensagem = reinterpret_cast<xcb_client_message_event_t *>(evento);
        if (tipo == XCB_CLIENT_MESSAGE && mensagem->type == m_ewmh._NET_ACTIVE_WINDOW) {
            pedidos.ativar.push_back(mensagem->window);
            pedidos.origem = mensagem->data.data32[0];
        }
        std::free(evento);
    }
    return pedidos;
}
