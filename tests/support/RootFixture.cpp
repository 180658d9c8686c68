#include "support/RootFixture.h"

#include "core/CGui.h"
#include "core/CKorvane.h"

#include <memory>

void RootFixture::SetUp()
{
    auto root = std::make_shared<CKorvane>();
    root->SetGuiFactory([this] { return MakeGui(); });
    InstallRoot(root);
    root->Constructor(nullptr);
}

void RootFixture::TearDown()
{
    ReleaseRoot();
}

std::unique_ptr<CGui> RootFixture::MakeGui()
{
    return nullptr;
}
