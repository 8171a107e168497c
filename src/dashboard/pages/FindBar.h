#ifndef FINDBAR_H
#define FINDBAR_H

#include <QPointer>
#include <QTextCursor>
#include <QWidget>

#include <functional>

#include "Page.h"

class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTextEdit;

namespace Dashboard
{

/**
 * The bar in which the user can search the transcript of the general window. All matches are
 * highlighted. The transcript itself and its text cursor are not changed.
 */
class FindBar : public QWidget
{
    Q_OBJECT
public:
    /// `transcript` returns the transcript, or null if there is none. The plug-in may replace it at
    /// any time.
    explicit FindBar(const std::function<QTextEdit *()> &transcript, QWidget *parent = nullptr);

    void retranslate();
    /// In the narrow form, the buttons are below the field.
    void setForm(Form form);
    /// Searches the current transcript of the plug-in. Must be called when the plug-in may have
    /// replaced the transcript.
    void follow();

public slots:
    /// Shows the bar, with the focus in its field.
    void open();
    /// Hides the bar and removes the highlights. If the bar has the focus, returns the focus to the
    /// widget that had it before the bar was opened.
    void dismiss();
    /// Highlights the next or the previous match as the current one. The first match follows the
    /// last one.
    void findNext() { step(1); }
    void findPrevious() { step(-1); }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QPushButton *addButton(const char *iconName, const char *objectName, void (FindBar::*slot)());
    void onTextChanged();
    void search();
    void step(int distance);
    void showMatches();
    void highlight();
    void scrollToMatch();
    void showCount();

    const std::function<QTextEdit *()> m_transcript;
    QPointer<QTextEdit> m_followed;
    QPointer<QWidget> m_focusBefore;
    QBoxLayout *m_rows;
    QLineEdit *m_field;
    QLabel *m_count;
    QPushButton *m_previous;
    QPushButton *m_next;
    QPushButton *m_close;
    QList<QTextCursor> m_matches;
    int m_current = 0; // the index of the current match
};

} // namespace Dashboard

#endif
