// SPDX-License-Identifier: GPL-3.0-or-later
// The tick that writes an autosave copy of 64 MB beside SaveFile of the same text.
#include "bench/Pair.h"
#include "bench/Texts.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "platform/system/SpecialFolders.h"
#include "platform/windows/Timer.h"

#include <QDir>
#include <QFileInfo>

namespace bench {
namespace {

constexpr UINT kAutosave = 100;

// Copies and notes stand beside the measured files.
class FoldersBeside : public ISpecialFolders
{
public:
    explicit FoldersBeside(const std::string& file)
        : m_folder(QFileInfo(QString::fromStdString(file)).path())
    {
        SetSpecialFolders(this);
    }
    ~FoldersBeside() override { SetSpecialFolders(nullptr); }

    QString LocalAppData() const override { return m_folder + QStringLiteral("/data"); }
    QString Config() const override { return m_folder + QStringLiteral("/config"); }

    // The bytes of all copies.
    qint64 CopySize() const
    {
        QDir backup(AppData() + QStringLiteral("/Backup"));
        qint64 size = 0;
        for (const QFileInfo& copy : backup.entryInfoList(QDir::Files))
            size += copy.size();
        return size;
    }

private:
    QString m_folder;
};

void WriteCopy(benchmark::State& state, Script script, bool careful)
{
    const std::string source = WriteFile("autosave-source.sql", Sql64(script));
    const std::string reference = WriteFile("autosave-reference.sql", "");
    const std::u16string referencePath(reference.begin(), reference.end());
    const FoldersBeside folders(source);
    ZNCoreEditorWidget editor;
    CZNCoreEditorControl& control = editor.control();
    control.SetCarefulFiles(true);
    control.OpenFile(std::u16string(source.begin(), source.end()).c_str(),
                     FileEncodeConverter::encUTF8);
    control.SetCarefulFiles(careful);
    control.ReplaceSel(u"-- typed\n", 1);
    MeasurePair(
        state, [&] { SendMessage(control.GetSafeHwnd(), WM_TIMER, kAutosave, 0); },
        [&] {
            control.SaveFile(referencePath.c_str(), FileEncodeConverter::encUTF8, false, false);
        },
        0);
    if (folders.CopySize() != QFileInfo(QString::fromStdString(reference)).size())
        state.SkipWithError("the copy is not the text");
}

const bool kRegistered = [] {
    for (const Script script : {Script::Ascii, Script::Mixed}) {
        for (const bool careful : {false, true}) {
            const std::string name =
                std::string(careful ? "AutosaveCareful/" : "Autosave/") + NameOf(script) + "/utf8";
            benchmark::RegisterBenchmark(name.c_str(), WriteCopy, script, careful)
                ->Iterations(7)
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond);
        }
    }
    return true;
}();

} // namespace
} // namespace bench
