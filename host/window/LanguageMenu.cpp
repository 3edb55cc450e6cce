// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/LanguageMenu.h"

#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"

#include <QActionGroup>
#include <QApplication>
#include <QKeyEvent>

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

// One letter again and again goes from name to name.
void LanguageMenu::keyPressEvent(QKeyEvent* event)
{
    const QString text = event->text();
    const bool isLetter = !(event->modifiers() & ~Qt::ShiftModifier) && text.size() == 1 &&
                          text.front().isPrint() && text.front() != u' ';
    if (!isLetter) {
        m_letters.clear();
        QMenu::keyPressEvent(event);
        return;
    }
    if (m_pressed.isValid() && m_pressed.hasExpired(QApplication::keyboardInputInterval()))
        m_letters.clear();
    m_pressed.start();
    if (m_letters != text)
        m_letters += text;
    if (!GoToName(m_letters)) {
        m_letters.clear();
        QMenu::keyPressEvent(event);
    }
}

// From the current name on; with more than one letter that name may be meant still.
bool LanguageMenu::GoToName(const QString& letters)
{
    const QList<QAction*> names = m_group->actions();
    const qsizetype current = names.indexOf(activeAction());
    const qsizetype first = current + (letters.size() > 1 && current >= 0 ? 0 : 1);
    for (qsizetype i = 0; i < names.size(); ++i) {
        QAction* action = names[(first + i) % names.size()];
        if (action->text().startsWith(letters, Qt::CaseInsensitive)) {
            setActiveAction(action);
            return true;
        }
    }
    return false;
}

// Where not all have room, the marked one is among those that have. The bar that opens the menu
// goes to the first entry after this.
void LanguageMenu::showEvent(QShowEvent* event)
{
    QMenu::showEvent(event);
    m_letters.clear();
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (QAction* marked = m_group->checkedAction(); marked && isVisible())
                setActiveAction(marked);
        },
        Qt::QueuedConnection);
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
