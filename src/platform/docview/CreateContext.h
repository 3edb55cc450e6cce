// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What a document template hands to the windows that it makes.
#pragma once

struct CRuntimeClass;
class CDocument;
class CDocTemplate;
class CFrameWnd;

/// What stands here goes with WM_CREATE. All may be null.
struct CCreateContext
{
    const CRuntimeClass* m_pNewViewClass = nullptr; ///< the view to be made; null: none
    CDocument* m_pCurrentDoc = nullptr;             ///< the document that it shows
    CDocTemplate* m_pNewDocTemplate = nullptr;      ///< that of the document
    CFrameWnd* m_pCurrentFrame = nullptr;           ///< the one that another frame is made beside
};
