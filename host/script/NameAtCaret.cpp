// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/script/NameAtCaret.h"

#include "common/PathParts.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptView.h"

#include <QAbstractScrollArea>
#include <QDir>
#include <QFileInfo>
#include <QMouseEvent>

#include <algorithm>

bool IsAddress(const QString& name)
{
    const QStringList schemes = {QStringLiteral("http:"), QStringLiteral("https:"),
                                 QStringLiteral("ftp:"),  QStringLiteral("ftps:"),
                                 QStringLiteral("news:"), QStringLiteral("mailto:")};
    return std::ranges::any_of(schemes,
                               [&](const QString& scheme) { return name.startsWith(scheme); });
}

namespace {

FilePlace FindFile(const QString& name, const QString& script)
{
    FilePlace place = ParseFilePlace(QString(name).replace(u'\\', u'/'));
    const bool isAbsolute = QDir::isAbsolutePath(place.path);
    CPathParts beside(script);
    beside.SetNameExt(place.path);
    const QString candidates[] = {
        isAbsolute ? place.path : QFileInfo(script).dir().filePath(place.path), beside.GetPath()};
    for (const QString& path : candidates) {
        if ((isAbsolute || !script.isEmpty()) && QFileInfo(path).isFile()) {
            place.path = QDir::cleanPath(path);
            return place;
        }
    }
    return {};
}

} // namespace

// A script that Oracle's client runs is named behind one or two at signs.
FilePlace FindNamed(const QString& name, const QString& script)
{
    const qsizetype signs = name.startsWith(QLatin1String("@@")) ? 2
                            : name.startsWith(u'@')              ? 1
                                                                 : 0;
    const auto found = FindFile(name, script);
    return found.path.isEmpty() && signs > 0 ? FindFile(name.mid(signs), script) : found;
}

QString NameAround(CZNCoreEditorControlEx& editor, long position)
{
    constexpr long kMost = 500; // units to either side
    const long line = editor.LineFromPosition(position, 1);
    const long from =
        std::max<long>(editor.PositionFromLine(static_cast<int>(line), 1), position - kMost);
    const long to =
        std::min<long>(editor.GetLineEndPosition(static_cast<int>(line), 1), position + kMost);
    if (from >= to)
        return {};
    std::u16string text(static_cast<std::size_t>(to - from) + 1, u'\0');
    text.resize(static_cast<std::size_t>(editor.GetRange(from, to, text.data())));
    const auto isName = [&](long at) {
        return at >= 0 && at < static_cast<long>(text.size()) &&
               CZNCoreEditorControlEx::IsFilenameChar(text[static_cast<std::size_t>(at)]);
    };
    long start = position - from;
    long end = start;
    while (isName(start - 1))
        --start;
    while (isName(end))
        ++end;
    return QString(reinterpret_cast<const QChar*>(text.data()) + start, end - start);
}

NameClicks::NameClicks(ScriptView& view)
    : QObject(view.GetCoreEditorControl()->GetSafeHwnd()), m_view(view)
{
    auto* area = qobject_cast<QAbstractScrollArea*>(parent());
    if (area)
        area->viewport()->installEventFilter(this);
}

bool NameClicks::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease && m_isTaken) {
        m_isTaken = false;
        return true;
    }
    if (event->type() != QEvent::MouseButtonPress || !m_view.Script())
        return false;
    const auto& press = static_cast<const QMouseEvent&>(*event);
    if (press.button() != Qt::LeftButton || press.modifiers() != Qt::ControlModifier)
        return false;
    CZNCoreEditorControlEx& editor = m_view.GetCoreEditorControlRef();
    const QPoint at = press.position().toPoint();
    const long position = editor.PositionFromPointClose(at.x(), at.y(), 1);
    if (position < 0)
        return false;
    const QString name = NameAround(editor, position);
    if (name.isEmpty() ||
        (!IsAddress(name) && FindNamed(name, m_view.Script()->GetPathName()).path.isEmpty()))
        return false;
    m_isTaken = true;
    QMetaObject::invokeMethod(
        this, [this, name] { m_view.OpenNamed(name); }, Qt::QueuedConnection);
    return true;
}
