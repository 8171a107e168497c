#ifndef CODESSETUP_H
#define CODESSETUP_H

#include <QObject>

#include "plugin/ChainRunner.h"
#include "plugin/CodeHistory.h"
#include "plugin/WalkWatcher.h"

namespace Dashboard
{

class AppActions;
class AppController;
class CodesPage;
class Favourites;
struct CodeName;
struct PluginFailure;

/**
 * Creates the Codes page and its history, and updates them when the plug-in, the codes or the
 * settings change.
 */
class CodesSetup : public QObject
{
    Q_OBJECT
public:
    /// The first three arguments must outlive this object. The page becomes a child of `pages`.
    CodesSetup(AppController *controller, AppActions *actions, Favourites *favourites,
               QWidget *pages, QObject *parent = nullptr);

    CodesPage *page() const { return m_page; }

    /// Displays the plug-in's window, or why the plug-in cannot be loaded, if the plug-in was
    /// started before this object was constructed.
    void catchUp();

    /// Opens the list of codes with the first of the new codes selected.
    void showNewCodes();

signals:
    /// Emitted with the names of the codes that the user has just saved and that have no button.
    void savedWithoutButton(const QStringList &names);

public slots:
    /// Applies changed settings.
    void followSettings();
    void retranslate();
    /// Deletes the history.
    void deleteAll();

private:
    QList<CodeName> names() const;
    void onPluginStarted(const PluginFailure &failure);
    void offerWindow();
    void onFrameClosed();
    void makePresets();
    void reportSaved();
    void readCodes();
    void followChains();
    void followDevice();

    AppController *const m_controller;
    AppActions *const m_actions;
    CodeHistory m_history;
    ChainRunner m_chains;
    WalkWatcher m_walks;
    CodesPage *m_page;
    bool m_isOffered = false;
    QStringList m_known; // the user's codes when they were last read
    QStringList m_new;   // saved codes for which the plug-in may have to be restarted
    QStringList m_saved; // saved codes for which the plug-in makes no further buttons
    QString m_reported;  // the first code without a button, as shown in the history
};

} // namespace Dashboard

#endif
