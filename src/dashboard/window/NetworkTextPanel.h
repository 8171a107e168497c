#ifndef NETWORKTEXTPANEL_H
#define NETWORKTEXTPANEL_H

#include <QDateTime>
#include <QFrame>
#include <QList>

class QLabel;
class QPlainTextEdit;
class QPushButton;

/**
 * What the network has said of its own accord, in the order it came, the newest in view: plain text
 * with the time of each. It appears with the first text, takes no focus, and can be closed, which
 * forgets the texts. What a text says decides nothing about the panel's size.
 */
class NetworkTextPanel : public QFrame
{
    Q_OBJECT
public:
    explicit NetworkTextPanel(QWidget *parent = nullptr);

    /// An empty text is one that is not known any more.
    void add(const QString &text, const QDateTime &receivedAt, bool waitsForAnswer);
    /// Reads the texts around those of the network again.
    void retranslate();

public slots:
    /// Nothing waits for an answer any more.
    void endQuestion();
    void forget();

private:
    struct Entry {
        QString text;
        QDateTime receivedAt;
        bool waitsForAnswer;
    };

    void showEntries();
    static QString linesOf(const Entry &entry);

    QList<Entry> m_entries; // the oldest first
    QLabel *m_title;
    QPlainTextEdit *m_view;
    QLabel *m_question;
    QPushButton *m_close;
};

#endif
