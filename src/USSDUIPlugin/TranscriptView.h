#ifndef TRANSCRIPTVIEW_H
#define TRANSCRIPTVIEW_H

#include <QTextEdit>

#include "Transcript.h"

/**
 * Shows the transcript. Entries come from the network and may hold any markup, so nothing in them
 * makes the view open a file or an address.
 *
 * An entry is inserted at the end, in the same time whatever stands before it; the document is
 * nevertheless the one that setting the whole transcript at once would give. Behind an entry that
 * may hold an unclosed tag or a style sheet that is only so if the whole is set each time.
 */
class TranscriptView : public QTextEdit
{
    Q_OBJECT
public:
    explicit TranscriptView(QWidget *parent = nullptr);

    /// Shows one entry more and moves to the end.
    void appendEntry(const Transcript::Entry &entry);
    /// Shows nothing.
    void clearEntries();
    /// The markup of all entries, one behind the other.
    const QString &entries() const { return m_entries; }

    QVariant loadResource(int type, const QUrl &name) override;

private:
    QString m_entries;
    bool m_isOpen; // an entry may reach into those behind it
};

#endif
