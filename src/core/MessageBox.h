#ifndef MESSAGEBOX_H
#define MESSAGEBOX_H

#include <QMessageBox>

namespace HostCore
{

/**
 * A message box for plain text that always fits on the screen. Text that is long or contains a long
 * unbreakable word is shown in a scrollable view. Escape and the window's close button do not press
 * any button, even if there is only one.
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
