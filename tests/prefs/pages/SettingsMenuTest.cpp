// SPDX-License-Identifier: GPL-3.0-or-later
// All settings at once: out and in again, as shipped, in the colours of a scheme.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "editing/looks/SchemeSettings.h"
#include "looks/Schemes.h"
#include "prefs/pages/Preferences.h"
#include "prefs/pages/UserSettings.h"
#include "tests/prefs/pages/PrefsFixture.h"

#include <QAction>
#include <QTemporaryDir>

namespace {

namespace id = prefscontrol;
using usersettings::Result;

class AllSettings : public PrefsTest
{
protected:
    QString Path() const { return folder.filePath(QStringLiteral("all.znsettings")); }
    void WriteFile(const QByteArray& bytes) const
    {
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static void Change()
    {
        Language(kTransactSql).SetStyleColorForeground(0, 0x123456);
        Language(kTransactSql).SetTabWidth(7);
        Language(kTransactSql).Save();
        config().SetRightEdgeColumn(77);
        config().Save();
    }
    static QMap<QString, QByteArray> Bytes()
    {
        QMap<QString, QByteArray> bytes;
        const FileStates states = StatesBelow(UserFolder());
        for (auto state = states.cbegin(); state != states.cend(); ++state)
            bytes[state.key()] = state.value().first;
        return bytes;
    }
    void Choose(const char* action)
    {
        dialog->GetSafeHwnd()->findChild<QAction*>(QLatin1String(action))->trigger();
        QApplication::processEvents();
    }

    QTemporaryDir folder;
};

TEST_F(AllSettings, ComeBackAsTheyWere)
{
    Change();
    const auto before = Bytes();
    ASSERT_EQ(before.size(), 3);
    ASSERT_EQ(usersettings::Export(Path()), Result::Done);
    ASSERT_TRUE(usersettings::ResetAll());
    EXPECT_TRUE(Bytes().isEmpty());
    Language(kPlSql).SetStyleColorForeground(0, 1);
    Language(kPlSql).Save(); // goes again
    EXPECT_EQ(usersettings::Import(Path()), Result::Done);
    EXPECT_EQ(Bytes(), before);
    ReadAgain();
    EXPECT_EQ(Language(kTransactSql).GetStyleColorForeground(0), 0x123456);
    EXPECT_EQ(config().GetRightEdgeColumn(), 77);
}

TEST_F(AllSettings, AreTakenFromNoFileOfAnotherKind)
{
    Change();
    const auto before = Bytes();
    const char* const kBad[] = {
        "",
        "no settings",
        "{}",
        R"({"format":"ZNCoreEditor settings 2","files":{}})",
        R"({"format":"ZNCoreEditor settings 1","files":{"../evil.xml":"<a/>"}})",
        R"({"format":"ZNCoreEditor settings 1","files":{"Syntax/../../evil.xml":"<a/>"}})",
        R"({"format":"ZNCoreEditor settings 1","files":{"Syntax/SQL.xml":"<a>"}})",
        R"({"format":"ZNCoreEditor settings 1","files":{"Syntax/SQL.xml":3}})",
        R"({"format":"ZNCoreEditor settings 1","files":{"Syntax/SQL.exe":"<a/>"}})",
    };
    for (const char* bad : kBad) {
        WriteFile(bad);
        EXPECT_EQ(usersettings::Import(Path()), Result::NoSettings) << bad;
        EXPECT_EQ(Bytes(), before) << bad;
    }
    EXPECT_EQ(usersettings::Import(QStringLiteral("/nowhere/at/all")), Result::NotRead);
}

TEST_F(AllSettings, StayWhenTheyCannotBeWrittenOut)
{
    EXPECT_EQ(usersettings::Export(QStringLiteral("/nowhere/at/all")), Result::NotWritten);
}

TEST_F(AllSettings, OfOneLanguageGoBackToWhatWasShipped)
{
    Change();
    Language(kPlSql).SetTabWidth(9);
    Language(kPlSql).Save();
    const int delivered = Language(kTransactSql).GetStyleColorForeground(1);
    Open();
    Show("Transact-SQL", "Color");
    ChooseColor(*dialog->Pages()[static_cast<std::size_t>(dialog->CurrentPage())].page,
                id::Foreground, 0xFF);
    Choose("resetLanguage");
    EXPECT_EQ(person.titles, QStringList{"Settings"});
    EXPECT_TRUE(person.read.value(0).contains(QStringLiteral("Transact-SQL")));
    EXPECT_FALSE(QFile::exists(CustomPath("TransactSQL.xml")));
    EXPECT_NE(Language(kTransactSql).GetTabWidth(), 7);
    EXPECT_EQ(Language(kTransactSql).GetStyleColorForeground(1), delivered);
    EXPECT_EQ(Language(kPlSql).GetTabWidth(), 9);
    EXPECT_FALSE(CanApply()) << "what was not applied is given up";
    Click(*dialog, IDOK);
    EXPECT_FALSE(QFile::exists(CustomPath("TransactSQL.xml")));
}

TEST_F(AllSettings, StayWhenThePersonSaysNo)
{
    Change();
    const auto before = Bytes();
    ASSERT_EQ(usersettings::Export(Path()), Result::Done);
    person.answer = Answer::No;
    Open();
    Show("Transact-SQL");
    for (const char* action : {"resetLanguage", "resetAll", "writeDark"})
        Choose(action);
    EXPECT_EQ(person.read.size(), 3);
    EXPECT_EQ(Bytes(), before);
}

TEST_F(AllSettings, GoBackToWhatWasShippedInOpenEditorsToo)
{
    ZNCoreEditorWidget editor;
    editor.setLanguage(kTransactSql);
    const int shipped = editor.control().GetTabWidth(1);
    Open();
    Type(Show("Transact-SQL"), id::TabSize, "11");
    Click(*dialog, id::Apply);
    ASSERT_EQ(editor.control().GetTabWidth(1), 11);
    Choose("resetAll");
    EXPECT_EQ(editor.control().GetTabWidth(1), shipped);
    EXPECT_EQ(Show("Transact-SQL").GetDlgItem<QLineEdit>(id::TabSize)->text(),
              QString::number(Language(kTransactSql).GetTabWidth()));
}

TEST_F(AllSettings, TakeTheColoursOfAScheme)
{
    Open();
    Choose("writeDark");
    ReadAgain();
    const ColourScheme& dark = *zncoreeditor::FindScheme(QStringLiteral("Dark"));
    int compared = 0;
    for (int language = 0; language < languages().GetLanguageCount(); ++language) {
        CSyntaxFile& file = Language(language);
        const QString name = QFileInfo(file.GetFilename()).fileName();
        for (int style = 0; style <= 127; ++style) {
            if (file.GetStyleName(style).isEmpty())
                continue;
            const auto pair =
                dark.OfRole(zncoreeditor::GetStyleRoles().RoleOf(name, file.GetStyleName(style)));
            EXPECT_EQ(static_cast<COLORREF>(file.GetStyleColorForeground(style)), pair->fore);
            EXPECT_EQ(static_cast<COLORREF>(file.GetStyleColorBackground(style)), pair->back);
            ++compared;
        }
    }
    EXPECT_GT(compared, 500);
    EXPECT_EQ(config().GetCaretColor(), dark.Of(Drawn::Caret));
}

TEST_F(AllSettings, TellTheHostWhichSchemeWasWritten)
{
    class Host final : public IPreferencesHost
    {
    public:
        Host() { zncoreeditor::SetPreferencesHost(this); }
        ~Host() override { zncoreeditor::SetPreferencesHost(nullptr); }
        void OnSchemeWritten(const QString& name) override { written = name; }
        QString written;
    };
    Host host;
    Open();
    Choose("writePrint");
    EXPECT_EQ(host.written, "Print");
}

class UserSettingsFirst : public PrefsTest
{
protected:
    static void SaveFontAndTab()
    {
        CSyntaxFile& file = Language(kTransactSql);
        file.SetTabWidth(11);
        file.SetStyleFontName(0, QStringLiteral("DejaVu Serif"));
        file.SetStyleFontSize(0, 17);
        file.Save();
        ReadAgain();
    }
};

TEST_F(UserSettingsFirst, OutliveAnEditorThatIsOpened)
{
    SaveFontAndTab();
    ZNCoreEditorWidget editor;
    editor.setLanguage(kTransactSql);
    EXPECT_EQ(editor.control().GetTabWidth(1), 11);
    EXPECT_EQ(Language(kTransactSql).GetStyleFontName(0), "DejaVu Serif");
    EXPECT_EQ(Language(kTransactSql).GetStyleFontSize(0), 17);
    EXPECT_FALSE(Language(kTransactSql).GetStyleFontName(1).isEmpty()) << "filled in";
    EXPECT_FALSE(Language(kTransactSql).GetModified());
}

TEST_F(UserSettingsFirst, LeaveTheOptionsToOtherLanguages)
{
    SaveFontAndTab();
    const ZNCoreEditorWidget editor;
    EXPECT_FALSE(Language(kPlSql).GetStyleFontName(0).isEmpty());
    EXPECT_FALSE(Language(kPlSql).GetModified());
}

TEST_F(UserSettingsFirst, AreOffInAControlAlone)
{
    SaveFontAndTab();
    QWidget parent;
    CZNCoreEditorControlEx control;
    control.SubclassWindow(
        CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 99, 99}, &parent));
    EXPECT_NE(Language(kTransactSql).GetTabWidth(), 11);
    EXPECT_NE(Language(kTransactSql).GetStyleFontName(0), "DejaVu Serif");
    control.DestroyWindow();
}

} // namespace
