#include "core/CVector.h"

#include <gtest/gtest.h>

TEST(CVector, smoke)
{
    CVector<int> v;
    v.AddItem(std::make_shared<int>(1));
    EXPECT_EQ(v.Count(), 1);
}
