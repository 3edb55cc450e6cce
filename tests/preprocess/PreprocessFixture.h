// SPDX-License-Identifier: GPL-3.0-or-later
// An editor over the real engine, bound to a language of the registry, and a folder of files to
// include.
#pragma once

#include "editing/ZNCoreEditorControlEx.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "platform/services/OptionsServer.h"
#include "preprocess/CompileManager.h"

#include <QFile>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

#include <memory>

// Options of the test's own, the default include path among them.
class TestOptions final : public CZNOptionsServer
{
public:
    TestOptions() { SetOptionsServer(this); }
    ~TestOptions() override { SetOptionsServer(nullptr); }

    QString GetString(int key) override
    {
        return key == option::IncludePath || key == option::OwnIncludePath
                   ? paths.value(key)
                   : CZNOptionsServer::GetString(key);
    }

    QHash<int, QString> paths;
};

// Languages take long to bind, so all tests share one editor.
class SharedEditor final : public testing::Environment
{
public:
    static SharedEditor& Get()
    {
        static auto* editor =
            static_cast<SharedEditor*>(testing::AddGlobalTestEnvironment(new SharedEditor));
        return *editor;
    }

    CZNCoreEditorControlEx& Control()
    {
        if (!m_control) {
            m_parent = std::make_unique<QWidget>();
            m_control = std::make_unique<CZNCoreEditorControlEx>();
            m_control->SubclassWindow(CreateWindowOfClass(engine::kWindowClass, WS_CHILD,
                                                          RECT{0, 0, 400, 300}, m_parent.get()));
        }
        return *m_control;
    }

    void Bind(const QString& language)
    {
        if (language == m_language)
            return;
        const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
        int number = 0;
        while (languages.GetLanguageName(number) != language &&
               number < languages.GetLanguageCount())
            ++number;
        ASSERT_LT(number, languages.GetLanguageCount()) << language.toStdString();
        Control().InitializeLanguage(number, 1);
        m_language = language;
    }

    void ForgetLanguage() { m_language.clear(); }

    void TearDown() override
    {
        m_control.reset();
        m_parent.reset();
        ForgetLanguage();
    }

private:
    std::unique_ptr<QWidget> m_parent;
    std::unique_ptr<CZNCoreEditorControlEx> m_control;
    QString m_language;
};

inline SharedEditor& g_sharedEditor = SharedEditor::Get();

class PreprocessTest : public testing::Test
{
protected:
    PreprocessTest() : control(g_sharedEditor.Control())
    {
        Bind(QStringLiteral("Transact-SQL"));
        control.SetReadOnly(0, 1);
        control.SetDatasourceSearchPath(folder.path());
        // What a test before this one left of its failures.
        zncoreeditor::GetCompileManager()->SetPredefined({});
        Expand(QStringLiteral("#include nowhere"));
        control.SetText(u"", 1);
        control.EmptyUndoBuffer(1);
        control.SetEOLMode(3, 1); // LF
    }

    void Bind(const QString& language) { g_sharedEditor.Bind(language); }

    QString Write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            ADD_FAILURE() << file.errorString().toStdString();
        return file.fileName();
    }

    void SetScript(const QString& text)
    {
        control.SetText(reinterpret_cast<const char16_t*>(text.utf16()), 1);
    }

    QString Expand()
    {
        QString text;
        control.GetWindowTextW(text);
        return text;
    }

    std::string Expand(const QString& script)
    {
        SetScript(script);
        return Expand().toStdString();
    }

    std::map<int, QString> Errors() { return control.GetIncludeDirectiveErrorMessageAndLine(); }

    const SourceMap& Map() const { return zncoreeditor::GetCompileManager()->GetSourceMap(); }

    TestOptions options;
    QTemporaryDir folder;
    CZNCoreEditorControlEx& control;
};

inline QString Missing(const QString& name)
{
    return QStringLiteral("Unable to open the included file '%1': No such file or directory")
        .arg(name);
}
