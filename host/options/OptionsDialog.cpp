// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/options/OptionsDialog.h"

#include "host/files/Encodings.h"
#include "host/files/Prompts.h"
#include "host/icons/FitScreen.h"
#include "host/printing/HeadAndFoot.h"
#include "platform/services/OptionsServer.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFontComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSpinBox>
#include <QStyle>
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
    {"printHead", QT_TRANSLATE_NOOP("OptionsDialog", "Print na&me, page numbers and date"),
     headandfoot::kOption},
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
    {QT_TRANSLATE_NOOP("OptionsDialog", "None of Unicode: as below"), 0},
    {QT_TRANSLATE_NOOP("OptionsDialog", "UTF-16 LE with mark"), 1},
};

constexpr int kPathWidth = 320; // pixels, of two folders
constexpr int kRounding = 2;    // pixels that a hint may lack on a scaled screen

QWidget* FieldOf(const QFormLayout& form, int row)
{
    const QLayoutItem* field = form.itemAt(row, QFormLayout::FieldRole);
    return (field ? field : form.itemAt(row, QFormLayout::SpanningRole))->widget();
}

// What is set, which this machine may lack.
void Show(QFontComboBox& box, const QString& family)
{
    box.setCurrentFont(QFont(family));
    box.setEditText(family);
}

// As this machine writes it; null if it has no such font.
QString FamilyOf(const QString& typed)
{
    const QStringList known = QFontDatabase::families();
    const auto found = std::ranges::find_if(known, [&typed](const QString& family) {
        return family.compare(typed.trimmed(), Qt::CaseInsensitive) == 0;
    });
    return found == known.end() ? QString() : *found;
}

} // namespace

OptionsDialog::OptionsDialog(QWidget* parent)
    : QDialog(parent), m_font(new QFontComboBox(this)), m_points(new QSpinBox(this)),
      m_printFont(new QFontComboBox(this)), m_printPoints(new QSpinBox(this)),
      m_tabWidth(new QSpinBox(this)), m_autoIndent(new QComboBox(this)),
      m_encoding(new QComboBox(this)), m_codePage(new QComboBox(this)),
      m_includePath(new QLineEdit(this))
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
    m_fontSet = m_font->currentText();
    m_printFontSet = m_printFont->currentText();
    m_tabWidth->setObjectName(QStringLiteral("tabWidth"));
    m_tabWidth->setRange(1, 32);
    m_tabWidth->setValue(options.GetInt(option::TabWidth));
    m_autoIndent->setObjectName(QStringLiteral("autoIndent"));
    m_autoIndent->addItems({tr("Not at all"), tr("As the line above"), tr("By the language")});
    m_autoIndent->setToolTip(tr("By the language: as the line above, and a step further in behind "
                                "{, ) and : alone, which is for languages with braces. With "
                                "\"Close brackets and quotes\" what brackets hold is a step "
                                "further in either way."));
    m_autoIndent->setCurrentIndex(std::clamp(options.GetInt(option::AutoIndent), 0, 2));

    m_encoding->setObjectName(QStringLiteral("encoding"));
    for (const EncodingRow& row : kEncodings)
        m_encoding->addItem(tr(row.name), row.type);
    // None of them where the settings say another, which then stays.
    m_encoding->setCurrentIndex(m_encoding->findData(options.GetInt(option::DefaultTextType)));
    m_encoding->setToolTip(tr("Of new scripts, and of files that do not tell theirs by a mark or "
                              "by what stands in them"));

    m_codePage->setObjectName(QStringLiteral("codePage"));
    for (const EncodingChoice& choice : EncodingChoices()) {
        if (IsCodePage(choice))
            m_codePage->addItem(EncodingTitle(choice), choice.encoding);
    }
    m_codePage->setCurrentIndex(m_codePage->findData(DefaultCodePage()));
    m_codePage->setToolTip(tr("What a file is read as that has no mark and is not UTF-8. One that "
                              "looks wrong can be opened with another: click its encoding in the "
                              "status bar."));

    m_includePath->setObjectName(QStringLiteral("includePath"));
    m_includePath->setText(options.GetString(option::IncludePath));
    m_includePath->setMinimumWidth(kPathWidth);
    m_includePath->setPlaceholderText(tr("Folders, with ; between them"));

    auto* page = new QWidget(this);
    auto* form = new QFormLayout(page);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(tr("&Font"), m_font);
    form->addRow(tr("&Size"), m_points);
    form->addRow(tr("&Tab width, in columns"), m_tabWidth);
    form->addRow(tr("&Indent new lines"), m_autoIndent);
    form->addRow(tr("&Encoding without a mark"), m_encoding);
    form->addRow(tr("Files that are no &Unicode"), m_codePage);
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
    auto* area = new QScrollArea(this); // of a screen that is too low for all
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    layout->addWidget(area);
    for (QLabel* label : page->findChildren<QLabel*>(Qt::FindDirectChildrenOnly))
        label->setMinimumWidth(label->sizeHint().width() + kRounding);
    layout->addWidget(buttons);
    area->setWidget(page);
    area->setMinimumWidth(page->minimumSizeHint().width() +
                          style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this));
    const QSize room = page->sizeHint();
    const QSize around(0, sizeHint().height() - area->sizeHint().height() + layout->spacing());
    resize(FittingScreen(*this, sizeHint().expandedTo(room) + around));
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
    Show(*m_font, QString::fromUtf16(font.lfFaceName));
    m_points->setValue(
        -MulDiv(static_cast<int>(font.lfHeight), kPointsPerInch, ScreenPixelsPerInch()));
}

