#ifndef PIECEFEEDER_H
#define PIECEFEEDER_H

#include <QList>
#include <QObject>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTimer>

class QTextEdit;

/**
 * Adds a long text to the end of a QTextEdit piece by piece, each a paragraph of its own, one for
 * each turn of the event loop: the window stays alive meanwhile. A child of the text edit; GUI
 * thread.
 */
class PieceFeeder : public QObject
{
    Q_OBJECT
public:
    explicit PieceFeeder(QTextEdit *edit);

    bool isBusy() const { return !m_pieces.isEmpty(); }
    /// Comes behind everything that still waits.
    void add(const QString &text, const QTextBlockFormat &block, const QTextCharFormat &letters);
    /// Forgets what still waits.
    void drop();

signals:
    /// A piece more is there.
    void added();

private slots:
    void addNext();

private:
    struct Piece {
        QString text;
        QTextBlockFormat block;
        QTextCharFormat letters;
    };

    QTextEdit *m_edit; // the parent
    QList<Piece> m_pieces;
    QTimer m_timer;
};

#endif
