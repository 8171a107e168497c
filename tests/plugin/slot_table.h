#ifndef SLOT_TABLE_H
#define SLOT_TABLE_H

/*
 * Calls the plug-in's interfaces like a host that was compiled long ago. Instead of including the
 * headers, the calls use the order of the base classes and of the functions in the virtual tables
 * (Itanium C++ ABI).
 */

class QObject;
class QRect;
class QString;
class QWidget;

namespace SlotTable
{

/// The indexes of the functions in the virtual table, without the two entries for the destructor.
enum BasePluginSlot {
    Release,
    GetLastError,
    Init,
    GetPluginType,
    GetCLSID,
    GetVersion,
    GetPluginName,
    IsAllowRelease,
    QueryInterface,
    ShowWindow,
    DoModal,
    Hide,
    FitSize,
    IsReady,
    ChangeLang
};

enum DestroyEventSlot { OnDestroy, UnSDKRegisterEvent };
enum NotifySlot { Notify };
enum USSDSlot {
    GetPrePostInfo,
    DoPrePostPaidModal,
    ShowPrePostPaidWindow,
    IsImsiDynamicMatch,
    CheckImsiIsValid
};

/// Returns the second base class of a plug-in interface. It directly follows the first base class,
/// which has no data members.
void *secondBase(void *basePlugin);

void callVoid(void *object, int slot);
int callInt(void *object, int slot);
bool callBool(void *object, int slot);
QString callString(void *object, int slot);
bool callQueryInterface(void *object, int id, QObject **out);
int callShowWindow(void *object, QWidget *parent, QRect &rect);
void callFitSize(void *object, QRect &rect);
bool callChangeLang(void *object, const QString &lang);
int callNotify(void *object, unsigned int event, unsigned int param1, unsigned int param2);
int callDoPrePostPaidModal(void *object, int type);
int callShowPrePostPaidWindow(void *object, QWidget *parent, QRect &rect, int type);
int callGetPrePostInfo(void *object, bool &inUse, bool &postpaid, int &result, bool ask);
bool callCheckImsiIsValid(void *object, const QString &imsi, int &flags);

} // namespace SlotTable

#endif
