// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever a person and others do in whatever order: the workbench stays up, the panes of a script
// show one text, and a script that counts as saved is in its file.
#include "tests/RandomSeed.h"
#include "tests/host/WorkbenchTest.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDir>
#include <QMenu>
#include <QSet>

#include <cstdio>
#include <random>

namespace {

class RandomCommands : public WorkbenchTest
{
protected:
    int Below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }

    QString AnyName() { return QStringLiteral("%1.sql").arg(Below(4)); }

    // A test before this one may have left letters there that are two bytes in a file.
    RandomCommands() { QApplication::clipboard()->clear(); }

    // ASCII alone, so that a file's text is its bytes without marks and zeros.
    static QByteArray TextOfFile(const QString& path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QByteArray text;
        for (const char byte : file.readAll()) {
            if (byte > 0)
                text += byte;
        }
        return text;
    }

    void Answer()
    {
        m_prompts.answer = Below(2) ? ::Answer::Yes : ::Answer::No;
        m_prompts.confirm = Below(2) != 0;
        m_prompts.loseChanges = static_cast<LoseChanges>(Below(3));
        m_prompts.filesToOpen = {PathOf(AnyName())};
        m_prompts.whatToOpen = OpenChoice{PathOf(AnyName()), Below(2) ? -1 : 6};
        const int encoding = 2 * Below(4);
        m_prompts.saveTarget = SaveTarget{PathOf(AnyName()), encoding, encoding != 0};
        if (Below(3) == 0)
            m_prompts.saveTarget.reset();
    }

    void Command()
    {
        QList<QAction*> possible;
        // Those that ask wait for somebody, but for the few whose questions the test answers.
        static const QStringList kAnswered = {"open", "openAs", "saveAs", "find"};
        for (QAction* action : m_window.findChildren<QAction*>()) {
            const QString name = action->objectName();
            const bool asks = action->text().endsWith("...") && !kAnswered.contains(name);
            if (action->isEnabled() && !action->menu() && !name.isEmpty() && name != "quit" &&
                !asks)
                possible << action;
        }
        QAction* chosen = possible[Below(static_cast<int>(possible.size()))];
        m_story += " " + chosen->objectName().toStdString();
        chosen->trigger();
    }

    void Others()
    {
        const QString path = PathOf(AnyName());
        const int what = Below(4);
        m_story += " others" + std::to_string(what) + QFileInfo(path).fileName().toStdString();
        m_touched.insert(path);
        QFile file(path);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        if (what == 0) {
            file.remove();
        } else if (what == 1) {
            file.setPermissions(QFile::ReadOwner);
        } else {
            Write(QFileInfo(path).fileName(), QByteArray("others;\r\nb\n").repeated(Below(40)));
            if (file.open(QIODevice::ReadWrite))
                file.setFileTime(QDateTime::fromSecsSinceEpoch(1000000 + Below(1000000)),
                                 QFileDevice::FileModificationTime);
        }
    }

    void Step()
    {
        Answer();
        switch (Below(9)) {
        case 0:
            if (m_hasOthers)
                Others();
            break;
        case 1:
            if (m_window.CurrentFrame() && !Editor().GetReadOnly(1)) {
                m_story += " type";
                Editor().ReplaceSel(Below(2) ? u"x" : u"select (1);\n", 1);
            }
            break;
        case 2:
            m_story += " open";
            m_app.OpenDocumentFile(PathOf(AnyName()));
            break;
        case 3:
            m_story += " focus";
            if (m_window.CurrentFrame())
                SendMessage(Frame().View()->GetSafeHwnd(), WM_SETFOCUS, 0, 0);
            break;
        case 4:
            if (const int tabs = m_window.TabCount(); tabs > 0) {
                m_story += " tab";
                m_window.ShowTab(Below(tabs));
            }
            break;
        case 5:
            if (m_window.CurrentFrame()) {
                m_story += " save";
                Script().DoFileSave();
            }
            break;
        default:
            Command();
        }
        QApplication::processEvents();
        Disposal::Run();
    }

    void Check()
    {
        for (ScriptDoc* script : m_app.Scripts()) {
            const QString text = script->FirstView()->GetCoreEditorControl()->GetText();
            for (CView* view : script->GetViews()) {
                auto* shown = dynamic_cast<ScriptView*>(view);
                EXPECT_EQ(shown->GetCoreEditorControl()->GetText(), text);
            }
            const QString path = script->GetPathName();
            if (!script->IsModified() && !path.isEmpty() && !m_touched.contains(path)) {
                EXPECT_EQ(TextOfFile(path).toStdString(), text.toStdString()) << path.toStdString();
            }
        }
    }

    std::mt19937 m_random;
    bool m_hasOthers = false;
    QSet<QString> m_touched; // by others, since when it may differ
    std::string m_story;
};

} // namespace

TEST_F(RandomCommands, LoseNothing)
{
    const unsigned int seed = RandomSeed();
    SCOPED_TRACE(seed);
    std::fflush(stdout);
    m_random.seed(seed);
    m_hasOthers = Below(2) != 0;
    for (const char* name : {"0.sql", "1.sql", "2.sql", "3.sql"})
        Write(name, QByteArray("select 1;\n").repeated(Below(50)));
    for (int step = 0; step < 300 && !HasFailure(); ++step) {
        Step();
        Check();
    }
    EXPECT_FALSE(HasFailure()) << m_story;
}
