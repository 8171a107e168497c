#include "TranscriptView.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include "HarmlessMarkup.h"
#include "PieceFeeder.h"
#include "SlowText.h"

namespace
{

void insertBlock(QTextCursor &cursor, const QTextBlock &block)
{
    cursor.insertBlock(block.blockFormat(), block.charFormat());
    for (QTextBlock::iterator it = block.begin(); !it.atEnd(); ++it)
        cursor.insertText(it.fragment().text(), it.fragment().charFormat());
}

/// Appends a plain entry so that it looks the same as in a separate document.
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

/// Appends an entry with markup to a document that contains pieces and must not be replaced.
void insertWithMarkup(QTextDocument &document, const QString &markup)
{
    QTextDocument alone;
    alone.setHtml(Transcript::document(markup));
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    cursor.insertBlock(alone.begin().blockFormat());
    cursor.insertFragment(QTextDocumentFragment(&alone));
}

} // namespace

TranscriptView::TranscriptView(QWidget *parent)
    : QTextEdit(parent), m_feeder(new PieceFeeder(this)), m_isOpen(false), m_isInPieces(false)
{
    setUndoRedoEnabled(false); // the undo stack would store a second copy of every entry
    connect(m_feeder, SIGNAL(added()), this, SLOT(showEnd()));
}

void TranscriptView::appendEntry(const Transcript::Entry &entry)
{
    const bool isFirst = m_entries.isEmpty();
    const bool inPieces = entry.isHeavy || m_feeder->isBusy();
    const bool asMarkup = HarmlessMarkup::mayKeepMarkup(entry.cost, m_cost, inPieces);
    const QString &markup = asMarkup ? entry.markup : entry.letters;
    m_entries += markup;
    if (inPieces)
        insertPieces(entry);
    else
        showEntry(entry, markup, isFirst);
    if (asMarkup)
        m_cost.add(entry.cost);
    m_isOpen = m_isOpen || (asMarkup ? entry.mayReachOn : entry.lettersMayReachOn);
    showEnd();
}

void TranscriptView::showEntry(const Transcript::Entry &entry, const QString &markup, bool isFirst)
{
    if (m_isInPieces)
        insertWithMarkup(*document(), markup);
    else if (isFirst || m_isOpen || !entry.isPlain)
        setHtml(Transcript::document(m_entries));
    else
        insertAtEnd(*document(), markup);
}

/// Inserts the entry in pieces. From now on, new entries are only appended. If the entire document
/// were set again, Qt would have to lay out all pieces at once.
void TranscriptView::insertPieces(const Transcript::Entry &entry)
{
    m_isInPieces = true;
    QTextDocument sample;
    sample.setHtml(Transcript::document(entry.sample));
    const QTextBlock block = sample.begin();
    const QTextCharFormat letters = block.begin().fragment().charFormat();
    const QStringList pieces = SlowText::pieces(entry.words);
    for (int i = 0; i < pieces.count(); ++i)
        m_feeder->add(pieces.at(i), block.blockFormat(), letters);
}

void TranscriptView::showEnd()
{
    moveCursor(QTextCursor::End);
}

void TranscriptView::clearEntries()
{
    m_feeder->drop();
    clear();
    m_entries.clear();
    m_cost = MarkupCost();
    m_isOpen = false;
    m_isInPieces = false;
}

QVariant TranscriptView::loadResource(int type, const QUrl &name)
{
    Q_UNUSED(name);
    return HarmlessMarkup::emptyResource(type);
}
