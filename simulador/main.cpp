// The program qx70-simulador: a QX-70 on a pseudo-terminal, with or without a window.
#include <cstdio>
#include <memory>
#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <unistd.h>

#include "Comandos.h"
#include "Janela.h"
#include "Opcoes.h"
#include "Simulador.h"

using namespace simulador;

namespace {

void Diz(std::FILE *onde, const QString &linha)
{
    std::fputs(linha.toUtf8().constData(), onde);
    std::fflush(onde);
}

/// A program without a window needs no display.
void EscolheTela(bool janela)
{
    const bool haTela = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !(janela && haTela))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

void Liga(Simulador &simulador)
{
    QObject::connect(&simulador, &Simulador::Linha,
                     [](const QString &linha) { Diz(stdout, linha + QLatin1Char('\n')); });
    QObject::connect(&simulador, &Simulador::Aviso, [](const QString &aviso) {
        Diz(stderr, QStringLiteral("qx70-simulador: %1\n").arg(aviso));
    });
    // Behind the events still waiting, so that an end before the loop begins is not lost.
    QObject::connect(&simulador, &Simulador::Terminou, QCoreApplication::instance(), &QCoreApplication::quit,
                     Qt::QueuedConnection);
}

/// @param simulador wired to a window already, if there is one
int Roda(QGuiApplication &aplicacao, Simulador &simulador, const Opcoes &opcoes)
{
    Liga(simulador);
    Sinais sinais;
    QObject::connect(&sinais, &Sinais::Chegou, &simulador, &Simulador::Encerra);
    const QString falha = simulador.Inicia();
    if (!falha.isEmpty()) {
        Diz(stderr, QStringLiteral("qx70-simulador: %1\n").arg(falha));
        return 1;
    }
    std::unique_ptr<Comandos> comandos;
    if (opcoes.comandos) {
        comandos = std::make_unique<Comandos>(STDIN_FILENO);
        QObject::connect(comandos.get(), &Comandos::Linha, &simulador, [&simulador](const QString &linha) {
            const QString erro = simulador.Obedece(linha);
            if (!erro.isEmpty())
                Diz(stderr, QStringLiteral("qx70-simulador: %1\n").arg(erro));
        });
    }
    return aplicacao.exec();
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList argumentos;
    for (int i = 1; i < argc; ++i)
        argumentos << QString::fromLocal8Bit(argv[i]);
    const auto lido = LeOpcoes(argumentos);
    if (const auto *texto = std::get_if<SoTexto>(&lido)) {
        Diz(stdout, texto->texto);
        return 0;
    }
    if (const auto *errada = std::get_if<OpcaoErrada>(&lido)) {
        Diz(stderr, QStringLiteral("qx70-simulador: %1 Veja qx70-simulador --ajuda.\n").arg(errada->motivo));
        return 2;
    }
    const auto &opcoes = std::get<Opcoes>(lido);
    EscolheTela(opcoes.janela);
    if (!opcoes.janela) {
        QGuiApplication aplicacao(argc, argv);
        Simulador simulador(opcoes);
        return Roda(aplicacao, simulador, opcoes);
    }
    QApplication aplicacao(argc, argv);
    QTranslator traducao; // standard texts of the toolkit in Portuguese
    if (traducao.load(QStringLiteral("qtbase_pt_BR"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&traducao);
    Simulador simulador(opcoes);
    Janela janela(simulador);
    janela.show();
    return Roda(aplicacao, simulador, opcoes);
}
