// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/outline/SymbolPicker.h"

#include "host/lists/ListFrame.h"
#include "host/lists/ListKeys.h"

#include <QLineEdit>
#include <QListWidget>

SymbolPicker::SymbolPicker(std::vector<Symbol> symbols, QWidget* parent)
    : QDialog(parent, Qt::Popup), m_symbols(std::move(symbols)), m_words(new QLineEdit(this)),
      m_list(new QListWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("symbolPicker"));
    setAccessibleName(tr("Go to Symbol"));
    m_words->setPlaceholderText(tr("Type part of a name"));
    m_words->setAccessibleName(tr("Symbol"));
    m_list->setAccessibleName(tr("Symbols of the script"));
    m_list->setUniformItemSizes(true);
    FrameList(*this, *m_words, *m_list);
    connect(m_words, &QLineEdit::textChanged, this, &SymbolPicker::Filter);
    connect(m_list, &QListWidget::itemClicked, this, &SymbolPicker::Choose);
    new ListKeys(*m_words, *m_list, [this] { Choose(); }); // goes with the line
    Filter({});
    constexpr QSize kSize(480, 360);
    resize(kSize);
    m_words->setFocus();
}

void SymbolPicker::Filter(const QString& words)
{
    constexpr int kMost = 500; // nobody reads more
    m_list->clear();
    for (std::size_t i = 0; i < m_symbols.size() && m_list->count() < kMost; ++i) {
        const Symbol& symbol = m_symbols[i];
        if (!symbol.name.contains(words, Qt::CaseInsensitive))
            continue;
        auto* item =
            new QListWidgetItem(symbol.name + QStringLiteral("    ") + KindText(symbol), m_list);
        item->setData(Qt::UserRole, static_cast<int>(i));
    }
    EndList(*m_list, m_symbols.empty() ? tr("The script creates nothing that could be listed")
                                       : tr("Nothing that the script creates has this name"));
}

void SymbolPicker::Choose()
{
    const QListWidgetItem* item = m_list->currentItem();
    if (!item || !item->data(Qt::UserRole).isValid())
        return;
    const Symbol symbol = m_symbols[static_cast<std::size_t>(item->data(Qt::UserRole).toInt())];
    hide();
    Q_EMIT Chosen(symbol.start, symbol.end);
    close();
}
