// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/files/ExpressionFault.h"

#include "engine/search/Expression.h"
#include "engine/search/ExpressionTranslator.h"

QString ExpressionFault(const QString& expression)
{
    using engine::search::Expression;
    const std::string pattern = expression.toUtf8().toStdString();
    engine::search::ExpressionTranslator translator({false, true, "[A-Za-z0-9_]"});
    const auto translated = translator.Translate(pattern);
    if (!translated) {
        const auto place = static_cast<qsizetype>(translator.Stopped());
        if (place >= static_cast<qsizetype>(pattern.size()))
            return QStringLiteral("The expression is not complete.");
        const qsizetype units = QString::fromUtf8(pattern.data(), place).size();
        return QStringLiteral("The expression cannot be read from character %1 on.").arg(units + 1);
    }
    if (!Expression::Compile(translated->pattern, Expression::Reading::Pattern, true))
        return QStringLiteral("The expression cannot be used.");
    return {};
}
