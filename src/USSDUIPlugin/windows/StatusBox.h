#ifndef STATUSBOX_H
#define STATUSBOX_H

#include <QTextEdit>

class PieceFeeder;

/**
 * Shows the network's reply as plain text, whatever it holds, in a fixed number of lines: a longer
 * one scrolls. The plug-in's own texts follow the language; a code such as *111# reads from left to
 * right also among letters that read the other way.
 */
class StatusBox : public QTextEdit
{
public:
    explicit StatusBox(QWidget *parent = nullptr);

    /// How many lines are seen at once.
    void setLines(int lines);
    /// A reply, or one of the plug-in's own texts in the current language.
    void showText(const QString &text);
    /// Shows a text of the plug-in's own in the current language; a reply stays as it is.
    void retranslate();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    QMimeData *createMimeDataFromSelection() const override;
    void changeEvent(QEvent *event) override;

private:
    void setReply(const QString &text);
    void fixHeight();
    int heightOfLines() const;

    PieceFeeder *m_feeder; // a child
    int m_lines;
    QString m_ownKey; // of the text that is shown; empty for a reply
};

#endif
