// SPDX-License-Identifier: GPL-3.0-or-later
// The marks in a document's title.
#include "EditDocFixture.h"

namespace {

class EditTitle : public EditDocTest
{
protected:
    OpenDoc* OpenProtected()
    {
        const QString path = Write("a.sql", "text");
        Protect("a.sql");
        return Open(path);
    }
};

} // namespace

TEST_F(EditTitle, OfAReadOnlyFileIsMarkedFromTheNextTitleOn)
{
    OpenDoc* doc = OpenProtected();
    EXPECT_EQ(doc->GetTitle(), "a.sql");
    doc->SetTitle(doc->GetTitle());
    EXPECT_EQ(doc->GetTitle(), "a.sql (Read Only)");
}

TEST_F(EditTitle, IsNotMarkedReadOnlyTwice)
{
    OpenDoc* doc = OpenProtected();
    doc->SetTitle("a.sql (Read Only)");
    EXPECT_EQ(doc->GetTitle(), "a.sql (Read Only)");
}

TEST_F(EditTitle, ThatIsEmptyIsThePathOfADocumentWithOne)
{
    OpenDoc* doc = OpenScript();
    doc->SetTitle(QString());
    EXPECT_EQ(doc->GetTitle(), Path("a.sql"));
    OpenDoc* other = New();
    other->SetTitle(QString());
    EXPECT_EQ(other->GetTitle(), "");
}

TEST_F(EditTitle, OfAReadOnlyDocumentThatIsSetModifiedKeepsItsMarks)
{
    OpenDoc* doc = OpenProtected();
    doc->SetTitle("a.sql");
    doc->SetModifiedFlag(1);
    EXPECT_EQ(doc->GetTitle(), "a.sql (Read Only) * (Read Only)");
    doc->SetModifiedFlag(0);
    EXPECT_EQ(doc->GetTitle(), "a.sql (Read Only) * (Read Only)");
}

TEST_F(EditTitle, IsMarkedOnceWhileModified)
{
    OpenDoc* doc = OpenScript();
    doc->SetModifiedFlag(1);
    doc->SetModifiedFlag(1);
    EXPECT_EQ(doc->GetTitle(), "a.sql *");
    doc->SetModifiedFlag(0);
    EXPECT_EQ(doc->GetTitle(), "a.sql");
}

TEST_F(EditTitle, OfNothingStaysEmpty)
{
    OpenDoc* doc = New();
    doc->SetTitle(QString());
    doc->SetModifiedFlag(1);
    EXPECT_EQ(doc->GetTitle(), "");
    EXPECT_TRUE(doc->IsModified());
}

TEST_F(EditTitle, FollowsUndoBackToTheSavedText)
{
    OpenDoc* doc = OpenScript();
    Type(doc, "x");
    EXPECT_EQ(doc->GetTitle(), "a.sql *");
    Control(doc).Undo(1);
    EXPECT_EQ(doc->GetTitle(), "a.sql");
}
