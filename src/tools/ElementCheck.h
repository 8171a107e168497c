#ifndef ELEMENTCHECK_H
#define ELEMENTCHECK_H

#include "CheckReport.h"
#include "XmlElements.h"

/** Checks of single values, with a finding at the element that holds them. */
class ElementCheck
{
public:
    ElementCheck(const XmlElements &elements, CheckReport &report)
        : m_elements(elements), m_report(report)
    {
    }

    const XmlElements &elements() const { return m_elements; }
    const XmlElement &at(int place) const { return m_elements.list.at(place); }

    /// At an element, or for the file as a whole when `place` is negative.
    void find(int place, const char *rule, const QString &text);

    /// Anything but "true" and "false" reads as off.
    void boolText(int place, const QString &what, const QString &text);
    void boolAttribute(int place, const char *name);
    /// What is no number reads as 0. Returns what is read.
    int numberText(int place, const QString &what, const QString &text);
    int numberAttribute(int place, const char *name);
    int colour(int place, const char *name);

    /// A code with the most characters that may be entered for its "%s".
    void command(int place, const QString &command, int inputLength);
    /// A key that a language has no text for. Texts that are no keys are shown as they are.
    void key(int place, const QString &key);

    /// Elements whose name nobody reads, with the name that was perhaps meant.
    void names(const QStringList &known);

private:
    const XmlElements &m_elements;
    CheckReport &m_report;
};

/// The one of the names that is most like it; empty when none is much like it.
QString likelyName(const QString &name, const QStringList &known);

#endif
