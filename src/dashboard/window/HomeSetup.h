#ifndef HOMESETUP_H
#define HOMESETUP_H

#include <QObject>

#include "account/AccountRecorder.h"
#include "account/AccountStore.h"
#include "account/DailyAsking.h"
#include "account/Favourites.h"
#include "device/Situation.h"

namespace Dashboard
{

class AppActions;
class AppController;
class HomePage;

/**
 * Creates the account data and the Home page, and updates them when the SIM, the codes or the
 * settings change.
 */
class HomeSetup : public QObject
{
    Q_OBJECT
public:
    /// `controller` and `actions` must outlive this object. The page becomes a child of `pages`.
    HomeSetup(AppController *controller, AppActions *actions, QWidget *pages,
              QObject *parent = nullptr);

    HomePage *page() const { return m_page; }
    AccountStore &store() { return m_store; }
    AccountRecorder &recorder() { return m_recorder; }
    Favourites &favourites() { return m_favourites; }
    DailyAsking &daily() { return m_daily; }
    void setSituation(const Situation &situation);

public slots:
    /// Applies the current SIM and the current settings.
    void followSim();
    /// Reads the codes from the plug-in's files again.
    void readCodes();
    /// Deletes the entries and the favourites.
    void deleteAll();
    /// Applies the new key of the SIM. Must be called when the keys of all SIMs have changed; see
    /// forgetSimKeys().
    void renewSimKey();
    /// Saves the entries to a file that the user selects.
    void exportAccount();

private:
    bool mayAskDaily() const;
    void saveTo(const QString &file);

    AppController *const m_controller;
    AccountStore m_store;
    AccountRecorder m_recorder;
    Favourites m_favourites;
    DailyAsking m_daily;
    HomePage *m_page;
};

} // namespace Dashboard

#endif
