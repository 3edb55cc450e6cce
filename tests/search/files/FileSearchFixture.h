// SPDX-License-Identifier: GPL-3.0-or-later
// Searches through the files of a folder of the test's own.
#pragma once

#include "search/files/FileSearch.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <utility>
#include <vector>

class Collector final : public IFileSearchListener
{
public:
    void OnFound(FoundFile&& file) override
    {
        FoundFile& into = files[file.path];
        into.path = file.path;
        into.isOpen = file.isOpen;
        into.name = file.name;
        into.count += file.count;
        into.matches.insert(into.matches.end(), file.matches.begin(), file.matches.end());
        if (stopsAt)
            stopsAt->Stop();
        if (onFound)
            onFound();
    }
    void OnNote(FileNote note, const QString& path) override { notes.emplace_back(note, path); }
    void OnDone(const FileSearchTotals& all) override { totals = all; }

    std::map<QString, FoundFile> files;
    std::vector<std::pair<FileNote, QString>> notes;
    FileSearchTotals totals;
    CFileSearch* stopsAt = nullptr; // with the first match
    std::function<void()> onFound;
};

class FileSearches : public testing::Test
{
protected:
    QString Write(const QString& name, const QByteArray& bytes) const
    {
        const QString path = folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
        return path;
    }
    FileSearchRequest For(const QString& text) const
    {
        FileSearchRequest request;
        request.text = text;
        request.folders = {folder.path()};
        request.threads = 2;
        return request;
    }
    Collector Search(const FileSearchRequest& request) const
    {
        Collector collector;
        CFileSearch search(request, collector);
        search.Start();
        search.Wait();
        return collector;
    }
    QStringList Names(const Collector& found) const
    {
        QStringList names;
        for (const auto& [path, file] : found.files)
            names += QDir(folder.path()).relativeFilePath(path);
        return names;
    }

    QTemporaryDir folder;
};
