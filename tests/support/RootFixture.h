#pragma once

#include "support/TestHome.h"

#include <gtest/gtest.h>

#include <memory>

class CGui;

// A test with a temporary home and a constructed application root, released
// (and disposed) when the test ends.
class RootFixture : public ::testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;
    // The GUI the root builds when it is constructed; none by default.
    virtual std::unique_ptr<CGui> MakeGui();

    TestHome home;
};
