#ifndef TOUR_H
#define TOUR_H

#include <QDir>
#include <QMessageBox>
#include <QObject>
#include <QPixmap>
#include <QStringList>

#include "GeneralWindow.h"

class MainWindow;

/**
 * Walks through the plug-in's windows as a user would, in English and in Arabic, takes a picture at
 * each stop and writes down what the windows said. GUI thread; handles events while it waits.
 */
class Tour : public QObject
{
    Q_OBJECT
public:
    /// How long the plug-in is to wait for a reply during a tour, in milliseconds.
    static const int REPLY_LIMIT = 600;
    /// The tour's network.
    static QString scenario();

    /// `window` is shown, has its plug-in, and outlives the tour. `folder` is made when needed.
    Tour(MainWindow *window, const QString &folder);

    /// Takes the tour, and prints each step. Returns whether every stop was reached and every file
    /// written; what went wrong goes to standard error.
    bool run();

private slots:
    void onConfirmBox();

private:
    enum Place { InPage, InFrame };

    bool walk(const QString &language);
    bool walkPage();
    bool walkFrame();
    bool visitStops(const GeneralWindow &general);
    bool ask(const GeneralWindow &general, const QString &command, const char *stop);
    bool waitForAnswer(const GeneralWindow &general);
    bool clearTranscript(const GeneralWindow &general);
    bool take(const char *stop);
    bool save(const QPixmap &picture, const char *stop);
    void note(const char *stop, const QString &picture);
    bool writeTranscript();
    bool fail(const char *key, const QString &subject);
    QPixmap currentPicture() const;
    QString placeName() const;

    MainWindow *const m_window;
    QDir m_folder;
    QString m_language;
    Place m_place = InPage;
    GeneralWindow m_general;    // the one being visited
    QWidget *m_shown = nullptr; // what its pictures show
    bool m_confirmBoxSeen = false;
    int m_pictures = 0;
    QStringList m_transcript; // lines
};

#endif
