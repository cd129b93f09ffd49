// qx70-demonstracao: the main job with nobody at the keyboard. The real screen gets real key events, the real
// library prints on whatever stands on the port, and the row goes into the log.
#include "app/Aplicacao.h"
#include "app/Main.h"
#include "plataforma/ambiente/CopiaUnica.h"

#include <cstdio>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

constexpr int kPasso = 50; // ms between looks for an open message box

// Answers each message box with Enter; anything but the question for the document is a failure.
class Atendente final : public QObject {
public:
    Atendente()
    {
        m_relogio.setInterval(kPasso);
        connect(&m_relogio, &QTimer::timeout, this, &Atendente::Olha);
        m_relogio.start();
    }
    [[nodiscard]] bool PediuDocumento() const { return m_pediu; }
    [[nodiscard]] bool Falhou() const { return m_falhou; }

private:
    void Olha()
    {
        auto *caixa = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!caixa)
            return;
        std::printf("%s: %s\n", caixa->windowTitle().toUtf8().constData(),
                    caixa->text().toUtf8().constData());
        if (caixa->text() == QStringLiteral("Insira o Documento."))
            m_pediu = true;
        else
            m_falhou = true;
        QTest::keyClick(caixa->defaultButton(), Qt::Key_Return);
    }

    QTimer m_relogio;
    bool m_pediu = false;
    bool m_falhou = false;
};

void Digita(app::Main &tela, const QString &texto)
{
    for (const QChar letra : texto)
        QTest::sendKeyEvent(QTest::Click, tela.focusWidget(), Qt::Key_unknown, QString(letra),
                            Qt::NoModifier);
    QTest::keyClick(tela.focusWidget(), Qt::Key_Return);
}

} // namespace

int main(int quantos, char **argumentos)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication qt(quantos, argumentos);
    app::CarregaTraducao();
    const QString caminhoApp = app::CaminhoDaInstalacao();
    const plataforma::CopiaUnica copia(caminhoApp);
    if (!copia.Primeira()) {
        std::fputs("O programa já está aberto nesta pasta.\n", stderr);
        return 1;
    }
    const nucleo::RelogioDaMaquina relogio;
    app::Aplicacao aplicacao(caminhoApp, relogio);
    app::Main &tela = aplicacao.TelaPrincipal();
    const Atendente atendente;
    tela.IniciaAplicacao({});
    if (!QTest::qWaitForWindowActive(&tela))
        return 1;

    Digita(tela, QStringLiteral("1"));
    Digita(tela, QStringLiteral("1234,56"));
    Digita(tela, QString::fromUtf8("Padaria São João Ltda"));
    Digita(tela, QString::fromUtf8("São Paulo"));
    Digita(tela, QString());
    Digita(tela, QStringLiteral("000123"));
    const bool noBotao =
        tela.focusWidget() && tela.focusWidget()->objectName() == QStringLiteral("Opcoes(0)");
    if (!noBotao) {
        std::fputs("A entrada do cheque não chegou ao botão de imprimir.\n", stderr);
        return 1;
    }
    QTest::keyClick(tela.focusWidget(), Qt::Key_Return);
    tela.close();
    return atendente.PediuDocumento() && !atendente.Falhou() ? 0 : 1;
}
