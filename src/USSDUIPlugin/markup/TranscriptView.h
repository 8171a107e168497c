#ifndef TRANSCRIPTVIEW_H
#define TRANSCRIPTVIEW_H

#include <QTextEdit>

#include "Transcript.h"

class PieceFeeder;

/**
 * Shows the transcript of the general dialog. Entries come from the network and may contain any
 * markup, so the view never opens a file or an address that they name.
 *
 * A plain entry is appended in a time that does not depend on the entries before it. An entry with
 * markup, and each entry after one that may contain an unclosed tag or a style sheet, sets the
 * whole transcript again. The document looks the same either way.
 *
 * Two kinds of entries are shown more simply so that the window stays responsive. An entry whose
 * markup is too expensive (see MarkupCost) is shown as letters. A heavy text (see HeavyText), which
 * no network can send, is added in pieces by PieceFeeder, each as a paragraph.
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
    /// Returns the markup of all entries in order. The markup of an entry that is shown as letters
    /// is escaped.
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
    bool m_isOpen;         // an entry may affect the look of later ones
    bool m_isInPieces;     // the document is no longer replaced as a whole
};

#endif
