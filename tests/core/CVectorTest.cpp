#include "core/CVector.h"

#include "core/CString.h"
#include "support/ErrorText.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using Vec = CVector<CString>;

namespace {

Vec make(const QString& letters)
{
    Vec v;
    for (const QChar c : letters)
        v.AddItem(std::make_shared<CString>(QString(c)));
    return v;
}

QString letters(const Vec& v)
{
    QString result;
    for (const auto& item : v)
        result += item->Value();
    return result;
}

} // namespace

// The hand-written move: the items change hands, and the source is left empty
// and usable.
TEST(CVector, MovingHandsTheItemsOverAndLeavesTheSourceUsable)
{
    Vec v = make(u"ABCD"_s);
    Vec moved(std::move(v));
    EXPECT_EQ(v.Count(), 0); // NOLINT(bugprone-use-after-move)
    v.AddItem(moved.Item(1));
    EXPECT_EQ(letters(moved) + letters(v), u"ABCDA"_s);
    EXPECT_EQ(moved.Item(1).use_count(), 2) << "one reference in each vector";
    Vec assigned = make(u"Z"_s);
    assigned = std::move(moved);
    EXPECT_EQ(letters(assigned) + letters(moved), u"ABCD"_s); // NOLINT(bugprone-use-after-move)
}

TEST(CVector, RaisesExactErrorsChangingNothingAndEditsKeepOrder)
{
    Vec v = make(u"ABC"_s);
    const auto other = std::make_shared<CString>(u"A"_s);
    const QString bounds = u": Out Of Bounds"_s;
    EXPECT_EQ(errorOf([&] { v.Item(0); }), u"1 CVector.Item"_s + bounds);
    EXPECT_EQ(errorOf([&] { v.SetItem(4, other); }), u"1 CVector.Item"_s + bounds);
    EXPECT_EQ(errorOf([&] { v.InsertItem(other, 5); }), u"1 CVector.InsertItem"_s + bounds);
    EXPECT_EQ(errorOf([&] { v.DeleteItem(4); }), u"1 CVector.DeleteItem"_s + bounds);
    EXPECT_EQ(errorOf([&] { v.RemoveItem(other); }), u"1 CVector.RemoveItem: Not Found"_s);
    EXPECT_EQ(errorOf([&] { v.Swap(1, 4); }), u"1 CVector.Swap"_s + bounds);
    for (const int n : {0, 3, -1})
        EXPECT_EQ(errorOf([&] { v.SwapRange(1, 2, n); }), u"1 CVector.SwapRange"_s + bounds);
    Vec full = make(u"ABCDEFGHIJ"_s);
    EXPECT_EQ(errorOf([&] { full.SetIncrement(0); }), u"1 CVector.Increment: Invalid Increment"_s);
    full.SetIncrement(-1); // accepted, but a full vector cannot grow by a negative step
    EXPECT_EQ(errorOf([&] { full.AddItem(other); }), u"1 CVector.AddItem: Invalid Increment"_s);
    EXPECT_EQ(letters(v) + letters(full), u"ABCABCDEFGHIJ"_s);
    EXPECT_EQ(v.Size(), 10);
    EXPECT_EQ(other.use_count(), 1);

    // Insert, delete and remove keep the order.
    Vec edited = make(u"BD"_s);
    edited.InsertItem(std::make_shared<CString>(u"A"_s), 1);
    edited.InsertItem(std::make_shared<CString>(u"C"_s), 3);
    edited.InsertItem(std::make_shared<CString>(u"E"_s), 5); // Count + 1 appends
    const auto twin = edited.Item(3);
    edited.AddItem(twin);
    edited.RemoveItem(twin); // only the first occurrence goes
    edited.DeleteItem(1);
    EXPECT_EQ(letters(edited), u"BDEC"_s);
    EXPECT_EQ(edited.IndexOf(twin), 4);
    EXPECT_EQ(twin.use_count(), 2);
}

// Overlapping ranges included, where the copies are not an exchange.
TEST(CVector, SwapRangeGivesWhatThreeBlockCopiesGive)
{
    // Every valid range against the three copies on a plain string: a.. to a
    // temporary, b.. (as it stood) into a.., the temporary into b...
    for (int a = 1; a <= 6; ++a) {
        for (int b = 1; b <= 6; ++b) {
            for (int n = 1; a + n <= 7 && b + n <= 7; ++n) {
                QString model = u"ABCDEF"_s;
                const QString temporary = model.mid(a - 1, n);
                model.replace(a - 1, n, model.mid(b - 1, n));
                model.replace(b - 1, n, temporary);
                Vec w = make(u"ABCDEF"_s);
                w.SwapRange(a, b, n);
                EXPECT_EQ(letters(w), model) << a << "," << b << "," << n;
            }
        }
    }
}
