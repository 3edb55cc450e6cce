// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/files/ExpressionFault.h"

#include "engine/search/Expression.h"
#include "engine/search/ExpressionTranslator.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ExpressionFault)
};

QString FaultAt(const std::string& pattern, std::size_t place)
{
    if (place >= pattern.size())
        return Texts::tr("The expression is not complete.");
    const qsizetype units = QString::fromUtf8(pattern.data(), static_cast<qsizetype>(place)).size();
    return Texts::tr("The expression cannot be read from character %1 on.").arg(units + 1);
}

} // namespace

QString ExpressionFault(const QString& expression, bool perlSyntax)
{
    using engine::search::Expression;
    const std::string pattern = expression.toUtf8().toStdString();
    if (perlSyntax) {
        Expression::Problem problem;
        const bool isWell =
            Expression::Compile(pattern, Expression::Reading::Pattern, true, &problem) != nullptr;
        return isWell ? QString() : FaultAt(pattern, problem.place);
    }
    engine::search::ExpressionTranslator translator({false, true, "[A-Za-z0-9_]"});
    const auto translated = translator.Translate(pattern);
    if (!translated)
        return FaultAt(pattern, translator.Stopped());
    if (!Expression::Compile(translated->pattern, Expression::Reading::Pattern, true))
        return Texts::tr("The expression cannot be used.");
    return {};
}
