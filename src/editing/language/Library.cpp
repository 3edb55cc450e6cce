#include "editing/language/Library.h"

#include "common/Globals.h"
#include "editing/language/FileTypeManager.h"
#include "settings/ConfigFile.h"

namespace zncoreeditor {

namespace {

// Attached with the process, detached with it: the one object of this kind.
class Attached
{
public:
    Attached()
    {
        config.SetFilename(GetAppPath() + QStringLiteral("ZNCoreEditor.xml"));
        configured = config.Parse();
        if (configured)
            languages.Init(&config);
    }
    Attached(const Attached&) = delete;
    Attached& operator=(const Attached&) = delete;
    ~Attached() { config.Save(); } // writes if something changed

    CConfigFile config;
    CFileTypeManager languages;
    bool configured = false;
};

Attached& Library()
{
    static Attached library;
    return library;
}

[[maybe_unused]] const Attached& g_attachedAtLoad = Library();

} // namespace

CConfigFile* GetConfigFile()
{
    return &Library().config;
}

CFileTypeManager* GetFileTypeManager()
{
    return &Library().languages;
}

Startup GetStartup()
{
    return {Library().configured, Library().config.GetFilename()};
}

} // namespace zncoreeditor
