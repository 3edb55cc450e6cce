// SPDX-License-Identifier: GPL-3.0-or-later
// Commenting and uncommenting by command in the shipped languages, bound as a host binds them.
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "tests/editing/EditingFixture.h"

namespace {

struct Commented
{
    const char* language;
    const char16_t* before; // "[...]|" is selected
    const char16_t* after;
};

const Commented kCommented[] = {
    {"HTML", u"<p>[one]| two</p>", u"<p><!--one --> two</p>"},
    {"HTML", u"<p>[one\ntwo]|</p>\n", u"<p><!--one\ntwo --></p>\n"},
    {"XML", u"  [<a b='c'/>]|\n", u"  <!--<a b='c'/> -->\n"},
    {"XML", u"<a>[<b>\n  </b>]|</a>", u"<a><!--<b>\n  </b> --></a>"},
    {"CSS", u"p { [color: red;]| }", u"p { /*color: red;*/ }"},
    {"CSS", u"a[b\nc\nd]|e", u"a/*b\nc\nd*/e"},
    {"C++", u"int [a]|;", u"int /*a*/;"},
    {"Transact-SQL", u"select [a]|;", u"select /*a*/;"},
};

class ShippedComments : public EditingTest, public testing::WithParamInterface<Commented>
{
protected:
    void Bind(const char* language)
    {
        const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
        for (int i = 0; i < languages.GetLanguageCount(); ++i) {
            if (languages.GetLanguageName(i) == QLatin1String(language)) {
                control.InitializeLanguage(i, 1);
                control.SetEOLMode(kLf, 1);
                return;
            }
        }
        FAIL() << language;
    }
};

TEST_P(ShippedComments, GoInAndComeOutAgain)
{
    Bind(GetParam().language);
    Put(GetParam().before);
    const std::u16string text = Text();
    control.OnEditComments();
    EXPECT_EQ(Text(), GetParam().after);
    control.SelectAll(1);
    control.OnEditSingleLineUncomment();
    EXPECT_EQ(Text(), text);
}

INSTANTIATE_TEST_SUITE_P(Languages, ShippedComments, testing::ValuesIn(kCommented));

} // namespace
