#ifndef DEVICEMENU_H
#define DEVICEMENU_H

#include <QMenu>

#include "device/DeviceChoice.h"
#include "device/Modem.h"

class QActionGroup;

/** The devices to choose from: automatic, the modems, the simulated networks. */
class DeviceMenu : public QMenu
{
    Q_OBJECT
public:
    explicit DeviceMenu(QWidget *parent = nullptr);

    /// What is chosen and which modems there are. A menu that is open stays as it is until it is
    /// opened again, so that nothing moves under the pointer.
    void offer(const DeviceChoice &choice, const QList<Modem> &modems);
    const DeviceChoice &choice() const { return m_choice; }

public slots:
    /// Reads the texts again.
    void retranslate();

signals:
    /// The word of a DeviceChoice.
    void chosen(const QString &word);
    /// The user wants to pick a file.
    void openRequested();
    /// The user wants to choose whose codes are used.
    void operatorRequested();

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

#endif
