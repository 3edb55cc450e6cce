// SPDX-License-Identifier: GPL-3.0-or-later
// Opening what the caret stands on.
#include "ViewFixture.h"

#include "platform/system/Shell.h"

namespace {

class Opened final : public IShell
{
public:
    Opened() { SetShell(this); }
    ~Opened() override { SetShell(nullptr); }
    bool Open(const QUrl& url) override
    {
        urls << url.toString();
        return false;
    }
    QStringList urls;
};

class ViewOpening : public ViewTest
{
protected:
    bool OpenAt(const QString& text, long caret = 1)
    {
        Put(text, caret, caret);
        return view->OpenSelected();
    }

    Opened shell;
};

} // namespace

TEST_F(ViewOpening, HandsAddressesToTheDesktop)
{
    for (const char* address : {"http://a.b", "https:c", "ftp:d", "ftps:e", "news:f", "mailto:g"}) {
        shell.urls.clear();
        EXPECT_TRUE(OpenAt(QStringLiteral("( %1 )").arg(QLatin1String(address)), 4)) << address;
        EXPECT_EQ(shell.urls, QStringList{QLatin1String(address)});
    }
}

TEST_F(ViewOpening, SaysThatThereIsNothingAtTheCaret)
{
    EXPECT_FALSE(OpenAt("a   b", 3));
    EXPECT_TRUE(shell.urls.isEmpty());
    EXPECT_TRUE(user.asked.isEmpty());
}

TEST_F(ViewOpening, OpensTheSelectedName)
{
    const QString path = Write("my file.sql", "select 7");
    doc->SetPathName(Path("own.sql"), false);
    Put("x my file.sql y", 2, 13);
    EXPECT_TRUE(view->OpenSelected());
    const auto& documents = kind.GetDocuments();
    ASSERT_FALSE(documents.empty());
    EXPECT_EQ(documents.back()->GetPathName(), path);
}

TEST_F(ViewOpening, LooksBesideTheDocumentWithoutTheFolders)
{
    const QString path = Write("b.sql", "select 7");
    QDir(folder.path()).mkdir("sub");
    Write("sub/b.sql", "select 8");
    doc->SetPathName(Path("own.sql"), false);
    EXPECT_TRUE(OpenAt("sub/b.sql"));
    ASSERT_FALSE(kind.GetDocuments().empty());
    EXPECT_EQ(kind.GetDocuments().back()->GetPathName(), path);
}

TEST_F(ViewOpening, OpensAnAbsolutePathAsItStands)
{
    const QString path = Write("c.sql", "select 9");
    EXPECT_TRUE(OpenAt(path));
    ASSERT_FALSE(kind.GetDocuments().empty());
    EXPECT_EQ(kind.GetDocuments().back()->GetPathName(), path);
}

TEST_F(ViewOpening, TakesACapitalSchemeForAFile)
{
    doc->SetPathName(Path("own.sql"), false);
    EXPECT_TRUE(OpenAt("HTTP://a.b/c"));
    EXPECT_TRUE(shell.urls.isEmpty());
    ASSERT_EQ(user.asked.size(), 1) << "the framework has told that there is no such file";
}

TEST_F(ViewOpening, OpensAddressesOnlyWithoutADocument)
{
    OpenView* alone = ViewWithoutDocument();
    alone->GetCoreEditorControl()->SetText(u"x.sql", 1);
    EXPECT_TRUE(alone->OpenSelected());
    EXPECT_TRUE(user.asked.isEmpty());
    alone->GetCoreEditorControl()->SetText(u"http:x", 1);
    EXPECT_TRUE(alone->OpenSelected());
    EXPECT_EQ(shell.urls, QStringList{"http:x"});
    alone->DestroyWindow();
}

TEST_F(ViewOpening, IsACommand)
{
    Put("news:x", 1, 1);
    EXPECT_TRUE(view->OnCmdMsg(54026, nullptr));
    EXPECT_EQ(shell.urls, QStringList{"news:x"});
}
