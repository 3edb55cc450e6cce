// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/controls/FileEditCtrl.h"

#include "platform/windows/Questions.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QToolButton>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FileEditCtrl)
};

constexpr QChar kPathEnd = u';';

bool HasWildcard(const QString& name)
{
    return name.contains(u'*') || name.contains(u'?');
}

// A path that is typed or pasted may have the separators of another system, and quotes.
QString Cleaned(QString name)
{
    name = name.trimmed();
    if (name.size() > 1 && name.startsWith(u'"') && name.endsWith(u'"'))
        name = name.sliced(1, name.size() - 2);
    return name;
}

bool IsShortcut(const QString& path)
{
    return path.endsWith(QLatin1String(".lnk"), Qt::CaseInsensitive) ||
           path.endsWith(QLatin1String(".pif"), Qt::CaseInsensitive);
}

} // namespace

bool CFECFileDialog::DoModal()
{
    const QString path =
        BrowseForFile(m_owner, Texts::tr("Browse for File"), m_folder, Texts::tr("All Files (*)"));
    if (!path.isEmpty())
        m_path = path;
    return !path.isEmpty();
}

CFileEditCtrl::CFileEditCtrl(unsigned flags, QWidget* parent)
    : QWidget(parent), m_flags(flags), m_edit(new QLineEdit(this)), m_button(new QToolButton(this))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(m_edit);
    row->addWidget(m_button);
    m_edit->setVisible(!Has(ButtonAlone));
    m_edit->setAccessibleName(Has(Folders) ? Texts::tr("Folder") : Texts::tr("File"));
    m_button->setText(QStringLiteral("..."));
    m_button->setFocusPolicy(Qt::StrongFocus);
    m_button->setAccessibleName(Has(Folders) ? Texts::tr("Browse for a folder")
                                             : Texts::tr("Browse for a file"));
    m_button->setToolTip(m_button->accessibleName());
    setFocusProxy(Has(ButtonAlone) ? static_cast<QWidget*>(m_button) : m_edit);
    connect(m_button, &QToolButton::clicked, this, &CFileEditCtrl::Browse);
    connect(m_edit, &QLineEdit::textEdited, this, &CFileEditCtrl::Changed);
}

QString CFileEditCtrl::GetText() const
{
    return m_edit->text();
}

void CFileEditCtrl::SetText(const QString& text)
{
    m_edit->setText(text);
}

QString CFileEditCtrl::Absolute(const QString& name) const
{
    const QString path = QDir::cleanPath(QDir(m_folder).absoluteFilePath(name));
    if (!Has(ResolveShortcuts) || !IsShortcut(path))
        return path;
    const QString target = QFileInfo(path).symLinkTarget();
    return target.isEmpty() ? path : target;
}

QStringList CFileEditCtrl::GetPaths() const
{
    QStringList paths;
    for (const QString& part : m_edit->text().split(kPathEnd)) {
        const QString name = Cleaned(part);
        if (name.isEmpty())
            continue;
        const QFileInfo file(Absolute(name));
        if (!HasWildcard(file.fileName())) {
            paths += file.filePath();
            continue;
        }
        const QFileInfoList found = file.dir().entryInfoList(
            {file.fileName()}, (Has(Folders) ? QDir::Dirs : QDir::Files) | QDir::NoDotAndDotDot,
            QDir::Name);
        for (const QFileInfo& entry : found)
            paths += entry.filePath();
        if (found.isEmpty())
            paths += file.filePath();
    }
    return paths;
}

QString CFileEditCtrl::Fault() const
{
    const QStringList paths = GetPaths();
    if (paths.isEmpty())
        return Texts::tr("Enter an existing file.");
    for (const QString& path : paths) {
        const QFileInfo file(path);
        if (!file.exists())
            return Texts::tr("%1 does not exist.").arg(path);
        if (Has(Folders) && !file.isDir())
            return Texts::tr("%1 is not a folder.").arg(path);
        if (!Has(Folders) && file.isDir())
            return Texts::tr("%1 is not a file.").arg(path);
    }
    return QString();
}

bool CFileEditCtrl::Validate()
{
    const QString fault = Fault();
    if (fault.isEmpty())
        return true;
    ShowMessage(this, fault, MessageKind::Plain);
    m_edit->setFocus();
    return false;
}

void CFileEditCtrl::Browse()
{
    const QStringList paths = GetPaths();
    const QString start = paths.isEmpty() ? m_folder : paths.first();
    QString chosen;
    if (Has(Folders)) {
        chosen = BrowseForFolder(this, Texts::tr("Browse for Folder"), start);
        if (Has(TrailingSlash) && !chosen.isEmpty() && !chosen.endsWith(u'/'))
            chosen += u'/';
    } else if (CFECFileDialog dialog(this, start); dialog.DoModal()) {
        chosen = dialog.GetPathName();
    }
    if (chosen.isEmpty())
        return;
    m_edit->setText(chosen);
    Q_EMIT Changed();
}
