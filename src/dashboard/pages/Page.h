#ifndef PAGE_H
#define PAGE_H

#include <QWidget>

namespace Dashboard
{

/** The forms (layouts) of the main window. The form depends on the width of the window in em. */
enum class Form { Wide, Medium, Narrow };

enum class PageId { Home, Codes, Services, Messages, Settings };

/**
 * A page of the main window. The window constructs each page when it is first needed, and keeps it.
 */
class Page : public QWidget
{
    Q_OBJECT
public:
    explicit Page(const char *objectName, QWidget *parent = nullptr);

    /// Updates the strings after a language change.
    virtual void retranslate() = 0;
    /// Adapts the layout of the page to this form of the main window.
    virtual void setForm(Form form);
    /// Returns the widget that receives the focus when the user selects the page, or null if the
    /// page does not take the focus.
    virtual QWidget *firstFocus() const = 0;
};

} // namespace Dashboard

#endif
