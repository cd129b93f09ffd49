// Start of the program: a second copy hands its fields to the running one and ends; the first one opens Main.
#include "app/Main.h"
#include "app/Aplicacao.h"
#include "app/LinhaComando.h"
#include "nucleo/Mensagens.h"
#include "plataforma/ambiente/CopiaUnica.h"
#include "plataforma/tela/Caixas.h"

#include <QApplication>
#include <QStringList>

namespace {

// The running copy may be printing, and a print is given a minute; it takes the values when it comes back.
constexpr int kEsperaDaOutraCopia = 65000; // ms

app::ArgumentosLinha LeArgumentos(int quantos, char **argumentos)
{
    QStringList linha;
    for (int i = 1; i < quantos; ++i)
        linha << QString::fromLocal8Bit(argumentos[i]);
    return app::LeLinhaComando(linha.join(QLatin1Char(' ')));
}

plataforma::Campos CamposDe(const app::ArgumentosLinha &argumentos)
{
    plataforma::Campos campos;
    for (int i = 0; i <= 6; ++i)
        if (!argumentos[static_cast<std::size_t>(i)].isEmpty())
            campos.append({i, argumentos[static_cast<std::size_t>(i)]});
    return campos;
}

int CopiaNaoResponde(int &quantos, char **argumentos)
{
    const QApplication qt(quantos, argumentos);
    app::CarregaTraducao();
    plataforma::Caixas caixas;
    caixas.MsgBox(QStringLiteral("O programa já está aberto, mas não responde.\n"
                                 "Veja se ele espera uma resposta ou a impressora, e tente de novo."),
                  nucleo::Botoes::Ok, nucleo::Icone::Exclamacao, nucleo::kTituloPadrao);
    return 1;
}

} // namespace

int main(int quantos, char **argumentos)
{
    const QString caminhoApp = app::CaminhoDaInstalacao();
    const app::ArgumentosLinha linha = LeArgumentos(quantos, argumentos);
    plataforma::CopiaUnica copia(caminhoApp);
    if (!copia.Primeira()) {
        if (copia.Entrega(CamposDe(linha), kEsperaDaOutraCopia))
            return 0;
        if (!copia.TentaDeNovo())
            return CopiaNaoResponde(quantos, argumentos);
    }

    QApplication qt(quantos, argumentos);
    QApplication::setApplicationName(QStringLiteral("qx70"));
    QApplication::setQuitOnLastWindowClosed(false);
    app::CarregaTraducao();
    const nucleo::RelogioDaMaquina relogio;
    app::Aplicacao aplicacao(caminhoApp, relogio);
    app::Main &tela = aplicacao.TelaPrincipal();
    bool encerrada = false;
    QObject::connect(&tela, &app::Main::Encerrou, &qt, [&encerrada] {
        encerrada = true;
        QCoreApplication::exit(0);
    });
    copia.Atende([&tela](const plataforma::Campos &campos) { tela.Recebe(campos); });
    tela.IniciaAplicacao(linha);
    // Closed while a question of the start was still open: there is no loop to leave any more.
    return encerrada ? 0 : QApplication::exec();
}
