#ifndef DEVICEMENU_H
#define DEVICEMENU_H

#include <QMenu>

#include "device/DeviceChoice.h"
#include "device/Modem.h"

class QActionGroup;

namespace Dashboard
{

/**
 * The menu in which the user selects a device: the automatic choice, a modem or a simulated
 * network.
 */
class DeviceMenu : public QMenu
{
    Q_OBJECT
public:
    explicit DeviceMenu(QWidget *parent = nullptr);

    /// Sets the current choice and the modems to list. If the menu is open, the change takes effect
    /// when the user opens the menu again, so that menu items do not move under the mouse pointer.
    void offer(const DeviceChoice &choice, const QList<Modem> &modems);
    const DeviceChoice &choice() const { return m_choice; }

public slots:
    /// Updates the title after a language change.
    void retranslate();
    /// Creates the menu items. Called automatically before the menu is shown. Must be called
    /// earlier if the size of the menu is needed, for example by a button that opens it.
    void fill();

signals:
    /// Emitted when the user selects a device. `word` is the return value of DeviceChoice::word().
    void chosen(const QString &word);
    /// Emitted when the user selects the menu item for opening a scenario file.
    void openRequested();

private slots:
    void onTriggered(QAction *action);

private:
    void addModems();
    void addScenarios();
    void addChoice(const QString &text, const DeviceChoice &choice);
    bool hasModem(const QString &equipmentId) const;

    QActionGroup *m_group = nullptr;
    DeviceChoice m_choice;
    QList<Modem> m_modems;
};

} // namespace Dashboard

#endif
