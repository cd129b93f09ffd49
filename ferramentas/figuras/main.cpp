// qx70-figuras: draws the screens for the documents, and for a look at them in light and dark, at any scale
// (QT_SCALE_FACTOR). Usage: qx70-figuras OFFICE-FOLDER TARGET-FOLDER [claro|escuro]
#include "app/Main.h"
#include "app/ajuda/Ajuda.h"
#include "app/Aplicacao.h"
#include "cheques/EntradaCheque.h"
#include "plataforma/tela/Lista.h"
#include "plataforma/tela/Tela.h"

#include <cstdio>
#include <functional>
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QKeyEvent>
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

// Clicks the nth row of a register's list, from 0.
void EscolheNaLista(QWidget &tela, int linha)
{
    auto *lista = tela.findChild<plataforma::Lista *>(QStringLiteral("List1"));
    lista->PoeCorrente(linha);
    Q_EMIT lista->Clicada();
}

// The graphic adjustment of the first bank.
bool DesenhaAjuste(app::Main &main, const QString &arquivo)
{
    main.findChild<QAction *>(QStringLiteral("subChequeNormal"))->trigger();
    QCoreApplication::processEvents();
    auto *bancos = main.findChild<QWidget *>(QStringLiteral("Bancos"));
    EscolheNaLista(*bancos, 0);
    bancos->findChild<QAbstractButton *>(QStringLiteral("Command3D2"))->click();
    QCoreApplication::processEvents();
    auto *ajuste = bancos->findChild<QWidget *>(QStringLiteral("Ajusta"));
    ajuste->findChild<QWidget *>(QStringLiteral("Text1(3)"))->setFocus();
    QCoreApplication::processEvents();
    const bool gravou = ajuste->grab().save(arquivo);
    bancos->close();
    return gravou;
}

// A screen that stands over the list of the cheques, opened by its button there.
bool DesenhaSobreRelato(app::Main &main, const QString &botao, const QString &nome, const QString &arquivo,
                        const std::function<void(QWidget &)> &prepara)
{
    main.findChild<QAction *>(QStringLiteral("Relat"))->trigger();
    QCoreApplication::processEvents();
    auto *relato = main.findChild<QWidget *>(QStringLiteral("Relato"));
    relato->findChild<QAbstractButton *>(botao)->click();
    QCoreApplication::processEvents();
    auto *tela = relato->findChild<QWidget *>(nome);
    prepara(*tela);
    QCoreApplication::processEvents();
    const bool gravou = tela->grab().save(arquivo);
    relato->close();
    return gravou;
}

void PreencheFiltro(QWidget &tela)
{
    const auto poe = [&tela](const char *campo, const QString &texto) {
        auto *caixa = tela.findChild<QLineEdit *>(QLatin1String(campo));
        caixa->setFocus();
        QCoreApplication::processEvents();
        caixa->setText(texto);
    };
    poe("Text1(0)", QStringLiteral("1"));
    poe("Text1(1)", QStringLiteral("011126"));
    poe("Text1(2)", QStringLiteral("301126"));
    poe("Text1(3)", QStringLiteral("100"));
    poe("Text1(4)", QStringLiteral("99999,99"));
    poe("Text1(7)", QStringLiteral("nota fiscal"));
}

// F3 in a field of the main screen, and some letters typed in the popup.
bool DesenhaPesquisa(app::Main &main, const QString &campo, const QString &letras, const QString &arquivo)
{
    auto *caixa = main.findChild<QLineEdit *>(campo);
    caixa->setFocus();
    QKeyEvent f3(QEvent::KeyPress, Qt::Key_F3, Qt::NoModifier);
    QCoreApplication::sendEvent(caixa, &f3);
    auto *tela = main.findChild<QWidget *>(QStringLiteral("Pesquisa"));
    QCoreApplication::processEvents();
    tela->findChild<QLineEdit *>(QStringLiteral("Text1"))->setText(letras);
    tela->findChild<plataforma::Lista *>(QStringLiteral("List1"))->PoeCorrente(0);
    QCoreApplication::processEvents();
    const bool gravou = tela->grab().save(arquivo);
    tela->close();
    return gravou;
}

void PreencheConfigura(QWidget &tela)
{
    tela.findChild<QLineEdit *>(QStringLiteral("Text2(0)"))->setText(QStringLiteral("07"));
    tela.findChild<QLineEdit *>(QStringLiteral("Text2(1)"))
        ->setText(QString::fromUtf8("Companhia de Águas e Energia de São João da Boa V"));
    tela.findChild<QAbstractButton *>(QStringLiteral("Option3D2"))->click();
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
             Desenha(tela, QStringLiteral("Conf_Qx70"), QStringLiteral("Configura"),
                     arquivo(QStringLiteral("configura")), PreencheConfigura) &&
             Desenha(tela, QStringLiteral("MOpSoft"), QStringLiteral("OpSoft"),
                     arquivo(QStringLiteral("opsoft")), [](QWidget &) {}) &&
             Desenha(tela, QStringLiteral("subChequeNormal"), QStringLiteral("Bancos"),
                     arquivo(QStringLiteral("bancos")), [](QWidget &w) { EscolheNaLista(w, 0); }) &&
             Desenha(tela, QStringLiteral("Favor"), QStringLiteral("Favorec"),
                     arquivo(QStringLiteral("favorec")), [](QWidget &w) { EscolheNaLista(w, 2); }) &&
             Desenha(tela, QStringLiteral("Cidad"), QStringLiteral("Cidade"),
                     arquivo(QStringLiteral("cidade")), [](QWidget &) {}) &&
             Desenha(tela, QStringLiteral("Relat"), QStringLiteral("Relato"),
                     arquivo(QStringLiteral("relato")), [](QWidget &w) { EscolheNaLista(w, 1); }) &&
             DesenhaSobreRelato(tela, QStringLiteral("SSCommand6"), QStringLiteral("Filtro"),
                                arquivo(QStringLiteral("filtro")), PreencheFiltro) &&
             DesenhaSobreRelato(tela, QStringLiteral("SSCommand4"), QStringLiteral("ExcluiRel"),
                                arquivo(QStringLiteral("excluirel")), [](QWidget &) {}) &&
             Desenha(tela, QStringLiteral("Can_Rel"), QStringLiteral("CanRel"),
                     arquivo(QStringLiteral("canrel")), [](QWidget &) {}) &&
             DesenhaAjuste(tela, arquivo(QStringLiteral("ajusta"))) &&
             DesenhaPesquisa(tela, QStringLiteral("Text1(2)"), QStringLiteral("Ma"),
                             arquivo(QStringLiteral("pesquisa"))) &&
             gravou;
    app::Ajuda ajuda;
    ajuda.Mostra(QStringLiteral("Teclas"));
    ajuda.show();
    QCoreApplication::processEvents();
    gravou =
        ajuda.grab().save(destino.filePath(QStringLiteral("ajuda-%1-%2.png").arg(tom, escala))) && gravou;
    return gravou ? 0 : 1;
}
