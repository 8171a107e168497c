#include "slot_table.h"

#include <QString>

namespace
{

const int DESTRUCTOR_SLOTS = 2;

template <typename Function>
Function slotFunction(void *object, int slot)
{
    void **const table = *static_cast<void ***>(object);
    return reinterpret_cast<Function>(table[DESTRUCTOR_SLOTS + slot]);
}

template <typename Result, typename... Arguments>
Result call(void *object, int slot, Arguments... arguments)
{
    return slotFunction<Result (*)(void *, Arguments...)>(object, slot)(object, arguments...);
}

} // namespace

namespace SlotTable
{

void *secondBase(void *basePlugin)
{
    return static_cast<char *>(basePlugin) + sizeof(void *);
}

void callVoid(void *object, int slot)
{
    call<void>(object, slot);
}

int callInt(void *object, int slot)
{
    return call<int>(object, slot);
}

bool callBool(void *object, int slot)
{
    return call<bool>(object, slot);
}

QString callString(void *object, int slot)
{
    return call<QString>(object, slot);
}

bool callQueryInterface(void *object, int id, QObject **out)
{
    return call<bool, int, QObject **>(object, QueryInterface, id, out);
}

int callShowWindow(void *object, QWidget *parent, QRect &rect)
{
    return call<int, QWidget *, QRect &>(object, ShowWindow, parent, rect);
}

void callFitSize(void *object, QRect &rect)
{
    call<void, QRect &>(object, FitSize, rect);
}

bool callChangeLang(void *object, const QString &lang)
{
    return call<bool, const QString &>(object, ChangeLang, lang);
}

int callNotify(void *object, unsigned int event, unsigned int param1, unsigned int param2)
{
    return call<int, unsigned int, unsigned int, unsigned int>(object, Notify, event, param1,
                                                               param2);
}

int callDoPrePostPaidModal(void *object, int type)
{
    return call<int, int>(object, DoPrePostPaidModal, type);
}

int callShowPrePostPaidWindow(void *object, QWidget *parent, QRect &rect, int type)
{
    return call<int, QWidget *, QRect &, int>(object, ShowPrePostPaidWindow, parent, rect, type);
}

int callGetPrePostInfo(void *object, bool &inUse, bool &postpaid, int &result, bool ask)
{
    return call<int, bool &, bool &, int &, bool>(object, GetPrePostInfo, inUse, postpaid, result,
                                                  ask);
}

bool callCheckImsiIsValid(void *object, const QString &imsi, int &flags)
{
    return call<bool, const QString &, int &>(object, CheckImsiIsValid, imsi, flags);
}

} // namespace SlotTable
