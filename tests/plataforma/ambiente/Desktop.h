// A display of the test's own (Xvfb) on which the test plays the window manager.
#pragma once

#include "Mostra.h"
#include <gtest/gtest.h>
#include <QByteArray>
#include <QProcess>
#include <QString>
#include <vector>
#include <xcb/xcb.h>
#include <xcb/xcb_ewmh.h>

class DesktopTeste : public testing::Test {
protected:
    struct Pedidos {
        std::vector<xcb_window_t> restaurar; ///< windows that asked to be mapped
        std::vector<xcb_window_t> ativar;    ///< windows that were to be activated
        std::uint32_t origem = 0;            ///< of the last activation: 1 a program, 2 the operator
    };

    void SetUp() override;
    void TearDown() override;

    /// A window with these titles (none: left out), minimised or not; it is not in the list yet.
    xcb_window_t Cria(const char *novo, const char *antigo = nullptr, bool minimizada = false);
    /// What the window manager lists.
    void Lista(const std::vector<xcb_window_t> &janelas);
    void Destroi(xcb_window_t janela);
    /// What has been asked of the window manager so far.
    Pedidos Recebidos();

private:
    void Sincroniza();
    QProcess m_servidor;
    QByteArray m_displayAntes;
    xcb_connection_t *m_conexao = nullptr;
    xcb_ewmh_connection_t m_ewmh{};
    xcb_atom_t m_wmState = 0;
    xcb_window_t m_raiz = 0;
};
