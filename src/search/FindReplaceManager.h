// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CFindReplaceManager: the one holder of what is searched for and how, and the searches
/// themselves, on whichever editor is passed in. Knows no dialog. Positions count UTF-16 units.
#pragma once

#include "common/Export.h"

#include <QString>
#include <QStringList>

#include <vector>

class CZNCoreEditorControl;
class QComboBox;

/// Reads what it held the last time from the user's registry when it is made, and writes it when it
/// goes. Used on the GUI thread.
class ZN_API CFindReplaceManager
{
public:
    CFindReplaceManager(); ///< reads what was held the last time
    CFindReplaceManager(const CFindReplaceManager&) = delete;
    CFindReplaceManager& operator=(const CFindReplaceManager&) = delete;
    virtual ~CFindReplaceManager(); ///< Save

    void Save() const; ///< a store that refuses is not told

    bool GetWholeWord() const { return m_bWholeWord; }              ///< off at first
    void SetWholeWord(bool wholeWord) { m_bWholeWord = wholeWord; } ///< nothing inside of a word
    bool GetRegExp() const { return m_bRegExp; }                    ///< off at first
    void SetRegExp(bool regExp) { m_bRegExp = regExp; }             ///< the text is an expression
    /// Expressions in the way of Perl, instead of the engine's own. Not remembered.
    bool GetPerlSyntax() const { return m_perlSyntax; }
    void SetPerlSyntax(bool perlSyntax) { m_perlSyntax = perlSyntax; } ///< of the expression
    bool GetMatchCase() const { return m_bMatchCase; }                 ///< off at first
    void SetMatchCase(bool matchCase) { m_bMatchCase = matchCase; } ///< letters as they are written
    bool GetDown() const { return m_bDown; }                        ///< towards the text's end
    void SetDown(bool down) { m_bDown = down; }        ///< else towards the text's start
    bool GetTransform() const { return m_bTransform; } ///< a replacement goes through DecodeEscapes
    /// A replacement goes through DecodeEscapes.
    void SetTransform(bool transform) { m_bTransform = transform; }
    bool GetSubFolders() const { return m_bSubFolders; } ///< on at first
    /// Of a search in files: folders below, too.
    void SetSubFolders(bool subFolders) { m_bSubFolders = subFolders; }
    bool GetOutputPane2() const { return m_bOutputPane2; } ///< off at first
    /// Of a search in files: the host's second list.
    void SetOutputPane2(bool outputPane2) { m_bOutputPane2 = outputPane2; }
    bool GetCountOnly() const { return m_bCountOnly; } ///< off at first
    /// Of a search in files: matches are counted, and not listed.
    void SetCountOnly(bool countOnly) { m_bCountOnly = countOnly; }
    bool GetWrap() const { return m_bWrap; }    ///< on at first
    void SetWrap(bool wrap) { m_bWrap = wrap; } ///< on from the other end when one is reached
    int GetFindIn() const { return m_nFindIn; } ///< 1: files by type, 2: all open files
    void SetFindIn(int findIn) { m_nFindIn = findIn; } ///< of a search in files

    QString GetFind() const { return m_strFind; }       ///< the current text to look for
    QString GetReplace() const { return m_strReplace; } ///< the current replacement
    /// The current folder of a search in files.
    QString GetLocation() const { return m_strLocation; }
    QString GetFileType() const { return m_strFileType; } ///< the current pattern of names

    /// The current texts alone, for searches that nobody typed: the histories stay.
    void SetFind(const QString& text) { m_strFind = text; }
    void SetReplace(const QString& text) { m_strReplace = text; } ///< the same for the replacement

    /// Puts a text on top of its history and makes it the current one. A history that is full loses
    /// the item before its last: the oldest stays.
    void AddFindHistory(QString text);
    void AddReplaceHistory(QString text);  ///< of replacements
    void AddLocationHistory(QString text); ///< of folders
    void AddTypeHistory(QString text);     ///< of patterns of names

    /// What a box lists becomes the history, newest first.
    void FillFindCombo(QComboBox& combo) const;
    void FillReplaceCombo(QComboBox& combo) const;  ///< of replacements
    void FillLocationCombo(QComboBox& combo) const; ///< of folders
    void FillTypeCombo(QComboBox& combo) const;     ///< of patterns of names

    /// The place of a match, which is the engine's target then, or -1. A pattern that is none finds
    /// nothing, nor does one that goes on for too long: an attempt after ten million steps back, a
    /// search after two seconds of processor time. A start above the end
    /// searches backwards. Without noWrap, and if wrapping is on, the rest of the text comes next:
    /// up to the caret, or backwards from the end to the selection's start.
    int FindInRange(CZNCoreEditorControl* control, int start, int end, bool noWrap);
    int FindNext(CZNCoreEditorControl* control); ///< from the caret
    /// Only matches whose style is none of these count. A search that goes down ends at a match
    /// that does not count: the part of the range before it is all that is looked at then.
    int FindSkippingStyles(CZNCoreEditorControl* control, int start, int end,
                           const std::vector<int>& styles, bool noWrap);

    /// Replaces the engine's target, and moves the caret on by the length of what was put in.
    void ReplaceOne(CZNCoreEditorControl* control);
    /// The number of replacements, which are one undo step. A text that is read-only has none.
    /// What takes more than a second is shown by the host, which may stop it (LongWork).
    int ReplaceAll(CZNCoreEditorControl* control, bool inSelection);
    bool WasStopped() const { return m_isStopped; } ///< the last ReplaceAll

    /// `\a \b \f \n \r \t \v` become the characters; other escapes stay as they are. A backslash
    /// that ends the text stays, with a NUL behind it.
    static QString DecodeEscapes(const char16_t* text);

private:
    class Round;

    void Load();
    void Remember(QStringList& history, const QString& text) const;
    int SearchTarget(CZNCoreEditorControl& control, int start, int end) const;
    QString ReplacementText() const;
    int PutIn(CZNCoreEditorControl& control, const QString& text) const;
    int ReplaceInRange(CZNCoreEditorControl& control, int start, int& end, bool inSelection);

    int m_nFindIn = 0;
    bool m_bWrap = true;
    QString m_strLocation;
    QString m_strFileType;
    bool m_bCountOnly = false;
    bool m_bOutputPane2 = false;
    bool m_bSubFolders = true;
    QStringList m_aTypeHistory;
    QStringList m_aLocationHistory;
    bool m_bTransform = false;
    bool m_isStopped = false;
    bool m_bRegExp = false;
    bool m_perlSyntax = false;
    bool m_bWholeWord = false;
    bool m_bMatchCase = false;
    bool m_bDown = true;
    QString m_strReplace;
    QString m_strFind;
    int m_nMaxHistory = 20;
    QStringList m_aFindHistory;
    QStringList m_aReplaceHistory;
};

namespace zncoreeditor {

/// Made on first use, and gone with the process.
ZN_API CFindReplaceManager* GetFindReplaceManager();

} // namespace zncoreeditor
