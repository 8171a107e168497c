#include "TourAlbum.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <QTextDocument>
#include <QTextEdit>
#include <QTreeWidget>

#include "base/DashboardText.h"
#include "Languages.h"
#include "TerminalText.h"

namespace Dashboard
{

namespace
{

const int NUMBER_WIDTH = 3;

// Dimensions of the contact sheet in pixels.
const int COLUMNS = 6;
const QSize THUMBNAIL(300, 220);
const int LABEL_HEIGHT = 16;
const int GAP = 8;
const QColor SHEET_COLOR(0x60, 0x68, 0x74); // contrasts with both themes

QString plainText(const QLabel *label)
{
    if (label->textFormat() != Qt::RichText)
        return label->text();
    QTextDocument document;
    document.setHtml(label->text());
    return document.toPlainText();
}

QString rowsOf(const QTableWidget *table)
{
    QStringList rows;
    for (int row = 0; row < table->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table->columnCount(); ++column) {
            const QTableWidgetItem *item = table->item(row, column);
            if (item && !item->text().isEmpty())
                cells << item->text();
        }
        if (!cells.isEmpty())
            rows << cells.join(QLatin1String(" | "));
    }
    return rows.join(QLatin1String("\n"));
}

QString rowsOf(const QListWidget *list)
{
    QStringList rows;
    for (int row = 0; row < list->count(); ++row)
        rows << list->item(row)->text();
    return rows.join(QLatin1String("\n"));
}

QString entriesOf(const QMenu *menu)
{
    QStringList entries;
    for (const QAction *action : menu->actions()) {
        if (!action->text().isEmpty())
            entries << QLatin1String(action->isChecked() ? "> " : "") + action->text();
    }
    return entries.join(QLatin1String("\n"));
}

QString textOf(const QWidget *widget)
{
    if (const QLabel *label = qobject_cast<const QLabel *>(widget))
        return plainText(label);
    if (const QAbstractButton *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text().isEmpty() ? QString()
                                        : QLatin1Char('[') + button->text() + QLatin1Char(']');
    if (const QLineEdit *edit = qobject_cast<const QLineEdit *>(widget))
        return edit->displayText(); // unlike text(), does not reveal PINs
    if (const QTextEdit *edit = qobject_cast<const QTextEdit *>(widget))
        return edit->toPlainText();
    if (const QPlainTextEdit *edit = qobject_cast<const QPlainTextEdit *>(widget))
        return edit->toPlainText();
    if (const QListWidget *list = qobject_cast<const QListWidget *>(widget))
        return rowsOf(list);
    if (const QTableWidget *table = qobject_cast<const QTableWidget *>(widget))
        return rowsOf(table);
    if (const QTreeWidget *tree = qobject_cast<const QTreeWidget *>(widget))
        return tree->currentItem() ? QLatin1String("> ") + tree->currentItem()->text(0) : QString();
    return QString();
}

bool isAbove(const QWidget *a, const QWidget *b)
{
    const QPoint placeA = a->mapTo(a->window(), QPoint());
    const QPoint placeB = b->mapTo(b->window(), QPoint());
    return placeA.y() != placeB.y() ? placeA.y() < placeB.y() : placeA.x() < placeB.x();
}

} // namespace

QString shownText(const QWidget *widget)
{
    QList<QWidget *> parts = widget->findChildren<QWidget *>();
    std::stable_sort(parts.begin(), parts.end(), isAbove);
    QStringList lines;
    if (const QMenu *menu = qobject_cast<const QMenu *>(widget))
        lines << entriesOf(menu);
    for (const QWidget *part : parts) {
        const QString text = part->isVisible() ? textOf(part) : QString();
        if (!text.isEmpty())
            lines << text;
    }
    return lines.join(QLatin1String("\n"));
}

TourAlbum::TourAlbum(const QString &folder) : m_folder(folder) {}

bool TourAlbum::makeFolder()
{
    return m_folder.mkpath(QLatin1String(".")) || fail("TOUR_NO_FOLDER", m_folder.path());
}

bool TourAlbum::add(const QPixmap &picture, const char *place, const TourStop &stop,
                    const QString &text)
{
    const QString name = QString::fromLatin1("%1-%2-%3-%4.png")
                             .arg(m_pictures + 1, NUMBER_WIDTH, 10, QLatin1Char('0'))
                             .arg(m_language, QLatin1String(place), QLatin1String(stop.name));
    const QImage image = picture.toImage();
    if (!save(image, name))
        return false;
    ++m_pictures;
    const QSize size = image.size().scaled(THUMBNAIL, Qt::KeepAspectRatio);
    m_thumbnails << Thumbnail{name, image.scaled(size.boundedTo(image.size()), Qt::KeepAspectRatio,
                                                 Qt::SmoothTransformation)};
    m_transcript << QString::fromLatin1("== %1: %2, %3")
                        .arg(name, HostCore::Languages::nativeName(m_language),
                             QLatin1String(stop.caption))
                 << text << QString();
    HostCore::printLine(name);
    return true;
}

bool TourAlbum::save(const QImage &picture, const QString &name) const
{
    return picture.save(m_folder.filePath(name)) ||
           fail("TOUR_NOT_WRITTEN", m_folder.filePath(name));
}

bool TourAlbum::writeContactSheet()
{
    const QSize cell = THUMBNAIL + QSize(GAP, LABEL_HEIGHT + GAP);
    const int rows = (int(m_thumbnails.size()) + COLUMNS - 1) / COLUMNS;
    QImage sheet(COLUMNS * cell.width() + GAP, rows * cell.height() + GAP, QImage::Format_RGB32);
    sheet.fill(SHEET_COLOR);
    QPainter painter(&sheet);
    painter.setPen(Qt::white);
    painter.setLayoutDirection(Qt::LeftToRight);
    QFont font = painter.font();
    font.setPixelSize(LABEL_HEIGHT - 4);
    painter.setFont(font);
    for (int i = 0; i < m_thumbnails.size(); ++i) {
        const QPoint place(GAP + i % COLUMNS * cell.width(), GAP + i / COLUMNS * cell.height());
        painter.drawImage(place, m_thumbnails.at(i).image);
        painter.drawText(
            QRect(place + QPoint(0, THUMBNAIL.height()), QSize(THUMBNAIL.width(), LABEL_HEIGHT)),
            Qt::AlignLeft | Qt::AlignVCenter, m_thumbnails.at(i).name);
    }
    painter.end();
    m_thumbnails.clear();
    const QString name = QString::fromLatin1("contact-%1.png").arg(m_language);
    HostCore::printLine(name);
    return save(sheet, name);
}

bool TourAlbum::writeTranscript()
{
    QFile file(m_folder.filePath(QLatin1String("transcript.txt")));
    const QByteArray text = HostCore::terminalText(m_transcript.join(QLatin1String("\n"))).toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush())
        return fail("TOUR_NOT_WRITTEN", file.fileName());
    HostCore::printLine(QLatin1String("transcript.txt"));
    return true;
}

bool TourAlbum::fail(const char *key, const QString &subject)
{
    const QString text = dashboardText(key);
    HostCore::printErrorLine(text.contains(QLatin1String("%1")) ? text.arg(subject) : text);
    return false;
}

} // namespace Dashboard
