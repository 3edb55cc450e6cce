// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/problems/ProblemPane.h"

#include "host/problems/SyntaxCheck.h"

#include <QHeaderView>
#include <QLabel>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int kLineColumn = 0;
constexpr int kPlaceColumn = 1;
constexpr int kTextColumn = 2;
constexpr int kStartRole = Qt::UserRole;
constexpr int kEndRole = Qt::UserRole + 1;

} // namespace

ProblemPane::ProblemPane(QWidget* parent)
    : QDockWidget(tr("Problems"), parent), m_list(new QTreeWidget(this)), m_text(new QLabel(this))
{
    setObjectName(QStringLiteral("problems"));
    m_list->setAccessibleName(tr("Problems of the script"));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setHeaderLabels({tr("Line"), tr("Column"), tr("Problem")});
    m_list->header()->setSectionResizeMode(kLineColumn, QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(kPlaceColumn, QHeaderView::ResizeToContents);
    m_list->header()->setStretchLastSection(true);
    m_text->setObjectName(QStringLiteral("noProblems"));
    m_text->setMargin(4);
    m_text->setWordWrap(true);
    m_text->hide();
    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_text);
    layout->addWidget(m_list);
    setWidget(content);
    // A double click and Enter alike.
    connect(m_list, &QTreeWidget::itemActivated, this, &ProblemPane::Choose);
}

void ProblemPane::Clear()
{
    m_list->clear();
    m_text->hide();
}

void ProblemPane::Say(const QString& text)
{
    m_text->setText(text);
    m_text->show();
}

void ProblemPane::ShowCurrent(int problem)
{
    QTreeWidgetItem* item = m_list->topLevelItem(problem);
    m_list->setCurrentItem(item);
    if (item)
        m_list->scrollToItem(item);
}

void ProblemPane::Add(const ScriptProblem& problem, int line, int column)
{
    auto* item = new QTreeWidgetItem(m_list);
    const auto icon =
        problem.isSyntax ? QStyle::SP_MessageBoxCritical : QStyle::SP_MessageBoxWarning;
    item->setIcon(kLineColumn, style()->standardIcon(icon));
    item->setText(kLineColumn, QString::number(line + 1));
    item->setText(kPlaceColumn, QString::number(column + 1));
    item->setText(kTextColumn, problem.text);
    item->setToolTip(kTextColumn, problem.text);
    item->setData(kLineColumn, kStartRole, QVariant::fromValue(problem.start));
    item->setData(kLineColumn, kEndRole, QVariant::fromValue(problem.end));
}

void ProblemPane::Choose(const QTreeWidgetItem* item)
{
    Q_EMIT Chosen(item->data(kLineColumn, kStartRole).value<long>(),
                  item->data(kLineColumn, kEndRole).value<long>());
}
