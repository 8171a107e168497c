#ifndef SETTINGSROW_H
#define SETTINGSROW_H

#include <QWidget>

#include "Page.h"

class QGridLayout;
class QLabel;

namespace Dashboard
{

class IconView;

/**
 * A row of the Settings page, with an icon, a title, a description and a control. In the narrow
 * form, a wide control is below the title.
 */
class SettingsRow : public QWidget
{
    Q_OBJECT
public:
    /// Takes ownership of the control. `icon` must be a string literal.
    SettingsRow(const char *icon, QWidget *control, bool isControlWide, QWidget *parent);

    /// Sets the title and the description, which are also the accessible name and the accessible
    /// description of the control. If the description is empty, its line is hidden.
    void setTexts(const QString &title, const QString &description);
    void setForm(Form form);

private:
    void place(bool isControlBelow);

    QGridLayout *m_grid;
    IconView *m_icon;
    QLabel *m_title;
    QLabel *m_description;
    QWidget *m_control;
    const bool m_isControlWide;
};

} // namespace Dashboard

#endif
