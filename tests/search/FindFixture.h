// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of the find manager share: a registry in memory, and an editor to search in.
#pragma once

#include "editing/ZNCoreEditorControlEx.h"
#include "platform/base/Units.h"
#include "platform/system/Registry.h"
#include "search/FindReplaceManager.h"
#include "tests/RandomSeed.h"

#include <QWidget>

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <utility>

// Keeps values as long as it lives.
class MemoryRegistry final : public IRegistry
{
public:
    MemoryRegistry() { SetRegistry(this); }
    ~MemoryRegistry() override { SetRegistry(nullptr); }

    bool OpenKey(const QString&) override { return opens; }
    std::optional<RegistryValue> Read(const QString& key, const QString& name) override
    {
        const auto at = values.find({key, name});
        return at == values.end() ? std::nullopt : std::optional(at->second);
    }
    bool Write(const QString& key, const QString& name, const RegistryValue& value) override
    {
        values[{key, name}] = value;
        return true;
    }
    bool DeleteKey(const QString&) override { return false; }
    bool DeleteValue(const QString&, const QString&) override { return false; }

    RegistryValue& Search(const char* name)
    {
        return values[{QStringLiteral("Marrowfield\\ZNCoreEditor\\Preferences\\Search"),
                       QLatin1String(name)}];
    }

    bool opens = true;
    std::map<std::pair<QString, QString>, RegistryValue> values;
};

class FindTest : public testing::Test
{
protected:
    FindTest()
    {
        control.SubclassWindow(
            CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 300, 200}, &parent));
        control.SetEOLMode(0, 1); // what is put in stays as it is
    }

    void SetText(const QString& text) { control.SetText(Units(text), 1); }
    QString Text() { return control.GetText(); }

    // The length of the text is what the result says.
    int Length() { return static_cast<int>(control.GetLength(1)); }

    void Seek(const char16_t* what) { manager.AddFindHistory(QString::fromUtf16(what)); }
    int ReplaceAll(const char16_t* what, const char16_t* with, bool inSelection = false)
    {
        Seek(what);
        manager.AddReplaceHistory(QString::fromUtf16(with));
        return manager.ReplaceAll(&control, inSelection);
    }

    MemoryRegistry registry;
    QWidget parent;
    CZNCoreEditorControlEx control;
    CFindReplaceManager manager;
};

// Random texts of few different characters, so that matches are frequent.
class RandomTexts
{
public:
    explicit RandomTexts(unsigned seed) : m_random(seed) {}

    int Number(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }

    std::u16string Text(int longest, std::u16string_view characters)
    {
        std::u16string text;
        for (int left = Number(longest + 1); left > 0; --left)
            text +=
                characters[static_cast<std::size_t>(Number(static_cast<int>(characters.size())))];
        return text;
    }

private:
    std::mt19937 m_random;
};

inline unsigned SeedOfTest()
{
    const unsigned seed = RandomSeed();
    testing::Test::RecordProperty("seed", std::to_string(seed));
    return seed;
}
