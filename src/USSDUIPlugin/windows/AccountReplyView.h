#ifndef ACCOUNTREPLYVIEW_H
#define ACCOUNTREPLYVIEW_H

#include <QTextEdit>

class PieceFeeder;

/**
 * Shows a network reply as plain text in a box with a fixed number of visible lines; longer replies
 * can be scrolled. Codes such as *111# are displayed from left to right, even inside right-to-left
 * text. The box can also show a message of the plug-in itself, which is updated when the language
 * changes.
 */
class AccountReplyView : public QTextEdit
{
public:
    explicit AccountReplyView(QWidget *parent = nullptr);

    /// Sets the number of visible lines.
    void setLines(int lines);
    /// Shows a reply or one of the plug-in's own messages in the current language.
    void showText(const QString &text);
    /// Translates a message of the plug-in into the current language. Replies are not affected.
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
