#include "PieceFeeder.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>

PieceFeeder::PieceFeeder(QTextEdit *edit) : QObject(edit), m_edit(edit)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(addNext()));
}

void PieceFeeder::add(const QString &text, const QTextBlockFormat &block,
                      const QTextCharFormat &letters)
{
    const Piece piece = {text, block, letters};
    m_pieces << piece;
    if (!m_timer.isActive())
        m_timer.start(0);
}

void PieceFeeder::drop()
{
    m_timer.stop();
    m_pieces.clear();
}

void PieceFeeder::addNext()
{
    if (m_pieces.isEmpty())
        return;
    const Piece piece = m_pieces.takeFirst();
    QTextCursor cursor(m_edit->document());
    cursor.movePosition(QTextCursor::End);
    cursor.beginEditBlock();
    if (m_edit->document()->isEmpty())
        cursor.setBlockFormat(piece.block);
    else
        cursor.insertBlock(piece.block, piece.letters);
    cursor.insertText(piece.text, piece.letters);
    cursor.endEditBlock();
    if (!m_pieces.isEmpty())
        m_timer.start(0);
    emit added();
}
