#ifndef PIECEFEEDER_H
#define PIECEFEEDER_H

#include <QList>
#include <QObject>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTimer>

class QTextEdit;

/**
 * Appends a long text to a QTextEdit in pieces, so that the window remains responsive. Each
 * iteration of the event loop appends one piece as a separate paragraph. AccountReplyView and
 * TranscriptView use this class for slow text; see SlowText. The feeder is a child of the text
 * edit. All functions must be called from the GUI thread.
 */
class PieceFeeder : public QObject
{
    Q_OBJECT
public:
    explicit PieceFeeder(QTextEdit *edit);

    bool isBusy() const { return !m_pieces.isEmpty(); }
    /// Appends a piece to the queue.
    void add(const QString &text, const QTextBlockFormat &block, const QTextCharFormat &letters);
    /// Discards all pieces in the queue.
    void drop();

signals:
    /// Emitted after a piece has been appended to the text edit.
    void added();

private slots:
    void addNext();

private:
    struct Piece {
        QString text;
        QTextBlockFormat block;
        QTextCharFormat letters;
    };

    QTextEdit *m_edit; // the parent of the feeder
    QList<Piece> m_pieces;
    QTimer m_timer;
};

#endif
