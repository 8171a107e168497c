#include "UssdTemplate.h"

namespace
{

const QLatin1String PLACEHOLDER("%s");
const QLatin1String SIGNS("0123456789*#");

bool isOfSigns(const QString &text)
{
    for (int i = 0; i < text.length(); ++i) {
        if (!QString(SIGNS).contains(text.at(i)))
            return false;
    }
    return true;
}

/// A replacement that could itself be dialled, such as "1", must not be found where it is not
/// meant.
bool isClear(const ProviderCode &code)
{
    return !isOfSigns(code.replacement) || code.code.count(code.replacement) == 1;
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
    if (sample.length() > LONGEST_USSD_COMMAND)
        return unusable(quoted(written) + QLatin1String(" is too long"));
    UssdTemplate result;
    result.code = code;
    result.takesInput = code.contains(PLACEHOLDER);
    return result;
}

} // namespace

UssdTemplate ussdTemplate(const ProviderCode &code)
{
    if (!code.takesInput)
        return checked(code.code, code.code, code.code);
    if (code.replacement.isEmpty() || !code.code.contains(code.replacement))
        return unusable(QString::fromLatin1("the replacement %1 does not stand in %2")
                            .arg(quoted(code.replacement), quoted(code.code)));
    if (!isClear(code))
        return unusable(QString::fromLatin1("the replacement %1 stands in %2 more than once")
                            .arg(quoted(code.replacement), quoted(code.code)));
    QString result = code.code;
    QString sample = code.code;
    result.replace(code.replacement, PLACEHOLDER);
    sample.replace(code.replacement, QLatin1String("0"));
    return checked(result, sample, code.code);
}

bool isUssdCode(const QString &text)
{
    if (text.length() < 2 || !text.endsWith(QLatin1Char('#')) || !isOfSigns(text))
        return false;
    return text.startsWith(QLatin1Char('*')) || text.startsWith(QLatin1Char('#'));
}

int longestInput(const QString &codeWithPlaceholder)
{
    const int places = codeWithPlaceholder.count(PLACEHOLDER);
    if (places == 0)
        return 0;
    const int fixed = codeWithPlaceholder.length() - places * QString(PLACEHOLDER).length();
    return qMax(0, (LONGEST_USSD_COMMAND - fixed) / places);
}
