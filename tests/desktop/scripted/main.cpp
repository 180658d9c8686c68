#include "actions/CActionEditGame.h"
#include "actions/CActionMgr.h"
#include "core/CKorvane.h"
#include "model/CGame.h"
#include "persist/CPersistMgr.h"
#include "ui/app/CProgram.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

// The korvane program driven by a script, for tests that need it as a
// process of its own (to kill it). $KORVANE_SCRIPT holds steps separated by
// ";", taken one every 100 ms: "yes" or "no" answers the message box on
// screen (waiting for one), "rename:NAME" renames the game through the
// action manager, "save" saves it, "quit" closes the main window.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QStringList steps = qEnvironmentVariable("KORVANE_SCRIPT").split(';', Qt::SkipEmptyParts);
    QTimer driver;
    QObject::connect(&driver, &QTimer::timeout, [&steps] {
        if (steps.isEmpty() || !RootOrNull())
            return;
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        const bool answer = steps[0] == "yes" || steps[0] == "no";
        if (answer != (box != nullptr) || (!answer && !Root().Game()))
            return;
        const QString step = steps.takeFirst();
        if (answer) {
            box->button(step == "yes" ? QMessageBox::Yes : QMessageBox::No)->click();
        } else if (step.startsWith("rename:")) {
            auto rename = std::make_shared<CActionEditGame>();
            rename->SetName(step.mid(7));
            Root().ActionMgr().Execute(rename);
        } else if (step == "save") {
            Root().PersistMgr().SaveCurrentGame();
        } else if (step == "quit") {
            QApplication::closeAllWindows();
        }
    });
    driver.start(100);
    return CProgram::Run(application);
}
