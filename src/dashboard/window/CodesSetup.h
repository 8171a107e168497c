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
    void readCodes();
    void followChains();
    void followDevice();

    AppController *const m_controller;
    CodeHistory m_history;
    ChainRunner m_chains;
    WalkWatcher m_walks;
    CodesPage *m_page;
    bool m_isOffered = false;
};

} // namespace Dashboard

#endif
