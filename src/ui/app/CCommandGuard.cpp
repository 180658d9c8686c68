#include "CCommandGuard.h"

#include "core/CDebug.h"
#include "core/CKorvane.h"
#include "core/FMessageBox.h"
#include "core/KorvaneError.h"

#include <new>

namespace {

void report(const QString& text)
{
    CKorvane* root = RootOrNull();
    if (!root)
        return;
    if (CDebug* trace = root->TracePtr())
        trace->DenoteMethod(text);
    FMessageBox::Tell(text, FMessageBox::Icon::Critical);
}

} // namespace

void CCommandGuard::Run(const std::function<void()>& command)
{
    try {
        command();
    } catch (const KorvaneError& failure) {
        report(failure.Description());
    } catch (const std::bad_alloc&) {
        report(tr("There is not enough memory to complete this command."));
    } catch (const std::exception& failure) {
        report(QString::fromLocal8Bit(failure.what()));
    }
}
