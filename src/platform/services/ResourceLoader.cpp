// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/services/ResourceLoader.h"

#include <QFile>
#include <QXmlStreamReader>

IZNBaseResourceLoader::~IZNBaseResourceLoader() = default;

QString IZNBaseResourceLoader::FormatString(UINT id, const QStringList& values) const
{
    const QString format = LoadString(id);
    QString text;
    for (qsizetype i = 0; i < format.size(); ++i) {
        const bool isMark = format[i] == u'%' && i + 1 < format.size();
        const int value = isMark ? format[i + 1].unicode() - u'1' : -1;
        if (value < 0 || value > 8 || value >= values.size()) {
            text += format[i];
            continue;
        }
        text += values[value];
        ++i;
    }
    return text;
}

CZNBaseResourceLoader::CZNBaseResourceLoader(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != u"string")
            continue;
        const UINT id = reader.attributes().value(QLatin1String("id")).toUInt();
        m_strings.insert(id, reader.readElementText());
    }
}
