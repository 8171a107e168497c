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
 * A row of the settings: icon, title, description and a control at the end. In the narrow form, a
 * wide control is below the title.
 */
class SettingsRow : public QWidget
{
    Q_OBJECT
public:
    /// Takes the ownership of the control. `icon` is a string literal.
    SettingsRow(const char *icon, QWidget *control, bool isControlWide, QWidget *parent);

    /// Sets the texts. An empty description hides its line. The title becomes the name of the
    /// control, and the description becomes its description.
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
