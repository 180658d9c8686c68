#include "support/ContextTestSupport.h"
#include "support/GameFixture.h"
#include "ui/dialogs/CNameCheck.h"
#include "ui/dialogs/frmEditNumUnit.h"
#include "ui/dialogs/frmEditTextUnit.h"
#include "ui/dialogs/frmGameProps.h"
#include "ui/dialogs/frmMapProps.h"
#include "ui/dialogs/frmNewMap.h"
#include "ui/dialogs/frmProgress.h"
#include "ui/dialogs/frmSplitUnit.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>
#include <vector>

namespace {

// The real unit dialogs behind a scripted GUI whose message boxes are recorded.
class DialogGui : public ScriptedGui
{
public:
    ScriptedMessages Boxes;
    frmEditNumUnit EditNum;
    frmEditTextUnit EditText;
    frmSplitUnit Split;

    FMessageBox* Messages() override { return &Boxes; }
    FEditUnitNumDlg* EditUnitNumDlg() override { return &EditNum; }
    FEditUnitTextDlg* EditUnitTextDlg() override { return &EditText; }
    FSplitUnitDlg* SplitUnitDlg() override { return &Split; }
};

// The game fixture with DialogGui as the root's GUI.
class Dialogs : public GameFixture
{
protected:
    using Step = std::function<void(QDialog&)>;

    std::unique_ptr<CGui> MakeGui() override
    {
        auto made = std::make_unique<DialogGui>();
        dialogs = made.get();
        gui = made.get();
        return made;
    }

    // Runs each step on the modal dialog about to open, one event-loop turn
    // apart, as a user would act; a dialog still open after the last step is
    // cancelled. Call it just before the call that opens the dialog.
    static void drive(std::vector<Step> steps)
    {
        next(std::make_shared<std::vector<Step>>(std::move(steps)), 0);
    }

    DialogGui* dialogs = nullptr;

    // Each chain of steps keeps to the dialog it started on: once that one
    // has closed, a later dialog is left alone.
    static void next(std::shared_ptr<std::vector<Step>> steps, std::size_t i,
                     QPointer<QDialog> driven = nullptr)
    {
        QTimer::singleShot(0, [steps, i, driven] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || (i > 0 && dialog != driven))
                return;
            if (i == steps->size()) {
                dialog->reject();
                return;
            }
            (*steps)[i](*dialog);
            if (dialog->isVisible())
                next(steps, i + 1, dialog);
        });
    }

    // Types into a field of the open dialog.
    static Step type(const char* field, const QString& text)
    {
        return [field, text](QDialog& d) {
            QWidget* w = d.findChild<QWidget*>(QLatin1String(field));
            if (auto* line = qobject_cast<QLineEdit*>(w))
                line->setText(text);
            else if (auto* box = qobject_cast<QPlainTextEdit*>(w))
                box->setPlainText(text);
        };
    }
    // Clicks OK as a user would, then notes the message shown ("open" when
    // none, "closed" once the dialog has closed) and, while open, the focus.
    Step pressOk(QStringList& seen) const
    {
        return [this, &seen](QDialog& d) {
            auto* ok = d.findChild<QPushButton*>(QStringLiteral("cmdOk"));
            ok->setFocus();
            const std::size_t before = dialogs->Boxes.Boxes.size();
            ok->click();
            QString line = d.isVisible() ? QStringLiteral("open") : QStringLiteral("closed");
            if (dialogs->Boxes.Boxes.size() > before) {
                const auto& box = dialogs->Boxes.Boxes.back();
                line = box.Title + '|' + box.Text +
                       (box.Kind == FMessageBox::Icon::Exclamation ? "|!" : "|?");
            }
            if (d.isVisible())
                line += '|' + d.focusWidget()->objectName();
            seen << line;
        };
    }
};

