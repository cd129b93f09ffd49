// An impatient operator: what is pressed while the device works prints nothing more.
#include "Mesa.h"

#include <poll.h>
#include <QFile>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QWindow>
#include <sys/inotify.h>
#include <thread>
#include <unistd.h>

namespace inteira {

namespace {

constexpr int kLimite = 30000; // ms, for the document to come out
constexpr int kDemora = 3000;  // ms from the document to the device's answer

/// Keys and clicks that wait for the program's event loop; from any thread.
class Teclado {
public:
    Teclado(QWidget &tela, QPushButton &botao)
        : m_janela(tela.windowHandle()), m_ponto(botao.mapTo(&tela, botao.rect().center())),
          m_naTela(botao.mapToGlobal(botao.rect().center()))
    {
    }
    void Tecla(Qt::Key tecla) const
    {
        for (const QEvent::Type tipo : {QEvent::KeyPress, QEvent::KeyRelease})
            QCoreApplication::postEvent(m_janela, new QKeyEvent(tipo, tecla, Qt::NoModifier));
    }
    /// On the middle of the button.
    void Clique() const
    {
        for (const QEvent::Type tipo : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const Qt::MouseButtons apertados =
                tipo == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
            QCoreApplication::postEvent(m_janela, new QMouseEvent(tipo, m_ponto, m_naTela, Qt::LeftButton,
                                                                  apertados, Qt::NoModifier));
        }
    }

private:
    QWindow *m_janela;
    QPointF m_ponto;
    QPointF m_naTela;
};

/// Presses keys and the mouse once something comes out of the device, which is while the program still waits
/// for its answer.
class Impaciente {
public:
    /// @param pasta where documents come out
    Impaciente(const QString &pasta, const Teclado &teclado)
        : m_teclado(teclado), m_aviso(inotify_init1(IN_CLOEXEC))
    {
        m_olha =
            inotify_add_watch(m_aviso, QFile::encodeName(pasta).constData(), IN_MOVED_TO | IN_CLOSE_WRITE);
        m_fio = std::thread([this] { Aperta(); });
    }
    ~Impaciente()
    {
        if (m_fio.joinable())
            m_fio.join();
        close(m_aviso);
    }
    Impaciente(const Impaciente &) = delete;
    Impaciente &operator=(const Impaciente &) = delete;

    [[nodiscard]] bool Olhando() const { return m_olha >= 0; }
    /// Whether it has pressed; waits until it has or has given up.
    bool Apertou()
    {
        m_fio.join();
        return m_apertou;
    }

private:
    void Aperta()
    {
        pollfd pedido{m_aviso, POLLIN, 0};
        if (poll(&pedido, 1, kLimite) != 1)
            return;
        for (int vez = 0; vez < 2; ++vez) {
            m_teclado.Tecla(Qt::Key_Return);
            m_teclado.Tecla(Qt::Key_Space);
            m_teclado.Clique();
        }
        m_apertou = true;
    }

    const Teclado &m_teclado;
    int m_aviso;
    int m_olha = -1;
    bool m_apertou = false;
    std::thread m_fio;
};

class UmaImpressaoTest : public Mesa {
protected:
    UmaImpressaoTest()
    {
        CadastraBanco("001", "Primeiro", kPosicoesPadrao);
        Liga({"--demora", QString::number(kDemora)});
        Abre();
        Digita({"1", "10", "Ana", "Olinda", "010224", "1", {}});
    }
    Teclado NoBotao() { return {Tela(), *apoio::Controle<QPushButton>(Tela(), "Opcoes(0)")}; }
};

} // namespace

TEST_F(UmaImpressaoTest, WhatIsPressedWhileTheDeviceWorksPrintsNothingMore)
{
    aparelho.PoeFalha("lenta:1");
    const Teclado teclado = NoBotao();
    Impaciente operador(aparelho.PastaDosDocumentos(), teclado);
    ASSERT_TRUE(operador.Olhando());
    Imprime();
    ASSERT_TRUE(operador.Apertou());
    QCoreApplication::processEvents();
    EXPECT_EQ(Vistas(), std::vector{kInsira});
    EXPECT_EQ(aparelho.Documentos().size(), 1);
    EXPECT_EQ(Log().size(), 1);
    EXPECT_EQ(apoio::Foco(Tela()), "Text1(0)");
}

// The same presses do print when nothing blocks: they are real ones.
TEST_F(UmaImpressaoTest, APressAfterTheDeviceHasAnsweredPrintsAgain)
{
    Imprime();
    ASSERT_EQ(aparelho.Documentos().size(), 1);
    NoBotao().Clique();
    EXPECT_TRUE(QTest::qWaitFor([this] { return Log().size() == 2; }, kLimite));
    TabAte("Opcoes(0)");
    NoBotao().Tecla(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Log().size() == 3; }, kLimite));
    EXPECT_EQ(aparelho.Documentos().size(), 3);
}

} // namespace inteira
