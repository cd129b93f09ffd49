// The real program: a second start hands over and ends, and closing the window ends the first with code 0.
#include "apoio/Caixas.h"
#include "apoio/Escritorio.h"

#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <QFile>
#include <QProcess>
#include <QTest>
#include <vector>
#include <xcb/xcb.h>

namespace {

constexpr int kLimiteMs = 60000;

class ProcessoTest : public testing::Test {
protected:
    void SetUp() override
    {
        m_escritorio.CriaBanco();
        m_ambiente.insert("QX70_HOME", m_escritorio.Pasta());
        m_ambiente.insert("XDG_RUNTIME_DIR", m_usuario.path());
        m_ambiente.insert("QT_QPA_PLATFORM", "offscreen");
    }
    void TearDown() override
    {
        if (m_primeiro.state() != QProcess::NotRunning) {
            m_primeiro.kill();
            m_primeiro.waitForFinished(kLimiteMs);
        }
    }
    /// Starts the first copy and waits until it has gone through its settings.
    void IniciaPrimeiro(const QStringList &argumentos = {})
    {
        QFile::remove(m_escritorio.Arquivo("QX70.INI"));
        m_primeiro.setProcessEnvironment(m_ambiente);
        m_primeiro.start(QX70_BIN_DIR "/qx70", argumentos);
        ASSERT_TRUE(m_primeiro.waitForStarted(kLimiteMs));
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return m_escritorio.Chave("Sistema", "port") == "COM2"; }, kLimiteMs));
    }
    /// Runs a second copy to its end. @return its exit code, -1 when it did not end by itself
    int CodigoDoSegundo(const QStringList &argumentos)
    {
        QProcess segundo;
        segundo.setProcessEnvironment(m_ambiente);
        segundo.start(QX70_BIN_DIR "/qx70", argumentos);
        if (!segundo.waitForFinished(kLimiteMs)) {
            segundo.kill();
            segundo.waitForFinished(kLimiteMs);
            return -1;
        }
        return segundo.exitStatus() == QProcess::NormalExit ? segundo.exitCode() : -1;
    }

    apoio::Escritorio m_escritorio;
    QTemporaryDir m_usuario;
    QProcess m_primeiro;
    QProcessEnvironment m_ambiente = QProcessEnvironment::systemEnvironment();
};

TEST_F(ProcessoTest, SecondStartHandsOverAndEndsWithZero)
{
    IniciaPrimeiro({"/V10,00"});
    EXPECT_EQ(CodigoDoSegundo({"/V20,00", "/C000123"}), 0);
    EXPECT_EQ(m_primeiro.state(), QProcess::Running);
}

TEST_F(ProcessoTest, SecondStartWithoutArgumentsMerelyBringsTheFirstUp)
{
    IniciaPrimeiro();
    EXPECT_EQ(CodigoDoSegundo({}), 0);
    EXPECT_EQ(m_primeiro.state(), QProcess::Running);
}

