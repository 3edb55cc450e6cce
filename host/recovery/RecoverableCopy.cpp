// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/recovery/RecoverableCopy.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(RecoverableCopy)
};

using State = RecoverableCopy::State;

constexpr QChar kSeparator = u'\t';

State StateOf(const QFileInfo& file, const LeftCopies::Copy& copy, const QDateTime& copyTime)
{
    if (!file.exists() && !file.isSymLink())
        return State::Deleted;
    if (!file.isFile() || !file.isReadable())
        return State::Unreadable;
    const bool isSame = copy.isOfThisFile.value_or(file.lastModified() <= copyTime);
    return isSame ? State::Unchanged : State::Changed;
}

template <class Several>
QString Ago(qint64 count, const QString& one, Several several)
{
    return count == 1 ? one : several(static_cast<int>(count));
}

} // namespace

RecoverableCopy Describe(const LeftCopies::Copy& copy)
{
    RecoverableCopy described;
    described.path = copy.path;
    described.codePage = copy.codePage;
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
    described.state = StateOf(file, copy, described.copyTime);
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
        return Texts::tr("just now");
    if (seconds < kHour)
        return Ago(seconds / kMinute, Texts::tr("1 minute ago"),
                   [](int n) { return Texts::tr("%n minutes ago", nullptr, n); });
    if (seconds < kDay)
        return Ago(seconds / kHour, Texts::tr("1 hour ago"),
                   [](int n) { return Texts::tr("%n hours ago", nullptr, n); });
    return Ago(seconds / kDay, Texts::tr("1 day ago"),
               [](int n) { return Texts::tr("%n days ago", nullptr, n); });
}

QString TextOf(State state)
{
    switch (state) {
    case State::Unchanged:
        return Texts::tr("Not changed since");
    case State::Changed:
        return Texts::tr("Changed since");
    case State::Deleted:
        return Texts::tr("Deleted");
    case State::Unreadable:
        return Texts::tr("Cannot be read");
    case State::NeverNamed:
        return Texts::tr("Never saved");
    }
    return QString();
}
