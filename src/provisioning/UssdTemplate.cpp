#include "UssdTemplate.h"

#include "UssdCode.h"

using namespace Formats;

namespace Provisioning
{

namespace
{

/// Returns true if it is clear which part of the code the user's input replaces. A replacement of
/// only dialable characters, such as "1", must not occur more than once, because one occurrence
/// might be a part of the code.
bool isClear(const ProviderCode &code)
{
    return !isDialable(code.replacement) || code.code.count(code.replacement) == 1;
}

UssdTemplate unusable(const QString &problem)
{
    UssdTemplate result;
    result.problem = problem;
    return result;
}

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

UssdTemplate checked(const QString &code, const QString &sample, const QString &written)
{
    if (!isUssdCode(sample))
        return unusable(quoted(written) + QLatin1String(" is no code that a network takes"));
    if (sample.length() > LONGEST_COMMAND)
        return unusable(quoted(written) + QLatin1String(" is too long"));
    UssdTemplate result;
    result.code = code;
    result.takesInput = code.contains(INPUT_PLACEHOLDER);
    return result;
}

} // namespace

UssdTemplate ussdTemplate(const ProviderCode &code)
{
    if (!code.takesInput)
        return checked(code.code, code.code, code.code);
    if (code.replacement.isEmpty() || !code.code.contains(code.replacement))
        return unusable(QString::fromLatin1("the replacement %1 is not in %2")
                            .arg(quoted(code.replacement), quoted(code.code)));
    if (!isClear(code))
        return unusable(QString::fromLatin1("the replacement %1 is in %2 more than once")
                            .arg(quoted(code.replacement), quoted(code.code)));
    QString result = code.code;
    QString sample = code.code;
    result.replace(code.replacement, INPUT_PLACEHOLDER);
    sample.replace(code.replacement, QLatin1String("0"));
    return checked(result, sample, code.code);
}

} // namespace Provisioning