TEST_F(Dialogs, nameDialogsRefuseBadNamesAndStayOpenWithTheFocusOnTheName)
{
    const auto archive = std::make_shared<CMapGroup>(CUtility::GenerateId());
    game->MapGroups().AddItem(archive);
    AddMap(*archive, QStringLiteral("Setup"));
    const QString chars = CNameCheck::CharactersMessage();
    EXPECT_EQ(chars, "Name cannot contain any of the following characters:\r\t\\/:*?\"<>|&");

    frmNewMap newMap;
    QStringList seen;
    drive({type("txtName", "   "), pressOk(seen), type("txtName", "Supply & Demand"), pressOk(seen),
           type("txtName", "Turn 1"), pressOk(seen), type("txtName", " turn 1 "),
           type("txtRemarks", "  dawn  "), pressOk(seen)});
    EXPECT_TRUE(newMap.Display(QStringLiteral("Turn 3")));
    EXPECT_EQ(
        seen,
        (QStringList{"Korvane|Name cannot be blank.|!|txtName", "Korvane|" + chars + "|!|txtName",
                     "Korvane|A Map named 'Turn 1' already exists.|!|txtName", "closed"}));
    EXPECT_EQ(newMap.Name() + '|' + newMap.Remarks(), "turn 1|dawn");
    // A name only another archive uses is free; Escape cancels.
    seen.clear();
    drive({type("txtName", "Setup"), pressOk(seen)});
    EXPECT_TRUE(newMap.Display(QString()));
    drive({[](QDialog& d) { QTest::keyClick(&d, Qt::Key_Escape); }});
    EXPECT_FALSE(newMap.Display(QString()));

    // A map keeps its own name but cannot take a neighbour's; Protected is the check box.
    frmMapProps mapProps;
    seen.clear();
    drive({type("txtName", "Turn 1"), pressOk(seen), type("txtName", "Turn 2"),
           [](QDialog& d) { d.findChild<QCheckBox*>(QStringLiteral("chkProtected"))->click(); },
           pressOk(seen)});
    EXPECT_TRUE(mapProps.Display(second));
    EXPECT_EQ(seen,
              (QStringList{"Korvane|A Map named 'Turn 1' already exists.|!|txtName", "closed"}));
    EXPECT_TRUE(mapProps.Protected());

    // A game may share a map's name, but not be blank; Enter, even in the remarks, is OK.
    frmGameProps gameProps;
    seen.clear();
    drive({type("txtName", ""), pressOk(seen), type("txtName", "Turn 1"), [](QDialog& d) {
               QTest::keyClick(d.findChild<QPlainTextEdit*>(QStringLiteral("txtRemarks")),
                               Qt::Key_Return);
           }});
    EXPECT_TRUE(gameProps.Display(QStringLiteral("Old"), QString()));
    EXPECT_EQ(seen, QStringList{"Korvane|Name cannot be blank.|!|txtName"});
    EXPECT_EQ(gameProps.Name(), "Turn 1");
}

TEST_F(Dialogs, unitDialogsOfferTheirBoundsAndReachTheUnitThroughItsMenu)
{
    std::shared_ptr<CUnit> stack = put(QStringLiteral("INF"), 200, 200, QStringLiteral("12"));
    QStringList offered;
    const auto pick = [&offered](const char* combo, const QString& value) {
        return [&offered, combo, value](QDialog& d) {
            auto* box = d.findChild<QComboBox*>(QLatin1String(combo));
            offered << QStringLiteral("%1:%2..%3 at %4")
                           .arg(box->count())
                           .arg(box->itemText(0), box->itemText(box->count() - 1),
                                box->currentText());
            box->setCurrentIndex(box->findText(value));
            QTest::keyClick(box, Qt::Key_Return);
        };
    };
    drive({pick("cboNewValue", "150")});
    choose(stack, QStringLiteral("EDIT"));
    EXPECT_EQ(stack->Data() + stack->Caption(), "150x150");

    const std::shared_ptr<CUnit> marker = put(QStringLiteral("MARK"), 50, 50, QStringLiteral("7"));
    drive({pick("cboNewValue", "0")});
    choose(marker, QStringLiteral("EDIT"));
    EXPECT_EQ(marker->Data(), "0");

    QString oldValue;
    drive({[&oldValue](QDialog& d) {
               oldValue = d.findChild<QLineEdit*>(QStringLiteral("txtOldValue"))->text();
           },
           pick("cboSplitAmt", "40")});
    choose(stack, QStringLiteral("SPLIT_x"));
    EXPECT_EQ(offered, (QStringList{"200:1..200 at 12", "201:0..200 at 7", "149:1..149 at 1"}));
    EXPECT_EQ(oldValue, "150");
    EXPECT_EQ(stack->Data() + '/' + lastUnit()->Data(), "110/40");

    QStringList seen;
    const std::shared_ptr<CUnit> note = put(QStringLiteral("NOTE"), 70, 70, QStringLiteral("old"));
    drive({type("txtText", "  "), pressOk(seen), type("txtText", "Bridge out"),
           type("txtExtended", "Blown on turn 2\nby sappers"), pressOk(seen)});
    choose(note, QStringLiteral("EDIT"));
    EXPECT_EQ(seen, (QStringList{"Korvane|Text cannot be blank.|!|txtText", "closed"}));
    EXPECT_EQ(note->Caption() + '|' + note->Data(), "Bridge out|Blown on turn 2\nby sappers");
}

TEST_F(Dialogs, progressStartsAtPleaseWaitAndShowsAmpersandsAsTheyAre)
{
    frmProgress progress;
    auto* status = progress.findChild<QLabel*>(QStringLiteral("lblStatus"));
    progress.UpdateStatus(QStringLiteral("Opening..."), 0);
    progress.Load();
    EXPECT_EQ(status->text(), "Please Wait...");
    progress.UpdateStatus(QStringLiteral("Loading 'Guns & Butter'..."), 0.2F);
    // One "&" in the text and no buddy: the label draws it, never an access key.
    EXPECT_EQ(status->text().count(QLatin1Char('&')), 1);
    EXPECT_EQ(status->buddy(), nullptr);
}

} // namespace
