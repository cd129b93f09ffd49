// See ComMain.h.
#include "ComMain.h"

#include "device/Operacoes.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QTimer>

namespace teste {

ComMain::ComMain() : m_pastaAntes(QDir::currentPath())
{
    qputenv("QX70_GRAVADORA_SAIDA", QFile::encodeName(m_escritorio.Arquivo("chamadas.txt")));
    qputenv("QX70_GRAVADORA_ROTEIRO", QFile::encodeName(m_escritorio.Arquivo("roteiro.txt")));
}

ComMain::~ComMain()
{
    m_app.reset();
    QDir::setCurrent(m_pastaAntes); // the program works in the office folder, which goes now
}

void ComMain::SetUp()
{
    m_escritorio.CriaBanco();
    PoeBiblioteca(GRAVADORA);
}

app::Main &ComMain::Monta()
{
    Termina();
    m_app = std::make_unique<app::Aplicacao>(m_escritorio.Pasta(), m_relogio);
    return Tela();
}

app::Main &ComMain::Inicia(const app::ArgumentosLinha &argumentos)
{
    Monta().IniciaAplicacao(argumentos);
    QApplication::processEvents();
    return Tela();
}

void ComMain::Termina()
{
    m_app.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void ComMain::Ativa()
{
    Tela().activateWindow();
    // Not qWaitForWindowActive(): to that, a window is active while one that belongs to it is.
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &Tela(); }));
}

void ComMain::TerminaAbertura()
{
    Tique();
    Tique();
    Ativa();
}

void ComMain::Tique()
{
    auto *timer = Tela().findChild<QTimer *>("Timer1");
    ASSERT_NE(timer, nullptr);
    ASSERT_TRUE(QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QWidget *ComMain::Janela(const QString &nome)
{
    const auto janelas = QApplication::topLevelWidgets();
    for (QWidget *janela : janelas) {
        if (janela->objectName() == nome && janela->isVisible())
            return janela;
    }
    return nullptr;
}

void ComMain::Escolhe(const QString &entrada)
{
    auto *acao = Tela().findChild<QAction *>(entrada);
    ASSERT_NE(acao, nullptr) << entrada.toStdString();
    acao->trigger();
}

void ComMain::PoeArquivo(const QString &nome, const QByteArray &conteudo, bool executavel) const
{
    QFile arquivo(m_escritorio.Arquivo(nome));
    ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
    ASSERT_EQ(arquivo.write(conteudo), conteudo.size());
    if (executavel) {
        ASSERT_TRUE(arquivo.setPermissions(arquivo.permissions() | QFile::ExeOwner | QFile::ExeUser));
    }
}

void ComMain::PoeBiblioteca(const char *origem) const
{
    const QString destino = m_escritorio.Arquivo(device::kArquivoDaBiblioteca);
    QFile::remove(destino);
    ASSERT_TRUE(QFile::copy(QString::fromLocal8Bit(origem), destino));
}

QStringList ComMain::Chamadas() const
{
    QFile arquivo(m_escritorio.Arquivo("chamadas.txt"));
    if (!arquivo.open(QIODevice::ReadOnly))
        return {};
    return QString::fromLatin1(arquivo.readAll()).split('\n', Qt::SkipEmptyParts);
}

} // namespace teste
