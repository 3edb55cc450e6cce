// SPDX-License-Identifier: GPL-3.0-or-later
// ZNCoreEditorWidget: the control for hosts that are written in plain Qt.
#pragma once

#include "control/FileResult.h"
#include "control/LossCheck.h"
#include "editing/ZNCoreEditorControlEx.h"

#include <QString>
#include <QWidget>

#include <memory>
#include <optional>
#include <string>

// An editor that sits in a layout and handles its control's notifications by itself. The control
// is reached for everything that has no signal or slot here; its operations take 1 for `direct`.
// Files are handled with care, unless control().SetCarefulFiles(false). Without an engine the
// widget shows why there is none, and every answer is empty.
class ZN_API ZNCoreEditorWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QString scheme READ scheme WRITE setScheme)
    Q_PROPERTY(bool modified READ isModified NOTIFY modificationChanged)

public:
    explicit ZNCoreEditorWidget(QWidget* parent = nullptr);
    ~ZNCoreEditorWidget() override;

    CZNCoreEditorControlEx& control() { return *m_control; }

    // The encoding and the mark are found in the file. A result that is a problem tells it to a
    // person by Reason; one that is cut short has brought the text before the place.
    FileResult open(const QString& path);
    // In the encoding and with the mark of the file that was opened.
    FileResult save(const QString& path);
    // The first character that a save as it stands would turn into a question mark; ask before it.
    std::optional<LostCharacter> lostBySaving();
    // The same without a reason. False if the file is missing or cannot be read, true if it was cut
    // short; false if it could not be written.
    bool openFile(const QString& path);
    bool saveFile(const QString& path);

    // The language by its number in the registry (zncoreeditor::GetFileTypeManager): colours,
    // keywords, comments, indentation.
    int language() const;
    void setLanguage(int language);

    // Colours by what they are for (looks/Schemes.h). "Desktop", as from the start: light or dark,
    // as the desktop is; empty: those of the language's settings.
    QString scheme() const;
    void setScheme(const QString& name);

    QString text();
    void setText(const QString& text);             // undoable; the save point stays where it was
    bool isModified() const { return m_modified; } // whether the text differs from the save point

Q_SIGNALS:
    // Each comes once for an operation, a message of the control or an event, when that is over:
    // the text is whole, and a slot may delete the widget.
    void textChanged();
    void modificationChanged(bool modified);
    void charAdded(char32_t character);
    // From the event loop, when what they tell of has been painted.
    void cursorPositionChanged(long position);
    void updateUi();
    // Every notification of the engine, at once: in the middle of a change or a painting. The
    // record is good until the slot returns, which may delete the widget by deleteLater.
    void notified(const SCNotification& record);

protected:
    void connectNotify(const QMetaMethod& signal) override;

private:
    class NotificationWindow;

    // Whether the widget was deleted while this one stood on the stack.
    class Lifetime;

    // A call of this widget's, behind which it tells what has changed.
    template <typename Operate>
    auto Run(Operate operate);

    LRESULT Notify(LPARAM lParam);
    LRESULT Note(const SCNotification& record);
    void TellChanges();
    void TellUpdate();

    bool m_tellsChanges = false; // somebody listens to each; before what connects to this widget
    std::unique_ptr<CZNCoreEditorControlEx> m_control;
    std::unique_ptr<NotificationWindow> m_window; // hears what the engine tells its parent
    Lifetime* m_lifetime = nullptr;
    bool m_modified = false;
    long m_caret = 0;

    // What is to be told.
    int m_operations = 0; // under way
    bool m_textChanged = false;
    bool m_toldModified = false;
    bool m_isUpdated = false;
    std::u32string m_added;
};
