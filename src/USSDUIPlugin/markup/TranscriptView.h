#ifndef TRANSCRIPTVIEW_H
#define TRANSCRIPTVIEW_H

#include <QTextEdit>

#include "Transcript.h"

class PieceFeeder;

/**
 * Shows the transcript. Entries come from the network and may hold any markup, so nothing in them
 * makes the view open a file or an address.
 *
 * An entry is inserted at the end, in the same time whatever stands before it; the document is
 * nevertheless the one that setting the whole transcript at once would give. Behind an entry that
 * may hold an unclosed tag or a style sheet that is only so if the whole is set each time.
 *
 * Two kinds of entries are shown otherwise so that the window stays alive: one whose markup costs
 * too much is shown as letters, and one that takes long even so, which no network can send, comes
 * in pieces, each a paragraph.
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
    /// The markup of all entries, one behind the other, as far as it counts as markup.
    const QString &entries() const { return m_entries; }

    QVariant loadResource(int type, const QUrl &name) override;

private slots:
    void showEnd();

private:
    void showEntry(const Transcript::Entry &entry, const QString &markup, bool isFirst);
    void insertPieces(const Transcript::Entry &entry);

    QString m_entries;
    MarkupCost m_cost;
    PieceFeeder *m_feeder; // a child
    bool m_isOpen;         // an entry may reach into those behind it
    bool m_isInPieces;     // the whole is never set at once any more
};

#endif
