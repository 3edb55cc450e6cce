// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/help/KeysDialog.h"

#include "common/Translations.h"
#include "host/commands/CommandKeys.h"
#include "host/files/Prompts.h"
#include "host/help/TextKeys.h"
#include "host/icons/FitScreen.h"

#include <QAbstractButton>
#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kCommand = 0;
constexpr int kKeys = 1;

QString Plain(const QString& text)
{
    // What an update rule has given a name brings a key along behind a tab.
    return zncoreeditor::WithoutMnemonic(text.section(u'\t', 0, 0)).remove(QStringLiteral("..."));
}

QString Text(const QList<QKeySequence>& keys)
{
    QStringList texts;
    for (const QKeySequence& key : keys)
        texts << key.toString(QKeySequence::NativeText);
    return texts.join(QStringLiteral(", "));
}

// "shift + ctrl + l" is a key too; empty for what is none.
QKeySequence KeyOf(QString words)
{
    struct Name
    {
        const char* said;
        const char* written;
    };
    static constexpr Name kNames[] = {
        {"control", "ctrl"}, {"delete", "del"},  {"insert", "ins"},     {"escape", "esc"},
        {"enter", "return"}, {"pageup", "pgup"}, {"pagedown", "pgdown"}};
    static const QRegularExpression kPlus(QStringLiteral(" *\\+ *(?=.)"));
    words = words.trimmed().replace(kPlus, QStringLiteral("+"));
    QString written = words.toLower();
    for (const Name& name : kNames)
        written.replace(QLatin1String(name.said), QLatin1String(name.written));
    for (const auto& [text, form] : {std::pair(written, QKeySequence::PortableText),
                                     std::pair(words, QKeySequence::NativeText)}) {
        const QKeySequence key(text, form);
        if (key.count() == 1 && key[0].key() != Qt::Key_unknown)
            return CommandKeys::Plain(key);
    }
    return {};
}

} // namespace

KeysDialog::KeysDialog(const QMenuBar& menus, CommandKeys& keys, QWidget* parent)
    : QDialog(parent), m_menus(menus), m_keys(keys), m_words(new QLineEdit(this)),
      m_list(new QTreeWidget(this)), m_none(new QLabel(this)), m_told(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("keysDialog"));
    setWindowTitle(tr("Keys"));
    m_words->setPlaceholderText(tr("Part of a command or of a key"));
    m_words->setAccessibleName(tr("Filter"));
    m_words->setClearButtonEnabled(true);
    m_words->installEventFilter(this);
    m_list->setAccessibleName(tr("Commands and keys"));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setAlternatingRowColors(true);
    m_list->setHeaderLabels({tr("Command"), tr("Keys")});
    m_none->setObjectName(QStringLiteral("noKeys"));
    m_none->hide();
    m_told->setObjectName(QStringLiteral("keyTold"));
    m_told->setWordWrap(true);
    m_told->hide();
    for (const QAction* menu : menus.actions()) {
        if (menu->menu())
            Collect(menu->menu()->actions(), Plain(menu->text()) + QStringLiteral(" \u203A "));
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_words);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_none);
    layout->addWidget(BuildField());
    layout->addWidget(m_told);
    layout->addWidget(BuildButtons());
    connect(m_words, &QLineEdit::textChanged, this, &KeysDialog::Filter);
    connect(m_list, &QTreeWidget::itemActivated, this, &KeysDialog::AskKey);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &KeysDialog::FollowRow);
    ShowAll();
    FitColumns();
    m_list->setCurrentItem(m_list->topLevelItem(0));
}

// Keys have long names in some languages, which must not leave commands without room.
void KeysDialog::FitColumns()
{
    constexpr QSize kSize(620, 480);
    constexpr int kRim = 60; // pixels, of the frame and a scroll bar
    QHeaderView* header = m_list->header();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    const int columns = m_list->columnWidth(kCommand) + m_list->columnWidth(kKeys);
    header->setSectionResizeMode(kCommand, QHeaderView::Stretch);
    resize(FittingScreen(*this, kSize.expandedTo({columns + kRim, 0})));
}

QWidget* KeysDialog::BuildField()
{
    m_field = new QWidget(this);
    m_question = new QLabel(m_field);
    m_question->setWordWrap(true);
    m_question->setTextFormat(Qt::PlainText);
    m_key = new QKeySequenceEdit(m_field);
    m_key->setObjectName(QStringLiteral("newKey"));
    m_key->setAccessibleName(tr("New key"));
    m_key->installEventFilter(this);
    if (auto* line = m_key->findChild<QLineEdit*>())
        line->setAccessibleName(m_key->accessibleName());
    auto* cancel = new QPushButton(tr("Cancel"), m_field);
    cancel->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->addWidget(m_key, 1);
    row->addWidget(cancel);
    auto* layout = new QVBoxLayout(m_field);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_question);
    layout->addLayout(row);
    m_field->hide();
    connect(cancel, &QPushButton::clicked, this, &KeysDialog::EndField);
    return m_field;
}

