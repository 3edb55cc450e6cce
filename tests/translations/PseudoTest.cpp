// SPDX-License-Identifier: GPL-3.0-or-later
// With every text that is translated in brackets, what stands without them is a text that nobody
// can translate.
#include "common/Globals.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "host/files/Encodings.h"
#include "looks/Schemes.h"
#include "tests/SourceTree.h"
#include "tests/translations/Tour.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QFontComboBox>
#include <QFontDatabase>
#include <QGroupBox>
#include <QHeaderView>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTabBar>
#include <QTranslator>

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <tuple>

namespace {

constexpr QChar kOpen(0x27E6);
constexpr QChar kClose(0x27E7);

class Bracketed : public QTranslator, public IZNBaseResourceLoader
{
public:
    Bracketed()
    {
        QCoreApplication::installTranslator(this);
        zncoreeditor::SetResourceLoader(this);
    }
    ~Bracketed() override { zncoreeditor::SetResourceLoader(nullptr); }

    QString translate(const char* context, const char* source, const char*, int n) const override
    {
        asked.insert({context, source, n});
        return kOpen + QString::fromUtf8(source) + kClose;
    }
    bool isEmpty() const override { return false; }
    QString LoadString(UINT id) const override { return kOpen + QString::number(id) + kClose; }

    mutable std::set<std::tuple<std::string, std::string, int>> asked;
};

class BracketedWindows : protected Bracketed, public Tour
{
protected:
    BracketedWindows() : Tour(QStringLiteral("en")) {}

    // Names, which are the same everywhere, and what comes from files of data.
    // The longest first, since one may be part of another.
    static QStringList Names()
    {
        QStringList names = {"znworkbench", "a.sql", "Text", "UTF-8", "windows-1252", "CR LF",
                             "LF",          "CR",    "INS",  "pt",    "Verdana",      "*.sql"};
        const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
        for (int language = 0; language < languages.GetLanguageCount(); ++language)
            names << (languages.GetLanguageName(language));
        for (const EncodingChoice& choice : EncodingChoices())
            names << (QLatin1String(choice.name));
        for (const QString& family : QFontDatabase::families())
            names << (family);
        std::ranges::sort(names, std::ranges::greater(), &QString::size);
        return names;
    }

    void Expect(const QString& text, const QObject& of, const char* what)
    {
        static const QRegularExpression word(QStringLiteral("\\p{L}{2,}"));
        static const QRegularExpression inBrackets(
            QStringLiteral("%1[^%1%2]*%2").arg(kOpen).arg(kClose));
        static const QStringList names = Names();
        static const QRegularExpression beforeKey(QStringLiteral("%1[^%1]*").arg(kOpen));
        static const QRegularExpression colour(QStringLiteral("#[0-9A-F]{6}"));
        QString rest = text;
        if (names.contains(rest) || QDir::isAbsolutePath(rest) ||
            rest.startsWith(QStringLiteral("~/")))
            return;
        while (rest.contains(inBrackets))
            rest.remove(inBrackets);
        rest = rest.section(u'\t', 0, 0).remove(colour);
        rest.remove(beforeKey); // what was cut at a key
        for (const QString& name : names)
            rest.remove(name);
        ++m_checked;
        EXPECT_FALSE(rest.contains(word))
            << what << " of " << of.metaObject()->className() << ' '
            << of.objectName().toStdString() << ": " << text.toStdString();
    }

    void ExpectIn(QWidget& widget)
    {
        Expect(widget.toolTip(), widget, "tool tip");
        Expect(widget.accessibleName(), widget, "accessible name");
        Expect(widget.accessibleDescription(), widget, "accessible description");
        if (widget.isWindow() && &widget != &m_window) // whose title is a file's and the program's
            Expect(widget.windowTitle(), widget, "title");
        if (const auto* label = qobject_cast<QLabel*>(&widget))
            Expect(label->text(), widget, "text");
        if (const auto* button = qobject_cast<QAbstractButton*>(&widget))
            Expect(button->text(), widget, "text");
        if (const auto* group = qobject_cast<QGroupBox*>(&widget))
            Expect(group->title(), widget, "title");
        if (const auto* edit = qobject_cast<QLineEdit*>(&widget))
            Expect(edit->placeholderText(), widget, "placeholder");
        if (const auto* tabs = qobject_cast<QTabBar*>(&widget)) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                Expect(tabs->tabText(tab), widget, "tab");
        }
        if (const auto* box = qobject_cast<QComboBox*>(&widget); box && !box->isEditable()) {
            for (int row = 0; row < box->count(); ++row)
                Expect(box->itemText(row), widget, "choice");
        }
        if (const auto* view = qobject_cast<QAbstractItemView*>(&widget))
            ExpectInModel(*view);
    }

    void ExpectInModel(const QAbstractItemView& view)
    {
        const QAbstractItemModel* model = view.model();
        if (!model || model->inherits("QFileSystemModel") || view.inherits("QSidebar"))
            return;
        for (int column = 0; column < model->columnCount(); ++column) {
            Expect(model->headerData(column, Qt::Horizontal).toString(), view, "header");
            for (int row = 0; row < model->rowCount(); ++row)
                Expect(model->index(row, column).data().toString(), view, "row");
        }
    }

    int m_checked = 0;
};

} // namespace

TEST_F(BracketedWindows, HaveMenusThatCanBeTranslated)
{
    ForEachMenu([this](QMenu& menu) {
        Expect(menu.title(), menu, "title");
        for (const QAction* action : menu.actions()) {
            Expect(action->text(), *action, "text");
            Expect(action->statusTip(), *action, "status tip");
        }
    });
    EXPECT_GT(m_checked, 250);
}

TEST_F(BracketedWindows, CanBeTranslated)
{
    ForEachWindow([this](QWidget& window) {
        ExpectIn(window);
        for (auto* widget : window.findChildren<QWidget*>())
            ExpectIn(*widget);
    });
    EXPECT_GT(m_checked, 500);
}

// A text whose context is not the one that the tool has found for it is in no catalogue.
TEST_F(BracketedWindows, AskForWhatTheCataloguesHave)
{
    ForEachMenu([](QMenu&) {});
    ForEachWindow([](QWidget&) {});
    ::QTranslator library;
    ::QTranslator workbench;
    ::QTranslator qt;
    ASSERT_TRUE(library.load(QStringLiteral(":/zncoreeditor/i18n/zncoreeditor_de")));
    ASSERT_TRUE(workbench.load(QStringLiteral(":/znworkbench/i18n/znworkbench_de")));
    ASSERT_TRUE(
        qt.load(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_de")));
    const QStringList names = Names();
    EXPECT_GT(asked.size(), 500U);
    for (const auto& [context, source, n] : asked) {
        const auto has = [&, &c = context, &s = source,
                          number = n](const ::QTranslator& translator) {
            return !translator.translate(c.c_str(), s.c_str(), nullptr, number).isEmpty();
        };
        EXPECT_TRUE(source.empty() || names.contains(QString::fromStdString(source)) ||
                    has(library) || has(workbench) || has(qt))
            << context << ": " << source;
    }
}
