// SPDX-License-Identifier: GPL-3.0-or-later
// The host's options in the settings of all languages, whoever made editors before: they are those
// of a registry in which every editor sets every option anew.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "platform/services/OptionsServer.h"
#include "settings/ConfigFile.h"
#include "settings/SyntaxFile.h"
#include "tests/RandomSeed.h"
#include "tests/control/ControlFixture.h"

#include <QFile>
#include <QTemporaryDir>

#include <iostream>
#include <map>
#include <memory>
#include <random>
#include <vector>

namespace {

class Options final : public CZNOptionsServer
{
public:
    Options()
    {
        font.lfFaceName[0] = u'A';
        SetOptionsServer(this);
    }
    ~Options() override { SetOptionsServer(nullptr); }

    int GetInt(int key) override { return numbers[key]; }
    QString GetString(int /*key*/) override { return QString(); }
    bool GetLOGFONT(int /*key*/, LOGFONT* asked) override
    {
        *asked = font;
        return true;
    }

    std::map<int, int> numbers;
    LOGFONT font;
};

void SetEach(Options& options, CSyntaxFile& syntax)
{
    const int tabWidth = options.GetInt(option::TabWidth);
    syntax.SetAutoIndent(options.GetInt(option::AutoIndent));
    syntax.SetTabsToSpaces(options.GetInt(option::TabsToSpaces) != 0);
    syntax.SetMarginLineNumber(options.GetInt(option::LineNumbers) != 0);
    syntax.SetMarginFold(options.GetInt(option::FoldMargin) != 0);
    syntax.SetTabWidth(tabWidth > 0 ? tabWidth : 4);
    syntax.SetIndentSize(tabWidth > 0 ? tabWidth : 4);
    syntax.SetWordWrap(options.GetInt(option::WordWrap) != 0);
    const int size = -MulDiv(static_cast<int>(options.font.lfHeight), 72, ScreenPixelsPerInch());
    for (int style = 0; style <= 127; ++style) {
        syntax.SetStyleFontName(style, QString::fromUtf16(options.font.lfFaceName));
        if (size > 0)
            syntax.SetStyleFontSize(style, size);
        syntax.SetStyleFontBold(style, options.font.lfWeight == FW_BOLD);
        syntax.SetStyleFontItalic(style, options.font.lfItalic != 0);
        syntax.SetStyleFontUnderline(style, options.font.lfUnderline != 0);
    }
}

class OptionsOfAllLanguages : public testing::Test
{
protected:
    OptionsOfAllLanguages()
    {
        m_languages.ReParseAllSyntaxFiles();
        for (int language = 0; language < m_languages.GetLanguageCount(); ++language) {
            m_reference.push_back(std::make_unique<CSyntaxFile>());
            const CSyntaxFile& file = *m_languages.GetSyntaxFile(language);
            m_reference.back()->SetFilename(file.GetFilename());
            m_reference.back()->SetCustomFilename(file.GetCustomFilename());
        }
    }
    // What the options wrote into the settings in memory is not for the tests behind.
    ~OptionsOfAllLanguages() override
    {
        zncoreeditor::GetConfigFile()->Revert();
        m_languages.ReParseAllSyntaxFiles();
    }

    void Seed(unsigned int seed) { m_random.seed(seed); }
    void Step();
    void Compare(int language);
    int AnyLanguage() { return Below(m_languages.GetLanguageCount()); }

    void MakeEditor();
    void ChangeOption();

    Options m_options;
    CFileTypeManager& m_languages = *zncoreeditor::GetFileTypeManager();

private:
    struct Editor
    {
        Editor()
        {
            control.SubclassWindow(CreateWindowOfClass(engine::kWindowClass, WS_CHILD,
                                                       RECT{0, 0, 300, 200}, parent.widget()));
            parent.control = &control;
        }
        ~Editor() { parent.control = nullptr; }

        ParentWindow parent;
        CZNCoreEditorControlEx control;
    };

    int Below(int count) { return static_cast<int>(m_random() % static_cast<unsigned int>(count)); }
    void SetEachEverywhere();
    void ChangeLanguage(int language);
    QByteArray AsSaved(CSyntaxFile& syntax) const;

