#ifndef APPACTIONS_H
#define APPACTIONS_H

#include <QString>

namespace Dashboard
{

enum class PageId;
enum class Remedy;

/** The actions that pages can request from the main window. All functions return immediately. */
class AppActions
{
public:
    virtual ~AppActions();

    virtual void showPage(PageId page) = 0;
    /// Opens the Codes page and sends the code.
    virtual void sendCode(const QString &code) = 0;
    /// Opens the Codes page and runs the chain with this name.
    virtual void runChain(const QString &name) = 0;
    /// Opens the Codes page and enters the code into the command field without sending it.
    virtual void typeCode(const QString &code) = 0;
    /// Opens the dialog, window or field in which the user can top up the account.
    virtual void topUp() = 0;
    virtual void openAccountWindow() = 0;
    /// Opens the services window. `row` is the index of the service in the configuration; -1
    /// selects no service.
    virtual void openServicesWindow(int row) = 0;
    /// Opens the editor for the user's own codes.
    virtual void editCodes() = 0;
    virtual void perform(Remedy remedy) = 0;
};

} // namespace Dashboard

#endif
