#include "core/sheet_name.h"

#include <gtest/gtest.h>

TEST(FileBeside, ChangesTheEndingOfTheNameAlone)
{
    EXPECT_EQ(fileBeside("/cores/Lake1.csv", ".lab.csv"), "/cores/Lake1.lab.csv");
    EXPECT_EQ(fileBeside("C:\\cores.old\\Lake1", ".lab.csv"), "C:\\cores.old\\Lake1.lab.csv");
    EXPECT_EQ(fileBeside("/cores/.hidden", ".lab.csv"), "/cores/.hidden.lab.csv");
    EXPECT_EQ(fileBeside("", ".lab.csv"), "");
    EXPECT_EQ(fileNameOf("C:\\cores/Lake1.csv") + fileNameOf("Lake2"), "Lake1.csvLake2");
}
