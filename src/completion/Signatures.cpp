// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/Signatures.h"

namespace completion {

Signature ParseSignature(const QString& text, const QString& description)
{
    Signature signature{text, {}, description};
    int depth = 0;
    int start = -1;
    for (int i = 0; i < text.size(); ++i) {
        const QChar unit = text[i];
        if (unit == u'(' && depth++ == 0)
            start = i + 1;
        else if ((unit == u',' && depth == 1) || (unit == u')' && --depth == 0)) {
            if (start >= 0 && i > start)
                signature.arguments.emplace_back(start + (text[start] == u' ' ? 1 : 0), i);
            start = unit == u',' ? i + 1 : -1;
        }
    }
    return signature;
}

Signatures::Signatures(const QString& text, const QString& language, bool isSql)
{
    bool isOurs = false;
    for (const QString& each : text.split(u'\n')) {
        const QString line = each.trimmed();
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        if (line.startsWith(u'[')) {
            QString names = line.mid(1);
            names.truncate(std::max<qsizetype>(names.indexOf(u']'), 0));
            isOurs = false;
            for (const QString& name : names.split(u','))
                isOurs = isOurs || name.trimmed() == language ||
                         (isSql && name.trimmed() == QLatin1String("*"));
            continue;
        }
        const auto open = line.indexOf(u'(');
        if (isOurs && open > 0)
            m_lines.insert(line.left(open).trimmed().toLower(), line);
    }
}

Signature Signatures::Of(const QString& name) const
{
    const QString line = m_lines.value(name.toLower());
    if (line.isEmpty())
        return {};
    const auto remark = line.indexOf(QStringLiteral(" -- "));
    return remark < 0 ? ParseSignature(line, {})
                      : ParseSignature(line.left(remark).trimmed(), line.mid(remark + 4).trimmed());
}

} // namespace completion