// What has not been chosen is proposed as the editor's font, a little smaller.
void OptionsDialog::ReadPrintFont()
{
    constexpr int kProposed = 9; // points
    LOGFONT font;
    const bool isChosen = CZNOptionsServer::GetObjectW()->GetLOGFONT(option::PrintFont, &font);
    Show(*m_printFont, isChosen ? QString::fromUtf16(font.lfFaceName) : m_font->currentText());
    m_printPoints->setValue(
        isChosen ? MulDiv(static_cast<int>(std::labs(font.lfHeight)), kPointsPerInch, kPrintPixels)
                 : kProposed);
}

// Another font would stand in for one that is not there, and not of one width as a rule.
bool OptionsDialog::TakeFont(QFontComboBox& box, const QString& set)
{
    if (box.currentText() == set)
        return true;
    const QString family = FamilyOf(box.currentText());
    if (!family.isEmpty()) {
        Show(box, family);
        return true;
    }
    GetPrompts().Tell(this, tr("There is no font “%1”.").arg(box.currentText()));
    Show(box, set);
    box.setFocus();
    box.lineEdit()->selectAll();
    return false;
}

void OptionsDialog::accept()
{
    if (TakeFont(*m_font, m_fontSet) && TakeFont(*m_printFont, m_printFontSet))
        QDialog::accept();
}

void OptionsDialog::StorePrintFont() const
{
    LOGFONT font;
    const std::u16string face = m_printFont->currentText().toStdU16String();
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
    const std::u16string face = m_font->currentText().toStdU16String();
    std::fill(std::begin(font.lfFaceName), std::end(font.lfFaceName), u'\0');
    face.copy(font.lfFaceName, std::size(font.lfFaceName) - 1);
    font.lfHeight = -MulDiv(m_points->value(), ScreenPixelsPerInch(), kPointsPerInch);
    options.SetLOGFONT(option::EditorFont, &font);
    StorePrintFont();
    options.SetInt(option::TabWidth, m_tabWidth->value());
    options.SetInt(option::AutoIndent, m_autoIndent->currentIndex());
    if (m_encoding->currentIndex() >= 0)
        options.SetInt(option::DefaultTextType, m_encoding->currentData().toInt());
    if (m_codePage->currentIndex() >= 0)
        options.SetInt(kCodePageOption, m_codePage->currentData().toInt());
    options.SetString(option::IncludePath, m_includePath->text());
    for (const auto& [box, key] : m_switches)
        options.SetInt(key, box->isChecked() ? 1 : 0);
}
