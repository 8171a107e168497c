#include "ConfigTest.h"

int ConfigTest::number(int paidType, int component, int attr)
{
    return logic()->GetComponentAttrInt(paidType, component, attr);
}

QString ConfigTest::text(int paidType, int component, int attr)
{
    QString result = latin1("unchanged");
    logic()->GetComponentAttrStr(paidType, component, attr, result);
    return result;
}

Char ConfigTest::look(_CHAR_SET_COLOR which)
{
    Char result;
    logic()->GetCharSet(which, result);
    return result;
}

ClearHistory ConfigTest::clearSetting()
{
    ClearHistory result;
    logic()->GetClearBtnSetting(result);
    return result;
}

CmdEdit ConfigTest::editSetting()
{
    CmdEdit result;
    logic()->GetCmdEditSetting(result);
    return result;
}

PrePostDiffer ConfigTest::differ()
{
    PrePostDiffer result;
    logic()->GetPrePostDiffer(result);
    return result;
}

int ConfigTest::flagsOf(const QString &imsi)
{
    int flags = 4711;
    if (logic()->CheckImsiIsValid(imsi, flags))
        return flags;
    return flags == 0 ? -1 : -2;
}
