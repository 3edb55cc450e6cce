// SPDX-License-Identifier: GPL-3.0-or-later
#include "looks/StyleRoles.h"

#include <QFile>

#include <pugixml.hpp>

namespace {

QString Key(const QString& language, const QString& style)
{
    return language + u'\n' + style;
}

} // namespace

StyleRoles::StyleRoles(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QByteArray bytes = file.readAll();
    pugi::xml_document document;
    document.load_buffer(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    for (const pugi::xml_node node : document.child("Roles").children("Style"))
        m_roles.insert(Key(QString::fromUtf8(node.attribute("language").value()),
                           QString::fromUtf8(node.attribute("name").value())),
                       QString::fromUtf8(node.attribute("role").value()));
}

QString StyleRoles::RoleOf(const QString& language, const QString& style) const
{
    if (style.startsWith(QLatin1String("Inactive: ")))
        return QStringLiteral("inactive");
    const QString part = style.section(QStringLiteral(": "), -1);
    for (const QString& key :
         {Key(language, style), Key({}, style), Key(language, part), Key({}, part)}) {
        if (const auto found = m_roles.constFind(key); found != m_roles.constEnd())
            return *found;
    }
    return {};
}
