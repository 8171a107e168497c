#ifndef ELEMENTCHECK_H
#define ELEMENTCHECK_H

#include "CheckReport.h"
#include "Spelling.h"
#include "XmlElements.h"

namespace Tools
{

/** Checks single values, and adds findings for the elements that contain them. */
class ElementCheck
{
public:
    ElementCheck(const XmlElements &elements, CheckReport &report)
        : m_elements(elements), m_report(report)
    {
    }

    const XmlElements &elements() const { return m_elements; }
    const XmlElement &at(int place) const { return m_elements.list.at(place); }

    /// Adds a finding for the element with the index `place`, or for the file as a whole if `place`
    /// is negative.
    void find(int place, const char *rule, const QString &text);

    /// Adds a finding unless the value is "true" or "false". The plug-in reads any other value as
    /// false.
    void boolText(int place, const QString &what, const QString &text);
    void boolAttribute(int place, const char *name);
    /// Returns the number that the plug-in reads. Adds a finding if the value is not a number. The
    /// plug-in reads such a value as 0.
    int numberText(int place, const QString &what, const QString &text);
    int numberAttribute(int place, const char *name);
    int colour(int place, const char *name);

    /// Checks the length and the form of a code. `inputLength` is the maximum number of characters
    /// that replace "%s" in the code.
    void command(int place, const QString &command, int inputLength);
    /// Adds a finding if the key is not translated in all languages. A string that is not a key is
    /// accepted, because the plug-in shows it unchanged.
    void key(int place, const QString &key);

    /// Adds a finding for each element and attribute whose name is not known. The finding suggests
    /// the name that is probably meant.
    void names(const KnownNames &known);

private:
    void attributeNames(int place, const KnownNames &known);

    const XmlElements &m_elements;
    CheckReport &m_report;
};

} // namespace Tools

#endif
