#include "screen/support/gl_window.h"

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    openTestWindow(&argc, argv);
    return RUN_ALL_TESTS();
}
