// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/folder/FolderPane.h"

#include "host/folder/FolderModel.h"
#include "host/icons/Icons.h"

#include <QAction>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QToolBar>
#include <QTreeView>
#include <QUrl>
#include <QVBoxLayout>

#include <utility>

FolderPane::FolderPane(QWidget* parent)
    : QDockWidget(tr("Folder"), parent), m_name(new QLabel(this)), m_words(new QLineEdit(this)),
      m_list(new QTreeView(this))
{
    setObjectName(QStringLiteral("folderPane"));
    toggleViewAction()->setText(tr("&Folder"));
    constexpr int kMargin = 4; // pixels
    m_name->setMargin(kMargin);
    // A long one is cut rather than widening the pane; the tool tip has all of the path.
    m_name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_words->setPlaceholderText(tr("Part of a name, or *.sql"));
    m_words->setAccessibleName(tr("Filter"));
    m_words->setClearButtonEnabled(true);
    m_list->setObjectName(QStringLiteral("folderList"));
    m_list->setAccessibleName(tr("Files of the folder"));
    m_list->setHeaderHidden(true);
    m_list->setUniformRowHeights(true);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* top = new QHBoxLayout;
    top->addWidget(m_name, 1);
    top->addWidget(MakeBar(content));
    layout->addLayout(top);
    layout->addWidget(m_words);
    layout->addWidget(m_list);
    setWidget(content);
    Listen();
}

QToolBar* FolderPane::MakeBar(QWidget* parent)
{
    constexpr int kIcon = 16; // pixels
    auto* bar = new QToolBar(parent);
    bar->setIconSize({kIcon, kIcon});
    const auto add = [this, bar](const char* icon, const QString& text, const QString& tip,
                                 auto operation) {
        QAction* action = bar->addAction(CommandIcon(QLatin1String(icon)), text, this, operation);
        action->setObjectName(QStringLiteral("folder.") + QLatin1String(icon));
        action->setToolTip(tip);
    };
    add("openFolder", tr("Open Folder"), tr("Open another folder"), &FolderPane::FolderWanted);
    add("upFolder", tr("Up"), tr("Show the folder around this one"), [this] {
        QDir folder(m_folder);
        const QString from = m_folder;
        if (folder.cdUp()) {
            SetFolder(folder.path());
            Reach(from);
        }
    });
    add("showScript", tr("Show Script"), tr("Show the script in front among its files"),
        &FolderPane::ShowFront);
    return bar;
}

void FolderPane::Listen()
{
    connect(this, &QDockWidget::visibilityChanged, this, &FolderPane::Look);
    connect(m_list, &QTreeView::activated, this,
            [this](const QModelIndex& index) { Open(index, false); });
    connect(m_list, &QWidget::customContextMenuRequested, this, [this](const QPoint& place) {
        ShowMenu(m_list->indexAt(place), m_list->viewport()->mapToGlobal(place));
    });
    connect(m_words, &QLineEdit::textChanged, this, [this](const QString& words) {
        if (m_model)
            m_model->Filter(words);
    });
    connect(m_words, &QLineEdit::returnPressed, this, &FolderPane::OpenFirst);
    m_words->installEventFilter(this);
    m_list->installEventFilter(this);
    m_list->viewport()->installEventFilter(this);
}

void FolderPane::SetFolder(const QString& folder)
{
    const QString clean = QDir::cleanPath(folder);
    if (clean == std::exchange(m_folder, clean) && !m_isGuess)
        return;
    m_isGuess = false;
    m_sought.clear();
    const QString name = QDir(clean).dirName();
    m_name->setText(name.isEmpty() ? clean : name);
    m_name->setToolTip(QDir::toNativeSeparators(clean));
    Look();
    Q_EMIT FolderChanged();
}

// The model watches the folders that it has shown.
void FolderPane::Look()
{
    if (!isVisible())
        return;
    if (m_folder.isEmpty() || !QFileInfo(m_folder).isDir()) {
        SetFolder(m_front.isEmpty() ? QDir::homePath() : QFileInfo(m_front).absolutePath());
        m_isGuess = m_front.isEmpty();
        return;
    }
    if (!m_model) {
        m_model = new FolderModel(this);
        m_model->SetFront(m_front);
        m_model->Filter(m_words->text());
        m_list->setModel(m_model);
        for (int column = 1; column < m_model->columnCount(); ++column)
            m_list->hideColumn(column);
        connect(m_model, &QFileSystemModel::directoryLoaded, this, [this] { Reach(m_sought); });
    }
    if (m_model->rootPath() != m_folder)
        m_list->setRootIndex(m_model->ShowFolder(m_folder));
}

QString FolderPane::Folder() const
{
    return m_isGuess ? QString() : m_folder;
}

