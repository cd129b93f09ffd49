// Entry of the test programs with windows: they run on the offscreen platform, also when only asked for their
// list.
#include "app/Aplicacao.h"

#include <gtest/gtest.h>
#include <QApplication>

int main(int quantos, char **argumentos)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&quantos, argumentos);
    const QApplication qt(quantos, argumentos);
    QApplication::setQuitOnLastWindowClosed(false);
    app::CarregaTraducao();
    return RUN_ALL_TESTS();
}
