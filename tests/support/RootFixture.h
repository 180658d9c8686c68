#pragma once

#include "support/TestHome.h"

#include <gtest/gtest.h>

// A test with a temporary home and a constructed application root, released
// (and disposed) when the test ends.
class RootFixture : public ::testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    TestHome home;
};
