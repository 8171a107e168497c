#ifndef XMLELEMENTS_H
#define XMLELEMENTS_H

#include <QByteArray>
#include <QList>
#include <QString>
#include <QXmlStreamAttributes>

namespace Tools
{

/** An element of a document and its position. */
struct XmlElement {
    QString name;
    QXmlStreamAttributes attributes;
    QString text;         // the text of the element and its descendants
    int parent = -1;      // index of the parent element; -1 for the root
    int behind = 0;       // index of the first element after this element and its descendants
    bool isWhole = false; // true if the end tag has been read
    qint64 line = 0;      // line of the start tag; starts at 1
    qint64 column = 0;    // column of the start tag; starts at 1

    bool has(const char *attribute) const
    {
        return attributes.hasAttribute(QLatin1String(attribute));
    }
    QString attribute(const char *name) const
    {
        return attributes.value(QLatin1String(name)).toString();
    }
};

/** All elements of a document in the order of their start tags. */
struct XmlElements {
    QList<XmlElement> list;
    QString error; // the reason why parsing failed; empty if the document is well-formed
    qint64 errorLine = 0;
    qint64 errorColumn = 0;
    /// True if the document is nested too deeply, declares entities or has too many attributes.
    /// Such a document must not be passed to other parsers.
    bool isDangerous = false;

    /// Returns the indexes of the direct children of `parent` with this name.
    QList<int> childrenOf(int parent, const char *name) const;
};

XmlElements readXmlElements(const QByteArray &xml);

} // namespace Tools

#endif
