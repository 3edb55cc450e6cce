// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/options/OptionsDialog.h"

#include "platform/services/OptionsServer.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int kPointsPerInch = 72;
constexpr int kPrintPixels = 96; // to the inch, in the height of a print font

struct SwitchRow
{
    const char* name;
    const char* text;
    int key;
};

constexpr SwitchRow kSwitches[] = {
    {"tabsToSpaces", QT_TRANSLATE_NOOP("OptionsDialog", "Insert &blanks for Tab"),
     option::TabsToSpaces},
    {"lineNumbers", QT_TRANSLATE_NOOP("OptionsDialog", "&Line numbers"), option::LineNumbers},
    {"foldMargin", QT_TRANSLATE_NOOP("OptionsDialog", "F&old margin"), option::FoldMargin},
    {"continueComments", QT_TRANSLATE_NOOP("OptionsDialog", "Enter &continues a comment"),
     option::ContinueComments},
    {"surroundSelection",
     QT_TRANSLATE_NOOP("OptionsDialog", "T&yped quotes and brackets surround the selection"),
     option::SurroundSelection},
    {"closePairs", QT_TRANSLATE_NOOP("OptionsDialog", "Close brackets and &quotes"),
     option::ClosePairs},
    {"printColours", QT_TRANSLATE_NOOP("OptionsDialog", "&Print in colours"), option::PrintColours},
    {"printGround", QT_TRANSLATE_NOOP("OptionsDialog", "Print the &grounds of colours"),
     option::PrintGround},
    {"printOwnFont", QT_TRANSLATE_NOOP("OptionsDialog", "Print in a font of its o&wn"),
     option::PrintOwnFont},
};

// Those that a text without a mark can be in, and one that new scripts are wanted in.
struct EncodingRow
{
    const char* name;
    int type; // znutils::TextType
};

constexpr EncodingRow kEncodings[] = {
    {"UTF-8", 6},
    {QT_TRANSLATE_NOOP("OptionsDialog", "UTF-8 with mark"), 5},
    {"windows-1252", 0},
    {QT_TRANSLATE_NOOP("OptionsDialog", "UTF-16 LE with mark"), 1},
};

constexpr int kPathWidth = 320; // pixels, of two folders
constexpr int kRounding = 2;    // pixels that a hint may lack on a scaled screen

QWidget* FieldOf(const QFormLayout& form, int row)
{
    const QLayoutItem* field = form.itemAt(row, QFormLayout::FieldRole);
    return (field ? field : form.itemAt(row, QFormLayout::SpanningRole))->widget();
}

} // namespace

OptionsDialog::OptionsDialog(QWidget* parent)
    : QDialog(parent), m_font(new QFontComboBox(this)), m_points(new QSpinBox(this)),
      m_printFont(new QFontComboBox(this)), m_printPoints(new QSpinBox(this)),
      m_tabWidth(new QSpinBox(this)), m_autoIndent(new QComboBox(this)),
      m_encoding(new QComboBox(this)), m_includePath(new QLineEdit(this))
{
    setWindowTitle(tr("Options"));
    CZNOptionsServer& options = *CZNOptionsServer::GetObjectW();
    m_font->setObjectName(QStringLiteral("font"));
    m_font->setFontFilters(QFontComboBox::MonospacedFonts);
    m_points->setObjectName(QStringLiteral("points"));
    m_points->setRange(5, 72);
    m_points->setSuffix(QStringLiteral(" pt"));
    ReadFont();
    m_printFont->setObjectName(QStringLiteral("printFont"));
    m_printFont->setFontFilters(QFontComboBox::MonospacedFonts);
    m_printPoints->setObjectName(QStringLiteral("printPoints"));
    m_printPoints->setRange(4, 72);
    m_printPoints->setSuffix(QStringLiteral(" pt"));
    ReadPrintFont();
    m_tabWidth->setObjectName(QStringLiteral("tabWidth"));
    m_tabWidth->setRange(1, 32);
    m_tabWidth->setValue(options.GetInt(option::TabWidth));
    m_autoIndent->setObjectName(QStringLiteral("autoIndent"));
    m_autoIndent->addItems({tr("Not at all"), tr("As the line above"), tr("By the language")});
    m_autoIndent->setCurrentIndex(std::clamp(options.GetInt(option::AutoIndent), 0, 2));

    m_encoding->setObjectName(QStringLiteral("encoding"));
    for (const EncodingRow& row : kEncodings)
        m_encoding->addItem(tr(row.name), row.type);
    // None of them where the settings say another, which then stays.
    m_encoding->setCurrentIndex(m_encoding->findData(options.GetInt(option::DefaultTextType)));
    m_encoding->setToolTip(tr("Of new scripts, and of files that do not tell theirs by a mark or "
                              "by what stands in them"));

    m_includePath->setObjectName(QStringLiteral("includePath"));
    m_includePath->setText(options.GetString(option::IncludePath));
    m_includePath->setMinimumWidth(kPathWidth);
    m_includePath->setPlaceholderText(tr("Folders, with ; between them"));

    auto* form = new QFormLayout;
    form->addRow(tr("&Font"), m_font);
    form->addRow(tr("&Size"), m_points);
    form->addRow(tr("&Tab width, in columns"), m_tabWidth);
    form->addRow(tr("&Indent new lines"), m_autoIndent);
    form->addRow(tr("&Encoding without a mark"), m_encoding);
    form->addRow(tr("Folders of i&ncluded files"), m_includePath);
    for (const SwitchRow& row : kSwitches)
        form->addRow(AddSwitch(row.name, tr(row.text), row.key));

    form->addRow(tr("P&rint font"), m_printFont);
    form->addRow(tr("Print si&ze"), m_printPoints);
    for (int row = 1; row < form->rowCount(); ++row)
        setTabOrder(FieldOf(*form, row - 1), FieldOf(*form, row));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    for (QLabel* label : findChildren<QLabel*>(Qt::FindDirectChildrenOnly))
        label->setMinimumWidth(label->sizeHint().width() + kRounding);
    layout->addWidget(buttons);
}

