// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/Prompts.h"

#include "host/files/FileDialogs.h"
#include "host/files/OpenAsDialog.h"
#include "host/files/SaveAsDialog.h"
#include "host/files/UnsavedDialog.h"
#include "host/recovery/RecoveryDialog.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QWindow>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Prompts)
};

// A letter alone presses no button: the box may have come up while somebody typed.
class Box final : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        const bool isTyped = !event->text().isEmpty() && event->text().front().isPrint() &&
                             event->key() != Qt::Key_Space;
        if (isTyped && !(event->modifiers() & (Qt::AltModifier | Qt::ControlModifier)))
            event->ignore();
        else
            QMessageBox::keyPressEvent(event);
    }
};

Prompts*& Current()
{
    static Prompts* current = nullptr;
    return current;
}

} // namespace

Prompts& GetPrompts()
{
    static DialogPrompts dialogs;
    return Current() ? *Current() : dialogs;
}

void SetPrompts(Prompts* prompts)
{
    Current() = prompts;
}

QStringList DialogPrompts::FilesToOpen(QWidget* parent, const QString& folder)
{
    QFileDialog dialog(parent, Texts::tr("Open"), folder,
                       Texts::tr("SQL scripts (*.sql *.pks *.pkb *.ddl);;All files (*)"));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    FitColumns(dialog);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}

QString DialogPrompts::FolderToShow(QWidget* parent, const QString& folder)
{
    return QFileDialog::getExistingDirectory(parent, Texts::tr("Open Folder"), folder);
}

std::optional<OpenChoice> DialogPrompts::WhatToOpen(QWidget* parent, const QString& place)
{
    OpenAsDialog dialog(parent, place);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Choice();
}

std::optional<SaveTarget> DialogPrompts::WhereToSave(QWidget* parent, const SaveTarget& proposal)
{
    SaveAsDialog dialog(parent, proposal);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Target();
}

LoseChanges DialogPrompts::BeforeLosing(QWidget* parent, const QString& name)
{
    QMessageBox box(QMessageBox::Question, Texts::tr("Unsaved changes"),
                    Texts::tr("“%1” has changes that are not saved.").arg(name),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, parent);
    box.setTextFormat(Qt::PlainText); // a name may look like markup
    box.setInformativeText(Texts::tr("They are lost if you discard them."));
    box.setDefaultButton(QMessageBox::Save);
    box.button(QMessageBox::Save)->setText(Texts::tr("&Save"));
    box.button(QMessageBox::Discard)->setText(Texts::tr("&Discard"));
    switch (box.exec()) {
    case QMessageBox::Save:
        return LoseChanges::Save;
    case QMessageBox::Discard:
        return LoseChanges::Discard;
    default:
        return LoseChanges::Cancel;
    }
}

std::optional<QList<bool>> DialogPrompts::WhichToSave(QWidget* parent, const QStringList& names)
{
    UnsavedDialog dialog(parent, names);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.Choices()) : std::nullopt;
}

LoseCharacters DialogPrompts::BeforeQuestionMarks(QWidget* parent, const QString& text)
{
    QMessageBox box(QMessageBox::Warning, Texts::tr("Save"), text, QMessageBox::Cancel, parent);
    box.setTextFormat(Qt::PlainText);
    const auto* utf8 = box.addButton(Texts::tr("Save as &UTF-8"), QMessageBox::AcceptRole);
    const auto* anyway =
        box.addButton(Texts::tr("Save with &Question Marks"), QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    if (box.clickedButton() == utf8)
        return LoseCharacters::SaveAsUtf8;
    return box.clickedButton() == anyway ? LoseCharacters::SaveAnyway : LoseCharacters::Cancel;
}

QList<RecoveryChoice> DialogPrompts::WhatToRecover(QWidget* parent,
                                                   const QList<RecoverableCopy>& copies)
{
    RecoveryDialog dialog(parent, copies);
    dialog.exec();
    return dialog.Choices();
}

bool DialogPrompts::Confirm(QWidget* parent, const QString& text, const QString& doIt)
{
    return ConfirmComparing(parent, text, doIt, {});
}

bool DialogPrompts::ConfirmComparing(QWidget* parent, const QString& text, const QString& doIt,
                                     const Comparison& comparison)
{
    Box box(QMessageBox::Warning, QStringLiteral("znworkbench"), text, QMessageBox::Cancel, parent);
    box.setTextFormat(Qt::PlainText);
    const auto* yes = box.addButton(doIt, QMessageBox::AcceptRole);
    if (comparison.text) {
        auto* compare = box.addButton(Texts::tr("Co&mpare..."), QMessageBox::ActionRole);
        // Which ends the question.
        QObject::disconnect(compare, &QAbstractButton::clicked, box.findChild<QDialogButtonBox*>(),
                            nullptr);
        QObject::connect(compare, &QAbstractButton::clicked, &box, [&] {
            ComparisonDialog dialog(&box, comparison);
            QObject::connect(&box, &QDialog::finished, &dialog, &QDialog::reject);
            dialog.exec();
        });
    }
    box.setDefaultButton(QMessageBox::Cancel);
    // A window that is about to be shown is not where the window manager is going to put it.
    const QWindow* window = parent ? parent->window()->windowHandle() : nullptr;
    if (!window || !window->isExposed()) {
        box.setAttribute(Qt::WA_DontShowOnScreen); // it has its size once it is shown
        box.show();
        box.hide();
        box.setAttribute(Qt::WA_DontShowOnScreen, false);
        box.move(box.screen()->availableGeometry().center() - box.rect().center());
    }
    box.exec();
    return box.clickedButton() == yes;
}

void DialogPrompts::Tell(QWidget* parent, const QString& text)
{
    QMessageBox box(QMessageBox::Warning, QStringLiteral("znworkbench"), text, QMessageBox::Ok,
                    parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

QString WithEnding(QWidget* parent, const QString& path, const QString& ending)
{
    if (path.isEmpty() || !QFileInfo(path).suffix().isEmpty())
        return path;
    const QString whole = path + ending;
    const bool isFree = !QFileInfo::exists(whole);
    return isFree || GetPrompts().Confirm(
                         parent,
                         Texts::tr("“%1” is there already.").arg(QDir::toNativeSeparators(whole)),
                         Texts::tr("&Overwrite"))
               ? whole
               : QString();
}
