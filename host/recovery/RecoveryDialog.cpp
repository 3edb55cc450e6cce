// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/recovery/RecoveryDialog.h"

#include "host/icons/FitScreen.h"
#include "host/recovery/ComparisonView.h"
#include "search/files/ReadFileText.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWindow>

#include <optional>

namespace {

enum Column
{
    Script,
    Folder,
    CopyAge,
    FileAge,
    State,
    Choice,
    Columns,
};

struct ChoiceText
{
    RecoveryChoice choice;
    const char* text;
    const char* forAll;
};

constexpr ChoiceText kChoices[] = {
    {RecoveryChoice::Recover, QT_TRANSLATE_NOOP("RecoveryDialog", "Recover"),
     QT_TRANSLATE_NOOP("RecoveryDialog", "&Recover")},
    {RecoveryChoice::Discard, QT_TRANSLATE_NOOP("RecoveryDialog", "Discard"),
     QT_TRANSLATE_NOOP("RecoveryDialog", "&Discard")},
    {RecoveryChoice::Later, QT_TRANSLATE_NOOP("RecoveryDialog", "Decide Later"),
     QT_TRANSLATE_NOOP("RecoveryDialog", "Decide &Later")},
};

} // namespace

RecoveryDialog::RecoveryDialog(QWidget* parent, const QList<RecoverableCopy>& copies)
    : QDialog(parent), m_copies(copies), m_list(new QTreeWidget(this)),
      m_comparison(new ComparisonView(this))
{
    setWindowTitle(tr("Recover Scripts"));
    auto* told = new QLabel(tr("The workbench ended unexpectedly. These scripts had "
                               "changes that were not saved:"),
                            this);
    told->setWordWrap(true);

    m_list->setObjectName(QStringLiteral("recoverable"));
    m_list->setAccessibleName(tr("Scripts that can be recovered"));
    m_list->setRootIsDecorated(false);
    m_list->setAllColumnsShowFocus(true);
    m_list->setHeaderLabels(
        {tr("Script"), tr("Folder"), tr("Copy"), tr("File"), tr("File Is"), tr("What to Do")});
    for (const RecoverableCopy& copy : std::as_const(m_copies))
        AddCopy(copy);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(Folder, QHeaderView::Stretch);

    auto* splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(m_list);
    splitter->addWidget(m_comparison);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);

    auto* all = new QHBoxLayout;
    all->addWidget(new QLabel(tr("All scripts:"), this));
    for (const ChoiceText& row : kChoices) {
        auto* button = new QPushButton(tr(row.forAll), this);
        button->setObjectName(QLatin1String(row.text) + QStringLiteral(" all"));
        button->setAccessibleName(tr("%1 all scripts").arg(tr(row.text)));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, &row] { ChooseForAll(row.choice); });
        all->addWidget(button);
    }
    all->addStretch();
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("&Continue"), QDialogButtonBox::AcceptRole)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    all->addWidget(buttons);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(told);
    layout->addWidget(splitter, 1);
    layout->addLayout(all);
    resize(FittingScreen(*this, {860, 520}));
    // A window that is about to be shown is not where the window manager is going to put it.
    const QWindow* window = parent ? parent->window()->windowHandle() : nullptr;
    if (!window || !window->isExposed())
        move(screen()->availableGeometry().center() - rect().center());
    splitter->setSizes({160, 280});

    connect(m_list, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* item) { Compare(m_list->indexOfTopLevelItem(item)); });
    m_list->setCurrentItem(m_list->topLevelItem(0));
    // The choices come behind the list that they stand in.
    QWidget* before = m_list;
    for (QComboBox* choice : m_choices) {
        setTabOrder(before, choice);
        before = choice;
    }
    setTabOrder(before, m_comparison);
    m_list->installEventFilter(this);
    m_list->setFocus();
}

