// SPDX-License-Identifier: GPL-3.0-or-later
// CPrintDialog: asks for a printer and what of a document to print on it. QPrintDialog stands
// behind it, through the print service.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <memory>

class PrintJob;
class QPrinter;

// Flags of PRINTDLG.
inline constexpr UINT PD_ALLPAGES = 0;
inline constexpr UINT PD_SELECTION = 0x1;
inline constexpr UINT PD_PAGENUMS = 0x2;
inline constexpr UINT PD_NOSELECTION = 0x4;
inline constexpr UINT PD_NOPAGENUMS = 0x8;
inline constexpr UINT PD_USEDEVMODECOPIES = 0x40000;
inline constexpr UINT PD_HIDEPRINTTOFILE = 0x100000;

// What the dialog starts with, and what was chosen. Pages count from 1.
struct PRINTDLG
{
    UINT Flags = PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOSELECTION;
    std::uint16_t nFromPage = 0;
    std::uint16_t nToPage = 0;
    std::uint16_t nMinPage = 1;
    std::uint16_t nMaxPage = 0xFFFF;
};

inline constexpr int kDialogOk = 1;
inline constexpr int kDialogCancel = 2;

class ZN_API CPrintDialog
{
public:
    explicit CPrintDialog(UINT flags = PRINTDLG().Flags);
    ~CPrintDialog();
    CPrintDialog(const CPrintDialog&) = delete;
    CPrintDialog& operator=(const CPrintDialog&) = delete;

    int DoModal(HWND owner = nullptr); // kDialogOk or kDialogCancel
    bool GetDefaults();                // the printer as it is, unasked; false if there is none

    bool PrintSelection() const { return (m_pd.Flags & PD_SELECTION) != 0; }
    bool PrintRange() const { return (m_pd.Flags & PD_PAGENUMS) != 0; }

    // A job on the printer chosen, once; null if none was.
    std::unique_ptr<PrintJob> CreatePrinterDC();

    PRINTDLG m_pd;

private:
    std::unique_ptr<QPrinter> m_printer;
};
