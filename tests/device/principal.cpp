// Runs the tests with an application object, which knows the folder of the executable.
#include <gtest/gtest.h>
#include <QCoreApplication>

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication aplicacao(argc, argv);
    return RUN_ALL_TESTS();
}
