// SPDX-License-Identifier: GPL-3.0-or-later
// Files of templates of any text: what is read is written again and read as the same.
#include "completion/TemplateFile.h"

#include <cstdint>
#include <cstdlib>

using completion::CodeTemplate;
using completion::ParseTemplates;
using completion::TemplateFile;

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

// In line ends of two characters, so that a line keeps a carriage return of its own at its end.
QString Written(const TemplateFile& file)
{
    const QLatin1String end("\r\n");
    QString text = QStringLiteral("templates 1\r\n");
    for (const CodeTemplate& each : file.templates) {
        text += QStringLiteral("== ") + each.shortName + QStringLiteral(": ") + each.title + end;
        for (const QString& line : each.lines)
            text += (line.startsWith(u'=') || line.startsWith(QLatin1String("\\=")) ? u'\\' + line
                                                                                    : line) +
                    end;
    }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (size > 0 && data[0] % 2)
        text = QStringLiteral("templates 1\n") + text;
    const TemplateFile file = ParseTemplates(text);
    Require(file.isOne || file.templates.empty());
    for (const CodeTemplate& each : file.templates)
        Require(!each.shortName.isEmpty() && !each.title.isEmpty() && !each.lines.isEmpty() &&
                !each.shortName.contains(u' '));
    const TemplateFile again = ParseTemplates(Written(file));
    Require(again.templates.size() == file.templates.size());
    for (std::size_t i = 0; i < file.templates.size(); ++i)
        Require(again.templates[i].shortName == file.templates[i].shortName &&
                again.templates[i].title == file.templates[i].title &&
                again.templates[i].lines == file.templates[i].lines);
    completion::FindTemplates(file.templates, text.left(8), 20);
    return 0;
}
