// SPDX-License-Identifier: GPL-3.0-or-later
// FileReplacer: replaces chosen matches, file by file. A text that is open is edited, in one undo
// step; any other file is read, changed and saved with care, in its own encoding.
#pragma once

#include "search/files/FileSearch.h"

#include <QString>

#include <vector>

class CZNCoreEditorControlEx;

class FileReplacer
{
public:
    struct Outcome
    {
        long replaced = 0;
        QString reason;                 // why nothing, for a person; empty if all went well
        std::vector<FileMatch> matches; // of the text by now, where something was replaced
    };

    // What the matches were found by, with a replacement.
    explicit FileReplacer(FileSearchRequest request) : m_request(std::move(request)) {}

    // The matches that are not left out. Nothing is replaced in a text that has others by now.
    // editor: of the open text, null for a file that is not.
    Outcome Replace(const FoundFile& file, const std::vector<bool>& left,
                    CZNCoreEditorControlEx* editor) const;

private:
    Outcome ReplaceInFile(const FoundFile& file, const std::vector<bool>& left) const;
    Outcome ReplaceIn(CZNCoreEditorControlEx& editor, const FoundFile& file,
                      const std::vector<bool>& left) const;

    FileSearchRequest m_request;
};
