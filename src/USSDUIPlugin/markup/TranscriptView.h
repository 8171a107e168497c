#ifndef TRANSCRIPTVIEW_H
#define TRANSCRIPTVIEW_H

#include <QTextEdit>

#include "Transcript.h"

class PieceFeeder;

/**
 * Shows the transcript of the general window. Because entries come from the network and may contain
 * any markup, the view never opens a file or an address that an entry refers to.
 *
 * Plain entries are appended in constant time. An entry with markup causes the entire transcript to
 * be set again, as do all entries after an entry that may contain an unclosed tag or a style sheet.
 * The result looks the same in both cases.
 *
 * To keep the window responsive, two kinds of entries are simplified. An entry whose markup is too
 * expensive (see MarkupCost) is shown as plain text. Heavy text (see SlowText), which networks
 * cannot send, is appended by PieceFeeder as a series of paragraphs.
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
    /// Returns the markup of all entries in order. Entries that are shown as plain text are
    /// escaped.
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
    bool m_isOpen;         // true if an entry may change the appearance of later entries
    bool m_isInPieces;     // true if the document contains pieces, so that it must not be set again
};

#endif
