#ifndef XMLELEMENTS_H
#define XMLELEMENTS_H

#include <QByteArray>
#include <QList>
#include <QString>
#include <QXmlStreamAttributes>

/** One element of a document, and where it begins. */
struct XmlElement {
    QString name;
    QXmlStreamAttributes attributes;
    QString text;      // of all that is in it
    int parent = -1;   // its place in the list; -1 for the root
    int behind = 0;    // place of the first element that is not in it
    qint64 line = 0;   // from 1
    qint64 column = 0; // from 1

    bool has(const char *attribute) const
    {
        return attributes.hasAttribute(QLatin1String(attribute));
    }
    QString attribute(const char *name) const
    {
        return attributes.value(QLatin1String(name)).toString();
    }
};

/** A document as the list of its start elements, in the order in which a reader meets them. */
struct XmlElements {
    QList<XmlElement> list;
    QString error; // why the document ends early; empty when it is well-formed
    qint64 errorLine = 0;
    qint64 errorColumn = 0;
    bool isDangerous = false; // nests too deeply, or declares entities: not for other readers

    /// Places of the elements with this name inside the one at `parent`, not deeper.
    QList<int> childrenOf(int parent, const char *name) const;
};

XmlElements readXmlElements(const QByteArray &xml);

#endif
