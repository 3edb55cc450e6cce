#include "platform/ResourceLoader.h"

#include <QFile>
#include <QXmlStreamReader>

IZNBaseResourceLoader::~IZNBaseResourceLoader() = default;

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
