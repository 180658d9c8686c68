#include "support/RootFixture.h"

#include "core/CKorvane.h"

#include <memory>

void RootFixture::SetUp()
{
    auto root = std::make_shared<CKorvane>();
    InstallRoot(root);
    root->Constructor(nullptr);
}

void RootFixture::TearDown()
{
    ReleaseRoot();
}
