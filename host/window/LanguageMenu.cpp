// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/LanguageMenu.h"

#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"

#include <QActionGroup>

#include <algorithm>
#include <vector>

namespace {

// What stands in the registry for the library's own use: the look before a language is bound, and
// the list of messages.
constexpr int kNotForScripts[] = {0, 11};

} // namespace

LanguageMenu::LanguageMenu(QWidget* parent)
    : QMenu(tr("&Language"), parent), m_group(new QActionGroup(this))
{
    const CFileTypeManager& registry = *zncoreeditor::GetFileTypeManager();
    std::vector<int> languages;
    for (int language = 0; language < registry.GetLanguageCount(); ++language) {
        if (std::count(std::begin(kNotForScripts), std::end(kNotForScripts), language) == 0)
            languages.push_back(language);
    }
    std::sort(languages.begin(), languages.end(), [&](int left, int right) {
        return registry.GetLanguageName(left).localeAwareCompare(registry.GetLanguageName(right)) <
               0;
    });
    for (const int language : languages)
        AddLanguage(language);
    addSeparator();
    addAction(tr("Use for Ne&w Scripts"), this, &LanguageMenu::DefaultWanted)
        ->setObjectName(QStringLiteral("defaultLanguage"));
    connect(m_group, &QActionGroup::triggered, this,
            [this](QAction* action) { Q_EMIT Chosen(action->data().toInt()); });
}

void LanguageMenu::AddLanguage(int language)
{
    QString name = zncoreeditor::GetFileTypeManager()->GetLanguageName(language);
    QAction* action = addAction(name.replace(u'&', QLatin1String("&&")));
    action->setData(language);
    action->setCheckable(true);
    m_group->addAction(action);
}

void LanguageMenu::ShowLanguage(int language)
{
    m_group->setEnabled(language >= 0);
    for (QAction* action : m_group->actions()) {
        // An exclusive group would not let go of its last mark.
        if (action->data().toInt() == language)
            action->setChecked(true);
        else if (action->isChecked() && language < 0)
            action->setChecked(false);
    }
}
