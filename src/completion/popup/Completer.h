// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// Completer: the list of proposals of one editor, and what a function takes, beside its caret.
///
/// Ctrl+Space opens the list, and Ctrl+Shift+Space. While it is open it takes Up, Down, Page Up,
/// Page Down, Tab, Enter and Escape without modifiers, and no other key. A list that typing has
/// opened has no current row: Tab takes the first one, and Enter goes to the editor until somebody
/// walks into the list; it says so below its rows.
#pragma once

#include "completion/LanguageWords.h"
#include "completion/Signatures.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <optional>

class CZNCoreEditorControl;
class ColourScheme;
class QWidget;
struct SCNotification;

namespace completion {

class CallTip;
struct CaretContext;
class LiveIndex;
struct OtherText;
class ProposalList;

/// A script beside the one that is edited.
struct OtherScript
{
    LiveIndex* index = nullptr; ///< of its text; not null
    QString name;               ///< as its proposals are described
};

/// Goes before its control, or with the control's window. The index is that of the control's text
/// and may be shared by the editors that show it. GUI thread.
class ZN_API Completer final : public QObject
{
    Q_OBJECT

public:
    /// The index is that of the control's text and outlives this.
    Completer(CZNCoreEditorControl& control, LiveIndex& index);
    ~Completer() override;

    /// A source of the host's, asked beside that of the script. It outlives the completer, or is
    /// removed before.
    void AddSource(ProposalSource& source);
    void RemoveSource(ProposalSource& source); ///< it is not asked again
    /// What the language itself proposes, and what its functions take.
    void SetLanguage(std::vector<LanguageWord> words, Signatures signatures);
    /// The scripts whose tables, views and routines are proposed behind those of the editor's own.
    /// Asked whenever something is proposed; their indexes are read in idle time, the shortest
    /// first. Those that it gives live until the control comes back to the event loop.
    void SetOtherScripts(std::function<std::vector<OtherScript>()> others);
    void SetPrepare(std::function<void()> prepare); ///< called before anything is proposed
    void SetScheme(std::function<const ColourScheme*()> scheme); ///< asked whenever something shows

    /// The list opens by itself behind so many letters of a word, and behind a point that columns
    /// are known for; 0, as at first: never.
    void SetOpensAfter(int letters) { m_opensAfter = letters; }
    void SetShowsCalls(bool shows) { m_showsCalls = shows; } ///< behind ( and , off at first

    void Open();     ///< for the word at the caret, by a person's wish
    void ShowCall(); ///< the same for what a function takes
    void Close();    ///< the list and the call tip
    /// A source knows more: the list shows it. Where typing or Open found nothing it opens now, if
    /// nothing was typed, the caret did not go and the editor has had the focus since.
    void Refresh();
    bool IsOpen() const;        ///< whether the list shows
    bool IsShowingCall() const; ///< whether the call tip shows
    /// What was chosen is on its way into the text; until it stands there, nothing is typed over.
    bool IsInserting() const { return m_isInserting; }

    /// Each notification of the control, once it has dealt with it.
    void OnNotify(const SCNotification& record);

    /// Takes the keys of the list while it is open.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool TakeKey(int key, bool isAsked);
    bool IsOurKey(const QEvent& event) const;
    void Follow();
    void FollowSoon();
    bool MayOpen() const;
    bool OpensHere(const ProposalQuery& query) const;
    CaretContext ContextAtCaret();
    std::vector<Proposal> Ask(const CaretContext& context);
    std::vector<OtherScript> OtherScripts() const;
    std::vector<OtherText> OtherTexts();
    void ReadOthers();
    bool IsReading() const;
    void ReadNextOf(const std::vector<OtherScript>& others);
    void OnOtherRead();
    bool IsWaiting() const;
    void Fill(const CaretContext& context);
    void Choose(int row);
    void Insert(const Proposal& proposal);
    static bool IsWordUnit(QChar unit);
    static QString TailOf(const QString& text, const QString& behind);
    bool AreAllBetween(const QString& before, Qt::CaseSensitivity beforeCase,
                       const QString& behind) const;
    QString TextOf(long start, long end) const;
    void FollowCall();
    void FollowScroll();
    void CloseCall();
    QRect LineAt(long position) const; // on the screen
    ProposalList& List();
    CallTip& Tip();

    CZNCoreEditorControl& m_control;
    LiveIndex& m_index;
    QPointer<QWidget> m_window; // the control's
    std::vector<ProposalSource*> m_sources;
    std::vector<LanguageWord> m_words;
    Signatures m_signatures;
    std::function<const ColourScheme*()> m_scheme;
    std::function<void()> m_prepare;
    std::function<std::vector<OtherScript>()> m_others;
    QPointer<LiveIndex> m_reading; // the one of them that is read
    QPointer<ProposalList> m_list;
    QPointer<CallTip> m_tip;
    ProposalQuery m_query; // that the list answers
    int m_opensAfter = 0;
    bool m_showsCalls = false;
    bool m_isWalked = false; // somebody has chosen a row
    bool m_isFollowing = false;
    bool m_isInserting = false;
    std::optional<ProposalQuery> m_unanswered; // that has opened no list for want of proposals
    char32_t m_added = 0;                      // the last character that was typed
};

} // namespace completion