// Tab goes to the box of the current row, and Space goes to the next of its choices.
bool RecoveryDialog::eventFilter(QObject* watched, QEvent* event)
{
    const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
    if (watched != m_list || event->type() != QEvent::KeyPress || row < 0)
        return QDialog::eventFilter(watched, event);
    QComboBox* choice = m_choices[static_cast<std::size_t>(row)];
    switch (static_cast<const QKeyEvent&>(*event).key()) {
    case Qt::Key_Tab:
        choice->setFocus(Qt::TabFocusReason);
        return true;
    case Qt::Key_Space:
        choice->setCurrentIndex((choice->currentIndex() + 1) % choice->count());
        return true;
    default:
        return QDialog::eventFilter(watched, event);
    }
}

// The editor goes after this part of the dialog does.
RecoveryDialog::~RecoveryDialog()
{
    m_list->disconnect(this);
}

void RecoveryDialog::AddCopy(const RecoverableCopy& copy)
{
    const QDateTime now = QDateTime::currentDateTime();
    const bool hasFile = copy.fileTime.isValid();
    const QString folder = copy.document.isEmpty()
                               ? QString()
                               : QDir::toNativeSeparators(QFileInfo(copy.document).path());
    auto* item = new QTreeWidgetItem(m_list, {copy.name, folder, AgeOf(copy.copyTime, now),
                                              hasFile ? AgeOf(copy.fileTime, now) : tr("none"),
                                              TextOf(copy.state)});
    item->setToolTip(Script, QDir::toNativeSeparators(copy.document));
    item->setToolTip(Folder, folder);
    item->setToolTip(CopyAge, QLocale().toString(copy.copyTime));
    if (hasFile)
        item->setToolTip(FileAge, QLocale().toString(copy.fileTime));
    auto* choice = new QComboBox(m_list);
    for (const ChoiceText& row : kChoices)
        choice->addItem(tr(row.text));
    choice->setAccessibleName(tr("What to do with %1").arg(copy.name));
    m_list->setItemWidget(item, Choice, choice);
    m_choices.push_back(choice);
}

QList<RecoveryChoice> RecoveryDialog::Choices() const
{
    QList<RecoveryChoice> choices;
    for (const QComboBox* choice : m_choices) {
        choices << (result() == Accepted ? kChoices[choice->currentIndex()].choice
                                         : RecoveryChoice::Later);
    }
    return choices;
}

void RecoveryDialog::ChooseForAll(RecoveryChoice choice)
{
    for (QComboBox* box : m_choices) {
        for (int i = 0; i < box->count(); ++i) {
            if (kChoices[i].choice == choice)
                box->setCurrentIndex(i);
        }
    }
}

// A script without a file is shown as it is; there is nothing to compare it with.
void RecoveryDialog::Compare(int row)
{
    if (row < 0)
        return;
    const RecoverableCopy& copy = m_copies[row];
    const bool hasFile = copy.state == RecoverableCopy::State::Unchanged ||
                         copy.state == RecoverableCopy::State::Changed;
    const auto read = [&](const QString& path) {
        return ReadFileText(path, ComparisonView::kMostBytes, copy.codePage);
    };
    const std::optional<QString> copied = read(copy.path);
    const std::optional<QString> filed = hasFile ? read(copy.document) : QString();
    if (!copied || !filed)
        m_comparison->ShowText(tr("%1 and its copy are not compared: what is no text, "
                                  "longer than 8 MB or cannot be read is not shown.")
                                   .arg(copy.name),
                               QString());
    else if (!hasFile)
        m_comparison->ShowText(tr("The copy of %1:").arg(copy.name), *copied);
    else if (!m_comparison->ShowDifferences(
                 tr("%1: lines with - are in the file alone, those with + in the copy alone.")
                     .arg(copy.name),
                 *filed, *copied))
        m_comparison->SetHeading(
            tr("%1 and its copy differ in their encoding alone.").arg(copy.name));
}
