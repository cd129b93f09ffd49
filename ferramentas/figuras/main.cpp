// qx70-figuras: draws the screens for the documents, and for a look at them in light and dark, at any scale
// (QT_SCALE_FACTOR). Usage: qx70-figuras OFFICE-FOLDER TARGET-FOLDER [claro|escuro]
#include "app/Main.h"
#include "app/ajuda/Ajuda.h"
#include "app/Aplicacao.h"
#include "cheques/EntradaCheque.h"
#include "plataforma/tela/Tela.h"

#include <cstdio>
#include <functional>
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QStyleFactory>

namespace {

QPalette Escura()
{
    QPalette paleta(QColor(53, 53, 53), QColor(42, 42, 42));
    paleta.setColor(QPalette::Base, QColor(30, 30, 30));
    paleta.setColor(QPalette::Text, Qt::white);
    paleta.setColor(QPalette::WindowText, Qt::white);
    paleta.setColor(QPalette::ButtonText, Qt::white);
    paleta.setColor(QPalette::PlaceholderText, QColor(160, 160, 160));
    paleta.setColor(QPalette::Highlight, QColor(61, 129, 190));
    paleta.setColor(QPalette::HighlightedText, Qt::white);
    paleta.setColor(QPalette::Link, QColor(110, 180, 240));
    for (const QPalette::ColorRole papel : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        paleta.setColor(QPalette::Disabled, papel, QColor(130, 130, 130));
    return paleta;
}

void Preenche(app::Main &tela)
{
    cheques::EntradaCheque &entrada = tela.Entrada();
    entrada.PoeCampo(cheques::CampoBanco, QStringLiteral("001"));
    entrada.PoeCampo(cheques::CampoValor, QStringLiteral("1.234,56"));
    entrada.PoeCampo(cheques::CampoFavorecido, QString::fromUtf8("Padaria São João Ltda"));
    entrada.PoeCampo(cheques::CampoCidade, QString::fromUtf8("São Paulo"));
    entrada.PoeCampo(cheques::CampoData, QStringLiteral("21/11/26"));
    entrada.PoeCampo(cheques::CampoNumero, QStringLiteral("000123"));
    const QStringList linhas = {QString::fromUtf8("Referente à nota fiscal 4711 de novembro"),
                                QStringLiteral("Conferido por Ana"), QString(),
                                QStringLiteral("Pague-se somente ao favorecido")};
    for (int i = 0; i < linhas.size(); ++i)
        tela.findChild<QLineEdit *>(QStringLiteral("Text2(%1)").arg(i))->setText(linhas[i]);
    tela.findChild<QLineEdit *>(QStringLiteral("TxtCpo(0)"))->setText(QStringLiteral("CRUZADO EM PRETO"));
    // Leaving the bank looks its name up, as it does for the clerk.
    tela.Caminha(tela.findChild<QWidget *>(QStringLiteral("Text1(1)")));
}

// Opens a screen by its menu entry and draws it. @param prepara what the clerk does in it first
bool Desenha(app::Main &main, const QString &entrada, const QString &nome, const QString &arquivo,
             const std::function<void(QWidget &)> &prepara)
{
    main.findChild<QAction *>(entrada)->trigger();
    QCoreApplication::processEvents();
    auto *tela = main.findChild<QWidget *>(nome);
    prepara(*tela);
    QCoreApplication::processEvents();
    const bool gravou = tela->grab().save(arquivo);
    tela->close();
    return gravou;
}

void PreencheCmpExtra(QWidget &tela)
{
    tela.findChild<QAbstractButton *>(QStringLiteral("CmdNumCampo(0)"))->click();
    tela.findChild<QLineEdit *>(QStringLiteral("PosText(0)"))->setText(QStringLiteral("2"));
    tela.findChild<QLineEdit *>(QStringLiteral("PosText(1)"))->setText(QStringLiteral("40"));
}

} // namespace

int main(int quantos, char **argumentos)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication qt(quantos, argumentos);
    if (quantos < 3) {
        std::fputs("Uso: qx70-figuras PASTA-DO-ESCRITORIO PASTA-DAS-FIGURAS [claro|escuro]\n", stderr);
        return 2;
    }
    app::CarregaTraducao();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QString tom = QString::fromLocal8Bit(quantos > 3 ? argumentos[3] : "claro");
    if (tom == QStringLiteral("escuro"))
        QApplication::setPalette(Escura());
    const QDir destino(QString::fromLocal8Bit(argumentos[2]));
    const QString escala = QString::number(qt.devicePixelRatio() * 100);
    const nucleo::RelogioDaMaquina relogio;
    app::Aplicacao aplicacao(QDir(QString::fromLocal8Bit(argumentos[1])).absolutePath(), relogio);
    app::Main &tela = aplicacao.TelaPrincipal();
    tela.IniciaAplicacao({});
    QMetaObject::invokeMethod(tela.findChild<QObject *>(QStringLiteral("Timer1")), "timeout");
    QMetaObject::invokeMethod(tela.findChild<QObject *>(QStringLiteral("Timer1")), "timeout");
    tela.activateWindow();
    tela.findChild<QWidget *>(QStringLiteral("Text1(0)"))->setFocus();
    Preenche(tela);
    QCoreApplication::processEvents();
    bool gravou = tela.grab().save(destino.filePath(QStringLiteral("main-%1-%2.png").arg(tom, escala)));
    const auto arquivo = [&](const QString &nome) {
        return destino.filePath(QStringLiteral("%1-%2-%3.png").arg(nome, tom, escala));
    };
    gravou = Desenha(tela, QStringLiteral("CpoX"), QStringLiteral("CmpExtra"),
                     arquivo(QStringLiteral("cmpextra")), PreencheCmpExtra) &&
             Desenha(tela, QStringLiteral("MOpSoft"), QStringLiteral("OpSoft"),
                     arquivo(QStringLiteral("opsoft")), [](QWidget &) {}) &&
             gravou;
    app::Ajuda ajuda;
    ajuda.Mostra(QStringLiteral("Teclas"));
    ajuda.show();
    QCoreApplication::processEvents();
    gravou =
        ajuda.grab().save(destino.filePath(QStringLiteral("ajuda-%1-%2.png").arg(tom, escala))) && gravou;
    return gravou ? 0 : 1;
}
