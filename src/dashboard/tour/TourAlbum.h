#ifndef TOURALBUM_H
#define TOURALBUM_H

#include <QDir>
#include <QPixmap>
#include <QStringList>

class QWidget;

/** A stop of the tour: the end of its picture's name, and what is to be seen there. */
struct TourStop {
    const char *name;
    const char *caption;
};

/** The tour's pictures and its transcript. What cannot be written goes to standard error. */
class TourAlbum
{
public:
    explicit TourAlbum(const QString &folder);

    bool makeFolder();
    /// For the pictures that follow.
    void setLanguage(const QString &code) { m_language = code; }

    /// Adds a picture of `place`, with what can be read in it. False when it cannot be written.
    bool add(const QPixmap &picture, const char *place, const TourStop &stop, const QString &text);
    bool writeTranscript();
    int pictures() const { return m_pictures; }

    /// Says on standard error what went wrong, and returns false. `subject` stands for %1.
    static bool fail(const char *key, const QString &subject);

private:
    QDir m_folder;
    QString m_language;
    int m_pictures = 0;
    QStringList m_transcript; // lines
};

/// What can be read in the widget and those in it, from top to bottom, one line for each.
QString shownText(const QWidget *widget);

#endif
