#ifndef MESSAGEBOX_H
#define MESSAGEBOX_H

#include <QMessageBox>

namespace HostCore
{

/**
 * A message box for plain text that never grows beyond the screen: a text that is long or has an
 * unbreakable word is shown in a view that scrolls. Escape and the window's close button press no
 * button, not even the only one.
 */
class Q_DECL_EXPORT MessageBox : public QMessageBox
{
    Q_OBJECT
public:
    MessageBox(Icon icon, const QString &caption, const QString &text, QWidget *parent);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void showInView(const QString &text);
};

} // namespace HostCore

#endif
