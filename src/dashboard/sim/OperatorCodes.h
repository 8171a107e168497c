#ifndef OPERATORCODES_H
#define OPERATORCODES_H

#include <QMap>
#include <QObject>

#include "ProviderChoice.h"
#include "ProvisionWriter.h"

class DashboardSettings;
class DeviceWatcher;

/** Where operators and their codes lie. */
struct OperatorPlaces {
    QString database; // of operators; empty: the installed one
    QString folders;  // the user's, one for each network code; empty: the usual place
    /// False: somebody has chosen the plug-in's folder, and it stays.
    bool isFree = true;

    /// The usual ones; not free when $USSD_PLUGIN_LIBRARY_PATH names a folder.
    static OperatorPlaces ofUser();
};

/**
 * Whose codes the plug-in uses, for each home network of a SIM: an operator's, once they were taken
 * from the database of operators, or those that come with the program. GUI thread.
 */
class OperatorCodes : public QObject
{
    Q_OBJECT
public:
    /// Both outlive the object; `settings` may be null: then what was declined is not remembered.
    OperatorCodes(const DeviceWatcher *device, DashboardSettings *settings,
                  QObject *parent = nullptr);
    ~OperatorCodes() override;

    void setPlaces(const OperatorPlaces &places);
    bool isFree() const { return m_places.isFree; }

    /// MCC and MNC of the SIM in use, or of the one before while nothing is known of the SIM.
    QString network() const { return m_network; }
    /// The operator whose codes are in use; empty for those that come with the program.
    QString operatorInUse() const;
    /// Whether the user has been asked about this SIM's network, and has decided.
    bool isDecided() const;

    /// The operators with codes that this SIM may be of.
    ProviderChoice choice() const;
    /// All with codes in the SIM's country when none of them is known to be its own.
    QList<Provider> candidates() const;
    /// Whether there is a database that can be read.
    bool hasDatabase() const;

    /// Takes the operator's codes. With `setAside`, files that somebody has changed go out of use.
    ProvisionOutcome take(const Provider &provider, bool setAside);
    /// Uses the codes that come with the program with this SIM's network.
    void decline();

public slots:
    /// Looks at the SIM, and has the plug-in's folder be that of its operator.
    void look();

signals:
    /// Another SIM's network is there; what was told of the one before holds no more.
    void networkChanged();
    /// CommonUtils::GetPluginLibraryPath() names another folder, or its files are others.
    void folderChanged();

private:
    QString currentNetwork() const;
    QString folder() const;
    bool isDeclined() const;
    void setDeclined(bool declined);
    void use(const QString &folder);
    const ProviderDatabase &database() const;

    const DeviceWatcher *const m_device;
    DashboardSettings *const m_settings;
    OperatorPlaces m_places;
    QString m_network;
    QString m_folderInUse;              // empty: the installed one
    QMap<QString, QString> m_decisions; // network to what was decided, also without settings
    mutable ProviderDatabase m_database;
    mutable bool m_isRead = false;
};

#endif
