#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir settings; // how the user last looked at file dialogs is no part of a test
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    QApplication application(argc, argv);
    QApplication::setApplicationName("TallyStrata test");
    return RUN_ALL_TESTS();
}
