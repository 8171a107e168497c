#include "TopUpInputLimits.h"

#include <QRegExp>

#include "SmsLayout.h"

namespace Formats
{

int longestCharge(const TopUpInputLimits &rules)
{
    return qMax(rules.length, 0);
}

bool isChargeLongEnough(const TopUpInputLimits &rules, int characters)
{
    return characters >= qMin(longestCharge(rules), rules.minlenth);
}

QString chargeExpression(const TopUpInputLimits &rules)
{
    return QLatin1Char('[') + rules.limitText + QLatin1String("]{0,") +
           QString::number(qMin(rules.length, SmsLayoutFile::MAX_INPUT_LENGTH)) + QLatin1Char('}');
}

bool isChargeExpressionUsable(const TopUpInputLimits &rules)
{
    return SmsLayoutFile::isCharacterClass(rules.limitText) &&
           QRegExp(chargeExpression(rules)).isValid();
}

} // namespace Formats
