#pragma once

#include "core/CGui.h"
#include "core/CKorvane.h"
#include "support/ContextTestSupport.h"
#include "support/TestHome.h"

#include <gtest/gtest.h>

#include <memory>

// A test with a temporary home and a constructed application root, released
// (and disposed) when the test ends.
class RootFixture : public ::testing::Test
{
protected:
    void SetUp() override
    {
        StartRoot(nullptr, [this] { return MakeGui(); });
    }
    void TearDown() override { ReleaseRoot(); }
    // The GUI the root builds when it is constructed; none by default.
    virtual std::unique_ptr<CGui> MakeGui() { return nullptr; }

    TestHome home;
};
