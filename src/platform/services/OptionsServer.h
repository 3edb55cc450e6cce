// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The host's options, asked for by number. The default keeps them in a file of the user's; a host
/// that has options of its own derives from it and sets that.
#pragma once

#include "common/Export.h"
#include "platform/system/Font.h"

#include <QString>

#include <memory>

/// Options by number: those of option::Key, and a host's own.
class ZN_API CZNOptionsServer
{
public:
    CZNOptionsServer(); ///< on the user's file, which is read at the first question
    CZNOptionsServer(const CZNOptionsServer&) = delete;
    CZNOptionsServer& operator=(const CZNOptionsServer&) = delete;
    virtual ~CZNOptionsServer(); ///< to be taken back by SetOptionsServer before

    /// The server in force. Never null.
    static CZNOptionsServer* GetObjectW();

    /// 0, false or "" for a key that nobody has set and that has no default.
    virtual int GetInt(int key);
    virtual bool GetBool(int key);      ///< true for a number other than 0
    virtual QString GetString(int key); ///< as it was set
    /// False if the key holds no font, which leaves the record as it was.
    virtual bool GetLOGFONT(int key, LOGFONT* font);

    /// Written at once; WasStored tells whether that succeeded.
    virtual void SetInt(int key, int value);
    virtual void SetString(int key, const QString& value); ///< the same
    virtual void SetLOGFONT(int key, const LOGFONT* font); ///< the same
    /// False if something that was set since the last call could not be written: it is in force as
    /// long as this server, and the file is as it was.
    virtual bool WasStored();

private:
    struct Stored;

    QString Value(int key); // null if there is none
    void SetValue(int key, const QString& value);

    std::unique_ptr<Stored> m_stored;
};

/// The server takes effect at once and stays the caller's; null brings back the default. Editors
/// that are open follow once they are sent kOptionsChanged.
ZN_API void SetOptionsServer(CZNOptionsServer* server);

/// The message that tells an editor that options have changed.
inline constexpr UINT kOptionsChanged = 0x8404;

/// The keys that the editor asks for.
namespace option {
/// What each number stands for, and of which type it is.
enum Key : int
{
    LineNumbers = 50180,         ///< int: not 0 for a margin of line numbers
    ColorMaxSize = 50181,        ///< int: the engine's property "colorMaxSize"
    AutoIndent = 50182,          ///< int: 0 none, 1 as the line above, 2 by the language
    TabWidth = 50183,            ///< int: columns, of an indentation too
    TabsToSpaces = 50184,        ///< int: not 0 for blanks in place of tabs
    BackgroundColor = 50185,     ///< string: "red,green,blue" in decimal
    EditorFont = 50186,          ///< font
    PrintFont = 50187,           ///< font
    ReloadWithoutAsking = 50194, ///< int: not 0: a file that others change is read again unasked
    FileTracking = 50203,        ///< int: what is done about files that others change
    FoldMargin = 50447,          ///< int: not 0 for a margin of folds
    WordWrap = 50453,            ///< int: not 0 for long lines wrapped
    OwnIncludePath = 50467,    ///< string: folders for included files, in the application DBGlazier
    IncludePath = 50468,       ///< string: the same in every other application
    PrintColours = 50512,      ///< bool: printed in colours, else black on white
    PrintGround = 50513,       ///< bool: the colours' grounds are printed too
    PrintOwnFont = 50514,      ///< bool: printed in the print font, else in the editor's
    SurroundSelection = 50515, ///< bool: a quote or bracket that is typed surrounds the selection
    ClosePairs = 50516,        ///< bool: a typed bracket or quote gets its partner
    DefaultTextType = 50637,   ///< int: znutils::TextType of files without a mark
    ContinueComments = 50827   ///< bool: Enter continues a comment
};
} // namespace option
