// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/folder/FolderModel.h"

#include "editing/language/FileLanguages.h"
#include "host/icons/Icons.h"

#include <QAbstractFileIconProvider>
#include <QFont>

namespace {

// What a shell takes for more than itself.
QString Quoted(const QString& words)
{
    QString quoted;
    for (const QChar character : words) {
        const bool isSpecial = QStringLiteral("[]").contains(character);
        quoted += isSpecial ? QStringLiteral("[%1]").arg(character) : QString(character);
    }
    return quoted;
}

// Nobody needs the desktop's picture of each file, nor its kind, which is looked up in the file. A
// file without a kind would be left out of the list, most of the time.
class NoIcons final : public QAbstractFileIconProvider
{
public:
    QIcon icon(IconType) const override { return {}; }
    QIcon icon(const QFileInfo&) const override { return {}; }
    QString type(const QFileInfo& /*file*/) const override { return QStringLiteral("file"); }
};

} // namespace

// The thread that reads folders ends behind the model, and asks for icons until then.
FolderModel::FolderModel(QObject* parent)
    : QFileSystemModel(parent), m_folder(CommandIcon(QStringLiteral("fileFolder"))),
      m_script(CommandIcon(QStringLiteral("fileScript"))),
      m_file(CommandIcon(QStringLiteral("filePlain")))
{
    setReadOnly(true);
    setNameFilterDisables(false);
    setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
    static NoIcons noIcons;
    setIconProvider(&noIcons);
}

// A folder inside of a hidden one would have no row itself.
QModelIndex FolderModel::ShowFolder(const QString& path)
{
    const QDir::Filters usual = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::AllDirs;
    setFilter(path.contains(QLatin1String("/.")) ? usual | QDir::Hidden : usual);
    return setRootPath(path);
}

void FolderModel::Filter(const QString& words)
{
    const bool isPattern = words.contains(u'*') || words.contains(u'?');
    setNameFilters(words.isEmpty() ? QStringList()
                                   : QStringList{isPattern ? words : u'*' + Quoted(words) + u'*'});
}

QIcon FolderModel::Picture(const QModelIndex& index) const
{
    if (isDir(index))
        return m_folder;
    const QString name = fileName(index);
    auto known = m_isScript.constFind(name);
    if (known == m_isScript.constEnd())
        known = m_isScript.insert(name, LanguageOfFile(name) !=
                                            LanguageNamed(QStringLiteral("Text"), -1));
    return *known ? m_script : m_file;
}

QVariant FolderModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.column() != 0)
        return QFileSystemModel::data(index, role);
    if (role == Qt::DecorationRole)
        return Picture(index);
    const bool isFront = !m_front.isEmpty() && filePath(index) == m_front;
    if (role == Qt::FontRole && isFront) {
        QFont strong;
        strong.setBold(true);
        return strong;
    }
    if (role == Qt::AccessibleTextRole && isFront)
        return tr("%1, in front").arg(fileName(index));
    return QFileSystemModel::data(index, role);
}
