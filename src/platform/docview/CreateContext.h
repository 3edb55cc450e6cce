// SPDX-License-Identifier: GPL-3.0-or-later
// What a document template hands to the windows that it makes.
#pragma once

struct CRuntimeClass;
class CDocument;
class CDocTemplate;
class CFrameWnd;

struct CCreateContext
{
    const CRuntimeClass* m_pNewViewClass = nullptr;
    CDocument* m_pCurrentDoc = nullptr;
    CDocTemplate* m_pNewDocTemplate = nullptr;
    CFrameWnd* m_pCurrentFrame = nullptr; // the one that another frame is made beside
};
