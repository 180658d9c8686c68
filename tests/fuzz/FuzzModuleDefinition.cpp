// Reads a module definition from bytes: the header first, as every start of
// the program does for each module, then the body, as the first use does.
#include "FuzzEnvironment.h"

#include "contexts/CModuleDefinition.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString directory = FuzzEnvironment::Get().WriteScratch(
        QStringLiteral("module.def"),
        QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    CModuleDefinition definition;
    if (!definition.LoadHeader(directory + QStringLiteral("module.def")) ||
        !definition.LoadBody()) {
        if (definition.LastError().isEmpty())
            qFatal("a refused module definition came without a reason");
        return 0;
    }
    // Every token must name a category the definition holds.
    for (std::int32_t i = 1; i <= definition.TokenCount(); ++i) {
        const std::int32_t category = definition.TokenCategoryNum(i);
        if (category < 1 || category > definition.CategoryCount())
            qFatal("token %d is in category %d of %d", i, category, definition.CategoryCount());
    }
    return 0;
}
