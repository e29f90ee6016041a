#include <gtest/gtest.h>

#include <QApplication>

extern "C" int gtk_init_check(int* argc, char*** argv);

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    if (!gtk_init_check(&argc, &argv)) return 1;
    return RUN_ALL_TESTS();
}
