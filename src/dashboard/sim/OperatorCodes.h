#ifndef OPERATORCODES_H
#define OPERATORCODES_H

#include <QMap>
#include <QObject>

#include "ProviderChoice.h"
#include "ProvisionWriter.h"

namespace Dashboard
{

class DashboardSettings;
class DeviceWatcher;

/** The paths of the operator database and of the operator folders. */
struct OperatorPlaces {
    QString database; // empty for the installed database
    QString folders;  // contains one folder for each network code; empty for the user's own folder
    /// False if the environment specifies the plug-in's folder, which must then not be changed.
    bool isFree = true;

    /// Returns the paths for the user who runs the program. `isFree` is false if
    /// $USSD_PLUGIN_LIBRARY_PATH is set.
    static OperatorPlaces ofUser();
};

/**
 * Selects the codes that the plug-in uses, separately for each home network of a SIM. The codes of
 * an operator are taken from the operator database. If no operator is selected, a simulated network
 * uses the sample codes, and a modem uses no codes. All functions must be called from the GUI
 * thread.
 */
class OperatorCodes : public QObject
{
    Q_OBJECT
public:
    /// Both arguments must outlive this object. If `settings` is null, decisions are not stored.
    OperatorCodes(const DeviceWatcher *device, DashboardSettings *settings,
                  QObject *parent = nullptr);
    ~OperatorCodes() override;

    void setPlaces(const OperatorPlaces &places);
    bool isFree() const { return m_places.isFree; }

    /// Returns the MCC and MNC of the current SIM. While the current SIM is unknown, returns the
    /// MCC and MNC of the previous SIM.
    QString network() const { return m_network; }
    /// Returns the operator whose codes are in use. Returns an empty string if there is none.
    QString operatorInUse() const;
    /// Returns true if the device is a simulated network.
    bool isSimulated() const { return m_isSimulated; }
    /// Returns true if the sample codes are in use, which are suitable only for a simulated
    /// network.
    bool areSample() const;
    /// Returns true if no codes are in use because the operator of the SIM is not set up.
    bool areAbsent() const;
    /// Returns true if the codes in use belong to the operator of the SIM, because they were
    /// selected by the user or by a system integrator with $USSD_PLUGIN_LIBRARY_PATH.
    bool areOfOperator() const;
    /// Returns true if the user has decided which codes to use for this SIM's network.
    bool isDecided() const;

    /// Returns the operators that have codes and may have issued this SIM.
    Provisioning::ProviderChoice choice() const;
    /// Returns the operators of choice(). If there are none, returns all operators in the SIM's
    /// country that have codes.
    QList<Provisioning::Provider> candidates() const;
    /// Returns true if the operator database can be read.
    bool hasDatabase() const;

    /// Writes the operator's codes to the folder for the SIM's network and selects this folder. If
    /// the folder contains manually edited files and `setAside` is false, has no effect. If
    /// `setAside` is true, the edited files are kept, but no longer used.
    Provisioning::ProvisionOutcome take(const Provisioning::Provider &provider, bool setAside);
    /// Records that no operator is to be used for this SIM's network.
    void decline();

public slots:
    /// Reads the network of the SIM and selects the plug-in's folder for this network.
    void look();

signals:
    /// Emitted when the home network of the SIM has changed. Messages about the previous network
    /// are then outdated.
    void networkChanged();
    /// Emitted when the return value of CommonUtils::GetPluginLibraryPath() or the files in this
    /// folder have changed.
    void folderChanged();

private:
    QString currentNetwork() const;
    QString folder() const;
    QString wantedFolder() const;
    bool isProvisioned() const;
    bool isDeclined() const;
    void setDeclined(bool declined);
    void use(const QString &folder);
    const Provisioning::ProviderDatabase &database() const;

    const DeviceWatcher *const m_device;
    DashboardSettings *const m_settings;
    OperatorPlaces m_places;
    QString m_network;
    bool m_isSimulated = true;
    bool m_hasLooked = false;
    QString m_folderInUse;              // empty for the installed folder
    QMap<QString, QString> m_decisions; // keyed by network; used if there are no settings
    mutable Provisioning::ProviderDatabase m_database;
    mutable bool m_isRead = false;
};

} // namespace Dashboard

#endif