QCheckBox* OptionsDialog::AddSwitch(const char* name, const QString& text, int key)
{
    auto* box = new QCheckBox(text, this);
    box->setObjectName(QLatin1String(name));
    box->setChecked(CZNOptionsServer::GetObjectW()->GetInt(key) != 0);
    m_switches.append({box, key});
    return box;
}

void OptionsDialog::ReadFont()
{
    LOGFONT font;
    if (!CZNOptionsServer::GetObjectW()->GetLOGFONT(option::EditorFont, &font))
        return;
    m_font->setCurrentFont(QFont(QString::fromUtf16(font.lfFaceName)));
    m_points->setValue(
        -MulDiv(static_cast<int>(font.lfHeight), kPointsPerInch, ScreenPixelsPerInch()));
}

// What has not been chosen is proposed as the editor's font, a little smaller.
void OptionsDialog::ReadPrintFont()
{
    constexpr int kProposed = 9; // points
    LOGFONT font;
    const bool isChosen = CZNOptionsServer::GetObjectW()->GetLOGFONT(option::PrintFont, &font);
    m_printFont->setCurrentFont(isChosen ? QFont(QString::fromUtf16(font.lfFaceName))
                                         : m_font->currentFont());
    m_printPoints->setValue(
        isChosen ? MulDiv(static_cast<int>(std::labs(font.lfHeight)), kPointsPerInch, kPrintPixels)
                 : kProposed);
}

void OptionsDialog::StorePrintFont() const
{
    LOGFONT font;
    const std::u16string face = m_printFont->currentFont().family().toStdU16String();
    face.copy(font.lfFaceName, std::size(font.lfFaceName) - 1);
    font.lfHeight = -MulDiv(m_printPoints->value(), kPrintPixels, kPointsPerInch);
    font.lfWeight = FW_NORMAL;
    CZNOptionsServer::GetObjectW()->SetLOGFONT(option::PrintFont, &font);
}

void OptionsDialog::Store() const
{
    CZNOptionsServer& options = *CZNOptionsServer::GetObjectW();
    LOGFONT font;
    options.GetLOGFONT(option::EditorFont, &font);
    const std::u16string face = m_font->currentFont().family().toStdU16String();
    std::fill(std::begin(font.lfFaceName), std::end(font.lfFaceName), u'\0');
    face.copy(font.lfFaceName, std::size(font.lfFaceName) - 1);
    font.lfHeight = -MulDiv(m_points->value(), ScreenPixelsPerInch(), kPointsPerInch);
    options.SetLOGFONT(option::EditorFont, &font);
    StorePrintFont();
    options.SetInt(option::TabWidth, m_tabWidth->value());
    options.SetInt(option::AutoIndent, m_autoIndent->currentIndex());
    if (m_encoding->currentIndex() >= 0)
        options.SetInt(option::DefaultTextType, m_encoding->currentData().toInt());
    options.SetString(option::IncludePath, m_includePath->text());
    for (const auto& [box, key] : m_switches)
        options.SetInt(key, box->isChecked() ? 1 : 0);
}
