#ifndef TOURALBUM_H
#define TOURALBUM_H

#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QStringList>

class QWidget;

namespace Dashboard
{

/**
 * A stop of the tour: the suffix for the file name of its picture, and the caption of the picture.
 */
struct TourStop {
    const char *name;
    const char *caption;
};

/**
 * Writes the tour's pictures, a contact sheet for each language, and the transcript. Prints write
 * errors to standard error.
 */
class TourAlbum
{
public:
    explicit TourAlbum(const QString &folder);

    bool makeFolder();
    /// Sets the language code for the file names of the following pictures.
    void setLanguage(const QString &code) { m_language = code; }

    /// Adds a picture of `place` and the text that is visible in the picture. Returns false if the
    /// picture cannot be written.
    bool add(const QPixmap &picture, const char *place, const TourStop &stop, const QString &text);
    /// Writes a contact sheet, which shows thumbnails of all pictures in the current language with
    /// their names. Returns false if it cannot be written.
    bool writeContactSheet();
    bool writeTranscript();
    int pictures() const { return m_pictures; }

    /// Prints the error message to standard error and returns false. `subject` replaces %1 in the
    /// message.
    static bool fail(const char *key, const QString &subject);

private:
    /** A thumbnail on the contact sheet. */
    struct Thumbnail {
        QString name;
        QImage image;
    };

    bool save(const QImage &picture, const QString &name) const;

    QDir m_folder;
    QString m_language;
    QList<Thumbnail> m_thumbnails; // the pictures in the current language
    int m_pictures = 0;
    QStringList m_transcript; // the lines of the transcript
};

/// Returns the visible texts of the widget and its descendants from top to bottom, one per line.
QString shownText(const QWidget *widget);

} // namespace Dashboard

#endif
