#ifndef APPMENU_H
#define APPMENU_H

#include <QMenu>

class QMenuBar;

namespace Dashboard
{

class DeviceMenu;
class LanguageMenu;

/**
 * The menu of the main window. fill() adds the same actions to a hidden menu bar, for desktops that
 * show the menu bar outside the window.
 */
class AppMenu : public QMenu
{
    Q_OBJECT
public:
    explicit AppMenu(QWidget *parent);

    DeviceMenu *deviceMenu() const { return m_device; }
    LanguageMenu *languageMenu() const { return m_language; }

    /// Adds the actions to a menu bar.
    void fill(QMenuBar *bar);
    /// Offers the windows for the SIM, which are a combination of SimWindow flags. The general
    /// window is not offered if the text is too large for its frame.
    void offer(int windows);
    /// Sets the description of the SIM at the top of the menu. If `text` is empty or `isEyeShown`
    /// is false, hides the description and the action that shows the SIM's number.
    void setSim(const QString &text, bool isEyeShown);
    /// Updates the strings after a language change.
    void retranslate();

    QAction *quitAction() const { return m_quit; }

signals:
    /// Emitted with the PAID_TYPE of the window to open.
    void windowRequested(int paidType);
    void editRequested();
    void exportRequested();
    void operatorRequested();
    void settingsRequested();
    void aboutRequested();
    void numberRequested();
    void quitRequested();

private:
    QAction *add(const char *objectName, void (AppMenu::*signal)());
    QAction *addWindow(const char *objectName, int paidType);

    DeviceMenu *m_device;
    LanguageMenu *m_language;
    QMenu *m_file;
    QAction *m_sim;
    QAction *m_number;
    QAction *m_general;
    QAction *m_prepaid;
    QAction *m_postpaid;
    QAction *m_edit;
    QAction *m_export;
    QAction *m_operator;
    QAction *m_settings;
    QAction *m_about;
    QAction *m_quit;
    int m_windows = 0;
};

} // namespace Dashboard

#endif
