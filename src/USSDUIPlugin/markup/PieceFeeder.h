#ifndef PIECEFEEDER_H
#define PIECEFEEDER_H

#include <QList>
#include <QObject>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTimer>

class QTextEdit;

/**
 * Adds a long text to the end of a QTextEdit piece by piece, so that the window stays responsive.
 * Each iteration of the event loop inserts one piece as a separate paragraph. AccountReplyView and
 * TranscriptView pass the pieces of a heavy text (see SlowText) to it. The feeder is a child of
 * the text edit. Must be used on the GUI thread.
 */
class PieceFeeder : public QObject
{
    Q_OBJECT
public:
    explicit PieceFeeder(QTextEdit *edit);

    bool isBusy() const { return !m_pieces.isEmpty(); }
    /// Adds a piece to the end of the queue.
    void add(const QString &text, const QTextBlockFormat &block, const QTextCharFormat &letters);
    /// Discards all pieces that are still waiting.
    void drop();

signals:
    /// Emitted after a piece has been inserted.
    void added();

private slots:
    void addNext();

private:
    struct Piece {
        QString text;
        QTextBlockFormat block;
        QTextCharFormat letters;
    };

    QTextEdit *m_edit; // the parent object of the feeder
    QList<Piece> m_pieces;
    QTimer m_timer;
};

#endif
