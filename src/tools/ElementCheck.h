#ifndef ELEMENTCHECK_H
#define ELEMENTCHECK_H

#include "CheckReport.h"
#include "Spelling.h"
#include "XmlElements.h"

namespace Tools
{

/** Checks individual values, and adds findings for the elements that contain them. */
class ElementCheck
{
public:
    ElementCheck(const XmlElements &elements, CheckReport &report)
        : m_elements(elements), m_report(report)
    {
    }

    const XmlElements &elements() const { return m_elements; }
    const XmlElement &at(int place) const { return m_elements.list.at(place); }

    /// Adds a finding for the element with index `place`, or for the entire file if `place` is
    /// negative.
    void find(int place, const char *rule, const QString &text);

    /// Adds a finding if the value is neither "true" nor "false", because the plug-in would read it
    /// as false.
    void boolText(int place, const QString &what, const QString &text);
    void boolAttribute(int place, const char *name);
    /// Returns the value as a number. If the value is not a number, adds a finding and returns 0,
    /// as the plug-in does.
    int numberText(int place, const QString &what, const QString &text);
    int numberAttribute(int place, const char *name);
    int colour(int place, const char *name);

    /// Checks the length and the format of a code. `inputLength` is the maximum number of
    /// characters that can replace "%s" in the code.
    void command(int place, const QString &command, int inputLength);
    /// Adds a finding if the key has no translation in one of the languages. Strings that are not
    /// keys are accepted, because the plug-in shows them unchanged.
    void key(int place, const QString &key);

    /// Adds a finding for each unknown element or attribute name. If there is a similar known name,
    /// the finding suggests it.
    void names(const KnownNames &known);

private:
    void attributeNames(int place, const KnownNames &known);

    const XmlElements &m_elements;
    CheckReport &m_report;
};

} // namespace Tools

#endif