/// A display of the test's own, and what an operator's window manager would ask of a window there.
class NoMonitorTest : public ProcessoTest {
protected:
    void SetUp() override
    {
        ProcessoTest::SetUp();
        m_servidor.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1024x768x24", "-nolisten", "tcp"});
        ASSERT_TRUE(m_servidor.waitForStarted(kLimiteMs)) << "Xvfb is missing";
        while (!m_servidor.canReadLine())
            ASSERT_TRUE(m_servidor.waitForReadyRead(kLimiteMs));
        const QByteArray monitor = ":" + m_servidor.readLine().trimmed();
        m_conexao = xcb_connect(monitor.constData(), nullptr);
        ASSERT_EQ(xcb_connection_has_error(m_conexao), 0);
        m_ambiente.insert("DISPLAY", monitor);
        m_ambiente.insert("QT_QPA_PLATFORM", "xcb");
    }
    void TearDown() override
    {
        ProcessoTest::TearDown();
        if (m_conexao != nullptr)
            xcb_disconnect(m_conexao);
        m_servidor.terminate();
        if (!m_servidor.waitForFinished(kLimiteMs))
            m_servidor.kill();
    }
    xcb_atom_t Atomo(const char *nome)
    {
        const auto pedido =
            xcb_intern_atom(m_conexao, 0, static_cast<std::uint16_t>(std::strlen(nome)), nome);
        auto *resposta = xcb_intern_atom_reply(m_conexao, pedido, nullptr);
        const xcb_atom_t atomo = resposta ? resposta->atom : XCB_NONE;
        std::free(resposta);
        return atomo;
    }
    QByteArray Titulo(xcb_window_t janela)
    {
        const auto pedido =
            xcb_get_property(m_conexao, 0, janela, Atomo("_NET_WM_NAME"), XCB_ATOM_ANY, 0, 256);
        auto *resposta = xcb_get_property_reply(m_conexao, pedido, nullptr);
        QByteArray titulo;
        if (resposta)
            titulo = QByteArray(static_cast<const char *>(xcb_get_property_value(resposta)),
                                xcb_get_property_value_length(resposta));
        std::free(resposta);
        return titulo;
    }
    bool Mapeada(xcb_window_t janela)
    {
        const auto pedido = xcb_get_window_attributes(m_conexao, janela);
        auto *resposta = xcb_get_window_attributes_reply(m_conexao, pedido, nullptr);
        const bool mapeada = resposta && resposta->map_state == XCB_MAP_STATE_VIEWABLE;
        std::free(resposta);
        return mapeada;
    }
    /// The window on the screen that has this title; XCB_NONE when there is none.
    xcb_window_t Janela(const QByteArray &titulo)
    {
        const xcb_window_t raiz = xcb_setup_roots_iterator(xcb_get_setup(m_conexao)).data->root;
        auto *arvore = xcb_query_tree_reply(m_conexao, xcb_query_tree(m_conexao, raiz), nullptr);
        xcb_window_t achada = XCB_NONE;
        for (int i = 0; arvore && i < xcb_query_tree_children_length(arvore); ++i) {
            const xcb_window_t janela = xcb_query_tree_children(arvore)[i];
            if (Mapeada(janela) && Titulo(janela) == titulo)
                achada = janela;
        }
        std::free(arvore);
        return achada;
    }
    /// Asks the window to close, as its frame's button does.
    void Fecha(xcb_window_t janela)
    {
        xcb_client_message_event_t evento{};
        evento.response_type = XCB_CLIENT_MESSAGE;
        evento.format = 32;
        evento.window = janela;
        evento.type = Atomo("WM_PROTOCOLS");
        evento.data.data32[0] = Atomo("WM_DELETE_WINDOW");
        evento.data.data32[1] = XCB_CURRENT_TIME;
        xcb_send_event(m_conexao, 0, janela, XCB_EVENT_MASK_NO_EVENT,
                       reinterpret_cast<const char *>(&evento));
        xcb_flush(m_conexao);
    }

    QProcess m_servidor;
    xcb_connection_t *m_conexao = nullptr;
};

TEST_F(NoMonitorTest, ClosingTheWindowWritesInRelAndEndsWithZero)
{
    IniciaPrimeiro({"/V10,00"});
    xcb_window_t janela = XCB_NONE;
    ASSERT_TRUE(QTest::qWaitFor([&] { return (janela = Janela("QX70 - Mira Document Printer")) != XCB_NONE; },
                                kLimiteMs));
    m_escritorio.GravaIni("[Sistema]\nInRel=0\nport=COM1\n");
    Fecha(janela);
    ASSERT_TRUE(m_primeiro.state() == QProcess::NotRunning || m_primeiro.waitForFinished(kLimiteMs));
    EXPECT_EQ(m_primeiro.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(m_primeiro.exitCode(), 0);
    EXPECT_EQ(m_escritorio.LeIni(), "[Sistema]\r\nInRel=1\r\nport=COM1\r\n");
    EXPECT_EQ(m_primeiro.readAllStandardError().toStdString(), "");
}

TEST_F(NoMonitorTest, AfterTheEndTheNextStartIsTheFirstAgain)
{
    IniciaPrimeiro();
    xcb_window_t janela = XCB_NONE;
    ASSERT_TRUE(QTest::qWaitFor([&] { return (janela = Janela("QX70 - Mira Document Printer")) != XCB_NONE; },
                                kLimiteMs));
    Fecha(janela);
    ASSERT_TRUE(m_primeiro.state() == QProcess::NotRunning || m_primeiro.waitForFinished(kLimiteMs));
    IniciaPrimeiro();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return Janela("QX70 - Mira Document Printer") != XCB_NONE; }, kLimiteMs));
}

} // namespace