    std::vector<std::unique_ptr<CSyntaxFile>> m_reference;
    std::vector<std::unique_ptr<Editor>> m_editors;
    QTemporaryDir m_folder;
    std::mt19937 m_random;
};

void OptionsOfAllLanguages::SetEachEverywhere()
{
    for (const auto& syntax : m_reference)
        SetEach(m_options, *syntax);
}

void OptionsOfAllLanguages::MakeEditor()
{
    m_editors.push_back(std::make_unique<Editor>());
    SetEachEverywhere();
}

void OptionsOfAllLanguages::ChangeOption()
{
    constexpr int kKeys[] = {option::AutoIndent, option::TabsToSpaces, option::LineNumbers,
                             option::FoldMargin, option::TabWidth,     option::WordWrap};
    switch (Below(4)) {
    case 0:
        m_options.font.lfHeight = -20 * Below(3);
        break;
    case 1:
        m_options.font.lfWeight = Below(2) ? FW_BOLD : FW_NORMAL;
        break;
    case 2:
        m_options.font.lfFaceName[0] = Below(2) ? u'A' : u'B';
        break;
    default:
        m_options.numbers[kKeys[Below(std::size(kKeys))]] = Below(3);
        break;
    }
}

// As a host, or the dialog of a user's preferences, would.
void OptionsOfAllLanguages::ChangeLanguage(int language)
{
    const int kind = Below(4);
    const int style = Below(40);
    for (CSyntaxFile* syntax : {m_languages.GetSyntaxFile(language),
                                m_reference[static_cast<std::size_t>(language)].get()}) {
        if (kind == 0)
            syntax->SetTabWidth(11);
        else if (kind == 1)
            syntax->SetStyleFontName(style, QStringLiteral("C"));
        else if (kind == 2)
            syntax->SetStyleColorBackground(style, style);
        else
            syntax->Clear();
    }
}

void OptionsOfAllLanguages::Step()
{
    switch (Below(8)) {
    case 0:
    case 1:
        ChangeOption();
        break;
    case 2:
        ChangeLanguage(AnyLanguage());
        break;
    case 3:
        if (!m_editors.empty()) {
            SendMessage(m_editors.back()->control.GetSafeHwnd(), kOptionsChanged, 0, 0);
            SetEachEverywhere();
        }
        break;
    default:
        MakeEditor();
        break;
    }
}

QByteArray OptionsOfAllLanguages::AsSaved(CSyntaxFile& syntax) const
{
    const QString names[] = {syntax.GetFilename(), syntax.GetCustomFilename()};
    const bool wasModified = syntax.GetModified();
    QByteArray saved = wasModified ? "modified\n" : "as read\n";
    syntax.SetFilename(m_folder.filePath(QStringLiteral("base.xml")));
    syntax.SetCustomFilename(m_folder.filePath(QStringLiteral("custom.xml")));
    syntax.SetModified(true);
    if (!syntax.Save())
        return "not parsed";
    for (const QString& name : {syntax.GetFilename(), syntax.GetCustomFilename()}) {
        QFile file(name);
        saved += file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    syntax.SetFilename(names[0]);
    syntax.SetCustomFilename(names[1]);
    syntax.SetModified(wasModified);
    return saved;
}

void OptionsOfAllLanguages::Compare(int language)
{
    CSyntaxFile& reference = *m_reference[static_cast<std::size_t>(language)];
    CSyntaxFile& syntax = *m_languages.GetSyntaxFile(language);
    ASSERT_EQ(syntax.Parse(), reference.Parse());
    ASSERT_TRUE(AsSaved(syntax) == AsSaved(reference)) << "language " << language;
}

TEST_F(OptionsOfAllLanguages, StandAsIfEveryEditorSetEachOfThem)
{
    const auto seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    Seed(seed);
    for (int step = 0; step < 60; ++step) {
        Step();
        Compare(AnyLanguage());
        ASSERT_FALSE(HasFailure()) << "step " << step;
    }
    for (int language = 0; language < m_languages.GetLanguageCount(); ++language)
        Compare(language);
}

TEST_F(OptionsOfAllLanguages, AreSeenByALanguageThatIsReadForTheFirstTime)
{
    for (int editor = 0; editor < 3; ++editor)
        MakeEditor();
    m_options.numbers[option::TabWidth] = 13;
    MakeEditor();
    const int language = m_languages.GetLanguageCount() - 2;
    EXPECT_EQ(m_languages.GetSyntaxFile(language)->GetTabWidth(), 13);
    EXPECT_EQ(m_languages.GetSyntaxFile(language)->GetIndentSize(), 13);
    Compare(language);
}

TEST_F(OptionsOfAllLanguages, ComeBackIntoALanguageThatIsReadAnew)
{
    m_options.numbers[option::TabWidth] = 13;
    for (int editor = 0; editor < 3; ++editor)
        MakeEditor();
    m_languages.ReParseAllSyntaxFiles();
    EXPECT_NE(m_languages.GetSyntaxFile(1)->GetTabWidth(), 13);
    MakeEditor();
    EXPECT_EQ(m_languages.GetSyntaxFile(1)->GetTabWidth(), 13);
}

} // namespace