QWidget* KeysDialog::BuildButtons()
{
    auto* bar = new QWidget(this);
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const QString& text, const char* name, auto run) {
        auto* button = new QPushButton(text, bar);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false); // Enter is the list's
        connect(button, &QPushButton::clicked, this, run);
        layout->addWidget(button);
        return button;
    };
    const auto addOfRow = [&](const QString& text, const char* name, auto run) {
        QPushButton* button = add(text, name, run);
        auto* entry = new QAction(text, this);
        connect(entry, &QAction::triggered, this, run);
        connect(entry, &QAction::enabledChanged, button, &QPushButton::setEnabled);
        m_list->addAction(entry);
        return entry;
    };
    m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_change = addOfRow(tr("C&hange..."), "changeKey", &KeysDialog::AskKey);
    m_remove = addOfRow(tr("&Remove"), "removeKey", &KeysDialog::Remove);
    m_reset = addOfRow(tr("R&eset"), "resetKey", &KeysDialog::Reset);
    add(tr("Reset &All..."), "resetKeys", &KeysDialog::ResetAll);
    layout->addStretch();
    add(tr("&Close"), "closeKeys", &QDialog::close);
    return bar;
}

// Those that have no name differ from day to day; they are listed for their keys.
void KeysDialog::Collect(const QList<QAction*>& actions, const QString& path)
{
    for (QAction* action : actions) {
        const QString name = path + Plain(action->text());
        if (action->menu())
            Collect(action->menu()->actions(), name + QStringLiteral(" \u203A "));
        else if (!action->isSeparator() && (m_keys.Has(*action) || !action->shortcuts().isEmpty()))
            m_commands[new QTreeWidgetItem(m_list, {name})] = action;
    }
}

void KeysDialog::Show(QTreeWidgetItem& item) const
{
    const QAction& command = *m_commands[&item];
    const bool isChanged = m_keys.IsChanged(command);
    const QString delivered = Text(m_keys.Delivered(command));
    const QString note = !isChanged            ? QString()
                         : delivered.isEmpty() ? tr("Changed. It comes without a key.")
                                               : tr("Changed. It comes with %1.").arg(delivered);
    item.setText(kKeys, Text(command.shortcuts()));
    for (const int column : {kCommand, kKeys}) {
        QFont font = m_list->font();
        font.setBold(isChanged);
        item.setFont(column, font);
        item.setToolTip(column, note);
        item.setData(column, Qt::AccessibleDescriptionRole, note);
    }
}

void KeysDialog::ShowAll()
{
    for (int i = 0; i < m_list->topLevelItemCount(); ++i)
        Show(*m_list->topLevelItem(i));
    Filter(m_words->text());
    FollowRow();
}

// Each word has to stand in the command or in its keys; or all are one key, as people write it.
void KeysDialog::Filter(const QString& words)
{
    const QStringList wanted = words.split(u' ', Qt::SkipEmptyParts);
    const QKeySequence key = KeyOf(words);
    bool isAny = false;
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = m_list->topLevelItem(i);
        const auto stands = [item](const QString& word) {
            return item->text(kCommand).contains(word, Qt::CaseInsensitive) ||
                   item->text(kKeys).contains(word, Qt::CaseInsensitive);
        };
        const bool fits = std::all_of(wanted.begin(), wanted.end(), stands) ||
                          (!key.isEmpty() && m_commands[item]->shortcuts().contains(key));
        item->setHidden(!fits);
        isAny = isAny || fits;
    }
    m_none->setText(
        key.isEmpty()
            ? tr("No command has these words in its name or its keys.")
            : tr("%1 is the key of no command.").arg(key.toString(QKeySequence::NativeText)));
    m_none->setVisible(!isAny);
    FollowRow();
}

QAction* KeysDialog::Current() const
{
    QTreeWidgetItem* item = m_list->currentItem();
    return item && !item->isHidden() ? m_commands.value(item) : nullptr;
}

void KeysDialog::FollowRow()
{
    const QAction* command = Current();
    const bool isOurs = command && m_keys.Has(*command);
    m_change->setEnabled(isOurs);
    m_remove->setEnabled(isOurs && !command->shortcuts().isEmpty());
    m_reset->setEnabled(isOurs && m_keys.IsChanged(*command));
    if (m_field->isVisible())
        EndField();
    m_told->hide();
}

QString KeysDialog::NameOf(const QAction& command) const
{
    for (auto row = m_commands.begin(); row != m_commands.end(); ++row) {
        if (row.value() == &command)
            return row.key()->text(kCommand);
    }
    return Plain(command.text());
}

// From the line to the first row that is shown; the row's key is Enter.
void KeysDialog::GoToList()
{
    QTreeWidgetItem* row = m_list->currentItem();
    for (int i = 0; (!row || row->isHidden()) && i < m_list->topLevelItemCount(); ++i)
        row = m_list->topLevelItem(i);
    if (!row || row->isHidden())
        return;
    m_list->setCurrentItem(row);
    m_list->setFocus();
}

