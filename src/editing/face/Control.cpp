// SPDX-License-Identifier: GPL-3.0-or-later
// The face's control: its files.
#include "editing/face/Private.h"

template <typename Operate>
bool ZNCoreEditorWidget::Private::Control::Run(Operate operate)
{
    return m_face ? m_face->Run([&](CZNCoreEditorControlEx& /*control*/) { return operate(); })
                  : operate();
}

// A question on the way may have led to the end of the face.
bool ZNCoreEditorWidget::Private::Control::OpenFile(const char16_t* path,
                                                    FileEncodeConverter::encodingType encoding)
{
    return Run([=, this] {
        const bool isOpen = CZNCoreEditorControlEx::OpenFile(path, encoding);
        if (isOpen && m_face)
            m_face->ForgetProblems();
        return isOpen;
    });
}

bool ZNCoreEditorWidget::Private::Control::SaveFile(const char16_t* path,
                                                    FileEncodeConverter::encodingType encoding,
                                                    bool commit, bool writeMark)
{
    return Run(
        [=, this] { return CZNCoreEditorControlEx::SaveFile(path, encoding, commit, writeMark); });
}

bool ZNCoreEditorWidget::Private::Control::SaveFile(const char16_t* path, bool commit)
{
    return Run([=, this] { return CZNCoreEditorControlEx::SaveFile(path, commit); });
}
