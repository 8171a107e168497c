#ifndef TRANSCRIPTVIEW_H
#define TRANSCRIPTVIEW_H

#include <QTextEdit>

#include "Transcript.h"

class PieceFeeder;

/**
 * Shows the transcript of the general window. Entries come from the network and may contain any
 * markup. Therefore, the view never opens a file or an address that an entry refers to.
 *
 * A plain entry is appended in a time that does not depend on the previous entries. In contrast,
 * the entire transcript is set again for an entry with markup. The same applies to each entry after
 * one that may contain an unclosed tag or a style sheet. The result looks the same in both cases.
 *
 * Two kinds of entries are shown in a simpler form, so that the window remains responsive. An entry
 * whose markup is too expensive (see MarkupCost) is shown as plain text. A heavy text (see
 * SlowText), which networks cannot send, is added in pieces by PieceFeeder. Each piece is a
 * separate paragraph.
 */
class TranscriptView : public QTextEdit
{
    Q_OBJECT
public:
    explicit TranscriptView(QWidget *parent = nullptr);

    /// Appends an entry and scrolls to the end.
    void appendEntry(const Transcript::Entry &entry);
    /// Removes all entries.
    void clearEntries();
    /// Returns the markup of all entries in order. The markup of entries that are shown as plain
    /// text is escaped.
    const QString &entries() const { return m_entries; }

    QVariant loadResource(int type, const QUrl &name) override;

private slots:
    void showEnd();

private:
    void showEntry(const Transcript::Entry &entry, const QString &markup, bool isFirst);
    void insertPieces(const Transcript::Entry &entry);

    QString m_entries;
    MarkupCost m_cost;
    PieceFeeder *m_feeder; // a child of this widget
    bool m_isOpen;         // true if an entry may affect the appearance of later entries
    bool m_isInPieces;     // true if the document is no longer replaced as a whole
};

#endif
