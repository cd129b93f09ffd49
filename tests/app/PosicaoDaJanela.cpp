// Starts the main screen on an office folder and tells where its window stands: "x y width height".
#include "apoio/Escritorio.h"
#include "app/Aplicacao.h"
#include "app/Main.h"

#include <cstdio>
#include <QApplication>

int main(int quantos, char **argumentos)
{
    const QApplication qt(quantos, argumentos);
    const apoio::RelogioParado relogio{QDate(1999, 3, 5)};
    app::Aplicacao aplicacao(QApplication::arguments().value(1), relogio);
    aplicacao.TelaPrincipal().IniciaAplicacao({});
    QApplication::processEvents();
    const QRect janela = aplicacao.TelaPrincipal().frameGeometry();
    std::printf("%d %d %d %d\n", janela.x(), janela.y(), janela.width(), janela.height());
    return 0;
}
