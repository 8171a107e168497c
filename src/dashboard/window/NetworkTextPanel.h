#ifndef NETWORKTEXTPANEL_H
#define NETWORKTEXTPANEL_H

#include <QDateTime>
#include <QFrame>
#include <QList>

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace Dashboard
{

/**
 * Shows network-initiated messages as plain text with the time of each message, and scrolls to the
 * most recent message. The panel appears with the first message and does not take the focus. It
 * discards its messages when it is closed. The size of the panel does not depend on the messages.
 */
class NetworkTextPanel : public QFrame
{
    Q_OBJECT
public:
    explicit NetworkTextPanel(QWidget *parent = nullptr);

    /// Adds a message. An empty `text` means that the content of the message is no longer
    /// available.
    void add(const QString &text, const QDateTime &receivedAt, bool waitsForAnswer);
    /// Updates all strings except the messages after a language change.
    void retranslate();

public slots:
    /// Removes the hint that the network is waiting for an answer.
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

    QList<Entry> m_entries; // sorted by time of arrival
    QLabel *m_title;
    QPlainTextEdit *m_view;
    QLabel *m_question;
    QPushButton *m_close;
};

} // namespace Dashboard

#endif
