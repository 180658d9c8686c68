#include "core/CVector.h"

#include <gtest/gtest.h>

// Moving a vector hands its items over; the source is left empty and usable.
TEST(CVectorMove, theSourceIsLeftEmptyAndUsable)
{
    auto item = std::make_shared<int>(5);
    CVector<int> source;
    source.AddItem(item);
    source.AddItem(std::make_shared<int>(6));

    CVector<int> target(std::move(source));
    EXPECT_EQ(target.Count(), 2);
    EXPECT_EQ(source.Count(), 0);
    source.AddItem(std::make_shared<int>(7));
    EXPECT_EQ(*source.Item(1), 7);

    CVector<int> assigned;
    assigned.AddItem(std::make_shared<int>(1));
    assigned = std::move(target);
    EXPECT_EQ(assigned.Count(), 2);
    EXPECT_EQ(assigned.Item(1), item);
    EXPECT_EQ(target.Count(), 0);
    EXPECT_EQ(item.use_count(), 2) << "one reference in the test, one in the vector";
}
