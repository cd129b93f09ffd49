// An impatient operator: a key pressed while the device works.
#pragma once

#include "apoio/Escritorio.h"

#include <atomic>
#include <fcntl.h>
#include <QApplication>
#include <QFile>
#include <QPointer>
#include <QTest>
#include <stdexcept>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace teste {

/// Presses a key once while the first device call of its life blocks the program. The recording library reads
/// its script at each call, and waits at this one until the key is on its way. The key comes to the window
/// that can take it once the program looks for keys again: a modal one, be it a box, else the screen given.
class TeclaNoEnvio {
public:
    TeclaNoEnvio(const apoio::Escritorio &escritorio, Qt::Key tecla, QWidget *tela = nullptr)
        : m_roteiro(QFile::encodeName(escritorio.Arquivo("roteiro.txt"))), m_tecla(tecla), m_tela(tela)
    {
        unlink(m_roteiro.constData());
        if (mkfifo(m_roteiro.constData(), 0600) != 0)
            throw std::runtime_error("no pipe in the place of the script");
        m_fio = std::thread([this] { EsperaEAperta(); });
    }
    ~TeclaNoEnvio()
    {
        m_fim = true;
        // Where no call came, the other end of the pipe.
        const int fd = open(m_roteiro.constData(), O_RDWR | O_CLOEXEC);
        m_fio.join();
        if (fd >= 0)
            close(fd);
    }
    TeclaNoEnvio(const TeclaNoEnvio &) = delete;
    TeclaNoEnvio &operator=(const TeclaNoEnvio &) = delete;

    [[nodiscard]] bool Apertou() const { return m_apertou; }
    /// Whether the pointer was the hourglass when the program looked for keys.
    [[nodiscard]] bool Ampulheta() const { return m_ampulheta; }

private:
    void EsperaEAperta()
    {
        const int fd = open(m_roteiro.constData(), O_WRONLY | O_CLOEXEC);
        if (!m_fim) {
            unlink(m_roteiro.constData()); // the calls that follow find no script, and do not wait
            QMetaObject::invokeMethod(
                qApp, [this] { Aperta(); }, Qt::QueuedConnection);
        }
        close(fd);
    }
    void Aperta()
    {
        const QCursor *cursor = QGuiApplication::overrideCursor();
        m_ampulheta = cursor && cursor->shape() == Qt::WaitCursor;
        QWidget *janela = QApplication::activeModalWidget();
        if (!janela)
            janela = m_tela;
        if (!janela)
            return;
        m_apertou = true;
        QTest::keyClick(janela->focusWidget() ? janela->focusWidget() : janela, m_tecla);
    }

    QByteArray m_roteiro;
    Qt::Key m_tecla;
    QPointer<QWidget> m_tela;
    std::atomic<bool> m_fim = false;
    bool m_apertou = false;
    bool m_ampulheta = false;
    std::thread m_fio;
};

/// A key, what the operator answers to the questions, and what goes out then.
struct CasoTecla {
    std::string nome;
    Qt::Key tecla;
    bool cancela; ///< the question behind the first page; all others are agreed to
};
inline void PrintTo(const CasoTecla &c, std::ostream *os)
{
    *os << c.nome;
}
// Esc would cancel, the others would agree.
inline const auto kTeclas = testing::Values(CasoTecla{"EscCancelsNothing", Qt::Key_Escape, false},
                                            CasoTecla{"EnterAgreesToNothing", Qt::Key_Return, true},
                                            CasoTecla{"SpaceAgreesToNothing", Qt::Key_Space, true});

} // namespace teste
