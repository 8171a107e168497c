#ifndef ACCOUNTREPLYVIEW_H
#define ACCOUNTREPLYVIEW_H

#include <QTextEdit>

class PieceFeeder;

/**
 * Shows the network's reply as plain text in a box with a fixed number of lines, even if the reply
 * contains markup. A longer reply can be scrolled. Messages of the plug-in itself are updated when
 * the language changes. Codes such as *111# are displayed from left to right, even within
 * right-to-left text.
 */
class AccountReplyView : public QTextEdit
{
public:
    explicit AccountReplyView(QWidget *parent = nullptr);

    /// Sets the number of visible lines.
    void setLines(int lines);
    /// Shows a reply, or one of the plug-in's own messages in the current language.
    void showText(const QString &text);
    /// Updates a message of the plug-in to the current language. Replies remain unchanged.
    void retranslate();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    QMimeData *createMimeDataFromSelection() const override;
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setReply(const QString &text);
    void fixHeight();
    int heightOfLines() const;

    PieceFeeder *m_feeder; // a child of this widget
    int m_lines;
    QString m_ownKey; // text key of the message shown; empty for a reply
};

#endif
