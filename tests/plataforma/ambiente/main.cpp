// Entry of the test program: an event loop without a screen.
#include <gtest/gtest.h>
#include <QCoreApplication>

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