void KeysDialog::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter)
        QDialog::keyPressEvent(event);
}

bool KeysDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const auto& press = static_cast<const QKeyEvent&>(*event);
    const bool isPlain = press.modifiers() == Qt::NoModifier;
    const bool isDown = press.key() == Qt::Key_Down || press.key() == Qt::Key_Return ||
                        press.key() == Qt::Key_Enter;
    if (watched == m_words && isDown) {
        GoToList();
        return true;
    }
    if (watched == m_key && press.key() == Qt::Key_Escape && isPlain) {
        EndField();
        return true;
    }
    // The first chord is all, so there is nothing to wait for; the field knows it behind the press.
    if (watched == m_key)
        QMetaObject::invokeMethod(this, &KeysDialog::TakePressed, Qt::QueuedConnection);
    return QDialog::eventFilter(watched, event);
}

void KeysDialog::AskKey()
{
    const QAction* command = Current();
    if (!command || !m_keys.Has(*command))
        return;
    m_told->hide();
    m_question->setText(
        tr("Press the key for “%1”. Escape leaves it as it is.").arg(NameOf(*command)));
    m_key->setAccessibleDescription(m_question->text());
    ClearKey();
    m_field->show();
    m_key->setFocus();
}

// Which brings back the field's own words.
void KeysDialog::ClearKey()
{
    m_key->clear();
    if (auto* line = m_key->findChild<QLineEdit*>())
        line->setPlaceholderText(tr("Press a key"));
}

void KeysDialog::EndField()
{
    const bool hadKeys = m_field->isAncestorOf(focusWidget());
    m_told->hide();
    m_field->hide();
    if (hadKeys)
        m_list->setFocus();
}

void KeysDialog::TakePressed()
{
    QAction* command = Current();
    const QKeySequence key = CommandKeys::Plain(m_key->keySequence());
    if (key.isEmpty() || !m_field->isVisible() || !command)
        return;
    ClearKey();
    const QString why = WhyNot(key);
    if (!why.isEmpty()) {
        Tell(why);
        return;
    }
    if (!MayMove({key}, *command)) {
        m_key->setFocus();
        return;
    }
    EndField();
    TellKept(m_keys.Give(*command, key));
}

QString KeysDialog::WhyNot(const QKeySequence& key) const
{
    const QString text = key.toString(QKeySequence::NativeText);
    if (!CommandKeys::IsForCommands(key))
        return tr("%1 alone is for writing and for moving about. Take it with Ctrl or Alt, or take "
                  "a function key.")
            .arg(text);
    const auto has = [&key](const QString& label) { return QKeySequence::mnemonic(label) == key; };
    for (const QAction* menu : m_menus.actions()) {
        if (has(menu->text()))
            return tr("%1 opens the menu “%2”.").arg(text, Plain(menu->text()));
    }
    for (const auto* button : m_menus.window()->findChildren<QAbstractButton*>()) {
        if (button->window() == m_menus.window() && button->shortcut() == key)
            return tr("%1 presses the button “%2” of the window.").arg(text, Plain(button->text()));
    }
    return {};
}

// A key of another command, or of the text, is asked about with what it does there.
bool KeysDialog::MayMove(const QList<QKeySequence>& keys, const QAction& to)
{
    return std::ranges::all_of(keys, [&](const QKeySequence& key) {
        const QAction* owner = m_keys.OwnerOf(key);
        const QString use = owner ? QString() : UseInText(key);
        if (owner == &to || (!owner && use.isEmpty()))
            return true;
        const QString text = owner ? tr("%1 is the key of “%2”. Do you want to move it to “%3”?")
                                   : tr("%1 is a key of the text, for “%2”. Do you want to move it "
                                        "to “%3”?");
        return GetPrompts().Confirm(this,
                                    text.arg(key.toString(QKeySequence::NativeText),
                                             owner ? NameOf(*owner) : use, NameOf(to)),
                                    tr("&Move"));
    });
}

void KeysDialog::Remove()
{
    if (QAction* command = Current())
        TellKept(m_keys.Set(*command, {}));
}

void KeysDialog::Reset()
{
    QAction* command = Current();
    if (command && MayMove(m_keys.Delivered(*command), *command))
        TellKept(m_keys.Set(*command, m_keys.Delivered(*command)));
}

void KeysDialog::ResetAll()
{
    if (GetPrompts().Confirm(this, tr("Do you want to give all commands their first keys again?"),
                             tr("&Reset")))
        TellKept(m_keys.ResetAll());
}

void KeysDialog::TellKept(bool isKept)
{
    ShowAll();
    if (!isKept)
        Tell(tr("The keys could not be written to the settings. They are as shown until the "
                "workbench ends."));
}

void KeysDialog::Tell(const QString& text)
{
    m_told->setText(text);
    m_told->show();
    m_key->setAccessibleDescription(text);
}
