#ifndef ACCOUNTREPLYVIEW_H
#define ACCOUNTREPLYVIEW_H

#include <QTextEdit>

class PieceFeeder;

/**
 * Shows the network's reply as plain text, whatever it contains, in a box with a fixed number of
 * lines. A longer reply can be scrolled. The plug-in's own texts follow the language. A code such
 * as *111# is read from left to right, even within right-to-left text.
 */
class AccountReplyView : public QTextEdit
{
public:
    explicit AccountReplyView(QWidget *parent = nullptr);

    /// Sets the number of visible lines.
    void setLines(int lines);
    /// Shows a reply, or one of the plug-in's own texts in the current language.
    void showText(const QString &text);
    /// Updates one of the plug-in's own texts to the current language; a reply stays unchanged.
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

    PieceFeeder *m_feeder; // a child of this widget
    int m_lines;
    QString m_ownKey; // key of the shown text; empty for a reply
};

#endif
