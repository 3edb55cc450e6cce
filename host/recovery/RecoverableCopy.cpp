// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/recovery/RecoverableCopy.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace {

using State = RecoverableCopy::State;

constexpr QChar kSeparator = u'\t';

State StateOf(const QFileInfo& file, const QDateTime& copyTime)
{
    if (!file.exists() && !file.isSymLink())
        return State::Deleted;
    if (!file.isFile() || !file.isReadable())
        return State::Unreadable;
    return file.lastModified() > copyTime ? State::Changed : State::Unchanged;
}

QString Ago(qint64 count, const QString& unit)
{
    return QStringLiteral("%1 %2%3 ago")
        .arg(QString::number(count), unit, count == 1 ? QString() : QStringLiteral("s"));
}

} // namespace

RecoverableCopy Describe(const LeftCopies::Copy& copy)
{
    RecoverableCopy described;
    described.path = copy.path;
    described.copyTime = QFileInfo(copy.path).lastModified();
    if (!QDir::isAbsolutePath(copy.document)) {
        described.name = copy.document.section(kSeparator, 0, 0);
        described.language = copy.document.section(kSeparator, 1, 1);
        described.state = State::NeverNamed;
        return described;
    }
    const QFileInfo file(copy.document);
    described.document = copy.document;
    described.name = file.fileName();
    if (file.exists())
        described.fileTime = file.lastModified();
    described.state = StateOf(file, described.copyTime);
    return described;
}

QString UntitledName(const QString& title, const QString& language)
{
    return title + kSeparator + language;
}

QString AgeOf(const QDateTime& time, const QDateTime& now)
{
    constexpr qint64 kMinute = 60; // seconds
    constexpr qint64 kHour = 60 * kMinute;
    constexpr qint64 kDay = 24 * kHour;
    const qint64 seconds = time.secsTo(now);
    if (seconds < 0 || seconds > 7 * kDay)
        return QLocale().toString(time, QLocale::ShortFormat);
    if (seconds < kMinute)
        return QStringLiteral("just now");
    if (seconds < kHour)
        return Ago(seconds / kMinute, QStringLiteral("minute"));
    if (seconds < kDay)
        return Ago(seconds / kHour, QStringLiteral("hour"));
    return Ago(seconds / kDay, QStringLiteral("day"));
}

QString TextOf(State state)
{
    switch (state) {
    case State::Unchanged:
        return QStringLiteral("Not changed since");
    case State::Changed:
        return QStringLiteral("Changed since");
    case State::Deleted:
        return QStringLiteral("Deleted");
    case State::Unreadable:
        return QStringLiteral("Cannot be read");
    case State::NeverNamed:
        return QStringLiteral("Never saved");
    }
    return QString();
}
