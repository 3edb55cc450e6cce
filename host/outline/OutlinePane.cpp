// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/outline/OutlinePane.h"

#include "host/outline/SymbolModel.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <QVBoxLayout>

OutlinePane::OutlinePane(QWidget* parent)
    : QDockWidget(tr("Outline"), parent), m_words(new QLineEdit(this)),
      m_symbols(new SymbolModel(this)), m_list(new QTreeView(this)), m_why(new QLabel(this))
{
    constexpr int kMargin = 8; // pixels
    m_why->setObjectName(QStringLiteral("outlineWhy"));
    m_why->setWordWrap(true);
    m_why->setMargin(kMargin);
    m_why->setAlignment(Qt::AlignTop);
    m_why->hide();
    setObjectName(QStringLiteral("outlinePane"));
    m_words->setPlaceholderText(tr("Part of a name"));
    m_words->setAccessibleName(tr("Filter"));
    m_words->setClearButtonEnabled(true);
    m_list->setObjectName(QStringLiteral("outlineList"));
    m_list->setAccessibleName(tr("Outline of the script"));
    m_list->setModel(m_symbols);
    m_list->setUniformRowHeights(true);
    m_list->header()->setSectionResizeMode(SymbolModel::kName, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(SymbolModel::kKind, QHeaderView::ResizeToContents);
    m_list->header()->setStretchLastSection(false);
    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_words);
    layout->addWidget(m_list);
    layout->addWidget(m_why, 1);
    setWidget(content);
    connect(m_words, &QLineEdit::textChanged, this, &OutlinePane::Filter);
    connect(m_list, &QTreeView::activated, this, [this](const QModelIndex& index) {
        if (const Symbol* symbol = m_symbols->At(index))
            Q_EMIT Chosen(symbol->start, symbol->end);
    });
}

void OutlinePane::ShowNothing(const QString& why)
{
    Show({});
    m_why->setText(why);
    m_why->show();
    m_list->hide();
}

void OutlinePane::Show(std::vector<Symbol> symbols)
{
    m_why->hide();
    m_list->show();
    m_symbols->Show(std::move(symbols));
}

void OutlinePane::ShowPlace(long position, long lineStart, long lineEnd)
{
    const auto isInLine = [&](const QModelIndex& index) {
        const Symbol* symbol = m_symbols->At(index);
        return symbol && symbol->start >= lineStart;
    };
    QModelIndex index = m_symbols->IndexAt(position);
    if (const QModelIndex last = m_symbols->IndexAt(lineEnd); !isInLine(index) && isInLine(last))
        index = isInLine(last.parent()) ? last.parent() : last;
    const QModelIndex outer = index.parent();
    const QModelIndex shown = outer.isValid() && !m_list->isExpanded(outer) ? outer : index;
    if (m_list->currentIndex() != shown)
        m_list->setCurrentIndex(shown);
}

// What is found inside is seen; afterwards, what was open before is.
void OutlinePane::Filter(const QString& words)
{
    if (!m_symbols->IsFiltered())
        RememberOpen();
    m_symbols->Filter(words);
    if (words.isEmpty())
        OpenRemembered();
    else
        m_list->expandAll();
}

void OutlinePane::RememberOpen()
{
    m_open.clear();
    for (int row = 0; row < m_symbols->rowCount(); ++row) {
        if (const QModelIndex index = m_symbols->index(row, 0); m_list->isExpanded(index))
            m_open.insert(m_symbols->At(index)->name);
    }
}

void OutlinePane::OpenRemembered()
{
    m_list->collapseAll();
    for (int row = 0; row < m_symbols->rowCount(); ++row) {
        const QModelIndex index = m_symbols->index(row, 0);
        if (m_open.contains(m_symbols->At(index)->name))
            m_list->expand(index);
    }
    m_list->scrollTo(m_list->currentIndex());
}
