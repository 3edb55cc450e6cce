#include "host/Prompts.h"

#include "host/SaveAsDialog.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

QStringList DialogPrompts::FilesToOpen(QWidget* parent, const QString& folder)
{
    return QFileDialog::getOpenFileNames(
        parent, QStringLiteral("Open"), folder,
        QStringLiteral("SQL scripts (*.sql *.pks *.pkb *.ddl);;All files (*)"));
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
    QMessageBox box(QMessageBox::Question, QStringLiteral("Unsaved changes"),
                    QStringLiteral("“%1” has changes that are not saved.").arg(name),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, parent);
    box.setTextFormat(Qt::PlainText); // a name may look like markup
    box.setInformativeText(QStringLiteral("They are lost if you discard them."));
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return LoseChanges::Save;
    case QMessageBox::Discard:
        return LoseChanges::Discard;
    default:
        return LoseChanges::Cancel;
    }
}

bool DialogPrompts::Confirm(QWidget* parent, const QString& text, const QString& doIt)
{
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Save"), text, QMessageBox::Cancel,
                    parent);
    box.setTextFormat(Qt::PlainText);
    const auto* yes = box.addButton(doIt, QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
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
