#ifndef BANNERS_H
#define BANNERS_H

#include <QFrame>

#include "look/Controls.h"
#include "pages/Page.h"

class QGridLayout;

namespace Dashboard
{

/** The content of a banner: a title, a text and at most two buttons. */
struct Banner {
    QString title; // an empty title means that there is no banner
    QString text;
    QString action; // the text of the main button; empty if there is none
    QString close;  // the text of the second button; empty if the banner cannot be closed
};

/**
 * The area below the header that shows one banner: the first one in the order of Kind that has a
 * title.
 */
class Banners : public QFrame
{
    Q_OBJECT
public:
    /// The kinds of banners. If there are several banners, the first one in this order is shown.
    /// The banner of the demonstration is the last one, because it cannot be closed and would hide
    /// the others.
    enum Kind { Saved, Operator, Problem, Restore, Demonstration };

    explicit Banners(QWidget *parent = nullptr);

    void setBanner(Kind kind, const Banner &banner);
    const Banner &banner(Kind kind) const { return m_banners[kind]; }
    /// Returns the kind of the first banner that has a title, or -1 if there is none.
    int shown() const;
    void setForm(Form form);
    /// Hides every banner while `isSuppressed` is true.
    void setSuppressed(bool isSuppressed);

signals:
    void actionRequested(Banners::Kind kind);
    void closeRequested(Banners::Kind kind);

private:
    void layOut();
    void refresh();

    Banner m_banners[Demonstration + 1];
    QGridLayout *m_grid;
    IconView *m_icon;
    ElidedLabel *m_title;
    QLabel *m_text;
    QPushButton *m_action;
    QPushButton *m_close;
    Form m_form = Form::Wide;
    bool m_isSuppressed = false;
};

} // namespace Dashboard

#endif
