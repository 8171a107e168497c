#include "TranscriptView.h"

#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace
{

void insertBlock(QTextCursor &cursor, const QTextBlock &block)
{
    cursor.insertBlock(block.blockFormat(), block.charFormat());
    for (QTextBlock::iterator it = block.begin(); !it.atEnd(); ++it)
        cursor.insertText(it.fragment().text(), it.fragment().charFormat());
}

/// Inserts a plain entry as a document with nothing but it would show it.
void insertAtEnd(QTextDocument &document, const QString &markup)
{
    QTextDocument alone;
    alone.setHtml(Transcript::document(markup));
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    cursor.beginEditBlock();
    for (QTextBlock block = alone.begin(); block.isValid(); block = block.next())
        insertBlock(cursor, block);
    cursor.endEditBlock();
}

/// Never null, or Qt would go on to open a file of that name itself.
QVariant nothingToLoad(int type)
{
    if (type != QTextDocument::ImageResource)
        return QString(QLatin1String(""));
    QImage pixel(1, 1, QImage::Format_ARGB32_Premultiplied);
    pixel.fill(0);
    return pixel;
}

} // namespace

TranscriptView::TranscriptView(QWidget *parent) : QTextEdit(parent), m_isOpen(false)
{
    setUndoRedoEnabled(false); // every entry would be kept a second time
}

void TranscriptView::appendEntry(const Transcript::Entry &entry)
{
    const bool isFirst = m_entries.isEmpty();
    m_entries += entry.markup;
    if (isFirst || m_isOpen || !entry.isPlain)
        setHtml(Transcript::document(m_entries));
    else
        insertAtEnd(*document(), entry.markup);
    m_isOpen = m_isOpen || entry.mayReachOn;
    moveCursor(QTextCursor::End);
}

void TranscriptView::clearEntries()
{
    clear();
    m_entries.clear();
    m_isOpen = false;
}

QVariant TranscriptView::loadResource(int type, const QUrl &name)
{
    Q_UNUSED(name);
    return nothingToLoad(type);
}
