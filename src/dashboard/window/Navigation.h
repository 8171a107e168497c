#ifndef NAVIGATION_H
#define NAVIGATION_H

#include <QFrame>

#include "look/Controls.h"
#include "pages/Page.h"

class QBoxLayout;
class QButtonGroup;

namespace Dashboard
{

class DeviceLine;

/** A button of the navigation, which has the role of a page tab for screen readers. */
class NavigationButton : public LabelledButton
{
    Q_OBJECT
public:
    NavigationButton(const char *icon, const char *objectName, QWidget *parent);
};

/**
 * The navigation between the pages: a side bar in the wide form, a bar of icons in the medium form,
 * and a bar at the bottom in the narrow form.
 */
class Navigation : public QFrame
{
    Q_OBJECT
public:
    explicit Navigation(QWidget *parent = nullptr);

    void setForm(Form form);
    void setCurrent(PageId page);
    PageId current() const;
    QPushButton *button(PageId page) const;
    /// Sets the number of unread messages.
    void setUnread(int count);
    DeviceLine *deviceLine() const { return m_device; }
    /// Updates the strings after a language change.
    void retranslate();

signals:
    /// Emitted when the user selects a page.
    void chosen(PageId page);

private:
    void makeBrand();
    void layOut();
    void layOutBar();
    void layOutColumn();
    NavigationButton *entry(PageId page) const;

    QBoxLayout *m_box = nullptr;
    QLabel *m_logo;
    QLabel *m_title;
    QFrame *m_line;
    DeviceLine *m_device;
    QButtonGroup *m_buttons;
    Form m_form = Form::Wide;
    int m_unread = 0;
};

} // namespace Dashboard

#endif
