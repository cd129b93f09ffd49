// Start of the simulator's tests: a display is not needed.
#include <gmock/gmock.h>
#include <QApplication>

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    QApplication aplicacao(argc, argv);
    return RUN_ALL_TESTS();
}
