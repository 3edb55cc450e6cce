// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CPrintDialog: asks for a printer and what of a document to print on it. QPrintDialog stands
/// behind it, through the print service.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <memory>

class PrintJob;
class QPrinter;

/// Flags of PRINTDLG.
inline constexpr UINT PD_ALLPAGES = 0;
inline constexpr UINT PD_SELECTION = 0x1;            ///< the selection alone
inline constexpr UINT PD_PAGENUMS = 0x2;             ///< pages from nFromPage to nToPage
inline constexpr UINT PD_NOSELECTION = 0x4;          ///< there is no selection to choose
inline constexpr UINT PD_NOPAGENUMS = 0x8;           ///< there are no pages to choose
inline constexpr UINT PD_USEDEVMODECOPIES = 0x40000; ///< the printer makes the copies
inline constexpr UINT PD_HIDEPRINTTOFILE = 0x100000; ///< no file is offered

/// What the dialog starts with, and what was chosen. Pages count from 1.
struct PRINTDLG
{
    UINT Flags = PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOSELECTION; ///< PD_ and their like
    std::uint16_t nFromPage = 0;                                     ///< 0: the first one
    std::uint16_t nToPage = 0;                                       ///< 0: the last one
    std::uint16_t nMinPage = 1;                                      ///< that there is
    std::uint16_t nMaxPage = 0xFFFF;                                 ///< that there is
};

inline constexpr int kDialogOk = 1;     ///< a printer was chosen
inline constexpr int kDialogCancel = 2; ///< none was

/// Asks for a printer and what of a document to print on it.
class ZN_API CPrintDialog
{
public:
    explicit CPrintDialog(UINT flags = PRINTDLG().Flags); ///< flags of PD_
    ~CPrintDialog(); ///< the printer that was chosen goes, unless a job has it
    CPrintDialog(const CPrintDialog&) = delete;
    CPrintDialog& operator=(const CPrintDialog&) = delete;

    int DoModal(HWND owner = nullptr); ///< kDialogOk or kDialogCancel
    bool GetDefaults();                ///< the printer as it is, unasked; false if there is none

    /// The user wants that alone.
    bool PrintSelection() const { return (m_pd.Flags & PD_SELECTION) != 0; }
    /// The user wants some pages.
    bool PrintRange() const { return (m_pd.Flags & PD_PAGENUMS) != 0; }

    /// A job on the printer chosen, once; null if none was.
    std::unique_ptr<PrintJob> CreatePrinterDC();

    PRINTDLG m_pd; ///< what it starts with and what was chosen

private:
    std::unique_ptr<QPrinter> m_printer;
};
