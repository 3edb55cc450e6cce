// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CDialog: a window of controls, modal or modeless; a QDialog with a layout stands behind it.
/// Every control has a number, by which the dialog's code, a host's and a test find it.
#pragma once

#include "platform/windows/DataExchange.h"
#include "platform/windows/Wnd.h"

#include <QRect>

class QAbstractButton;
class QComboBox;
class QLineEdit;

inline constexpr UINT IDOK = 1;     ///< the values were taken
inline constexpr UINT IDCANCEL = 2; ///< Escape and the window's closing as well

/// What a control tells its dialog, above the number in the parameter of WM_COMMAND. A button that
/// is clicked comes as a command.
inline constexpr UINT BN_CLICKED = 0;
inline constexpr UINT CBN_SELCHANGE = 1;      ///< another item of a combo box
inline constexpr UINT CBN_EDITCHANGE = 5;     ///< the text of a combo box
inline constexpr UINT CBN_DROPDOWN = 7;       ///< before the list is shown
inline constexpr UINT LBN_SELCHANGE = 0x0101; ///< another item of a list
inline constexpr UINT EN_CHANGE = 0x0300;     ///< the text of an edit

/// Belongs to whoever made it. A modeless dialog outlives its window: the object is given up when
/// PostNcDestroy has come. The window is deleted once none of its code can be running.
class ZN_API CDialog : public CWnd
{
public:
    /// Without a window; the parent may be null, and outlives it.
    explicit CDialog(CWnd* parent = nullptr) : m_parent(parent) {}
    ~CDialog() override;

    /// Shows the dialog until it ends: the number that EndDialog was given, IDCANCEL if the window
    /// went in another way.
    virtual std::intptr_t DoModal();

    using CWnd::Create;
    bool Create(CWnd* parent); ///< modeless, hidden at first. False if there is a window already
    /// A page of another dialog: a plain widget inside the given one, hidden at first. Keys that it
    /// does not use, Enter and Escape among them, are the dialog's around it.
    bool CreateInside(QWidget* parent);

    /// Ends a modal dialog; hides a modeless one.
    void EndDialog(std::intptr_t result);
    void DestroyWindow() override;

    /// The control with the number, null if there is none of the class.
    template <class Control = QWidget>
    Control* GetDlgItem(UINT id) const
    {
        return qobject_cast<Control*>(::GetDlgItem(GetSafeHwnd(), id));
    }

    /// Values into the controls, or with true from them. False, and the focus on the control, if
    /// its contents are no value.
    bool UpdateData(bool saveAndValidate = true);

    /// The dialog moves beside a place on the screen that it covers, as little as it can.
    void KeepOff(const QRect& place);

    int OnCommand(WPARAM wParam, LPARAM lParam) override;

protected:
    /// Makes the controls inside the window, with its layout and title. Each that has a number is
    /// made known by AddControl.
    virtual void OnBuild(QWidget* window) = 0;
    /// The controls stand. False: the handler has put the focus where it belongs.
    virtual bool OnInitDialog();
    /// An override calls the DDX functions for each value.
    virtual void DoDataExchange(CDataExchange* exchange);
    virtual void OnOK();     ///< takes the values and ends with IDOK
    virtual void OnCancel(); ///< ends with IDCANCEL
    /// What a control tells beside a click, CBN_DROPDOWN for one.
    virtual void OnControl(UINT id, UINT code);

    /// The control comes to be known by the number, and its news to the dialog. The control itself.
    template <class Control>
    Control* AddControl(UINT id, Control* control)
    {
        Connect(id, control);
        return control;
    }

    const MessageMap& GetMessageMap() const override;
    const CommandMap& GetCommandMap() const override;

private:
    bool TakeWindow(QWidget* window);
    bool MakeWindow(QWidget* parent);
    void Initialise();
    void Tell(UINT id, UINT code, QWidget* control) const;
    void Connect(UINT id, QWidget* control);

    CWnd* m_parent;
    std::intptr_t m_result = IDCANCEL;
};

/// One value and the control with the number, in the direction that the exchange has. A number
/// that is none fails.
ZN_API void DDX_Text(CDataExchange* exchange, UINT id, QString& value); ///< edit or combo box
ZN_API void DDX_Text(CDataExchange* exchange, UINT id, int& value);     ///< edit or spin box
ZN_API void DDX_Check(CDataExchange* exchange, UINT id, bool& value);   ///< check or radio button
ZN_API void DDX_CBIndex(CDataExchange* exchange, UINT id, int& value);  ///< -1: none is chosen