void FolderPane::SetFront(const QString& path)
{
    const QString clean = path.isEmpty() ? path : QDir::cleanPath(path);
    if (clean == m_front)
        return;
    m_front = clean;
    if (m_isGuess && !clean.isEmpty())
        SetFolder(QFileInfo(clean).absolutePath());
    if (m_model) {
        m_model->SetFront(clean);
        m_list->viewport()->update();
    }
}

void FolderPane::ShowFront()
{
    if (m_front.isEmpty())
        return;
    if (!m_front.startsWith(m_folder.endsWith(u'/') ? m_folder : m_folder + u'/'))
        SetFolder(QFileInfo(m_front).absolutePath());
    m_words->clear(); // which may hide it
    Reach(m_front);
    m_list->setFocus();
}

// The folders around it are read one after the other, and rows come in above it.
void FolderPane::Reach(const QString& path)
{
    m_sought = path;
    const QModelIndex index = m_model && !path.isEmpty() ? m_model->index(path) : QModelIndex();
    if (!index.isValid())
        return;
    m_list->setCurrentIndex(index);
    m_list->scrollTo(index);
}

void FolderPane::Open(const QModelIndex& index, bool behind)
{
    if (!index.isValid())
        return;
    if (m_model->isDir(index))
        m_list->setExpanded(index, !m_list->isExpanded(index));
    else if (behind)
        Q_EMIT ChosenBehind(m_model->filePath(index));
    else
        Q_EMIT Chosen(m_model->filePath(index));
}

// The one that was walked to, or the first file that is listed.
void FolderPane::OpenFirst()
{
    if (!m_model)
        return;
    QModelIndex index = m_model->index(0, 0, m_list->rootIndex());
    while (index.isValid() && m_model->isDir(index))
        index = m_list->indexBelow(index);
    Open(index, false);
}

// With a row that the next key can begin from, unless one is there still.
void FolderPane::EnterList()
{
    const QModelIndex current = m_list->currentIndex();
    if (m_model && (!current.isValid() || !m_list->visualRect(current).isValid()))
        m_list->setCurrentIndex(m_model->index(0, 0, m_list->rootIndex()));
    m_list->setFocus();
}

QString FolderPane::FolderOf(const QModelIndex& index) const
{
    if (!index.isValid())
        return m_folder;
    return m_model->isDir(index) ? m_model->filePath(index)
                                 : QFileInfo(m_model->filePath(index)).absolutePath();
}

void FolderPane::ShowMenu(const QModelIndex& index, const QPoint& place)
{
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("folderMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QString folder = FolderOf(index);
    const QString path = index.isValid() ? m_model->filePath(index) : folder;
    if (index.isValid() && !m_model->isDir(index)) {
        menu->addAction(tr("&Open"), this, [this, path] { Q_EMIT Chosen(path); });
        menu->addAction(
            tr("Open &Behind the Script in Front") + u'\t' +
                QKeySequence(Qt::CTRL | Qt::Key_Return).toString(QKeySequence::NativeText),
            this, [this, path] { Q_EMIT ChosenBehind(path); });
    } else if (index.isValid()) {
        menu->addAction(tr("Show &Only This Folder"), this, [this, path] { SetFolder(path); });
    }
    menu->addAction(tr("&New Script Here"), this,
                    [this, folder] { Q_EMIT NewScriptWanted(folder); });
    menu->addSeparator();
    menu->addAction(tr("Copy &Path"), this, [path] {
        QGuiApplication::clipboard()->setText(QDir::toNativeSeparators(path));
    });
    menu->addAction(tr("Open Containing &Folder"), this, [path] {
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
    });
    menu->popup(place);
}

bool FolderPane::OnKey(const QKeyEvent& key, const QObject* watched)
{
    const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (watched == m_words && (key.key() == Qt::Key_Down || key.key() == Qt::Key_Up)) {
        EnterList();
        return true;
    }
    if (watched == m_list && isEnter && key.modifiers() == Qt::ControlModifier) {
        Open(m_list->currentIndex(), true);
        return true;
    }
    if (watched == m_list && key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier) {
        const QRect row = m_list->visualRect(m_list->currentIndex());
        ShowMenu(m_list->currentIndex(), m_list->viewport()->mapToGlobal(row.bottomLeft()));
        return true;
    }
    return false;
}

bool FolderPane::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && OnKey(static_cast<const QKeyEvent&>(*event), watched))
        return true;
    if (event->type() == QEvent::MouseButtonRelease && watched == m_list->viewport()) {
        const auto& mouse = static_cast<const QMouseEvent&>(*event);
        const QModelIndex index = m_list->indexAt(mouse.position().toPoint());
        if (mouse.button() == Qt::MiddleButton && index.isValid() && !m_model->isDir(index)) {
            Open(index, true);
            return true;
        }
    }
    return QDockWidget::eventFilter(watched, event);
}
